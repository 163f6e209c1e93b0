#include "stdafx.h"
#include "recording.h"
#include "IwAddinConnection.h"

static CIwAddinConnection* s_pMacroApp = NULL;

CIwAddinConnection* getMacroApp()
{
    return s_pMacroApp;
}

CIwAddinConnection::CIwAddinConnection()
    : m_sApiUuid( NULL )
{
    s_pMacroApp = this;
}
