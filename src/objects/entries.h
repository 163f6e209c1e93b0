#pragma once

#include "conversion/Conversion.h"
#include "host/kernel/CFxStatus.h"
#include "objects/RecordedObject.h"

class StatementGroup;

// Recorded objects become statements, from their property records alone. The first two append to `text`, a property
// that stands alone replaces it. Each gives kFxSuccess, or kFxFailure for an action without a class.

std::int32_t ConvertObjectAdded(Conversion& conversion, const CFxObjectAdded& action, Statement& text);
std::int32_t ConvertObjectModified(Conversion& conversion, const CFxObjectModified& action, Statement& text);
std::int32_t ConvertPropertyChanged(Conversion& conversion, CFxPropertyChangedPtr action, Statement& text);

/// `read` is what the class's reader takes its values from, `rest` what the general handler gets of it: the same
/// records less those that the reader took.
void ConvertAddedObject(Conversion& conversion, const OdRxClass* cls, const OdDbHandle& handle, PropertyList& read,
                        PropertyList& rest, Statement& text);
/// Statements for the properties that changed, or for what an added object's reader left. Empties `text` first.
void ConvertObjectChanges(Conversion& conversion, const OdRxClass* cls, const OdDbHandle& handle, PropertyList& list,
                          bool fromAdded, Statement& text);
/// The properties that entities of all classes have. Abandons the group that was begun, when the statements declare
/// what must be seen behind it. `target` is the variable that they are set on.
void ConvertGeneralProperties(Conversion& conversion, const RecordedObject& object, PropertyList& list, bool fromAdded,
                              const CFxString& target, StatementGroup& group, Statement& text);

/// What a layer of the drawing is called by now; empty when the drawing does not have it.
CFxString LayerName(const Conversion& conversion, const OdDbHandle& handle);
/// Whether objects of the class have no property that erases them.
bool LacksErasure(const OdRxClass* cls);
/// What takes such an object away. Where nothing does, that is noted as lost.
Statement TakeAway(Writer& writer, const RecordedObject& object);

/// Whether that file of line type shapes comes with the host, which then needs no statement to load it.
bool IsHostShapeFile(const CFxString& fileName);
