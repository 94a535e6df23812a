// One item of the data of a custom action: a value of one of many kinds, told apart by a type number.
#pragma once

#include "host/db/color.h"
#include "host/db/object_id.h"
#include "host/export.h"
#include "host/ge/point2d.h"
#include "host/ge/point3d.h"
#include "host/kernel/zt_string.h"
#include "host/odrx/array.h"
#include "host/odrx/class.h"

#include <cstdint>
#include <variant>
#include <vector>

class KVHOST_API CZtCustomActionData
{
public:
    // The type numbers.
    enum Type : int
    {
        kNone = 0,
        kInt16 = 1,
        kString = 2,
        kBool = 3,
        kStringArray = 4,
        kInt = 5,
        kDouble = 6,
        kHandle = 7,
        kClass = 8,
        kHandleArray = 9,
        kClassArray = 10,
        kPoint = 11,
        kPointArray = 12,
        kVector = 13,
        kColor = 14,
        kObjectIdArray = 15,
        kPoint2dArray = 16,
        kDoubleArray = 17,
        kIntArray = 18,
    };

    using HandleArray = std::vector<OdDbHandle>;
    using ClassArray = std::vector<const OdRxClass*>;
    using StringArray = std::vector<CZtString>;

    // The alternatives stand in the order of the type numbers.
    using Value =
        std::variant<std::monostate, std::int16_t, CZtString, bool, StringArray, std::int32_t, double, OdDbHandle,
                     const OdRxClass*, HandleArray, ClassArray, OdGePoint3d, OdArray<OdGePoint3d>, OdGeVector3d,
                     OdCmColor, OdArray<OdDbObjectId>, OdArray<OdGePoint2d>, OdArray<double>, OdArray<std::int32_t>>;

    CZtCustomActionData() = default;
    explicit CZtCustomActionData(Value value) : value_(std::move(value)) {}

    [[nodiscard]] Type GetType() const { return static_cast<Type>(value_.index()); }

    // The value. GetInt and GetInt16 read both widths of integer; a getter on a value of another type gives its empty
    // value: 0, false, an empty text or array, the null handle, a null class, the origin, the colour by layer.
    [[nodiscard]] bool GetBool() const { return get<bool>(); }
    [[nodiscard]] std::int32_t GetInt() const;
    [[nodiscard]] std::int32_t GetInt16() const { return GetInt(); }
    [[nodiscard]] double GetDouble() const { return get<double>(); }
    [[nodiscard]] const CZtString& GetString() const { return get<CZtString>(); }
    [[nodiscard]] const OdCmColor& GetColor() const { return get<OdCmColor>(); }
    [[nodiscard]] OdDbHandle GetHandle() const { return get<OdDbHandle>(); }
    [[nodiscard]] const OdRxClass* GetClass() const { return get<const OdRxClass*>(); }
    [[nodiscard]] const OdGePoint3d& GetPoint() const { return get<OdGePoint3d>(); }
    [[nodiscard]] const OdGeVector3d& GetVector() const { return get<OdGeVector3d>(); }
    [[nodiscard]] const HandleArray& GetHandleArray() const { return get<HandleArray>(); }
    [[nodiscard]] const ClassArray& GetClassArray() const { return get<ClassArray>(); }
    [[nodiscard]] const StringArray& GetStringArray() const { return get<StringArray>(); }
    [[nodiscard]] const OdArray<OdGePoint3d>& GetPointArray() const { return get<OdArray<OdGePoint3d>>(); }
    [[nodiscard]] const OdArray<OdGePoint2d>& Get2dPointArray() const { return get<OdArray<OdGePoint2d>>(); }
    [[nodiscard]] const OdArray<OdDbObjectId>& GetObjectIdArray() const { return get<OdArray<OdDbObjectId>>(); }
    [[nodiscard]] const OdArray<double>& GetDoubleArray() const { return get<OdArray<double>>(); }
    [[nodiscard]] const OdArray<std::int32_t>& GetIntArray() const { return get<OdArray<std::int32_t>>(); }

private:
    template <class T>
    [[nodiscard]] const T& get() const
    {
        static const T empty{};
        const T* held = std::get_if<T>(&value_);
        return held != nullptr ? *held : empty;
    }

    Value value_;
};
