// The variables of the objects that the creation pass has met.
#pragma once

#include "core/variable_names.h"
#include "host/db/object_id.h"

#include <QtCore/QString>

#include <algorithm>
#include <cstdint>
#include <optional>
#include <vector>

#include <tsl/robin_map.h>

// Only looked up, never walked. Names are made when they are asked for, which few are.
class CreatedObjects
{
public:
    CreatedObjects() { created_.max_load_factor(maxLoad); }

    // Enters the variable of a type and a number; an existing entry of the object is replaced.
    void Set(const OdDbObjectId& id, const QString& typeName, std::int32_t number)
    {
        auto type = std::ranges::find(typeNames_, typeName);
        if (type == typeNames_.end())
        {
            type = typeNames_.insert(type, typeName);
        }
        created_[id] = {static_cast<std::int32_t>(type - typeNames_.begin()), number};
    }

    // The variable of an object, nothing when it isn't in here.
    [[nodiscard]] std::optional<QString> FindName(const OdDbObjectId& id) const
    {
        const auto found = created_.find(id);
        if (found == created_.end())
        {
            return std::nullopt;
        }
        const auto [type, number] = found->second;
        return VariableName(typeNames_.at(static_cast<std::size_t>(type)), number, PlainPointerMark::Removed);
    }

private:
    struct Variable
    {
        std::int32_t type; // its place among the names
        std::int32_t number;
    };

    static constexpr float maxLoad = 0.8F; // as for the known objects

    std::vector<QString> typeNames_;
    tsl::robin_map<OdDbObjectId, Variable> created_;
};
