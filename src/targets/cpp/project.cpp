// The add-in around a C++ macro.

#include "statements/LineEnd.h"
#include "statements/wording.h"
#include "targets/cpp/CFxConverterIWAPICPP.h"
#include "targets/projectFiles.h"

using namespace inkmacro;

// %1 is the project or, in the first of them, the header itself, %2 the line end. One marker for it is enough: without
// any, a marker in the name would take its value.

static const char* const exportHeader = R"(%2// %1.h, C++ API export/import declaration

#ifndef IwAddin_GLOBAL_H
#define IwAddin_GLOBAL_H

#ifdef IW_WIN
#define IW_DECL_EXPORT __declspec(dllexport)
#define IW_DECL_IMPORT __declspec(dllimport)
#else
#define IW_DECL_EXPORT
#define IW_DECL_IMPORT
#endif

#define NULL 0

#ifdef IwAddin_LIB
#define IwAddin_EXPORT IW_DECL_EXPORT
#else
#define IwAddin_EXPORT IW_DECL_IMPORT
#endif

#endif // IwAddin_GLOBAL_H
)";

static const char* const connectionHeader = R"(#ifndef IW_ADDIN_CONNECTION_H%2#define IW_ADDIN_CONNECTION_H

#include "IwAddin_global.h"
#include "iwApplication_c.h"
#include "iwCommand_c.h"
#include "iwInterfacePtr.h"
#include "%1.h"

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
)";

/// The command that runs the macro bears the project's name.
static const char* const connectionSource = R"(#include "iwAddinConnection.h"%2
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
    , m_macroCmd( iwApp, L"%1" )
{
}

MacroApplication::~MacroApplication()
{
}

iwApplication_c *MacroApplication::getIwApp()
{
    return m_iwApp;
}
)";

static const char* const commandHeader = R"(#pragma once

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
)";

static Statement named(const char* words, const QString& name)
{
    const Template text(words, Target::Cpp);
    return fillProject(text).text(name).text(LineEnd);
}

static Statement exports(const QString& projectName)
{
    static const Template words("LIBRARY\t\"%2\"%1%1EXPORTS%1connectToInkwright%1disconnectFromInkwright%1");
    return fillProject(words).text(LineEnd).text(projectName);
}

Statement CFxConverterIWAPICPP::EmitProgramText(const QString& name) const
{
    return named(exportHeader, name);
}

std::int32_t CFxConverterIWAPICPP::EmitProjectFiles(const QString& path)
{
    const QString name = projectName(path);
    const QString exportHeaderFile = "IwAddin_global.h";
    return WriteProject(path, {{exportHeaderFile, EmitProgramText(projectName(exportHeaderFile)), true},
                               {name + ".vcproj", EmitProjectText(name), false},
                               {"iwAddinConnection.h", named(connectionHeader, name), true},
                               {"iwAddinConnection.cpp", named(connectionSource, name), true},
                               {name + ".h", QString(commandHeader), true},
                               {name + ".def", exports(name), false}});
}
