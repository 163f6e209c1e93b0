// Custom actions that change what is shown: the tiles of the display, the part of the drawing in sight, and the sheet.

#include "targets/display.h"
#include "actions/handedVariable.h"
#include "actions/handlers.h"
#include "statements/counters.h"
#include "statements/losses.h"
#include "statements/wording.h"
#include "targets/sheets.h"

#include <array>

using inkmacro::HandedVariable;
using inkmacro::takeVariable;
using inkmacro::Target;

/// An integer that stands for no mode counts as a single tile.
static QString tilesMode(int mode)
{
    static constexpr std::array suffixes{"1",       "2_Vertical", "2_Horizontal", "3_Right", "3_Left",  "3_Above",
                                         "3_Below", "3_Vertical", "3_Horizontal", "4_Equal", "4_Right", "4_Left"};
    const auto index = static_cast<std::size_t>(mode);
    if (index >= suffixes.size())
        NoteLoss(QString("mode %1 of view tiles").arg(mode), "there is no such mode, so the display has one tile");
    return QLatin1String("iwViewTilesMode_") + QLatin1String(suffixes[index < suffixes.size() ? index : 0]);
}

/// A tile is taken from the array of all tiles, so the statement that fetches one which the macro does not know is
/// dropped.
std::int32_t ConvertActionViewTiles(Conversion& conversion, const CFxCustomAction& action, Statement& text)
{
    takeVariable(conversion.writer, text, HandedVariable::Replaced);
    const QLatin1String applyTo(action.GetData(0).GetBool() ? "iwViewTilesApplyTo_Display"
                                                            : "iwViewTilesApplyTo_ActiveViewTile");
    const QString mode = tilesMode(action.GetData(1).GetInt());
    const std::vector<OdDbHandle>& tiles = action.GetData(2).GetHandleArray();
    const std::vector<const OdRxClass*>& classes = action.GetData(3).GetClassArray();
    std::vector<CFxString> names(tiles.size());
    for (std::size_t i = 0; i < tiles.size(); ++i)
        names[i] = conversion.names().NameObject(tiles[i], ClassAt(classes, i));
    const QString array = QStringLiteral("iwViewTileArray%1").arg(processCounters.viewTileArrays++);
    text = EmitInsertViewTiles(conversion.writer, array, mode, applyTo);
    for (std::size_t i = 0; i < names.size(); ++i)
        if (!names[i].isEmpty())
            text += EmitSelectViewTile(conversion.writer, array, i, names[i],
                                       conversion.names().FindAs(tiles[i], classes[i]) != nullptr);
    return kFxSuccess;
}

static const inkmacro::Fault kOtherCase{"EmitZoom",
                                        {Target::Cpp, Target::CSharp, Target::JavaScript, Target::CppCom},
                                        "the range has the case of letters that was recorded"};

std::int32_t ConvertActionZoom(Conversion& conversion, const CFxCustomAction& action, Statement& text)
{
    takeVariable(conversion.writer, text, HandedVariable::Replaced);
    const CFxString& range = action.GetData(0).GetString();
    if (!inkmacro::isWord(range) && conversion.Drops(inkmacro::textAsCode))
        return PassOver(action, "there is no range of that name");
    const CFxString window("iwZoomRange_Window");
    if (!range.equalNoCase(window)) {
        text = EmitZoom(conversion.writer, range);
        return kFxSuccess;
    }
    const bool isMisspelt = range.toQString() != window.toQString();
    text = EmitZoom(conversion.writer, isMisspelt && conversion.Drops(kOtherCase) ? window : range,
                    action.GetData(1).GetPoint(), action.GetData(2).GetPoint());
    return kFxSuccess;
}

namespace inkmacro {

using enum CFxCustomActionData::_Type;

static Statement activateSheet(Writer& writer, const CFxCustomAction& action)
{
    CFxString variable;
    return EmitActivateSheet(writer, action.GetData(0).GetString(), variable);
}

/// All data are texts.
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
