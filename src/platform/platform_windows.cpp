// The module's path, the install folder and the entry point on Windows.
#include "platform/platform.h"

#include <windows.h>

namespace
{

std::u16string Utf16(const wchar_t* text)
{
    static_assert(sizeof(wchar_t) == sizeof(char16_t));
    std::u16string converted;
    while (*text != L'\0')
    {
        converted.push_back(static_cast<char16_t>(*text++));
    }
    return converted;
}

} // namespace

namespace kv
{

std::u16string ModulePath(void* moduleHandle)
{
    wchar_t path[260] = {};
    if (GetModuleFileNameW(static_cast<HMODULE>(moduleHandle), path, 260) == 0)
    {
        return {};
    }
    path[259] = L'\0';
    return Utf16(path);
}

std::u16string GetInstallDir()
{
    HKEY key = nullptr;
    if (RegOpenKeyExW(HKEY_LOCAL_MACHINE, L"SOFTWARE\\TarrowOstrel\\Morvane", 0, KEY_READ, &key) != ERROR_SUCCESS)
    {
        return {};
    }
    wchar_t folder[512] = {}; // 1,024 bytes
    DWORD size = sizeof(folder) - sizeof(wchar_t);
    const LSTATUS status =
        RegQueryValueExW(key, L"InstallDir", nullptr, nullptr, reinterpret_cast<LPBYTE>(folder), &size);
    RegCloseKey(key);
    return status == ERROR_SUCCESS ? Utf16(folder) : std::u16string();
}

} // namespace kv

extern "C" BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, LPVOID /*reserved*/)
{
    if (reason == DLL_PROCESS_ATTACH)
    {
        DisableThreadLibraryCalls(module);
    }
    return TRUE;
}
