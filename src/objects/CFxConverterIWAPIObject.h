#pragma once

#include "frame/CFxConverterIWAPIModule.h"
#include "targets/Target.h"

#include <QHash>
#include <QString>

#include <map>
#include <memory>

class AddedProperties;
class CFxConverterIWAPIImpl;

/// Whether objects of that class are converted at all.
bool IsSupportedClass(const CFxString& name);

/// Whether a value of choice type shows the word "Yes" or "On" in the host's display language.
bool IsYes(const CFxVariant& value);
bool IsOn(const CFxVariant& value);

/// Turns recorded objects into statements, from their property records alone. Knows no target: the words come from the
/// Emit operations. Lives as long as one conversion; its driver owns it.
class CFxConverterIWAPIObject
{
public:
    explicit CFxConverterIWAPIObject(CFxConverterIWAPIImpl* driver) : driver(driver) {}
    CFxConverterIWAPIObject(const CFxConverterIWAPIObject&) = delete;
    CFxConverterIWAPIObject& operator=(const CFxConverterIWAPIObject&) = delete;

    // The entries of the driver. Each appends to `text` and gives kFxSuccess or kFxFailure.
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

    /// Text as it stands within the quotes of a statement.
    virtual CFxString EscapeText(const CFxString& text) const = 0;

protected:
    ~CFxConverterIWAPIObject() = default;

    /// Raises OdError when there is no driver.
    CFxConverterIWAPIImpl& Driver() const;

private:
    /// What records are compared with when a tag is looked for.
    struct TagWords
    {
        QString translated;
        bool searchesGroup;
    };
    using Reader = QString (CFxConverterIWAPIObject::*)(AddedProperties& properties, const CFxString& name);

    const TagWords& WordsOf(const CFxString& tag);
    CFxString AddedVariableName(OdRxClass* cls, const OdDbObjectId& id, std::uint32_t ordinal) const;
    static Reader ReaderOf(const OdRxClass* cls);

    // One reader a class: takes its tags from the list and gives the creation statement, which may be empty.
    QString ReadLine(AddedProperties& properties, const CFxString& name);
    QString ReadCircle(AddedProperties& properties, const CFxString& name);
    QString ReadPoint(AddedProperties& properties, const CFxString& name);
    QString ReadRay(AddedProperties& properties, const CFxString& name);
    QString ReadArc(AddedProperties& properties, const CFxString& name);
    QString ReadInfiniteLine(AddedProperties& properties, const CFxString& name);
    QString ReadEllipse(AddedProperties& properties, const CFxString& name);

    std::map<OdDbObjectId, QString> addedVariableById;
    std::map<QString, OdDbObjectId> addedIdByVariable;
    CFxConverterIWAPIImpl* driver;

    QString blockAttributes; ///< the group of block attributes, in the host's display language
    QHash<QString, TagWords> tagWords;
};

/// The object back end of a target, or null.
std::shared_ptr<CFxConverterIWAPIObject> CreateObjectConverter(inkmacro::Target target, CFxConverterIWAPIImpl* driver);
