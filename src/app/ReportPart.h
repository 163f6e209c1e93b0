#pragma once

#include "app/noteCounts.h"
#include "dxf/Accounts.h"

#include <QTemporaryFile>

#include <functional>
#include <optional>

namespace inkmacro {

struct Recording;

/// What came of one conversion.
struct Outcome
{
    int status;             ///< an ExitStatus
    QString error = {};     ///< why it failed, as its user was told
    QStringList files = {}; ///< that were written, the macro first
};

/// A loss or an assumption with its place in the recording.
struct PlacedNote
{
    qint64 line; ///< from 1; 0 for none
    QString path;
    QString what;
    QString reason;
};

/// What the report tells of one conversion. It is kept in a file, since it may be longer than all that is in memory,
/// and since the process that converts writes it and another one reads it.
class ReportPart
{
public:
    enum class List
    {
        Losses,
        Assumptions
    };

    /// Makes the file; false with errno when that fails.
    bool create() { return file_.open(); }

    /// Once. False with errno when the file cannot hold it, which the reader takes for a conversion that came to no
    /// end.
    bool write(const Outcome& outcome, const CFxConversionNotes& notes, const Recording& recording,
               const std::optional<dxf::Accounts>& drawing);

    /// Ahead of all that reads. False when nothing whole was written; then all below is empty.
    bool beginReading();
    const Outcome& outcome() const { return outcome_; }
    const NoteCounts& counts() const { return counts_; }
    const std::vector<CFxFaultNote>& faults() const { return faults_; }
    /// What became of the entities of a drawing, as members of a JSON object and for a person; empty for a recording.
    const QByteArray& drawingMembers() const { return drawingMembers_; }
    const QStringList& drawingLines() const { return drawingLines_; }
    /// In the order in which they were noted.
    void forEach(List list, const std::function<void(const PlacedNote&)>& use);

private:
    QTemporaryFile file_;
    Outcome outcome_{};
    QByteArray drawingMembers_;
    QStringList drawingLines_;
    NoteCounts counts_;
    std::vector<CFxFaultNote> faults_;
    qint64 losses_ = 0; ///< where they begin in the file
    qint64 assumptions_ = 0;
};

} // namespace inkmacro
