#include "app/fileNames.h"

#include <QTextCodec>

#include <clocale>
#include <cstring>

#include <langinfo.h>

namespace inkmacro {

namespace {

constexpr ushort escapeBase = 0xDC00;

bool isEscaped(QChar c)
{
    return c.unicode() >= escapeBase + 0x80 && c.unicode() <= escapeBase + 0xFF;
}

/// How many bytes the letter has that begins with this one.
int letterLength(char lead)
{
    const auto byte = static_cast<unsigned char>(lead);
    return byte < 0xC0 ? 1 : byte < 0xE0 ? 2 : byte < 0xF0 ? 3 : 4;
}

class NameCodec final : public QTextCodec
{
public:
    QByteArray name() const override { return "inkmacro-names"; }
    int mibEnum() const override { return -5001; }

protected:
    QString convertToUnicode(const char* bytes, int length, ConverterState*) const override
    {
        const QByteArray all = QByteArray::fromRawData(bytes, length);
        QString text = QString::fromUtf8(all);
        if (text.toUtf8() == all)
            return text;
        text.clear();
        for (int i = 0; i < length;) {
            const QByteArray letter = all.mid(i, letterLength(all[i]));
            const QString decoded = QString::fromUtf8(letter);
            const bool valid = decoded.toUtf8() == letter;
            text += valid ? decoded : QString(QChar(escapeBase + static_cast<unsigned char>(all[i])));
            i += valid ? letter.size() : 1;
        }
        return text;
    }

    QByteArray convertFromUnicode(const QChar* chars, int length, ConverterState*) const override
    {
        QByteArray bytes;
        for (int begin = 0; begin < length;) {
            int end = begin;
            while (end < length && (!isEscaped(chars[end]) || (end > begin && chars[end - 1].isHighSurrogate())))
                ++end;
            bytes += QString(chars + begin, end - begin).toUtf8();
            for (; end < length && isEscaped(chars[end]); ++end)
                bytes += static_cast<char>(chars[end].unicode() - escapeBase);
            begin = end;
        }
        return bytes;
    }
};

} // namespace

void useByteExactNames()
{
    std::setlocale(LC_CTYPE, "");
    const char* const codeset = nl_langinfo(CODESET);
    // Qt owns its codecs.
    if (std::strcmp(codeset, "ANSI_X3.4-1968") == 0 || std::strcmp(codeset, "UTF-8") == 0)
        QTextCodec::setCodecForLocale(new NameCodec);
}

} // namespace inkmacro
