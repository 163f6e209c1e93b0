#include "view/customActions.h"

#include "view/actionData.h"
#include "view/hatchActions.h"
#include "view/polylineEdits.h"

#include <algorithm>

namespace inkmacro::view {

namespace {

/// The objects of the datum that are there.
std::vector<ObjectState*> objectsOf(Fold& fold, const CFxCustomAction& action, int number)
{
    std::vector<ObjectState*> found;
    for (const OdDbHandle& handle : handlesIn(action, number))
        if (ObjectState* const state = fold.objects().find(handle); state && state->isThere)
            found.push_back(state);
    return found;
}

/// Whether the command adds objects of the class, so that copies need not be made up.
bool isAdding(const Fold& fold, const OdRxClass& cls)
{
    return fold.siblings().added.count(&cls) != 0;
}

void moveAll(Fold& fold, const CFxCustomAction& action, const Affine& by)
{
    for (ObjectState* const state : objectsOf(fold, action, 0))
        fold.move(*state, by);
}

void copyAll(Fold& fold, const CFxCustomAction& action, const Affine& by)
{
    for (ObjectState* const state : objectsOf(fold, action, 0))
        if (!isAdding(fold, state->cls()) && state->hasPlace())
            fold.appearAs(*state, by);
}

void mirror(Fold& fold, const CFxCustomAction& action)
{
    const Affine by = Affine::mirrored(fromAbove(datum(action, 2).GetPoint()), fromAbove(datum(action, 3).GetPoint()));
    if (!datum(action, 4).GetBool()) {
        copyAll(fold, action, by);
        return;
    }
    for (ObjectState* const state : objectsOf(fold, action, 0)) {
        // Either it is mirrored itself, or another takes its place.
        if (isAdding(fold, state->cls()))
            fold.vanish(*state);
        else
            fold.move(*state, by);
    }
}

void copy(Fold& fold, const CFxCustomAction& action)
{
    for (int number = 2; number < action.GetDataCount(); ++number) {
        const OdGeVector3d& by = datum(action, number).GetVector();
        copyAll(fold, action, Affine::moved(by.x, by.y));
    }
}

void move(Fold& fold, const CFxCustomAction& action)
{
    const OdGeVector3d& by = datum(action, 2).GetVector();
    moveAll(fold, action, Affine::moved(by.x, by.y));
}

void rotate(Fold& fold, const CFxCustomAction& action)
{
    moveAll(fold, action, Affine::rotated(datum(action, 3).GetDouble()).about(fromAbove(datum(action, 2).GetPoint())));
}

void scale(Fold& fold, const CFxCustomAction& action)
{
    const double factor = datum(action, 3).GetDouble();
    if (factor != 0.0)
        moveAll(fold, action, Affine::scaled(factor, factor).about(fromAbove(datum(action, 2).GetPoint())));
}

void reshapeAll(Fold& fold, const CFxCustomAction& action, int number)
{
    for (ObjectState* const state : objectsOf(fold, action, number))
        fold.reshape(*state);
}

/// The six numbers that a trim tells of what stands behind it.
void sayTrimmed(ObjectState& state, const QString& cls, const std::array<double, 6>& n)
{
    const auto say = [&state](const char* tag, double value) { state.say(tag, -1, value); };
    if (cls == "AcDbLine") {
        say("Start X", n[0]);
        say("Start Y", n[1]);
        say("End X", n[3]);
        say("End Y", n[4]);
    } else if (cls == "AcDbArc") {
        say("Center X", n[0]);
        say("Center Y", n[1]);
        say("Radius", n[3]);
        say("Start Angle", n[4]);
        say("End Angle", n[5]);
    }
}

void trim(Fold& fold, const CFxCustomAction& action)
{
    reshapeAll(fold, action, 2);
    const std::vector<OdDbHandle> left = handlesIn(action, 5);
    const std::vector<const OdRxClass*>& classes = datum(action, 6).GetClassArray();
    const OdArray<double>& numbers = datum(action, 8).GetDoubleArray();
    for (std::size_t i = 0; i < left.size() && i < classes.size(); ++i) {
        ObjectState& state = fold.appear(left[i], *classes[i]);
        state.setClass(*classes[i]);
        if (numbers.length() >= 6 * (i + 1)) {
            std::array<double, 6> six{};
            for (std::size_t n = 0; n < six.size(); ++n)
                six[n] = numbers[6 * i + n];
            sayTrimmed(state, classes[i]->name(), six);
        }
        fold.redraw(state);
        fold.remark(state, "made by the application at this step");
    }
}

void meet(Fold& fold, const CFxCustomAction& action)
{
    reshapeAll(fold, action, 0);
    reshapeAll(fold, action, action.GetDataCount() == 3 ? 1 : 3);
}

void join(Fold& fold, const CFxCustomAction& action)
{
    reshapeAll(fold, action, 0);
    for (ObjectState* const state : objectsOf(fold, action, 2))
        fold.useUp(*state);
}

void explode(Fold& fold, const CFxCustomAction& action)
{
    for (ObjectState* const state : objectsOf(fold, action, 0))
        fold.useUp(*state);
}

void erase(Fold& fold, const CFxCustomAction& action)
{
    for (ObjectState* const state : objectsOf(fold, action, 0))
        fold.vanish(*state);
}

void changeSheets(Fold& fold, const CFxCustomAction& action)
{
    const QString word = datum(action, 0).GetString();
    const QString name = datum(action, 1).GetString();
    const int count = action.GetDataCount();
    if (count == 1)
        fold.activate(fold.spaces().sheet(word));
    else if (count == 4)
        fold.spaces().sheet(datum(action, 3).GetString());
    else if (word == "New")
        fold.spaces().sheet(name);
    else if (word == "Copy" && count == 3)
        fold.spaces().sheet(datum(action, 2).GetString());
    else if (word != "Copy" && word != "Delete")
        fold.spaces().renameSheet(word, name);
}

void activate(Fold& fold, const CFxCustomAction& action)
{
    for (const OdDbHandle& handle : handlesIn(action, 0)) {
        const ObjectState* const state = fold.objects().find(handle);
        if (state && &state->cls() == OdDbLayerTableRecord::desc())
            fold.layers().setCurrent(fold.layers().at(handle));
    }
}

void sayNumbers(ObjectState& state, const char* tag, const OdArray<double>& numbers)
{
    state.sayNumbers(tag, {numbers.begin(), numbers.end()});
}

void sayPoints(ObjectState& state, const char* tag, const OdArray<OdGePoint3d>& points)
{
    state.sayPoints(tag, {points.begin(), points.end()});
}

void sayPolyline(ObjectState& state, const CFxCustomAction& action)
{
    sayPoints(state, "Vertex", datum(action, 0).GetPointArray());
    const OdArray<OdGePoint3d>& bulges = datum(action, 1).GetPointArray();
    std::vector<double> segments;
    for (const OdGePoint3d& bulge : bulges)
        segments.push_back(bulge.x);
    state.sayNumbers("Bulge", segments);
    state.say("Closed", -1, CFxString(datum(action, 2).GetBool() ? "Yes" : "No"));
    sayNumbers(state, "Start segment width", datum(action, 5).GetDoubleArray());
    sayNumbers(state, "End segment width", datum(action, 6).GetDoubleArray());
    if (datum(action, 7).GetBool())
        state.say("Global width", -1, datum(action, 8).GetDouble());
}

void sayViewport(ObjectState& state, const CFxCustomAction& action)
{
    sayPoints(state, "Corner", datum(action, 0).GetPointArray());
}

void sayRegion(ObjectState& state, const CFxCustomAction& action)
{
    std::vector<CFxVariantCollectionElement> elements;
    for (const OdDbHandle& handle : handlesIn(action, 0))
        elements.emplace_back(CFxVariant(), CFxVariant(CFxString(handle.ascii())));
    state.say("Pieces", -1, CFxVariantCollection(std::move(elements)));
}

void polyline(Fold& fold, const CFxCustomAction& action)
{
    const OdRxClass* const cls = datum(action, 4).GetClass();
    const OdDbHandle& handle = datum(action, 3).GetHandle();
    if (!cls || handle.isNull())
        return;
    ObjectState& state = fold.appear(handle, *cls);
    sayPolyline(state, action);
    fold.redraw(state);
}

void setAttribute(Fold& fold, const CFxCustomAction& action)
{
    for (ObjectState* const reference : objectsOf(fold, action, 0)) {
        reference->say("BlockAttributes." + datum(action, 2).GetString().toQString(), -1, datum(action, 3).GetString());
        fold.redraw(*reference);
    }
}

/// A boundary is that of a viewport; pictures and blocks are drawn whole.
void clip(Fold& fold, const CFxCustomAction& action)
{
    const OdArray<OdGePoint2d>& boundary = datum(action, 2).Get2dPointArray();
    if (boundary.isEmpty())
        return;
    for (ObjectState* const state : objectsOf(fold, action, 0)) {
        if (state->className() != "AcDbViewport") {
            fold.remark(*state, "its clip boundary is not drawn");
        } else {
            std::vector<OdGePoint3d> corners;
            for (const OdGePoint2d& corner : boundary)
                corners.push_back({corner.x, corner.y, 0.0});
            state->sayPoints("Corner", corners);
            fold.redraw(*state);
        }
    }
}

using Performer = void (*)(Fold& fold, const CFxCustomAction& action);

Performer performerOf(std::int32_t kind)
{
    switch (kind) {
    case kMirror:
        return mirror;
    case kStretch:
        return [](Fold& fold, const CFxCustomAction& action) { reshapeAll(fold, action, 0); };
    case kCopy:
        return copy;
    case kMove:
        return move;
    case kRotate:
        return rotate;
    case kScale:
        return scale;
    case kTrim:
        return trim;
    case kExtend:
        return [](Fold& fold, const CFxCustomAction& action) { reshapeAll(fold, action, 2); };
    case kFillet:
    case kChamfer:
        return meet;
    case kSheet:
        return changeSheets;
    case kPolyline:
        return polyline;
    case kPolylineEdit:
        return editPolyline;
    case kVertex:
        return editVertex;
    case kErase:
        return erase;
    case kAttribute:
        return setAttribute;
    case kActivate:
        return activate;
    case kClip:
        return clip;
    case kJoin:
        return join;
    case kExplode:
        return explode;
    default:
        return nullptr;
    }
}

} // namespace

void perform(Fold& fold, const CFxCustomAction& action)
{
    if (const Performer performer = performerOf(action.GetKind()))
        performer(fold, action);
}

void tellMade(Fold& fold, ObjectState& made)
{
    const Siblings& siblings = fold.siblings();
    if (const auto drawn = siblings.polylines.find(made.handle()); drawn != siblings.polylines.end())
        sayPolyline(made, *drawn->second);
    if (const auto hatched = siblings.hatches.find(made.handle()); hatched != siblings.hatches.end())
        sayHatch(made, *hatched->second);
    if (const auto embedding = siblings.embedded.find(made.handle()); embedding != siblings.embedded.end())
        made.say("Path", -1, datum(*embedding->second, 1).GetString());
    if (const auto window = siblings.viewports.find(made.handle()); window != siblings.viewports.end()) {
        sayViewport(made, *window->second);
        made.space = fold.spaces().sheet(datum(*window->second, 5).GetString());
    }
    if (const auto region = siblings.regions.find(made.handle()); region != siblings.regions.end())
        sayRegion(made, *region->second);
}

std::vector<OdDbHandle> madeBy(const CFxCustomAction& action)
{
    if (action.GetKind() == kPolyline)
        return {datum(action, 3).GetHandle()};
    if (action.GetKind() != kTrim)
        return {};
    std::vector<OdDbHandle> made = handlesIn(action, 5);
    const std::vector<OdDbHandle> cut = handlesIn(action, 2);
    made.erase(std::remove_if(
                   made.begin(), made.end(),
                   [&cut](const OdDbHandle& handle) { return std::find(cut.begin(), cut.end(), handle) != cut.end(); }),
               made.end());
    return made;
}

} // namespace inkmacro::view
