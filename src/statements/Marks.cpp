#include "statements/Marks.h"

namespace inkmacro {

namespace {

constexpr QChar kLaterHead(0xDFFF);
constexpr QChar kFaultHead(0xDFFE);
constexpr int kHeads = 2;
constexpr int kDigits = 3;
static_assert(kHeads + kDigits == Mark::length);
constexpr int kDigitBits = 10;
constexpr ushort kFirstLowSurrogate = 0xDC00;

bool canBelongToMarker(QChar character)
{
    return character == '%' || character == 'L' || character.digitValue() != -1;
}

} // namespace

QString Mark::text() const
{
    QString text(kHeads, kind == Kind::Later ? kLaterHead : kFaultHead);
    for (int shift = (kDigits - 1) * kDigitBits; shift >= 0; shift -= kDigitBits)
        text += QChar(static_cast<ushort>(kFirstLowSurrogate + ((number >> shift) & ((1U << kDigitBits) - 1))));
    return text;
}

std::optional<Mark::Found> Mark::find(QStringView text, qsizetype from)
{
    for (qsizetype at = from; at + length <= text.size(); ++at) {
        const QChar head = text[at];
        if ((head != kLaterHead && head != kFaultHead) || text[at + 1] != head)
            continue;
        std::size_t number = 0;
        for (const QChar digit : text.mid(at + kHeads, kDigits))
            number = (number << kDigitBits) | (digit.unicode() - kFirstLowSurrogate);
        return Found{at, {head == kLaterHead ? Kind::Later : Kind::Fault, number}};
    }
    return std::nullopt;
}

void insertMark(QString& statement, const Mark& mark)
{
    // Markers are percent signs, letters and digits in a row: next to any other character there is room.
    int at = 0;
    while (at < statement.size() && (statement[at].isSpace() || canBelongToMarker(statement[at])))
        ++at;
    if (at < statement.size() || (at > 0 && !canBelongToMarker(statement[at - 1])))
        statement.insert(at, mark.text());
}

} // namespace inkmacro
