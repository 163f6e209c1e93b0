#include "host/db/OdDbEntities.h"
#include "host/db/OdDbRecords.h"
#include "view/Affine.h"
#include "view/attributes.h"
#include "view/drawers.h"

namespace inkmacro::view {

namespace {

/// The record of the block: by the name that the actions say, else as the drawing has it.
const Values* recordOf(const Values& values)
{
    if (const std::optional<QString> name = values.text("Name"))
        if (const Values* const record = values.named("AcDbBlockTableRecord", *name))
            return record;
    const auto* const drawn = values.drawnAs<OdDbBlockReference>();
    return drawn && !drawn->blockTableRecord().isNull() ? values.other(drawn->blockTableRecord().getHandle()) : nullptr;
}

std::optional<std::uint16_t> spaceOf(const Values& values)
{
    if (const std::optional<QString> name = values.text("Name"))
        if (const std::optional<std::uint16_t> space = values.spaceOf(*name))
            return space;
    const auto* const drawn = values.drawnAs<OdDbBlockReference>();
    return drawn && !drawn->blockTableRecord().isNull() ? values.spaceOf(drawn->blockTableRecord().getHandle())
                                                        : std::nullopt;
}

/// From the definition to where it lands.
Affine placeOf(const Values& values)
{
    const auto* const drawn = values.drawnAs<OdDbBlockReference>();
    const OdGeScale3d scales = drawn ? drawn->scaleFactors() : OdGeScale3d();
    const Point at = fromAbove(values.point("Position").value_or(drawn ? drawn->position() : OdGePoint3d()));
    const double angle = values.number("Rotation").value_or(drawn ? drawn->rotation() : 0.0);
    const double x = values.number("Scale X").value_or(scales.sx);
    const double y = values.number("Scale Y").value_or(scales.sy);
    return Affine::moved(at.x, at.y) * Affine::rotated(angle) * Affine::scaled(x, y);
}

struct FrameSize
{
    double width;
    double height;
};

/// Stands for what is not drawn itself: a frame from the lower left corner, with a diagonal where it is a picture.
void drawFrame(Pen& pen, const Affine& place, FrameSize size, const QString& name, bool isPicture)
{
    pen.setRole(Role::Frame);
    const auto at = [&place](double x, double y) { return place * Point{x, y}; };
    Outline frame;
    frame.move(at(0.0, 0.0))
        .line(at(size.width, 0.0))
        .line(at(size.width, size.height))
        .line(at(0.0, size.height))
        .close();
    pen.path(frame);
    if (isPicture)
        pen.line(at(0.0, 0.0), at(size.width, size.height));
    Letters letters;
    letters.text = name;
    letters.at = at(size.width / 2.0, size.height / 2.0);
    letters.height = std::min(size.height / 6.0, size.width / 12.0) * place.factor();
    letters.angle = place.angle();
    letters.place = 5;
    if (!name.isEmpty() && letters.height > 0.0)
        pen.text(letters);
}

QString fileNameOf(const QString& path)
{
    return path.section('/', -1).section('\\', -1);
}

/// A frame whose size is not known, and which has to be seen all the same.
constexpr FrameSize kUnknownSize{60.0, 30.0};

} // namespace

void drawBlockReference(const Values& values, Pen& pen)
{
    const Values* const record = recordOf(values);
    const auto* const drawn = record ? record->drawnAs<OdDbBlockTableRecord>() : nullptr;
    if (drawn && drawn->isFromExternalReference()) {
        pen.remark("it shows another drawing");
        drawFrame(pen, placeOf(values), kUnknownSize, fileNameOf(drawn->pathName()), false);
        return;
    }
    const std::optional<std::uint16_t> space = spaceOf(values);
    if (!space) {
        pen.remark("its block is not told");
        return;
    }
    const Point origin = drawn ? fromAbove(drawn->origin()) : Point();
    const Affine place = placeOf(values) * Affine::moved(-origin.x, -origin.y);
    pen.reference({place.a, place.b, place.c, place.d, place.e, place.f}, *space);
    if (record)
        drawAttributes(values, *record, place, pen);
}

void drawImage(const Values& values, Pen& pen)
{
    const std::optional<OdGePoint3d> at = values.point("Position");
    if (!at)
        return;
    const Affine place = Affine::moved(at->x, at->y) * Affine::rotated(values.number("Rotation").value_or(0.0));
    const double scale = values.number("Scale").value_or(1.0);
    const std::optional<double> width = values.number("Width");
    const std::optional<double> height = values.number("Height");
    pen.remark("the picture is not loaded");
    if (!width || !height)
        pen.remark("its size is not recorded");
    drawFrame(pen, place, {width.value_or(height.value_or(scale)), height.value_or(width.value_or(scale))},
              fileNameOf(values.text("Path").value_or(QString())), true);
}

void drawEmbedded(const Values& values, Pen& pen)
{
    const std::optional<OdGePoint3d> at = values.point("Position");
    if (!at)
        return;
    const FrameSize size{values.number("Width").value_or(kUnknownSize.width),
                         values.number("Height").value_or(kUnknownSize.height)};
    pen.remark("the object is not loaded");
    // Its position is the upper left corner.
    drawFrame(pen, Affine::moved(at->x, at->y - size.height), size, fileNameOf(values.text("Path").value_or(QString())),
              true);
}

void drawViewport(const Values& values, Pen& pen)
{
    pen.setRole(Role::Frame);
    pen.remark("what it shows of the model is not recorded");
    const std::optional<OdGePoint3d> center = values.point("Center");
    const std::optional<double> width = values.number("Width");
    const std::optional<double> height = values.number("Height");
    // A boundary of its own wins over the rectangle around it.
    std::vector<Point> corners;
    for (const OdGePoint3d& corner : values.points("Corner"))
        corners.push_back(fromAbove(corner));
    if (corners.empty() && center && width && height) {
        const double x = *width / 2.0;
        const double y = *height / 2.0;
        corners = {{center->x - x, center->y - y},
                   {center->x + x, center->y - y},
                   {center->x + x, center->y + y},
                   {center->x - x, center->y + y}};
    }
    if (corners.size() < 2)
        return;
    Outline outline;
    outline.move(corners.front());
    for (std::size_t i = 1; i < corners.size(); ++i)
        outline.line(corners[i]);
    pen.path(outline.close());
}

void drawShape(const Values& values, Pen& pen)
{
    const std::optional<OdGePoint3d> at = values.point("Position");
    if (!at)
        return;
    const double size = values.number("Size").value_or(1.0);
    pen.remark("its lines are in a file of shapes");
    drawFrame(pen, Affine::moved(at->x, at->y) * Affine::rotated(values.number("Rotation").value_or(0.0)), {size, size},
              values.text("Name").value_or(QString()), false);
}

} // namespace inkmacro::view
