// The value of a property: one of several kinds, told apart by a type number.
#pragma once

#include "host/db/color.h"
#include "host/db/object_id.h"
#include "host/export.h"
#include "host/ge/point3d.h"
#include "host/kernel/zt_string.h"

#include <cstdint>
#include <memory>
#include <variant>
#include <vector>

class CZtVariantCollection;
class CZtVariantCollectionElement;

class KVHOST_API CZtVariant
{
public:
    // The type numbers.
    enum Type : int
    {
        kNullType = 0,
        kInteger = 1,
        kReal = 2,
        kText = 3,
        kPoint = 4,
        kColor = 5,
        kCollection = 6, // a selection with a current index, or a list
        kElement = 7,    // one element of a collection
        kObjectId = 8,
        kTransparency = 11,
    };

    CZtVariant() = default;
    CZtVariant(CZtString text) : value_(std::move(text)) {}
    CZtVariant(std::int32_t integer) : value_(integer) {}

    // A real; the flag is the application's and has no meaning here.
    CZtVariant(double real, bool flag);
    CZtVariant(const OdGePoint3d& point) : value_(point) {}
    CZtVariant(const OdCmColor& color) : value_(color) {}
    CZtVariant(const OdCmTransparency& transparency) : value_(transparency) {}
    CZtVariant(const OdDbObjectId& id) : value_(id) {}
    CZtVariant(CZtVariantCollection collection);
    CZtVariant(CZtVariantCollectionElement element);

    // The shared null value.
    static const CZtVariant kNull;

    [[nodiscard]] Type GetType() const;
    [[nodiscard]] bool IsNull() const { return value_.index() == 0; }

    // The value in the form asked for. An integer reads as a real and a real, cut, as an integer; any other value of
    // another kind gives 0, an empty text, the origin, the colour by layer, the transparency by layer or the null id.
    [[nodiscard]] std::int32_t GetInt32() const;
    [[nodiscard]] double GetDouble() const;
    [[nodiscard]] const CZtString& GetString() const;
    [[nodiscard]] OdGePoint3d GetPoint3d() const;
    [[nodiscard]] OdCmColor GetColor() const;
    [[nodiscard]] OdCmTransparency GetTransparency() const;
    [[nodiscard]] OdDbObjectId GetId() const;

    // The collection; null for any other value.
    [[nodiscard]] const CZtVariantCollection* GetCollection() const;

    // The element itself, or the element at the current index of a collection; null for any other value and for an
    // index outside the collection.
    [[nodiscard]] const CZtVariantCollectionElement* GetCollectionElement() const;

private:
    // The alternatives stand in the order of TypeOfAlternative.
    using Value = std::variant<std::monostate, std::int32_t, double, CZtString, OdGePoint3d, OdCmColor,
                               std::shared_ptr<const CZtVariantCollection>,
                               std::shared_ptr<const CZtVariantCollectionElement>, OdDbObjectId, OdCmTransparency>;
    Value value_;
};

class KVHOST_API CZtVariantCollectionElement
{
public:
    CZtVariantCollectionElement() = default;
    CZtVariantCollectionElement(CZtVariant tag, CZtVariant value) : tag_(std::move(tag)), value_(std::move(value)) {}

    [[nodiscard]] const CZtVariant* GetTag() const { return &tag_; }
    [[nodiscard]] const CZtVariant* GetValue() const { return &value_; }

private:
    CZtVariant tag_;
    CZtVariant value_;
};

class KVHOST_API CZtVariantCollection
{
public:
    // The 0-based index of the current element; 0 in a new collection.
    [[nodiscard]] std::int32_t GetCurrentIndex() const { return index_; }
    void SetCurrentIndex(std::int32_t index) { index_ = index; }

    // The elements, for reading and for appending.
    [[nodiscard]] const std::vector<CZtVariantCollectionElement>& GetCollectionDataForRead() const { return elements_; }
    [[nodiscard]] std::vector<CZtVariantCollectionElement>& GetCollectionDataForWrite() { return elements_; }

private:
    std::int32_t index_ = 0;
    std::vector<CZtVariantCollectionElement> elements_;
};
