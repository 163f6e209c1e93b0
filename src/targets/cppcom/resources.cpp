// Resources of the COM add-in.

#include "statements/Fill.h"
#include "statements/LineEnd.h"
#include "targets/cppcom/projectTexts.h"
#include "targets/projectFiles.h"

// %1 is the project, %2 the line end.

static const char* const headerText = R"(//{{NO_DEPENDENCIES}}%2// Resource identifiers, used by %1.rc
//
#define IDS_PROJNAME                    100
#define IDR_%1                          101
#define IDR_IWADDINCONNECTION           102
#define IDC_IWAPPLICATIONEVENT          103
#define IDR_IWADDINCOMMAND              104

// Next values for new objects
//
#ifdef APSTUDIO_INVOKED
#ifndef APSTUDIO_READONLY_SYMBOLS
#define _APS_NEXT_RESOURCE_VALUE        201
#define _APS_NEXT_COMMAND_VALUE         32768
#define _APS_NEXT_CONTROL_VALUE         201
#define _APS_NEXT_SYMED_VALUE           103
#endif
#endif
)";

// %1 is the line end, %2 to %4 are the numbers of the included texts, %5 is the project.

static const char* const scriptText = R"(// Resource script of %5%1//
#include "resource.h"

#define APSTUDIO_READONLY_SYMBOLS
/////////////////////////////////////////////////////////////////////////////
//
// From the TEXTINCLUDE 2 resource
//
#include "winres.h"

/////////////////////////////////////////////////////////////////////////////
#undef APSTUDIO_READONLY_SYMBOLS

/////////////////////////////////////////////////////////////////////////////
// English (U.S.) resources

#if !defined(AFX_RESOURCE_DLL) || defined(AFX_TARG_ENU)
#ifdef _WIN32
LANGUAGE LANG_ENGLISH, SUBLANG_ENGLISH_US
#pragma code_page(1252)
#endif //_WIN32

#ifdef APSTUDIO_INVOKED
/////////////////////////////////////////////////////////////////////////////
//
// TEXTINCLUDE
//

%2 TEXTINCLUDE
BEGIN
    "resource.h\0"
END

%3 TEXTINCLUDE
BEGIN
    "#include ""winres.h""\r\n"
    "\0"
END

%4 TEXTINCLUDE
BEGIN
    "1 TYPELIB ""%5.tlb""\r\n"
    "\0"
END

#endif    // APSTUDIO_INVOKED

/////////////////////////////////////////////////////////////////////////////
//
// Version
//

VS_VERSION_INFO VERSIONINFO
 FILEVERSION 1,0,0,1
 PRODUCTVERSION 1,0,0,1
 FILEFLAGSMASK 0x3fL
#ifdef _DEBUG
 FILEFLAGS 0x1L
#else
 FILEFLAGS 0x0L
#endif
 FILEOS 0x4L
 FILETYPE 0x2L
 FILESUBTYPE 0x0L
BEGIN
    BLOCK "StringFileInfo"
    BEGIN
        BLOCK "040904e4"
        BEGIN
            VALUE "CompanyName", "TODO: <Company name>"
            VALUE "FileDescription", "TODO: <File description>"
            VALUE "FileVersion", "1.0.0.1"
            VALUE "InternalName", "%5.dll"
            VALUE "LegalCopyright", "TODO: (c) <Company name>. All rights reserved."
            VALUE "OriginalFilename", "%5.dll"
            VALUE "ProductName", "TODO: <Product name>"
            VALUE "ProductVersion", "1.0.0.1"
        END
    END
    BLOCK "VarFileInfo"
    BEGIN
        VALUE "Translation", 0x0409, 1252
    END
END

/////////////////////////////////////////////////////////////////////////////
//
// REGISTRY
//

IDR_%5 REGISTRY "%5.rgs"
IDR_IWADDINCONNECTION REGISTRY "IwAddinConnection.rgs"

/////////////////////////////////////////////////////////////////////////////
//
// String Table
//

STRINGTABLE
BEGIN
    IDS_PROJNAME "%5"
END

#endif    // English (U.S.) resources
/////////////////////////////////////////////////////////////////////////////

#ifndef APSTUDIO_INVOKED
/////////////////////////////////////////////////////////////////////////////
//
// From the TEXTINCLUDE 3 resource
//
1 TYPELIB "%5.tlb"

/////////////////////////////////////////////////////////////////////////////
#endif    // not APSTUDIO_INVOKED
)";

namespace inkmacro::cppcom {

Statement resourceHeader(const QString& name)
{
    const Template words(withIdentifier(headerText, {"IDR_%1 "}, name).constData());
    return fillProject(words).text(name).text(LineEnd);
}

Statement resourceScript(const QString& name)
{
    const Template words(withIdentifier(scriptText, {"IDR_%5 "}, name).constData());
    return fillProject(words).text(LineEnd).number(1).number(2).number(3).text(name);
}

} // namespace inkmacro::cppcom
