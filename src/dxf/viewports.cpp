// Windows of sheets into model space.

#include "dxf/readers.h"

#include <array>

namespace inkmacro::dxf {

namespace {

enum ViewportFlag : qint64
{
    kLocked = 0x4000,
    kHasOutline = 0x10000, ///< another than its rectangle
    kOff = 0x20000,
};

} // namespace

void readViewport(EntityReader& entity, Parts, Surroundings& around, DrawnObject& object)
{
    if (around.sheet.isNull())
        throw Lost{"it is on no sheet"};
    if (entity.integer(69) == 1)
        throw Lost{"it is the sheet itself"};
    const OdGePoint3d center = entity.point(10);
    const double width = entity.real(40);
    const double height = entity.real(41);
    const OdGeVector3d across{width / 2, 0, 0};
    const OdGeVector3d up{0, height / 2, 0};
    OdArray<OdGePoint3d> corners;
    for (const OdGePoint3d& corner :
         {center - across - up, center + across - up, center + across + up, center - across + up})
        corners.append(corner);
    object.making = DrawnObject::Making::Custom;
    object.customKind = kViewportAction;
    object.custom = {{corners},
                     {OdArray<OdGePoint3d>()},
                     {false},
                     {object.handle},
                     {static_cast<const OdRxClass*>(object.cls)},
                     {CFxString(around.sheet)}};

    if (const double shown = entity.real(45); shown != 0)
        object.change("Custom scale", height / shown);
    const qint64 flags = entity.integer(90);
    if (flags & kOff || entity.integer(68, 1) == 0)
        object.change("On", choice(1, "No"));
    if (flags & kLocked)
        object.change("Display locked", choice(0, "Yes"));
    static constexpr std::array shades{"As displayed", "Wireframe", "Hidden", "Rendered"};
    const qint64 shade = entity.integer(170);
    if (shade > 0 && shade < qint64{shades.size()})
        object.change("Shade print", choice(static_cast<int>(shade), shades[static_cast<std::size_t>(shade)]));
    object.untold.push_back("the place that a viewport shows");
    if (flags & kHasOutline)
        object.untold.push_back("the outline of a viewport");
    if (entity.has(331) || entity.has(341))
        object.untold.push_back("the layers that are frozen in a viewport");
}

} // namespace inkmacro::dxf
