#include "iwAddinConnection.h"

MacroApplication *g_macroApp = NULL;

const iwString MacroApplication::appID = L"1C85DA6C-0445-4844-A66F-A048A5787A68";

#ifdef IW_WIN
IwAddin_EXPORT bool connectToInkwright(int cookie, iwApplication_c *iwApp)
#else
extern "C" IwAddin_EXPORT bool connectToInkwright(int cookie, iwApplication_c *iwApp)
#endif
{
    if ( NULL == g_macroApp )
    {
        g_macroApp = new MacroApplication( iwApp );
        return true;
    }

    return false;
}

#ifdef IW_WIN
IwAddin_EXPORT bool disconnectFromInkwright()
#else
extern "C" IwAddin_EXPORT bool disconnectFromInkwright()
#endif
{
    if ( NULL != g_macroApp )
    {
        g_macroApp->getIwApp()->RemoveUserInterface(MacroApplication::appID);

        delete g_macroApp;
        g_macroApp = NULL;
    }

    return true;
}

MacroApplication::MacroApplication( iwApplication_c *iwApp )
    : m_iwApp( iwApp )
    , m_macroCmd( iwApp, L"recording" )
{
}

MacroApplication::~MacroApplication()
{
}

iwApplication_c *MacroApplication::getIwApp()
{
    return m_iwApp;
}
