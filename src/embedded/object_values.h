// What an object of the drawing answers: the values that the journal gives, by key, and the defaults of its class.
#pragma once

#include "embedded/export.h"
#include "host/db/color.h"
#include "host/db/handle.h"
#include "host/ge/point3d.h"
#include "host/odrx/res_buf.h"

#include <QtCore/QString>

#include <array>
#include <cstdint>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace kv
{
using NumberList = std::vector<double>;
using HandleList = std::vector<OdDbHandle>;
using PointList = std::vector<OdGePoint3d>;
using FaceList = std::vector<std::array<std::int32_t, 4>>;
using TextRows = std::vector<std::vector<QString>>;
using EdgeFlags = std::array<bool, 4>;

// The extended data of one application: its items, the name itself under code 1001 first.
struct ApplicationData
{
    QString application;
    std::vector<OdResBufPtr> items;
};
using ExtendedData = std::vector<ApplicationData>;

using ObjectValue = std::variant<bool, std::int32_t, double, QString, OdGePoint3d, OdCmColor, OdDbHandle, NumberList,
                                 HandleList, PointList, FaceList, TextRows, EdgeFlags, ExtendedData>;

// How the values of a key stand in the journal where the type of the default doesn't tell.
enum class KeyForm
{
    Plain,
    Range,       // an integer from least to most
    HandleOrNull // a list of handles in which null stands for none
};

// A key that a class of objects may bear. The type of the default is the type of its values.
struct ObjectKey
{
    std::string_view name;
    ObjectValue defaultValue;
    KeyForm form = KeyForm::Plain;
    std::int32_t least = INT32_MIN;
    std::int32_t most = INT32_MAX;
};

using KeyList = std::vector<ObjectKey>;

// The key of a name; null when the list has none.
[[nodiscard]] const ObjectKey* FindKey(const KeyList& keys, std::string_view name);

class ObjectValues
{
public:
    // Values for keys of the list, which must outlive the object. None is given at first.
    explicit ObjectValues(const KeyList& keys) : keys_(&keys) {}

    // Gives a value to a key of the list or to one that all objects bear; a value given before is replaced.
    void set(const ObjectKey& key, ObjectValue value);

    // The value that was given; null when none was.
    template <class T>
    [[nodiscard]] const T* given(std::string_view name) const
    {
        const ObjectValue* value = find(name);
        return value != nullptr ? std::get_if<T>(value) : nullptr;
    }

    // The value that was given, else the default of the key, else the empty value.
    template <class T>
    [[nodiscard]] const T& get(std::string_view name) const
    {
        static const T empty{};
        if (const T* value = given<T>(name))
        {
            return *value;
        }
        const ObjectKey* key = FindKey(*keys_, name);
        const T* byDefault = key != nullptr ? std::get_if<T>(&key->defaultValue) : nullptr;
        return byDefault != nullptr ? *byDefault : empty;
    }

    // The keys that were given a value, with it, in the order in which they were given first.
    [[nodiscard]] const std::vector<std::pair<const ObjectKey*, ObjectValue>>& all() const { return given_; }

    // The value that was given, of any type; null when none was.
    [[nodiscard]] const ObjectValue* find(std::string_view name) const;

private:
    const KeyList* keys_;
    std::vector<std::pair<const ObjectKey*, ObjectValue>> given_;
};
} // namespace kv
