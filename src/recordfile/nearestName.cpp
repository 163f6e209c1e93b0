#include "recordfile/nearestName.h"

#include <algorithm>
#include <numeric>
#include <vector>

namespace inkmacro {

namespace {

/// No name is longer by far; a longer text is none that was mistyped.
constexpr int kLongestName = 100;
/// A shorter beginning is that of too many names.
constexpr int kShortestBeginning = 3;

/// How many letters have to be changed, added, left out or swapped with their neighbour to make one text of the other.
int distance(const QString& from, const QString& to)
{
    const auto columns = static_cast<std::size_t>(to.length()) + 1;
    std::vector<int> beforeLast(columns);
    std::vector<int> last(columns);
    std::vector<int> row(columns);
    std::iota(row.begin(), row.end(), 0);
    for (int i = 1; i <= from.length(); ++i) {
        beforeLast.swap(last);
        last.swap(row);
        row[0] = i;
        for (int j = 1; j <= to.length(); ++j) {
            const auto at = static_cast<std::size_t>(j);
            const int changed = from[i - 1] == to[j - 1] ? 0 : 1;
            row[at] = std::min({last[at] + 1, row[at - 1] + 1, last[at - 1] + changed});
            if (i > 1 && j > 1 && from[i - 1] == to[j - 2] && from[i - 2] == to[j - 1])
                row[at] = std::min(row[at], beforeLast[at - 2] + 1);
        }
    }
    return row.back();
}

} // namespace

QString nearestName(const QString& written, const QStringList& names)
{
    if (written.length() > kLongestName)
        return {};
    const QString wanted = written.toCaseFolded();
    QString nearest;
    int least = (wanted.length() + 1) / 3 + 1;
    for (const QString& name : names) {
        const QString known = name.toCaseFolded();
        const bool begun = wanted.length() >= kShortestBeginning && known.startsWith(wanted) && known != wanted;
        const int letters = begun ? 1 : distance(wanted, known);
        if (letters < least) {
            least = letters;
            nearest = name;
        }
    }
    return nearest;
}

QString didYouMean(const QString& written, const QStringList& names)
{
    const QString nearest = nearestName(written, names);
    return nearest.isEmpty() ? QString() : "; did you mean " + nearest + '?';
}

} // namespace inkmacro
