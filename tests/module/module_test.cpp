// The loadable file: what it exports, and the life of its one object.
#include "host/kernel/converter_module.h"

#include <gtest/gtest.h>

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QProcess>
#include <QtCore/QTemporaryDir>

#include <dlfcn.h>

namespace
{

class ModuleFile : public testing::Test
{
protected:
    void SetUp() override
    {
        file = dlopen(KV_MODULE_FILE, RTLD_NOW | RTLD_LOCAL);
        ASSERT_NE(file, nullptr) << dlerror();
        create = reinterpret_cast<CreateModuleObjectFunction>(dlsym(file, "odrxCreateModuleObject"));
        version = reinterpret_cast<GetApiVersionFunction>(dlsym(file, "odrxGetAPIVersion"));
        ASSERT_NE(create, nullptr);
        ASSERT_NE(version, nullptr);
        handle = file;
        module = OdSmartPtr<CZtConverterModule>::cast(create(&handle)).get();
    }

    void TearDown() override
    {
        if (module != nullptr)
        {
            module->deleteModule();
        }
        // The file stays mapped: the sanitizers and later tests read its symbols.
    }

    void* file = nullptr;
    void* handle = nullptr;
    CreateModuleObjectFunction create = nullptr;
    GetApiVersionFunction version = nullptr;
    CZtConverterModule* module = nullptr;
};

TEST(ModuleExports, AreExactlyTheTwoFunctions)
{
    QProcess nm;
    nm.start(QStringLiteral("nm"), {QStringLiteral("-D"), QStringLiteral("--defined-only"),
                                    QStringLiteral("--format=posix"), QStringLiteral(KV_MODULE_FILE)});
    ASSERT_TRUE(nm.waitForFinished());
    ASSERT_EQ(nm.exitCode(), 0);
    QStringList names;
    for (const QString& line : QString::fromUtf8(nm.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts))
    {
        names.append(line.section(QLatin1Char(' '), 0, 0));
    }
    names.sort();
    EXPECT_EQ(names.join(QLatin1Char(' ')).toStdString(), "odrxCreateModuleObject odrxGetAPIVersion");
}

TEST_F(ModuleFile, SpeaksItsVersion)
{
    std::uint32_t numbers[4] = {};
    version(&numbers[0], &numbers[1], &numbers[2], &numbers[3]);
    EXPECT_EQ(numbers[0], 3u);
    EXPECT_EQ(numbers[1], 9u);
    EXPECT_EQ(numbers[2], 1u);
    EXPECT_EQ(numbers[3], 63511u);
}

TEST_F(ModuleFile, MakesItsObjectOnce)
{
    EXPECT_EQ(handle, nullptr);
    EXPECT_EQ(module->sysData(), file);
    EXPECT_EQ(module->numRefs(), 0);
    void* second = &second;
    EXPECT_EQ(create(&second), module);
    EXPECT_EQ(second, &second);

    module->deleteModule();
    second = file;
    module = OdSmartPtr<CZtConverterModule>::cast(create(&second)).get();
    EXPECT_EQ(second, nullptr);
}

TEST_F(ModuleFile, OutlivesItsReferences)
{
    module->addRef();
    module->addRef();
    EXPECT_EQ(module->numRefs(), 2);
    module->release();
    module->release();
    EXPECT_EQ(module->numRefs(), 0);
    module->initApp();
    module->uninitApp();
    EXPECT_EQ(QFileInfo(module->moduleName()).canonicalFilePath(),
              QFileInfo(QStringLiteral(KV_MODULE_FILE)).canonicalFilePath());
}

TEST_F(ModuleFile, RefusesAnUnknownLanguage)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("below/macro.txt"));
    EXPECT_EQ(module->ConvertJournal(path, 6, 1, 0, CZtJournal()), ResultError);
    EXPECT_EQ(module->ConvertJournal(path, 0xFFFFFFFF, 1, 0, CZtJournal()), ResultError);
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
}

} // namespace
