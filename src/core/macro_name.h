// The name of a macro.
#pragma once

#include <QtCore/QString>

// The macro's name by its path: the file name up to its first dot, blanks and hyphens included.
[[nodiscard]] QString MakeMacroName(const QString& outputPath);
