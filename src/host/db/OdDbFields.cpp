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
        {"chordPoint", "where the dimension line meets the curve", &OdDbDiametricDimension::chordPoint_},
    };
    return table;
}

std::span<const OdDbField> OdDbRadialDimension::fields()
{
    static const OdDbField table[] = {
        {"chordPoint", "where the dimension line meets the curve", &OdDbRadialDimension::chordPoint_},
    };
    return table;
}

std::span<const OdDbField> OdDbMline::fields()
{
    static const OdDbField table[] = {
        {"vertices", "the vertices", &OdDbMline::vertices_},
        {"closedMline", "the last vertex is joined with the first", &OdDbMline::closed_},
    };
    return table;
}

std::span<const OdDbField> OdDbBlockReference::fields()
{
    static const OdDbField table[] = {
        {"blockTableRecord", "handle of the block definition", &OdDbBlockReference::blockTableRecord_},
    };
    return table;
}

std::span<const OdDbField> OdDbTable::fields()
{
    static const OdDbField table[] = {
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

std::span<const OdDbField> OdDbLeader::fields()
{
    static const OdDbField table[] = {
        {"annoType", "kind of the annotation: 0 note, 1 tolerance, 2 block reference, 3 none", &OdDbLeader::annoType_},
        {"annotationObjectId", "handle of the annotation", &OdDbLeader::annotationObjectId_},
        {"annoWidth", "width of the annotation", &OdDbLeader::annoWidth_},
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
        {"comments", "the description", &OdDbBlockTableRecord::comments_},
        {"blockScaling", "1 for uniform scales only, else 0", &OdDbBlockTableRecord::blockScaling_},
        {"explodable", "references can be exploded", &OdDbBlockTableRecord::explodable_},
        {"blockInsertUnits", "0 unitless, 1 inches, 2 feet, 3 miles, 4 millimeters and so on to 20 parsecs",
         &OdDbBlockTableRecord::blockInsertUnits_},
        {"entities", "handles of what the block is made of", &OdDbBlockTableRecord::entities_},
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
