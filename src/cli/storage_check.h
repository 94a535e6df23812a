// Sees whether files reached the disk in full. A macro is written through buffers whose last writing can't be asked
// how it went; a full disk or a limit of the file size then shows only in what is there.
#pragma once

#include <QtCore/QString>

#include <cstdint>
#include <filesystem>

namespace kv::cli
{

// The number of bytes that the text has in UTF-8, or a little less: a pair of surrogates counts as two.
[[nodiscard]] std::uint64_t LeastUtf8Size(const QString& text);

// Tries whether so many bytes can be written to a file in the folder. Gives an error number, 0 when they can.
[[nodiscard]] int StorageError(const std::filesystem::path& folder, std::uint64_t bytes);

// Throws Failure when the macro file holds fewer bytes than were written to it, or when another file of its folder
// reached the limit of the file size or the end of the disk.
void CheckWritten(const std::filesystem::path& macro, std::uint64_t bytes);

} // namespace kv::cli
