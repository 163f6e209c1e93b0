// The functions of a macro.

#include "targets/python/Functions.h"

#include "statements/losses.h"
#include "statements/pythonLiterals.h"
#include "statements/wording.h"
#include "targets/python/layout.h"
#include "targets/texts.h"

#include <QHash>

#include <algorithm>
#include <utility>

namespace inkmacro::python {

namespace {

constexpr int bodyIndentation = 4;

/// The helpers' texts by their names.
const QHash<QStringView, QString>& helperTexts()
{
    static const QString all = QString::fromUtf8(texts::python::helpers).trimmed();
    static const QHash<QStringView, QString> byName = [] {
        QHash<QStringView, QString> made;
        for (const QStringView function : QStringView(all).split(QStringLiteral("\n\n\n"))) {
            const qsizetype begin = QStringView(u"def ").size();
            made.insert(function.mid(begin, function.indexOf(u'(') - begin), function.toString() + "\n\n\n");
        }
        return made;
    }();
    return byName;
}

auto linesOf(QStringView text)
{
    return text.split(u'\n', Qt::SkipEmptyParts);
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
    const QString shown = CleanPromptText(prompt.text);
    const QString text = pythonText(shown.isEmpty() ? QString(prompt.otherwise) : shown);
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

/// What locals hold that is lasting.
using Assigned = QHash<QString, QString>;

/// Managers and the like, which are the same as long as the macro runs.
bool isLasting(QStringView value)
{
    return value.endsWith(u"()") && (value.startsWith(u"drawing.app.Get") ||
                                     (value.startsWith(u"drawing.doc.Get") && value.endsWith(u"Manager()")));
}

/// Whether the line fetches again what its local holds.
bool isFetchedAgain(QStringView line, Assigned& assigned)
{
    const qsizetype equals = line.indexOf(u'=');
    const QStringView name = line.left(equals).trimmed();
    if (equals < 0 || line.startsWith(u"     ") || name.contains(u'.'))
        return false;
    const QStringView value = line.mid(equals + 1).trimmed();
    if (!isLasting(value)) {
        if (!assigned.isEmpty())
            assigned.remove(name.toString());
        return false;
    }
    QString& held = assigned[name.toString()];
    const bool isHeld = held == value;
    held = value.toString();
    return isHeld;
}

/// The statements' lines, each as many as it takes.
QString laidOutLines(const QString& statements, Assigned& assigned)
{
    QString lines;
    lines.reserve(statements.size());
    for (const QStringView line : linesOf(statements)) {
        if (isFetchedAgain(line, assigned))
            continue;
        const auto* const begin =
            std::find_if(line.begin(), line.end(), [](QChar character) { return character != ' '; });
        if (begin != line.end())
            addLaidOut(lines, line.mid(begin - line.begin()), static_cast<int>(begin - line.begin()));
    }
    return lines;
}

/// Whether some statement gives the object to its attribute.
bool assigns(const RecordedCommand& command, const QString& object)
{
    const QString begin = "    " + object;
    return std::any_of(command.actions.begin(), command.actions.end(), [&](const ActionStatements& one) {
        const QString text = one.statements.text();
        for (int at = text.indexOf(begin); at >= 0; at = text.indexOf(begin, at + 1)) {
            const QStringView behind = QStringView(text).mid(at + begin.size());
            const bool isLine = at == 0 || text[at - 1] == '\n';
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

void Functions::addHelper(QStringView name, QString& text)
{
    // Nearly all names.
    if (name == u"drawing" || name.front().isDigit())
        return;
    const auto found = helperTexts().find(name);
    if (found == helperTexts().end() || helpers_.contains(*found))
        return;
    helpers_.insert(*found);
    // What it calls itself stands in front of it.
    forNames(*found, [&](QStringView other) { addHelper(other, text); });
    text += *found;
}

QString Functions::helpersFor(const QString& begin, const RecordedCommand& command)
{
    QString text;
    const auto add = [&](QStringView name) { addHelper(name, text); };
    forNames(begin, add);
    for (const ActionStatements& one : command.actions)
        forNames(one.statements.text(), add);
    return text;
}

void Functions::write(const RecordedCommand& command, const Sink& sink)
{
    const Parameters parameters(command, promptNames_);
    if (command.replays)
        losePrompts(command, parameters);
    if (command.actions.empty())
        return;
    const QString name = names_.take(command.isCommand ? functionName(command.name) : QStringLiteral("step"));
    noteParameters(command, parameters, name);
    const bool asks = command.replays && !parameters.all().empty();
    const QString begin = headOf(command, name, parameters) + (asks ? questionsFor(parameters) : QString());
    if (const QString helpers = helpersFor(begin, command); !helpers.isEmpty())
        sink(kBesideFunction, helpers);
    sink(kOwn, begin);
    Assigned assigned;
    for (std::size_t i = 0; i < command.actions.size(); ++i)
        sink(static_cast<int>(i), laidOutLines(parameters.textOf(i), assigned));
    if (command.made.size() == 1 && assigns(command, command.made.front()))
        sink(kOwn, "    return " + command.made.front() + '\n');
    sink(kOwn, QStringLiteral("\n\n"));
    calls_ += "    " + name + (asks ? "(drawing, ask=True)\n" : "(drawing)\n");
}

} // namespace inkmacro::python
