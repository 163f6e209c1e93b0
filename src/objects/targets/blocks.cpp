// The insertion of what is drawn elsewhere: blocks, other drawings, pictures and shapes.

#include "objects/targets/blocks.h"

#include "statements/wording.h"

using namespace inkmacro;

static const Phrase insertBlock{
    "EmitInsertBlock",
    {
        .cpp = "%1 iwSketchManager->InsertBlock2(L\"%3\", %4, %5, %6, %7, %8, %9, %10, &%11 );%2",
        .cppCom = "%1 %11 = iwSketchManager->InsertBlock2(L\"%3\", %4, %5, %6, %7, %8, %9, %10 );%2",
        .csharp = "%1%11 = iwApp.GetActiveDocument().GetModel().GetSketchManager().InsertBlock2( \"%3\", %4, %5, %6, "
                  "%7, %8, %9, %10 );%2",
        .javascript = "%1var %11 = mSkMgr.InsertBlock2(\"%3\", %4, %5, %6, %7, %8, %9, %10);%2",
        .vbNet = "%1%11 = iwSketchManager.InsertBlock2( \"%3\", %4, %5, %6, %7, %8, %9, %10 )%2",
        .vba = "%1Set %11 = iwSketchManager.InsertBlock2( \"%3\", %4, %5, %6, %7, %8, %9, %10 )%2",
    }};

/// The block's name is only known when the macro runs.
static const Phrase insertAnonymousBlock{
    "EmitInsertBlock",
    {
        .cpp = "%1 iwSketchManager->InsertBlock2(%3, %4, %5, %6, %7, %8, %9, %10, &%11 );%2",
        .cppCom = "%1 %11 = iwSketchManager->InsertBlock2(%3, %4, %5, %6, %7, %8, %9, %10 );%2",
        .csharp = "%1%11 = iwApp.GetActiveDocument().GetModel().GetSketchManager().InsertBlock2( %3, %4, %5, %6, %7, "
                  "%8, %9, %10 );%2",
        .javascript = "%1var %11 = mSkMgr.InsertBlock2(%3, %4, %5, %6, %7, %8, %9, %10);%2",
        .vbNet = "%1%11 = iwSketchManager.InsertBlock2( %3, %4, %5, %6, %7, %8, %9, %10 )%2",
        .vba = "%1Set %11 = iwSketchManager.InsertBlock2( %3, %4, %5, %6, %7, %8, %9, %10 )%2",
    }};

Statement EmitInsertBlock(Writer& writer, const CFxString& block, const Placement& placement, const CFxString& name)
{
    const bool anonymous = block.toQString() == anonymousBlockName;
    const CFxString word = anonymous ? CFxString(name.toQString() + "Name") : block;
    return writer.fill(anonymous ? insertAnonymousBlock : insertBlock)
        .text(word)
        .point(placement.position)
        .real(placement.scales.sx)
        .real(placement.scales.sy)
        .real(placement.scales.sz)
        .real(placement.rotation)
        .text(name);
}

static const Phrase insertExternalReference{
    "EmitInsertExternalReference",
    {
        .cpp = "%1 iwSketchManager->InsertExternalReference(  L\"%3\", %4, %5, %6, %7, %8 ,&%9);%2",
        .cppCom = "%1 %9 = iwSketchManager->InsertExternalReference(  L\"%3\", %4, %5, %6, %7, %8 );%2",
        .csharp = "%1%9 = iwSketchManager.InsertExternalReference(  \"%3\", %4, %5, %6, %7, %8);%2",
        .javascript = "%1var %9 = mSkMgr.InsertExternalReference(\"%3\", %4, %5, %6, %7, %8);%2",
        .vbNet = "%1%9 = iwSketchManager.InsertExternalReference(  \"%3\", %4, %5, %6, %7, %8)%2",
        .vba = "%1Set %9 = iwSketchManager.InsertExternalReference(  \"%3\", %4, %5, %6, %7, %8)%2",
    }};

Statement EmitInsertExternalReference(Writer& writer, const CFxString& path, const OdGePoint3d& position,
                                    const OdGeScale3d& scales, const CFxString& name)
{
    return writer.fill(insertExternalReference).text(path).point(position).real(scales.sx).real(scales.sy).text(name);
}

static const Phrase insertPicture{
    "EmitInsertPicture",
    {
        .cpp = "%1iwSketchManager->InsertPicture( L\"%3\", %4, %5, %6, %7, %8, &%9 );%2",
        .cppCom = "%1%9 = iwSketchManager->InsertPicture( L\"%3\", %4, %5, %6, %7, %8 );%2",
        .csharp = "%1%9 = iwApp.GetActiveDocument().GetModel().GetSketchManager().InsertPicture(  \"%3\", %4, %5, %6, "
                  "%7, %8 );%2",
        .javascript = "%1var %9 = mSkMgr.InsertPicture(\"%3\", %4, %5, %6, %7, %8);%2",
        .vbNet = "%1%9 = iwSketchManager.InsertPicture(  \"%3\", %4, %5, %6, %7, %8 )%2",
        .vba = "%1Set %9 = iwSketchManager.InsertPicture(  \"%3\", %4, %5, %6, %7, %8 )%2",
    }};

/// C# alone has the backslashes of the path doubled. It has to stay so.
Statement EmitInsertPicture(Writer& writer, const CFxString& path, const OdGePoint3d& position, double scale,
                          double rotation, const CFxString& name)
{
    const QString word = writer.target == Target::CSharp ? doubleBackslashes(path) : path.toQString();
    return writer.fill(insertPicture).text(word).point(position).real(scale).real(rotation).text(name);
}

static const Phrase insertShape{"EmitInsertShape",
                                {
                                    .cpp = "%1iwSketchManager->InsertShape( L\"%3\", %4, %5, %6, %7, %8, &%9 );%2",
                                    .cppCom = "%1%9 = iwSketchManager->InsertShape( L\"%3\", %4, %5, %6, %7, %8 );%2",
                                    .csharp = "%1%9 = iwSketchManager.InsertShape( \"%3\", %4, %5, %6, %7, %8 );%2",
                                    .javascript = "%1var %9 = mSkMgr.InsertShape(\"%3\", %4, %5, %6, %7, %8);%2",
                                    .vbNet = "%1%9 = iwSketchManager.InsertShape( \"%3\", %4, %5, %6, %7, %8 )%2",
                                    .vba = "%1Set %9 = iwSketchManager.InsertShape( \"%3\", %4, %5, %6, %7, %8 )%2",
                                }};

Statement EmitInsertShape(Writer& writer, const CFxString& shape, const OdGePoint3d& position, double size,
                        double rotation, const CFxString& name)
{
    return writer.fill(insertShape).text(shape).point(position).real(size).real(rotation).text(name);
}
