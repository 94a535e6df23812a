// Objects by handle, and the layout that is current.
#include "embedded/drawing.h"

#include "embedded/object_keys.h"
#include "embedded/stored_objects.h"
#include "host/db/symbols.h"

#include <limits>

namespace kv
{
Drawing::Drawing() : values_(KeysOfDrawing()) {}

bool Drawing::addObject(OdDbHandle handle, const OdRxClass* objectClass, ObjectValues values)
{
    Entry& entry = entries_[handle];
    if (entry.described)
    {
        return false;
    }
    entry = {objectClass, MakeStoredObject(*this, handle, objectClass, std::move(values)), true};
    described_.push_back(handle);
    return true;
}

void Drawing::addDefaultObject(OdDbHandle handle, const OdRxClass* objectClass)
{
    if (!handle.isNull())
    {
        entries_.try_emplace(handle, Entry{objectClass, {}, false});
    }
}

void Drawing::complete()
{
    const auto& name = values_.get<QString>("currentLayout");
    for (const OdDbHandle handle : described_)
    {
        const Entry& entry = entries_.at(handle);
        if (entry.objectClass == OdDbLayout::desc() &&
            static_cast<const OdDbLayout&>(*entry.object).getLayoutName() == name)
        {
            currentLayout_ = handle;
            return;
        }
    }
    makeCurrentLayout(name);
}

void Drawing::makeCurrentLayout(const QString& name)
{
    // A handle that no object has; recorded handles are low.
    std::uint64_t handle = std::numeric_limits<std::uint64_t>::max();
    while (contains(OdDbHandle(handle)))
    {
        --handle;
    }
    currentLayout_ = OdDbHandle(handle);

    const OdRxClass* layout = OdDbLayout::desc();
    const KeyList& keys = KeysOfClass(layout);
    ObjectValues values(keys);
    values.set(*FindKey(keys, "name"), name);
    values.set(*FindKey(keys, "modelType"), name == QLatin1String("Model"));
    entries_[currentLayout_] = {layout, MakeStoredObject(*this, currentLayout_, layout, std::move(values)), false};
}

OdDbObjectId Drawing::getGroupId(const OdString& name)
{
    for (const OdDbHandle handle : described_)
    {
        const Entry& entry = entries_.at(handle);
        if (entry.objectClass == OdDbGroup::desc() && static_cast<const OdDbGroup&>(*entry.object).getName() == name)
        {
            return getOdDbObjectId(handle);
        }
    }
    return {};
}

OdDbObjectPtr Drawing::describedObject(OdDbHandle handle) const
{
    const auto found = entries_.find(handle);
    return found != entries_.end() && found->second.described ? found->second.object : OdDbObjectPtr();
}

OdArray<OdDbObjectId> Drawing::presentIds(const HandleList& handles)
{
    OdArray<OdDbObjectId> ids;
    for (const OdDbHandle handle : handles)
    {
        if (contains(handle))
        {
            ids.append(OdDbObjectId(this, handle));
        }
    }
    return ids;
}

const OdRxClass* Drawing::classOf(OdDbHandle handle) const
{
    const auto found = entries_.find(handle);
    return found != entries_.end() ? found->second.objectClass : nullptr;
}

OdDbObjectId Drawing::getOdDbObjectId(OdDbHandle handle)
{
    return contains(handle) ? OdDbObjectId(this, handle) : OdDbObjectId();
}

OdDbObjectPtr Drawing::openObject(OdDbHandle handle)
{
    const auto found = entries_.find(handle);
    if (found == entries_.end())
    {
        return {};
    }
    Entry& entry = found->second;
    if (!entry.object)
    {
        entry.object = MakeStoredObject(*this, handle, entry.objectClass, ObjectValues(KeysOfClass(entry.objectClass)));
    }
    return entry.object;
}
} // namespace kv
