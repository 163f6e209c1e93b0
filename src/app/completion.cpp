// Completions for shells, made of the table of commands.

#include "app/completion.h"

#include "app/commandTable.h"

#include <algorithm>
#include <array>

namespace inkmacro {

namespace {

/// In single quotes, as every shell reads them.
QString quoted(QString text)
{
    return '\'' + text.replace('\'', "'\\''") + '\'';
}

QString words(QStringList (*list)())
{
    return list().join(' ');
}

QString letterOf(const OptionRow& option)
{
    return QString("-%1").arg(QChar(option.letter));
}

/// Those that stand behind the command.
std::vector<OptionRow> optionsOf(const CommandRow& row)
{
    std::vector<OptionRow> options = row.options;
    options.push_back(generalOptions().front());
    return options;
}

QString optionNames(const std::vector<OptionRow>& options)
{
    QStringList names;
    for (const OptionRow& option : options)
        names.append(option.name);
    return names.join(' ');
}

bool takesFiles(const CommandRow& row)
{
    return row.operands == Operands::File || row.operands == Operands::Files;
}

// Bash

/// `$word` is what is being completed. Without an answer bash completes names of files, unless it is told otherwise.
const char* const bashFrame = R"(# Completes inkmacro in bash; made by `inkmacro completion bash`.

_inkmacro_words() {
    compopt +o default +o bashdefault
    COMPREPLY=($(compgen -W "$1" -- "$word"))
}

_inkmacro_words_or_files() {
    local file
    COMPREPLY=($(compgen -W "$1" -- "$word"))
    [[ $COMPREPLY ]] || return
    compopt -o filenames
    while IFS= read -r file; do
        COMPREPLY+=("$file")
    done < <(compgen -f -- "$word")
}

_inkmacro_list() {
    local begun=
    [[ $word == *,* ]] && begun=${word%,*},
    compopt +o default +o bashdefault
    COMPREPLY=($(compgen -P "$begun" -W "$1" -- "${word##*,}"))
}

_inkmacro() {
    local word=${COMP_WORDS[COMP_CWORD]} option=${COMP_WORDS[COMP_CWORD - 1]} command= operands= i
    COMPREPLY=()
    if [[ $word == = ]]; then
        word=
        option+==
    elif [[ $option == = ]]; then
        option=${COMP_WORDS[COMP_CWORD - 2]}=
    fi
    for ((i = 1; i < COMP_CWORD; i++)); do
        case ${COMP_WORDS[i]} in
            --) operands=1 ;;
            -*) ;;
            *) [[ $command ]] || command=${COMP_WORDS[i]} ;;
        esac
    done
    if [[ $operands ]]; then
        return
    fi
    case "$command $option" in
%1    esac
    case $command in
%2    esac
}

complete -o bashdefault -o default -F _inkmacro inkmacro
)";

QString bashOffer(Offer offer, QStringList (*list)())
{
    switch (offer) {
    case Offer::Files:
        return "";
    case Offer::Folders:
        return "compopt -o dirnames +o default +o bashdefault; ";
    case Offer::Names:
    case Offer::Words:
        return QString("_inkmacro_words %1; ").arg(quoted(words(list)));
    case Offer::Lists:
        return QString("_inkmacro_list %1; ").arg(quoted(words(list)));
    case Offer::Nothing:
        break;
    }
    return "_inkmacro_words ''; ";
}

/// Of a case for a command with one of these words, which the shell sees in front of the value.
QString bashPatterns(const CommandRow& row, const QStringList& names)
{
    QStringList patterns;
    for (const QString& name : names)
        patterns.append(quoted(QString("%1 %2").arg(row.name, name)));
    return patterns.join(" | ");
}

QString bashCases(const CommandRow& row, const OptionRow& option)
{
    QStringList apart{option.name};
    if (option.letter != 0)
        apart.append(letterOf(option));
    const QStringList joined{QString("%1=").arg(option.name)};
    const QString offer = bashOffer(option.offer, option.words);
    const QString line("        %1) %2return ;;\n");
    if (!option.mayLack)
        return line.arg(bashPatterns(row, apart + joined), offer);
    const QString orNone = QString("%1 %2; ").arg(takesFiles(row) ? "_inkmacro_words_or_files" : "_inkmacro_words",
                                                  quoted(words(option.words)));
    return line.arg(bashPatterns(row, joined), offer) +
           QString("        %1) if [[ $word != -* ]]; then %2return; fi ;;\n").arg(bashPatterns(row, apart), orNone);
}

QString bashCompletion()
{
    QString values;
    QString commands = QString("        '') _inkmacro_words %1 ;;\n")
                           .arg(quoted(commandNames().join(' ') + ' ' + optionNames(generalOptions())));
    for (const CommandRow& row : commandTable()) {
        for (const OptionRow& option : row.options)
            if (option.form)
                values += bashCases(row, option);
        const QString names = quoted(optionNames(optionsOf(row)));
        const QString operands =
            takesFiles(row) ? QString(":") : "_inkmacro_words " + quoted(row.words ? words(row.words) : QString());
        commands += QString("        %1) if [[ $word == -* ]]; then _inkmacro_words %2; else %3; fi ;;\n")
                        .arg(row.name, names, operands);
    }
    return QString(bashFrame).arg(values, commands);
}

// Zsh

const char* const zshFrame = R"(#compdef inkmacro
# Completes inkmacro in zsh; made by `inkmacro completion zsh`.

_inkmacro() {
    local context state state_descr line
    typeset -A opt_args
    _arguments -S \
        %1 \
        '1: :->command' '*:: :->arguments'
    case $state in
        command)
            local -a commands=(
%2            )
            _describe command commands
            ;;
        arguments)
            case $words[1] in
%3            esac
            ;;
    esac
}

# Where completions are looked for the file itself is the function; else it is read once.
if [[ $funcstack[1] == _inkmacro ]]; then
    _inkmacro "$@"
else
    compdef _inkmacro inkmacro
fi
)";

/// What stands behind the meaning of an option's value or of an argument.
QString zshOffer(Offer offer, QStringList (*list)())
{
    switch (offer) {
    case Offer::Files:
        return "_files";
    case Offer::Folders:
        return "_files -/";
    case Offer::Names:
    case Offer::Words:
        return '(' + words(list) + ')';
    case Offer::Lists:
        return "_sequence compadd - " + words(list);
    case Offer::Nothing:
        break;
    }
    return " ";
}

QString zshEscaped(QString text)
{
    for (const char* const special : {"\\", "[", "]", ":"})
        text.replace(special, QString("\\") + special);
    return text;
}

QString zshSpec(const OptionRow& option)
{
    const QString name = option.name;
    QString value;
    if (option.form)
        value = QString("%1%2:%3").arg(option.mayLack ? "::" : ":", zshEscaped(option.form),
                                       zshOffer(option.offer, option.words));
    const QString rest = quoted('[' + zshEscaped(option.meaning) + ']' + value);
    const QString longName = option.form ? name + '=' : name;
    const QString without = option.repeats       ? QString("\\*")
                            : option.letter != 0 ? QString("'(%1 %2)'").arg(letterOf(option), name)
                                                 : QString();
    if (option.letter == 0)
        return without + longName + rest;
    return without + '{' + letterOf(option) + (option.form ? "+" : "") + ',' + longName + '}' + rest;
}

QStringList zshSpecs(const std::vector<OptionRow>& options)
{
    QStringList specs;
    for (const OptionRow& option : options)
        specs.append(zshSpec(option));
    return specs;
}

QStringList zshOperands(const CommandRow& row)
{
    if (row.words)
        return {quoted(QString("1: :(%1)").arg(words(row.words)))};
    if (!takesFiles(row))
        return {};
    return {row.operands == Operands::Files ? "'*:recording:_files'" : "'1:recording:_files'"};
}

QString zshCompletion()
{
    QString commands;
    QString arguments;
    for (const CommandRow& row : commandTable()) {
        commands += QString(16, ' ') + quoted(QString("%1:%2").arg(row.name, zshEscaped(row.meaning))) + '\n';
        const QStringList specs = zshSpecs(optionsOf(row)) + zshOperands(row);
        arguments += QString("                %1)\n                    _arguments -S \\\n").arg(row.name) +
                     QString(24, ' ') + specs.join(" \\\n" + QString(24, ' ')) + "\n                    ;;\n";
    }
    return QString(zshFrame).arg(zshSpecs(generalOptions()).join(" \\\n        "), commands, arguments);
}

// Fish

const char* const fishFrame = R"(# Completes inkmacro in fish; made by `inkmacro completion fish`.

complete -c inkmacro -f
%1)";

QString fishOffer(Offer offer, QStringList (*list)())
{
    switch (offer) {
    case Offer::Files:
        return " -r -F";
    case Offer::Folders:
        return " -x -a '(__fish_complete_directories (commandline -ct))'";
    case Offer::Names:
    case Offer::Words:
        return " -x -a " + quoted(words(list));
    case Offer::Lists:
        return " -x -a " + quoted("(__fish_append , " + words(list) + ')');
    case Offer::Nothing:
        break;
    }
    return " -x";
}

QString fishLine(const QString& condition, const OptionRow& option)
{
    QString rule = "complete -c inkmacro -n " + quoted(condition);
    if (option.letter != 0)
        rule += QString(" -s %1").arg(QChar(option.letter));
    rule += " -l " + QString(option.name).mid(2);
    if (option.mayLack)
        rule += " -a " + quoted(words(option.words));
    else if (option.form)
        rule += fishOffer(option.offer, option.words);
    return rule + " -d " + quoted(option.meaning) + '\n';
}

/// Words behind an option that fish takes for no value of it: where one may lack, and where they begin as options do.
QString fishWordsBehind(const QString& condition, const OptionRow& option)
{
    if (!option.words)
        return {};
    const QStringList offered = option.words();
    const bool likeOptions = std::ranges::any_of(offered, [](const QString& word) { return word.startsWith('-'); });
    if (!option.mayLack && !likeOptions)
        return {};
    const QString names = option.letter != 0 ? letterOf(option) + ' ' + option.name : QString(option.name);
    return "complete -c inkmacro -n " + quoted(condition + "; and __fish_prev_arg_in " + names) + " -a " +
           quoted(offered.join(' ')) + '\n';
}

QString fishCompletion()
{
    const QString alone = "__fish_use_subcommand";
    QString rules;
    for (const OptionRow& option : generalOptions())
        rules += fishLine(alone, option);
    for (const CommandRow& row : commandTable()) {
        rules += "complete -c inkmacro -n " + quoted(alone) + " -a " + row.name + " -d " + quoted(row.meaning) + '\n';
        const QString behind = QString("__fish_seen_subcommand_from %1").arg(row.name);
        if (takesFiles(row))
            rules += "complete -c inkmacro -n " + quoted(behind) + " -F\n";
        if (row.words)
            rules += "complete -c inkmacro -n " + quoted(behind) + " -a " + quoted(words(row.words)) + '\n';
        for (const OptionRow& option : optionsOf(row))
            rules += fishLine(behind, option) + fishWordsBehind(behind, option);
    }
    return QString(fishFrame).arg(rules);
}

struct Shell
{
    const char* name;
    QString (*completion)();
};

constexpr std::array shells{Shell{"bash", bashCompletion}, Shell{"zsh", zshCompletion}, Shell{"fish", fishCompletion}};

} // namespace

QStringList completedShells()
{
    QStringList names;
    for (const Shell& shell : shells)
        names.append(shell.name);
    return names;
}

QString completionFor(const QString& shell)
{
    for (const Shell& known : shells)
        if (shell == known.name)
            return known.completion();
    return {};
}

} // namespace inkmacro
