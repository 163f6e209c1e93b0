#pragma once

#include <QString>

#include <array>
#include <memory>
#include <string>
#include <string_view>

namespace inkmacro::dxf {

/// Makes texts of the bytes of a drawing's values.
class TextDecoder
{
public:
    /// UTF-8, as drawings have it from R2007 on.
    TextDecoder() = default;

    /// `codePage` as the header names it (`$DWGCODEPAGE`), in whatever case; empty is ANSI_1252.
    explicit TextDecoder(std::string_view codePage);

    /// Whether there is such a code page; of one that nobody knows, bytes are read as ANSI_1252.
    bool isKnown() const { return known_; }

    /// With escapes decoded: \U+XXXX (surrogate pairs joined), \M+nXXXX, and ^I ^J ^M "^ ".
    QString text(std::string_view bytes);

    /// Bytes that were no text so far, each of which became U+FFFD. An escape of half a surrogate pair counts as one.
    qint64 undecodable() const { return undecodable_; }

private:
    struct Close
    {
        void operator()(void* descriptor) const;
    };
    /// An iconv_t.
    using Descriptor = std::unique_ptr<void, Close>;

    static Descriptor open(const char* page);

    void appendDecoded(std::string_view bytes, void* descriptor, QString& text);
    void appendAnsi(std::string_view bytes, QString& text);
    bool appendBytePair(int page, uint pair, QString& text);
    QString withoutEscapes(const QString& text);
    void replaceWhatIsNoText(QString& text);

    /// As iconv names it; empty is ANSI_1252, which needs no iconv.
    std::string page_ = "UTF-8";
    bool known_ = true;
    Descriptor descriptor_;
    /// Those of \M+n.
    std::array<Descriptor, 5> pagesOfPairs_;
    qint64 undecodable_ = 0;
};

} // namespace inkmacro::dxf
