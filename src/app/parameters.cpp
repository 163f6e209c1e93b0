// Which answers are parameters of a macro's functions.

#include "app/parameters.h"

#include "app/StagingFolder.h"
#include "app/conversion.h"
#include "app/temporaryFolder.h"
#include "host/kernel/CFxServices.h"
#include "recordfile/Recording.h"

#include <algorithm>

namespace inkmacro {

namespace {

bool hasPrompts(const CFxActionArray& actions)
{
    return std::any_of(actions.begin(), actions.end(), [](const OdRxObjectPtr& action) {
        const auto command = odrxQuery<CFxUserCommand>(action.get());
        return odrxQuery<CFxUserInteraction>(action.get()) || (command && hasPrompts(command->GetActions()));
    });
}

/// Null when there is none.
const OdRxObject* actionAt(const CFxActionArray& actions, const CFxActionPlace& place)
{
    const CFxActionArray* among = &actions;
    const OdRxObject* found = nullptr;
    for (const std::uint32_t number : place) {
        if (!among || number >= among->length())
            return nullptr;
        found = (*among)[number].get();
        const auto command = odrxQuery<CFxUserCommand>(found);
        among = command ? &command->GetActions() : nullptr;
    }
    return found;
}

} // namespace

PromptParameters parametersOf(const Recording& recording)
{
    PromptParameters parameters;
    if (!hasPrompts(recording.actions))
        return parameters;
    const TargetRow& python = *std::ranges::find(targetTable, Target::Python, &TargetRow::target);
    const std::string name = "inspect.py";
    const StagingFolder folder(temporaryFolder(), {name, python.projectFiles.data()});
    CFxConversionNotes& notes = GetFxSystemServices()->Notes();
    notes.KeepAll(true);
    runModule(python, QString::fromStdString(folder.file(name).string()), recording, {});
    for (const CFxParameterNote& note : notes.GetParameters())
        if (const OdRxObject* const prompt = actionAt(recording.actions, note.where))
            parameters.emplace(prompt, note);
    return parameters;
}

} // namespace inkmacro
