// Mirror, stretch, copy, move, rotate and scale: arrays of the objects, then one call. The suffix of the arrays is
// writer.UniqueCounter as it stands: these statements do not raise it.

#include "targets/entityLists.h"

#include "statements/LineEnd.h"
#include "statements/arrays.h"
#include "targets/objectTypes.h"

#include <array>

using namespace inkmacro;

static const Phrase objectsHead{
    "EmitMoveEntities",
    {
        .cpp = "%1iwObjectPtrArray iwEntities%2;\n",
        .cppCom = "%1VARIANT objects%3;%2%1objects%3.vt = ( VT_ARRAY | VT_DISPATCH  );%2"
                  "%1objects%3.parray = SafeArrayCreateVector( VT_DISPATCH , 0, %5 );%2",
        .csharp = "%1DispatchWrapper[] iwEntities%2;\n",
        .javascript = "%1var iwEntities%2;\n",
        .vbNet = "%1Dim iwEntities%3 As DispatchWrapper()%2%1iwEntities%3 = New DispatchWrapper( %4 ) {}%2%2",
        .vba = "%1Dim iwEntities%3( %4 ) As Object%2%2",
    }};

/// Only where the size does not stand in the declaration.
static const Phrase objectsSize{"EmitMoveEntities",
                                {
                                    .csharp = "%1iwEntities%2 = new DispatchWrapper[%3];\n\n",
                                    .javascript = "%1iwEntities%2 = new Array(%3);\n\n",
                                }};

/// Where the objects go.
static ArrayPlace objectsPlace(Writer& writer)
{
    static constexpr Words names{.cpp = "iwEntities",
                                 .cppCom = "objects",
                                 .csharp = "iwEntities",
                                 .javascript = "iwEntities",
                                 .vbNet = "iwEntities",
                                 .vba = "iwEntities"};
    const std::uint32_t number = writer.UniqueCounter;
    return {writer, numberedName(names, writer.target, number), number};
}

static Statement objectElements(Writer& writer, const EntityList& entities)
{
    std::vector<QString> names;
    names.reserve(entities.size());
    for (const ListedEntity& entity : entities)
        names.push_back(entity.name);
    return objectLines(objectsPlace(writer), names);
}

/// Where an array is an expression, it stands in the call.
static const Phrase objectsInCall{"EmitMoveEntities: list",
                                  {
                                      .python = "objects(%1)",
                                  }};

static Statement objectArray(Writer& writer, const EntityList& entities)
{
    if (objectsInCall.has(writer.target))
        return {};
    const std::size_t count = entities.size();
    return listHead(writer, objectsHead, count) + listHead(writer, objectsSize, count) +
           objectElements(writer, entities) + LineEnd;
}

static const Phrase typedHead{
    "EmitMirrorEntities",
    {
        .cpp = "%1iwObjectPtrArray iwEntities%2;\n%1iwLongArray types%2;\n",
        .cppCom = "%1VARIANT objects%3;%2%1objects%3.vt = ( VT_ARRAY | VT_DISPATCH  );%2"
                  "%1objects%3.parray = SafeArrayCreateVector( VT_DISPATCH , 0, %5 );%2"
                  "%1VARIANT types%3;%2%1types%3.vt = ( VT_ARRAY | VT_I4  );%2"
                  "%1types%3.parray = SafeArrayCreateVector( VT_I4 , 0, %5 );%2",
        .csharp = "%1DispatchWrapper[] iwEntities%2;\n%1int[] types%2 = new int[%3];\n",
        .javascript = "%1var iwEntities%2;\n%1var types%2 = new Array(%3);\n",
        .vbNet = "%1Dim iwEntities%3 As DispatchWrapper()%2%1Dim types%3 As Integer() = New Integer( %4 ) {}%2"
                 "%1iwEntities%3 = New DispatchWrapper( %4 ) {}%2%2",
        .vba = "%1Dim iwEntities%3( %4 ) As Object%2%1Dim types%3( %4 ) As iwObjectType_e%2%2",
    }};

/// The two statements carry the suffix of the arrays and not one of their own, so two unknown objects declare the same
/// variables twice.
static const Phrase lookUpType{"EmitCopyEntities",
                               {
                                   .cpp = "%1iwObjectType_e iwTypeForCopy%2;\n",
                                   .cppCom = "%1iwObjectType_e iwTypeForCopy%3;%2",
                                   .csharp = "%1iwObjectType_e iwTypeForCopy%2;\n",
                                   .javascript = "%1var iwTypeForCopy%2;\n",
                                   .vbNet = "%1Dim iwTypeForCopy%3 As Inkwright.iwObjectType_e%2",
                                   .vba = "%1Dim iwTypeForCopy%3 As Inkwright.iwObjectType_e%2",
                               }};

static const Phrase lookUpObject{
    "EmitCopyEntities",
    {
        .cpp =
            "%1iwObject_ptr iwObjForCopy%2;\n%1iwDoc->GetObjectByHandle(L\"%3\", &iwTypeForCopy%2, &iwObjForCopy%2);\n",
        .cppCom = "%1IDispatchPtr iwObjForCopy%3 = pConnection->m_IwApp->GetActiveDocument()->"
                  "GetObjectByHandle(L\"%4\", &iwTypeForCopy%3);%2",
        .csharp = "%1Object iwObjForCopy%2 = iwApp.GetActiveDocument().GetObjectByHandle(\"%3\", "
                  "out iwTypeForCopy%2);\n",
        .javascript = "%1var iwObjForCopy%2 = mDoc.GetObjectByHandle(\"%3\").DispObj;\n"
                      "%1iwTypeForCopy%2 = mApp.GetObjectType(iwObjForCopy%2);\n",
        .vbNet = "%1Dim iwObjForCopy%3 As Object = iwApp.GetActiveDocument().GetObjectByHandle(\"%4\", "
                 "iwTypeForCopy%3)%2",
        .vba = "%1Dim iwObjForCopy%3 As Object%2"
               "%1Set iwObjForCopy%3 = iwApp.GetActiveDocument().GetObjectByHandle(\"%4\", iwTypeForCopy%3)%2",
    }};

static Statement typedElements(Writer& writer, const EntityList& entities, bool lookUpUnknown)
{
    const QString suffix = QString::number(writer.UniqueCounter);
    const ArrayPlace objects = objectsPlace(writer);
    const ArrayPlace types(writer, "types" + suffix, writer.UniqueCounter);
    Statement text;
    std::vector<QString> objectWords;
    std::vector<QString> typeWords;
    bool hasEmpty = false;
    for (std::size_t i = 0; i < entities.size(); ++i) {
        const auto& [name, type, handle] = entities[i];
        const bool lookedUp = lookUpUnknown && name.isEmpty();
        if (lookedUp)
            text += fillList(writer, lookUpType).number(writer.UniqueCounter).str() +
                    fillList(writer, lookUpObject).number(writer.UniqueCounter).text(handle).str();
        objectWords.push_back(lookedUp ? "iwObjForCopy" + suffix : name.toQString());
        typeWords.push_back(lookedUp ? "iwTypeForCopy" + suffix : objectTypeWord(writer.target, type));
        const Statement typeLine = objectTypeLine(types, i, typeWords.back());
        const bool isEmpty = !lookedUp && type.isEmpty();
        text += (isEmpty ? writer.faulty(typeLine, emptyPlace) : typeLine) + objectLine(objects, i, objectWords.back());
        hasEmpty = hasEmpty || isEmpty;
    }
    if (writer.target == Target::CppCom) {
        const Statement typeLines =
            inOwnGroup(types, [&](const ArrayPlace& place) { return objectTypeLines(place, typeWords); });
        text += objectLines(objects, objectWords) + (hasEmpty ? writer.faulty(typeLines, emptyPlace) : typeLines);
    }
    return text;
}

static const Phrase listsInCall{"EmitMirrorEntities: lists",
                                {
                                    .python = "integers(%1), objects(%2)",
                                }};

/// Of several calls with the same objects.
static const Phrase namedLists{"EmitCopyEntities: lists",
                               {
                                   .python = "%1types = integers(%3)%2%1entities = objects(%4)%2",
                               }};

/// The types of what is selected only then are no enumerators.
static Statement listedTypes(Writer& writer, const EntityList& entities)
{
    std::vector<QString> words;
    words.reserve(entities.size());
    for (const ListedEntity& entity : entities) {
        const QString& type = entity.type.toQString();
        words.push_back(type.startsWith('*') ? type : objectTypeWord(writer.target, type));
    }
    return objectTypeLines({writer, "types", writer.UniqueCounter}, words);
}

static Statement typedArrays(Writer& writer, const EntityList& entities, bool lookUpUnknown)
{
    if (namedLists.has(writer.target))
        return writer.fill(namedLists).word(listedTypes(writer, entities)).word(objectElements(writer, entities));
    const std::size_t count = entities.size();
    return listHead(writer, typedHead, count) + listHead(writer, objectsSize, count) +
           typedElements(writer, entities, lookUpUnknown) + LineEnd;
}

/// The arguments but the arrays stand in one text.
static const Phrase callWithArrays{
    "EmitMoveEntities",
    {
        .cpp = "%1iwSketchManager->%2(%3, iwEntities%4);\n",
        .cppCom = "%1iwSketchManager->%3(%4, objects%5);%2",
        .csharp = "%1iwApp.GetActiveDocument().GetModel().GetSketchManager().%2(%3, iwEntities%4);\n",
        .javascript = "%1mSkMgr.%2(%3, iwEntities%4);\n",
        .vbNet = "%1iwSketchManager.%3( %4, iwEntities%5 )%2",
        .vba = "%1iwSketchManager.%3 %4, iwEntities%5%2",
        .python = "%1drawing.sketch.%2(%3, %5)\n",
    }};

/// `lists` are the arrays as Python hands them over.
static Statement callOf(Writer& writer, const char* operation, const Statement& arguments, const Statement& lists)
{
    return fillList(writer, callWithArrays)
        .word(QLatin1String(operation))
        .word(arguments)
        .number(writer.UniqueCounter)
        .word(lists);
}

/// The array of types is the last of the arguments.
static Statement typedCallOf(Writer& writer, const char* operation, const Statement& arguments)
{
    const QString types = namedLists.has(writer.target) ? QString() : ", types" + QString::number(writer.UniqueCounter);
    return callOf(writer, operation, arguments + types, QStringLiteral("types, entities"));
}

/// The only call with these objects.
static Statement typedCall(Writer& writer, const EntityList& entities, const char* operation,
                           const Statement& arguments)
{
    if (!listsInCall.has(writer.target))
        return typedArrays(writer, entities, false) + typedCallOf(writer, operation, arguments);
    const Statement lists =
        writer.fillPlain(listsInCall).word(listedTypes(writer, entities)).word(objectElements(writer, entities));
    return callOf(writer, operation, arguments, lists);
}

/// The arguments of a call in front of its arrays: so many numbers and words, in Python fewer, where a point is one.
static Fill fillArguments(Writer& writer, std::size_t count, std::size_t inPython)
{
    static const std::array<Template, 7> templates{
        Template("%1"),
        Template("%1, %2"),
        Template("%1, %2, %3"),
        Template("%1, %2, %3, %4"),
        Template("%1, %2, %3, %4, %5"),
        Template("%1, %2, %3, %4, %5, %6"),
        Template("%1, %2, %3, %4, %5, %6, %7"),
    };
    return writer.fill(templates[(writer.target == Target::Python ? inPython : count) - 1]);
}

/// VBA and Python alone write the truth value with a capital here.
Statement EmitMirrorEntities(Writer& writer, const EntityList& entities, const OdGePoint3d& first,
                             const OdGePoint3d& second, bool erase)
{
    const bool hasCapital = writer.target == Target::Vba || writer.target == Target::Python;
    const QLatin1String erases =
        hasCapital ? QLatin1String(erase ? "True" : "False") : QLatin1String(erase ? "true" : "false");
    return typedCall(writer, entities, "MirrorEntities",
                     fillArguments(writer, 7, 3).shortPoint(first).shortPoint(second).word(erases));
}

Statement EmitCopyEntities(Writer& writer, const EntityList& entities, const OdGeVector3d& offset, bool first)
{
    const Statement arrays = first ? typedArrays(writer, entities, true) : Statement();
    return arrays + typedCallOf(writer, "CopyEntities", fillArguments(writer, 3, 1).shortVector(offset));
}

Statement EmitMoveEntities(Writer& writer, const EntityList& entities, const OdGeVector3d& offset, bool first)
{
    const Statement array = first ? objectArray(writer, entities) : Statement();
    const Statement objects = writer.fillPlain(objectsInCall).word(objectElements(writer, entities));
    return array + callOf(writer, "MoveEntities", fillArguments(writer, 3, 1).shortVector(offset), objects);
}

Statement EmitRotateEntities(Writer& writer, const EntityList& entities, const OdGePoint3d& center, double angle)
{
    return typedCall(writer, entities, "RotateEntities",
                     fillArguments(writer, 3, 2).shortPlanePoint(center).shortReal(angle, Meaning::Angle));
}

/// The factor stands ahead of the last coordinate: the host takes x, y, factor, z.
Statement EmitScaleEntities(Writer& writer, const EntityList& entities, const OdGePoint3d& center, double factor)
{
    return typedCall(writer, entities, "ScaleEntities",
                     fillArguments(writer, 4, 4)
                         .shortCoordinate(center, 0)
                         .shortCoordinate(center, 1)
                         .shortReal(factor, Meaning::Factor)
                         .shortCoordinate(center, 2));
}

static const Phrase stretchHead{
    "EmitStretchEntities",
    {
        .cpp = "%1iwObjectPtrArray iwEntities%2;\n%1iwDoubleArray crossingBoxStartCorner%2;\n"
               "%1iwDoubleArray crossingBoxEndCorner%2;\n\n",
        .cppCom = "%1VARIANT objects%3;%2%1objects%3.vt = ( VT_ARRAY | VT_DISPATCH  );%2"
                  "%1objects%3.parray = SafeArrayCreateVector( VT_DISPATCH , 0, %5 );%2"
                  "%1VARIANT crossingBoxStartCorner%3;%2%1crossingBoxStartCorner%3.vt = ( VT_ARRAY | VT_R8 );%2"
                  "%1crossingBoxStartCorner%3.parray = SafeArrayCreateVector( VT_R8, 0, 3 );%2"
                  "%1VARIANT crossingBoxEndCorner%3;%2%1crossingBoxEndCorner%3.vt = ( VT_ARRAY | VT_R8 );%2"
                  "%1crossingBoxEndCorner%3.parray = SafeArrayCreateVector( VT_R8, 0, 3 );%2",
        .csharp = "%1DispatchWrapper[] iwEntities%2;\n%1double[] crossingBoxStartCorner%2;\n"
                  "%1double[] crossingBoxEndCorner%2;\n\n",
        .javascript = "%1var iwEntities%2;\n%1var crossingBoxStartCorner%2;\n%1var crossingBoxEndCorner%2;\n\n",
        .vbNet = "%1Dim iwEntities%3 As DispatchWrapper()%2%1Dim crossingBoxStartCorner%3 As Double()%2"
                 "%1Dim crossingBoxEndCorner%3 As Double()%2%2",
        .vba = "%1Dim iwEntities%3( %4 ) As Object%2%1Dim crossingBoxStartCorner%3(2) As Double%2"
               "%1Dim crossingBoxEndCorner%3(2) As Double%2%2",
    }};

static const Phrase stretchSize{"EmitStretchEntities",
                                {
                                    .csharp = "%1iwEntities%2 = new DispatchWrapper[%3];\n",
                                    .javascript = "%1iwEntities%2 = new Array(%3);\n",
                                    .vbNet = "%1iwEntities%3 = New DispatchWrapper( %4 ) {}%2",
                                }};

static const Phrase stretchStart{
    "EmitStretchEntities",
    {
        .cpp =
            "%1crossingBoxStartCorner%2.add(%3);crossingBoxStartCorner%2.add(%4);crossingBoxStartCorner%2.add(%5);\n",
        .csharp = "%1crossingBoxStartCorner%2 = new double[] { %3, %4, %5};\n",
        .javascript = "%1crossingBoxStartCorner%2 = new Array( %3, %4, %5);\n",
        .vbNet = "%1crossingBoxStartCorner%3 = New Double() { %4, %5, %6}%2",
        .vba = "%1crossingBoxStartCorner%3(0) = %4%2%1crossingBoxStartCorner%3(1) = %5%2"
               "%1crossingBoxStartCorner%3(2) = %6%2",
    }};

static const Phrase stretchEnd{
    "EmitStretchEntities",
    {
        .cpp = "%1crossingBoxEndCorner%2.add(%3);crossingBoxEndCorner%2.add(%4);crossingBoxEndCorner%2.add(%5);\n\n",
        .csharp = "%1crossingBoxEndCorner%2 = new double[] { %3, %4, %5};\n\n",
        .javascript = "%1crossingBoxEndCorner%2 = new Array( %3, %4, %5);\n\n",
        .vbNet = "%1crossingBoxEndCorner%3 = New Double() { %4, %5, %6}%2%2",
        .vba = "%1crossingBoxEndCorner%3(0) = %4%2%1crossingBoxEndCorner%3(1) = %5%2"
               "%1crossingBoxEndCorner%3(2) = %6%2%2",
    }};

static Statement crossingBox(Writer& writer, const OdGePoint3d& start, const OdGePoint3d& end)
{
    if (writer.target == Target::CppCom) {
        const auto corner = [&](const char* name, const OdGePoint3d& point) {
            return inOwnGroup(
                {writer, name + QString::number(writer.UniqueCounter), writer.UniqueCounter},
                [&](const ArrayPlace& place) { return comPointLines(place, point, NumberForm::Short, true); });
        };
        return corner("crossingBoxStartCorner", start) + corner("crossingBoxEndCorner", end) + LineEnd;
    }
    return fillList(writer, stretchStart).number(writer.UniqueCounter).shortPoint(start).str() +
           fillList(writer, stretchEnd).number(writer.UniqueCounter).shortPoint(end).str();
}

static const Phrase stretchEntities{
    "EmitStretchEntities",
    {
        .cpp = "%1iwSketchManager->StretchEntities(%2, %3, %4, iwEntities%5, crossingBoxStartCorner%5, "
               "crossingBoxEndCorner%5);\n",
        .cppCom = "%1iwSketchManager->StretchEntities(%3, %4, %5, objects%6, crossingBoxStartCorner%6, "
                  "crossingBoxEndCorner%6);%2",
        .csharp = "%1iwApp.GetActiveDocument().GetModel().GetSketchManager().StretchEntities(%2, %3, %4, iwEntities%5, "
                  "crossingBoxStartCorner%5, crossingBoxEndCorner%5);\n",
        .javascript = "%1mSkMgr.StretchEntities(%2, %3, %4, iwEntities%5, crossingBoxStartCorner%5, "
                      "crossingBoxEndCorner%5);\n",
        .vbNet = "%1iwSketchManager.StretchEntities( %3, %4, %5, iwEntities%6, crossingBoxStartCorner%6, "
                 "crossingBoxEndCorner%6 )%2",
        .vba = "%1iwSketchManager.StretchEntities %3, %4, %5, iwEntities%6, crossingBoxStartCorner%6, "
               "crossingBoxEndCorner%6%2",
        .python = "%1drawing.sketch.StretchEntities(%2, objects(%4), reals(%5), reals(%6))\n",
    }};

Statement EmitStretchEntities(Writer& writer, const EntityList& entities, const OdGePoint3d& start,
                              const OdGePoint3d& end, const OdGeVector3d& offset)
{
    const std::size_t count = entities.size();
    const Statement objects = objectElements(writer, entities);
    const Statement arrays = objectsInCall.has(writer.target)
                                 ? Statement()
                                 : listHead(writer, stretchHead, count) + listHead(writer, stretchSize, count) +
                                       objects + LineEnd + crossingBox(writer, start, end);
    return arrays + fillList(writer, stretchEntities)
                        .shortVector(offset)
                        .number(writer.UniqueCounter)
                        .word(objects)
                        .shortPoint(start)
                        .shortPoint(end)
                        .str();
}
