// The files of the server project around a C++ COM macro.
#include "backends/cppcom/converter.h"
#include "backends/cppcom/project_texts.h"
#include "backends/text/project_folder.h"
#include "core/macro_name.h"

ResultCode CZtConverterKVAPICPPCOM::WriteProjectFiles(const QString& outputPath)
{
    const QString name = MakeMacroName(outputPath);
    return kv::WriteProjectFolder(outputPath,
                                  {{QStringLiteral("KvAddinConnection.h"), cppcom::ConnectionHeader(name), true},
                                   {QStringLiteral("KvAddinConnection.cpp"), cppcom::ConnectionSource(), true},
                                   {name + QLatin1String(".h"), cppcom::CommandHeader(), true},
                                   {QStringLiteral("resource.h"), cppcom::ResourceNumbers(name), false},
                                   {QStringLiteral("stdafx.h"), cppcom::PrecompiledHeader(), true},
                                   {QStringLiteral("stdafx.cpp"), cppcom::PrecompiledSource(), true},
                                   {QStringLiteral("smartvars.h"), cppcom::SafeArrayHeader(), true},
                                   {name + QLatin1String(".def"), cppcom::ModuleDefinition(name), false},
                                   {name + QLatin1String("ps.def"), cppcom::ProxyDefinition(name), false},
                                   {name + QLatin1String(".idl"), cppcom::InterfaceDefinition(name), false},
                                   {QStringLiteral("KvAddinConnection.rgs"), cppcom::ClassRegistration(name), false},
                                   {name + QLatin1String(".rgs"), cppcom::ApplicationRegistration(name), false},
                                   {name + QLatin1String(".rc"), cppcom::ResourceScript(name), false},
                                   {name + QLatin1String(".vcproj"), WriteProjectFile(name), false},
                                   {QStringLiteral("typeconverter.h"), cppcom::TypeConverterHeader(), true}});
}
