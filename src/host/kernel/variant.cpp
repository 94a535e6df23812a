// Property values and their reading in another form than their own.
#include "host/kernel/variant.h"

#include "host/odrx/number_cut.h"

#include <array>

namespace
{
constexpr std::array TypeOfAlternative = {
    CZtVariant::kNullType, CZtVariant::kInteger,      CZtVariant::kReal,       CZtVariant::kText,
    CZtVariant::kPoint,    CZtVariant::kColor,        CZtVariant::kCollection, CZtVariant::kElement,
    CZtVariant::kObjectId, CZtVariant::kTransparency,
};

template <class T, class Value>
T valueOr(const Value& value)
{
    const T* held = std::get_if<T>(&value);
    return held != nullptr ? *held : T();
}
} // namespace

const CZtVariant CZtVariant::kNull;

CZtVariant::CZtVariant(double real, bool /*flag*/) : value_(real) {}

CZtVariant::CZtVariant(CZtVariantCollection collection)
    : value_(std::make_shared<const CZtVariantCollection>(std::move(collection)))
{
}

CZtVariant::CZtVariant(CZtVariantCollectionElement element)
    : value_(std::make_shared<const CZtVariantCollectionElement>(std::move(element)))
{
}

CZtVariant::Type CZtVariant::GetType() const
{
    return TypeOfAlternative.at(value_.index());
}

std::int32_t CZtVariant::GetInt32() const
{
    const auto* integer = std::get_if<std::int32_t>(&value_);
    return integer != nullptr ? *integer : CutToInt32(valueOr<double>(value_));
}

double CZtVariant::GetDouble() const
{
    const auto* real = std::get_if<double>(&value_);
    return real != nullptr ? *real : valueOr<std::int32_t>(value_);
}

const CZtString& CZtVariant::GetString() const
{
    static const CZtString empty;
    const auto* text = std::get_if<CZtString>(&value_);
    return text != nullptr ? *text : empty;
}

OdGePoint3d CZtVariant::GetPoint3d() const
{
    return valueOr<OdGePoint3d>(value_);
}

OdCmColor CZtVariant::GetColor() const
{
    return valueOr<OdCmColor>(value_);
}

OdCmTransparency CZtVariant::GetTransparency() const
{
    return valueOr<OdCmTransparency>(value_);
}

OdDbObjectId CZtVariant::GetId() const
{
    return valueOr<OdDbObjectId>(value_);
}

const CZtVariantCollection* CZtVariant::GetCollection() const
{
    const auto* collection = std::get_if<std::shared_ptr<const CZtVariantCollection>>(&value_);
    return collection != nullptr ? collection->get() : nullptr;
}

const CZtVariantCollectionElement* CZtVariant::GetCollectionElement() const
{
    if (const auto* element = std::get_if<std::shared_ptr<const CZtVariantCollectionElement>>(&value_))
    {
        return element->get();
    }
    const CZtVariantCollection* collection = GetCollection();
    if (collection == nullptr)
    {
        return nullptr;
    }
    const auto& elements = collection->GetCollectionDataForRead();
    const auto index = static_cast<std::size_t>(collection->GetCurrentIndex());
    return collection->GetCurrentIndex() >= 0 && index < elements.size() ? &elements[index] : nullptr;
}
