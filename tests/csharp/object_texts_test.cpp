// C# texts of objects that no event leads to by itself.
#include "backends/csharp/converter.h"
#include "backends/csharp/object.h"

#include "support/process_state.h"

#include <gtest/gtest.h>

namespace
{

struct CSharpObjectTexts : testing::Test
{
    CSharpObjectTexts()
    {
        ResetProcessState();
        converter.Counters().IndentLevel = 1;
    }

    CZtConverterKVAPICSharp converter{1};
    CZtConverterKVAPIObjectCSharp objects{&converter};
};

TEST_F(CSharpObjectTexts, FetchAnObjectByItsHandle)
{
    EXPECT_EQ(objects.WriteGetObjectByHandle("region5", "Region", "1F", 5),
              "    kvObjectType_e type5;\n"
              "    object object5;\n"
              "    object5 = kvDoc.GetObjectByHandle(\"1F\", out type5);\n"
              "    Region region5 = (Region)object5;\n");
    EXPECT_EQ(objects.WriteGetNoteAnnotation("leader1", "note2"), "    Note note2 = leader1.GetNoteAnnotation();\n");
    EXPECT_EQ(objects.WriteDeclareBlockDefinition("block3"), "    BlockDefinition block3;\n");
}

TEST_F(CSharpObjectTexts, ChangeACoordinateOfAVertex)
{
    converter.Counters().LocalNameSequence = 6;
    EXPECT_EQ(objects.WriteSetPointProperty("polyline1", Axis::Y, "GetVertex", "SetVertex", 2.5, 3),
              "    double X7;\n"
              "    double Y7;\n"
              "    double Z7;\n"
              "    polyline1.GetVertex( 3, out X7, out Y7, out Z7 );\n"
              "    Y7 = 2.50000000000000;\n"
              "    polyline1.SetVertex( 3, X7, Y7, Z7 );\n");
}

TEST_F(CSharpObjectTexts, LinkTheThreeKindsOfAddresses)
{
    EXPECT_EQ(objects.SetHyperLink("block1", "#View1", "to the view"),
              "    HyperLink hyperLink0 = block1.GetHyperLink();\n"
              "    hyperLink0.Description = \"to the view\";\n"
              "    hyperLink0.SetPlaceInThisDrawing( \"#View1\");\n"
              "    block1.SetHyperLink(hyperLink0);\n");
    EXPECT_TRUE(objects.SetHyperLink("block1", "plan.pdf", "")
                    .contains("\n    hyperLink1.SetFileOrWebPage( \"plan.pdf\", \"plan.pdf\");\n"));
    EXPECT_TRUE(objects.SetHyperLink("block1", "mailto:ann@example.org?subject=Walls", "")
                    .contains("\n    hyperLink2.SetEmailAddress( \"ann@example.org\", \"Walls\");\n"));
}

TEST_F(CSharpObjectTexts, CommentAddedAndModifiedObjects)
{
    EXPECT_EQ(converter.WriteComment("as drawn"), "    //as drawn\n");
    EXPECT_EQ(objects.WriteObjectAddedComment("AcDbLine"), "    // AcDbLine object added\n");
    EXPECT_EQ(objects.WriteObjectModifiedComment("AcDbLine"), "    // AcDbLine object modified\n");
}

} // namespace
