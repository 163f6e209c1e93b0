#pragma once

#include "conversion/Conversion.h"
#include "objects/RecordedObject.h"
#include "statements/losses.h"

class OdDbPolyline;

// What the macro does not do, for the notes of the conversion.

void LoseObject(const RecordedObject& object, const char* reason);
/// One of its properties.
void LoseProperty(const RecordedObject& object, const QString& tag, const QString& reason);
/// A property that the macro states otherwise than it is recorded.
void AssumeProperty(const RecordedObject& object, const QString& tag, const QString& reason);
/// A value of another form, of which getters give a neutral one, or a text that is none of the form's words.
void AssumeUnlessFormed(const RecordedObject& object, const QString& tag, const CFxVariant& value,
                        const ValueForm& form);
/// A value of another form, where nothing is written for that one.
void LoseUnlessFormed(const RecordedObject& object, const QString& tag, const CFxVariant& value, const ValueForm& form);
/// The arcs of an added polyline, which none but a custom action tells.
void LoseArcs(const Conversion& conversion, const RecordedObject& object, const OdDbPolyline& polyline);
/// An added note that its leader should bring, when the macro does not have the leader.
void LoseNoteWithoutLeader(const Conversion& conversion, const RecordedObject& object);
/// The properties that nothing has taken out of the list. What is left of an added object is no loss when the data of
/// the action that makes it hold it too, nor when the object is lost itself, as a hatch without its action is.
void LoseRest(const Conversion& conversion, const RecordedObject& object, const PropertyList& list, bool fromAdded);
/// An added object that is made by a custom action, when there is none, and else the properties of one that no
/// statement was written for.
void LoseUnmade(const Conversion& conversion, const RecordedObject& object, const PropertyList& rest, bool written);

/// Derived properties of a list from which nothing has been taken yet, where it does not hold what they follow from.
void LoseLoneTags(const Conversion& conversion, const RecordedObject& object, const PropertyList& list, bool fromAdded);

/// Whether custom actions, or the block of its command, make the object.
bool IsMadeByAction(const Conversion& conversion, const RecordedObject& object);
/// The tags of added or changed objects of the class that only say in another form what others say; `*` at the end of
/// one stands for whatever follows.
std::vector<QString> RepeatedTags(const OdRxClass* cls, bool fromAdded);
/// The kind of the custom actions that make objects of the class, or -1.
std::int32_t KindThatMakes(const OdRxClass* cls);
/// The same of those that say more of an object which is made without them too.
std::int32_t KindThatCompletes(const OdRxClass* cls);
/// Whether custom actions of that kind make entities of the class; null: of any.
bool IsEntityOfAction(const OdRxClass* cls, std::int32_t kind);
