// The registered host.
#include "host/kernel/services.h"

ODRX_DEFINE_MEMBERS(CZtDatabase, OdDbDatabase, "CZtDatabase")

CZtDocument::~CZtDocument() = default;
CZtSystemSettings::~CZtSystemSettings() = default;
CZtSystemServices::~CZtSystemServices() = default;
ConversionObserver::~ConversionObserver() = default;

namespace
{
CZtHost* registeredHost = nullptr;
}

CZtHost::~CZtHost()
{
    if (registeredHost == this)
    {
        registeredHost = nullptr;
    }
}

void RegisterHost(CZtHost* host) noexcept
{
    registeredHost = host;
}

CZtSystemServices* GetZtSystemServices()
{
    if (registeredHost == nullptr)
    {
        throw OdError(eNullObjectPointer);
    }
    return &registeredHost->SystemServices();
}

CZtDocument* ACTIVE_DOCUMENT()
{
    return registeredHost != nullptr ? registeredHost->ActiveDocument() : nullptr;
}

ConversionObserver* CurrentObserver()
{
    return registeredHost != nullptr ? registeredHost->Observer() : nullptr;
}

CZtString CZtUtils::GetStringForUnitScalingFactor(std::int32_t units)
{
    return GetZtSystemServices()->StringForUnitScalingFactor(units);
}
