// The two functions that the loader looks up.
#include "module/module_object.h"

#if defined(_WIN32)
#define KVMODULE_API __declspec(dllexport)
#else
#define KVMODULE_API __attribute__((visibility("default")))
#endif

extern "C"
{
    KVMODULE_API OdRxModule* odrxCreateModuleObject(void** moduleHandle)
    {
        return CreateModuleObject(moduleHandle);
    }

    KVMODULE_API void odrxGetAPIVersion(std::uint32_t* major, std::uint32_t* minor, std::uint32_t* corrective,
                                        std::uint32_t* build)
    {
        *major = 3;
        *minor = 9;
        *corrective = 1;
        *build = 63511;
    }
}
