// Groups of objects: new ones, and what is put into one or taken out.

#include "targets/groups.h"

#include "statements/LineEnd.h"
#include "statements/arrays.h"
#include "statements/wording.h"

using namespace inkmacro;

/// C++ gathers the objects and adds them at the end; in VBA a declaration counts for the whole procedure.
static const Phrase addHead{"EmitGroupAddEntities",
                            {
                                .cpp = "%1iwObjectPtrArray entities%2;\n%1bool hasEntity%2 = false;\n",
                                .vba = "%1Dim entities%2( 0 ) As Object\n",
                            }};

static const Phrase addEntity{
    "EmitGroupAddEntities",
    {
        .cpp = "%1%3->HasEntity(%4, &hasEntity%2);\n%1if ( !hasEntity%2 )\n%1{\n%1    entities%2.add(%4);\n%1}\n",
        .cppCom = "%1if ( !%3->HasEntity(%4) )\n%1{\n%1    VARIANT entities%2;\n"
                  "%1    entities%2.vt = ( VT_ARRAY | VT_DISPATCH );\n"
                  "%1    entities%2.parray = SafeArrayCreateVector( VT_DISPATCH, 0, 1 );\n"
                  "%1    long rgIndices%2;\n%1    rgIndices%2 = 0;\n%1    IDispatch* val%2;\n%1    val%2 = %4;\n"
                  "%1    SafeArrayPutElement( entities%2.parray, &rgIndices%2, (IDispatch*)(val%2) );\n"
                  "%1    %3->AddEntities(entities%2);\n%1}\n",
        .csharp = "%1if ( !%3.HasEntity(%4) )\n%1{\n%1    DispatchWrapper[] entities%2 = new DispatchWrapper[1];\n"
                  "%1    entities%2[0] = new DispatchWrapper(%4);\n%1    %3.AddEntities(entities%2);\n%1}\n",
        .javascript = "%1if ( !%3.HasEntity(%4) )\n%1{\n%1    var entities%2 = new Array(1);\n"
                      "%1    entities%2[0] = %4;\n%1    %3.AddEntities(entities%2);\n%1}\n",
        .vbNet = "%1If Not %3.HasEntity(%4) Then\n%1    Dim entities%2 As DispatchWrapper()\n"
                 "%1    entities%2 = New DispatchWrapper( 0 ) {}\n%1    entities%2( 0 ) = New DispatchWrapper( %4 )\n"
                 "%1    %3.AddEntities(entities%2)\n%1End If\n",
        .vba = "%1If Not %3.HasEntity(%4) Then\n%1    Set entities%2( 0 ) = %4\n%1    %3.AddEntities entities%2\n"
               "%1End If\n",
        .python = "%1if not %3.HasEntity(%4):\n%1    %3.AddEntities(objects(%4))\n",
    }};

static const Phrase addGathered{"EmitGroupAddEntities",
                                {
                                    .cpp = "%1%3->AddEntities(entities%2);\n",
                                }};

Statement EmitGroupAddEntities(Writer& writer, const std::vector<CFxString>& names, const CFxString& group)
{
    ++writer.UniqueCounter;
    Statement text = LineEnd + writer.fillIndented(addHead).number(writer.UniqueCounter).str();
    for (const CFxString& name : names)
        text += writer.fillIndented(addEntity).number(writer.UniqueCounter).word(group).word(name);
    text += LineEnd;
    return text += writer.fillIndented(addGathered).number(writer.UniqueCounter).word(group);
}

static const Phrase removeHead{"EmitGroupRemoveEntities",
                               {
                                   .cpp = "%1iwObjectPtrArray removeObject%2;\n",
                                   .cppCom =
                                       "%1VARIANT removeObject%3;%2%1removeObject%3.vt = ( VT_ARRAY | VT_DISPATCH );%2"
                                       "%1removeObject%3.parray = SafeArrayCreateVector( VT_DISPATCH, 0, %4 );%2",
                                   .csharp = "%1DispatchWrapper[] removeObject%2;\n",
                                   .javascript = "%1var removeObject%2;\n",
                                   .vbNet = "%1Dim removeObject%3 As DispatchWrapper()%2",
                                   .vba = "%1Dim removeObject%3( %4 ) As Object%2",
                               }};

static const Phrase removeSize{"EmitGroupRemoveEntities",
                               {
                                   .csharp = "%1removeObject%2 = new DispatchWrapper[%3];\n",
                                   .javascript = "%1removeObject%2 = new Array(%3);\n",
                                   .vbNet = "%1removeObject%3 = New DispatchWrapper( %4 ) {}%2",
                               }};

static const Phrase removeCall{"EmitGroupRemoveEntities",
                               {
                                   .cpp = "%1%3->RemoveEntities(removeObject%2);\n",
                                   .cppCom = "%1%3->RemoveEntities(removeObject%2);\n",
                                   .csharp = "%1%3.RemoveEntities(removeObject%2);\n",
                                   .javascript = "%1%3.RemoveEntities(removeObject%2);\n",
                                   .vbNet = "%1%3.RemoveEntities(removeObject%2)\n",
                                   .vba = "%1%3.RemoveEntities removeObject%2\n",
                                   .python = "%1%3.RemoveEntities(objects(%4))\n",
                               }};

/// Where nothing declares an array, the call has the objects itself.
Statement EmitGroupRemoveEntities(Writer& writer, const std::vector<CFxString>& names, const CFxString& group)
{
    const std::uint32_t number = ++writer.UniqueCounter;
    const ArrayPlace place(writer, "removeObject" + QString::number(number), number);
    const Statement objects = objectLines(place, {names.begin(), names.end()});
    return LineEnd + listHead(writer, removeHead, names.size()) + listHead(writer, removeSize, names.size()) +
           (removeHead.has(writer.target) ? objects : Statement()) + LineEnd +
           writer.fillIndented(removeCall).number(number).word(group).word(objects).str();
}

/// In COM the group's name is narrow, its variable is not assigned, and the first line of the array is indented twice;
/// JavaScript and VBA have no number to keep one array from the next. It has to stay so.
static const Phrase createGroup{
    "EmitCreateGroup",
    {
        .cpp = "%1iwObjectPtrArray entities%8;%2%3%1iwDoc->CreateGroup( L\"%4\", %5, L\"%6\", entities%8, &%7 );%2",
        .cppCom = "%1VARIANT EntityArray%3;%2%1EntityArray%3.vt = ( VT_ARRAY | VT_DISPATCH );%2"
                  "%1EntityArray%3.parray = SafeArrayCreateVector( VT_DISPATCH, 0, %5);%2%1%4%2"
                  "%1iwDoc->CreateGroup(\"%6\", %7, L\"%8\", EntityArray%3 );%2",
        .csharp = "%1DispatchWrapper[] entities%9 = new DispatchWrapper[%3];%2%4"
                  "%1%8 = iwDoc.CreateGroup( \"%5\", %6, \"%7\", entities%9 );%2",
        .javascript = "%1var entities = new Array(%3);%2%4%1%8 = mDoc.CreateGroup(\"%5\", %6, \"%7\", entities);%2",
        .vbNet = "%1Dim entities%9 As DispatchWrapper() = New DispatchWrapper(%3) {}%2%4"
                 "%1%8 = iwDoc.CreateGroup( \"%5\", %6, \"%7\", entities%9 )%2",
        .vba = "%1Dim entities(%3) As Object%2%4%1Set %8 = iwDoc.CreateGroup( \"%5\", %6, \"%7\", entities )%2",
        .python = "%1%8 = drawing.doc.CreateGroup(%5, %6, %7, objects(%4))%2",
    }};
static const Mend
    scriptGroup(createGroup, Target::JavaScript, "the group's variable is not declared",
                "%1var entities = new Array(%3);%2%4%1var %8 = mDoc.CreateGroup(\"%5\", %6, \"%7\", entities);%2");
static const Mend comGroup(createGroup, Target::CppCom, "the group's variable is not assigned",
                           "%1VARIANT EntityArray%3;%2%1EntityArray%3.vt = ( VT_ARRAY | VT_DISPATCH );%2"
                           "%1EntityArray%3.parray = SafeArrayCreateVector( VT_DISPATCH, 0, %5);%2%4%2"
                           "%1%9 = iwDoc->CreateGroup(L\"%6\", %7, L\"%8\", EntityArray%3 );%2");

Statement EmitCreateGroup(Writer& writer, const NewGroup& group, const CFxString& variable)
{
    const Target target = writer.target;
    const bool numbered = target != Target::JavaScript && target != Target::Vba;
    const std::uint32_t number = numbered ? ++writer.UniqueCounter : 0;
    QString name = target == Target::CppCom ? QStringLiteral("EntityArray") : QStringLiteral("entities");
    if (numbered)
        name += QString::number(number);
    const Statement lines = objectLines({writer, name, number, Brackets::Tight}, group.entities);
    const int bound = arrayBound(writer, group.entities.size());

    Fill creation = writer.fill(createGroup);
    if (target == Target::CppCom)
        creation.number(number).word(lines).number(bound);
    else if (target == Target::Cpp)
        creation.word(lines);
    else
        creation.number(bound).word(lines);
    creation.text(group.name, Meaning::Text)
        .word(truthWord(target, group.selectable))
        .text(group.description, Meaning::Text);
    if (target == Target::CppCom)
        return creation.mendWord(variable);
    creation.word(variable);
    if (numbered)
        creation.number(number);
    return creation;
}
