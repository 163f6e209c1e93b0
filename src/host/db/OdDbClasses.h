#pragma once

#include "host/db/OdDbObject.h"

/// What is drawn, as against the records and styles behind it.
class INKHOST_EXPORT OdDbEntity
{
public:
    static OdRxClass* desc();
};

/// Classes that have no object type code; they are told by `desc` alone.
struct INKHOST_EXPORT OdDbRasterImage
{
    static OdRxClass* desc();
};
struct INKHOST_EXPORT OdDbArcDimension
{
    static OdRxClass* desc();
};
struct INKHOST_EXPORT OdDbRadialDimensionLarge
{
    static OdRxClass* desc();
};
struct INKHOST_EXPORT OdDbTable
{
    static OdRxClass* desc();
};
struct INKHOST_EXPORT OdDbTableStyle
{
    static OdRxClass* desc();
};
struct INKHOST_EXPORT OdDbArcAlignedText
{
    static OdRxClass* desc();
};

class INKHOST_EXPORT OdDbMText : public OdDbObject
{
public:
    using OdDbObject::OdDbObject;
    static OdRxClass* desc();
};

class INKHOST_EXPORT OdDbLeader : public OdDbObject
{
public:
    using OdDbObject::OdDbObject;
    static OdRxClass* desc();
};

class INKHOST_EXPORT OdDbTextStyleTableRecord : public OdDbObject
{
public:
    using OdDbObject::OdDbObject;
    static OdRxClass* desc();
    static std::span<const OdDbField> fields();

    /// Whether the style only loads a file of shapes and holds no font.
    bool isShapeFile() const { return shapeFile_; }
    const OdString& fileName() const { return fileName_; }

private:
    bool shapeFile_ = false;
    OdString fileName_;
};

class INKHOST_EXPORT OdDbViewTableRecord : public OdDbObject
{
public:
    using OdDbObject::OdDbObject;
    static OdRxClass* desc();
    static std::span<const OdDbField> fields();

    bool isPaperspaceView() const { return paperspaceView_; }

private:
    bool paperspaceView_ = false;
};

class INKHOST_EXPORT OdDbPlotSettings : public OdDbObject
{
public:
    using OdDbObject::OdDbObject;
    static OdRxClass* desc();
    static std::span<const OdDbField> fields();

    /// Whether the settings are those of model space.
    bool modelType() const { return modelType_; }

protected:
    bool modelType_ = false;
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
