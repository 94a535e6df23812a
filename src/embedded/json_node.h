// A JSON value with the way to it, so that a value of the wrong type can say where it stands.
#pragma once

#include <QtCore/QString>

#include <simdjson.h>

#include <array>
#include <cstdint>
#include <optional>
#include <string_view>

namespace kv
{
// A fault within one line of the journal.
struct BadInput
{
    QString message;
};

// A short quotation of a text of the file for a message, on one line.
[[nodiscard]] QString Quoted(std::string_view text);

// Qt's form of a text of the file, which is known to be valid UTF-8.
[[nodiscard]] inline QString ToText(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<int>(text.size()));
}

class JsonNode
{
public:
    using Type = simdjson::dom::element_type;

    // One key that an object may have.
    struct Member
    {
        std::string_view key;
        bool required = true;
    };

    // The value of a whole line.
    explicit JsonNode(simdjson::dom::element element) : element_(element) {}

    // The value of a key and the item at an index of parent, which must outlive the node.
    JsonNode(simdjson::dom::element element, const JsonNode& parent, std::string_view key)
        : element_(element), parent_(&parent), key_(key)
    {
    }
    JsonNode(simdjson::dom::element element, const JsonNode& parent, std::int64_t index)
        : element_(element), parent_(&parent), index_(index)
    {
    }

    [[nodiscard]] Type type() const { return element_.type(); }
    [[nodiscard]] bool isNull() const { return element_.is_null(); }
    [[nodiscard]] bool isText() const { return element_.is_string(); }
    [[nodiscard]] bool isNumber() const { return element_.is_number(); }
    [[nodiscard]] bool isFlag() const { return element_.is_bool(); }

    // The key under which the value stands.
    [[nodiscard]] std::string_view key() const { return key_; }

    // The value in the form asked for. Each throws BadInput when it is of another type or out of range. A number
    // without fraction is an integer, however it is written.
    [[nodiscard]] std::string_view text() const;
    [[nodiscard]] double number() const;
    [[nodiscard]] bool flag() const;
    [[nodiscard]] std::int32_t integer(std::int32_t least = INT32_MIN, std::int32_t most = INT32_MAX) const;

    // The number of items of a list, to make room for them; 0 for any other value.
    [[nodiscard]] std::size_t itemCount() const;

    // Calls take(item) for each item of a list, which must have the length when one is given.
    template <class Take>
    void forEachItem(const char* expected, Take take, std::optional<std::size_t> length = {}) const
    {
        const simdjson::dom::array items = list(expected, length);
        std::int64_t index = 0;
        for (const simdjson::dom::element item : items)
        {
            take(JsonNode(item, *this, index++));
        }
    }

    // Calls take(value) for each key of an object, in its order; a key that stands twice is a fault.
    template <class Take>
    void forEachMember(const char* expected, Take take) const
    {
        const simdjson::dom::object members = object(expected);
        refuseRepeatedKeys(members);
        for (const auto [key, value] : members)
        {
            take(JsonNode(value, *this, key));
        }
    }

    // The only key of an object with exactly one.
    [[nodiscard]] JsonNode onlyMember(const char* expected) const;

    // The values of the keys of an object, in the order of the list of keys. An unknown key, one that stands twice
    // and a required one that is missing are faults.
    template <std::size_t Count>
    [[nodiscard]] std::array<std::optional<JsonNode>, Count> members(const std::array<Member, Count>& wanted) const
    {
        std::array<std::optional<JsonNode>, Count> found;
        for (const auto [key, value] : object("an object"))
        {
            std::size_t place = 0;
            while (place < Count && wanted[place].key != key)
            {
                ++place;
            }
            if (place == Count)
            {
                failUnknownKey(key, keyList(wanted.data(), Count));
            }
            if (found[place].has_value())
            {
                failRepeatedKey(key);
            }
            found[place].emplace(value, *this, wanted[place].key);
        }
        for (std::size_t place = 0; place < Count; ++place)
        {
            if (wanted[place].required && !found[place].has_value())
            {
                failMissingKey(wanted[place].key);
            }
        }
        return found;
    }

    // Throws BadInput with the way to the value in front of the message.
    [[noreturn]] void fail(const QString& message) const;

    // "... was expected, not a number".
    [[noreturn]] void failExpected(const QString& expected) const;
    [[noreturn]] void failUnknownKey(std::string_view key, const QString& known) const;
    [[noreturn]] void failMissingKey(std::string_view key) const;

private:
    [[nodiscard]] simdjson::dom::array list(const char* expected, std::optional<std::size_t> length) const;
    [[nodiscard]] simdjson::dom::object object(const char* expected) const;
    void refuseRepeatedKeys(simdjson::dom::object members) const;
    [[noreturn]] void failRepeatedKey(std::string_view key) const;
    [[nodiscard]] static QString keyList(const Member* members, std::size_t count);
    [[nodiscard]] QString way() const;

    simdjson::dom::element element_;
    const JsonNode* parent_ = nullptr;
    std::string_view key_;
    std::int64_t index_ = -1;
};
} // namespace kv
