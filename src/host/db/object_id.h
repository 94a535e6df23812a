// The identity of an object in an open database.
#pragma once

#include "host/db/handle.h"
#include "host/export.h"
#include "host/odrx/smart_ptr.h"

class OdDbDatabase;
class OdDbObject;
using OdDbObjectPtr = OdSmartPtr<OdDbObject>;

class KVHOST_API OdDbObjectId
{
public:
    OdDbObjectId() = default;
    OdDbObjectId(OdDbDatabase* database, OdDbHandle handle) : database_(database), handle_(handle) {}

    [[nodiscard]] bool isNull() const { return database_ == nullptr || handle_.isNull(); }
    [[nodiscard]] OdDbHandle getHandle() const { return handle_; }

    // The object, opened for reading; null for the null id and for an object that is gone.
    [[nodiscard]] OdDbObjectPtr openObject() const;

    friend auto operator<=>(const OdDbObjectId&, const OdDbObjectId&) = default;

private:
    OdDbDatabase* database_ = nullptr;
    OdDbHandle handle_;
};

template <>
struct std::hash<OdDbObjectId>
{
    std::size_t operator()(const OdDbObjectId& id) const noexcept { return std::hash<OdDbHandle>()(id.getHandle()); }
};
