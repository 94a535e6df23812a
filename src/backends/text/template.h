// Templates of macro text with the markers %1 to %99, checked when they are compiled.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

namespace kv
{

/// How many markers a value of type V fills: one each, but for points (see fill_value.h).
template <class V>
inline constexpr int markersFilled = 1;

namespace detail
{

/// A percent sign in a template and the one or two digits behind it; number -1 where no digit follows.
struct Marker
{
    std::size_t begin;
    std::size_t end;
    int number;
};

/// The first percent sign of `text` from the position `from` on, or nothing.
template <class Char>
[[nodiscard]] constexpr std::optional<Marker> NextMarker(std::basic_string_view<Char> text, std::size_t from)
{
    const std::size_t begin = text.find(Char('%'), from);
    if (begin == text.npos)
        return std::nullopt;
    Marker marker{begin, begin + 1, -1};
    while (marker.end < text.size() && marker.end < begin + 3 && text[marker.end] >= '0' && text[marker.end] <= '9')
        marker.number = std::max(marker.number, 0) * 10 + static_cast<int>(text[marker.end++] - '0');
    return marker;
}

} // namespace detail

/// A string literal that serves as a template for values of the types V, in this order.
/// It compiles only if the text is ASCII, has no percent sign without a digit behind it (so no "%L1" either), and holds
/// as many different markers as the values fill. A text that needs a lone percent sign goes to FillChain instead.
template <class... V>
class Template
{
public:
    template <std::size_t Size>
    consteval Template(const char (&text)[Size]) // NOLINT(google-explicit-constructor): stands for the literal
        : text_(text, Size - 1)
    {
        if (std::ranges::any_of(text_, [](char c) { return c <= '\0' || c > '\x7E'; }))
            throw "a template holds ASCII characters only";
        std::array<bool, 100> seen{};
        for (auto marker = detail::NextMarker(text_, 0); marker; marker = detail::NextMarker(text_, marker->end))
        {
            if (marker->number < 0)
                throw "a template holds no percent sign without a number";
            seen[static_cast<std::size_t>(marker->number)] = true;
        }
        if (std::ranges::count(seen, true) != (0 + ... + markersFilled<V>))
            throw "a template holds as many different markers as its values fill";
    }

    /// The literal; its address names the template for the whole process.
    [[nodiscard]] constexpr std::string_view Text() const { return text_; }

private:
    std::string_view text_;
};

} // namespace kv
