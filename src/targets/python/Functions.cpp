// The functions of a macro.

#include "targets/python/Functions.h"

#include "statements/losses.h"
#include "statements/pythonLiterals.h"
#include "targets/python/layout.h"
#include "targets/texts.h"

#include <QHash>
#include <QRegularExpression>

#include <algorithm>
#include <utility>

namespace inkmacro::python {

namespace {

constexpr int bodyIndentation = 4;

/// The helpers' texts by their names.
const QHash<QString, QString>& helperTexts()
{
    static const QHash<QString, QString> texts = [] {
        QHash<QString, QString> byName;
        const QString all = QString::fromUtf8(texts::python::helpers).trimmed();
        for (const QString& function : all.split(QLatin1String("\n\n\n")))
            byName.insert(function.section('(', 0, 0).section(' ', 1), function + "\n\n\n");
        return byName;
    }();
    return texts;
}

QString valueOf(const Prompt& prompt)
{
    switch (prompt.asked) {
    case Asked::Point:
    case Asked::Corner:
        return '(' + pythonReals({prompt.numbers[0], prompt.numbers[1], prompt.numbers[2]}) + ')';
    case Asked::Text:
        return pythonText(prompt.answer);
    case Asked::Integer:
        return QString::number(static_cast<int>(prompt.numbers[0]));
    default:
        return pythonReal(prompt.numbers[0]);
    }
}

QString defaultOf(const Parameters::Parameter& parameter)
{
    if (!parameter.isTuple)
        return valueOf(*parameter.answers.front());
    QStringList values;
    for (const Prompt* const answer : parameter.answers)
        values.append(valueOf(*answer));
    return '(' + values.join(", ") + ')';
}

/// What asks for the parameter, which is offered as the answer where the prompt can offer one.
QString questionFor(const Prompt& prompt, const QString& value)
{
    const QString text = pythonText(prompt.shown);
    const auto number = [&](const char* call) {
        return QString("answered(message.%1(%2, %3))").arg(call, text, value);
    };
    switch (prompt.asked) {
    case Asked::Point:
    case Asked::Corner:
        return "answered(message.PromptForPoint(" + text + "), 3)";
    case Asked::Angle:
        return number("PromptForAngle");
    case Asked::Orientation:
        return number("PromptForOrientation");
    case Asked::Distance:
        return number("PromptForDistance");
    case Asked::Text:
        return "answered(message.PromptForString(True, " + text + ", " + value + "))";
    case Asked::Integer:
        return number("PromptForInteger");
    default:
        return number("PromptForDouble");
    }
}

bool isPoint(const Prompt& prompt)
{
    return prompt.asked == Asked::Point || prompt.asked == Asked::Corner;
}

/// Notes the prompts that the macro does not show.
void losePrompts(const RecordedCommand& command, const Parameters& parameters)
{
    for (std::size_t i = 0; i < command.prompts.size(); ++i) {
        const Prompt& prompt = command.prompts[i];
        if (parameters.isUsed(i))
            continue;
        const CFxConversionNotes::Action place(GetFxSystemServices()->Notes(), prompt.child, false);
        NoteLoss(prompt.title, CFxString(QStringLiteral("no statement uses its answer, so the macro does not ask")));
    }
}

/// Tells the host which answers became parameters.
void noteParameters(const RecordedCommand& command, const Parameters& parameters, const QString& function)
{
    CFxConversionNotes& notes = GetFxSystemServices()->Notes();
    for (std::size_t i = 0; i < command.prompts.size(); ++i) {
        if (!parameters.isUsed(i))
            continue;
        const CFxConversionNotes::Action place(notes, command.prompts[i].child, false);
        notes.NoteParameter(function, parameters.nameOf(i));
    }
}

/// What is fetched into locals and stays the same: what each holds now.
using Fetched = QHash<QString, QString>;

/// Whether the line fetches again what its local holds.
bool isFetchedAgain(const QString& line, Fetched& fetched)
{
    static const QRegularExpression assignment("^    (\\w+) = (.*)$");
    static const QRegularExpression lasting("^drawing\\.(?:app\\.Get\\w+|doc\\.Get\\w+Manager)\\(\\)$");
    const QRegularExpressionMatch found = assignment.match(line);
    if (!found.hasMatch())
        return false;
    const QString value = found.captured(2);
    QString& held = fetched[found.captured(1)];
    const bool isHeld = held == value && lasting.match(value).hasMatch();
    held = value;
    return isHeld;
}

/// The statements' lines, each as many as it takes.
QString laidOutLines(const QString& statements, Fetched& fetched)
{
    QString lines;
    for (const QString& line : statements.split('\n', Qt::SkipEmptyParts)) {
        if (isFetchedAgain(line, fetched))
            continue;
        const auto* const begin =
            std::find_if(line.begin(), line.end(), [](QChar character) { return character != ' '; });
        const auto indentation = static_cast<int>(begin - line.begin());
        if (begin != line.end())
            lines += laidOut(QStringView(line).mid(indentation), indentation);
    }
    return lines;
}

/// Whether some line gives the object to its attribute.
bool isAssigned(const std::vector<CommandFunctions::Lines>& lines, const QString& object)
{
    const QString begin = "    " + object;
    return std::any_of(lines.begin(), lines.end(), [&](const CommandFunctions::Lines& one) {
        for (int at = one.text.indexOf(begin); at >= 0; at = one.text.indexOf(begin, at + 1)) {
            const QStringView behind = QStringView(one.text).mid(at + begin.size());
            const bool isLine = at == 0 || one.text[at - 1] == '\n';
            if (isLine && (behind.startsWith(u" = ") || behind.startsWith(u", _ = ")))
                return true;
        }
        return false;
    });
}

/// Up to the docstring.
QString headOf(const RecordedCommand& command, const QString& name, const Parameters& parameters)
{
    QString head = "def " + name + "(drawing";
    for (const Parameters::Parameter& parameter : parameters.all())
        head += ", " + parameter.name + '=' + defaultOf(parameter);
    if (command.replays && !parameters.all().empty())
        head += QLatin1String(", *, ask=False");
    const QString title = pythonComment(command.isCommand ? command.name : QStringLiteral("Outside of commands"));
    return laidOut(QString(head + "):"), 0) + "    \"\"\"" + (title.isEmpty() ? "A command" : title) + "\"\"\"\n";
}

/// What asks for the parameters.
QString questionsFor(const Parameters& parameters)
{
    QString lines = "    if ask:\n        message = drawing.app.GetCommandMessage()\n";
    for (const Parameters::Parameter& parameter : parameters.all()) {
        const Prompt& prompt = *parameter.answers.front();
        QString question = questionFor(prompt, parameter.isTuple ? "value" : parameter.name);
        if (parameter.isTuple)
            question = '[' + question + " for " + (isPoint(prompt) ? "_" : "value") + " in " + parameter.name + ']';
        lines += laidOut(QString(parameter.name + " = " + question), 2 * bodyIndentation);
    }
    return lines;
}

} // namespace

void Functions::addHelper(const QString& name, QString& text)
{
    const auto found = helperTexts().find(name);
    if (found == helperTexts().end() || helpers_.contains(name))
        return;
    helpers_.insert(name);
    // What it calls itself stands in front of it.
    QStringList called;
    for (const QString& line : found->split('\n'))
        forNames(line, [&](QStringView other, bool) { called.append(other.toString()); });
    for (const QString& other : called)
        addHelper(other, text);
    text += *found;
}

QString Functions::helpersFor(const std::vector<Lines>& lines)
{
    QString text;
    for (const Lines& one : lines)
        for (const QString& line : one.text.split('\n'))
            forNames(line, [&](QStringView name, bool) { addHelper(name.toString(), text); });
    return text;
}

std::vector<CommandFunctions::Lines> Functions::function(const RecordedCommand& command)
{
    const Parameters parameters(command);
    if (command.replays)
        losePrompts(command, parameters);
    std::vector<Lines> lines;
    Fetched fetched;
    for (std::size_t i = 0; i < command.actions.size(); ++i)
        if (QString text = laidOutLines(parameters.textOf(i), fetched); !text.isEmpty())
            lines.push_back({static_cast<int>(i), std::move(text)});
    if (lines.empty())
        return {};
    const QString name = names_.take(command.isCommand ? functionName(command.name) : QStringLiteral("step"));
    noteParameters(command, parameters, name);
    const bool asks = command.replays && !parameters.all().empty();
    QString begin = headOf(command, name, parameters);
    if (asks)
        begin += questionsFor(parameters);
    lines.insert(lines.begin(), {kOwn, begin});
    if (command.made.size() == 1 && isAssigned(lines, command.made.front()))
        lines.push_back({kOwn, "    return " + command.made.front() + '\n'});
    lines.push_back({kOwn, "\n\n"});
    if (const QString helpers = helpersFor(lines); !helpers.isEmpty())
        lines.insert(lines.begin(), {kBesideFunction, helpers});
    calls_ += "    " + name + (asks ? "(drawing, ask=True)\n" : "(drawing)\n");
    return lines;
}

} // namespace inkmacro::python
