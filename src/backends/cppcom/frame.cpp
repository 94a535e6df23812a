// C++ COM texts of the macro's frame, of blocks and of declarations.
#include "backends/cppcom/converter.h"
#include "backends/cppcom/identity.h"
#include "backends/cppcom/object.h"
#include "core/recording_start.h"

namespace
{

// Leaves the macro with a message when an object is missing.
QString ObjectTest(const char* variable, const char* message)
{
    return QLatin1String("    if ( NULL == ") + QLatin1String(variable) +
           QLatin1String(" )%1"
                         "    {%1"
                         "        MessageBox( NULL, L\"") +
           QLatin1String(message) +
           QLatin1String("\", L\"title\", MB_OK );%1"
                         "        return;%1"
                         "    }%1%1");
}

QString SketchManagerTest()
{
    return ObjectTest("kvSketchManager", "Failed to get a sketch manager of the current document.");
}

QString SheetTest()
{
    return ObjectTest("kvSheet", "Failed to get a paper space of the current document.");
}

// The server around the macro, up to the macro's first statements.
QString ModuleText()
{
    return QStringLiteral("#include \"stdafx.h\"%1"
                          "#include \"resource.h\"%1"
                          "#include \"%2_i.h\"%1"
                          "#include \"%2.h\"%1"
                          "#include \"smartvars.h\"%1"
                          "#include \"typeconverter.h\"%1"
                          "#include \"KvAddinConnection.h\"%1"
                          "#include \"math.h\"%1%1"
                          "class C%2Module : public CAtlDllModuleT< C%2Module >%1"
                          "{%1"
                          "public :%1"
                          "    DECLARE_LIBID(LIBID_%2Lib)%1"
                          "    DECLARE_REGISTRY_APPID_RESOURCEID(IDR_%2, \"%3\")%1"
                          "};%1%1"
                          "C%2Module _AtlModule;%1"
                          "#ifdef _MANAGED%1"
                          "#pragma managed(push, off)%1"
                          "#endif%1%1"
                          "// DLL Entry Point%1"
                          "extern \"C\" BOOL WINAPI DllMain(HINSTANCE hInstance, DWORD dwReason, LPVOID lpReserved)%1"
                          "{%1"
                          "    hInstance;%1"
                          "    return _AtlModule.DllMain(dwReason, lpReserved);%1"
                          "}%1%1"
                          "#ifdef _MANAGED%1"
                          "#pragma managed(pop)%1"
                          "#endif%1%1"
                          "// Used to determine whether the DLL can be unloaded by OLE%1"
                          "STDAPI DllCanUnloadNow(void)%1"
                          "{%1"
                          "    return _AtlModule.DllCanUnloadNow();%1"
                          "}%1%1"
                          "// Returns a class factory to create an object of the requested type%1"
                          "STDAPI DllGetClassObject(REFCLSID rclsid, REFIID riid, LPVOID* ppv)%1"
                          "{%1"
                          "    return _AtlModule.DllGetClassObject(rclsid, riid, ppv);%1"
                          "}%1%1"
                          "// DllRegisterServer - Adds entries to the system registry%1"
                          "STDAPI DllRegisterServer(void)%1"
                          "{%1"
                          "    // registers object, typelib and all interfaces in typelib%1"
                          "    return _AtlModule.DllRegisterServer();%1"
                          "}%1%1"
                          "// DllUnregisterServer - Removes entries from the system registry%1"
                          "STDAPI DllUnregisterServer(void)%1"
                          "{%1"
                          "    return _AtlModule.DllUnregisterServer();%1"
                          "}%1%1"
                          "KvMacroCommand::KvMacroCommand( ICommand* kvCommand ): m_KvCommand( kvCommand )%1"
                          "{%1"
                          "    IUnknown* kvUnk = NULL ;%1"
                          "    HRESULT hr = m_KvCommand->QueryInterface(IID_IUnknown, (void **) &kvUnk);%1"
                          "    hr = DispEventAdvise(kvUnk);%1"
                          "}%1%1"
                          "KvMacroCommand::~KvMacroCommand()%1"
                          "{%1"
                          "    DispEventUnadvise( m_KvCommand );%1"
                          "}%1%1"
                          "void __stdcall KvMacroCommand::OnExecuteNotify()%1"
                          "{%1"
                          "    CKvAddinConnection* pConnection = getMacroApp();%1%1");
}

} // namespace

CZtConverterKVAPICPPCOM::CZtConverterKVAPICPPCOM(std::int32_t recordingMode) : TextOperations(recordingMode)
{
    ServerIdentity::OfProcess() = {ServerIdentity::NewId(), ServerIdentity::NewId()};
    SetObjectConverter(std::make_unique<CZtConverterKVAPIObjectCPPCOM>(this));
}

QString CZtConverterKVAPICPPCOM::WriteMacroHeader(const QString& macroName, bool /*hasSysVarChanged*/)
{
    const RecordingStart& start = RecordingStart::Current();
    QString text = ModuleText();
    text += QStringLiteral("    //Get active document%1"
                           "    IDocumentPtr kvDoc ( pConnection->GetActiveDocument() );%1");
    text += ObjectTest("kvDoc", "Failed to get current document.");
    text += QStringLiteral("    IModelPtr kvModel( kvDoc->GetModel() );%1");
    text += ObjectTest("kvModel", "Failed to get a model space of the current document.");
    text += QStringLiteral("    ISketchManagerPtr kvSketchManager;%1");
    if (start.RecordingStartsInModel)
    {
        text += QStringLiteral("    //Get sketch manager%1"
                               "    kvSketchManager = kvModel->GetSketchManager();%1");
        text += SketchManagerTest();
    }
    text += QStringLiteral("    _variant_t pVariantArray = kvDoc->GetSheets();%1"
                           "    ISheetPtr *kvSheetArrays = NULL;%1"
                           "    int count = 0;%1"
                           "    TypeConverter::convertVariantArrayToPtrArray<ISheetPtr, ISheet>( pVariantArray, "
                           "kvSheetArrays, count );%1"
                           "    ISheetPtr kvSheet = kvSheetArrays[1];%1");
    text += SheetTest();
    const bool startsOnSheet = !start.RecordingStartsInModel && !start.RecordingStartSheet.isEmpty();
    if (startsOnSheet)
    {
        text += QStringLiteral("    kvSheet = NULL;%1"
                               "    kvSheet = kvDoc->GetSheet(L\"%4\");%1");
        text += SheetTest();
        text += QStringLiteral("    kvSheet->Activate();%1%1"
                               "    //Get sketch manager%1"
                               "    kvSketchManager = kvSheet->GetSketchManager();%1");
        text += SketchManagerTest();
    }
    text += QStringLiteral("    //Get selection manager object%1"
                           "    ISelectionManagerPtr kvSelManager( kvDoc->GetSelectionManager() );%1");
    text += ObjectTest("kvSelManager", "Failed to get selection manager of the current document.");
    text += QStringLiteral("    //Get view manager%1"
                           "    IViewManagerPtr kvViewManager( kvDoc->GetViewManager() );%1");
    text += ObjectTest("kvViewManager", "Failed to get a view manager of the current document.");
    Counters().IndentLevel += 1;
    text = kv::FillChain(text, kv::LineEnd(), macroName, ServerIdentity::NewId());
    return startsOnSheet ? kv::FillChain(text, start.RecordingStartSheet.text()) : text;
}

QString CZtConverterKVAPICPPCOM::WriteMacroFooter()
{
    Counters().IndentLevel -= 1;
    return kv::Fill("}%1%1", kv::LineEnd());
}

QString CZtConverterKVAPICPPCOM::WriteBlockBegin()
{
    QString text = Statement("%1{%2");
    Counters().IndentLevel += 1;
    return text;
}

QString CZtConverterKVAPICPPCOM::WriteBlockEnd()
{
    Counters().IndentLevel -= 1;
    return Statement("%1}%2");
}

QString CZtConverterKVAPICPPCOM::WriteDeclareVariable(const QString& typeName, const QString& stem, std::int32_t number)
{
    QString text = Statement("%1I%5Ptr %3%4;%2", stem, number, typeName);
    return text.replace(QLatin1String("IVARIANTPtr"), QLatin1String("VARIANT"));
}
