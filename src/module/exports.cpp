// The two functions that the loader looks up.
#include "module/module_object.h"

extern "C"
{
    OdRxModule* odrxCreateModuleObject(void** moduleHandle)
    {
        return CreateModuleObject(moduleHandle);
    }

    void odrxGetAPIVersion(std::uint32_t* major, std::uint32_t* minor, std::uint32_t* corrective, std::uint32_t* build)
    {
        *major = 3;
        *minor = 9;
        *corrective = 1;
        *build = 63511;
    }
}
