// The protocol of a loadable module.
#pragma once

#include "host/odrx/object.h"
#include "host/odrx/string.h"

class KVHOST_API OdRxModule : public OdRxObject
{
    ODRX_DECLARE_MEMBERS(OdRxModule)

    // The operating system's handle of the loaded file, null when it isn't known.
    [[nodiscard]] virtual void* sysData() = 0;

    // Ends the module object. No reference to it may be used afterwards.
    virtual void deleteModule() = 0;

    // Called once after loading and once before unloading.
    virtual void initApp() = 0;
    virtual void uninitApp() = 0;

    // The full path of the module file.
    [[nodiscard]] virtual OdString moduleName() const = 0;
};
