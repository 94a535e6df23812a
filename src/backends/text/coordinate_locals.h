// The locals of a point whose one coordinate changes, in the languages that declare them as C does.
#pragma once

#include "backends/text/fill.h"
#include "objects/axis.h"

namespace kv
{

// Declares getX, getY and getZ with the number.
[[nodiscard]] QString DeclareCoordinates(Indent indent, std::int32_t number);

// Gives the local of one axis its new value, in drawing units.
[[nodiscard]] QString AssignCoordinate(Indent indent, Axis axis, double value, std::int32_t number);

} // namespace kv
