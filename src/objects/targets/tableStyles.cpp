// What table styles tell of the cells of one type.

#include "objects/targets/tableStyles.h"

#include "statements/LineEnd.h"
#include "statements/RecordingState.h"
#include "statements/enumerations.h"
#include "targets/colors.h"

using namespace inkmacro;

/// The blank behind the indentation stays.
static const Phrase setOfCells{"call of a table style",
                               {
                                   .cppCom = "%1 %2->%3(%4,%5);%6",
                                   .csharp = "%1 %2.%3(%4,%5);%6",
                                   .javascript = "%1 %2.%3(\"%4\",%5);%6",
                                   .vbNet = "%1 %2.%3(%4,%5)%6",
                                   .vba = "%1 %2.%3 %4,%5%6",
                                   .python = "%1%2.%3(%4, %5)%6",
                               }};

static Statement cellTypeEnumerator(const Writer& writer, std::int32_t cellType)
{
    return EnumeratorByValue(writer.target, enums::tableCellType, cellType);
}

/// The call up to the value.
static Fill setOfCellsTo(Writer& writer, const CFxString& style, const CFxString& operation, std::int32_t cellType)
{
    Fill call = writer.fillIndented(setOfCells);
    call.word(style).word(operation).word(cellTypeEnumerator(writer, cellType));
    return call;
}

Statement EmitSetTableStyleColor(Writer& writer, const CFxString& style, const CFxString& operation,
                                 std::int32_t cellType, const OdCmColor& color)
{
    return setOfCellsTo(writer, style, operation, cellType).word(colorExpression(writer.target, color)).word(LineEnd);
}

Statement EmitSetTableStyleLength(Writer& writer, const CFxString& style, const CFxString& operation,
                                  std::int32_t cellType, double length)
{
    return setOfCellsTo(writer, style, operation, cellType).real(length, Meaning::Length).word(LineEnd);
}

static const Phrase setAlignment{"EmitSetTableStyleAlignment",
                                 {
                                     .cppCom = "%1 %2->SetAlignment(%3,%4);%5",
                                     .csharp = "%1 %2.SetAlignment(%3,%4);%5",
                                     .javascript = "%1 %2.SetAlignment(\"%3\",\"%4\");%5",
                                     .vbNet = "%1 %2.SetAlignment(%3,%4)%5",
                                     .vba = "%1 %2.SetAlignment %3,%4%5",
                                     .python = "%1%2.SetAlignment(%3, %4)%5",
                                 }};

/// Where the host records in one of the C++ languages, the type in front of the alignment is taken off in any target.
Statement EmitSetTableStyleAlignment(Writer& writer, const CFxString& style, std::int32_t cellType,
                                     const CFxString& shownText)
{
    QString alignment = EnumeratorByText(writer.target, enums::tableCellAlignment, shownText);
    const QString own = alignment;
    if (RecordsIn(Target::Cpp) || RecordsIn(Target::CppCom))
        alignment.remove(QLatin1String("iwTableCellAlignment_e."));
    Statement text = writer.fillIndented(setAlignment)
                         .word(style)
                         .word(cellTypeEnumerator(writer, cellType))
                         .word(alignment)
                         .word(LineEnd);
    return alignment == own ? text : writer.faulty(std::move(text), otherLanguage);
}

static const Phrase setTextStyle{"EmitSetTableStyleTextStyle",
                                 {
                                     .cppCom = "%1 %2->SetTextStyle(%3,L\"%4\");%5",
                                     .csharp = "%1 %2.SetTextStyle(%3,\"%4\");%5",
                                     .vbNet = "%1 %2.SetTextStyle(%3,\"%4\")%5",
                                     .vba = "%1 %2.SetTextStyle %3,\"%4\"%5",
                                     .python = "%1%2.SetTextStyle(%3, %4)%5",
                                 }};

Statement EmitSetTableStyleTextStyle(Writer& writer, const CFxString& style, std::int32_t cellType,
                                     const CFxString& name)
{
    return writer.fillIndented(setTextStyle)
        .word(style)
        .word(cellTypeEnumerator(writer, cellType))
        .text(name)
        .word(LineEnd);
}
