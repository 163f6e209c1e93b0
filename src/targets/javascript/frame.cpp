// The page around the statements.

#include "statements/LineEnd.h"
#include "statements/RecordingState.h"
#include "targets/javascript/CFxConverterIWAPIJavaScript.h"

using namespace inkmacro;

// %1 is the line end, %2 the sheet on which the recording began. A frame brings its own indentation.

static const char* const pageOpening =
    "<html>%1   <head>%1{charset}%1   <!-- Without this line, this will not work in Internet Explorer 8 -->%1"
    "   <meta http-equiv =\"X-UA-Compatible\" content =\"IE=8\" /%1>   <!-- Add your iwInterface .js Files here -->%1";

static const char* const libraryServer = "http://localhost:7776";

/// Some are loaded twice; that does no harm.
static const char* const libraryScripts[] = {
    "ijConnect",
    "iwApplication",
    "iwDocument",
    "iwModel",
    "iwSketchManager",
    "iwCircle",
    "iwCircleArc",
    "iwEllipseArc",
    "iwLine",
    "iwInfiniteLine",
    "iwPoint",
    "iwTolerance",
    "iwRay",
    "iwSimpleNote",
    "iwTable",
    "iwSpline",
    "iwSolid",
    "iwShape",
    "iwFace",
    "iwLeader",
    "iwPolyLine3D",
    "iwRichLine",
    "iwReferenceImage",
    "iwPolygonMesh",
    "iwRegion",
    "iwPolyLine",
    "iwPolyFaceMesh",
    "iwEmbeddedObject",
    "iwNote",
    "iwGroup",
    "iwHatch",
    "iwHatchPattern",
    "iwBlockDefinition",
    "iwBlockInstance",
    "iwAttributeDefinition",
    "iwAlignedDimension",
    "iwAngularDimension",
    "iwArcLengthDimension",
    "iwDiameterDimension",
    "iwJoggedDimension",
    "iwOrdinateDimension",
    "iwRadialDimension",
    "iwRotatedDimension",
    "iwColor",
    "iwDimensionStyleUserData",
    "iwDimensionStyleArrowsOptions",
    "iwDimensionStyleLineOptions",
    "iwDimensionStyleFitOptions",
    "iwDimensionStyleTextOptions",
    "iwGeneralDimension",
    "iwDimensionStyleUserData",
    "iwDimensionStyleLinearDimensionOptions",
    "iwDimensionStyleToleranceOptions",
    "iwDimensionStyleDualDimensionOptions",
    "iwDimensionStyleRadialDiameterDimensionOptions",
    "iwDimensionStyle",
    "iwRichLineStyle",
    "iwRichLineStyleManager",
    "iwDimensionStyleManager",
    "iwTableStyle",
    "iwTableStyleManager",
    "iwTextStyleManager",
    "iwTextStyle",
    "iwDimensionStyleAngularDimensionOptions",
    "iwLineStyleManager",
    "iwLineStyle",
    "iwViewManager",
    "iwNamedView",
    "iwModelNamedView",
    "iwSheetNamedView",
    "iwViewport",
    "iwMathUtility",
    "iwSheet",
    "iwMathPoint",
    "iwCustomCoordinateSystemManager",
    "iwCustomCoordinateSystem",
    "iwCommandMessage",
    "iwPoint",
    "iwLayerManager",
    "iwLayer",
    "iwHyperLink",
    "iwShapeManager",
    "iwShape",
    "iwCustomData",
    "iwTrace",
    "iwSolidBackground",
    "iwGradientBackground",
    "iwImageBackground",
    "iwApplicationOptions",
    "iwInterfaceFiles",
    "iwSystemFiles",
    "iwDrawingSupportFiles",
    "iwMathUtility",
    "iwMathPlane",
    "iwAttributeInstance",
    "iwSelectionManager",
    "iwSelectionFilter",
    "iwReferenceImage",
    "iwTransparency",
    "iwViewTile",
    "iwArcAlignedText",
    "iwCurvedSettings",
};

/// The sheet is fetched even when it has no name.
static const char* const variables =
    "   <script type=\"text/javascript\">%1       /*jslint newcap:true */%1       function runMacro() {%1"
    "           'use strict';%1            var mScript = new ijScriptManager(),%1"
    "               mApp = mScript.getApplication(),%1               mDoc = mApp.GetActiveDocument(),%1"
    "               mViewManager = mDoc.GetViewManager(),%1               mModel = mDoc.GetModel(),%1"
    "               mSheet = mDoc.GetSheet(\"%2\"),%1               mSkMgr = mModel.GetSketchManager(),%1"
    "               mCmdMess = mApp.GetCommandMessage();%1%1";

static const char* const sheetActivation =
    "            mSheet.Activate();%1            mSkMgr = mSheet.GetSketchManager();%1%1";

QByteArray CFxConverterIWAPIJavaScript::pageHead() const
{
    QByteArray head(pageOpening);
    head.replace("{charset}", mended("", "   <meta charset=\"utf-8\">%1"));
    for (const char* const script : libraryScripts)
        head.append("   <script type=\"text/javascript\" src=\"")
            .append(libraryServer)
            .append("/APISDK/ijLibrary/")
            .append(script)
            .append(".js\"></script>%1");
    return head.append(variables);
}

Statement CFxConverterIWAPIJavaScript::EmitFileHeader(const QString&, bool)
{
    QByteArray head = pageHead();
    if (!RecordingInModel)
        head.append(sheetActivation);

    writer.IndentLevel += 3;
    const Template words(head.constData());
    return writer.fill(words).word(LineEnd).text(RecordingSheetName);
}

Statement CFxConverterIWAPIJavaScript::EmitFileFooter()
{
    writer.lowerLevel(3);
    static const Template words(
        "       }%1   </script>%1   </head>%1   <body>%1   <h2>Recorded Macro</h2>%1   <form name=\"macroform\">%1"
        "       <button type=\"button\" onclick=\"runMacro()\">Run macro</button><br />%1   </form>%1   </body>%1"
        "</html>%1");
    return writer.fill(words).word(LineEnd);
}
