#pragma once

#include "frame/CFxConverterIWAPIModule.h"
#include "host/db/OdDbObject.h"
#include "targets/Target.h"

#include <QHash>
#include <QString>

#include <map>
#include <memory>
#include <optional>

class AddedProperties;
class ChangeRows;
class CFxConverterIWAPIImpl;
class OdDbMText;

/// What the insertion of an attribute definition takes.
struct AttributeDefinition
{
    CFxString value;
    CFxString tag;
    CFxString prompt;
    OdGePoint3d position;
    CFxString styleName;
    CFxString justification; ///< as the property sheet shows it
    double height;
    double rotation; ///< radians
    bool constant;
    bool invisible;
    bool preset;
    bool verify;
    bool lockPosition;
};

/// What else than a note may stand at a leader's end.
enum class LeaderAnnotation
{
    Tolerance,
    Block
};

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
    explicit CFxConverterIWAPIObject(CFxConverterIWAPIImpl* driver) : driver(driver) {}
    CFxConverterIWAPIObject(const CFxConverterIWAPIObject&) = delete;
    CFxConverterIWAPIObject& operator=(const CFxConverterIWAPIObject&) = delete;

    // The entries of the driver. The first two append to `text`, a property that stands alone replaces it.
    virtual std::int32_t ConvertObjectAdded(OdSmartPtr<CFxObjectAdded> action, QString& text);
    virtual std::int32_t ConvertObjectModified(OdSmartPtr<CFxObjectModified> action, QString& text);
    virtual std::int32_t ConvertPropertyChanged(CFxPropertyChangedPtr action, QString& text);

    /// `read` is what the class's reader takes its values from, `rest` what the general handler gets of it: the same
    /// records less those that the reader took.
    virtual std::int32_t ConvertAddedObject(OdRxClass* cls, OdDbHandle handle, PropertyList& read, PropertyList& rest,
                                            QString& text);
    virtual bool IsDimensionClass(const OdRxClass* cls) const;
    virtual std::int32_t ConvertModifiedObject(OdRxClass* cls, OdDbHandle handle, PropertyList& list, QString& text);

    /// Statements for the properties that changed, or for what an added object's reader left. Empties `text` first.
    virtual std::int32_t ConvertObjectChanges(OdRxClass* cls, OdDbHandle handle, PropertyList& list, bool fromAdded,
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

    virtual QString EmitObjectAddedComment(const CFxString& className) = 0;
    virtual QString EmitObjectAddedEnd() = 0;
    virtual QString EmitObjectModifiedComment(const CFxString& className) = 0;
    virtual QString EmitObjectModifiedEnd() = 0;

    // What custom actions need of the objects' statements.
    /// Sets a property of the block reference's attribute of that tag.
    virtual QString EmitBlockAttributeValue(const CFxString& variable, const CFxString& property, const CFxString& tag,
                                            const CFxString& value) = 0;
    virtual QString EmitInsertRegion(const CFxString& variable, const QStringList& names, std::uint32_t number) = 0;
    /// Of the model, or else of the sheet of that name, which is activated.
    virtual QString EmitSetModelProperty(const CFxString& property, const CFxString& value, bool ofModel,
                                         const CFxString& sheetName) = 0;

    virtual QString EmitInsertLine(const OdGePoint3d& start, const OdGePoint3d& end, const CFxString& name) = 0;
    virtual QString EmitInsertCircle(const OdGePoint3d& center, double radius, const CFxString& name) = 0;
    virtual QString EmitInsertPoint(const OdGePoint3d& position, const CFxString& name) = 0;
    virtual QString EmitInsertRay(const OdGePoint3d& base, const OdGePoint3d& second, const CFxString& name) = 0;
    virtual QString EmitInsertArc(const OdGePoint3d& center, double radius, double startAngle, double endAngle,
                                  const CFxString& name) = 0;
    virtual QString EmitInsertInfiniteLine(const OdGePoint3d& base, const OdGePoint3d& second,
                                           const CFxString& name) = 0;
    /// The Z of both axis ends is dropped: the host's calls take none.
    virtual QString EmitInsertEllipseArc(const OdGePoint3d& axisStart, const OdGePoint3d& axisEnd,
                                         double otherAxisDistance, double startAngle, double endAngle,
                                         const CFxString& name) = 0;
    virtual QString EmitInsertEllipse(const OdGePoint3d& axisStart, const OdGePoint3d& axisEnd,
                                      double otherAxisDistance, const CFxString& name) = 0;

    // Text styles, attribute definitions, notes, tolerances, leaders and curved texts.
    virtual QString EmitCreateTextStyle(const CFxString& name, const CFxString& styleName) = 0;
    virtual QString EmitLoadShapeFile(const CFxString& path) = 0;
    virtual QString EmitInsertAttributeDefinition(const AttributeDefinition& definition, const CFxString& name) = 0;
    virtual QString EmitInsertSimpleNote(const OdGePoint3d& position, double height, double rotation,
                                         const CFxString& text, const CFxString& name) = 0;
    virtual QString EmitInsertNote(const OdGePoint3d& firstCorner, const OdGePoint3d& secondCorner,
                                   const CFxString& text, const CFxString& name) = 0;
    /// `shownText` is the justification as the property sheet shows it, `direction` the number of the chosen item.
    virtual QString EmitSetNoteJustify(const CFxString& target, const CFxString& property,
                                       const CFxString& shownText) = 0;
    virtual QString EmitSetNoteDirection(const CFxString& target, const CFxString& property, int direction) = 0;
    virtual QString EmitInsertTolerance(const OdGePoint3d& position, const CFxString& text, const CFxString& name) = 0;
    virtual QString EmitInsertLeader(const OdArray<OdGePoint3d>& vertices, double width, const CFxString& text,
                                     const CFxString& name) = 0;
    /// `text` is the tolerance's text or the block's name.
    virtual QString EmitSetAnnotation(const CFxString& leader, LeaderAnnotation kind, const CFxString& text) = 0;
    virtual QString EmitInsertCurvedText(const CFxString& text, const CFxString& arc, const CFxString& name) = 0;
    virtual QString EmitCallWithPoint(const CFxString& target, const CFxString& method, const OdGePoint3d& point) = 0;

    // Setters: `target` is the variable, `property` the property's name. No statement comes of a record that the
    // drawing does not have.
    virtual QString EmitSetProperty(const CFxString& target, const CFxString& property, const CFxString& value,
                                    bool quoted) = 0;
    virtual QString EmitSetDoubleProperty(const CFxString& target, const CFxString& property, double value) = 0;
    virtual QString EmitSetBoolProperty(const CFxString& target, const CFxString& property, bool value) = 0;
    virtual QString EmitSetColor(const CFxString& target, const CFxString& property, const OdCmColor& color) = 0;
    virtual QString EmitSetLayer(const CFxString& target, const CFxString& property, const OdDbObjectId& id) = 0;
    virtual QString EmitSetLineStyle(const CFxString& target, const CFxString& property, const OdDbObjectId& id) = 0;
    /// `weight` is in hundredths of a millimetre, -1 by layer, -2 by block.
    virtual QString EmitSetLineWeight(const CFxString& target, const CFxString& property, int weight) = 0;
    virtual QString EmitSetTransparency(const CFxString& target, const OdCmTransparency& transparency) = 0;

    // Objects that statements reach others by. A name that is passed in as CFxString& receives the new variable's.
    /// Gives the object's variable. Where the recording has not made it, the statement fetches the object into a new
    /// variable, which is not remembered; else it is empty. A class without an interface leaves the name as it was.
    virtual QString EmitObjectVariable(const OdDbHandle& handle, OdRxClass* cls, CFxString& name) = 0;
    virtual QString EmitGetNoteAnnotation(const CFxString& note, const CFxString& leader) = 0;
    virtual QString EmitDeclareBlockDefinition(const CFxString& name) = 0;
    virtual QString EmitGetGeneralDimension(const CFxString& name, CFxString& target) = 0;
    virtual QString EmitGetCurvedTextSettings(const CFxString& name, CFxString& settings) = 0;
    virtual QString EmitSetCurvedTextSettings(const CFxString& name, const CFxString& settings) = 0;
    virtual QString EmitRemoveNamedView(const CFxString& name, const CFxString& viewName, bool paperspace) = 0;
    virtual QString EmitRemoveLayer(const CFxString& name) = 0;

    // Changes of curves and geometry. Each change of a coordinate is a read, an assignment and a write.

    /// `getter` and `setter` are the host's operations. `axis` is "X", "Y" or "Z"; `index` is -1 for a property that
    /// is not repeated.
    virtual QString EmitChangePoint(const CFxString& target, const CFxString& axis, const CFxString& getter,
                                    const CFxString& setter, double value, std::int32_t index) = 0;
    /// `local` is "getX", "getY" or "getZ".
    virtual QString EmitChangePosition(const CFxString& target, const CFxString& local, double value) = 0;
    virtual QString EmitChangeFirstPoint(const CFxString& target, const CFxString& local, double value) = 0;
    virtual QString EmitChangeSecondPoint(const CFxString& target, const CFxString& local, double value) = 0;
    virtual QString EmitChangeVertex(const CFxString& target, std::int32_t index, const CFxString& axis,
                                     double value) = 0;
    virtual QString EmitChangeVertex2D(const CFxString& target, std::int32_t index, const CFxString& axis,
                                       double value) = 0;
    virtual QString EmitSetIndexedDouble(const CFxString& target, const CFxString& operation, std::int32_t index,
                                         double value) = 0;
    /// The enumerator is told by the text that the property sheet shows.
    virtual QString EmitSetEnumProperty(const CFxString& target, const char* enumeration, const CFxString& property,
                                        const CFxString& shownText) = 0;
    virtual QString EmitSetLeaderType(const CFxString& target, const CFxString& property, std::int32_t type) = 0;
    // Each fetches an object into a new variable and gives its name.
    virtual QString EmitGetDimensionStyleUserData(const CFxString& owner, CFxString& userData) = 0;
    virtual QString EmitGetArrowsOptions(const CFxString& owner, CFxString& options) = 0;
    virtual QString EmitGetLineOptions(const CFxString& owner, CFxString& options) = 0;
    virtual QString EmitGetTextOptions(const CFxString& owner, CFxString& options) = 0;
    virtual QString EmitGetFitOptions(const CFxString& owner, CFxString& options) = 0;
    /// `arrow` is the drawing's number of a kind of arrow.
    virtual QString EmitSetLeaderArrow(const CFxString& target, const CFxString& operation, std::int32_t arrow) = 0;
    /// `scale` is the drawing's number: 1 for the factor given, 2 for the scale of the sheet.
    virtual QString EmitSetDimensionScale(const CFxString& target, const CFxString& operation, std::int32_t scale,
                                          double factor) = 0;

    /// Text as it stands within the quotes of a statement.
    virtual CFxString EscapeText(const CFxString& text) const = 0;

protected:
    ~CFxConverterIWAPIObject() = default;

    /// Raises OdError when there is no driver.
    CFxConverterIWAPIImpl& Driver() const;
    /// The id of the object in the active drawing; null without one.
    static OdDbObjectId IdOf(const OdDbHandle& handle);
    CFxString ObjectVariableName(OdRxClass* cls, const OdDbObjectId& id, std::uint32_t ordinal) const;

private:
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

    /// The object of an added variable, for reading; null when it is not in the drawing.
    OdDbObjectPtr AddedObject(const CFxString& name) const;
    QString LoadShapes(const CFxString& fileName);
    QString AnnotateLeader(const CFxString& name);
    QString SetLeaderNote(const OdDbMText& note, const CFxString& leader);

    std::map<OdDbObjectId, QString> addedVariableById;
    std::map<QString, OdDbObjectId> addedIdByVariable;
    std::map<OdDbObjectId, QString> changedVariableById;
    std::map<QString, OdDbObjectId> changedIdByVariable;
    CFxConverterIWAPIImpl* driver;

    QString blockAttributes; ///< the group of block attributes, in the host's display language
    QHash<QString, TagWords> tagWords;
};

/// The object back end of a target, or null.
std::shared_ptr<CFxConverterIWAPIObject> CreateObjectConverter(inkmacro::Target target, CFxConverterIWAPIImpl* driver);
