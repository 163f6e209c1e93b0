// The option objects of a dimension style and what is set on them.

#include "objects/targets/dimensionOptions.h"

#include "statements/enumerations.h"
#include "statements/quoting.h"
#include "statements/wording.h"

using namespace inkmacro;

static const Phrase getOptions{"EmitGetOptions",
                               {
                                   .cpp = "%1iw%5_ptr %3;%2%1%4->Get%5( &%3 );%2",
                                   .cppCom = "%1I%5Ptr %3 = %4->Get%5();%2",
                                   .csharp = "%1%6%5 %3 = %4.Get%5();%2",
                                   .javascript = "%1var %3 = %4.Get%5();%2",
                                   .vbNet = "%1Dim %3 As Inkwright.%5 = %4.Get%5()%2",
                                   .vba = "%1Dim %3 As Inkwright.%5%2%1Set %3 = %4.Get%5()%2",
                                   .python = "%1%3 = %4.Get%5()%2",
                               }};

Statement EmitGetOptions(Writer& writer, const OptionObject& object, const CFxString& owner, CFxString& options)
{
    options =
        writer.target == Target::Python ? QString(object.local) : object.stem + QString::number(++writer.UniqueCounter);
    const QLatin1String library(object.qualified ? "Inkwright." : "");
    return writer.fill(getOptions).word(options).word(owner).word(QLatin1String(object.hostWord)).word(library);
}

static const Phrase setOptions{"EmitSetOptions",
                               {
                                   .cpp = "%1%3->Set%5( %4 );%2",
                                   .cppCom = "%1%3->Set%5( %4 );%2",
                                   .csharp = "%1%3.Set%5( %4 );%2",
                                   .javascript = "%1%3.Set%5( %4 );%2",
                                   .vbNet = "%1%3.Set%5( %4 )%2",
                                   .vba = "%1%3.Set%5 %4%2",
                                   .python = "%1%3.Set%5(%4)%2",
                               }};

Statement EmitSetOptions(Writer& writer, const OptionObject& object, const CFxString& owner, const CFxString& options)
{
    return writer.fill(setOptions).word(owner).word(options).word(QLatin1String(object.hostWord));
}

/// The name of a block stands behind the kind of arrow.
static const Phrase setArrow{"EmitSetArrow",
                             {
                                 .cpp = "%1%3->%4( %5, L\"%6\" );%2",
                                 .cppCom = "%1%3->%4( %5, L\"%6\" );%2",
                                 .csharp = "%1%3.%4( %5, %6%7%8 );%2",
                                 .javascript = "%1%3.%4( \"%5\", \"%6\" );%2",
                                 .vbNet = "%1%3.%4( %5, \"%6\" )%2",
                                 .vba = "%1%3.%4 %5, \"%6\"%2",
                                 .python = "%1%3.%4(%5, %6)%2",
                             }};

Statement EmitSetArrow(Writer& writer, const CFxString& target, const CFxString& operation, std::int32_t arrow,
                       const CFxString& name)
{
    const QString kind = EnumeratorByValue(writer.target, enums::dimensionArrowType, arrow);
    Fill statement = writer.fill(setArrow);
    statement.word(target).word(operation).word(kind);
    if (writer.target != Target::CSharp)
        return statement.text(name);
    // C# takes its quotes as values too.
    const QLatin1String quote("\"");
    return statement.word(quote).word(writer.quoted(name)).word(quote);
}

static const Phrase setStyleArrow{
    "EmitSetStyleArrow",
    {
        .cpp = "%1iwDimensionArrowType_e arrowType%3=%4;%2%1iwString arrowName%3 = L\"%5\";%2"
               "%1%6->%7( arrowType%3, arrowName%3 );%2",
        .cppCom = "%1iwDimensionArrowType_e arrowType%3=%4;%2%1BSTR arrowName%3 = L\"%5\";%2"
                  "%1%6->%7( arrowType%3, arrowName%3 );%2",
        .csharp = "%1iwDimensionArrowType_e arrowType%3=%4;%2%1string arrowName%3=\"%5\";%2"
                  "%1%6.%7(arrowType%3, arrowName%3);%2",
        .javascript = "%1var arrowType%3 = \"%4\";%2%1var arrowName%3 = \"%5\";%2"
                      "%1%6.%7(arrowType%3, arrowName%3);%2",
        .vbNet = "%1Dim arrowType%3 As Inkwright.iwDimensionArrowType_e = %4%2"
                 "%1Dim arrowName%3 As String = \"%5\"%2%1%6.%7(arrowType%3, arrowName%3)%2",
        .vba = "%1Dim arrowType%3 As Inkwright.iwDimensionArrowType_e%2%1arrowType%3 = %4%2"
               "%1Dim arrowName%3 As String%2%1arrowName%3 = \"%5\"%2%1%6.%7 arrowType%3, arrowName%3%2",
        .python = "%1%6.%7(%4, %5)%2",
    }};
static const Mend bstrArrowName(setStyleArrow, Target::CppCom, literalIsNoBstr, textsAsBstr);

Statement EmitSetStyleArrow(Writer& writer, const CFxString& target, const CFxString& operation, std::int32_t arrow,
                            const CFxString& name)
{
    const QString kind = EnumeratorByValue(writer.target, enums::dimensionArrowType, arrow);
    return writer.fill(setStyleArrow).number(++writer.UniqueCounter).word(kind).text(name).word(target).word(operation);
}

static const Phrase setDimensionScale{"EmitSetDimensionScale",
                                      {
                                          .cpp = "%1%3->%4( %5, %6 );%2",
                                          .cppCom = "%1%3->%4( %5, %6 );%2",
                                          .csharp = "%1%3.%4( %5, %6 );%2",
                                          .javascript = "%1%3.%4( \"%5\", %6 );%2",
                                          .vbNet = "%1%3.%4( %5, %6 )%2",
                                          .vba = "%1%3.%4 %5, %6%2",
                                          .python = "%1%3.%4(%5, %6)%2",
                                      }};

Statement EmitSetDimensionScale(Writer& writer, const CFxString& target, const CFxString& operation, std::int32_t scale,
                                double factor)
{
    const QString kind = EnumeratorByValue(writer.target, enums::dimensionScale, scale);
    return writer.fill(setDimensionScale).word(target).word(operation).word(kind).real(factor, Meaning::Factor);
}

static const Phrase setFixedLength{"EmitSetExtensionLineFixedLength",
                                   {
                                       .cpp = "%1%3->SetExtensionLineFixedLength(%4, %5);%2",
                                       .cppCom = "%1%3->SetExtensionLineFixedLength(%4, %5);%2",
                                       .csharp = "%1%3.SetExtensionLineFixedLength(%4, %5);%2",
                                       .javascript = "%1%3.SetExtensionLineFixedLength(%4, %5);%2",
                                       .vbNet = "%1%3.SetExtensionLineFixedLength(%4, %5)%2",
                                       .vba = "%1%3.SetExtensionLineFixedLength %4, %5%2",
                                       .python = "%1%3.SetExtensionLineFixedLength(%4, %5)%2",
                                   }};

Statement EmitSetExtensionLineFixedLength(Writer& writer, const CFxString& target, bool fixed, double length)
{
    return writer.fill(setFixedLength).word(target).word(truthWord(writer.target, fixed)).real(length, Meaning::Length);
}

static const Phrase getCenterMark{
    "EmitSetCenterMark",
    {
        .cpp = "%1iwDimensionCenterMarkDisplay_e CenterMarkDisplay%3;%2%1double markSize%3;%2"
               "%1%4->GetCenterMarkDisplay( &CenterMarkDisplay%3, &markSize%3 );%2",
        .cppCom = "%1iwDimensionCenterMarkDisplay_e CenterMarkDisplay%3;%2%1double markSize%3;%2"
                  "%1%4->GetCenterMarkDisplay( &CenterMarkDisplay%3, &markSize%3 );%2",
        .csharp = "%1iwDimensionCenterMarkDisplay_e CenterMarkDisplay%3;%2%1double markSize%3;%2"
                  "%1%4.GetCenterMarkDisplay( out CenterMarkDisplay%3, out markSize%3 );%2",
        .javascript = "%1var results%3 = %4.GetCenterMarkDisplay( );%2",
        .vbNet = "%1Dim CenterMarkDisplay%3 As Inkwright.iwDimensionCenterMarkDisplay_e%2%1Dim markSize%3 As Double%2"
                 "%1%4.GetCenterMarkDisplay( CenterMarkDisplay%3, markSize%3 )%2",
        .vba = "%1Dim CenterMarkDisplay%3 As Inkwright.iwDimensionCenterMarkDisplay_e%2%1Dim markSize%3 As Double%2"
               "%1%4.GetCenterMarkDisplay CenterMarkDisplay%3, markSize%3%2",
    }};

static const Phrase changeCenterMarkKind{"EmitSetCenterMark",
                                         {
                                             .cpp = "%1CenterMarkDisplay%3 = %4;%2",
                                             .cppCom = "%1CenterMarkDisplay%3 = %4;%2",
                                             .csharp = "%1CenterMarkDisplay%3 = %4;%2",
                                             .javascript = "%1results%3[0] = \"%4\";%2",
                                             .vbNet = "%1CenterMarkDisplay%3 = %4%2",
                                             .vba = "%1CenterMarkDisplay%3 = %4%2",
                                             .python = "%1_, size = %5.GetCenterMarkDisplay()%2%1%5.%6(%4, size)%2",
                                         }};

static const Phrase changeCenterMarkSize{"EmitSetCenterMark",
                                         {
                                             .cpp = "%1markSize%3 = %4;%2",
                                             .cppCom = "%1markSize%3 = %4;%2",
                                             .csharp = "%1markSize%3 = %4;%2",
                                             .javascript = "%1results%3[1] = %4;%2",
                                             .vbNet = "%1markSize%3 = %4%2",
                                             .vba = "%1markSize%3 = %4%2",
                                             .python = "%1kind, _ = %5.GetCenterMarkDisplay()%2%1%5.%6(kind, %4)%2",
                                         }};

static const Phrase setCenterMark{"EmitSetCenterMark",
                                  {
                                      .cpp = "%1%3->%4( CenterMarkDisplay%5, markSize%5 );%2",
                                      .cppCom = "%1%3->%4( CenterMarkDisplay%5, markSize%5 );%2",
                                      .csharp = "%1%3.%4( CenterMarkDisplay%5, markSize%5 );%2",
                                      .javascript = "%1%3.%4( results%5[0], results%5[1] );%2",
                                      .vbNet = "%1%3.%4( CenterMarkDisplay%5, markSize%5 )%2",
                                      .vba = "%1%3.%4 CenterMarkDisplay%5, markSize%5%2",
                                  }};

/// `fillValue` puts the new value in.
template<class FillValue>
static Statement changeCenterMark(Writer& writer, const CFxString& target, const CFxString& operation,
                                  const Phrase& change, const FillValue& fillValue)
{
    const std::uint32_t suffix = ++writer.UniqueCounter;
    Fill changed = writer.fill(change);
    fillValue(changed.number(suffix));
    // Python reads and writes in one statement, which knows what it does not need to read.
    return writer.fill(getCenterMark).number(suffix).word(target).str() + changed.word(target).word(operation).str() +
           writer.fill(setCenterMark).word(target).word(operation).number(suffix).str();
}

Statement EmitSetCenterMarkKind(Writer& writer, const CFxString& target, const CFxString& operation, std::int32_t kind)
{
    return changeCenterMark(writer, target, operation, changeCenterMarkKind, [&](Fill& change) {
        change.word(EnumeratorByValue(writer.target, enums::dimensionCenterMarkDisplay, kind));
    });
}

Statement EmitSetCenterMarkSize(Writer& writer, const CFxString& target, const CFxString& operation, double size)
{
    return changeCenterMark(writer, target, operation, changeCenterMarkSize,
                            [&](Fill& change) { change.real(size, Meaning::Length); });
}

/// C++ calls the operation as if it were a property; this must stay so.
static const Phrase setStyleCenterMark{"EmitSetStyleEnumPair",
                                       {
                                           .cpp = "%1%3->put_%4(%5, %6);%2",
                                           .cppCom = "%1%3->%4(%5, %6);%2",
                                           .csharp = "%1%3.%4(%5, %6);%2",
                                           .javascript = "%1%3.%4(\"%5\", %6);%2",
                                           .vbNet = "%1%3.%4(%5, %6)%2",
                                           .vba = "%1%3.%4 %5, %6%2",
                                           .python = "%1%3.%4(%5, %6)%2",
                                       }};
static const Mend centerMarkOperation(setStyleCenterMark, Target::Cpp,
                                      "an operation is called as if it were a property", "%1%3->%4(%5, %6);%2");

Statement EmitSetStyleCenterMark(Writer& writer, const CFxString& target, const CFxString& operation, std::int32_t kind,
                                 double size)
{
    const QString word = EnumeratorByValue(writer.target, enums::dimensionCenterMarkDisplay, kind);
    return writer.fill(setStyleCenterMark).word(target).word(operation).word(word).real(size, Meaning::Length);
}
