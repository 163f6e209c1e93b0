// Numbers and texts as Python writes them.

#include "statements/pythonLiterals.h"

#include <QChar>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <string_view>

namespace inkmacro {

namespace {

/// Of the exponents from -4 to 15 numbers are written without one.
bool isPlainExponent(int exponent)
{
    return exponent >= -4 && exponent < 16;
}

/// "d.ddde+XX" as the shortest scientific form gives it, which Python writes with the same digits.
QString fromScientific(std::string_view scientific)
{
    const auto mark = scientific.find('e');
    const int exponent = std::atoi(scientific.substr(mark + 1).data());
    if (!isPlainExponent(exponent))
        return QString::fromLatin1(scientific.data(), static_cast<int>(scientific.size()));
    const bool isNegative = scientific.front() == '-';
    QString digits;
    for (const char character : scientific.substr(0, mark))
        if (character >= '0' && character <= '9')
            digits += QChar(character);
    int point = exponent + 1; // digits in front of it
    if (point <= 0) {
        digits.prepend(QString(1 - point, '0'));
        point = 1;
    }
    if (digits.size() <= point)
        digits += QString(point + 1 - digits.size(), '0');
    digits.insert(point, '.');
    return isNegative ? '-' + digits : digits;
}

/// What Python's `repr` escapes.
bool isPrintable(uint code)
{
    switch (QChar::category(code)) {
    case QChar::Other_Control:
    case QChar::Other_Format:
    case QChar::Other_Surrogate:
    case QChar::Other_PrivateUse:
    case QChar::Other_NotAssigned:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return false;
    case QChar::Separator_Space:
        return code == ' ';
    default:
        return true;
    }
}

QString escape(uint code)
{
    switch (code) {
    case '\n':
        return QStringLiteral("\\n");
    case '\r':
        return QStringLiteral("\\r");
    case '\t':
        return QStringLiteral("\\t");
    default:
        break;
    }
    const bool isShort = code <= 0xFF;
    const bool isWide = code > 0xFFFF;
    return QLatin1String(isShort  ? "\\x"
                         : isWide ? "\\U"
                                  : "\\u") +
           QString::number(code, 16).rightJustified(isShort  ? 2
                                                    : isWide ? 8
                                                             : 4,
                                                    '0');
}

bool isPlainText(QStringView text)
{
    for (const QChar character : text)
        if (character < u' ' || character > u'~' || character == u'"' || character == u'\\')
            return false;
    return true;
}

} // namespace

QString pythonReal(double value)
{
    if (std::isnan(value))
        return QStringLiteral("float(\"nan\")");
    if (std::isinf(value))
        return value < 0 ? QStringLiteral("float(\"-inf\")") : QStringLiteral("float(\"inf\")");
    std::array<char, 40> room;
    const auto [end, error] = std::to_chars(room.begin(), room.end() - 1, value, std::chars_format::scientific);
    *end = '\0';
    return fromScientific({room.begin(), static_cast<std::size_t>(end - room.begin())});
}

QString pythonReals(std::initializer_list<double> values)
{
    QString list;
    for (const double value : values) {
        if (!list.isEmpty())
            list += QLatin1String(", ");
        list += pythonReal(value);
    }
    return list;
}

QString pythonText(QStringView text)
{
    if (isPlainText(text))
        return '"' + text.toString() + '"';
    const QChar quote = text.count(u'"') > text.count(u'\'') ? u'\'' : u'"';
    QString literal(quote);
    for (qsizetype at = 0; at < text.size(); ++at) {
        const QChar character = text[at];
        uint code = character.unicode();
        if (character.isHighSurrogate() && at + 1 < text.size() && text[at + 1].isLowSurrogate())
            code = QChar::surrogateToUcs4(character, text[++at]);
        if (character == quote || character == u'\\')
            (literal += u'\\') += character;
        else if (!isPrintable(code))
            literal += escape(code);
        else
            literal += QString::fromUcs4(&code, 1);
    }
    return literal + quote;
}

QString pythonComment(const QString& name)
{
    constexpr int mostLetters = 20;
    QString text = name;
    std::replace_if(
        text.begin(), text.end(),
        [](QChar character) { return character < u' ' || character > u'~' || character == u'"' || character == u'\\'; },
        QChar('?'));
    if (text.size() > mostLetters)
        text = text.left(mostLetters) + QLatin1String("...");
    return text.trimmed();
}

} // namespace inkmacro
