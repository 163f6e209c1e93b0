#include "dxf/Facts.h"

#include "dxf/sameness.h"
#include "host/db/OdDbClassMap.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>
#include <cstring>
#include <numbers>

namespace inkmacro::dxf {

namespace {

/// Values that are not compared as they stand in the recording.
struct Handling
{
    const char* cls; ///< any for null
    const char* tag;
    const char* as; ///< tag of a change; empty when another value says the same, null when it takes another object
};

constexpr Handling kHandlings[] = {
    {"AcDbAttributeDefinition", "TextStyle", "Style"},
    // The box is as high as its lines.
    {"AcDbMText", "TextBoxHeight", ""},
    {"AcDbPolyline", "Vertex Z", ""}, // the elevation
    {"AcDbLeader", "Vertex", nullptr},
};

/// Data of the recording's drawing that properties say again.
constexpr const char* kRepeated[] = {"class",       "handle",       "layer",        "dimensionText",
                                     "patternName", "patternScale", "patternAngle", "vertices"};

/// Of custom actions: what a change can set, by the place among the data.
struct CustomTag
{
    std::int32_t kind;
    std::size_t place;
    const char* tag;
};

constexpr CustomTag kCustomTags[] = {
    {kHatchAction, 0, "Pattern name"},
    {kHatchAction, 1, "Scale"},
    {kHatchAction, 2, "Angle"},
};

constexpr const char* kGlobalWidth = "Global width";
constexpr const char* kStartWidth = "Start segment width";
constexpr const char* kEndWidth = "End segment width";
constexpr const char* kBulge = "bulge";

bool is(const char* text, const char* other)
{
    return text == other || std::strcmp(text, other) == 0;
}

bool isAttribute(const Fact& fact)
{
    return is(fact.group, "BlockAttributes");
}

/// A whole turn more or less is the same direction.
bool isDirection(const char* tag)
{
    return is(tag, "Rotation") || is(tag, "Angle") || is(tag, "Start Angle") || is(tag, "End Angle");
}

const Handling* handlingOf(const OdRxClass* cls, const char* tag)
{
    for (const Handling& handling : kHandlings)
        if (is(handling.tag, tag) && (!handling.cls || cls->name() == OdString(handling.cls)))
            return &handling;
    return nullptr;
}

bool isOf(const OdRxClass* cls, const char* name)
{
    return cls == oddbClassByName(name);
}

bool areSame(const std::vector<Property>& left, const std::vector<Property>& right)
{
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](const Property& one, const Property& other) {
                          return is(one.tag, other.tag) && is(one.group, other.group) && one.ownTag == other.ownTag &&
                                 dxf::isSame(one.value, other.value);
                      });
}

/// The everyday case, in which nothing has to be taken apart.
bool isPlainlySame(const DrawnObject& left, const DrawnObject& right)
{
    return left.cls == right.cls && left.making == DrawnObject::Making::Added && left.making == right.making &&
           left.drawing == right.drawing && left.repeats.empty() && right.repeats.empty() && left.unsaid.empty() &&
           right.unsaid.empty() && left.untold == right.untold && areSame(left.properties, right.properties) &&
           areSame(left.changes, right.changes);
}

struct Key
{
    explicit Key(const Fact& fact) : tag(fact.tag), ownTag(fact.ownTag.toQString().toLower()), index(fact.index) {}
    bool operator==(const Key&) const = default;

    std::string_view tag;
    QString ownTag;
    std::int32_t index;
};

struct KeyHash
{
    std::size_t operator()(const Key& key) const
    {
        return mixed(std::hash<std::string_view>()(key.tag) + qHash(key.ownTag) +
                     mixed(static_cast<quint32>(key.index)));
    }
};

} // namespace

Comparison::Comparison(const ChangeForms& forms, Contents& before, Contents& after)
    : forms_(forms), before_(before), after_(after)
{
    constexpr const char* layer = "AcDbLayerTableRecord";
    Surroundings& around = before.around();
    const CFxVariant byLayer = around.lineStyles.id("ByLayer");
    const CFxVariant continuous = around.lineStyles.id("Continuous");
    const NamedObjects::Named* const standard = around.textStyles.find(QStringLiteral("Standard"));
    const CFxString standardName = standard ? standard->name : QStringLiteral("Standard");
    const auto add = [&](const char* tag, CFxVariant value, const char* cls = nullptr) {
        usual_[tag].emplace_back(cls, std::move(value));
    };
    // The classes in front of what holds for all.
    constexpr std::int32_t white = 7;
    constexpr std::int32_t usualWeightOfLayer = -3;
    constexpr std::int32_t weightByLayer = -1;
    add("Color", OdCmColor::byIndex(white), layer);
    add("LineStyle", continuous, layer);
    add("LineStyle", byLayer);
    add("LineWeight", usualWeightOfLayer, layer);
    add("LineWeight", weightByLayer);
    add("LineColor", OdCmColor::byLayer());
    add("Transparency", OdCmTransparency());
    for (const char* const number : {"LineScale", "Spacing", "Line space factor"})
        add(number, 1.0);
    for (const char* const number :
         {"Thickness", "Elevation", "Angle", "Height", "Rotation", kGlobalWidth, kStartWidth, kEndWidth, kBulge})
        add(number, 0.0);
    for (const char* const text : {"Font", "BigFont", "Text override", "Description"})
        add(text, CFxString());
    for (const char* const answer : {"Frozen", "FrozenInNewViewport", "Locked", "Hidden", "Backward", "Backwards",
                                     "UpsideDown", "Upside down", "Vertical"})
        add(answer, yesOrNo(false));
    add("Printable", yesOrNo(true));
    add("LineStyleGen", choice(1, "Disabled"));
    add("Type", CFxString("Predefined"), "AcDbHatch");
    for (const char* const origin : {"Origin X", "Origin Y"})
        add(origin, 0.0);
    add("On", choice(0, "Yes"));
    add("Display locked", choice(1, "No"));
    add("Shade print", choice(0, "As displayed"));
    add("M closed", choice(1, "No"));
    add("N closed", choice(1, "No"));
    add("Fit/Smooth", choice(0, "None"));
    add("Show image", yesOrNo(true));
    constexpr double usualLight = 50;
    add("Brightness", usualLight);
    add("Contrast", usualLight);
    add("Fade", 0.0);
    add("Width factor", 1.0);
    add("Obliquing", 0.0);
    add("TextStyle", standardName);
    if (standard)
        add("Style", around.textStyles.id("Standard"), "AcDbMText");
}

CFxVariant Comparison::usual(const OdRxClass* cls, const Fact& fact) const
{
    if (const auto found = usual_.find(fact.tag); found != usual_.end())
        for (const auto& [owner, value] : found->second)
            if (!owner || isOf(cls, owner))
                return value;
    return {};
}

void Comparison::take(const DrawnObject& object, const Property& property, FactList& facts)
{
    const char* name = property.tag;
    bool isFixed = object.isStandIn;
    if (const Handling* const handling = handlingOf(object.cls, name)) {
        if (handling->as && !*handling->as)
            return;
        isFixed = isFixed || !handling->as;
        name = handling->as ? handling->as : name;
    }
    if (property.value.GetType() != CFxVariant::kCollection) {
        facts.push_back({name, property.value, Fact::kSingle, property.group, property.ownTag, isFixed});
        return;
    }
    // Of a list of points each number can change alone.
    const auto& elements = property.value.GetCollection().GetCollectionDataForRead();
    const bool arePoints =
        std::all_of(elements.begin(), elements.end(), [](const CFxVariantCollectionElement& element) {
            return element.GetValue()->GetType() == CFxVariant::kPoint3d;
        });
    const auto axis = [&](const char* letter) { return tag(std::string(name) + ' ' + letter); };
    const char* const axes[] = {axis("X"), axis("Y"), axis("Z")};
    const bool hasZ = !handlingOf(object.cls, axes[2]);
    std::int32_t index = 0;
    for (const CFxVariantCollectionElement& element : elements) {
        if (arePoints) {
            const OdGePoint3d point = element.GetValue()->GetPoint3d();
            facts.push_back({axes[0], point.x, index, "", {}, isFixed});
            facts.push_back({axes[1], point.y, index, "", {}, isFixed});
            if (hasZ)
                facts.push_back({axes[2], point.z, index, "", {}, isFixed});
        } else {
            facts.push_back({name, *element.GetValue(), index, "", {}, true});
        }
        ++index;
    }
}

void Comparison::takePolyline(const DrawnObject& object, FactList& facts)
{
    const auto& data = object.custom;
    enum Place
    {
        kVertices = 0,
        kBulges = 1,
        kIsClosed = 2,
        kStartWidths = 5,
        kEndWidths = 6,
        kHasWidth = 7,
        kWidth = 8,
    };
    std::int32_t index = 0;
    for (const OdGePoint3d& vertex : data[kVertices].GetPointArray()) {
        facts.push_back({"Vertex X", vertex.x, index});
        facts.push_back({"Vertex Y", vertex.y, index++});
    }
    index = 0;
    for (const OdGePoint3d& bulge : data[kBulges].GetPointArray())
        facts.push_back({kBulge, bulge.x, index++, "", {}, true});
    facts.push_back({"Closed", yesOrNo(data[kIsClosed].GetBool())});
    const OdArray<double>& starts = data[kStartWidths].GetDoubleArray();
    const OdArray<double>& ends = data[kEndWidths].GetDoubleArray();
    if (starts.isEmpty()) {
        facts.push_back({kGlobalWidth, data[kHasWidth].GetBool() ? data[kWidth].GetDouble() : 0.0});
        return;
    }
    for (index = 0; index < static_cast<std::int32_t>(starts.length()); ++index) {
        facts.push_back({kStartWidth, starts[index], index});
        facts.push_back({kEndWidth, ends[index], index});
    }
}

namespace {

/// The single values of one datum; a handle only as one that is this object's own or not, since others have no meaning
/// beyond their drawing.
std::vector<CFxVariant> valuesOf(const CFxCustomActionData& datum, const OdDbHandle& own)
{
    std::vector<CFxVariant> values;
    switch (datum.GetType()) {
    case CFxCustomActionData::kInt16:
        return {CFxVariant(std::int32_t{datum.GetInt16()})};
    case CFxCustomActionData::kInt:
        return {CFxVariant(std::int32_t{datum.GetInt()})};
    case CFxCustomActionData::kBool:
        return {CFxVariant(std::int32_t{datum.GetBool()})};
    case CFxCustomActionData::kDouble:
        return {CFxVariant(datum.GetDouble())};
    case CFxCustomActionData::kString:
        return {CFxVariant(datum.GetString())};
    case CFxCustomActionData::kColor:
        return {CFxVariant(datum.GetColor())};
    case CFxCustomActionData::kHandle:
        return {CFxVariant(std::int32_t{datum.GetHandle() == own})};
    case CFxCustomActionData::kPoint:
        return {CFxVariant(datum.GetPoint())};
    case CFxCustomActionData::kVector:
        return {CFxVariant(OdGePoint3d() + datum.GetVector())};
    case CFxCustomActionData::kStringArray:
        for (const CFxString& text : datum.GetStringArray())
            values.emplace_back(text);
        break;
    case CFxCustomActionData::kPointArray:
        for (const OdGePoint3d& point : datum.GetPointArray())
            values.emplace_back(point);
        break;
    case CFxCustomActionData::k2dPointArray:
        for (const OdGePoint2d& point : datum.Get2dPointArray())
            values.emplace_back(OdGePoint3d{point.x, point.y, 0});
        break;
    case CFxCustomActionData::kDoubleArray:
        for (const double number : datum.GetDoubleArray())
            values.emplace_back(number);
        break;
    case CFxCustomActionData::kIntArray:
        for (const int number : datum.GetIntArray())
            values.emplace_back(std::int32_t{number});
        break;
    case CFxCustomActionData::kHandleArray:
        return {CFxVariant(static_cast<std::int32_t>(datum.GetHandleArray().size()))};
    case CFxCustomActionData::kObjectIdArray:
        return {CFxVariant(static_cast<std::int32_t>(datum.GetObjectIdArray().length()))};
    default:
        break;
    }
    return values;
}

} // namespace

/// A window is given by its corners.
void Comparison::takeViewport(const DrawnObject& object, FactList& facts)
{
    enum Corner
    {
        kFirst = 0,
        kOpposite = 2,
        kCorners = 4,
    };
    const OdArray<OdGePoint3d>& corners = object.custom.front().GetPointArray();
    const bool isWindow = corners.length() == kCorners;
    const OdGePoint3d first = isWindow ? corners[kFirst] : OdGePoint3d();
    const OdGePoint3d opposite = isWindow ? corners[kOpposite] : OdGePoint3d();
    facts.push_back({"Center X", (first.x + opposite.x) / 2});
    facts.push_back({"Center Y", (first.y + opposite.y) / 2});
    facts.push_back({"Center Z", (first.z + opposite.z) / 2});
    facts.push_back({"Width", opposite.x - first.x});
    facts.push_back({"Height", opposite.y - first.y});
}

void Comparison::takeCustom(const DrawnObject& object, FactList& facts)
{
    for (std::size_t place = 0; place < object.custom.size(); ++place) {
        const auto known = std::find_if(std::begin(kCustomTags), std::end(kCustomTags), [&](const CustomTag& custom) {
            return custom.kind == object.customKind && custom.place == place;
        });
        const bool isFixed = known == std::end(kCustomTags);
        const char* const name = isFixed ? tag("datum " + std::to_string(place)) : known->tag;
        const std::vector<CFxVariant> values = valuesOf(object.custom[place], object.handle);
        std::int32_t index = isFixed ? 0 : Fact::kSingle;
        for (const CFxVariant& value : values)
            facts.push_back({name, value, index++, "", {}, isFixed});
    }
}

namespace {

/// Handles that only tell one drawing's objects apart become numbers, or nothing.
class JsonFacts
{
public:
    JsonFacts(const DrawnObject& object, Contents& contents, std::vector<Fact>& facts)
        : object_(object), contents_(contents), facts_(facts)
    {
    }

    void take(const char* tag, const QString& path, const QJsonValue& value)
    {
        if (value.isObject()) {
            const QJsonObject members = value.toObject();
            for (auto member = members.begin(); member != members.end(); ++member)
                if (std::none_of(std::begin(kRepeated), std::end(kRepeated),
                                 [&](const char* key) { return member.key() == QLatin1String(key); }))
                    take(tag, path + '.' + member.key(), member.value());
        } else if (value.isArray()) {
            int index = 0;
            for (const QJsonValue& element : value.toArray())
                take(tag, path + '.' + QString::number(index++), element);
        } else if (value.isDouble()) {
            add(tag, path, value.toDouble());
        } else if (value.isBool()) {
            add(tag, path, std::int32_t{value.toBool()});
        } else if (value.isString() && !isHandle(value.toString())) {
            add(tag, path, CFxString(value.toString()));
        }
    }

private:
    void add(const char* tag, const QString& path, CFxVariant value)
    {
        facts_.push_back({tag, std::move(value), Fact::kSingle, "", path, true});
    }

    bool isHandle(const QString& text) const
    {
        bool isNumber = false;
        const quint64 handle = text.toULongLong(&isNumber, 16);
        return isNumber && (contents_.drawing().hasHandle(handle) || handle == object_.handle.value());
    }

    const DrawnObject& object_;
    Contents& contents_;
    std::vector<Fact>& facts_;
};

} // namespace

void Comparison::takeDrawing(const DrawnObject& object, Contents& contents, FactList& facts)
{
    JsonFacts into(object, contents, facts);
    int number = 0;
    for (const QByteArray& line : object.drawing.split('\n'))
        if (!line.isEmpty())
            into.take("drawing", QString::number(number++), QJsonDocument::fromJson(line).object().value("object"));
}

/// An external reference is inserted by its file.
void Comparison::takeBlock(Contents& contents, FactList& facts)
{
    const auto name = std::find_if(facts.begin(), facts.end(), [](const Fact& fact) { return is(fact.tag, "Name"); });
    if (name == facts.end())
        return;
    const Blocks::Made* const block = contents.blocks().find(name->value.GetString());
    if (block && !block->path.isNull())
        facts.push_back({"path", CFxString(block->path), Fact::kSingle, "", {}, true});
}

namespace {

/// A longer axis is a change; one that is turned takes another ellipse.
void tellAxis(std::vector<Fact>& facts)
{
    static constexpr const char* tags[] = {"Major axis vector X", "Major axis vector Y", "Major axis vector Z"};
    Fact* axis[3] = {};
    for (Fact& fact : facts)
        for (int i = 0; i < 3; ++i)
            if (is(fact.tag, tags[i]))
                axis[i] = &fact;
    if (!axis[0] || !axis[1] || !axis[2])
        return;
    const bool isFixed = axis[0]->isFixed;
    const double length =
        std::hypot(axis[0]->value.GetDouble(), axis[1]->value.GetDouble(), axis[2]->value.GetDouble());
    for (Fact* const fact : axis) {
        fact->value = fact->value.GetDouble() / length;
        fact->isFixed = true;
    }
    facts.push_back({"Major radius", length, Fact::kSingle, "", {}, isFixed});
}

} // namespace

void Comparison::take(const DrawnObject& object, Contents& contents, FactList& facts)
{
    facts.clear();
    if (object.making != DrawnObject::Making::Added) {
        if (object.customKind == kPolylineAction)
            takePolyline(object, facts);
        else if (object.customKind == kViewportAction)
            takeViewport(object, facts);
        else
            takeCustom(object, facts);
    }
    if (object.making != DrawnObject::Making::Custom)
        for (const Property& property : object.properties)
            take(object, property, facts);
    for (auto property = object.changes.begin(); property != object.changes.end(); ++property) {
        const std::size_t first = facts.size();
        take(object, *property, facts);
        const bool isSecond =
            !*property->group && std::any_of(object.changes.begin(), property,
                                             [&](const Property& other) { return is(other.tag, property->tag); });
        // Alone, it would be taken for the first one.
        for (std::size_t i = first; isSecond && i < facts.size(); ++i) {
            facts[i].index = Fact::kSecond;
            facts[i].isFixed = true;
        }
    }
    for (const Property& property : object.unsaid)
        facts.push_back({property.tag, property.value, Fact::kSingle, property.group, property.ownTag, true});
    if (!object.drawing.isEmpty())
        takeDrawing(object, contents, facts);
    if (isOf(object.cls, "AcDbEllipse"))
        tellAxis(facts);
    if (isOf(object.cls, "AcDbBlockReference"))
        takeBlock(contents, facts);
    // What is drawn as another curve is not that curve in the drawing.
    if (object.deviation)
        for (Fact& fact : facts)
            fact.isFixed = fact.isFixed || fact.index != Fact::kSingle;
    if (!object.repeats.empty()) {
        const auto position = [&](const char* tag) {
            const auto found = std::find_if(object.properties.begin(), object.properties.end(),
                                            [&](const Property& property) { return is(property.tag, tag); });
            return found == object.properties.end() ? 0.0 : found->value.GetDouble();
        };
        const OdGePoint3d first{position("Position X"), position("Position Y"), position("Position Z")};
        std::int32_t index = 0;
        for (const OdGePoint3d& place : object.repeats)
            facts.push_back(
                {"place", OdGePoint3d{place.x - first.x, place.y - first.y, place.z - first.z}, index++, "", {}, true});
    }
}

std::uint64_t Comparison::hash(const DrawnObject& object, Contents& contents)
{
    take(object, contents, is_);
    std::uint64_t hash = mixed(qHash(QString(object.cls->name())));
    // In any order; what may be missing is left to the comparison.
    for (const Fact& fact : is_)
        if (!usual_.contains(fact.tag) && !isDirection(fact.tag))
            hash += mixed(KeyHash()(Key(fact)) + hashOf(fact.value));
    return hash;
}

CFxVariant Comparison::formed(const CFxVariant& value, const ChangeForm& form) const
{
    if (value.GetType() == CFxVariant::kString && !form.takesText && form.takesItem) {
        const int place = form.words.indexOf(value.GetString());
        return CFxVariantCollectionElement(form.firstWord + std::max(place, 0), value);
    }
    if (value.GetType() == CFxVariant::kId && !form.takesObject && form.takesText) {
        for (Contents* const contents : {&before_, &after_})
            for (NamedObjects* const names : {&contents->around().textStyles, &contents->around().lineStyles,
                                              &contents->around().dimensionStyles, &contents->around().layers})
                if (const NamedObjects::Named* const named = names->findHandle(value.GetId().getHandle().value()))
                    return CFxString(named->name);
    }
    return value;
}

void Comparison::compare(const OdRxClass* cls, const Fact& was, const Fact& is, Difference& difference) const
{
    if (isSame(was.value, is.value) || (isDirection(is.tag) && isSameDirection(was.value, is.value)))
        return;
    const ChangeForm* const form = was.isFixed || is.isFixed ? nullptr : forms_(cls, CFxString(is.tag), is.group);
    if (!form || form->isNumbered != (is.index != Fact::kSingle)) {
        difference.isOther = true;
        return;
    }
    difference.changes.push_back({is.tag, formed(is.value, *form),
                                  is.index == Fact::kSingle ? CFxVariant::kNull : CFxVariant(is.index), is.group,
                                  is.ownTag, formed(was.value, *form)});
}

namespace {

/// With one width for all segments on one side and one each on the other, each has to be told.
void tellEachWidth(std::vector<Fact>& facts, std::vector<Fact>& other)
{
    const auto hasEach = [](const std::vector<Fact>& list) {
        return std::any_of(list.begin(), list.end(), [](const Fact& fact) { return is(fact.tag, kStartWidth); });
    };
    if (hasEach(facts) == hasEach(other))
        return;
    std::vector<Fact>& single = hasEach(facts) ? other : facts;
    double width = 0;
    std::int32_t count = 0;
    for (const Fact& fact : single) {
        if (is(fact.tag, kGlobalWidth))
            width = fact.value.GetDouble();
        if (is(fact.tag, "Vertex X"))
            ++count;
    }
    std::erase_if(single, [](const Fact& fact) { return is(fact.tag, kGlobalWidth); });
    for (std::int32_t index = 0; index < count; ++index) {
        single.push_back({kStartWidth, width, index});
        single.push_back({kEndWidth, width, index});
    }
}

} // namespace

void Comparison::compareAll(const OdRxClass* cls, Difference& difference)
{
    // The last one counts: what is changed behind an added object.
    using ByKey = std::unordered_map<Key, const Fact*, KeyHash>;
    const auto byKey = [](const FactList& facts) {
        ByKey all;
        for (const Fact& fact : facts)
            all.insert_or_assign(Key(fact), &fact);
        return all;
    };
    const ByKey was = byKey(was_);
    ByKey is = byKey(is_);
    const auto compareWithUsual = [&](const Fact& fact, bool isNew) {
        if (isAttribute(fact)) {
            difference.untold.push_back("an attribute that comes or goes");
            return;
        }
        const Fact missing{fact.tag, usual(cls, fact), fact.index, fact.group, fact.ownTag, fact.isFixed};
        if (missing.value.IsNull())
            difference.isOther = true;
        else if (isNew)
            compare(cls, missing, fact, difference);
        else
            compare(cls, fact, missing, difference);
    };
    // In their order.
    for (const Fact& fact : is_) {
        const Key key(fact);
        const auto last = is.find(key);
        if (!last->second)
            continue;
        if (const auto found = was.find(key); found != was.end())
            compare(cls, *found->second, *last->second, difference);
        else
            compareWithUsual(*last->second, true);
        last->second = nullptr;
        if (difference.isOther)
            return;
    }
    for (const Fact& fact : was_) {
        const Key key(fact);
        if (!difference.isOther && is.emplace(key, nullptr).second)
            compareWithUsual(*was.at(key), false);
    }
}

Difference Comparison::difference(const DrawnObject& before, const DrawnObject& after)
{
    Difference difference;
    if (isPlainlySame(before, after))
        return difference;
    if (before.cls != after.cls) {
        difference.isOther = true;
        return difference;
    }
    take(before, before_, was_);
    take(after, after_, is_);
    if (isOf(before.cls, "AcDbPolyline"))
        tellEachWidth(was_, is_);
    compareAll(before.cls, difference);
    for (const auto& [one, other] :
         {std::pair(&before.untold, &after.untold), std::pair(&after.untold, &before.untold)})
        for (const char* const what : *one)
            if (std::none_of(other->begin(), other->end(), [&](const char* told) { return is(told, what); }))
                difference.untold.push_back(what);
    return difference;
}

} // namespace inkmacro::dxf
