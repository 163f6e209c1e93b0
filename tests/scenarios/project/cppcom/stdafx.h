#pragma once

#ifndef STRICT
#define STRICT
#endif

// The oldest systems that the add-in runs on: Windows XP, Windows 98, Internet Explorer 6.0
#ifndef WINVER
#define WINVER 0x0501
#endif

#ifndef _WIN32_WINNT
#define _WIN32_WINNT 0x0501
#endif

#ifndef _WIN32_WINDOWS
#define _WIN32_WINDOWS 0x0410
#endif

#ifndef _WIN32_IE
#define _WIN32_IE 0x0600
#endif

#define _ATL_APARTMENT_THREADED
#define _ATL_NO_AUTOMATIC_NAMESPACE
#define _ATL_CSTRING_EXPLICIT_CONSTRUCTORS

#include "resource.h"
#include <atlbase.h>
#include <atlcom.h>

#import "C:\Program Files\Velmorand\Inkwright\APISDK\tlb\iwAddin.tlb" raw_interfaces_only, raw_native_types, no_namespace, named_guids, auto_search
#import "C:\Program Files\Velmorand\Inkwright\bin\iwAutomation.dll" no_namespace named_guids 

using namespace ATL;
