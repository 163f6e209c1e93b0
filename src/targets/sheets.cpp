// Sheets.

#include "targets/sheets.h"

using namespace inkmacro;

/// Works on the variables that the frame declares.
static const Phrase activateSheet{
    "EmitActivateSheet",
    {
        .cpp = "%1iwDoc->GetSheet(L\"%3\", &iwSheet);%2%1if (NULL != iwSheet)%2%1{%2%1     iwSheet->Activate();%2"
               "%1     iwSheet->GetSketchManager( &iwSketchManager );%2%1}%2",
        .cppCom = "%1iwSheet = iwDoc->GetSheet(L\"%3\");%2%1if (NULL != iwSheet)%2%1{%2%1     iwSheet->Activate();%2"
                  "%1     iwSketchManager = iwSheet->GetSketchManager();%2%1}%2",
        .csharp = "%1iwSheet = iwDoc.GetSheet(\"%3\");%2%1if (null != iwSheet)%2%1{%2%1     iwSheet.Activate();%2"
                  "%1     iwSketchManager = iwSheet.GetSketchManager();%2%1}%2",
        .javascript = "%1mSheet = mDoc.GetSheet(\"%3\");%2%1if (null != mSheet)%2%1{%2%1     mSheet.Activate();%2"
                      "%1     mSkMgr = mSheet.GetSketchManager();%2%1}%2",
        .vbNet = "%1iwSheet = iwDoc.GetSheet(\"%3\")%2%1If iwSheet IsNot Nothing Then%2%1     iwSheet.Activate()%2"
                 "%1     iwSketchManager = iwSheet.GetSketchManager()%2%1End If%2",
        .vba = "%1Set iwSheet = iwDoc.GetSheet(\"%3\")%2%1If Not iwSheet Is Nothing Then%2%1     iwSheet.Activate%2"
               "%1     Set iwSketchManager = iwSheet.GetSketchManager()%2%1End If%2",
    }};

QString EmitActivateSheet(Writer& writer, const CFxString& sheetName, CFxString& sheetVariable)
{
    sheetVariable = writer.target == Target::JavaScript ? "mSheet" : "iwSheet";
    return writer.fill(activateSheet).text(sheetName);
}
