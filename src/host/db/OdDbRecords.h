#pragma once

#include "host/db/OdDbEntity.h"
#include "host/db/OdDbObjectIterator.h"

/// A named entry of one of the drawing's tables: a layer, a style, a block definition.
class INKHOST_EXPORT OdDbSymbolTableRecord : public OdDbObject
{
public:
    using OdDbObject::OdDbObject;
    static OdRxClass* desc();
    static std::span<const OdDbField> fields();

    const OdString& getName() const { return name_; }
    /// For a record that has not come into its table yet.
    void setName(const OdString& name) { name_ = name; }

private:
    OdString name_;
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

class INKHOST_EXPORT OdDbLayerTableRecord : public OdDbSymbolTableRecord
{
public:
    using OdDbSymbolTableRecord::OdDbSymbolTableRecord;
    static OdRxClass* desc();
    static std::span<const OdDbField> fields();

    OdCmColor color() const { return color_.value_or(OdCmColor()); }
    void setColorIndex(std::uint16_t index) { color_ = OdCmColor::byIndex(index); }

private:
    std::optional<OdCmColor> color_;
};

/// A line style.
class INKHOST_EXPORT OdDbLinetypeTableRecord : public OdDbSymbolTableRecord
{
public:
    using OdDbSymbolTableRecord::OdDbSymbolTableRecord;
    static OdRxClass* desc();
    static std::span<const OdDbField> fields();

    /// The description.
    const OdString& comments() const { return comments_; }
    void setComments(const OdString& comments) { comments_ = comments; }

private:
    OdString comments_;
};

using OdDbLinetypeTableRecordPtr = OdSmartPtr<OdDbLinetypeTableRecord>;

class INKHOST_EXPORT OdDbTextStyleTableRecord : public OdDbSymbolTableRecord
{
public:
    using OdDbSymbolTableRecord::OdDbSymbolTableRecord;
    static OdRxClass* desc();
    static std::span<const OdDbField> fields();

    /// Whether the style only loads a file of shapes and holds no font.
    bool isShapeFile() const { return shapeFile_; }
    const OdString& fileName() const { return fileName_; }

private:
    bool shapeFile_ = false;
    OdString fileName_;
};

class INKHOST_EXPORT OdDbViewTableRecord : public OdDbSymbolTableRecord
{
public:
    using OdDbSymbolTableRecord::OdDbSymbolTableRecord;
    static OdRxClass* desc();
    static std::span<const OdDbField> fields();

    bool isPaperspaceView() const { return paperspaceView_; }

private:
    bool paperspaceView_ = false;
};

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
    static std::span<const OdDbField> fields();

    /// Whether the block holds what is drawn on a sheet or in model space.
    bool isLayout() const { return layout_; }
    bool isFromExternalReference() const { return externalReference_; }
    /// File of the drawing that an external reference shows.
    const OdString& pathName() const { return pathName_; }
    /// The point of the block that lands on a reference's position.
    const OdGePoint3d& origin() const { return origin_; }
    const OdString& comments() const { return comments_; }
    BlockScaling blockScaling() const { return static_cast<BlockScaling>(blockScaling_); }
    bool explodable() const { return explodable_; }
    /// 0 unitless, 1 inches and so on, see CFxUtils.
    int blockInsertUnits() const { return blockInsertUnits_; }
    /// Walks the entities from the first to the last, without the erased ones. Must not outlive the definition.
    OdDbObjectIteratorPtr newIterator() const { return odrxNew<OdDbObjectIterator>(entities_); }

    /// Puts a new entity into the drawing, behind the others of this block. A block that is not in the drawing yet
    /// comes in with it. Raises OdError.
    OdDbObjectId appendOdDbEntity(OdDbDatabase& database, const OdSmartPtr<OdDbEntity>& entity);
    /// A block that holds what is drawn on a sheet or in model space, as yet outside the drawing.
    static OdSmartPtr<OdDbBlockTableRecord> createLayoutBlock(const OdString& name);

private:
    bool layout_ = false;
    bool externalReference_ = false;
    OdString pathName_;
    OdGePoint3d origin_;
    OdString comments_;
    int blockScaling_ = kAny;
    bool explodable_ = true;
    int blockInsertUnits_ = 0;
    OdArray<OdDbObjectId> entities_;
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

/// A rich line style.
class INKHOST_EXPORT OdDbMlineStyle : public OdDbObject
{
public:
    using OdDbObject::OdDbObject;
    static OdRxClass* desc();
    static std::span<const OdDbField> fields();

    const OdString& name() const { return name_; }
    int numElements() const { return static_cast<int>(elements_.length()); }
    /// Raises OdError_InvalidIndex.
    const OdDbMlineElement& getElementAt(int index) const { return elements_[static_cast<std::size_t>(index)]; }

private:
    OdString name_;
    OdArray<OdDbMlineElement> elements_;
};

class INKHOST_EXPORT OdDbGroup : public OdDbObject
{
public:
    using OdDbObject::OdDbObject;
    static OdRxClass* desc();
    static std::span<const OdDbField> fields();

    /// Whether the group has no name of its own.
    bool isAnonymous() const { return anonymous_; }

private:
    bool anonymous_ = false;
};

/// What a dimension hangs on. Stands in the dimension's extension dictionary as "ACAD_DIMASSOC".
class INKHOST_EXPORT OdDbDimAssoc : public OdDbObject
{
public:
    static constexpr std::size_t kMaxPointRefs = 4;

    using OdDbObject::OdDbObject;
    static OdRxClass* desc();
    static std::span<const OdDbField> fields();

    /// The objects that lead to the geometry of one of the dimension's points, the geometry itself the last; empty
    /// when the point hangs on nothing. Raises OdError_InvalidIndex.
    const OdArray<OdDbObjectId>& pointRef(std::size_t index) const;

private:
    std::array<OdArray<OdDbObjectId>, kMaxPointRefs> pointRefs_;
};

class INKHOST_EXPORT OdDbDictionary : public OdDbObject
{
public:
    using OdDbObject::OdDbObject;
    static OdRxClass* desc();
    static std::span<const OdDbField> fields();

    /// The null id for a name that is not in it. Upper and lower case are the same.
    OdDbObjectId getAt(const OdString& name) const;

private:
    OdDbNamedIds items_;
};

class INKHOST_EXPORT OdDbPlotSettings : public OdDbObject
{
public:
    using OdDbObject::OdDbObject;
    static OdRxClass* desc();
    static std::span<const OdDbField> fields();

    /// Whether the settings are those of model space.
    bool modelType() const { return modelType_; }
    /// File of the print styles, empty for none.
    const OdString& getCurrentStyleSheet() const { return currentStyleSheet_; }

protected:
    bool modelType_ = false;

private:
    OdString currentStyleSheet_;
};

class INKHOST_EXPORT OdDbLayout : public OdDbPlotSettings
{
public:
    using OdDbPlotSettings::OdDbPlotSettings;
    OdDbLayout(const OdString& name, bool model) : OdDbPlotSettings(desc()), layoutName_(name) { modelType_ = model; }
    static OdRxClass* desc();
    static std::span<const OdDbField> fields();

    const OdString& getLayoutName() const { return layoutName_; }

private:
    OdString layoutName_;
};
