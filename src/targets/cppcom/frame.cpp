// The macro file of the COM add-in around the statements.

#include "statements/LineEnd.h"
#include "statements/RecordingState.h"
#include "targets/FileHead.h"
#include "targets/cppcom/CFxConverterIWAPICPPCOM.h"
#include "targets/cppcom/uuids.h"
#include "targets/texts.h"
#include "targets/vcproj.h"

using namespace inkmacro;

// %1 is the line end, %2 the class, %3 the id of the server, %4 the sheet on which the recording began. A frame brings
// its own indentation.

static const FileHead head{
    .opening = R"(IwMacroCommand::IwMacroCommand( ICommand* pCommand )
    : m_IwCommand( pCommand )
{
    DispEventAdvise( m_IwCommand );
}

IwMacroCommand::~IwMacroCommand()
{
    DispEventUnadvise( m_IwCommand );
}

void __stdcall IwMacroCommand::OnExecuteNotify()
{
    CIwAddinConnection* pConnection = getMacroApp();

    IDocumentPtr iwDoc( pConnection->m_IwApp->GetActiveDocument() );
    if( NULL == iwDoc )
    {
        MessageBox (NULL, L"Failed to get current document.", L"title", MB_OK);
        return;
    }

    IModelPtr iwModel( iwDoc->GetModel() );
    if( NULL == iwModel )
    {
        MessageBox (NULL, L"Failed to get a model space of the current document.", L"title", MB_OK);
        return;
    }

    ISketchManagerPtr iwSketchManager;
)",
    .modelSketchManager = R"(    iwSketchManager = iwModel->GetSketchManager();
    if( NULL == iwSketchManager )
    {
        MessageBox (NULL, L"Failed to get a sketch manager of the current document.", L"title", MB_OK);
        return;
    }

)",
    .firstSheet =
        "    _variant_t pVariantArray = iwDoc->GetSheets();%1    ISheetPtr *iwSheetArrays = NULL;%1    int count = 0;%1"
        "    TypeConverter::convertVariantArrayToPtrArray<ISheetPtr, ISheet>( pVariantArray, iwSheetArrays, count );%1"
        "    ISheetPtr iwSheet = iwSheetArrays[1];%1"
        R"(    if( NULL == iwSheet )
    {
        MessageBox (NULL, L"Failed to get a paper space of the current document.", L"title", MB_OK);
        return;
    }

)",
    .recordedSheet = R"(    iwSheet = NULL;
    iwSheet = iwDoc->GetSheet(L"%4");
    if( NULL == iwSheet )
    {
        MessageBox (NULL, L"Failed to get a paper space of the current document.", L"title", MB_OK);
        return;
    }

    iwSheet->Activate();

    iwSketchManager = iwSheet->GetSketchManager();
    if( NULL == iwSketchManager )
    {
        MessageBox (NULL, L"Failed to get a sketch manager of the current document.", L"title", MB_OK);
        return;
    }

)",
    // The selection manager too: no other target has it in its frame.
    .viewManager = R"(    ISelectionManagerPtr iwSelManager( iwDoc->GetSelectionManager() );
    if( NULL == iwSelManager )
    {
        MessageBox (NULL, L"Failed to get selection manager of the current document.", L"title", MB_OK);
        return;
    }

    IViewManagerPtr iwViewManager( iwDoc->GetViewManager() );
    if( NULL == iwViewManager )
    {
        MessageBox (NULL, L"Failed to get a view manager of the current document.", L"title", MB_OK);
        return;
    }

)",
};

Statement CFxConverterIWAPICPPCOM::EmitFileHeader(const QString& className, bool)
{
    writer.IndentLevel += 1;
    const QByteArray server = withIdentifier(texts::cppcom::server_cpp, "%2", className);
    const Template words((server + head.words()).constData());
    const QString serverId = newUuid("server " + className);
    const Statement filled = withSheetName(writer.fill(words).word(LineEnd).word(className).word(serverId));
    const Statement text =
        withHeaders(faultyIdentifier(texts::cppcom::server_cpp, className, filled), className, {"math"});
    return isFound(className) ? text : faultyAt("#include \"" + className, text, kUnfound);
}

Statement CFxConverterIWAPICPPCOM::EmitFileFooter()
{
    writer.lowerLevel();
    static const Template words("}%1%1");
    return writer.fill(words).word(LineEnd);
}
