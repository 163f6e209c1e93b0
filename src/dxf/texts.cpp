// Texts, paragraphs, and attribute definitions.

#include "dxf/readers.h"

#include <cmath>

namespace inkmacro::dxf {

namespace {

/// By the vertical alignment, from the baseline up, and the horizontal one.
constexpr const char* kJustifications[4][6] = {
    {"Left", "Center", "Right", "Aligned", "Middle", "Fit"},
    {"Bottom Left", "Bottom Center", "Bottom Right"},
    {"Middle Left", "Middle Center", "Middle Right"},
    {"Top Left", "Top Center", "Top Right"},
};

/// All words in the order in which the application offers them.
constexpr const char* kOffered[] = {
    "Left",          "Center",       "Right",       "Aligned",       "Middle",
    "Fit",           "Top Left",     "Top Center",  "Top Right",     "Middle Left",
    "Middle Center", "Middle Right", "Bottom Left", "Bottom Center", "Bottom Right",
};

CFxVariant offered(const char* word)
{
    int number = 0;
    for (const char* const candidate : kOffered) {
        if (candidate == word || std::string_view(candidate) == word)
            break;
        ++number;
    }
    return choice(number, word);
}

enum TextFlag : qint64
{
    kBackward = 2,
    kUpsideDown = 4,
};

struct Placed
{
    OdGePoint3d position;
    OdGePoint3d alignment;
    const char* justification;
};

/// `vertical` is the code of the vertical alignment.
Placed placeOf(const EntityReader& entity, int vertical)
{
    const Direction direction = entity.direction();
    if (direction.isDown())
        throw Lost{kFromBehind};
    if (direction.isTilted())
        throw Lost{kTilted};
    const qint64 across = entity.integer(72);
    const qint64 up = entity.integer(vertical);
    const char* word = up >= 0 && up < 4 && across >= 0 && across < 6 ? kJustifications[up][across] : nullptr;
    if (!word)
        word = kJustifications[0][0];
    Placed placed{entity.point(10), {}, word};
    const bool isLeft = word == kJustifications[0][0];
    placed.alignment = isLeft || !entity.has(11) ? placed.position : entity.point(11);
    return placed;
}

/// What both kinds of text take only as changes.
void takeLetters(const EntityReader& entity, DrawnObject& object)
{
    if (const double oblique = entity.radians(51); oblique != 0)
        object.change("Angle", oblique);
    if (const double factor = entity.real(41, 1.0); factor != 1.0)
        object.change("Spacing", factor);
    const qint64 flags = entity.integer(71);
    if (flags & kBackward)
        object.change("Backward", yesOrNo(true));
    if (flags & kUpsideDown)
        object.change("UpsideDown", yesOrNo(true));
}

} // namespace

void readText(EntityReader& entity, Parts, Surroundings& around, DrawnObject& object)
{
    const Placed placed = placeOf(entity, 73);
    object.add("Position X", "Position Y", "Position Z", placed.position);
    object.add("Text alignment X", "Text alignment Y", "Text alignment Z", placed.alignment);
    object.add("Height", entity.real(40));
    object.add("Rotation", entity.radians(50));
    object.add("Contents", CFxString(entity.text(1)));
    object.add("Justify", offered(placed.justification));
    if (const Group* name = entity.find(7))
        if (const NamedObjects::Named* style = around.textStyles.find(name->bytes))
            object.change("TextStyle", CFxString(style->name));
    takeLetters(entity, object);
}

void readAttributeDefinition(EntityReader& entity, Parts, Surroundings& around, DrawnObject& object)
{
    enum AttributeFlag : qint64
    {
        kInvisible = 1,
        kConstant = 2,
        kVerify = 4,
        kPreset = 8,
    };
    const Placed placed = placeOf(entity, 74);
    object.add("Value", CFxString(entity.text(1)));
    object.add("Tag", CFxString(entity.text(2)));
    object.add("Prompt", CFxString(entity.text(3)));
    const Group* const style = entity.find(7);
    if (CFxVariant id = around.textStyles.id(style ? style->bytes : std::string_view("STANDARD")); !id.IsNull())
        object.add("TextStyle", std::move(id));
    // Without it, the definition would stand at the origin.
    object.add("Justify", offered(placed.justification));
    object.add("Position X", "Position Y", "Position Z", placed.position);
    object.add("Text alignment X", "Text alignment Y", "Text alignment Z", placed.alignment);
    object.add("Height", entity.real(40));
    object.add("Rotation", entity.radians(50));
    const qint64 flags = entity.integer(70);
    object.add("Constant", yesOrNo(flags & kConstant));
    object.add("Invisible", yesOrNo(flags & kInvisible));
    object.add("Preset", yesOrNo(flags & kPreset));
    object.add("Verify", yesOrNo(flags & kVerify));
    object.add("Lock position", yesOrNo(entity.integer(280) == 1));
    takeLetters(entity, object);
}

namespace {

/// The lines that a paragraph takes when nothing wraps.
int linesOf(const QString& contents)
{
    return 1 + contents.count(QLatin1String("\\P"));
}

/// From baseline to baseline, in heights of the letters.
constexpr double kLineDistance = 5.0 / 3.0;

double angleOf(const EntityReader& entity)
{
    // An axis goes before an angle, whichever comes first.
    if (!entity.has(11))
        return entity.radians(50);
    const OdGeVector3d axis = entity.vector(11);
    return std::atan2(axis.y, axis.x);
}

} // namespace

void readParagraphs(EntityReader& entity, Parts, Surroundings& around, DrawnObject& object)
{
    static constexpr const char* attachments[] = {"Top Left",    "Top Center",    "Top Right",
                                                  "Middle Left", "Middle Center", "Middle Right",
                                                  "Bottom Left", "Bottom Center", "Bottom Right"};
    const Direction direction = entity.direction();
    if (direction.isDown())
        throw Lost{kFromBehind};
    if (direction.isTilted())
        throw Lost{kTilted};
    QString contents;
    QByteArray bytes;
    for (const Group& group : entity.groups())
        if (group.code == 1 || group.code == 3)
            bytes.append(group.bytes.data(), static_cast<int>(group.bytes.size()));
    contents = around.drawing.decoder().text({bytes.constData(), static_cast<std::size_t>(bytes.size())});

    const double height = entity.real(40);
    const qint64 attachment = entity.integer(71, 1);
    const int place = attachment >= 1 && attachment <= 9 ? static_cast<int>(attachment) - 1 : 0;
    object.add("Width", entity.real(41));
    object.add("Text Height", height);
    object.add("Position X", "Position Y", "Position Z", entity.point(10));
    object.add("Justify", choice(place, attachments[place]));
    object.add("Contents", CFxString(contents));
    if (const Group* name = entity.find(7))
        if (CFxVariant id = around.textStyles.id(name->bytes); !id.IsNull())
            object.add("Style", std::move(id));
    object.add("Rotation", angleOf(entity));
    const double factor = entity.real(44, 1.0);
    // Without a height there is no box to put it into.
    const double boxHeight = entity.real(46, entity.real(43));
    object.add("TextBoxHeight", boxHeight > 0 ? boxHeight : linesOf(contents) * height * kLineDistance * factor);
    if (factor != 1.0)
        object.change("Line space factor", factor);
}

} // namespace inkmacro::dxf
