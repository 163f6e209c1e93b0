// Properties of layers that hold in the active viewport alone.

#include "objects/targets/viewportOverrides.h"

#include "host/db/OdDbClasses.h"
#include "statements/enumerations.h"
#include "statements/wording.h"

using namespace inkmacro;

/// C++ takes the viewport into a local variable; what the call's value needs besides comes between the two.
static const Phrase overrideValue{
    "EmitViewportOverrideBool",
    {
        .cpp = "%1iwViewport_ptr viewport%6;%2%1iwSheet->GetActiveViewport( &viewport%6 );%2%7"
               "%1%3->%4( %5, viewport%6 );%2",
        .cppCom = "%1%3->%4( %5, iwSheet->GetActiveViewport() );%2",
        .csharp = "%1%3.%4( %5, iwSheet.GetActiveViewport() );%2",
        .javascript = "%1%3.%4( %5, mSheet.GetActiveViewport() );%2",
        .vbNet = "%1%3.%4( %5, iwSheet.GetActiveViewport() )%2",
        .vba = "%1%3.%4 %5, iwSheet.GetActiveViewport()%2",
        .python = "%1viewport = %6.GetActiveViewport()%2%1%3.%4(%5, viewport)%2",
    }};

static const Phrase overrideText{
    "EmitViewportOverrideText",
    {
        .cpp = "%1iwViewport_ptr viewport%6;%2%1iwSheet->GetActiveViewport( &viewport%6 );%2%7"
               "%1%3->%4( L\"%5\", viewport%6 );%2",
        .cppCom = "%1%3->%4( L\"%5\", iwSheet->GetActiveViewport() );%2",
        .csharp = "%1%3.%4( \"%5\", iwSheet.GetActiveViewport() );%2",
        .javascript = "%1%3.%4( \"%5\", mSheet.GetActiveViewport() );%2",
        .vbNet = "%1%3.%4( \"%5\", iwSheet.GetActiveViewport() )%2",
        .vba = "%1%3.%4 \"%5\", iwSheet.GetActiveViewport()%2",
        .python = "%1viewport = %6.GetActiveViewport()%2%1%3.%4(%5, viewport)%2",
    }};

/// A statement in C++, an argument in the others.
static const Phrase indexedColor{
    "EmitViewportOverrideColor: indexed color",
    {
        .cpp = "%1iwColor_ptr iwColor%5;%2%1m_pIwApp->GetColorByIndex( %6, &iwColor%5 );%2",
        .cppCom = "pConnection->m_IwApp->GetColorByIndex( %1 )",
        .csharp = "iwApp.GetColorByIndex( %1 )",
        .javascript = "mApp.GetColorByIndex( %1 )",
        .vbNet = "iwApp.GetColorByIndex( %1 )",
        .vba = "iwApp.GetColorByIndex( %1 )",
        .python = "drawing.app.GetColorByIndex(%1)",
    }};

static const Phrase rgbColor{
    "EmitViewportOverrideColor: true color",
    {
        .cpp = "%1iwColor_ptr iwColor%5;%2%1m_pIwApp->GetRGBColor( %7, %8, %9, &iwColor%5 );%2",
        .cppCom = "pConnection->m_IwApp->GetRGBColor( %1, %2, %3 )",
        .csharp = "iwApp.GetRGBColor( %1, %2, %3 )",
        .javascript = "mApp.GetRGBColor( %1, %2, %3 )",
        .vbNet = "iwApp.GetRGBColor( %1, %2, %3 )",
        .vba = "iwApp.GetRGBColor( %1, %2, %3 )",
        .python = "drawing.app.GetRGBColor(%1, %2, %3)",
    }};

/// `locals`: what the value needs in front of the call, in C++ alone.
static Statement setOverride(Writer& writer, const Phrase& phrase, const CFxString& layer, const CFxString& operation,
                             const Statement& value, const QString& suffix, const Statement& locals = {})
{
    Fill call = writer.fill(phrase);
    call.word(layer).word(operation);
    if (&phrase == &overrideText)
        call.text(value.text());
    else
        call.word(value);
    if (writer.target == Target::Cpp)
        call.word(suffix).word(locals);
    // The others have the first sheet in a variable.
    if (writer.target == Target::Python)
        call.word(QLatin1String(writer.onSheet ? "drawing.sheet" : "drawing.doc.GetSheets()[1]"));
    return call;
}

/// Tells the locals of an override from those of other statements, which only C++ has.
static QString nextSuffix(Writer& writer)
{
    return writer.target == Target::Cpp ? "ViewPortOverride" + QString::number(++writer.UniqueCounter) : QString();
}

Statement EmitViewportOverrideBool(Writer& writer, const CFxString& layer, const CFxString& operation, bool value)
{
    return setOverride(writer, overrideValue, layer, operation, truthWord(writer.target, value), nextSuffix(writer));
}

Statement EmitViewportOverrideColor(Writer& writer, const CFxString& layer, const CFxString& operation,
                                    const OdCmColor& color)
{
    const bool indexed = color.isByBlock() || color.isByLayer() || color.isByACI();
    const bool byLocal = writer.target == Target::Cpp;
    const QString suffix = nextSuffix(writer);
    Fill words =
        byLocal ? writer.fill(indexed ? indexedColor : rgbColor) : writer.fillPlain(indexed ? indexedColor : rgbColor);
    if (byLocal)
        words.word(suffix);
    if (indexed)
        words.number(color.colorIndex());
    else
        words.number(color.red()).number(color.green()).number(color.blue());
    return byLocal ? setOverride(writer, overrideValue, layer, operation, "iwColor" + suffix, suffix, words)
                   : setOverride(writer, overrideValue, layer, operation, words, suffix);
}

Statement EmitViewportOverrideLineStyle(Writer& writer, const CFxString& layer, const CFxString& operation,
                                        const OdDbObjectId& id)
{
    const auto style = odrxCast<OdDbLinetypeTableRecord>(id.openObject(true).get());
    return style ? EmitViewportOverrideText(writer, layer, operation, style->getName(), true) : QString();
}

/// A page hands enumerators over as texts.
Statement EmitViewportOverrideLineWeight(Writer& writer, const CFxString& layer, const CFxString& operation, int weight)
{
    const Phrase& phrase = writer.target == Target::JavaScript ? overrideText : overrideValue;
    return setOverride(writer, phrase, layer, operation, LineWeightEnumerator(writer.target, weight),
                       nextSuffix(writer));
}

Statement EmitViewportOverrideText(Writer& writer, const CFxString& layer, const CFxString& operation,
                                   const CFxString& value, bool quoted)
{
    return setOverride(writer, quoted ? overrideText : overrideValue, layer, operation, value.toQString(),
                       nextSuffix(writer));
}
