#include "view/Fold.h"

#include "view/attributes.h"
#include "view/blockParts.h"
#include "view/customActions.h"
#include "view/kinds.h"
#include "view/transform.h"

#include <algorithm>
#include <cmath>

namespace inkmacro::view {

namespace {

/// Of a primitive that is replaced at the step at which it was drawn.
constexpr StepNumber kNever = -2;

/// So many numbers of states that others have replaced are kept, 128 MB. Behind that, all further changes of an object
/// are shown as one.
constexpr std::size_t kMostFormer = 16'000'000;

bool isYes(const QString& word)
{
    return word.compare(QLatin1String("yes"), Qt::CaseInsensitive) == 0;
}

/// The tag by which records of the class are named.
const char* nameTag(const OdRxClass& cls)
{
    const QString& name = cls.name();
    if (name == "AcDbDimStyleTableRecord")
        return "DimensionStyleName";
    if (name == "AcDbTableStyle")
        return "TableStyleName";
    if (name == "AcDbMlineStyle")
        return "RichLineStyleName";
    return "Name";
}

} // namespace

Fold::Fold(Picture& picture, OdDbDatabase& database, const PictureSource& source)
    : picture_(picture),
      database_(database),
      spaces_(picture, database),
      objects_(database, spaces_, source.context),
      layers_(picture, database)
{
    if (!source.sheet.isEmpty())
        space_ = spaces_.sheet(source.sheet);
    picture.firstSpace = space_;
}

void Fold::run(const CFxActionArray& actions)
{
    findAdded(actions);
    objects_.reserve(added_.size());
    const OdDbHandle layer = database_.getCLAYER().isNull() ? OdDbHandle() : database_.getCLAYER().getHandle();
    // What the recording adds was not the current one when it began.
    if (!layer.isNull() && added_.count(layer) == 0)
        layers_.setCurrent(layers_.at(layer));
    addDrawn();
    const Siblings none({});
    siblings_ = &none;
    walk(actions);
    drawPostponed();
    finish();
}

void Fold::findAdded(const CFxActionArray& actions)
{
    for (const OdRxObjectPtr& action : actions) {
        if (const auto command = odrxQuery<CFxUserCommand>(action.get())) {
            findAdded(command->GetActions());
        } else if (const auto added = odrxQuery<CFxObjectAdded>(action.get())) {
            added_.insert(added->GetHandle());
            if (added->GetObjectClass() == OdDbBlockTableRecord::desc())
                definedLater_.insert(added->GetHandle());
        } else if (const auto custom = odrxQuery<CFxCustomAction>(action.get())) {
            for (const OdDbHandle& handle : madeBy(*custom))
                if (!handle.isNull())
                    added_.insert(handle);
        }
    }
}

/// What the drawing tells and nobody adds is there from the start, as it is in the end.
void Fold::addDrawn()
{
    for (const OdDbObjectId& id : database_.objectIds()) {
        const OdDbObjectPtr object = id.openObject(true);
        if (!object || added_.count(id.getHandle()) != 0)
            continue;
        ObjectState& state = objects_.at(id.getHandle(), *object->isA());
        objectOf(state);
        if (const auto* const entity = dynamic_cast<const OdDbEntity*>(object.get())) {
            state.isThere = true;
            state.space = spaces_.holder(state.handle()).value_or(space_);
            state.layer = entity->layerId().isNull() ? std::uint16_t{0} : layers_.at(entity->layerId().getHandle());
        }
    }
    for (std::uint32_t i = 0; i < objects_.count(); ++i)
        if (objects_[i].isThere)
            draw(objects_[i]);
}

void Fold::walk(const CFxActionArray& actions)
{
    for (const OdRxObjectPtr& action : actions) {
        ++step_;
        if (action)
            go(*action);
        objects_.release();
    }
}

void Fold::walkCommand(const CFxActionArray& actions)
{
    const Siblings siblings(actions);
    const Siblings* const outer = std::exchange(siblings_, &siblings);
    walk(actions);
    siblings_ = outer;
}

void Fold::go(const OdRxObject& action)
{
    if (const auto added = odrxQuery<CFxObjectAdded>(&action))
        add(*added);
    else if (const auto command = odrxQuery<CFxUserCommand>(&action))
        walkCommand(command->GetActions());
    else if (const auto modified = odrxQuery<CFxObjectModified>(&action))
        change(*modified);
    else if (const auto property = odrxQuery<CFxPropertyChanged>(&action))
        change(*property);
    else if (const auto variable = odrxQuery<CFxSysVarChanged>(&action))
        change(*variable);
    else if (const auto custom = odrxQuery<CFxCustomAction>(&action))
        perform(*this, *custom);
}

PictureObject& Fold::objectOf(const ObjectState& state)
{
    while (picture_.objects.size() <= state.number()) {
        const ObjectState& next = objects_[static_cast<std::uint32_t>(picture_.objects.size())];
        PictureObject object;
        object.handle = next.handle();
        object.className = next.className();
        // An attribute is a part of the reference that shows it.
        object.hasGeometry = next.isEntity() && next.className() != "AcDbAttribute";
        picture_.objects.push_back(object);
    }
    return picture_.objects[state.number()];
}

ObjectState& Fold::appear(const OdDbHandle& handle, const OdRxClass& cls)
{
    ObjectState& state = objects_.at(handle, cls);
    PictureObject& object = objectOf(state);
    if (!state.isThere) {
        if (object.added == kNoStep)
            object.added = step_;
        object.erased = kNoStep;
        state.isThere = true;
        state.layer = layers_.current();
        if (const auto* const entity = dynamic_cast<const OdDbEntity*>(state.drawn());
            entity && !entity->layerId().isNull())
            state.layer = layers_.at(entity->layerId().getHandle());
        // Of a block that is made later it becomes a part then.
        const std::optional<std::uint16_t> holder = spaces_.holder(handle);
        const bool isHeld = holder && definedLater_.count(picture_.spaces[*holder].block) == 0;
        state.space = isHeld ? *holder : space_;
    }
    return state;
}

void Fold::appearAs(const ObjectState& original, const Affine& by)
{
    ObjectState& state = objects_.copy(original);
    objectOf(state).added = step_;
    state.isThere = true;
    state.transform(by);
    redraw(state);
}

void Fold::add(const CFxObjectAdded& action)
{
    ObjectState& state = appear(action.GetHandle(), *action.GetObjectClass());
    state.add(action);
    objectOf(state).className = state.className();
    tellMade(*this, state);
    changed(state, false);
}

void Fold::change(const CFxObjectModified& action)
{
    ObjectState& state = objects_.at(action.GetHandle(), *action.GetObjectClass());
    objectOf(state);
    showFormer(state, action.GetProperties());
    state.change(action.GetProperties());
    changed(state, true);
}

void Fold::change(const CFxPropertyChanged& action)
{
    if (!action.GetObjectClass())
        return;
    ObjectState& state = objects_.at(action.GetHandle(), *action.GetObjectClass());
    objectOf(state);
    const PropertyList properties{CFxPropertyChangedPtr(const_cast<CFxPropertyChanged*>(&action))};
    showFormer(state, properties);
    state.change(properties);
    changed(state, true);
}

/// Of an object that was there before, a change may tell what it had until then.
void Fold::showFormer(ObjectState& state, const PropertyList& properties)
{
    if (!state.isThere || picture_.objects[state.number()].added != kNoStep)
        return;
    const StepNumber now = std::exchange(step_, kNoStep);
    if (state.takeFormer(properties)) {
        style(state);
        draw(state);
    }
    step_ = now;
}

void Fold::change(const CFxSysVarChanged& action)
{
    const OdResBufPtr value = action.GetValue();
    if (!value)
        return;
    if (action.GetName().equalNoCase("CLAYER") && !value->getString().isEmpty())
        layers_.setCurrent(layers_.named(value->getString()));
    else if (action.GetName().equalNoCase("CTAB") && !value->getString().isEmpty())
        activate(spaces_.sheet(value->getString()));
}

/// The properties of an object are others now.
void Fold::changed(ObjectState& state, bool mayErase)
{
    if (const std::optional<QString> erased = mayErase ? state.text("Erased") : std::nullopt) {
        state.unsay("Erased");
        if (isYes(*erased)) {
            vanish(state);
            return;
        }
        if (!state.isThere && picture_.objects[state.number()].erased != kNoStep) {
            state.isThere = true;
            picture_.objects[state.number()].erased = kNoStep;
        }
    }
    if (state.isEntity())
        style(state);
    else
        changedRecord(state);
    redraw(state);
}

void Fold::changedRecord(ObjectState& state)
{
    if (const std::optional<QString> name = state.text(nameTag(state.cls())))
        objects_.setName(state, *name);
    if (&state.cls() == OdDbLayerTableRecord::desc()) {
        layers_.change(state, step_);
        state.unsay("ActivateLayer");
    } else if (&state.cls() == OdDbBlockTableRecord::desc()) {
        define(state);
    }
}

/// What a block is made of goes into it.
void Fold::define(ObjectState& block)
{
    const auto* const drawn = block.drawnAs<OdDbBlockTableRecord>();
    const std::uint16_t space =
        spaces_.addBlock(block.handle(), block.text("Name").value_or(drawn ? drawn->getName() : QString()));
    for (const OdDbHandle& handle : partsOf(block))
        if (ObjectState* const entity = objects_.find(handle); entity && entity->isThere && entity->space != space) {
            entity->space = space;
            redraw(*entity);
        }
}

void Fold::style(ObjectState& state)
{
    if (const std::optional<QString> name = state.text(QStringLiteral("Layer")))
        state.layer = layers_.named(*name);
    else if (const OdDbHandle layer = state.handle(QStringLiteral("Layer")); !layer.isNull())
        state.layer = layers_.at(layer);
    if (const CFxVariant* const color = state.find(QStringLiteral("LineColor"));
        color && color->GetType() == CFxVariant::kColor)
        state.color = color->GetColor();
}

void Fold::activate(std::uint16_t space)
{
    if (space == space_)
        return;
    space_ = space;
    picture_.spaceSwitches.push_back({step_, space});
}

void Fold::vanish(ObjectState& state)
{
    if (!state.isThere)
        return;
    state.isThere = false;
    objectOf(state).erased = step_;
    redraw(state);
}

void Fold::useUp(ObjectState& state)
{
    if (!state.drawn() || state.drawn()->isErased())
        vanish(state);
}

void Fold::move(ObjectState& state, const Affine& by)
{
    // What the drawing tells of a place is that of the end.
    if (!state.isThere || !state.hasPlace())
        return;
    state.transform(by);
    redraw(state);
}

void Fold::reshape(ObjectState& state)
{
    if (!state.isThere)
        return;
    remark(state, "made by the application at this step");
    if (!state.drawn())
        return;
    const OdRxClass& cls = state.cls();
    const ObjectState::Shape shape = state.forgetShape();
    const std::size_t first = state.firstPrimitive;
    const std::size_t count = state.primitives;
    state.setClass(*state.drawn()->isA());
    redraw(state);
    if (state.primitives > 0)
        return;
    // The drawing does not tell it either: it stays as it was.
    state.setClass(cls);
    state.restore(shape);
    for (std::size_t i = first; i < first + count; ++i)
        picture_.primitives[i].until = kNoStep;
    state.firstPrimitive = first;
    state.primitives = count;
}

void Fold::redraw(ObjectState& state)
{
    draw(state);
    // What asks while it is drawn comes behind the others, which is what they are copied for.
    const std::vector<std::uint32_t> users = objects_.usersOf(state.number());
    for (const std::uint32_t user : users)
        if (user != state.number() && objects_[user].isThere)
            draw(objects_[user]);
}

void Fold::draw(ObjectState& state)
{
    if (formerNumbers_ > kMostFormer && state.isThere && state.primitives > 0) {
        postponed_.emplace(state.number(), step_);
        return;
    }
    PictureObject& object = objectOf(state);
    const std::size_t first = picture_.primitives.size();
    const std::size_t numbers = picture_.numbers.size();
    const bool isInReferences =
        picture_.spaces[state.space].kind == Space::Kind::Block && isAttributeOfReferences(state);
    if (isInReferences)
        picture_.addRemark(state.number(), "references to its block show their own values in its place");
    const Drawer drawer = state.isThere && !isInReferences ? drawerOf(state.cls()) : nullptr;
    if (drawer) {
        Pen pen(picture_, {state.number(), state.layer, state.color, state.space, step_, kNoStep});
        try {
            drawer(state, pen);
        } catch (const OdError&) {
            pen.remark("its data do not fit together");
        }
        if (!state.moved().isIdentity())
            moveDrawn(state, first);
    }
    object.layer = state.layer;
    object.space = state.space;
    if (isAsBefore(state, first)) {
        picture_.primitives.resize(first);
        picture_.numbers.resize(numbers);
        return;
    }
    for (std::size_t i = 0; i < state.primitives; ++i) {
        Primitive& former = picture_.primitives[state.firstPrimitive + i];
        if (former.from == step_)
            former.from = kNever;
        former.until = former.from == kNever ? kNever : step_;
        formerNumbers_ += former.count;
    }
    state.firstPrimitive = first;
    state.primitives = picture_.primitives.size() - first;
}

void Fold::moveDrawn(const ObjectState& state, std::size_t first)
{
    const auto isInfinite = [&](const Primitive& primitive) {
        transform(primitive, picture_, state.moved());
        const auto numbers = picture_.numbersOf(primitive);
        return !std::all_of(numbers.begin(), numbers.end(),
                            [](double number) { return std::abs(number) <= kLargestNumber; });
    };
    std::vector<Primitive>& primitives = picture_.primitives;
    const auto last =
        std::remove_if(primitives.begin() + static_cast<std::ptrdiff_t>(first), primitives.end(), isInfinite);
    if (last != primitives.end())
        remark(state, Pen::kNotFinite);
    primitives.erase(last, primitives.end());
}

/// Whether the primitives from that one on are those that the object has already.
bool Fold::isAsBefore(const ObjectState& state, std::size_t first) const
{
    if (picture_.primitives.size() - first != state.primitives)
        return false;
    for (std::size_t i = 0; i < state.primitives; ++i) {
        const Primitive& now = picture_.primitives[first + i];
        const Primitive& before = picture_.primitives[state.firstPrimitive + i];
        const auto numbersNow = picture_.numbersOf(now);
        const auto numbersBefore = picture_.numbersOf(before);
        if (now.shape != before.shape || now.style != before.style || now.space != before.space ||
            !std::equal(numbersNow.begin(), numbersNow.end(), numbersBefore.begin(), numbersBefore.end()))
            return false;
    }
    return true;
}

/// What was changed too often, as it is in the end, from the first of the changes on that are not shown.
void Fold::drawPostponed()
{
    formerNumbers_ = 0;
    for (const auto& [number, step] : std::exchange(postponed_, {})) {
        ObjectState& state = objects_[number];
        if (!state.isThere)
            continue;
        remark(state, "its many changes are shown as one");
        step_ = step;
        draw(state);
        objects_.release();
    }
}

/// Why nothing of an object is drawn, where nobody else has said it.
void Fold::explainMissing()
{
    for (PictureObject& object : picture_.objects)
        object.isDrawn = false;
    for (const Primitive& primitive : picture_.primitives)
        picture_.objects[primitive.object].isDrawn = true;
    for (std::uint32_t i = 0; i < picture_.objects.size(); ++i) {
        const PictureObject& object = picture_.objects[i];
        if (object.hasGeometry && !object.isDrawn && object.remark == 0)
            picture_.addRemark(i, drawerOf(objects_[i].cls()) ? "its place is not recorded"
                                                              : "nobody knows how objects of its class look");
    }
}

/// Leaves what is seen at some time, object by object in the order in which they came.
void Fold::finish()
{
    const auto isGone = [this](const Primitive& primitive) {
        const PictureObject& object = picture_.objects[primitive.object];
        const ObjectState& state = objects_[primitive.object];
        // Erased by nobody, but gone in the end: it may never have been there.
        const bool isNever = object.added == kNoStep && state.isThere && state.drawn() && state.drawn()->isErased();
        return isNever || primitive.from == kNever;
    };
    std::vector<Primitive>& primitives = picture_.primitives;
    primitives.erase(std::remove_if(primitives.begin(), primitives.end(), isGone), primitives.end());
    const auto isBefore = [this](const Primitive& one, const Primitive& other) {
        const StepNumber added = picture_.objects[one.object].added;
        const StepNumber otherAdded = picture_.objects[other.object].added;
        return added != otherAdded ? added < otherAdded : one.object < other.object;
    };
    std::stable_sort(primitives.begin(), primitives.end(), isBefore);
    std::vector<double> numbers;
    numbers.reserve(picture_.numbers.size());
    for (Primitive& primitive : primitives) {
        const auto of = picture_.numbersOf(primitive);
        primitive.first = numbers.size();
        numbers.insert(numbers.end(), of.begin(), of.end());
    }
    picture_.numbers = std::move(numbers);
    explainMissing();
}

} // namespace inkmacro::view
