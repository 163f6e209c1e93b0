// Selections by points and through a filter.

#include "targets/selections.h"

#include "statements/LineEnd.h"
#include "statements/arrays.h"
#include "statements/counters.h"
#include "statements/losses.h"

#include <algorithm>

using namespace inkmacro;

/// The selection by points and the filter have no statements in C++ COM, JavaScript and VB.NET. Python
/// fetches the utility only where it makes points.
static const Phrase selectionManager{
    "EmitSelectEntities",
    {
        .cpp = "%1iwSelectionManager_ptr iwSelectionMgr%2;\n%1iwDoc->GetSelectionManager( &iwSelectionMgr%2 );\n",
        .csharp = "%1SelectionManager iwSelectionMgr%2 = iwDoc.GetSelectionManager();\n",
        .vba = "%1Dim iwSelectionMgr%2 As Inkwright.SelectionManager\n"
               "%1Set iwSelectionMgr%2 = iwDoc.GetSelectionManager()\n",
        .python = "%1selection = drawing.doc.GetSelectionManager()\n",
    }};

static const Phrase selectionMath{
    "EmitSelectEntities",
    {
        .cpp = "%1iwMathUtility_ptr iwMathUtility%2;\n%1m_pIwApp->GetMathUtility( &iwMathUtility%2 );\n",
        .csharp = "%1MathUtility iwMathUtility%2 = iwApp.GetMathUtility();\n",
        .vba = "%1Dim iwMathUtility%2 As Inkwright.MathUtility\n%1Set iwMathUtility%2 = iwApp.GetMathUtility()\n",
    }};

static const Phrase declareFirst{"EmitSelectEntities",
                                 {
                                     .cpp = "%1iwMathPoint_ptr Point_%2_1;\n",
                                     .csharp = "%1MathPoint Point_%2_1;\n",
                                     .vba = "%1Dim Point_%2_1 As Inkwright.MathPoint\n",
                                 }};

static const Phrase createFirst{
    "EmitSelectEntities",
    {
        .cpp = "%1iwMathUtility%2->CreatePoint(%3, %4, %5, &Point_%2_1);\n",
        .csharp = "%1Point_%2_1 = iwMathUtility%2.CreatePoint(%3, %4, %5);\n",
        .vba = "%1Set Point_%2_1 = iwMathUtility%2.CreatePoint(%3, %4, %5)\n",
        .python = "%1utility = drawing.app.GetMathUtility()\n%1first = utility.CreatePoint(%3)\n",
    }};

static const Phrase declareSecond{"EmitSelectEntities",
                                  {
                                      .cpp = "%1iwMathPoint_ptr Point_%2_2;\n",
                                      .csharp = "%1MathPoint Point_%2_2;\n",
                                      .vba = "%1Dim Point_%2_2 As Inkwright.MathPoint\n",
                                  }};

static const Phrase createSecond{"EmitSelectEntities",
                                 {
                                     .cpp = "%1iwMathUtility%2->CreatePoint(%3, %4, %5, &Point_%2_2);\n",
                                     .csharp = "%1Point_%2_2 = iwMathUtility%2.CreatePoint(%3, %4, %5);\n",
                                     .vba = "%1Set Point_%2_2 = iwMathUtility%2.CreatePoint(%3, %4, %5)\n",
                                     .python = "%1second = utility.CreatePoint(%3)\n",
                                 }};

static const Phrase selectByPoint{"EmitSelectEntities",
                                  {
                                      .cpp = "%1iwSelectionMgr%2->SelectByPoint(Point_%2_1);\n",
                                      .csharp = "%1iwSelectionMgr%2.SelectByPoint(Point_%2_1);\n",
                                      .vba = "%1iwSelectionMgr%2.SelectByPoint Point_%2_1\n",
                                      .python = "%1selection.SelectByPoint(first)\n",
                                  }};

static const Phrase selectInWindow{"EmitSelectEntities",
                                   {
                                       .cpp = "%1iwSelectionMgr%2->SelectByWindow(Point_%2_1, Point_%2_2, false);\n",
                                       .csharp = "%1iwSelectionMgr%2.SelectByWindow(Point_%2_1, Point_%2_2, false);\n",
                                       .vba = "%1iwSelectionMgr%2.SelectByWindow Point_%2_1, Point_%2_2, False\n",
                                       .python = "%1selection.SelectByWindow(first, second, False)\n",
                                   }};

static const Phrase selectCrossingWindow{
    "EmitSelectEntities",
    {
        .cpp = "%1iwSelectionMgr%2->SelectByWindow(Point_%2_1, Point_%2_2, true);\n",
        .csharp = "%1iwSelectionMgr%2.SelectByWindow(Point_%2_1, Point_%2_2, true);\n",
        .vba = "%1iwSelectionMgr%2.SelectByWindow Point_%2_1, Point_%2_2, True\n",
        .python = "%1selection.SelectByWindow(first, second, True)\n",
    }};

static const Phrase coordinatesHead{"EmitSelectEntities",
                                    {
                                        .cpp = "%1iwDoubleArray doubleArray%2;\n",
                                        .csharp = "%1double[] doubleArray%2 = new double[%3];\n",
                                        .vba = "%1Dim doubleArray%2(%3) As Double\n",
                                    }};

static const Phrase selectByCrossline{"EmitSelectEntities",
                                      {
                                          .cpp = "%1iwSelectionMgr%2->SelectByCrossline(doubleArray%2);\n",
                                          .csharp = "%1iwSelectionMgr%2.SelectByCrossline(doubleArray%2);\n",
                                          .vba = "%1iwSelectionMgr%2.SelectByCrossline doubleArray%2\n",
                                          .python = "%1selection.SelectByCrossline(reals(%3))\n",
                                      }};

static const Phrase selectByPolygon{"EmitSelectEntities",
                                    {
                                        .cpp = "%1iwSelectionMgr%2->SelectByPolygon(doubleArray%2, true);\n",
                                        .csharp = "%1iwSelectionMgr%2.SelectByPolygon(doubleArray%2, true);\n",
                                        .vba = "%1iwSelectionMgr%2.SelectByPolygon doubleArray%2, True\n",
                                        .python = "%1selection.SelectByPolygon(reals(%3), True)\n",
                                    }};

static const Phrase selectedCount{
    "EmitSelectEntities",
    {
        .cpp =
            "%1long iCount%2;\n%1iwSelectionMgr%2->GetSelectedObjectCount(iwSelectionSetType_Previous, &iCount%2);\n",
        .csharp = "%1int iCount%2 = iwSelectionMgr%2.GetSelectedObjectCount("
                  "iwSelectionSetType_e.iwSelectionSetType_Previous);\n",
        .vba = "%1Dim iCount%2 As Integer\n%1iCount%2 = iwSelectionMgr%2.GetSelectedObjectCount("
               "Inkwright.iwSelectionSetType_e.iwSelectionSetType_Previous)\n",
    }};

/// Number of the next selection.
static std::uint32_t& selections = processCounters.selections;

static Statement selectionCorners(Writer& writer, const OdArray<OdGePoint3d>& points)
{
    OdGePoint3d low{1e20, 1e20, 1e20};
    OdGePoint3d high{-1e20, -1e20, -1e20};
    for (const OdGePoint3d& point : points) {
        low = {std::min(low.x, point.x), std::min(low.y, point.y), std::min(low.z, point.z)};
        high = {std::max(high.x, point.x), std::max(high.y, point.y), std::max(high.z, point.z)};
    }
    return writer.fillIndented(declareFirst).number(selections).str() +
           writer.fillIndented(createFirst).number(selections).shortPoint(low).str() +
           writer.fillIndented(declareSecond).number(selections).str() +
           writer.fillIndented(createSecond).number(selections).shortPoint(high).str();
}

/// All points are written to the same three places, but where no array is declared: there the call has all of them.
static Statement selectionByCoordinates(Writer& writer, const OdArray<OdGePoint3d>& points, const Phrase& select)
{
    Fill call = writer.fillIndented(select);
    call.number(selections);
    if (!coordinatesHead.has(writer.target))
        return call.word(coordinateList(writer, spatial(points), NumberForm::Short));
    Statement text =
        writer.fillIndented(coordinatesHead).number(selections).number(arrayBound(writer, 3U * points.length()));
    const ArrayPlace place(writer, "doubleArray" + QString::number(selections), selections, Brackets::Tight);
    for (const OdGePoint3d& point : points)
        text += realLine(place, 0, point.x, NumberForm::Short) + realLine(place, 1, point.y, NumberForm::Short) +
                realLine(place, 2, point.z, NumberForm::Short);
    return text += call.str();
}

static Statement selectionOf(Writer& writer, std::int32_t mode, const OdArray<OdGePoint3d>& points)
{
    /// As the host's recorder numbers them.
    enum Mode : std::int32_t
    {
        kCrossing = 0,
        kPoint = 1,
        kWindow = 2,
        kPolygon = 3,
        kCrossline = 4,
    };
    const auto call = [&](const Phrase& phrase) { return writer.fillIndented(phrase).number(selections).str(); };
    switch (mode) {
    case kPoint:
        return call(declareFirst) + writer.fillIndented(createFirst).number(selections).shortPoint(points[0]).str() +
               call(selectByPoint);
    case kWindow:
        return selectionCorners(writer, points) + call(selectInWindow);
    case kCrossing:
    case kPolygon:
        // The corners of a box and its first point once more make five points; fewer are two corners.
        return points.length() < 5 ? selectionCorners(writer, points) + call(selectCrossingWindow)
                                   : selectionByCoordinates(writer, points, selectByPolygon);
    case kCrossline:
        return selectionByCoordinates(writer, points, selectByCrossline);
    default:
        NoteLoss("selection", "the way of selecting is not known");
        return {};
    }
}

static QString withoutSelections()
{
    NoteLoss("selection", "the target has no statement for it");
    return {};
}

Statement EmitSelectEntities(Writer& writer, std::int32_t mode, const OdArray<OdGePoint3d>& points, bool hasManager)
{
    if (!selectionManager.has(writer.target))
        return withoutSelections();
    Statement text;
    if (!hasManager)
        text += writer.fillIndented(selectionManager).number(selections);
    const Statement selection = selectionOf(writer, mode, points);
    // Python has no locals that nothing asks for.
    if (selection.isEmpty() && !selectedCount.has(writer.target))
        return {};
    text += writer.fillIndented(selectionMath).number(selections).str() + selection +
            writer.fillIndented(selectedCount).number(selections).str();
    ++selections;
    return text;
}

static const Phrase getSelectionFilter{
    "EmitSelectionFilter",
    {
        .cpp = "%1iwSelectionFilter_ptr selectionFilter%2;\n"
               "%1iwSelectionMgr%2->GetSelectionFilter( &selectionFilter%2 );\n",
        .csharp = "%1SelectionFilter selectionFilter%2 = iwSelectionMgr%2.GetSelectionFilter();\n",
        .vba = "%1Dim selectionFilter%2 As Inkwright.SelectionFilter\n"
               "%1Set selectionFilter%2 = iwSelectionMgr%2.GetSelectionFilter()\n",
        .python = "%1selection_filter = selection.GetSelectionFilter()\n",
    }};

static const Phrase clearFilter{"EmitSelectionFilter",
                                {
                                    .cpp = "%1selectionFilter%2->Clear();\n",
                                    .csharp = "%1selectionFilter%2.Clear();\n",
                                    .vba = "%1selectionFilter%2.Clear\n",
                                    .python = "%1selection_filter.Clear()\n",
                                }};

static const Phrase addEntityType{"EmitSelectionFilter",
                                  {
                                      .cpp = "%1selectionFilter%2->AddEntityType(%3);\n",
                                      .csharp = "%1selectionFilter%2.AddEntityType(iwObjectType_e.%3);\n",
                                      .vba = "%1selectionFilter%2.AddEntityType Inkwright.iwObjectType_e.%3\n",
                                      .python = "%1selection_filter.AddEntityType(constants.%3)\n",
                                  }};

static const Phrase activateFilter{"EmitSelectionFilter",
                                   {
                                       .cpp = "%1selectionFilter%2->put_Active( true );\n",
                                       .csharp = "%1selectionFilter%2.Active = true;\n",
                                       .vba = "%1selectionFilter%2.Active = True\n",
                                       .python = "%1selection_filter.Active = True\n",
                                   }};

static const Phrase deactivateFilter{"EmitSelectionFilter",
                                     {
                                         .cpp = "%1selectionFilter%2->put_Active( false );\n",
                                         .csharp = "%1selectionFilter%2.Active = false;\n",
                                         .vba = "%1selectionFilter%2.Active = False\n",
                                         .python = "%1selection_filter.Active = False\n",
                                     }};

/// The filter is on only around the one selection.
Statement EmitSelectionFilter(Writer& writer, const OdArray<OdGePoint3d>& points, std::int32_t mode,
                              const std::vector<CFxString>& typeNames)
{
    if (!selectionManager.has(writer.target))
        return withoutSelections();
    // The selection within raises the number.
    const std::uint32_t number = selections;
    Statement text = writer.fillIndented(selectionManager).number(number).str() +
                     writer.fillIndented(getSelectionFilter).number(number).str() +
                     writer.fillIndented(clearFilter).number(number).str();
    for (const CFxString& type : typeNames)
        text += writer.fillIndented(addEntityType).number(number).word(type).str();
    text += LineEnd;
    text += writer.fillIndented(activateFilter).number(number);
    text += EmitSelectEntities(writer, mode, points, true);
    text += writer.fillIndented(deactivateFilter).number(number);
    return text;
}
