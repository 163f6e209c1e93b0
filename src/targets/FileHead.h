#pragma once

#include <QByteArray>

namespace inkmacro {

/// The head of a macro file in pieces, each a literal of one target. It fetches the document's objects that the
/// statements work on.
struct FileHead
{
    const char* opening;
    const char* modelSketchManager; ///< only for a recording that began in model space
    /// Takes the sheet at index 1 on purpose: in a document with one sheet the macro ends here.
    const char* firstSheet;
    const char* recordedSheet; ///< only for a recording that began on a sheet whose name is known
    const char* viewManager;

    /// The pieces that suit the recording, joined. One that began on a sheet without a name gets neither of the two
    /// sketch managers, but in a repaired macro that of the model. The last marker is for the sheet's name, or for what
    /// is known of the place of the one that is missing.
    QByteArray words() const;
};

} // namespace inkmacro
