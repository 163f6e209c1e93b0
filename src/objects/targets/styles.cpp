// New layers, and styles of tables, dimensions, rich lines and lines.

#include "objects/targets/styles.h"

#include "statements/RecordingState.h"
#include "statements/quoting.h"
#include "targets/colors.h"
#include "targets/customActions.h"

using namespace inkmacro;

// The statements that make a style are alike but for its kind and the local's name. Pages have no use for the answer;
// of table styles it is not even declared there.
#define INKMACRO_CREATE_STYLE(KIND, LOCAL, SCRIPT_RESULT)                                                              \
    {                                                                                                                  \
        .cpp = "%1iwCreateObjectResult_e result%3;%2%1iwString " LOCAL "%4 = L\"%5\";%2"                               \
               "%1iw" KIND "Manager_ptr " KIND "Manager%3;%2%1iwDoc->Get" KIND "Manager(&" KIND "Manager%3);%2"        \
               "%1" KIND "Manager%3->Create" KIND "( " LOCAL "%4, &%6, &result%3 );%2",                                \
        .cppCom = "%1iwCreateObjectResult_e result%3;%2%1BSTR " LOCAL "%4 = L\"%5\";%2"                                \
                  "%1pConnection->m_IwApp->GetActiveDocument()->Get" KIND "Manager()->Create" KIND "( " LOCAL          \
                  "%4, &%6, &result%3 );%2",                                                                           \
        .csharp =                                                                                                      \
            "%1iwCreateObjectResult_e result%3;%2%1string " LOCAL "%4 = \"%5\";%2"                                     \
            "%1iwApp.GetActiveDocument().Get" KIND "Manager().Create" KIND "( " LOCAL "%4, out %6, out result%3 );%2", \
        .javascript = SCRIPT_RESULT "%1var " LOCAL "%4 = \"%5\";%2"                                                    \
                                    "%1var %6 = mDoc.Get" KIND "Manager().Create" KIND "(" LOCAL "%4)." KIND ";%2",    \
        .vbNet = "%1Dim result%3 As Inkwright.iwCreateObjectResult_e%2%1Dim " LOCAL "%4 As String = \"%5\"%2"          \
                 "%1iwApp.GetActiveDocument().Get" KIND "Manager().Create" KIND "( " LOCAL "%4, %6, result%3 )%2",     \
        .vba = "%1Dim result%3 As Inkwright.iwCreateObjectResult_e%2%1Dim " LOCAL "%4 As String%2"                     \
               "%1" LOCAL "%4 = \"%5\"%2"                                                                              \
               "%1iwApp.GetActiveDocument().Get" KIND "Manager().Create" KIND " " LOCAL "%4, %6, result%3%2",          \
        .python = "%1styles = drawing.doc.Get" KIND "Manager()%2%1%6, _ = styles.Create" KIND "(%5)%2",                \
    }

static const Phrase createTableStyle{"EmitCreateTableStyle", INKMACRO_CREATE_STYLE("TableStyle", "tableStyleName", "")};
static const Phrase createDimensionStyle{"EmitCreateDimensionStyle",
                                         INKMACRO_CREATE_STYLE("DimensionStyle", "dimStyleName", "%1var result%3;%2")};
static const Phrase createRichLineStyle{
    "EmitCreateRichLineStyle", INKMACRO_CREATE_STYLE("RichLineStyle", "richLineStyleName", "%1var result%3;%2")};

#undef INKMACRO_CREATE_STYLE

static const Mend bstrTableStyleName(createTableStyle, Target::CppCom, literalIsNoBstr, textsAsBstr);
static const Mend bstrDimensionStyleName(createDimensionStyle, Target::CppCom, literalIsNoBstr, textsAsBstr);
static const Mend bstrRichLineStyleName(createRichLineStyle, Target::CppCom, literalIsNoBstr, textsAsBstr);

static Statement create(Writer& writer, const Phrase& phrase, const CFxString& styleName, const CFxString& name,
                        bool hasResult = true)
{
    const std::uint32_t number = ++writer.UniqueCounter;
    Fill statement = writer.fill(phrase);
    if (hasResult)
        statement.number(number);
    return statement.number(number).text(styleName, Meaning::Text).word(name);
}

Statement EmitCreateTableStyle(Writer& writer, const CFxString& styleName, const CFxString& name)
{
    return create(writer, createTableStyle, styleName, name, writer.target != Target::JavaScript);
}

Statement EmitCreateDimensionStyle(Writer& writer, const CFxString& styleName, const CFxString& name)
{
    return create(writer, createDimensionStyle, styleName, name);
}

Statement EmitCreateRichLineStyle(Writer& writer, const CFxString& styleName, const CFxString& name)
{
    return create(writer, createRichLineStyle, styleName, name);
}

static const Phrase loadLineStyle{
    "EmitLoadLineStyle",
    {
        .cpp = "%1iwCreateObjectResult_e result%3;%2%1iwLineStyleManager_ptr LineStyleManager%3;%2"
               "%1iwDoc->GetLineStyleManager(&LineStyleManager%3);%2"
               "%1LineStyleManager%3->LoadLineStyle( L\"%4\",L\"%5\", &%6 , &result%3);%2",
        .cppCom =
            "%1pConnection->m_IwApp->GetActiveDocument()->GetLineStyleManager()->LoadLineStyle( L\"%3\", L\"%4\", "
            "&%5 );%2",
        .csharp = "%1iwApp.GetActiveDocument().GetLineStyleManager().LoadLineStyle( \"%3\",\"%4\", out %5 );%2",
        .javascript = "%1var %5 = mDoc.GetLineStyleManager().LoadLineStyle(\"%3\",\"%4\").LineStyle;%2",
        .vbNet = "%1iwApp.GetActiveDocument().GetLineStyleManager().LoadLineStyle( \"%3\",\"%4\", %5 )%2",
        .vba = "%1iwApp.GetActiveDocument().GetLineStyleManager().LoadLineStyle \"%3\",\"%4\", %5%2",
        .python = "%1styles = drawing.doc.GetLineStyleManager()%2"
                  "%1%5 = last(styles.LoadLineStyle(%3, %4))%2",
    }};

Statement EmitLoadLineStyle(Writer& writer, const CFxString& styleName, const EscapedText& path, const CFxString& name)
{
    Fill statement = writer.fill(loadLineStyle);
    if (writer.target == Target::Cpp)
        statement.number(++writer.UniqueCounter);
    return statement.text(styleName, Meaning::Text).text(path, Meaning::Text).word(name);
}

static const Phrase renameStyle{
    "EmitRenameStyle",
    {
        .cpp = "%1iwCreateObjectResult_e result%3;%2%1iwString styleName%4 = L\"%5\";%2"
               "%1%6->Rename( styleName%4, &result%3 );%2",
        .cppCom = "%1iwCreateObjectResult_e result%3;%2%1BSTR styleName%4 = L\"%5\";%2"
                  "%1result%3 = %6->Rename( styleName%4 );%2",
        .csharp = "%1iwCreateObjectResult_e result%3;%2%1string styleName%4 = \"%5\";%2"
                  "%1result%3 = %6.Rename( styleName%4 );%2",
        .javascript = "%1var result%3;%2%1var styleName%4 = \"%5\";%2%1result%3 = %6.Rename( styleName%4 );%2",
        .vbNet = "%1Dim result%3 As Inkwright.iwCreateObjectResult_e%2%1Dim styleName%4 As String = \"%5\"%2"
                 "%1result%3 = %6.Rename( styleName%4 )%2",
        .vba = "%1Dim result%3 As Inkwright.iwCreateObjectResult_e%2%1Dim styleName%4 As String%2"
               "%1styleName%4 = \"%5\"%2%1result%3 = %6.Rename( styleName%4 )%2",
        .python = "%1%6.Rename(%5)%2",
    }};
static const Mend bstrStyleName(renameStyle, Target::CppCom, literalIsNoBstr, textsAsBstr);

Statement EmitRenameStyle(Writer& writer, const CFxString& style, const CFxString& newName, bool activate)
{
    const std::uint32_t number = ++writer.UniqueCounter;
    const Statement rename =
        writer.fill(renameStyle).number(number).number(number).text(newName, Meaning::Text).word(style);
    return activate ? rename + EmitActivate(writer, style) : rename;
}

static const Phrase renameRichLineStyle{"EmitRenameRichLineStyle",
                                        {
                                            .cppCom = "%1%3->Rename(\"%4\");%2",
                                            .csharp = "%1%3.Rename(\"%4\");%2",
                                            .javascript = "%1%3.Rename(\"%4\");%2",
                                            .vbNet = "%1%3.Rename(\"%4\")%2",
                                            .vba = "%1%3.Rename( \"%4\" ) %2",
                                            .python = "%1%3.Rename(%4)%2",
                                        }};

Statement EmitRenameRichLineStyle(Writer& writer, const CFxString& style, const CFxString& newName)
{
    return writer.fill(renameRichLineStyle).word(style).text(newName, Meaning::Text);
}

/// As recorded the rename of a layer or a group is lost in C++. A rich line style has no such operation there.
static const Phrase renameLayerOrGroup{"EmitRenameLayerOrGroup", {.cpp = "%1%3->Rename( L\"%4\" );%2"}};

Statement EmitRenameLayerOrGroup(Writer& writer, const CFxString& variable, const CFxString& newName)
{
    if (!writer.repairs || !renameLayerOrGroup.has(writer.target))
        return EmitRenameRichLineStyle(writer, variable, newName);
    return writer.fill(renameLayerOrGroup).word(variable).text(newName, Meaning::Text);
}

/// In C++ the call has an answer, other than that of a custom action.
static const Phrase activateLayer{"EmitActivateLayer",
                                  {
                                      .cpp = "%1bool bRes%4;%2%1%3->Activate( &bRes%4 );%2",
                                  }};

Statement EmitActivateLayer(Writer& writer, const CFxString& variable)
{
    if (!activateLayer.has(writer.target))
        return EmitActivate(writer, variable);
    return writer.fill(activateLayer).word(variable).number(++writer.UniqueCounter);
}

static const Phrase replaceElement{"EmitReplaceRichLineElement",
                                   {
                                       .cppCom = "%1%3->DeleteLine(%4);%2%1%3->AddLine(%5, %6, L\"%7\");%2",
                                       .csharp = "%1%3.DeleteLine(%4);%2%1%3.AddLine(%5, %6, \"%7\");%2",
                                       .javascript = "%1%3.DeleteLine(%4);%2%1%3.AddLine(%5, %6, \"%7\");%2",
                                       .vbNet = "%1%3.DeleteLine(%4)%2%1%3.AddLine(%5, %6, \"%7\")%2",
                                       .vba = "%1%3.DeleteLine %4%2%1%3.AddLine %5, %6, \"%7\"%2",
                                       .python = "%1%3.DeleteLine(%4)%2%1%3.AddLine(%5, %6, %7)%2",
                                   }};

static const Fault kLineByBlock{"EmitReplaceRichLineElement",
                                {Target::CSharp, Target::JavaScript, Target::VbNet, Target::CppCom, Target::Vba},
                                "a line of a rich line style loses a color of red, green and blue"};

Statement EmitReplaceRichLineElement(Writer& writer, const CFxString& style, int index, double offset,
                                     const OdCmColor& color, const CFxString& lineStyle)
{
    const bool isRgb = !color.isByLayer() && !color.isByBlock() && !color.isByACI();
    const OdCmColor written = isRgb && !writer.repairs ? OdCmColor::byIndex(color.colorIndex()) : color;
    const Statement text = writer.fill(replaceElement)
                               .word(style)
                               .number(index)
                               .real(offset, Meaning::Length)
                               .word(colorExpression(writer.target, written))
                               .text(lineStyle);
    return isRgb ? writer.faulty(text, kLineByBlock) : text;
}

/// A page gets a result that has the layer.
static const Phrase createLayer{
    "EmitCreateLayer",
    {
        .cpp = "%1iwLayerManager_ptr iwLayerManager%5;%2%1iwDoc->GetLayerManager( &iwLayerManager%5 );%2"
               "%1iwCreateObjectResult_e iwCreateObjectResult%5;%2"
               "%1iwLayerManager%5->CreateLayer( L\"%3\", &%4, &iwCreateObjectResult%5 );%2",
        .cppCom = "%1ILayerManagerPtr iwLayerManager%5 = iwDoc->GetLayerManager();%2"
                  "%1iwCreateObjectResult_e iwCreateObjectResult%5;%2"
                  "%1iwLayerManager%5->CreateLayer( L\"%3\", &%4, &iwCreateObjectResult%5 );%2",
        .csharp = "%1LayerManager iwLayerManager%5 = iwDoc.GetLayerManager();%2"
                  "%1iwCreateObjectResult_e iwCreateObjectResult%5;%2"
                  "%1iwLayerManager%5.CreateLayer( \"%3\", out %4, out iwCreateObjectResult%5 );%2",
        .javascript = "%1var iwLayerManager%5 = mDoc.GetLayerManager();%2"
                      "%1var %4 = iwLayerManager%5.CreateLayer(\"%3\");%2",
        .vbNet = "%1Dim iwLayerManager%5 As Inkwright.LayerManager = iwDoc.GetLayerManager()%2"
                 "%1Dim iwCreateObjectResult%5 As Inkwright.iwCreateObjectResult_e%2"
                 "%1iwLayerManager%5.CreateLayer( \"%3\", %4, iwCreateObjectResult%5 )%2",
        .vba = "%1Dim iwLayerManager%5 As Inkwright.LayerManager%2%1Set iwLayerManager%5 = iwDoc.GetLayerManager()%2"
               "%1Dim iwCreateObjectResult%5 As Inkwright.iwCreateObjectResult_e%2"
               "%1iwLayerManager%5.CreateLayer \"%3\", %4, iwCreateObjectResult%5%2",
        .python = "%1layers = drawing.doc.GetLayerManager()%2%1%4, _ = layers.CreateLayer(%3)%2",
    }};

Statement EmitCreateLayer(Writer& writer, const CFxString& layer, const CFxString& name)
{
    return writer.fill(createLayer).text(layer, Meaning::Text).word(name).number(++writer.UniqueCounter);
}

CFxString LayerOf(const CFxString& variable)
{
    constexpr std::int16_t javaScript = 2;
    return RecordingLanguage() == javaScript ? CFxString(variable.toQString() + ".Layer") : variable;
}
