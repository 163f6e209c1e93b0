// Statements of single custom actions.

#include "targets/customActions.h"

#include "statements/arrays.h"
#include "statements/counters.h"

using namespace inkmacro;

/// Basic has no way to go on with a statement in the next line.
static const Phrase insertEmbeddedObject{
    "EmitInsertEmbeddedObject",
    {
        .cpp = "%1iwSketchManager->InsertEmbeddedObjectFromFile(%2%1 L\"%3\", %2%1 %4, %2%1 %5, %2%1 &%6);%2",
        .cppCom = "%1%6 = iwSketchManager->InsertEmbeddedObjectFromFile(%2%1 L\"%3\", %2%1 %4, %2%1 %5);%2",
        .csharp = "%1%6 = iwSketchManager.InsertEmbeddedObjectFromFile(%2%1 \"%3\", %2%1 %4, %2%1 %5);%2",
        .javascript = "%1var %6 = mSkMgr.InsertEmbeddedObjectFromFile(%2%1 \"%3\", %2%1 %4, %2%1 %5);%2",
        .vbNet = "%1%6 = iwSketchManager.InsertEmbeddedObjectFromFile( \"%3\", %4, %5 )%2",
        .vba = "%1Set %6 = iwSketchManager.InsertEmbeddedObjectFromFile( \"%3\", %4, %5 )%2",
        .python = "%1%6 = drawing.sketch.InsertEmbeddedObjectFromFile(%3, %4, %5)%2",
    }};

/// VBA and Python alone write the truth values with a capital here.
Statement EmitInsertEmbeddedObject(Writer& writer, const CFxString& variable, const EscapedText& path, bool first,
                                   bool second)
{
    const bool hasCapital = writer.target == Target::Vba || writer.target == Target::Python;
    const auto word = [&](bool value) {
        return hasCapital ? QLatin1String(value ? "True" : "False") : QLatin1String(value ? "true" : "false");
    };
    return writer.fill(insertEmbeddedObject)
        .text(path, Meaning::Text)
        .word(word(first))
        .word(word(second))
        .word(variable);
}

static const Phrase eraseEntity{"EmitEraseEntities",
                                {
                                    .cpp = "%1%2->put_Erased( true );\n",
                                    .cppCom = "%1%2->put_Erased( true );\n",
                                    .csharp = "%1%2.Erased = true;\n",
                                    .javascript = "%1%2.put_Erased(true);\n",
                                    .vbNet = "%1%2.Erased = True\n",
                                    .vba = "%1%2.Erased = True\n",
                                    .python = "%1%2.Erased = True\n",
                                }};

Statement EmitEraseEntities(Writer& writer, const std::vector<CFxString>& names)
{
    Statement text;
    for (const CFxString& name : names)
        if (!name.isEmpty())
            text += writer.fillIndented(eraseEntity).word(name);
    return text;
}

/// `Set` stands on a declaration in VBA and on plain calls below, which no VBA takes; it has to stay.
static const Phrase declareElementColor{
    "EmitSetElementColor",
    {
        .cpp = "%1iwApplicationOptions_c* appOption;%2%1m_pIwApp->GetApplicationOptions(&appOption);%2"
               "%1iwColor_ptr iwColor1;%2%1iwElementColor_e ElementOption;%2%1%2",
        .cppCom = "%1IApplicationOptionsPtr appOption;%2"
                  "%1appOption = pConnection->m_IwApp->GetApplicationOptions();%2%1IColorPtr iwColor1;%2"
                  "%1iwElementColor_e ElementOption;%2%1%2",
        .csharp = "%1ApplicationOptions appOption;%2%1appOption = iwApp.GetApplicationOptions();%2"
                  "%1Color iwColor1;%2%1iwElementColor_e ElementOption;%2%1%2",
        .javascript = "%1var appOption = mApp.GetApplicationOptions();%2%1var iwColor1;%2%1var ElementOption;%2%1%2",
        .vbNet = "%1Dim appOption As Inkwright.ApplicationOptions%2%1appOption = iwApp.GetApplicationOptions()%2"
                 "%1Dim iwColor1 As Inkwright.Color%2%1Dim ElementOption As Inkwright.iwElementColor_e%2%1%2",
        .vba = "%1Dim appOption As Inkwright.ApplicationOptions%2%1Set appOption = iwApp.GetApplicationOptions()%2"
               "%1Dim iwColor1 As Inkwright.Color%2%1Set ElementOption As Inkwright.iwElementColor_e%2%1%2",
        .python = "%1options = drawing.app.GetApplicationOptions()%2",
    }};
static const Mend basicColorLocals(
    declareElementColor, Target::Vba, "Set stands where Dim belongs",
    "%1Dim appOption As Inkwright.ApplicationOptions%2%1Set appOption = iwApp.GetApplicationOptions()%2"
    "%1Dim iwColor1 As Inkwright.Color%2%1Dim ElementOption As Inkwright.iwElementColor_e%2%1%2");

static const Phrase chooseElement{"EmitSetElementColor",
                                  {
                                      .cpp = "%3ElementOption = (iwElementColor_e)%5;%4",
                                      .cppCom = "%3ElementOption = (iwElementColor_e)%5;%4",
                                      .csharp = "%3ElementOption = (iwElementColor_e)%5;%4",
                                      .javascript = "%3ElementOption = (iwElementColor_e)%5;%4",
                                      .vbNet = "%3ElementOption = %5%4",
                                      .vba = "%3Set ElementOption = %5%4",
                                  }};
static const Mend basicElement(chooseElement, Target::Vba, "Set stands where a value is assigned",
                               "%3ElementOption = %5%4");
static const Mend scriptElement(chooseElement, Target::JavaScript, "a cast of a typed language",
                                "%3ElementOption = %5;%4");

static const Phrase colorByIndex{"EmitSetElementColor",
                                 {
                                     .cpp = "%4m_pIwApp->GetColorByIndex( %6, &iwColor1 );%5",
                                     .cppCom = "%4iwColor1 = pConnection->m_IwApp->GetColorByIndex( %6 );%5",
                                     .csharp = "%4iwColor1 = iwApp.GetColorByIndex( %6 );%5",
                                     .javascript = "%4iwColor1 = iwApp.GetColorByIndex( %6 );%5",
                                     .vbNet = "%4iwColor1 = iwApp.GetColorByIndex( %6 )%5",
                                     .vba = "%4Set iwColor1 = iwApp.GetColorByIndex( %6 )%5",
                                     .python = "%1options.SetElementColor(%4, drawing.app.GetColorByIndex(%3))%2",
                                 }};
static const Mend indexedColorInPage(colorByIndex, Target::JavaScript,
                                     "an indexed color is asked of iwApp, the page's application is mApp",
                                     "%4iwColor1 = mApp.GetColorByIndex( %6 );%5");

static const Phrase colorByRgb{"EmitSetElementColor",
                               {
                                   .cpp = "%4m_pIwApp->GetRGBColor( %6, %7, %8, &iwColor1 );%5",
                                   .cppCom = "%4iwColor1 = pConnection->m_IwApp->GetRGBColor( %6, %7, %8 );%5",
                                   .csharp = "%4iwColor1 = iwApp.GetRGBColor( %6, %7, %8 );%5",
                                   .javascript = "%4iwColor1 = iwApp.GetRGBColor( %6, %7, %8 );%5",
                                   .vbNet = "%4iwColor1 = iwApp.GetRGBColor( %6, %7, %8 )%5",
                                   .vba = "%4Set iwColor1 = iwApp.GetRGBColor( %6, %7, %8 )%5",
                                   .python = "%1options.SetElementColor(%6, drawing.app.GetRGBColor(%3, %4, %5))%2",
                               }};
static const Mend rgbColorInPage(colorByRgb, Target::JavaScript,
                                 "an RGB color is asked of iwApp, the page's application is mApp",
                                 "%4iwColor1 = mApp.GetRGBColor( %6, %7, %8 );%5");

static const Phrase setElementColor{"EmitSetElementColor",
                                    {
                                        .cpp = "%9appOption->SetElementColor(ElementOption, iwColor1);%10",
                                        .cppCom = "%9appOption.SetElementColor(ElementOption, iwColor1);%10",
                                        .csharp = "%9appOption.SetElementColor(ElementOption, iwColor1);%10",
                                        .javascript = "%9appOption.SetElementColor(ElementOption, iwColor1);%10",
                                        .vbNet = "%9appOption.SetElementColor(ElementOption, iwColor1)%10",
                                        .vba = "%9Set appOption.SetElementColor(ElementOption, iwColor1)%10",
                                    }};
static const Mend basicElementColor(setElementColor, Target::Vba, "Set stands in front of a call",
                                    "%9appOption.SetElementColor ElementOption, iwColor1%10");
static const Mend elementColorByPointer(setElementColor, Target::CppCom,
                                        "a member is asked of the smart pointer instead of its object",
                                        "%9appOption->SetElementColor(ElementOption, iwColor1);%10");

/// Python names the element in the call.
Statement EmitSetElementColor(Writer& writer, std::int32_t element, const OdCmColor& color)
{
    // The count goes on, so a later conversion uses variables that its macro does not declare. It has to stay so.
    Statement text;
    if (processCounters.elementColors++ == 0 || writer.repairs)
        text += writer.fill(declareElementColor);
    text += writer.fill(chooseElement).number(element);
    if (color.isByACI())
        text += writer.fill(colorByIndex).number(unsigned{color.colorIndex()}).number(element);
    else
        text += writer.fill(colorByRgb)
                    .number(unsigned{color.red()})
                    .number(unsigned{color.green()})
                    .number(unsigned{color.blue()})
                    .number(element);
    return text += writer.fill(setElementColor);
}

static const Phrase activate{"EmitActivate",
                             {
                                 .cpp = "%1%3->Activate();%2",
                                 .cppCom = "%1%3->Activate();%2",
                                 .csharp = "%1%3.Activate();%2",
                                 .javascript = "%1%3.Activate();%2",
                                 .vbNet = "%1%3.Activate()%2",
                                 .vba = "%1%3.Activate%2",
                                 .python = "%1%3.Activate()%2",
                             }};

Statement EmitActivate(Writer& writer, const CFxString& variable)
{
    return writer.fill(activate).word(variable);
}

static const Phrase join{"EmitJoin",
                         {
                             .cpp = "%1%3->Join( %4 );%2",
                             .cppCom = "%1%3->Join( %4 );%2",
                             .csharp = "%1%3.Join( %4 );%2",
                             .javascript = "%1%3.Join( %4 );%2",
                             .vbNet = "%1%3.Join( %4 )%2",
                             .vba = "%1%3.Join %4%2",
                             .python = "%1%3.Join(%4)%2",
                         }};

Statement EmitJoin(Writer& writer, const CFxString& variable, const CFxString& other)
{
    return writer.fill(join).word(variable).word(other);
}

static const Phrase explode{"EmitExplode",
                            {
                                .cpp = "%1%3->Explode();%2",
                                .cppCom = "%1%3->Explode();%2",
                                .csharp = "%1%3.Explode();%2",
                                .javascript = "%1%3.Explode();%2",
                                .vbNet = "%1%3.Explode()%2",
                                .vba = "%1%3.Explode%2",
                                .python = "%1%3.Explode()%2",
                            }};

Statement EmitExplode(Writer& writer, const CFxString& variable)
{
    return writer.fill(explode).word(variable);
}

/// Declares its variable itself: the command around it has no block and no declarations.
static const Phrase insertViewport{
    "EmitInsertViewport",
    {
        .cpp = "%1iwViewport_ptr %4;%2%1iwSheet_ptr sheetItem%3;%2%1iwDoc->GetSheet(L\"%5\" , &sheetItem%3);%2"
               "%1if (NULL != sheetItem%3)%2%1{%2%1    iwDoubleArray Coordinates%3;%2%6"
               "%1    sheetItem%3->InsertViewport( Coordinates%3, &%4 );%2%1}%2",
        .cppCom = "%1IViewportPtr %4;%2%1ISheetPtr sheetsArray%3 = iwDoc->GetSheet(L\"%5\");%2"
                  "%1if (NULL != sheetsArray%3)%2%1{%2%1    VARIANT variant%3;%2"
                  "%1    variant%3.vt = ( VT_ARRAY | VT_R8 );%2"
                  "%1    variant%3.parray = SafeArrayCreateVector( VT_R8, 0, %7 );%2%6"
                  "%1    %4 = sheetsArray%3->InsertViewport( variant%3 );%2%1}%2",
        .csharp = "%1Viewport %4 = null;%2%1Sheet sheetsArray%3 = iwDoc.GetSheet(\"%5\");%2"
                  "%1if ( null != sheetsArray%3 )%2%1{%2"
                  "%1     %4 = sheetsArray%3.InsertViewport( new double[]{%6} );%2%1}%2",
        .javascript = "%1var %4 = null;%2%1var sheetsArray%3 = mDoc.GetSheet(\"%5\");%2"
                      "%1if ( null != sheetsArray%3 )%2%1{%2"
                      "%1     %4 = sheetsArray%3.InsertViewport( new Array(%6) );%2%1}%2",
        .vbNet = "%1Dim %4 As Inkwright.Viewport = Nothing%2"
                 "%1Dim sheetsArray%3 As Inkwright.Sheet = iwDoc.GetSheet(\"%5\")%2"
                 "%1If sheetsArray%3 IsNot Nothing Then%2"
                 "%1    Dim Coordinates%3(%7) As Double%2%6"
                 "%1     %4 = sheetsArray%3.InsertViewport( Coordinates%3 )%2%1End If%2",
        .vba = "%1Dim %4 As Inkwright.Viewport%2%1Dim sheetsArray%3 As Inkwright.Sheet%2"
               "%1Set sheetsArray%3 = iwDoc.GetSheet(\"%5\")%2%1If Not sheetsArray%3 Is Nothing Then%2"
               "%1    Dim Coordinates%3(%7) As Double%2%6"
               "%1    Set %4 = sheetsArray%3.InsertViewport( Coordinates%3 )%2%1End If%2",
        .python = "%1%4 = None%2%1sheet = drawing.doc.GetSheet(%5)%2%1if sheet is not None:%2"
                  "%1    %4 = sheet.InsertViewport(reals(%6))%2",
    }};

Statement EmitInsertViewport(Writer& writer, const CFxString& variable, const CFxString& sheetName,
                             const OdArray<OdGePoint3d>& points)
{
    const std::uint32_t number = ++writer.UniqueCounter;
    const bool listed =
        writer.target == Target::CSharp || writer.target == Target::JavaScript || writer.target == Target::Python;
    const char* const name = writer.target == Target::CppCom ? "variant" : "Coordinates";
    ArrayPlace place(writer, name + QString::number(number), number);
    place.indentation += QLatin1String("    ");
    const Statement filling = listed ? coordinateList(writer, spatial(points), NumberForm::Short)
                                     : pointLines(place, spatial(points), NumberForm::Short);
    return writer.fill(insertViewport)
        .number(number)
        .word(variable)
        .text(sheetName)
        .word(filling)
        .number(arrayBound(writer, 3U * points.length()));
}

// Clip boundaries of images. In C++ each operation tells its success by a local.

/// VBA has brackets here, and a page gives the picture another polyline. Both have to stay so.
static const Phrase setClipBoundary{
    "EmitSetClipBoundary",
    {
        .cpp = "%1bool Success%3;%2%1iwDoubleArray Coordinates%3;%2%1Coordinates%3.clear();%2%2%4%2"
               "%1%5->SetClipBoundary( Coordinates%3, &Success%3 );%2%2",
        .cppCom = "%1VARIANT variant%3;%2%1variant%3.vt = ( VT_ARRAY | VT_R8 );%2"
                  "%1variant%3.parray = SafeArrayCreateVector( VT_R8, 0, %5 );%2%4%2"
                  "%1%6->SetClipBoundary( variant%3 );%2%2",
        .csharp = "%1%4.SetClipBoundary( new double[]{%3} );%2%2",
        .javascript = "%1%4.InsertPolyline2D(%3);%2",
        .vbNet = "%1Dim Coordinates%3(%4) As Double%2%5%2%1%6.SetClipBoundary( Coordinates%3 )%2%2",
        .vba = "%1Dim Coordinates%3(%4) As Double%2%5%2%1%6.SetClipBoundary( Coordinates%3 )%2%2",
        .python = "%1%4.SetClipBoundary(reals(%3))%2",
    }};

static const Mend callsOtherMethod{setClipBoundary, Target::JavaScript, "a picture has no InsertPolyline2D",
                                   "%1%4.SetClipBoundary( %3 );%2"};

Statement EmitSetClipBoundary(Writer& writer, const CFxString& image, const OdArray<OdGePoint2d>& points)
{
    return callWithArray(
        writer, setClipBoundary, coordinateArray(writer, planar(points), "ClipPointsDblArray", NumberForm::Short),
        [](Fill&) {}, image);
}

static const Phrase removeClipBoundary{"EmitRemoveClipBoundary",
                                       {
                                           .cpp = "%1bool Success%4;%2%1%3->RemoveClipBoundary( &Success%4 );%2",
                                           .cppCom = "%1%3->RemoveClipBoundary();%2",
                                           .csharp = "%1%3.RemoveClipBoundary();%2",
                                           .javascript = "%1%3.RemoveClipBoundary();%2",
                                           .vbNet = "%1%3.RemoveClipBoundary()%2",
                                           .vba = "%1%3.RemoveClipBoundary%2",
                                           .python = "%1%3.RemoveClipBoundary()%2",
                                       }};

Statement EmitRemoveClipBoundary(Writer& writer, const CFxString& image)
{
    Fill statement = writer.fill(removeClipBoundary);
    statement.word(image);
    if (writer.target == Target::Cpp)
        statement.number(++writer.UniqueCounter);
    return statement;
}
