// The one object of the module.
#pragma once

#include "host/kernel/converter_module.h"
#include "host/odrx/memory.h"

#include <new>

// The module's operations; the form that the loader sees adds what belongs to a loaded file.
class CZtConverterKVAPIModule : public CZtConverterModule
{
public:
    [[nodiscard]] ResultCode ConvertJournal(const CZtString& outputPath, std::uint32_t languageIndex,
                                            std::int32_t recordingMode, std::uint64_t hostContext,
                                            const CZtJournal& journal) override;
    void CollectObjectProperties(OdRxObject* object, CZtVariantCollection* collection) override;
    // Offers the module's commands (CZtCommandSource).
    [[nodiscard]] OdRxObject* x(const OdRxClass* wanted) const override;
    void initApp() override {}
    void uninitApp() override {}
};

// The module as a loaded file: its handle, its path and its end. References are counted and never delete the object,
// which lives until deleteModule.
template <class Module, class Base>
class OdRxWin32Module final : public Base
{
public:
    explicit OdRxWin32Module(void* moduleHandle) : moduleHandle_(moduleHandle) {}

    static void* operator new(std::size_t size)
    {
        void* memory = odrxAlloc(size);
        if (memory == nullptr)
        {
            throw std::bad_alloc();
        }
        return memory;
    }
    static void operator delete(void* memory) { odrxFree(memory); }

    void release() override { this->references_.fetch_sub(1); }
    [[nodiscard]] void* sysData() override { return moduleHandle_; }
    void deleteModule() override;
    [[nodiscard]] OdString moduleName() const override;

private:
    void* moduleHandle_;
};

// The module object; made at the first call, with the handle of the loaded file, which is zeroed then. Throws
// std::bad_alloc without memory.
[[nodiscard]] OdRxModule* CreateModuleObject(void** moduleHandle);
