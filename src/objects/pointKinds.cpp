// The kinds of change that set a coordinate of a point.

#include "objects/changeKinds.h"

#include "objects/targets/points.h"
#include "statements/RecordingState.h"

namespace {

template<inkmacro::Meaning meaning>
Statement changePoint(const Change& change)
{
    const QString& pair = change.row.property;
    return EmitChangePoint(change.writer, change.target, change.row.axis, "Get" + pair, "Set" + pair,
                           change.value.GetDouble(), change.index, meaning);
}

Statement changeScale(const Change& change)
{
    if (!RecordsIn(inkmacro::Target::JavaScript)) {
        Statement text = changePoint<inkmacro::Meaning::Factor>(change);
        return change.writer.target == inkmacro::Target::JavaScript
                   ? change.writer.faulty(std::move(text), otherLanguage)
                   : text;
    }
    const QString& pair = change.row.property;
    return EmitChangeScale(change.writer, change.target, change.row.axis, "Get" + pair, "Set" + pair,
                           change.value.GetDouble());
}

using PairChange = Statement (*)(Writer& writer, const CFxString& target, const CFxString& local, double value);

template<PairChange emit>
Statement changePair(const Change& change)
{
    return emit(change.writer, change.target, "get" + change.row.axis.toQString(), change.value.GetDouble());
}

using VertexChange = Statement (*)(Writer& writer, const CFxString& target, std::int32_t index, const CFxString& axis,
                                   double value);

template<VertexChange emit>
Statement changeVertex(const Change& change)
{
    return emit(change.writer, change.target, change.index, change.row.axis, change.value.GetDouble());
}

using CoordinateChange = Statement (*)(Writer& writer, const CFxString& target, const CFxString& stem, double value);

template<CoordinateChange x, CoordinateChange y>
Statement changeCoordinate(const Change& change)
{
    const CoordinateChange emit = change.row.axis == CFxString("X") ? x : y;
    return emit(change.writer, change.target, change.row.property, change.value.GetDouble());
}

Statement changeNumberedVertex(const Change& change)
{
    const qint64 number = qint64{change.index} + 1;
    return EmitChangePoint(change.writer, change.target, change.row.axis,
                           QStringLiteral("GetVertex%1Coordinate").arg(number),
                           QStringLiteral("SetVertex%1Coordinate").arg(number), change.value.GetDouble(), -1);
}

Statement changeFaceVertex(const Change& change)
{
    const bool exists = change.index >= 0 && change.index <= 3;
    return exists ? changeNumberedVertex(change) : QString();
}

} // namespace

namespace kinds {

// They are ready before the rows of other files, which copy them.

constinit const ChangeKind point{changePoint<inkmacro::Meaning::None>, forms::number, "XYZ"};
constinit const ChangeKind indexedPoint{changePoint<inkmacro::Meaning::None>, forms::number, "XYZ", true};
constinit const ChangeKind scale{changeScale, forms::number, "XYZ"};
constinit const ChangeKind position{changePair<&EmitChangePosition>, forms::number, "XYZ"};
constinit const ChangeKind firstPoint{changePair<&EmitChangeFirstPoint>, forms::number, "XYZ"};
constinit const ChangeKind secondPoint{changePair<&EmitChangeSecondPoint>, forms::number, "XYZ"};
constinit const ChangeKind vertex{changeVertex<&EmitChangeVertex>, forms::number, "xyz", true};
constinit const ChangeKind vertex2D{changeVertex<&EmitChangeVertex2D>, forms::number, "XY", true};
constinit const ChangeKind coordinate{changeCoordinate<&EmitChangeCoordinateX, &EmitChangeCoordinateY>, forms::number,
                                      "XY"};
constinit const ChangeKind planeCoordinate{changeCoordinate<&EmitChangeCoordinate2DX, &EmitChangeCoordinate2DY>,
                                           forms::number, "xy"};
constinit const ChangeKind numberedVertex{changeNumberedVertex, forms::number, "XYZ", true};
constinit const ChangeKind faceVertex{changeFaceVertex, forms::number, "XYZ", true};

} // namespace kinds
