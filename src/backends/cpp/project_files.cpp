// The files of the add-in project around a C++ API macro.
#include "backends/cpp/converter.h"
#include "backends/text/project_folder.h"
#include "core/macro_name.h"

QString CZtConverterKVAPICPP::WriteGlobalHeaderFile(const QString& macroName)
{
    return kv::Fill("%2"
                    "// %1.h, C++ API export/import declaration%2"
                    "//%2%2"
                    "#ifndef KvAddin_GLOBAL_H%2"
                    "#define KvAddin_GLOBAL_H%2%2"
                    "#ifdef KV_WIN%2"
                    "#    define KV_DECL_EXPORT __declspec(dllexport)%2"
                    "#else%2"
                    "#    define KV_DECL_EXPORT%2"
                    "#endif%2%2"
                    "#ifdef KV_WIN%2"
                    "#    define KV_DECL_IMPORT __declspec(dllimport)%2"
                    "#else%2"
                    "#    define KV_DECL_IMPORT%2"
                    "#endif%2%2"
                    "#define NULL 0%2%2"
                    "#ifdef KvAddin_LIB%2"
                    "#    define KvAddin_EXPORT KV_DECL_EXPORT%2"
                    "#else%2"
                    "#    define KvAddin_EXPORT KV_DECL_IMPORT%2"
                    "#endif%2%2%2"
                    "#endif // KvAddin_GLOBAL_H%2",
                    macroName, kv::LineEnd());
}

QString CZtConverterKVAPICPP::WriteConnectionHeader(const QString& macroName)
{
    return kv::Fill("#ifndef KV_ADDIN_CONNECTION_H%2"
                    "#define KV_ADDIN_CONNECTION_H%2%2"
                    "#include \"KvAddin_global.h\"%2"
                    "#include \"kvApplication_c.h\"%2"
                    "#include \"kvCommand_c.h\"%2"
                    "#include \"kvInterfacePtr.h\"%2"
                    "#include \"%1.h\"%2%2"
                    "class KvAddin_EXPORT MacroApplication : public kvApplicationEvents_c, public kvCommandEvents_c%2"
                    "{%2"
                    "public:%2"
                    "    MacroApplication(kvApplication_c *kvApp);%2"
                    "    virtual ~MacroApplication();%2%2"
                    "    kvApplication_c* getKvApp() { return m_kvApp; }%2"
                    "    static const kvString appID;%2%2"
                    "private:%2"
                    "    kvApplication_ptr m_kvApp;%2"
                    "    CMacroCommand m_macroCmd;%2"
                    "};%2%2"
                    "#endif // KV_ADDIN_CONNECTION_H%2",
                    macroName, kv::LineEnd());
}

QString CZtConverterKVAPICPP::WriteConnectionSource(const QString& macroName)
{
    return kv::Fill("#include \"kvAddinConnection.h\"%2%2"
                    "MacroApplication *g_macroApp = NULL;%2"
                    "const kvString MacroApplication::appID = L\"1C85DA6C-0445-4844-A66F-A048A5787A68\";%2%2"
                    "#ifdef KV_WIN%2"
                    "KvAddin_EXPORT bool connectToMorvane(int cookie, kvApplication_c *kvApp)%2"
                    "#else //KV_WIN%2"
                    "extern \"C\" KvAddin_EXPORT bool connectToMorvane(int cookie, kvApplication_c *kvApp)%2"
                    "#endif //KV_WIN%2"
                    "{%2"
                    "    if ( g_macroApp == NULL )%2"
                    "    {%2"
                    "        g_macroApp = new MacroApplication(kvApp);%2"
                    "        return true;%2"
                    "    }%2"
                    "    return false;%2"
                    "}%2%2"
                    "#ifdef KV_WIN%2"
                    "KvAddin_EXPORT bool disconnectFromMorvane()%2"
                    "#else //KV_WIN%2"
                    "extern \"C\" KvAddin_EXPORT bool disconnectFromMorvane()%2"
                    "#endif //KV_WIN%2"
                    "{%2"
                    "    if ( g_macroApp )%2"
                    "    {%2"
                    "        if (g_macroApp->getKvApp())%2"
                    "        {%2"
                    "            g_macroApp->getKvApp()->RemoveUserInterface(MacroApplication::appID);%2"
                    "        }%2"
                    "        delete g_macroApp;%2"
                    "        g_macroApp = NULL;%2"
                    "    }%2"
                    "    return true;%2"
                    "}%2%2"
                    "MacroApplication::MacroApplication(kvApplication_c *kvApp) %2"
                    "    : m_kvApp(kvApp)%2"
                    "    , m_macroCmd( kvApp, L\"%1\" )%2"
                    "{%2"
                    "}%2%2"
                    "MacroApplication::~MacroApplication()%2"
                    "{%2"
                    "}%2%2",
                    macroName, kv::LineEnd());
}

QString CZtConverterKVAPICPP::WriteCommandHeader()
{
    return kv::Fill("#pragma once%1%1"
                    "#include \"kvCommand_c.h\"%1"
                    "#include \"kvApplication_c.h\"%1%1"
                    "class CMacroCommand%1"
                    "{%1"
                    "public:%1"
                    "    CMacroCommand( kvApplication_c *pApp, const kvString & name );%1"
                    "    virtual ~CMacroCommand();%1%1"
                    "    DeclareCommandExecuteNotifyHook%1"
                    "    bool ExecuteNotify( void ); // Mandatory callback name%1"
                    "    const kvString &GetName() const;%1%1"
                    "private:%1"
                    "    kvApplication_c *m_pKvApp;%1"
                    "    kvCommand_c* m_pCmd;%1"
                    "    kvString m_name;%1"
                    "};%1%1",
                    kv::LineEnd());
}

QString CZtConverterKVAPICPP::WriteModuleDefinition(const QString& macroName)
{
    return kv::Fill("LIBRARY\t\"%2\"%1%1"
                    "EXPORTS%1"
                    "connectToMorvane%1"
                    "disconnectFromMorvane%1",
                    kv::LineEnd(), macroName);
}

ResultCode CZtConverterKVAPICPP::WriteProjectFiles(const QString& outputPath)
{
    const QString name = MakeMacroName(outputPath);
    return kv::WriteProjectFolder(outputPath,
                                  {{QStringLiteral("KvAddin_global.h"), WriteGlobalHeaderFile(name), true},
                                   {name + QLatin1String(".vcproj"), WriteProjectFile(name), false},
                                   {QStringLiteral("kvAddinConnection.h"), WriteConnectionHeader(name), true},
                                   {QStringLiteral("kvAddinConnection.cpp"), WriteConnectionSource(name), true},
                                   {name + QLatin1String(".h"), WriteCommandHeader(), true},
                                   {name + QLatin1String(".def"), WriteModuleDefinition(name), false}});
}
