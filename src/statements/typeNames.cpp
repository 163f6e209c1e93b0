// What the interface calls the classes of drawing objects.

#include "statements/typeNames.h"

#include "host/db/OdDbClassMap.h"
#include "host/kernel/CFxStatus.h"
#include "statements/RecordingState.h"

#include <QHash>
#include <QStringBuilder>

#include <algorithm>
#include <array>
#include <charconv>

namespace {

constexpr bool kRawPointer = true;

/// Simple notes and notes are one type to an enumeration of object types, and so are the two kinds of polyline and of
/// angular dimension; the interfaces of the notes differ.
constexpr InterfaceType kTypes[] = {
    {"AcDbLine", "Line", "iwLineType", false},
    {"AcDbCircle", "Circle", "iwCircleType", false},
    {"AcDbPoint", "Point", "iwPointType", false},
    {"AcDbRay", "Ray", "iwRayType", false},
    {"AcDbArc", "CircleArc", "iwCircleArcType", false},
    {"AcDbEllipse", "EllipseArc", "iwEllipseArcType", false},
    {"AcDbXline", "InfiniteLine", "iwInfiniteLineType", false},
    {"AcDbTextStyleTableRecord", "TextStyle", "iwTextStyleType", false},
    {"AcDbAttributeDefinition", "AttributeDefinition", "iwAttributeDefinitionType", false},
    {"AcDbText", "SimpleNote", "iwSimpleNoteType", false},
    {"AcDbMText", "Note", "iwSimpleNoteType", false},
    {"AcDbBlockReference", "BlockInstance", "iwBlockInstanceType", false},
    {"AcDbRasterImage", "ReferenceImage", "iwReferenceImageType", false},
    {"AcDbMline", "RichLine", "iwRichLineType", false},
    {"AcDbFcf", "Tolerance", "iwToleranceType", false},
    {"AcDbTable", "Table", "iwTableType", false},
    {"AcDbRegion", "Region", "iwRegionType", kRawPointer},
    {"AcDbShape", "Shape", "iwShapeType", false},
    {"AcDbFace", "Face", "iwFaceType", false},
    {"AcDbLeader", "Leader", "iwLeaderType", false},
    {"AcDb3dPolyline", "PolyLine3D", "iwPolyLine3DType", false},
    {"AcDbPolygonMesh", "PolygonMesh", "iwPolygonMeshType", false},
    {"AcDbSolid", "Solid", "iwSolidType", false},
    {"AcDbSpline", "Spline", "iwSplineType", false},
    {"AcDbOle2Frame", "EmbeddedObject", "iwEmbeddedObjectType", false},
    {"AcDbPolyline", "PolyLine", "iwPolyLineType", false},
    {"AcDb2dPolyline", "PolyLine", "iwPolyLineType", false},
    {"AcDbHatch", "Hatch", "iwHatchType", false},
    {"AcDbPolyFaceMesh", "PolyFaceMesh", "iwPolyFaceMeshType", false},
    {"AcDbBlockTableRecord", "BlockDefinition", "iwBlockDefinitionType", false},
    {"AcDbGroup", "Group", "iwGroupType", false},
    {"AcDbViewTableRecord", "ModelNamedView", "iwModelNamedViewType", false},
    {"AcDbAlignedDimension", "AlignedDimension", "iwAlignedDimensionType", false},
    {"AcDb2LineAngularDimension", "AngularDimension", "iwAngularDimensionType", false},
    {"AcDb3PointAngularDimension", "AngularDimension", "iwAngularDimensionType", false},
    {"AcDbArcDimension", "ArcLengthDimension", "iwArcLengthDimensionType", false},
    {"AcDbDiametricDimension", "DiameterDimension", "iwDiameterDimensionType", false},
    {"AcDbOrdinateDimension", "OrdinateDimension", "iwOrdinateDimensionType", false},
    {"AcDbRadialDimension", "RadialDimension", "iwRadialDimensionType", false},
    {"AcDbRadialDimensionLarge", "JoggedDimension", "iwJoggedDimensionType", false},
    {"AcDbRotatedDimension", "RotatedDimension", "iwRotatedDimensionType", false},
    {"AcDbTableStyle", "TableStyle", "iwTableStyleType", false},
    {"AcDbDimStyleTableRecord", "DimensionStyle", "iwDimensionStyleType", false},
    {"AcDbLinetypeTableRecord", "LineStyle", "iwLineStyleType", false},
    {"AcDbMlineStyle", "RichLineStyle", "iwRichLineStyleType", false},
    {"AcDbViewport", "Viewport", "iwViewportType", false},
    {"AcDbTrace", "Trace", "iwTraceType", false},
    {"AcDbLayerTableRecord", "Layer", "iwLayerType", false},
    {"AcDbLayout", "Layout", "iwLayoutType", false},
    {"AcDbViewportTableRecord", "ViewTile", "iwViewTileType", kRawPointer},
    {"AcDbArcAlignedText", "ArcAlignedText", "iwArcAlignedTextType", false},
};

CFxString cppTypeName(const InterfaceType& type)
{
    const QLatin1String suffix(type.rawPointer ? "_c*" : "_ptr");
    return CFxString("iw" + QLatin1String(type.name) + suffix);
}

TypeNames namesOf(const InterfaceType& type)
{
    const bool cpp = RecordingLanguage() == 0;
    TypeNames names{cpp ? cppTypeName(type) : CFxString(type.name), type.enumerator, {}, {}};
    names.lower = names.type;
    names.lower.makeLower();
    names.stem = names.lower;
    if (cpp) {
        names.stem.replace("_ptr", "");
        names.stem.replace("_c*", "");
    }
    return names;
}

} // namespace

std::span<const InterfaceType> InterfaceTypes()
{
    return kTypes;
}

const InterfaceType* FindInterface(const OdRxClass* cls)
{
    static const QHash<const OdRxClass*, const InterfaceType*> byClass = [] {
        QHash<const OdRxClass*, const InterfaceType*> types;
        for (const InterfaceType& type : kTypes)
            types.insert(oddbClassByName(type.cls), &type);
        return types;
    }();
    return byClass.value(cls, nullptr);
}

const InterfaceType* FindInterface(const QString& name)
{
    const auto found = std::ranges::find_if(kTypes, [&](const InterfaceType& type) {
        return name.compare(QLatin1String(type.name), Qt::CaseInsensitive) == 0;
    });
    return found == std::end(kTypes) ? nullptr : found;
}

const TypeNames* FindTypeNames(const OdRxClass* cls)
{
    // For C++ or not. Asked for several times for each object.
    static std::array<QHash<const OdRxClass*, TypeNames>, 2> known;
    auto& names = known[RecordingLanguage() == 0 ? 0 : 1];
    auto found = names.constFind(cls);
    if (found == names.constEnd()) {
        const InterfaceType* const type = FindInterface(cls);
        if (!type)
            return nullptr;
        found = names.insert(cls, namesOf(*type));
    }
    return &found.value();
}

QString NumberedVariable(const OdRxClass* cls, std::uint32_t ordinal)
{
    std::array<char, 10> digits;
    const char* const end = std::to_chars(digits.begin(), digits.end(), ordinal).ptr;
    const TypeNames* const names = FindTypeNames(cls);
    return (names ? names->stem.toQString() : QString()) % QLatin1String(digits.data(), end);
}

bool HasInterface(const OdRxClass* cls)
{
    return FindTypeNames(cls) != nullptr;
}

std::int32_t GetApiTypeName(const OdRxClass* cls, CFxString& typeName, CFxString& secondName)
{
    // A custom action whose datum is of another type than expected gives no class.
    const TypeNames* const names = FindTypeNames(cls);
    if (!names)
        return kFxFailure;
    typeName = names->type;
    secondName = names->second;
    return kFxSuccess;
}
