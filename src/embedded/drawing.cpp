// Objects by handle, and the layout that is current.
#include "embedded/drawing.h"

#include "embedded/object_keys.h"
#include "embedded/stored_objects.h"
#include "host/db/symbols.h"

#include <algorithm>
#include <limits>

namespace kv
{
namespace
{
// Recorded handles lie below, those of objects that aren't saved above.
constexpr std::uint64_t firstHighHandle = std::uint64_t(1) << 63;
} // namespace

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

void Drawing::keepChanges()
{
    former_.clear();
    formerValues_.reset();
    appended_.clear();
}

void Drawing::takeBackChanges()
{
    for (auto& [handle, former] : former_)
    {
        Entry& entry = entries_.at(handle);
        StoredValuesOf(*entry.object) = std::move(former.values);
        entry.described = former.described;
        entry.changed = former.changed;
    }
    if (formerValues_)
    {
        values_ = std::move(formerValues_->values);
        changedValues_ = std::move(formerValues_->changed);
    }
    for (const OdDbHandle handle : appended_)
    {
        entries_.erase(handle);
    }
    std::erase_if(described_, [this](OdDbHandle handle) { return !describedObject(handle); });
    keepChanges();
}

void Drawing::changeValue(std::string_view name, ObjectValue value)
{
    if (!formerValues_)
    {
        formerValues_ = FormerValues{values_, changedValues_};
    }
    const ObjectKey* key = FindKey(KeysOfDrawing(), name);
    values_.set(*key, std::move(value));
    if (std::find(changedValues_.begin(), changedValues_.end(), key) == changedValues_.end())
    {
        changedValues_.push_back(key);
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
    const KeyList& keys = KeysOfClass(OdDbLayout::desc());
    ObjectValues values(keys);
    values.set(*FindKey(keys, "name"), name);
    values.set(*FindKey(keys, "modelType"), name == QLatin1String("Model"));
    currentLayout_ = appendUnsaved(OdDbLayout::desc(), std::move(values)).getHandle();
}

OdDbHandle Drawing::freeHighHandle() const
{
    std::uint64_t handle = std::numeric_limits<std::uint64_t>::max();
    while (contains(OdDbHandle(handle)))
    {
        --handle;
    }
    return OdDbHandle(handle);
}

OdDbObjectId Drawing::appendUnsaved(const OdRxClass* objectClass, ObjectValues values)
{
    const OdDbHandle handle = freeHighHandle();
    entries_[handle] = {objectClass, MakeStoredObject(*this, handle, objectClass, std::move(values))};
    return {this, handle};
}

OdDbObjectId Drawing::append(const OdRxClass* objectClass, ObjectValues values)
{
    std::uint64_t last = lastAppended_.value();
    if (last == 0)
    {
        for (const auto& [handle, entry] : entries_)
        {
            if (handle.value() < firstHighHandle)
            {
                last = std::max(last, handle.value());
            }
        }
    }
    do
    {
        ++last;
    } while (contains(OdDbHandle(last)));
    lastAppended_ = OdDbHandle(last);
    static_cast<void>(addObject(lastAppended_, objectClass, std::move(values)));
    entries_[lastAppended_].changed = true;
    appended_.push_back(lastAppended_);
    return {this, lastAppended_};
}

std::int64_t Drawing::lineOf(OdDbHandle handle) const
{
    const auto found = entries_.find(handle);
    return found != entries_.end() ? found->second.line : 0;
}

bool Drawing::isChanged(OdDbHandle handle) const
{
    const auto found = entries_.find(handle);
    return found != entries_.end() && found->second.changed;
}

std::vector<OdDbHandle> Drawing::handles() const
{
    std::vector<OdDbHandle> all;
    all.reserve(entries_.size());
    for (const auto& [handle, entry] : entries_)
    {
        all.push_back(handle);
    }
    std::sort(all.begin(), all.end());
    return all;
}

const ObjectValues* Drawing::valuesOf(OdDbHandle handle)
{
    const OdDbObjectPtr object = openObject(handle);
    return object ? &StoredValuesOf(*object) : nullptr;
}

ObjectValues* Drawing::change(OdDbHandle handle)
{
    const OdDbObjectPtr object = openObject(handle);
    if (!object)
    {
        return nullptr;
    }
    Entry& entry = entries_.at(handle);
    former_.try_emplace(handle, Former{StoredValuesOf(*object), entry.described, entry.changed});
    if (!entry.described)
    {
        entry.described = true;
        described_.push_back(handle);
    }
    entry.changed = true;
    return &StoredValuesOf(*object);
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
