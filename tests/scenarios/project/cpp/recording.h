#pragma once

#include "iwCommand_c.h"
#include "iwApplication_c.h"

class CMacroCommand
{
public:
    CMacroCommand( iwApplication_c *pApp, const iwString & name );
    virtual ~CMacroCommand();

    DeclareCommandExecuteNotifyHook

    bool ExecuteNotify( void ); // Mandatory callback name

    const iwString &GetName() const;

private:
    iwApplication_c *m_pIwApp;
    iwCommand_c *m_pCmd;
    iwString m_name;
};
