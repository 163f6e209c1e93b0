// Regions made of curves.

#include "objects/targets/regions.h"

#include "statements/arrays.h"

using namespace inkmacro;

/// In C# and JavaScript the head and the lines of elements end otherwise than all else, and the elements' not at all.
/// JavaScript has a percent sign too many. All of it has to stay.
static const Phrase regionHead{
    "EmitInsertRegion",
    {
        .cpp = "%2%1iwObjectPtrArray entitiesArray%3;%2",
        .cppCom = "%2%1VARIANT entitiesArray%3;%2%1entitiesArray%3.vt = ( VT_ARRAY | VT_DISPATCH );%2"
                  "%1entitiesArray%3.parray = SafeArrayCreateVector( VT_DISPATCH, 0, %4 );%2",
        .csharp = "\n%3DispatchWrapper[] iwEntities_%1 = new DispatchWrapper[%2];\n",
        .javascript = "\n\n%%3var iwEntities_%1 = new Array();\n",
        .vbNet = "%2%1Dim iwEntities_%3 As DispatchWrapper() = New DispatchWrapper(%4) {}%2",
        .vba = "%2%1Dim iwRegionEntities_%3(%4) As Object%2",
    }};
static const Mend regionHeadOfPage(regionHead, Target::JavaScript, "a percent sign stands in front of the statement",
                                   "\n\n%3var iwEntities_%1 = new Array();\n");

static const Phrase regionArray{"EmitInsertRegion",
                                {
                                    .cpp = "%1iwObjectPtrArray regionArray%3;%2",
                                    .cppCom = "%1VARIANT regionArray%3;%2",
                                    .csharp = "%1object regionArray%3;%2",
                                    .javascript = "%1var regionArray_%3 = new Array();%2",
                                    .vbNet = "%1Dim regionArray%3 As Object%2",
                                    .vba = "%1Dim regionArray%3 As Variant%2",
                                }};

static const Phrase insertRegion{"EmitInsertRegion",
                                 {
                                     .cpp = "%1iwSketchManager->InsertRegion(entitiesArray%3, &regionArray%4);%2",
                                     .cppCom = "%1iwSketchManager->InsertRegion(entitiesArray%3, &regionArray%4);%2",
                                     .csharp = "%1iwSketchManager.InsertRegion(iwEntities_%3, out regionArray%3);%2",
                                     .javascript = "%1var regionArray_%3 = mSkMgr.InsertRegion(iwEntities_%3);%2",
                                     .vbNet = "%1iwSketchManager.InsertRegion( iwEntities_%3, regionArray%3 )%2%2",
                                     .vba = "%1iwSketchManager.InsertRegion iwRegionEntities_%3, regionArray%3 %2",
                                     .python = "%1regions = drawing.sketch.InsertRegion(objects(%5))%2",
                                 }};

static const Phrase takeRegion{
    "EmitInsertRegion",
    {
        .cpp = "%1%4 = (iwRegion_c*)regionArray%3[0];%2%2",
        .cppCom = "%1IRegionPtr *iwRegions%3 = NULL;%2%1int count%3 = 0;%2"
                  "%1TypeConverter::convertVariantArrayToPtrArray<IRegionPtr, IRegion>( regionArray%3, iwRegions%3, "
                  "count%3 );%2%1%4 = iwRegions%3[0];%2%2",
        .csharp = "%1object[] iwRegions%3 = (object[])regionArray%3;%2%1%4 = iwRegions%3[0] as Region;%2",
        .javascript = "%1var %4 = regionArray_%3.RegionArray[0];%2",
        .vbNet = "%1Dim iwRegionObjs As Object() = DirectCast(regionArray%3, Object())%2"
                 "%1%4 = TryCast(iwRegionObjs(0), Inkwright.Region)%2",
        .vba = "%1Set %4 = regionArray%3(0)%2%2",
        .python = "%1%4 = regions[0]%2",
    }};

static Statement regionEntities(Writer& writer, const QStringList& names, std::uint32_t number)
{
    static constexpr Words arrayNames{.cpp = "entitiesArray",
                                      .cppCom = "entitiesArray",
                                      .csharp = "iwEntities_",
                                      .javascript = "iwEntities_",
                                      .vbNet = "iwEntities_",
                                      .vba = "iwRegionEntities_",
                                      .python = "entities"};
    ArrayPlace place(writer, numberedName(arrayNames, writer.target, number), number, Brackets::Tight);
    const std::vector<QString> words(names.begin(), names.end());
    const int bound = arrayBound(writer, words.size());
    if (writer.target != Target::CSharp && writer.target != Target::JavaScript)
        return writer.fill(regionHead).number(number).number(bound).str() + objectLines(place, words);
    place.lineEnd.clear();
    Fill head = writer.fillPlain(regionHead);
    head.number(number);
    if (writer.target == Target::CSharp)
        head.number(bound);
    return head.indent(writer.IndentLevel).str() + objectLines(place, words);
}

Statement EmitInsertRegion(Writer& writer, const CFxString& variable, const QStringList& names, std::uint32_t number)
{
    const Statement entities = regionEntities(writer, names, number);
    // The number goes into two places of the same literal in C++. In Python the entities are a list within the call.
    Fill insertion = writer.fill(insertRegion);
    insertion.number(number).number(number);
    if (writer.target == Target::Python)
        return insertion.word(entities).str() + writer.fill(takeRegion).number(number).word(variable).str();
    return entities + writer.fill(regionArray).number(number).str() + insertion.str() +
           writer.fill(takeRegion).number(number).word(variable).str();
}
