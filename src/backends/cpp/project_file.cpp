// The Visual Studio project of a C++ API macro.
#include "backends/cpp/converter.h"
#include "backends/text/install_paths.h"
#include "backends/text/vcproj_writer.h"

namespace
{

// What differs between the four configurations.
struct Configuration
{
    const char* name;
    const char* targetEnvironment;
    const char* runtimeLibrary;
    const char* debugInformationFormat;
    const char* warnAsError; // null when the attribute is absent
    const char* targetMachine;
};

constexpr Configuration configurations[] = {
    {"Debug|Win32", "1", "3", "4", nullptr, "1"},
    {"Debug|x64", "3", "3", "3", "true", "17"},
    {"Release|Win32", "1", "2", "4", nullptr, "1"},
    {"Release|x64", "3", "2", "3", nullptr, "17"},
};

void WriteTools(kv::VcprojWriter& xml, const Configuration& configuration)
{
    const auto plainTool = [&](const char* name) { xml.Empty("Tool", {{"Name", name}}); };
    plainTool("VCPreBuildEventTool");
    plainTool("VCCustomBuildTool");
    plainTool("VCXMLDataGeneratorTool");
    plainTool("VCWebServiceProxyGeneratorTool");
    xml.Empty("Tool", {{"Name", "VCMIDLTool"},
                       {"PreprocessorDefinitions", "_DEBUG;"},
                       {"TargetEnvironment", configuration.targetEnvironment},
                       {"GenerateStublessProxies", "true"},
                       {"TypeLibraryName", "$(IntDir)/KvAddinBob.tlb"},
                       {"HeaderFileName", "KvAddinBob_i.h"},
                       {"InterfaceIdentifierFileName", "KvAddinBob_i.c"},
                       {"ProxyFileName", "KvAddinBob_p.c"}});
    kv::VcprojWriter::Attributes compiler = {{"Name", "VCCLCompilerTool"},
                                             {"Optimization", "0"},
                                             {"AdditionalIncludeDirectories", "&quot;%4&quot;"},
                                             {"PreprocessorDefinitions", "UNICODE;NDEBUG;KV_WIN;KvAddin_LIB"},
                                             {"MinimalRebuild", "true"},
                                             {"ExceptionHandling", "1"},
                                             {"BasicRuntimeChecks", "3"},
                                             {"RuntimeLibrary", configuration.runtimeLibrary},
                                             {"TreatWChar_tAsBuiltInType", "false"},
                                             {"PrecompiledHeaderThrough", "stdafx.h"},
                                             {"PrecompiledHeaderFile", "stdafx.pch"}};
    if (configuration.warnAsError != nullptr)
    {
        compiler.push_back({"WarnAsError", configuration.warnAsError});
    }
    compiler.push_back({"DebugInformationFormat", configuration.debugInformationFormat});
    xml.Empty("Tool", compiler);
    plainTool("VCManagedResourceCompilerTool");
    xml.Empty("Tool", {{"Name", "VCResourceCompilerTool"},
                       {"PreprocessorDefinitions", "_DEBUG"},
                       {"AdditionalIncludeDirectories", "$(IntDir)"}});
    plainTool("VCPreLinkEventTool");
    xml.Empty("Tool", {{"Name", "VCLinkerTool"},
                       {"IgnoreImportLibrary", "true"},
                       {"AdditionalDependencies", "kvInterface.lib kvLibrary.lib"},
                       {"LinkIncremental", "2"},
                       {"AdditionalLibraryDirectories", "&quot;%3&quot;"},
                       {"ModuleDefinitionFile", "%1.def"},
                       {"GenerateDebugInformation", "true"},
                       {"SubSystem", "2"},
                       {"TargetMachine", configuration.targetMachine}});
    plainTool("VCALinkTool");
    plainTool("VCManifestTool");
    plainTool("VCXDCMakeTool");
    plainTool("VCBscMakeTool");
    plainTool("VCFxCopTool");
    plainTool("VCAppVerifierTool");
    plainTool("VCPostBuildEventTool");
}

void WriteFile(kv::VcprojWriter& xml, const char* path)
{
    xml.Open("File", {{"RelativePath", path}});
    xml.Close();
}

// A header with an empty custom build step for each configuration.
void WriteHeaderWithBuildStep(kv::VcprojWriter& xml, const char* path)
{
    xml.Open("File", {{"RelativePath", path}});
    for (const Configuration& configuration : configurations)
    {
        xml.Open("FileConfiguration", {{"Name", configuration.name}});
        xml.Empty("Tool", {{"Name", "VCCustomBuildTool"},
                           {"Description", "Performing Custom Build Step"},
                           {"CommandLine", ""},
                           {"AdditionalDependencies", ""},
                           {"Outputs", ""}});
        xml.Close();
    }
    xml.Close();
}

void WriteFiles(kv::VcprojWriter& xml)
{
    xml.Open("Files");
    xml.Open("Filter", {{"Name", "Source Files"}, {"Filter", "txt"}});
    WriteFile(xml, ".\\kvAddinConnection.cpp");
    WriteFile(xml, ".\\%1.cpp");
    xml.Close();
    xml.Open("Filter", {{"Name", "Header Files"}});
    WriteHeaderWithBuildStep(xml, ".\\KvAddin_global.h");
    WriteHeaderWithBuildStep(xml, ".\\kvAddinConnection.h");
    WriteFile(xml, ".\\%1.h");
    xml.Close();
    // This entry alone is indented by tabs.
    xml.Raw("\t\t<File");
    xml.Raw("\t\t\tRelativePath=\".\\%1.def\"");
    xml.Raw("\t\t\t>");
    xml.Raw("\t\t</File>");
    xml.Close();
}

QString ProjectTemplate()
{
    kv::VcprojWriter xml("    ", "%2");
    // The declaration names another encoding than the file's; the format's.
    xml.Raw("<?xml version=\"1.0\" encoding=\"windows-1252\"?>");
    xml.Open("VisualStudioProject", {{"ProjectType", "Visual C++"},
                                     {"Version", "9.00"},
                                     {"Name", "%1"},
                                     {"ProjectGUID", "{8FBE8FD7-7EED-4D16-9316-FA646341A656}"},
                                     {"RootNamespace", "Reactors"},
                                     {"Keyword", "Qt4VSv1.0"},
                                     {"TargetFrameworkVersion", "196613"}});
    xml.Open("Platforms");
    xml.Empty("Platform", {{"Name", "Win32"}});
    xml.Empty("Platform", {{"Name", "x64"}});
    xml.Close();
    xml.Open("ToolFiles");
    xml.Close();
    xml.Open("Configurations");
    for (const Configuration& configuration : configurations)
    {
        xml.Open("Configuration", {{"Name", configuration.name},
                                   {"OutputDirectory", "$(ConfigurationName)"},
                                   {"IntermediateDirectory", "$(ConfigurationName)"},
                                   {"ConfigurationType", "2"},
                                   {"UseOfMFC", "0"},
                                   {"UseOfATL", "0"},
                                   {"CharacterSet", "1"}});
        WriteTools(xml, configuration);
        xml.Close();
    }
    xml.Close();
    xml.Open("References");
    xml.Close();
    WriteFiles(xml);
    xml.Open("Globals");
    xml.Empty("Global", {{"Name", "QtVersion Win32"}, {"Value", "$(DefaultQtVersion)"}});
    xml.Empty("Global", {{"Name", "QtVersion x64"}, {"Value", "4.7.4_x64"}});
    xml.Close();
    xml.Close();
    return xml.Text();
}

} // namespace

QString CZtConverterKVAPICPP::WriteProjectFile(const QString& macroName)
{
    return kv::FillChain(ProjectTemplate(), macroName, kv::LineEnd(), kv::LibraryPath(), kv::IncludePath());
}
