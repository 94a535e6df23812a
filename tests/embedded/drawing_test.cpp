// The drawing that a journal describes: every class and key, defaults, ids, layouts.
#include "journal_text.h"

#include "host/db/blocks.h"
#include "host/db/dimensions.h"
#include "host/db/polylines.h"
#include "host/db/text.h"

#include <map>
#include <sstream>

namespace kv::testing
{
namespace
{
// A value of each form, and one that no key of the form takes.
const std::map<char, std::pair<std::string, std::string>> Forms = {
    {'t', {R"("word")", "1"}},
    {'f', {"true", "1"}},
    {'n', {"1.5", "\"1\""}},
    {'i', {"1", "1.5"}},
    {'p', {"[1,2,3]", "[1,2]"}},
    {'h', {R"("1F")", "\"x\""}},
    {'c', {R"({"index":1})", "\"red\""}},
    {'N', {"[1,2.5]", "[true]"}},
    {'H', {R"(["1F"])", "[null]"}},
    {'P', {"[[1,2,3]]", "[1,2,3]"}},
    {'F', {"[[1,2,3,0]]", "[[1,2,3]]"}},
    {'T', {R"([["a"],["b","c"]])", R"(["a"])"}},
    {'E', {"[true,false,true,true]", "[1,1,1,1]"}},
    {'X', {R"({"A":["t",{"code":1010,"value":[1,2,3]},{"code":1040,"value":1}]})", R"({"A":[1]})"}},
    {'A', {R"([null,"1F"])", "[1]"}},
};

const char* const DimensionKeys = " fit:i textInsideAlign:f textOutsideAlign:f extLineFixLen:n";

// Class, keys and the forms of their values.
const std::vector<std::pair<std::string, std::string>> Classes = {
    {"AcDbTextStyleTableRecord", "name:t isShapeFile:f fileName:t"},
    {"AcDbLayerTableRecord", "name:t"},
    {"AcDbLinetypeTableRecord", "name:t description:t pattern:N"},
    {"AcDbDimStyleTableRecord", "name:t"},
    {"AcDbMlineStyle", "name:t"},
    {"AcDbTableStyle", "name:t"},
    {"AcDbViewTableRecord", "name:t isPaperspaceView:f"},
    {"AcDbViewportTableRecord", "name:t"},
    {"AcDbGroup", "name:t isAnonymous:f description:t entities:H"},
    {"AcDbLayout", "name:t modelType:f printStyleSheet:t"},
    {"AcDbBlockTableRecord", "name:t origin:p comments:t isLayout:f isFromExternalReference:f pathName:t entities:H "
                             "blockScaling:i explodable:f insertUnits:i"},
    {"AcDbBlockReference", "block:h position:p scale:p rotation:n attributes:H"},
    {"AcDbAttributeDefinition", "textString:t tag:t prompt:t position:p alignmentPoint:p height:n rotation:n style:t "
                                "justify:t constant:f invisible:f preset:f verify:f lockPosition:f"},
    {"AcDbText", "textString:t position:p alignmentPoint:p height:n rotation:n"},
    {"AcDbMText", "contents:t location:p width:n textHeight:n actualHeight:n rotation:n attachment:i "
                  "lineSpacingFactor:n textStyle:h backgroundFillOn:f useBackgroundColorOn:f backgroundFillColor:c "
                  "backgroundScaleFactor:n"},
    {"AcDbLeader", "annoType:i annotation:h annoWidth:n vertices:P"},
    {"AcDbFcf", "text:t location:p"},
    {"AcDbLine", "startPoint:p endPoint:p"},
    {"AcDbCircle", "center:p radius:n"},
    {"AcDbArc", "center:p radius:n startAngle:n endAngle:n"},
    {"AcDbEllipse", "center:p majorAxis:p minorRadius:n startAngle:n endAngle:n"},
    {"AcDbPoint", "position:p"},
    {"AcDbRay", "basePoint:p secondPoint:p"},
    {"AcDbXline", "basePoint:p secondPoint:p"},
    {"AcDbPolyline", "vertices:P closed:f bulges:N layer:h"},
    {"AcDb2dPolyline", "vertices:P closed:f bulges:N"},
    {"AcDb3dPolyline", "vertices:P closed:f bulges:N"},
    {"AcDbSpline", "fitPoints:P closed:f startTangent:p endTangent:p fitTolerance:n"},
    {"AcDbSolid", "vertices:P"},
    {"AcDbTrace", "vertices:P"},
    {"AcDbFace", "vertices:P edges:E"},
    {"AcDbMline", "vertices:P closedMline:f justification:i scale:n style:t"},
    {"AcDbPolygonMesh", "vertices:P mSize:i nSize:i isMClosed:f isNClosed:f"},
    {"AcDbPolyFaceMesh", "vertices:P faces:F"},
    {"AcDbRasterImage", "path:t position:p scale:n rotation:n"},
    {"AcDbShape", "name:t position:p size:n rotation:n"},
    {"AcDbTable", "cells:T columnWidths:N rowHeights:N position:p"},
    {"AcDbViewport", "center:p width:n height:n isNonRectClipped:f"},
    {"AcDbAlignedDimension", "xLine1Point:p xLine2Point:p dimLinePoint:p"},
    {"AcDbRotatedDimension", "xLine1Point:p xLine2Point:p dimLinePoint:p rotation:n"},
    {"AcDb2LineAngularDimension", "xLine1Start:p xLine1End:p xLine2Start:p xLine2End:p arcPoint:p"},
    {"AcDb3PointAngularDimension", "centerPoint:p xLine1Point:p xLine2Point:p arcPoint:p"},
    {"AcDbArcDimension", "xLine1Point:p xLine2Point:p centerPoint:p isPartial:f arcPoint:p"},
    {"AcDbOrdinateDimension", "definingPoint:p leaderEndPoint:p isUsingXAxis:f origin:p"},
    {"AcDbDiametricDimension", "chordPoint:p"},
    {"AcDbRadialDimension", "chordPoint:p"},
    {"AcDbRadialDimensionLarge", "overrideCenter:p jogPoint:p chordPoint:p"},
    {"AcDbHatch", ""},
    {"AcDbRegion", ""},
    {"AcDbOle2Frame", ""},
};

std::vector<std::pair<std::string, char>> keysOf(const std::string& className, const std::string& classKeys)
{
    const bool dimension = className.find("Dimension") != std::string::npos;
    std::istringstream words(classKeys + (dimension ? DimensionKeys : "") +
                             " erased:f reactors:H xdata:X associations:A");
    std::vector<std::pair<std::string, char>> keys;
    for (std::string word; words >> word;)
    {
        keys.emplace_back(word.substr(0, word.find(':')), word.back());
    }
    return keys;
}

// The object of an id in a drawing of the given lines, as a class.
template <class Object>
struct Opened
{
    std::unique_ptr<Session> session;
    OdSmartPtr<Object> object;

    explicit Opened(const std::string& lines, std::uint64_t handle = 1)
        : session(LoadLines(lines)),
          object(OdSmartPtr<Object>::cast(
              session->ActiveDocument()->GetZtDatabase()->getOdDbObjectId(OdDbHandle(handle)).openObject()))
    {
    }
};

// Changes the object with the handle 1 and takes the change back.
class Touch final : public CZtCommand
{
public:
    CZtString globalName() const override { return "_TOUCH"; }
    CZtString localName() const override { return "TOUCH"; }
    CZtString groupName() const override { return "TEST"; }
    ResultCode execute(OdEdCommandContext& context) override
    {
        const auto item = [](int code, const char* text)
        { return OdResBufPtr::make(code, QString(QLatin1String(text))); };
        const OdDbObjectId object = ACTIVE_DOCUMENT()->GetZtDatabase()->getOdDbObjectId(OdDbHandle(1));
        CZtDrawingEditor& drawing = context.DrawingEditor();
        EXPECT_THROW(drawing.setXData(object, {item(1001, "TOUCH")}), OdError) << "not registered yet";
        drawing.registerApplication(QStringLiteral("TOUCH"));
        EXPECT_THROW(drawing.setXData({}, {item(1001, "TOUCH")}), OdError);
        drawing.setXData(object, {item(1001, "TOUCH"), item(1000, "text")});
        drawing.setXData(object, {item(1001, "TOUCH")});
        return ResultNormal;
    }
};

TEST(Drawing, EveryValueIsWrittenAsItIsRead)
{
    for (const auto& [className, classKeys] : Classes)
    {
        std::string line = R"({"object":{"class":")" + className + R"(","handle":"1")";
        for (const auto& [key, form] : keysOf(className, classKeys))
        {
            line.append(",\"").append(key).append("\":").append(Forms.at(form).first);
        }
        // The line after it is cut off; one ahead of it isn't in the writer's form.
        std::string good = Head;
        good.append("\n{ \"other\" : \"a\" }\r\n").append(line).append("}}\n");
        JournalDiagnostics diagnostics;
        Session session;
        ASSERT_TRUE(session.LoadText(QByteArray::fromStdString(good + "{\"obj"), diagnostics));
        Touch touch;
        EXPECT_EQ(session.RunCommand(touch, nullptr), ResultNormal);
        EXPECT_EQ(session.WithChanges(QByteArray::fromStdString(good + "{\"obj")).toStdString(), good);
    }
}

TEST(Drawing, EveryKeyOfEveryClassIsTakenWithItsTypeOnly)
{
    for (const auto& [className, classKeys] : Classes)
    {
        const std::string start = R"({"object":{"class":")" + className + R"(","handle":"1")";
        std::string whole = start;
        std::string bad = Head;
        const auto keys = keysOf(className, classKeys);
        for (const auto& [key, form] : keys)
        {
            whole.append(",\"").append(key).append("\":").append(Forms.at(form).first);
            bad.append("\n")
                .append(start)
                .append(",\"")
                .append(key)
                .append("\":")
                .append(Forms.at(form).second)
                .append("}}");
            if (form != 'A')
            {
                bad.append("\n").append(start).append(",\"").append(key).append("\":null}}");
            }
        }
        const auto lines = std::count(bad.begin(), bad.end(), '\n');
        EXPECT_EQ(FaultsOf(std::string(Head).append("\n").append(whole).append("}}")).faultCount, 0) << className;
        EXPECT_EQ(FaultsOf(bad).faultCount, lines) << className;
        EXPECT_EQ(FaultsOf(std::string(Head).append("\n").append(start).append(",\"nameless\":1}}")).faultCount, 1)
            << className;
    }
}

TEST(Drawing, DatabaseWideValuesAreTakenWithTheirTypesOnly)
{
    for (const char* keyAndForm :
         {"currentLayout:t", "currentLayer:t", "filletRadius:n", "chamferFirstDistance:n", "chamferSecondDistance:n",
          "chamferLength:n", "chamferAngle:n", "thickness:n", "insertUnits:i", "currentLineStyle:t"})
    {
        const std::string word = keyAndForm;
        const std::string start = Head + "\n{\"drawing\":{\"" + word.substr(0, word.find(':')) + "\":";
        EXPECT_EQ(FaultsOf(start + Forms.at(word.back()).first + "}}").faultCount, 0) << word;
        EXPECT_EQ(FaultsOf(start + Forms.at(word.back()).second + "}}").faultCount, 1) << word;
    }
}

TEST(Drawing, AddedHandlesAreObjectsWithDefaultsAndOthersAreNot)
{
    const auto session = LoadLines(R"({"added":{"class":"AcDbMText","handle":"00aB","properties":[]}}
{"added":{"class":"AcDbWidget","handle":"AC","properties":[]}}
{"modified":{"class":"AcDbLine","handle":"AD","properties":[]}}
{"object":{"class":"AcDbCircle","handle":"AE","erased":true}}
{"added":{"class":"AcDbLine","handle":"AE","properties":[]}}
)");
    CZtDatabase& database = *session->ActiveDocument()->GetZtDatabase();
    const auto note = OdSmartPtr<OdDbMText>::cast(database.getOdDbObjectId(OdDbHandle(0xAB)).openObject());
    EXPECT_EQ(note->getBackgroundScaleFactor(), 1.5);
    EXPECT_EQ(note->getBackgroundFillColor(), OdCmColor::byLayer());
    EXPECT_TRUE(note->contents().isEmpty());
    EXPECT_FALSE(note->isErased());
    EXPECT_EQ(note->getDbHandle(), OdDbHandle(0xAB));
    const OdDbObjectPtr widget = database.openObject(OdDbHandle(0xAC));
    EXPECT_EQ(widget->isA()->name(), QLatin1String("AcDbWidget"));
    EXPECT_EQ(widget->isA()->myParent(), OdDbEntity::desc());
    EXPECT_TRUE(database.getOdDbObjectId(OdDbHandle(0xAD)).isNull());
    EXPECT_FALSE(database.openObject(OdDbHandle(0xAD)));
    EXPECT_TRUE(database.getOdDbObjectId(OdDbHandle()).isNull());
    EXPECT_EQ(database.openObject(OdDbHandle(0xAE))->isA(), OdDbCircle::desc());
    EXPECT_TRUE(database.openObject(OdDbHandle(0xAE))->isErased());
}

TEST(Drawing, TheCurrentLayoutExistsWithAndWithoutAnObjectLine)
{
    const auto current = [](const std::string& lines)
    {
        const auto session = LoadLines(lines);
        const auto layout =
            OdSmartPtr<OdDbLayout>::cast(session->ActiveDocument()->GetZtDatabase()->currentLayoutId().openObject());
        return std::tuple(layout->getLayoutName().toStdString(), layout->modelType(),
                          layout->getCurrentStyleSheet().toStdString());
    };
    EXPECT_EQ(current(""), std::tuple("Model", true, ""));
    EXPECT_EQ(current(R"({"drawing":{"currentLayout":"Sheet"}})"), std::tuple("Sheet", false, ""));
    EXPECT_EQ(current(R"({"drawing":{"currentLayout":"Sheet"}}
{"object":{"class":"AcDbLayout","handle":"FFFFFFFFFFFFFFFF","name":"Other"}}
{"drawing":{"thickness":1}}
{"object":{"class":"AcDbLayout","handle":"2","name":"Sheet","modelType":true,"printStyleSheet":"a.ctb"}})"),
              std::tuple("Sheet", true, "a.ctb"));
}

TEST(Drawing, BlocksGiveTheirEntitiesWithoutThoseErased)
{
    const Opened<OdDbBlockTableRecord> block(
        R"({"object":{"class":"AcDbBlockTableRecord","handle":"1","name":"B","entities":["3","2","4","5"],)"
        R"("reactors":["5","9"],"blockScaling":1,"insertUnits":6,"explodable":true,"comments":"a\nb"}}
{"object":{"class":"AcDbLine","handle":"2","erased":true}}
{"object":{"class":"AcDbLine","handle":"3"}}
{"added":{"class":"AcDbLine","handle":"5","properties":[]}})");
    const OdArray<OdDbObjectId> ids = block.object->entityIds();
    ASSERT_EQ(ids.size(), 2U);
    EXPECT_EQ(ids[0].getHandle(), OdDbHandle(3));
    EXPECT_EQ(ids[1].getHandle(), OdDbHandle(5));
    EXPECT_EQ(block.object->getPersistentReactors().size(), 1U);
    EXPECT_EQ(block.object->blockScaling(), 1);
    EXPECT_EQ(block.object->blockInsertUnits(), 6);
    EXPECT_EQ(block.object->comments(), QLatin1String("a\nb"));
}

TEST(Drawing, TheTypeOfALeaderFollowsItsAnnotation)
{
    const std::string others = R"(
{"object":{"class":"AcDbMText","handle":"2"}}
{"object":{"class":"AcDbFcf","handle":"3","text":"x"}}
{"object":{"class":"AcDbBlockReference","handle":"4"}}
{"object":{"class":"AcDbLine","handle":"5"}})";
    const auto typeOf = [&](const std::string& keys)
    {
        return Opened<OdDbLeader>(R"({"object":{"class":"AcDbLeader","handle":"1")" + keys + "}}" + others)
            .object->annoType();
    };
    EXPECT_EQ(typeOf(R"(,"annotation":"2")"), OdDbLeader::kMText);
    EXPECT_EQ(typeOf(R"(,"annotation":"3")"), OdDbLeader::kFcf);
    EXPECT_EQ(typeOf(R"(,"annotation":"4")"), OdDbLeader::kBlockRef);
    EXPECT_EQ(typeOf(R"(,"annotation":"5")"), OdDbLeader::kNoAnno);
    EXPECT_EQ(typeOf(""), OdDbLeader::kNoAnno);
    EXPECT_EQ(typeOf(R"(,"annotation":"2","annoType":3)"), OdDbLeader::kNoAnno);
}

TEST(Drawing, TablesAndRichLinesAnswerByIndex)
{
    const Opened<OdDbTable> table(R"({"object":{"class":"AcDbTable","handle":"1","cells":[["a"],["b","c"]],)"
                                  R"("columnWidths":[10,20],"rowHeights":[1,2,3]}})");
    EXPECT_EQ(table.object->numRows(), 3);
    EXPECT_EQ(table.object->numColumns(), 2);
    EXPECT_EQ(table.object->textString(1, 1), QLatin1String("c"));
    EXPECT_TRUE(table.object->textString(2, 0).isEmpty());
    EXPECT_EQ(table.object->columnWidth(1), 20.0);
    EXPECT_THROW(static_cast<void>(table.object->rowHeight(3)), OdError_InvalidIndex);

    const Opened<OdDbMline> line(
        R"({"object":{"class":"AcDbMline","handle":"1","vertices":[[0,0,0],[1,2,3]],"closedMline":true}})");
    EXPECT_EQ(line.object->numVertices(), 2);
    EXPECT_EQ(line.object->vertexAt(1), (OdGePoint3d{1, 2, 3}));
    EXPECT_TRUE(line.object->closedMline());
}

TEST(Drawing, DimensionsAnswerWithTheirOwnPoints)
{
    const Opened<OdDbRotatedDimension> rotated(
        R"({"object":{"class":"AcDbRotatedDimension","handle":"1","xLine1Point":[1,0,0],"xLine2Point":[2,0,0],)"
        R"("dimLinePoint":[3,0,0],"rotation":0.5}})");
    EXPECT_EQ(rotated.object->xLine1Point().x, 1.0);
    EXPECT_EQ(rotated.object->xLine2Point().x, 2.0);
    EXPECT_EQ(rotated.object->dimLinePoint().x, 3.0);
    EXPECT_EQ(rotated.object->rotation(), 0.5);
    const Opened<OdDb3PointAngularDimension> angular(
        R"({"object":{"class":"AcDb3PointAngularDimension","handle":"1","centerPoint":[4,0,0],"arcPoint":[5,0,0]}})");
    EXPECT_EQ(angular.object->centerPoint().x, 4.0);
    EXPECT_EQ(angular.object->arcPoint().x, 5.0);
    EXPECT_EQ(angular.object->xLine1Point(), OdGePoint3d());
}
} // namespace
} // namespace kv::testing
