// The VB.NET macro file around the statements.

#include "statements/LineEnd.h"
#include "statements/RecordingState.h"
#include "targets/FileHead.h"
#include "targets/texts.h"
#include "targets/vbnet/CFxConverterIWAPIVbNet.h"

using namespace inkmacro;

// %1 is the class, %2 the line end, %3 the sheet on which the recording began. A frame brings its own indentation.

static const FileHead head{
    .opening = "%2Imports System.Runtime.InteropServices%2%2%2Public Class %1%2%2"
               "    Sub Run(ByVal iwApp As Inkwright.Application)%2%2        Dim iwDoc As Inkwright.Document%2"
               "        iwDoc = iwApp.GetActiveDocument()%2        If iwDoc Is Nothing Then%2            Return%2"
               "        End If%2%2        Dim iwModel As Inkwright.Model%2        iwModel = iwDoc.GetModel()%2"
               "        If iwModel Is Nothing Then%2            Return%2        End If%2%2"
               "        Dim iwSketchManager As Inkwright.SketchManager%2",
    .modelSketchManager = "        iwSketchManager = iwModel.GetSketchManager()%2"
                          "        If iwSketchManager Is Nothing Then%2            Return%2        End If%2%2",
    .firstSheet = "        Dim iwSheet As Inkwright.Sheet%2        Dim iwVarSheets As Object%2"
                  "        iwVarSheets = iwDoc.GetSheets()%2        iwSheet = iwVarSheets(1)%2"
                  "        If iwSheet Is Nothing Then%2            Return%2        End If%2%2",
    .recordedSheet = "        iwSheet = iwDoc.GetSheet(\"%3\")%2        If iwSheet Is Nothing Then%2"
                     "            Return%2        End If%2%2        iwSheet.Activate()%2"
                     "        iwSketchManager = iwSheet.GetSketchManager()%2"
                     "        If iwSketchManager Is Nothing Then%2            Return%2        End If%2%2",
    .viewManager = "        Dim iwViewManager As Inkwright.ViewManager%2"
                   "        iwViewManager = iwDoc.GetViewManager()%2        If iwViewManager Is Nothing Then%2"
                   "            Return%2        End If%2%2",
};

static constexpr DotNetFrame::Project project{"Module1.vb", texts::vbnet::Module1_vb, ".vbproj",
                                              texts::vbnet::project_vbproj, "%1.vb"};

CFxConverterIWAPIVbNet::CFxConverterIWAPIVbNet(Writer& writer) : DotNetFrame(writer, project)
{
}

Statement CFxConverterIWAPIVbNet::EmitFileHeader(const QString& className, bool)
{
    writer.IndentLevel += 2;
    const Template words(head.words().constData());
    return withSheetName(writer.fill(words).word(faultyName(className, identifier(className))).word(LineEnd));
}

/// Leaves the level, and the last line without an end.
Statement CFxConverterIWAPIVbNet::EmitFileFooter()
{
    static const Template words("%2    End Sub%2%2End Class");
    return writer.fill(words).word(LineEnd);
}
