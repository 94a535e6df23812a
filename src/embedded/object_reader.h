// Reads "object" and "drawing" records by the tables of their keys.
#pragma once

#include "embedded/drawing.h"
#include "embedded/json_node.h"

namespace kv
{
// Adds the object of an "object" record, which stands on the line, to the drawing. Throws BadInput for an unknown class
// or key, a value of the wrong type and a handle that has an object already.
void ReadObject(const JsonNode& node, std::int64_t line, Drawing& drawing);

// Takes over the database-wide values of a "drawing" record.
void ReadDrawingValues(const JsonNode& node, Drawing& drawing);
} // namespace kv
