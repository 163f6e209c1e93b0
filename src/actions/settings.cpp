// Custom actions that set something of the host or of a sheet: screen colors, option values, print styles.

#include "actions/entries.h"
#include "actions/handedVariable.h"
#include "actions/handlers.h"
#include "actions/optionTable.h"
#include "objects/targets/sheetProperties.h"
#include "statements/losses.h"
#include "targets/customActions.h"
#include "targets/options.h"

using inkmacro::HandedVariable;
using inkmacro::takeVariable;

std::int32_t ConvertActionElementColor(Conversion& conversion, const CFxCustomAction& action, Statement& text)
{
    takeVariable(conversion.writer, text, HandedVariable::Replaced);
    text = EmitSetElementColor(conversion.writer, action.GetData(0).GetInt(), action.GetData(1).GetColor());
    return kFxSuccess;
}

/// A variable may be an option of the document and of the application: then both are set. The application's statement
/// is appended to what the text holds, be it the document's statement or the handed variable.
std::int32_t ConvertActionOptionValue(Conversion& conversion, const CFxCustomAction& action, Statement& text)
{
    using inkmacro::OptionKind;
    const CFxString& variable = action.GetData(0).GetString();
    CFxString ofDocument;
    CFxString ofApplication;
    std::int32_t documentKind = -1;
    std::int32_t applicationKind = -1;
    const bool inDocument = FindCommandOption(variable, ofDocument, documentKind) == kFxSuccess;
    const bool inApplication = FindApplicationOption(variable, ofApplication, applicationKind) == kFxSuccess;
    takeVariable(conversion.writer, text,
                 inApplication && !inDocument ? HandedVariable::AppendedTo : HandedVariable::Replaced);

    // Without an option there is nothing to say, and the value need not be there.
    if (!inDocument && !inApplication)
        return PassOver(action, "the interface has no option for " + variable.toQString());
    const CFxCustomActionData& value = action.GetData(1);
    if (inDocument) {
        if (documentKind == static_cast<std::int32_t>(OptionKind::Int16))
            text = EmitCommandOptionInt16(conversion.writer, ofDocument, value.GetInt16());
        else if (documentKind == static_cast<std::int32_t>(OptionKind::Point3d))
            text = EmitCommandOptionPoint3D(conversion.writer, ofDocument, value.GetPoint());
        else if (documentKind == static_cast<std::int32_t>(OptionKind::String))
            text = EmitCommandOptionString(conversion.writer, ofDocument, value.GetString());
        else
            return kFxFailure;
    }
    if (inApplication) {
        if (applicationKind == static_cast<std::int32_t>(OptionKind::Int16))
            text += EmitApplicationOptionInt16(conversion.writer, ofApplication, value.GetInt16());
        else if (applicationKind == static_cast<std::int32_t>(OptionKind::String))
            text += EmitApplicationOptionString(conversion.writer, ofApplication, value.GetString());
        else
            return kFxFailure;
    }
    return kFxSuccess;
}

std::int32_t ConvertActionPrintStyle(Conversion& conversion, const CFxCustomAction& action, Statement& text)
{
    takeVariable(conversion.writer, text, HandedVariable::Replaced);
    text = EmitSetModelProperty(conversion.writer, "PrintStyle", action.GetData(0).GetString(),
                                action.GetData(1).GetBool(), action.GetData(2).GetString());
    return kFxSuccess;
}
