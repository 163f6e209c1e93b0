// The custom action that activates a space, or makes, copies, renames or removes a sheet: all its data are texts.

#include "actions/handlers.h"
#include "targets/sheets.h"

namespace inkmacro {

using enum CFxCustomActionData::_Type;

static Statement activateSheet(Writer& writer, const CFxCustomAction& action)
{
    CFxString variable;
    return EmitActivateSheet(writer, action.GetData(0).GetString(), variable);
}

const ActionForm sheetForms[8] = {
    {DataSignature::exactly({kString}).withWord("Model"),
     [](Writer& writer, const CFxCustomAction&) { return EmitActivateModel(writer); }},
    {DataSignature::exactly({kString}), activateSheet},
    {DataSignature::exactly({kString, kString}).withWord("New"),
     [](Writer& writer, const CFxCustomAction& action) {
         return EmitCreateSheet(writer, action.GetData(1).GetString());
     }},
    {DataSignature::exactly({kString, kString}).withWord("Delete"),
     [](Writer& writer, const CFxCustomAction& action) {
         return EmitRemoveSheet(writer, action.GetData(1).GetString());
     }},
    // Of a copy without a name of its own only the source is known.
    {DataSignature::exactly({kString, kString}).withWord("Copy"),
     [](Writer& writer, const CFxCustomAction& action) {
         return EmitCopySheet(writer, action.GetData(1).GetString(), action.GetData(1).GetString());
     }},
    {DataSignature::exactly({kString, kString}),
     [](Writer& writer, const CFxCustomAction& action) {
         return EmitRenameSheet(writer, action.GetData(0).GetString(), action.GetData(1).GetString());
     }},
    {DataSignature::exactly({kString, kString, kString}).withWord("Copy"),
     [](Writer& writer, const CFxCustomAction& action) {
         return EmitCopySheet(writer, action.GetData(1).GetString(), action.GetData(2).GetString());
     }},
    {DataSignature::exactly({kString, kString, kString, kString}).withWord("Layout from template"),
     [](Writer& writer, const CFxCustomAction& action) {
         return EmitCreateSheetFromTemplate(writer, action.GetData(1).GetString(), action.GetData(2).GetString(),
                                            action.GetData(3).GetString());
     }},
};

} // namespace inkmacro
