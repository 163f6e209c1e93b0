// The type library of add-ins: what the application asks of each.

#pragma once

#include "windows.h"

struct IIwAddin : public IDispatch
{
    STDMETHOD(ConnectToInkwright)(LPDISPATCH application, long cookie, VARIANT_BOOL* connected) = 0;
    STDMETHOD(DisconnectFromInkwright)(VARIANT_BOOL* disconnected) = 0;
};

extern const GUID LIBID_IwAddinLib;
