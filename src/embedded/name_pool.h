// Short texts that come again and again in a journal: property names, groups, class names.
#pragma once

#include "host/kernel/zt_string.h"
#include "host/odrx/class.h"

#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace kv
{
struct Utf8Hash
{
    using is_transparent = void;
    [[nodiscard]] std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>()(text); }
};

template <class Value>
using Utf8Map = std::unordered_map<std::string, Value, Utf8Hash, std::equal_to<>>;

// Gives equal UTF-8 texts one shared text.
class NamePool
{
public:
    [[nodiscard]] const CZtString& text(std::string_view utf8);

private:
    Utf8Map<CZtString> texts_;
};

// The database classes that a journal names. A name that the host doesn't know is a class below AcDbEntity, one for
// each name, which lives as long as this object.
class ClassNames
{
public:
    [[nodiscard]] const OdRxClass* find(std::string_view utf8);

private:
    Utf8Map<const OdRxClass*> classes_;
    std::vector<std::unique_ptr<const OdRxClass>> own_;
};
} // namespace kv
