// Runs the case files, each as a test of its own.
#include "support/case_file.h"

#include "support/conversion_run.h"
#include "support/process_state.h"
#include "support/text_difference.h"

#include <gtest/gtest.h>

#include <QtCore/QDirIterator>
#include <QtCore/QFileInfo>

namespace
{

// The case files, by their paths below the tests.
std::vector<std::string> CasePaths()
{
    std::vector<std::string> paths;
    const QDir tests(QStringLiteral(KV_SOURCE_DIR "/tests"));
    for (const char* folder : {"cases", "whole"})
    {
        QDirIterator files(tests.filePath(QLatin1String(folder)), {QStringLiteral("*.txt")}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (files.hasNext())
        {
            paths.push_back(tests.relativeFilePath(files.next()).toStdString());
        }
    }
    std::ranges::sort(paths);
    return paths;
}

std::string TestName(const testing::TestParamInfo<std::string>& info)
{
    const QFileInfo file(QString::fromStdString(info.param));
    QString name = file.dir().dirName() + QLatin1Char('_') + file.completeBaseName();
    for (QChar& character : name)
    {
        character = character.isLetterOrNumber() ? character : QLatin1Char('_');
    }
    return name.toStdString();
}

bool HasByteOrderMark(std::uint32_t language)
{
    return language == 0 || language == 4;
}

void ExpectText(const QString& expected, const QString& actual)
{
    const QString text = Unfolded(expected, actual);
    EXPECT_TRUE(text == actual) << FirstDifference(text, actual).toStdString();
}

class CaseTest : public testing::TestWithParam<std::string>
{
};

TEST_P(CaseTest, GivesTheMacro)
{
    const CaseFile file = CaseFile::Read(QStringLiteral(KV_SOURCE_DIR "/tests/") + QString::fromStdString(GetParam()));
    for (const auto& [language, expected] : file.languages)
    {
        SCOPED_TRACE(testing::Message() << GetParam() << ", language " << language);
        ResetProcessState();
        const ConversionRun run(file.journal, language, file.recordingMode);
        EXPECT_EQ(run.result, file.result);
        if (expected.body)
        {
            ExpectText(*expected.body, run.Body());
        }
        if (expected.whole)
        {
            ExpectText(*expected.whole, run.Whole());
        }
        // What was told is what stands in the file; a failed conversion leaves none.
        QByteArray bytes = run.Whole().toUtf8();
        bytes.prepend(HasByteOrderMark(language) ? "\xEF\xBB\xBF" : "");
        EXPECT_EQ(run.File(QStringLiteral("macro.txt")), file.result == ResultNormal ? bytes : QByteArray());
    }
}

INSTANTIATE_TEST_SUITE_P(Cases, CaseTest, testing::ValuesIn(CasePaths()), TestName);

} // namespace
