// Added rich lines, polylines and splines. The records of a polyline hold its vertices only: arcs come as lines.

#include "objects/targets/polylines.h"
#include "host/db/OdDbClasses.h"
#include "objects/AddedObject.h"
#include "objects/added/readers.h"
#include "objects/targets/setters.h"
#include "statements/actionKinds.h"

namespace {

/// Of the choice between yes and no the first item is yes.
bool takeClosed(AddedObject& added)
{
    const CFxVariant closed = added.take("Closed", forms::word.with(forms::yesNo), "No");
    if (closed.GetType() == CFxVariant::kCollection)
        return closed.GetCollection().GetChosen() == 0;
    return wordOf(closed).equalNoCase(ShownWord("Yes"));
}

/// The drawing's number, 0 for a word that the property sheet does not show.
int takeJustification(AddedObject& added)
{
    const CFxVariant justification =
        added.take("RLine justification", forms::word.with(inkmacro::enums::richLineJustification), "0");
    if (justification.GetType() == CFxVariant::kCollection)
        return justification.GetCollection().GetChosen();
    return PlaceOf(inkmacro::enums::richLineJustification, wordOf(justification)).value_or(-1) + 1;
}

} // namespace

Statement ReadRichLine(AddedObject& added)
{
    const OdArray<OdGePoint3d> vertices = added.takePoints("vertices");
    const int justification = takeJustification(added);
    const double scale = added.takeReal("RLine scale", 0.0);
    const CFxString style = added.takeWord("RLineStyle");
    const bool closed = added.takeFlag("closedMline");
    return EmitInsertRichLine(added.writer, vertices, justification, scale, style, closed, added.name);
}

Statement ReadPolyline3D(AddedObject& added)
{
    const OdArray<OdGePoint3d> vertices = added.takePoints("Vertex");
    return EmitInsertPolyline3D(added.writer, vertices, takeClosed(added), added.name);
}

Statement ReadPolyline(AddedObject& added)
{
    OdArray<OdGePoint2d> vertices;
    for (const OdGePoint3d& vertex : added.takePoints("Vertex")) {
        vertices.append({vertex.x, vertex.y});
        if (vertex.z != 0 && !added.conversion.HasSibling(inkmacro::kPolyline))
            LoseProperty(added.object, "Vertex Z", "the insertion takes the vertices in the plane");
    }
    if (const auto polyline = added.open<OdDbPolyline>())
        LoseArcs(added.conversion, added.object, *polyline);
    return EmitInsertPolyline2D(added.writer, vertices, takeClosed(added), added.name);
}

Statement ReadSpline(AddedObject& added)
{
    const OdArray<OdGePoint3d> fitPoints = added.takePoints("Fit point");
    const bool closed = takeClosed(added);
    const OdGePoint3d start =
        added.takePoint("Start tangent vector X", "Start tangent vector Y", "Start tangent vector Z");
    const OdGePoint3d end = added.takePoint("End tangent vector X", "End tangent vector Y", "End tangent vector Z");
    const CFxVariant tolerance = added.take("Fit tolerance", forms::number);

    Statement text = EmitInsertSpline(added.writer, fitPoints, closed, start, end, added.name);
    if (tolerance.IsNull())
        return text;
    return text + EmitSetDoubleProperty(added.writer, added.name, "FitTolerance", tolerance.GetDouble(),
                                        inkmacro::Meaning::Length);
}
