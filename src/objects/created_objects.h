// The variables of the objects that the creation pass has met, in both directions.
#pragma once

#include "host/db/object_id.h"

#include <QtCore/QHash>
#include <QtCore/QString>

#include <unordered_map>

// Only looked up, never walked.
class CreatedObjects
{
public:
    void Set(const OdDbObjectId& id, const QString& variable) { createdNames_[id] = variable; }

    // The variable of an object, null when it isn't in here.
    [[nodiscard]] const QString* FindName(const OdDbObjectId& id) const
    {
        const auto found = createdNames_.find(id);
        return found != createdNames_.end() ? &found->second : nullptr;
    }

private:
    std::unordered_map<OdDbObjectId, QString> createdNames_;
};
