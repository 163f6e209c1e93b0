#pragma once

#include "host/db/OdResBuf.h"
#include "statements/Writer.h"

/// The application whose data make a block a revision cloud.
inline constexpr char cloudApplication[] = "PE_CLOUD";

/// Puts the data of that application to the object. Elements other than texts, points and numbers are left out.
Statement EmitCustomData(Writer& writer, const CFxString& variable, const OdResBufPtr& data);
