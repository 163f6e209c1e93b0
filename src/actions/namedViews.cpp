// Custom actions that make and change named views.

#include "targets/namedViews.h"
#include "actions/handedVariable.h"
#include "actions/handlers.h"
#include "host/db/OdDbClasses.h"
#include "objects/classTable.h"
#include "objects/targets/viewBackgrounds.h"
#include "statements/StatementGroup.h"
#include "statements/losses.h"
#include "statements/wording.h"
#include "targets/sheets.h"
#include "targets/variables.h"

#include <QCoreApplication>

using inkmacro::HandedVariable;
using inkmacro::takeVariable;

namespace {

// As the host's dialog shows the backgrounds.
const QLatin1String kSolid("Solid...");
const QLatin1String kGradient("Gradient...");
const QLatin1String kImage("Image...");

/// A list of the dialog may hand over one of its choices where a view's name is meant.
bool isViewName(const CFxString& word)
{
    const QString& text = word.toQString();
    return !text.isEmpty() && text != QLatin1String("<None>") && text != kSolid && text != kGradient && text != kImage;
}

bool isOrigin(const OdGePoint3d& point)
{
    return point.distanceTo({}) <= 1e-10;
}

/// In the space that the view belongs to; what was active is activated again behind it.
Statement createInItsSpace(Writer& writer, const CFxString& name, bool onSheet, const CFxString& sheetName,
                           const CFxString& variable)
{
    CFxString sheet;
    if (onSheet)
        return EmitActivateSheet(writer, sheetName, sheet) + EmitCreateNamedView(writer, name, true, variable) +
               EmitActivateModel(writer);
    const bool wasInModel = sheetName.isEmpty() || sheetName.toQString() == QLatin1String("Model");
    return EmitActivateModel(writer) + EmitCreateNamedView(writer, name, false, variable) +
           (wasInModel ? QString() : EmitActivateSheet(writer, sheetName, sheet));
}

/// The settings stand behind the word. The flags in front of an image and of a gradient's colors are the dialog's own,
/// and of a gradient it tells the angle and no height.
Statement background(Writer& writer, const CFxCustomAction& action, const CFxString& view)
{
    const QString& kind = action.GetData(6).GetString().toQString();
    if (kind == kSolid)
        return EmitSolidBackground(writer, action.GetData(7).GetColor(), view);
    if (kind == kGradient)
        return EmitGradientBackground(writer, action.GetData(8).GetColor(), action.GetData(9).GetColor(),
                                      action.GetData(10).GetColor(), action.GetData(11).GetDouble(), 0.0, view);
    if (kind != kImage)
        return {};
    const CFxString& position = action.GetData(11).GetString();
    const bool known = inkmacro::isWord(position);
    if (!known && writer.repairs) {
        NoteLoss(ActionTitle(&action), "there is no position of that name");
        return {};
    }
    const Statement image = EmitImageBackground(writer, action.GetData(10).GetString(), position,
                                                {action.GetData(12).GetDouble(), action.GetData(13).GetDouble(),
                                                 action.GetData(14).GetDouble(), action.GetData(15).GetDouble()},
                                                view);
    return known ? image : writer.faulty(image, inkmacro::textAsCode);
}

} // namespace

std::int32_t ConvertActionNamedView(Conversion& conversion, const CFxCustomAction& action, Statement& text)
{
    CFxString variable = takeVariable(conversion.writer, text, HandedVariable::Replaced);
    const OdDbHandle& handle = action.GetData(0).GetHandle();
    if (!conversion.names().FindEntry(handle))
        return PassOver(action, "the macro does not have the view");
    if (variable.isEmpty())
        text += conversion.names().EmitObjectVariable(handle, action.GetData(1).GetClass(), variable);
    const bool mayRename = action.GetData(2).GetBool();
    const bool onSheet = action.GetData(3).GetBool();
    const CFxString& oldName = action.GetData(4).GetString();
    const CFxString& name = action.GetData(5).GetString();
    const OdGePoint3d& first = action.GetData(7).GetPoint();
    const OdGePoint3d& opposite = action.GetData(8).GetPoint();

    if (mayRename && isViewName(oldName))
        text += EmitRenameNamedView(conversion.writer, {onSheet ? oldName : variable, onSheet}, name);
    const NamedViewReference view{onSheet ? name : variable, onSheet};
    if (!name.equalNoCase(QCoreApplication::translate("CFxDlgView", "Current")))
        text += EmitSetNamedViewClass(conversion.writer, view, action.GetData(6).GetString());
    if (!isOrigin(first) || !isOrigin(opposite))
        text += EmitSetViewWindow(conversion.writer, view, first, opposite);
    return kFxSuccess;
}

/// A view that its command has made comes with its variable, declared and in the command's group. Any other view that
/// is made here is declared here, and made in a group of its own.
std::int32_t ConvertActionViewBackground(Conversion& conversion, const CFxCustomAction& action, Statement& text)
{
    CFxString view = takeVariable(conversion.writer, text, HandedVariable::Replaced);
    const OdDbHandle& handle = action.GetData(0).GetHandle();
    const OdRxClass* const cls = action.GetData(1).GetClass();
    const bool isNew = action.GetData(2).GetBool();
    const bool onSheet = action.GetData(3).GetBool();
    const CFxString& sheetName = action.GetData(4).GetString();
    const CFxString& name = action.GetData(5).GetString();
    if (!cls || !IsSupportedClass(cls) || (conversion.writer.repairs && cls != OdDbViewTableRecord::desc()))
        return PassOver(action, "objects of that class have no statements");

    if (isNew && view.isEmpty() && !conversion.names().FindEntry(handle)) {
        const ActionEntry entry = conversion.names().RegisterObject(handle, cls);
        view = conversion.names().DeclaredName(entry);
        text += EmitVariableDeclaration(conversion.writer, entry);
        StatementGroup group(conversion.writer);
        text += group.begin() + createInItsSpace(conversion.writer, name, onSheet, sheetName, view);
        text += group.close();
    } else {
        if (view.isEmpty() && !onSheet)
            text += conversion.names().EmitObjectVariable(handle, cls, view);
        if (view.isEmpty() && !onSheet && conversion.writer.repairs)
            return PassOver(action, "the macro does not have the view");
        if (isNew)
            text += createInItsSpace(conversion.writer, name, onSheet, sheetName, view);
    }
    // Only views of the model have a background.
    if (!onSheet)
        text += background(conversion.writer, action, view);
    return kFxSuccess;
}
