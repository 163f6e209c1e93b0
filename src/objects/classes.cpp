// The classes whose objects are converted.

#include "host/db/OdDbClassMap.h"
#include "objects/CFxConverterIWAPIObject.h"

#include <algorithm>
#include <array>
#include <set>

bool IsSupportedClass(const CFxString& name)
{
    static const std::set<CFxString> supportedClassNames{
        "AcDbLine",
        "AcDbCircle",
        "AcDbPoint",
        "AcDbRay",
        "AcDbArc",
        "AcDbEllipse",
        "AcDbXline",
        "AcDbTextStyleTableRecord",
        "AcDbAttributeDefinition",
        "AcDbText",
        "AcDbMText",
        "AcDbBlockReference",
        "AcDbRasterImage",
        "AcDbAlignedDimension",
        "AcDb2LineAngularDimension",
        "AcDb3PointAngularDimension",
        "AcDbArcDimension",
        "AcDbDiametricDimension",
        "AcDbOrdinateDimension",
        "AcDbRadialDimension",
        "AcDbRadialDimensionLarge",
        "AcDbRotatedDimension",
        "AcDbMline",
        "AcDbFace",
        "AcDbLeader",
        "AcDb3dPolyline",
        "AcDbPolygonMesh",
        "AcDbSolid",
        "AcDbFcf",
        "AcDbTable",
        "AcDbSpline",
        "AcDbShape",
        "AcDbRegion",
        "AcDbHatch",
        "AcDbPolyline",
        "AcDbOle2Frame",
        "AcDbPolyFaceMesh",
        "AcDbBlockTableRecord",
        "AcDbTableStyle",
        "AcDbDimStyleTableRecord",
        "AcDbMlineStyle",
        "AcDbLinetypeTableRecord",
        "AcDbViewTableRecord",
        "AcDbViewTable",
        "AcDbViewport",
        "AcDbGroup",
        "AcDbTrace",
        "AcDbLayerTableRecord",
        "AcDbLayerTable",
        "AcDbLayout",
        "AcDbViewportTableRecord",
        "AcDbArcAlignedText",
    };
    return supportedClassNames.contains(name);
}

bool CFxConverterIWAPIObject::IsDimensionClass(const OdRxClass* cls) const
{
    static const std::array dimensions{
        oddbDwgClassMapDesc(20), oddbDwgClassMapDesc(21),  oddbDwgClassMapDesc(22),
        oddbDwgClassMapDesc(23), oddbDwgClassMapDesc(24),  oddbDwgClassMapDesc(25),
        oddbDwgClassMapDesc(26), OdDbArcDimension::desc(), OdDbRadialDimensionLarge::desc(),
    };
    return std::find(dimensions.begin(), dimensions.end(), cls) != dimensions.end();
}
