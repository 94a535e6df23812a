// Colors as expressions of C++ COM.
#pragma once

#include "host/db/color.h"

#include <QString>

// The color by its index, by layer and by block included, or by red, green and blue.
[[nodiscard]] QString ColorExpression(const OdCmColor& color);
