#include "targets/Writer.h"

#include "targets/LineEnd.h"

#include <QTextStream>

#include <algorithm>
#include <utility>

using namespace inkmacro;

namespace {

/// In no text: a low surrogate stands alone only for a byte of a file's name, of which none becomes this one. The
/// number of what is kept stands behind it, in three more.
const QString laterMark(2, QChar(0xDFFF));
constexpr int kLaterDigits = 3;
constexpr int kLaterDigitBits = 10;
constexpr ushort kFirstLowSurrogate = 0xDC00;

QString laterDigits(std::size_t number)
{
    QString digits;
    for (int shift = (kLaterDigits - 1) * kLaterDigitBits; shift >= 0; shift -= kLaterDigitBits)
        digits += QChar(static_cast<ushort>(kFirstLowSurrogate + ((number >> shift) & ((1U << kLaterDigitBits) - 1))));
    return digits;
}

std::size_t laterNumber(QStringView digits)
{
    std::size_t number = 0;
    for (const QChar digit : digits)
        number = (number << kLaterDigitBits) | (digit.unicode() - kFirstLowSurrogate);
    return number;
}

/// The stream makes copies of all that it is given at once.
void writeSliced(QTextStream& stream, QStringView text)
{
    constexpr qsizetype slice = 64 * 1024;
    while (!text.isEmpty()) {
        qsizetype length = std::min(slice, text.size());
        if (length < text.size() && text[length].isLowSurrogate())
            ++length;
        stream << text.left(length);
        text = text.mid(length);
    }
}

} // namespace

Fill Writer::fill(const Phrase& phrase) const
{
    return Fill(phrase.in(target), IndentLevel, LineEnd);
}

Fill Writer::fillIndented(const Phrase& phrase) const
{
    return Fill(phrase.in(target), IndentLevel);
}

QString Writer::indentation() const
{
    return QString(Fill::indentationWidth(IndentLevel), ' ');
}

QString Writer::later(Parts parts)
{
    later_.push_back(std::move(parts));
    return laterMark + laterDigits(later_.size() - 1);
}

void Writer::write(QTextStream& stream, const QString& statements) const
{
    const QStringView text(statements);
    int from = 0;
    int at = later_.empty() ? -1 : statements.indexOf(laterMark);
    for (; at != -1; at = statements.indexOf(laterMark, from)) {
        writeSliced(stream, text.mid(from, at - from));
        const int digits = at + laterMark.size();
        const Parts& parts = later_.at(laterNumber(text.mid(digits, kLaterDigits)));
        QString part = parts(0);
        for (std::size_t number = 1; !part.isEmpty(); ++number) {
            writeSliced(stream, part);
            part = parts(number);
        }
        from = digits + kLaterDigits;
    }
    writeSliced(stream, text.mid(from));
}
