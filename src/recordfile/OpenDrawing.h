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

} // namespace inkmacro
