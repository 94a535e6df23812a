// VB.NET and VBA texts that no event leads to by itself, and the project of a VB.NET macro.
#include "backends/vba/converter.h"
#include "backends/vba/object.h"
#include "backends/vbnet/converter.h"
#include "backends/vbnet/object.h"

#include "support/process_state.h"

#include <gtest/gtest.h>

#include <QtCore/QDir>
#include <QtCore/QTemporaryDir>
#include <QtCore/QXmlStreamReader>

#include <span>

namespace
{

struct BasicTexts : testing::Test
{
    BasicTexts()
    {
        ResetProcessState();
        vbNet.Counters().IndentLevel = 1;
        vba.Counters().IndentLevel = 1;
    }

    CZtConverterKVAPIVbNet vbNet{1};
    CZtConverterKVAPIObjectVbNet vbNetObjects{&vbNet};
    CZtConverterKVAPIVba vba{1};
    CZtConverterKVAPIObjectVba vbaObjects{&vba};
};

TEST_F(BasicTexts, FetchAnObjectByItsHandle)
{
    EXPECT_EQ(vbNetObjects.WriteGetObjectByHandle("region5", "Region", "1F", 5),
              "    Dim type5 As Morvane.kvObjectType_e\n"
              "    Dim object5 As Object\n"
              "    object5 = kvDoc.GetObjectByHandle(\"1F\", type5)\n"
              "    Dim region5 As Morvane.Region = object5\n");
    EXPECT_EQ(vbaObjects.WriteGetObjectByHandle("region5", "Region", "1F", 5),
              "    Dim type5 As Morvane.kvObjectType_e\n"
              "    Dim object5 As Object\n"
              "    Set object5 = kvDoc.GetObjectByHandle(\"1F\", type5)\n"
              "    Dim region5 As Morvane.Region\n"
              "    Set region5 = object5\n");
}

TEST_F(BasicTexts, ChangeACoordinateOfAVertex)
{
    vbNet.Counters().LocalNameSequence = 6;
    vba.Counters().LocalNameSequence = 6;
    EXPECT_EQ(
        vbNetObjects.WriteSetPointProperty("mesh1", Axis::Y, "GetVertexCoordinate", "SetVertexCoordinate", 2.5, 3),
        "    Dim X7 As Double\n"
        "    Dim Y7 As Double\n"
        "    Dim Z7 As Double\n"
        "    mesh1.GetVertexCoordinate( 3, X7, Y7, Z7 )\n"
        "    Y7 = 2.50000000000000\n"
        "    mesh1.SetVertexCoordinate( 3, X7, Y7, Z7 )\n");
    EXPECT_EQ(vbaObjects.WriteSetPointProperty("mesh1", Axis::Y, "GetVertexCoordinate", "SetVertexCoordinate", 2.5, 3),
              "");
    EXPECT_EQ(vba.Counters().LocalNameSequence, 6);
}

// The setting of the address has no line end in these languages.
TEST_F(BasicTexts, LinkAnAddress)
{
    EXPECT_EQ(vbNetObjects.SetHyperLink("block1", "plan.pdf", "the plan"),
              "    Dim hyperLink0 As Morvane.HyperLink = block1.GetHyperLink()\n"
              "    hyperLink0.Description = \"the plan\"\n"
              "    hyperLink0.SetFileOrWebPage( \"plan.pdf\", \"plan.pdf\")    block1.SetHyperLink(hyperLink0)\n");
    EXPECT_EQ(vbaObjects.SetHyperLink("block1", "#View1", ""),
              "    Dim hyperLink0 As Morvane.HyperLink\n"
              "    Set hyperLink0 = block1.GetHyperLink()\n"
              "    hyperLink0.Description = \"\"\n"
              "    hyperLink0.SetPlaceInThisDrawing \"#View1\"    block1.SetHyperLink hyperLink0\n");
}

TEST_F(BasicTexts, DeclareWhatTheApiDoesNotName)
{
    EXPECT_EQ(vbNet.WriteDeclareVariable("Object", "object", 3), "    Dim object3 As Object\n");
    EXPECT_EQ(vba.WriteDeclareVariable("Variant", "variant", 3), "    Dim variant3 As Variant\n");
    EXPECT_EQ(vba.WriteDeclareVariable("Object", "object", 3), "    Dim object3 As Morvane.Object\n");
}

// Shows the writers that the languages share.
struct CoordinateWriters : kv::BasicObjectText
{
    using BasicOperations::WriteCoordinateElements2D;
    using BasicOperations::WriteCoordinateElements3D;
};

TEST_F(BasicTexts, ListCoordinatesOfAnArray)
{
    const OdGePoint3d points[] = {{1, 2, 3}, {4, 5, 6.5}};
    EXPECT_EQ((vbaObjects.*&CoordinateWriters::WriteCoordinateElements3D)(7, std::span(points)),
              "    Coordinates7( 0 )=1.00000000000000\n"
              "    Coordinates7( 1 )=2.00000000000000\n"
              "    Coordinates7( 2 )=3.00000000000000\n"
              "    Coordinates7( 3 )=4.00000000000000\n"
              "    Coordinates7( 4 )=5.00000000000000\n"
              "    Coordinates7( 5 )=6.50000000000000\n");
    const OdGePoint2d flat[] = {{1, 2}, {3, -4}};
    EXPECT_EQ((vbNetObjects.*&CoordinateWriters::WriteCoordinateElements2D)(7, std::span(flat)),
              "    Coordinates7( 0 )=1.00000000000000\n"
              "    Coordinates7( 1 )=2.00000000000000\n"
              "    Coordinates7( 2 )=3.00000000000000\n"
              "    Coordinates7( 3 )=-4.00000000000000\n");
}

TEST_F(BasicTexts, OnlyVbNetHasAProject)
{
    const QTemporaryDir folder;
    const QDir files(folder.path());
    EXPECT_EQ(vba.WriteProjectFiles(files.filePath("made/wall plan.bas")), ResultNormal);
    EXPECT_FALSE(files.exists("made"));
    EXPECT_EQ(vbNet.WriteProjectFiles(files.filePath("made/wall plan.vb")), ResultNormal);
    EXPECT_EQ(QDir(files.filePath("made")).entryList(QDir::Files), (QStringList{"Module1.vb", "wall plan.vbproj"}));
    EXPECT_TRUE(vbNet.WriteGlobalHeaderFile("Plan").startsWith("\n\nModule Module1\n\n    Sub Main()\n"));
    EXPECT_TRUE(vbNet.WriteGlobalHeaderFile("Plan").endsWith("            Dim PlanObj As Plan\n"
                                                             "            PlanObj = New Plan()\n"
                                                             "            PlanObj.Run(kvApp)\n"
                                                             "        End If\n\n"
                                                             "    End Sub\n\n"
                                                             "End Module"));
}

TEST_F(BasicTexts, ProjectIsWellFormedAndListsItsFiles)
{
    const QString project = vbNet.WriteProjectFile("Plan");
    QXmlStreamReader xml(project);
    QStringList includes;
    int noWarn = 0;
    while (!xml.atEnd())
    {
        if (xml.readNext() == QXmlStreamReader::StartElement)
        {
            noWarn += xml.name() == QLatin1String("NoWarn") ? 1 : 0;
            if (xml.attributes().hasAttribute("Include"))
            {
                includes += xml.name().toString() + ' ' + xml.attributes().value("Include").toString();
            }
        }
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    EXPECT_EQ(noWarn, 3);
    EXPECT_EQ(includes, (QStringList{"Reference System", "COMReference Morvane", "Import Microsoft.VisualBasic",
                                     "Import System", "Compile Plan.vb", "Compile Module1.vb"}));
    EXPECT_TRUE(project.endsWith("</Project>"));
}

} // namespace
