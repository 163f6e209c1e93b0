#pragma once

#include "host/db/OdDbObject.h"

class OdDbDatabase;

/// What is drawn, as against the records and styles behind it.
class INKHOST_EXPORT OdDbEntity : public OdDbObject
{
public:
    using OdDbObject::OdDbObject;
    static OdRxClass* desc();
    static std::span<const OdDbField> fields();

    /// The null id when the drawing does not tell.
    OdDbObjectId layerId() const { return layerId_; }
    void setLayer(OdDbObjectId layer) { layerId_ = layer; }
    /// Takes over what the drawing has for new entities: the active layer.
    void setDatabaseDefaults(const OdDbDatabase& database);

private:
    OdDbObjectId layerId_;
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
