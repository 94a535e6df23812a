// Colors as expressions of the script library.
#pragma once

#include "host/db/color.h"

#include <QtCore/QString>

namespace kv
{

/// The color by its index, by layer and by block included, or by red, green and blue; an argument of a call.
[[nodiscard]] QString ScriptColor(const OdCmColor& color);

} // namespace kv
