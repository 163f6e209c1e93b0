#pragma once

#include "host/kernel/CFxCommand.h"

/// Asks for a line style of the drawing by name. Those that every drawing has come into it when they are asked for.
/// `several` takes the first prompt, which speaks of several line styles, else the second. The two messages are for a
/// name that is not found, and the first gets it at its "%1". Without `layerAndBlock` the names ByLayer and ByBlock are
/// not found. Gives kFxSuccess, kFxNothing, kFxCancelled, and kFxFailure for a style that is not found.
INKHOST_EXPORT std::int32_t GetLinetype(CFxCommandContext* context, OdSmartPtr<OdDbLinetypeTableRecord>& record,
                                        bool several, CFxString promptForSeveral, CFxString prompt, QString notFound,
                                        QString hint, bool layerAndBlock);
