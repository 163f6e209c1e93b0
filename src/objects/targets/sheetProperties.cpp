// Properties of the model and of sheets.

#include "objects/targets/sheetProperties.h"
#include "statements/bstrTexts.h"
#include "targets/sheets.h"

using namespace inkmacro;

/// JavaScript lacks the first marker, so that the values move up by one and the last is lost. It has to stay so.
static const Phrase setModelProperty{"EmitSetModelProperty",
                                     {
                                         .cpp = "%1iwModel->put_%3( L\"%4\" );%2",
                                         .cppCom = "%1iwModel->put_%3( L\"%4\" );%2",
                                         .csharp = "%1iwModel.%3 = \"%4\";%2",
                                         .javascript = "%mModel.put_%3( \"%4\" );%2",
                                         .vbNet = "%1iwModel.%3 = \"%4\"%2",
                                         .vba = "%1iwModel.%3 = \"%4\"%2",
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
                                     }};
static const Mend wideSheetProperty(setSheetProperty, Target::Cpp, "a property of a sheet is given a narrow text",
                                    "%3%1%4->put_%5( L\"%6\" );%2");
static const Mend wideSheetPropertyInCom(setSheetProperty, Target::CppCom,
                                         "a property of a sheet is given a narrow text",
                                         "%3%1%4->put_%5( _bstr_t(L\"%6\") );%2");

Statement EmitSetModelProperty(Writer& writer, const CFxString& property, const CFxString& value, bool ofModel,
                             const CFxString& sheetName)
{
    if (ofModel)
        return writer.fill(setModelProperty).text(property).text(value);
    CFxString sheet;
    const Statement activation = EmitActivateSheet(writer, sheetName, sheet);
    return writer.fill(setSheetProperty).text(activation).text(sheet).text(property).text(value);
}
