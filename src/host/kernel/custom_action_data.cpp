// Integers of custom actions.
#include "host/kernel/custom_action_data.h"

std::int32_t CZtCustomActionData::GetInt() const
{
    const auto* narrow = std::get_if<std::int16_t>(&value_);
    return narrow != nullptr ? *narrow : get<std::int32_t>();
}
