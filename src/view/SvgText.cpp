#include "view/SvgText.h"

#include <QVector>

#include <array>
#include <charconv>

namespace inkmacro::view {

namespace {

bool isCharacter(uint code)
{
    constexpr uint firstPrinted = 0x20;
    constexpr uint deletion = 0x7F;
    constexpr uint lastControl = 0x9F;
    const bool isControl = code < firstPrinted || (code >= deletion && code <= lastControl);
    const bool isNone = (code & 0xFFFEU) == 0xFFFEU;
    return !isControl && !isNone && !QChar::isSurrogate(code);
}

} // namespace

SvgText& SvgText::text(const QString& text)
{
    QString shown;
    for (const uint code : text.toUcs4()) {
        if (code == '&')
            shown += "&amp;";
        else if (code == '<')
            shown += "&lt;";
        else if (code == '>')
            shown += "&gt;";
        else if (code == '"')
            shown += "&quot;";
        else if (isCharacter(code))
            shown += QString::fromUcs4(&code, 1);
        else
            shown += QChar(QChar::ReplacementCharacter);
    }
    bytes_ += shown.toUtf8();
    return *this;
}

SvgText& SvgText::number(double value)
{
    if (!bytes_.isEmpty() && QByteArray("0123456789.").contains(bytes_.back()))
        bytes_ += ' ';
    std::array<char, 32> digits{};
    // Minus 0 is 0.
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value + 0.0).ptr;
    bytes_.append(digits.data(), static_cast<int>(end - digits.data()));
    return *this;
}

} // namespace inkmacro::view
