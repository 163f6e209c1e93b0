// The C# macro file around the statements.

#include "statements/LineEnd.h"
#include "statements/RecordingState.h"
#include "targets/FileHead.h"
#include "targets/csharp/CFxConverterIWAPICSharp.h"
#include "targets/texts.h"

using namespace inkmacro;

// %1 is the line end, %2 the class, %3 the sheet on which the recording began. A frame brings its own indentation.

static const FileHead head{
    .opening = "using System;%1using Inkwright;%1using System.Runtime.InteropServices;%1%1"
               "// This code was automatically generated.%1namespace IWAPIMacros%1{%1    class %2%1    {%1"
               "        public void Run( Inkwright.Application iwApp )%1        {%1"
               "            Document iwDoc = iwApp.GetActiveDocument();%1            if (null == iwDoc)%1"
               "            {%1                return;%1            }%1%1"
               "            Model iwModel = iwDoc.GetModel();%1            if (null == iwModel)%1"
               "            {%1                return;%1            }%1%1            SketchManager iwSketchManager;%1",
    .modelSketchManager = "            iwSketchManager = iwModel.GetSketchManager();%1"
                          "            if (null == iwSketchManager)%1            {%1                return;%1"
                          "            }%1%1",
    .firstSheet = "            object[] sheetsList = (object[])iwDoc.GetSheets();%1"
                  "            Sheet iwSheet = (Sheet)sheetsList[1];%1            if (null == iwSheet)%1"
                  "            {%1                 return;%1            }%1%1",
    .recordedSheet = "            iwSheet = iwDoc.GetSheet(\"%3\");%1            if (null == iwSheet)%1"
                     "            {%1                 return;%1            }%1%1            iwSheet.Activate();%1%1"
                     "            iwSketchManager = iwSheet.GetSketchManager();%1"
                     "            if (null == iwSketchManager)%1            {%1                return;%1"
                     "            }%1%1",
    .viewManager = "            ViewManager iwViewManager = iwDoc.GetViewManager();%1"
                   "            if (null == iwViewManager)%1            {%1                return;%1"
                   "            }%1%1",
};

static const char* const optionResult = "            iwSetCommandOptionResult_e result;%1";

static constexpr DotNetFrame::Project project{"Program.cs", texts::csharp::Program_cs, ".csproj",
                                              texts::csharp::project_csproj, "%1.cs"};

CFxConverterIWAPICSharp::CFxConverterIWAPICSharp(Writer& writer) : DotNetFrame(writer, project)
{
}

Statement CFxConverterIWAPICSharp::EmitFileHeader(const QString& className, bool hasSysVar)
{
    QByteArray frame = head.words();
    if (hasSysVar)
        frame.append(optionResult);

    writer.IndentLevel += 3;
    const Template words(frame.constData());
    return withSheetName(writer.fill(words).word(LineEnd).word(faultyName(className, identifier(className))));
}

Statement CFxConverterIWAPICSharp::EmitFileFooter()
{
    writer.lowerLevel(3);
    static const Template words("        }%1    }%1}%1");
    return writer.fill(words).word(LineEnd);
}
