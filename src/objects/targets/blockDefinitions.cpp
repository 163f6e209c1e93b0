// Block definitions: the entities and their types in two arrays, then the call.

#include "objects/targets/blockDefinitions.h"

#include "objects/targets/blocks.h"
#include "objects/targets/references.h"
#include "statements/LineEnd.h"
#include "statements/arrays.h"
#include "targets/objectTypes.h"

using namespace inkmacro;

static const Phrase entitiesHead{
    "EmitCreateBlockDefinition",
    {
        .cpp = "%2%1iwObjectPtrArray objects_%3;%2",
        .cppCom = "%2%1VARIANT objects_%3;%2%1objects_%3.vt = ( VT_ARRAY | VT_DISPATCH );%2"
                  "%1objects_%3.parray = SafeArrayCreateVector( VT_DISPATCH, 0, %4 );%2",
        .csharp = "%2%1DispatchWrapper[] objects_%3 = new DispatchWrapper[%4];%2",
        .javascript = "%2%1var objects_%3 = new Array(%4);%2",
        .vbNet = "%2%1Dim objects_%3 As DispatchWrapper()%2%1objects_%3 = New DispatchWrapper( %4 ) {}%2",
        .vba = "%2%1Dim objects_%3( %4 ) As Object%2",
        .python = "%1entities = objects(%3)%2",
    }};

static const Phrase typesHead{"EmitCreateBlockDefinition",
                              {
                                  .cpp = "%2%1iwLongArray objecttypes_%3;%2",
                                  .cppCom = "%2%1VARIANT objecttypes_%3;%2%1objecttypes_%3.vt = ( VT_ARRAY | VT_I4 );%2"
                                            "%1objecttypes_%3.parray = SafeArrayCreateVector( VT_I4, 0, %4 );%2",
                                  .csharp = "%2%1int[] objecttypes_%3 = new int[%4];%2",
                                  .javascript = "%2%1var objecttypes_%3 = new Array(%4);%2",
                                  .vbNet = "%2%1Dim objecttypes_%3 As Integer() = New Integer( %4 ) {}%2",
                                  .vba = "%2%1Dim objecttypes_%3( %4 ) As iwObjectType_e%2",
                                  .python = "%1types = integers(%3)%2",
                              }};

static Statement entityArrays(Writer& writer, const BlockDefinition& definition, std::uint32_t number)
{
    std::vector<QString> types;
    types.reserve(definition.types.size());
    for (const QString& type : definition.types)
        types.push_back(objectTypeWord(writer.target, type));

    const int bound = arrayBound(writer, types.size());
    const ArrayPlace objects(writer, "objects_" + QString::number(number), number);
    const ArrayPlace objectTypes(writer, "objecttypes_" + QString::number(number), number);
    if (writer.target == Target::Python)
        return writer.fill(typesHead).word(objectTypeLines(objectTypes, types)).str() +
               writer.fill(entitiesHead).word(objectLines(objects, definition.entities)).str();
    Statement text = writer.fill(entitiesHead).number(number).number(bound).str() +
                     objectLines(objects, definition.entities) +
                     writer.fill(typesHead).number(number).number(bound).str();
    if (writer.target == Target::CppCom)
        text += inOwnGroup(objectTypes, [&](const ArrayPlace& place) { return objectTypeLines(place, types); });
    else
        text += objectTypeLines(objectTypes, types);
    return text + LineEnd;
}

static const Phrase createDefinition{
    "EmitCreateBlockDefinition",
    {
        .cpp = "%1 iwDoc->CreateBlockDefinition(%2%1 L\"%3\", %2%1 L\"%4\", %2%1 %5, %2%1 %6, %2%1 %7, %2"
               "%1 objecttypes_%9,  %2%1 objects_%9, %2%1 iwBlockDefinitionEntities_RemoveFromDrawing ,&%8 );%2",
        .cppCom = "%1 %8 = iwDoc->CreateBlockDefinition(%2%1 L\"%3\", %2%1 L\"%4\", %2%1 %5, %2%1 %6, %2%1 %7, %2"
                  "%1 objecttypes_%9,  %2%1 objects_%9, %2%1 iwBlockDefinitionEntities_RemoveFromDrawing );%2",
        .csharp = "%1 %8 = iwDoc.CreateBlockDefinition(%2%1 \"%3\", %2%1 \"%4\", %2%1 %5, %2%1 %6, %2%1 %7, %2"
                  "%1 objecttypes_%9,  %2%1 objects_%9, %2"
                  "%1 iwBlockDefinitionEntities_e.iwBlockDefinitionEntities_RemoveFromDrawing );%2",
        .javascript = "%1 var %8 = mDoc.CreateBlockDefinition(%2%1 \"%3\", %2%1 \"%4\", %2%1 %5, %2%1 %6, %2%1 %7, %2"
                      "%1 objecttypes_%9,  %2%1 objects_%9, %2%1 \"iwBlockDefinitionEntities_RemoveFromDrawing\");%2",
        .vbNet = "%1 %8 = iwDoc.CreateBlockDefinition( \"%3\", \"%4\", %5, %6, %7, objecttypes_%9, objects_%9, "
                 "Inkwright.iwBlockDefinitionEntities_e.iwBlockDefinitionEntities_RemoveFromDrawing )%2",
        .vba = "%1 Set %8 = iwDoc.CreateBlockDefinition( \"%3\", \"%4\", %5, %6, %7, objecttypes_%9, objects_%9, "
               "Inkwright.iwBlockDefinitionEntities_e.iwBlockDefinitionEntities_RemoveFromDrawing )%2",
        .python = "%1%6 = drawing.doc.CreateBlockDefinition(%3, %4, %5, types, entities, "
                  "constants.iwBlockDefinitionEntities_RemoveFromDrawing)%2",
    }};

static const Phrase renewDefinition{
    "EmitCreateBlockDefinition",
    {
        .cpp = "%1iwString blkName_%9;%2%1%8->GetName( &blkName_%9);%2%2%1 iwDoc->CreateBlockDefinition(%2%1 %3, %2"
               "%1 L\"%4\", %2%1 %5, %2%1 %6, %2%1 %7, %2%1 objecttypes_%9,  %2%1 objects_%9, %2"
               "%1 iwBlockDefinitionEntities_RemoveFromDrawing ,&%8 );%2",
        .cppCom = "%1BSTR blkName_%9;%2%1blkName_%9 = %8->GetName();%2%2%1 %8 = iwDoc->CreateBlockDefinition(%2%1 %3, "
                  "%2%1 L\"%4\", %2%1 %5, %2%1 %6, %2%1 %7, %2%1 objecttypes_%9,  %2%1 objects_%9, %2"
                  "%1 iwBlockDefinitionEntities_RemoveFromDrawing );%2",
        .csharp = "%1string blkName_%9 = %8.GetName();%2%2%1 %8 = iwDoc.CreateBlockDefinition(%2%1 %3, %2%1 \"%4\", %2"
                  "%1 %5, %2%1 %6, %2%1 %7, %2%1 objecttypes_%9,  %2%1 objects_%9, %2"
                  "%1 iwBlockDefinitionEntities_e.iwBlockDefinitionEntities_RemoveFromDrawing );%2",
        .javascript = "%1var blkName_%9 = %8.GetName();%2%2%1 var %8 = mDoc.CreateBlockDefinition(%2%1 %3, %2"
                      "%1 \"%4\", %2%1 %5, %2%1 %6, %2%1 %7, %2%1 objecttypes_%9,  %2%1 objects_%9, %2"
                      "%1 \"iwBlockDefinitionEntities_RemoveFromDrawing\");%2",
        .vbNet = "%1Dim blkName_%9 As String = %8.GetName()%2%2%1 %8 = iwDoc.CreateBlockDefinition( %3, \"%4\", %5, "
                 "%6, %7, objecttypes_%9, objects_%9, "
                 "Inkwright.iwBlockDefinitionEntities_e.iwBlockDefinitionEntities_RemoveFromDrawing )%2",
        .vba = "%1Dim blkName_%9 As String%2%1blkName_%9 = %8.GetName()%2%2"
               "%1 Set %8 = iwDoc.CreateBlockDefinition( %3, \"%4\", %5, %6, %7, objecttypes_%9, objects_%9, "
               "Inkwright.iwBlockDefinitionEntities_e.iwBlockDefinitionEntities_RemoveFromDrawing )%2",
        .python = "%1name = %6.GetName()%2"
                  "%1%6 = drawing.doc.CreateBlockDefinition(name, %4, %5, types, entities, "
                  "constants.iwBlockDefinitionEntities_RemoveFromDrawing)%2",
    }};
static const Mend keptBlockName(
    renewDefinition, Target::CppCom, "the old name is taken out of a temporary, which frees it",
    "%1_bstr_t blkName_%9;%2%1blkName_%9 = %8->GetName();%2%2%1 %8 = iwDoc->CreateBlockDefinition(%2%1 %3, "
    "%2%1 L\"%4\", %2%1 %5, %2%1 %6, %2%1 %7, %2%1 objecttypes_%9,  %2%1 objects_%9, %2"
    "%1 iwBlockDefinitionEntities_RemoveFromDrawing );%2");

static const Phrase declareBlockName{"EmitCreateBlockDefinition",
                                     {
                                         .cpp = "%1 iwString %3Name;%2",
                                         .cppCom = "%1 BSTR %3Name;%2",
                                         .csharp = "%1 string %3Name;%2",
                                         .javascript = "%1 var %3Name;%2",
                                         .vbNet = "%1 Dim %3Name As String%2",
                                         .vba = "%1 Dim %3Name As String%2",
                                     }};
static const Mend keptAnonymousName(declareBlockName, Target::CppCom,
                                    "an anonymous name is taken out of a temporary, which frees it",
                                    "%1 _bstr_t %3Name;%2");

static const Phrase getBlockName{"EmitCreateBlockDefinition",
                                 {
                                     .cpp = "%1 %3->GetName(&%4Name);%2",
                                     .cppCom = "%1 %4Name = %3->GetName();%2",
                                     .csharp = "%1 %4Name = %3.GetName();%2",
                                     .javascript = "%1 %4Name = %3.GetName();%2",
                                     .vbNet = "%1 %4Name = %3.GetName()%2",
                                     .vba = "%1 %4Name = %3.GetName()%2",
                                     .python = "%1name = %3.GetName()%2",
                                 }};

static bool isAnonymous(const BlockDefinition& definition)
{
    return definition.name.toQString() == anonymousBlockName;
}

/// In Python an anonymous definition is a local of the function, which nothing but its name is asked of.
static QString definitionVariable(const Writer& writer, const BlockDefinition& definition)
{
    if (!isAnonymous(definition))
        return definition.variable.toQString();
    return writer.target == Target::Python ? QStringLiteral("definition") : definition.variable.toQString() + "Def";
}

Statement EmitOpenBlockDefinition(Writer& writer, const BlockDefinition& definition)
{
    return isAnonymous(definition)
               ? EmitDeclareObject(writer, "BlockDefinition", definitionVariable(writer, definition))
               : QString();
}

Statement EmitCreateBlockDefinition(Writer& writer, const BlockDefinition& definition)
{
    const std::uint32_t number = ++writer.UniqueCounter;
    const QString variable = definitionVariable(writer, definition);
    Statement text = entityArrays(writer, definition, number);
    Fill call = writer.fill(definition.renewed ? renewDefinition : createDefinition);
    if (definition.renewed)
        call.word("blkName_" + QString::number(number));
    else
        call.text(definition.name, Meaning::Text);
    call.text(definition.description, Meaning::Text).point(definition.origin).word(variable).number(number);
    text += call.str();
    if (!isAnonymous(definition))
        return text;
    if (declareBlockName.has(writer.target))
        text += LineEnd + writer.fill(declareBlockName).word(definition.variable).str() + LineEnd;
    return text + writer.fill(getBlockName).word(variable).word(definition.variable).str();
}
