#include "targets/comArrays.h"

#include "targets/Fill.h"
#include "targets/LineEnd.h"

namespace inkmacro {

namespace {

QString elements(const Template& head, const Template& element, unsigned level, const QString& array, unsigned suffix,
                 const std::vector<QString>& values)
{
    QString text = Fill(&head, level, LineEnd).number(suffix);
    for (const QString& value : values)
        text += Fill(&element, level, LineEnd).text(array).number(suffix).text(value).str();
    return text;
}

} // namespace

QString comObjects(unsigned level, const QString& array, unsigned suffix, const std::vector<QString>& values)
{
    static const Template head("%1long rgIndices%3;%2%1rgIndices%3 = 0;%2%1IDispatch* val%3;%2");
    static const Template element("%1val%4 = %5;%2"
                                  "%1SafeArrayPutElement( %3%4.parray, &rgIndices%4, (IDispatch*)(val%4) );%2"
                                  "%1rgIndices%4++;%2");
    return elements(head, element, level, array, suffix, values);
}

QString comIntegers(unsigned level, const QString& array, unsigned suffix, const std::vector<QString>& values)
{
    static const Template head("%1long rgIndices%3;%2%1rgIndices%3 = 0;%2%1int val%3;%2");
    static const Template element("%1val%4 = %5;%2"
                                  "%1SafeArrayPutElement( %3%4.parray, &rgIndices%4, (int*)&(val%4) );%2"
                                  "%1rgIndices%4++;%2");
    return elements(head, element, level, array, suffix, values);
}

QString comPoint(unsigned level, const QString& array, unsigned suffix, const OdGePoint3d& point)
{
    static const Template words("%1long rgIndices%4;%2%1rgIndices%4 = 0;%2%1double x, y, z;%2"
                                "%1x=%5; y=%6; z=%7;%2"
                                "%1SafeArrayPutElement( %3%4.parray, &rgIndices%4, (double*)&(x) );%2"
                                "%1rgIndices%4=1;%2"
                                "%1SafeArrayPutElement( %3%4.parray, &rgIndices%4, (double*)&(y) );%2"
                                "%1rgIndices%4=2;%2"
                                "%1SafeArrayPutElement( %3%4.parray, &rgIndices%4, (double*)&(z) );%2");
    return Fill(&words, level, LineEnd)
        .text(array)
        .number(suffix)
        .shortReal(point.x)
        .shortReal(point.y)
        .shortReal(point.z);
}

QString comPoints(unsigned level, unsigned suffix, const OdArray<OdGePoint3d>& points)
{
    static const Template head("%1long rgIndices%3;%2%1rgIndices%3 = -1;%2%1double x_%4, y_%4, z_%4;%2");
    static const Template element("%1x_%10=%7; y_%10=%8; z_%10=%9;%2"
                                  "%1rgIndices%3=%4;%2"
                                  "%1SafeArrayPutElement( variant%3.parray, &rgIndices%3, (double*)&(x_%10) );%2"
                                  "%1rgIndices%3=%5;%2"
                                  "%1SafeArrayPutElement( variant%3.parray, &rgIndices%3, (double*)&(y_%10) );%2"
                                  "%1rgIndices%3=%6;%2"
                                  "%1SafeArrayPutElement( variant%3.parray, &rgIndices%3, (double*)&(z_%10) );%2");
    QString text = Fill(&head, level, LineEnd).number(suffix).number(suffix);
    unsigned index = 0;
    for (const OdGePoint3d& point : points) {
        text += Fill(&element, level, LineEnd)
                    .number(suffix)
                    .number(index)
                    .number(index + 1)
                    .number(index + 2)
                    .shortReal(point.x)
                    .shortReal(point.y)
                    .shortReal(point.z)
                    .number(suffix)
                    .str();
        index += 3;
    }
    return text;
}

} // namespace inkmacro
