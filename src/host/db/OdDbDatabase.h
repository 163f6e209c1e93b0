#pragma once

#include "host/db/OdDbRecords.h"

#include <algorithm>
#include <cstdint>
#include <memory>
#include <unordered_map>

/// Where an id points to. The object is null while only the handle has been heard of.
struct OdDbStub
{
    OdDbHandle handle;
    OdDbObjectPtr object;
};

/// A drawing: its objects by handle. Owns them and the entries behind their ids, so ids live as long as the drawing.
class INKHOST_EXPORT OdDbDatabase
{
public:
    OdDbDatabase();
    ~OdDbDatabase();
    OdDbDatabase(const OdDbDatabase&) = delete;
    OdDbDatabase& operator=(const OdDbDatabase&) = delete;

    /// The id of that handle, whether an object stands behind it or not; the null id for the null handle.
    OdDbObjectId getOdDbObjectId(const OdDbHandle& handle);
    /// The same of a handle that somebody has asked for, else the null id.
    OdDbObjectId findOdDbObjectId(const OdDbHandle& handle) const;
    /// Puts the object into the drawing under the handle and tells it its id. A former object there is let go.
    OdDbObjectId addObject(const OdDbHandle& handle, OdSmartPtr<OdDbObject> object);

    /// The handle that the next new object gets: one above all that the drawing or its recording speaks of. Raises
    /// OdError when there is none left.
    OdDbHandle handseed() const;
    /// Somebody refers to an object by that handle.
    void noteHandle(const OdDbHandle& handle) { lastHandle_ = std::max(lastHandle_, handle); }

    /// The tables, each made of the records that the drawing had when it was first asked for.
    OdDbObjectId getLayerTableId() { return tableId(layerTable_, OdDbLayerTableRecord::desc()); }
    OdDbObjectId getLinetypeTableId() { return tableId(linetypeTable_, OdDbLinetypeTableRecord::desc()); }
    OdDbObjectId getRegAppTableId() { return tableId(regAppTable_, OdDbRegAppTableRecord::desc()); }
    OdDbObjectId getBlockTableId() { return tableId(blockTable_, OdDbBlockTableRecord::desc()); }

    /// The line styles that every drawing has. The null id for one that the drawing does not speak of.
    OdDbObjectId getLinetypeByLayerId();
    OdDbObjectId getLinetypeByBlockId();
    OdDbObjectId getLinetypeContinuousId();
    /// Takes the definition of a line style over from a file of line styles; one that is there already gets the new
    /// description. Raises OdError, eUndefinedLineType when the file has no good definition of that name.
    void loadLineTypeFile(const OdString& name, const OdString& path);

    /// The layer of new entities.
    OdDbObjectId getCLAYER() const { return currentLayerId_; }
    void setCLAYER(OdDbObjectId id) { currentLayerId_ = id; }
    /// The block that is drawn into.
    OdDbObjectId getActiveLayoutBTRId() const { return activeBlockId_; }
    void setActiveLayoutBTRId(OdDbObjectId id) { activeBlockId_ = id; }

    OdDbObjectId currentLayoutId() const { return currentLayoutId_; }
    void setCurrentLayoutId(OdDbObjectId id) { currentLayoutId_ = id; }
    /// The dictionary of the groups by name.
    OdDbObjectId getGroupDictionaryId() const { return groupDictionaryId_; }
    void setGroupDictionaryId(OdDbObjectId id) { groupDictionaryId_ = id; }

    OdDbObjectId tablestyle() const { return tablestyle_; }
    void setTablestyle(OdDbObjectId id) { tablestyle_ = id; }
    OdDbObjectId currentDimensionStyleId() const { return currentDimensionStyleId_; }
    void setCurrentDimensionStyleId(OdDbObjectId id) { currentDimensionStyleId_ = id; }
    OdDbObjectId currentRichLineStyleId() const { return currentRichLineStyleId_; }
    void setCurrentRichLineStyleId(OdDbObjectId id) { currentRichLineStyleId_ = id; }
    OdDbObjectId currentLineStyleId() const { return currentLineStyleId_; }
    void setCurrentLineStyleId(OdDbObjectId id) { currentLineStyleId_ = id; }

    /// Where the files of line styles (*.lin) lie, in the order of the search: absolute paths.
    const std::vector<OdString>& lineStyleFolders() const { return lineStyleFolders_; }
    void setLineStyleFolders(std::vector<OdString> folders) { lineStyleFolders_ = std::move(folders); }

    /// A variable of the drawing or the host, a truth value as 0 or 1; 0 when it is not known. Names do not differ in
    /// upper and lower case.
    double getSysVarDouble(const OdString& name) const;
    /// The same without its fraction, and 0 when it has more than 16 bits.
    std::int16_t getSysVarInt16(const OdString& name) const;
    void setSysVar(const OdString& name, double value) { sysVars_[name] = value; }

    /// All objects, by ascending handle.
    OdArray<OdDbObjectId> objectIds() const;

private:
    using Table = std::unique_ptr<OdDbStub>;

    OdDbObjectId tableId(Table& table, const OdRxClass* recordClass);
    OdDbObjectId linetypeId(const char* name);

    std::unordered_map<OdDbHandle, OdDbStub, OdDbHandleHash> stubs_;
    Table layerTable_;
    Table linetypeTable_;
    Table regAppTable_;
    Table blockTable_;
    OdDbHandle lastHandle_;
    OdDbObjectId currentLayerId_;
    OdDbObjectId activeBlockId_;
    OdDbObjectId currentLayoutId_;
    OdDbObjectId groupDictionaryId_;
    OdDbObjectId tablestyle_;
    OdDbObjectId currentDimensionStyleId_;
    OdDbObjectId currentRichLineStyleId_;
    OdDbObjectId currentLineStyleId_;
    std::vector<OdString> lineStyleFolders_;
    std::map<OdString, double, OdDbNameOrder> sysVars_;
};
