// Numbers and texts as Python writes them.

#include "statements/pythonLiterals.h"

#include <QChar>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace inkmacro {

namespace {

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
    // Without an exponent between 0.0001 and 10 to the power of 16.
    const double size = std::fabs(value);
    const bool isPlain = size == 0 || (size >= 1e-4 && size < 1e16);
    std::array<char, 40> room;
    char* end = std::to_chars(room.begin(), room.end() - 2, value,
                              isPlain ? std::chars_format::fixed : std::chars_format::scientific)
                    .ptr;
    if (isPlain && std::find(room.begin(), end, '.') == end) {
        *end++ = '.';
        *end++ = '0';
    }
    // The formatter takes the sign off.
    end = std::remove(room.begin(), end, '+');
    return QString::fromLatin1(room.data(), static_cast<int>(end - room.begin()));
}

QString pythonReals(std::initializer_list<double> values)
{
    QString list;
    list.reserve(static_cast<int>(values.size()) * 20);
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
