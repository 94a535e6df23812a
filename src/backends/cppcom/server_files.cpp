// Interface, registration, exports and resources of the server that holds a C++ COM macro.
#include "backends/cppcom/identity.h"
#include "backends/cppcom/project_texts.h"
#include "backends/text/fill.h"

namespace cppcom
{
namespace
{

QString WithoutBraces(const QString& id)
{
    return id.mid(1, id.size() - 2);
}

} // namespace

QString InterfaceDefinition(const QString& macroName)
{
    const ServerIdentity& identity = ServerIdentity::OfProcess();
    // The first identifier keeps its braces, which the interface compiler doesn't take; the format's.
    return kv::Fill("import \"oaidl.idl\";%2"
                    "import \"ocidl.idl\";%2%2"
                    "[%2"
                    "    object,%2"
                    "    uuid(%3),%2"
                    "    dual,%2"
                    "    nonextensible,%2"
                    "    helpstring(\"IKvAddinConnection Interface\"),%2"
                    "    pointer_default(unique)%2"
                    "]%2%2"
                    "interface IKvAddinConnection : IDispatch{%2"
                    "};%2%2"
                    "[%2"
                    "    uuid(%4),%2"
                    "    version(1.0),%2"
                    "    helpstring(\"%1 Type Library\")%2"
                    "]%2%2"
                    "library %1Lib%2"
                    "{%2"
                    "    importlib(\"stdole2.tlb\");%2"
                    "    [%2"
                    "        uuid(%5),%2"
                    "        helpstring(\"KvAddinConnection Class\")%2"
                    "    ]%2"
                    "    coclass KvAddinConnection%2"
                    "    {%2"
                    "        [default] interface IKvAddinConnection;%2"
                    "    };%2"
                    "};%2",
                    macroName, kv::LineEnd(), ServerIdentity::NewId(), WithoutBraces(identity.TypeLibraryId),
                    WithoutBraces(identity.ConnectionClassId));
}

QString ClassRegistration(const QString& macroName)
{
    const ServerIdentity& identity = ServerIdentity::OfProcess();
    return kv::FillChain(QStringLiteral("HKCR%2"
                                        "{%2"
                                        "    %1.KvAddinConnection.1 = s 'KvAddinConnection Class'%2"
                                        "    {%2"
                                        "        CLSID = s '%3'%2"
                                        "    }%2"
                                        "    %1.KvAddinConnection = s 'KvAddinConnection Class'%2"
                                        "    {%2"
                                        "        CLSID = s '%3'%2"
                                        "        CurVer = s '%1.KvAddinConnection.1'%2"
                                        "    }%2"
                                        "    NoRemove CLSID%2"
                                        "    {%2"
                                        "        ForceRemove %3 = s 'KvAddinConnection Class'%2"
                                        "        {%2"
                                        "            ProgID = s '%1.KvAddinConnection.1'%2"
                                        "            VersionIndependentProgID = s '%1.KvAddinConnection'%2"
                                        "            ForceRemove 'Programmable'%2"
                                        "            InprocServer32 = s '%MODULE%'%2"
                                        "            {%2"
                                        "            }%2"
                                        "            val AppID = s '%APPID%'%2"
                                        "            'TypeLib' = s '%4'%2"
                                        "        }%2"
                                        "    }%2"
                                        "}%2"),
                         macroName, kv::LineEnd(), identity.ConnectionClassId, identity.TypeLibraryId);
}

QString ApplicationRegistration(const QString& macroName)
{
    return kv::FillChain(QStringLiteral("HKCR%2"
                                        "{%2"
                                        "    NoRemove AppID%2"
                                        "    {%2"
                                        "        '%APPID%' = s '%1'%2"
                                        "        '%1.DLL'%2"
                                        "        {%2"
                                        "            val AppID = s '%APPID%'%2"
                                        "        }%2"
                                        "    }%2"
                                        "}%2"),
                         macroName, kv::LineEnd());
}

QString ModuleDefinition(const QString& macroName)
{
    return kv::Fill("; %1.def : Declares the module parameters.%2%2"
                    "LIBRARY      \"%1.DLL\"%2%2"
                    "EXPORTS%2"
                    "    DllCanUnloadNow        PRIVATE%2"
                    "    DllGetClassObject      PRIVATE%2"
                    "    DllRegisterServer      PRIVATE%2"
                    "    DllUnregisterServer    PRIVATE%2",
                    macroName, kv::LineEnd());
}

QString ProxyDefinition(const QString& macroName)
{
    return kv::Fill("%2"
                    "LIBRARY      \"%1PS\"%2%2"
                    "EXPORTS%2"
                    "    DllGetClassObject       PRIVATE%2"
                    "    DllCanUnloadNow         PRIVATE%2"
                    "    GetProxyDllInfo         PRIVATE%2"
                    "    DllRegisterServer       PRIVATE%2"
                    "    DllUnregisterServer     PRIVATE%2",
                    macroName, kv::LineEnd());
}

QString ResourceNumbers(const QString& macroName)
{
    return kv::Fill("#define IDS_PROJNAME                   100%2"
                    "#define IDR_%1                         101%2"
                    "#define IDR_KVADDINCONNECTION          102%2"
                    "#define IDC_KVAPPLICATIONEVENT         103%2"
                    "#define IDR_KVADDINCOMMAND             104%2%2"
                    "#ifdef APSTUDIO_INVOKED%2"
                    "#ifndef APSTUDIO_READONLY_SYMBOLS%2"
                    "#define _APS_NEXT_RESOURCE_VALUE        201%2"
                    "#define _APS_NEXT_COMMAND_VALUE         32768%2"
                    "#define _APS_NEXT_CONTROL_VALUE         201%2"
                    "#define _APS_NEXT_SYMED_VALUE           103%2"
                    "#endif%2"
                    "#endif%2",
                    macroName, kv::LineEnd());
}

QString ResourceScript(const QString& macroName)
{
    // A digit at the start of a line is a value of its own: behind a marker it would be read as part of it.
    return kv::Fill("#include \"resource.h\"%1%1"
                    "#define APSTUDIO_READONLY_SYMBOLS%1"
                    "#include \"winres.h\"%1"
                    "#undef APSTUDIO_READONLY_SYMBOLS%1%1"
                    "#if !defined(AFX_RESOURCE_DLL) || defined(AFX_TARG_ENU)%1"
                    "#ifdef _WIN32%1"
                    "LANGUAGE LANG_ENGLISH, SUBLANG_ENGLISH_US%1"
                    "#pragma code_page(1252)%1"
                    "#endif%1%1"
                    "#ifdef APSTUDIO_INVOKED%1%1"
                    "%2 TEXTINCLUDE%1"
                    "BEGIN%1"
                    "    \"resource.h\\0\"%1"
                    "END%1%1"
                    "%3 TEXTINCLUDE%1"
                    "BEGIN%1"
                    "    \"#include \"\"winres.h\"\"\\r\\n\"%1"
                    "    \"\\0\"%1"
                    "END%1%1"
                    "%4 TEXTINCLUDE%1"
                    "BEGIN%1"
                    "    \"1 TYPELIB \"\"%5.tlb\"\"\\r\\n\"%1"
                    "    \"\\0\"%1"
                    "END%1%1"
                    "#endif%1%1"
                    "VS_VERSION_INFO VERSIONINFO%1"
                    " FILEVERSION 1,0,0,1%1"
                    " PRODUCTVERSION 1,0,0,1%1"
                    " FILEFLAGSMASK 0x3fL%1"
                    "#ifdef _DEBUG%1"
                    " FILEFLAGS 0x1L%1"
                    "#else%1"
                    " FILEFLAGS 0x0L%1"
                    "#endif%1"
                    " FILEOS 0x4L%1"
                    " FILETYPE 0x2L%1"
                    " FILESUBTYPE 0x0L%1"
                    "BEGIN%1"
                    "    BLOCK \"StringFileInfo\"%1"
                    "    BEGIN%1"
                    "        BLOCK \"040904e4\"%1"
                    "        BEGIN%1"
                    "            VALUE \"CompanyName\", \"TODO: <Company name>\"%1"
                    "            VALUE \"FileDescription\", \"TODO: <File description>\"%1"
                    "            VALUE \"FileVersion\", \"1.0.0.1\"%1"
                    "            VALUE \"LegalCopyright\", \"TODO: (c) <Company name>.  All rights reserved.\"%1"
                    "            VALUE \"InternalName\", \"%5.dll\"%1"
                    "            VALUE \"OriginalFilename\", \"%5.dll\"%1"
                    "            VALUE \"ProductName\", \"TODO: <Product name>\"%1"
                    "            VALUE \"ProductVersion\", \"1.0.0.1\"%1"
                    "        END%1"
                    "    END%1"
                    "    BLOCK \"VarFileInfo\"%1"
                    "    BEGIN%1"
                    "        VALUE \"Translation\", 0x0409, 1252%1"
                    "    END%1"
                    "END%1%1"
                    "IDR_%5 REGISTRY \"%5.rgs\"%1"
                    "IDR_KVADDINCONNECTION REGISTRY \"KvAddinConnection.rgs\"%1%1"
                    "STRINGTABLE%1"
                    "BEGIN%1"
                    "    IDS_PROJNAME \"%5\"%1"
                    "END%1"
                    "#endif%1%1"
                    "#ifndef APSTUDIO_INVOKED%1"
                    "%2 TYPELIB \"%5.tlb\"%1"
                    "#endif%1",
                    kv::LineEnd(), 1, 2, 3, macroName);
}

} // namespace cppcom
