// Reading operations of entities that are more than a look at a member.

#include "host/db/OdDbEntities.h"

#include "host/db/OdDbCurves.h"
#include "host/db/OdDbDatabase.h"
#include "host/db/OdDbSurfaces.h"

namespace {

template<class T, std::size_t count>
const T& at(const std::array<T, count>& items, std::size_t index)
{
    if (index >= count)
        throw OdError_InvalidIndex();
    return items[index];
}

} // namespace

void OdDbEntity::setDatabaseDefaults(const OdDbDatabase& database)
{
    layer_ = database.getCLAYER();
}

double OdDbPolyline::getBulgeAt(unsigned index) const
{
    if (index >= points_.length())
        throw OdError_InvalidIndex();
    return index < bulges_.length() ? bulges_[index] : 0.0;
}

int OdDbFaceRecord::getVertexAt(std::size_t corner) const
{
    return at(vertices, corner);
}

const OdGePoint3d& OdDbFilledArea::getPointAt(std::size_t index) const
{
    return at(points_, index);
}

const OdGePoint3d& OdDbFace::getVertexAt(std::size_t index) const
{
    return at(vertices_, index);
}

bool OdDbFace::isEdgeVisibleAt(std::size_t index) const
{
    return at(edgesVisible_, index);
}

OdArray<OdDbObjectPtr> OdDbRegion::explode() const
{
    OdArray<OdDbObjectPtr> pieces;
    for (const OdDbObjectId& id : pieces_)
        if (OdDbObjectPtr piece = id.openObject())
            pieces.append(std::move(piece));
    return pieces;
}

OdArray<OdDbObjectId> OdDbHatch::getAssocObjIds() const
{
    OdArray<OdDbObjectId> ids;
    for (const OdDbHatchLoop& loop : loops_)
        for (const OdDbObjectId& id : loop.assocObjIds)
            ids.append(id);
    return ids;
}

OdString OdDbTable::textString(unsigned row, unsigned column) const
{
    if (row >= textStrings_.length() || column >= textStrings_[row].length())
        return {};
    return textStrings_[row][column];
}

OdString OdDbTable::cellStyle(unsigned row, int column) const
{
    return column == -1 && row < cellStyles_.length() ? cellStyles_[row] : OdString();
}
