#pragma once

#include "view/Layers.h"
#include "view/Siblings.h"
#include "view/pictureOf.h"

#include <map>

namespace inkmacro::view {

/// Goes through a recording step by step and draws each object anew when it has changed.
class Fold
{
public:
    /// What is given has to outlive this.
    Fold(Picture& picture, OdDbDatabase& database, const PictureSource& source);

    void run(const CFxActionArray& actions);

    // What custom actions do.

    StepNumber step() const { return step_; }
    Objects& objects() { return objects_; }
    Spaces& spaces() { return spaces_; }
    Layers& layers() { return layers_; }
    /// What stands in the command that is gone through.
    const Siblings& siblings() const { return *siblings_; }
    /// It is there from this step on, when it was not.
    ObjectState& appear(const OdDbHandle& handle, const OdRxClass& cls);
    /// One that nobody names, which is as the other one but moved.
    void appearAs(const ObjectState& original, const Affine& by);
    void vanish(ObjectState& state);
    /// It goes, unless the drawing has it in the end.
    void useUp(ObjectState& state);
    /// It is to be drawn anew, and so is what has asked for it.
    void redraw(ObjectState& state);
    void move(ObjectState& state, const Affine& by);
    /// The application makes another shape of it, which the drawing tells, or not.
    void reshape(ObjectState& state);
    void remark(const ObjectState& state, const QString& text) { picture_.addRemark(state.number(), text); }
    /// What is added from here on lands there, and it is shown.
    void activate(std::uint16_t space);

private:
    void findAdded(const CFxActionArray& actions);
    void addDrawn();
    void walk(const CFxActionArray& actions);
    void walkCommand(const CFxActionArray& actions);
    void go(const OdRxObject& action);
    void add(const CFxObjectAdded& action);
    void change(const CFxObjectModified& action);
    void change(const CFxPropertyChanged& action);
    void change(const CFxSysVarChanged& action);
    void showFormer(ObjectState& state, const PropertyList& properties);
    void changed(ObjectState& state, bool mayErase);
    void changedRecord(ObjectState& state);
    void define(ObjectState& block);
    void style(ObjectState& state);
    PictureObject& objectOf(const ObjectState& state);
    void draw(ObjectState& state);
    /// From that primitive on.
    void moveDrawn(const ObjectState& state, std::size_t first);
    bool isAsBefore(const ObjectState& state, std::size_t first) const;
    void drawPostponed();
    void finish();
    void explainMissing();

    Picture& picture_;
    OdDbDatabase& database_;
    Spaces spaces_;
    Objects objects_;
    Layers layers_;
    std::unordered_set<OdDbHandle, OdDbHandleHash> added_;        ///< by some action
    std::unordered_set<OdDbHandle, OdDbHandleHash> definedLater_; ///< blocks that some action adds
    std::size_t formerNumbers_ = 0;                               ///< of primitives that others have replaced
    std::map<std::uint32_t, StepNumber> postponed_;               ///< objects, and since when they are not drawn anew
    const Siblings* siblings_ = nullptr;
    StepNumber step_ = kNoStep;
    std::uint16_t space_ = Spaces::model; ///< that is drawn into
};

} // namespace inkmacro::view
