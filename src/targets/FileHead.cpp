#include "targets/FileHead.h"

#include "statements/RecordingState.h"

namespace inkmacro {

QByteArray FileHead::words() const
{
    QByteArray joined(opening);
    if (RecordingInModel || (RepairsMacros() && RecordingSheetName.isEmpty()))
        joined += modelSketchManager;
    joined += firstSheet;
    if (!RecordingSheetName.isEmpty() && !RecordingInModel)
        joined += recordedSheet;
    return joined += viewManager;
}

} // namespace inkmacro
