// Pictures of other files, and shapes of shape files.

#include "dxf/readers.h"

#include <cmath>

namespace inkmacro::dxf {

namespace {

double length(const OdGeVector3d& vector)
{
    return std::hypot(vector.x, vector.y, vector.z);
}

/// Empty for a picture whose definition is not there.
QString pathOf(const EntityReader& entity, Surroundings& around)
{
    const Group* const link = entity.find(340);
    const Entity* const definition = link ? around.objects.find("IMAGEDEF", link->handle()) : nullptr;
    if (!definition)
        return {};
    EntityReader reader(around.drawing);
    reader.read(*definition);
    return reader.text(1);
}

void takeLight(const EntityReader& entity, int code, qint64 usual, const char* tag, DrawnObject& object)
{
    if (const qint64 value = entity.integer(code, usual); value != usual)
        object.change(tag, static_cast<std::int32_t>(value));
}

} // namespace

void readImage(EntityReader& entity, Parts, Surroundings& around, DrawnObject& object)
{
    enum ImageFlag : qint64
    {
        kIsShown = 1,
        kIsClipped = 4,
    };
    constexpr double near = 1e-9;
    const QString path = pathOf(entity, around);
    if (path.isEmpty())
        throw Lost{"its file is not told"};
    // Along the edges of one pixel.
    const OdGeVector3d across = entity.vector(11);
    const OdGeVector3d up = entity.vector(12);
    const double width = length(across) * entity.real(13);
    const double height = length(up) * entity.real(23);
    if (!(width > 0) || !(height > 0))
        throw Lost{"it has no size"};
    if (across.z != 0 || up.z != 0)
        throw Lost{kTilted};
    const double size = length(across) * length(up);
    if (std::abs(across.x * up.x + across.y * up.y) > near * size)
        object.untold.push_back("that an image is slanted");
    if (across.x * up.y - across.y * up.x < 0)
        object.untold.push_back("that an image is mirrored");
    if (std::abs(length(across) - length(up)) > near * length(across))
        object.untold.push_back("that an image is stretched");
    object.add("Path", CFxString(path));
    object.add("Position X", "Position Y", "Position Z", entity.point(10));
    object.add("Scale", width);
    object.add("Rotation", std::atan2(across.y, across.x));
    object.change("Width", width);
    const qint64 flags = entity.integer(70, kIsShown);
    if (!(flags & kIsShown))
        object.change("Show image", yesOrNo(false));
    takeLight(entity, 281, 50, "Brightness", object);
    takeLight(entity, 282, 50, "Contrast", object);
    takeLight(entity, 283, 0, "Fade", object);
    if (flags & kIsClipped && entity.integer(280) != 0)
        object.untold.push_back("the outline of an image");
}

void readShape(EntityReader& entity, Parts, Surroundings&, DrawnObject& object)
{
    const Direction direction = entity.direction();
    if (direction.isTilted())
        throw Lost{kTilted};
    if (direction.isDown())
        object.untold.push_back("that a shape is seen from behind");
    const QString name = entity.text(2);
    if (name.isEmpty())
        throw Lost{"it has no name"};
    object.add("Position X", "Position Y", "Position Z", direction.toWorld(entity.point(10)));
    object.add("Name", CFxString(name));
    object.add("Size", entity.real(40));
    object.add("Rotation", entity.radians(50));
    if (const double factor = entity.real(41, 1.0); factor != 1.0)
        object.change("Width factor", factor);
    if (const double oblique = entity.radians(51); oblique != 0)
        object.change("Obliquing", oblique);
}

} // namespace inkmacro::dxf
