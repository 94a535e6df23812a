// The Visual Studio project of a C++ COM macro.
#include "backends/cppcom/converter.h"
#include "backends/cppcom/identity.h"
#include "backends/text/addin_project.h"
#include "backends/text/install_paths.h"

namespace
{

void AddFilter(kv::VcprojWriter& xml, const kv::VcprojWriter::Attributes& attributes,
               std::initializer_list<const char*> files)
{
    xml.Open("Filter", attributes);
    for (const char* file : files)
    {
        kv::AddProjectFile(xml, file);
    }
    xml.Close();
}

void WriteFilters(kv::VcprojWriter& xml)
{
    AddFilter(xml, {{"Name", "Source Files"}, {"Filter", "txt"}},
              {".\\KvAddinConnection.cpp", ".\\%1.cpp", ".\\%1.idl", ".\\%1_i.c", ".\\stdafx.cpp"});
    AddFilter(
        xml, {{"Name", "Header Files"}},
        {".\\KvAddinConnection.h", ".\\%1.h", ".\\resource.h", ".\\smartvars.h", ".\\stdafx.h", ".\\typeconverter.h"});
    AddFilter(xml, {{"Name", "Resource Files"}}, {".\\%1.rc", ".\\%1.rgs", ".\\KvAddinConnection.rgs"});
}

// %3 the project's identifier, %4 the library path, %5 the include path. The doubled backslashes are the format's.
QString ProjectTemplate()
{
    return kv::AddinProjectTemplate(
        {.indent = " ",
         .declaration = "<?xml version=\"1.0\" encoding=\"Windows-1252\"?>",
         .guid = "%3",
         .rootNamespace = "%1",
         .useOfAtl = "2",
         .buildStep = {{"Description", "Registering the Addin with Morvane"},
                       {"CommandLine", "regsvr32 /s /c &quot;$(TargetPath)&quot;&#x0D;&#x0A;echo regsvr32 exec. time "
                                       "&gt; &quot;$(OutDir)\\\\regsvr32.trg&quot;&#x0D;&#x0A;"},
                       {"Outputs", "$(OutDir)\\\\regsvr32.trg"}},
         .midlFiles = {{"TypeLibraryName", "$(IntDir)/%1.tlb"},
                       {"HeaderFileName", "%1_i.h"},
                       {"InterfaceIdentifierFileName", "%1_i.c"},
                       {"ProxyFileName", "%1_p.c"}},
         .includeDirectory = "&quot;%5&quot;",
         .linkDirectory = "&quot;%4&quot;",
         .outputFile = "$(OutDir)\\$(ProjectName).dll",
         .moduleDefinition = ".\\%1.def",
         .writeFilters = WriteFilters});
}

} // namespace

QString CZtConverterKVAPICPPCOM::WriteProjectFile(const QString& macroName)
{
    return kv::FillChain(ProjectTemplate(), macroName, kv::LineEnd(), ServerIdentity::NewId(), kv::LibraryPath(),
                         kv::IncludePath());
}
