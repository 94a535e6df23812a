// Which lines the reader refuses, where it says so, and in which words.
#include "journal_text.h"

namespace kv::testing
{
namespace
{
struct BadLine
{
    const char* line;
    const char* words;
};

// Each line stands as line 3 behind the head and an empty line.
constexpr BadLine BadLines[] = {
    {"{", "isn't JSON"},
    {R"({"end":"A"} x)", "isn't JSON"},
    {R"({"other":"A)"
     "\xff"
     R"("})",
     "isn't JSON"},
    {"{}", "0 keys"},
    {R"({"command":"A","end":"A"})", "2 keys"},
    {"[]", "not a list"},
    {"7", "not a number"},
    {R"({"comand":"LINE"})", R"(unknown key "comand")"},
    {R"({"journal":{"version":1}})", "second time"},
    {R"({"end":"LINE"})", "no command is open"},
    {R"({"command":7})", "command: a text was expected, not a number"},
    {R"({"other":null})", "a text was expected, not null"},
    {R"({"drawing":{"filletRadius":"1"}})", "drawing.filletRadius: a number"},
    {R"({"drawing":{"colour":1}})", R"(unknown key "colour")"},
    {R"({"drawing":{"insertUnits":1.5}})", "1.5"},
    {R"({"settings":{"TRIMMODE":"on"}})", "settings.TRIMMODE"},
    {R"({"settings":[]})", "not a list"},
    {R"({"translations":{"property_values":{"Yes":1}}})", "translations.property_values.Yes"},
    {R"({"object":{"handle":"1"}})", R"("class" is missing)"},
    {R"({"object":{"class":"AcDbLine"}})", R"("handle" is missing)"},
    {R"({"object":{"class":"AcDbLime","handle":"1"}})", R"(unknown class "AcDbLime")"},
    {R"({"object":{"class":"AcDbLine","handle":"1","radius":2}})", R"(unknown key "radius")"},
    {R"({"object":{"class":"AcDbLine","handle":"1","handle":"2"}})", "stands twice"},
    {R"({"object":{"class":"AcDbLine","handle":"1G"}})", R"(not "1G")"},
    {R"({"object":{"class":"AcDbLine","handle":""}})", "1 to 16 hexadecimal digits"},
    {R"({"object":{"class":"AcDbLine","handle":"12345678901234567"}})", "1 to 16 hexadecimal digits"},
    {R"({"object":{"class":"AcDbLine","handle":"-1"}})", "1 to 16 hexadecimal digits"},
    {R"({"object":{"class":"AcDbLine","handle":31}})", "a text was expected"},
    {R"({"object":{"class":"AcDbMText","handle":"1","attachment":10}})", "from 1 to 9"},
    {R"({"object":{"class":"AcDbFace","handle":"1","edges":[true,true,true]}})", "four flags"},
    {R"({"object":{"class":"AcDbLine","handle":"1","xdata":{"A":[{"code":1002}]}}})", R"("value" is missing)"},
    {R"({"object":{"class":"AcDbLine","handle":"1","xdata":{"A":[{"code":1040,"value":"x"}]}}})", "a number"},
    {R"({"added":{"class":"AcDbLine","handle":"1"}})", R"("properties" is missing)"},
    {R"({"added":{"class":null,"handle":"1","properties":[]}})", "added.class"},
    {R"({"added":{"class":"A","handle":"1","properties":[],"rest":[]}})", R"(unknown key "rest")"},
    {R"({"added":{"class":"A","handle":"1","properties":[{"name":"X"}]}})", "added.properties[0]"},
    {R"({"added":{"class":"A","handle":"1","properties":[{"name":"X","name":"Y","value":1}]}})", "stands twice"},
    {R"({"modified":{"class":"A","handle":"1","properties":{}}})", "a list of properties"},
    {R"({"changed":{"class":"A","handle":"1","property":{"name":"X","value":{"pint":[0,0,0]}}}})", R"("pint")"},
    {R"({"prompt":{"kind":"poin"}})", R"(unknown kind of prompt "poin")"},
    {R"({"prompt":{"kind":2147483648}})", "2147483648"},
    {R"({"prompt":{"kind":"point","keywords":{"local":[]}}})", R"("global" is missing)"},
    {R"({"prompt":{"kind":"point","answer":{"color":"byLayer"}}})", R"(unknown key "color")"},
    {R"({"sysvar":{"name":"A"}})", R"("value" is missing)"},
    {R"({"sysvar":{"name":"A","value":{"int8":128}}})", "from -128 to 127"},
    {R"({"select":{"handles":["1"],"classes":[]}})", "1 handles and 0 classes"},
    {R"({"action":{"id":0.5,"data":[]}})", "an integer"},
    {R"({"action":{"id":3}})", R"("data" is missing)"},
    {R"({"action":{"id":3,"data":[{"int16":40000}]}})", "action.data[0].int16"},
    {R"({"action":{"id":3,"data":[{"points2d":[[1,2,3]]}]}})", "two numbers"},
};

TEST(BadInput, NamesTheLineAndTheFault)
{
    for (const BadLine& bad : BadLines)
    {
        const JournalDiagnostics told = FaultsOf(Head + "\n\n" + bad.line + "\nnull\n");
        ASSERT_EQ(told.faultCount, 1) << bad.line;
        EXPECT_EQ(told.faults[0].line, 3) << bad.line;
        EXPECT_TRUE(told.faults[0].message.contains(QString::fromUtf8(bad.words)))
            << bad.line << "\n"
            << told.faults[0].message.toStdString();
    }
}

TEST(BadInput, ValuesOfPropertiesHaveTheirForm)
{
    for (const char* value :
         {R"({})", R"([])", R"({"int":1,"point":[0,0,0]})", R"({"int":1.5})", R"({"int":"1"})", R"({"point":[0,0]})",
          R"({"point":[0,0,"0"]})", R"({"points":[[0,0]]})", R"({"color":"red"})", R"({"color":{"index":-1}})",
          R"({"color":{"rgb":[0,0,256]}})", R"({"transparency":{"alpha":256}})", R"({"id":5})",
          R"({"element":{"tag":1}})", R"({"collection":{"elements":[]}})",
          R"({"collection":{"index":0,"elements":[1]}})", R"({"real":1})"})
    {
        const JournalDiagnostics told = FaultsOf(
            Head + "\n" + R"({"changed":{"class":"A","handle":"1","property":{"name":"X","value":)" + value + "}}}\n");
        EXPECT_EQ(told.faultCount, 1) << value;
    }
}

TEST(BadInput, TheHeadStandsFirstAndHasTheVersion)
{
    const auto firstFault = [](const std::string& text)
    {
        const JournalDiagnostics told = FaultsOf(text);
        EXPECT_EQ(told.faultCount, 1) << text;
        return told.faults.empty() ? JournalFault() : told.faults.front();
    };
    EXPECT_TRUE(firstFault("").message.contains(QLatin1String("no records")));
    EXPECT_TRUE(firstFault("\n \n").message.contains(QLatin1String("no records")));
    EXPECT_EQ(firstFault("\n{\"other\":\"A\"}\n").line, 2);
    EXPECT_EQ(firstFault("null\n").line, 1);
    EXPECT_TRUE(firstFault(R"({"journal":{"version":2}})").message.contains(QLatin1String("version 2")));
    EXPECT_TRUE(firstFault(R"({"journal":{}})").message.contains(QLatin1String("\"version\" is missing")));
    EXPECT_TRUE(firstFault(R"({"journal":{"version":"1"}})").message.contains(QLatin1String("journal.version")));
}

TEST(BadInput, CommandsDoNotNest)
{
    const JournalDiagnostics nested = FaultsOf(Head + R"(
{"command":"A"}
{"command":"B"}
{"end":"B"}
{"end":"A"}
)");
    ASSERT_EQ(nested.faultCount, 1);
    EXPECT_EQ(nested.faults[0].line, 3);

    const JournalDiagnostics misnamed = FaultsOf(Head + R"(
{"command":"A"}
{"end":"B"}
{"command":"C"}
{"end":"C"}
)");
    ASSERT_EQ(misnamed.faultCount, 1);
    EXPECT_EQ(misnamed.faults[0].line, 3);
    EXPECT_TRUE(misnamed.faults[0].message.contains(QLatin1String("\"A\" of line 2")));
}

TEST(BadInput, AHandleHasOneObjectLine)
{
    const JournalDiagnostics told = FaultsOf(Head + R"(
{"object":{"class":"AcDbLine","handle":"00ab"}}
{"object":{"class":"AcDbLine","handle":"AB"}}
)");
    ASSERT_EQ(told.faultCount, 1);
    EXPECT_EQ(told.faults[0].line, 3);
    EXPECT_TRUE(told.faults[0].message.contains(QLatin1String("AB")));
}

TEST(BadInput, TwentyFaultsAreToldAndTheRestCounted)
{
    std::string text = Head + "\n";
    for (int line = 0; line < 25; ++line)
    {
        text += "{\"x\":1}\n";
    }
    const JournalDiagnostics told = FaultsOf(text);
    EXPECT_EQ(told.faultCount, 25);
    const QStringList lines = FormatFaults(QStringLiteral("a.jsonl"), told);
    ASSERT_EQ(lines.size(), 21);
    EXPECT_TRUE(lines[0].startsWith(QLatin1String("a.jsonl:2: ")));
    EXPECT_TRUE(lines[19].startsWith(QLatin1String("a.jsonl:21: ")));
    EXPECT_EQ(lines[20], QLatin1String("a.jsonl: 5 more faults"));
}

TEST(BadInput, AFileThatCannotBeOpenedIsOneFaultOfTheWholeFile)
{
    Session session;
    JournalDiagnostics told;
    EXPECT_FALSE(session.Load(QStringLiteral("/nowhere/at/all.jsonl"), told));
    ASSERT_EQ(told.faults.size(), 1U);
    EXPECT_EQ(told.faults[0].line, 0);
    EXPECT_TRUE(FormatFaults(QStringLiteral("f"), told)[0].startsWith(QLatin1String("f: ")));
}
} // namespace
} // namespace kv::testing
