// One conversion as a whole: files, results, start state, what the observer is told.
#include "core/converter_impl.h"
#include "core/macro_name.h"
#include "core/recording_start.h"
#include "embedded/session.h"
#include "module/module_object.h"
#include "objects/object_converter.h"
#include "support/conversion_run.h"
#include "support/process_state.h"

#include <gtest/gtest.h>

#include <QtCore/QDir>
#include <QtCore/QFile>

namespace
{

using LoadedModule = OdRxWin32Module<CZtConverterKVAPIModule, CZtConverterKVAPIModule>;

constexpr std::uint32_t cpp = 0;
const char* const line = R"({"added":{"class":"AcDbLine","handle":"A1","properties":[]}})"
                         "\n";

// A language that says nothing and has no object logic.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wunused-parameter"
class SilentConverter final : public CZtConverterKVAPIImpl
{
public:
    SilentConverter() : CZtConverterKVAPIImpl(1) {}
#define OPERATION(result, name, parameters)                                                                            \
    [[nodiscard]] result name parameters override { return {}; }
#include "core/write_operations.def"
#undef OPERATION
};
#pragma GCC diagnostic pop

class Conversion : public testing::Test
{
protected:
    void SetUp() override { ResetProcessState(); }

    [[nodiscard]] QString Path(const char* name) const { return folder.filePath(QLatin1String(name)); }

    ResultCode ConvertTo(const QString& path)
    {
        LoadedModule module(nullptr);
        return session.Convert(module, path, cpp);
    }

    void Load(const char* events)
    {
        kv::JournalDiagnostics diagnostics;
        ASSERT_TRUE(session.LoadText(QByteArray("{\"journal\":{\"version\":1}}\n") + events, diagnostics));
    }

    QTemporaryDir folder;
    kv::Session session;
};

TEST_F(Conversion, OfAnEmptyJournalGivesFrameAndProject)
{
    const ConversionRun empty("", cpp);
    const ConversionRun null("null\n", cpp);
    EXPECT_EQ(empty.result, ResultNormal);
    EXPECT_EQ(null.result, ResultNormal);
    EXPECT_EQ(empty.File(QStringLiteral("macro.txt")), null.File(QStringLiteral("macro.txt")));
    EXPECT_EQ(empty.Files().join(QLatin1Char(' ')).toStdString(),
              "KvAddin_global.h kvAddinConnection.cpp kvAddinConnection.h macro.def macro.h macro.txt macro.vcproj");
}

TEST_F(Conversion, ThatFailsLeavesNoFile)
{
    const ConversionRun run(QByteArray(line) + "{\"other\":\"CZtViewChanged\"}\n", cpp);
    EXPECT_EQ(run.result, ResultError);
    EXPECT_TRUE(run.Files().isEmpty());
}

TEST_F(Conversion, MakesItsFolderAndNamesTheMacro)
{
    const QString path = Path("a/b/my macro-1.v2.cpp");
    EXPECT_EQ(MakeMacroName(path), QStringLiteral("my macro-1"));
    EXPECT_EQ(ConvertTo(path), ResultNormal);
    EXPECT_TRUE(QFile::exists(path));
    EXPECT_TRUE(QFile::exists(Path("a/b/my macro-1.vcproj")));
    EXPECT_EQ(ConvertTo(path), ResultNormal);
}

TEST_F(Conversion, TellsFilesThatCantBeWritten)
{
    QFile file(Path("file"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    EXPECT_EQ(ConvertTo(Path("file/macro.cpp")), ResultError);
    ASSERT_TRUE(QDir(folder.path()).mkpath(QStringLiteral("folder.cpp")));
    EXPECT_EQ(ConvertTo(Path("folder.cpp")), ResultError);
    EXPECT_FALSE(CZtConverterKVAPIImpl::WriteTextFile(Path("folder.cpp"), QStringLiteral("x"), false));

    // A project file that can't be written keeps the macro and what was written before it.
    ASSERT_TRUE(QDir(folder.path()).mkpath(QStringLiteral("p/kvAddinConnection.h")));
    EXPECT_EQ(ConvertTo(Path("p/macro.cpp")), ResultError);
    EXPECT_TRUE(QFile::exists(Path("p/macro.cpp")));
    EXPECT_TRUE(QFile::exists(Path("p/macro.vcproj")));
    EXPECT_FALSE(QFile::exists(Path("p/kvAddinConnection.cpp")));
    ASSERT_TRUE(QDir(folder.path()).mkpath(QStringLiteral("q/KvAddin_global.h")));
    EXPECT_EQ(ConvertTo(Path("q/macro.cpp")), ResultError);
    EXPECT_EQ(QDir(Path("q")).entryList(QDir::Files).join(QLatin1Char(' ')).toStdString(), "macro.cpp");
}

TEST_F(Conversion, WritesUtf8WithAMarkOnDemand)
{
    const QString text = QStringLiteral("Gr\u00F6\u00DFe \U0001F600\nx");
    for (const bool mark : {true, false})
    {
        ASSERT_TRUE(CZtConverterKVAPIImpl::WriteTextFile(Path("text"), text, mark));
        QFile file(Path("text"));
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        EXPECT_EQ(file.readAll(), QByteArray(mark ? "\xEF\xBB\xBF" : "") + "Gr\xC3\xB6\xC3\x9F"
                                                                           "e \xF0\x9F\x98\x80\nx");
    }
}

TEST_F(Conversion, StartsTheNextOneInTheModel)
{
    Load(R"({"drawing":{"currentLayout":"Plan"}})"
         "\n"
         R"({"object":{"class":"AcDbLine","handle":"A1"}})"
         "\n"
         R"({"added":{"class":"AcDbLine","handle":"A1","properties":[]}})"
         "\n");
    ConversionLog log;
    session.SetObserver(&log);
    ASSERT_EQ(ConvertTo(Path("one.cpp")), ResultNormal);
    EXPECT_TRUE(log.texts.front().text.contains(QLatin1String("GetSheet( L\"Plan\"")));
    EXPECT_TRUE(RecordingStart::Current().RecordingStartsInModel);
    EXPECT_TRUE(RecordingStart::Current().RecordingStartSheet.isEmpty());

    const ConversionRun next(line, cpp);
    EXPECT_TRUE(next.log.texts.front().text.contains(QLatin1String("kvModel->GetSketchManager")));
    EXPECT_TRUE(next.Body().contains(QLatin1String("kvLine_ptr kvline1;")));
}

TEST_F(Conversion, TellsEveryEventAndText)
{
    Load(R"({"command":"A"})"
         "\n"
         R"({"added":{"class":"AcDbLine","handle":"A1","properties":[]}})"
         "\n"
         "null\n"
         R"({"action":{"id":49,"data":[]}})"
         "\n"
         R"({"added":{"class":"AcDbLine","handle":"A2","properties":[]}})"
         "\n"
         R"({"end":"A"})"
         "\n"
         R"({"sysvar":{"name":"NOSUCHVAR","value":1}})"
         "\n");
    ConversionLog log;
    session.SetObserver(&log);
    ASSERT_EQ(ConvertTo(Path("macro.cpp")), ResultNormal);

    // The first child, the failing action, the command, the variable; the child behind the failing one isn't converted.
    std::string events;
    for (const ConversionLog::Event& event : log.events)
    {
        events += std::to_string(session.LineOf(*event.event)) + ' ' + std::to_string(event.result) + '\n';
    }
    EXPECT_EQ(events, "3 5100\n5 -5001\n2 5100\n8 5100\n");
    std::string texts;
    for (const ConversionLog::Text& text : log.texts)
    {
        texts += text.event != nullptr ? std::to_string(session.LineOf(*text.event)) + ' ' : std::string("- ");
    }
    EXPECT_EQ(texts, "- - 3 - - ");
    EXPECT_EQ(log.events.front().text, log.texts.at(2).text);
}

TEST_F(Conversion, KeepsWhatItWroteWhenTheHostThrows)
{
    // The handle of the note is a line's.
    Load(R"({"object":{"class":"AcDbLine","handle":"1F"}})"
         "\n"
         R"({"added":{"class":"AcDbLine","handle":"A1","properties":[]}})"
         "\n"
         R"({"changed":{"class":"AcDbMText","handle":"1F","property":{"name":"LineScale","value":1}}})"
         "\n");
    EXPECT_THROW(static_cast<void>(ConvertTo(Path("macro.cpp"))), OdError_NotThatKindOfClass);
    QFile file(Path("macro.cpp"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray text = file.readAll();
    EXPECT_TRUE(text.endsWith("&kvline1 );\n")) << text.toStdString();
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files).size(), 1);
}

TEST_F(Conversion, NeedsTheObjectLogic)
{
    const auto codeOf = [&](const char* events)
    {
        Load(events);
        RegisterHost(&session);
        SilentConverter converter;
        try
        {
            static_cast<void>(converter.Convert(Path("macro.cpp"), session.Journal()));
        }
        catch (const OdError& error)
        {
            return static_cast<int>(error.code());
        }
        return 0;
    };
    EXPECT_EQ(codeOf(line), 20);
    EXPECT_EQ(codeOf(R"({"command":"A"})"
                     "\n"
                     R"({"added":{"class":"AcDbNoSuch","handle":"A1","properties":[]}})"
                     "\n"
                     R"({"end":"A"})"
                     "\n"),
              20);
    EXPECT_EQ(codeOf(R"({"changed":{"class":"AcDbLine","handle":"A1","property":{"name":"x","value":1}}})"
                     "\n"),
              20);
    EXPECT_EQ(codeOf(R"({"sysvar":{"name":"ORTHOMODE","value":1}})"
                     "\n"),
              0);
}

} // namespace
