// The axes, where a property changes one coordinate of a point.
#pragma once

enum class Axis
{
    X,
    Y,
    Z,
};

// The letter of an axis as it stands in the API's names.
[[nodiscard]] constexpr const char* AxisName(Axis axis)
{
    return axis == Axis::X ? "X" : axis == Axis::Y ? "Y" : "Z";
}
