// Typed access to JSON values and the wording of what is wrong with them.
#include "embedded/json_node.h"

#include <cmath>
#include <unordered_set>

namespace kv
{
namespace
{
using simdjson::dom::element_type;

QString typeName(element_type type)
{
    switch (type)
    {
    case element_type::ARRAY:
        return QStringLiteral("a list");
    case element_type::OBJECT:
        return QStringLiteral("an object");
    case element_type::INT64:
    case element_type::UINT64:
    case element_type::DOUBLE:
        return QStringLiteral("a number");
    case element_type::STRING:
        return QStringLiteral("a text");
    case element_type::BOOL:
        return QStringLiteral("true or false");
    case element_type::NULL_VALUE:
        break;
    }
    return QStringLiteral("null");
}
} // namespace

QString Quoted(std::string_view text)
{
    constexpr int longest = 60;
    QString shown = ToText(text.substr(0, std::size_t{4} * longest));
    if (shown.size() > longest)
    {
        shown = shown.left(longest) + QStringLiteral("...");
    }
    for (QChar& character : shown)
    {
        if (!character.isPrint())
        {
            character = QLatin1Char('?');
        }
    }
    return QLatin1Char('"') + shown + QLatin1Char('"');
}

std::string_view JsonNode::text() const
{
    std::string_view value;
    if (element_.get(value) != simdjson::SUCCESS)
    {
        failExpected(QStringLiteral("a text"));
    }
    return value;
}

double JsonNode::number() const
{
    double value = 0.0;
    if (element_.get(value) != simdjson::SUCCESS)
    {
        failExpected(QStringLiteral("a number"));
    }
    return value;
}

bool JsonNode::flag() const
{
    bool value = false;
    if (element_.get(value) != simdjson::SUCCESS)
    {
        failExpected(QStringLiteral("true or false"));
    }
    return value;
}

std::int32_t JsonNode::integer(std::int32_t least, std::int32_t most) const
{
    double value = 0.0;
    if (element_.get(value) != simdjson::SUCCESS || value != std::trunc(value) || value < least || value > most)
    {
        const QString expected = QStringLiteral("an integer from %1 to %2").arg(least).arg(most);
        if (isNumber())
        {
            fail(expected + QStringLiteral(" was expected, not %1").arg(value, 0, 'g', 17));
        }
        failExpected(expected);
    }
    return static_cast<std::int32_t>(value);
}

std::size_t JsonNode::itemCount() const
{
    simdjson::dom::array items;
    return element_.get(items) == simdjson::SUCCESS ? items.size() : 0;
}

JsonNode JsonNode::onlyMember(const char* expected) const
{
    const simdjson::dom::object members = object(expected);
    if (members.size() != 1)
    {
        fail(QStringLiteral("%1 was expected, not an object with %2 keys")
                 .arg(QLatin1String(expected))
                 .arg(members.size()));
    }
    const auto member = *members.begin();
    return JsonNode(member.value, *this, member.key);
}

simdjson::dom::array JsonNode::list(const char* expected, std::optional<std::size_t> length) const
{
    simdjson::dom::array items;
    if (element_.get(items) != simdjson::SUCCESS)
    {
        failExpected(QLatin1String(expected));
    }
    if (length.has_value() && items.size() != *length)
    {
        fail(QStringLiteral("%1 was expected, not a list of %2").arg(QLatin1String(expected)).arg(items.size()));
    }
    return items;
}

simdjson::dom::object JsonNode::object(const char* expected) const
{
    simdjson::dom::object members;
    if (element_.get(members) != simdjson::SUCCESS)
    {
        failExpected(QLatin1String(expected));
    }
    return members;
}

void JsonNode::refuseRepeatedKeys(simdjson::dom::object members) const
{
    std::unordered_set<std::string_view> seen;
    for (const auto [key, value] : members)
    {
        if (!seen.insert(key).second)
        {
            failRepeatedKey(key);
        }
    }
}

void JsonNode::fail(const QString& message) const
{
    const QString place = way();
    throw BadInput{place.isEmpty() ? message : place + QLatin1String(": ") + message};
}

void JsonNode::failExpected(const QString& expected) const
{
    fail(expected + QLatin1String(" was expected, not ") + typeName(type()));
}

void JsonNode::failUnknownKey(std::string_view key, const QString& known) const
{
    fail(QStringLiteral("unknown key %1, expected %2").arg(Quoted(key), known));
}

void JsonNode::failRepeatedKey(std::string_view key) const
{
    fail(QStringLiteral("the key %1 stands twice, once was expected").arg(Quoted(key)));
}

void JsonNode::failMissingKey(std::string_view key) const
{
    fail(QStringLiteral("the key %1 is missing").arg(Quoted(key)));
}

QString JsonNode::keyList(const Member* members, std::size_t count)
{
    QString list = count == 1 ? QString() : QStringLiteral("one of ");
    for (std::size_t place = 0; place < count; ++place)
    {
        list += (place == 0 ? QString() : QStringLiteral(", ")) + ToText(members[place].key);
    }
    return list;
}

QString JsonNode::way() const
{
    if (parent_ == nullptr)
    {
        return {};
    }
    QString place = parent_->way();
    if (index_ >= 0)
    {
        return place + QStringLiteral("[%1]").arg(index_);
    }
    return (place.isEmpty() ? place : place + QLatin1Char('.')) + ToText(key_);
}
} // namespace kv
