// The one object of the module.
#include "module/module_object.h"

#include "commands/command_list.h"
#include "module/converter_factory.h"
#include "platform/platform.h"

#include <utility>

namespace
{

using LoadedModule = OdRxWin32Module<CZtConverterKVAPIModule, CZtConverterKVAPIModule>;

LoadedModule* processModule = nullptr;

} // namespace

template <>
void LoadedModule::deleteModule()
{
    processModule = nullptr;
    delete this;
}

template <>
OdString LoadedModule::moduleName() const
{
    return QString::fromStdU16String(kv::ModulePath(moduleHandle_));
}

OdRxModule* CreateModuleObject(void** moduleHandle)
{
    if (processModule == nullptr)
    {
        processModule = new LoadedModule(*moduleHandle);
        *moduleHandle = nullptr;
    }
    return processModule;
}

ResultCode CZtConverterKVAPIModule::ConvertJournal(const CZtString& outputPath, std::uint32_t languageIndex,
                                                   std::int32_t recordingMode, std::uint64_t hostContext,
                                                   const CZtJournal& journal)
{
    const auto converter = CreateConverter(languageIndex, recordingMode, hostContext);
    return converter ? converter->Convert(outputPath, journal) : ResultError;
}

OdRxObject* CZtConverterKVAPIModule::x(const OdRxClass* wanted) const
{
    return wanted == CZtCommandSource::desc() ? kv::ModuleCommands() : nullptr;
}
