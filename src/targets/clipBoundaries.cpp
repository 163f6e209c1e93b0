// Clip boundaries of images. In C++ each operation tells its success by a local.

#include "targets/clipBoundaries.h"

#include "statements/arrays.h"

using namespace inkmacro;

/// VBA has brackets here. It has to stay so.
static const Phrase setClipBoundary{
    "EmitSetClipBoundary",
    {
        .cpp = "%1bool Success%3;%2%1iwDoubleArray Coordinates%3;%2%1Coordinates%3.clear();%2%2%4%2"
               "%1%5->SetClipBoundary( Coordinates%3, &Success%3 );%2%2",
        .cppCom = "%1VARIANT variant%3;%2%1variant%3.vt = ( VT_ARRAY | VT_R8 );%2"
                  "%1variant%3.parray = SafeArrayCreateVector( VT_R8, 0, %5 );%2%4%2"
                  "%1%6->SetClipBoundary( variant%3 );%2%2",
        .csharp = "%1%4.SetClipBoundary( new double[]{%3} );%2%2",
        .javascript = "%1%4.SetClipBoundary( %3 );%2%2",
        .vbNet = "%1Dim Coordinates%3(%4) As Double%2%5%2%1%6.SetClipBoundary( Coordinates%3 )%2%2",
        .vba = "%1Dim Coordinates%3(%4) As Double%2%5%2%1%6.SetClipBoundary( Coordinates%3 )%2%2",
    }};

Statement EmitSetClipBoundary(Writer& writer, const CFxString& image, const OdArray<OdGePoint2d>& points)
{
    return callWithArray(
        writer, setClipBoundary, coordinateArray(writer, planar(points), "points", NumberForm::Short), [](Fill&) {},
        image);
}

static const Phrase removeClipBoundary{"EmitRemoveClipBoundary",
                                       {
                                           .cpp = "%1bool Success%4;%2%1%3->RemoveClipBoundary( &Success%4 );%2",
                                           .cppCom = "%1%3->RemoveClipBoundary();%2",
                                           .csharp = "%1%3.RemoveClipBoundary();%2",
                                           .javascript = "%1%3.RemoveClipBoundary();%2",
                                           .vbNet = "%1%3.RemoveClipBoundary()%2",
                                           .vba = "%1%3.RemoveClipBoundary%2",
                                       }};

Statement EmitRemoveClipBoundary(Writer& writer, const CFxString& image)
{
    Fill statement = writer.fill(removeClipBoundary);
    statement.text(image);
    if (writer.target == Target::Cpp)
        statement.number(++writer.UniqueCounter);
    return statement;
}
