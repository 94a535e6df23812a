// Colour and transparency of drawing objects.
#pragma once

#include <cstdint>

// A colour by layer, by block, by index or by its components.
class OdCmColor
{
public:
    enum class Method : std::uint8_t
    {
        ByLayer,
        ByBlock,
        ByIndex,
        ByColor,
    };

    // The default is by layer.
    constexpr OdCmColor() = default;

    [[nodiscard]] static constexpr OdCmColor byLayer() { return OdCmColor(); }
    [[nodiscard]] static constexpr OdCmColor byBlock() { return {Method::ByBlock, 0}; }
    [[nodiscard]] static constexpr OdCmColor byIndex(std::int16_t index) { return {Method::ByIndex, index}; }
    [[nodiscard]] static constexpr OdCmColor byColor(std::uint8_t red, std::uint8_t green, std::uint8_t blue)
    {
        OdCmColor color(Method::ByColor, 0);
        color.red_ = red;
        color.green_ = green;
        color.blue_ = blue;
        return color;
    }

    [[nodiscard]] constexpr Method colorMethod() const { return method_; }

    // The number in the colour table: 256 by layer, 0 by block and for a colour of components.
    [[nodiscard]] constexpr std::int16_t colorIndex() const { return index_; }

    // The components, 0 to 255; meaningful for Method::ByColor only.
    [[nodiscard]] constexpr std::uint8_t red() const { return red_; }
    [[nodiscard]] constexpr std::uint8_t green() const { return green_; }
    [[nodiscard]] constexpr std::uint8_t blue() const { return blue_; }

    friend constexpr bool operator==(const OdCmColor&, const OdCmColor&) = default;

private:
    constexpr OdCmColor(Method method, std::int16_t index) : method_(method), index_(index) {}

    Method method_ = Method::ByLayer;
    std::int16_t index_ = 256;
    std::uint8_t red_ = 0;
    std::uint8_t green_ = 0;
    std::uint8_t blue_ = 0;
};

// A transparency by layer, by block or by its alpha.
class OdCmTransparency
{
public:
    // The numbers are the application's.
    enum class Method : std::uint8_t
    {
        ByLayer = 0,
        ByBlock = 1,
        ByAlpha = 2,
    };

    constexpr OdCmTransparency() = default;
    constexpr explicit OdCmTransparency(Method method, std::uint8_t alpha = 255) : method_(method), alpha_(alpha) {}

    [[nodiscard]] constexpr Method method() const { return method_; }

    // 0 is clear, 255 opaque; meaningful for Method::ByAlpha only.
    [[nodiscard]] constexpr std::uint8_t alpha() const { return alpha_; }

    friend constexpr bool operator==(const OdCmTransparency&, const OdCmTransparency&) = default;

private:
    Method method_ = Method::ByLayer;
    std::uint8_t alpha_ = 255;
};
