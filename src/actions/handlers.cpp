// Which handler a custom action goes to.

#include "actions/handlers.h"

#include "actions/entries.h"
#include "actions/handedVariable.h"
#include "statements/losses.h"

namespace inkmacro {

bool DataSignature::fits(const CFxCustomAction& action) const
{
    const std::int32_t count = action.GetDataCount();
    if (count < count_ || (count > count_ && !open_))
        return false;
    for (std::int32_t i = 0; i < count_; ++i) {
        const int type = types_[static_cast<std::size_t>(i)];
        if (type != anyType && type != action.GetData(i).GetType())
            return false;
    }
    return !word_ || (count > 0 && action.GetData(0).GetString().toQString().compare(word_, wordCase_) == 0);
}

const ActionForm* FormOf(const CFxCustomAction& action)
{
    const std::int32_t number = action.GetKind();
    const auto kind = std::ranges::find_if(actionHandlers, [&](const KindHandlers& candidate) {
        return candidate.numbers.first <= number && number <= candidate.numbers.last;
    });
    if (kind == actionHandlers.end())
        return nullptr;
    const std::span<const ActionForm> forms = kind->forms();
    const auto form =
        std::ranges::find_if(forms, [&](const ActionForm& candidate) { return candidate.data.fits(action); });
    return form != forms.end() ? &*form : nullptr;
}

} // namespace inkmacro

std::int32_t ConvertCustomAction(Conversion& conversion, const CFxCustomAction& action, Statement& text)
{
    const inkmacro::ActionForm* const form = inkmacro::FormOf(action);
    if (!form) {
        NoteLoss(ActionTitle(&action), "no statement is known for this kind of action or form of its data");
        return kFxFailure;
    }
    const LossWatch losses;
    conversion.names().ForgetFetched();
    std::int32_t status = kFxSuccess;
    if (form->handler) {
        status = form->handler(conversion, action, text);
    } else {
        inkmacro::takeVariable(conversion.writer, text, inkmacro::HandedVariable::Replaced);
        text = form->statements(conversion.writer, action);
    }
    if (!text.isEmpty())
        text.prepend(conversion.names().TakeFetches());
    // A view that stays as it is needs none.
    const bool wants = action.GetKind() != inkmacro::kNamedView;
    if (status == kFxSuccess && text.isEmpty() && wants && !losses.any())
        NoteLoss(ActionTitle(&action), "no statement came of it");
    return status;
}
