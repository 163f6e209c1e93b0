#pragma once

#include "host/db/OdDbRecords.h"
#include "statements/Writer.h"

/// Fetches an object that the recording did not make. `type` is its interface.
Statement EmitGetObjectByHandle(Writer& writer, const CFxString& type, const CFxString& name, const OdDbHandle& handle);
Statement EmitGetNoteAnnotation(Writer& writer, const CFxString& note, const CFxString& leader);
/// The record's name behind the renames that a repaired macro has done so far, else the one that the drawing has.
CFxString NameByNow(const Writer& writer, const OdDbSymbolTableRecord& record);
/// Declares a variable that the recording itself has not.
Statement EmitDeclareObject(Writer& writer, const char* interfaceName, const CFxString& name);
Statement EmitRemoveNamedView(Writer& writer, const CFxString& name, const CFxString& viewName, bool paperspace);
Statement EmitRemoveLayer(Writer& writer, const CFxString& name);
