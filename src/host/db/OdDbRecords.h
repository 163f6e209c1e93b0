#pragma once

#include "host/db/OdDbEntity.h"
#include "host/db/OdDbObjectIterator.h"

#define INKHOST_SYMBOL_TABLE_RECORD_DATA(READ, HOLD, FIELD) HOLD(OdString, name, "the name in its table")

/// A named entry of one of the drawing's tables: a layer, a style, a block definition.
class INKHOST_EXPORT OdDbSymbolTableRecord : public OdDbObject
{
public:
    using OdDbObject::OdDbObject;
    static OdRxClass* desc();
    INKHOST_DATA(OdDbSymbolTableRecord, INKHOST_SYMBOL_TABLE_RECORD_DATA)

    const OdString& getName() const { return name_; }
    /// For a record that has not come into its table yet.
    void setName(const OdString& name) { name_ = name; }
};

/// One of the drawing's tables: the records of a class by their names. Not an object of the drawing's file, where the
/// records stand by themselves.
class INKHOST_EXPORT OdDbSymbolTable : public OdDbObject
{
public:
    /// Of all records of that class. Must not outlive the drawing.
    OdDbSymbolTable(OdDbDatabase& database, const OdRxClass* recordClass);
    static OdRxClass* desc();

    /// The null id for a name that is not in it. Upper and lower case are the same.
    OdDbObjectId getAt(const OdString& name) const { return oddbIdOf(records_, name); }
    /// Puts a record, which has its name already, into table and drawing. Raises OdError.
    OdDbObjectId add(const OdSmartPtr<OdDbSymbolTableRecord>& record);

private:
    OdDbDatabase& database_;
    OdDbNamedIds records_;
};

using OdDbSymbolTablePtr = OdSmartPtr<OdDbSymbolTable>;

/// The name of an application that puts data to objects.
class INKHOST_EXPORT OdDbRegAppTableRecord : public OdDbSymbolTableRecord
{
public:
    using OdDbSymbolTableRecord::OdDbSymbolTableRecord;
    static OdRxClass* desc();
};

#define INKHOST_LAYER_TABLE_RECORD_DATA(READ, HOLD, FIELD)                                                             \
    HOLD(std::optional<OdCmColor>, color, "color of what has that of its layer")

class INKHOST_EXPORT OdDbLayerTableRecord : public OdDbSymbolTableRecord
{
public:
    using OdDbSymbolTableRecord::OdDbSymbolTableRecord;
    static OdRxClass* desc();
    INKHOST_DATA(OdDbLayerTableRecord, INKHOST_LAYER_TABLE_RECORD_DATA)

    OdCmColor color() const { return color_.value_or(OdCmColor()); }
    void setColorIndex(std::uint16_t index) { color_ = OdCmColor::byIndex(index); }
};

#define INKHOST_LINETYPE_TABLE_RECORD_DATA(READ, HOLD, FIELD) READ(OdString, comments, "the description")

/// A line style.
class INKHOST_EXPORT OdDbLinetypeTableRecord : public OdDbSymbolTableRecord
{
public:
    using OdDbSymbolTableRecord::OdDbSymbolTableRecord;
    static OdRxClass* desc();
    INKHOST_DATA(OdDbLinetypeTableRecord, INKHOST_LINETYPE_TABLE_RECORD_DATA)

    void setComments(const OdString& comments) { comments_ = comments; }
};

using OdDbLinetypeTableRecordPtr = OdSmartPtr<OdDbLinetypeTableRecord>;

#define INKHOST_TEXT_STYLE_TABLE_RECORD_DATA(READ, HOLD, FIELD)                                                        \
    READ(bool, isShapeFile, "the style loads a file of shapes")                                                        \
    READ(OdString, fileName, "the font's or the shapes' file")

class INKHOST_EXPORT OdDbTextStyleTableRecord : public OdDbSymbolTableRecord
{
public:
    using OdDbSymbolTableRecord::OdDbSymbolTableRecord;
    static OdRxClass* desc();
    INKHOST_DATA(OdDbTextStyleTableRecord, INKHOST_TEXT_STYLE_TABLE_RECORD_DATA)
};

#define INKHOST_VIEW_TABLE_RECORD_DATA(READ, HOLD, FIELD) READ(bool, isPaperspaceView, "the view was saved on a sheet")

class INKHOST_EXPORT OdDbViewTableRecord : public OdDbSymbolTableRecord
{
public:
    using OdDbSymbolTableRecord::OdDbSymbolTableRecord;
    static OdRxClass* desc();
    INKHOST_DATA(OdDbViewTableRecord, INKHOST_VIEW_TABLE_RECORD_DATA)
};

#define INKHOST_BLOCK_TABLE_RECORD_DATA(READ, HOLD, FIELD)                                                             \
    READ(bool, isLayout, "the block holds what is drawn on a sheet or in model space")                                 \
    READ(bool, isFromExternalReference, "the block shows another drawing")                                             \
    READ(OdString, pathName, "file of the drawing that is shown")                                                      \
    READ(OdGePoint3d, origin, "the point that lands on a reference's position")                                        \
    READ(OdString, comments, "the description")                                                                        \
    HOLD(int, blockScaling, "1 for uniform scales only, else 0", kAny)                                                 \
    READ(bool, explodable, "references can be exploded", true)                                                         \
    READ(int, blockInsertUnits, "0 unitless, 1 inches, 2 feet, 3 miles, 4 millimeters and so on to 20 parsecs")        \
    HOLD(OdArray<OdDbObjectId>, entities, "handles of what the block is made of")

class INKHOST_EXPORT OdDbBlockTableRecord : public OdDbSymbolTableRecord
{
public:
    enum BlockScaling : int
    {
        kAny = 0,
        kUniform = 1,
    };

    using OdDbSymbolTableRecord::OdDbSymbolTableRecord;
    static OdRxClass* desc();
    INKHOST_DATA(OdDbBlockTableRecord, INKHOST_BLOCK_TABLE_RECORD_DATA)

    BlockScaling blockScaling() const { return static_cast<BlockScaling>(blockScaling_); }
    /// Walks the entities from the first to the last, without the erased ones. Must not outlive the definition.
    OdDbObjectIteratorPtr newIterator() const { return odrxNew<OdDbObjectIterator>(entities_); }

    /// Puts a new entity into the drawing, behind the others of this block. A block that is not in the drawing yet
    /// comes in with it. Raises OdError.
    OdDbObjectId appendOdDbEntity(OdDbDatabase& database, const OdSmartPtr<OdDbEntity>& entity);
    /// A block that holds what is drawn on a sheet or in model space, as yet outside the drawing.
    static OdSmartPtr<OdDbBlockTableRecord> createLayoutBlock(const OdString& name);
};

using OdDbBlockTableRecordPtr = OdSmartPtr<OdDbBlockTableRecord>;

/// A table style.
class INKHOST_EXPORT OdDbTableStyle : public OdDbObject
{
public:
    using OdDbObject::OdDbObject;
    static OdRxClass* desc();
};

/// One of the parallel lines of a rich line style.
struct OdDbMlineElement
{
    double offset = 0.0; ///< from the vertices
    OdCmColor color;
    OdDbObjectId linetypeId;
    bool operator==(const OdDbMlineElement&) const = default;
};

#define INKHOST_MLINE_STYLE_DATA(READ, HOLD, FIELD)                                                                    \
    READ(OdString, name, "the name")                                                                                   \
    HOLD(OdArray<OdDbMlineElement>, elements, "the parallel lines")

/// A rich line style.
class INKHOST_EXPORT OdDbMlineStyle : public OdDbObject
{
public:
    using OdDbObject::OdDbObject;
    static OdRxClass* desc();
    INKHOST_DATA(OdDbMlineStyle, INKHOST_MLINE_STYLE_DATA)

    int numElements() const { return static_cast<int>(elements_.length()); }
    /// Raises OdError_InvalidIndex.
    const OdDbMlineElement& getElementAt(int index) const { return elements_[static_cast<std::size_t>(index)]; }
};

#define INKHOST_GROUP_DATA(READ, HOLD, FIELD) READ(bool, isAnonymous, "the group has no name of its own")

class INKHOST_EXPORT OdDbGroup : public OdDbObject
{
public:
    using OdDbObject::OdDbObject;
    static OdRxClass* desc();
    INKHOST_DATA(OdDbGroup, INKHOST_GROUP_DATA)
};

#define INKHOST_DIM_ASSOC_DATA(READ, HOLD, FIELD)                                                                      \
    HOLD(OdDbFour<OdArray<OdDbObjectId>>, pointRefs,                                                                   \
         "four places, one for each point of the dimension: null, or the handles of the objects that lead to what "    \
         "the point hangs on, that one the last")

/// What a dimension hangs on. Stands in the dimension's extension dictionary as "ACAD_DIMASSOC".
class INKHOST_EXPORT OdDbDimAssoc : public OdDbObject
{
public:
    static constexpr std::size_t kMaxPointRefs = 4;

    using OdDbObject::OdDbObject;
    static OdRxClass* desc();
    INKHOST_DATA(OdDbDimAssoc, INKHOST_DIM_ASSOC_DATA)

    /// The objects that lead to the geometry of one of the dimension's points, the geometry itself the last; empty
    /// when the point hangs on nothing. Raises OdError_InvalidIndex.
    const OdArray<OdDbObjectId>& pointRef(std::size_t index) const;
};

#define INKHOST_DICTIONARY_DATA(READ, HOLD, FIELD) HOLD(OdDbNamedIds, items, "handles of the objects by name")

class INKHOST_EXPORT OdDbDictionary : public OdDbObject
{
public:
    using OdDbObject::OdDbObject;
    static OdRxClass* desc();
    INKHOST_DATA(OdDbDictionary, INKHOST_DICTIONARY_DATA)

    /// The null id for a name that is not in it. Upper and lower case are the same.
    OdDbObjectId getAt(const OdString& name) const;
};

#define INKHOST_PLOT_SETTINGS_DATA(READ, HOLD, FIELD)                                                                  \
    READ(bool, modelType, "the settings of model space")                                                               \
    HOLD(OdString, currentStyleSheet, "file of the print styles")

class INKHOST_EXPORT OdDbPlotSettings : public OdDbObject
{
public:
    using OdDbObject::OdDbObject;
    static OdRxClass* desc();
    INKHOST_DATA(OdDbPlotSettings, INKHOST_PLOT_SETTINGS_DATA)

    /// Empty for none.
    const OdString& getCurrentStyleSheet() const { return currentStyleSheet_; }

protected:
    OdDbPlotSettings(OdRxClass* cls, bool modelType) : OdDbObject(cls), modelType_(modelType) {}
};

#define INKHOST_LAYOUT_DATA(READ, HOLD, FIELD) HOLD(OdString, layoutName, "the sheet's name")

class INKHOST_EXPORT OdDbLayout : public OdDbPlotSettings
{
public:
    using OdDbPlotSettings::OdDbPlotSettings;
    OdDbLayout(const OdString& name, bool model) : OdDbPlotSettings(desc(), model), layoutName_(name) {}
    static OdRxClass* desc();
    INKHOST_DATA(OdDbLayout, INKHOST_LAYOUT_DATA)

    const OdString& getLayoutName() const { return layoutName_; }
};
