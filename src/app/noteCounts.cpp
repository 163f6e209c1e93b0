// What is said of a macro in a few words.

#include "app/noteCounts.h"

#include "app/valueText.h"

#include <QStringList>

#include <algorithm>

namespace inkmacro {

namespace {

/// The same reason in several files or operations is one kind for a person.
struct FaultKind
{
    QString reason;
    bool mended = true;
};

std::vector<FaultKind> kindsOf(const CFxConversionNotes& notes)
{
    std::vector<FaultKind> kinds;
    for (const CFxFaultNote& fault : notes.GetFaults()) {
        const auto known = std::ranges::find(kinds, fault.reason.toQString(), &FaultKind::reason);
        if (known == kinds.end())
            kinds.push_back({fault.reason, fault.mended});
        else
            known->mended = known->mended && fault.mended;
    }
    return kinds;
}

QStringList stepsAndValues(const NoteCounts& counts)
{
    QStringList parts;
    if (counts.losses > 0)
        parts.append(counted(counts.losses, "step", "steps") + " lost");
    if (counts.assumptions > 0)
        parts.append(counted(counts.assumptions, "value", "values") + " assumed");
    return parts;
}

QString kindsText(const std::vector<FaultKind>& kinds, qint64 places)
{
    if (places == 1)
        return QString("1 fault (%1)").arg(kinds.front().reason);
    const QString text = QString("%1 in %2")
                             .arg(counted(static_cast<qint64>(kinds.size()), "kind of fault", "kinds of faults"),
                                  counted(places, "place", "places"));
    return kinds.size() == 1 ? QString("%1 (%2)").arg(text, kinds.front().reason) : text;
}

/// Which of the kinds --repair mends; empty when none.
QString repairText(const std::vector<FaultKind>& kinds)
{
    const auto mended = static_cast<std::size_t>(std::ranges::count(kinds, true, &FaultKind::mended));
    if (mended == 0)
        return {};
    if (mended < kinds.size())
        return QString("--repair mends %1 of them").arg(mended);
    return mended == 1 ? "--repair mends it" : "--repair mends them";
}

} // namespace

NoteCounts countsOf(const CFxConversionNotes& notes)
{
    NoteCounts counts{static_cast<qint64>(notes.GetLossCount()), static_cast<qint64>(notes.GetAssumptionCount())};
    for (const CFxFaultNote& fault : notes.GetFaults())
        counts.faults += static_cast<qint64>(fault.lines.size());
    return counts;
}

QString countText(const NoteCounts& counts)
{
    QStringList parts = stepsAndValues(counts);
    if (counts.faults > 0)
        parts.append(counted(counts.faults, "fault", "faults"));
    return parts.join(", ");
}

QString talkText(const CFxConversionNotes& notes, bool namesReport)
{
    const NoteCounts counts = countsOf(notes);
    const std::vector<FaultKind> kinds = kindsOf(notes);
    QStringList parts = stepsAndValues(counts);
    // One kind of fault is told whole.
    const bool hasMore = !parts.empty() || kinds.size() > 1;
    QStringList ways;
    if (!kinds.empty()) {
        parts.append(kindsText(kinds, counts.faults));
        ways.append(repairText(kinds));
    }
    if (namesReport && hasMore)
        ways.append("--report text tells which");
    ways.removeAll(QString());
    return ways.empty() ? parts.join(", ") : parts.join(", ") + "; " + ways.join(", ");
}

} // namespace inkmacro
