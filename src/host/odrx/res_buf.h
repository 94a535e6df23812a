// A result buffer: one value with a type code, as prompts answer and system variables hold it.
#pragma once

#include "host/ge/point2d.h"
#include "host/ge/point3d.h"
#include "host/odrx/object.h"
#include "host/odrx/string.h"

#include <cstdint>
#include <variant>

class KVHOST_API OdResBuf : public OdRxObject
{
    ODRX_DECLARE_MEMBERS(OdResBuf)

    // Type codes. Real, angle, text and 3D point are those that the application's prompts answer with.
    enum Code : int
    {
        kReal = 5001,
        kPoint2d = 5002,
        kInt16 = 5003,
        kAngle = 5004,
        kText = 5005,
        kPoint3d = 5009,
        kInt32 = 5010,
        kInt8 = 5011,
        kBool = 5012,
    };

    using Value = std::variant<double, OdString, OdGePoint3d, OdGePoint2d, std::int32_t, bool>;

    OdResBuf(int code, Value value) : code_(code), value_(std::move(value)) {}

    // The type code.
    [[nodiscard]] int restype() const { return code_; }

    // The value in the form asked for. Numbers and flags convert into each other, a real being cut and an integer
    // reduced to the width asked for; a value of any other kind gives 0, false, the origin or an empty text. A 2D
    // point reads as a 3D point with z 0, and a 3D point as its x and y.
    [[nodiscard]] bool getBool() const;
    [[nodiscard]] double getDouble() const;
    [[nodiscard]] std::int8_t getInt8() const;
    [[nodiscard]] std::int16_t getInt16() const;
    [[nodiscard]] std::int32_t getInt32() const;
    [[nodiscard]] OdString getString() const;
    [[nodiscard]] OdGePoint2d getPoint2d() const;
    [[nodiscard]] OdGePoint3d getPoint3d() const;

private:
    int code_;
    Value value_;
};

using OdResBufPtr = OdSmartPtr<OdResBuf>;
