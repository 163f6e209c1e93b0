// New groups of objects.

#include "objects/targets/newGroups.h"

#include "statements/arrays.h"
#include "statements/wording.h"

using namespace inkmacro;

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
        creation.number(number).text(lines).number(bound);
    else if (target == Target::Cpp)
        creation.text(lines);
    else
        creation.number(bound).text(lines);
    creation.text(group.name).text(truthWord(target, group.selectable)).text(group.description);
    if (target == Target::CppCom)
        return creation.mendText(variable);
    creation.text(variable);
    if (numbered)
        creation.number(number);
    return creation;
}
