#pragma once

#include "recordfile/Recording.h"

#include <functional>

class QIODevice;

namespace inkmacro {

/// Writes the recording so that reading it gives the same recording again. False when the device fails, and when the
/// recording holds what the format has no form for, such as a number that is not finite, a null id or an action of an
/// unknown class; what has been written by then is of no use. Objects of the drawing that
/// `leavesOut` are not written.
bool WriteRecording(const Recording& recording, QIODevice& device,
                    const std::function<bool(const OdDbObject&)>& leavesOut = {});

} // namespace inkmacro
