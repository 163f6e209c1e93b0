#pragma once

#include "host/db/OdDbEntity.h"
#include "host/db/OdDbObjectIterator.h"

class INKHOST_EXPORT OdDbRasterImage : public OdDbEntity
{
public:
    using OdDbEntity::OdDbEntity;
    static OdRxClass* desc();
};

#define INKHOST_BLOCK_REFERENCE_DATA(READ, HOLD, FIELD)                                                                \
    READ(OdGePoint3d, position, "where the origin of the definition lands")                                            \
    READ(OdGeScale3d, scaleFactors, "scale along each axis")                                                           \
    READ(double, rotation, "angle, in radians")                                                                        \
    READ(OdDbObjectId, blockTableRecord, "handle of the block definition")                                             \
    HOLD(OdArray<OdDbObjectId>, attributes, "handles of the attributes")

class INKHOST_EXPORT OdDbBlockReference : public OdDbEntity
{
public:
    using OdDbEntity::OdDbEntity;
    static OdRxClass* desc();
    INKHOST_DATA(OdDbBlockReference, INKHOST_BLOCK_REFERENCE_DATA)

    /// Walks the attributes, without the erased ones. Must not outlive the reference.
    OdDbObjectIteratorPtr attributeIterator() const { return odrxNew<OdDbObjectIterator>(attributes_); }
};

#define INKHOST_ATTRIBUTE_DATA(READ, HOLD, FIELD)                                                                      \
    READ(OdString, tag, "name of the attribute")                                                                       \
    READ(OdString, textString, "the text")

/// A text of a block reference that differs from one reference to the next.
class INKHOST_EXPORT OdDbAttribute : public OdDbEntity
{
public:
    using OdDbEntity::OdDbEntity;
    static OdRxClass* desc();
    INKHOST_DATA(OdDbAttribute, INKHOST_ATTRIBUTE_DATA)
};

#define INKHOST_TABLE_DATA(READ, HOLD, FIELD)                                                                          \
    READ(double, height, "height of the whole table")                                                                  \
    READ(double, width, "width of the whole table")                                                                    \
    HOLD(OdArray<OdString>, cellStyles,                                                                                \
         "names of the cell styles of whole rows, from the first on; a missing one is empty")                          \
    HOLD(OdArray<double>, rowHeights, "heights of the rows, as many as there are")                                     \
    HOLD(OdArray<double>, columnWidths, "widths of the columns, as many as there are")                                 \
    HOLD(OdArray<OdArray<OdString>>, textStrings, "texts of the cells, row by row; a missing one is empty")

/// A table has as many rows and columns as it has heights and widths.
class INKHOST_EXPORT OdDbTable : public OdDbBlockReference
{
public:
    using OdDbBlockReference::OdDbBlockReference;
    static OdRxClass* desc();
    INKHOST_DATA(OdDbTable, INKHOST_TABLE_DATA)

    unsigned numRows() const { return rowHeights_.length(); }
    unsigned numColumns() const { return columnWidths_.length(); }
    /// Raises OdError_InvalidIndex, as the next one does.
    double rowHeight(unsigned row) const { return rowHeights_[row]; }
    double columnWidth(unsigned column) const { return columnWidths_[column]; }
    /// Empty for a cell that was never filled.
    OdString textString(unsigned row, unsigned column) const;
    /// Name of the cell style of a whole row, for which the column is -1. Empty when there is none; cells have none of
    /// their own.
    OdString cellStyle(unsigned row, int column) const;
};

#define INKHOST_MTEXT_DATA(READ, HOLD, FIELD)                                                                          \
    READ(OdString, contents, "the text, with its format codes")                                                        \
    READ(OdDbObjectId, textStyle, "handle of the text style")                                                          \
    READ(double, textHeight, "height of the letters")                                                                  \
    READ(double, width, "width of the box")                                                                            \
    READ(double, actualHeight, "height that the lines take")                                                           \
    READ(double, rotation, "angle of the text, in radians")                                                            \
    READ(double, lineSpacingFactor, "distance of the lines in relation to the usual one", 1.0)                         \
    READ(int, attachment, "1 top left, 2 top center and so on to 9 bottom right", 1)                                   \
    READ(bool, backgroundFillOn, "the box is filled")                                                                  \
    READ(bool, useBackgroundColorOn, "the box is filled with the drawing's background color")                          \
    HOLD(std::optional<OdCmColor>, backgroundFillColor, "the color of the box")                                        \
    HOLD(double, backgroundScaleFactor, "size of the filled box in relation to that of the text", 1.5)

/// A note: text of one or more lines in a box.
class INKHOST_EXPORT OdDbMText : public OdDbEntity
{
public:
    using OdDbEntity::OdDbEntity;
    static OdRxClass* desc();
    INKHOST_DATA(OdDbMText, INKHOST_MTEXT_DATA)

    const std::optional<OdCmColor>& getBackgroundFillColor() const { return backgroundFillColor_; }
    double getBackgroundScaleFactor() const { return backgroundScaleFactor_; }
};

#define INKHOST_FCF_DATA(READ, HOLD, FIELD) READ(OdString, text, "the text of the tolerance frame")

/// A tolerance frame.
class INKHOST_EXPORT OdDbFcf : public OdDbEntity
{
public:
    using OdDbEntity::OdDbEntity;
    static OdRxClass* desc();
    INKHOST_DATA(OdDbFcf, INKHOST_FCF_DATA)
};

#define INKHOST_ARC_ALIGNED_TEXT_DATA(READ, HOLD, FIELD)                                                               \
    READ(OdString, textString, "the text")                                                                             \
    READ(OdDbObjectId, arcId, "handle of the arc that the text runs along")                                            \
    READ(OdDbObjectId, textStyle, "handle of the text style")                                                          \
    READ(OdString, typeface, "the font")                                                                               \
    READ(bool, isBold, "the font is bold")                                                                             \
    READ(bool, isItalic, "the font is italic")                                                                         \
    READ(bool, isUnderlined, "the text is underlined")                                                                 \
    READ(bool, isReversedCharOrder, "the letters stand in reversed order")                                             \
    READ(int, alignment, "1 fit, 2 left, 3 right, 4 center", 1)                                                        \
    READ(int, textPosition, "1 on the convex side of the arc, 2 on the concave side", 1)                               \
    READ(int, textDirection, "1 outward from the center, 2 inward to the center", 1)

/// A curved text.
class INKHOST_EXPORT OdDbArcAlignedText : public OdDbEntity
{
public:
    using OdDbEntity::OdDbEntity;
    static OdRxClass* desc();
    INKHOST_DATA(OdDbArcAlignedText, INKHOST_ARC_ALIGNED_TEXT_DATA)
};

#define INKHOST_VIEWPORT_DATA(READ, HOLD, FIELD)                                                                       \
    READ(bool, isNonRectClipOn, "an entity bounds the window, not a rectangle")                                        \
    READ(OdDbObjectId, nonRectClipEntityId, "handle of that entity")

/// A window of a sheet onto the model.
class INKHOST_EXPORT OdDbViewport : public OdDbEntity
{
public:
    using OdDbEntity::OdDbEntity;
    static OdRxClass* desc();
    INKHOST_DATA(OdDbViewport, INKHOST_VIEWPORT_DATA)
};
