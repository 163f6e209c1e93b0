#include "app/ReportPart.h"

#include "app/importReport.h"
#include "app/notePlaces.h"

#include <QDataStream>

namespace inkmacro {

namespace {

/// The last number of a part that was written whole, in front of it the places of its lists and of what heads it.
constexpr quint32 kWhole = 0x52505431;
constexpr qint64 kTrailerSize = 3 * sizeof(qint64) + sizeof(quint32);

/// Nobody else ever reads it.
class PartStream : public QDataStream
{
public:
    explicit PartStream(QIODevice& file) : QDataStream(&file) { setByteOrder(ByteOrder(QSysInfo::ByteOrder)); }
};

void writeNotes(QDataStream& out, const std::vector<CFxActionNote>& notes, const Recording& recording)
{
    for (const CFxActionNote& note : notes)
        out << lineOf(note.where, recording) << pathOf(note.where) << note.what.toQString() << note.reason.toQString();
}

} // namespace

bool ReportPart::write(const Outcome& outcome, const CFxConversionNotes& notes, const Recording& recording,
                       const std::optional<dxf::Accounts>& drawing)
{
    PartStream out(file_);
    const qint64 losses = file_.pos();
    writeNotes(out, notes.GetLosses(), recording);
    const qint64 assumptions = file_.pos();
    writeNotes(out, notes.GetAssumptions(), recording);
    const qint64 head = file_.pos();
    const NoteCounts counts = countsOf(notes);
    out << qint32(outcome.status) << outcome.error << outcome.files << counts.losses << counts.assumptions
        << counts.faults << quint32(notes.GetFaults().size());
    for (const CFxFaultNote& fault : notes.GetFaults()) {
        out << fault.operation.toQString() << fault.reason.toQString() << fault.file.toQString() << fault.mended
            << quint32(fault.lines.size());
        for (const std::uint32_t line : fault.lines)
            out << quint32(line);
    }
    out << (drawing ? importMembers(*drawing) : QByteArray()) << (drawing ? importLines(*drawing) : QStringList());
    out << losses << assumptions << head << kWhole;
    return out.status() == QDataStream::Ok && file_.flush();
}

bool ReportPart::beginReading()
{
    PartStream in(file_);
    qint64 head = 0;
    quint32 mark = 0;
    if (file_.size() < kTrailerSize || !file_.seek(file_.size() - kTrailerSize))
        return false;
    in >> losses_ >> assumptions_ >> head >> mark;
    if (mark != kWhole || !file_.seek(head))
        return false;
    qint32 status = 0;
    quint32 faultCount = 0;
    in >> status >> outcome_.error >> outcome_.files >> counts_.losses >> counts_.assumptions >> counts_.faults >>
        faultCount;
    outcome_.status = status;
    for (quint32 i = 0; i < faultCount; ++i) {
        QString operation;
        QString reason;
        QString file;
        CFxFaultNote fault;
        quint32 lineCount = 0;
        in >> operation >> reason >> file >> fault.mended >> lineCount;
        fault.operation = operation;
        fault.reason = reason;
        fault.file = file;
        fault.lines.resize(lineCount);
        for (std::uint32_t& line : fault.lines)
            in >> line;
        faults_.push_back(std::move(fault));
    }
    in >> drawingMembers_ >> drawingLines_;
    return in.status() == QDataStream::Ok;
}

void ReportPart::forEach(List list, const std::function<void(const PlacedNote&)>& use)
{
    const bool lost = list == List::Losses;
    if (!file_.seek(lost ? losses_ : assumptions_))
        return;
    PartStream in(file_);
    PlacedNote note;
    for (qint64 left = lost ? counts_.losses : counts_.assumptions; left > 0 && in.status() == QDataStream::Ok;
         --left) {
        in >> note.line >> note.path >> note.what >> note.reason;
        use(note);
    }
}

} // namespace inkmacro
