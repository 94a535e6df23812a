// The module's path and the install folder on POSIX systems, where the loader needs no entry point.
#include "platform/platform.h"

#include <dlfcn.h>

#include <QtCore/QFile>
#include <QtCore/QString>

namespace kv
{

std::u16string ModulePath(void* /*moduleHandle*/)
{
    // Any address inside the module leads to its file.
    static const char anchor = 0;
    Dl_info info{};
    if (dladdr(&anchor, &info) == 0 || info.dli_fname == nullptr)
    {
        return {};
    }
    return QFile::decodeName(info.dli_fname).toStdU16String();
}

std::u16string GetInstallDir()
{
    return {};
}

} // namespace kv
