// -HYPERLINK as a user meets it: selections, the chain of data, the numbers of the removal.
#include "commands/hyperlink_command.h"

#include "command_run.h"
#include "support/conversion_run.h"

namespace kv::testing
{
namespace
{
std::string Linked(const std::string& handle, const std::string& address, const std::string& description = "")
{
    return R"({"object":{"class":"AcDbLine","handle":")" + handle + R"(","endPoint":[1,1,0],"xdata":{"PE_URL":[")" +
           address + R"(",{"code":1002,"value":"{"},")" + description +
           R"(","",{"code":1002,"value":"{"},{"code":1002,"value":"}"},{"code":1002,"value":"}"}]}}})"
           "\n";
}

std::string Plain(const std::string& handle)
{
    return R"({"object":{"class":"AcDbLine","handle":")" + handle + "\",\"endPoint\":[1,1,0]}}\n";
}

CommandRun Link(const std::string& lines, std::vector<std::string> answers)
{
    return RunOn<CZtCommandHyperlink>(lines, std::move(answers));
}

// The handles that are left with a hyperlink after the answer to which of the links "a" (1), "b" (2), "1" (3) to
// remove.
std::string LeftAfter(const std::string& answer, const std::string& message = "3 hyperlinks deleted.")
{
    const CommandRun run = Link(Linked("1", "a", "first") + Linked("2", "b") + Linked("3", "9") + Plain("4"),
                                {"Remove", "ALL", "", answer});
    EXPECT_EQ(run.result, 5100);
    EXPECT_EQ(run.asked, 4U) << "no answer is refused";
    EXPECT_NE(run.shown.find("\n1 a (first)\n2 b ()\n3 9 ()\nSpecify number, hyperlink, or * for all: " + answer +
                             "\n" + message + "\n"),
              std::string::npos)
        << run.shown;
    std::string left;
    for (const char* handle : {"1", "2", "3"})
    {
        left += run.saved.find(Plain(handle)) == std::string::npos ? handle : "";
    }
    return left;
}

TEST(HyperlinkCommand, RemovesByIndexFromZero)
{
    EXPECT_EQ(LeftAfter("1"), "13") << "the second";
    EXPECT_EQ(LeftAfter("2"), "12") << "the third";
    EXPECT_EQ(LeftAfter("3"), "123") << "none";
    EXPECT_EQ(LeftAfter("0"), "23") << "the first";
    EXPECT_EQ(LeftAfter("-1"), "123");
    EXPECT_EQ(LeftAfter("9"), "12") << "an address";
    EXPECT_EQ(LeftAfter("b"), "13");
    EXPECT_EQ(LeftAfter("B"), "123");
    EXPECT_EQ(LeftAfter("nothing"), "123");
    EXPECT_EQ(LeftAfter(""), "123");
    EXPECT_EQ(LeftAfter("*"), "");

    const auto two = Linked("1", "a") + Linked("2", "b");
    EXPECT_EQ(Link(two, {"R", "1 2", "", "2"}).added, "");
    EXPECT_NE(Link(two, {"R", "1 2", "", "1"}).saved.find(Linked("1", "a") + Plain("2")), std::string::npos);
}

TEST(HyperlinkCommand, RemovesASingleHyperlinkUnasked)
{
    const CommandRun run = Link(Linked("1", "a") + Plain("2"), {"_Remove", "1,2", ""});
    EXPECT_EQ(run.shown, "[Insert/Remove]: _Remove\nSelect entities or [Window/ALL]: 1,2\n2 found, 2 total\n"
                         "Select entities or [Window/ALL]: \n1 hyperlink deleted.\n");
    EXPECT_EQ(run.saved, Head + "\n" + Plain("1") + Plain("2"));
    const CommandRun none = Link(Plain("2"), {"_Remove", "2", ""});
    EXPECT_EQ(none.result, 5100);
    EXPECT_EQ(none.shown.find("deleted"), std::string::npos);
    // Data of other applications stays.
    const std::string other = R"({"object":{"class":"AcDbLine","handle":"1","xdata":{"X":["x"],"PE_URL":["a"]}}})"
                              "\n";
    EXPECT_EQ(Link(other, {"r", "1", ""}).saved,
              Head + "\n" + R"({"object":{"class":"AcDbLine","handle":"1","xdata":{"X":["x"]}}})" + "\n");
}

TEST(HyperlinkCommand, AttachesTheChain)
{
    const CommandRun run = Link(Plain("1"), {"Insert", "", "1", "", "a \"b\"", "place", "text"});
    EXPECT_EQ(run.result, 5100);
    EXPECT_EQ(run.shown, "[Insert/Remove]: Insert\nSpecify anchor option [Area/Entity/Object] <Entity>: \n"
                         "Select entities or [Window/ALL]: 1\n1 found, 1 total\nSelect entities or [Window/ALL]: \n"
                         "Specify hyperlink address <Enter to use active drawing>: a \"b\"\n"
                         "Specify place in this drawing <Enter for none>: place\n"
                         "Specify description text <Enter for none>: text\n");
    EXPECT_EQ(run.saved,
              Head + "\n" +
                  R"({"object":{"class":"AcDbLine","handle":"1","endPoint":[1,1,0],"xdata":{"PE_URL":["a \"b\"",)"
                  R"({"code":1002,"value":"{"},"text","place",{"code":1002,"value":"{"},{"code":1002,"value":"}"},)"
                  R"({"code":1002,"value":"}"}]}}})"
                  "\n");
    EXPECT_EQ(Link(Linked("1", "old", "d") + Plain("2"), {"I", "o", "1 2", "", "new", "", "d"}).saved,
              Head + "\n" + Linked("1", "new", "d") + Linked("2", "new", "d"));
    EXPECT_EQ(Link(Plain("1"), {"I", "E", ""}).added, "") << "nothing selected";
    EXPECT_EQ(Link(Plain("1"), {""}).result, 5100);
}

TEST(HyperlinkCommand, AttachesToAnAreaOnItsOwnLayer)
{
    const std::string model =
        R"({"object":{"class":"AcDbBlockTableRecord","handle":"F","name":"*MODEL_SPACE","isLayout":true}})"
        "\n";
    const std::string layer = R"({"object":{"class":"AcDbLayerTableRecord","handle":"10","name":"URLLAYER"}})"
                              "\n";
    const std::string rectangle =
        R"({"object":{"class":"AcDbPolyline","handle":"11","vertices":[[4,1,2],[1.5,1,2],[1.5,0.5,2],[4,0.5,2]],)"
        R"("closed":true,"layer":"10","xdata":{"PE_URL":["",{"code":1002,"value":"{"},"","",{"code":1002,"value":"{"},)"
        R"({"code":1002,"value":"}"},{"code":1002,"value":"}"}]}}})"
        "\n";
    const std::vector<std::string> answers = {"Insert", "Area", "4,1,2", "@-2.5,-.5", "", "", ""};
    const std::string listed =
        R"({"object":{"class":"AcDbBlockTableRecord","handle":"F","name":"*MODEL_SPACE","isLayout":true,"entities":["11"]}})"
        "\n";
    EXPECT_EQ(Link(model, answers).saved, Head + "\n" + listed + layer + rectangle);
    const CommandRun withLayer = Link(layer, answers);
    EXPECT_EQ(withLayer.added, rectangle) << "the layer is there";
    EXPECT_NE(withLayer.shown.find("Specify start corner: 4,1,2\nSpecify opposite corner: @-2.5,-.5\n"),
              std::string::npos);
}

TEST(HyperlinkCommand, CancelsAtEveryPrompt)
{
    const std::string lines = Linked("1", "a") + Linked("2", "b");
    CancelEverywhere<CZtCommandHyperlink>(lines, {"Insert", "Area", "0,0", "1,1", "u", "p", "d"});
    CancelEverywhere<CZtCommandHyperlink>(lines, {"Insert", "Entity", "W", "0,0", "1,1", "", "u", "p", "d"});
    CancelEverywhere<CZtCommandHyperlink>(lines, {"Remove", "ALL", "", "*"});
    CZtCommandHyperlink command;
    Session session;
    EXPECT_EQ(session.RunCommand(command, nullptr), -5001) << "without a user";
}

TEST(HyperlinkCommand, AsksAgainForWhatIsNoAnswer)
{
    const CommandRun run = Link(Plain("1"), {"x", "I", "a", "1", "1,x", "1,1e999", "", "0,0", "1,2", "u", "p", "d"});
    EXPECT_EQ(run.result, 5100) << run.shown;
    EXPECT_NE(run.shown.find("x\nInvalid option keyword.\n"), std::string::npos);
    EXPECT_NE(run.shown.find("Specify start corner: 1,x\nInvalid point.\n"), std::string::npos);
    const std::string erased = R"({"object":{"class":"AcDbLine","handle":"5","erased":true}})"
                               "\n";
    const std::string unknown = R"({"added":{"class":"AcDbThing","handle":"6","properties":[]}})"
                                "\n";
    const CommandRun selection = Link(Plain("1") + erased + unknown, {"R", "5 6 7 g 1 1", "ALL", ""});
    for (const char* handle : {"5", "6", "7", "g"})
    {
        EXPECT_NE(selection.shown.find("No entity has the handle " + std::string(handle) + ".\n"), std::string::npos);
    }
    EXPECT_NE(selection.shown.find("2 found, 1 total\nSelect entities or [Window/ALL]: ALL\n1 found, 1 total\n"),
              std::string::npos)
        << selection.shown;
}

// How many of one entity are found by a window between two corners.
bool IsInWindow(const std::string& entity, const char* corner, const char* opposite)
{
    const CommandRun run =
        Link("{\"object\":{\"handle\":\"1\",\"class\":\"" + entity + "}}\n", {"R", "W", corner, opposite, ""});
    EXPECT_EQ(run.result, 5100);
    return run.shown.find("\n1 found") != std::string::npos;
}

TEST(HyperlinkCommand, FindsByAWindowWhatLiesInside)
{
    const std::string line = R"(AcDbLine","startPoint":[1,1,0],"endPoint":[3,2,0])";
    EXPECT_TRUE(IsInWindow(line, "3,2", "1,1"));
    EXPECT_FALSE(IsInWindow(line, "1.1,1", "9,9"));
    EXPECT_FALSE(IsInWindow(line, "0,0", "9,1.9"));
    EXPECT_TRUE(IsInWindow(R"(AcDbCircle","center":[5,5,0],"radius":2)", "3,3", "7,7"));
    EXPECT_FALSE(IsInWindow(R"(AcDbCircle","center":[5,5,0],"radius":2)", "3,3.1", "7,7"));
    const std::string quarter = R"(AcDbArc","radius":2,"endAngle":1.5707963267948966)";
    EXPECT_TRUE(IsInWindow(quarter, "-.001,-.001", "2.001,2.001"));
    EXPECT_FALSE(IsInWindow(quarter, "-.001,-.001", "2.001,1.9"));
    // From 270 degrees through 0 to 45.
    const std::string overZero = R"(AcDbArc","radius":2,"startAngle":4.71238898038469,"endAngle":0.7853981633974483)";
    EXPECT_TRUE(IsInWindow(overZero, "-.001,-2.001", "2.001,1.42"));
    EXPECT_FALSE(IsInWindow(overZero, "-.001,-2.001", "1.9,1.42"));
    EXPECT_TRUE(IsInWindow(R"(AcDbEllipse","majorAxis":[0,3,0],"minorRadius":1)", "-1,-3", "1,3"));
    EXPECT_FALSE(IsInWindow(R"(AcDbEllipse","majorAxis":[0,3,0],"minorRadius":1)", "-3,-1", "3,1"));
    EXPECT_TRUE(IsInWindow(R"(AcDbViewport","center":[1,1,0],"width":2,"height":4)", "0,-1", "2,3"));
    EXPECT_TRUE(IsInWindow(R"(AcDbText","position":[4,4,0])", "3,3", "5,5"));
    EXPECT_FALSE(IsInWindow(R"(AcDbRay","secondPoint":[1,1,0])", "-9,-9", "9,9"));
    EXPECT_FALSE(IsInWindow("AcDbRegion\"", "-9,-9", "9,9"));
    const std::string inBlock = R"({"object":{"class":"AcDbBlockTableRecord","handle":"2","entities":["1"]}})"
                                "\n";
    EXPECT_NE(Link(inBlock + Plain("1"), {"R", "ALL", ""}).shown.find("0 found, 0 total"), std::string::npos);
}

TEST(HyperlinkCommand, ReachesTheMacroOfABlockDefinition)
{
    const std::string block = R"({"object":{"class":"AcDbBlockTableRecord","handle":"2F","name":"Part"}}
{"command":"BLOCK"}
{"added":{"class":"AcDbBlockTableRecord","handle":"2F","properties":[]}}
{"end":"BLOCK"}
)";
    const CommandRun run = Link(block, {"Insert", "Object", "2F", "", "http://a.b/c", "#View", "About"});
    constexpr std::uint32_t cpp = 0;
    EXPECT_EQ(ConversionRun(QByteArray::fromStdString(Head + "\n" + block), cpp).Body().indexOf("HyperLink"), -1);
    const std::string body = ConversionRun(QByteArray::fromStdString(run.saved), cpp).Body().toStdString();
    EXPECT_NE(body.find("SetFileOrWebPage( L\"http://a.b/c\", L\"http://a.b/c\");"), std::string::npos) << body;
    EXPECT_NE(body.find("put_Description(L\"#View\");"), std::string::npos) << "the last text of the chain: " << body;
}
} // namespace
} // namespace kv::testing
