
// IwAddin_global.h, C++ API export/import declaration

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
