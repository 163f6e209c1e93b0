#include "recordfile/RecordingWriter.h"

#include "recordfile/drawingForms.h"
#include "recordfile/lineForms.h"

#include <QIODevice>

namespace inkmacro {

using namespace recordfile;

namespace {

class Lines
{
public:
    Lines(QIODevice& device, CFxValueContext context) : device_(device), out_(context) {}

    /// A line of that kind. After a failure nothing more is written.
    void write(LineKind kind, auto writeValue)
    {
        out_.beginObject();
        out_.key(kOtherLineKeys[kind]);
        writeValue(out_);
        out_.endObject();
        end();
    }
    void write(const OdRxObjectPtr& action)
    {
        Form<OdRxObjectPtr>::write(out_, action);
        end();
    }
    bool good() const { return good_; }

private:
    void end()
    {
        out_.endLine();
        good_ = good_ && !out_.refused() && device_.write(out_.bytes()) == out_.bytes().size();
        out_.clear();
    }

    QIODevice& device_;
    JsonOut out_;
    bool good_ = true;
};

} // namespace

bool WriteRecording(const Recording& recording, QIODevice& device,
                    const std::function<bool(const OdDbObject&)>& leavesOut)
{
    Lines lines(device, static_cast<CFxValueContext>(recording.header.context));
    lines.write(kHeaderLine, [&](JsonOut& out) { Form<Recording::Header>::write(out, recording.header); });
    if (recording.drawing != Recording::Drawing())
        lines.write(kDrawingLine, [&](JsonOut& out) { Form<Recording::Drawing>::write(out, recording.drawing); });
    for (const OdDbObjectId& id : recording.database->objectIds()) {
        const OdDbObjectPtr object = id.openObject(true);
        if (!leavesOut || !leavesOut(*object))
            lines.write(kObjectLine, [&](JsonOut& out) { DrawingObjectForm::write(out, *object); });
    }
    for (const OdRxObjectPtr& action : recording.actions)
        lines.write(action);
    return lines.good();
}

} // namespace inkmacro
