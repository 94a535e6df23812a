// A journal with the changes that were made to its drawing.
#pragma once

#include "embedded/drawing.h"

#include <QtCore/QByteArray>

namespace kv
{
// The text of the journal file from which the drawing was read, with a new line in place of that of each object that
// was changed, and new objects and values behind the last line. Every other line stays as it is, byte for byte; a last
// line that was cut off is left out.
[[nodiscard]] QByteArray WithChanges(const QByteArray& source, Drawing& drawing);
} // namespace kv
