// The permanent number of an object in its drawing.
#pragma once

#include <QtCore/QString>

#include <cstdint>
#include <functional>

class OdDbHandle
{
public:
    constexpr OdDbHandle() = default;
    constexpr explicit OdDbHandle(std::uint64_t value) : value_(value) {}

    // Reads hexadecimal text; any other text gives the null handle.
    explicit OdDbHandle(const QString& text) : value_(text.toULongLong(nullptr, 16)) {}

    // The number; 0 for the null handle.
    [[nodiscard]] constexpr std::uint64_t value() const { return value_; }
    [[nodiscard]] constexpr bool isNull() const { return value_ == 0; }

    // The handle as upper-case hexadecimal text without leading zeros, "0" for the null handle.
    [[nodiscard]] QString ascii() const { return QString::number(value_, 16).toUpper(); }

    friend constexpr auto operator<=>(const OdDbHandle&, const OdDbHandle&) = default;

private:
    std::uint64_t value_ = 0;
};

template <>
struct std::hash<OdDbHandle>
{
    std::size_t operator()(const OdDbHandle& handle) const noexcept
    {
        return std::hash<std::uint64_t>()(handle.value());
    }
};
