// Colors as expressions of the languages that reach the application through the variable kvApp.
#pragma once

#include "host/db/color.h"

#include <QtCore/QString>

namespace kv
{

// The color by its index, by layer and by block included, or by red, green and blue.
[[nodiscard]] QString ColorExpression(const OdCmColor& color);

} // namespace kv
