// Looking names up, and making what a name stands for when it comes first.
#include "embedded/name_pool.h"

#include "host/db/classes.h"
#include "host/db/object.h"

namespace kv
{
const CZtString& NamePool::text(std::string_view utf8)
{
    const auto found = texts_.find(utf8);
    if (found != texts_.end())
    {
        return found->second;
    }
    QString text = QString::fromUtf8(utf8.data(), static_cast<int>(utf8.size()));
    return texts_.emplace(std::string(utf8), CZtString(std::move(text))).first->second;
}

const OdRxClass* ClassNames::find(std::string_view utf8)
{
    const auto found = classes_.find(utf8);
    if (found != classes_.end())
    {
        return found->second;
    }
    const QString name = QString::fromUtf8(utf8.data(), static_cast<int>(utf8.size()));
    const OdRxClass* known = FindDatabaseClass(name);
    if (known == nullptr)
    {
        known = own_.emplace_back(std::make_unique<const OdRxClass>(name, OdDbEntity::desc())).get();
    }
    classes_.emplace(std::string(utf8), known);
    return known;
}
} // namespace kv
