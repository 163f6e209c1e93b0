// Named views. C++ takes the view that the model's and the sheet's ones have in common into a local first.

#include "targets/namedViews.h"

#include "statements/quoting.h"

using namespace inkmacro;

static const Phrase createModelView{"EmitCreateNamedView",
                                    {
                                        .cpp = "%1iwViewManager->CreateModelNamedView( L\"%3\", &%4 );%2",
                                        .cppCom = "%1%4 = iwViewManager->CreateModelNamedView( L\"%3\" );%2",
                                        .csharp = "%1%4 = iwViewManager.CreateModelNamedView( \"%3\" );%2",
                                        .javascript = "%1var %4 = mViewManager.CreateModelNamedView( \"%3\" );%2",
                                        .vbNet = "%1%4 = iwViewManager.CreateModelNamedView( \"%3\" )%2",
                                        .vba = "%1Set %4 = iwViewManager.CreateModelNamedView( \"%3\" )%2",
                                        .python = "%1%4 = drawing.views.CreateModelNamedView(%3)%2",
                                    }};

static const Phrase createSheetView{
    "EmitCreateNamedView",
    {
        .cpp = "%1iwSheetNamedView_ptr sheetNamedView_%4;%2"
               "%1iwViewManager->CreateSheetNamedView( L\"%3\", &sheetNamedView_%4 );%2",
        .cppCom = "%1ISheetNamedViewPtr sheetNamedView_%4 = iwViewManager->CreateSheetNamedView( L\"%3\" );%2",
        .csharp = "%1SheetNamedView sheetNamedView_%4 = iwViewManager.CreateSheetNamedView( \"%3\" );%2",
        .javascript = "%1var sheetNamedView_%4 = mViewManager.CreateSheetNamedView( \"%3\" );%2",
        .vbNet = "%1Dim sheetNamedView_%4 As Inkwright.SheetNamedView = "
                 "iwViewManager.CreateSheetNamedView( \"%3\" )%2",
        .vba = "%1Dim sheetNamedView_%4 As Inkwright.SheetNamedView%2"
               "%1Set sheetNamedView_%4 = iwViewManager.CreateSheetNamedView( \"%3\" )%2",
        .python = "%1drawing.views.CreateSheetNamedView(%3)%2",
    }};

Statement EmitCreateNamedView(Writer& writer, const CFxString& name, bool onSheet, const CFxString& variable)
{
    if (onSheet)
        return writer.fill(createSheetView).text(name, Meaning::Text).number(++writer.UniqueCounter);
    return writer.fill(createModelView).text(name, Meaning::Text).word(variable);
}

/// A view of a sheet is told by a text.
static Fill& putName(Fill& statement, const NamedViewReference& view)
{
    return view.onSheet ? statement.text(view.word) : statement.word(view.word);
}

/// The beginning of a statement of one view: its number, where it has locals, and what the view is found by.
static Fill& putView(Fill& statement, Writer& writer, const NamedViewReference& view)
{
    if (view.onSheet || writer.target == Target::Cpp)
        statement.number(++writer.UniqueCounter);
    return putName(statement, view);
}

/// VBA's brackets and the blank behind them have to stay.
static const Phrase renameModelView{
    "EmitRenameNamedView",
    {
        .cpp = "%1iwNamedView_ptr namedView_%3_rename;%2%1%4->GetNamedView( &namedView_%3_rename );%2"
               "%1namedView_%3_rename->Rename( L\"%5\" );%2%2",
        .cppCom = "%1%3->GetNamedView()->Rename( L\"%4\" );%2%2",
        .csharp = "%1%3.GetNamedView().Rename( \"%4\" );%2%2",
        .javascript = "%1%3.GetNamedView().Rename( \"%4\" );%2%2",
        .vbNet = "%1%3.GetNamedView().Rename( \"%4\" )%2%2",
        .vba = "%1%3.GetNamedView().Rename( \"%4\" ) %2%2",
        .python = "%1view = %3.GetNamedView()%2%1view.Rename(%4)%2",
    }};

static const Phrase renameSheetView{
    "EmitRenameNamedView",
    {
        .cpp = "%1iwSheetNamedView_ptr sheetNamedView_%3_rename;%2"
               "%1iwViewManager->GetSheetNamedView( L\"%4\", &sheetNamedView_%3_rename );%2"
               "%1iwNamedView_ptr namedView_%3_rename;%2"
               "%1sheetNamedView_%3_rename->GetNamedView( &namedView_%3_rename );%2"
               "%1namedView_%3_rename->Rename( L\"%5\" );%2%2",
        .cppCom = "%1ISheetNamedViewPtr sheetNamedView_%3_rename = iwViewManager->GetSheetNamedView( L\"%4\" );%2"
                  "%1sheetNamedView_%3_rename->GetNamedView()->Rename( L\"%5\" );%2%2",
        .csharp = "%1SheetNamedView sheetNamedView_%3_rename = iwViewManager.GetSheetNamedView( \"%4\" );%2"
                  "%1sheetNamedView_%3_rename.GetNamedView().Rename( \"%5\" );%2%2",
        .javascript = "%1var sheetNamedView_%3_rename = mViewManager.GetSheetNamedView( \"%4\" );%2"
                      "%1sheetNamedView_%3_rename.GetNamedView().Rename( \"%5\" );%2%2",
        .vbNet = "%1Dim sheetNamedView_%3_rename As Inkwright.SheetNamedView = "
                 "iwViewManager.GetSheetNamedView( \"%4\" )%2"
                 "%1sheetNamedView_%3_rename.GetNamedView().Rename( \"%5\" )%2%2",
        .vba = "%1Dim sheetNamedView_%3_rename As Inkwright.SheetNamedView%2"
               "%1Set sheetNamedView_%3_rename = iwViewManager.GetSheetNamedView( \"%4\" )%2"
               "%1sheetNamedView_%3_rename.GetNamedView().Rename \"%5\"%2%2",
        .python = "%1view = drawing.views.GetSheetNamedView(%4)%2%1view = view.GetNamedView()%2"
                  "%1view.Rename(%5)%2",
    }};

Statement EmitRenameNamedView(Writer& writer, const NamedViewReference& view, const CFxString& newName)
{
    Fill statement = writer.fill(view.onSheet ? renameSheetView : renameModelView);
    return putView(statement, writer, view).text(newName, Meaning::Text);
}

static const Phrase setModelViewClass{
    "EmitSetNamedViewClass",
    {
        .cpp = "%1iwNamedView_ptr namedView_%3_class;%2%1%4->GetNamedView( &namedView_%3_class );%2"
               "%1namedView_%3_class->put_Class( L\"%5\" );%2%2",
        .cppCom = "%1%3->GetNamedView()->put_Class( L\"%4\" );%2%2",
        .csharp = "%1%3.GetNamedView().Class = \"%4\";%2%2",
        .javascript = "%1%3.GetNamedView().put_Class(\"%4\");%2%2",
        .vbNet = "%1%3.GetNamedView().Class = \"%4\"%2%2",
        .vba = "%1%3.GetNamedView().Class = \"%4\"%2%2",
        .python = "%1view = %3.GetNamedView()%2%1view.Class = %4%2",
    }};
static const Mend bstrModelViewClass(setModelViewClass, Target::CppCom, literalIsNoBstr, textsAsBstr);

static const Phrase setSheetViewClass{
    "EmitSetNamedViewClass: of a sheet",
    {
        .cpp = "%1iwSheetNamedView_ptr sheetNamedView_%3_class;%2"
               "%1iwViewManager->GetSheetNamedView( L\"%4\", &sheetNamedView_%3_class );%2"
               "%1iwNamedView_ptr namedView_%3_class;%2"
               "%1sheetNamedView_%3_class->GetNamedView( &namedView_%3_class );%2"
               "%1namedView_%3_class->put_Class( L\"%5\" );%2%2",
        .cppCom = "%1ISheetNamedViewPtr sheetNamedView_%3_class = iwViewManager->GetSheetNamedView( L\"%4\" );%2"
                  "%1sheetNamedView_%3_class->GetNamedView()->put_Class( L\"%5\" );%2%2",
        .csharp = "%1SheetNamedView sheetNamedView_%3_class = iwViewManager.GetSheetNamedView( \"%4\" );%2"
                  "%1sheetNamedView_%3_class.GetNamedView().Class = \"%5\";%2%2",
        .javascript = "%1var sheetNamedView_%3_class = mViewManager.GetSheetNamedView( \"%4\" );%2"
                      "%1sheetNamedView_%3_class.GetNamedView().put_Class(\"%5\");%2%2",
        .vbNet = "%1Dim sheetNamedView_%3_class As Inkwright.SheetNamedView = "
                 "iwViewManager.GetSheetNamedView( \"%4\" )%2"
                 "%1sheetNamedView_%3_class.GetNamedView().Class = \"%5\"%2%2",
        .vba = "%1Dim sheetNamedView_%3_class As Inkwright.SheetNamedView%2"
               "%1Set sheetNamedView_%3_class = iwViewManager.GetSheetNamedView( \"%4\" )%2"
               "%1sheetNamedView_%3_class.GetNamedView().Class = \"%5\"%2%2",
        .python = "%1view = drawing.views.GetSheetNamedView(%4)%2%1view = view.GetNamedView()%2"
                  "%1view.Class = %5%2",
    }};
static const Mend bstrSheetViewClass(setSheetViewClass, Target::CppCom, literalIsNoBstr, textsAsBstr);

Statement EmitSetNamedViewClass(Writer& writer, const NamedViewReference& view, const CFxString& className)
{
    Fill statement = writer.fill(view.onSheet ? setSheetViewClass : setModelViewClass);
    return putView(statement, writer, view).text(className, Meaning::Text);
}

static const Phrase windowCorners{
    "EmitSetViewWindow",
    {
        .cpp = "%1iwMathUtility_ptr iwMathUtility%3;%2%1m_pIwApp->GetMathUtility( &iwMathUtility%3 );%2"
               "%1iwMathPoint_ptr FirstCorner_%3_1;%2"
               "%1iwMathUtility%3->CreatePoint( %4, %5, %6, &FirstCorner_%3_1 );%2"
               "%1iwMathPoint_ptr OppositeCorner_%3_1;%2"
               "%1iwMathUtility%3->CreatePoint( %7, %8, %9, &OppositeCorner_%3_1 );%2",
        .cppCom = "%1IMathUtilityPtr iwMathUtility%3 = pConnection->m_IwApp->GetMathUtility();%2"
                  "%1IMathPointPtr FirstCorner_%3_1 = iwMathUtility%3->CreatePoint( %4, %5, %6 );%2"
                  "%1IMathPointPtr OppositeCorner_%3_1 = iwMathUtility%3->CreatePoint( %7, %8, %9 );%2",
        .csharp = "%1MathUtility iwMathUtility%3 = iwApp.GetMathUtility();%2"
                  "%1MathPoint FirstCorner_%3_1 = iwMathUtility%3.CreatePoint( %4, %5, %6 );%2"
                  "%1MathPoint OppositeCorner_%3_1 = iwMathUtility%3.CreatePoint( %7, %8, %9 );%2",
        .javascript = "%1var iwMathUtility%3 = mApp.GetMathUtility();%2"
                      "%1var FirstCorner_%3_1 = iwMathUtility%3.CreatePoint( %4, %5, %6 );%2"
                      "%1var OppositeCorner_%3_1 = iwMathUtility%3.CreatePoint( %7, %8, %9 );%2",
        .vbNet = "%1Dim iwMathUtility%3 As Inkwright.MathUtility = iwApp.GetMathUtility()%2"
                 "%1Dim FirstCorner_%3_1 As Inkwright.MathPoint = iwMathUtility%3.CreatePoint( %4, %5, %6 )%2"
                 "%1Dim OppositeCorner_%3_1 As Inkwright.MathPoint = iwMathUtility%3.CreatePoint( %7, %8, %9 )%2",
        .vba = "%1Dim iwMathUtility%3 As Inkwright.MathUtility%2%1Set iwMathUtility%3 = iwApp.GetMathUtility()%2"
               "%1Dim FirstCorner_%3_1 As Inkwright.MathPoint%2"
               "%1Set FirstCorner_%3_1 = iwMathUtility%3.CreatePoint( %4, %5, %6 )%2"
               "%1Dim OppositeCorner_%3_1 As Inkwright.MathPoint%2"
               "%1Set OppositeCorner_%3_1 = iwMathUtility%3.CreatePoint( %7, %8, %9 )%2",
        .python = "%1utility = drawing.app.GetMathUtility()%2%1first = utility.CreatePoint(%4)%2"
                  "%1second = utility.CreatePoint(%5)%2",
    }};

static const Phrase setModelViewWindow{
    "EmitSetViewWindow",
    {
        .cpp = "%1iwNamedView_ptr namedView_%3_Pt;%2%1%4->GetNamedView( &namedView_%3_Pt );%2"
               "%1namedView_%3_Pt->SetWindow( FirstCorner_%3_1, OppositeCorner_%3_1 );%2%2",
        .cppCom = "%1%4->GetNamedView()->SetWindow( FirstCorner_%3_1, OppositeCorner_%3_1 );%2%2",
        .csharp = "%1%4.GetNamedView().SetWindow( FirstCorner_%3_1, OppositeCorner_%3_1 );%2%2",
        .javascript = "%1%4.GetNamedView().SetWindow( FirstCorner_%3_1, OppositeCorner_%3_1 );%2%2",
        .vbNet = "%1%4.GetNamedView().SetWindow( FirstCorner_%3_1, OppositeCorner_%3_1 )%2%2",
        .vba = "%1%4.GetNamedView().SetWindow FirstCorner_%3_1, OppositeCorner_%3_1%2%2",
        .python = "%1view = %4.GetNamedView()%2%1view.SetWindow(first, second)%2",
    }};

static const Phrase setSheetViewWindow{
    "EmitSetViewWindow",
    {
        .cpp = "%1iwSheetNamedView_ptr sheetNamedView_%3_Pt;%2"
               "%1iwViewManager->GetSheetNamedView( L\"%4\", &sheetNamedView_%3_Pt );%2"
               "%1iwNamedView_ptr namedView_%3_Pt;%2%1sheetNamedView_%3_Pt->GetNamedView( &namedView_%3_Pt );%2"
               "%1namedView_%3_Pt->SetWindow( FirstCorner_%3_1, OppositeCorner_%3_1 );%2%2",
        .cppCom = "%1ISheetNamedViewPtr sheetNamedView_%3_Pt = iwViewManager->GetSheetNamedView( L\"%4\" );%2"
                  "%1sheetNamedView_%3_Pt->GetNamedView()->SetWindow( FirstCorner_%3_1, OppositeCorner_%3_1 );%2%2",
        .csharp = "%1SheetNamedView sheetNamedView_%3_Pt = iwViewManager.GetSheetNamedView( \"%4\" );%2"
                  "%1sheetNamedView_%3_Pt.GetNamedView().SetWindow( FirstCorner_%3_1, OppositeCorner_%3_1 );%2%2",
        .javascript = "%1var sheetNamedView_%3_Pt = mViewManager.GetSheetNamedView( \"%4\" );%2"
                      "%1sheetNamedView_%3_Pt.GetNamedView().SetWindow( FirstCorner_%3_1, OppositeCorner_%3_1 );%2%2",
        .vbNet = "%1Dim sheetNamedView_%3_Pt As Inkwright.SheetNamedView = "
                 "iwViewManager.GetSheetNamedView( \"%4\" )%2"
                 "%1sheetNamedView_%3_Pt.GetNamedView().SetWindow( FirstCorner_%3_1, OppositeCorner_%3_1 )%2%2",
        .vba = "%1Dim sheetNamedView_%3_Pt As Inkwright.SheetNamedView%2"
               "%1Set sheetNamedView_%3_Pt = iwViewManager.GetSheetNamedView( \"%4\" )%2"
               "%1sheetNamedView_%3_Pt.GetNamedView().SetWindow FirstCorner_%3_1, OppositeCorner_%3_1%2%2",
        .python = "%1view = drawing.views.GetSheetNamedView(%4)%2%1view = view.GetNamedView()%2"
                  "%1view.SetWindow(first, second)%2",
    }};

Statement EmitSetViewWindow(Writer& writer, const NamedViewReference& view, const OdGePoint3d& first,
                            const OdGePoint3d& opposite)
{
    const std::uint32_t number = ++writer.UniqueCounter;
    const Phrase& setWindow = view.onSheet ? setSheetViewWindow : setModelViewWindow;
    Fill statement = writer.fill(setWindow);
    return writer.fill(windowCorners).number(number).shortPoint(first).shortPoint(opposite).str() +
           putName(statement.number(number), view).str();
}
