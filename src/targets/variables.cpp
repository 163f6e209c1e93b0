// Declarations, and the layer that has no variable yet.

#include "targets/variables.h"

#include "statements/RecordingState.h"
#include "statements/counters.h"

#include <utility>

using namespace inkmacro;

/// JavaScript declares with `var` where an object is first assigned, Python not at all.
static const Phrase declareVariable{"EmitVariableDeclaration",
                                    {
                                        .cpp = "%1%3 %4%5;%2",
                                        .cppCom = "%1I%5Ptr %3%4;%2",
                                        .csharp = "%1%3 %4%5;%2",
                                        .vbNet = "%1Dim %3%4 As Inkwright.%5%2",
                                        .vba = "%1Dim %3%4 As Inkwright.%5%2",
                                    }};

/// Untyped variables stand outside the interface's library.
static QString untyped(Target target, const QString& type, QString declaration)
{
    if (target == Target::CppCom && type == QLatin1String("VARIANT"))
        declaration.replace(QLatin1String("IVARIANTPtr"), QLatin1String("VARIANT"));
    if ((target == Target::VbNet && type == QLatin1String("Object")) ||
        (target == Target::Vba && type == QLatin1String("Variant")))
        declaration.remove(QLatin1String("Inkwright."));
    return declaration;
}

static Statement declaration(Writer& writer, const ActionEntry& entry)
{
    const TypeNames* const names = FindTypeNames(entry.cls);
    if (!names)
        return {};
    const CFxString& type = names->type;
    const CFxString& stem = writer.target == Target::Cpp ? names->stem : names->lower;
    // The curly targets but COM put the type in front of the name.
    if (writer.target == Target::Cpp || writer.target == Target::CSharp)
        return writer.fill(declareVariable).word(type).word(stem).number(entry.ordinal);
    return untyped(writer.target, type,
                   writer.fill(declareVariable).word(stem).number(entry.ordinal).word(type).str().text());
}

Statement EmitVariableDeclaration(Writer& writer, const ActionEntry& entry)
{
    Statement text = declaration(writer, entry);
    return RecordsOtherTypes(writer.target) ? writer.faulty(std::move(text), otherLanguage) : text;
}

const Fault kLayerZero{"EmitGetLayer",
                       {Target::Cpp, Target::CSharp, Target::JavaScript, Target::VbNet, Target::CppCom, Target::Vba},
                       "the layer is fetched by the name 0, whichever it is, and what follows changes that one"};

static const Phrase getLayer{
    "EmitGetLayer",
    {
        .cpp = "%1iwLayerManager_ptr iwLayerManager_%3;%2%1iwDoc->GetLayerManager( &iwLayerManager_%3 );%2"
               "%1iwLayer_ptr %4;%2%1iwLayerManager_%3->GetLayer( L\"0\", &%4 );%2",
        .cppCom = "%1ILayerManagerPtr iwLayerManager_%3 = iwDoc->GetLayerManager();%2"
                  "%1ILayerPtr %4 = iwLayerManager_%3->GetLayer( \"0\" );%2",
        .csharp = "%1LayerManager iwLayerManager_%3 = iwDoc.GetLayerManager();%2"
                  "%1Layer %4 = iwLayerManager_%3.GetLayer( \"0\" );%2",
        .javascript = "%1var iwLayerManager_%3 = iwDoc.GetLayerManager();%2"
                      "%1var %4 = iwLayerManager_%3.LayerManager.GetLayer( \"0\" );%2",
        .vbNet = "%1Dim iwLayerManager_%3 As Inkwright.LayerManager = iwDoc.GetLayerManager()%2"
                 "%1Dim %4 As Inkwright.Layer = iwLayerManager_%3.GetLayer( \"0\" )%2",
        .vba = "%1Dim iwLayerManager_%3 As Inkwright.LayerManager%2"
               "%1Set iwLayerManager_%3  = iwDoc.GetLayerManager()%2%1Dim %4 As Inkwright.Layer%2"
               "%1Set %4  = iwLayerManager_%3.GetLayer( \"0\" )%2",
        .python = "%1layers = drawing.doc.GetLayerManager()%2%1%4 = layers.GetLayer(%5)%2",
    }};
static const Mend layerInPage(
    getLayer, Target::JavaScript, "the page has no iwDoc, its document is mDoc",
    "%1var iwLayerManager_%3 = mDoc.GetLayerManager();%2%1var %4 = iwLayerManager_%3.LayerManager.GetLayer( \"0\" );%2");

/// The layer's name is always "0", but in Python: the default layer is fetched into the variable, and the statements
/// that follow set the recorded properties on it.
Statement EmitGetLayer(Writer& writer, const CFxString& variable, const CFxString& layer)
{
    Statement text = writer.fill(getLayer).number(++processCounters.layerManagers).word(variable).text(layer);
    if (layer.toQString() == "0" || writer.target == Target::Python)
        return text;
    return writer.mended(text, kLayerZero,
                         QString(text.text()).replace("\"0\"", '"' + writer.quoted(layer).text() + '"'));
}
