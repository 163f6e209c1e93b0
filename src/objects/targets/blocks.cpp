// The insertion of what is drawn elsewhere: blocks, other drawings, pictures and shapes; attributes of block
// references.

#include "objects/targets/blocks.h"

#include "statements/quoting.h"
#include "statements/wording.h"

using namespace inkmacro;

static const Fault kModelOnSheet{
    "EmitInsertBlock", {Target::CSharp}, "what is inserted goes into the model, though a sheet is active"};

/// C# has the model's sketch manager alone in these insertions.
static Statement inActiveSpace(const Writer& writer, Statement insertion)
{
    if (writer.target != Target::CSharp || !writer.onSheet)
        return insertion;
    const Statement repaired = QString(insertion.text())
                                   .replace(QLatin1String("iwApp.GetActiveDocument().GetModel().GetSketchManager()"),
                                            QLatin1String("iwSketchManager"));
    return writer.mended(std::move(insertion), kModelOnSheet, repaired);
}

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
        .python = "%1%9 = drawing.sketch.InsertBlock2(%3, %4, %5, %6, %7, %8)%2",
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
        .python = "%1%9 = drawing.sketch.InsertBlock2(name, %4, %5, %6, %7, %8)%2",
    }};

Statement EmitInsertBlock(Writer& writer, const CFxString& block, const Placement& placement, const CFxString& name)
{
    const bool anonymous = block.toQString() == anonymousBlockName;
    Fill insertion = writer.fill(anonymous ? insertAnonymousBlock : insertBlock);
    if (anonymous)
        insertion.word(name.toQString() + "Name");
    else
        insertion.text(block, Meaning::Text);
    return inActiveSpace(writer, insertion.point(placement.position)
                                     .real(placement.scales.sx, Meaning::Factor)
                                     .real(placement.scales.sy, Meaning::Factor)
                                     .real(placement.scales.sz, Meaning::Factor)
                                     .real(placement.rotation, Meaning::Angle)
                                     .word(name));
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
        .python = "%1%7 = drawing.sketch.InsertExternalReference(%3, %4, %5, %6)%2",
    }};

Statement EmitInsertExternalReference(Writer& writer, const CFxString& path, const OdGePoint3d& position,
                                      const OdGeScale3d& scales, const CFxString& name)
{
    return writer.fill(insertExternalReference)
        .text(path, Meaning::Text)
        .point(position)
        .real(scales.sx, Meaning::Factor)
        .real(scales.sy, Meaning::Factor)
        .word(name);
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
        .python = "%1%7 = drawing.sketch.InsertPicture(%3, %4, %5, %6)%2",
    }};

/// C# alone has the backslashes of the path doubled. It has to stay so.
Statement EmitInsertPicture(Writer& writer, const CFxString& path, const OdGePoint3d& position, double scale,
                            double rotation, const CFxString& name)
{
    const EscapedText word = writer.target == Target::CSharp ? doubleBackslashes(path) : EscapedText(path);
    return inActiveSpace(writer, writer.fill(insertPicture)
                                     .text(word, Meaning::Text)
                                     .point(position)
                                     .real(scale, Meaning::Factor)
                                     .real(rotation, Meaning::Angle)
                                     .word(name));
}

static const Phrase insertShape{"EmitInsertShape",
                                {
                                    .cpp = "%1iwSketchManager->InsertShape( L\"%3\", %4, %5, %6, %7, %8, &%9 );%2",
                                    .cppCom = "%1%9 = iwSketchManager->InsertShape( L\"%3\", %4, %5, %6, %7, %8 );%2",
                                    .csharp = "%1%9 = iwSketchManager.InsertShape( \"%3\", %4, %5, %6, %7, %8 );%2",
                                    .javascript = "%1var %9 = mSkMgr.InsertShape(\"%3\", %4, %5, %6, %7, %8);%2",
                                    .vbNet = "%1%9 = iwSketchManager.InsertShape( \"%3\", %4, %5, %6, %7, %8 )%2",
                                    .vba = "%1Set %9 = iwSketchManager.InsertShape( \"%3\", %4, %5, %6, %7, %8 )%2",
                                    .python = "%1%7 = drawing.sketch.InsertShape(%3, %4, %5, %6)%2",
                                }};

Statement EmitInsertShape(Writer& writer, const CFxString& shape, const OdGePoint3d& position, double size,
                          double rotation, const CFxString& name)
{
    return writer.fill(insertShape)
        .text(shape, Meaning::Text)
        .point(position)
        .real(size, Meaning::Length)
        .real(rotation, Meaning::Angle)
        .word(name);
}

static const Phrase blockAttributeValue{
    "EmitBlockAttributeValue",
    {
        .cpp = "%1iwObjectPtrArray iwAttributes%3;%2%1%4->GetAttributeInstances( &iwAttributes%3 );%2"
               "%1for (int i = 0; i < (int)iwAttributes%3.length(); ++i)%2%1{%2"
               "%1    iwAttributeInstance_c* iwAttribute%3 = (iwAttributeInstance_c*)iwAttributes%3[i];%2"
               "%1    iwString name%3;%2%1    iwAttribute%3->get_Name( &name%3 );%2%1    if (name%3 == L\"%5\")%2"
               "%1        iwAttribute%3->put_%6( L\"%7\" );%2%1}%2",
        .cppCom = "%1IAttributeInstancePtr *iwAttributes%3 = NULL;%2%1int count%3 = 0;%2"
                  "%1TypeConverter::convertVariantArrayToPtrArray<IAttributeInstancePtr, IAttributeInstance>( "
                  "%4->GetAttributeInstances(), iwAttributes%3, count%3 );%2"
                  "%1for (int i = 0; i < count%3; ++i)%2%1{%2"
                  "%1    if (iwAttributes%3[i]->GetName() == _bstr_t(L\"%5\"))%2"
                  "%1        iwAttributes%3[i]->put_%6( L\"%7\" );%2%1}%2",
        .csharp = "%1object[] iwAttributes%3 = (object[])%4.GetAttributeInstances();%2"
                  "%1foreach (object attribute%3 in iwAttributes%3)%2%1{%2"
                  "%1    AttributeInstance iwAttribute%3 = attribute%3 as AttributeInstance;%2"
                  "%1    if (iwAttribute%3.Name == \"%5\")%2%1        iwAttribute%3.%6 = \"%7\";%2%1}%2",
        .javascript = "%1var iwAttributes%3 = %4.GetAttributeInstances();%2"
                      "%1for (var i = 0; i < iwAttributes%3.length; ++i)%2%1{%2"
                      "%1    if (iwAttributes%3[i].get_Name() == \"%5\")%2"
                      "%1        iwAttributes%3[i].put_%6(\"%7\");%2%1}%2",
        .vbNet = "%1Dim iwAttributes%3 As Object() = %4.GetAttributeInstances()%2"
                 "%1For Each iwAttribute%3 As Inkwright.AttributeInstance In iwAttributes%3%2"
                 "%1    If iwAttribute%3.Name = \"%5\" Then%2%1        iwAttribute%3.%6 = \"%7\"%2%1    End If%2"
                 "%1Next%2",
        .vba = "%1Dim iwAttributes%3 As Variant%2%1iwAttributes%3 = %4.GetAttributeInstances()%2"
               "%1Dim iwAttribute%3 As Variant%2%1For Each iwAttribute%3 In iwAttributes%3%2"
               "%1    If iwAttribute%3.Name = \"%5\" Then%2%1        iwAttribute%3.%6 = \"%7\"%2%1    End If%2"
               "%1Next%2",
        .python = "%1for attribute in %4.GetAttributeInstances():%2%1    if attribute.Name == %5:%2"
                  "%1        attribute.%6 = %7%2",
    }};
static const Mend bstrAttributeValue(blockAttributeValue, Target::CppCom, literalIsNoBstr, textsAsBstr);

Statement EmitBlockAttributeValue(Writer& writer, const CFxString& variable, const CFxString& property,
                                  const CFxString& tag, const CFxString& value)
{
    return writer.fill(blockAttributeValue)
        .number(++writer.UniqueCounter)
        .word(variable)
        .text(tag)
        .word(property)
        .text(value, Meaning::Text);
}
