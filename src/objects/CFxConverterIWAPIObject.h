#pragma once

#include "host/db/OdDbObject.h"
#include "module/CFxConverterIWAPIModule.h"
#include "objects/PropertyTag.h"
#include "statements/typeNames.h"

#include <QString>

#include <map>
#include <memory>
#include <optional>
#include <unordered_map>

struct BlockContents;
class ChangeGroups;
class CFxConverterIWAPIImpl;
class OdDbPolyline;
class StatementGroup;
class Writer;
struct BoundaryObject;
struct ClassRow;
struct TableLines;

/// Which part of a collection's elements holds the handles.
enum class HandlesIn
{
    Tags,
    Values
};

/// Whether that file of line type shapes comes with the host, which then needs no statement to load it.
bool IsHostShapeFile(const CFxString& fileName);

/// Whether objects of that class are converted at all.
bool IsSupportedClass(const OdRxClass* cls);

/// Whether a value of choice type shows the word "Yes" or "On" in the host's display language.
bool IsYes(const CFxVariant& value);
bool IsOn(const CFxVariant& value);
/// A word as the host's property sheet shows it.
CFxString ShownWord(const char* word);
/// The text of a value of choice type that came as the chosen item alone; empty for any other value.
CFxString ElementText(const CFxVariant& value);
/// The text of the chosen item, whether it came alone or among all items; nothing for any other value.
std::optional<CFxString> ChosenText(const CFxVariant& value);
/// The word of a value, whether it is plain text or the chosen one of several items.
inline CFxString wordOf(const CFxVariant& value)
{
    return ChosenText(value).value_or(value.GetString());
}

/// Turns recorded objects into statements, from their property records alone. Knows no target: the words come from the
/// Emit operations. Lives as long as one conversion; its driver owns it.
class CFxConverterIWAPIObject
{
public:
    explicit CFxConverterIWAPIObject(CFxConverterIWAPIImpl& driver);
    CFxConverterIWAPIObject(const CFxConverterIWAPIObject&) = delete;
    CFxConverterIWAPIObject& operator=(const CFxConverterIWAPIObject&) = delete;

    // The entries of the driver. The first two append to `text`, a property that stands alone replaces it.
    std::int32_t ConvertObjectAdded(OdSmartPtr<CFxObjectAdded> action, QString& text);
    std::int32_t ConvertObjectModified(OdSmartPtr<CFxObjectModified> action, QString& text);
    std::int32_t ConvertPropertyChanged(CFxPropertyChangedPtr action, QString& text);

    /// `read` is what the class's reader takes its values from, `rest` what the general handler gets of it: the same
    /// records less those that the reader took.
    std::int32_t ConvertAddedObject(const OdRxClass* cls, OdDbHandle handle, PropertyList& read, PropertyList& rest,
                                    QString& text);
    bool IsDimensionClass(const OdRxClass* cls) const;
    std::int32_t ConvertModifiedObject(const OdRxClass* cls, OdDbHandle handle, PropertyList& list, QString& text);

    /// Statements for the properties that changed, or for what an added object's reader left. Empties `text` first.
    std::int32_t ConvertObjectChanges(const OdRxClass* cls, OdDbHandle handle, PropertyList& list, bool fromAdded,
                                      QString& text);
    /// The properties that entities of all classes have. Abandons the group that was begun, when the statements declare
    /// what must be seen behind it.
    std::int32_t ConvertGeneralProperties(PropertyList& list, bool fromAdded, bool isCurvedText,
                                          const CFxString& target, StatementGroup& group, QString& text);

    /// Statements for the tags of a list, in its order: takes them out of `list` and appends to `text`. `name`
    /// is the object's variable.
    void ConvertRows(const ChangeGroups& groups, PropertyList& list, const CFxString& name, QString& text);

    /// Heights and widths that are null are not known.
    void RememberTable(const CFxString& table, std::int32_t rows, std::int32_t columns, const CFxVariant& height,
                       const CFxVariant& width);

    // Changes that are more than a list of tags: ChangeHandler in objects/classTable.h.
    void ConvertModifiedLine(PropertyList& list, const CFxString& name, QString& text);
    void ConvertModifiedBlockInstance(PropertyList& list, const CFxString& name, QString& text);
    void ConvertModifiedTable(PropertyList& list, const CFxString& name, QString& text);
    void ConvertModifiedLayer(PropertyList& list, const CFxString& name, QString& text);
    void ConvertModifiedBlockDefinition(PropertyList& list, const CFxString& name, QString& text);
    void ConvertModifiedSheet(PropertyList& list, const CFxString& name, QString& text);
    void ConvertModifiedHatch(PropertyList& list, const CFxString& name, QString& text);

    /// Takes the first record with that tag out of the list and gives its value, or the null value. The record's tag
    /// may be in the host's display language. `consumed` and `index` may be null; they receive the record, and its
    /// number within a repeated property. The translation of "BlockAttributes" as the tag searches by group: then
    /// `index` receives the attribute's own tag.
    CFxVariant FindProperty(const PropertyTag& tag, PropertyList& list, CFxValueContext valueContext,
                            PropertyList* consumed = nullptr, CFxVariant* index = nullptr);
    /// Three reads in the order X, Y, Z; a coordinate that was not recorded is 0.0.
    OdGePoint3d FindPoint(const PropertyTag& xTag, const PropertyTag& yTag, const PropertyTag& zTag, PropertyList& list,
                          CFxValueContext valueContext, PropertyList* consumed = nullptr);

    // What the macro does not do, for the notes of the conversion: losses.cpp.

    /// The object that is being converted.
    void LoseObject(const char* reason) const;
    /// One of its properties.
    void LoseProperty(const QString& tag, const QString& reason) const;
    /// The arcs of an added polyline, which none but a custom action tells.
    void LoseArcs(const OdDbPolyline& polyline) const;

    // What statements reach an object by: variables.cpp.

    /// The object's variable without a statement. One that the recording has not made gets a new name each time, which
    /// is not remembered, and the counters move as by the fetch. Empty for a class without an interface.
    CFxString NameObject(const OdDbHandle& handle, const OdRxClass* cls);
    /// The same, and gives the statement that fetches an object which the recording has not made; else it is empty. A
    /// class without an interface leaves the name as it was.
    QString EmitObjectVariable(const OdDbHandle& handle, const OdRxClass* cls, CFxString& name);
    /// The variable of an object that was added before; empty for any other. Takes no number.
    QString AddedVariable(const OdDbObjectId& id) const;
    /// The same; an object that the recording did not add is fetched in a repaired macro. Empty is a fault.
    QString AddedOrFetched(const OdDbObjectId& id, QString& fetch);
    /// The variable of an object that the macro has one for, the later objects of the same command included; empty for
    /// any other. Takes no number.
    QString KnownVariable(const OdDbHandle& handle) const;
    /// The class by which such an object was recorded; null for any other.
    const OdRxClass* KnownClass(const OdDbHandle& handle) const;
    /// Whether custom actions of that kind make entities of the class; null: of any.
    static bool IsEntityOfAction(const OdRxClass* cls, std::int32_t kind);
    /// The leader that owns the note of that handle, else the null id. Raises OdError_NotThatKindOfClass when the
    /// handle is another object's.
    OdDbObjectId LeaderOfNote(const OdDbHandle& handle) const;
    /// Whether a custom action of this recording has inserted the hatch of that variable.
    bool IsHatchInserted(const QString& variable) const;
    /// The object of that handle in the active drawing, which may have none; null without a drawing.
    static OdDbObjectId IdOf(const OdDbHandle& handle);
    /// The objects of a collection that has their handles as texts; none of a value that is no collection.
    static OdArray<OdDbObjectId> ObjectsOf(const CFxVariant& collection, HandlesIn place);
    /// The objects that a hatch's boundary follows, erased ones included and each of them once, with the variables of
    /// those that were added before. Raises an OdError for an object that the drawing does not have.
    std::vector<BoundaryObject> BoundaryObjects(const OdArray<OdDbObjectId>& ids) const;
    /// Statements that make a block definition of entities which have a variable. The others are left out, but for the
    /// few kinds that are drawn for it.
    QString CreateBlockDefinition(const BlockContents& contents);

private:
    /// The name of the object's variable; whether it is a new one, which a statement has to fetch.
    bool NameVariable(const OdDbHandle& handle, const OdRxClass* cls, CFxString& name);
    /// Spells a name from its parts; looks up no variable and takes no number.
    CFxString ObjectVariableName(const OdRxClass* cls, const OdDbObjectId& id, std::uint32_t ordinal) const;

    /// What records are compared with when a tag is looked for.
    struct TagWords
    {
        QString translated; ///< null as long as the tag has not been looked for
        bool searchesGroup = false;
    };
    const TagWords& TranslateTag(const PropertyTag& tag);
    /// The group of block attributes, in the host's display language.
    const QString& BlockAttributes();

    /// An added note that its leader should bring, when the macro does not have the leader.
    void LoseNoteWithoutLeader(const OdRxClass* cls, const OdDbHandle& handle) const;
    /// The properties that nothing has taken out of the list.
    void LoseRest(const PropertyList& list, bool fromAdded) const;
    /// Whether custom actions, or the block of its command, make the object.
    bool IsMadeByAction(const OdRxClass* cls, const OdDbHandle& handle) const;
    /// An added object that is made by a custom action, when there is none, and else the general properties of one that
    /// no statement was written for.
    void LoseUnmade(PropertyList& rest, bool written);

    // Steps of ConvertObjectChanges.
    bool AddressChangedObject(const OdRxClass* cls, const OdDbHandle& handle, const OdDbObjectId& noteLeader,
                              const PropertyList& list, CFxString& name, QString& text);
    void ConvertClassChanges(const ClassRow& row, PropertyList& list, const CFxString& name, QString& text);
    QString ConvertErased(const OdRxClass* cls, const OdDbHandle& handle, const CFxString& name,
                          const CFxVariant& erased);

    // Steps of ConvertModifiedTable.
    bool ConvertTableCount(const TableLines& lines, PropertyList& list, const CFxString& name, QString& text);
    bool ConvertTableSizes(const TableLines& lines, PropertyList& list, const CFxString& name, QString& text);
    bool ConvertCellTexts(PropertyList& list, const CFxString& name, QString& text);
    void ConvertTableSize(const TableLines& lines, PropertyList& list, bool told, const CFxString& name, QString& text);

    /// What the variables of converted objects are named by.
    std::unordered_map<OdDbHandle, ActionEntry, OdDbHandleHash> addedVariableById;
    // The object that is being converted.
    const OdRxClass* changedClass = nullptr;
    OdDbHandle changedHandle;
    // What tables were made and changed to so far, by their variables.
    std::map<CFxString, std::int32_t> tableRowCounts;
    std::map<CFxString, std::int32_t> tableColumnCounts;
    std::map<CFxString, double> tableHeights;
    std::map<CFxString, double> tableWidths;
    CFxConverterIWAPIImpl& driver;
    Writer& writer; ///< the driver's

    QString blockAttributes;        ///< null until it is asked for
    std::vector<TagWords> tagWords; ///< by the tags' numbers
};
