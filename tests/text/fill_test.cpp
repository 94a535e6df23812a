// Filling against the chain of single-value QString::arg calls that defines it.
#include "backends/text/fill.h"

#include <gtest/gtest.h>

#include <random>
#include <variant>
#include <vector>

namespace
{

#if defined(__SANITIZE_ADDRESS__) || defined(KV_SANITIZE)
constexpr int randomCases = 20'000;
#else
constexpr int randomCases = 1'000'000;
#endif

// Counts the warnings of Qt while it lives, and keeps them from the console.
class WarningCount
{
public:
    WarningCount()
    {
        count_ = 0;
        before_ = qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) { ++count_; });
    }
    ~WarningCount() { qInstallMessageHandler(before_); }
    WarningCount(const WarningCount&) = delete;
    WarningCount& operator=(const WarningCount&) = delete;

    [[nodiscard]] int Count() const { return count_; }

private:
    static inline int count_ = 0;
    QtMessageHandler before_;
};

// What stands for an object-side text class: it isn't a QString, but shows itself as one.
struct TextLike
{
    QString text;
    operator const QString&() const { return text; }
};

static_assert(kv::Fillable<int> && kv::Fillable<unsigned short> && kv::Fillable<qint64> && kv::Fillable<signed char>);
static_assert(kv::Fillable<QString> && kv::Fillable<QLatin1String> && kv::Fillable<char[5]> && kv::Fillable<TextLike>);
static_assert(!kv::Fillable<double> && !kv::Fillable<float> && !kv::Fillable<bool> && !kv::Fillable<char>);

using Value = std::variant<QString, qlonglong, kv::General, kv::Fixed, kv::Indent>;

QString Arg(const QString& text, const QString& value)
{
    return text.arg(value);
}
QString Arg(const QString& text, qlonglong value)
{
    return text.arg(value, 0, 10, QLatin1Char(' '));
}
QString Arg(const QString& text, kv::General value)
{
    return text.arg(value.value, 0, 'g', -1, QLatin1Char(' '));
}
QString Arg(const QString& text, kv::Fixed value)
{
    return text.arg(value.value, 0, 'f', 14, QLatin1Char(' '));
}
QString Arg(const QString& text, kv::Indent value)
{
    return text.arg(QLatin1Char(' '), 4 * value.level, QLatin1Char(' '));
}

// Templates and values made of what makes filling hard.
class CaseSource
{
public:
    QString Text()
    {
        QString text;
        const auto pieces = Below(9);
        // Most templates hold ordinary markers only, so that the single pass is tried as often as the chain.
        const bool ordinary = Below(3) != 0;
        for (std::size_t i = 0; i < pieces; ++i)
            switch (Below(ordinary ? 5 : 9))
            {
            case 0:
                text += QString(static_cast<int>(Below(40)), QLatin1Char('x'));
                break;
            case 1:
                text += Pick({"->Insert( ", ", ", "5", "0", "L", "\n", " "});
                break;
            case 2:
                text += QStringLiteral("%") + QString::number(10 + Below(13));
                break;
            case 3:
            case 4:
                text += QStringLiteral("%") + QString::number(Below(7));
                break;
            case 5:
                text += Pick({"%", "%%", "% ", "%x"});
                break;
            case 6:
                text += Pick({"%L1", "%L2", "%L12", "%L"});
                break;
            case 7:
                text += Pick({"%01", "%02", "%00", "%99", "%012"});
                break;
            default:
                text += QString::fromUtf8(Pick({"é", "Länge", "٣", "%٣", "%1٣", "漢字"}).toUtf8());
                break;
            }
        return text;
    }

    Value Next()
    {
        switch (Below(9))
        {
        case 0:
            return static_cast<qlonglong>(Below(3000)) - 1000;
        case 1:
            return kv::General{Number()};
        case 2:
            return kv::Fixed{Number()};
        case 3:
            return kv::Indent{static_cast<int>(Below(14)) - 3};
        case 4:
            return QString();
        case 5:
            return QString(QLatin1String("5 digits first"));
        case 6:
            return QString(static_cast<int>(Below(80)), QLatin1Char('v'));
        case 7:
            return QString(Pick({"true", "kvline7", "L", "٣", "-", "0"}));
        default:
            return Below(3) == 0 ? Text() : QString(Pick({"50%", "%", "a%3b", "%1", "%2%3", "%L3", "100% sure"}));
        }
    }

    std::size_t Below(std::size_t limit) { return random_() % limit; }

private:
    double Number()
    {
        const double number = static_cast<double>(random_() >> 40) / 256 - 30000;
        return Below(20) == 0 ? number * 1e200 : number;
    }

    QString Pick(std::initializer_list<const char*> texts)
    {
        return QString::fromUtf8(texts.begin()[Below(texts.size())]);
    }

    std::mt19937_64 random_{4};
};

} // namespace

TEST(Fill, RandomTemplatesEqualTheChain)
{
    const WarningCount silence; // the chain itself warns of values without a marker
    CaseSource cases;
    for (int i = 0; i < randomCases; ++i)
    {
        const QString text = cases.Text();
        const auto count = cases.Below(9);
        kv::detail::FillValue forms[9];
        kv::detail::FillValue* next = forms;
        QString expected = text;
        for (std::size_t k = 0; k < count; ++k)
            std::visit(
                [&](const auto& value)
                {
                    kv::detail::SetValues(next, value);
                    expected = Arg(expected, value);
                },
                cases.Next());
        QString actual = QStringLiteral("before ");
        kv::detail::FillRunTime(actual, text, {forms, next});
        ASSERT_EQ(actual.toStdString(), "before " + expected.toStdString())
            << i << ": " << text.toStdString() << " with " << count << " values";
    }
}

TEST(Fill, ValuesGoToTheLowestMarkerEverywhere)
{
    EXPECT_EQ(kv::Fill("%1double x%3 = %5, y%3 = %6;%2", kv::Indent{1}, kv::LineEnd(), 7, kv::Fixed{0.5}, 12),
              "    double x7 = 0.50000000000000, y7 = 12;\n");
    EXPECT_EQ(kv::Fill("%2    End Sub%2%2End Class", kv::LineEnd()), "\n    End Sub\n\nEnd Class");
    EXPECT_EQ(kv::Fill("%10 %9 %11", 9, 10, 11), "10 9 11");
    EXPECT_EQ(kv::Fill("no marker"), "no marker");
    EXPECT_EQ(kv::Fill("%1", QString()), "");
}

TEST(Fill, PointsFillAMarkerWithEachCoordinate)
{
    const OdGePoint3d point{1, 12345.25, -0.5};
    EXPECT_EQ(kv::Fill("%1->Add( %2, %3, %4 );", "kvline1", kv::GeneralPoint{point}),
              "kvline1->Add( 1, 12345.3, -0.5 );");
    EXPECT_EQ(kv::Fill("%1,%2,%3,%4", kv::FixedPoint{point}, 4),
              "1.00000000000000,12345.25000000000000,-0.50000000000000,4");
    EXPECT_EQ(kv::Fill("%1,%2;%3,%4", kv::GeneralPoint2d{{1, 2}}, kv::FixedPoint2d{{3, 4}}),
              "1,2;3.00000000000000,4.00000000000000");
}

TEST(Fill, IndentIsOneBlankAtLevelZeroAndHasAWidthBelow)
{
    for (const auto& [level, width] :
         std::vector<std::pair<int, int>>{{0, 1}, {1, 4}, {3, 12}, {8, 32}, {9, 36}, {-1, 4}})
        EXPECT_EQ(kv::Fill("%1{", kv::Indent{level}), QString(width, QLatin1Char(' ')) + "{") << level;
}

TEST(Fill, TextsOfEveryKindAndLength)
{
    const QString longText(1000, QLatin1Char('n'));
    EXPECT_EQ(kv::Fill("[%1|%1]", longText), "[" + longText + "|" + longText + "]");
    for (int length = 14; length <= 35; ++length)
    {
        const QString text(length, QLatin1Char('n'));
        EXPECT_EQ(kv::Fill("%1%2%1", text, text.toLatin1().constData()), text + text + text);
    }
    EXPECT_EQ(kv::Fill("%1 %2 %3", QLatin1String("caf\xe9"), "caf\xc3\xa9", TextLike{"x"}),
              QString::fromUtf8("café café x"));
    EXPECT_EQ(kv::Fill("%1 %2", static_cast<signed char>(-5), ~quint64{0}), "-5 18446744073709551615");
}

TEST(Fill, AppendsAlsoToAText)
{
    QString out = QStringLiteral("head ");
    kv::FillInto(out, "%1;%2", 5, kv::LineEnd());
    EXPECT_EQ(out, "head 5;\n");
    out = QString(100, QLatin1Char('o'));
    const QString before = out;
    kv::FillInto(out, "<%1>", out);
    EXPECT_EQ(out, before + "<" + before + ">");
}

// What a user writes is filled by the values behind it; this is how existing macros look and stays so.
TEST(Fill, AMarkerInATextIsFilledByLaterValues)
{
    EXPECT_EQ(kv::Fill("%1 = \"%2\", %3", "name", "100%3", 7), "name = \"1007\", 7");
    EXPECT_EQ(kv::Fill("%3%1", 5, "later"), "later"); // "%3" and 5 become marker 35
    // A call with several values doesn't look at what it put in, nor does it join marker and digit.
    EXPECT_EQ(
        QStringLiteral("%1 = \"%2\", %3").arg(QStringLiteral("name"), QStringLiteral("100%3"), QStringLiteral("7")),
        "name = \"100%3\", 7");
}

TEST(Fill, OneTemplateServesManyValues)
{
    for (int i = 0; i < 3000; ++i)
        ASSERT_EQ(kv::Fill("item%1,%2", i, "%"), QStringLiteral("item%1,%").arg(i));
}

TEST(FillChain, LeavesMarkersForLaterValues)
{
    const QString line =
        kv::FillChain(QStringLiteral("%1types%4.add(%3);%2"), kv::Indent{2}, kv::LineEnd(), "Type(%3)");
    EXPECT_EQ(line, "        types%4.add(Type(%3));\n");
    EXPECT_EQ(kv::FillChain(line, 9), "        types%4.add(Type(9));\n");
}

TEST(Fill, WarnsOnlyOfAValueThatFindsNoMarker)
{
    const WarningCount warnings;
    EXPECT_EQ(kv::FillChain(QStringLiteral("%mModel.put_%3( \"%4\" );%2"), kv::LineEnd(), "PrintStyleTable", "x"),
              "%mModel.put_PrintStyleTable( \"x\" );\n");
    EXPECT_EQ(kv::Fill("%1 %2", "%2", "50%"), "50% 50%");
    EXPECT_EQ(warnings.Count(), 0);
    EXPECT_EQ(kv::FillChain(QStringLiteral("%1"), "x", 5), "x");
    EXPECT_EQ(warnings.Count(), 1);
}
