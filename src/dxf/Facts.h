#pragma once

#include "dxf/Contents.h"

#include <QStringList>

#include <functional>
#include <string>

namespace inkmacro::dxf {

/// How a statement takes what changed of one property.
struct ChangeForm
{
    bool isNumbered = false; ///< it is one of several, each with its number
    bool takesText = false;
    bool takesItem = false;
    bool takesObject = false;
    QStringList words = {}; ///< that the value may be; none of a free value
    int firstWord = 0;      ///< number of the first one
};

/// That of a tag, or of all tags of a group; null where no statement takes it.
using ChangeForms = std::function<const ChangeForm*(const OdRxClass* cls, const QString& tag, const char* group)>;

/// What a recording says of an object, taken apart so far that each value can change alone.
struct Fact
{
    static constexpr std::int32_t kSingle = -1;
    static constexpr std::int32_t kSecond = -2; ///< of two values of one name

    const char* tag; ///< that a change has
    CFxVariant value;
    std::int32_t index = kSingle; ///< within a repeated property
    const char* group = "";
    CFxString ownTag = {};
    bool isFixed = false; ///< no statement changes it, whatever its tag
};

/// What differs between two objects.
struct Difference
{
    std::vector<Property> changes;   ///< that turn one into the other, with the values that there were
    std::vector<const char*> untold; ///< what no statement changes, and does not matter for the rest
    bool isOther = false;            ///< it takes another object; nothing is said of the changes then
    const char* lost = nullptr;      ///< why no recording has either of them, when something differs

    bool isNone() const { return !isOther && changes.empty() && !lost; }
};

/// Compares objects of two drawings by their facts.
class Comparison
{
public:
    /// `before` is the older drawing, in which what a missing value stands for is looked up. All have to outlive this.
    Comparison(const ChangeForms& forms, Contents& before, Contents& after);

    Difference difference(const DrawnObject& before, const DrawnObject& after);
    /// The same for objects that draw the same, whatever their handles: an object is read under none for it.
    std::uint64_t hash(const DrawnObject& object, Contents& contents);
    bool takes(const OdRxClass* cls, const char* tag) const { return forms_(cls, tag, ""); }

private:
    using FactList = std::vector<Fact>;

    void take(const DrawnObject& object, Contents& contents, FactList& facts);
    void take(const DrawnObject& object, const Property& property, FactList& facts);
    void takePolyline(const DrawnObject& object, FactList& facts);
    void takeViewport(const DrawnObject& object, FactList& facts);
    void takeCustom(const DrawnObject& object, FactList& facts);
    void takeDrawing(const DrawnObject& object, Contents& contents, FactList& facts);
    void takeBlock(Contents& contents, FactList& facts);
    const char* tag(std::string_view text) { return tags_.emplace(text).first->c_str(); }

    CFxVariant usual(const OdRxClass* cls, const Fact& fact) const;
    CFxVariant formed(const CFxVariant& value, const ChangeForm& form) const;
    void compare(const OdRxClass* cls, const Fact& was, const Fact& is, Difference& difference) const;
    void compareAll(const OdRxClass* cls, Difference& difference);

    const ChangeForms& forms_;
    Contents& before_;
    Contents& after_;
    std::unordered_set<std::string> tags_; ///< that no source has as they stand
    std::unordered_map<std::string_view, std::vector<std::pair<const char*, CFxVariant>>>
        usual_; ///< by tag, then class
    FactList was_;
    FactList is_;
};

} // namespace inkmacro::dxf
