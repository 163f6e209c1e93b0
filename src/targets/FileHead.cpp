#include "targets/FileHead.h"

#include "statements/RecordingState.h"

namespace inkmacro {

QByteArray FileHead::words() const
{
    QByteArray joined(opening);
    const bool isNamed = !RecordingSheetName.isEmpty();
    const bool ofModel = RecordingInModel || (RepairsMacros() && !isNamed);
    if (ofModel)
        joined += modelSketchManager;
    joined += firstSheet;
    if (!RecordingInModel)
        joined += isNamed ? recordedSheet : ofModel ? "" : "%9";
    return joined += viewManager;
}

} // namespace inkmacro
