// Journals for measurements. Their handles start anew after so many; their coordinates have six decimals and are the
// same at every call. Writing them throws std::runtime_error when it fails.
#pragma once

#include <QtCore/QString>

// So many added lines, a hundred to a command; each takes about 350 bytes.
void WriteLineJournal(const QString& path, int lines, int handles);

// So many commands of a working session: objects of several classes drawn, prompts answered, options set, objects
// selected, moved, copied and changed.
void WriteCommandJournal(const QString& path, int commands, int handles);
