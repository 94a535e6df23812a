// The two functions that the loader looks up.
#include "module/module_object.h"

// The version script alone can't show what the compiler hides.
#if defined(_WIN32)
#define KVMODULE_EXPORT __declspec(dllexport)
#else
#define KVMODULE_EXPORT __attribute__((visibility("default")))
#endif

extern "C"
{
    KVMODULE_EXPORT OdRxModule* odrxCreateModuleObject(void** moduleHandle)
    {
        return CreateModuleObject(moduleHandle);
    }

    KVMODULE_EXPORT void odrxGetAPIVersion(std::uint32_t* major, std::uint32_t* minor, std::uint32_t* corrective,
                                           std::uint32_t* build)
    {
        *major = 3;
        *minor = 9;
        *corrective = 1;
        *build = 63511;
    }
}
