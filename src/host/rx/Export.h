#pragma once

#include <QtGlobal>

/// Marks what libinkhost offers: module and program must see one and the same class descriptors and services.
#ifdef INKHOST_BUILD
#define INKHOST_EXPORT Q_DECL_EXPORT
#else
#define INKHOST_EXPORT Q_DECL_IMPORT
#endif
