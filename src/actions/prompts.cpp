// Answers at prompts, which a replay asks for anew.

#include "targets/prompts.h"
#include "actions/entries.h"
#include "actions/handlers.h"
#include "actions/recordedForms.h"
#include "host/rx/OdError.h"
#include "statements/losses.h"
#include "statements/wording.h"

#include <array>
#include <variant>

namespace {

using Words = std::vector<CFxString>;
using EmitPoint = Statement (*)(Writer&, const CFxString&, const OdGePoint3d&);
using EmitReal = Statement (*)(Writer&, const CFxString&, double);
using EmitInteger = Statement (*)(Writer&, const CFxString&, std::int32_t);
using EmitText = Statement (*)(Writer&, const CFxString&, const CFxString&);
using EmitKeyword = Statement (*)(Writer&, const CFxString&, const Words&, const Words&);

struct PromptKind
{
    const char* prompt; ///< stands in for one without text
    bool (*accepts)(int resultType);
    int neutral; ///< stands in for an answer of a type that is not accepted
    std::variant<EmitPoint, EmitReal, EmitInteger, EmitText, EmitKeyword> ask;
};

bool isPoint(int type)
{
    return type == OdResBuf::kRtPoint3d;
}

bool isAngle(int type)
{
    return type == OdResBuf::kRtAngle;
}

bool isReal(int type)
{
    return type == OdResBuf::kRtDouble;
}

bool isDirection(int type)
{
    return isAngle(type) || isReal(type);
}

/// A point is no number either, but it is let through: its getter gives 0.
bool isNoString(int type)
{
    return type != OdResBuf::kRtString;
}

bool isAnything(int)
{
    return true;
}

/// In the order of CFxUserInteraction::Kind.
const std::array promptKinds{
    PromptKind{"Specify point: ", isPoint, 0, &EmitPromptPoint},
    PromptKind{"Specify angle: ", isAngle, 0, &EmitPromptAngle},
    PromptKind{"Specify distance: ", isReal, 1, &EmitPromptDistance},
    PromptKind{"Specify orient: ", isDirection, 0, &EmitPromptOrient},
    PromptKind{"Specify corner: ", isPoint, 0, &EmitPromptCorner},
    PromptKind{"Specify scale: ", isNoString, 1, &EmitPromptScale},
    PromptKind{"Specify string: ", isAnything, 0, &EmitPromptString},
    PromptKind{"Specify keyword: ", isAnything, 0, &EmitPromptKeyword},
    PromptKind{"Specify color: ", isNoString, 1, &EmitPromptColor},
    PromptKind{"Specify integer: ", isNoString, 1, &EmitPromptInteger},
    PromptKind{"Specify double: ", isNoString, 1, &EmitPromptDouble},
};

/// Reads the answer in the form that the kind's operation takes.
struct Replay
{
    Writer& writer;
    const CFxUserInteraction& interaction;
    const OdResBuf& result;
    const PromptKind& kind;
    CFxString prompt;

    /// Notes an answer that the statement does not give as it was.
    template<class T>
    bool accepted() const
    {
        const bool accepted = kind.accepts(result.restype());
        if (!accepted || !inkmacro::HoldsForm<T>(result))
            NoteAssumption(ActionTitle(&interaction), "its answer is of another form than the prompt's");
        return accepted;
    }

    Statement operator()(EmitPoint ask) const
    {
        return ask(writer, prompt, accepted<OdGePoint3d>() ? result.getPoint3d() : OdGePoint3d());
    }
    Statement operator()(EmitReal ask) const
    {
        return ask(writer, prompt, accepted<double>() ? result.getDouble() : kind.neutral);
    }
    Statement operator()(EmitInteger ask) const
    {
        return ask(writer, prompt, accepted<std::int32_t>() ? result.getInt32() : kind.neutral);
    }
    Statement operator()(EmitText ask) const
    {
        return ask(writer, prompt, accepted<OdString>() ? CFxString(result.getString()) : CFxString());
    }
    /// The keyword that was taken is not repeated: the first of the list is what the generated prompt offers.
    Statement operator()(EmitKeyword ask) const
    {
        Words local;
        Words global;
        interaction.GetKeywords(local, global);
        if (global.size() < local.size())
            throw OdError_InvalidIndex();
        const CFxString answer = result.getString();
        if (!local.empty() && !answer.equalNoCase(local.front()) && !answer.equalNoCase(global.front()))
            NoteAssumption(ActionTitle(&interaction),
                           "the prompt offers its first keyword, not the one that was taken");
        return ask(writer, prompt, local, global);
    }
};

} // namespace

static const PromptKind* kindOf(const CFxUserInteraction& interaction)
{
    const std::int32_t number = interaction.GetInteractionKind();
    const bool isKnown = number >= 0 && static_cast<std::size_t>(number) < promptKinds.size();
    return isKnown ? &promptKinds[static_cast<std::size_t>(number)] : nullptr;
}

/// As a macro shows it again.
static CFxString shownPrompt(const CFxUserInteraction& interaction, const PromptKind& kind)
{
    const CFxString prompt = inkmacro::CleanPromptText(interaction.GetPrompt());
    return prompt.isEmpty() ? CFxString(kind.prompt) : prompt;
}

std::optional<inkmacro::Prompt> ReadPrompt(const CFxUserInteraction& interaction)
{
    const PromptKind* const kind = kindOf(interaction);
    const OdResBufPtr result = interaction.GetResult();
    if (!kind || !result)
        return {};
    inkmacro::Prompt prompt{.asked = static_cast<inkmacro::Asked>(kind - promptKinds.data()),
                            .child = 0,
                            .title = ActionTitle(&interaction),
                            .text = interaction.GetPrompt(),
                            .otherwise = kind->prompt};
    if (!kind->accepts(result->restype()))
        return prompt;
    using enum inkmacro::Asked;
    switch (prompt.asked) {
    case Point:
    case Corner:
        prompt.isAnswered = inkmacro::HoldsForm<OdGePoint3d>(*result);
        prompt.numbers = {result->getPoint3d().x, result->getPoint3d().y, result->getPoint3d().z};
        break;
    case Text:
        prompt.isAnswered = result->restype() == OdResBuf::kRtString;
        prompt.answer = CFxString(result->getString());
        break;
    case Keyword:
    case Color:
        break;
    case Integer:
        prompt.isAnswered = inkmacro::HoldsForm<std::int32_t>(*result);
        prompt.numbers[0] = result->getInt32();
        break;
    default:
        prompt.isAnswered = inkmacro::HoldsForm<double>(*result);
        prompt.numbers[0] = result->getDouble();
        break;
    }
    return prompt;
}

std::int32_t ConvertInteraction(Conversion& conversion, const CFxUserInteraction& interaction, Statement& text)
{
    const OdResBufPtr result = interaction.GetResult();
    // A prompt that was cancelled leaves no trace in the macro.
    if (!result) {
        NoteLoss(ActionTitle(&interaction), "it has no answer, so the macro does not ask");
        return kFxSuccess;
    }
    const PromptKind* const kind = kindOf(interaction);
    if (!kind)
        return kFxFailure;
    if (!AsksWhereRecorded(conversion.writer)) {
        if (conversion.command == 0)
            NoteLoss(ActionTitle(&interaction), "it belongs to no command, so the macro does not ask");
        return kFxSuccess;
    }
    text =
        std::visit(Replay{conversion.writer, interaction, *result, *kind, shownPrompt(interaction, *kind)}, kind->ask);
    return kFxSuccess;
}
