// Answers as parameters.

#include "targets/python/Parameters.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <optional>
#include <utility>
#include <variant>

namespace inkmacro::python {

namespace {

/// Answers of one prompt beyond so many are one tuple.
constexpr std::size_t mostSingle = 4;

/// What the answer may be in a statement; nothing of a keyword or a color, which stand in none.
std::vector<Meaning> meaningsOf(Asked asked)
{
    switch (asked) {
    case Asked::Point:
    case Asked::Corner:
        return {Meaning::Point};
    case Asked::Angle:
    case Asked::Orientation:
        return {Meaning::Angle};
    case Asked::Distance:
        return {Meaning::Length};
    case Asked::Scale:
    case Asked::Number:
        return {Meaning::Factor, Meaning::Length};
    case Asked::Integer:
        return {Meaning::Count};
    case Asked::Text:
        return {Meaning::Text};
    default:
        return {};
    }
}

/// A value that stands in many places which nobody was asked for, or is equal to none.
bool isNobodys(Meaning meaning, const std::array<double, 3>& numbers, const QString& text)
{
    switch (meaning) {
    case Meaning::Text:
        return text.isEmpty();
    case Meaning::Factor:
        return numbers[0] == 0 || numbers[0] == 1 || std::isnan(numbers[0]);
    case Meaning::Point:
        return std::any_of(numbers.begin(), numbers.end(), [](double number) { return std::isnan(number); });
    default:
        return numbers[0] == 0 || std::isnan(numbers[0]);
    }
}

/// Equal keys are equal values of one kind; both zeros are one number. `axes`: how many coordinates are looked at.
QByteArray keyOf(Meaning meaning, const std::array<double, 3>& numbers, const QString& text, int axes)
{
    QByteArray key;
    key += static_cast<char>(meaning);
    key += static_cast<char>(axes);
    if (meaning == Meaning::Text)
        return key.append(reinterpret_cast<const char*>(text.utf16()), 2 * text.size());
    for (int i = 0; i < axes; ++i) {
        const double number = numbers[static_cast<std::size_t>(i)] + 0.0;
        key.append(reinterpret_cast<const char*>(&number), sizeof number);
    }
    return key;
}

/// The parameter as it stands at the place.
QString wordsAt(const Answerable& value, const QString& name)
{
    if (value.meaning != Meaning::Point)
        return name;
    if (value.axis >= 0)
        return name + '[' + QString::number(value.axis) + ']';
    return '*' + name + (value.axes == 2 ? "[:2]" : "");
}

} // namespace

Parameters::Parameters(const RecordedCommand& command, PromptNames& promptNames)
    : command_(command), used_(command.prompts.size())
{
    collectAnswers();
    if (equals_.isEmpty())
        return;
    collectPlaces();
    decide();
    name(promptNames);
}

void Parameters::collectAnswers()
{
    for (std::size_t i = 0; i < command_.prompts.size(); ++i) {
        const Prompt& prompt = command_.prompts[i];
        if (!prompt.isAnswered)
            continue;
        for (const Meaning meaning : meaningsOf(prompt.asked)) {
            if (isNobodys(meaning, prompt.numbers, prompt.answer))
                continue;
            equals_[keyOf(meaning, prompt.numbers, prompt.answer, meaning == Meaning::Point ? 3 : 1)].prompts.push_back(
                i);
            if (meaning == Meaning::Point)
                equals_[keyOf(meaning, prompt.numbers, prompt.answer, 2)].prompts.push_back(i);
        }
    }
}

void Parameters::collectPlaces()
{
    for (std::size_t action = 0; action < command_.actions.size(); ++action) {
        firstPlace_.push_back(places_.size());
        for (const StatementNote& note : command_.actions[action].statements.notes())
            if (const auto* const value = std::get_if<Answerable>(&note.what))
                places_.push_back({action, note.offset, value});
    }
    firstPlace_.push_back(places_.size());
}

/// A doubt is one for the whole command, and known only when its place is reached: then all begins anew without the
/// answers that it is about.
void Parameters::decide()
{
    while (!decideOnce()) {
    }
}

bool Parameters::decideOnce()
{
    bool isSettled = true;
    chosen_.assign(places_.size(), std::nullopt);
    used_.assign(used_.size(), false);
    for (Equals& equals : equals_) {
        equals.told = 0;
        equals.unused.clear();
    }
    for (std::size_t i = 0; i < places_.size(); ++i) {
        const Answerable& value = *places_[i].value;
        const auto found = equals_.find(keyOf(value.meaning, value.numbers, value.text, value.axes));
        if (found == equals_.end() || found->isDoubtful)
            continue;
        const auto isTold = [&](std::size_t prompt) {
            return command_.prompts[prompt].child < command_.actions[places_[i].action].child;
        };
        for (; found->told < found->prompts.size() && isTold(found->prompts[found->told]); ++found->told)
            found->unused.push_back(found->prompts[found->told]);
        if (found->told == 0)
            continue;
        const std::size_t last = found->prompts[found->told - 1];
        if (!standsOnce(i, command_.prompts[last]))
            continue;
        std::erase_if(found->unused, [&](std::size_t prompt) { return used_[prompt]; });
        if (found->unused.size() > 1) {
            found->isDoubtful = true;
            isSettled = false;
            continue;
        }
        chosen_[i] = last;
        used_[last] = true;
    }
    return isSettled;
}

/// A length, angle, factor or count that an action has twice may be the answer in one place and something else in the
/// other. The factors of an action are one value: all of them are the answer, or none is.
bool Parameters::standsOnce(std::size_t place, const Prompt& prompt)
{
    const Answerable& value = *places_[place].value;
    if (value.meaning == Meaning::Point || value.meaning == Meaning::Text)
        return true;
    const bool isFactor = value.meaning == Meaning::Factor;
    count(places_[place].action);
    if (isFactor && counts_.factorsDiffer)
        return false;
    int equal = 0;
    for (const Meaning meaning : meaningsOf(prompt.asked))
        if (!isFactor || meaning != Meaning::Factor)
            equal += counts_.equal.value(keyOf(meaning, value.numbers, {}, 1));
    return equal <= (isFactor ? 0 : 1);
}

/// An action may have many values, and is looked through once.
void Parameters::count(std::size_t action)
{
    if (counts_.action == action)
        return;
    counts_ = {action};
    std::optional<double> factor;
    for (std::size_t i = firstPlace_[action]; i < firstPlace_[action + 1]; ++i) {
        const Answerable& value = *places_[i].value;
        if (value.meaning == Meaning::Point || value.meaning == Meaning::Text)
            continue;
        ++counts_.equal[keyOf(value.meaning, value.numbers, {}, 1)];
        if (value.meaning != Meaning::Factor)
            continue;
        counts_.factorsDiffer = counts_.factorsDiffer || (factor && *factor != value.numbers[0]);
        factor = value.numbers[0];
    }
}

/// In the order of the prompts.
void Parameters::name(PromptNames& promptNames)
{
    std::map<std::pair<Asked, QString>, std::vector<std::size_t>> byPrompt;
    for (std::size_t i = 0; i < used_.size(); ++i)
        if (used_[i])
            byPrompt[{command_.prompts[i].asked, command_.prompts[i].text}].push_back(i);
    FreeNames free;
    for (std::size_t i = 0; i < used_.size(); ++i) {
        if (!used_[i])
            continue;
        const Prompt& prompt = command_.prompts[i];
        const std::vector<std::size_t>& same = byPrompt[{prompt.asked, prompt.text}];
        const bool isTuple = same.size() > mostSingle;
        if (isTuple && same.front() != i)
            continue;
        Parameter parameter{free.take(promptNames.of(prompt, isTuple)), {}, isTuple};
        if (!isTuple)
            names_[i] = parameter.name;
        for (std::size_t at = 0; isTuple && at < same.size(); ++at)
            names_[same[at]] = parameter.name + '[' + QString::number(at) + ']';
        for (const std::size_t answer : isTuple ? same : std::vector{i})
            parameter.answers.push_back(&command_.prompts[answer]);
        parameters_.push_back(std::move(parameter));
    }
}

QString Parameters::textOf(std::size_t action) const
{
    const QString text = command_.actions[action].statements.text();
    QString with;
    int from = 0;
    const std::size_t end = firstPlace_.empty() ? 0 : firstPlace_[action + 1];
    for (std::size_t i = firstPlace_.empty() ? 0 : firstPlace_[action]; i < end; ++i) {
        const Place& place = places_[i];
        if (!chosen_[i])
            continue;
        with += text.mid(from, place.offset - from) + wordsAt(*place.value, nameOf(*chosen_[i]));
        from = place.offset + place.value->length;
    }
    return from == 0 ? text : with + text.mid(from);
}

} // namespace inkmacro::python
