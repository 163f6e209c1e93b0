#pragma once

#include "host/db/OdCmColor.h"
#include "host/db/OdDbObjectId.h"
#include "host/db/OdGe.h"
#include "host/kernel/CFxString.h"

#include <cstdint>
#include <variant>
#include <vector>

class CFxVariantCollection;
class CFxVariantCollectionElement;

/// The typed value of a property; immutable, cheap to copy. A number gives the other kind too, without its fraction. A
/// getter of another type gives a neutral value (0, empty text, origin, color by layer, null id, empty collection).
class INKHOST_EXPORT CFxVariant
{
public:
    enum Type : int
    {
        kNullType = 0,
        kInt32 = 1,
        kDouble = 2,
        kString = 3,
        kPoint3d = 4,
        kColor = 5,
        kCollection = 6,
        kCollectionElement = 7,
        kId = 8,
        kTransparency = 11,
    };

    static const CFxVariant kNull;

    CFxVariant() = default;
    CFxVariant(const CFxString& text) : value_(text) {}
    CFxVariant(std::int32_t value) : value_(value) {}
    CFxVariant(double value) : value_(value) {}
    CFxVariant(const OdGePoint3d& point);
    CFxVariant(const OdCmColor& color) : value_(color) {}
    CFxVariant(const OdCmTransparency& transparency) : value_(transparency) {}
    CFxVariant(const OdDbObjectId& id) : value_(id) {}
    CFxVariant(CFxVariantCollection collection);
    CFxVariant(CFxVariantCollectionElement element);
    CFxVariant(bool) = delete;
    CFxVariant(const char*) = delete;

    bool IsNull() const { return value_.index() == 0; }
    Type GetType() const;
    std::int32_t GetInt32() const;
    double GetDouble() const;
    CFxString GetString() const;
    OdGePoint3d GetPoint3d() const;
    OdCmColor GetColor() const;
    OdCmTransparency GetTransparency() const;
    OdDbObjectId GetId() const;
    const CFxVariantCollection& GetCollection() const;
    const CFxVariantCollectionElement& GetCollectionElement() const;

private:
    // The larger values stand behind a counted pointer, so that a property record stays small: a recording holds
    // millions of them.
    struct Shared;
    template<class T>
    struct Boxed;
    template<class T>
    const T& boxed(Type type) const;

    std::variant<std::monostate, std::int32_t, double, CFxString, OdCmColor, OdDbObjectId, OdCmTransparency,
                 OdSmartPtr<const Shared>>
        value_;
};

/// Value that stands behind a variant: counted, not changed once made.
struct INKHOST_EXPORT CFxVariant::Shared
{
    explicit Shared(Type type) : type(type) {}
    virtual ~Shared() = default;
    void addRef() const { ++references; }
    void release() const
    {
        if (--references == 0)
            delete this;
    }

    const Type type;
    mutable unsigned references = 1;
};

/// A pair of values. In a list of tags and values the tag is a text, in an array it is the running index.
class INKHOST_EXPORT CFxVariantCollectionElement
{
public:
    CFxVariantCollectionElement() = default;
    CFxVariantCollectionElement(CFxVariant tag, CFxVariant value) : tag_(std::move(tag)), value_(std::move(value)) {}

    const CFxVariant* GetTag() const { return &tag_; }
    const CFxVariant* GetValue() const { return &value_; }

private:
    CFxVariant tag_;
    CFxVariant value_;
};

/// A list of elements. It begins with a number: of a value of choice type, that of the item which is chosen.
class INKHOST_EXPORT CFxVariantCollection
{
public:
    CFxVariantCollection() = default;
    explicit CFxVariantCollection(std::vector<CFxVariantCollectionElement> elements, std::int32_t chosen = 0)
        : elements_(std::move(elements)), chosen_(chosen)
    {
    }

    std::int32_t GetChosen() const { return chosen_; }
    const std::vector<CFxVariantCollectionElement>& GetCollectionDataForRead() const { return elements_; }

private:
    std::vector<CFxVariantCollectionElement> elements_;
    std::int32_t chosen_ = 0;
};
