//{{NO_DEPENDENCIES}}
// Resource identifiers, used by recording.rc
//
#define IDS_PROJNAME                    100
#define IDR_recording                          101
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
