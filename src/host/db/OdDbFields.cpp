// The data of the drawing classes, a table a class.

#include "host/db/OdDbClasses.h"

std::span<const OdDbField> OdDbObject::fields()
{
    static const OdDbField table[] = {
        {"isErased", "the object was erased", &OdDbObject::erased_},
        {"reactors", "handles of the objects that are notified of changes", &OdDbObject::reactors_},
    };
    return table;
}

std::span<const OdDbField> OdDbTextStyleTableRecord::fields()
{
    static const OdDbField table[] = {
        {"isShapeFile", "the style loads a file of shapes", &OdDbTextStyleTableRecord::shapeFile_},
        {"fileName", "the font's or the shapes' file", &OdDbTextStyleTableRecord::fileName_},
    };
    return table;
}

std::span<const OdDbField> OdDbViewTableRecord::fields()
{
    static const OdDbField table[] = {
        {"isPaperspaceView", "the view was saved on a sheet", &OdDbViewTableRecord::paperspaceView_},
    };
    return table;
}

std::span<const OdDbField> OdDbPlotSettings::fields()
{
    static const OdDbField table[] = {
        {"modelType", "the settings of model space", &OdDbPlotSettings::modelType_},
    };
    return table;
}

std::span<const OdDbField> OdDbLayout::fields()
{
    static const OdDbField table[] = {
        {"layoutName", "the sheet's name", &OdDbLayout::layoutName_},
    };
    return table;
}
