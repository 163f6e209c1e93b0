// The model and the sheets, and their properties.

#include "targets/sheets.h"

#include "statements/quoting.h"

using namespace inkmacro;

// Activating a space works on the variables that the frame declares.

static const Phrase activateModel{
    "EmitActivateModel",
    {
        .cpp = "%1iwModel->Activate();%2%1iwModel->GetSketchManager( &iwSketchManager );%2",
        .cppCom = "%1iwModel->Activate();%2%1iwSketchManager = iwModel->GetSketchManager();%2",
        .csharp = "%1iwModel.Activate();%2%1iwSketchManager = iwModel.GetSketchManager();%2",
        .javascript = "%1mModel.Activate();%2%1mSkMgr = mModel.GetSketchManager();%2",
        .vbNet = "%1iwModel.Activate()%2%1iwSketchManager = iwModel.GetSketchManager()%2",
        .vba = "%1iwModel.Activate%2%1Set iwSketchManager = iwModel.GetSketchManager()%2",
        .python = "%1drawing.model.Activate()%2%1drawing.sketch = drawing.model.GetSketchManager()%2",
    }};

Statement EmitActivateModel(Writer& writer)
{
    writer.onSheet = false;
    return writer.fill(activateModel);
}

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
        .python = "%1drawing.sheet = drawing.doc.GetSheet(%3)%2%1if drawing.sheet is not None:%2"
                  "%1    drawing.sheet.Activate()%2%1    drawing.sketch = drawing.sheet.GetSketchManager()%2",
    }};

Statement EmitActivateSheet(Writer& writer, const CFxString& sheetName, CFxString& sheetVariable)
{
    sheetVariable = writer.target == Target::JavaScript ? "mSheet" : "iwSheet";
    writer.onSheet = true;
    return writer.fill(activateSheet).text(sheetName, Meaning::Text);
}

static const Phrase createSheet{"EmitCreateSheet",
                                {
                                    .cpp = "%1iwSheet_ptr sheet%4;%2%1iwDoc->CreateSheet(L\"%3\", &sheet%4);%2",
                                    .cppCom = "%1ISheetPtr sheet%4 = iwDoc->CreateSheet(L\"%3\");%2",
                                    .csharp = "%1Sheet sheet%4 = iwDoc.CreateSheet(\"%3\");%2",
                                    .javascript = "%1var sheet%4 = mDoc.CreateSheet(\"%3\");%2",
                                    .vbNet = "%1Dim sheet%4 As Inkwright.Sheet = iwDoc.CreateSheet(\"%3\")%2",
                                    .vba = "%1Dim sheet%4 As Inkwright.Sheet%2"
                                           "%1Set sheet%4 = iwDoc.CreateSheet(\"%3\")%2",
                                    .python = "%1drawing.doc.CreateSheet(%3)%2",
                                }};

Statement EmitCreateSheet(Writer& writer, const CFxString& name)
{
    return writer.fill(createSheet).text(name, Meaning::Text).number(++writer.UniqueCounter);
}

static const Phrase createSheetFromTemplate{
    "EmitCreateSheetFromTemplate",
    {
        .cpp = "%1iwSheet_ptr template_sheet%6;%2"
               "%1iwDoc->CreateSheetByTemplate( L\"%3\", L\"%4\", L\"%5\", &template_sheet%6 );%2",
        .cppCom = "%1ISheetPtr template_sheet%6 = iwDoc->CreateSheetByTemplate( L\"%3\", L\"%4\", L\"%5\" );%2",
        .csharp = "%1Sheet template_sheet%6 = iwDoc.CreateSheetByTemplate( \"%3\", \"%4\", \"%5\" );%2",
        .javascript = "%1var template_sheet%6 = mDoc.CreateSheetByTemplate( \"%3\", \"%4\", \"%5\" );%2",
        .vbNet = "%1Dim template_sheet%6 As Inkwright.Sheet = "
                 "iwDoc.CreateSheetByTemplate( \"%3\", \"%4\", \"%5\" )%2",
        .vba = "%1Dim template_sheet%6 As Inkwright.Sheet%2"
               "%1Set template_sheet%6 = iwDoc.CreateSheetByTemplate( \"%3\", \"%4\", \"%5\" )%2",
        .python = "%1drawing.doc.CreateSheetByTemplate(%3, %4, %5)%2",
    }};

Statement EmitCreateSheetFromTemplate(Writer& writer, const CFxString& file, const CFxString& source,
                                      const CFxString& name)
{
    return writer.fill(createSheetFromTemplate)
        .text(file, Meaning::Text)
        .text(source, Meaning::Text)
        .text(name, Meaning::Text)
        .number(++writer.UniqueCounter);
}

/// C++ COM alone asks the application. JavaScript and VBA have the prefix of C++ texts, and in VBA the line end has
/// lost its marker: it comes between the first quotes, the source between the second, and the copy's name is lost. All
/// of it has to stay so.
static const Phrase copySheet{"EmitCopySheet",
                              {
                                  .cpp = "%1iwDoc->CopySheet(L\"%3\" , L\"%4\" );%2",
                                  .cppCom = "%1ISheetPtr *sheets = NULL;%2"
                                            "%1pConnection->m_IwApp->CopySheet(L\"%3\" , L\"%4\" ,&sheets );%2",
                                  .csharp = "%1iwDoc.CopySheet(\"%3\" , \"%4\" );%2",
                                  .javascript = "%1mDoc.CopySheet(L\"%3\" , L\"%4\" );%2",
                                  .vbNet = "%1iwDoc.CopySheet(\"%3\" , \"%4\" )%2",
                                  .vba = "%1iwDoc.CopySheet(L\"%3\" , L\"%4\" )2",
                                  .python = "%1drawing.doc.CopySheet(%3, %4)%2",
                              }};
static const Mend basicCopy(copySheet, Target::Vba,
                            "texts have the prefix of C++, and the sign of the line end's placeholder is missing",
                            "%1iwDoc.CopySheet \"%3\" , \"%4\"%2");
static const Mend copyOfDocument(copySheet, Target::CppCom, "the application copies no sheets, its document does",
                                 "%1iwDoc->CopySheet(L\"%3\" , L\"%4\" );%2");
static const Mend scriptCopy(copySheet, Target::JavaScript, "texts with the prefix of C++",
                             "%1mDoc.CopySheet(\"%3\" , \"%4\" );%2");

Statement EmitCopySheet(Writer& writer, const CFxString& source, const CFxString& copy)
{
    return writer.fill(copySheet).text(source, Meaning::Text).text(copy, Meaning::Text);
}

/// Pages name a variable that nothing declares. It has to stay so.
static const Phrase renameSheet{
    "EmitRenameSheet",
    {
        .cpp = "%1iwSheet_ptr PreSheet%4;%2%1iwDoc->GetSheet(L\"%3\", &PreSheet%4);%2%1if (NULL != PreSheet%4)%2"
               "%1   PreSheet%4->put_Name( L\"%5\" );%2",
        .cppCom = "%1ISheetPtr PreSheet%4 = iwDoc->GetSheet(L\"%3\");%2%1if (NULL != PreSheet%4)%2"
                  "%1   PreSheet%4->put_Name( L\"%5\" );%2",
        .csharp = "%1Sheet PreSheet%4 = iwDoc.GetSheet(\"%3\");%2%1if (null != PreSheet%4)%2"
                  "%1   PreSheet%4.Name = \"%5\";%2",
        .javascript = "%1var PreSheet%4 = mDoc.GetSheet(\"%3\");%2%1if (null != PreSheet%4)%2"
                      "%1   iwSheet%4.put_Name(\"%5\");%2",
        .vbNet = "%1Dim PreSheet%4 As Inkwright.Sheet = iwDoc.GetSheet(\"%3\")%2%1If PreSheet%4 IsNot Nothing Then%2"
                 "%1   PreSheet%4.Name = \"%5\"%2%1End If%2",
        .vba = "%1Dim PreSheet%4 As Inkwright.Sheet%2%1Set PreSheet%4 = iwDoc.GetSheet(\"%3\")%2"
               "%1If Not PreSheet%4 Is Nothing Then%2%1   PreSheet%4.Name = \"%5\"%2%1End If%2",
        .python = "%1sheet = drawing.doc.GetSheet(%3)%2%1if sheet is not None:%2%1    sheet.Name = %5%2",
    }};
static const Mend bstrSheetName(renameSheet, Target::CppCom, literalIsNoBstr, textsAsBstr);
static const Mend scriptRename(
    renameSheet, Target::JavaScript, "a variable that nothing declares",
    "%1var PreSheet%4 = mDoc.GetSheet(\"%3\");%2%1if (null != PreSheet%4)%2%1   PreSheet%4.put_Name(\"%5\");%2");

Statement EmitRenameSheet(Writer& writer, const CFxString& oldName, const CFxString& newName)
{
    return writer.fill(renameSheet)
        .text(oldName, Meaning::Text)
        .number(++writer.UniqueCounter)
        .text(newName, Meaning::Text);
}

static const Phrase removeSheet{"EmitRemoveSheet",
                                {
                                    .cpp = "%1iwDoc->RemoveSheet( L\"%3\" );%2",
                                    .cppCom = "%1iwDoc->RemoveSheet( L\"%3\" );%2",
                                    .csharp = "%1iwDoc.RemoveSheet(\"%3\");%2",
                                    .javascript = "%1var mV = mDoc.RemoveSheet(\"%3\");%2",
                                    .vbNet = "%1iwDoc.RemoveSheet(\"%3\")%2",
                                    .vba = "%1iwDoc.RemoveSheet(\"%3\")%2",
                                    .python = "%1drawing.doc.RemoveSheet(%3)%2",
                                }};

Statement EmitRemoveSheet(Writer& writer, const CFxString& name)
{
    return writer.fill(removeSheet).text(name, Meaning::Text);
}

/// JavaScript lacks the first marker, so that the values move up by one and the last is lost. It has to stay so.
static const Phrase setModelProperty{"EmitSetModelProperty",
                                     {
                                         .cpp = "%1iwModel->put_%3( L\"%4\" );%2",
                                         .cppCom = "%1iwModel->put_%3( L\"%4\" );%2",
                                         .csharp = "%1iwModel.%3 = \"%4\";%2",
                                         .javascript = "%mModel.put_%3( \"%4\" );%2",
                                         .vbNet = "%1iwModel.%3 = \"%4\"%2",
                                         .vba = "%1iwModel.%3 = \"%4\"%2",
                                         .python = "%1drawing.model.%3 = %4%2",
                                     }};
static const Mend bstrModelProperty(setModelProperty, Target::CppCom, literalIsNoBstr, textsAsBstr);
static const Mend modelPropertyOfPage(
    setModelProperty, Target::JavaScript,
    "the marker of the indentation lacks its number, so the values of the statement are one place off",
    "%1mModel.put_%3( \"%4\" );%2");

static const Phrase setSheetProperty{"EmitSetModelProperty",
                                     {
                                         .cpp = "%3%1%4->put_%5( \"%6\" );%2",
                                         .cppCom = "%3%1%4->put_%5( \"%6\" );%2",
                                         .csharp = "%3%1%4.%5 = \"%6\";%2",
                                         .javascript = "%3%1%4.put_%5( \"%6\" );%2",
                                         .vbNet = "%3%1%4.%5 = \"%6\"%2",
                                         .vba = "%3%1%4.%5 = \"%6\"%2",
                                         .python = "%3%1sheet.%5 = %6%2",
                                     }};
static const Mend wideSheetProperty(setSheetProperty, Target::Cpp, "a property of a sheet is given a narrow text",
                                    "%3%1%4->put_%5( L\"%6\" );%2");
static const Mend wideSheetPropertyInCom(setSheetProperty, Target::CppCom,
                                         "a property of a sheet is given a narrow text",
                                         "%3%1%4->put_%5( _bstr_t(L\"%6\") );%2");

/// A repaired macro's way to a sheet that is not activated.
static const Phrase fetchSheet{
    "EmitSetModelProperty: other sheet",
    {
        .cpp = "%1iwSheet_ptr styledSheet%3;%2%1iwDoc->GetSheet(L\"%4\", &styledSheet%3);%2",
        .cppCom = "%1ISheetPtr styledSheet%3 = iwDoc->GetSheet(L\"%4\");%2",
        .csharp = "%1Sheet styledSheet%3 = iwDoc.GetSheet(\"%4\");%2",
        .javascript = "%1var styledSheet%3 = mDoc.GetSheet(\"%4\");%2",
        .vbNet = "%1Dim styledSheet%3 As Inkwright.Sheet = iwDoc.GetSheet(\"%4\")%2",
        .vba = "%1Dim styledSheet%3 As Inkwright.Sheet%2%1Set styledSheet%3 = iwDoc.GetSheet(\"%4\")%2",
        .python = "%1sheet = drawing.doc.GetSheet(%4)%2",
    }};
static const Fault kActivatesSheet{
    "EmitSetModelProperty",
    {Target::Cpp, Target::CSharp, Target::JavaScript, Target::VbNet, Target::CppCom, Target::Vba},
    "a sheet is activated to be given a print style, so that what follows is drawn on it"};

Statement EmitSetModelProperty(Writer& writer, const CFxString& property, const CFxString& value, bool ofModel,
                               const CFxString& sheetName)
{
    if (ofModel)
        return writer.fill(setModelProperty).word(property).text(value);
    CFxString sheet;
    Statement fetch;
    if (writer.repairs) {
        const std::uint32_t counter = ++writer.UniqueCounter;
        sheet = QString("styledSheet%1").arg(counter);
        fetch = writer.fill(fetchSheet).number(counter).text(sheetName);
    } else {
        fetch = EmitActivateSheet(writer, sheetName, sheet);
    }
    return writer.faulty(writer.fill(setSheetProperty).word(fetch).word(sheet).word(property).text(value),
                         kActivatesSheet);
}
