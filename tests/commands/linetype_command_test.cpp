// -LINESTYLE as a user meets it: prompts, messages, and what of it reaches the drawing.
#include "commands/linetype_command.h"

#include "command_run.h"

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

namespace kv::testing
{
namespace
{
const std::string Main = "[? to list/Activate/Create/Load/Set]: ";
const std::string File = "Specify LineStyle File or [. for none]: ";
const std::string NewFile = "Create or Append LineStyle file or [. for none]: ";
const std::string Missing = "Cannot find the specified LineStyle file.\nVerify that the file exists.\n";
const std::string Center = R"({"object":{"class":"AcDbLinetypeTableRecord","handle":"B0","name":"Center"}})"
                           "\n";

class LinetypeCommand : public ::testing::Test
{
protected:
    std::string write(const char* name, const char* text) const
    {
        QFile file(folder_.filePath(QLatin1String(name)));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(text) == qstrlen(text));
        return file.fileName().toStdString();
    }

    std::string contents(const std::string& path) const
    {
        QFile file(QString::fromStdString(path));
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll().toStdString();
    }

    // A run on a drawing with the style "Center", ended at the main prompt. Gives what was shown between the first
    // active style and the last round.
    CommandRun run(std::vector<std::string> answers, const std::string& lines = Center) const
    {
        answers.emplace_back("");
        CommandRun run = RunOn<CZtCommandLinetype>(lines, std::move(answers));
        EXPECT_EQ(run.result, 5100);
        return run;
    }

    std::string active(const std::string& lines) const
    {
        const std::string shown = run({}, lines).shown;
        return shown.substr(0, shown.find('\n'));
    }

    QTemporaryDir folder_;
    std::string path_ = write("two.lin", "*DASHED,Dashed\nA,1,-1\n*CENTER,Center new\nA,2,-1\n");
};

TEST_F(LinetypeCommand, TellsTheActiveStyle)
{
    EXPECT_EQ(run({}).shown, "Active LineStyle: ByLayer\n" + Main + "\n");
    const auto current = [](const std::string& name)
    { return R"({"drawing":{"currentLineStyle":")" + name + "\"}}\n" + Center; };
    EXPECT_EQ(active(current("CONTINUOUS")), "Active LineStyle: Continuous");
    EXPECT_EQ(active(current("byblock")), "Active LineStyle: ByBlock");
    EXPECT_EQ(active(current("CENTER")), "Active LineStyle: Center");
    EXPECT_EQ(active(current("Undescribed")), "Active LineStyle: Undescribed");
    CZtCommandLinetype command;
    Session session;
    EXPECT_EQ(session.RunCommand(command, nullptr), -5001) << "without a user";
}

TEST_F(LinetypeCommand, CancelsAtEveryPrompt)
{
    const std::string file = folder_.filePath(QStringLiteral("new.lin")).toStdString();
    CancelEverywhere<CZtCommandLinetype>(Center, {"Load", "*", path_, "Yes", ""});
    CancelEverywhere<CZtCommandLinetype>(Center, {"Load", "*", path_, "No", "Set", "dashed", ""});
    CancelEverywhere<CZtCommandLinetype>(Center, {"?", path_, ""});
    CancelEverywhere<CZtCommandLinetype>(Center, {"Create", "N", file, "d", "x", ""});
    EXPECT_FALSE(QFile::exists(QString::fromStdString(file)));
}

TEST_F(LinetypeCommand, ListsAFileOrAFolder)
{
    const std::string rows = "Name Description \n---------------- ------------------\n"
                             "\"DASHED\"         Dashed\n\"CENTER\"         Center new\n";
    EXPECT_NE(run({"?", path_}).shown.find(File + path_ + "\nLineStyles defined in file " + path_ + "\n " + rows),
              std::string::npos)
        << run({"?", path_}).shown;
    const std::string broken = write("A.LIN", "*ALONE,x\n*A,a\nA,1,-1\n");
    const std::string shown = run({"_?", folder_.path().toStdString()}).shown;
    EXPECT_NE(shown.find(broken + ":1: "), std::string::npos) << shown;
    EXPECT_NE(shown.find("LineStyles defined in file " + broken + "\n"), std::string::npos) << shown;
    EXPECT_NE(shown.find("\"A\"              a\n\"DASHED\""), std::string::npos) << shown;
    EXPECT_EQ(shown.find("ALONE\""), std::string::npos) << shown;

    EXPECT_NE(run({"?", "none.lin"}).shown.find(Missing), std::string::npos);
    EXPECT_EQ(run({"?", "."}).shown.find("Cannot"), std::string::npos) << "\".\" is no file";
    // With FILEDIA on the dialog's prompt has no keyword, and "." is a folder without files of the type.
    const std::string dialog = run({"?", "."}, "{\"settings\":{\"FILEDIA\":1}}\n").shown;
    EXPECT_NE(dialog.find("Specify LineStyle File <LineStyle (*.lin)>: .\n" + Missing), std::string::npos) << dialog;
}

TEST_F(LinetypeCommand, CreatesOnlyWhatIsAPattern)
{
    const std::string file = folder_.filePath(QStringLiteral("new")).toStdString();
    const auto create = [&](const char* pattern) { return run({"Create", "N", file, "text", pattern}).shown; };
    const std::string numbers = "Invalid number or bad continuation.\n";
    const std::string count = "There must be between 2 and 12 dash/dot specs.\n";
    EXPECT_NE(create("1,a").find(numbers), std::string::npos);
    EXPECT_NE(create("").find(numbers), std::string::npos);
    EXPECT_NE(create("1,,2").find(numbers), std::string::npos);
    EXPECT_NE(create("1").find(count), std::string::npos);
    EXPECT_NE(create("1,2,3,4,5,6,7,8,9,10,11,12,13").find(count), std::string::npos);
    EXPECT_FALSE(QFile::exists(QString::fromStdString(file + ".lin")));

    const std::string shown = create("1,2,3,4,5,6,7,8,9,10,11,12");
    EXPECT_EQ(shown, "Active LineStyle: ByLayer\n" + Main + "Create\nSpecify new LineStyle name: N\n" + NewFile + file +
                         "\nSpecify descriptive text: text\n"
                         "Format: positive decimal values for dashes, negative decimal values for spaces, and a 0 for "
                         "dots...\nSpecify pattern descriptors: 1,2,3,4,5,6,7,8,9,10,11,12\n"
                         "New LineStyle definition saved to file.\nActive LineStyle: ByLayer\n" +
                         Main + "\n");
    create("1,-1");
    EXPECT_EQ(contents(file + ".lin"), "\r\n*N,text\r\nA,1,2,3,4,5,6,7,8,9,10,11,12\r\n\r\n*N,text\r\nA,1,-1\r\n");
    EXPECT_EQ(run({"Create", "N", folder_.path().toStdString(), "text", "1,-1"}).shown.find("saved"),
              std::string::npos);
    EXPECT_EQ(run({"Create", ""}).asked, 3U) << "an empty name ends the round";
}

TEST_F(LinetypeCommand, LoadsAndReloads)
{
    const std::string dashed =
        R"({"object":{"class":"AcDbLinetypeTableRecord","handle":"B1","name":"DASHED","description":"Dashed","pattern":[1,-1]}})"
        "\n";
    const std::string question = "LineStyle \"CENTER\" is already loaded. Reload it? [Yes/No]: ";
    const CommandRun kept = run({"Load", "*", path_, "n"});
    EXPECT_EQ(kept.added, dashed);
    EXPECT_NE(kept.shown.find(question + "n\nActive"), std::string::npos) << kept.shown;
    const CommandRun reloaded = run({"Load", " center ,none,Dashed", path_, "_yes"});
    EXPECT_NE(reloaded.shown.find("LineStyle \"none\" not found in definition file.\n" + question +
                                  "_yes\nLineStyle \"CENTER\" reloaded.\n"),
              std::string::npos)
        << reloaded.shown;
    EXPECT_EQ(
        reloaded.saved,
        Head + "\n" +
            R"({"object":{"class":"AcDbLinetypeTableRecord","handle":"B0","name":"Center","description":"Center new","pattern":[2,-1]}})"
            "\n" +
            dashed);
    EXPECT_EQ(run({"Load", "", "Load", "x", "."}).added, "");
}

TEST_F(LinetypeCommand, ActivatesWhatIsInTheDrawing)
{
    EXPECT_EQ(run({"Set", "CENTER"}).added, "{\"drawing\":{\"currentLineStyle\":\"Center\"}}\n");
    EXPECT_EQ(run({"a", "bylayer"}).added, "{\"drawing\":{\"currentLineStyle\":\"ByLayer\"}}\n");
    const CommandRun missing = run({"ACTIVATE", "none"});
    EXPECT_EQ(missing.added, "");
    EXPECT_NE(missing.shown.find("Specify LineStyle: none\nLineStyle \"none\" not found in definition file.\n"
                                 "You can use the \"Load\" option to load it from another file.\nActive LineStyle: "),
              std::string::npos)
        << missing.shown;
    EXPECT_NE(run({"Load", "DASHED", path_, "S", "DASHED"}).shown.find("\nActive LineStyle: DASHED\n"),
              std::string::npos);
}

TEST_F(LinetypeCommand, ShowsKeywordsInTheUsersLanguage)
{
    QCoreApplication* const application = QCoreApplication::instance();
    int argc = 0;
    std::optional<QCoreApplication> own;
    if (application == nullptr)
    {
        own.emplace(argc, nullptr);
    }
    const std::string words =
        R"({"translations":{"Command Option: Upper- and Lowercase letters are relevant.":{"Load":"laDen"}}})"
        "\n";
    const CommandRun translated = run({"d", "", "_Load", "", "load", "laden", ""}, words);
    EXPECT_NE(translated.shown.find("[? to list/Activate/Create/laDen/Set]: d\nSpecify LineStyle: \n"),
              std::string::npos)
        << translated.shown;
    EXPECT_NE(translated.shown.find("load\nInvalid option keyword.\n"), std::string::npos) << translated.shown;
    EXPECT_EQ(translated.asked, 8U);
}
} // namespace
} // namespace kv::testing
