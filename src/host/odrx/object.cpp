// The root of all objects of the application.
#include "host/odrx/object.h"

OdRxObject::~OdRxObject() = default;

const OdRxClass* OdRxObject::desc()
{
    static const OdRxClass description(QStringLiteral("AcRxObject"), nullptr);
    return &description;
}

const OdRxClass* OdRxObject::isA() const
{
    return desc();
}

OdRxObject* OdRxObject::queryX(const OdRxClass* wanted) const
{
    // The query itself changes nothing, but its answer may be changed as the object may.
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-const-cast)
    return isKindOf(wanted) ? const_cast<OdRxObject*>(this) : nullptr;
}

OdRxObject* OdRxObject::x(const OdRxClass* /*wanted*/) const
{
    return nullptr;
}

void OdRxObject::addRef()
{
    references_.fetch_add(1, std::memory_order_relaxed);
}

void OdRxObject::release()
{
    if (references_.fetch_sub(1, std::memory_order_acq_rel) == 1)
    {
        delete this;
    }
}

long OdRxObject::numRefs() const
{
    return references_.load();
}

OdRxObjectPtr OdRxObject::clone() const
{
    return {};
}

void OdRxObject::copyFrom(const OdRxObject* /*source*/) {}

bool OdRxObject::isEqualTo(const OdRxObject* other) const
{
    return this == other;
}

int OdRxObject::comparedTo(const OdRxObject* other) const
{
    if (this == other)
    {
        return 0;
    }
    return std::less<>()(this, other) ? -1 : 1;
}
