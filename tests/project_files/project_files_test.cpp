// The project files of a macro named "my macro", byte for byte; the expected files stand beside this one.
#include "backends/text/install_paths.h"
#include "embedded/session.h"
#include "module/module_object.h"
#include "support/text_difference.h"

#include <gtest/gtest.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QTemporaryDir>

namespace
{

QByteArray ReadFile(const QString& path)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return file.readAll();
}

// Converts an empty journal and compares every file but the macro; the files named have a byte order mark.
void ExpectProject(const char* language, std::uint32_t index, const QString& macroFile, const QStringList& marked)
{
    const QTemporaryDir folder;
    kv::Session session;
    OdRxWin32Module<CZtConverterKVAPIModule, CZtConverterKVAPIModule> module(nullptr);
    ASSERT_EQ(session.Convert(module, folder.filePath(macroFile), index), ResultNormal);

    const QDir expected(QStringLiteral(KV_SOURCE_DIR "/tests/project_files/") + QLatin1String(language));
    const QString suffix = QStringLiteral(".expected");
    QStringList names = {macroFile};
    for (const QString& entry : expected.entryList(QDir::Files))
    {
        const QString name = entry.chopped(suffix.size());
        names.append(name);
        const QByteArray text = ReadFile(expected.filePath(entry));
        const QByteArray actual = ReadFile(folder.filePath(name));
        EXPECT_TRUE(actual == (marked.contains(name) ? "\xEF\xBB\xBF" : "") + text)
            << name.toStdString() << ", "
            << FirstDifference(QString::fromUtf8(text), QString::fromUtf8(actual)).toStdString();
    }
    names.sort();
    QStringList written = QDir(folder.path()).entryList(QDir::Files);
    written.sort();
    EXPECT_EQ(written.join(QLatin1Char('\n')).toStdString(), names.join(QLatin1Char('\n')).toStdString());
}

TEST(ProjectFiles, OfTheCppApi)
{
    ExpectProject("cpp", 0, QStringLiteral("my macro.cpp"),
                  {QStringLiteral("KvAddin_global.h"), QStringLiteral("kvAddinConnection.h"),
                   QStringLiteral("kvAddinConnection.cpp"), QStringLiteral("my macro.h")});
}

TEST(InstallPaths, DoubleTheBackslashesOfARegisteredFolderOnly)
{
    EXPECT_EQ(kv::PathBelow({}, "APISDK\\lib\\cpp").toStdString(),
              R"(C:\Program Files\Tarrow Ostrel\Morvane\APISDK\lib\cpp)");
    EXPECT_EQ(kv::PathBelow(QStringLiteral("C:\\App\\"), "APISDK\\headers\\cpp").toStdString(),
              R"(C:\\App\\APISDK\headers\cpp)");
    EXPECT_EQ(kv::PathBelow(QStringLiteral("C:\\App"), "APISDK\\lib\\cpp").toStdString(), R"(C:\\AppAPISDK\lib\cpp)");
}

} // namespace
