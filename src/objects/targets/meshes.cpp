// Faces, solids, traces and meshes.

#include "objects/targets/meshes.h"

#include "host/db/OdDbClasses.h"
#include "statements/arrays.h"
#include "statements/wording.h"

using namespace inkmacro;

static const Phrase insertFace{
    "EmitInsertFace",
    {
        .cpp = "%1iwDoubleArray Coordinates%3;%2%1Coordinates%3.clear();%2%2%4%2"
               "%1 iwSketchManager->InsertFace(%2%1 Coordinates%3,%2%1 %5,%2%1 %6,%2%1 %7 ,%8 ,&%9);%2",
        .cppCom = "%1VARIANT variant%3;%2%1variant%3.vt = ( VT_ARRAY | VT_R8 );%2"
                  "%1variant%3.parray = SafeArrayCreateVector( VT_R8, 0, %9 );%2%4%2"
                  "%1 %10 = iwSketchManager->InsertFace(%2%1 variant%3,%2%1 %5,%2%1 %6,%2%1 %7 ,%8 );%2",
        .csharp = "%1%8 = iwSketchManager.InsertFace(%2%1 new double[]{%3},%2%1 %4,%2%1 %5,%2%1 %6,%2%1 %7 );%2",
        .javascript = "%1var %8 = mSkMgr.InsertFace(%3, %4, %5, %6, %7);%2",
        .vbNet = "%1Dim Coordinates%3(%4) As Double%2%5%2"
                 "%1%10 = iwSketchManager.InsertFace( Coordinates%3, %6, %7, %8, %9 )%2",
        .vba = "%1Dim Coordinates%3(%4) As Double%2%5%2"
               "%1Set %10 = iwSketchManager.InsertFace( Coordinates%3, %6, %7, %8, %9 )%2",
        .python = "%1%8 = drawing.sketch.InsertFace(reals(%3), %4, %5, %6, %7)%2",
    }};

Statement EmitInsertFace(Writer& writer, const OdArray<OdGePoint3d>& corners, const std::array<bool, 4>& edgesVisible,
                         const CFxString& name)
{
    return callWithArray(
        writer, insertFace, coordinateArray(writer, spatial(corners), "facePoints"),
        [&](Fill& call) {
            for (const bool visible : edgesVisible)
                call.word(truthWord(writer.target, visible));
        },
        name);
}

static const Phrase insertSolid{
    "EmitInsertSolid",
    {
        .cpp = "%1iwDoubleArray Coordinates%3;%2%1Coordinates%3.clear();%2%2%4%2"
               "%1iwSketchManager->InsertSolid( Coordinates%3, &%5 );%2",
        .cppCom = "%1VARIANT variant%3;%2%1variant%3.vt = ( VT_ARRAY | VT_R8 );%2"
                  "%1variant%3.parray = SafeArrayCreateVector( VT_R8, 0, %5 );%2%4%2"
                  "%1%6 = iwSketchManager->InsertSolid( variant%3 );%2",
        .csharp = "%1%4 = iwSketchManager.InsertSolid(%2%1 new double[]{%3} );%2",
        .javascript = "%1var %4 = mSkMgr.InsertSolid(%3);%2",
        .vbNet = "%1Dim Coordinates%3(%4) As Double%2%5%2%1%6 = iwSketchManager.InsertSolid( Coordinates%3 )%2",
        .vba = "%1Dim Coordinates%3(%4) As Double%2%5%2%1Set %6 = iwSketchManager.InsertSolid( Coordinates%3 )%2",
        .python = "%1%4 = drawing.sketch.InsertSolid(reals(%3))%2",
    }};

/// In COM the first of the lines that fill the array is indented twice. It has to stay so.
static const Phrase insertTrace{
    "EmitInsertTrace",
    {
        .cpp = "%1iwDoubleArray Coordinates%3;%2%1Coordinates%3.clear();%2%2%4%2"
               "%1iwSketchManager->InsertTrace( Coordinates%3, &%5 );%2",
        .cppCom = "%1VARIANT variant%3;%2%1variant%3.vt = ( VT_ARRAY | VT_R8 );%2"
                  "%1variant%3.parray = SafeArrayCreateVector( VT_R8, 0, %5 );%2%1%4%2"
                  "%1%6=iwSketchManager->InsertTrace( variant%3 );%2",
        .csharp = "%1%4 = iwSketchManager.InsertTrace(%2%1 new double[]{%3} );%2",
        .javascript = "%1var %4 = mSkMgr.InsertTrace(%3);%2",
        .vbNet = "%1Dim Coordinates%3(%4) As Double%2%5%2%1%6 = iwSketchManager.InsertTrace( Coordinates%3 )%2",
        .vba = "%1Dim Coordinates%3(%4) As Double%2%5%2%1Set %6 = iwSketchManager.InsertTrace( Coordinates%3 )%2",
        .python = "%1%4 = drawing.sketch.InsertTrace(reals(%3))%2",
    }};

Statement EmitInsertSolid(Writer& writer, const OdArray<OdGePoint3d>& corners, const CFxString& name)
{
    return callWithArray(
        writer, insertSolid, coordinateArray(writer, spatial(corners), "points"), [](Fill&) {}, name);
}

Statement EmitInsertTrace(Writer& writer, const OdArray<OdGePoint3d>& corners, const CFxString& name)
{
    const ArrayArgument array = coordinateArray(writer, spatial(corners), "points", NumberForm::Long, Brackets::Spaced);
    return callWithArray(
        writer, insertTrace, array, [](Fill&) {}, name);
}

static const Phrase insertPolygonMesh{
    "EmitInsertPolygonMesh",
    {
        .cpp = "%1iwDoubleArray Coordinates%3;%2%1Coordinates%3.clear();%2%2%4%2"
               "%1iwSketchManager->InsertPolygonMesh( %5, %6, Coordinates%3, &%7 );%2",
        .cppCom = "%1VARIANT variant%3;%2%1variant%3.vt = ( VT_ARRAY | VT_R8 );%2"
                  "%1variant%3.parray = SafeArrayCreateVector( VT_R8, 0, %7 );%2%4%2"
                  "%1%8 = iwSketchManager->InsertPolygonMesh( %5, %6, variant%3 );%2",
        .csharp = "%1%6 = iwSketchManager.InsertPolygonMesh(%2%1 %3, %2%1 %4, %2%1 new double[]{%5} );%2",
        .javascript = "%1var %6 = mSkMgr.InsertPolygonMesh(%3, %4, %5);%2",
        .vbNet = "%1Dim Coordinates%3(%4) As Double%2%5%2"
                 "%1%8 = iwSketchManager.InsertPolygonMesh( %6, %7, Coordinates%3 )%2",
        .vba = "%1Dim Coordinates%3(%4) As Double%2%5%2"
               "%1Set %8 = iwSketchManager.InsertPolygonMesh( %6, %7, Coordinates%3 )%2",
        .python = "%1%6 = drawing.sketch.InsertPolygonMesh(%4, %5, reals(%3))%2",
    }};

/// A list within the call stands behind the counts, what fills an array ahead of them.
static bool listsStandLast(Target target)
{
    return target == Target::CSharp || target == Target::JavaScript;
}

Statement EmitInsertPolygonMesh(Writer& writer, int rows, int columns, const OdArray<OdGePoint3d>& vertices,
                                const CFxString& name)
{
    const ArrayArgument array = coordinateArray(writer, spatial(vertices), "polMesh");
    if (!listsStandLast(writer.target))
        return callWithArray(
            writer, insertPolygonMesh, array,
            [&](Fill& call) { call.number(rows, Meaning::Count).number(columns, Meaning::Count); }, name);
    return array.before +
           writer.fill(insertPolygonMesh).number(rows).number(columns).word(array.words).word(name).str();
}

/// What stands ahead of the call are the declarations and the lines of the three arrays: the coordinates, how many
/// vertices each face has, and the numbers of these vertices.
static const Phrase insertPolyFaceMesh{
    "EmitInsertPolyFaceMesh",
    {
        .cpp = "%1iwDoubleArray Coordinates%3;%2%1iwLongArray FaceVerticesCountLongArray%3;%2"
               "%1iwLongArray FaceVerticesLongArray%3;%2%2%1Coordinates%3.clear();%2"
               "%1FaceVerticesCountLongArray%3.clear();%2%1FaceVerticesLongArray%3.clear();%2%2%4%2%5%2%6%2"
               "%1iwSketchManager->InsertPolyFaceMesh( %7, Coordinates%3, FaceVerticesCountLongArray%3, "
               "FaceVerticesLongArray%3, &%8 );%2",
        .cppCom = "%1VARIANT variant%3;%2%1variant%3.vt = ( VT_ARRAY | VT_R8 );%2"
                  "%1variant%3.parray = SafeArrayCreateVector( VT_R8, 0, %4 );%2"
                  "%1VARIANT FaceVerticesCountLongArray%5;%2"
                  "%1FaceVerticesCountLongArray%5.vt = ( VT_ARRAY | VT_I4 );%2"
                  "%1FaceVerticesCountLongArray%5.parray = SafeArrayCreateVector( VT_I4, 0, %6 );%2"
                  "%1VARIANT FaceVerticesLongArray%7;%2%1FaceVerticesLongArray%7.vt = ( VT_ARRAY | VT_I4 );%2"
                  "%1FaceVerticesLongArray%7.parray = SafeArrayCreateVector( VT_I4, 0, %8 );%2%9%2%10%2%11%2"
                  "%1%13 = iwSketchManager->InsertPolyFaceMesh( %12, variant%3, FaceVerticesCountLongArray%5, "
                  "FaceVerticesLongArray%7 );%2",
        .csharp = "%1%7 = iwSketchManager.InsertPolyFaceMesh(%2%1 %3, %2%1 new double[]{%4}, %2%1 new int[] {%5}, %2"
                  "%1 new int[] {%6});%2",
        .javascript = "%1var %7 = mSkMgr.InsertPolyFaceMesh(%3, %4, %5, %6);%2",
        .vbNet = "%1Dim Coordinates%3(%4) As Double%2%1Dim FaceVerticesCountLongArray%3(%5) As Integer%2"
                 "%1Dim FaceVerticesLongArray%3(%6) As Integer%2%7%2%8%2%9%2"
                 "%1%11 = iwSketchManager.InsertPolyFaceMesh( %10, Coordinates%3, FaceVerticesCountLongArray%3, "
                 "FaceVerticesLongArray%3 )%2",
        .vba = "%1Dim Coordinates%3(%4) As Double%2%1Dim FaceVerticesCountLongArray%3(%5) As Integer%2"
               "%1Dim FaceVerticesLongArray%3(%6) As Integer%2%7%2%8%2%9%2"
               "%1Set %11 = iwSketchManager.InsertPolyFaceMesh( %10, Coordinates%3, FaceVerticesCountLongArray%3, "
               "FaceVerticesLongArray%3 )%2",
        .python = "%1%8 = drawing.sketch.InsertPolyFaceMesh(%7, reals(%4), integers(%5), "
                  "integers(%6))%2",
    }};

Statement EmitInsertPolyFaceMesh(Writer& writer, int vertexCount, const OdArray<OdGePoint3d>& vertices,
                                 const OdArray<OdDbFaceRecord>& faces, const CFxString& name)
{
    std::vector<int> counts;
    std::vector<int> numbers;
    for (const OdDbFaceRecord& face : faces) {
        // A fourth number that is negative, for a hidden edge, counts as none too.
        const std::size_t count = face.getVertexAt(3) > 0 ? 4 : 3;
        counts.push_back(static_cast<int>(count));
        numbers.insert(numbers.end(), face.vertices.begin(), face.vertices.begin() + count);
    }

    const ArrayArgument coordinates = coordinateArray(writer, spatial(vertices), "points");
    // The locals of COM keep apart by their number alone.
    const auto integers = [&](const std::vector<int>& values, const char* array) {
        const std::uint32_t number = writer.target == Target::CppCom ? ++writer.UniqueCounter : coordinates.number;
        return integerArray(writer, values, number, array, array);
    };
    const ArrayArgument faceCounts = integers(counts, "FaceVerticesCountLongArray");
    const ArrayArgument faceNumbers = integers(numbers, "FaceVerticesLongArray");
    const ArrayArgument* const arrays[] = {&coordinates, &faceCounts, &faceNumbers};

    Fill call = writer.fill(insertPolyFaceMesh);
    if (listsStandLast(writer.target))
        call.number(vertexCount);
    else if (writer.target != Target::CppCom)
        call.number(coordinates.number);
    for (const ArrayArgument* array : arrays) {
        if (writer.target == Target::CppCom)
            call.number(array->number).number(array->count);
        else if (isBasic(writer.target))
            call.number(array->highestIndex());
    }
    for (const ArrayArgument* array : arrays)
        call.word(array->words);
    if (!listsStandLast(writer.target))
        call.number(vertexCount);
    return coordinates.before + faceCounts.before + faceNumbers.before + call.word(name).str();
}
