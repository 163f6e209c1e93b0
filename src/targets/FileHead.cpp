#include "targets/FileHead.h"

#include "frame/RecordingState.h"

namespace inkmacro {

QByteArray FileHead::words() const
{
    QByteArray joined(opening);
    if (RecordingInModel)
        joined += modelSketchManager;
    joined += firstSheet;
    if (!RecordingSheetName.isEmpty() && !RecordingInModel)
        joined += recordedSheet;
    return joined += viewManager;
}

} // namespace inkmacro
