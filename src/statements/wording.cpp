#include "statements/wording.h"

#include "statements/RecordingState.h"
#include "statements/quoting.h"

#include <QFileInfo>
#include <QRegExp>
#include <QRegularExpression>
#include <QStringList>

#include <array>
#include <charconv>
#include <cmath>
#include <utility>

namespace inkmacro {

QString projectName(const QString& macroPath)
{
    // The class is never closed, so the pattern is invalid and matches nothing. The name is meant to stay as it is,
    // blanks and hyphens included.
    return QFileInfo(macroPath).baseName().remove(QRegExp("[^a-zA-Z0-9"));
}

QString CleanPromptText(const QString& prompt)
{
    QString text = prompt;
    text.replace(QLatin1String("<br>"), QLatin1String("\n"));
    const QStringList lines = text.split('\n', Qt::SkipEmptyParts);
    text = lines.isEmpty() ? QString() : lines.last();
    static const QRegularExpression tag("<[^>]*>");
    return text.remove(tag).remove(QLatin1String("&raquo; "));
}

namespace {

QString doubled(QString text)
{
    return text.replace('\\', QLatin1String("\\\\"));
}

/// In a repaired macro the statement escapes.
EscapedText unlessRepaired(QString written, const QString& text)
{
    return RepairsMacros() ? EscapedText(text) : EscapedText(std::move(written), text);
}

} // namespace

EscapedText doubleBackslashes(const QString& text)
{
    return unlessRepaired(doubled(text), text);
}

EscapedText escapeWithBackslashes(const QString& text)
{
    return unlessRepaired(doubled(text).replace('\n', QLatin1String("\\n")), text);
}

EscapedText escapeText(Target target, const QString& text)
{
    if (isBasic(target))
        return unlessRepaired(QString(text).replace('\n', basicLineFeed), text);
    return escapeWithBackslashes(text);
}

QString truthWord(Target target, bool value)
{
    if (isBasic(target) || target == Target::Python)
        return value ? QStringLiteral("True") : QStringLiteral("False");
    return value ? QStringLiteral("true") : QStringLiteral("false");
}

QString enumeratorText(Target target, const QString& type, const QString& enumerator)
{
    if (isBasic(target))
        return "Inkwright." + type + '.' + enumerator;
    if (target == Target::Python)
        return "constants." + enumerator;
    return target == Target::CSharp ? type + '.' + enumerator : enumerator;
}

const Fault textAsCode{"EscapeText",
                       {Target::Cpp, Target::CSharp, Target::JavaScript, Target::VbNet, Target::CppCom, Target::Vba},
                       "a text stands where a number or an enumerator belongs"};

bool isNumber(const QString& text)
{
    static const QRegularExpression number(
        QRegularExpression::anchoredPattern(R"([-+]?(\d+\.?\d*|\.\d+)([eE][-+]?\d+)?)"));
    return number.match(text).hasMatch();
}

bool isWord(const QString& text)
{
    static const QRegularExpression word(QRegularExpression::anchoredPattern("[A-Za-z_][A-Za-z_0-9]*"));
    return word.match(text).hasMatch();
}

const Fault kSixDigits{"FormatShort",
                       {Target::Cpp, Target::CSharp, Target::JavaScript, Target::VbNet, Target::CppCom, Target::Vba},
                       "a number that has more than six digits is rounded to them"};

/// What the form of FormatLong would lose too does not count.
bool losesDigits(double value)
{
    constexpr double lastLongDecimal = 1e-14;
    constexpr int digitsBehindTheFirst = 5;
    std::array<char, 32> digits;
    // Room for a number of so many digits there always is.
    const char* const end =
        std::to_chars(digits.begin(), digits.end(), value, std::chars_format::scientific, digitsBehindTheFirst).ptr;
    double rounded = value;
    std::from_chars(digits.begin(), end, rounded);
    return std::fabs(rounded - value) > lastLongDecimal;
}

} // namespace inkmacro
