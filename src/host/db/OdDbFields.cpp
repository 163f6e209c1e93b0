// The data of the drawing classes, a table a class.

#include "host/db/OdDbClasses.h"

std::span<const OdDbField> OdDbObject::fields()
{
    static const OdDbField table[] = {
        {"isErased", "the object was erased", &OdDbObject::erased_},
        {"reactors", "handles of the objects that are notified of changes", &OdDbObject::reactors_},
        {"extensionDictionary", "handles of the objects that hang on this one, by name", &OdDbObject::extensions_},
        {"xData", "data of other applications by their names: result buffers with group codes, without the row 1001",
         &OdDbObject::xData_},
    };
    return table;
}

std::span<const OdDbField> OdDbEntity::fields()
{
    static const OdDbField table[] = {
        {"layer", "handle of the layer", &OdDbEntity::layerId_},
    };
    return table;
}

std::span<const OdDbField> OdDbLine::fields()
{
    static const OdDbField table[] = {
        {"startPoint", "where it begins", &OdDbLine::startPoint_},
        {"endPoint", "where it ends", &OdDbLine::endPoint_},
        {"thickness", "height of the extrusion", &OdDbLine::thickness_},
    };
    return table;
}

std::span<const OdDbField> OdDbCircle::fields()
{
    static const OdDbField table[] = {
        {"center", "the center", &OdDbCircle::center_},
        {"radius", "the radius", &OdDbCircle::radius_},
    };
    return table;
}

std::span<const OdDbField> OdDbArc::fields()
{
    static const OdDbField table[] = {
        {"center", "the center", &OdDbArc::center_},
        {"radius", "the radius", &OdDbArc::radius_},
        {"startAngle", "where it begins, in radians", &OdDbArc::startAngle_},
        {"endAngle", "where it ends, in radians", &OdDbArc::endAngle_},
    };
    return table;
}

std::span<const OdDbField> OdDbEllipse::fields()
{
    static const OdDbField table[] = {
        {"center", "the center", &OdDbEllipse::center_},
        {"majorAxis", "from the center along the longer axis", &OdDbEllipse::majorAxis_},
        {"minorAxis", "from the center along the shorter axis", &OdDbEllipse::minorAxis_},
        {"startAngle", "where it begins, in radians; 0 for a whole one", &OdDbEllipse::startAngle_},
        {"endAngle", "where it ends, in radians; 0 for a whole one", &OdDbEllipse::endAngle_},
    };
    return table;
}

std::span<const OdDbField> OdDbPolyline::fields()
{
    static const OdDbField table[] = {
        {"points", "the vertices", &OdDbPolyline::points_},
        {"bulges",
         "one a vertex, for the segment that begins there: the tangent of a quarter of the angle of an arc, 0 for a line; a missing one is 0",
         &OdDbPolyline::bulges_},
        {"isClosed", "the last vertex is joined with the first", &OdDbPolyline::closed_},
    };
    return table;
}

std::span<const OdDbField> OdDb3dPolyline::fields()
{
    static const OdDbField table[] = {
        {"vertices", "the vertices", &OdDb3dPolyline::vertices_},
        {"isClosed", "the last vertex is joined with the first", &OdDb3dPolyline::closed_},
    };
    return table;
}

std::span<const OdDbField> OdDbMline::fields()
{
    static const OdDbField table[] = {
        {"vertices", "the vertices", &OdDbMline::vertices_},
        {"justification", "which line runs through the vertices: 0 top, 1 zero, 2 bottom", &OdDbMline::justification_},
        {"scale", "factor of the distances between the lines", &OdDbMline::scale_},
        {"plotStyleName", "the print style", &OdDbMline::plotStyleName_},
        {"closedMline", "the last vertex is joined with the first", &OdDbMline::closed_},
    };
    return table;
}

std::span<const OdDbField> OdDbLeader::fields()
{
    static const OdDbField table[] = {
        {"vertices", "the vertices, the arrow first", &OdDbLeader::vertices_},
        {"annoType", "kind of the annotation: 0 note, 1 tolerance, 2 block reference, 3 none", &OdDbLeader::annoType_},
        {"annotationObjectId", "handle of the annotation", &OdDbLeader::annotationObjectId_},
        {"annoWidth", "width of the annotation", &OdDbLeader::annoWidth_},
    };
    return table;
}

std::span<const OdDbField> OdDbPolygonMesh::fields()
{
    static const OdDbField table[] = {
        {"vertices", "the vertices, row by row", &OdDbPolygonMesh::vertices_},
        {"mSize", "number of rows of vertices", &OdDbPolygonMesh::mSize_},
        {"nSize", "number of vertices in a row", &OdDbPolygonMesh::nSize_},
        {"isMClosed", "the last row is joined with the first", &OdDbPolygonMesh::mClosed_},
        {"isNClosed", "the last vertex of each row is joined with the first", &OdDbPolygonMesh::nClosed_},
    };
    return table;
}

std::span<const OdDbField> OdDbPolyFaceMesh::fields()
{
    static const OdDbField table[] = {
        {"vertices", "the vertices", &OdDbPolyFaceMesh::vertices_},
        {"faces",
         "three or four numbers of vertices each, from 1; a negative number begins a hidden edge, a fourth number 0 is as none",
         &OdDbPolyFaceMesh::faces_},
    };
    return table;
}

std::span<const OdDbField> OdDbFilledArea::fields()
{
    static const OdDbField table[] = {
        {"points", "the four corners", &OdDbFilledArea::points_},
        {"thickness", "height of the extrusion", &OdDbFilledArea::thickness_},
    };
    return table;
}

std::span<const OdDbField> OdDbFace::fields()
{
    static const OdDbField table[] = {
        {"vertices", "the four corners", &OdDbFace::vertices_},
        {"edgesVisible", "whether the edge that begins at each corner is visible", &OdDbFace::edgesVisible_},
    };
    return table;
}

std::span<const OdDbField> OdDbRegion::fields()
{
    static const OdDbField table[] = {
        {"pieces", "handles of the curves around it, in order", &OdDbRegion::pieces_},
    };
    return table;
}

std::span<const OdDbField> OdDbHatch::fields()
{
    static const OdDbField table[] = {
        {"patternName", "name of the pattern", &OdDbHatch::patternName_},
        {"patternScale", "scale of the pattern", &OdDbHatch::patternScale_},
        {"patternAngle", "angle of the pattern, in radians", &OdDbHatch::patternAngle_},
        {"seedPoints", "the points within the areas, by which they were found", &OdDbHatch::seedPoints_},
        {"loops", "the boundaries", &OdDbHatch::loops_},
    };
    return table;
}

std::span<const OdDbField> OdDbDimension::fields()
{
    static const OdDbField table[] = {
        {"dimensionText", "text in place of the measured value", &OdDbDimension::dimensionText_},
    };
    return table;
}

std::span<const OdDbField> OdDbAlignedDimension::fields()
{
    static const OdDbField table[] = {
        {"xLine1Point", "a point on the first extension line", &OdDbAlignedDimension::xLine1Point_},
        {"xLine2Point", "a point on the second extension line", &OdDbAlignedDimension::xLine2Point_},
        {"dimLinePoint", "a point on the dimension line", &OdDbAlignedDimension::dimLinePoint_},
    };
    return table;
}

std::span<const OdDbField> OdDbRotatedDimension::fields()
{
    static const OdDbField table[] = {
        {"xLine1Point", "a point on the first extension line", &OdDbRotatedDimension::xLine1Point_},
        {"xLine2Point", "a point on the second extension line", &OdDbRotatedDimension::xLine2Point_},
        {"dimLinePoint", "a point on the dimension line", &OdDbRotatedDimension::dimLinePoint_},
        {"rotation", "angle of the dimension line, in radians", &OdDbRotatedDimension::rotation_},
    };
    return table;
}

std::span<const OdDbField> OdDb2LineAngularDimension::fields()
{
    static const OdDbField table[] = {
        {"xLine1Start", "start of the first extension line", &OdDb2LineAngularDimension::xLine1Start_},
        {"xLine1End", "end of the first extension line", &OdDb2LineAngularDimension::xLine1End_},
        {"xLine2Start", "start of the second extension line", &OdDb2LineAngularDimension::xLine2Start_},
        {"xLine2End", "end of the second extension line", &OdDb2LineAngularDimension::xLine2End_},
        {"arcPoint", "a point on the dimension arc", &OdDb2LineAngularDimension::arcPoint_},
    };
    return table;
}

std::span<const OdDbField> OdDb3PointAngularDimension::fields()
{
    static const OdDbField table[] = {
        {"centerPoint", "the angle's vertex", &OdDb3PointAngularDimension::centerPoint_},
        {"xLine1Point", "a point on the first extension line", &OdDb3PointAngularDimension::xLine1Point_},
        {"xLine2Point", "a point on the second extension line", &OdDb3PointAngularDimension::xLine2Point_},
        {"arcPoint", "a point on the dimension arc", &OdDb3PointAngularDimension::arcPoint_},
    };
    return table;
}

std::span<const OdDbField> OdDbArcDimension::fields()
{
    static const OdDbField table[] = {
        {"xLine1Point", "a point on the first extension line", &OdDbArcDimension::xLine1Point_},
        {"xLine2Point", "a point on the second extension line", &OdDbArcDimension::xLine2Point_},
        {"centerPoint", "the center of the arc", &OdDbArcDimension::centerPoint_},
        {"arcPoint", "a point on the dimension arc", &OdDbArcDimension::arcPoint_},
        {"arcStartParam", "where the arc begins, in radians", &OdDbArcDimension::arcStartParam_},
        {"arcEndParam", "where the arc ends, in radians", &OdDbArcDimension::arcEndParam_},
        {"isPartial", "only a part of the arc is measured", &OdDbArcDimension::partial_},
    };
    return table;
}

std::span<const OdDbField> OdDbOrdinateDimension::fields()
{
    static const OdDbField table[] = {
        {"definingPoint", "the measured point", &OdDbOrdinateDimension::definingPoint_},
        {"leaderEndPoint", "end of the leader", &OdDbOrdinateDimension::leaderEndPoint_},
        {"isUsingXAxis", "the X coordinate is shown, else Y", &OdDbOrdinateDimension::usingXAxis_},
        {"origin", "where the coordinates are counted from", &OdDbOrdinateDimension::origin_},
    };
    return table;
}

std::span<const OdDbField> OdDbDiametricDimension::fields()
{
    static const OdDbField table[] = {
        {"chordPoint", "where the diameter meets the curve, on the side of the text",
         &OdDbDiametricDimension::chordPoint_},
        {"farChordPoint", "where it meets the curve on the other side", &OdDbDiametricDimension::farChordPoint_},
    };
    return table;
}

std::span<const OdDbField> OdDbRadialDimension::fields()
{
    static const OdDbField table[] = {
        {"center", "center of the curve", &OdDbRadialDimension::center_},
        {"chordPoint", "where the dimension line meets the curve", &OdDbRadialDimension::chordPoint_},
    };
    return table;
}

std::span<const OdDbField> OdDbRadialDimensionLarge::fields()
{
    static const OdDbField table[] = {
        {"center", "center of the curve", &OdDbRadialDimensionLarge::center_},
        {"chordPoint", "where the dimension line meets the curve", &OdDbRadialDimensionLarge::chordPoint_},
    };
    return table;
}

std::span<const OdDbField> OdDbBlockReference::fields()
{
    static const OdDbField table[] = {
        {"position", "where the origin of the definition lands", &OdDbBlockReference::position_},
        {"scaleFactors", "scale along each axis", &OdDbBlockReference::scaleFactors_},
        {"rotation", "angle, in radians", &OdDbBlockReference::rotation_},
        {"blockTableRecord", "handle of the block definition", &OdDbBlockReference::blockTableRecord_},
        {"attributes", "handles of the attributes", &OdDbBlockReference::attributes_},
    };
    return table;
}

std::span<const OdDbField> OdDbAttribute::fields()
{
    static const OdDbField table[] = {
        {"tag", "name of the attribute", &OdDbAttribute::tag_},
        {"textString", "the text", &OdDbAttribute::textString_},
    };
    return table;
}

std::span<const OdDbField> OdDbViewport::fields()
{
    static const OdDbField table[] = {
        {"isNonRectClipOn", "an entity bounds the window, not a rectangle", &OdDbViewport::nonRectClip_},
        {"nonRectClipEntityId", "handle of that entity", &OdDbViewport::nonRectClipEntityId_},
    };
    return table;
}

std::span<const OdDbField> OdDbTable::fields()
{
    static const OdDbField table[] = {
        {"height", "height of the whole table", &OdDbTable::height_},
        {"width", "width of the whole table", &OdDbTable::width_},
        {"cellStyles", "names of the cell styles of whole rows, from the first on; a missing one is empty",
         &OdDbTable::cellStyles_},
        {"rowHeights", "heights of the rows, as many as there are", &OdDbTable::rowHeights_},
        {"columnWidths", "widths of the columns, as many as there are", &OdDbTable::columnWidths_},
        {"textStrings", "texts of the cells, row by row; a missing one is empty", &OdDbTable::textStrings_},
    };
    return table;
}

std::span<const OdDbField> OdDbMText::fields()
{
    static const OdDbField table[] = {
        {"contents", "the text, with its format codes", &OdDbMText::contents_},
        {"textStyle", "handle of the text style", &OdDbMText::textStyle_},
        {"textHeight", "height of the letters", &OdDbMText::textHeight_},
        {"width", "width of the box", &OdDbMText::width_},
        {"actualHeight", "height that the lines take", &OdDbMText::actualHeight_},
        {"rotation", "angle of the text, in radians", &OdDbMText::rotation_},
        {"lineSpacingFactor", "distance of the lines in relation to the usual one", &OdDbMText::lineSpacingFactor_},
        {"attachment", "1 top left, 2 top center and so on to 9 bottom right", &OdDbMText::attachment_},
        {"backgroundFillOn", "the box is filled", &OdDbMText::backgroundFill_},
        {"useBackgroundColorOn", "the box is filled with the drawing's background color",
         &OdDbMText::useBackgroundColor_},
        {"backgroundFillColor", "the color of the box", &OdDbMText::backgroundFillColor_},
        {"backgroundScaleFactor", "size of the filled box in relation to that of the text",
         &OdDbMText::backgroundScaleFactor_},
    };
    return table;
}

std::span<const OdDbField> OdDbFcf::fields()
{
    static const OdDbField table[] = {
        {"text", "the text of the tolerance frame", &OdDbFcf::text_},
    };
    return table;
}

std::span<const OdDbField> OdDbArcAlignedText::fields()
{
    static const OdDbField table[] = {
        {"textString", "the text", &OdDbArcAlignedText::textString_},
        {"arcId", "handle of the arc that the text runs along", &OdDbArcAlignedText::arcId_},
        {"textStyle", "handle of the text style", &OdDbArcAlignedText::textStyle_},
        {"typeface", "the font", &OdDbArcAlignedText::typeface_},
        {"isBold", "the font is bold", &OdDbArcAlignedText::bold_},
        {"isItalic", "the font is italic", &OdDbArcAlignedText::italic_},
        {"isUnderlined", "the text is underlined", &OdDbArcAlignedText::underlined_},
        {"isReversedCharOrder", "the letters stand in reversed order", &OdDbArcAlignedText::reversed_},
        {"alignment", "1 fit, 2 left, 3 right, 4 center", &OdDbArcAlignedText::alignment_},
        {"textPosition", "1 on the convex side of the arc, 2 on the concave side", &OdDbArcAlignedText::textPosition_},
        {"textDirection", "1 outward from the center, 2 inward to the center", &OdDbArcAlignedText::textDirection_},
    };
    return table;
}

std::span<const OdDbField> OdDbSymbolTableRecord::fields()
{
    static const OdDbField table[] = {
        {"name", "the name in its table", &OdDbSymbolTableRecord::name_},
    };
    return table;
}

std::span<const OdDbField> OdDbLayerTableRecord::fields()
{
    static const OdDbField table[] = {
        {"color", "color of what has that of its layer", &OdDbLayerTableRecord::color_},
    };
    return table;
}

std::span<const OdDbField> OdDbLinetypeTableRecord::fields()
{
    static const OdDbField table[] = {
        {"comments", "the description", &OdDbLinetypeTableRecord::comments_},
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

std::span<const OdDbField> OdDbBlockTableRecord::fields()
{
    static const OdDbField table[] = {
        {"isLayout", "the block holds what is drawn on a sheet or in model space", &OdDbBlockTableRecord::layout_},
        {"isFromExternalReference", "the block shows another drawing", &OdDbBlockTableRecord::externalReference_},
        {"pathName", "file of the drawing that is shown", &OdDbBlockTableRecord::pathName_},
        {"origin", "the point that lands on a reference's position", &OdDbBlockTableRecord::origin_},
        {"comments", "the description", &OdDbBlockTableRecord::comments_},
        {"blockScaling", "1 for uniform scales only, else 0", &OdDbBlockTableRecord::blockScaling_},
        {"explodable", "references can be exploded", &OdDbBlockTableRecord::explodable_},
        {"blockInsertUnits", "0 unitless, 1 inches, 2 feet, 3 miles, 4 millimeters and so on to 20 parsecs",
         &OdDbBlockTableRecord::blockInsertUnits_},
        {"entities", "handles of what the block is made of", &OdDbBlockTableRecord::entities_},
    };
    return table;
}

std::span<const OdDbField> OdDbMlineStyle::fields()
{
    static const OdDbField table[] = {
        {"name", "the name", &OdDbMlineStyle::name_},
        {"elements", "the parallel lines", &OdDbMlineStyle::elements_},
    };
    return table;
}

std::span<const OdDbField> OdDbGroup::fields()
{
    static const OdDbField table[] = {
        {"isAnonymous", "the group has no name of its own", &OdDbGroup::anonymous_},
    };
    return table;
}

std::span<const OdDbField> OdDbDimAssoc::fields()
{
    static const OdDbField table[] = {
        {"pointRefs",
         "four places, one for each point of the dimension: null, or the handles of the objects that lead to what the point hangs on, that one the last",
         &OdDbDimAssoc::pointRefs_},
    };
    return table;
}

std::span<const OdDbField> OdDbDictionary::fields()
{
    static const OdDbField table[] = {
        {"items", "handles of the objects by name", &OdDbDictionary::items_},
    };
    return table;
}

std::span<const OdDbField> OdDbPlotSettings::fields()
{
    static const OdDbField table[] = {
        {"modelType", "the settings of model space", &OdDbPlotSettings::modelType_},
        {"currentStyleSheet", "file of the print styles", &OdDbPlotSettings::currentStyleSheet_},
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
