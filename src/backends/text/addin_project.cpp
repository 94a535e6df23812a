// The Visual Studio project of an add-in: what the projects of the C++ languages have in common.
#include "backends/text/addin_project.h"

namespace kv
{
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

using Attributes = VcprojWriter::Attributes;

void AddTool(VcprojWriter& xml, const char* name, const Attributes& attributes = {})
{
    Attributes all = {{"Name", name}};
    all.insert(all.end(), attributes.begin(), attributes.end());
    xml.Empty("Tool", all);
}

void AddInterfaceCompiler(VcprojWriter& xml, const AddinProject& project, const Configuration& configuration)
{
    Attributes attributes = {{"PreprocessorDefinitions", "_DEBUG;"},
                             {"TargetEnvironment", configuration.targetEnvironment},
                             {"GenerateStublessProxies", "true"}};
    attributes.insert(attributes.end(), project.midlFiles.begin(), project.midlFiles.end());
    AddTool(xml, "VCMIDLTool", attributes);
}

void AddCompiler(VcprojWriter& xml, const AddinProject& project, const Configuration& configuration)
{
    Attributes attributes = {{"Optimization", "0"},
                             {"AdditionalIncludeDirectories", project.includeDirectory},
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
        attributes.push_back({"WarnAsError", configuration.warnAsError});
    }
    attributes.push_back({"DebugInformationFormat", configuration.debugInformationFormat});
    AddTool(xml, "VCCLCompilerTool", attributes);
}

void AddLinker(VcprojWriter& xml, const AddinProject& project, const Configuration& configuration)
{
    Attributes attributes = {{"IgnoreImportLibrary", "true"},
                             {"AdditionalDependencies", "kvInterface.lib kvLibrary.lib"}};
    if (project.outputFile != nullptr)
    {
        attributes.push_back({"OutputFile", project.outputFile});
    }
    attributes.insert(attributes.end(), {{"LinkIncremental", "2"},
                                         {"AdditionalLibraryDirectories", project.linkDirectory},
                                         {"ModuleDefinitionFile", project.moduleDefinition},
                                         {"GenerateDebugInformation", "true"},
                                         {"SubSystem", "2"},
                                         {"TargetMachine", configuration.targetMachine}});
    AddTool(xml, "VCLinkerTool", attributes);
}

void AddTools(VcprojWriter& xml, const AddinProject& project, const Configuration& configuration)
{
    AddTool(xml, "VCPreBuildEventTool");
    AddTool(xml, "VCCustomBuildTool", project.buildStep);
    AddTool(xml, "VCXMLDataGeneratorTool");
    AddTool(xml, "VCWebServiceProxyGeneratorTool");
    AddInterfaceCompiler(xml, project, configuration);
    AddCompiler(xml, project, configuration);
    AddTool(xml, "VCManagedResourceCompilerTool");
    AddTool(xml, "VCResourceCompilerTool",
            {{"PreprocessorDefinitions", "_DEBUG"}, {"AdditionalIncludeDirectories", "$(IntDir)"}});
    AddTool(xml, "VCPreLinkEventTool");
    AddLinker(xml, project, configuration);
    for (const char* name : {"VCALinkTool", "VCManifestTool", "VCXDCMakeTool", "VCBscMakeTool", "VCFxCopTool",
                             "VCAppVerifierTool", "VCPostBuildEventTool"})
    {
        AddTool(xml, name);
    }
}

} // namespace

void AddProjectFile(VcprojWriter& xml, const char* path)
{
    xml.Open("File", {{"RelativePath", path}});
    xml.Close();
}

void AddProjectFileWithBuildStep(VcprojWriter& xml, const char* path)
{
    xml.Open("File", {{"RelativePath", path}});
    for (const Configuration& configuration : configurations)
    {
        xml.Open("FileConfiguration", {{"Name", configuration.name}});
        AddTool(xml, "VCCustomBuildTool",
                {{"Description", "Performing Custom Build Step"},
                 {"CommandLine", ""},
                 {"AdditionalDependencies", ""},
                 {"Outputs", ""}});
        xml.Close();
    }
    xml.Close();
}

QString AddinProjectTemplate(const AddinProject& project)
{
    VcprojWriter xml(project.indent, "%2");
    xml.Raw(project.declaration);
    xml.Open("VisualStudioProject", {{"ProjectType", "Visual C++"},
                                     {"Version", "9.00"},
                                     {"Name", "%1"},
                                     {"ProjectGUID", project.guid},
                                     {"RootNamespace", project.rootNamespace},
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
                                   {"UseOfATL", project.useOfAtl},
                                   {"CharacterSet", "1"}});
        AddTools(xml, project, configuration);
        xml.Close();
    }
    xml.Close();
    xml.Open("References");
    xml.Close();
    xml.Open("Files");
    project.writeFilters(xml);
    // This entry alone is indented by tabs.
    xml.Raw("\t\t<File");
    xml.Raw("\t\t\tRelativePath=\".\\%1.def\"");
    xml.Raw("\t\t\t>");
    xml.Raw("\t\t</File>");
    xml.Close();
    xml.Open("Globals");
    xml.Empty("Global", {{"Name", "QtVersion Win32"}, {"Value", "$(DefaultQtVersion)"}});
    xml.Empty("Global", {{"Name", "QtVersion x64"}, {"Value", "4.7.4_x64"}});
    xml.Close();
    xml.Close();
    return xml.Text();
}

} // namespace kv
