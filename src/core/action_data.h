// A typed view of the data of a custom action. Reading an item past the end throws OdError_InvalidIndex.
#pragma once

#include "host/kernel/journal_events.h"

#include <optional>

class ActionData
{
public:
    explicit ActionData(const CZtCustomAction& action) : action_(action) {}

    [[nodiscard]] std::int32_t Count() const { return action_.GetDataCount(); }
    [[nodiscard]] const CZtCustomActionData& Item(std::int32_t index) const { return action_.GetData(index); }
    [[nodiscard]] CZtCustomActionData::Type Type(std::int32_t index) const { return Item(index).GetType(); }

    // True when an item is of the type.
    [[nodiscard]] bool Is(std::int32_t index, CZtCustomActionData::Type type) const { return Type(index) == type; }

    // True when two items are the parallel arrays of handles and classes of entities.
    [[nodiscard]] bool IsEntityArray(std::int32_t index) const
    {
        return Is(index, CZtCustomActionData::kHandleArray) && Is(index + 1, CZtCustomActionData::kClassArray);
    }

    // True when two items are the handle and the class of one object.
    [[nodiscard]] bool IsObject(std::int32_t index) const
    {
        return Is(index, CZtCustomActionData::kHandle) && Is(index + 1, CZtCustomActionData::kClass);
    }

    // The value of an item; nothing when the item is of another type.
    [[nodiscard]] std::optional<QString> Text(std::int32_t index) const
    {
        return Read<QString>(index, CZtCustomActionData::kString, &CZtCustomActionData::GetString);
    }
    [[nodiscard]] std::optional<bool> Flag(std::int32_t index) const
    {
        return Read<bool>(index, CZtCustomActionData::kBool, &CZtCustomActionData::GetBool);
    }
    [[nodiscard]] std::optional<double> Real(std::int32_t index) const
    {
        return Read<double>(index, CZtCustomActionData::kDouble, &CZtCustomActionData::GetDouble);
    }
    [[nodiscard]] std::optional<OdCmColor> Color(std::int32_t index) const
    {
        return Read<OdCmColor>(index, CZtCustomActionData::kColor, &CZtCustomActionData::GetColor);
    }
    [[nodiscard]] std::optional<OdGePoint3d> Point(std::int32_t index) const
    {
        return Read<OdGePoint3d>(index, CZtCustomActionData::kPoint, &CZtCustomActionData::GetPoint);
    }
    [[nodiscard]] std::optional<OdGeVector3d> Vector(std::int32_t index) const
    {
        return Read<OdGeVector3d>(index, CZtCustomActionData::kVector, &CZtCustomActionData::GetVector);
    }

    // An integer of either width.
    [[nodiscard]] std::optional<std::int32_t> Integer(std::int32_t index) const
    {
        const CZtCustomActionData& item = Item(index);
        const bool isInteger =
            item.GetType() == CZtCustomActionData::kInt || item.GetType() == CZtCustomActionData::kInt16;
        return isInteger ? std::optional(item.GetInt()) : std::nullopt;
    }

    // An array; null when the item is of another type.
    [[nodiscard]] const OdArray<OdGePoint3d>* Points(std::int32_t index) const
    {
        return ReadArray(index, CZtCustomActionData::kPointArray, &CZtCustomActionData::GetPointArray);
    }
    [[nodiscard]] const OdArray<OdGePoint2d>* Points2d(std::int32_t index) const
    {
        return ReadArray(index, CZtCustomActionData::kPoint2dArray, &CZtCustomActionData::Get2dPointArray);
    }
    [[nodiscard]] const OdArray<double>* Reals(std::int32_t index) const
    {
        return ReadArray(index, CZtCustomActionData::kDoubleArray, &CZtCustomActionData::GetDoubleArray);
    }
    [[nodiscard]] const OdArray<std::int32_t>* Integers(std::int32_t index) const
    {
        return ReadArray(index, CZtCustomActionData::kIntArray, &CZtCustomActionData::GetIntArray);
    }
    [[nodiscard]] const OdArray<OdDbObjectId>* Ids(std::int32_t index) const
    {
        return ReadArray(index, CZtCustomActionData::kObjectIdArray, &CZtCustomActionData::GetObjectIdArray);
    }

private:
    template <class T, class Getter>
    [[nodiscard]] std::optional<T> Read(std::int32_t index, CZtCustomActionData::Type type, Getter getter) const
    {
        const CZtCustomActionData& item = Item(index);
        return item.GetType() == type ? std::optional<T>((item.*getter)()) : std::nullopt;
    }

    template <class Array>
    [[nodiscard]] const Array* ReadArray(std::int32_t index, CZtCustomActionData::Type type,
                                         const Array& (CZtCustomActionData::*getter)() const) const
    {
        const CZtCustomActionData& item = Item(index);
        return item.GetType() == type ? &(item.*getter)() : nullptr;
    }

    const CZtCustomAction& action_;
};
