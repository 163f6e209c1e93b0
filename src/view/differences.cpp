#include "view/differences.h"

#include <QHash>

#include <algorithm>
#include <cstring>
#include <string_view>

namespace inkmacro::view {

namespace {

/// The lines of a text, without copying it.
std::vector<std::string_view> linesOf(const QByteArray& text)
{
    std::vector<std::string_view> lines;
    const char* at = text.constData();
    const char* const end = at + text.size();
    while (at < end) {
        const auto* const stop = static_cast<const char*>(std::memchr(at, '\n', static_cast<std::size_t>(end - at)));
        lines.emplace_back(at, static_cast<std::size_t>((stop ? stop : end) - at));
        at = stop ? stop + 1 : end;
    }
    return lines;
}

/// Where neighbouring ranges of one step and part stand in a macro.
struct Run
{
    std::int32_t step;
    std::uint8_t part;
    std::size_t first;
    std::size_t count;

    quint64 key() const { return static_cast<quint64>(static_cast<quint32>(step)) << 8 | part; }
};

std::vector<Run> runsOf(const MacroLines& macro)
{
    std::vector<Run> runs;
    std::size_t line = 0;
    for (const LineRange& range : macro.ranges) {
        if (!runs.empty() && runs.back().step == range.step && runs.back().part == range.part)
            runs.back().count += range.count;
        else
            runs.push_back({range.step, range.part, line, range.count});
        line += range.count;
    }
    return runs;
}

class Differences
{
public:
    Differences(const MacroLines& recorded, const MacroLines& repaired)
        : ours_(linesOf(recorded.text)),
          theirs_(linesOf(repaired.text)),
          ourRuns_(runsOf(recorded)),
          theirRuns_(runsOf(repaired))
    {
    }

    std::vector<Hunk> find()
    {
        for (std::size_t i = 0; i < theirRuns_.size(); ++i)
            places_[theirRuns_[i].key()].push_back(i);
        std::size_t next = 0;
        for (const Run& run : ourRuns_) {
            const std::size_t found = placeOf(run, next);
            if (found == theirRuns_.size()) {
                compare(run, {run.step, run.part, lineOf(next), 0});
                continue;
            }
            for (; next < found; ++next)
                compare({theirRuns_[next].step, theirRuns_[next].part, run.first, 0}, theirRuns_[next]);
            compare(run, theirRuns_[next++]);
        }
        for (; next < theirRuns_.size(); ++next)
            compare({theirRuns_[next].step, theirRuns_[next].part, ours_.size(), 0}, theirRuns_[next]);
        return std::move(hunks_);
    }

private:
    std::size_t lineOf(std::size_t run) const
    {
        return run < theirRuns_.size() ? theirRuns_[run].first : theirs_.size();
    }

    /// The first run from `next` on that is of the same step and part; the number of runs when there is none. A part
    /// of the frame is looked for nearby only: there are many, and the next one is seldom another.
    std::size_t placeOf(const Run& run, std::size_t next) const
    {
        constexpr std::size_t nearby = 8;
        const auto places = places_.constFind(run.key());
        if (places == places_.constEnd())
            return theirRuns_.size();
        const auto found = std::lower_bound(places->begin(), places->end(), next);
        if (found == places->end() || (run.step < 0 && *found > next + nearby))
            return theirRuns_.size();
        return *found;
    }

    /// Between equal lines at both ends the rest is another; in it, lines that both sides have once are kept.
    void compare(const Run& ours, const Run& theirs)
    {
        std::size_t a = ours.first;
        std::size_t b = theirs.first;
        std::size_t aEnd = a + ours.count;
        std::size_t bEnd = b + theirs.count;
        const std::int32_t step = ours.count > 0 ? ours.step : theirs.step;
        while (a < aEnd && b < bEnd && ours_[a] == theirs_[b]) {
            ++a;
            ++b;
        }
        while (aEnd > a && bEnd > b && ours_[aEnd - 1] == theirs_[bEnd - 1]) {
            --aEnd;
            --bEnd;
        }
        while (a < aEnd || b < bEnd) {
            const auto [i, j] = nextEqual(a, aEnd, b, bEnd);
            hunks_.push_back({static_cast<std::uint32_t>(a + 1), static_cast<std::uint32_t>(i - a),
                              static_cast<std::uint32_t>(b + 1), static_cast<std::uint32_t>(j - b), step});
            for (a = i, b = j; a < aEnd && b < bEnd && ours_[a] == theirs_[b]; ++a)
                ++b;
        }
    }

    /// The nearest pair of equal lines, or the ends.
    std::pair<std::size_t, std::size_t> nearestOf(std::size_t a, std::size_t aEnd, std::size_t b,
                                                  std::size_t bEnd) const
    {
        constexpr std::size_t reach = 64;
        const std::size_t most = std::min(reach, (aEnd - a) + (bEnd - b));
        for (std::size_t distance = 1; distance <= most; ++distance)
            for (std::size_t i = 0; i <= distance; ++i)
                if (const std::size_t j = distance - i;
                    a + i < aEnd && b + j < bEnd && ours_[a + i] == theirs_[b + j] && !ours_[a + i].empty())
                    return {a + i, b + j};
        return {aEnd, bEnd};
    }
    std::pair<std::size_t, std::size_t> nextEqual(std::size_t a, std::size_t aEnd, std::size_t b,
                                                  std::size_t bEnd) const
    {
        if (a == aEnd || b == bEnd)
            return {aEnd, bEnd};
        return nearestOf(a, aEnd, b, bEnd);
    }

    std::vector<std::string_view> ours_;
    std::vector<std::string_view> theirs_;
    std::vector<Run> ourRuns_;
    std::vector<Run> theirRuns_;
    QHash<quint64, std::vector<std::size_t>> places_;
    std::vector<Hunk> hunks_;
};

} // namespace

std::vector<Hunk> differencesOf(const MacroLines& recorded, const MacroLines& repaired)
{
    if (recorded.text == repaired.text)
        return {};
    return Differences(recorded, repaired).find();
}

} // namespace inkmacro::view
