#pragma once

#include "statements/Writer.h"

#include <vector>

Statement EmitGroupAddEntities(Writer& writer, const std::vector<CFxString>& names, const CFxString& group);
Statement EmitGroupRemoveEntities(Writer& writer, const std::vector<CFxString>& names, const CFxString& group);

/// A group of objects as the host's call takes it.
struct NewGroup
{
    CFxString name;
    bool selectable = false; ///< a click on one of them selects them all
    CFxString description;
    std::vector<QString> entities; ///< variables
};

Statement EmitCreateGroup(Writer& writer, const NewGroup& group, const CFxString& variable);
