// The properties of one event, as the conversion uses them up.
#include "objects/property_list.h"

#include <QtCore/QStringList>

#include <algorithm>
#include <iterator>

PropertyList::PropertyList(const CZtPropertyList& elements, const DisplayWords& words, std::uint64_t hostContext)
    : words_(words), hostContext_(hostContext)
{
    elements_.resize(static_cast<int>(elements.size()));
    std::ranges::transform(elements, elements_.begin(), [](const auto& element) { return element.get(); });
}

std::uint64_t PropertyList::Lengths() const
{
    for (const CZtPropertyElement* element : elements_)
    {
        lengths_ |= DisplayWords::LengthBit(element->GetName().text().size());
    }
    return lengths_;
}

PropertyElements::const_iterator PropertyList::Find(const char* name) const
{
    if (IsGroup(name))
    {
        return std::ranges::find_if(elements_,
                                    [&](const CZtPropertyElement* element) {
                                        return words_.Matches(DisplayWords::Context::PropertyGroups, name,
                                                              element->GetGroup(), Qt::CaseInsensitive);
                                    });
    }
    const DisplayWords::Word& word = words_.Look(DisplayWords::Context::PropertyTypes, name);
    return std::ranges::find_if(elements_, [&](const CZtPropertyElement* element)
                                { return word.IsEither(element->GetName().text()); });
}

OdArray<OdGePoint3d> PropertyList::TakePoints(const char* name, ConsumedProperties* consumed)
{
    const CZtVariant value = TakeProperty(name, consumed);
    OdArray<OdGePoint3d> points;
    if (const CZtVariantCollection* collection = value.GetCollection())
    {
        for (const CZtVariantCollectionElement& element : collection->GetCollectionDataForRead())
        {
            points.append(element.GetValue()->GetPoint3d());
        }
    }
    return points;
}

std::vector<PropertyList::Numbered> PropertyList::Series(const char* stem) const
{
    std::vector<Numbered> series;
    for (const CZtPropertyElement* element : elements_)
    {
        const QString name = element->GetName().text();
        if (!name.startsWith(QLatin1String(stem)))
        {
            continue;
        }
        Numbered item{{}, element->GetValue(hostContext_)};
        if (item.value.IsNull())
        {
            continue;
        }
        const QStringList fields = name.split(QLatin1Char('_'));
        std::ranges::transform(fields.cbegin() + 1, fields.cend(), std::back_inserter(item.fields),
                               [](const QString& field) { return field.toInt(); });
        series.push_back(std::move(item));
    }
    return series;
}

std::vector<PropertyList::Numbered> PropertyList::TakeSeries(const char* stem, ConsumedProperties& consumed)
{
    std::vector<Numbered> series = Series(stem);
    const auto isOther = [&](const CZtPropertyElement* element)
    { return !element->GetName().text().startsWith(QLatin1String(stem)); };
    auto* const taken = std::stable_partition(elements_.begin(), elements_.end(), isOther);
    consumed.append(taken, static_cast<int>(elements_.end() - taken));
    elements_.erase(taken, elements_.end());
    return series;
}

bool PropertyList::Holds(const char* name) const
{
    return MayHold(name) && Find(name) != elements_.cend();
}

CZtVariant PropertyList::Take(const char* name, ConsumedProperties* consumed, CZtVariant* tag)
{
    const auto* const found = Find(name);
    if (found == elements_.cend())
    {
        return {};
    }
    const CZtPropertyElement* element = *found;
    elements_.erase(found);
    if (tag != nullptr)
    {
        *tag = IsGroup(name) ? CZtVariant(element->GetName()) : element->GetTag(hostContext_);
    }
    CZtVariant value = element->GetValue(hostContext_);
    if (consumed != nullptr)
    {
        consumed->push_back(element);
    }
    return value;
}

OdGePoint3d PropertyList::TakePoint(const char* xName, const char* yName, const char* zName,
                                    ConsumedProperties* consumed)
{
    const double x = TakeDouble(xName, 0.0, consumed);
    const double y = TakeDouble(yName, 0.0, consumed);
    const double z = TakeDouble(zName, 0.0, consumed);
    return {x, y, z};
}

double PropertyList::TakeDouble(const char* name, double missing, ConsumedProperties* consumed)
{
    const CZtVariant value = TakeProperty(name, consumed);
    return value.IsNull() ? missing : value.GetDouble();
}

void PropertyList::DropConsumed(const ConsumedProperties& consumed)
{
    for (const CZtPropertyElement* used : consumed)
    {
        auto* const same = std::ranges::find_if(elements_,
                                                [&](const CZtPropertyElement* element) {
                                                    return element == used || (element->GetName() == used->GetName() &&
                                                                               element->GetGroup() == used->GetGroup());
                                                });
        if (same != elements_.end())
        {
            elements_.erase(same);
        }
    }
    lengths_ = 0;
}
