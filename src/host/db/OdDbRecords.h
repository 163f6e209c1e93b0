#pragma once

#include "host/db/OdDbObject.h"

/// A named entry of one of the drawing's tables: a layer, a style, a block definition.
class INKHOST_EXPORT OdDbSymbolTableRecord : public OdDbObject
{
public:
    using OdDbObject::OdDbObject;
    static OdRxClass* desc();
    static std::span<const OdDbField> fields();

    const OdString& getName() const { return name_; }

private:
    OdString name_;
};

class INKHOST_EXPORT OdDbLayerTableRecord : public OdDbSymbolTableRecord
{
public:
    using OdDbSymbolTableRecord::OdDbSymbolTableRecord;
    static OdRxClass* desc();
};

class INKHOST_EXPORT OdDbLinetypeTableRecord : public OdDbSymbolTableRecord
{
public:
    using OdDbSymbolTableRecord::OdDbSymbolTableRecord;
    static OdRxClass* desc();
};

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

class OdDbObjectIterator;
using OdDbObjectIteratorPtr = OdSmartPtr<OdDbObjectIterator>;

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
    const OdString& comments() const { return comments_; }
    BlockScaling blockScaling() const { return static_cast<BlockScaling>(blockScaling_); }
    bool explodable() const { return explodable_; }
    /// 0 unitless, 1 inches and so on, see CFxUtils.
    int blockInsertUnits() const { return blockInsertUnits_; }
    /// Walks the entities from the first to the last, without the erased ones. Must not outlive the definition.
    OdDbObjectIteratorPtr newIterator() const;

private:
    bool layout_ = false;
    bool externalReference_ = false;
    OdString comments_;
    int blockScaling_ = kAny;
    bool explodable_ = true;
    int blockInsertUnits_ = 0;
    OdArray<OdDbObjectId> entities_;
};

/// Stands on an entity of a block definition, or behind the last.
class INKHOST_EXPORT OdDbObjectIterator : public OdRxObject
{
public:
    explicit OdDbObjectIterator(const OdArray<OdDbObjectId>& ids) : ids_(ids) { skipErased(); }
    static OdRxClass* desc();
    OdRxClass* isA() const override { return desc(); }

    bool done() const { return at_ == ids_.length(); }
    void step()
    {
        ++at_;
        skipErased();
    }
    const OdDbObjectId& objectId() const { return ids_[at_]; }

private:
    void skipErased();

    const OdArray<OdDbObjectId>& ids_;
    unsigned at_ = 0;
};

/// A table style.
class INKHOST_EXPORT OdDbTableStyle : public OdDbObject
{
public:
    using OdDbObject::OdDbObject;
    static OdRxClass* desc();
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
