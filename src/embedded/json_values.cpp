// Reading the values that stand alike everywhere.
#include "embedded/json_values.h"

#include <charconv>

namespace kv
{
namespace
{
template <std::size_t Count>
std::array<double, Count> readNumbers(const JsonNode& node, const char* expected)
{
    std::array<double, Count> numbers{};
    std::size_t place = 0;
    node.forEachItem(
        expected, [&](const JsonNode& item) { numbers[place++] = item.number(); }, Count);
    return numbers;
}
} // namespace

OdDbHandle ReadHandle(const JsonNode& node)
{
    const std::string_view text = node.text();
    std::uint64_t value = 0;
    const char* end = text.data() + text.size();
    const auto [read, error] = std::from_chars(text.data(), end, value, 16);
    if (text.empty() || text.size() > 16 || error != std::errc() || read != end)
    {
        node.fail(QStringLiteral("a handle of 1 to 16 hexadecimal digits was expected, not %1").arg(Quoted(text)));
    }
    return OdDbHandle(value);
}

OdGePoint3d ReadPoint(const JsonNode& node)
{
    const auto [x, y, z] = readNumbers<3>(node, "a list of three numbers");
    return {x, y, z};
}

OdGePoint2d ReadPoint2d(const JsonNode& node)
{
    const auto [x, y] = readNumbers<2>(node, "a list of two numbers");
    return {x, y};
}

OdCmColor ReadColor(const JsonNode& node)
{
    constexpr const char* expected = R"("byLayer", "byBlock", {"index":...} or {"rgb":[...]})";
    if (node.isText())
    {
        if (node.text() == "byLayer")
        {
            return OdCmColor::byLayer();
        }
        if (node.text() == "byBlock")
        {
            return OdCmColor::byBlock();
        }
        node.fail(QStringLiteral("%1 was expected, not %2").arg(QLatin1String(expected), Quoted(node.text())));
    }
    const JsonNode form = node.onlyMember(expected);
    if (form.key() == "index")
    {
        return OdCmColor::byIndex(static_cast<std::int16_t>(form.integer(0, 256)));
    }
    if (form.key() != "rgb")
    {
        node.failUnknownKey(form.key(), QStringLiteral("index or rgb"));
    }
    std::array<std::uint8_t, 3> parts{};
    std::size_t place = 0;
    form.forEachItem(
        "a list of three integers",
        [&](const JsonNode& part) { parts[place++] = static_cast<std::uint8_t>(part.integer(0, 255)); }, parts.size());
    return OdCmColor::byColor(parts[0], parts[1], parts[2]);
}

OdCmTransparency ReadTransparency(const JsonNode& node)
{
    constexpr const char* expected = R"("byLayer", "byBlock" or {"alpha":...})";
    using Method = OdCmTransparency::Method;
    if (node.isText())
    {
        if (node.text() == "byLayer")
        {
            return OdCmTransparency(Method::ByLayer);
        }
        if (node.text() == "byBlock")
        {
            return OdCmTransparency(Method::ByBlock);
        }
        node.fail(QStringLiteral("%1 was expected, not %2").arg(QLatin1String(expected), Quoted(node.text())));
    }
    const JsonNode form = node.onlyMember(expected);
    if (form.key() != "alpha")
    {
        node.failUnknownKey(form.key(), QStringLiteral("alpha"));
    }
    return OdCmTransparency(Method::ByAlpha, static_cast<std::uint8_t>(form.integer(0, 255)));
}
} // namespace kv
