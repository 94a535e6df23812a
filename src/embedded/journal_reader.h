// Reads a journal file into a recording, line by line.
#pragma once

#include "embedded/diagnostics.h"
#include "embedded/recording.h"

#include <QtCore/QIODevice>

namespace kv
{
// Reads all lines of an open device. Faults and remarks go to the diagnostics; after a fault the recording isn't whole
// and must not be used.
void ReadJournal(QIODevice& device, Recording& recording, JournalDiagnostics& diagnostics);
} // namespace kv
