#pragma once

#include "recordfile/Form.h"
#include "recordfile/Recording.h"

namespace inkmacro::recordfile {

// The lines that are no actions: the header, the drawing's settings and the drawing's objects.

template<>
struct Form<Recording::Header> : ObjectForm<Form<Recording::Header>, Recording::Header>
{
    static constexpr const char* name = "recording";
    static std::span<const Key<Recording::Header>> keys();
};

template<>
struct Form<Recording::Drawing> : ObjectForm<Form<Recording::Drawing>, Recording::Drawing>
{
    static constexpr const char* name = "drawing";
    static std::span<const Key<Recording::Drawing>> keys();
};

/// An object with its class, its handle and the data of its class. Reading puts it into the drawing.
struct DrawingObjectForm
{
    static void read(const Json& json);
    static void write(JsonOut& out, const OdDbObject& object);
    static QJsonObject schema(SchemaDefinitions& definitions);
};

} // namespace inkmacro::recordfile
