#pragma once

#include "statements/Writer.h"
#include "targets/EntityList.h"

Statement EmitPromptSelection(Writer& writer, const EntityList& entities);

/// Whether the call behind the prompt works on what is selected then; else it works on what was recorded.
bool TakesWhatIsSelected(const Writer& writer);
/// All that the user has selected, as the elements of Python's lists: in place of the entities that were recorded, for
/// the call behind a prompt.
EntityList SelectedEntities();
