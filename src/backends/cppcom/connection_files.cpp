// The class that connects a C++ COM macro to the application, and the class of its command.
#include "backends/cppcom/project_texts.h"
#include "backends/text/fill.h"

namespace cppcom
{

QString ConnectionHeader(const QString& macroName)
{
    // The name behind #endif isn't that of the guard; the format's. The application holds on to its active document,
    // so that a plain pointer to it is safe to hand on.
    return kv::Fill("#ifndef _KVADDIN_CONNECTION_H_%2"
                    "#define _KVADDIN_CONNECTION_H_%2%2"
                    "#include \"resource.h\"%2"
                    "#include \"%1_i.h\"%2"
                    "#include \"%1.h\"%2%2"
                    "class ATL_NO_VTABLE CKvAddinConnection :%2"
                    "    public CComObjectRootEx<CComSingleThreadModel>,%2"
                    "    public CComCoClass<CKvAddinConnection, &CLSID_KvAddinConnection>,%2"
                    "    public IDispatchImpl<IKvAddinConnection, &IID_IKvAddinConnection, &LIBID_%1Lib, "
                    "/*wMajor =*/ 1, /*wMinor =*/ 0>,%2"
                    "    public IDispatchImpl<IKvAddin, &__uuidof(IKvAddin), &LIBID_KvAddinLib, /* wMajor = */ 1>,%2"
                    "    public IDispEventImpl<IDC_KVAPPLICATIONEVENT,CKvAddinConnection, &DIID__IApplicationEvents, "
                    "&LIBID_Morvane, 1, 0>%2"
                    "{%2"
                    "public:%2"
                    "    CKvAddinConnection();%2%2"
                    "    DECLARE_REGISTRY_RESOURCEID(IDR_KVADDINCONNECTION)%2%2"
                    "    BEGIN_COM_MAP(CKvAddinConnection)%2"
                    "        COM_INTERFACE_ENTRY(IKvAddinConnection)%2"
                    "        COM_INTERFACE_ENTRY2(IDispatch, IKvAddinConnection)%2"
                    "        COM_INTERFACE_ENTRY(IKvAddin)%2"
                    "    END_COM_MAP()%2%2"
                    "    BEGIN_SINK_MAP(CKvAddinConnection)%2"
                    "    END_SINK_MAP()%2%2"
                    "    DECLARE_PROTECT_FINAL_CONSTRUCT()%2%2"
                    "    HRESULT FinalConstruct()%2"
                    "    {%2"
                    "        return S_OK;%2"
                    "    }%2%2"
                    "    void FinalRelease()%2"
                    "    {%2"
                    "    }%2%2"
                    "    // IKvAddin%2"
                    "    HRESULT STDMETHODCALLTYPE ConnectToMorvane(LPDISPATCH KvApp, long Cookie, "
                    "VARIANT_BOOL * IsConnected)%2"
                    "    {%2"
                    "        m_KvApp = KvApp;%2"
                    "        DispEventAdvise( m_KvApp );%2"
                    "        *IsConnected = VARIANT_TRUE;%2%2"
                    "        LPOLESTR classId = NULL;%2"
                    "        StringFromCLSID( CLSID_KvAddinConnection, &classId );%2"
                    "        m_sApiUuid = SysAllocString( classId );%2"
                    "        CoTaskMemFree( classId );%2%2"
                    "        kvCreateCommandError_e commandErr;%2"
                    "        ICommandPtr kvCommand = m_KvApp->CreateCommand( m_sApiUuid, L\"%1\", &commandErr );%2"
                    "        if ( kvCreateCommand_Succeeded == commandErr )%2"
                    "        {%2"
                    "            m_MacroCommand = new KvMacroCommand( kvCommand );%2"
                    "        }%2"
                    "        return S_OK;%2"
                    "    }%2%2"
                    "    HRESULT STDMETHODCALLTYPE DisconnectFromMorvane(VARIANT_BOOL * IsDisconnected)%2"
                    "    {%2"
                    "        delete m_MacroCommand;%2"
                    "        m_MacroCommand = NULL;%2"
                    "        m_KvApp->RemoveUserInterface( m_sApiUuid );%2"
                    "        SysFreeString( m_sApiUuid );%2"
                    "        m_sApiUuid = NULL;%2"
                    "        DispEventUnadvise( m_KvApp );%2"
                    "        *IsDisconnected = VARIANT_TRUE;%2"
                    "        return S_OK;%2"
                    "    }%2%2"
                    "    IDocument* GetActiveDocument()%2"
                    "    {%2"
                    "        return (IDocument*)m_KvApp->GetActiveDocument();%2"
                    "    }%2%2"
                    "    IApplicationPtr m_KvApp;%2%2"
                    "private:%2"
                    "    BSTR m_sApiUuid;%2"
                    "    KvMacroCommand* m_MacroCommand;%2"
                    "};%2%2"
                    "CKvAddinConnection* getMacroApp();%2%2"
                    "#endif KVADDIN_CONNECTION_H_%2",
                    macroName, kv::LineEnd());
}

QString ConnectionSource()
{
    return kv::Fill("#include \"stdafx.h\"%1"
                    "#include \"KvAddinConnection.h\"%1%1"
                    "OBJECT_ENTRY_AUTO(CLSID_KvAddinConnection, CKvAddinConnection)%1%1"
                    "static CKvAddinConnection* macroApp = NULL;%1%1"
                    "CKvAddinConnection::CKvAddinConnection(): m_sApiUuid( NULL ), m_MacroCommand( NULL )%1"
                    "{%1"
                    "    macroApp = this;%1"
                    "}%1%1"
                    "CKvAddinConnection* getMacroApp()%1"
                    "{%1"
                    "    return macroApp;%1"
                    "}%1",
                    kv::LineEnd());
}

QString CommandHeader()
{
    return kv::Fill("#pragma once%1%1"
                    "#include \"resource.h\"%1%1"
                    "class KvMacroCommand :%1"
                    "    public IDispEventImpl<IDR_KVADDINCOMMAND, KvMacroCommand, &DIID__ICommandEvents, "
                    "&LIBID_Morvane, 1, 0>%1"
                    "{%1"
                    "public:%1"
                    "    KvMacroCommand( ICommand* kvCommand );%1"
                    "    ~KvMacroCommand();%1%1"
                    "    BEGIN_SINK_MAP(KvMacroCommand)%1"
                    "        SINK_ENTRY_EX(IDR_KVADDINCOMMAND, DIID__ICommandEvents, 1, OnExecuteNotify)%1"
                    "    END_SINK_MAP()%1%1"
                    "    void __stdcall OnExecuteNotify();%1%1"
                    "private:%1"
                    "    ICommandPtr m_KvCommand;%1"
                    "};%1",
                    kv::LineEnd());
}

} // namespace cppcom
