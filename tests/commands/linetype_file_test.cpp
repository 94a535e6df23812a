// Line style files: what is read, what is reported, and the bytes that are written.
#include "commands/linetype_file.h"

#include <gtest/gtest.h>

#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>
#include <QtCore/QTextCodec>

namespace
{

// Definitions as "name|description|number number", faults as "line".
std::string StylesOf(const QByteArray& bytes)
{
    const kv::LinetypeFile file = kv::ParseLinetypes(bytes);
    QStringList told;
    for (const CZtLinetypeDefinition& definition : file.definitions)
    {
        QStringList numbers;
        for (const double number : definition.pattern)
        {
            numbers += QString::number(number);
        }
        told += definition.name + QLatin1Char('|') + definition.description + QLatin1Char('|') +
                numbers.join(QLatin1Char(' '));
    }
    for (const kv::LinetypeFile::Fault& fault : file.faults)
    {
        EXPECT_FALSE(fault.message.isEmpty());
        told += QString::number(fault.line);
    }
    return told.join(QLatin1Char('/')).toStdString();
}

QByteArray Contents(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

TEST(LinetypeFile, IsReadLineByLine)
{
    EXPECT_EQ(StylesOf(""), "");
    EXPECT_EQ(StylesOf("*A,one, two\r\nA,1,-.5,0\r\n"), "A|one, two|1 -0.5 0");
    EXPECT_EQ(StylesOf("*A,a\nA,1,-1\n\n  \t\n*B,b\nA,2,-2"), "A|a|1 -1/B|b|2 -2") << "no line end behind the last";
    EXPECT_EQ(StylesOf(";; all of it\n  *A,a;; rest\n \ta, 1 ,-1;;,x\n;;"), "A|a|1 -1");
    EXPECT_EQ(StylesOf("*A;b,c\nA,1,-1"), "A;b|c|1 -1") << "one semicolon is no comment";
    EXPECT_EQ(StylesOf("*A\nA,1,-1"), "A||1 -1");
    const QByteArray sixty = QByteArray(47, 'x') + QByteArray(13, 'y');
    EXPECT_EQ(StylesOf("*A," + sixty + "\nA,1,-1"), "A|" + std::string(47, 'x') + "|1 -1");
}

TEST(LinetypeFile, ReportsWhatIsBrokenAndReadsTheRest)
{
    EXPECT_EQ(StylesOf("stray\n*A,a\nA,1,-1"), "A|a|1 -1/1");
    EXPECT_EQ(StylesOf("*A,a\n*B,b\nA,1,-1\n*C,c"), "B|b|1 -1/1/4");
    EXPECT_EQ(StylesOf("*A,a\nA,1,x\n*B,b\nA,1,-1"), "B|b|1 -1/2");
    EXPECT_EQ(StylesOf("*A,a\nB,1,-1\nA,1,-1\n"), "2/3");
    EXPECT_EQ(StylesOf("*,a\nA,1,-1\n*B,b\nA,1,nan\n*C,c\nA,\n"), "1/4/6");
    EXPECT_EQ(StylesOf(QByteArray("*A\0B,a\nA,1,-1\n\xFF\xFE", 17)).substr(0, 1), "A");
}

TEST(LinetypeFile, IsReadInOtherEncodings)
{
    const QString text = QString::fromUtf8("*M\u00fcll,Gr\u00fc\u00dfe\r\nA,1,-1\r\n");
    const std::string wanted = "M\u00fcll|Gr\u00fc\u00dfe|1 -1";
    for (const char* codec : {"UTF-8", "UTF-16", "UTF-16LE", "UTF-16BE", "UTF-32", "windows-1252"})
    {
        QTextEncoder encoder(QTextCodec::codecForName(codec), QTextCodec::DefaultConversion);
        EXPECT_EQ(StylesOf(encoder.fromUnicode(text)), wanted) << codec; // those of UTF-16 and UTF-32 with a mark
    }
    EXPECT_EQ(StylesOf("\xEF\xBB\xBF*A,a\nA,1,-1"), "A|a|1 -1");
}

TEST(LinetypeFile, ReadsAHundredThousandDefinitions)
{
    QByteArray bytes;
    for (int number = 0; number < 100000; ++number)
    {
        bytes += "*S" + QByteArray::number(number) + ",style\r\nA," + QByteArray::number(number) + ",-1\r\n";
    }
    const kv::LinetypeFile file = kv::ParseLinetypes(bytes);
    ASSERT_EQ(file.definitions.size(), 100000U);
    EXPECT_EQ(file.faults.size(), 0U);
    EXPECT_EQ(file.definitions.back().name, QStringLiteral("S99999"));
    EXPECT_EQ(file.definitions.back().pattern, std::vector<double>({99999, -1}));
}

TEST(LinetypeFile, IsAppendedToByteForByte)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("a.lin"));
    const auto append = [&](const char* name)
    { return kv::AppendLinetype(path, QString::fromUtf8(name), QStringLiteral("d, e"), QStringLiteral("1, -.5")); };
    ASSERT_TRUE(append("N"));
    EXPECT_EQ(Contents(path), "\r\n*N,d, e\r\nA,1, -.5\r\n");
    ASSERT_TRUE(append("\u00fc"));
    EXPECT_EQ(Contents(path), "\r\n*N,d, e\r\nA,1, -.5\r\n\r\n*\u00fc,d, e\r\nA,1, -.5\r\n");

    // Another encoding stays what it is, and takes no name that it can't hold.
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write("*\xFC,\nA,1,-1\n") > 0);
    file.close();
    ASSERT_TRUE(append("\u00f6"));
    EXPECT_EQ(Contents(path), QByteArray("*\xFC,\nA,1,-1\n\r\n*\xF6,d, e\r\nA,1, -.5\r\n"));
    const QByteArray before = Contents(path);
    EXPECT_FALSE(append("\u4e2d"));
    EXPECT_EQ(Contents(path), before);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write("\xFF\xFE*\0A\0", 6) == 6);
    file.close();
    ASSERT_TRUE(append("B"));
    EXPECT_EQ(Contents(path).mid(6, 8), QByteArray("\r\0\n\0*\0B\0", 8));

    EXPECT_FALSE(kv::AppendLinetype(folder.path(), {}, {}, {}));
    EXPECT_FALSE(kv::ReadLinetypeFile(folder.filePath(QStringLiteral("none.lin"))));
    EXPECT_FALSE(kv::ReadLinetypeFile(folder.path()));
}

} // namespace
