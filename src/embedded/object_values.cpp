// Finding the values of an object; an object has few, so that they are searched in order.
#include "embedded/object_values.h"

#include <algorithm>

namespace kv
{
const ObjectKey* FindKey(const KeyList& keys, std::string_view name)
{
    const auto found = std::find_if(keys.begin(), keys.end(), [&](const ObjectKey& key) { return key.name == name; });
    return found != keys.end() ? &*found : nullptr;
}

void ObjectValues::set(const ObjectKey& key, ObjectValue value)
{
    for (auto& [givenKey, givenValue] : given_)
    {
        if (givenKey == &key)
        {
            givenValue = std::move(value);
            return;
        }
    }
    given_.emplace_back(&key, std::move(value));
}

const ObjectValue* ObjectValues::find(std::string_view name) const
{
    for (const auto& [key, value] : given_)
    {
        if (key->name == name)
        {
            return &value;
        }
    }
    return nullptr;
}
} // namespace kv
