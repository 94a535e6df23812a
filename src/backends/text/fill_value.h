// The values that fill templates, and the form in which each goes into the text.
#pragma once

#include "backends/text/number_text.h"
#include "backends/text/template.h"
#include "host/ge/point2d.h"
#include "host/ge/point3d.h"

#include <concepts>
#include <QString>
#include <QStringView>
#include <type_traits>

namespace kv
{

/// A real number in the general form, six significant digits: QString::arg(value, 0, 'g', -1).
struct General
{
    double value;
};

/// A real number with fourteen decimals: QString::arg(value, 0, 'f', 14).
struct Fixed
{
    double value;
};

/// The indent of a level: 4 * level blanks, one blank at level 0, 4 * |level| blanks below it.
struct Indent
{
    int level;
};

/// Points; each fills one marker with each coordinate, in the order x, y(, z).
struct GeneralPoint
{
    OdGePoint3d point;
};
struct FixedPoint
{
    OdGePoint3d point;
};
struct GeneralPoint2d
{
    OdGePoint2d point;
};
struct FixedPoint2d
{
    OdGePoint2d point;
};

template <>
inline constexpr int markersFilled<GeneralPoint> = 3;
template <>
inline constexpr int markersFilled<FixedPoint> = 3;
template <>
inline constexpr int markersFilled<GeneralPoint2d> = 2;
template <>
inline constexpr int markersFilled<FixedPoint2d> = 2;

template <class V, class... Of>
concept AnyOf = (std::same_as<V, Of> || ...);

/// Integers, which fill in with base 10. Neither bool nor a character type is one.
template <class V>
concept Integer = std::integral<V> && !AnyOf<V, bool, char, wchar_t, char8_t, char16_t, char32_t>;

/// What can be given to a template. A bare `double` can't, since its form must be told, nor a `bool`, whose words
/// differ by language.
template <class V>
concept Fillable = Integer<V> || std::convertible_to<const V&, QString> || std::same_as<V, QLatin1String> ||
                   AnyOf<V, General, Fixed, Indent, GeneralPoint, FixedPoint, GeneralPoint2d, FixedPoint2d>;

namespace detail
{

/// Texts up to this length lie in room of this length, so that they are copied without a look at their length.
inline constexpr int quickLength = 32;

/// The final text of one marker's value, made once however often the marker stands in the template.
/// It holds what it shows: a value made from a text stays valid when that text changes.
// NOLINTNEXTLINE(cppcoreguidelines-pro-type-member-init): see the constructor
class FillValue
{
public:
    // Left without a value until Set: arrays of these are filled one after the other.
    FillValue() = default; // NOLINT(cppcoreguidelines-pro-type-member-init)
    ~FillValue() = default;
    FillValue(const FillValue&) = delete;
    FillValue& operator=(const FillValue&) = delete;

    template <Integer V>
    void Set(V value)
    {
        using Widest = std::conditional_t<std::is_signed_v<V>, qlonglong, qulonglong>;
        SetInteger(static_cast<Widest>(value));
    }
    void Set(const General& value);
    void Set(const Fixed& value);
    void Set(const Indent& value);
    void Set(const QString& value);
    void Set(QLatin1String value);
    void Set(const char* value);

    /// The text; at least `quickLength` units can be read behind data(), whatever the length.
    [[nodiscard]] QStringView Text() const { return {data_, length_}; }
    [[nodiscard]] const char16_t* Data() const { return data_; }
    [[nodiscard]] int Length() const { return length_; }

    /// Whether the text may hold a marker, or a part of one. Looks through the text.
    [[nodiscard]] bool HoldsPercent() const;

    /// `text.arg(value)`, by the overload of the value's type; they differ in the marker's form "%L1".
    [[nodiscard]] QString GivenTo(const QString& text) const;

private:
    enum class Kind
    {
        Text,
        Blanks,
        Signed,
        Unsigned,
        General,
        Fixed
    };

    void SetInteger(qlonglong value);
    void SetInteger(qulonglong value);
    void SetWritten(Kind kind, const char16_t* end);
    void Keep(Kind kind, const QString& text);
    [[nodiscard]] bool WidenAscii(const char* text, std::size_t length);

    Kind kind_;
    int length_;
    const char16_t* data_;
    union
    {
        qlonglong signed_;
        qulonglong unsigned_;
        double real_;
    };
    QString kept_; // a text beyond the quick length
    char16_t room_[quickLength];
};

static_assert(numberRoom <= quickLength);

/// Sets as many values as `value` fills markers, from `next` on, which it moves behind them.
template <Fillable V>
void SetValues(FillValue*& next, const V& value)
{
    if constexpr (AnyOf<V, GeneralPoint, FixedPoint, GeneralPoint2d, FixedPoint2d>)
    {
        using Form = std::conditional_t<AnyOf<V, GeneralPoint, GeneralPoint2d>, General, Fixed>;
        (next++)->Set(Form{value.point.x});
        (next++)->Set(Form{value.point.y});
        if constexpr (markersFilled<V> == 3)
            (next++)->Set(Form{value.point.z});
    }
    else
    {
        (next++)->Set(value);
    }
}

} // namespace detail
} // namespace kv
