// Tests of the page around a JavaScript macro and of the numbers of object types.
#include "backends/javascript/converter.h"
#include "core/recording_start.h"
#include "support/conversion_run.h"
#include "support/process_state.h"

#include <gtest/gtest.h>

#include <QtCore/QRegularExpression>

namespace
{

constexpr std::uint32_t javaScript = 2;

class JavaScriptPage : public testing::Test
{
protected:
    void SetUp() override { ResetProcessState(); }
    void TearDown() override { ResetProcessState(); }

    CZtConverterKVAPIJavaScript converter{0};
};

// The page as far as its first library file, and from behind its last.
QString Opening(const QString& header)
{
    return header.left(header.indexOf(QLatin1String("   <script")));
}

QString FromScript(const QString& header)
{
    return header.mid(header.indexOf(QLatin1String("   <script type=\"text/javascript\">\n")));
}

QStringList LibraryFiles(const QString& header)
{
    static const QRegularExpression line(
        QStringLiteral("^   <script type=\"text/javascript\" "
                       "src=\"http://localhost:7776/APISDK/kjLibrary/(k[jv]\\w+\\.js)\"></script>$"),
        QRegularExpression::MultilineOption);
    QStringList files;
    for (auto matches = line.globalMatch(header); matches.hasNext();)
    {
        files += matches.next().captured(1);
    }
    return files;
}

TEST_F(JavaScriptPage, BeginsWithTheHeadOfThePage)
{
    EXPECT_EQ(Opening(converter.WriteMacroHeader(QStringLiteral("macro"), false)).toStdString(),
              "<html>\n"
              "   <head>\n"
              "\n"
              "   <!-- Without this line, this will not work in Internet Explorer 8 -->\n"
              "   <meta http-equiv =\"X-UA-Compatible\" content =\"IE=8\" /\n"
              ">   <!-- Add your kvInterface .js Files here -->\n");
}

TEST_F(JavaScriptPage, LoadsTheLibraryInItsOrderWithTheRepeats)
{
    const QStringList files = LibraryFiles(converter.WriteMacroHeader(QStringLiteral("macro"), false));
    ASSERT_EQ(files.size(), 100);
    EXPECT_EQ(files.mid(0, 3).join(QLatin1Char(' ')).toStdString(), "kjConnect.js kvApplication.js kvDocument.js");
    EXPECT_EQ(files.mid(97).join(QLatin1Char(' ')).toStdString(),
              "kvReferenceImage.js kvTransparency.js kvViewTile.js");
    QStringList repeated;
    for (int i = 0; i < files.size(); ++i)
    {
        if (files.indexOf(files.at(i)) < i)
        {
            repeated += files.at(i);
        }
    }
    EXPECT_EQ(repeated.join(QLatin1Char(' ')).toStdString(),
              "kvDimensionStyleUserData.js kvPoint.js kvShape.js kvMathUtility.js kvReferenceImage.js");
}

TEST_F(JavaScriptPage, NamesTheSheetAlwaysAndActivatesItWhenTheRecordingStartsThere)
{
    const auto script = [](const std::string& sheet)
    {
        return "   <script type=\"text/javascript\">\n"
               "       /*jslint newcap:true */\n"
               "       function runMacro() {\n"
               "           'use strict';\n"
               "            var mScript = new kjScriptManager(),\n"
               "               mApp = mScript.getApplication(),\n"
               "               mDoc = mApp.GetActiveDocument(),\n"
               "               mViewManager = mDoc.GetViewManager(),\n"
               "               mModel = mDoc.GetModel(),\n"
               "               mSheet = mDoc.GetSheet(\"" +
               sheet +
               "\"),\n"
               "               mSkMgr = mModel.GetSketchManager(),\n"
               "               mCmdMess = mApp.GetCommandMessage();\n"
               "\n"
               "\n";
    };
    EXPECT_EQ(FromScript(converter.WriteMacroHeader(QStringLiteral("macro"), false)).toStdString(), script(""));

    RecordingStart::Current() = {false, CZtString(QStringLiteral("Plan %1"))};
    EXPECT_EQ(FromScript(converter.WriteMacroHeader(QStringLiteral("macro"), false)).toStdString(),
              script("Plan %1") + "            mSheet.Activate();\n"
                                  "            mSkMgr = mSheet.GetSketchManager();\n"
                                  "\n");
}

TEST_F(JavaScriptPage, StaysAtLevelThreeThroughBlocks)
{
    QString text = converter.WriteMacroHeader(QStringLiteral("macro"), false);
    EXPECT_EQ(converter.Counters().IndentLevel, 3);
    EXPECT_TRUE(converter.WriteBlockBegin().isEmpty());
    EXPECT_TRUE(converter.WriteBlockBegin().isEmpty());
    EXPECT_EQ(converter.Counters().IndentLevel, 3);
    EXPECT_TRUE(converter.WriteBlockEnd().isEmpty());
    EXPECT_EQ(converter.Counters().IndentLevel, 3);
    EXPECT_EQ(converter.WriteMacroFooter().toStdString(),
              "       }\n"
              "   </script>\n"
              "   </head>\n"
              "   <body>\n"
              "   <h2>Recorded Macro</h2>\n"
              "   <form name=\"macroform\">\n"
              "       <button type=\"button\" onclick=\"runMacro()\">Run macro</button><br />\n"
              "   </form>\n"
              "   </body>\n"
              "</html>\n");
    EXPECT_EQ(converter.Counters().IndentLevel, 0);
}

TEST_F(JavaScriptPage, HasNoProjectBesideIt)
{
    const ConversionRun run("", javaScript);
    EXPECT_EQ(run.result, ResultNormal);
    EXPECT_EQ(run.Files().join(QLatin1Char(' ')).toStdString(), "macro.txt");
    EXPECT_TRUE(run.File(QStringLiteral("macro.txt")).startsWith("<html>\n"));
}

TEST_F(JavaScriptPage, NumbersObjectTypesFromTheFirstUseOn)
{
    EXPECT_TRUE(converter.ObjectTypeNumbers().isEmpty());
    EXPECT_EQ(converter.GetObjectTypeNumber(QStringLiteral("kvDocumentType")), 2);
    EXPECT_EQ(converter.ObjectTypeNumbers().size(), 112);
    EXPECT_EQ(converter.GetObjectTypeNumber(QStringLiteral("kvObjectUndefinedType")), 0);
    EXPECT_EQ(converter.GetObjectTypeNumber(QStringLiteral("kvLineType")), 21);
    EXPECT_EQ(converter.GetObjectTypeNumber(QStringLiteral("kvObjectTypeCount")), 111);

    // The blank belongs to the name of this one alone.
    EXPECT_EQ(converter.GetObjectTypeNumber(QStringLiteral("kvApplicationType ")), 1);
    EXPECT_EQ(converter.ObjectTypeNumbers().size(), 112);
    EXPECT_EQ(converter.GetObjectTypeNumber(QStringLiteral("kvApplicationType")), 0);
    EXPECT_EQ(converter.ObjectTypeNumbers().size(), 113);
    EXPECT_EQ(converter.GetObjectTypeNumber(QString()), 0);
    EXPECT_EQ(converter.GetObjectTypeNumber(QString()), 0);
    EXPECT_EQ(converter.ObjectTypeNumbers().size(), 114);
}

} // namespace
