// The session as the host of the module: collection of properties, settings, words, registration.
#include "journal_text.h"

#include "host/db/symbols.h"

#include <QtCore/QCoreApplication>

namespace kv::testing
{
namespace
{
// Stands for the converter module and notes what it is asked.
class RecordingModule final : public CZtConverterModule
{
public:
    std::vector<std::string> calls;
    std::int16_t language = -1;
    std::int32_t mode = 0;

    void* sysData() override { return nullptr; }
    void deleteModule() override {}
    void initApp() override {}
    void uninitApp() override {}
    OdString moduleName() const override { return {}; }

    ResultCode ConvertJournal(const CZtString& outputPath, std::uint32_t /*languageIndex*/, std::int32_t recordingMode,
                              std::uint64_t /*hostContext*/, const CZtJournal& /*journal*/) override
    {
        calls.push_back("convert " + outputPath.text().toStdString());
        language = GetZtSystemServices()->Settings().MacroLanguage();
        mode = recordingMode;
        return -5001;
    }

    void CollectObjectProperties(OdRxObject* object, CZtVariantCollection* collection) override
    {
        const auto record = OdSmartPtr<OdDbLayerTableRecord>::cast(object);
        calls.push_back("collect " + record->getName().toStdString());
        auto& elements = collection->GetCollectionDataForWrite();
        elements.emplace_back(CZtString("Erased"), CZtString("NO"));
        elements.emplace_back(CZtString("Call"), CZtVariant(static_cast<std::int32_t>(calls.size())));
    }
};

std::string namesOf(const CZtPropertyList& list)
{
    std::string names;
    for (const CZtPropertyElementPtr& property : list)
    {
        names += property->GetName().text().toStdString() + " ";
    }
    return names;
}

TEST(Session, CollectsAnewBeforeEachConversionInJournalOrder)
{
    const auto session = LoadLines(R"({"command":"LAYER"}
{"added":{"class":"AcDbLayerTableRecord","handle":"1","properties":[{"name":"Call","value":"own"}],"remaining":[]}}
{"added":{"class":"AcDbLayerTableRecord","handle":"2","properties":[]}}
{"end":"LAYER"}
{"added":{"class":"AcDbLayerTableRecord","handle":"9","properties":[]}}
{"modified":{"class":"AcDbLayerTableRecord","handle":"1","properties":[{"name":"Own","value":1}]}}
{"changed":{"class":"AcDbLayerTableRecord","handle":"1","property":{"name":"Own","value":1}}}
{"object":{"class":"AcDbLayerTableRecord","handle":"2","name":"B"}}
{"object":{"class":"AcDbLayerTableRecord","handle":"1","name":"A"}}
)");
    RecordingModule module;
    EXPECT_EQ(session->Convert(module, QStringLiteral("out"), 4), -5001);
    EXPECT_EQ(session->Convert(module, QStringLiteral("out"), 2, 0), -5001);
    EXPECT_EQ(module.calls, (std::vector<std::string>{"collect A", "collect B", "collect A", "convert out", "collect A",
                                                      "collect B", "collect A", "convert out"}));
    EXPECT_EQ(module.language, 2);
    EXPECT_EQ(module.mode, 0);

    const CZtJournal& children = EventAt<CZtUserCommand>(*session, 0)->GetChildEvents();
    const auto first = OdSmartPtr<CZtObjectAdded>::cast(children[0]);
    EXPECT_EQ(namesOf(first->GetProperties()), "Call Erased ");
    EXPECT_EQ(first->GetProperties()[0]->GetValue(0).GetString().text(), QLatin1String("own"));
    EXPECT_EQ(namesOf(first->GetDefaultProperties()), "Erased Call ");
    const auto second = OdSmartPtr<CZtObjectAdded>::cast(children[1]);
    EXPECT_EQ(namesOf(second->GetDefaultProperties()), "Erased Call ");
    EXPECT_TRUE(EventAt<CZtObjectAdded>(*session, 1)->GetProperties().empty());
    const auto modified = EventAt<CZtObjectModified>(*session, 2);
    EXPECT_EQ(namesOf(modified->GetProperties()), "Own Erased Call ");
    EXPECT_EQ(modified->GetProperties()[2]->GetValue(0).GetInt32(), 7);
    EXPECT_TRUE(modified->GetProperties()[2]->GetGroup().isEmpty());
    EXPECT_TRUE(modified->GetProperties()[2]->GetTag(0).IsNull());
}

TEST(Session, TheFilesModeHoldsUnlessAnotherIsGivenAndTheHostEndsWithTheSession)
{
    RecordingModule module;
    {
        Session session;
        JournalDiagnostics told;
        ASSERT_TRUE(session.LoadText(R"({"journal":{"version":1,"recordingMode":5}})", told));
        EXPECT_EQ(session.Convert(module, QStringLiteral("o"), 0), -5001);
        EXPECT_EQ(module.mode, 5);
        EXPECT_EQ(ACTIVE_DOCUMENT(), session.ActiveDocument());
    }
    EXPECT_EQ(ACTIVE_DOCUMENT(), nullptr);
    EXPECT_THROW(static_cast<void>(GetZtSystemServices()), OdError);
}

TEST(Session, WordsOfTheUsersLanguageHoldAsLongAsTheSession)
{
    const auto word = [](const char* context, const char* source)
    { return QCoreApplication::translate(context, source).toStdString(); };
    {
        const auto session = LoadLines(R"({"translations":{"property_values":{"Yes":"Oui","No":"Non"},"Other":{}}}
{"translations":{"property_values":{"Yes":"Ja"}}})");
        EXPECT_EQ(word("property_values", "Yes"), "Ja");
        EXPECT_EQ(word("property_values", "No"), "Non");
        EXPECT_EQ(word("property_values", "Left"), "Left");
        EXPECT_EQ(word("Other", "Yes"), "Yes");
    }
    EXPECT_EQ(word("property_values", "Yes"), "Yes");
}

TEST(Session, AFaultyFileLeavesNothingOfTheFormerOne)
{
    const auto session = LoadLines("{\"other\":\"A\"}\n{\"translations\":{\"c\":{\"a\":\"b\"}}}");
    JournalDiagnostics told;
    EXPECT_FALSE(session->LoadText("{}", told));
    EXPECT_TRUE(session->Journal().isEmpty());
    EXPECT_EQ(session->EventCount(), 0);
    EXPECT_EQ(QCoreApplication::translate("c", "a"), QLatin1String("a"));
    EXPECT_FALSE(session->ActiveDocument()->GetZtDatabase()->currentLayoutId().isNull());
}
} // namespace
} // namespace kv::testing
