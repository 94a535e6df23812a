// The named values of drawing objects, by the class of the object.
#include "embedded/session.h"
#include "module/module_object.h"
#include "support/process_state.h"

#include "core/recording_start.h"

#include <gtest/gtest.h>

namespace
{

using LoadedModule = OdRxWin32Module<CZtConverterKVAPIModule, CZtConverterKVAPIModule>;

QString Show(const CZtVariant& value)
{
    switch (value.GetType())
    {
    case CZtVariant::kInteger:
        return QString::number(value.GetInt32());
    case CZtVariant::kReal:
        return QString::number(value.GetDouble()) + QLatin1Char('d');
    case CZtVariant::kText:
        return QLatin1Char('"') + value.GetString().text() + QLatin1Char('"');
    case CZtVariant::kPoint:
    {
        const OdGePoint3d point = value.GetPoint3d();
        return QStringLiteral("(%1 %2 %3)").arg(point.x).arg(point.y).arg(point.z);
    }
    case CZtVariant::kColor:
        return QStringLiteral("color %1").arg(value.GetColor().colorIndex());
    case CZtVariant::kCollection:
    {
        QString list = QStringLiteral("[%1:").arg(value.GetCollection()->GetCurrentIndex());
        for (const CZtVariantCollectionElement& element : value.GetCollection()->GetCollectionDataForRead())
        {
            list += QLatin1String(element.GetTag()->IsNull() ? " " : " tag ") + Show(*element.GetValue());
        }
        return list + QLatin1Char(']');
    }
    default:
        return QStringLiteral("type %1").arg(value.GetType());
    }
}

// The values of the object with handle A in a drawing of these records, as "name value" lines.
std::string Collect(const QByteArray& records)
{
    kv::Session session;
    kv::JournalDiagnostics diagnostics;
    if (!session.LoadText("{\"journal\":{\"version\":1}}\n" + records, diagnostics))
    {
        return kv::FormatFaults(QStringLiteral("records"), diagnostics).join(QLatin1Char('\n')).toStdString();
    }
    RegisterHost(&session);
    const OdDbObjectPtr object = session.ActiveDocument()->GetZtDatabase()->openObject(OdDbHandle(0xA));
    LoadedModule module(nullptr);
    CZtVariantCollection collection;
    module.CollectObjectProperties(object.get(), &collection);
    QString text;
    for (const CZtVariantCollectionElement& element : collection.GetCollectionDataForRead())
    {
        text += element.GetTag()->GetString().text() + QLatin1Char(' ') + Show(*element.GetValue()) + QLatin1Char('\n');
    }
    return text.toStdString();
}

QByteArray Object(const char* className, const char* keys)
{
    return QByteArray("{\"object\":{\"class\":\"") + className + "\",\"handle\":\"A\"" + (*keys != '\0' ? "," : "") +
           keys + "}}\n";
}

class PropertyCollection : public testing::Test
{
protected:
    void SetUp() override { ResetProcessState(); }
};

TEST_F(PropertyCollection, TellsDimensionsByTheirPoints)
{
    EXPECT_EQ(Collect(Object("AcDbAlignedDimension",
                             R"("xLine1Point":[1,2,3],"xLine2Point":[4,5,6],"dimLinePoint":[7,8,9])")),
              "Erased \"NO\"\nxLine1Point (1 2 3)\nxLine2Point (4 5 6)\ndimLinePoint (7 8 9)\n");
    EXPECT_EQ(Collect(Object("AcDb2LineAngularDimension",
                             R"("xLine1Start":[1,0,0],"xLine1End":[2,0,0],"xLine2Start":[3,0,0],"xLine2End":[4,0,0],)"
                             R"("arcPoint":[5,0,0])")),
              "Erased \"NO\"\nxLine1Start (1 0 0)\nxLine1End (2 0 0)\nxLine2Start (3 0 0)\nxLine2End (4 0 0)\n"
              "arcPoint (5 0 0)\n");
    EXPECT_EQ(
        Collect(Object("AcDb3PointAngularDimension",
                       R"("centerPoint":[1,0,0],"xLine1Point":[2,0,0],"xLine2Point":[3,0,0],"arcPoint":[4,0,0])")),
        "Erased \"NO\"\ncenterPoint (1 0 0)\nxLine1Point (2 0 0)\nxLine2Point (3 0 0)\narcPoint (4 0 0)\n");
    EXPECT_EQ(Collect(Object("AcDbArcDimension",
                             R"("xLine1Point":[1,0,0],"xLine2Point":[2,0,0],"centerPoint":[3,0,0],"isPartial":true,)"
                             R"("arcPoint":[4,0,0])")),
              "Erased \"NO\"\nxLine1Point (1 0 0)\nxLine2Point (2 0 0)\ncenterPoint (3 0 0)\nisPartial 1\n"
              "arcPoint (4 0 0)\n");
    EXPECT_EQ(Collect(Object("AcDbOrdinateDimension",
                             R"("definingPoint":[1,0,0],"leaderEndPoint":[2,0,0],"origin":[3,0,0])")),
              "Erased \"NO\"\ndefiningPoint (1 0 0)\nleaderEndPoint (2 0 0)\nisUsingXAxis 0\nsetZero (3 0 0)\n");
    EXPECT_EQ(Collect(Object("AcDbRotatedDimension", R"("xLine1Point":[1,0,0],"rotation":0.5)")),
              "Erased \"NO\"\nxLine1Point (1 0 0)\nxLine2Point (0 0 0)\ndimLinePoint (0 0 0)\nrotation 0.5d\n");
    for (const char* name : {"AcDbDiametricDimension", "AcDbRadialDimension"})
    {
        EXPECT_EQ(Collect(Object(name, R"("chordPoint":[1,0,0])")), "Erased \"NO\"\nchordPoint (1 0 0)\n");
    }
    EXPECT_EQ(Collect(Object("AcDbRadialDimensionLarge", R"("chordPoint":[1,0,0])")), "Erased \"NO\"\n");
}

TEST_F(PropertyCollection, TellsOtherClassesByTheirValues)
{
    EXPECT_EQ(Collect(Object("AcDbLine", R"("erased":true,"startPoint":[1,0,0])")), "Erased \"YES\"\n");
    EXPECT_EQ(Collect(Object("AcDbMline", R"("vertices":[[1,0,0],[2,0,0]],"closedMline":true)")),
              "Erased \"NO\"\nvertices [0: (1 0 0) (2 0 0)]\nclosedMline 1\n");
    EXPECT_EQ(Collect(Object("AcDbFcf", R"("text":"{A}%%v")")), "Erased \"NO\"\nContent \"{A}%%v\"\n");
    EXPECT_EQ(Collect(Object("AcDbTable", R"("cells":[["a","b","c"],["d","e","f"]],"columnWidths":[1,2,3],)"
                                          R"("rowHeights":[4,5])")),
              "Erased \"NO\"\nContents_0_0 \"a\"\nColumnWidth_0 1d\nContents_0_1 \"b\"\nColumnWidth_1 2d\n"
              "Contents_0_2 \"c\"\nColumnWidth_2 3d\nRowHeight_0 4d\nContents_1_0 \"d\"\nContents_1_1 \"e\"\n"
              "Contents_1_2 \"f\"\nRowHeight_1 5d\n");
    EXPECT_EQ(Collect(Object("AcDbMText", R"("useBackgroundColorOn":true,"backgroundFillColor":{"index":3},)"
                                          R"("actualHeight":2.5)")),
              "Erased \"NO\"\nUseDrawingBackgroundColor \"YES\"\nBackgroundFillColor color 3\n"
              "BackgroundBorderOffsetFactor 1.5d\nTextBoxHeight 2.5d\n");
}

TEST_F(PropertyCollection, TellsLeadersByTheirNotes)
{
    const QByteArray note = R"({"object":{"class":"AcDbMText","handle":"B","contents":"read me"}})"
                            "\n";
    EXPECT_EQ(Collect(note + Object("AcDbLeader", R"("annotation":"B","annoWidth":2)")),
              "Erased \"NO\"\ncontent \"read me\"\nwidth 2d\n");
    EXPECT_EQ(Collect(note + Object("AcDbLeader", R"("annoType":3,"annotation":"B")")),
              "Erased \"NO\"\ncontent \"\"\nwidth 0d\n");
    EXPECT_EQ(Collect(Object("AcDbLeader", R"("annoType":0,"annotation":"B")")),
              "Erased \"NO\"\ncontent \"\"\nwidth 0d\n");
}

TEST_F(PropertyCollection, TellsBlocksAndLayoutsInTheWordsOfTheUser)
{
    const QByteArray words = R"({"translations":{"property_values":{"Yes":"Ja","No":"Nein","NO":"FALSCH"}}})"
                             "\n";
    const QByteArray entities = R"({"object":{"class":"AcDbLine","handle":"B"}})"
                                "\n"
                                R"({"object":{"class":"AcDbLine","handle":"C","erased":true}})"
                                "\n";
    EXPECT_EQ(
        Collect(words + entities +
                Object("AcDbBlockTableRecord", R"("entities":["B","C"],"comments":"a\nb","blockScaling":1,)"
                                               R"("insertUnits":4)")),
        "Erased \"NO\"\nObjects [0: \"B\"]\nDescription \"a\\nb\"\nApplyUniformScale \"Ja\"\nExplodable \"Nein\"\n"
        "BlockUnit \"4\"\n");
    EXPECT_EQ(Collect(Object("AcDbBlockTableRecord", R"("explodable":true)")),
              "Erased \"NO\"\nDescription \"\"\nApplyUniformScale \"No\"\nExplodable \"Yes\"\nBlockUnit \"0\"\n");
    EXPECT_EQ(Collect(Object("AcDbBlockTableRecord", R"("isLayout":true,"comments":"x")")), "Erased \"NO\"\n");
    EXPECT_EQ(Collect(Object("AcDbBlockTableRecord", R"("isFromExternalReference":true)")), "Erased \"NO\"\n");
    EXPECT_EQ(Collect(words + Object("AcDbLayout", R"("name":"Plan","modelType":false,"printStyleSheet":"mono.ctb")")),
              "Erased \"NO\"\nPrintStyleTable \"mono.ctb\"\nModel_PrintStyleTable \"Nein\"\n"
              "SheetName_PrintStyleTable \"Plan\"\n");
    EXPECT_EQ(Collect(Object("AcDbLayout", R"("name":"Plan")")), "Erased \"NO\"\n");
}

TEST_F(PropertyCollection, NotesTheStartingSheetOnce)
{
    const QByteArray line = Object("AcDbLine", "");
    Collect(R"({"drawing":{"currentLayout":"Plan 1"}})"
            "\n" +
            line);
    EXPECT_FALSE(RecordingStart::Current().RecordingStartsInModel);
    EXPECT_EQ(RecordingStart::Current().RecordingStartSheet.text(), QStringLiteral("Plan 1"));
    Collect(line);
    EXPECT_EQ(RecordingStart::Current().RecordingStartSheet.text(), QStringLiteral("Plan 1"));

    RecordingStart::Current() = {};
    Collect(line);
    EXPECT_TRUE(RecordingStart::Current().RecordingStartsInModel);
    EXPECT_EQ(RecordingStart::Current().RecordingStartSheet.text(), QStringLiteral("Model"));
}

} // namespace
