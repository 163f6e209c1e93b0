// The VBA subroutine around the statements.

#include "statements/Fault.h"
#include "statements/LineEnd.h"
#include "statements/RecordingState.h"
#include "targets/FileHead.h"
#include "targets/vba/CFxConverterIWAPIVba.h"

#include <cstring>

using namespace inkmacro;

// %1 is the line end, %2 the sheet on which the recording began. Tabs and blanks are mixed, and the `Return`s are no
// VBA; both have to stay.

static const FileHead head{
    .opening = "'--------------------------------------------------------------%1"
               "' Preconditions:%1"
               "' 1. Create a VBA macro in a software product in which VBA is%1"
               "'    embedded.%1"
               "' 2. Copy and paste this example into the Visual Basic IDE.%1"
               "' 3. Add a reference to the Inkwright type library,%1"
               "'    install_dir\\bin\\iwAutomation.dll.%1"
               "' 4. Start Inkwright and open a document.%1"
               "' 5. Run the macro.%1"
               "'%1"
               "' Postconditions: A message box pops up when an Arc is%1"
               "' constructed in the drawing document.%1"
               "'----------------------------------------------------------------%1"
               "Option Explicit%1"
               "Sub main()%1"
               "\tDim iwApp As Inkwright.Application%1"
               "\tDim iwDoc As Inkwright.Document%1"
               "\tDim iwModel As Inkwright.Model%1"
               "\tDim iwSketchManager As Inkwright.SketchManager%1"
               "   Dim iwViewManager As Inkwright.ViewManager%1"
               "\t'Connect to Inkwright%1\tSet iwApp = GetObject(, \"Inkwright.Application\")%1"
               "\t'Abort any command currently running in Inkwright%1\t'to avoid nested commands%1"
               "\tiwApp.AbortRunningCommand%1%1\t'Get active document%1\tSet iwDoc = iwApp.GetActiveDocument()%1"
               "\tIf Not iwDoc Is Nothing Then%1%1\t\t'Get model space%1\t\tSet iwModel = iwDoc.GetModel()%1%1",
    .modelSketchManager = "\t\t'Get Sketch Manager%1\t\tSet iwSketchManager = iwModel.GetSketchManager()%1%1",
    .firstSheet = "        Dim iwSheet As Inkwright.Sheet%1        Dim iwVarSheets As Variant%1"
                  "        iwVarSheets = iwDoc.GetSheets%1        Set iwSheet = iwVarSheets(1)%1"
                  "        If iwSheet Is Nothing Then%1            Return%1        End If%1%1",
    .recordedSheet = "\t\t'Get paper space%1        Set iwSheet = iwDoc.GetSheet(\"%2\")%1"
                     "        If iwSheet Is Nothing Then%1            Return%1        End If%1%1"
                     "        iwSheet.Activate%1\t\t'Get Sketch Manager%1"
                     "\t\tSet iwSketchManager = iwSheet.GetSketchManager()%1%1",
    .viewManager = "\t\t'Get View Manager%1\t\tSet iwViewManager = iwDoc.GetViewManager()%1%1",
};

static const Fault kReturn{"EmitFileHeader: sheet", {Target::Vba}, "Return goes back from a GoSub, and there is none"};

/// `Return` ends a GoSub; a repaired macro that does not find its sheet leaves the procedure as VBA does.
Statement CFxConverterIWAPIVba::EmitFileHeader(const QString&, bool)
{
    writer.IndentLevel += 2;
    Statement text;
    QByteArray words = head.words();
    for (auto at = words.indexOf("Return%1"); at != -1; at = words.indexOf("Return%1")) {
        text += filled(words.left(at));
        text += writer.mended(QStringLiteral("Return"), kReturn, QStringLiteral("Exit Sub"));
        words.remove(0, at + static_cast<int>(std::strlen("Return")));
    }
    return text + filled(words);
}

Statement CFxConverterIWAPIVba::filled(const QByteArray& words) const
{
    const Template part(words.constData());
    return withSheetName(writer.fill(part).word(LineEnd));
}

/// Leaves the level.
Statement CFxConverterIWAPIVba::EmitFileFooter()
{
    static const Template words("\tElse%1%1\t\tMsgBox \"There are no open documents in Inkwright\"%1%1\tEnd If%1"
                                "End Sub%1");
    return writer.fill(words).word(LineEnd);
}
