// What the operating system gives, in plain C++: one file for each platform.
#pragma once

#include <string>

namespace kv
{

// The full path of the file of the module. The handle is the system's of the loaded file; where the system finds the
// file by an address inside it, the handle isn't used. Empty when the system can't tell.
[[nodiscard]] std::u16string ModulePath(void* moduleHandle);

// The folder in which the application is installed, as the system's registry names it; empty where there is none.
[[nodiscard]] std::u16string GetInstallDir();

} // namespace kv
