#pragma once

#include "host/db/OdCmColor.h"
#include "host/db/OdDbObjectId.h"
#include "host/db/OdGe.h"
#include "host/kernel/CFxString.h"
#include "host/rx/OdArray.h"

#include <variant>
#include <vector>

/// One typed value of a custom action. A getter of another type than the value's gives that type's neutral value.
class INKHOST_EXPORT CFxCustomActionData
{
public:
    enum _Type : int
    {
        kInt16 = 0,
        kDouble = 1,
        kString = 2,
        kBool = 3,
        kStringArray = 4,
        kInt = 5,
        kColor = 6,
        kHandle = 7,
        kClass = 8,
        kHandleArray = 9,
        kClassArray = 10,
        kPoint = 11,
        kPointArray = 12,
        kVector = 13,
        kDoubleArray = 14,
        kIntArray = 15,
        k2dPointArray = 16,
        kObjectIdArray = 17,
    };

    /// One alternative a type, in the order of `_Type`.
    using Value = std::variant<std::int16_t, double, CFxString, bool, std::vector<CFxString>, int, OdCmColor,
                               OdDbHandle, const OdRxClass*, std::vector<OdDbHandle>, std::vector<const OdRxClass*>,
                               OdGePoint3d, OdArray<OdGePoint3d>, OdGeVector3d, OdArray<double>, OdArray<int>,
                               OdArray<OdGePoint2d>, OdArray<OdDbObjectId>>;

    CFxCustomActionData(Value value) : value_(std::move(value)) {}

    _Type GetType() const { return static_cast<_Type>(value_.index()); }
    bool GetBool() const { return get<bool>(); }
    int GetInt16() const { return get<std::int16_t>(); }
    int GetInt() const { return get<int>(); }
    double GetDouble() const { return get<double>(); }
    const CFxString& GetString() const { return get<CFxString>(); }
    const std::vector<CFxString>& GetStringArray() const { return get<std::vector<CFxString>>(); }
    const OdGePoint3d& GetPoint() const { return get<OdGePoint3d>(); }
    const OdGeVector3d& GetVector() const { return get<OdGeVector3d>(); }
    const OdCmColor& GetColor() const { return get<OdCmColor>(); }
    const OdDbHandle& GetHandle() const { return get<OdDbHandle>(); }
    const OdRxClass* GetClass() const { return get<const OdRxClass*>(); }
    const std::vector<OdDbHandle>& GetHandleArray() const { return get<std::vector<OdDbHandle>>(); }
    const std::vector<const OdRxClass*>& GetClassArray() const { return get<std::vector<const OdRxClass*>>(); }
    const OdArray<OdGePoint3d>& GetPointArray() const { return get<OdArray<OdGePoint3d>>(); }
    const OdArray<OdGePoint2d>& Get2dPointArray() const { return get<OdArray<OdGePoint2d>>(); }
    const OdArray<double>& GetDoubleArray() const { return get<OdArray<double>>(); }
    const OdArray<int>& GetIntArray() const { return get<OdArray<int>>(); }
    const OdArray<OdDbObjectId>& GetObjectIdArray() const { return get<OdArray<OdDbObjectId>>(); }

private:
    template<class T>
    const T& get() const
    {
        static const T neutral{};
        const T* held = std::get_if<T>(&value_);
        return held ? *held : neutral;
    }

    Value value_;
};
