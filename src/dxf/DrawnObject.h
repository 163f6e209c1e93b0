#pragma once

#include "host/kernel/CFxActions.h"
#include "host/kernel/CFxCustomActionData.h"
#include "host/kernel/CFxVariant.h"

#include <QByteArray>

#include <optional>
#include <vector>

namespace inkmacro::dxf {

/// One value of an object, under the name that the recorder gives it.
struct Property
{
    const char* tag;
    CFxVariant value;
    CFxVariant index = CFxVariant::kNull; ///< within a repeated property
    const char* group = "";
    CFxString ownTag = {};              ///< in place of the tag, when the drawing names it
    CFxVariant old = CFxVariant::kNull; ///< what it was before

    CFxString name() const { return ownTag.isEmpty() ? CFxString(tag) : ownTag; }
};

/// An entity of the file that has no object of its own.
struct Part
{
    const char* kind;
    const char* lost; ///< why; null when it came in
};

/// The custom actions by which objects are made.
enum CustomKind : std::int32_t
{
    kSheetAction = 13,
    kPolylineAction = 16,
    kHatchAction = 18,
    kViewportAction = 46,
};

/// What a recording says of one object of a drawing. Coordinates are drawing units of the world, angles radians.
struct DrawnObject
{
    /// By what it comes into the drawing.
    enum class Making
    {
        Added,           ///< by its properties
        Custom,          ///< by a custom action at top level
        CustomInCommand, ///< by a custom action and its properties, in a command of that name
    };

    OdRxClass* cls = nullptr;
    OdDbHandle handle;
    Making making = Making::Added;
    std::vector<Property> properties; ///< that it is added with
    std::vector<Property> changes;    ///< that are set behind it
    const char* command = "";
    std::int32_t customKind = 0;
    std::vector<CFxCustomActionData> custom;
    /// Lines of the recording's drawing that tell more of it or of what it is made from, ready to be written.
    QByteArray drawing;
    std::optional<double>
        deviation; ///< largest distance from what the file says, in drawing units, when it is another curve
    std::vector<const char*> untold; ///< what the file says of it and no recording can
    std::vector<Property> unsaid;    ///< what no recording can say of it, and another drawing may have otherwise
    bool isStandIn = false;          ///< the file has it as another class, so that only its removal can be said of it
    /// It stands there as often again, as another object each time.
    std::vector<OdGePoint3d> repeats;
    /// Entities of the file that came in with it, or why they did not.
    std::vector<Part> parts;

    void clear()
    {
        properties.clear();
        changes.clear();
        custom.clear();
        untold.clear();
        unsaid.clear();
        repeats.clear();
        parts.clear();
        drawing.clear();
        deviation.reset();
        isStandIn = false;
        making = Making::Added;
        command = "";
    }
    void add(const char* tag, CFxVariant value) { properties.push_back({tag, std::move(value)}); }
    void add(const char* x, const char* y, const char* z, const OdGePoint3d& point)
    {
        add(x, point.x);
        add(y, point.y);
        add(z, point.z);
    }
    /// Whether a macro can hold all of its numbers: sums of large ones may be none any more.
    bool isFinite() const;
    /// Of what is added with a position.
    void moveTo(const OdGePoint3d& position);
    void change(const char* tag, CFxVariant value) { changes.push_back({tag, std::move(value)}); }
};

/// Why an entity does not come into the recording.
struct Lost
{
    const char* reason;
};

/// What no recording has of any entity.
inline constexpr const char* kOtherData = "data of other applications";
inline constexpr const char* kNotFinite = "a number is not finite, or beyond all bounds";

/// Of what can only stand upright or upside down.
inline constexpr const char* kTilted = "its plane is tilted";
/// Of texts.
inline constexpr const char* kFromBehind = "it is seen from behind";

// The forms of values that are more than one.

/// A list of points, each with its number.
CFxVariant pointList(const std::vector<OdGePoint3d>& points);
/// A list of handles, each with its number.
CFxVariant handleList(const std::vector<OdDbHandle>& handles);
/// What was chosen of several words.
CFxVariant choice(int number, const CFxString& word);
inline CFxVariant yesOrNo(bool yes)
{
    return CFxString(yes ? "Yes" : "No");
}
/// As an item, which a changed setting has.
inline CFxVariant yesOrNoItem(bool yes)
{
    return yes ? choice(0, "Yes") : choice(1, "No");
}

} // namespace inkmacro::dxf
