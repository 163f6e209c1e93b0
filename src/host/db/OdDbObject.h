#pragma once

#include "host/db/OdCmColor.h"
#include "host/db/OdDbObjectId.h"
#include "host/db/OdGe.h"
#include "host/db/OdResBuf.h"
#include "host/rx/OdArray.h"

#include <array>
#include <map>
#include <optional>
#include <span>
#include <variant>

class OdDbObject;
struct OdDbFaceRecord;
struct OdDbHatchLoop;
struct OdDbMlineElement;

/// Names in a drawing differ in more than upper and lower case.
struct OdDbNameOrder
{
    bool operator()(const OdString& left, const OdString& right) const
    {
        return left.compare(right, Qt::CaseInsensitive) < 0;
    }
};

/// Objects by name.
using OdDbNamedIds = std::map<OdString, OdDbObjectId, OdDbNameOrder>;
/// The null id for a name that is not among them.
INKHOST_EXPORT OdDbObjectId oddbIdOf(const OdDbNamedIds& ids, const OdString& name);

/// Data of other applications, a chain each. A chain without elements is null.
using OdDbXData = std::map<OdString, OdResBufPtr, OdDbNameOrder>;

/// One piece of an object's data that a recording file can carry. The tables of these are the only list of fields:
/// reading, writing and the schema of recording files follow them.
struct OdDbField
{
    template<class... Value>
    using MemberOf = std::variant<Value OdDbObject::*...>;
    using Member =
        MemberOf<bool, int, double, OdString, OdGePoint3d, OdGeVector3d, OdGeScale3d, std::optional<OdCmColor>,
                 OdDbObjectId, OdDbNamedIds, OdDbXData, OdArray<OdDbObjectId>, OdArray<OdGePoint2d>,
                 OdArray<OdGePoint3d>, OdArray<double>, OdArray<OdString>, OdArray<OdArray<OdString>>,
                 OdArray<OdDbFaceRecord>, OdArray<OdDbHatchLoop>, OdArray<OdDbMlineElement>, std::array<bool, 4>,
                 std::array<OdGePoint3d, 4>, std::array<OdArray<OdDbObjectId>, 4>>;

    template<class Value, class Object>
    constexpr OdDbField(const char* key, const char* meaning, Value Object::*member)
        : key(key), meaning(meaning), member(static_cast<Value OdDbObject::*>(member))
    {
    }

    const char* key;     ///< the read operation's name without `get`; its plural when the operation takes an index
    const char* meaning; ///< a phrase for the reference page
    Member member;       ///< only for objects of the class in whose table the field stands
};

/// An object of a drawing. Plain data with the operations that the module reads; a class without data of its own is
/// told by its descriptor alone.
class INKHOST_EXPORT OdDbObject : public OdRxObject
{
public:
    explicit OdDbObject(OdRxClass* cls) : class_(cls) {}

    static OdRxClass* desc();
    static std::span<const OdDbField> fields();
    OdRxClass* isA() const override { return class_; }

    OdDbObjectId objectId() const { return objectId_; }
    OdDbHandle getDbHandle() const { return objectId_.getHandle(); }
    bool isErased() const { return erased_; }
    /// The objects that this one notifies of its changes, in the order in which they were attached.
    const OdArray<OdDbObjectId>& getPersistentReactors() const { return reactors_; }
    /// The entry of that name in the object's extension dictionary; the null id when there is none.
    OdDbObjectId getExtension(const OdString& name) const { return oddbIdOf(extensions_, name); }
    /// What the application has put to the object, without the row that names the application; null for nothing.
    OdResBufPtr xData(const OdString& application) const;
    /// Puts data of applications in the place of what they had. Each begins with a row 1001 that names the application;
    /// one that has no further row loses its data.
    void setXData(const OdResBufPtr& chain);

private:
    friend class OdDbDatabase;
    OdRxClass* class_;
    OdDbObjectId objectId_;
    bool erased_ = false;
    OdArray<OdDbObjectId> reactors_;
    OdDbNamedIds extensions_;
    OdDbXData xData_;
};

using OdDbObjectPtr = OdSmartPtr<OdDbObject>;
