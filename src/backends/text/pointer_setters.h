// What the C++ API and C++ COM say alike in several steps of an object that they reach through a pointer.
#pragma once

#include "backends/text/fill.h"
#include "host/db/color.h"
#include "objects/axis.h"
#include "objects/hyperlink.h"

namespace kv
{

// Reads a point into locals with the number, gives one coordinate its new value in drawing units and writes it back.
[[nodiscard]] QString ChangePosition(Indent indent, const QString& variable, Axis axis, double value,
                                     std::int32_t number);
[[nodiscard]] QString ChangeFirstPoint(Indent indent, const QString& variable, Axis axis, double value,
                                       std::int32_t number);
[[nodiscard]] QString ChangeSecondPoint(Indent indent, const QString& variable, Axis axis, double value,
                                        std::int32_t number);

// The statement, without indent and line end, that sets the local of a transparency.
[[nodiscard]] QString SetTransparencyLocal(int number, OdCmTransparency::Method method, std::int32_t percent);

// Fills the local of a hyperlink and gives it to the object of the variable.
[[nodiscard]] QString SetHyperLinkLocal(Indent indent, int number, const HyperLink& link, const QString& variable);

} // namespace kv
