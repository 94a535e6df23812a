// A journal for measurements: lines that commands add, of which each takes about 350 bytes.
#pragma once

#include <QtCore/QString>

// Writes the journal of so many added lines, a hundred to a command. The handles start anew after so many. The
// coordinates have six decimals and are the same at every call. Throws std::runtime_error when that fails.
void WriteLineJournal(const QString& path, int lines, int handles);
