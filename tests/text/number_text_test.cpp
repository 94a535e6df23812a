// Number texts against QString::arg, the form that every generated macro must have.
#include "backends/text/number_text.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>

namespace
{

#if defined(__SANITIZE_ADDRESS__) || defined(KV_SANITIZE)
constexpr int randomNumbers = 200'000;
#else
constexpr int randomNumbers = 10'000'000;
#endif

QString ArgGeneral(double value)
{
    return QStringLiteral("%1").arg(value, 0, 'g', -1);
}

QString ArgFixed(double value)
{
    return QStringLiteral("%1").arg(value, 0, 'f', 14);
}

void ExpectEqualToArg(double value)
{
    ASSERT_EQ(kv::GeneralText(value).toStdString(), ArgGeneral(value).toStdString()) << std::hexfloat << value;
    ASSERT_EQ(kv::FixedText(value).toStdString(), ArgFixed(value).toStdString()) << std::hexfloat << value;
}

// Numbers as drawings hold them, exact ties of both forms, and any bit pattern.
class NumberSource
{
public:
    double Next()
    {
        const double sign = random_() % 2 == 0 ? 1.0 : -1.0;
        switch (random_() % 10)
        {
        case 0: // seven digits that end in 5: ties of the general form where they are exact
            return sign * static_cast<double>(Below(1'000'000) * 10 + 5) * std::pow(10.0, Below(9) - 6.0);
        case 1: // few binary places
            return sign * std::ldexp(static_cast<double>(Below(1 << 24)), -static_cast<int>(Below(20)));
        case 2: // odd multiples of 2^-15: ties of the fixed form
            return sign * std::ldexp(static_cast<double>(Below(std::uint64_t{1} << Below(53)) | 1), -15);
        case 3: // few decimal places
            return sign * static_cast<double>(Below(10'000'000)) / std::pow(10.0, static_cast<double>(Below(8)));
        case 4: // beside a power of ten, where rounding makes a digit more
            return sign * std::nextafter(std::pow(10.0, Below(40) - 18.0) * (1 - std::pow(10.0, -double(Below(18)))),
                                         random_() % 2 == 0 ? 0.0 : 1e300);
        case 5: // beside a power of two, where the ranges of the quick ways end
            return sign * std::nextafter(std::ldexp(1.0, int(Below(140)) - 70), random_() % 2 == 0 ? 0.0 : 1e300);
        case 6: // denormal
            return sign * std::bit_cast<double>(random_() >> 12);
        case 7: // any
            return std::bit_cast<double>(random_());
        default: // any digits, of a size that drawings have
            return sign * std::ldexp(static_cast<double>(random_() >> 11), -static_cast<int>(Below(90)));
        }
    }

private:
    std::uint64_t Below(std::uint64_t limit) { return random_() % limit; }

    std::mt19937_64 random_{20};
};

} // namespace

TEST(NumberText, GeneralFormRoundsTiesAwayFromZero)
{
    EXPECT_EQ(kv::GeneralText(12345.25), "12345.3");
    EXPECT_EQ(kv::GeneralText(-12345.25), "-12345.3");
    EXPECT_EQ(kv::GeneralText(1234565), "1.23457e+06");
    EXPECT_EQ(kv::GeneralText(0.5), "0.5");
    EXPECT_EQ(kv::GeneralText(999999.5), "1e+06");
    EXPECT_EQ(kv::GeneralText(0.00001), "1e-05");
    EXPECT_EQ(kv::GeneralText(100), "100");
}

TEST(NumberText, FixedFormHasFourteenDecimals)
{
    EXPECT_EQ(kv::FixedText(0.5), "0.50000000000000");
    EXPECT_EQ(kv::FixedText(0x1p-15), "0.00003051757813"); // 0.000030517578125
    EXPECT_EQ(kv::FixedText(-12.25), "-12.25000000000000");
    EXPECT_EQ(kv::FixedText(0.999999999999999), "1.00000000000000");
}

TEST(NumberText, ZeroHasNoSignAndNeitherHasWhatIsNoNumber)
{
    EXPECT_EQ(kv::GeneralText(-0.0), "0");
    EXPECT_EQ(kv::FixedText(-0.0), "0.00000000000000");
    const double noNumber = std::numeric_limits<double>::quiet_NaN();
    EXPECT_EQ(kv::GeneralText(std::copysign(noNumber, -1.0)), "nan");
    EXPECT_EQ(kv::FixedText(std::copysign(noNumber, -1.0)), "nan");
    EXPECT_EQ(kv::FixedText(-std::numeric_limits<double>::infinity()), "-inf");
}

TEST(NumberText, EqualsArgAtTheEndsOfTheQuickRanges)
{
    using Limits = std::numeric_limits<double>;
    for (const double end : {0x1p-48, 0x1p52, 0x1p53, 0x1p63, 0x1p-101, 0x1p-64, 0x1p-63, 1e-5, 1e-4, 1e5, 1e6, 1e15,
                             Limits::min(), Limits::denorm_min(), Limits::max(), Limits::infinity(), 0.0})
        for (const double value : {end, std::nextafter(end, 0.0), std::nextafter(end, Limits::infinity())})
        {
            ExpectEqualToArg(value);
            ExpectEqualToArg(-value);
        }
}

TEST(NumberText, EqualsArgForRandomNumbers)
{
    NumberSource numbers;
    for (int i = 0; i < randomNumbers && !HasFatalFailure(); ++i)
    {
        const double value = numbers.Next();
        if (kv::GeneralText(value) != ArgGeneral(value) || kv::FixedText(value) != ArgFixed(value))
            ExpectEqualToArg(value);
    }
}

TEST(NumberText, IntegersReachTheEndsOfTheirTypes)
{
    const auto text = [](auto value)
    {
        char16_t room[kv::numberRoom];
        return QString::fromUtf16(room, static_cast<int>(kv::WriteInteger(room, value) - room));
    };
    EXPECT_EQ(text(std::numeric_limits<qlonglong>::min()), "-9223372036854775808");
    EXPECT_EQ(text(std::numeric_limits<qlonglong>::max()), "9223372036854775807");
    EXPECT_EQ(text(std::numeric_limits<qulonglong>::max()), "18446744073709551615");
    for (const qlonglong value : {0, 9, 10, 99, 100, 101, 999, 1000, -1, -10, -100})
        EXPECT_EQ(text(value), QString::number(value));
}
