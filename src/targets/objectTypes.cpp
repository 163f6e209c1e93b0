// The numbers of object types.

#include "targets/objectTypes.h"

#include "statements/wording.h"

#include <QHash>

namespace inkmacro {

/// In the order of their numbers. The blank behind the second name belongs to it, so that type is never found.
static const char* const objectTypes[] = {
    "iwObjectUndefinedType",
    "iwApplicationType ",
    "iwDocumentType",
    "iwModelType",
    "iwSheetType",
    "iwSelectionManagerType",
    "iwBlockDefinitionType",
    "iwBlockInstanceType",
    "iwAttributeDefinitionType",
    "iwExternalReferenceType",
    "iwAttributeInstanceType",
    "iwPrintManagerType",
    "iwSketchManagerType",
    "iwReferenceImageType",
    "iwDocumentExporterType",
    "iwCommandType",
    "iwUserCommandType",
    "iwMenuItemType",
    "iwToolbarType",
    "iwToolbarItemType",
    "iwCommandMessageType",
    "iwLineType",
    "iwCircleType",
    "iwCircleArcType",
    "iwSimpleNoteType",
    "iwPointType",
    "iwEllipseArcType",
    "iwPolyLineType",
    "iwRayType",
    "iwInfiniteLineType",
    "iwNoteType",
    "iwLayerType",
    "iwColorType",
    "iwLayerManagerType",
    "iwTextStyleManagerType",
    "iwTextStyleType",
    "iwDimensionStyleType",
    "iwDimensionStyleManagerType",
    "iwSelectionFilterType",
    "iwRichLineType",
    "iwRichLineStyleType",
    "iwRichLineStyleManagerType",
    "iwCustomDataType",
    "iwDimensionStyleAngularDimensionOptionsType",
    "iwDimensionStyleArrowsOptionsType",
    "iwDimensionStyleDualDimensionOptionsType",
    "iwDimensionStyleLinearDimensionOptionsType",
    "iwDimensionStyleRadialDiameterDimensionOptionsType",
    "iwDimensionStyleFitOptionsType",
    "iwDimensionStyleLineOptionsType",
    "iwDimensionStyleTextOptionsType",
    "iwDimensionStyleToleranceOptionsType",
    "iwAngularDimensionType",
    "iwGeneralDimensionType",
    "iwAlignedDimensionType",
    "iwRotatedDimensionType",
    "iwArcLengthDimensionType",
    "iwDiameterDimensionType",
    "iwRadialDimensionType",
    "iwJoggedDimensionType",
    "iwOrdinateDimensionType",
    "iwLeaderType",
    "iwToleranceType",
    "iwCustomPropertyControlType",
    "iwHyperLinkType",
    "iwPolyLine3DType",
    "iwSplineType",
    "iwFaceType",
    "iwSolidType",
    "iwPolygonMeshType",
    "iwPolyFaceMeshType",
    "iwHatchType",
    "iwHatchPatternType",
    "iwHatchBoundaryLoopType",
    "iwMathUtilityType",
    "iwMathTransformType",
    "iwMathPointType",
    "iwMathLineType",
    "iwMathVectorType",
    "iwMathPlaneType",
    "iwCustomCoordinateSystemManagerType",
    "iwCustomCoordinateSystemType",
    "iwViewManagerType",
    "iwNamedViewType",
    "iwModelNamedViewType",
    "iwSheetNamedViewType",
    "iwEmbeddedObjectType",
    "iwIWWindowType",
    "iwRegionType",
    "iwTableType",
    "iwSystemFilesType",
    "iwTableStyleType",
    "iwTableStyleManagerType",
    "iwViewportType",
    "iwEntityHelperType",
    "iwGroupType",
    "iwApplicationOptionsType",
    "iwTrackerType",
    "iwDictionaryType",
    "iwXRecordType",
    "iwShapeType",
    "iwLineStyleType",
    "iwLineStyleManagerType",
    "iwShapeManagerType",
    "iwLispFunctionType",
    "iwLispParameterType",
    "iwDimensionStyleUserDataType",
    "iwMathCircArcType",
    "iwMathEllipArcType",
    "iwDrawingSupportFilesType",
    "iwInterfaceFilesType",
    "iwObjectTypeCount",
};

std::int32_t ObjectTypeValue(const QString& enumerator)
{
    static const QHash<QString, std::int32_t> numbers = [] {
        QHash<QString, std::int32_t> made;
        for (const char* const type : objectTypes)
            made.insert(QString::fromLatin1(type), made.size());
        return made;
    }();
    return numbers.value(enumerator, 0);
}

QString objectTypeWord(Target target, const QString& enumerator)
{
    return target == Target::JavaScript ? QString::number(ObjectTypeValue(enumerator))
                                        : enumeratorText(target, "iwObjectType_e", enumerator);
}

} // namespace inkmacro
