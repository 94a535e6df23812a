// The texts of the exceptions; defined here so that both sides of the loader share one type each.
#include "host/odrx/error.h"

const char* OdError::what() const noexcept
{
    switch (code_)
    {
    case eOk:
        return "no error";
    case eInvalidIndex:
        return "index out of range";
    case eNullObjectPointer:
        return "object missing";
    case eNotThatKindOfClass:
        return "object of another class";
    }
    return "error";
}

const char* OdError_InvalidIndex::what() const noexcept
{
    return OdError::what();
}

const char* OdError_NotThatKindOfClass::what() const noexcept
{
    return OdError::what();
}
