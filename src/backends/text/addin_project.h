// The Visual Studio project of an add-in: what the projects of the C++ languages have in common.
#pragma once

#include "backends/text/vcproj_writer.h"

namespace kv
{

// What differs between the projects. The values are templates, with the markers that the language fills.
struct AddinProject
{
    const char* indent;      // one level
    const char* declaration; // of the XML; it names another encoding than the file's, which is the format's
    const char* guid;
    const char* rootNamespace;
    const char* useOfAtl;
    VcprojWriter::Attributes buildStep; // of the custom build step
    VcprojWriter::Attributes midlFiles; // the files that the interface compiler makes
    const char* includeDirectory;
    const char* linkDirectory;
    const char* outputFile; // of the linker; null when the attribute is absent
    const char* moduleDefinition;
    void (*writeFilters)(VcprojWriter& xml); // the groups of files
};

// The template of the whole project file; %1 the macro's name, %2 the line end.
[[nodiscard]] QString AddinProjectTemplate(const AddinProject& project);

// A file of the project.
void AddProjectFile(VcprojWriter& xml, const char* path);

// A file with an empty custom build step for each configuration.
void AddProjectFileWithBuildStep(VcprojWriter& xml, const char* path);

} // namespace kv
