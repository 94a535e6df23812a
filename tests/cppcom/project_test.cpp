// The server project of a C++ COM macro: its files, its identifiers and the frame of the macro.
#include "support/conversion_run.h"

#include <gtest/gtest.h>

#include <QtCore/QRegularExpression>

namespace
{

constexpr std::uint32_t cppCom = 4;

// The first text that the pattern's group takes in a file of the project.
std::string Find(const ConversionRun& run, const char* file, const char* pattern)
{
    const QRegularExpression expression(QString::fromLatin1(pattern));
    return expression.match(QString::fromUtf8(run.File(QString::fromLatin1(file)))).captured(1).toStdString();
}

std::string Text(const ConversionRun& run, const char* file)
{
    return run.File(QString::fromLatin1(file)).toStdString();
}

struct ProjectIds
{
    explicit ProjectIds(const ConversionRun& run)
        : connectionClass(Find(run, "KvAddinConnection.rgs", "CLSID = s '\\{(.*)\\}'")),
          typeLibrary(Find(run, "KvAddinConnection.rgs", "'TypeLib' = s '\\{(.*)\\}'")),
          interface(Find(run, "macro.idl", "uuid\\(\\{(.*)\\}\\)")),
          project(Find(run, "macro.vcproj", "ProjectGUID=\"\\{(.*)\\}\"")),
          application(Find(run, "macro.txt", "IDR_macro, \"\\{(.*)\\}\"\\)"))
    {
    }

    [[nodiscard]] std::vector<std::string> All() const
    {
        return {connectionClass, typeLibrary, interface, project, application};
    }

    std::string connectionClass;
    std::string typeLibrary;
    std::string interface;
    std::string project;
    std::string application;
};

TEST(ComProject, HoldsTheFifteenFilesWithTheirMarks)
{
    const ConversionRun run("", cppCom);
    ASSERT_EQ(run.result, ResultNormal);
    EXPECT_EQ(run.Files().join(QLatin1Char(' ')).toStdString(),
              "KvAddinConnection.cpp KvAddinConnection.h KvAddinConnection.rgs macro.def macro.h macro.idl macro.rc "
              "macro.rgs macro.txt macro.vcproj macrops.def resource.h smartvars.h stdafx.cpp stdafx.h "
              "typeconverter.h");
    const QStringList marked = {QStringLiteral("KvAddinConnection.cpp"),
                                QStringLiteral("KvAddinConnection.h"),
                                QStringLiteral("macro.h"),
                                QStringLiteral("macro.txt"),
                                QStringLiteral("smartvars.h"),
                                QStringLiteral("stdafx.cpp"),
                                QStringLiteral("stdafx.h"),
                                QStringLiteral("typeconverter.h")};
    for (const QString& name : run.Files())
    {
        EXPECT_EQ(run.File(name).startsWith("\xEF\xBB\xBF"), marked.contains(name)) << name.toStdString();
    }
}

TEST(ComProject, AgreesOnItsIdentifiersAndMakesNewOnesEachTime)
{
    const ConversionRun first("", cppCom);
    const ConversionRun second("", cppCom);
    const ProjectIds ids(first);
    // An identifier of the type library and one of the class without braces, that of the interface with them.
    EXPECT_EQ(Find(first, "macro.idl", "uuid\\(([^{}]*)\\),\\n    version"), ids.typeLibrary);
    EXPECT_EQ(Find(first, "macro.idl", "uuid\\(([^{}]*)\\),\\n        helpstring"), ids.connectionClass);

    std::vector<std::string> all = ids.All();
    const std::vector<std::string> others = ProjectIds(second).All();
    all.insert(all.end(), others.begin(), others.end());
    for (const std::string& id : all)
    {
        EXPECT_EQ(id.size(), 36U) << id;
        EXPECT_EQ(std::ranges::count(all, id), 1) << id;
    }
}

TEST(ComProject, LeavesThePlaceholdersOfTheRegistrar)
{
    const ConversionRun run("", cppCom);
    EXPECT_EQ(Text(run, "macro.rgs"), "HKCR\n"
                                      "{\n"
                                      "    NoRemove AppID\n"
                                      "    {\n"
                                      "        '%APPID%' = s 'macro'\n"
                                      "        'macro.DLL'\n"
                                      "        {\n"
                                      "            val AppID = s '%APPID%'\n"
                                      "        }\n"
                                      "    }\n"
                                      "}\n");
    EXPECT_EQ(Find(run, "KvAddinConnection.rgs", "InprocServer32 = s '(.*)'"), "%MODULE%");
    EXPECT_EQ(Find(run, "KvAddinConnection.rgs", "val AppID = s '(.*)'"), "%APPID%");
}

TEST(ComProject, ImportsTheLibrariesOfTheStandardFolder)
{
    const ConversionRun run("", cppCom);
    EXPECT_TRUE(run.File(QStringLiteral("stdafx.h"))
                    .endsWith(R"(#import "C:\Program Files\Tarrow Ostrel\Morvane\APISDK\tlb\kvAddin.tlb" )"
                              "raw_interfaces_only, raw_native_types, no_namespace, named_guids, auto_search\n"
                              R"(#import "C:\Program Files\Tarrow Ostrel\Morvane\bin\kvAutomation.dll" )"
                              "no_namespace named_guids \n"
                              "using namespace ATL;\n"));
}

TEST(ComProject, RegistersTheServerInEachConfiguration)
{
    const std::string text = Text(ConversionRun("", cppCom), "macro.vcproj");
    EXPECT_TRUE(text.starts_with("<?xml version=\"1.0\" encoding=\"Windows-1252\"?>\n<VisualStudioProject\n"
                                 " ProjectType=\"Visual C++\"\n"));
    const QString step = QStringLiteral(
        "    Name=\"VCCustomBuildTool\"\n"
        "    Description=\"Registering the Addin with Morvane\"\n"
        "    CommandLine=\"regsvr32 /s /c &quot;$(TargetPath)&quot;&#x0D;&#x0A;echo regsvr32 exec. time &gt; "
        "&quot;$(OutDir)\\\\regsvr32.trg&quot;&#x0D;&#x0A;\"\n"
        "    Outputs=\"$(OutDir)\\\\regsvr32.trg\"\n");
    EXPECT_EQ(QString::fromStdString(text).count(step), 4);
    EXPECT_EQ(QString::fromStdString(text).count(QStringLiteral("UseOfATL=\"2\"")), 4);
}

TEST(ComFrame, FetchesTheStartSheet)
{
    const ConversionRun run("{\"drawing\":{\"currentLayout\":\"Plan 1\"}}\n"
                            "{\"object\":{\"class\":\"AcDbLine\",\"handle\":\"2A\"}}\n"
                            "{\"modified\":{\"class\":\"AcDbLine\",\"handle\":\"2A\",\"properties\":[]}}\n",
                            cppCom);
    const std::string whole = run.Whole().toStdString();
    const auto test = [](const std::string& variable, const std::string& message)
    {
        return "    if ( NULL == " + variable + " )\n    {\n        MessageBox( NULL, L\"Failed to get " + message +
               " of the current document.\", L\"title\", MB_OK );\n        return;\n    }\n\n";
    };
    const std::string body =
        "    ISketchManagerPtr kvSketchManager;\n"
        "    _variant_t pVariantArray = kvDoc->GetSheets();\n"
        "    ISheetPtr *kvSheetArrays = NULL;\n"
        "    int count = 0;\n"
        "    TypeConverter::convertVariantArrayToPtrArray<ISheetPtr, ISheet>( pVariantArray, kvSheetArrays, count );\n"
        "    ISheetPtr kvSheet = kvSheetArrays[1];\n" +
        test("kvSheet", "a paper space") +
        "    kvSheet = NULL;\n"
        "    kvSheet = kvDoc->GetSheet(L\"Plan 1\");\n" +
        test("kvSheet", "a paper space") +
        "    kvSheet->Activate();\n\n"
        "    //Get sketch manager\n"
        "    kvSketchManager = kvSheet->GetSketchManager();\n" +
        test("kvSketchManager", "a sketch manager") +
        "    //Get selection manager object\n"
        "    ISelectionManagerPtr kvSelManager( kvDoc->GetSelectionManager() );\n" +
        test("kvSelManager", "selection manager") +
        "    //Get view manager\n"
        "    IViewManagerPtr kvViewManager( kvDoc->GetViewManager() );\n" +
        test("kvViewManager", "a view manager") + "}\n\n";
    EXPECT_TRUE(whole.ends_with(body)) << whole;
}

} // namespace
