#pragma once

#include "frame/CFxConverterIWAPIImpl.h"

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

struct KindNumbers
{
    constexpr KindNumbers(std::int32_t number) : first(number), last(number) {}
    constexpr KindNumbers(std::int32_t first, std::int32_t last) : first(first), last(last) {}

    std::int32_t first;
    std::int32_t last;
};

/// What a custom action describes, by the number that the host gives it.
class ActionKind
{
public:
    /// One handler for whatever data come.
    constexpr ActionKind(KindNumbers numbers, const char* name, ActionHandler handler)
        : numbers(numbers), name(name), form_{{}, handler}
    {
    }
    constexpr ActionKind(KindNumbers numbers, const char* name, ActionForm form)
        : numbers(numbers), name(name), form_(form)
    {
    }
    /// The first form that fits is taken. The array must outlive the kind.
    constexpr ActionKind(KindNumbers numbers, const char* name, std::span<const ActionForm> forms)
        : numbers(numbers), name(name), forms_(forms)
    {
    }

    constexpr std::span<const ActionForm> forms() const { return forms_.empty() ? std::span(&form_, 1) : forms_; }

    KindNumbers numbers;
    const char* name; ///< for people

private:
    ActionForm form_{};
    std::span<const ActionForm> forms_{};
};

// The kinds that the walk over a command's children asks for.
inline constexpr std::int32_t kPolyline = 16;
inline constexpr std::int32_t kViewBackground = 41;
inline constexpr std::int32_t kViewport = 46;
// Others that make objects.
inline constexpr std::int32_t kSheet = 13;
inline constexpr std::int32_t kNamedView = 14;
inline constexpr std::int32_t kEmbeddedObject = 15;
inline constexpr std::int32_t kInsertHatch = 18;
inline constexpr std::int32_t kRegion = 44;
inline constexpr std::int32_t kViewTiles = 49;

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

/// In the order of their numbers; the host has no others.
inline constexpr auto actionKinds = [] {
    using enum CFxCustomActionData::_Type;
    using Impl = CFxConverterIWAPIImpl;
    return std::to_array<ActionKind>({
        {0, "mirror", &Impl::ConvertActionMirror},
        {1, "stretch", &Impl::ConvertActionStretch},
        {2, "copy", &Impl::ConvertActionCopy},
        {3, "move", &Impl::ConvertActionMove},
        {4, "rotate", &Impl::ConvertActionRotate},
        {5, "scale", &Impl::ConvertActionScale},
        {6, "trim", ActionForm{DataSignature::anyOf(9), &Impl::ConvertActionTrim}},
        {7, "extend", ActionForm{DataSignature::anyOf(5), &Impl::ConvertActionExtend}},
        {8, "fillet", filletForms},
        {9, "chamfer", chamferForms},
        {10, "select", &Impl::ConvertActionSelect},
        {11, "selection filter", &Impl::ConvertActionSelectionFilter},
        {12, "coordinate system", coordinateSystemForms},
        {kSheet, "sheet", sheetForms},
        {kNamedView, "named view", &Impl::ConvertActionNamedView},
        {kEmbeddedObject, "embedded object",
         ActionForm{DataSignature::exactly({kInt, kString}), &Impl::ConvertActionEmbeddedObject}},
        {kPolyline, "polyline", &Impl::ConvertActionPolyline},
        {17, "erase", &Impl::ConvertActionErase},
        {kInsertHatch, "insert hatch", &Impl::ConvertActionInsertHatch},
        // Colors of the host's screen elements; the element is the action's first datum.
        {{19, 23}, "element color", &Impl::ConvertActionElementColor},
        {{26, 32}, "element color", &Impl::ConvertActionElementColor},
        {33, "option value", &Impl::ConvertActionOptionValue},
        {34, "interface file", &Impl::ConvertActionInterfaceFile},
        {35, "system file", &Impl::ConvertActionSystemFile},
        {36, "drawing support file", &Impl::ConvertActionDrawingSupportFile},
        {37, "group add", &Impl::ConvertActionGroupAdd},
        {38, "group remove", &Impl::ConvertActionGroupRemove},
        {39, "attribute value", &Impl::ConvertActionAttributeValue},
        {40, "polyline edit", polylineEditForms},
        {kViewBackground, "view background", &Impl::ConvertActionViewBackground},
        {42, "polyline vertex", polylineVertexForms},
        {43, "zoom", &Impl::ConvertActionZoom},
        {kRegion, "region", &Impl::ConvertActionRegion},
        {45, "activate", &Impl::ConvertActionActivate},
        {kViewport, "viewport", &Impl::ConvertActionViewport},
        {47, "print style",
         ActionForm{DataSignature::beginning({kString, kBool, kString}), &Impl::ConvertActionPrintStyle}},
        {48, "clip boundary", clipBoundaryForms},
        {kViewTiles, "view tiles", &Impl::ConvertActionViewTiles},
        {50, "join", &Impl::ConvertActionJoin},
        {55, "explode", &Impl::ConvertActionExplode},
    });
}();
static_assert(std::ranges::adjacent_find(actionKinds, [](const ActionKind& kind, const ActionKind& next) {
                  return kind.numbers.last >= next.numbers.first;
              }) == actionKinds.end());

/// The names by number; null where the host has no kind. Made while compiling, so that the program, which has no
/// handlers to link, can read the table too.
inline constexpr auto actionKindNames = [] {
    std::array<const char*, actionKinds.back().numbers.last + 1> names{};
    for (const ActionKind& kind : actionKinds)
        std::fill(names.begin() + kind.numbers.first, names.begin() + kind.numbers.last + 1, kind.name);
    return names;
}();

/// Null for a number or data that no handler takes.
const ActionForm* FormOf(const CFxCustomAction& action);

} // namespace inkmacro
