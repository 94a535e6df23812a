// Loads the converter module as the application does.
#pragma once

#include "embedded/export.h"
#include "host/kernel/converter_module.h"

#include <QtCore/QString>

namespace kv
{
class KVEMBEDDED_API LoadedModule
{
public:
    // Loads the file, checks the version of the drawing library that it was made for and makes its module object.
    // Throws std::runtime_error with a text for people when the file can't be loaded, lacks an export, speaks another
    // version or holds another kind of module.
    explicit LoadedModule(const QString& path);

    // Ends the module object. The file stays mapped, since texts of it may still be referred to.
    ~LoadedModule();

    LoadedModule(const LoadedModule&) = delete;
    LoadedModule& operator=(const LoadedModule&) = delete;

    [[nodiscard]] CZtConverterModule& Module() const { return *module_; }

private:
    CZtConverterModule* module_ = nullptr;
};
} // namespace kv
