#pragma once

#include "host/db/OdDbObject.h"

class OdDbDatabase;

#define INKHOST_ENTITY_DATA(READ, HOLD, FIELD) HOLD(OdDbObjectId, layer, "handle of the layer")

/// What is drawn, as against the records and styles behind it.
class INKHOST_EXPORT OdDbEntity : public OdDbObject
{
public:
    using OdDbObject::OdDbObject;
    static OdRxClass* desc();
    INKHOST_DATA(OdDbEntity, INKHOST_ENTITY_DATA)

    /// The null id when the drawing does not tell.
    OdDbObjectId layerId() const { return layer_; }
    void setLayer(OdDbObjectId layer) { layer_ = layer; }
    /// Takes over what the drawing has for new entities: the active layer.
    void setDatabaseDefaults(const OdDbDatabase& database);
};

/// An entity along or over a list of points. No class of drawing objects of its own.
class INKHOST_EXPORT OdDbVertexEntity : public OdDbEntity
{
public:
    using OdDbEntity::OdDbEntity;

    const OdArray<OdGePoint3d>& vertices() const { return vertices_; }
    int numVertices() const { return static_cast<int>(vertices_.length()); }
    /// Raises OdError_InvalidIndex.
    const OdGePoint3d& vertexAt(int index) const { return vertices_[static_cast<std::size_t>(index)]; }

protected:
    OdArray<OdGePoint3d> vertices_;
};
