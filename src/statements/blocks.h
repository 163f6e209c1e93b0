#pragma once

#include "statements/Writer.h"

/// The text that begins a group of statements; raises the level, which a target without groups keeps.
Statement EmitBlockBegin(Writer& writer);
Statement EmitBlockEnd(Writer& writer);

// The two halves of EmitBlockBegin, for a group of which it turns out later whether it is written.
Statement blockBeginAt(const Writer& writer, std::uint32_t level);
void enterBlock(Writer& writer);

/// Whether the target has groups.
bool hasBlocks(const Writer& writer);

Statement EmitObjectModifiedComment(Writer& writer, const CFxString& className);
