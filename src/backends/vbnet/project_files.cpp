// The files beside a VB.NET macro: the program that runs it and its project.
#include "backends/text/msbuild_project.h"
#include "backends/text/project_folder.h"
#include "backends/vbnet/converter.h"
#include "core/macro_name.h"

namespace
{

// The compiler's warnings that a macro would give, off for the whole project and once more in each configuration.
constexpr const char* noWarn = "42016,41999,42017,42018,42019,42032,42036,42020,42021,42022";

QString ProjectTemplate()
{
    kv::MsbuildProject project("%2");
    project.AddProperties({{"ProductVersion", "9.0.21022"},
                           {"SchemaVersion", "2.0"},
                           {"ProjectGuid", "{B1E37C1A-66D2-4558-A4B8-D9B9CB0C0220}"},
                           {"OutputType", "WinExe"},
                           {"AppDesignerFolder", "Properties"},
                           {"RootNamespace", "%1"},
                           {"AssemblyName", "%1"},
                           {"TargetFrameworkVersion", "v3.5"},
                           {"FileAlignment", "512"},
                           {"MyType", "Empty"},
                           {"NoWarn", noWarn},
                           {"OptionExplicit", "On"},
                           {"OptionCompare", "Binary"},
                           {"OptionStrict", "Off"},
                           {"OptionInfer", "On"}});
    project.AddConfiguration("Debug", {{"DebugSymbols", "true"},
                                       {"DebugType", "full"},
                                       {"DefineDebug", "true"},
                                       {"DefineTrace", "true"},
                                       {"OutputPath", "bin\\Debug\\"},
                                       {"DocumentationFile", ""},
                                       {"WarningLevel", "4"},
                                       {"NoWarn", noWarn}});
    project.AddConfiguration("Release", {{"DebugType", "pdbonly"},
                                         {"DefineDebug", "false"},
                                         {"DefineTrace", "true"},
                                         {"Optimize", "true"},
                                         {"OutputPath", "bin\\Release\\"},
                                         {"DocumentationFile", ""},
                                         {"ErrorReport", "prompt"},
                                         {"WarningLevel", "4"},
                                         {"NoWarn", noWarn}});
    project.AddItems("Reference", {"System"});
    project.AddTypeLibrary();
    project.AddItems("Import", {"Microsoft.VisualBasic", "System"});
    project.AddItems("Compile", {"%1.vb", "Module1.vb"});
    return project.Close("$(MSBuildToolsPath)\\Microsoft.VisualBasic.targets");
}

} // namespace

QString CZtConverterKVAPIVbNet::WriteProjectFile(const QString& macroName)
{
    return kv::FillChain(ProjectTemplate(), macroName, kv::LineEnd());
}

QString CZtConverterKVAPIVbNet::WriteGlobalHeaderFile(const QString& macroName)
{
    return kv::Fill("%2%2Module Module1%2%2"
                    "    Sub Main()%2"
                    "        Dim kvApp As Morvane.Application%2"
                    "        Dim application As Object%2"
                    "        kvApp = Nothing%2"
                    "        application = Nothing%2%2"
                    "        Try%2"
                    "            application = System.Runtime.InteropServices.Marshal.GetActiveObject("
                    "\"Morvane.Application\")%2"
                    "            Exit Try%2"
                    "        Catch ex As Exception%2"
                    "            Return%2"
                    "        End Try%2%2"
                    "        If application IsNot Nothing Then%2"
                    "            kvApp = application%2"
                    "        Else%2"
                    "            Return%2"
                    "        End If%2%2"
                    "        If kvApp IsNot Nothing Then%2"
                    "            Dim %1Obj As %1%2"
                    "            %1Obj = New %1()%2"
                    "            %1Obj.Run(kvApp)%2"
                    "        End If%2%2"
                    "    End Sub%2%2"
                    "End Module",
                    macroName, kv::LineEnd());
}

ResultCode CZtConverterKVAPIVbNet::WriteProjectFiles(const QString& outputPath)
{
    const QString name = MakeMacroName(outputPath);
    return kv::WriteProjectFolder(outputPath, {{QStringLiteral("Module1.vb"), WriteGlobalHeaderFile(name), false},
                                               {name + QLatin1String(".vbproj"), WriteProjectFile(name), false}});
}
