// The temporary entities that a hatch's boundary is made from where the macro has no variable for it.

#include "objects/targets/boundaryEntities.h"

#include "host/db/OdDbClasses.h"
#include "objects/targets/blocks.h"
#include "objects/targets/curves.h"
#include "objects/targets/leaders.h"
#include "objects/targets/meshes.h"
#include "objects/targets/polylines.h"
#include "objects/targets/regions.h"
#include "objects/targets/tables.h"
#include "statements/counters.h"
#include "statements/losses.h"
#include "statements/wording.h"
#include "targets/hatches.h"

#include <algorithm>
#include <cmath>
#include <span>

using namespace inkmacro;

/// C# declares with the insertion's assignment, JavaScript with its `var`.
static constexpr Words declareWords{.cpp = "%1iw%4_ptr %3;%2",
                                    .cppCom = "%1I%4Ptr %3;%2",
                                    .vbNet = "%1Dim %3 As Inkwright.%4%2",
                                    .vba = "%1Dim %3 As Inkwright.%4%2"};

static constexpr Words eraseWords{.cpp = "%1%3->put_Erased( true );%2",
                                  .cppCom = "%1%3->put_Erased( true );%2",
                                  .csharp = "%1%3.Erased = true;%2",
                                  .javascript = "%1%3.put_Erased(true);%2",
                                  .vbNet = "%1%3.Erased = true%2",
                                  .vba = "%1%3.Erased = True%2",
                                  .python = "%1%3.Erased = True%2"};

static constexpr Words withScript(Words words, const char* script)
{
    words.javascript = script;
    return words;
}

static constexpr Words withVba(Words words, const char* vba)
{
    words.vba = vba;
    return words;
}

static const Phrase declareEntity{"EmitInsertHatchByEntities: declaration of an entity", declareWords};
/// An insertion gives an array of regions there.
static const Phrase declareRegion{"EmitInsertHatchByEntities: declaration of an entity",
                                  withVba(declareWords, "%1Dim %3 As Variant%2")};

static const Phrase eraseEntity{"EmitInsertHatchByEntities: erasure of an entity", eraseWords};
/// The object is set to another variable than the one that is declared for it. It has to stay so.
static const Phrase eraseRegion{
    "EmitInsertHatchByEntities: erasure of a region",
    withVba(eraseWords, "%1Dim regionObj%3 As Variant%2%1Dim iwRegion%3 As Inkwright.Region%2"
                        "%1Set regionObj%3 = %4(0)%2%1Set iwRegion = regionObj%2%1iwRegion.Erased = True%2")};
static const Mend
    basicRegionErasure(eraseRegion, Target::Vba, "the numbers of both variables are missing",
                       "%1Dim regionObj%3 As Variant%2%1Dim iwRegion%3 As Inkwright.Region%2"
                       "%1Set regionObj%3 = %4(0)%2%1Set iwRegion%3 = regionObj%3%2%1iwRegion%3.Erased = True%2");
static const Phrase eraseBlock{"EmitInsertHatchByEntities: erasure of a block instance",
                               withScript(eraseWords, "%1%3.put_Erased( true );%2")};
/// Of the marker for the indentation a 1 is missing, so that indentation and line end go to the places behind it, and
/// the number of the table is lost. It has to stay so.
static const Phrase eraseTable{"EmitInsertHatchByEntities: erasure of a table",
                               withScript(eraseWords, "%hatchTable_%3.put_Erased(true);%2")};
static const Mend
    scriptTableErasure(eraseTable, Target::JavaScript,
                       "of a marker's number the 1 is missing, so the values of the statement are one place off",
                       "%1%3.put_Erased(true);%2");

namespace {

struct TemporaryName
{
    QString name;
    QString declared; ///< as the insertion assigns to it: in C# behind its type
};

/// A kind of temporary entity.
struct TemporaryKind
{
    OdRxClass* (*cls)(); ///< of the objects that it stands for; derived classes count
    const char* stem;    ///< of the variable, in front of the number
    const char* type;    ///< the host's name
    Statement (*insert)(Writer& writer, const OdDbObject& object, const TemporaryName& variable);
    const Phrase& declare = declareEntity;
    const Phrase& erase = eraseEntity;
};

/// An insertion of objects of class T in the form that a row takes.
template<class T, Statement (*insertion)(Writer&, const T&, const TemporaryName&)>
Statement insertAs(Writer& writer, const OdDbObject& object, const TemporaryName& variable)
{
    return insertion(writer, static_cast<const T&>(object), variable);
}

Statement insertCircle(Writer& writer, const OdDbCircle& circle, const TemporaryName& variable)
{
    return EmitInsertCircle(writer, circle.center(), circle.radius(), variable.declared);
}

Statement insertRegion(Writer& writer, const OdDbRegion& region, const TemporaryName& variable)
{
    return EmitRegionBoundaryCurves(writer, variable.declared, region.explode());
}

Statement insertTable(Writer& writer, const OdDbTable& table, const TemporaryName& variable)
{
    const unsigned rows = table.numRows();
    const unsigned columns = table.numColumns();
    return EmitInsertTable(writer, table.position(), static_cast<int>(rows), static_cast<int>(columns),
                           table.height() / rows, table.width() / columns, tableCellTypes(table), variable.declared);
}

/// A plain block comes as an external reference too.
Statement insertBlock(Writer& writer, const OdDbBlockReference& reference, const TemporaryName& variable)
{
    const auto record = odrxCast<OdDbBlockTableRecord>(reference.blockTableRecord().openObject(true).get());
    CFxString block;
    if (record)
        block = record->isFromExternalReference() ? record->pathName() : record->getName();
    return EmitInsertExternalReference(writer, block, reference.position(), reference.scaleFactors(),
                                       variable.declared);
}

Statement insertPolygonMesh(Writer& writer, const OdDbPolygonMesh& mesh, const TemporaryName& variable)
{
    return EmitInsertPolygonMesh(writer, mesh.mSize(), mesh.nSize(), mesh.vertices(), variable.declared);
}

Statement insertPolyFaceMesh(Writer& writer, const OdDbPolyFaceMesh& mesh, const TemporaryName& variable)
{
    return EmitInsertPolyFaceMesh(writer, mesh.numVertices(), mesh.vertices(), mesh.faces(), variable.declared);
}

Statement insertSolid(Writer& writer, const OdDbSolid& solid, const TemporaryName& variable)
{
    const OdArray<OdGePoint3d> corners{solid.getPointAt(0), solid.getPointAt(1), solid.getPointAt(2),
                                       solid.getPointAt(3)};
    return EmitInsertSolid(writer, corners, variable.declared);
}

Statement insertPolyline3D(Writer& writer, const OdDb3dPolyline& polyline, const TemporaryName& variable)
{
    return EmitInsertPolyline3D(writer, polyline.vertices(), polyline.isClosed(), variable.declared);
}

Statement insertArc(Writer& writer, const OdDbArc& arc, const TemporaryName& variable)
{
    return EmitInsertArc(writer, arc.center(), arc.radius(), arc.startAngle(), arc.endAngle(), variable.declared);
}

Statement insertPolyline(Writer& writer, const OdDbPolyline& polyline, const TemporaryName& variable)
{
    OdArray<OdGePoint2d> points;
    for (unsigned i = 0; i < polyline.numVerts(); ++i)
        points.append(polyline.getPointAt(i));
    Statement text = EmitInsertPolyline2D(writer, points, polyline.isClosed(), variable.declared);
    for (unsigned i = 0; i < polyline.numVerts(); ++i)
        if (polyline.segType(i) == OdDbPolyline::kArc)
            text += EmitSetSegmentAngle(writer, variable.name, static_cast<std::int32_t>(i),
                                        4 * std::atan(polyline.getBulgeAt(i)));
    return text;
}

double length(const OdGeVector3d& vector)
{
    return std::sqrt(vector.x * vector.x + vector.y * vector.y + vector.z * vector.z);
}

Statement insertWholeEllipse(Writer& writer, const OdDbEllipse& ellipse, const TemporaryName& variable)
{
    return EmitInsertEllipse(writer, ellipse.center() + ellipse.majorAxis(), ellipse.center() - ellipse.majorAxis(),
                             length(ellipse.minorAxis()), variable.declared);
}

/// A whole ellipse whose end angle is a full turn is an arc here, other than on its way from the recording.
Statement insertEllipse(Writer& writer, const OdDbEllipse& ellipse, const TemporaryName& variable)
{
    if (ellipse.startAngle() == 0.0 && ellipse.endAngle() == 0.0)
        return insertWholeEllipse(writer, ellipse, variable);
    return EmitInsertEllipseArc(writer, ellipse.center() + ellipse.majorAxis(), ellipse.center() - ellipse.majorAxis(),
                                length(ellipse.minorAxis()), ellipse.startAngle(), ellipse.endAngle(),
                                variable.declared);
}

Statement insertLine(Writer& writer, const OdDbLine& line, const TemporaryName& variable)
{
    return EmitInsertLine(writer, line.startPoint(), line.endPoint(), variable.declared);
}

Statement insertFace(Writer& writer, const OdDbFace& face, const TemporaryName& variable)
{
    OdArray<OdGePoint3d> corners;
    std::array<bool, 4> visible{};
    for (std::size_t i = 0; i < visible.size(); ++i) {
        corners.append(face.getVertexAt(i));
        visible[i] = face.isEdgeVisibleAt(i);
    }
    return EmitInsertFace(writer, corners, visible, variable.declared);
}

Statement insertRichLine(Writer& writer, const OdDbMline& line, const TemporaryName& variable)
{
    return EmitInsertRichLine(writer, line.vertices(), line.justification(), line.scale(), line.plotStyleName(),
                              line.closedMline(), variable.declared);
}

Statement insertLeader(Writer& writer, const OdDbLeader& leader, const TemporaryName& variable)
{
    CFxString content;
    if (leader.annoType() == OdDbLeader::kMText)
        if (const auto note = odrxCast<OdDbMText>(leader.annotationObjectId().openObject(true).get()))
            content = note->contents();
    return EmitInsertLeader(writer, leader.vertices(), leader.annoWidth(), content, variable.declared);
}

// In the order in which an object's class is looked for.

constexpr std::size_t kTable = 2; ///< the row whose number regions are erased by

const TemporaryKind boundaryKinds[] = {
    {&OdDbCircle::desc, "hatchCircle_", "Circle", &insertAs<OdDbCircle, insertCircle>},
    {&OdDbRegion::desc, "hatchRegion_", "Region", &insertAs<OdDbRegion, insertRegion>, declareRegion, eraseRegion},
    {&OdDbTable::desc, "hatchTable_", "Table", &insertAs<OdDbTable, insertTable>, declareEntity, eraseTable},
    {&OdDbBlockReference::desc, "hatchBlkRef_", "BlockInstance", &insertAs<OdDbBlockReference, insertBlock>,
     declareEntity, eraseBlock},
    {&OdDbPolygonMesh::desc, "hatchPolygonMesh_", "PolygonMesh", &insertAs<OdDbPolygonMesh, insertPolygonMesh>},
    {&OdDbPolyFaceMesh::desc, "hatchPolyFaceMesh_", "PolyFaceMesh", &insertAs<OdDbPolyFaceMesh, insertPolyFaceMesh>},
    {&OdDbSolid::desc, "hatchSolid_", "Solid", &insertAs<OdDbSolid, insertSolid>},
    {&OdDb3dPolyline::desc, "hatchPolyLine3D_", "PolyLine3D", &insertAs<OdDb3dPolyline, insertPolyline3D>},
    {&OdDbArc::desc, "hatchArc_", "CircleArc", &insertAs<OdDbArc, insertArc>},
    {&OdDbPolyline::desc, "hatchPolyline_", "PolyLine", &insertAs<OdDbPolyline, insertPolyline>},
    // The misspelling has to stay.
    {&OdDbEllipse::desc, "hatcEllipse_", "EllipseArc", &insertAs<OdDbEllipse, insertEllipse>},
    {&OdDbLine::desc, "hatchLine_", "Line", &insertAs<OdDbLine, insertLine>},
    {&OdDbFace::desc, "hatchFace_", "Face", &insertAs<OdDbFace, insertFace>},
    {&OdDbMline::desc, "hatchRichLine_", "RichLine", &insertAs<OdDbMline, insertRichLine>},
    {&OdDbLeader::desc, "hatchLeader_", "Leader", &insertAs<OdDbLeader, insertLeader>},
};

const TemporaryKind pieceKinds[] = {
    {&OdDbCircle::desc, "circle_", "Circle", &insertAs<OdDbCircle, insertCircle>},
    {&OdDbEllipse::desc, "ellipse_", "EllipseArc", &insertAs<OdDbEllipse, insertWholeEllipse>},
    {&OdDbArc::desc, "arc_", "CircleArc", &insertAs<OdDbArc, insertArc>},
    {&OdDbLine::desc, "line_", "Line", &insertAs<OdDbLine, insertLine>},
};

using Counters = ProcessCounters::OfTarget;
static_assert(std::size(boundaryKinds) == std::tuple_size_v<decltype(Counters::boundaryEntities)>);
static_assert(std::size(pieceKinds) == std::tuple_size_v<decltype(Counters::regionPieces)>);

/// Null for an object of another kind.
const TemporaryKind* kindOf(const OdDbObject& object, std::span<const TemporaryKind> kinds)
{
    const auto found =
        std::ranges::find_if(kinds, [&](const TemporaryKind& kind) { return object.isA()->isDerivedFrom(kind.cls()); });
    return found == kinds.end() ? nullptr : &*found;
}

QString numbered(const TemporaryKind& kind, std::uint32_t number)
{
    return kind.stem + QString::number(number);
}

/// In Python all kinds have one row of numbers, since their variables are locals that no parameter may be named like.
QString variableOf(Writer& writer, const TemporaryKind& kind, std::uint32_t number)
{
    return writer.target == Target::Python ? "edge_" + QString::number(++writer.UniqueCounter) : numbered(kind, number);
}

Statement insertTemporary(Writer& writer, const TemporaryKind& kind, const OdDbObject& object, const QString& name)
{
    const QString declared = writer.target == Target::CSharp ? QLatin1String(kind.type) + (' ' + name) : name;
    return writer.fill(kind.declare).word(name).word(QLatin1String(kind.type)).str() +
           kind.insert(writer, object, {name, declared});
}

const Fault kForeignNumber{"EmitInsertHatchByEntities: erasure of a region",
                           {Target::Cpp, Target::CSharp, Target::JavaScript},
                           "regions are erased by the number of tables"};

/// Regions are erased by the present number of tables where their own should stand, in C++, C# and JavaScript. It has
/// to stay so.
Statement eraseTemporary(Writer& writer, const TemporaryKind& kind, const QString& name, std::uint32_t number)
{
    const Target target = writer.target;
    if (&kind.erase != &eraseRegion)
        return writer.fill(kind.erase).word(name);
    const auto erase = [&](std::uint32_t named) {
        Fill statement = writer.fill(kind.erase);
        if (target == Target::Vba)
            statement.number(named);
        return statement.word(named == number ? name : numbered(kind, named)).str();
    };
    const std::uint32_t tables = processCounters.of(target).boundaryEntities[kTable];
    const bool misled =
        (target == Target::Cpp || target == Target::CSharp || target == Target::JavaScript) && number != tables;
    return misled ? writer.mended(erase(tables), kForeignNumber, erase(number)) : erase(number);
}

void loseBoundary(const OdDbObject& object)
{
    NoteLoss(ObjectTitle(object.isA(), object.getDbHandle()), "a boundary has no objects of its class");
}

} // namespace

BoundaryEntities EmitBoundaryEntities(Writer& writer, const std::vector<BoundaryObject>& boundary)
{
    auto& counters = processCounters.of(writer.target).boundaryEntities;
    // No other local of Python has a number, so each hatch begins anew.
    if (writer.target == Target::Python)
        writer.UniqueCounter = 0;
    BoundaryEntities entities;
    for (const BoundaryObject& entity : boundary) {
        const OdDbObjectPtr object = entity.id.openObject(true);
        if (!object)
            throw OdError(eNullObjectPointer,
                          "the drawing does not have " + entity.id.getHandle().ascii() + ", which bounds it");
        const TemporaryKind* const kind = kindOf(*object, boundaryKinds);
        if (!kind) {
            loseBoundary(*object);
            continue;
        }
        if (!entity.variable.isEmpty()) {
            entities.names.push_back(entity.variable);
            continue;
        }
        std::uint32_t& counter = counters[static_cast<std::size_t>(kind - boundaryKinds)];
        const QString name = variableOf(writer, *kind, counter);
        entities.insertion += insertTemporary(writer, *kind, *object, name);
        entities.erasure += eraseTemporary(writer, *kind, name, counter);
        entities.names.push_back(name);
        ++counter;
    }
    return entities;
}

Statement EmitRegionBoundaryCurves(Writer& writer, const CFxString& variable, const OdArray<OdDbObjectPtr>& pieces)
{
    Counters& counters = processCounters.of(writer.target);
    Statement text;
    QStringList names;
    for (const OdDbObjectPtr& piece : pieces) {
        const TemporaryKind* const kind = kindOf(*piece, pieceKinds);
        if (!kind) {
            loseBoundary(*piece);
            continue;
        }
        const QString name =
            variableOf(writer, *kind, counters.regionPieces[static_cast<std::size_t>(kind - pieceKinds)]++);
        text += insertTemporary(writer, *kind, *piece, name);
        names.append(name);
    }
    return text + EmitInsertRegion(writer, variable, names, counters.hatchRegions++);
}
