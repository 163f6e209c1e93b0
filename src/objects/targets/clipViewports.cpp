// Viewports that an entity bounds.

#include "objects/targets/clipViewports.h"

#include "host/db/OdDbClasses.h"
#include "objects/targets/curves.h"
#include "objects/targets/references.h"
#include "statements/LineEnd.h"
#include "statements/arrays.h"
#include "statements/counters.h"
#include "statements/wording.h"

#include <cmath>
#include <numbers>

using namespace inkmacro;

// Of the polylines the first values are coordinates, closedness, number, line end and indentation; array and polyline
// share the number.

static const Phrase clipPolyline2D{
    "EmitInsertViewportByEntity: polyline",
    {
        .cpp = "iwPolyLine_ptr pLine_%3;%4%5iwDoubleArray Coordinates%3;%4%5Coordinates%3.clear();%4%1%4"
               "%5iwSketchManager->InsertPolyline2D( Coordinates%3, %2, &pLine_%3 );%4",
        .cppCom = "IPolyLinePtr pLine_%3;%4%5VARIANT variant%3;%4%5variant%3.vt = ( VT_ARRAY | VT_R8 );%4"
                  "%5variant%3.parray = SafeArrayCreateVector( VT_R8, 0, %6 );%4%1%4"
                  "%5pLine_%3=iwSketchManager->InsertPolyline2D( variant%3, %2);%4",
        .csharp = "PolyLine pLine_%3 = iwSketchManager.InsertPolyline2D(%4%5 new double[]{%1},%4%5 %2 );%4",
        .javascript = "var polyPoints%3 = new Array(%1);%4%5var pLine_%3 = mSkMgr.InsertPolyline2D(polyPoints%3, %2);"
                      "%4",
        .vbNet = "Dim pLine_%3 As Inkwright.PolyLine%4%5Dim Coordinates%3(%6) As Double%4%1%4"
                 "%5pLine_%3 = iwSketchManager.InsertPolyline2D( Coordinates%3, %2 )%4",
        .vba = "Dim pLine_%3 As Inkwright.PolyLine%4%5Dim Coordinates%3(%6) As Double%4%1%4"
               "%5Set pLine_%3 = iwSketchManager.InsertPolyline2D( Coordinates%3, %2 )%4",
        .python = "clip = drawing.sketch.InsertPolyline2D(reals(%1), %2)",
    }};

static const Phrase clipPolyline3D{
    "EmitInsertViewportByEntity: polyline",
    {
        .cpp = "iwPolyLine3D_ptr pLine_%3;%4%5iwDoubleArray Coordinates%3;%4%5Coordinates%3.clear();%4%1%4"
               "%5iwSketchManager->InsertPolyline3D( Coordinates%3, %2, &pLine_%3 );%4",
        .cppCom = "IPolyLine3DPtr pLine_%3;%4%5VARIANT variant%3;%4%5variant%3.vt = ( VT_ARRAY | VT_R8 );%4"
                  "%5variant%3.parray = SafeArrayCreateVector( VT_R8, 0, %6 );%4%1%4"
                  "%5pLine_%3=iwSketchManager->InsertPolyline3D( variant%3, %2);%4",
        .csharp = "PolyLine3D pLine_%3 = iwSketchManager.InsertPolyline3D(%4%5 new double[]{%1},%4%5 %2 );%4",
        .javascript = "var points%3 = new Array(%1);%4%5var pLine_%3 = mSkMgr.InsertPolyline3D(points%3, %2);%4",
        .vbNet = "Dim pLine_%3 As Inkwright.PolyLine3D%4%5Dim Coordinates%3(%6) As Double%4%1%4"
                 "%5pLine_%3 = iwSketchManager.InsertPolyline3D( Coordinates%3, %2 )%4",
        .vba = "Dim pLine_%3 As Inkwright.PolyLine3D%4%5Dim Coordinates%3(%6) As Double%4%1%4"
               "%5Set pLine_%3 = iwSketchManager.InsertPolyline3D( Coordinates%3, %2 )%4",
        .python = "clip = drawing.sketch.InsertPolyline3D(reals(%1), %2)",
    }};

namespace {

/// The entity that bounds the viewport: a variable, and the statements that make what it stands for. These begin
/// without indentation and may end without a line end, since the literal has both around them, or what fills it.
struct Clip
{
    QString name;
    Statement creation;
};

/// Numbers keep the variables apart but in Python, where the next viewport assigns the local anew.
QString clipVariable(const Writer& writer, const char* stem, std::uint32_t number)
{
    return writer.target == Target::Python ? QStringLiteral("clip") : stem + QString::number(number);
}

Clip clipByPolyline(Writer& writer, const Phrase& phrase, const Coordinates& coordinates, bool closed)
{
    const Target target = writer.target;
    const std::uint32_t number = processCounters.clipPolylines++;
    const QString array = (target == Target::CppCom ? "variant" : "Coordinates") + QString::number(number);
    const bool isList = target == Target::CSharp || target == Target::JavaScript || target == Target::Python;
    Fill creation = writer.fillPlain(phrase);
    creation
        .word(isList ? coordinateList(writer, coordinates, NumberForm::Long)
                     : pointLines({writer, array, number}, coordinates, NumberForm::Long))
        .word(truthWord(target, closed))
        .number(number)
        .word(LineEnd)
        .word(writer.indentation())
        .number(arrayBound(writer, coordinates.values.size()));
    return {clipVariable(writer, "pLine_", number), creation};
}

/// C# declares the variable where it is first assigned, JavaScript too.
template<class Insert>
Clip clipByCurve(Writer& writer, const char* type, const QString& name, const Insert& insert)
{
    Statement creation;
    if (writer.target == Target::CSharp)
        creation = insert(type + (' ' + name));
    else if (writer.target == Target::JavaScript)
        creation = insert(name);
    else
        creation = EmitDeclareObject(writer, type, name) + insert(name);
    creation.cut(writer.indentation().size(), LineEnd.size());
    return {name, creation};
}

Clip clipByEllipse(Writer& writer, const OdDbEllipse& ellipse)
{
    const OdGePoint3d start = ellipse.center() + ellipse.majorAxis();
    const OdGePoint3d end = ellipse.center() - ellipse.majorAxis();
    const OdGeVector3d& minor = ellipse.minorAxis();
    const double distance = std::sqrt(minor.x * minor.x + minor.y * minor.y + minor.z * minor.z);
    const bool whole = ellipse.startAngle() == 0.0 && ellipse.endAngle() == 2 * std::numbers::pi;
    const QString name = clipVariable(writer, "ellipse_", processCounters.clipEllipses++);
    return clipByCurve(writer, "EllipseArc", name, [&](const QString& variable) {
        return whole ? EmitInsertEllipse(writer, start, end, distance, variable)
                     : EmitInsertEllipseArc(writer, start, end, distance, ellipse.startAngle(), ellipse.endAngle(),
                                            variable);
    });
}

/// Empty for an entity of another kind.
Clip clipLike(Writer& writer, const OdDbObject* object)
{
    if (const auto circle = odrxQuery<OdDbCircle>(object)) {
        const QString name = clipVariable(writer, "circle_", processCounters.clipCircles++);
        return clipByCurve(writer, "Circle", name, [&](const QString& variable) {
            return EmitInsertCircle(writer, circle->center(), circle->radius(), variable);
        });
    }
    if (const auto polyline = odrxQuery<OdDbPolyline>(object)) {
        OdArray<OdGePoint2d> points;
        for (unsigned i = 0; i < polyline->numVerts(); ++i)
            points.append(polyline->getPointAt(i));
        return clipByPolyline(writer, clipPolyline2D, planar(points), polyline->isClosed());
    }
    if (const auto polyline = odrxQuery<OdDb3dPolyline>(object))
        return clipByPolyline(writer, clipPolyline3D, spatial(polyline->vertices()), polyline->isClosed());
    const auto ellipse = odrxQuery<OdDbEllipse>(object);
    return ellipse ? clipByEllipse(writer, *ellipse) : Clip();
}

} // namespace

bool CanMakeClip(const OdDbObject* entity)
{
    return odrxQuery<OdDbCircle>(entity) || odrxQuery<OdDbPolyline>(entity) || odrxQuery<OdDb3dPolyline>(entity) ||
           odrxQuery<OdDbEllipse>(entity);
}

static const Phrase insertViewport{
    "EmitInsertViewportByEntity",
    {
        .cpp = "%1iwSheet_ptr sheetItem%4;%2%1iwDoc->GetSheet(L\"%3\" , &sheetItem%4);%2%1if (NULL != sheetItem%4)%2"
               "%1{%2%1    %6%2%1    iwObjectPtrArray iwObjectEntity;%2%1    iwObjectEntity.add( %7 );%2"
               "%1    iwObject* iwObj = (iwObject*)iwObjectEntity[0];%2"
               "%1    sheetItem%4->InsertViewportByEntity( iwObj, &%5 );%2%1}%2",
        .cppCom = "%1ISheetPtr sheetItem%4 = iwDoc->GetSheet(L\"%3\");%2%1if (NULL != sheetItem%4)%2%1{%2"
                  "%1    %6%2%1    %5 = sheetItem%4->InsertViewportByEntity( %7 );%2%1}%2",
        .csharp = "%1%4 = null;%2%1Sheet sheetsArray%3 = iwDoc.GetSheet(\"%5\");%2%1if ( null != sheetsArray%3 )%2"
                  "%1{%2%1     %6%2%1     %4 = sheetsArray%3.InsertViewportByEntity(%7);%2%1}%2",
        .javascript = "%1var %4 = null;%2%1var sheetsArray%3 = mDoc.GetSheet(\"%5\");%2"
                      "%1if ( null != sheetsArray%3 )%2%1{%2%1     %6%2"
                      "%1     %4 = sheetsArray%3.InsertViewportByEntity(%7);%2%1}%2",
        .vbNet = "%1%4 = Nothing%2%1Dim sheetsArray%3 As Inkwright.Sheet = iwDoc.GetSheet(\"%5\")%2"
                 "%1If sheetsArray%3 IsNot Nothing Then%2%1     %6%2"
                 "%1     %4 = sheetsArray%3.InsertViewportByEntity(%7)%2%1End If%2",
        .vba = "%1Set %4 = Nothing%2%1Dim sheetsArray%3 As Inkwright.Sheet%2"
               "%1Set sheetsArray%3 = iwDoc.GetSheet(\"%5\")%2%1If Not sheetsArray%3 Is Nothing Then%2%1     %6%2"
               "%1     Set %4 = sheetsArray%3.InsertViewportByEntity(%7)%2%1End If%2",
        .python = "%1%4 = None%2%1sheet = drawing.doc.GetSheet(%5)%2%1if sheet is not None:%2%6"
                  "%1    %4 = sheet.InsertViewportByEntity(%7)%2",
    }};

Statement EmitInsertViewportByEntity(Writer& writer, const CFxString& sheet, const OdDbObjectPtr& clip,
                                     const QString& variable, const CFxString& name)
{
    const std::uint32_t number = ++writer.UniqueCounter;
    Clip entity = variable.isEmpty() ? clipLike(writer, clip.get()) : Clip{variable, {}};
    // An empty line would be left of a variable there.
    if (writer.target == Target::Python && !entity.creation.isEmpty())
        entity.creation = writer.indentation() + "    " + entity.creation + LineEnd;
    Fill insertion = writer.fill(insertViewport);
    if (writer.target == Target::Cpp || writer.target == Target::CppCom)
        insertion.text(sheet).number(number).word(name);
    else
        insertion.number(number).word(name).text(sheet);
    return insertion.word(entity.creation).word(entity.name);
}
