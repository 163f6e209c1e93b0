// Which handler a custom action goes to.

#include "actions/CustomActionKind.h"
#include "frame/CFxConverterIWAPIImpl.h"

#include <algorithm>
#include <iterator>

namespace {

using Impl = CFxConverterIWAPIImpl;

struct HandlerRow
{
    std::int32_t firstKind;
    std::int32_t lastKind;
    std::int32_t (Impl::*handler)(OdSmartPtr<CFxCustomAction> action, QString& text);
};

constexpr HandlerRow kHandlers[] = {
    {kMirror, kMirror, &Impl::ConvertActionMirror},
    {kStretch, kStretch, &Impl::ConvertActionStretch},
    {kCopy, kCopy, &Impl::ConvertActionCopy},
    {kMove, kMove, &Impl::ConvertActionMove},
    {kRotate, kRotate, &Impl::ConvertActionRotate},
    {kScale, kScale, &Impl::ConvertActionScale},
    {kSelect, kSelect, &Impl::ConvertActionSelect},
    {kSelectionFilter, kSelectionFilter, &Impl::ConvertActionSelectionFilter},
    {kEmbeddedObject, kEmbeddedObject, &Impl::ConvertActionEmbeddedObject},
    {kErase, kErase, &Impl::ConvertActionErase},
    // Colors of the host's screen elements; the element is the action's first datum.
    {19, 23, &Impl::ConvertActionElementColor},
    {26, 32, &Impl::ConvertActionElementColor},
    {kOptionValue, kOptionValue, &Impl::ConvertActionOptionValue},
    {kInterfaceFile, kInterfaceFile, &Impl::ConvertActionInterfaceFile},
    {kSystemFile, kSystemFile, &Impl::ConvertActionSystemFile},
    {kDrawingSupportFile, kDrawingSupportFile, &Impl::ConvertActionDrawingSupportFile},
    {kGroupAdd, kGroupAdd, &Impl::ConvertActionGroupAdd},
    {kGroupRemove, kGroupRemove, &Impl::ConvertActionGroupRemove},
    {kAttributeValue, kAttributeValue, &Impl::ConvertActionAttributeValue},
    {kRegion, kRegion, &Impl::ConvertActionRegion},
    {kActivate, kActivate, &Impl::ConvertActionActivate},
    {kViewport, kViewport, &Impl::ConvertActionViewport},
    {kPrintStyle, kPrintStyle, &Impl::ConvertActionPrintStyle},
    {kJoin, kJoin, &Impl::ConvertActionJoin},
    {kExplode, kExplode, &Impl::ConvertActionExplode},
};

} // namespace

std::int32_t CFxConverterIWAPIImpl::ConvertCustomAction(OdSmartPtr<CFxCustomAction> action, QString& text)
{
    const std::int32_t kind = action->GetKind();
    const auto row = std::find_if(std::begin(kHandlers), std::end(kHandlers), [&](const HandlerRow& candidate) {
        return candidate.firstKind <= kind && kind <= candidate.lastKind;
    });
    return row == std::end(kHandlers) ? kFxFailure : (this->*row->handler)(std::move(action), text);
}
