#include "recording.h"
#include "iwAddinConnection.h"
#include "iwCommandMessage_c.h"
#include "iwApplicationOptions_c.h"
#include "iwSheet_c.h"
#include "math.h"

CMacroCommand::CMacroCommand( iwApplication_c *pApp, const iwString & name )
    : m_pIwApp( pApp )
    , m_name( name )
    , m_pCmd( NULL )
{
    iwCreateCommandError_e Error;
    m_pIwApp->CreateCommand( MacroApplication::appID, name, &Error, &m_pCmd );
    if ( Error )
    {
        return;
    }

    RegisterCommandExecuteNotifyHook( m_pCmd );
}

CMacroCommand::~CMacroCommand()
{
    if ( m_pCmd )
    {
        UnRegisterCommandExecuteNotifyHook( m_pCmd );
    }
}

ImplementCommandExecuteNotifyHook(CMacroCommand)

bool CMacroCommand::ExecuteNotify(void)
{
    iwDocument_ptr iwDoc;
    m_pIwApp->GetActiveDocument( &iwDoc );
    if ( !iwDoc )
    {
        return false;
    }

    iwModel_ptr iwModel;
    iwDoc->GetModel( &iwModel );
    if ( !iwModel )
    {
        return false;
    }

    iwSketchManager_ptr iwSketchManager;
    iwModel->GetSketchManager( &iwSketchManager );
    if ( !iwSketchManager )
    {
        return false;
    }

    iwObjectPtrArray iwSheetsArray;
    iwDoc->GetSheets( &iwSheetsArray );
    iwSheet_ptr iwSheet = (iwSheet_c *)iwSheetsArray[1];
    if ( !iwSheet )
    {
        return false;
    }

    iwViewManager_ptr iwViewManager;
    iwDoc->GetViewManager( &iwViewManager );
    if ( !iwViewManager )
    {
        return false;
    }

<statements>
    return true;
}

const iwString &CMacroCommand::GetName() const
{
    return m_name;
}
