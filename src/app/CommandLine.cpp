#include "app/CommandLine.h"

#include "app/commandTable.h"
#include "app/optionValues.h"
#include "app/valueText.h"
#include "recordfile/nearestName.h"

#include <QFile>
#include <QSet>

#include <algorithm>

namespace inkmacro {

namespace {

using Command = CommandLine::Command;

/// One option as it stands in the arguments.
struct GivenOption
{
    const OptionRow* row;
    QString name;  ///< as the caller wrote it
    QString value; ///< what is joined to it; null without that
};

QStringList namesOf(const std::vector<OptionRow>& rows)
{
    QStringList names;
    for (const OptionRow& row : rows)
        names.append(row.name);
    return names;
}

/// "inspect, check and snapshot", those that have an option of that name.
QString commandsWith(const QString& option)
{
    QStringList names;
    for (const CommandRow& row : commandTable())
        if (findOptionRow(row.options, option))
            names.append(row.name);
    return joined(names, "and");
}

class Parser
{
public:
    Parser(int argc, const char* const* argv, CommandLine& line) : line_(line)
    {
        for (int i = 1; i < argc; ++i)
            arguments_.append(QFile::decodeName(argv[i]));
    }

    void parse()
    {
        bool onlyOperands = false;
        while (at_ < arguments_.size()) {
            const QString argument = arguments_[at_++];
            if (onlyOperands || argument == "-" || !argument.startsWith('-'))
                takeOperand(argument);
            else if (argument == "--")
                onlyOperands = true;
            else
                takeOptions(argument);
            if (asked_)
                return;
        }
        if (!line_.row)
            throw WrongUse("a command is missing");
        checkWhole();
    }

private:
    const std::vector<OptionRow>& options() const
    {
        static const std::vector<OptionRow> none;
        return line_.row ? line_.row->options : none;
    }

    void takeOperand(const QString& argument)
    {
        if (!line_.row)
            takeCommand(argument);
        else if (line_.row->operands == Operands::None)
            throw WrongUse(QString("%1 takes no argument, but \"%2\" is given").arg(line_.row->name, argument));
        else if (line_.row->operands != Operands::Files && !operands_.isEmpty())
            throw WrongUse(QString("%1 takes one argument, but \"%2\" and \"%3\" are given")
                               .arg(line_.row->name, operands_.front(), argument));
        else
            operands_.append(argument);
    }

    void takeCommand(const QString& name)
    {
        line_.row = findCommandRow(name);
        if (line_.row) {
            line_.command = line_.row->command;
            return;
        }
        const QStringList known = commandNames();
        const QString meant = didYouMean(name, known);
        throw WrongUse(
            QString("unknown command \"%1\"%2").arg(name, meant.isEmpty() ? "; known are " + known.join(", ") : meant));
    }

    /// One long option, or short ones that share a hyphen.
    void takeOptions(const QString& argument)
    {
        if (argument.startsWith("--")) {
            const int equals = argument.indexOf('=');
            const QString name = argument.left(equals);
            take({&find(name), name, equals < 0 ? QString() : argument.mid(equals + 1)});
            return;
        }
        refuseLongNameBehindOneHyphen(argument);
        for (int i = 1; i < argument.size(); ++i) {
            const QString name = QString("-") + argument[i];
            const OptionRow& row = find(name);
            if (!row.form) {
                take({&row, name, {}});
                continue;
            }
            const QString joined = argument.mid(i + 1);
            take({&row, name, joined.isEmpty() ? QString() : joined.mid(joined.startsWith('=') ? 1 : 0)});
            return;
        }
    }

    /// "-output" would be -o with the value "utput".
    void refuseLongNameBehindOneHyphen(const QString& argument) const
    {
        const QString name = '-' + argument.left(argument.indexOf('='));
        if (findOptionRow(options(), name) || findOptionRow(generalOptions(), name))
            throw WrongUse(QString("unknown option \"%1\"; did you mean %2?").arg(argument, name));
    }

    const OptionRow& find(const QString& name) const
    {
        if (const OptionRow* const row = findOptionRow(options(), name))
            return *row;
        const std::vector<OptionRow>& general = generalOptions();
        const OptionRow* const row = findOptionRow(general, name);
        if (row && (!line_.row || row == &general.front()))
            return *row;
        if (row)
            throw WrongUse(QString("%1 stands without a command").arg(name));
        const QString others = commandsWith(name);
        if (line_.row && !others.isEmpty())
            throw WrongUse(QString("%1 is no option of %2, but of %3").arg(name, line_.row->name, others));
        if (!others.isEmpty())
            throw WrongUse(QString("%1 stands before the command; it belongs behind %2").arg(name, others));
        throw WrongUse(
            QString("unknown option \"%1\"%2").arg(name, didYouMean(name, namesOf(options()) + namesOf(general))));
    }

    void take(GivenOption given)
    {
        const OptionRow& row = *given.row;
        if (!row.form && !given.value.isNull())
            throw WrongUse(QString("%1 takes no value, but \"%2\" is given").arg(given.name, given.value));
        if (row.form && !row.repeats && given_.contains(row.name))
            throw WrongUse(QString("%1 is given more than once").arg(row.name));
        given_.insert(row.name);
        asked_ = asked_ || findOptionRow(generalOptions(), row.name);
        if (row.form && given.value.isNull() && (!row.mayLack || row.words().contains(arguments_.value(at_))))
            given.value = nextValue(row);
        while (row.offer == Offer::Lists && given.value.trimmed().endsWith(',') && at_ < arguments_.size())
            given.value += arguments_[at_++];
        try {
            if (row.offer == Offer::Words && !given.value.isNull())
                checkWord(given.value, row.words());
            row.take(line_, given.value);
        } catch (const WrongUse& wrong) {
            throw WrongUse(QString("%1: %2").arg(given.name, wrong.message()));
        }
    }

    /// What stands behind an option that wants a value.
    QString nextValue(const OptionRow& row)
    {
        QString next = arguments_.value(at_);
        const bool isOption = next == "--" || (next.startsWith("--") && findOptionRow(options(), next));
        if (at_ == arguments_.size() || isOption)
            throw WrongUse(QString("a value is missing behind %1: it is %1 %2").arg(row.name, row.form));
        ++at_;
        return next;
    }

    /// What no argument alone shows.
    void checkWhole()
    {
        const CommandRow& row = *line_.row;
        for (const OptionRow& option : row.options)
            if (option.required && !given_.contains(option.name))
                throw WrongUse(QString("%1 needs %2 %3").arg(row.name, option.name, option.form));
        if (operands_.isEmpty() && row.operands != Operands::None && row.operands != Operands::MaybeWord)
            throw WrongUse(QString("%1 needs %2").arg(row.name, row.form));
        if (row.takeWord)
            takeWord(row);
        else
            takeFiles();
        if (line_.command == Command::Run)
            checkRun();
        if (line_.command == Command::View)
            checkView();
        if (line_.command == Command::Convert && line_.output == "-" && line_.telling.reportsToOutput())
            throw WrongUse("--report and --output - would both write to standard output; --report-file FILE does not");
        if (line_.host.repair && line_.host.faithful)
            throw WrongUse("--repair and --faithful exclude each other");
        if (line_.map && line_.output == "-")
            throw WrongUse("--map writes a file beside the macro, and with --output - there is no such place");
    }

    void takeWord(const CommandRow& row)
    {
        if (operands_.isEmpty())
            return;
        checkWord(operands_.front(), row.words());
        row.takeWord(line_, operands_.front());
    }

    void takeFiles()
    {
        if (operands_.contains(QString()))
            throw WrongUse("a file name is empty");
        if (operands_.count("-") > 1)
            throw WrongUse("standard input (-) is given more than once");
        line_.files = operands_;
    }

    void checkRun() const
    {
        if (line_.files.front() == "-")
            throw WrongUse("run reads answers from standard input, so the recording must be a file");
        if (line_.output == "-")
            throw WrongUse("run asks on standard output, so the new recording must be a file");
        if (line_.output && line_.output->endsWith('/'))
            throw WrongUse(QString("--output: \"%1\" is a directory, and run writes a file").arg(*line_.output));
    }

    void checkView() const
    {
        const auto isJavaScript = [](const TargetRow* row) { return row->target == Target::JavaScript; };
        if (line_.svg && (line_.macro || !line_.targets.empty()))
            throw WrongUse("--svg writes a picture, which has no macros");
        if (line_.space && !line_.svg)
            throw WrongUse("--space is of --svg: a page has all spaces");
        if (line_.macro && !line_.targets.empty() &&
            std::none_of(line_.targets.begin(), line_.targets.end(), isJavaScript))
            throw WrongUse("--macro is a macro of the target javascript, which --target leaves out");
    }

    CommandLine& line_;
    QStringList arguments_;
    int at_ = 0; ///< of the argument that comes next
    QStringList operands_;
    QSet<QString> given_; ///< names of options
    bool asked_ = false;  ///< for help or the version
};

} // namespace

void parseCommandLine(int argc, const char* const* argv, CommandLine& line)
{
    Parser(argc, argv, line).parse();
}

} // namespace inkmacro
