#ifndef IW_ADDIN_CONNECTION_H
#define IW_ADDIN_CONNECTION_H

#include "IwAddin_global.h"
#include "iwApplication_c.h"
#include "iwCommand_c.h"
#include "iwInterfacePtr.h"
#include "recording.h"

class IwAddin_EXPORT MacroApplication : public iwApplicationEvents_c, public iwCommandEvents_c
{
public:
    MacroApplication( iwApplication_c *iwApp );
    virtual ~MacroApplication();

    iwApplication_c *getIwApp();

    static const iwString appID;

private:
    iwApplication_ptr m_iwApp;
    CMacroCommand m_macroCmd;
};

#endif // IW_ADDIN_CONNECTION_H
