// Added faces, solids, traces and meshes. Of those that are not in the drawing only the records are written.

#include "objects/targets/meshes.h"
#include "host/db/OdDbClasses.h"
#include "objects/AddedObject.h"
#include "objects/added/readers.h"
#include "objects/targets/setters.h"

namespace {

bool takeVisible(AddedObject& added, const char* tag)
{
    static constexpr const char* words[] = {"Visible", "Hidden"};
    return wordOf(added.take(tag, forms::word.with(words), "not visible")) == ShownWord("Visible");
}

} // namespace

Statement ReadFace(AddedObject& added)
{
    const OdArray<OdGePoint3d> corners = added.takePoints("Vertex");
    std::array<bool, 4> edgesVisible{};
    const char* const tags[] = {"Edge 1", "Edge 2", "Edge 3", "Edge 4"};
    for (std::size_t i = 0; i < edgesVisible.size(); ++i)
        edgesVisible[i] = takeVisible(added, tags[i]);
    return EmitInsertFace(added.writer, corners, edgesVisible, added.name);
}

Statement ReadSolid(AddedObject& added)
{
    return EmitInsertSolid(added.writer, added.takePoints("Vertex"), added.name);
}

Statement ReadTrace(AddedObject& added)
{
    const Statement text = EmitInsertTrace(added.writer, added.takePoints("Vertex"), added.name);
    const auto trace = added.open<OdDbTrace>();
    if (!trace)
        return text;
    return text + EmitSetDoubleProperty(added.writer, added.name, "Thickness", trace->thickness());
}

Statement ReadPolygonMesh(AddedObject& added)
{
    const OdArray<OdGePoint3d> vertices = added.takePoints("Vertex");
    const int rows = added.takeInteger("M vertex count");
    const int columns = added.takeInteger("N vertex count");

    Statement text = EmitInsertPolygonMesh(added.writer, rows, columns, vertices, added.name);
    const auto mesh = added.open<OdDbPolygonMesh>();
    if (mesh && mesh->isMClosed())
        text += EmitSetBoolProperty(added.writer, added.name, "MClosed", true);
    if (mesh && mesh->isNClosed())
        text += EmitSetBoolProperty(added.writer, added.name, "NClosed", true);
    return text;
}

Statement ReadPolyFaceMesh(AddedObject& added)
{
    const OdArray<OdGePoint3d> vertices = added.takePoints("Vertex");
    const auto mesh = added.open<OdDbPolyFaceMesh>();
    return EmitInsertPolyFaceMesh(added.writer, mesh ? mesh->numVertices() : 0, vertices,
                                  mesh ? mesh->faces() : OdArray<OdDbFaceRecord>(), added.name);
}
