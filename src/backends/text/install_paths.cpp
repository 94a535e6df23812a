// Where a macro's project finds the headers and libraries of the API.
#include "backends/text/install_paths.h"

#include "core/escape.h"
#include "platform/platform.h"

namespace kv
{

QString PathBelow(const QString& installDir, const char* tail)
{
    const QString folder = installDir.isEmpty() ? QStringLiteral("C:\\Program Files\\Tarrow Ostrel\\Morvane\\")
                                                : EscapeBackslashes(installDir);
    return folder + QLatin1String(tail);
}

QString IncludePath()
{
    return PathBelow(QString::fromStdU16String(GetInstallDir()), "APISDK\\headers\\cpp");
}

QString LibraryPath()
{
    return PathBelow(QString::fromStdU16String(GetInstallDir()), "APISDK\\lib\\cpp");
}

QString AddinTypeLibraryPath()
{
    return PathBelow(QString::fromStdU16String(GetInstallDir()), "APISDK\\tlb\\kvAddin.tlb");
}

QString AutomationLibraryPath()
{
    return PathBelow(QString::fromStdU16String(GetInstallDir()), "bin\\kvAutomation.dll");
}

} // namespace kv
