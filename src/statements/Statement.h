#pragma once

#include "statements/Answerable.h"

#include <QString>

#include <functional>
#include <memory>
#include <ostream>
#include <variant>
#include <vector>

namespace inkmacro {

class Fault;

/// Gives the parts of a text one by one, from 0; an empty one behind the last.
using LateText = std::function<QString(std::size_t part)>;

/// What is known of one place of a statement besides its text.
struct StatementNote
{
    /// A fault is of the line that its place comes to stand on. A late text is made, and stands at its place, when the
    /// statement is written. An answerable value begins there.
    using What = std::variant<const Fault*, LateText, Answerable>;

    int offset; ///< in the text
    What what;
};

} // namespace inkmacro

/// The text of some statements, or of a part of one, with notes beside it. Moving it costs no more than moving a text.
class Statement
{
public:
    using Notes = std::vector<inkmacro::StatementNote>;

    Statement() = default;
    Statement(const QString& text) : text_(text) {}
    Statement(QString&& text) : text_(std::move(text)) {}
    explicit Statement(inkmacro::LateText text);
    Statement(QString text, Notes notes);
    Statement(const Statement& other);
    Statement& operator=(const Statement& other);
    Statement(Statement&&) = default;
    Statement& operator=(Statement&&) = default;
    ~Statement() = default;

    /// Without what is made late.
    const QString& text() const { return text_; }
    /// By their places; the empty list when there are none.
    const Notes& notes() const;
    bool hasNotes() const { return notes_ != nullptr; }
    bool isEmpty() const { return text_.isEmpty() && !notes_; }
    void clear();
    /// Takes so many letters off both ends, none of which has a note.
    void cut(int front, int back);
    void reserve(int letters) { text_.reserve(letters); }

    Statement& operator+=(const Statement& other);
    Statement& operator+=(Statement&& other);
    Statement& operator+=(const QString& text);
    Statement& prepend(const Statement& other) { return *this = other + *this; }
    friend Statement operator+(Statement one, const Statement& other);
    friend Statement operator+(Statement one, const QString& text);

    /// Notes the fault for where the text begins, behind blanks and line ends.
    void addFault(const inkmacro::Fault& fault);
    /// Notes it for that place of the text.
    void addFault(const inkmacro::Fault& fault, int offset);

    friend bool operator==(const Statement& one, const Statement& other) { return one.text_ == other.text_; }
    friend bool operator==(const Statement& one, const QString& text) { return one.text_ == text; }
    std::string toStdString() const { return text_.toStdString(); }
    friend std::ostream& operator<<(std::ostream& stream, const Statement& statement);

private:
    QString text_;
    std::unique_ptr<Notes> notes_; ///< null for none
};
