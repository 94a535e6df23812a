// Line style files: definitions of two lines each, a header "*NAME,DESCRIPTION" and a pattern "A,NUMBER,NUMBER,...".
#pragma once

#include "host/kernel/drawing_editor.h"

#include <QtCore/QByteArray>
#include <QtCore/QStringList>

#include <cstdint>
#include <optional>
#include <vector>

namespace kv
{

struct LinetypeFile
{
    // A line, from 1, that belongs to no whole definition.
    struct Fault
    {
        std::int64_t line;
        QString message;
    };

    // The whole definitions in the order of the file, their descriptions cut to what an application shows.
    std::vector<CZtLinetypeDefinition> definitions;
    std::vector<Fault> faults;
};

// Reads the text of a file: UTF-8, UTF-16 or UTF-32 with their marks, UTF-8 without one, else Windows-1252.
[[nodiscard]] LinetypeFile ParseLinetypes(const QByteArray& bytes);

// The same with a file; nothing when it can't be read.
[[nodiscard]] std::optional<LinetypeFile> ReadLinetypeFile(const QString& path);

// The numbers of a pattern, separated by commas; nothing when a part isn't a finite number.
[[nodiscard]] std::optional<std::vector<double>> ParsePattern(const QString& descriptors);

// Appends a definition to a file, which is made when it is missing, in the file's own encoding. When that fails the
// file is as it was, and the result is false.
[[nodiscard]] bool AppendLinetype(const QString& path, const QString& name, const QString& description,
                                  const QString& descriptors);

} // namespace kv
