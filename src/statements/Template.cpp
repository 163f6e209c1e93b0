#include "statements/Template.h"

#include <algorithm>

namespace inkmacro {

namespace {

/// Follows a statement's text from quote to quote.
class Quotes
{
public:
    /// Whether quotes of a text are open behind these words, which go on where the last ones ended. A comment ends with
    /// its line, and since a marker may stand for the line end, with a marker too. The quotes of an include directive
    /// hold no text: what stands between them is the file's name as it is.
    bool areOpenBehind(QStringView text, Target language)
    {
        const bool basic = isBasic(language);
        comment_ = false;
        for (qsizetype at = 0; at < text.size(); ++at) {
            const QChar character = text[at];
            if (comment_) {
                comment_ = character != u'\n';
            } else if (!open_.isNull() && !basic && character == u'\\') {
                ++at;
            } else if (!open_.isNull()) {
                open_ = character == open_ ? QChar() : open_;
            } else if (character == u'"' || (character == u'\'' && !basic)) {
                open_ = character;
                include_ = text.left(at).endsWith(u"#include ");
            } else {
                comment_ = basic ? character == u'\'' : text.mid(at).startsWith(u"//");
            }
        }
        return !open_.isNull() && !include_;
    }

private:
    QChar open_; ///< null outside of quotes
    bool comment_ = false;
    bool include_ = false; ///< the quotes are those of an include directive
};

} // namespace

Marker nextMarker(QStringView text, int from)
{
    const int size = static_cast<int>(text.size());
    const auto digitAt = [&](int at) { return at < size ? text[at].digitValue() : -1; };
    for (int begin = from; begin + 1 < size; ++begin) {
        if (text[begin] != u'%') {
            continue;
        }
        const bool local = text[begin + 1] == u'L';
        const int digits = begin + (local ? 2 : 1);
        const int first = digitAt(digits);
        if (first == -1) {
            continue;
        }
        const int second = digitAt(digits + 1);
        if (second == -1) {
            return {begin, digits + 1, first, local};
        }
        return {begin, digits + 2, 10 * first + second, local};
    }
    return {size, -1, 0, false};
}

Template::Template(const char* latin1, std::optional<Target> language)
    : language_(language), text_(QString::fromLatin1(latin1))
{
    std::vector<Marker> markers;
    std::vector<int> numbers;
    for (Marker next = nextMarker(text_, 0); next.end != -1; next = nextMarker(text_, next.end)) {
        markers.push_back(next);
        numbers.push_back(next.number);
    }
    std::sort(numbers.begin(), numbers.end());
    numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
    ranks_.resize(numbers.size());

    Quotes quotes;
    int from = 0;
    bool openMarker = false;
    int before = 0;
    const auto addText = [&](int end) {
        if (end > from) {
            pieces_.push_back({from, end - from, noMarker});
        }
    };
    for (const Marker& marker : markers) {
        const auto rank = std::lower_bound(numbers.begin(), numbers.end(), marker.number) - numbers.begin();
        const QStringView text = QStringView(text_).mid(from, marker.begin - from);
        const bool openText = text.endsWith(u'%') || text.endsWith(u"%L");
        const bool open = text.isEmpty() ? openMarker && before > marker.number : openText;
        ++ranks_[rank].places;
        ranks_[rank].exposed |= open;
        local_ |= marker.local;
        addText(marker.begin);
        const bool quoted = language && quotes.areOpenBehind(text, *language);
        quotes_ |= quoted;
        pieces_.push_back({marker.begin, marker.end - marker.begin, static_cast<int>(rank), quoted});
        from = marker.end;
        openMarker = marker.end - marker.begin == 2;
        before = marker.number;
    }
    addText(text_.size());
}

} // namespace inkmacro
