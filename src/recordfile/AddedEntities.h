#pragma once

#include "recordfile/Recording.h"

#include <QByteArray>

#include <map>

namespace inkmacro {

/// What a recording adds is in no line of the drawing, unless the macro needs more of it than the recording has. While
/// a command works on the drawing, a stand-in of each such entity is there that no later action erases: of its class
/// and under its handle, but without its data. Classes whose macros take data from the drawing have none.
class AddedEntities
{
public:
    /// Puts them into the drawing of the recording, which has to outlive this.
    explicit AddedEntities(Recording& recording);

    /// Whether the object is a stand-in that is still as it came.
    bool isUntouched(const OdDbObject& object) const;

private:
    void collect(const CFxActionArray& actions, std::map<OdDbHandle, OdRxClass*>& classes) const;
    QByteArray written(const OdDbObject& object) const;

    const Recording& recording_;
    std::map<OdDbHandle, QByteArray> asTheyCame_;
};

} // namespace inkmacro
