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
#include <type_traits>
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

template<class T>
using OdDbFour = std::array<T, 4>;

/// One piece of an object's data that a recording file can carry. Reading, writing and the schema of recording files
/// follow the fields of the classes.
struct OdDbField
{
    template<class... Value>
    using MemberOf = std::variant<Value OdDbObject::*...>;
    using Member =
        MemberOf<bool, int, double, OdString, OdGePoint3d, OdGeVector3d, OdGeScale3d, std::optional<OdCmColor>,
                 OdDbObjectId, OdDbNamedIds, OdDbXData, OdArray<OdDbObjectId>, OdArray<OdGePoint2d>,
                 OdArray<OdGePoint3d>, OdArray<double>, OdArray<OdString>, OdArray<OdArray<OdString>>,
                 OdArray<OdDbFaceRecord>, OdArray<OdDbHatchLoop>, OdArray<OdDbMlineElement>, OdDbFour<bool>,
                 OdDbFour<OdGePoint3d>, OdDbFour<OdArray<OdDbObjectId>>>;

    template<class Value, class Object>
    constexpr OdDbField(const char* key, const char* meaning, Value Object::*member)
        : key(key), meaning(meaning), member(static_cast<Value OdDbObject::*>(member))
    {
    }

    const char* key;     ///< the read operation's name without `get`; its plural when the operation takes an index
    const char* meaning; ///< a phrase for the reference page
    Member member;       ///< only for objects of the class that has the field
};

template<class T>
using OdDbRead = std::conditional_t<std::is_arithmetic_v<T>, T, const T&>;

/// The data of a drawing class, from one list of them: members, read operations and fields. The list is a macro that is
/// given three others:
///
///     READ(OdGePoint3d, center, "the center")      a member `center_`, 0 or empty, that `center()` reads
///     READ(double, scale, "the scale", 1.0)        the same with another value at first
///     HOLD(OdArray<OdGePoint2d>, points, "...")    the member alone; what reads it is written by hand
///     FIELD(vertices, "the vertices")              the field alone; its member is a parent's
#define INKHOST_DATA(Class, LIST)                                                                                      \
public:                                                                                                                \
    static std::span<const OdDbField> fields()                                                                         \
    {                                                                                                                  \
        using Self = Class;                                                                                            \
        static constexpr OdDbField table[] = {LIST(INKHOST_FIELD, INKHOST_FIELD, INKHOST_PARENTS_FIELD)};              \
        return table;                                                                                                  \
    }                                                                                                                  \
    LIST(INKHOST_READ, INKHOST_NOTHING, INKHOST_NOTHING)                                                               \
                                                                                                                       \
private:                                                                                                               \
    LIST(INKHOST_MEMBER, INKHOST_MEMBER, INKHOST_NOTHING)                                                              \
                                                                                                                       \
public:

#define INKHOST_FIELD(Type, name, meaning, ...) INKHOST_PARENTS_FIELD(name, meaning)
#define INKHOST_PARENTS_FIELD(name, meaning) {#name, meaning, &Self::name##_},
#define INKHOST_READ(Type, name, ...)                                                                                  \
    OdDbRead<Type> name() const                                                                                        \
    {                                                                                                                  \
        return name##_;                                                                                                \
    }
#define INKHOST_MEMBER(Type, name, meaning, ...) Type name##_{__VA_ARGS__};
#define INKHOST_NOTHING(...)

#define INKHOST_OBJECT_DATA(READ, HOLD, FIELD)                                                                         \
    READ(bool, isErased, "the object was erased")                                                                      \
    HOLD(OdArray<OdDbObjectId>, reactors, "handles of the objects that are notified of changes")                       \
    HOLD(OdDbNamedIds, extensionDictionary, "handles of the objects that hang on this one, by name")                   \
    HOLD(OdDbXData, xData,                                                                                             \
         "data of other applications by their names: result buffers with group codes, without the row 1001")

/// An object of a drawing. Plain data with the operations that the module reads; a class without data of its own is
/// told by its descriptor alone.
class INKHOST_EXPORT OdDbObject : public OdRxObject
{
public:
    explicit OdDbObject(OdRxClass* cls) : class_(cls) {}

    static OdRxClass* desc();
    INKHOST_DATA(OdDbObject, INKHOST_OBJECT_DATA)
    OdRxClass* isA() const override { return class_; }

    OdDbObjectId objectId() const { return objectId_; }
    OdDbHandle getDbHandle() const { return objectId_.getHandle(); }
    /// The objects that this one notifies of its changes, in the order in which they were attached.
    const OdArray<OdDbObjectId>& getPersistentReactors() const { return reactors_; }
    /// The entry of that name in the object's extension dictionary; the null id when there is none.
    OdDbObjectId getExtension(const OdString& name) const { return oddbIdOf(extensionDictionary_, name); }
    /// What the application has put to the object, without the row that names the application; null for nothing.
    OdResBufPtr xData(const OdString& application) const;
    /// Puts data of applications in the place of what they had. Each begins with a row 1001 that names the application;
    /// one that has no further row loses its data.
    void setXData(const OdResBufPtr& chain);

private:
    friend class OdDbDatabase;
    OdRxClass* class_;
    OdDbObjectId objectId_;
};

using OdDbObjectPtr = OdSmartPtr<OdDbObject>;
