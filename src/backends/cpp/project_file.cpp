// The Visual Studio project of a C++ API macro.
#include "backends/cpp/converter.h"
#include "backends/text/addin_project.h"
#include "backends/text/install_paths.h"

namespace
{

void WriteFilters(kv::VcprojWriter& xml)
{
    xml.Open("Filter", {{"Name", "Source Files"}, {"Filter", "txt"}});
    kv::AddProjectFile(xml, ".\\kvAddinConnection.cpp");
    kv::AddProjectFile(xml, ".\\%1.cpp");
    xml.Close();
    xml.Open("Filter", {{"Name", "Header Files"}});
    kv::AddProjectFileWithBuildStep(xml, ".\\KvAddin_global.h");
    kv::AddProjectFileWithBuildStep(xml, ".\\kvAddinConnection.h");
    kv::AddProjectFile(xml, ".\\%1.h");
    xml.Close();
}

// %3 the library path, %4 the include path. The project's identity is the same for every macro.
QString ProjectTemplate()
{
    return kv::AddinProjectTemplate({.indent = "    ",
                                     .declaration = "<?xml version=\"1.0\" encoding=\"windows-1252\"?>",
                                     .guid = "{8FBE8FD7-7EED-4D16-9316-FA646341A656}",
                                     .rootNamespace = "Reactors",
                                     .useOfAtl = "0",
                                     .buildStep = {},
                                     .midlFiles = {{"TypeLibraryName", "$(IntDir)/KvAddinBob.tlb"},
                                                   {"HeaderFileName", "KvAddinBob_i.h"},
                                                   {"InterfaceIdentifierFileName", "KvAddinBob_i.c"},
                                                   {"ProxyFileName", "KvAddinBob_p.c"}},
                                     .includeDirectory = "&quot;%4&quot;",
                                     .linkDirectory = "&quot;%3&quot;",
                                     .outputFile = nullptr,
                                     .moduleDefinition = "%1.def",
                                     .writeFilters = WriteFilters});
}

} // namespace

QString CZtConverterKVAPICPP::WriteProjectFile(const QString& macroName)
{
    return kv::FillChain(ProjectTemplate(), macroName, kv::LineEnd(), kv::LibraryPath(), kv::IncludePath());
}
