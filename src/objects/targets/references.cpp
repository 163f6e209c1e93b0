// How statements come by the objects that they change, and the removal of what is no entity.

#include "objects/targets/references.h"

using namespace inkmacro;

static const Phrase objectByHandle{
    "EmitGetObjectByHandle",
    {
        .cpp = "%1iwObjectType_e type%6;\n%1%3 %4;%2%1iwDoc->GetObjectByHandle(L\"%5\", &type%6, &%4);%2",
        .cppCom = "%1iwObjectType_e type%6;\n"
                  "%1I%3Ptr %4 = pConnection->m_IwApp->GetActiveDocument()->GetObjectByHandle(L\"%5\", &type%6);%2",
        .csharp = "%1iwObjectType_e type%6;\n"
                  "%1%3 %4 = iwApp.GetActiveDocument().GetObjectByHandle(\"%5\", out type%6) as %3;%2",
        .javascript = "%1var %4 = mDoc.GetObjectByHandle(\"%5\").DispObj;%2",
        .vbNet = "%1Dim type%6 As Inkwright.iwObjectType_e\n"
                 "%1Dim %4 As Inkwright.%3 = iwApp.GetActiveDocument().GetObjectByHandle(\"%5\", type%6)%2",
        .vba = "%1Dim %4 As Inkwright.%3%2%1Dim type%6 As Inkwright.iwObjectType_e%2"
               "%1Set %4 = iwApp.GetActiveDocument().GetObjectByHandle (\"%5\", type%6 )%2",
        .python = "%1%4, _ = drawing.doc.GetObjectByHandle(%5)%2",
    }};

Statement EmitGetObjectByHandle(Writer& writer, const CFxString& type, const CFxString& name, const OdDbHandle& handle)
{
    const QString digits = handle.ascii();
    // A page needs neither the variable's type nor a place for the object's.
    if (writer.target == Target::JavaScript)
        return writer.fill(objectByHandle).word(name).text(digits);
    return writer.fill(objectByHandle).word(type).word(name).text(digits).number(++writer.UniqueCounter);
}

CFxString NameByNow(const Writer& writer, const OdDbSymbolTableRecord& record)
{
    const auto found = writer.newNames.find(record.getDbHandle());
    return found == writer.newNames.end() ? CFxString(record.getName()) : found->second;
}

static const Phrase getNoteAnnotation{"EmitGetNoteAnnotation",
                                      {
                                          .cpp = "%1iwNote_ptr %4;%2%1%3->GetNoteAnnotation( &%4 );%2",
                                          .cppCom = "%1INotePtr %4 = %3->GetNoteAnnotation();%2",
                                          .csharp = "%1Note %4 = %3.GetNoteAnnotation();%2",
                                          .javascript = "%1var %4 = %3.GetNoteAnnotation();%2",
                                          .vbNet = "%1Dim %4 As Inkwright.Note = %3.GetNoteAnnotation()%2",
                                          .vba = "%1Dim %4 As Inkwright.Note%2%1Set %4 = %3.GetNoteAnnotation()%2",
                                          .python = "%1%4 = %3.GetNoteAnnotation()%2",
                                      }};

Statement EmitGetNoteAnnotation(Writer& writer, const CFxString& note, const CFxString& leader)
{
    return writer.fill(getNoteAnnotation).word(leader).word(note);
}

static const Phrase declareObject{"EmitDeclareObject",
                                  {
                                      .cpp = "%1iw%3_ptr %4;%2",
                                      .cppCom = "%1I%3Ptr %4;%2",
                                      .csharp = "%1%3 %4;%2",
                                      .javascript = "%1var %3;%2",
                                      .vbNet = "%1Dim %4 As Inkwright.%3%2",
                                      .vba = "%1Dim %4 As Inkwright.%3%2",
                                  }};

Statement EmitDeclareObject(Writer& writer, const char* interfaceName, const CFxString& name)
{
    Fill declaration = writer.fill(declareObject);
    // A page's variables have no types.
    if (writer.target != Target::JavaScript)
        declaration.word(QLatin1String(interfaceName));
    return declaration.word(name);
}

static const Phrase removeModelView{"EmitRemoveNamedView",
                                    {
                                        .cpp = "%1iwViewManager->RemoveModelNamedView( L\"%3\" );%2",
                                        .cppCom = "%1iwViewManager->RemoveModelNamedView( L\"%3\" );%2",
                                        .csharp = "%1iwViewManager.RemoveModelNamedView( \"%3\" );%2",
                                        .javascript = "%1mViewManager.RemoveModelNamedView( \"%3\" );%2",
                                        .vbNet = "%1iwViewManager.RemoveModelNamedView( \"%3\" )%2",
                                        .vba = "%1iwViewManager.RemoveModelNamedView \"%3\"%2",
                                        .python = "%1drawing.views.RemoveModelNamedView(%3)%2",
                                    }};

static const Phrase removeSheetView{"EmitRemoveNamedView",
                                    {
                                        .cpp = "%1iwViewManager->RemoveSheetNamedView( L\"%3\" );%2",
                                        .cppCom = "%1iwViewManager->RemoveSheetNamedView( L\"%3\" );%2",
                                        .csharp = "%1iwViewManager.RemoveSheetNamedView( \"%3\" );%2",
                                        .javascript = "%1mViewManager.RemoveSheetNamedView( \"%3\" );%2",
                                        .vbNet = "%1iwViewManager.RemoveSheetNamedView( \"%3\" )%2",
                                        .vba = "%1iwViewManager.RemoveSheetNamedView \"%3\"%2",
                                        .python = "%1drawing.views.RemoveSheetNamedView(%3)%2",
                                    }};

/// The manager removes a view by its name; the variable is of no use.
Statement EmitRemoveNamedView(Writer& writer, const CFxString&, const CFxString& viewName, bool paperspace)
{
    return writer.fill(paperspace ? removeSheetView : removeModelView).text(viewName, Meaning::Text);
}

static const Phrase removeLayer{
    "EmitRemoveLayer",
    {
        .cpp = "%1iwLayerManager_ptr iwLayerManager%3;%2%1iwDoc->GetLayerManager( &iwLayerManager%3 );%2"
               "%1iwString layerName%3;%2%1%4->get_Name( &layerName%3 );%2%1bool bResult%3 = false;%2"
               "%1iwLayerManager%3->RemoveLayer( layerName%3, &bResult%3 );%2",
        .cppCom = "%1ILayerManagerPtr iwLayerManager%3 = iwDoc->GetLayerManager();%2"
                  "%1BSTR layerName%3;%2%1%4->get_Name( &layerName%3 );%2"
                  "%1iwLayerManager%3->RemoveLayer( layerName%3 );%2",
        .csharp = "%1LayerManager iwLayerManager%3 = iwDoc.GetLayerManager();%2%1string layerName%3 = %4.Name;%2"
                  "%1iwLayerManager%3.RemoveLayer( layerName%3 );%2",
        .javascript = "%1var iwLayerManager%3 = mDoc.GetLayerManager();%2%1var layerName%3 = %4.get_Name();%2"
                      "%1iwLayerManager%3.RemoveLayer( layerName%3 );%2",
        .vbNet = "%1Dim iwLayerManager%3 As Inkwright.LayerManager = iwDoc.GetLayerManager()%2"
                 "%1Dim layerName%3 As String = %4.Name%2%1iwLayerManager%3.RemoveLayer( layerName%3 )%2",
        .vba = "%1Dim iwLayerManager%3 As Inkwright.LayerManager%2%1Set iwLayerManager%3 = iwDoc.GetLayerManager()%2"
               "%1Dim layerName%3 As String%2%1layerName%3 = %4.Name%2"
               "%1iwLayerManager%3.RemoveLayer layerName%3%2",
        .python = "%1layers = drawing.doc.GetLayerManager()%2%1layers.RemoveLayer(%4.Name)%2",
    }};

Statement EmitRemoveLayer(Writer& writer, const CFxString& name)
{
    return writer.fill(removeLayer).number(++writer.UniqueCounter).word(name);
}
