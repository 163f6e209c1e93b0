// Records of tables: line styles, layers, text styles.

#include "dxf/DrawingLine.h"
#include "dxf/readers.h"

#include <cmath>

namespace inkmacro::dxf {

namespace {

/// Every drawing has it, so that none is made of that name.
bool isThereAnyway(const QString& name)
{
    static const QString names[] = {QStringLiteral("0"), QStringLiteral("ByLayer"), QStringLiteral("ByBlock"),
                                    QStringLiteral("Continuous")};
    return std::any_of(std::begin(names), std::end(names),
                       [&](const QString& known) { return known.compare(name, Qt::CaseInsensitive) == 0; });
}

void takeName(const QString& name, DrawnObject& object)
{
    if (!isThereAnyway(name))
        object.add("Name", CFxString(name));
}

void readLayer(EntityReader& record, Parts, Surroundings& around, DrawnObject& object)
{
    enum LayerFlag : qint64
    {
        kFrozen = 1,
        kFrozenInNewViewports = 2,
        kLocked = 4,
    };
    const QString name = record.text(2);
    DrawingLine(object.drawing, "AcDbLayerTableRecord", object.handle).with("name", name);
    takeName(name, object);

    constexpr qint64 white = 7;
    constexpr qint64 mostColors = 255;
    qint64 color = record.integer(62, white);
    if (color == 0 || color < -mostColors || color > mostColors) {
        object.untold.push_back(kNoColor);
        color = white;
    }
    // One that is off has its color below zero.
    const bool isOff = color < 0;
    if (const Group* trueColor = record.find(420))
        object.change("Color", trueColorOf(*trueColor));
    else if (const qint64 index = isOff ? -color : color; index != white)
        object.change("Color", OdCmColor::byIndex(static_cast<std::uint16_t>(index)));
    if (const Group* style = record.find(6);
        style && around.drawing.text(*style).compare("Continuous", Qt::CaseInsensitive) != 0)
        if (CFxVariant id = around.lineStyles.id(style->bytes); !id.IsNull())
            object.change("LineStyle", std::move(id));
    constexpr qint64 usualWeight = -3;
    if (const qint64 weight = record.integer(370, usualWeight); !isLineWeight(weight))
        object.untold.push_back(kNoLineWeight);
    else if (weight != usualWeight)
        object.change("LineWeight", static_cast<std::int32_t>(weight));
    const qint64 flags = record.integer(70);
    if (flags & kFrozen)
        object.change("Frozen", yesOrNo(true));
    if (flags & kFrozenInNewViewports)
        object.change("FrozenInNewViewport", yesOrNo(true));
    if (flags & kLocked)
        object.change("Locked", yesOrNo(true));
    if (record.integer(290, 1) == 0)
        object.change("Printable", yesOrNo(false));
    if (isOff)
        object.change("Hidden", yesOrNo(true));
}

void readLineStyle(EntityReader& record, Parts, Surroundings&, DrawnObject& object)
{
    const QString name = record.text(2);
    DrawingLine(object.drawing, "AcDbLinetypeTableRecord", object.handle)
        .with("name", name)
        .with("comments", record.text(3));
    takeName(name, object);
}

void readTextStyle(EntityReader& record, Parts, Surroundings&, DrawnObject& object)
{
    enum StyleFlag : qint64
    {
        kShapeFile = 1,
        kVertical = 4,
    };
    enum LetterFlag : qint64
    {
        kBackwards = 2,
        kUpsideDown = 4,
    };
    const QString name = record.text(2);
    const qint64 flags = record.integer(70);
    DrawingLine(object.drawing, "AcDbTextStyleTableRecord", object.handle)
        .with("name", name)
        .with("isShapeFile", static_cast<bool>(flags & kShapeFile))
        .with("fileName", record.text(3));
    object.add("Name", CFxString(name));
    if (flags & kShapeFile)
        return;
    if (const QString font = record.text(3); !font.isEmpty())
        object.add("Font", CFxString(font));
    if (const QString font = record.text(4); !font.isEmpty())
        object.change("BigFont", CFxString(font));
    if (const double height = record.real(40); height != 0)
        object.change("Height", height);
    if (const double factor = record.real(41, 1.0); factor != 1.0)
        object.change("Spacing", factor);
    if (const double oblique = record.radians(50); oblique != 0)
        object.change("Angle", oblique);
    const qint64 letters = record.integer(71);
    if (letters & kBackwards)
        object.change("Backwards", yesOrNo(true));
    if (letters & kUpsideDown)
        object.change("Upside down", yesOrNo(true));
    if (flags & kVertical)
        object.change("Vertical", yesOrNo(true));
}

constexpr KindRow kTables[] = {
    {"LTYPE", "AcDbLinetypeTableRecord", &readLineStyle},         {"LAYER", "AcDbLayerTableRecord", &readLayer},
    {"STYLE", "AcDbTextStyleTableRecord", &readTextStyle},        {"MLINESTYLE", "AcDbMlineStyle", &readRichLineStyle},
    {"DIMSTYLE", "AcDbDimStyleTableRecord", &readDimensionStyle},
};

} // namespace

std::span<const KindRow> tableKinds()
{
    return kTables;
}

NamedObjects* Surroundings::table(std::string_view name)
{
    const std::pair<std::string_view, NamedObjects*> tables[] = {{"LAYER", &layers},
                                                                 {"LTYPE", &lineStyles},
                                                                 {"STYLE", &textStyles},
                                                                 {"DIMSTYLE", &dimensionStyles},
                                                                 {"MLINESTYLE", &richLineStyles}};
    for (const auto& [known, objects] : tables)
        if (known == name)
            return objects;
    return nullptr;
}

} // namespace inkmacro::dxf
