#pragma once

#include "conversion/Conversion.h"
#include "host/kernel/CFxStatus.h"
#include "statements/actionKinds.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <span>

namespace inkmacro {

/// What the data of a custom action must be for a handler to be given them.
class DataSignature
{
public:
    static constexpr int anyType = -1;
    static constexpr std::size_t mostTypes = 9;

    /// Whatever comes. The handler takes what it finds: a datum of another type than it asks for is that type's neutral
    /// value, a missing one raises OdError_InvalidIndex.
    constexpr DataSignature() = default;
    /// These types, each a `CFxCustomActionData::_Type` or anyType, and as many data.
    static constexpr DataSignature exactly(std::initializer_list<int> types) { return {types, false}; }
    /// These types, and behind them whatever comes.
    static constexpr DataSignature beginning(std::initializer_list<int> types) { return {types, true}; }
    /// So many data of whatever types.
    static constexpr DataSignature anyOf(std::int32_t count)
    {
        DataSignature signature({}, false);
        signature.count_ = count;
        signature.types_.fill(anyType);
        return signature;
    }
    /// The same with a word that the first datum must be.
    constexpr DataSignature withWord(const char* word, Qt::CaseSensitivity wordCase = Qt::CaseSensitive) const
    {
        DataSignature signature = *this;
        signature.word_ = word;
        signature.wordCase_ = wordCase;
        return signature;
    }

    bool fits(const CFxCustomAction& action) const;

private:
    constexpr DataSignature(std::initializer_list<int> types, bool open)
        : count_(static_cast<std::int32_t>(types.size())), open_(open)
    {
        std::copy(types.begin(), types.end(), types_.begin());
    }

    std::array<int, mostTypes> types_{};
    std::int32_t count_ = 0;
    bool open_ = true;
    const char* word_ = nullptr;
    Qt::CaseSensitivity wordCase_ = Qt::CaseSensitive;
};

/// Converts one custom action of a form that its row of the table lets through; looks at neither the kind nor the form
/// of the data once more. `text` is the variable of the object that the command made for the action, and becomes its
/// statements. Gives kFxSuccess or kFxFailure.
using ActionHandler = std::int32_t (*)(Conversion& conversion, const CFxCustomAction& action, Statement& text);

/// The statements of a form that needs nothing but its data. They take the place of the variable that is handed over.
using ActionStatements = Statement (*)(Writer& writer, const CFxCustomAction& action);

/// One way in which a kind of custom action comes. Has a handler or statements.
struct ActionForm
{
    constexpr ActionForm() = default;
    constexpr ActionForm(DataSignature data, ActionHandler handler) : data(data), handler(handler) {}
    constexpr ActionForm(DataSignature data, ActionStatements statements) : data(data), statements(statements) {}

    DataSignature data;
    ActionHandler handler = nullptr;
    ActionStatements statements = nullptr;
};

/// What becomes of the custom actions of a kind.
class KindHandlers
{
public:
    /// One handler for whatever data come.
    constexpr KindHandlers(KindNumbers numbers, ActionHandler handler) : numbers(numbers), form_{{}, handler} {}
    constexpr KindHandlers(KindNumbers numbers, ActionForm form) : numbers(numbers), form_(form) {}
    /// The first form that fits is taken. The array must outlive the kind.
    constexpr KindHandlers(KindNumbers numbers, std::span<const ActionForm> forms) : numbers(numbers), forms_(forms) {}

    constexpr std::span<const ActionForm> forms() const { return forms_.empty() ? std::span(&form_, 1) : forms_; }

    KindNumbers numbers;

private:
    ActionForm form_{};
    std::span<const ActionForm> forms_{};
};

} // namespace inkmacro

std::int32_t ConvertActionMirror(Conversion& conversion, const CFxCustomAction& action, Statement& text);
std::int32_t ConvertActionStretch(Conversion& conversion, const CFxCustomAction& action, Statement& text);
std::int32_t ConvertActionCopy(Conversion& conversion, const CFxCustomAction& action, Statement& text);
std::int32_t ConvertActionMove(Conversion& conversion, const CFxCustomAction& action, Statement& text);
std::int32_t ConvertActionRotate(Conversion& conversion, const CFxCustomAction& action, Statement& text);
std::int32_t ConvertActionScale(Conversion& conversion, const CFxCustomAction& action, Statement& text);
std::int32_t ConvertActionTrim(Conversion& conversion, const CFxCustomAction& action, Statement& text);
std::int32_t ConvertActionExtend(Conversion& conversion, const CFxCustomAction& action, Statement& text);
std::int32_t ConvertActionFillet(Conversion& conversion, const CFxCustomAction& action, Statement& text);
std::int32_t ConvertActionChamfer(Conversion& conversion, const CFxCustomAction& action, Statement& text);
std::int32_t ConvertActionCornersOfPolyline(Conversion& conversion, const CFxCustomAction& action, Statement& text);
std::int32_t ConvertActionSelect(Conversion& conversion, const CFxCustomAction& action, Statement& text);
std::int32_t ConvertActionSelectionFilter(Conversion& conversion, const CFxCustomAction& action, Statement& text);
std::int32_t ConvertActionCoordinateSystemOfEntity(Conversion& conversion, const CFxCustomAction& action,
                                                   Statement& text);
std::int32_t ConvertActionNamedView(Conversion& conversion, const CFxCustomAction& action, Statement& text);
std::int32_t ConvertActionEmbeddedObject(Conversion& conversion, const CFxCustomAction& action, Statement& text);
std::int32_t ConvertActionPolyline(Conversion& conversion, const CFxCustomAction& action, Statement& text);
std::int32_t ConvertActionErase(Conversion& conversion, const CFxCustomAction& action, Statement& text);
std::int32_t ConvertActionInsertHatch(Conversion& conversion, const CFxCustomAction& action, Statement& text);
std::int32_t ConvertActionElementColor(Conversion& conversion, const CFxCustomAction& action, Statement& text);
std::int32_t ConvertActionOptionValue(Conversion& conversion, const CFxCustomAction& action, Statement& text);
std::int32_t ConvertActionInterfaceFile(Conversion& conversion, const CFxCustomAction& action, Statement& text);
std::int32_t ConvertActionSystemFile(Conversion& conversion, const CFxCustomAction& action, Statement& text);
std::int32_t ConvertActionDrawingSupportFile(Conversion& conversion, const CFxCustomAction& action, Statement& text);
std::int32_t ConvertActionGroupAdd(Conversion& conversion, const CFxCustomAction& action, Statement& text);
std::int32_t ConvertActionGroupRemove(Conversion& conversion, const CFxCustomAction& action, Statement& text);
std::int32_t ConvertActionAttributeValue(Conversion& conversion, const CFxCustomAction& action, Statement& text);
std::int32_t ConvertActionPolylineJoin(Conversion& conversion, const CFxCustomAction& action, Statement& text);
std::int32_t ConvertActionViewBackground(Conversion& conversion, const CFxCustomAction& action, Statement& text);
std::int32_t ConvertActionZoom(Conversion& conversion, const CFxCustomAction& action, Statement& text);
std::int32_t ConvertActionRegion(Conversion& conversion, const CFxCustomAction& action, Statement& text);
std::int32_t ConvertActionActivate(Conversion& conversion, const CFxCustomAction& action, Statement& text);
std::int32_t ConvertActionViewport(Conversion& conversion, const CFxCustomAction& action, Statement& text);
std::int32_t ConvertActionPrintStyle(Conversion& conversion, const CFxCustomAction& action, Statement& text);
std::int32_t ConvertActionClipBoundary(Conversion& conversion, const CFxCustomAction& action, Statement& text);
std::int32_t ConvertActionViewTiles(Conversion& conversion, const CFxCustomAction& action, Statement& text);
std::int32_t ConvertActionJoin(Conversion& conversion, const CFxCustomAction& action, Statement& text);
std::int32_t ConvertActionExplode(Conversion& conversion, const CFxCustomAction& action, Statement& text);

namespace inkmacro {

inline constexpr ActionForm filletForms[] = {
    {DataSignature::anyOf(3).withWord("FILLET", Qt::CaseInsensitive), &ConvertActionCornersOfPolyline},
    {DataSignature::anyOf(6), &ConvertActionFillet},
};
inline constexpr ActionForm chamferForms[] = {
    {DataSignature::anyOf(3).withWord("CHAMFER", Qt::CaseInsensitive), &ConvertActionCornersOfPolyline},
    {DataSignature::anyOf(6), &ConvertActionChamfer},
};
// A truth value takes the boundary away, whichever it is.
inline constexpr ActionForm clipBoundaryForms[] = {
    {DataSignature::beginning({DataSignature::anyType, DataSignature::anyType, CFxCustomActionData::kBool}),
     &ConvertActionClipBoundary},
    {DataSignature::beginning({DataSignature::anyType, DataSignature::anyType, CFxCustomActionData::k2dPointArray}),
     &ConvertActionClipBoundary},
};
// Forms that are told apart by words or have statements of their own, in the files of their topics.
extern const ActionForm coordinateSystemForms[21];
extern const ActionForm sheetForms[8];
extern const ActionForm polylineEditForms[12];
extern const ActionForm polylineVertexForms[2];

inline constexpr auto actionHandlers = [] {
    using enum CFxCustomActionData::_Type;
    return std::to_array<KindHandlers>({
        {0, &ConvertActionMirror},
        {1, &ConvertActionStretch},
        {2, &ConvertActionCopy},
        {3, &ConvertActionMove},
        {4, &ConvertActionRotate},
        {5, &ConvertActionScale},
        {6, ActionForm{DataSignature::anyOf(9), &ConvertActionTrim}},
        {7, ActionForm{DataSignature::anyOf(5), &ConvertActionExtend}},
        {8, filletForms},
        {9, chamferForms},
        {10, &ConvertActionSelect},
        {11, &ConvertActionSelectionFilter},
        {12, coordinateSystemForms},
        {kSheet, sheetForms},
        {kNamedView, &ConvertActionNamedView},
        {kEmbeddedObject, ActionForm{DataSignature::exactly({kInt, kString}), &ConvertActionEmbeddedObject}},
        {kPolyline, &ConvertActionPolyline},
        {17, &ConvertActionErase},
        {kInsertHatch, &ConvertActionInsertHatch},
        {{19, 23}, &ConvertActionElementColor},
        {{26, 32}, &ConvertActionElementColor},
        {33, &ConvertActionOptionValue},
        {34, &ConvertActionInterfaceFile},
        {35, &ConvertActionSystemFile},
        {36, &ConvertActionDrawingSupportFile},
        {37, &ConvertActionGroupAdd},
        {38, &ConvertActionGroupRemove},
        {39, &ConvertActionAttributeValue},
        {40, polylineEditForms},
        {kViewBackground, &ConvertActionViewBackground},
        {42, polylineVertexForms},
        {43, &ConvertActionZoom},
        {kRegion, &ConvertActionRegion},
        {45, &ConvertActionActivate},
        {kViewport, &ConvertActionViewport},
        {47, ActionForm{DataSignature::beginning({kString, kBool, kString}), &ConvertActionPrintStyle}},
        {48, clipBoundaryForms},
        {kViewTiles, &ConvertActionViewTiles},
        {50, &ConvertActionJoin},
        {55, &ConvertActionExplode},
    });
}();
// One row a row of actionKinds, in their order.
static_assert(std::ranges::equal(actionHandlers, actionKinds, [](const KindHandlers& handlers, const KindName& kind) {
    return handlers.numbers.first == kind.numbers.first && handlers.numbers.last == kind.numbers.last;
}));

/// Null for a number or data that no handler takes.
const ActionForm* FormOf(const CFxCustomAction& action);

} // namespace inkmacro
