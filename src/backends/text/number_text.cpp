// The decimal texts of numbers: rounded exactly in integers, ties away from zero as QString::arg does.
// The standard library's conversions round ties to even and would differ in ordinary values such as 12345.25.
#include "backends/text/number_text.h"

#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace kv
{
namespace
{

__extension__ using Wide = unsigned __int128;

constexpr auto powersOfTen = []
{
    std::array<std::uint64_t, 20> powers{1};
    for (std::size_t i = 1; i < powers.size(); ++i)
        powers[i] = powers[i - 1] * 10;
    return powers;
}();

constexpr auto digitPairs = []
{
    std::array<char16_t, 200> pairs{};
    for (std::size_t i = 0; i < 100; ++i)
    {
        pairs[2 * i] = static_cast<char16_t>(u'0' + i / 10);
        pairs[2 * i + 1] = static_cast<char16_t>(u'0' + i % 10);
    }
    return pairs;
}();

// The value of a finite number without its sign: significand * 2^exponent.
struct Parts
{
    std::uint64_t significand;
    int exponent;
};

Parts PartsOf(double value)
{
    const auto bits = std::bit_cast<std::uint64_t>(value);
    const auto fraction = bits & ((std::uint64_t{1} << 52) - 1);
    const int biased = static_cast<int>(bits >> 52 & 0x7FF);
    return biased == 0 ? Parts{fraction, -1074} : Parts{fraction | std::uint64_t{1} << 52, biased - 1075};
}

// Writes exactly `Count` digits, with leading zeros.
template <int Count>
void PutDigits(char16_t* out, std::uint32_t value)
{
    static_assert(Count % 2 == 0 && Count <= 8);
    for (int i = Count - 2; i >= 0; i -= 2)
    {
        std::memcpy(out + i, &digitPairs[std::size_t{value % 100} * 2], 2 * sizeof(char16_t));
        value /= 100;
    }
}

char16_t* PutUnsigned(char16_t* out, std::uint64_t value)
{
    // The decimal logarithm from the binary one, or one more; a zero has one digit too.
    const int guess = std::bit_width(value | 1) * 1233 >> 12;
    char16_t* const end = out + guess + (value >= powersOfTen[guess] || value == 0 ? 1 : 0);
    char16_t* at = end;
    for (; value >= 100; value /= 100)
        std::memcpy(at -= 2, &digitPairs[value % 100 * 2], 2 * sizeof(char16_t));
    if (value >= 10)
        std::memcpy(at - 2, &digitPairs[value * 2], 2 * sizeof(char16_t));
    else
        *--at = static_cast<char16_t>(u'0' + value);
    return end;
}

// Six significant digits and the decimal exponent of the first.
struct SixDigits
{
    std::uint32_t digits;
    int exponent;
};

SixDigits RoundToSixDigits(double value)
{
    const auto [significand, exponent] = PartsOf(value);
    // The floor of the decimal logarithm, or one less; 1233/4096 is log10(2) from below.
    const int binary = exponent + 52;
    int decimal = binary * 1233 >> 12;
    std::uint64_t rounded = 0;
    if (value >= 1e6)
    {
        const std::uint64_t whole = exponent < 0 ? significand >> -exponent : significand << exponent;
        if (whole >= powersOfTen[decimal + 1])
            ++decimal;
        const std::uint64_t unit = powersOfTen[decimal - 5];
        rounded = (whole + unit / 2) / unit;
    }
    else
    {
        const auto scaled = [significand = significand](int power)
        {
            const int first = power > 19 ? 19 : power;
            return Wide{significand} * powersOfTen[first] * powersOfTen[power - first];
        };
        Wide product = scaled(5 - decimal);
        if (static_cast<std::uint64_t>(product >> -exponent) >= 1000000)
            product = scaled(5 - ++decimal);
        rounded = static_cast<std::uint64_t>((product + (Wide{1} << (-exponent - 1))) >> -exponent);
    }
    if (rounded == 1000000)
        return {100000, decimal + 1};
    return {static_cast<std::uint32_t>(rounded), decimal};
}

template <class Write>
QString TextBy(Write write, double value, char format, int precision)
{
    std::array<char16_t, numberRoom> room{};
    if (const char16_t* end = write(room.data(), value))
        return QString::fromUtf16(room.data(), static_cast<int>(end - room.data()));
    return QStringLiteral("%1").arg(value, 0, format, precision);
}

} // namespace

char16_t* WriteInteger(char16_t* out, qulonglong value)
{
    return PutUnsigned(out, value);
}

char16_t* WriteInteger(char16_t* out, qlonglong value)
{
    if (value >= 0)
        return PutUnsigned(out, static_cast<std::uint64_t>(value));
    *out = u'-';
    return PutUnsigned(out + 1, -static_cast<std::uint64_t>(value));
}

char16_t* WriteGeneral(char16_t* out, double value)
{
    const double size = std::fabs(value);
    if (size == 0)
    {
        *out = u'0'; // negative zero too
        return out + 1;
    }
    if (size < 0x1p-48 || size >= 0x1p63 || std::isnan(size))
        return nullptr;
    if (value < 0)
        *out++ = u'-';

    const auto [number, exponent] = RoundToSixDigits(size);
    std::array<char16_t, 6> digits{};
    PutDigits<6>(digits.data(), number);
    int count = 6;
    while (digits[count - 1] == u'0')
        --count;
    const auto put = [&](int from, int to)
    {
        for (int i = from; i < to; ++i)
            *out++ = i < count ? digits[i] : u'0';
    };

    if (exponent < -4 || exponent >= 6)
    {
        put(0, 1);
        if (count > 1)
            *out++ = u'.';
        put(1, count);
        *out++ = u'e';
        *out++ = exponent < 0 ? u'-' : u'+';
        PutDigits<2>(out, static_cast<std::uint32_t>(std::abs(exponent)));
        return out + 2;
    }
    if (exponent < 0)
    {
        *out++ = u'0';
        *out++ = u'.';
        for (int i = -1; i > exponent; --i)
            *out++ = u'0';
        put(0, count);
        return out;
    }
    put(0, exponent + 1);
    if (count > exponent + 1)
        *out++ = u'.';
    put(exponent + 1, count);
    return out;
}

char16_t* WriteFixed(char16_t* out, double value)
{
    constexpr int decimals = 14;
    const double size = std::fabs(value);
    if (!(size < 0x1p52))
        return nullptr;
    if (value < 0)
        *out++ = u'-'; // of a number that rounds to zero too, but not of negative zero

    const auto [significand, exponent] = PartsOf(size);
    const int shift = -exponent;
    std::uint64_t whole = shift < 64 ? significand >> shift : 0;
    std::uint64_t fraction = 0;
    if (shift <= 100) // smaller numbers are below half a unit of the last decimal
    {
        const std::uint64_t rest = shift < 64 ? significand - (whole << shift) : significand;
        const Wide product = Wide{rest} * powersOfTen[decimals];
        fraction = static_cast<std::uint64_t>((product + (Wide{1} << (shift - 1))) >> shift);
        if (fraction == powersOfTen[decimals])
        {
            fraction = 0;
            ++whole;
        }
    }
    out = PutUnsigned(out, whole);
    *out++ = u'.';
    PutDigits<6>(out, static_cast<std::uint32_t>(fraction / 100000000));
    PutDigits<8>(out + 6, static_cast<std::uint32_t>(fraction % 100000000));
    return out + decimals;
}

QString GeneralText(double value)
{
    return TextBy(WriteGeneral, value, 'g', -1);
}

QString FixedText(double value)
{
    return TextBy(WriteFixed, value, 'f', 14);
}

} // namespace kv
