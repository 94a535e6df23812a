// Reads the values of events: of properties, of prompts and system variables, of custom actions.
#pragma once

#include "embedded/drawing.h"
#include "embedded/json_node.h"
#include "embedded/name_pool.h"
#include "host/kernel/custom_action_data.h"
#include "host/kernel/variant.h"

namespace kv
{
class ValueReader
{
public:
    ValueReader(Drawing& drawing, ClassNames& classes) : drawing_(drawing), classes_(classes) {}

    // Each reads one value and throws BadInput when the node holds none of its kind.
    [[nodiscard]] CZtVariant variant(const JsonNode& node);
    [[nodiscard]] OdResBufPtr resultBuffer(const JsonNode& node) const;
    [[nodiscard]] CZtCustomActionData actionItem(const JsonNode& node);

    // True when, since the last call, an id was read that the drawing doesn't have so far. The object may still come,
    // so that such a value must go through ResolveIds when all objects are known.
    [[nodiscard]] bool takeUnresolved() { return std::exchange(unresolved_, false); }

private:
    [[nodiscard]] OdDbObjectId id(const JsonNode& node);
    [[nodiscard]] CZtVariantCollection collection(const JsonNode& node);
    [[nodiscard]] CZtVariantCollectionElement element(const JsonNode& node);

    Drawing& drawing_;
    ClassNames& classes_;
    bool unresolved_ = false;
};

// The value with every id of an object that the drawing doesn't have made null.
[[nodiscard]] CZtVariant ResolveIds(const CZtVariant& value, Drawing& drawing);
[[nodiscard]] CZtCustomActionData ResolveIds(const CZtCustomActionData& item, Drawing& drawing);
} // namespace kv
