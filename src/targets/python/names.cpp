// Functions and parameters of Python.

#include "targets/python/names.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <string_view>

namespace inkmacro::python {

namespace {

constexpr int mostFunctionLetters = 40;
constexpr int mostParameterLetters = 30;
constexpr int mostParameterWords = 4;

QSet<QString> wordsOf(const char* list)
{
    const QStringList words = QString(list).split(' ');
    return {words.begin(), words.end()};
}

bool isKeyword(const QString& name)
{
    static const QSet<QString> words = wordsOf(
        "False None True and as assert async await break class continue def del elif else except finally for from "
        "global if import in is lambda nonlocal not or pass raise return try while with yield");
    return words.contains(name);
}

/// Soft keywords, builtins, what every macro defines or imports, and a letter that looks like a digit.
bool isTaken(const QString& name)
{
    static const QSet<QString> words = wordsOf(
        "_ case match type "
        "abs aiter all anext any ascii bin bool breakpoint bytearray bytes callable chr classmethod compile complex "
        "copyright credits delattr dict dir divmod enumerate eval exec exit filter float format frozenset getattr "
        "globals hasattr hash help hex id input int isinstance issubclass iter len license list locals map max "
        "memoryview min next object oct open ord pow print property quit range repr reversed round set setattr slice "
        "sorted staticmethod str sum super tuple vars zip "
        "sys pythoncom win32com constants connect main drawing error l "
        "reals integers texts objects last answered selected find_piece");
    static const QRegularExpression numbers("^[a-z0-9]+_numbers$");
    return isKeyword(name) || words.contains(name) || numbers.match(name).hasMatch();
}

/// Locals of the statements.
bool isLocal(const QString& name)
{
    static const QSet<QString> words =
        wordsOf("attribute background bold charset clip column count custom_data data definition entities entity "
                "files first first_color first_line general gradient_angle index is_centered italic kind layers "
                "measured_arc measured_circle message name options pattern pattern_angle pattern_kind pattern_name "
                "pattern_scale pattern_spacing pitch regions row second second_color second_line selection "
                "selection_filter settings shapes sheet size styles system systems third tiles transparency typeface "
                "types utility value view viewport x y z");
    return words.contains(name);
}

/// What temporaries are called, with numbers behind it.
bool isStemOfLocals(const QString& name)
{
    static const QRegularExpression temporary("^(edge|arc)(_\\d+)?$");
    return temporary.match(name).hasMatch();
}

/// Small letters and digits, all else as single underscores between them.
QString identifierOf(const QString& text)
{
    QString name;
    for (const QChar character : text.normalized(QString::NormalizationForm_KD)) {
        if (character.isMark())
            continue;
        const QChar letter = character.toLower();
        const bool belongs = (letter >= 'a' && letter <= 'z') || (letter >= '0' && letter <= '9');
        if (belongs)
            name += letter;
        else if (!name.isEmpty() && !name.endsWith('_'))
            name += '_';
    }
    return name.endsWith('_') ? name.left(name.size() - 1) : name;
}

/// What a line of a prompt says to do, without the options behind it.
QString wordsOfLine(const QString& line)
{
    static const QRegularExpression options("[\\[(<{:]");
    static const QSet<QString> idle = wordsOf("specify enter select pick type give set or options the a an");
    const QStringList words = identifierOf(line.section(options, 0, 0)).split('_', Qt::SkipEmptyParts);
    QStringList kept;
    std::copy_if(words.begin(), words.end(), std::back_inserter(kept),
                 [](const QString& word) { return !idle.contains(word); });
    kept = kept.mid(0, mostParameterWords);
    while (kept.size() > 1 && kept.join('_').size() > mostParameterLetters)
        kept.removeLast();
    return kept.join('_').left(mostParameterLetters);
}

/// From the last line upward the first one that leaves words.
QString wordsOfPrompt(QString prompt)
{
    static const QRegularExpression tag("<[^>]*>");
    static const QRegularExpression entity("&[^;\\s]*;");
    prompt.replace(QLatin1String("<br>"), QLatin1String("\n"));
    prompt.remove(tag).remove(entity);
    QStringList lines = prompt.split('\n');
    std::reverse(lines.begin(), lines.end());
    for (const QString& line : lines) {
        QString words = wordsOfLine(line);
        if (!words.isEmpty())
            return words;
    }
    return {};
}

const char* wordOf(Asked asked)
{
    switch (asked) {
    case Asked::Point:
        return "point";
    case Asked::Corner:
        return "corner";
    case Asked::Angle:
    case Asked::Orientation:
        return "angle";
    case Asked::Distance:
        return "distance";
    case Asked::Scale:
        return "scale";
    case Asked::Text:
        return "text";
    default:
        return "number";
    }
}

} // namespace

QString FreeNames::take(const QString& name)
{
    QString free = name;
    const QString stem = name.endsWith('_') ? name : name + '_';
    for (int& number = next_[name]; taken_.contains(free); ++number) {
        number = std::max(number, 2);
        free = stem + QString::number(number);
    }
    taken_.insert(free);
    return free;
}

QString functionName(const QString& command)
{
    QString name = identifierOf(command).left(mostFunctionLetters);
    if (name.endsWith('_'))
        name.chop(1);
    if (name.isEmpty())
        return QStringLiteral("command");
    if (name.front().isDigit())
        return "command_" + name;
    return isTaken(name) || name == QLatin1String("step") ? name + '_' : name;
}

QString parameterName(const Prompt& prompt, bool several)
{
    QString name = wordsOfPrompt(prompt.text);
    if (name.isEmpty())
        name = wordOf(prompt.asked);
    if (name.front().isDigit() || isStemOfLocals(name))
        name = QString(wordOf(prompt.asked)) + '_' + name;
    if (several && !name.endsWith('s'))
        name += 's';
    return isTaken(name) || isLocal(name) || name == QLatin1String("ask") ? name + '_' : name;
}

QString PromptNames::of(const Prompt& prompt, bool several)
{
    constexpr int most = 1000;
    if (known_.size() >= most)
        known_.clear();
    QString& name = known_[{prompt.text, 2 * static_cast<int>(prompt.asked) + (several ? 1 : 0)}];
    if (name.isEmpty())
        name = parameterName(prompt, several);
    return name;
}

QString distributionName(const QString& name)
{
    const QString letters = identifierOf(name);
    return letters.isEmpty() ? QStringLiteral("macro") : QString(letters).replace('_', '-');
}

bool hidesModule(const QString& name)
{
    // The system of such macros does not tell capitals from small letters in names of files.
    static const QSet<QString> modules = wordsOf(
        "pythoncom win32com win32api pywintypes winerror winreg ast bisect collections contextlib copy dataclasses "
        "datetime dis enum fnmatch functools glob heapq importlib inspect itertools keyword linecache logging "
        "operator pickle random re reprlib shutil string struct tempfile textwrap threading time token tokenize "
        "traceback types typing warnings weakref zipfile");
    return modules.contains(name.toLower());
}

bool isModuleName(const QString& name)
{
    static const QRegularExpression identifier("^[A-Za-z_][A-Za-z_0-9]*$");
    return identifier.match(name).hasMatch() && !isKeyword(name);
}

} // namespace inkmacro::python
