#pragma once

#include "host/db/OdDbEntity.h"

class INKHOST_EXPORT OdDbRasterImage : public OdDbEntity
{
public:
    using OdDbEntity::OdDbEntity;
    static OdRxClass* desc();
};

/// A rich line.
class INKHOST_EXPORT OdDbMline : public OdDbEntity
{
public:
    using OdDbEntity::OdDbEntity;
    static OdRxClass* desc();
    static std::span<const OdDbField> fields();

    int numVertices() const { return static_cast<int>(vertices_.length()); }
    /// Raises OdError_InvalidIndex.
    const OdGePoint3d& vertexAt(int index) const { return vertices_[static_cast<std::size_t>(index)]; }
    bool closedMline() const { return closed_; }

private:
    OdArray<OdGePoint3d> vertices_;
    bool closed_ = false;
};

class INKHOST_EXPORT OdDbBlockReference : public OdDbEntity
{
public:
    using OdDbEntity::OdDbEntity;
    static OdRxClass* desc();
    static std::span<const OdDbField> fields();

    /// The definition that is shown here.
    const OdDbObjectId& blockTableRecord() const { return blockTableRecord_; }

private:
    OdDbObjectId blockTableRecord_;
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
    /// Raises OdError_InvalidIndex, as the next one does.
    double rowHeight(unsigned row) const { return rowHeights_[row]; }
    double columnWidth(unsigned column) const { return columnWidths_[column]; }
    /// Empty for a cell that was never filled.
    OdString textString(unsigned row, unsigned column) const;

private:
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

class INKHOST_EXPORT OdDbLeader : public OdDbEntity
{
public:
    enum AnnoType : int
    {
        kMText = 0,
        kFcf = 1,
        kBlockRef = 2,
        kNoAnno = 3,
    };

    using OdDbEntity::OdDbEntity;
    static OdRxClass* desc();
    static std::span<const OdDbField> fields();

    AnnoType annoType() const { return static_cast<AnnoType>(annoType_); }
    const OdDbObjectId& annotationObjectId() const { return annotationObjectId_; }
    double annoWidth() const { return annoWidth_; }

private:
    int annoType_ = kNoAnno;
    OdDbObjectId annotationObjectId_;
    double annoWidth_ = 0.0;
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
