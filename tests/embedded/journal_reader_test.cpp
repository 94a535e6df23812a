// Events, their order and lines, files that were cut off, values in all their forms.
#include "journal_text.h"

#include "host/db/object.h"

#include <set>

namespace kv::testing
{
namespace
{
// The value of the only property of a "changed" event.
CZtVariant variantOf(const std::string& value, const std::string& before = {})
{
    const auto session = LoadLines(before +
                                   R"({"changed":{"class":"AcDbLine","handle":"1","property":)"
                                   R"({"name":"X","value":)" +
                                   value + "}}}\n");
    return EventAt<CZtPropertyChanged>(*session, 0)->GetValue(0);
}

OdResBufPtr bufferOf(const std::string& value)
{
    const auto session = LoadLines(R"({"sysvar":{"name":"A","value":)" + value + "}}");
    OdResBufPtr buffer;
    EventAt<CZtSysVarChanged>(*session, 0)->GetVariableValue(buffer);
    return buffer;
}

CZtCustomActionData itemOf(const std::string& value)
{
    const auto session = LoadLines(R"({"action":{"id":-7,"data":[)" + value + "]}}");
    return EventAt<CZtCustomAction>(*session, 0)->GetData(0);
}

TEST(JournalReader, EventsStandInTheirOrderWithTheirLines)
{
    const auto session = LoadLines(R"(
{"command":"LINE"}
{"prompt":{"kind":"double","text":"T","answer":2,"keywords":{"local":["a"],"global":["b"]}}}
null
{"end":"LINE"}
{"select":{"handles":["2a","0002B"],"classes":["AcDbLine","AcDbOwn"]}}
{"other":"CZtUserCommand"}
null
)");
    ASSERT_EQ(session->Journal().size(), 4U);
    EXPECT_EQ(session->EventCount(), 4); // the command, its prompt, the selection and the unknown event
    const auto command = EventAt<CZtUserCommand>(*session, 0);
    OdResBufPtr name;
    command->GetCommandName(name);
    EXPECT_EQ(name->getString(), QLatin1String("LINE"));
    ASSERT_EQ(command->GetChildEvents().size(), 2U);
    EXPECT_FALSE(command->GetChildEvents()[1]);
    EXPECT_EQ(session->LineOf(*command), 3);

    const auto prompt = OdSmartPtr<CZtUserInteraction>::cast(command->GetChildEvents()[0]);
    EXPECT_EQ(session->LineOf(*prompt), 4);
    EXPECT_EQ(prompt->GetPromptKind(), 10);
    std::vector<CZtString> local;
    std::vector<CZtString> global;
    prompt->GetKeywords(local, global);
    EXPECT_TRUE(local == std::vector<CZtString>{"a"});
    EXPECT_TRUE(global == std::vector<CZtString>{"b"});

    const auto selection = EventAt<CZtUserSelection>(*session, 1);
    EXPECT_EQ(selection->GetSelectedHandles(), (std::vector{OdDbHandle(0x2A), OdDbHandle(0x2B)}));
    EXPECT_EQ(selection->GetSelectedClasses()[1]->name(), QLatin1String("AcDbOwn"));
    EXPECT_TRUE(selection->GetSelectedClasses()[1]->isDerivedFrom(OdDbEntity::desc()));

    const OdRxObjectPtr other = session->Journal()[2];
    EXPECT_EQ(other->isA()->name(), QLatin1String("CZtUserCommand"));
    EXPECT_EQ(other->queryX(CZtUserCommand::desc()), nullptr);
    EXPECT_FALSE(session->Journal()[3]);

    const auto stranger = LoadLines("{\"other\":\"A\"}");
    EXPECT_EQ(session->LineOf(*stranger->Journal()[0]), 0);
}

TEST(JournalReader, PropertiesKeepTheirOrderAndTheSecondListEqualsTheFirstWhenAbsent)
{
    const auto session = LoadLines(
        R"({"added":{"class":"AcDbLine","handle":"1","properties":[{"name":"Z","group":"G","value":1,"tag":"t"},)"
        R"({"value":2,"name":"A"},{"name":"Z","value":null}]}}
{"added":{"class":"AcDbOwn","handle":"2","properties":[],"remaining":[{"name":"R","value":1}]}}
{"added":{"class":"AcDbOwn","handle":"3","properties":[{"name":"P","value":1}],"remaining":[]}})");
    const auto first = EventAt<CZtObjectAdded>(*session, 0);
    const CZtPropertyList& list = first->GetProperties();
    ASSERT_EQ(list.size(), 3U);
    EXPECT_EQ(list[0]->GetName().text(), QLatin1String("Z"));
    EXPECT_EQ(list[0]->GetGroup().text(), QLatin1String("G"));
    EXPECT_EQ(list[0]->GetTag(0).GetString().text(), QLatin1String("t"));
    EXPECT_EQ(list[1]->GetName().text(), QLatin1String("A"));
    EXPECT_TRUE(list[1]->GetTag(0).IsNull());
    EXPECT_TRUE(list[1]->GetGroup().isEmpty());
    EXPECT_EQ(&first->GetDefaultProperties(), &list);
    EXPECT_EQ(EventAt<CZtObjectAdded>(*session, 1)->GetDefaultProperties().size(), 1U);
    EXPECT_TRUE(EventAt<CZtObjectAdded>(*session, 2)->GetDefaultProperties().empty());
    EXPECT_EQ(EventAt<CZtObjectAdded>(*session, 1)->GetObjectClass(),
              EventAt<CZtObjectAdded>(*session, 2)->GetObjectClass());
}

TEST(JournalReader, ACutOffFileIsStillAJournal)
{
    JournalDiagnostics told;
    auto session = LoadLines("{\"command\":\"LINE\"}\n{\"sysvar\":{\"name\":\"A\",\"value\":1}}\n{\"end\":\"LI", &told);
    EXPECT_EQ(session->EventCount(), 2);
    ASSERT_EQ(told.remarks.size(), 2U);
    EXPECT_EQ(told.remarks[0].line, 4);
    EXPECT_TRUE(told.remarks[0].message.contains(QLatin1String("cut off")));
    EXPECT_TRUE(told.remarks[1].message.contains(QLatin1String("\"LINE\" of line 2 is open")));

    // Valid JSON without line end is a line like any other, in good and in bad.
    session = LoadLines("{\"other\":\"A\"}", &told);
    EXPECT_EQ(session->EventCount(), 1);
    EXPECT_TRUE(told.remarks.empty());
    EXPECT_EQ(FaultsOf(Head + "\n{\"othr\":\"A\"}").faultCount, 1);
    EXPECT_EQ(FaultsOf(Head + "\n{\"other\":\"A\n").faultCount, 1);
}

TEST(JournalReader, TheHeadTellsTheModeAndUnknownKeysAreRemarks)
{
    Session session;
    JournalDiagnostics told;
    ASSERT_TRUE(session.LoadText(R"({"journal":{"author":"x","version":1,"recordingMode":-3,"source":"s"}})", told));
    EXPECT_EQ(session.RecordingMode(), -3);
    ASSERT_EQ(told.remarks.size(), 1U);
    EXPECT_TRUE(FormatRemarks(QStringLiteral("f"), told)[0].startsWith(QLatin1String("f:1: ")));
    EXPECT_TRUE(told.remarks[0].message.contains(QLatin1String("\"author\"")));
    EXPECT_EQ(LoadLines("")->RecordingMode(), 1);
}

TEST(JournalReader, LinesOfAnyLengthAndLineEndAreRead)
{
    const std::string large(3 << 20, 'x');
    std::string lines;
    for (int count = 0; count < 3; ++count)
    {
        lines += "{\"other\":\"a\"}\r\n\r\n{\"other\":\"" + large + "\"}\n";
    }
    const auto session = LoadLines(lines);
    ASSERT_EQ(session->Journal().size(), 6U);
    EXPECT_EQ(session->Journal()[5]->isA()->name().size(), static_cast<int>(large.size()));
    EXPECT_EQ(session->LineOf(*session->Journal()[5]), 10);
}

TEST(JournalReader, NumbersOfAnyLengthAreReals)
{
    EXPECT_EQ(variantOf("123456789012345678901234567890").GetDouble(), 123456789012345678901234567890.0);
    EXPECT_EQ(variantOf("-99999999999999999999").GetDouble(), -1e20);
    EXPECT_EQ(variantOf(R"({"element":{"tag":"\"12345678901234567890123","value":123456789012345678901234e2}})")
                  .GetCollectionElement()
                  ->GetTag()
                  ->GetString()
                  .text(),
              QLatin1String("\"12345678901234567890123"));
    EXPECT_EQ(variantOf("0.1234567890123456789012345").GetDouble(), 0.1234567890123456789012345);
    EXPECT_EQ(FaultsOf(Head + "\n{\"action\":{\"id\":99999999999999999999999,\"data\":[]}}").faultCount, 1);
    EXPECT_EQ(FaultsOf(Head + "\n{\"sysvar\":{\"name\":\"A\",\"value\":1e999}}\n").faultCount, 1);
}

TEST(JournalReader, AByteOrderMarkIsNoPartOfTheFirstLine)
{
    EXPECT_EQ(FaultsOf("\xEF\xBB\xBF" + Head).faultCount, 0);
    EXPECT_EQ(FaultsOf(Head + "\n\xEF\xBB\xBF" + Head + "\n").faultCount, 1);
}

TEST(JournalReader, PropertyValuesHaveTheirTypes)
{
    EXPECT_EQ(variantOf("null").GetType(), CZtVariant::kNullType);
    EXPECT_EQ(variantOf("\"\\u00fc\"").GetString().text(), QString(QChar(0xFC)));
    EXPECT_EQ(variantOf("3").GetType(), CZtVariant::kReal);
    EXPECT_EQ(variantOf("0.1").GetDouble(), 0.1);
    EXPECT_EQ(variantOf("true").GetType(), CZtVariant::kInteger);
    EXPECT_EQ(variantOf("true").GetInt32(), 1);
    EXPECT_EQ(variantOf(R"({"int":-5})").GetInt32(), -5);
    EXPECT_EQ(variantOf(R"({"point":[1,2.5,-3]})").GetPoint3d(), (OdGePoint3d{1, 2.5, -3}));
    EXPECT_EQ(variantOf(R"({"color":"byBlock"})").GetColor(), OdCmColor::byBlock());
    EXPECT_EQ(variantOf(R"({"color":"byLayer"})").GetType(), CZtVariant::kColor);
    EXPECT_EQ(variantOf(R"({"color":{"index":7}})").GetColor(), OdCmColor::byIndex(7));
    EXPECT_EQ(variantOf(R"({"color":{"rgb":[1,2,255]}})").GetColor(), OdCmColor::byColor(1, 2, 255));
    EXPECT_EQ(variantOf(R"({"transparency":{"alpha":128}})").GetTransparency(),
              OdCmTransparency(OdCmTransparency::Method::ByAlpha, 128));
    EXPECT_EQ(variantOf(R"({"transparency":"byBlock"})").GetTransparency().method(), OdCmTransparency::Method::ByBlock);

    const CZtVariant points = variantOf(R"({"points":[[0,0,0],[1,0,0]]})");
    ASSERT_EQ(points.GetType(), CZtVariant::kCollection);
    EXPECT_EQ(points.GetCollection()->GetCurrentIndex(), 0);
    EXPECT_TRUE(points.GetCollection()->GetCollectionDataForRead()[1].GetTag()->IsNull());
    EXPECT_EQ(points.GetCollection()->GetCollectionDataForRead()[1].GetValue()->GetPoint3d().x, 1.0);

    EXPECT_EQ(variantOf(R"({"element":{"tag":{"int":4},"value":"w"}})").GetCollectionElement()->GetTag()->GetInt32(),
              4);
    const CZtVariant list =
        variantOf(R"({"collection":{"index":1,"elements":[{"tag":1,"value":"a"},{"tag":2,"value":"b"}]}})");
    EXPECT_EQ(list.GetCollectionElement()->GetValue()->GetString().text(), QLatin1String("b"));
}

TEST(JournalReader, IdsAreResolvedWhereverTheObjectStands)
{
    const auto session = LoadLines(
        R"({"changed":{"class":"AcDbLine","handle":"1","property":{"name":"X","tag":{"id":"9"},"value":{"collection":)"
        R"({"index":0,"elements":[{"tag":null,"value":{"id":"A"}},{"tag":null,"value":{"id":"B"}}]}}}}}
{"action":{"id":18,"data":["P",{"ids":["a","C","D"]}]}}
{"added":{"class":"AcDbLine","handle":"d","properties":[]}}
{"object":{"class":"AcDbLayerTableRecord","handle":"00A","name":"L"}})");
    const auto changed = EventAt<CZtPropertyChanged>(*session, 0);
    EXPECT_EQ(changed->GetTag(0).GetType(), CZtVariant::kObjectId);
    EXPECT_TRUE(changed->GetTag(0).GetId().isNull());
    const CZtVariant value = changed->GetValue(0);
    const auto& elements = value.GetCollection()->GetCollectionDataForRead();
    EXPECT_EQ(elements[0].GetValue()->GetId().getHandle(), OdDbHandle(10));
    EXPECT_TRUE(elements[0].GetValue()->GetId().openObject());
    EXPECT_EQ(elements[1].GetValue()->GetId(), OdDbObjectId());
    const auto& ids = EventAt<CZtCustomAction>(*session, 1)->GetData(1).GetObjectIdArray();
    EXPECT_FALSE(ids[0].isNull());
    EXPECT_TRUE(ids[1].isNull());
    EXPECT_FALSE(ids[2].isNull());
}

TEST(JournalReader, ResultBuffersHaveTheirCodes)
{
    EXPECT_FALSE(bufferOf("null"));
    EXPECT_EQ(bufferOf("2")->restype(), 5001);
    EXPECT_EQ(bufferOf(R"({"real":2.5})")->getDouble(), 2.5);
    EXPECT_EQ(bufferOf(R"({"double":2.5})")->restype(), 5001);
    EXPECT_EQ(bufferOf(R"({"angle":1})")->restype(), 5004);
    EXPECT_EQ(bufferOf(R"("t")")->restype(), 5005);
    EXPECT_EQ(bufferOf(R"({"text":"t"})")->getString(), QLatin1String("t"));
    EXPECT_EQ(bufferOf(R"({"string":"t"})")->restype(), 5005);
    EXPECT_EQ(bufferOf(R"({"point":[1,2,3]})")->restype(), 5009);
    EXPECT_EQ(bufferOf(R"({"point3d":[1,2,3]})")->getPoint3d().z, 3.0);
    EXPECT_EQ(bufferOf(R"({"point2d":[1,2]})")->getPoint2d(), (OdGePoint2d{1, 2}));
    EXPECT_EQ(bufferOf(R"({"int32":-70000})")->getInt32(), -70000);
    EXPECT_TRUE(bufferOf("true")->getBool());
    std::set<int> codes = {5001, 5004, 5005, 5009};
    for (const char* own :
         {R"({"bool":true})", R"({"int8":1})", R"({"int16":1})", R"({"int32":1})", R"({"point2d":[0,0]})"})
    {
        EXPECT_TRUE(codes.insert(bufferOf(own)->restype()).second) << own;
    }
}

TEST(JournalReader, ActionItemsHaveTheirTypes)
{
    EXPECT_EQ(itemOf("null").GetType(), 0);
    EXPECT_EQ(itemOf("\"t\"").GetType(), 2);
    EXPECT_EQ(itemOf("1").GetType(), 6);
    EXPECT_EQ(itemOf("false").GetType(), 3);
    const struct
    {
        const char* item;
        int type;
    } forms[] = {
        {R"({"int16":-1})", 1},
        {R"({"strings":["a"]})", 4},
        {R"({"int":1})", 5},
        {R"({"handle":"f"})", 7},
        {R"({"class":null})", 8},
        {R"({"handles":["1"]})", 9},
        {R"({"classes":[null,"A"]})", 10},
        {R"({"point":[1,2,3]})", 11},
        {R"({"points":[[1,2,3]]})", 12},
        {R"({"vector":[1,2,3]})", 13},
        {R"({"color":"byBlock"})", 14},
        {R"({"ids":["1"]})", 15},
        {R"({"points2d":[[1,2]]})", 16},
        {R"({"doubles":[1]})", 17},
        {R"({"ints":[1]})", 18},
    };
    for (const auto& form : forms)
    {
        EXPECT_EQ(itemOf(form.item).GetType(), form.type) << form.item;
    }
    EXPECT_EQ(itemOf(R"({"handle":"f"})").GetHandle(), OdDbHandle(15));
    EXPECT_EQ(itemOf(R"({"vector":[1,2,3]})").GetVector().y, 2.0);
    EXPECT_EQ(itemOf(R"({"strings":["a","b"]})").GetStringArray()[1].text(), QLatin1String("b"));
    const auto session = LoadLines(R"({"action":{"id":-7,"data":[]}})");
    const auto action = EventAt<CZtCustomAction>(*session, 0);
    EXPECT_EQ(action->GetActionId(), -7);
    EXPECT_THROW(static_cast<void>(action->GetData(0)), OdError_InvalidIndex);
}
} // namespace
} // namespace kv::testing
