#pragma once

#include "host/db/OdDbEntity.h"
#include "host/db/OdDbObjectIterator.h"

class INKHOST_EXPORT OdDbRasterImage : public OdDbEntity
{
public:
    using OdDbEntity::OdDbEntity;
    static OdRxClass* desc();
};

class INKHOST_EXPORT OdDbBlockReference : public OdDbEntity
{
public:
    using OdDbEntity::OdDbEntity;
    static OdRxClass* desc();
    static std::span<const OdDbField> fields();

    const OdGePoint3d& position() const { return position_; }
    const OdGeScale3d& scaleFactors() const { return scaleFactors_; }
    /// In radians.
    double rotation() const { return rotation_; }
    /// The definition that is shown here.
    const OdDbObjectId& blockTableRecord() const { return blockTableRecord_; }
    /// Walks the attributes, without the erased ones. Must not outlive the reference.
    OdDbObjectIteratorPtr attributeIterator() const { return odrxNew<OdDbObjectIterator>(attributes_); }

private:
    OdGePoint3d position_;
    OdGeScale3d scaleFactors_;
    double rotation_ = 0.0;
    OdDbObjectId blockTableRecord_;
    OdArray<OdDbObjectId> attributes_;
};

/// A text of a block reference that differs from one reference to the next.
class INKHOST_EXPORT OdDbAttribute : public OdDbEntity
{
public:
    using OdDbEntity::OdDbEntity;
    static OdRxClass* desc();
    static std::span<const OdDbField> fields();

    const OdString& tag() const { return tag_; }
    const OdString& textString() const { return textString_; }

private:
    OdString tag_;
    OdString textString_;
};

/// A table has as many rows and columns as it has heights and widths.
class INKHOST_EXPORT OdDbTable : public OdDbBlockReference
{
public:
    using OdDbBlockReference::OdDbBlockReference;
    static OdRxClass* desc();
    static std::span<const OdDbField> fields();

    unsigned numRows() const { return rowHeights_.length(); }
    unsigned numColumns() const { return columnWidths_.length(); }
    /// Of the whole table, as the next one is.
    double height() const { return height_; }
    double width() const { return width_; }
    /// Raises OdError_InvalidIndex, as the next one does.
    double rowHeight(unsigned row) const { return rowHeights_[row]; }
    double columnWidth(unsigned column) const { return columnWidths_[column]; }
    /// Empty for a cell that was never filled.
    OdString textString(unsigned row, unsigned column) const;
    /// Name of the cell style of a whole row, for which the column is -1. Empty when there is none; cells have none of
    /// their own.
    OdString cellStyle(unsigned row, int column) const;

private:
    double height_ = 0.0;
    double width_ = 0.0;
    OdArray<OdString> cellStyles_; ///< by row, as far as they are given
    OdArray<double> rowHeights_;
    OdArray<double> columnWidths_;
    OdArray<OdArray<OdString>> textStrings_; ///< by row, up to the last filled cell
};

/// A note: text of one or more lines in a box.
class INKHOST_EXPORT OdDbMText : public OdDbEntity
{
public:
    using OdDbEntity::OdDbEntity;
    static OdRxClass* desc();
    static std::span<const OdDbField> fields();

    /// With the format codes.
    const OdString& contents() const { return contents_; }
    const OdDbObjectId& textStyle() const { return textStyle_; }
    double textHeight() const { return textHeight_; }
    /// Of the box, as the user set it.
    double width() const { return width_; }
    /// Of the lines, as they fill the box.
    double actualHeight() const { return actualHeight_; }
    /// In radians.
    double rotation() const { return rotation_; }
    double lineSpacingFactor() const { return lineSpacingFactor_; }
    /// 1 (top left) to 9 (bottom right), row by row.
    int attachment() const { return attachment_; }

    bool backgroundFillOn() const { return backgroundFill_; }
    bool useBackgroundColorOn() const { return useBackgroundColor_; }
    const std::optional<OdCmColor>& getBackgroundFillColor() const { return backgroundFillColor_; }
    /// The filled box in relation to the text's.
    double getBackgroundScaleFactor() const { return backgroundScaleFactor_; }

private:
    OdString contents_;
    OdDbObjectId textStyle_;
    double textHeight_ = 0.0;
    double width_ = 0.0;
    double actualHeight_ = 0.0;
    double rotation_ = 0.0;
    double lineSpacingFactor_ = 1.0;
    int attachment_ = 1;
    bool backgroundFill_ = false;
    bool useBackgroundColor_ = false;
    std::optional<OdCmColor> backgroundFillColor_;
    double backgroundScaleFactor_ = 1.5;
};

/// A tolerance frame.
class INKHOST_EXPORT OdDbFcf : public OdDbEntity
{
public:
    using OdDbEntity::OdDbEntity;
    static OdRxClass* desc();
    static std::span<const OdDbField> fields();

    const OdString& text() const { return text_; }

private:
    OdString text_;
};

/// A curved text.
class INKHOST_EXPORT OdDbArcAlignedText : public OdDbEntity
{
public:
    using OdDbEntity::OdDbEntity;
    static OdRxClass* desc();
    static std::span<const OdDbField> fields();

    const OdString& textString() const { return textString_; }
    /// The arc that the text runs along.
    const OdDbObjectId& arcId() const { return arcId_; }
    const OdDbObjectId& textStyle() const { return textStyle_; }
    const OdString& typeface() const { return typeface_; }
    bool isBold() const { return bold_; }
    bool isItalic() const { return italic_; }
    bool isUnderlined() const { return underlined_; }
    bool isReversedCharOrder() const { return reversed_; }
    /// 1 fit, 2 left, 3 right, 4 center.
    int alignment() const { return alignment_; }
    /// 1 on the arc's convex side, 2 on its concave side.
    int textPosition() const { return textPosition_; }
    /// 1 outward from the center, 2 inward.
    int textDirection() const { return textDirection_; }

private:
    OdString textString_;
    OdDbObjectId arcId_;
    OdDbObjectId textStyle_;
    OdString typeface_;
    bool bold_ = false;
    bool italic_ = false;
    bool underlined_ = false;
    bool reversed_ = false;
    int alignment_ = 1;
    int textPosition_ = 1;
    int textDirection_ = 1;
};

/// A window of a sheet onto the model.
class INKHOST_EXPORT OdDbViewport : public OdDbEntity
{
public:
    using OdDbEntity::OdDbEntity;
    static OdRxClass* desc();
    static std::span<const OdDbField> fields();

    /// Whether an entity, not a rectangle, bounds the window.
    bool isNonRectClipOn() const { return nonRectClip_; }
    const OdDbObjectId& nonRectClipEntityId() const { return nonRectClipEntityId_; }

private:
    bool nonRectClip_ = false;
    OdDbObjectId nonRectClipEntityId_;
};
