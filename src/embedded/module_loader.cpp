// The dynamic loader and the two exports of the module.
#include "embedded/module_loader.h"

#include <QtCore/QFile>
#include <QtCore/QFileInfo>

#include <dlfcn.h>

#include <array>
#include <stdexcept>

namespace kv
{
namespace
{
// Version 3.9.1 of the drawing library, with its build.
constexpr std::array<std::uint32_t, 4> ExpectedVersion = {3, 9, 1, 63511};

[[noreturn]] void fail(const QString& path, const QString& reason)
{
    throw std::runtime_error((path + QLatin1String(": ") + reason).toStdString());
}

template <class Function>
Function exported(void* file, const char* name, const QString& path)
{
    void* address = dlsym(file, name);
    if (address == nullptr)
    {
        fail(path, QLatin1String("the module doesn't export ") + QLatin1String(name));
    }
    return reinterpret_cast<Function>(address);
}

QString versionText(const std::array<std::uint32_t, 4>& version)
{
    return QStringLiteral("%1.%2.%3.%4").arg(version[0]).arg(version[1]).arg(version[2]).arg(version[3]);
}
} // namespace

LoadedModule::LoadedModule(const QString& path)
{
    // An absolute path, since the loader searches its own folders for a bare name.
    const QString absolute = QFileInfo(path).absoluteFilePath();
    void* file = dlopen(QFile::encodeName(absolute).constData(), RTLD_NOW | RTLD_LOCAL);
    if (file == nullptr)
    {
        throw std::runtime_error("the module can't be loaded: " + std::string(dlerror()));
    }
    const auto getVersion = exported<GetApiVersionFunction>(file, "odrxGetAPIVersion", path);
    const auto createObject = exported<CreateModuleObjectFunction>(file, "odrxCreateModuleObject", path);

    std::array<std::uint32_t, 4> version{};
    getVersion(version.data(), &version[1], &version[2], &version[3]);
    if (version != ExpectedVersion)
    {
        fail(path, QStringLiteral("the module speaks version %1 of the drawing library, %2 was expected")
                       .arg(versionText(version), versionText(ExpectedVersion)));
    }

    OdRxModule* object = createObject(&file);
    if (object == nullptr || object->queryX(CZtConverterModule::desc()) == nullptr)
    {
        fail(path, QStringLiteral("the file holds no converter module"));
    }
    module_ = static_cast<CZtConverterModule*>(object);
    module_->initApp();
}

LoadedModule::~LoadedModule()
{
    module_->uninitApp();
    module_->deleteModule();
}
} // namespace kv
