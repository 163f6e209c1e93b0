#include "statements/Template.h"

#include <algorithm>

namespace inkmacro {

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

Template::Template(const char* latin1, Markers markersAre) : text_(QString::fromLatin1(latin1))
{
    std::vector<Marker> markers;
    std::vector<int> numbers;
    for (Marker next = nextMarker(text_, 0); next.end != -1; next = nextMarker(text_, next.end)) {
        markers.push_back(next);
        numbers.push_back(next.number);
    }
    std::sort(numbers.begin(), numbers.end());
    numbers.erase(std::unique(numbers.begin(), numbers.end()), numbers.end());
    const bool counted = markersAre == Markers::Counted;
    ranks_.resize(counted && !numbers.empty() ? static_cast<std::size_t>(numbers.back()) : numbers.size());

    int from = 0;
    bool openMarker = false;
    int before = 0;
    const auto addText = [&](int end) {
        if (end > from) {
            pieces_.push_back({from, end - from, noMarker});
        }
    };
    for (const Marker& marker : markers) {
        const auto rank = counted ? marker.number - 1
                                  : std::lower_bound(numbers.begin(), numbers.end(), marker.number) - numbers.begin();
        const QStringView text = QStringView(text_).mid(from, marker.begin - from);
        const bool openText = text.endsWith(u'%') || text.endsWith(u"%L");
        const bool open = text.isEmpty() ? openMarker && before > marker.number : openText;
        ++ranks_[rank].places;
        ranks_[rank].exposed |= open;
        local_ |= marker.local;
        addText(marker.begin);
        pieces_.push_back({marker.begin, marker.end - marker.begin, static_cast<int>(rank)});
        from = marker.end;
        openMarker = marker.end - marker.begin == 2;
        before = marker.number;
    }
    addText(text_.size());
}

} // namespace inkmacro
