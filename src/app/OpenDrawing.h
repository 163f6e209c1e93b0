#pragma once

#include "host/kernel/CFxServices.h"
#include "recordfile/Recording.h"

namespace inkmacro {

/// Makes a drawing the one that the user works in, for as long as this lives.
class OpenDrawing
{
public:
    explicit OpenDrawing(OdDbDatabase& database) : document_(&database)
    {
        GetFxSystemServices()->SetActiveDocument(&document_);
    }
    /// The drawing of a recording, with the objects that it says are current.
    explicit OpenDrawing(const Recording& recording) : OpenDrawing(*recording.database)
    {
        OdDbDatabase& database = *recording.database;
        database.setCurrentLayoutId(database.getOdDbObjectId(recording.drawing.currentLayout));
        database.setGroupDictionaryId(database.getOdDbObjectId(recording.drawing.groupDictionary));
    }
    ~OpenDrawing() { GetFxSystemServices()->SetActiveDocument(nullptr); }
    OpenDrawing(const OpenDrawing&) = delete;
    OpenDrawing& operator=(const OpenDrawing&) = delete;

private:
    CFxDocument document_;
};

} // namespace inkmacro
