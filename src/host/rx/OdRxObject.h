#pragma once

#include "host/rx/OdError.h"
#include "host/rx/OdRxClass.h"

#include <concepts>
#include <cstddef>
#include <utility>

/// Root of all counted objects. A new object has one reference, which its maker owns. The count is not atomic: a
/// recording is read by one thread.
class INKHOST_EXPORT OdRxObject
{
public:
    static OdRxClass* desc();

    virtual OdRxClass* isA() const = 0;
    /// This object, or another that stands for it in that class, with one more reference; else null.
    virtual OdRxObject* queryX(const OdRxClass* wanted) const;

    void addRef() const { ++references_; }
    void release() const
    {
        if (--references_ == 0)
            delete this;
    }
    bool isShared() const { return references_ > 1; }

    OdRxObject(const OdRxObject&) = delete;
    OdRxObject& operator=(const OdRxObject&) = delete;

protected:
    OdRxObject() = default;
    virtual ~OdRxObject();

private:
    mutable unsigned references_ = 1;
};

enum OdRxObjMod
{
    kOdRxObjAttach
};

/// Counted pointer.
template<class T>
class OdSmartPtr
{
public:
    OdSmartPtr() = default;
    OdSmartPtr(std::nullptr_t) {}
    /// Shares the object.
    OdSmartPtr(T* object) : object_(object)
    {
        if (object_)
            object_->addRef();
    }
    /// Takes over the reference that the caller has.
    OdSmartPtr(T* object, OdRxObjMod) : object_(object) {}
    OdSmartPtr(const OdSmartPtr& other) : OdSmartPtr(other.object_) {}
    OdSmartPtr(OdSmartPtr&& other) noexcept : object_(std::exchange(other.object_, nullptr)) {}
    template<class U>
    requires std::convertible_to<U*, T*> OdSmartPtr(const OdSmartPtr<U>& other) : OdSmartPtr(other.get()) {}
    template<class U>
    requires std::convertible_to<U*, T*> OdSmartPtr(OdSmartPtr<U>&& other) : object_(other.detach()) {}
    OdSmartPtr& operator=(const OdSmartPtr& other)
    {
        OdSmartPtr copy(other);
        std::swap(object_, copy.object_);
        return *this;
    }
    /// Leaves the former object to the other pointer.
    OdSmartPtr& operator=(OdSmartPtr&& other) noexcept
    {
        std::swap(object_, other.object_);
        return *this;
    }
    ~OdSmartPtr()
    {
        if (object_)
            object_->release();
    }

    T* get() const { return object_; }
    /// Gives the reference to the caller.
    T* detach() { return std::exchange(object_, nullptr); }
    T* operator->() const { return object_; }
    T& operator*() const { return *object_; }
    bool isNull() const { return !object_; }
    explicit operator bool() const { return object_ != nullptr; }
    bool operator==(const OdSmartPtr&) const = default;

private:
    T* object_ = nullptr;
};

using OdRxObjectPtr = OdSmartPtr<OdRxObject>;

/// A new object, owned by the pointer that comes back.
template<class T, class... Args>
OdSmartPtr<T> odrxNew(Args&&... args)
{
    return OdSmartPtr<T>(new T(std::forward<Args>(args)...), kOdRxObjAttach);
}

/// The object as a T if it is one, else null.
template<class T>
OdSmartPtr<T> odrxQuery(const OdRxObject* object)
{
    if (!object)
        return {};
    if (object->isA()->isDerivedFrom(T::desc()))
        return OdSmartPtr<T>(static_cast<T*>(const_cast<OdRxObject*>(object)));
    return OdSmartPtr<T>(static_cast<T*>(object->queryX(T::desc())), kOdRxObjAttach);
}

/// The object as a T; a null pointer stays null, an object of another class raises OdError_NotThatKindOfClass.
template<class T>
OdSmartPtr<T> odrxCast(const OdRxObject* object)
{
    OdSmartPtr<T> result = odrxQuery<T>(object);
    if (object && !result)
        throw OdError_NotThatKindOfClass(object->isA(), T::desc());
    return result;
}
