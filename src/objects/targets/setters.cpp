// Setters of single properties, and the general properties of entities.

#include "objects/targets/setters.h"

#include "host/db/OdDbClasses.h"
#include "objects/targets/references.h"
#include "statements/counters.h"
#include "statements/enumerations.h"
#include "statements/quoting.h"
#include "statements/wording.h"

using namespace inkmacro;

static const Phrase setText{"EmitSetProperty",
                            {
                                .cpp = "%1%3->put_%4( L\"%5\" );%2",
                                .cppCom = "%1%3->put_%4( L\"%5\" );%2",
                                .csharp = "%1%3.%4 = \"%5\";%2",
                                .javascript = "%1%3.put_%4 (\"%5\");%2",
                                .vbNet = "%1%3.%4 = \"%5\"%2",
                                .vba = "%1%3.%4 = \"%5\"%2",
                                .python = "%1%3.%4 = %5%2",
                            }};
static const Mend bstrProperty(setText, Target::CppCom, literalIsNoBstr, textsAsBstr);

static const Phrase setValue{"EmitSetProperty",
                             {
                                 .cpp = "%1%3->put_%4( %5 );%2",
                                 .cppCom = "%1%3->put_%4( %5 );%2",
                                 .csharp = "%1%3.%4 = %5;%2",
                                 .javascript = "%1%3.put_%4(%5);%2",
                                 .vbNet = "%1%3.%4 = %5%2",
                                 .vba = "%1%3.%4 = %5%2",
                                 .python = "%1%3.%4 = %5%2",
                             }};

Statement EmitSetProperty(Writer& writer, const CFxString& target, const CFxString& property, const EscapedText& value,
                          bool quoted, Meaning meaning)
{
    if (quoted)
        return writer.fill(setText).word(target).word(property).text(value, meaning);
    return writer.fill(setValue).word(target).word(property).word(value.written);
}

Statement EmitSetDoubleProperty(Writer& writer, const CFxString& target, const CFxString& property, double value,
                                Meaning meaning)
{
    return writer.fill(setValue).word(target).word(property).real(value, meaning);
}

Statement EmitSetBoolProperty(Writer& writer, const CFxString& target, const CFxString& property, bool value)
{
    return writer.fill(setValue).word(target).word(property).word(truthWord(writer.target, value));
}

static const Phrase setIndexedDouble{"EmitSetIndexedDouble",
                                     {
                                         .cpp = "%1bool bRetVal%7 = false;%2%1%3->%4( %5, %6, &bRetVal%7 );%2",
                                         .cppCom = "%1%3->%4( %5, %6 );%2",
                                         .csharp = "%1%3.%4( %5, %6 );%2",
                                         .javascript = "%1%3.%4( %5, %6 );%2",
                                         .vbNet = "%1%3.%4( %5, %6 )%2",
                                         .vba = "%1%3.%4 %5, %6%2",
                                         .python = "%1%3.%4(%5, %6)%2",
                                     }};

Statement EmitSetIndexedDouble(Writer& writer, const CFxString& target, const CFxString& operation, std::int32_t index,
                               double value)
{
    // Only C++ has a local, and only a local uses up a number.
    const std::uint32_t suffix = writer.target == Target::Cpp ? ++writer.UniqueCounter : 0;
    return writer.fill(setIndexedDouble)
        .word(target)
        .word(operation)
        .number(index)
        .real(value, Meaning::Length)
        .number(suffix);
}

/// Enumerators are texts to JavaScript.
static const Phrase setEnumeratorProperty{"EmitSetEnumProperty",
                                          {
                                              .cpp = "%1%3->put_%4( %5 );%2",
                                              .cppCom = "%1%3->put_%4( %5 );%2",
                                              .csharp = "%1%3.%4 = %5;%2",
                                              .javascript = "%1%3.put_%4(\"%5\");%2",
                                              .vbNet = "%1%3.%4 = %5%2",
                                              .vba = "%1%3.%4 = %5%2",
                                              .python = "%1%3.%4 = %5%2",
                                          }};

static Statement setEnumerator(Writer& writer, const CFxString& target, const CFxString& property,
                               const QString& enumerator)
{
    return writer.fill(setEnumeratorProperty).word(target).word(property).word(enumerator);
}

Statement EmitSetEnumProperty(Writer& writer, const CFxString& target, const TextEnumeration& enumeration,
                              const CFxString& property, const CFxString& shownText)
{
    return setEnumerator(writer, target, property, EnumeratorByText(writer.target, enumeration, shownText));
}

Statement EmitSetEnumValue(Writer& writer, const CFxString& target, const ValueEnumeration& enumeration,
                           const CFxString& property, std::int32_t value)
{
    return setEnumerator(writer, target, property, EnumeratorByValue(writer.target, enumeration, value));
}

Statement EmitSetEnumSuffix(Writer& writer, const CFxString& target, const ValueEnumeration& enumeration,
                            const CFxString& property, const char* suffix)
{
    return setEnumerator(writer, target, property, EnumeratorBySuffix(writer.target, enumeration, suffix));
}

Statement EmitSetDecimalSeparator(Writer& writer, const CFxString& target, const CFxString& property,
                                  const CFxString& separator)
{
    return setEnumerator(writer, target, property, DecimalSeparatorEnumerator(writer.target, separator));
}

static const Phrase setIndexedColor{
    "EmitSetColor",
    {
        .cpp = "%1iwColor_ptr iwColor%3;%2%1m_pIwApp->GetColorByIndex( %4, &iwColor%3 );%2%1%5->put_%6( iwColor%3 );%2",
        .cppCom = "%1%3->put_%4( pConnection->m_IwApp->GetColorByIndex( %5 ) );%2",
        .csharp = "%1%3.%4 = iwApp.GetColorByIndex( %5 );%2",
        .javascript = "%1%3.put_%4( mApp.GetColorByIndex( %5 ) );%2",
        .vbNet = "%1%3.%4 = iwApp.GetColorByIndex( %5 )%2",
        .vba = "%1%3.%4 = iwApp.GetColorByIndex( %5 )%2",
        .python = "%1%3.%4 = drawing.app.GetColorByIndex(%5)%2",
    }};

static const Phrase setRgbColor{"EmitSetColor",
                                {
                                    .cpp =
                                        "%1iwColor_ptr iwColor%3;%2%1m_pIwApp->GetRGBColor( %4, %5, %6, &iwColor%3 );%2"
                                        "%1%7->put_%8( iwColor%3 );%2",
                                    .cppCom = "%1%3->put_%4( pConnection->m_IwApp->GetRGBColor( %5, %6, %7 ) );%2",
                                    .csharp = "%1%3.%4 = iwApp.GetRGBColor( %5, %6, %7 );%2",
                                    .javascript = "%1%3.put_%4( mApp.GetRGBColor( %5, %6, %7 ) );%2",
                                    .vbNet = "%1%3.%4 = iwApp.GetRGBColor( %5, %6, %7 )%2",
                                    .vba = "%1%3.%4 = iwApp.GetRGBColor( %5, %6, %7 )%2",
                                    .python = "%1%3.%4 = drawing.app.GetRGBColor(%5, %6, %7)%2",
                                }};

/// The C++ add-in takes the color into a local variable before it comes to the property.
Statement EmitSetColor(Writer& writer, const CFxString& target, const CFxString& property, const OdCmColor& color)
{
    const bool indexed = color.isByBlock() || color.isByLayer() || color.isByACI();
    const bool byLocal = writer.target == Target::Cpp;
    Fill statement = writer.fill(indexed ? setIndexedColor : setRgbColor);
    if (byLocal)
        statement.number(++writer.UniqueCounter);
    else
        statement.word(target).word(property);
    if (indexed)
        statement.number(color.colorIndex());
    else
        statement.number(color.red()).number(color.green()).number(color.blue());
    if (byLocal)
        statement.word(target).word(property);
    return statement;
}

/// Null when there is no such record. One that was erased later in the recording still has its name.
template<class Record>
static OdSmartPtr<Record> recordOf(const OdDbObjectId& id)
{
    return odrxCast<Record>(id.openObject(true).get());
}

Statement EmitSetLayer(Writer& writer, const CFxString& target, const CFxString& property, const OdDbObjectId& id)
{
    const auto layer = recordOf<OdDbLayerTableRecord>(id);
    return layer ? EmitSetProperty(writer, target, property, NameByNow(writer, *layer), true) : QString();
}

Statement EmitSetLineStyle(Writer& writer, const CFxString& target, const CFxString& property, const OdDbObjectId& id)
{
    const auto style = recordOf<OdDbLinetypeTableRecord>(id);
    return style ? EmitSetProperty(writer, target, property, style->getName(), true) : QString();
}

/// A page hands enumerators over as texts.
static const Phrase setLineWeight{"EmitSetLineWeight",
                                  {
                                      .cpp = "%1%3->put_%4( %5 );%2",
                                      .cppCom = "%1%3->put_%4( %5 );%2",
                                      .csharp = "%1%3.%4 = %5;%2",
                                      .javascript = "%1%3.put_%4( \"%5\" );%2",
                                      .vbNet = "%1%3.%4 = %5%2",
                                      .vba = "%1%3.%4 = %5%2",
                                      .python = "%1%3.%4 = %5%2",
                                  }};

Statement EmitSetLineWeight(Writer& writer, const CFxString& target, const CFxString& property, int weight)
{
    return writer.fill(setLineWeight).word(target).word(property).word(LineWeightEnumerator(writer.target, weight));
}

static const Phrase setByLayer{"EmitSetTransparency",
                               {
                                   .cpp = "iwTransparency%1->SetByLayer();",
                                   .cppCom = "iwTransparency%1->SetByLayer();",
                                   .csharp = "iwTransparency%1.SetByLayer();",
                                   .javascript = "iwTransparency%1.SetByLayer();",
                                   .vbNet = "iwTransparency%1.SetByLayer()",
                                   .vba = "iwTransparency%1.SetByLayer",
                                   .python = "%3transparency.SetByLayer()%4",
                               }};

static const Phrase setByBlock{"EmitSetTransparency",
                               {
                                   .cpp = "iwTransparency%1->SetByBlock();",
                                   .cppCom = "iwTransparency%1->SetByBlock();",
                                   .csharp = "iwTransparency%1.SetByBlock();",
                                   .javascript = "iwTransparency%1.SetByBlock();",
                                   .vbNet = "iwTransparency%1.SetByBlock()",
                                   .vba = "iwTransparency%1.SetByBlock",
                                   .python = "%3transparency.SetByBlock()%4",
                               }};

static const Phrase setByAlpha{"EmitSetTransparency",
                               {
                                   .cpp = "iwTransparency%1->SetByAlpha( %2 );",
                                   .cppCom = "iwTransparency%1->SetByAlpha( %2 );",
                                   .csharp = "iwTransparency%1.SetByAlpha( %2 );",
                                   .javascript = "iwTransparency%1.SetByAlpha( %2 );",
                                   .vbNet = "iwTransparency%1.SetByAlpha( %2 )",
                                   .vba = "iwTransparency%1.SetByAlpha( %2 )",
                                   .python = "%3transparency.SetByAlpha(%2)%4",
                               }};

static const Phrase setTransparency{
    "EmitSetTransparency",
    {
        .cpp = "%1iwTransparency_ptr iwTransparency%3;%2%1%4->get_Transparency( &iwTransparency%3 );%2%1%5%2"
               "%1%4->put_Transparency( iwTransparency%3 );%2",
        .cppCom = "%1ITransparencyPtr iwTransparency%3;%2%1%4->get_Transparency( &iwTransparency%3 );%2%1%5%2"
                  "%1%4->put_Transparency( iwTransparency%3 );%2",
        .csharp = "%1Transparency iwTransparency%3 = %4.Transparency;%2%1%5%2%1%4.Transparency = iwTransparency%3;%2",
        .javascript = "%1var iwTransparency%3 = %4.get_Transparency();%2%1%5%2"
                      "%1%4.put_Transparency( iwTransparency%3 );%2",
        .vbNet = "%1Dim iwTransparency%3 As Inkwright.Transparency%2%1iwTransparency%3 = %4.Transparency%2%1%5%2"
                 "%1%4.Transparency = iwTransparency%3%2",
        .vba = "%1Dim iwTransparency%3 As Inkwright.Transparency%2%1Set iwTransparency%3 = %4.Transparency%2%1%5%2"
               "%1%4.Transparency = iwTransparency%3%2",
        .python = "%1transparency = %4.Transparency%2%5%1%4.Transparency = transparency%2",
    }};

/// A method without a name leaves the middle line blank, but in Python, where that line brings its own ends.
Statement EmitSetTransparency(Writer& writer, const CFxString& target, const OdCmTransparency& transparency)
{
    std::uint32_t& counter = processCounters.of(writer.target).transparencies;
    const Phrase* const phrase = transparency.method == OdCmTransparency::ByLayer   ? &setByLayer
                                 : transparency.method == OdCmTransparency::ByBlock ? &setByBlock
                                 : transparency.method == OdCmTransparency::ByAlpha ? &setByAlpha
                                                                                    : nullptr;
    // The interface counts in percent from solid to clear.
    const int percent = static_cast<int>(100 - transparency.alpha / 255.0 * 100);
    Statement line;
    if (phrase)
        line = writer.fillPlain(*phrase).number(counter).number(percent).indent(writer.IndentLevel).lineEnd().str();
    Statement statement = writer.fill(setTransparency).number(counter).word(target).word(line);
    ++counter;
    return statement;
}
