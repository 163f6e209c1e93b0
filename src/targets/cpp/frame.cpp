// The C++ macro file around the statements.

#include "statements/LineEnd.h"
#include "statements/RecordingState.h"
#include "targets/FileHead.h"
#include "targets/cpp/CFxConverterIWAPICPP.h"
#include "targets/vcproj.h"

using namespace inkmacro;

// %1 is the line end, %2 the class, %3 the sheet on which the recording began. A frame brings its own indentation.

static const FileHead head{
    .opening = "#include \"%2.h\"%1#include \"iwAddinConnection.h\"%1#include \"iwCommandMessage_c.h\"%1"
               "#include \"iwApplicationOptions_c.h\"%1#include \"iwSheet_c.h\"%1#include \"math.h\"%1%1"
               "CMacroCommand::CMacroCommand( iwApplication_c *pApp, const iwString & name )%1"
               "    : m_pIwApp( pApp )%1    , m_name( name )%1    , m_pCmd( NULL )%1{%1"
               "    iwCreateCommandError_e Error;%1"
               "    m_pIwApp->CreateCommand( MacroApplication::appID, name, &Error, &m_pCmd );%1    if ( Error )%1"
               "    {%1        return;%1    }%1%1    RegisterCommandExecuteNotifyHook( m_pCmd );%1}%1%1"
               "CMacroCommand::~CMacroCommand()%1{%1    if ( m_pCmd )%1    {%1"
               "        UnRegisterCommandExecuteNotifyHook( m_pCmd );%1    }%1}%1%1"
               "ImplementCommandExecuteNotifyHook(CMacroCommand)%1%1bool CMacroCommand::ExecuteNotify(void)%1{%1"
               "    iwDocument_ptr iwDoc;%1    m_pIwApp->GetActiveDocument( &iwDoc );%1    if ( !iwDoc )%1    {%1"
               "        return false;%1    }%1%1    iwModel_ptr iwModel;%1    iwDoc->GetModel( &iwModel );%1"
               "    if ( !iwModel )%1    {%1        return false;%1    }%1%1"
               "    iwSketchManager_ptr iwSketchManager;%1",
    .modelSketchManager = "    iwModel->GetSketchManager( &iwSketchManager );%1    if ( !iwSketchManager )%1    {%1"
                          "        return false;%1    }%1%1",
    .firstSheet = "    iwObjectPtrArray iwSheetsArray;%1    iwDoc->GetSheets( &iwSheetsArray );%1"
                  "    iwSheet_ptr iwSheet = (iwSheet_c *)iwSheetsArray[1];%1    if ( !iwSheet )%1    {%1"
                  "        return false;%1    }%1%1",
    .recordedSheet = "    iwDoc->GetSheet( L\"%3\", &iwSheet );%1    if ( !iwSheet )%1    {%1        return false;%1"
                     "    }%1%1    iwSheet->Activate();%1%1    iwSheet->GetSketchManager( &iwSketchManager );%1"
                     "    if ( !iwSketchManager )%1    {%1        return false;%1    }%1%1",
    .viewManager = "    iwViewManager_ptr iwViewManager;%1    iwDoc->GetViewManager( &iwViewManager );%1"
                   "    if ( !iwViewManager )%1    {%1        return false;%1    }%1%1",
};

Statement CFxConverterIWAPICPP::EmitFileHeader(const QString& className, bool)
{
    writer.IndentLevel += 1;
    const Template words(head.words().constData());
    const Statement text = withHeaders(withSheetName(writer.fill(words).word(LineEnd).word(className)), className,
                                       {"iwCommandMessage_c", "iwApplicationOptions_c", "iwSheet_c", "math"});
    return isFound(className) ? text : writer.faulty(text, kUnfound);
}

Statement CFxConverterIWAPICPP::EmitFileFooter()
{
    writer.lowerLevel();
    static const Template words("    return true;%1}%1%1const iwString &CMacroCommand::GetName() const%1{%1"
                                "    return m_name;%1}%1");
    return writer.fill(words).word(LineEnd);
}
