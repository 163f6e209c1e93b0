#pragma once

#include "host/db/OdGe.h"
#include "host/rx/OdArray.h"
#include "statements/Writer.h"

/// What else than a note may stand at a leader's end.
enum class LeaderAnnotation
{
    Tolerance,
    Block
};

Statement EmitInsertTolerance(Writer& writer, const OdGePoint3d& position, const inkmacro::EscapedText& text,
                              const CFxString& name);
Statement EmitInsertLeader(Writer& writer, const OdArray<OdGePoint3d>& vertices, double width,
                           const inkmacro::EscapedText& text, const CFxString& name);
/// `text` is the tolerance's text or the block's name.
Statement EmitSetAnnotation(Writer& writer, const CFxString& leader, LeaderAnnotation kind,
                            const inkmacro::EscapedText& text);
