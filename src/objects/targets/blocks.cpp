// The insertion of what is drawn elsewhere.

#include "objects/targets/blocks.h"

using namespace inkmacro;

static const Phrase insertExternalReference{
    "EmitInsertExternalReference",
    {
        .cpp = "%1 iwSketchManager->InsertExternalReference(  L\"%3\", %4, %5, %6, %7, %8 ,&%9);%2",
        .cppCom = "%1 %9 = iwSketchManager->InsertExternalReference(  L\"%3\", %4, %5, %6, %7, %8 );%2",
        .csharp = "%1%9 = iwSketchManager.InsertExternalReference(  \"%3\", %4, %5, %6, %7, %8);%2",
        .javascript = "%1var %9 = mSkMgr.InsertExternalReference(  \"%3\", %4, %5, %6, %7, %8);%2",
        .vbNet = "%1%9 = iwSketchManager.InsertExternalReference(  \"%3\", %4, %5, %6, %7, %8)%2",
        .vba = "%1Set %9 = iwSketchManager.InsertExternalReference(  \"%3\", %4, %5, %6, %7, %8)%2",
    }};

QString EmitInsertExternalReference(Writer& writer, const CFxString& path, const OdGePoint3d& position,
                                    const OdGeScale3d& scales, const CFxString& name)
{
    return writer.fill(insertExternalReference).text(path).point(position).real(scales.sx).real(scales.sy).text(name);
}
