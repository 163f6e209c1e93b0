// Calls with a point, and changes of one coordinate: there the generated program reads the point, changes the
// coordinate and writes the point back.

#include "objects/targets/points.h"

#include "statements/LineEnd.h"

#include <QStringList>

using namespace inkmacro;

static const Phrase callWithPoint{"EmitCallWithPoint",
                                  {
                                      .cpp = "%1%3->%4( %5, %6, %7 );%2",
                                      .cppCom = "%1%3->%4( %5, %6, %7 );%2",
                                      .csharp = "%1%3.%4( %5, %6, %7 );%2",
                                      .javascript = "%1%3.%4(%5, %6, %7);%2",
                                      .vbNet = "%1%3.%4( %5, %6, %7 )%2",
                                      .vba = "%1%3.%4 %5, %6, %7%2",
                                      .python = "%1%3.%4(%5)%2",
                                  }};

Statement EmitCallWithPoint(Writer& writer, const CFxString& target, const CFxString& method, const OdGePoint3d& point)
{
    return writer.fill(callWithPoint).word(target).word(method).point(point);
}

namespace {

struct ChangedCoordinate
{
    QChar axis; ///< the last letter of its name
    double value;
    int axes = 3;            ///< of the point
    std::int32_t index = -1; ///< of one of several points
    bool hasResult = false;  ///< the operation that reads gives a result in front of the coordinates
    Meaning meaning = Meaning::None;
};

} // namespace

static const Phrase replaceCoordinate{"EmitChangePoint", {.python = "%1%3 = %4.%5(%6)%2%1%4.%7(%8%9)%2"}};

/// Python reads a point in one statement, which keeps nothing of the coordinate that changes.
static Statement changeInPython(Writer& writer, const CFxString& target, const CFxString& getter,
                                const CFxString& setter, const ChangedCoordinate& changed)
{
    static const Template planar("%1, %2");
    static const Template spatial("%1, %2, %3");
    Fill coordinates = writer.fill(changed.axes == 2 ? planar : spatial);
    QStringList locals;
    if (changed.hasResult)
        locals.append("*_");
    for (int i = 0; i < changed.axes; ++i) {
        const QString local(QChar('x' + i));
        const bool kept = changed.axis.toLower() != local;
        locals.append(kept ? local : "_");
        if (kept)
            coordinates.word(QString(local));
        else
            coordinates.real(changed.value, changed.meaning);
    }
    const QString index = changed.index == -1 ? QString() : QString::number(changed.index);
    return writer.fill(replaceCoordinate)
        .word(locals.join(", "))
        .word(target)
        .word(getter)
        .word(index)
        .word(setter)
        .word(index.isEmpty() ? index : index + ", ")
        .word(coordinates.str());
}

/// The four steps of a change, in their order.
struct PointWords
{
    const Phrase& declare;
    const Phrase& get;
    const Phrase& change;
    const Phrase& set;
};

/// Without an index (-1) the calls have one value less.
static Statement changePoint(Writer& writer, const PointWords& words, const CFxString& target, const CFxString& getter,
                             const CFxString& setter, std::int32_t index, const CFxString& coordinate, double value,
                             Meaning meaning = Meaning::None)
{
    if (writer.target == Target::Python)
        return changeInPython(writer, target, getter, setter,
                              {.axis = coordinate.toQString().back(),
                               .value = value,
                               .index = index,
                               .hasResult = index != -1,
                               .meaning = meaning});
    const std::uint32_t suffix = ++writer.UniqueCounter;
    const auto call = [&](const Phrase& phrase, const CFxString& operation) -> Statement {
        if (index == -1)
            return writer.fillIndented(phrase).word(target).word(operation).word(LineEnd).number(suffix);
        return writer.fillIndented(phrase).word(target).word(operation).number(index).word(LineEnd).number(suffix);
    };
    return writer.fill(words.declare).number(suffix).str() + call(words.get, getter) +
           writer.fillIndented(words.change).word(coordinate).real(value).word(LineEnd).number(suffix).str() +
           call(words.set, setter);
}

static constexpr char typedXYZ[] = "%1double X%3;%2%1double Y%3;%2%1double Z%3;%2";
static constexpr char basicXYZ[] = "%1Dim X%3 As Double%2%1Dim Y%3 As Double%2%1Dim Z%3 As Double%2";

static const Phrase declarePoint{"EmitChangePoint",
                                 {
                                     .cpp = typedXYZ,
                                     .cppCom = typedXYZ,
                                     .csharp = typedXYZ,
                                     .javascript = "%1var points;%2",
                                     .vbNet = basicXYZ,
                                     .vba = basicXYZ,
                                 }};

static const Phrase declareIndexedPoint{
    "EmitChangePoint",
    {
        .cpp = "%1double X%3;%2%1double Y%3;%2%1double Z%3;%2%1bool bRetVal%3 = false;%2",
        .cppCom = typedXYZ,
        .csharp = typedXYZ,
        .javascript = "%1var points;%2",
        .vbNet = basicXYZ,
        .vba = basicXYZ,
    }};

static const Phrase getPoint{"EmitChangePoint",
                             {
                                 .cpp = "%1%2->%3( &X%5, &Y%5, &Z%5 );%4",
                                 .cppCom = "%1%2->%3( &X%5, &Y%5, &Z%5 );%4",
                                 .csharp = "%1%2.%3(out X%5, out Y%5, out Z%5);%4",
                                 .javascript = "%1points = %2.%3();%4",
                                 .vbNet = "%1%2.%3( X%5, Y%5, Z%5 )%4",
                                 .vba = "%1%2.%3 X%5, Y%5, Z%5 %4",
                             }};

static const Phrase getIndexedPoint{"EmitChangePoint",
                                    {
                                        .cpp = "%1%2->%3( %4, &X%6, &Y%6, &Z%6, &bRetVal%6 );%5",
                                        .cppCom = "%1%2->%3( %4, &X%6, &Y%6, &Z%6 );%5",
                                        .csharp = "%1%2.%3(%4, out X%6, out Y%6, out Z%6);%5",
                                        .javascript = "%1points = %2.%3( %4 );%5",
                                        .vbNet = "%1%2.%3( %4, X%6, Y%6, Z%6 )%5",
                                        .vba = "%1%2.%3 %4, X%6, Y%6, Z%6 %5",
                                    }};

static const Phrase changePointCoordinate{"EmitChangePoint",
                                          {
                                              .cpp = "%1%2%5 = %3;%4",
                                              .cppCom = "%1%2%5 = %3;%4",
                                              .csharp = "%1%2%5 = %3;%4",
                                              .javascript = "%1points.%2 = %3;%4",
                                              .vbNet = "%1%2%5 = %3%4",
                                              .vba = "%1%2%5 = %3%4",
                                          }};

/// The line of blanks behind the COM target's call stays.
static const Phrase setPoint{"EmitChangePoint",
                             {
                                 .cpp = "%1%2->%3( X%5, Y%5, Z%5 );%4",
                                 .cppCom = "%1%2->%3( X%5, Y%5, Z%5 );%4%1%4",
                                 .csharp = "%1%2.%3(X%5, Y%5, Z%5);%4",
                                 .javascript = "%1%2.%3(points.X, points.Y, points.Z);%4",
                                 .vbNet = "%1%2.%3( X%5, Y%5, Z%5 )%4",
                                 .vba = "%1%2.%3 X%5, Y%5, Z%5 %4",
                             }};

static const Phrase setIndexedPoint{"EmitChangePoint",
                                    {
                                        .cpp = "%1%2->%3( %4, X%6, Y%6, Z%6, &bRetVal%6 );%5",
                                        .cppCom = "%1%2->%3( %4, X%6, Y%6, Z%6 );%5%1%5",
                                        .csharp = "%1%2.%3(%4, X%6, Y%6, Z%6);%5",
                                        .javascript = "%1%2.%3(%4, points.X, points.Y, points.Z);%5",
                                        .vbNet = "%1%2.%3( %4, X%6, Y%6, Z%6 )%5",
                                        .vba = "%1%2.%3 %4, X%6, Y%6, Z%6 %5",
                                    }};

Statement EmitChangePoint(Writer& writer, const CFxString& target, const CFxString& axis, const CFxString& getter,
                          const CFxString& setter, double value, std::int32_t index, Meaning meaning)
{
    static const PointWords plain{declarePoint, getPoint, changePointCoordinate, setPoint};
    static const PointWords indexed{declareIndexedPoint, getIndexedPoint, changePointCoordinate, setIndexedPoint};
    return changePoint(writer, index == -1 ? plain : indexed, target, getter, setter, index, axis, value, meaning);
}

static const Phrase changeScale{"EmitChangeScale",
                                {
                                    .javascript = "%1var points;%2%1points = %3.%4();%2%1points.Scale%6 = %7;%2"
                                                  "%1%3.%5(points.ScaleX, points.ScaleY, points.ScaleZ);%2",
                                }};

Statement EmitChangeScale(Writer& writer, const CFxString& target, const CFxString& axis, const CFxString& getter,
                          const CFxString& setter, double value)
{
    return writer.fill(changeScale).word(target).word(getter).word(setter).word(axis).real(value);
}

/// JavaScript gets its local from the call.
static const Phrase declarePair{"EmitChangePosition",
                                {
                                    .cpp = "%1double getX%3;%2%1double getY%3;%2%1double getZ%3;%2",
                                    .cppCom = "%1double getX%3;%2%1double getY%3;%2%1double getZ%3;%2",
                                    .csharp = "%1double getX%3;%2%1double getY%3;%2%1double getZ%3;%2",
                                    .vbNet = "%1Dim getX%3 As Double%2%1Dim getY%3 As Double%2"
                                             "%1Dim getZ%3 As Double%2",
                                    .vba = "%1Dim getX%3 As Double%2%1Dim getY%3 As Double%2%1Dim getZ%3 As Double%2",
                                }};

static const Phrase getPair{"EmitChangePosition",
                            {
                                .cpp = "%1%2->%3( &getX%5, &getY%5, &getZ%5 );%4",
                                .cppCom = "%1%2->%3( &getX%5, &getY%5, &getZ%5 );%4",
                                .csharp = "%1%2.%3(out getX%5, out getY%5, out getZ%5);%4",
                                .javascript = "%1var get = %2.%3();%4",
                                .vbNet = "%1%2.%3( getX%5, getY%5, getZ%5 )%4",
                                .vba = "%1%2.%3 getX%5, getY%5, getZ%5%4",
                            }};

static const Phrase changeLocal{"EmitChangePosition",
                                {
                                    .cpp = "%1%2%5 = %3;%4",
                                    .cppCom = "%1%2%5 = %3;%4",
                                    .csharp = "%1%2%5 = %3;%4",
                                    .javascript = "%1%2 = %3;%4",
                                    .vbNet = "%1%2%5 = %3%4",
                                    .vba = "%1%2%5 = %3%4",
                                }};

static const Phrase setPair{"EmitChangePosition",
                            {
                                .cpp = "%1%2->%3( getX%5, getY%5, getZ%5 );%4",
                                .cppCom = "%1%2->%3( getX%5, getY%5, getZ%5 );%4",
                                .csharp = "%1%2.%3(getX%5, getY%5, getZ%5);%4",
                                .javascript = "%1%2.%3(get.X, get.Y, get.Z);%4",
                                .vbNet = "%1%2.%3( getX%5, getY%5, getZ%5 )%4",
                                .vba = "%1%2.%3 getX%5, getY%5, getZ%5%4",
                            }};

static Statement changePair(Writer& writer, const CFxString& target, const CFxString& getter, const CFxString& setter,
                            const CFxString& local, double value)
{
    static const PointWords words{declarePair, getPair, changeLocal, setPair};
    QString coordinate = local;
    if (writer.target == Target::JavaScript)
        coordinate.replace(QLatin1String("get"), QLatin1String("get."));
    return changePoint(writer, words, target, getter, setter, -1, coordinate, value);
}

Statement EmitChangePosition(Writer& writer, const CFxString& target, const CFxString& local, double value)
{
    return changePair(writer, target, "GetPosition", "SetPosition", local, value);
}

Statement EmitChangeFirstPoint(Writer& writer, const CFxString& target, const CFxString& local, double value)
{
    return changePair(writer, target, "GetFirstPoint", "SetFirstPoint", local, value);
}

Statement EmitChangeSecondPoint(Writer& writer, const CFxString& target, const CFxString& local, double value)
{
    return changePair(writer, target, "GetSecondPoint", "SetSecondPoint", local, value);
}

// The locals of C++ and JavaScript have no suffix, so that a second change in one block declares them again; and what
// JavaScript gets is no valid script. Both must stay so.

static const Phrase declareVertex{"EmitChangeVertex",
                                  {
                                      .cpp = "%1double X;%2%1double Y;%2%1double Z;%2%1bool retVal = false;%2",
                                      .cppCom = typedXYZ,
                                      .csharp = typedXYZ,
                                      .javascript = "%1double X;%2%1double Y;%2%1double Z;%2",
                                      .vbNet = basicXYZ,
                                      .vba = basicXYZ,
                                  }};
static const Mend scriptVertex(declareVertex, Target::JavaScript, "a declaration of a typed language",
                               "%1var points;%2");

static const Phrase getVertex{"EmitChangeVertex",
                              {
                                  .cpp = "%1%3->GetVertexCoordinate( %4, &X, &Y, &Z );%2",
                                  .cppCom = "%1%2->GetVertexCoordinate( %3, &X%5, &Y%5, &Z%5 );%4",
                                  .csharp = "%1%2.GetVertexCoordinate(%3, out X%5, out Y%5, out Z%5);%4",
                                  .javascript = "%1%2.GetVertexCoordinate(%3, out X, out Y, out Z);%4",
                                  .vbNet = "%1%2.GetVertexCoordinate( %3, X%5, Y%5, Z%5 )%4",
                                  .vba = "%1%2.GetVertexCoordinate %3, X%5, Y%5, Z%5%4",
                              }};
static const Mend scriptVertexRead(getVertex, Target::JavaScript, "results by argument, as in a typed language",
                                   "%1points = %2.GetVertexCoordinate(%3);%4");

static const Phrase changeVertexCoordinate{"EmitChangeVertex",
                                           {
                                               .cpp = "%1%3 = %4;%2",
                                               .cppCom = "%1%2%5 = %3;%4",
                                               .csharp = "%1%2%5 = %3;%4",
                                               .javascript = "%1%2 = %3;%4",
                                               .vbNet = "%1%2%5 = %3%4",
                                               .vba = "%1%2%5 = %3%4",
                                           }};
static const Mend scriptVertexChange(changeVertexCoordinate, Target::JavaScript, "the local of a typed language",
                                     "%1points.%2 = %3;%4");

static const Phrase setVertex{"EmitChangeVertex",
                              {
                                  .cpp = "%1%3->SetVertexCoordinate( %4, X, Y, Z, &retVal );%2",
                                  .cppCom = "%1%2->SetVertexCoordinate( %3, X%5, Y%5, Z%5 );%4",
                                  .csharp = "%1%2.SetVertexCoordinate(%3, X%5, Y%5, Z%5);%4",
                                  .javascript = "%1%2.SetVertexCoordinate(%3, X, Y, Z);%4",
                                  .vbNet = "%1%2.SetVertexCoordinate( %3, X%5, Y%5, Z%5 )%4",
                                  .vba = "%1%2.SetVertexCoordinate %3, X%5, Y%5, Z%5%4",
                              }};
static const Mend scriptVertexWrite(setVertex, Target::JavaScript, "the locals of a typed language",
                                    "%1%2.SetVertexCoordinate(%3, points.X, points.Y, points.Z);%4");

static Statement changeVertex(Writer& writer, const PointWords& words, int axes, const CFxString& target,
                              std::int32_t index, const CFxString& axis, double value)
{
    if (writer.target == Target::Python)
        return changeInPython(writer, target, "GetVertexCoordinate", "SetVertexCoordinate",
                              {.axis = axis.toQString().back(), .value = value, .axes = axes, .index = index});
    // Only here the C++ calls end with the usual second value, and only they do without the suffix.
    if (writer.target == Target::Cpp)
        return writer.fill(words.declare).str() + writer.fill(words.get).word(target).number(index).str() +
               writer.fill(words.change).word(axis).real(value).str() +
               writer.fill(words.set).word(target).number(index).str();

    const std::uint32_t suffix = writer.target == Target::JavaScript ? 0 : ++writer.UniqueCounter;
    const auto call = [&](const Phrase& phrase) {
        return writer.fillIndented(phrase).word(target).number(index).word(LineEnd).number(suffix).str();
    };
    return writer.fill(words.declare).number(suffix).str() + call(words.get) +
           writer.fillIndented(words.change).word(axis).real(value).word(LineEnd).number(suffix).str() +
           call(words.set);
}

Statement EmitChangeVertex(Writer& writer, const CFxString& target, std::int32_t index, const CFxString& axis,
                           double value)
{
    static const PointWords words{declareVertex, getVertex, changeVertexCoordinate, setVertex};
    return changeVertex(writer, words, 3, target, index, axis, value);
}

static const Phrase declareVertex2D{"EmitChangeVertex2D",
                                    {
                                        .cpp = "%1double X;%2%1double Y;%2%1bool retVal = false;%2",
                                        .cppCom = "%1double X%3;%2%1double Y%3;%2",
                                        .csharp = "%1double X%3;%2%1double Y%3;%2",
                                        .javascript = "%1double X;%2%1double Y;%2",
                                        .vbNet = "%1Dim X%3 As Double%2%1Dim Y%3 As Double%2",
                                        .vba = "%1Dim X%3 As Double%2%1Dim Y%3 As Double%2",
                                    }};
static const Mend scriptVertex2D(declareVertex2D, Target::JavaScript, "a declaration of a typed language",
                                 "%1var points;%2");

static const Phrase getVertex2D{"EmitChangeVertex2D",
                                {
                                    .cpp = "%1%3->GetVertexCoordinate( %4, &X, &Y );%2",
                                    .cppCom = "%1%2->GetVertexCoordinate( %3, &X%5, &Y%5 );%4",
                                    .csharp = "%1%2.GetVertexCoordinate(%3, out X%5, out Y%5);%4",
                                    .javascript = "%1%2.GetVertexCoordinate(%3, out X, out Y);%4",
                                    .vbNet = "%1%2.GetVertexCoordinate( %3, X%5, Y%5 )%4",
                                    .vba = "%1%2.GetVertexCoordinate %3, X%5, Y%5%4",
                                }};
static const Mend scriptVertex2DRead(getVertex2D, Target::JavaScript, "results by argument, as in a typed language",
                                     "%1points = %2.GetVertexCoordinate(%3);%4");

static const Phrase setVertex2D{"EmitChangeVertex2D",
                                {
                                    .cpp = "%1%3->SetVertexCoordinate( %4, X, Y, &retVal );%2",
                                    .cppCom = "%1%2->SetVertexCoordinate( %3, X%5, Y%5 );%4",
                                    .csharp = "%1%2.SetVertexCoordinate(%3, X%5, Y%5);%4",
                                    .javascript = "%1%2.SetVertexCoordinate(%3, X, Y);%4",
                                    .vbNet = "%1%2.SetVertexCoordinate( %3, X%5, Y%5 )%4",
                                    .vba = "%1%2.SetVertexCoordinate %3, X%5, Y%5%4",
                                }};
static const Mend scriptVertex2DWrite(setVertex2D, Target::JavaScript, "the locals of a typed language",
                                      "%1%2.SetVertexCoordinate(%3, points.X, points.Y);%4");

Statement EmitChangeVertex2D(Writer& writer, const CFxString& target, std::int32_t index, const CFxString& axis,
                             double value)
{
    static const PointWords words{declareVertex2D, getVertex2D, changeVertexCoordinate, setVertex2D};
    return changeVertex(writer, words, 2, target, index, axis, value);
}

// A coordinate of a point that is read and written as a whole. JavaScript reads it into one variable, which every such
// change declares again, and has no number.

static const Phrase changeSpatial{
    "EmitChangeCoordinate",
    {
        .cpp = "%1double x%8, y%8, z%8;%2%1%3->Get%4( &x%8, &y%8, &z%8 );%2%1%3->Set%4( %5, %6, %7 );%2",
        .cppCom = "%1double x%8, y%8, z%8;%2%1%3->Get%4( &x%8, &y%8, &z%8 );%2%1%3->Set%4( %5, %6, %7 );%2",
        .csharp = "%1double x%8, y%8, z%8;%2%1%3.Get%4( out x%8, out y%8, out z%8 );%2"
                  "%1%3.Set%4( %5, %6, %7 );%2",
        .javascript = "%1var points = %3.Get%4( );%2%1%3.Set%4(%5, %6, %7);%2",
        .vbNet = "%1Dim x%8 As Double%2%1Dim y%8 As Double%2%1Dim z%8 As Double%2%1%3.Get%4( x%8, y%8, z%8 )%2"
                 "%1%3.Set%4( %5, %6, %7 )%2",
        .vba = "%1Dim x%8 As Double%2%1Dim y%8 As Double%2%1Dim z%8 As Double%2%1%3.Get%4 x%8, y%8, z%8%2"
               "%1%3.Set%4 %5, %6, %7%2",
    }};

static const Phrase changePlanar{
    "EmitChangeCoordinate2D",
    {
        .cpp = "%1double x%7, y%7;%2%1%3->Get%4( &x%7, &y%7 );%2%1%3->Set%4( %5, %6 );%2",
        .cppCom = "%1double x%7, y%7;%2%1%3->Get%4( &x%7, &y%7 );%2%1%3->Set%4( %5, %6 );%2",
        .csharp = "%1double x%7, y%7;%2%1%3.Get%4( out x%7, out y%7 );%2%1%3.Set%4( %5, %6 );%2",
        .javascript = "%1var points = %3.Get%4( );%2%1%3.Set%4(%5, %6);%2",
        .vbNet = "%1Dim x%7 As Double%2%1Dim y%7 As Double%2%1%3.Get%4( x%7, y%7 )%2%1%3.Set%4( %5, %6 )%2",
        .vba = "%1Dim x%7 As Double%2%1Dim y%7 As Double%2%1%3.Get%4 x%7, y%7%2%1%3.Set%4 %5, %6%2",
    }};

/// `axis` counts from 0. The other coordinates are set to what was read.
static Statement changeCoordinate(Writer& writer, const Phrase& phrase, int axis, const CFxString& target,
                                  const CFxString& stem, double value)
{
    const int axes = &phrase == &changePlanar ? 2 : 3;
    if (writer.target == Target::Python)
        return changeInPython(writer, target, "Get" + stem.toQString(), "Set" + stem.toQString(),
                              {.axis = QChar('x' + axis), .value = value, .axes = axes});
    const bool script = writer.target == Target::JavaScript;
    const QString number = script ? QString() : QString::number(++writer.UniqueCounter);
    Fill change = writer.fill(phrase);
    change.word(target).word(stem);
    for (int i = 0; i < axes; ++i) {
        if (i == axis)
            change.real(value);
        else
            change.word(script ? "points." + QString(QChar('X' + i)) : QChar('x' + i) + number);
    }
    return change.word(number);
}

Statement EmitChangeCoordinateX(Writer& writer, const CFxString& target, const CFxString& stem, double value)
{
    return changeCoordinate(writer, changeSpatial, 0, target, stem, value);
}

Statement EmitChangeCoordinateY(Writer& writer, const CFxString& target, const CFxString& stem, double value)
{
    return changeCoordinate(writer, changeSpatial, 1, target, stem, value);
}

Statement EmitChangeCoordinateZ(Writer& writer, const CFxString& target, const CFxString& stem, double value)
{
    return changeCoordinate(writer, changeSpatial, 2, target, stem, value);
}

Statement EmitChangeCoordinate2DX(Writer& writer, const CFxString& target, const CFxString& stem, double value)
{
    return changeCoordinate(writer, changePlanar, 0, target, stem, value);
}

Statement EmitChangeCoordinate2DY(Writer& writer, const CFxString& target, const CFxString& stem, double value)
{
    return changeCoordinate(writer, changePlanar, 1, target, stem, value);
}
