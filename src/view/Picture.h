#pragma once

#include "host/db/OdCmColor.h"
#include "host/db/OdDbHandle.h"

#include <QHash>
#include <QString>

#include <cstdint>
#include <optional>
#include <span>
#include <unordered_map>
#include <vector>

namespace inkmacro::view {

/// The forms of what is drawn, each with the numbers that it has. All of it is seen from above: x and y in drawing
/// units, angles in radians against the clock. A path is a row of steps, each a PathStep and its numbers.
enum class Shape : std::uint8_t
{
    Line,  ///< x0 y0 x1 y1
    Arc,   ///< of a circle: center x y, radius, start, sweep; the sweep is negative with the clock, 2 pi for a circle
    Path,  ///< the steps of an outline
    Area,  ///< the steps of a boundary, whose inside is filled by the even-odd rule
    Text,  ///< insertion x y, height of capitals, angle, width or 0, place (1 top left to 9 bottom right, 10 to 12
           ///< left, center and right on the baseline), number of the text; of a line of letters
    Point, ///< x y
    Ray,   ///< from x y, towards x y
    XLine, ///< through x y and x y, without ends
    Reference, ///< a b c d e f, space: what the space holds, with x' = a x + c y + e, y' = b x + d y + f
    Pattern,   ///< number of families, each with angle, base x y, distance, number of dashes, dashes (negative ones are
               ///< gaps); then the steps of the boundary
    Window     ///< a view of model space: lower left x y, width, height, center x y in model space, scale
};

enum class PathStep : std::uint8_t
{
    Move,    ///< x y
    Line,    ///< x y
    Arc,     ///< center x y, radius, start, sweep; begins where the step before has ended
    Ellipse, ///< center x y, axes u x y and v x y, start, sweep: center + u cos t + v sin t
    Bezier,  ///< a cubic one: x1 y1 x2 y2 x3 y3
    Close
};

/// What something is in a picture, which tells how it is shown where it has no color of its own.
enum class Role : std::uint8_t
{
    Object,
    Dimension, ///< of a dimension, a leader or a tolerance
    Frame      ///< stands for what is not drawn itself, such as an image
};

struct Style
{
    Role role = Role::Object;
    std::uint16_t layer = 0; ///< number in Picture::layers
    OdCmColor color;
    bool operator==(const Style&) const = default;
};

struct StyleHash
{
    std::size_t operator()(const Style& style) const;
};

struct Space
{
    enum class Kind : std::uint8_t
    {
        Model,
        Sheet,
        Block
    };
    Kind kind = Kind::Model;
    QString name;
    OdDbHandle block; ///< its definition; null when the drawing does not tell it
};

struct Layer
{
    QString name;
    OdCmColor color = OdCmColor::byIndex(7);
    OdDbHandle handle; ///< null when the drawing does not tell it
};

/// Steps are all actions of a recording, a command in front of what it holds, numbered from 0.
using StepNumber = std::int32_t;
inline constexpr StepNumber kNoStep = -1;

/// An object that the recording or its drawing speaks of.
struct PictureObject
{
    OdDbHandle handle;
    QString className;
    StepNumber added = kNoStep;  ///< kNoStep for one that was there before
    StepNumber erased = kNoStep; ///< kNoStep for one that stays
    std::uint16_t layer = 0;
    std::uint16_t space = 0;
    bool isDrawn = false;    ///< by at least one primitive at any time
    bool hasGeometry = true; ///< a group, a layer and the like have none, and are not missed
    std::uint16_t remark =
        0; ///< 0, or the number from 1 in Picture::remarks: why it is not drawn, or what of it is not
};

/// Something drawn of one object, in the order in which things lie on one another.
struct Primitive
{
    Shape shape = Shape::Line;
    std::uint32_t object = 0; ///< number in Picture::objects
    std::uint16_t style = 0;
    std::uint16_t space = 0;
    StepNumber from = kNoStep;  ///< it is there behind this step; kNoStep for all the time
    StepNumber until = kNoStep; ///< and no longer behind this one; kNoStep for as long as the recording goes
    std::size_t first = 0;      ///< of its numbers in Picture::numbers
    std::size_t count = 0;
};

/// What happens to the picture as a whole at a step.
struct LayerSwitch
{
    StepNumber step;
    std::uint16_t layer;
    bool visible;
};
struct SpaceSwitch
{
    StepNumber step;
    std::uint16_t space; ///< that is shown from then on
};

struct Box
{
    double left;
    double bottom;
    double right;
    double top;
};

/// What a recording shows, made once; the page and the file of SVG draw the same.
struct Picture
{
    std::vector<Space> spaces;    ///< model space, the sheets, the definitions of blocks
    std::uint16_t firstSpace = 0; ///< that is shown when the recording begins
    std::vector<Layer> layers;
    std::vector<Style> styles;
    std::vector<PictureObject> objects;
    std::vector<Primitive> primitives;
    std::vector<double> numbers; ///< all finite
    std::vector<QString> texts;
    std::vector<QString> remarks;
    std::vector<LayerSwitch> layerSwitches;
    std::vector<SpaceSwitch> spaceSwitches;

    std::span<const double> numbersOf(const Primitive& primitive) const
    {
        return {numbers.data() + primitive.first, primitive.count};
    }

    /// The number of a style or a text, which is added when it is new. Of more styles than numbers the last stands for
    /// the others.
    std::uint16_t styleNumber(const Style& style);
    std::uint32_t textNumber(const QString& text);
    /// Adds a clause to what is said of the object, once.
    void addRemark(std::uint32_t object, const QString& text);

private:
    std::unordered_map<Style, std::uint16_t, StyleHash> styleNumbers_;
    QHash<QString, std::uint32_t> textNumbers_;
    QHash<QString, std::uint16_t> remarkNumbers_;
};

/// Around what a primitive draws; none for one without ends, and for a reference to nothing. Letters are estimated.
std::optional<Box> boxOf(const Primitive& primitive, const Picture& picture);

/// Around a space behind the last step.
std::optional<Box> extentsOf(std::uint16_t space, const Picture& picture);

} // namespace inkmacro::view
