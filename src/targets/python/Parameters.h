#pragma once

#include "statements/Answerable.h"
#include "targets/CommandFunctions.h"
#include "targets/python/names.h"

#include <QByteArray>
#include <QHash>
#include <QString>

#include <cstddef>
#include <map>
#include <optional>
#include <vector>

/// Which answers at a command's prompts are parameters of its function, and where they stand.
///
/// An answer is a parameter when a value of the command's later statements is it: of the kind that the prompt asks for,
/// and equal to the last digit. A value that is made of answers is none. What could be either of two answers is
/// neither.
namespace inkmacro::python {

/// A place of a statement that an answer may stand at.
struct Place
{
    std::size_t action; ///< whose statements it is in
    int offset;         ///< in their text
    const Answerable* value;
};

class Parameters
{
public:
    /// The command must outlive it.
    Parameters(const RecordedCommand& command, PromptNames& promptNames);

    /// By the order of the prompts; an answer that nothing uses is none.
    struct Parameter
    {
        QString name;
        std::vector<const Prompt*> answers; ///< more than one: a tuple of them
        bool isTuple = false;
    };
    const std::vector<Parameter>& all() const { return parameters_; }
    bool isUsed(std::size_t prompt) const { return used_[prompt]; }
    /// The name that stands for the answer, with an index where it is one of a tuple.
    QString nameOf(std::size_t prompt) const { return names_.at(prompt); }

    /// The statements of that action with parameters in place of the answers.
    QString textOf(std::size_t action) const;

private:
    /// Answers that are one value to a kind of places.
    struct Equals
    {
        std::vector<std::size_t> prompts;  ///< in their order
        bool isDoubtful = false;           ///< two of them were unused when a place asked
        std::size_t told = 0;              ///< how many of them stand in front of the place
        std::vector<std::size_t> unused{}; ///< of those, as far as is known
    };
    /// The kind and the value as bytes.
    using Key = QByteArray;

    void collectPlaces();
    void collectAnswers();
    void decide();
    /// False when a doubt arose.
    bool decideOnce();
    bool standsOnce(std::size_t place, const Prompt& prompt);
    void count(std::size_t action);
    void name(PromptNames& promptNames);

    /// The lengths, angles, factors and counts of one action.
    struct Counts
    {
        std::optional<std::size_t> action;
        QHash<Key, int> equal{};
        bool factorsDiffer = false;
    };

    const RecordedCommand& command_;
    std::vector<Place> places_;
    std::vector<std::size_t> firstPlace_; ///< of each action, and the number of all places
    QHash<Key, Equals> equals_;
    Counts counts_{};
    std::vector<std::optional<std::size_t>> chosen_; ///< of each place: the prompt
    std::vector<bool> used_;                         ///< of each prompt
    std::map<std::size_t, QString> names_;
    std::vector<Parameter> parameters_;
};

} // namespace inkmacro::python
