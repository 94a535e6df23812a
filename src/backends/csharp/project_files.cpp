// The files of the project around a C# macro.
#include "backends/csharp/converter.h"
#include "backends/text/msbuild_project.h"
#include "backends/text/project_folder.h"
#include "core/macro_name.h"

// The uneven indent of the class is the format's.
QString CZtConverterKVAPICSharp::WriteGlobalHeaderFile(const QString& macroName)
{
    return kv::Fill("using System;%2%2"
                    "namespace %1%2"
                    "{%2"
                    "    static class Program%2"
                    "    {%2"
                    "        /// <summary>%2"
                    "       /// The main entry point for the application.%2"
                    "        /// </summary>%2"
                    "       [STAThread]%2"
                    "       static void Main()%2"
                    "       {%2"
                    "           Morvane.Application kvApp = null;%2"
                    "           object application = null;%2%2"
                    "           try%2"
                    "           {%2"
                    "                application = "
                    "System.Runtime.InteropServices.Marshal.GetActiveObject(\"Morvane.Application\");%2"
                    "           }%2"
                    "           catch (Exception)%2"
                    "           {%2"
                    "               //application not running%2"
                    "               return;%2"
                    "           }%2%2"
                    "           if (null != application)%2"
                    "           {%2"
                    "               kvApp = application as Morvane.Application;%2"
                    "           }%2%2"
                    "           if (null != kvApp)%2"
                    "           {%2"
                    "               KVAPIMacros.%1 %1Obj = new KVAPIMacros.%1();%2"
                    "               %1Obj.Run(kvApp);%2"
                    "           }%2"
                    "       }%2"
                    "   }%2"
                    "}%2",
                    macroName, kv::LineEnd());
}

QString CZtConverterKVAPICSharp::WriteProjectFile(const QString& macroName)
{
    kv::MsbuildProject project("%2");
    project.AddProperties({{"ProductVersion", "9.0.30729"},
                           {"SchemaVersion", "2.0"},
                           {"ProjectGuid", "{6599E748-BC93-4CF5-901D-90C14D09EB86}"},
                           {"OutputType", "WinExe"},
                           {"AppDesignerFolder", "Properties"},
                           {"RootNamespace", "%1"},
                           {"AssemblyName", "%1"},
                           {"TargetFrameworkVersion", "v3.5"},
                           {"FileAlignment", "512"}});
    project.AddConfiguration("Debug", {{"DebugSymbols", "true"},
                                       {"DebugType", "full"},
                                       {"Optimize", "false"},
                                       {"OutputPath", "bin\\Debug\\"},
                                       {"DefineConstants", "DEBUG;TRACE"},
                                       {"ErrorReport", "prompt"},
                                       {"WarningLevel", "4"}});
    project.AddConfiguration("Release", {{"DebugType", "pdbonly"},
                                         {"Optimize", "true"},
                                         {"OutputPath", "bin\\Release\\"},
                                         {"DefineConstants", "TRACE"},
                                         {"ErrorReport", "prompt"},
                                         {"WarningLevel", "4"}});
    project.AddItems("Reference", {"System"});
    project.AddItems("Compile", {"%1.cs", "Program.cs"});
    project.AddTypeLibrary();
    return kv::FillChain(project.Close("$(MSBuildBinPath)\\Microsoft.CSharp.targets"), macroName, kv::LineEnd());
}

ResultCode CZtConverterKVAPICSharp::WriteProjectFiles(const QString& outputPath)
{
    const QString name = MakeMacroName(outputPath);
    return kv::WriteProjectFolder(outputPath, {{QStringLiteral("Program.cs"), WriteGlobalHeaderFile(name), false},
                                               {name + QLatin1String(".csproj"), WriteProjectFile(name), false}});
}
