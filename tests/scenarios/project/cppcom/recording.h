#ifndef _IWADDIN_COMMAND_H_
#define _IWADDIN_COMMAND_H_

#include "resource.h"

#if defined(_WIN32_WCE) && !defined(_CE_DCOM) && !defined(_CE_ALLOW_SINGLE_THREADED_OBJECTS_IN_MTA)
#error "Windows CE without DCOM has no single-threaded COM objects. Define _CE_ALLOW_SINGLE_THREADED_OBJECTS_IN_MTA to build this class with the threading model 'Free' in its .rgs file."
#endif

class IwMacroCommand :
    public IDispEventImpl<IDC_IWAPPLICATIONEVENT, IwMacroCommand, &DIID__ICommandEvents, &LIBID_Inkwright, 1, 0>
{
public:
    IwMacroCommand( ICommand* pCommand );
    virtual ~IwMacroCommand();

    BEGIN_SINK_MAP(IwMacroCommand)
        SINK_ENTRY_EX(IDC_IWAPPLICATIONEVENT, DIID__ICommandEvents, iwCommand_ExecuteNotify_id, OnExecuteNotify)
    END_SINK_MAP()

    void __stdcall OnExecuteNotify();

private:
    CComQIPtr<ICommand> m_IwCommand;
};

#endif // _IWADDIN_COMMAND_H_
