// Lists of points.

#include "frame/CFxConverterIWAPIImpl.h"
#include "objects/targets/CoordinateArray.h"
#include "targets/LineEnd.h"

using namespace inkmacro;

static const Phrase point3d{
    "coordinates",
    {
        .cpp = "%1Coordinates%3.add(%4);Coordinates%3.add(%5);Coordinates%3.add(%6);%2",
        .cppCom = "%1x_%10=%7; y_%10=%8; z_%10=%9;%2"
                  "%1rgIndices%3=%4;%2%1SafeArrayPutElement( variant%3.parray, &rgIndices%3, (double*)&(x_%10) );%2"
                  "%1rgIndices%3=%5;%2%1SafeArrayPutElement( variant%3.parray, &rgIndices%3, (double*)&(y_%10) );%2"
                  "%1rgIndices%3=%6;%2%1SafeArrayPutElement( variant%3.parray, &rgIndices%3, (double*)&(z_%10) );%2",
        .csharp = "%1,%2,%3",
        .javascript = "%1,%2,%3",
        .vbNet = "%1Coordinates%3( %4 )=%7%2%1Coordinates%3( %5 )=%8%2%1Coordinates%3( %6 )=%9%2",
        .vba = "%1Coordinates%3( %4 )=%7%2%1Coordinates%3( %5 )=%8%2%1Coordinates%3( %6 )=%9%2",
    }};

/// The points one after the other, with commas between them.
static QString inlineList(Target target, const OdArray<OdGePoint3d>& points)
{
    QString list;
    for (const OdGePoint3d& point : points)
        list += Fill(point3d.in(target)).point(point).str() + ',';
    list.chop(1);
    return list;
}

CoordinateArray coordinates(Writer& writer, const OdArray<OdGePoint3d>& points, const char* scriptName)
{
    CoordinateArray array{writer.target};
    array.doubles = 3 * static_cast<int>(points.length());
    if (writer.target == Target::CSharp) {
        array.words = inlineList(writer.target, points);
        return array;
    }
    array.number = ++writer.UniqueCounter;
    const unsigned level = writer.IndentLevel;
    if (writer.target == Target::JavaScript) {
        static const Template opening("%1var %2 = new Array(");
        array.words = scriptName + QString::number(array.number);
        array.before = Fill(&opening, level).text(array.words).str() + inlineList(writer.target, points) + ");\n";
        return array;
    }
    if (writer.target == Target::CppCom) {
        static const Template head("%1long rgIndices%3;%2%1rgIndices%3 = -1;%2%1double x_%4, y_%4, z_%4;%2");
        array.words = Fill(&head, level, LineEnd).number(array.number).number(array.number);
    }
    int index = 0;
    for (const OdGePoint3d& point : points) {
        Fill entry = writer.fill(point3d);
        entry.number(array.number);
        if (writer.target != Target::Cpp)
            entry.number(index).number(index + 1).number(index + 2);
        array.words += entry.point(point).number(array.number).str();
        index += 3;
    }
    return array;
}

QString comPoint(Writer& writer, std::uint32_t number, const OdGePoint3d& point)
{
    static const Template statements(
        "%1long rgIndices%3;%2%1rgIndices%3 = 0;%2"
        "%1x=%4; y=%5; z=%6;%2%1SafeArrayPutElement( variant%3.parray, &rgIndices%3, (double*)&(x) );%2"
        "%1rgIndices%3=1;%2%1SafeArrayPutElement( variant%3.parray, &rgIndices%3, (double*)&(y) );%2"
        "%1rgIndices%3=2;%2%1SafeArrayPutElement( variant%3.parray, &rgIndices%3, (double*)&(z) );%2");
    return Fill(&statements, writer.IndentLevel, LineEnd).number(number).point(point);
}
