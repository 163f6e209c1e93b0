#pragma once

#include "recordfile/Form.h"

namespace inkmacro::recordfile {

/// An object with its class, its handle and the data of its class. Reading puts it into the drawing.
struct DrawingObjectForm
{
    static void read(const Json& json);
    static void write(JsonOut& out, const OdDbObject& object);
    static QJsonObject schema(SchemaDefinitions& definitions);
};

} // namespace inkmacro::recordfile
