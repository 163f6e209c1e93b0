#pragma once

#include "host/db/OdGe.h"
#include "statements/Writer.h"

/// A named view as statements find it: one of the model by its variable, one of a sheet by its name.
struct NamedViewReference
{
    CFxString word;
    bool onSheet = false;
};

/// One of the model goes to `variable`. One of a sheet has none: it is found by its name from there on.
Statement EmitCreateNamedView(Writer& writer, const CFxString& name, bool onSheet, const CFxString& variable);
Statement EmitRenameNamedView(Writer& writer, const NamedViewReference& view, const CFxString& newName);
Statement EmitSetNamedViewClass(Writer& writer, const NamedViewReference& view, const CFxString& className);
Statement EmitSetViewWindow(Writer& writer, const NamedViewReference& view, const OdGePoint3d& first,
                            const OdGePoint3d& opposite);
