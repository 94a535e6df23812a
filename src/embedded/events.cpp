// Collected properties, and ids of objects that turn out not to be in the drawing.
#include "embedded/events.h"

#include "embedded/value_reader.h"

#include <QtCore/QSet>

namespace kv
{
RecordedEvent::~RecordedEvent() = default;
CollectingEvent::~CollectingEvent() = default;

void Property::resolve(Drawing& drawing)
{
    value_ = ResolveIds(value_, drawing);
}

void TaggedProperty::resolve(Drawing& drawing)
{
    Property::resolve(drawing);
    tag_ = ResolveIds(tag_, drawing);
}

void PropertyList::setCollected(const CZtPropertyList& collected)
{
    all_.resize(recorded_);
    QSet<QString> recordedNames;
    for (const CZtPropertyElementPtr& property : all_)
    {
        recordedNames.insert(property->GetName());
    }
    for (const CZtPropertyElementPtr& property : collected)
    {
        if (!recordedNames.contains(property->GetName()))
        {
            all_.push_back(property);
        }
    }
}

void ObjectAdded::setCollected(const CZtPropertyList& collected)
{
    properties_.setCollected(collected);
    if (remaining_)
    {
        remaining_->setCollected(collected);
    }
}

const CZtCustomActionData& CustomAction::GetData(std::int32_t index) const
{
    if (index < 0 || index >= GetDataCount())
    {
        throw OdError_InvalidIndex();
    }
    return data_[static_cast<std::size_t>(index)];
}

void CustomAction::resolve(Drawing& drawing)
{
    for (CZtCustomActionData& item : data_)
    {
        item = ResolveIds(item, drawing);
    }
}
} // namespace kv
