// Answers at prompts, which a replay asks for anew.

#include "frame/CFxConverterIWAPIImpl.h"
#include "host/rx/OdError.h"
#include "targets/texts.h"

#include <array>
#include <variant>

namespace {

using Driver = CFxConverterIWAPIImpl;
using Words = std::vector<CFxString>;
using EmitPoint = QString (Driver::*)(const CFxString&, const OdGePoint3d&);
using EmitReal = QString (Driver::*)(const CFxString&, double);
using EmitInteger = QString (Driver::*)(const CFxString&, std::int32_t);
using EmitText = QString (Driver::*)(const CFxString&, const CFxString&);
using EmitKeyword = QString (Driver::*)(const CFxString&, const Words&, const Words&);

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
    PromptKind{"Specify point: ", isPoint, 0, &Driver::EmitPromptPoint},
    PromptKind{"Specify angle: ", isAngle, 0, &Driver::EmitPromptAngle},
    PromptKind{"Specify distance: ", isReal, 1, &Driver::EmitPromptDistance},
    PromptKind{"Specify orient: ", isDirection, 0, &Driver::EmitPromptOrient},
    PromptKind{"Specify corner: ", isPoint, 0, &Driver::EmitPromptCorner},
    PromptKind{"Specify scale: ", isNoString, 1, &Driver::EmitPromptScale},
    PromptKind{"Specify string: ", isAnything, 0, &Driver::EmitPromptString},
    PromptKind{"Specify keyword: ", isAnything, 0, &Driver::EmitPromptKeyword},
    PromptKind{"Specify color: ", isNoString, 1, &Driver::EmitPromptColor},
    PromptKind{"Specify integer: ", isNoString, 1, &Driver::EmitPromptInteger},
    PromptKind{"Specify double: ", isNoString, 1, &Driver::EmitPromptDouble},
};

/// Reads the answer in the form that the kind's operation takes.
struct Replay
{
    Driver& driver;
    const CFxUserInteraction& interaction;
    const OdResBuf& result;
    const PromptKind& kind;
    CFxString prompt;

    bool accepted() const { return kind.accepts(result.restype()); }

    QString operator()(EmitPoint ask) const
    {
        return (driver.*ask)(prompt, accepted() ? result.getPoint3d() : OdGePoint3d());
    }
    QString operator()(EmitReal ask) const
    {
        return (driver.*ask)(prompt, accepted() ? result.getDouble() : kind.neutral);
    }
    QString operator()(EmitInteger ask) const
    {
        return (driver.*ask)(prompt, accepted() ? result.getInt32() : kind.neutral);
    }
    QString operator()(EmitText ask) const { return (driver.*ask)(prompt, result.getString()); }
    /// The keyword that was taken is not repeated: the first of the list is what the generated prompt offers.
    QString operator()(EmitKeyword ask) const
    {
        Words local;
        Words global;
        interaction.GetKeywords(local, global);
        if (global.size() < local.size())
            throw OdError_InvalidIndex();
        return (driver.*ask)(prompt, local, global);
    }
};

} // namespace

std::int32_t CFxConverterIWAPIImpl::ConvertInteraction(OdSmartPtr<CFxUserInteraction> interaction, QString& text)
{
    const OdResBufPtr result = interaction->GetResult();
    // A prompt that was cancelled leaves no trace.
    if (!result)
        return kFxSuccess;
    const std::int32_t number = interaction->GetInteractionKind();
    if (number < 0 || static_cast<std::size_t>(number) >= promptKinds.size())
        return kFxFailure;
    const PromptKind& kind = promptKinds[static_cast<std::size_t>(number)];
    CFxString prompt = inkmacro::CleanPromptText(interaction->GetPrompt());
    if (prompt.isEmpty())
        prompt = kind.prompt;
    text = std::visit(Replay{*this, *interaction, *result, kind, prompt}, kind.ask);
    return kFxSuccess;
}
