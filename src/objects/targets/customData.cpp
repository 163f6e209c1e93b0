// Data of applications that objects carry with them.

#include "objects/targets/customData.h"

using namespace inkmacro;

namespace {

/// The variable has no number, so two objects with data in one group declare it twice, and `count` with it. It has to
/// stay so.
constexpr QLatin1String customDataVariable("iwCustomData", 12);

enum GroupCode
{
    kText = 1000,
    kPoint = 1011,
    kDistance = 1041,
};

} // namespace

static const Phrase declareData{"EmitCustomData",
                                {
                                    .cpp = "%1 iwCustomData_ptr %3;%2",
                                    .cppCom = "%1 ICustomDataPtr %3;%2",
                                    .csharp = "%1 CustomData %3;%2",
                                    .javascript = "%1 var %3;%2",
                                    .vbNet = "%1 Dim %3 As Inkwright.CustomData%2",
                                    .vba = "%1 Dim %3 As Inkwright.CustomData%2",
                                }};

static const Phrase getData{"EmitCustomData",
                            {
                                .cpp = "%1 %3->GetCustomData(L\"%5\", &%4);%2",
                                .cppCom = "%1 %4 = %3->GetCustomData(L\"%5\");%2",
                                .csharp = "%1 %4 = %3.GetCustomData(\"%5\");%2",
                                .javascript = "%1 %4 = %3.GetCustomData(\"%5\");%2",
                                .vbNet = "%1 %4 = %3.GetCustomData(\"%5\")%2",
                                .vba = "%1 Set %4 = %3.GetCustomData(\"%5\")%2",
                                .python = "%1custom_data = %3.GetCustomData(%5)%2",
                            }};

static const Phrase emptyData{"EmitCustomData",
                              {
                                  .cpp = "%1 %3->Empty();%2",
                                  .cppCom = "%1 %3->Empty();%2",
                                  .csharp = "%1 %3.Empty();%2",
                                  .javascript = "%1 %3.Empty();%2",
                                  .vbNet = "%1 %3.Empty()%2",
                                  .vba = "%1 %3.Empty%2",
                                  .python = "%1custom_data.Empty()%2",
                              }};

static const Phrase declareCount{"EmitCustomData",
                                 {
                                     .cpp = "%1 long count;%2",
                                     .cppCom = "%1 long count;%2",
                                     .csharp = "%1 int count;%2",
                                     .javascript = "%1 var count;%2",
                                     .vbNet = "%1 Dim count As Integer%2",
                                     .vba = "%1 Dim count As Integer%2",
                                 }};

static const Phrase getCount{"EmitCustomData",
                             {
                                 .cpp = "%1 %3->GetDataCount(&count);%2",
                                 .cppCom = "%1 count = %3->GetDataCount();%2",
                                 .csharp = "%1 count = %3.GetDataCount();%2",
                                 .javascript = "%1 count = %3.GetDataCount();%2",
                                 .vbNet = "%1 count = %3.GetDataCount()%2",
                                 .vba = "%1 count = %3.GetDataCount()%2",
                                 .python = "%1count = custom_data.GetDataCount()%2",
                             }};

static const Phrase insertDistance{"EmitCustomData",
                                   {
                                       .cpp = "%1 %3->InsertDoubleData(count, 1041, %4);%2",
                                       .cppCom = "%1 %3->InsertDoubleData(count, 1041, %4);%2",
                                       .csharp = "%1 %3.InsertDoubleData(count, 1041, %4);%2",
                                       .javascript = "%1 %3.InsertDoubleData(count, 1041, %4);%2",
                                       .vbNet = "%1 %3.InsertDoubleData(count, 1041, %4)%2",
                                       .vba = "%1 %3.InsertDoubleData count, 1041, %4%2",
                                       .python = "%1custom_data.InsertDoubleData(count, 1041, %4)%2",
                                   }};

/// The only one that names the variable itself.
static const Phrase insertPoint{"EmitCustomData",
                                {
                                    .cpp = "%1 iwCustomData->InsertPointData(count, 1011, %3, %4, %5);%2",
                                    .cppCom = "%1 iwCustomData->InsertPointData(count, 1011, %3, %4, %5);%2",
                                    .csharp = "%1 iwCustomData.InsertPointData(count, 1011, %3, %4, %5);%2",
                                    .javascript = "%1 iwCustomData.InsertPointData(count, 1011, %3, %4, %5);%2",
                                    .vbNet = "%1 iwCustomData.InsertPointData(count, 1011, %3, %4, %5)%2",
                                    .vba = "%1 iwCustomData.InsertPointData count, 1011, %3, %4, %5%2",
                                    .python = "%1custom_data.InsertPointData(count, 1011, %3)%2",
                                }};

static const Phrase insertText{"EmitCustomData",
                               {
                                   .cpp = "%1 %3->InsertStringData(count, 1000, L\"%4\");%2",
                                   .cppCom = "%1 %3->InsertStringData(count, 1000, L\"%4\");%2",
                                   .csharp = "%1 %3.InsertStringData(count, 1000, \"%4\");%2",
                                   .javascript = "%1 %3.InsertStringData(count, 1000, \"%4\");%2",
                                   .vbNet = "%1 %3.InsertStringData(count, 1000, \"%4\")%2",
                                   .vba = "%1 %3.InsertStringData count, 1000, \"%4\"%2",
                                   .python = "%1custom_data.InsertStringData(count, 1000, %4)%2",
                               }};

static const Phrase setData{"EmitCustomData",
                            {
                                .cpp = "%1 %3->SetCustomData(L\"%4\", %5);%2",
                                .cppCom = "%1 %3->SetCustomData(L\"%4\", %5);%2",
                                .csharp = "%1 %3.SetCustomData(\"%4\", %5);%2",
                                .javascript = "%1 %3.SetCustomData(\"%4\", %5);%2",
                                .vbNet = "%1 %3.SetCustomData(\"%4\", %5)%2",
                                .vba = "%1 %3.SetCustomData \"%4\", %5%2",
                                .python = "%1%3.SetCustomData(%4, custom_data)%2",
                            }};

static Statement insertElement(Writer& writer, const OdResBuf& element)
{
    switch (element.restype()) {
    case kDistance:
        return writer.fill(insertDistance).word(customDataVariable).real(element.getDouble(), Meaning::Length);
    case kPoint:
        return writer.fill(insertPoint).point(element.getPoint3d());
    case kText:
        return writer.fill(insertText).word(customDataVariable).text(element.getString());
    default:
        return {};
    }
}

Statement EmitCustomData(Writer& writer, const CFxString& variable, const OdResBufPtr& data)
{
    const QLatin1String application(cloudApplication);
    Statement text = writer.fill(declareData).word(customDataVariable).str() +
                     writer.fill(getData).word(variable).word(customDataVariable).text(application).str() +
                     writer.fill(emptyData).word(customDataVariable).str() + writer.fill(declareCount).str();
    const Statement count = writer.fill(getCount).word(customDataVariable);
    for (OdResBufPtr element = data; element; element = element->next())
        if (const Statement insertion = insertElement(writer, *element); !insertion.isEmpty())
            text += count + insertion;
    return text + writer.fill(setData).word(variable).text(application).word(customDataVariable).str();
}
