// The values that stand alike everywhere in a journal: points, handles, colours, lists.
#pragma once

#include "embedded/json_node.h"
#include "host/db/color.h"
#include "host/db/handle.h"
#include "host/ge/point2d.h"
#include "host/ge/point3d.h"

#include <vector>

namespace kv
{
// Each reads one value and throws BadInput when the node holds another.
[[nodiscard]] OdDbHandle ReadHandle(const JsonNode& node);
[[nodiscard]] OdGePoint3d ReadPoint(const JsonNode& node);
[[nodiscard]] OdGePoint2d ReadPoint2d(const JsonNode& node);
[[nodiscard]] OdCmColor ReadColor(const JsonNode& node);
[[nodiscard]] OdCmTransparency ReadTransparency(const JsonNode& node);
[[nodiscard]] inline QString ReadText(const JsonNode& node)
{
    return ToText(node.text());
}
[[nodiscard]] inline double ReadNumber(const JsonNode& node)
{
    return node.number();
}
[[nodiscard]] inline std::int32_t ReadInteger(const JsonNode& node)
{
    return node.integer();
}

// A list whose items are read one by one.
template <class Read>
[[nodiscard]] auto ReadList(const JsonNode& node, Read read)
{
    std::vector<decltype(read(node))> items;
    items.reserve(node.itemCount());
    node.forEachItem("a list", [&](const JsonNode& item) { items.push_back(read(item)); });
    return items;
}
} // namespace kv
