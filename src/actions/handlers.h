#pragma once

#include "module/CFxConverterIWAPIImpl.h"
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

using ActionHandler = std::int32_t (CFxConverterIWAPIImpl::*)(OdSmartPtr<CFxCustomAction> action, QString& text);

/// The statements of a form that needs nothing but its data. They take the place of the variable that is handed over.
using ActionStatements = QString (*)(Writer& writer, const CFxCustomAction& action);

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

inline constexpr ActionForm filletForms[] = {
    {DataSignature::anyOf(3).withWord("FILLET", Qt::CaseInsensitive),
     &CFxConverterIWAPIImpl::ConvertActionCornersOfPolyline},
    {DataSignature::anyOf(6), &CFxConverterIWAPIImpl::ConvertActionFillet},
};
inline constexpr ActionForm chamferForms[] = {
    {DataSignature::anyOf(3).withWord("CHAMFER", Qt::CaseInsensitive),
     &CFxConverterIWAPIImpl::ConvertActionCornersOfPolyline},
    {DataSignature::anyOf(6), &CFxConverterIWAPIImpl::ConvertActionChamfer},
};
// A truth value takes the boundary away, whichever it is.
inline constexpr ActionForm clipBoundaryForms[] = {
    {DataSignature::beginning({DataSignature::anyType, DataSignature::anyType, CFxCustomActionData::kBool}),
     &CFxConverterIWAPIImpl::ConvertActionClipBoundary},
    {DataSignature::beginning({DataSignature::anyType, DataSignature::anyType, CFxCustomActionData::k2dPointArray}),
     &CFxConverterIWAPIImpl::ConvertActionClipBoundary},
};
// Forms that are told apart by words or have statements of their own, in the files of their topics.
extern const ActionForm coordinateSystemForms[21];
extern const ActionForm sheetForms[8];
extern const ActionForm polylineEditForms[12];
extern const ActionForm polylineVertexForms[2];

inline constexpr auto actionHandlers = [] {
    using enum CFxCustomActionData::_Type;
    using Impl = CFxConverterIWAPIImpl;
    return std::to_array<KindHandlers>({
        {0, &Impl::ConvertActionMirror},
        {1, &Impl::ConvertActionStretch},
        {2, &Impl::ConvertActionCopy},
        {3, &Impl::ConvertActionMove},
        {4, &Impl::ConvertActionRotate},
        {5, &Impl::ConvertActionScale},
        {6, ActionForm{DataSignature::anyOf(9), &Impl::ConvertActionTrim}},
        {7, ActionForm{DataSignature::anyOf(5), &Impl::ConvertActionExtend}},
        {8, filletForms},
        {9, chamferForms},
        {10, &Impl::ConvertActionSelect},
        {11, &Impl::ConvertActionSelectionFilter},
        {12, coordinateSystemForms},
        {kSheet, sheetForms},
        {kNamedView, &Impl::ConvertActionNamedView},
        {kEmbeddedObject, ActionForm{DataSignature::exactly({kInt, kString}), &Impl::ConvertActionEmbeddedObject}},
        {kPolyline, &Impl::ConvertActionPolyline},
        {17, &Impl::ConvertActionErase},
        {kInsertHatch, &Impl::ConvertActionInsertHatch},
        {{19, 23}, &Impl::ConvertActionElementColor},
        {{26, 32}, &Impl::ConvertActionElementColor},
        {33, &Impl::ConvertActionOptionValue},
        {34, &Impl::ConvertActionInterfaceFile},
        {35, &Impl::ConvertActionSystemFile},
        {36, &Impl::ConvertActionDrawingSupportFile},
        {37, &Impl::ConvertActionGroupAdd},
        {38, &Impl::ConvertActionGroupRemove},
        {39, &Impl::ConvertActionAttributeValue},
        {40, polylineEditForms},
        {kViewBackground, &Impl::ConvertActionViewBackground},
        {42, polylineVertexForms},
        {43, &Impl::ConvertActionZoom},
        {kRegion, &Impl::ConvertActionRegion},
        {45, &Impl::ConvertActionActivate},
        {kViewport, &Impl::ConvertActionViewport},
        {47, ActionForm{DataSignature::beginning({kString, kBool, kString}), &Impl::ConvertActionPrintStyle}},
        {48, clipBoundaryForms},
        {kViewTiles, &Impl::ConvertActionViewTiles},
        {50, &Impl::ConvertActionJoin},
        {55, &Impl::ConvertActionExplode},
    });
}();
// One row a row of actionKinds, in their order.
static_assert(std::ranges::equal(actionHandlers, actionKinds, [](const KindHandlers& handlers, const KindName& kind) {
    return handlers.numbers.first == kind.numbers.first && handlers.numbers.last == kind.numbers.last;
}));

/// Null for a number or data that no handler takes.
const ActionForm* FormOf(const CFxCustomAction& action);

} // namespace inkmacro
