#pragma once

#include "host/db/OdDbHandle.h"
#include "statements/Writer.h"

/// Fetches an object that the recording did not make. `type` is its interface.
Statement EmitGetObjectByHandle(Writer& writer, const CFxString& type, const CFxString& name, const OdDbHandle& handle);
Statement EmitGetNoteAnnotation(Writer& writer, const CFxString& note, const CFxString& leader);
/// Declares a variable that the recording itself has not.
Statement EmitDeclareObject(Writer& writer, const char* interfaceName, const CFxString& name);
Statement EmitRemoveNamedView(Writer& writer, const CFxString& name, const CFxString& viewName, bool paperspace);
Statement EmitRemoveLayer(Writer& writer, const CFxString& name);
