#pragma once

#include "host/db/OdGe.h"
#include "host/rx/OdRxObject.h"

#include <cstdint>
#include <variant>

class OdResBuf;
using OdResBufPtr = OdSmartPtr<OdResBuf>;

/// One element of a result-buffer chain: a type code and a value. A getter that does not fit the value gives the
/// neutral value of its own type; the integer getters convert among each other.
class INKHOST_EXPORT OdResBuf : public OdRxObject
{
public:
    /// Type codes of answers at prompts.
    enum Type : int
    {
        kRtDouble = 5001,
        kRtPoint2d = 5002,
        kRtInt16 = 5003,
        kRtAngle = 5004,
        kRtString = 5005,
        kRtPoint3d = 5009,
        kRtInt32 = 5010,
        kRtInt8 = 5011,
        kRtBool = 5012,
    };
    /// Group codes of data that applications put to objects.
    enum DxfCode : int
    {
        kDxfXdAsciiString = 1000,
        kDxfRegAppName = 1001,
        kDxfXdControlString = 1002,
        kDxfXdInteger32 = 1071,
    };
    using Value = std::variant<std::monostate, OdString, double, std::int8_t, std::int16_t, std::int32_t, bool,
                               OdGePoint2d, OdGePoint3d>;

    OdResBuf(int type, Value value) : type_(type), value_(std::move(value)) {}
    ~OdResBuf() override;

    static OdRxClass* desc();
    OdRxClass* isA() const override { return desc(); }

    int restype() const { return type_; }
    const Value& value() const { return value_; }
    OdString getString() const;
    double getDouble() const;
    bool getBool() const;
    std::int8_t getInt8() const { return static_cast<std::int8_t>(integer()); }
    std::int16_t getInt16() const { return static_cast<std::int16_t>(integer()); }
    std::int32_t getInt32() const { return integer(); }
    OdGePoint2d getPoint2d() const;
    OdGePoint3d getPoint3d() const;

    OdResBufPtr next() const { return next_; }
    void setNext(OdResBufPtr next) { next_ = std::move(next); }

private:
    std::int32_t integer() const;

    int type_;
    Value value_;
    OdResBufPtr next_;
};
