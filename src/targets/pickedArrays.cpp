// Arrays of picked objects and of the points where they were picked, for trim, extend, fillet and chamfer.

#include "targets/pickedArrays.h"

#include "statements/LineEnd.h"
#include "statements/arrays.h"

using namespace inkmacro;

static const Phrase declareObjects{"array of picked objects",
                                   {
                                       .cpp = "%1iwObjectPtrArray %3;%2",
                                       .cppCom = "%1VARIANT %3;%2%1%3.vt = ( VT_ARRAY | VT_DISPATCH  );%2"
                                                 "%1%3.parray = SafeArrayCreateVector( VT_DISPATCH , 0, %4 );%2",
                                       .csharp = "%1DispatchWrapper[] %3;%2",
                                       .javascript = "%1var %3;%2",
                                       .vbNet = "%1Dim %3 As DispatchWrapper()%2",
                                       .vba = "%1Dim %3( %4 ) As Object%2",
                                   }};

static const Phrase declarePoints{"array of picked points",
                                  {
                                      .cpp = "%1iwDoubleArray %3;%2",
                                      .cppCom = "%1VARIANT %3;%2%1%3.vt = ( VT_ARRAY | VT_R8 );%2"
                                                "%1%3.parray = SafeArrayCreateVector( VT_R8, 0, %4 );%2",
                                      .csharp = "%1double[] %3;%2",
                                      .javascript = "%1var %3;%2",
                                      .vbNet = "%1Dim %3(%4) As Double%2",
                                      .vba = "%1Dim %3(%4) As Double%2",
                                  }};

// Only where the size does not stand in the declaration.

static const Phrase sizeObjects{"size of picked objects",
                                {
                                    .csharp = "%1%3 = new DispatchWrapper[%4];%2",
                                    .javascript = "%1%3 = new Array(%4);%2",
                                    .vbNet = "%1%3 = New DispatchWrapper( %4 ) {}%2",
                                }};

static const Phrase sizePoints{"size of picked points",
                               {
                                   .csharp = "%1%3 = new double[%4];%2",
                                   .javascript = "%1%3 = new Array(%4);%2",
                               }};

// Where an array is an expression, it stands in the call.

static const Phrase objectsInCall{"picked objects in the call",
                                  {
                                      .python = "objects(%1)",
                                  }};

static const Phrase pointsInCall{"picked points in the call",
                                 {
                                     .python = "reals(%1)",
                                 }};

static bool holdsObjects(const PickedArray& array)
{
    return array.elements.index() == 0;
}

static std::size_t lengthOf(const PickedArray& array)
{
    if (const auto* const names = std::get_if<0>(&array.elements))
        return names->size();
    return std::size_t{3} * std::get<1>(array.elements).length();
}

static Statement elementsOf(const ArrayPlace& place, const PickedArray& array)
{
    if (const auto* const names = std::get_if<0>(&array.elements))
        return objectLines(place, std::vector<QString>(names->begin(), names->end()));
    const Coordinates coordinates = spatial(std::get<1>(array.elements));
    const Target target = place.writer.target;
    if (pointsInCall.has(target))
        return coordinateList(place.writer, coordinates, NumberForm::Short);
    if (target == Target::CppCom || target == Target::VbNet)
        return pointLines(place, coordinates, NumberForm::Short);
    Statement lines;
    for (std::size_t i = 0; i < coordinates.values.size(); ++i)
        lines += realLine(place, i, coordinates.values[i], NumberForm::Short);
    return lines;
}

Statement pickedArrays(Writer& writer, std::uint32_t number, std::span<const PickedArray> arrays)
{
    if (objectsInCall.has(writer.target))
        return {};
    const Target target = writer.target;
    Statement text;
    const auto head = [&](const Phrase& ofObjects, const Phrase& ofPoints) {
        for (const PickedArray& array : arrays)
            text += writer.fill(holdsObjects(array) ? ofObjects : ofPoints)
                        .word(array.name + QString::number(number))
                        .number(arrayBound(writer, lengthOf(array)))
                        .str();
    };
    head(declareObjects, declarePoints);
    head(sizeObjects, sizePoints);
    if (target != Target::Cpp && target != Target::CppCom)
        text += LineEnd;

    for (const PickedArray& array : arrays) {
        // VBA has blanks around the index of an object, and none around that of a number.
        const ArrayPlace place(writer, array.name + QString::number(number), number,
                               holdsObjects(array) ? Brackets::Spaced : Brackets::Tight);
        // All have one number, so COM's locals are kept apart.
        const bool grouped = target == Target::CppCom && &array != arrays.data();
        text += grouped ? inOwnGroup(place, [&](const ArrayPlace& inner) { return elementsOf(inner, array); })
                        : elementsOf(place, array);
        text += LineEnd;
    }
    return text;
}

static const Phrase call{"call with picked arrays",
                         {
                             .cpp = "%1iwSketchManager->%3(%4);%2",
                             .cppCom = "%1iwSketchManager->%3(%4);%2",
                             .csharp = "%1iwApp.GetActiveDocument().GetModel().GetSketchManager().%3(%4);%2",
                             .javascript = "%1mSkMgr.%3(%4);%2",
                             .vbNet = "%1iwSketchManager.%3( %4 )%2",
                             .vba = "%1iwSketchManager.%3 %4%2",
                             .python = "%1drawing.sketch.%3(%4)%2",
                         }};

static Statement argumentOf(Writer& writer, const PickedArray& array, std::uint32_t number)
{
    const QString name = array.name + QString::number(number);
    const Phrase& inCall = holdsObjects(array) ? objectsInCall : pointsInCall;
    return inCall.has(writer.target) ? writer.fillPlain(inCall).word(elementsOf({writer, name, number}, array)).str()
                                     : Statement(name);
}

Statement callWithPicked(Writer& writer, const char* operation, std::uint32_t number,
                         std::initializer_list<const PickedArray*> arrays)
{
    Statement arguments;
    for (const PickedArray* const array : arrays) {
        if (!arguments.isEmpty())
            arguments += QStringLiteral(", ");
        arguments += argumentOf(writer, *array, number);
    }
    return writer.fill(call).word(QLatin1String(operation)).word(arguments);
}
