// Text styles, attribute definitions, notes and curved texts.

#include "objects/targets/texts.h"

#include "objects/targets/setters.h"
#include "statements/RecordingState.h"
#include "statements/enumerations.h"
#include "statements/quoting.h"
#include "statements/wording.h"

using namespace inkmacro;

/// A style that is there already is taken as it is.
static const Phrase createTextStyle{
    "EmitCreateTextStyle",
    {
        .cpp = "%1iwCreateObjectResult_e result%3;%2%1iwString textStyleName%4 = L\"%5\";%2"
               "%1iwTextStyleManager_ptr TextStyleManager%3;%2%1iwDoc->GetTextStyleManager(&TextStyleManager%3);%2"
               "%1TextStyleManager%3->GetTextStyle( textStyleName%4, &%6 );%2%1if ( !%6 )%2%1{%2"
               "%1    TextStyleManager%3->CreateTextStyle( textStyleName%4, &%6, &result%3 );%2%1}%2",
        .cppCom = "%1iwCreateObjectResult_e result%3;%2%1BSTR textStyleName%4 = L\"%5\";%2"
                  "%1%6 = pConnection->m_IwApp->GetActiveDocument()->GetTextStyleManager()->GetTextStyle( "
                  "textStyleName%4 );%2%1if (NULL == %6)%2%1{%2"
                  "%1    pConnection->m_IwApp->GetActiveDocument()->GetTextStyleManager()->CreateTextStyle( "
                  "textStyleName%4, &%6, &result%3 );%2%1}%2",
        .csharp = "%1iwCreateObjectResult_e result%3;%2%1string textStyleName%4 = \"%5\";%2"
                  "%1%6 = iwApp.GetActiveDocument().GetTextStyleManager().GetTextStyle( textStyleName%4 );%2"
                  "%1if (null == %6)%2%1{%2"
                  "%1    iwApp.GetActiveDocument().GetTextStyleManager().CreateTextStyle( textStyleName%4, out %6, "
                  "out result%3 );%2%1}%2",
        .javascript = "%1var TextStyleManager%3 = mDoc.GetTextStyleManager();%2%1var textStyleName%4 = \"%5\";%2"
                      "%1var %6 = TextStyleManager%3.GetTextStyle(textStyleName%4);%2%1if (null == %6)%2%1{%2"
                      "%1    %6 = TextStyleManager%3.CreateTextStyle(textStyleName%4).TextStyle;%2%1}%2",
        .vbNet = "%1Dim result%3 As Inkwright.iwCreateObjectResult_e%2%1Dim textStyleName%4 As String = \"%5\"%2"
                 "%1%6 = iwApp.GetActiveDocument().GetTextStyleManager().GetTextStyle( textStyleName%4 )%2"
                 "%1If %6 Is Nothing Then%2"
                 "%1    iwApp.GetActiveDocument().GetTextStyleManager().CreateTextStyle( textStyleName%4, %6, "
                 "result%3 )%2%1End If%2",
        .vba = "%1Dim result%3 As Inkwright.iwCreateObjectResult_e%2%1Dim textStyleName%4 As String%2"
               "%1textStyleName%4 = \"%5\"%2"
               "%1Set %6 = iwApp.GetActiveDocument().GetTextStyleManager().GetTextStyle( textStyleName%4 )%2"
               "%1If %6 Is Nothing Then%2"
               "%1    iwApp.GetActiveDocument().GetTextStyleManager().CreateTextStyle textStyleName%4, %6, "
               "result%3%2%1End If%2",
        .python = "%1styles = drawing.doc.GetTextStyleManager()%2%1%6 = styles.GetTextStyle(%5)%2"
                  "%1if %6 is None:%2%1    %6, _ = styles.CreateTextStyle(%5)%2",
    }};
static const Mend bstrTextStyleName(createTextStyle, Target::CppCom, literalIsNoBstr, textsAsBstr);

Statement EmitCreateTextStyle(Writer& writer, const CFxString& name, const CFxString& styleName)
{
    const std::uint32_t number = ++writer.UniqueCounter;
    return writer.fill(createTextStyle).number(number).number(number).text(styleName, Meaning::Text).word(name);
}

/// The manager's variable has no number, so two of these in one scope declare it twice. It has to stay so.
static const Phrase loadShapeFile{
    "EmitLoadShapeFile",
    {
        .cpp = "%1iwShapeManager_ptr iwShapeManager;%2%1iwDoc->GetShapeManager( &iwShapeManager );%2"
               "%1iwShapeManager->Load( L\"%3\" );%2",
        .cppCom = "%1IShapeManagerPtr iwShapeManager = iwDoc->GetShapeManager();%2"
                  "%1iwShapeManager->Load( L\"%3\" );%2",
        .csharp = "%1ShapeManager iwShapeManager = iwDoc.GetShapeManager();%2%1iwShapeManager.Load( \"%3\" );%2",
        .javascript = "%1var iwShapeManager = mDoc.GetShapeManager();%2%1iwShapeManager.Load(\"%3\");%2",
        .vbNet = "%1Dim iwShapeManager As Inkwright.ShapeManager = iwDoc.GetShapeManager()%2"
                 "%1iwShapeManager.Load( \"%3\" )%2",
        .vba = "%1Dim iwShapeManager As Inkwright.ShapeManager%2%1Set iwShapeManager = iwDoc.GetShapeManager()%2"
               "%1iwShapeManager.Load \"%3\"%2",
        .python = "%1shapes = drawing.doc.GetShapeManager()%2%1shapes.Load(%3)%2",
    }};

Statement EmitLoadShapeFile(Writer& writer, const EscapedText& path)
{
    return writer.fill(loadShapeFile).text(path, Meaning::Text);
}

static const Phrase insertAttributeDefinition{
    "EmitInsertAttributeDefinition",
    {
        .cpp = "%1iwSketchManager->InsertAttributeDefinition(  L\"%3\", L\"%4\", L\"%5\", %6, %7, %8, L\"%9\", %10, "
               "%11, %12, %13, %14, %15, %16, %17, %18, &%19 );%2",
        .cppCom = "%1%19 = iwSketchManager->InsertAttributeDefinition(  L\"%3\", L\"%4\", L\"%5\", %6, %7, %8, "
                  "L\"%9\", %10, %11, %12, %13, %14, %15, %16, %17, %18 );%2",
        .csharp = "%1%19 = iwSketchManager.InsertAttributeDefinition(  \"%3\", \"%4\", \"%5\", %6, %7, %8, \"%9\", "
                  "%10, %11, %12, %13, %14, %15, %16, %17, %18 );%2",
        .javascript =
            "%1var %19 = mSkMgr.InsertAttributeDefinition(\"%3\", \"%4\", \"%5\", %6, %7, %8, \"%9\", \"%10\", "
            "%11, %12, %13, %14, %15, %16, %17, %18);%2",
        .vbNet = "%1%19 = iwSketchManager.InsertAttributeDefinition(  \"%3\", \"%4\", \"%5\", %6, %7, %8, \"%9\", "
                 "%10, %11, %12, %13, %14, %15, %16, %17, %18 )%2",
        .vba = "%1Set %19 = iwSketchManager.InsertAttributeDefinition(  \"%3\", \"%4\", \"%5\", %6, %7, %8, \"%9\", "
               "%10, %11, %12, %13, %14, %15, %16, %17, %18 )%2",
        .python = "%1%17 = drawing.sketch.InsertAttributeDefinition(%3, %4, %5, %6, %7, %8, %9, %10, "
                  "%11, %12, %13, %14, %15, %16)%2",
    }};

Statement EmitInsertAttributeDefinition(Writer& writer, const AttributeDefinition& definition, const CFxString& name)
{
    const QString justification = EnumeratorByText(writer.target, enums::textJustification, definition.justification);
    const auto word = [&](bool value) { return truthWord(writer.target, value); };
    // The last flag is not recorded.
    const QString flags[] = {word(definition.constant), word(definition.invisible),    word(definition.preset),
                             word(definition.verify),   word(definition.lockPosition), word(false)};

    Fill statement = writer.fill(insertAttributeDefinition);
    statement.text(definition.value, Meaning::Text).text(definition.tag, Meaning::Text);
    statement.text(definition.prompt, Meaning::Text).point(definition.position);
    statement.text(definition.styleName).word(justification);
    statement.real(definition.height, Meaning::Length).real(definition.rotation, Meaning::Angle);
    for (const QString& flag : flags)
        statement.word(flag);
    return statement.word(name);
}

static const Phrase insertSimpleNote{
    "EmitInsertSimpleNote",
    {
        .cpp = "%1iwSketchManager->InsertSimpleNote( %3, %4, %5, %6, %7, L\"%8\", &%9 );%2",
        .cppCom = "%1 %9=iwSketchManager->InsertSimpleNote( %3, %4, %5, %6, %7, L\"%8\");%2",
        .csharp = "%1%9 = iwSketchManager.InsertSimpleNote( %3, %4, %5, %6, %7, \"%8\" );%2",
        .javascript = "%1var %9 = mSkMgr.InsertSimpleNote(%3, %4, %5, %6, %7, \"%8\");%2",
        .vbNet = "%1%9 = iwSketchManager.InsertSimpleNote( %3, %4, %5, %6, %7, \"%8\" )%2",
        .vba = "%1Set %9 = iwSketchManager.InsertSimpleNote( %3, %4, %5, %6, %7, \"%8\" )%2",
        .python = "%1%7 = drawing.sketch.InsertSimpleNote(%3, %4, %5, %6)%2",
    }};

Statement EmitInsertSimpleNote(Writer& writer, const OdGePoint3d& position, double height, double rotation,
                               const CFxString& text, const CFxString& name)
{
    return writer.fill(insertSimpleNote)
        .point(position)
        .real(height, Meaning::Length)
        .real(rotation, Meaning::Angle)
        .text(text, Meaning::Text)
        .word(name);
}

/// A note takes its text as an array of one string.
static const Phrase noteTexts{"EmitInsertNote",
                              {
                                  .cpp = "%1iwStringArray strArray%2;\n",
                                  .cppCom = "%1VARIANT strArray%2;\n%1strArray%2.vt = ( VT_ARRAY | VT_BSTR );\n"
                                            "%1strArray%2.parray = SafeArrayCreateVector( VT_BSTR, 0, 1 );\n"
                                            "%1long rgIndices%2;\n%1rgIndices%2 = 0;\n%1BSTR str%2;\n",
                                  .csharp = "%1string[] strArray%2 = new string[1];\n",
                                  .javascript = "%1var strArray%2 = new Array();\n",
                                  .vbNet = "%1Dim strArray%2(0) As String\n",
                                  .vba = "%1Dim strArray%2(0) As String\n",
                              }};

static const Phrase noteText{"EmitInsertNote",
                             {
                                 .cpp = "%1strArray%3.add(L\"%2\");\n",
                                 .cppCom = "%1str%3 = SysAllocString(L\"%2\");\n"
                                           "%1SafeArrayPutElement( strArray%3.parray, &rgIndices%3, str%3 );\n",
                                 .csharp = "%1strArray%3[0] = \"%2\";\n",
                                 .javascript = "%1strArray%3[0] = \"%2\";\n",
                                 .vbNet = "%1strArray%3(0) = \"%2\"\n",
                                 .vba = "%1strArray%3(0) = \"%2\"\n",
                             }};

static const Phrase insertNote{
    "EmitInsertNote",
    {
        .cpp = "%1iwSketchManager->InsertNote( %3, %4, %5, %6, %7, %8, strArray%9, &%10 );%2",
        .cppCom = "%1%10 = iwSketchManager->InsertNote( %3, %4, %5, %6, %7, %8, strArray%9 );%2",
        .csharp = "%1%10 = iwSketchManager.InsertNote( %3, %4, %5, %6, %7, %8, strArray%9 );%2",
        .javascript = "%1var %10 = mSkMgr.InsertNote(%3, %4, %5, %6, %7, %8, strArray%9);%2",
        .vbNet = "%1%10 = iwSketchManager.InsertNote( %3, %4, %5, %6, %7, %8, strArray%9 )%2",
        .vba = "%1Set %10 = iwSketchManager.InsertNote( %3, %4, %5, %6, %7, %8, strArray%9 )%2",
        .python = "%1%8 = drawing.sketch.InsertNote(%3, %4, %5, %6, texts(%7))%2",
    }};

Statement EmitInsertNote(Writer& writer, const OdGePoint3d& firstCorner, const OdGePoint3d& secondCorner,
                         const CFxString& text, const CFxString& name)
{
    const std::uint32_t number = ++writer.UniqueCounter;
    Fill insertion = writer.fill(insertNote);
    // The second corner is made of the first, so an answer that moved the first alone would change the width.
    insertion.real(firstCorner.x).real(firstCorner.y).real(firstCorner.z).point(secondCorner);
    if (!noteText.has(writer.target))
        return insertion.text(text, Meaning::Text).word(name);
    return writer.fillIndented(noteTexts).number(number).str() +
           writer.fillIndented(noteText).text(text).number(number).str() + insertion.number(number).word(name).str();
}

Statement EmitSetNoteJustify(Writer& writer, const CFxString& target, const CFxString& property,
                             const CFxString& shownText)
{
    return EmitSetEnumProperty(writer, target, enums::noteJustification, property, shownText);
}

Statement EmitSetNoteDirection(Writer& writer, const CFxString& target, const CFxString& property, int direction)
{
    return EmitSetEnumValue(writer, target, enums::noteDirection, property, direction);
}

static const Fault kTypedEnumerator{"EmitSetNoteLineSpacing",
                                    {Target::JavaScript},
                                    "the type stands in front of the enumerator, as in a typed language"};

/// The enumerator's form follows the language that the host records in, not the target; a page gets a typed name. No
/// host records in Python.
Statement EmitSetNoteLineSpacing(Writer& writer, const CFxString& target, const CFxString& property, std::int32_t style)
{
    const auto enumeratorIn = [style](Target form) {
        return enumeratorText(form, QStringLiteral("iwNoteLineSpacingStyle_e"),
                              QLatin1String("iwNoteLineSpacingStyle_") +
                                  QLatin1String(style == 0 ? "AtLeast" : "Exactly"));
    };
    const QString enumerator = enumeratorIn(writer.target == Target::Python                       ? Target::Python
                                            : RecordsIn(Target::Cpp) || RecordsIn(Target::CppCom) ? Target::Cpp
                                            : RecordsIn(Target::VbNet) || RecordsIn(Target::Vba)  ? Target::VbNet
                                                                                                  : Target::CSharp);
    if (writer.target != Target::JavaScript) {
        Statement text = EmitSetProperty(writer, target, property, enumerator, false);
        return enumerator == enumeratorIn(writer.target) ? text : writer.faulty(std::move(text), otherLanguage);
    }
    return writer.mended(EmitSetProperty(writer, target, property, enumerator, false), kTypedEnumerator,
                         EmitSetProperty(writer, target, property, enumerator.section('.', -1), true));
}

/// The locals have no number, so that a second change in one scope declares them again. It has to stay so.
static const Phrase setFontParameter{
    "EmitSetFontParameter",
    {
        .cpp = "%1iwString Typeface;%2%1bool Bold = false;%2%1bool Italic = false;%2%1long Charset = 0;%2"
               "%1long PitchAndFamily = 0;%2"
               "%1%3->GetFontParameters( &Typeface, &Bold, &Italic, &Charset, &PitchAndFamily);%2%1%4 = %5;%2"
               "%1%3->SetFontParameters( Typeface, Bold, Italic, Charset, PitchAndFamily);%2",
        .cppCom = "%1BSTR Typeface;%2%1VARIANT_BOOL Bold = false;%2%1VARIANT_BOOL Italic = false;%2"
                  "%1long Charset = 0;%2%1long PitchAndFamily = 0;%2"
                  "%1%3->GetFontParameters( &Typeface, &Bold, &Italic, &Charset, &PitchAndFamily);%2%1%4 = %5;%2"
                  "%1%3->SetFontParameters( Typeface, Bold, Italic, Charset, PitchAndFamily);%2",
        .csharp = "%1string Typeface;%2%1bool Bold = false;%2%1bool Italic = false;%2%1long Charset = 0;%2"
                  "%1long PitchAndFamily = 0;%2"
                  "%1%3.GetFontParameters( out Typeface, out Bold, out Italic, out Charset, out PitchAndFamily);%2"
                  "%1%4 = %5;%2%1%3.SetFontParameters( Typeface, Bold, Italic, Charset, PitchAndFamily);%2",
        .javascript = "%1var results = %3.GetFontParameters( );%2%1%4 = %5;%2"
                      "%1%3.SetFontParameters( results[0], results[1], results[2], results[3], results[4]);%2",
        .vbNet = "%1Dim Typeface As String%2%1Dim Bold As Boolean = False%2%1Dim Italic As Boolean = False%2"
                 "%1Dim Charset As Integer = 0%2%1Dim PitchAndFamily As Integer = 0%2"
                 "%1%3.GetFontParameters( Typeface, Bold, Italic, Charset, PitchAndFamily)%2%1%4 = %5%2"
                 "%1%3.SetFontParameters( Typeface, Bold, Italic, Charset, PitchAndFamily)%2",
        .vba = "%1Dim Typeface As String%2%1Dim Bold As Boolean%2%1Bold = False%2%1Dim Italic As Boolean%2"
               "%1Italic = False%2%1Dim Charset As Integer%2%1Charset = 0%2%1Dim PitchAndFamily As Integer%2"
               "%1PitchAndFamily = 0%2%1%3.GetFontParameters Typeface, Bold, Italic, Charset, PitchAndFamily%2"
               "%1%4 = %5%2%1%3.SetFontParameters Typeface, Bold, Italic, Charset, PitchAndFamily%2",
        .python = "%1typeface, %4, %5, charset, pitch = %3.GetFontParameters()%2"
                  "%1%3.SetFontParameters(typeface, %6, %7, charset, pitch)%2",
    }};

Statement EmitSetFontParameter(Writer& writer, const CFxString& settings, const CFxString& parameter, bool value)
{
    const QString word = truthWord(writer.target, value);
    if (writer.target == Target::Python) {
        // All are read, and what changes is put in place of what was read.
        const bool isBold = parameter == CFxString("Bold");
        const QString bold = QStringLiteral("bold");
        const QString italic = QStringLiteral("italic");
        const QString unused = QStringLiteral("_");
        return writer.fill(setFontParameter)
            .word(settings)
            .word(isBold ? unused : bold)
            .word(isBold ? italic : unused)
            .word(isBold ? word : bold)
            .word(isBold ? italic : word);
    }
    CFxString local = parameter;
    if (writer.target == Target::JavaScript)
        local = parameter == CFxString("Bold") ? "results[1]" : "results[2]";
    return writer.fill(setFontParameter).word(settings).word(local).word(word);
}

static const Phrase insertCurvedText{"EmitInsertCurvedText",
                                     {
                                         .cpp = "%1iwSketchManager->InsertCurvedText( L\"%3\", %4, &%5 );%2",
                                         .cppCom = "%1%5 = iwSketchManager->InsertCurvedText( L\"%3\", %4 );%2",
                                         .csharp = "%1%5 = iwSketchManager.InsertCurvedText( \"%3\", %4 );%2",
                                         .javascript = "%1var %5 = mSkMgr.InsertCurvedText(\"%3\", %4);%2",
                                         .vbNet = "%1%5 = iwSketchManager.InsertCurvedText( \"%3\", %4 )%2",
                                         .vba = "%1Set %5 = iwSketchManager.InsertCurvedText( \"%3\", %4 )%2",
                                         .python = "%1%5 = drawing.sketch.InsertCurvedText(%3, %4)%2",
                                     }};

Statement EmitInsertCurvedText(Writer& writer, const CFxString& text, const CFxString& arc, const CFxString& name)
{
    return writer.fill(insertCurvedText).text(text, Meaning::Text).word(arc).word(name);
}
