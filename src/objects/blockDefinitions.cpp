// What the entities of a block definition are to the macro.

#include "objects/targets/blockDefinitions.h"
#include "host/db/OdDbClassMap.h"
#include "objects/added/dimensionGeometry.h"
#include "objects/blockContents.h"
#include "objects/hatches.h"
#include "objects/targets/curves.h"
#include "objects/targets/dimensionsOnCurves.h"
#include "objects/targets/hatchInsertions.h"
#include "objects/targets/references.h"
#include "objects/targets/tableCells.h"
#include "statements/LineEnd.h"
#include "statements/counters.h"
#include "statements/losses.h"
#include "statements/wording.h"

#include <algorithm>

using inkmacro::doubleBackslashes;

namespace {

/// An entity on its way into a block.
struct BlockEntity
{
    Conversion& conversion;
    Writer& writer;
    const OdDbObject* object; ///< never null where it is prepared
    CFxString name;           ///< its variable; empty when the macro has none
    Statement fetch{};        ///< fetches what the entity is reached by
};

Statement drawArc(BlockEntity& entity)
{
    if (!entity.name.isEmpty())
        return {};
    const auto& arc = static_cast<const OdDbArc&>(*entity.object);
    entity.name = QStringLiteral("arc_%1").arg(processCounters.blockArcs++);
    return EmitDeclareObject(entity.writer, "CircleArc", entity.name) +
           EmitInsertArc(entity.writer, arc.center(), arc.radius(), arc.startAngle(), arc.endAngle(), entity.name);
}

/// A note that a leader owns is reached through the leader.
Statement fetchNote(BlockEntity& entity)
{
    const OdDbHandle note = entity.object->getDbHandle();
    const OdDbObjectId leader = GetNoteLeader(note);
    if (leader.isNull())
        return {};
    CFxString leaderName;
    entity.fetch = entity.conversion.names().EmitObjectVariable(leader.getHandle(), OdDbLeader::desc(), leaderName);
    if (leaderName.isEmpty())
        return {};
    entity.name = entity.conversion.names().NameObject(note, entity.object->isA());
    return EmitGetNoteAnnotation(entity.writer, entity.name, leaderName);
}

Statement fillCells(BlockEntity& entity)
{
    if (entity.name.isEmpty())
        return {};
    const auto& table = static_cast<const OdDbTable&>(*entity.object);
    Statement statements;
    for (unsigned row = 0; row < table.numRows(); ++row)
        for (unsigned column = 0; column < table.numColumns(); ++column)
            if (const OdString text = table.textString(row, column); !text.isEmpty())
                statements += EmitSetCellText(entity.writer, entity.name, static_cast<std::int32_t>(row),
                                              static_cast<std::int32_t>(column), doubleBackslashes(text));
    return statements;
}

Statement dimensionArc(BlockEntity& entity)
{
    if (!entity.name.isEmpty())
        return {};
    const auto& dimension = static_cast<const OdDbArcDimension&>(*entity.object);
    entity.name = QStringLiteral("arcLengthDimension_%1").arg(processCounters.blockArcLengthDimensions++);
    const OdDbObjectPtr curve = GetDimensionGeometry(dimension);
    const MeasuredCurve arc{curve, entity.conversion.names().AddedVariable(curve->objectId())};
    return EmitDeclareObject(entity.writer, "ArcLengthDimension", entity.name) +
           EmitInsertArcLengthDimension(entity.writer, arc, dimension.xLine1Point(), dimension.xLine2Point(),
                                        dimension.isPartial(), dimension.arcPoint(),
                                        doubleBackslashes(dimension.dimensionText()), entity.name);
}

/// How a hatch was made is no longer known here: its loops tell.
struct HatchLoops
{
    explicit HatchLoops(const OdDbHatch& hatch)
    {
        for (int i = 0; i < hatch.numLoops(); ++i) {
            const int type = hatch.loopTypeAt(i);
            allAssociated = allAssociated && !hatch.getAssocObjIdsAt(i).isEmpty();
            allDerived = allDerived && (type & OdDbHatch::kDerived) != 0;
            if ((type & OdDbHatch::kPolyline) == 0)
                continue;
            const OdArray<OdGePoint2d>& vertices = hatch.getLoopAt(i);
            counts.append(static_cast<int>(vertices.length()));
            for (const OdGePoint2d& vertex : vertices)
                points.append(vertex);
        }
    }

    bool allDerived = true;
    bool allAssociated = true;
    OdArray<int> counts; ///< of the points of each polyline
    OdArray<OdGePoint2d> points;
};

/// A hatch that no custom action has inserted, though the macro has a variable for it.
Statement hatchInsertion(BlockEntity& entity)
{
    if (entity.name.isEmpty() || entity.conversion.insertedHatches.contains(entity.name))
        return {};
    const auto& hatch = static_cast<const OdDbHatch&>(*entity.object);
    const HatchPattern pattern{hatch.patternName(), hatch.patternScale(), hatch.patternAngle()};
    HatchLoops loops(hatch);
    if (loops.allDerived) {
        OdArray<OdGePoint2d> seeds;
        for (unsigned i = 0; i < hatch.numSeedPoints(); ++i)
            seeds.append(hatch.getSeedPointAt(i));
        return EmitInsertHatchByInternalPoints(entity.writer, entity.name, seeds, pattern);
    }
    if (loops.allAssociated)
        return EmitInsertHatchByEntities(entity.writer, entity.name,
                                         BoundaryObjects(entity.conversion.names(), hatch.getAssocObjIds()), pattern,
                                         true);
    if (loops.points.isEmpty())
        return {};
    loops.points.append(loops.points[0]);
    return EmitInsertHatchByBoundary(entity.writer, entity.name, loops.counts, loops.points, pattern);
}

Statement insertHatch(BlockEntity& entity)
{
    Statement text = hatchInsertion(entity);
    if (entity.writer.repairs && !text.isEmpty()) {
        // Settings that are recorded from here on need not wait.
        entity.conversion.insertedHatches.insert(entity.name);
        text += entity.conversion.TakeSettings(entity.name);
    }
    return text;
}

struct EntityKind
{
    const char* cls;  ///< derived classes count
    const char* type; ///< of iwObjectType_e
    /// Gives what the entity needs besides, and may find it a variable.
    Statement (*prepare)(BlockEntity& entity) = nullptr;
    const char* known = nullptr; ///< the type that iwObjectType_e has in place of one that it lacks
};

const inkmacro::Fault kUnknownType{"EmitCreateBlockDefinition",
                                   {inkmacro::Target::Cpp, inkmacro::Target::CSharp, inkmacro::Target::JavaScript,
                                    inkmacro::Target::VbNet, inkmacro::Target::CppCom, inkmacro::Target::Vba},
                                   "a three-point dimension has a type that the interface lacks"};

/// In the order in which they are looked for: an attribute definition is found as a text, which it derives from. The
/// types are not those of the table of classes throughout. It has to stay so.
constexpr EntityKind kKinds[] = {
    {"AcDbCircle", "iwCircleType"},
    {"AcDbArc", "iwCircleArcType", &drawArc},
    {"AcDbLine", "iwLineType"},
    {"AcDbPoint", "iwPointType"},
    {"AcDbRay", "iwRayType"},
    {"AcDbXline", "iwInfiniteLineType"},
    {"AcDbEllipse", "iwEllipseArcType"},
    {"AcDbText", "iwSimpleNoteType"},
    {"AcDbMText", "iwNoteType", &fetchNote},
    {"AcDbTable", "iwTableType", &fillCells},
    {"AcDbBlockReference", "iwBlockInstanceType"},
    {"AcDbMline", "iwRichLineType"},
    {"AcDbFace", "iwFaceType"},
    {"AcDbLeader", "iwLeaderType"},
    {"AcDbPolyline", "iwPolyLineType"},
    {"AcDbRegion", "iwRegionType"},
    {"AcDbFcf", "iwToleranceType"},
    {"AcDbPolygonMesh", "iwPolygonMeshType"},
    {"AcDbPolyFaceMesh", "iwPolyFaceMeshType"},
    {"AcDbSpline", "iwSplineType"},
    {"AcDb3dPolyline", "iwPolyLineType"},
    {"AcDbShape", "iwShapeType"},
    {"AcDbSolid", "iwSolidType"},
    {"AcDbAttributeDefinition", "iwAttributeDefinitionType"},
    {"AcDbAlignedDimension", "iwAlignedDimensionType"},
    {"AcDb2LineAngularDimension", "iwAngularDimensionType"},
    {"AcDb3PointAngularDimension", "iwAngularDimensionType_3Point", nullptr, "iwAngularDimensionType"},
    {"AcDbArcDimension", "iwArcLengthDimensionType", &dimensionArc},
    {"AcDbOrdinateDimension", "iwOrdinateDimensionType"},
    {"AcDbDiametricDimension", "iwDiameterDimensionType"},
    {"AcDbRadialDimension", "iwRadialDimensionType"},
    {"AcDbRadialDimensionLarge", "iwJoggedDimensionType"},
    {"AcDbRotatedDimension", "iwRotatedDimensionType"},
    {"AcDbRasterImage", "iwReferenceImageType"},
    {"AcDbHatch", "iwHatchType", &insertHatch},
};

/// Null for an entity of a kind that no block takes.
const EntityKind* kindOf(const OdRxClass* cls)
{
    static const std::vector<const OdRxClass*> classes = [] {
        std::vector<const OdRxClass*> made;
        for (const EntityKind& kind : kKinds)
            made.push_back(oddbClassByName(kind.cls));
        return made;
    }();
    const auto found = std::ranges::find_if(classes, [cls](const OdRxClass* kind) { return cls->isDerivedFrom(kind); });
    return found == classes.end() ? nullptr : &kKinds[found - classes.begin()];
}

void loseEntity(const OdRxClass* cls, const OdDbObjectId& id, const BlockContents& contents, const char* reason)
{
    NoteLoss(CFxString(ObjectTitle(cls, id.getHandle()).toQString() + " in block " + contents.name.toQString()),
             reason);
}

/// Ahead of what fetches another object.
const inkmacro::Phrase aheadOfFetch{"block entity",
                                    {
                                        .cpp = "\n%1",
                                        .cppCom = "\n%1",
                                        .csharp = "\n%1",
                                        .javascript = "\n%1",
                                        .vbNet = "\n%1",
                                        .vba = "\n%1",
                                    }};

} // namespace

OdArray<OdDbObjectId> ObjectsOf(const CFxVariant& collection, HandlesIn place)
{
    OdArray<OdDbObjectId> ids;
    for (const CFxVariantCollectionElement& element : collection.GetCollection().GetCollectionDataForRead()) {
        const CFxVariant* const handle = place == HandlesIn::Tags ? element.GetTag() : element.GetValue();
        ids.append(IdOf(OdDbHandle(handle->GetString().toQString().toULongLong(nullptr, 16))));
    }
    return ids;
}

Statement CreateBlockDefinition(Conversion& conversion, const BlockContents& contents)
{
    Writer& writer = conversion.writer;
    const Names& names = conversion.names();
    BlockDefinition definition{
        contents.variable, contents.name, contents.renewed, contents.description, contents.origin, {}, {}};
    Statement text = EmitOpenBlockDefinition(writer, definition);
    for (const OdDbObjectId& id : contents.ids) {
        // What an entity is needs no more than the recording; what it looks like does.
        const OdDbObjectPtr object = id.openObject(true);
        const OdRxClass* const cls = object ? object->isA() : names.KnownClass(id.getHandle());
        const EntityKind* const kind = cls ? kindOf(cls) : nullptr;
        if (!kind) {
            loseEntity(cls, id, contents, cls ? "no block takes objects of its class" : "the drawing does not have it");
            continue;
        }
        BlockEntity entity{conversion, writer, object.get(), names.KnownVariable(id.getHandle())};
        const Statement statements = object && kind->prepare ? kind->prepare(entity) : QString();
        if (!entity.fetch.isEmpty())
            text += writer.fillIndented(aheadOfFetch).str() + entity.fetch;
        if (!statements.isEmpty())
            text += statements + inkmacro::LineEnd;
        if (entity.name.isEmpty()) {
            loseEntity(cls, id, contents, "the macro does not have it");
            continue;
        }
        definition.entities.push_back(entity.name);
        const bool hasKnown = kind->known && conversion.Drops(kUnknownType);
        definition.types.emplace_back(QLatin1String(hasKnown ? kind->known : kind->type));
    }
    return text + EmitCreateBlockDefinition(writer, definition);
}
