// Collected values as properties.
#include "embedded/property_collection.h"

namespace kv
{
void CollectProperties(Recording& recording, CZtConverterModule& module)
{
    for (CollectingEvent* event : recording.collecting)
    {
        const OdDbObjectPtr object = recording.drawing->describedObject(event->handle());
        if (!object)
        {
            continue;
        }
        CZtVariantCollection collection;
        module.CollectObjectProperties(object.get(), &collection);
        CZtPropertyList properties;
        for (const CZtVariantCollectionElement& element : collection.GetCollectionDataForRead())
        {
            properties.emplace_back(PropertyPtr::make(element.GetTag()->GetString(), CZtString(), *element.GetValue()));
        }
        event->setCollected(properties);
    }
}
} // namespace kv
