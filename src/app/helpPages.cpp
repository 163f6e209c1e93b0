// The help, made of the table of commands.

#include "app/helpPages.h"

#include "app/commandTable.h"

namespace inkmacro {

namespace {

constexpr int kWidth = 80;

QString shortName(const OptionRow& option)
{
    return option.letter != 0 ? QString("-%1").arg(QChar(option.letter)) : QString();
}

/// "--output PATH", "--report[=text]"
QString longForm(const OptionRow& option)
{
    if (!option.form)
        return option.name;
    return QString(option.mayLack ? "%1 [%2]" : "%1 %2").arg(option.name, option.form);
}

QString usageOf(const CommandRow& row)
{
    const QString begin = QString("  inkmacro %1").arg(row.name);
    QStringList parts;
    if (row.operands != Operands::None)
        parts.append(QString(row.operands == Operands::MaybeWord ? "[%1]" : "%1").arg(row.form));
    for (const OptionRow& option : row.options)
        parts.append(option.required ? longForm(option) : '[' + longForm(option) + ']');
    QString usage;
    QString line = begin;
    for (const QString& part : parts) {
        if (line.length() + 1 + part.length() >= kWidth) {
            usage += line + '\n';
            line = QString(begin.length(), ' ');
        }
        line += ' ' + part;
    }
    return usage + line + '\n';
}

QString indented(const char* text, int width)
{
    QString lines;
    for (const QString& line : QString(text).split('\n'))
        lines += line.isEmpty() ? QString("\n") : QString(width, ' ') + line + '\n';
    return lines;
}

QString optionText(const OptionRow& option)
{
    const QString letter = shortName(option);
    return "  " + (letter.isEmpty() ? QString() : letter + ", ") + longForm(option) + '\n' + indented(option.text, 6);
}

QString targetsText()
{
    QString text = "\nTargets:\n";
    for (const TargetRow& row : targetTable)
        text += QString("  %1 (code %2)\n").arg(targetName(row)).arg(static_cast<int>(row.target));
    return text + "  all: each of them\n";
}

QString commandPage(const CommandRow& row)
{
    QString page = "Usage:\n" + usageOf(row) + '\n' + row.text + "\n\nOptions:\n";
    for (const OptionRow& option : row.options)
        page += optionText(option);
    page += optionText(generalOptions().front());
    return row.command == CommandLine::Command::Convert ? page + targetsText() : page;
}

const char* const closing = R"(
FILE is a recording; - is standard input. Behind -- all arguments are files,
whatever they begin with.

Messages show control letters and those that turn the direction of writing as
\x1b or \u202e. Standard output holds paths, macros and JSON as they are, unless
it is a terminal.

Exit status:
  0  all was done
  1  a conversion failed, a macro draws something else than was recorded, or a
     command ended in another way than well
  2  wrong use, or node is missing for verify: nothing was read or written
  3  a recording could not be read: nothing was written for it; or the file of
     --option-names or --macro could not: nothing was written at all
  128 and its number when SIGINT, SIGTERM or SIGHUP ended the program
)";

QString programPage()
{
    QString page = "inkmacro turns recordings of Inkwright into macro projects.\n\nUsage:\n";
    for (const CommandRow& row : commandTable())
        page += usageOf(row);
    page += "  inkmacro --version | --help\n\nCommands, of which 'inkmacro COMMAND --help' tells more:\n";
    for (const CommandRow& row : commandTable())
        page += QString("  %1  %2\n").arg(row.name, -16).arg(row.meaning);
    return page + targetsText() + closing;
}

} // namespace

QString helpPage(const CommandRow* row)
{
    return row ? commandPage(*row) : programPage();
}

} // namespace inkmacro
