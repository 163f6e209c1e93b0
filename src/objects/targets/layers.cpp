// New layers.

#include "objects/targets/layers.h"

#include "statements/RecordingState.h"

using namespace inkmacro;

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
    }};

Statement EmitCreateLayer(Writer& writer, const CFxString& layer, const CFxString& name)
{
    return writer.fill(createLayer).text(layer).text(name).number(++writer.UniqueCounter);
}

CFxString LayerOf(const CFxString& variable)
{
    constexpr std::int16_t javaScript = 2;
    return RecordingLanguage() == javaScript ? CFxString(variable.toQString() + ".Layer") : variable;
}
