// The locals of a point whose one coordinate changes, in the languages that declare them as C does.
#pragma once

#include "backends/text/fill.h"
#include "objects/axis.h"

namespace kv
{

// The stem of the local that holds a coordinate.
[[nodiscard]] constexpr const char* CoordinateLocal(Axis axis)
{
    constexpr const char* locals[] = {"getX", "getY", "getZ"};
    return locals[static_cast<int>(axis)];
}

// Declares getX, getY and getZ with the number.
[[nodiscard]] QString DeclareCoordinates(Indent indent, std::int32_t number);

// Gives the local of one axis its new value, in drawing units.
[[nodiscard]] QString AssignCoordinate(Indent indent, Axis axis, double value, std::int32_t number);

} // namespace kv
