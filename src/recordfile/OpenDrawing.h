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
    /// The drawing of a recording, with what the recording says of it as a whole.
    explicit OpenDrawing(const Recording& recording);
    ~OpenDrawing() { GetFxSystemServices()->SetActiveDocument(nullptr); }
    OpenDrawing(const OpenDrawing&) = delete;
    OpenDrawing& operator=(const OpenDrawing&) = delete;

private:
    CFxDocument document_;
};

/// A drawing made up of the layout that was current when recording began. The recorder takes its first snapshot then,
/// of which the module notes the layout for the head of the macro. For a recording out of a file the moment is past,
/// and the layout may have another name in its drawing, so a host gives this layout to TakeSnapshot before the
/// conversion.
class OpenSheet
{
public:
    explicit OpenSheet(const Recording::Sheet& sheet);
    const OdDbObject* layout() const { return layout_.get(); }

private:
    OdDbDatabase database_;
    OdSmartPtr<OdDbObject> layout_;
    OpenDrawing drawing_{database_};
};

} // namespace inkmacro
