#pragma once

#include "frame/CFxConverterIWAPIModule.h"
#include "host/db/OdDbObject.h"

#include <QHash>
#include <QString>

#include <map>
#include <memory>
#include <optional>

class AddedProperties;
class ChangeRows;
class CFxConverterIWAPIImpl;
class Writer;
class OdDbMText;
struct MeasuredCurve;

/// Whether that file of line type shapes comes with the host, which then needs no statement to load it.
bool IsHostShapeFile(const CFxString& fileName);

/// Whether objects of that class are converted at all.
bool IsSupportedClass(const CFxString& name);

/// Whether a value of choice type shows the word "Yes" or "On" in the host's display language.
bool IsYes(const CFxVariant& value);
bool IsOn(const CFxVariant& value);
/// A word as the host's property sheet shows it.
CFxString ShownWord(const char* word);
/// The text of a value of choice type that came as the chosen item alone; empty for any other value.
CFxString ElementText(const CFxVariant& value);
/// The text of the chosen item, whether it came alone or among all items; nothing for any other value.
std::optional<CFxString> ChosenText(const CFxVariant& value);

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
    std::int32_t ConvertAddedObject(OdRxClass* cls, OdDbHandle handle, PropertyList& read, PropertyList& rest,
                                    QString& text);
    bool IsDimensionClass(const OdRxClass* cls) const;
    std::int32_t ConvertModifiedObject(OdRxClass* cls, OdDbHandle handle, PropertyList& list, QString& text);

    /// Statements for the properties that changed, or for what an added object's reader left. Empties `text` first.
    std::int32_t ConvertObjectChanges(OdRxClass* cls, OdDbHandle handle, PropertyList& list, bool fromAdded,
                                      QString& text);
    /// The properties that entities of all classes have. Sets `noGroup`, and takes back the level of the group that was
    /// begun, when the statements declare what must be seen behind the group.
    std::int32_t ConvertGeneralProperties(PropertyList& list, bool fromAdded, bool isCurvedText,
                                          const CFxString& target, bool& noGroup, QString& text);

    // Changes of curves and geometry, one handler a class. Each takes the tags that it knows out of the list and
    // appends their statements to `text`, but of an added object it only takes the tags. `name` is the object's
    // variable.
    std::int32_t ConvertModifiedLine(PropertyList& list, bool fromAdded, const CFxString& name, QString& text);
    std::int32_t ConvertModifiedCircle(PropertyList& list, bool fromAdded, const CFxString& name, QString& text);
    std::int32_t ConvertModifiedPoint(PropertyList& list, bool fromAdded, const CFxString& name, QString& text);
    std::int32_t ConvertModifiedRay(PropertyList& list, bool fromAdded, const CFxString& name, QString& text);
    std::int32_t ConvertModifiedArc(PropertyList& list, bool fromAdded, const CFxString& name, QString& text);
    std::int32_t ConvertModifiedInfiniteLine(PropertyList& list, bool fromAdded, const CFxString& name, QString& text);
    std::int32_t ConvertModifiedEllipse(PropertyList& list, bool fromAdded, const CFxString& name, QString& text);
    std::int32_t ConvertModifiedPolyline3D(PropertyList& list, bool fromAdded, const CFxString& name, QString& text);
    std::int32_t ConvertModifiedLeader(PropertyList& list, bool fromAdded, const CFxString& name, QString& text);
    std::int32_t ConvertModifiedRichLine(PropertyList& list, bool fromAdded, const CFxString& name, QString& text);
    std::int32_t ConvertModifiedSolid(PropertyList& list, bool fromAdded, const CFxString& name, QString& text);
    std::int32_t ConvertModifiedPolyline(PropertyList& list, bool fromAdded, const CFxString& name, QString& text);
    std::int32_t ConvertModifiedSpline(PropertyList& list, bool fromAdded, const CFxString& name, QString& text);
    std::int32_t ConvertModifiedShape(PropertyList& list, bool fromAdded, const CFxString& name, QString& text);
    std::int32_t ConvertModifiedTolerance(PropertyList& list, bool fromAdded, const CFxString& name, QString& text);
    std::int32_t ConvertModifiedPolygonMesh(PropertyList& list, bool fromAdded, const CFxString& name, QString& text);
    std::int32_t ConvertModifiedPolyFaceMesh(PropertyList& list, bool fromAdded, const CFxString& name, QString& text);
    std::int32_t ConvertModifiedFace(PropertyList& list, bool fromAdded, const CFxString& name, QString& text);
    std::int32_t ConvertModifiedEmbeddedObject(PropertyList& list, bool fromAdded, const CFxString& name,
                                               QString& text);
    std::int32_t ConvertModifiedViewport(PropertyList& list, bool fromAdded, const CFxString& name, QString& text);
    std::int32_t ConvertModifiedTrace(PropertyList& list, bool fromAdded, const CFxString& name, QString& text);

    /// Takes the first record with that tag out of the list and gives its value, or the null value. The record's tag
    /// may be in the host's display language. `consumed` and `index` may be null; they receive the record, and its
    /// number within a repeated property. The translation of "BlockAttributes" as the tag searches by group: then
    /// `index` receives the attribute's own tag.
    CFxVariant FindProperty(const CFxString& tag, PropertyList& list, CFxValueContext valueContext,
                            PropertyList* consumed = nullptr, CFxVariant* index = nullptr);
    /// Three reads in the order X, Y, Z; a coordinate that was not recorded is 0.0.
    OdGePoint3d FindPoint(const CFxString& xTag, const CFxString& yTag, const CFxString& zTag, PropertyList& list,
                          CFxValueContext valueContext, PropertyList* consumed = nullptr);

    // What statements reach an object by: variables.cpp.

    /// Gives the object's variable. Where the recording has not made it, the statement fetches the object into a new
    /// variable, which is not remembered; else it is empty. A class without an interface leaves the name as it was.
    QString ObjectVariable(const OdDbHandle& handle, OdRxClass* cls, CFxString& name);

private:
    /// The id of the object in the active drawing; null without one.
    static OdDbObjectId IdOf(const OdDbHandle& handle);
    CFxString ObjectVariableName(OdRxClass* cls, const OdDbObjectId& id, std::uint32_t ordinal) const;

    /// What records are compared with when a tag is looked for.
    struct TagWords
    {
        QString translated;
        bool searchesGroup;
    };
    using Reader = QString (CFxConverterIWAPIObject::*)(AddedProperties& properties, const CFxString& name);

    using ChangeHandler = std::int32_t (CFxConverterIWAPIObject::*)(PropertyList& list, bool fromAdded,
                                                                    const CFxString& name, QString& text);
    struct ClassChanges
    {
        ChangeHandler handler; ///< null for a class of which only the general changes are converted
        bool notAdded = false; ///< the handler does not run on what the reader of an added object left
    };

    const TagWords& WordsOf(const CFxString& tag);
    static Reader ReaderOf(const OdRxClass* cls);
    static ClassChanges ClassChangesOf(const OdRxClass* cls);

    // Steps of ConvertObjectChanges.
    bool AddressChangedObject(OdRxClass* cls, const OdDbHandle& handle, const OdDbObjectId& noteLeader,
                              const PropertyList& list, CFxString& name, QString& text);
    QString ConvertErased(OdRxClass* cls, const CFxString& name, const CFxVariant& erased);
    std::int32_t ConvertRows(const ChangeRows& rows, PropertyList& list, bool fromAdded, const CFxString& name,
                             QString& text);

    // One reader a class: takes its tags from the list and gives the creation statement, which may be empty.
    QString ReadLine(AddedProperties& properties, const CFxString& name);
    QString ReadCircle(AddedProperties& properties, const CFxString& name);
    QString ReadPoint(AddedProperties& properties, const CFxString& name);
    QString ReadRay(AddedProperties& properties, const CFxString& name);
    QString ReadArc(AddedProperties& properties, const CFxString& name);
    QString ReadInfiniteLine(AddedProperties& properties, const CFxString& name);
    QString ReadEllipse(AddedProperties& properties, const CFxString& name);
    QString ReadTextStyle(AddedProperties& properties, const CFxString& name);
    QString ReadAttributeDefinition(AddedProperties& properties, const CFxString& name);
    QString ReadSimpleNote(AddedProperties& properties, const CFxString& name);
    QString ReadNote(AddedProperties& properties, const CFxString& name);
    QString ReadTolerance(AddedProperties& properties, const CFxString& name);
    QString ReadLeader(AddedProperties& properties, const CFxString& name);
    QString ReadCurvedText(AddedProperties& properties, const CFxString& name);
    QString ReadAlignedDimension(AddedProperties& properties, const CFxString& name);
    QString Read2LineAngularDimension(AddedProperties& properties, const CFxString& name);
    QString Read3PointAngularDimension(AddedProperties& properties, const CFxString& name);
    QString ReadArcLengthDimension(AddedProperties& properties, const CFxString& name);
    QString ReadOrdinateDimension(AddedProperties& properties, const CFxString& name);
    QString ReadDiameterDimension(AddedProperties& properties, const CFxString& name);
    QString ReadRadialDimension(AddedProperties& properties, const CFxString& name);
    QString ReadJoggedDimension(AddedProperties& properties, const CFxString& name);
    QString ReadRotatedDimension(AddedProperties& properties, const CFxString& name);

    /// The object of an added variable, for reading; null when it is not in the drawing.
    OdDbObjectPtr AddedObject(const CFxString& name) const;
    /// The variable of an object that the recording has added so far; empty for any other.
    QString AddedVariable(const OdDbObjectId& id) const;
    /// The curve that the added dimension measures; nothing without a dimension in the drawing, or without a curve.
    template<class Dimension>
    std::optional<MeasuredCurve> CurveOf(const CFxString& name) const;
    QString WithTextRotation(QString insertion, AddedProperties& properties, const CFxString& name);
    QString LoadShapes(const CFxString& fileName);
    QString AnnotateLeader(const CFxString& name);
    QString SetLeaderNote(const OdDbMText& note, const CFxString& leader);

    std::map<OdDbObjectId, QString> addedVariableById;
    std::map<QString, OdDbObjectId> addedIdByVariable;
    std::map<OdDbObjectId, QString> changedVariableById;
    std::map<QString, OdDbObjectId> changedIdByVariable;
    CFxConverterIWAPIImpl& driver;
    Writer& writer; ///< the driver's

    QString blockAttributes; ///< the group of block attributes, in the host's display language
    QHash<QString, TagWords> tagWords;
};
