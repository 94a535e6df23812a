// A typed view of the data of a custom action. Reading an item past the end throws OdError_InvalidIndex.
#pragma once

#include "host/kernel/journal_events.h"

#include <optional>

class ActionData
{
public:
    explicit ActionData(const CZtCustomAction& action) : action_(action) {}

    [[nodiscard]] std::int32_t Count() const { return action_.GetDataCount(); }
    [[nodiscard]] CZtCustomActionData::Type Type(std::int32_t index) const { return Item(index).GetType(); }

    // The value of an item; nothing when the item is of another type.
    [[nodiscard]] std::optional<QString> Text(std::int32_t index) const
    {
        return Read<QString>(index, CZtCustomActionData::kString, &CZtCustomActionData::GetString);
    }
    [[nodiscard]] std::optional<OdGePoint3d> Point(std::int32_t index) const
    {
        return Read<OdGePoint3d>(index, CZtCustomActionData::kPoint, &CZtCustomActionData::GetPoint);
    }

    // An integer of either width.
    [[nodiscard]] std::optional<std::int32_t> Integer(std::int32_t index) const
    {
        const CZtCustomActionData& item = Item(index);
        const bool isInteger =
            item.GetType() == CZtCustomActionData::kInt || item.GetType() == CZtCustomActionData::kInt16;
        return isInteger ? std::optional(item.GetInt()) : std::nullopt;
    }

private:
    [[nodiscard]] const CZtCustomActionData& Item(std::int32_t index) const { return action_.GetData(index); }

    template <class T, class Getter>
    [[nodiscard]] std::optional<T> Read(std::int32_t index, CZtCustomActionData::Type type, Getter getter) const
    {
        const CZtCustomActionData& item = Item(index);
        return item.GetType() == type ? std::optional<T>((item.*getter)()) : std::nullopt;
    }

    const CZtCustomAction& action_;
};
