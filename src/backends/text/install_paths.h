// Where a macro's project finds the headers and libraries of the API.
#pragma once

#include <QtCore/QString>

namespace kv
{

// Folders below the application's install folder; below the folder of a standard installation when none is known.
[[nodiscard]] QString IncludePath();
[[nodiscard]] QString LibraryPath();

// The type libraries of add-ins and of the application, likewise.
[[nodiscard]] QString AddinTypeLibraryPath();
[[nodiscard]] QString AutomationLibraryPath();

// The same below a given install folder, which is empty when it isn't known. A known folder has its backslashes
// doubled and is followed at once by the tail, whose backslashes stay single; that is the format's.
[[nodiscard]] QString PathBelow(const QString& installDir, const char* tail);

} // namespace kv
