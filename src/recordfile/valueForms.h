#pragma once

#include "host/db/OdResBuf.h"
#include "host/kernel/CFxCustomActionData.h"
#include "host/kernel/CFxVariant.h"
#include "recordfile/plainForms.h"

namespace inkmacro::recordfile {

// The forms of typed values: of properties, of custom actions and of result buffers.

template<>
struct Form<CFxVariant>
{
    static CFxVariant read(const Json& json);
    static void write(JsonOut& out, const CFxVariant& value);
    static QJsonObject schema(SchemaDefinitions& definitions);
};

template<>
struct Form<CFxVariantCollectionElement>
{
    static CFxVariantCollectionElement read(const Json& json);
    static void write(JsonOut& out, const CFxVariantCollectionElement& value);
    static QJsonObject schema(SchemaDefinitions& definitions);
};

template<>
struct Form<CFxVariantCollection>
{
    static CFxVariantCollection read(const Json& json);
    static void write(JsonOut& out, const CFxVariantCollection& value);
    static QJsonObject schema(SchemaDefinitions& definitions);
};

template<>
struct Form<CFxCustomActionData>
{
    static CFxCustomActionData read(const Json& json);
    static void write(JsonOut& out, const CFxCustomActionData& value);
    static QJsonObject schema(SchemaDefinitions& definitions);
};

/// The key that stands for the type.
std::string_view dataType(const CFxCustomActionData& data);
std::string_view dataType(CFxCustomActionData::_Type type);

/// A chain of one or more elements.
template<>
struct Form<OdResBufPtr>
{
    static OdResBufPtr read(const Json& json);
    static void write(JsonOut& out, const OdResBufPtr& first);
    static QJsonObject schema(SchemaDefinitions& definitions);
};

/// A chain of any length; null for one without elements. Written as a list.
struct ResBufListForm
{
    static OdResBufPtr read(const Json& json);
    static void write(JsonOut& out, const OdResBufPtr& first);
    static QJsonObject schema(SchemaDefinitions& definitions);
};

} // namespace inkmacro::recordfile
