// What case files can't show of the command families: numbers over several conversions, and failures by exception.
#include "host/odrx/error.h"
#include "support/conversion_run.h"
#include "support/process_state.h"

#include <gtest/gtest.h>

#include <QtCore/QRegularExpression>

namespace
{
constexpr std::uint32_t Cpp = 0;
constexpr std::uint32_t CSharp = 1;

// One action of each operation that keeps a number, some of them twice, and one whose number never grows.
constexpr const char* Journal = R"json(
{"object":{"class":"AcDbGroup","handle":"6","name":"Bolts"}}
{"command":"KNOWN"}
{"added":{"class":"AcDbHatch","handle":"6","properties":[]}}
{"end":"KNOWN"}
{"action":{"id":10,"data":[{"int":4},{"points":[]},{"int":4},{"points":[]}]}}
{"action":{"id":11,"data":[]}}
{"action":{"id":13,"data":["New","A"]}}
{"action":{"id":13,"data":["New","B"]}}
{"action":{"id":36,"data":[{"handles":[]},{"classes":[]},"Bolts"]}}
{"action":{"id":38,"data":["_FIT",{"handles":[]},{"classes":[]}]}}
{"action":{"id":41,"data":["kvZoomRange_All"]}}
{"action":{"id":42,"data":[{"handles":[]},{"classes":[]}]}}
{"action":{"id":18,"data":["SOLID",1,0,false,false,true,false,{"doubles":[]},{"points2d":[]},false]}}
)json";

// The numbers of the names that begin with a stem, in the order of the text.
QStringList Numbers(const QString& text, const char* stem)
{
    QStringList numbers;
    QRegularExpressionMatchIterator found =
        QRegularExpression(QLatin1String("\\b") + QLatin1String(stem) + QLatin1String("(\\d+)")).globalMatch(text);
    while (found.hasNext())
    {
        numbers.append(found.next().captured(1));
    }
    numbers.removeDuplicates();
    return numbers;
}

class CommandFamilies : public testing::Test
{
protected:
    void SetUp() override { ResetProcessState(); }
    void TearDown() override { ResetProcessState(); }
};

TEST_F(CommandFamilies, NumberOnInTheNextConversion)
{
    const QString first = ConversionRun(Journal, Cpp).Body();
    const QString other = ConversionRun(Journal, CSharp).Body();
    const QString second = ConversionRun(Journal, Cpp).Body();
    struct Case
    {
        const char* stem = nullptr;
        QStringList first;
        QStringList second;
    };
    // A language counts its own operations; what the logic counts, it counts for all languages.
    const Case cases[] = {
        {"doubleArray", {"0", "1"}, {"3", "4"}}, {"selectionFilter", {"0"}, {"1"}},
        {"kvSheet", {"0", "1"}, {"2", "3"}},     {"removeObject", {"0"}, {"0"}},
        {"Success", {"5137"}, {"5138"}},         {"lowerLeft_", {"1"}, {"2"}},
        {"regionEntities", {"1"}, {"3"}},        {"hatch_Polyline_", {"0"}, {"2"}},
        {"Coordinates", {"1"}, {"1"}}, // a number of the run itself
    };
    for (const Case& expected : cases)
    {
        SCOPED_TRACE(expected.stem);
        EXPECT_EQ(Numbers(first, expected.stem), expected.first);
        EXPECT_EQ(Numbers(second, expected.stem), expected.second);
    }
}

TEST_F(CommandFamilies, FailByExceptionWhenItemsAreMissing)
{
    const char* const journals[] = {
        R"({"action":{"id":10,"data":[{"int":1},{"points":[]}]}})",      // a point without a point
        R"({"action":{"id":10,"data":[{"int":1}]}})",                    // a method without points
        R"({"action":{"id":0,"data":[{"handles":[]},{"classes":[]}]}})", // a mirror without a line
        (R"({"action":{"id":6,"data":[{"handles":[]},{"classes":[]},{"handles":[]},{"classes":[]},{"points":[]},)"
         R"({"handles":["2A"]},{"classes":["AcDbLine"]},{"points":[[0,0,0]]},{"doubles":[1,2,3,4,5]}]}})"),
    };
    for (const char* journal : journals)
    {
        EXPECT_THROW(ConversionRun(journal, Cpp), OdError_InvalidIndex) << journal;
    }
}

} // namespace
