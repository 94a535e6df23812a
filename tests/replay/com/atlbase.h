// A stand-in of ATL: what the generated server uses, declared. Nothing here runs.
#pragma once

#include <comdef.h>
#include <oleauto.h>
#include <olectl.h>
#include <windows.h>

#define ATL_NO_VTABLE
#define DECLARE_LIBID(id)                                                                                              \
    static const GUID& LibId()                                                                                         \
    {                                                                                                                  \
        return id;                                                                                                     \
    }
#define DECLARE_REGISTRY_APPID_RESOURCEID(resource, id)                                                                \
    static LPCOLESTR GetAppId()                                                                                        \
    {                                                                                                                  \
        return OLESTR(id);                                                                                             \
    }                                                                                                                  \
    static int AppIdResource()                                                                                         \
    {                                                                                                                  \
        return resource;                                                                                               \
    }
#define DECLARE_REGISTRY_RESOURCEID(resource)                                                                          \
    static HRESULT UpdateRegistry(BOOL)                                                                                \
    {                                                                                                                  \
        return (resource) ? S_OK : E_FAIL;                                                                             \
    }
#define DECLARE_PROTECT_FINAL_CONSTRUCT()
// An object of the class is asked for, which a class that leaves a member abstract can't give.
#define OBJECT_ENTRY_AUTO(id, type)                                                                                    \
    const GUID& objectEntry_##type = id;                                                                               \
    typedef ATL::CComObject<type> objectEntryOf_##type;                                                                \
    objectEntryOf_##type* make_##type()                                                                                \
    {                                                                                                                  \
        return new objectEntryOf_##type;                                                                               \
    }
#define BEGIN_COM_MAP(type)                                                                                            \
    typedef type ComMapClass;                                                                                          \
    HRESULT STDMETHODCALLTYPE InternalQuery(REFIID, void** out)                                                        \
    {
#define COM_INTERFACE_ENTRY(face) *out = static_cast<face*>(this);
#define COM_INTERFACE_ENTRY2(face, branch) *out = static_cast<face*>(static_cast<branch*>(this));
#define END_COM_MAP()                                                                                                  \
    return S_OK;                                                                                                       \
    }                                                                                                                  \
    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID id, void** out) override                                           \
    {                                                                                                                  \
        return InternalQuery(id, out);                                                                                 \
    }                                                                                                                  \
    ULONG STDMETHODCALLTYPE AddRef() override                                                                          \
    {                                                                                                                  \
        return 2;                                                                                                      \
    }                                                                                                                  \
    ULONG STDMETHODCALLTYPE Release() override                                                                         \
    {                                                                                                                  \
        return 1;                                                                                                      \
    }
#define BEGIN_SINK_MAP(type)                                                                                           \
    typedef type SinkMapClass;                                                                                         \
    void SinkMap()                                                                                                     \
    {
#define SINK_ENTRY_EX(id, face, event, method)                                                                         \
    {                                                                                                                  \
        void (__stdcall SinkMapClass::*handler)() = &SinkMapClass::method;                                             \
        const GUID& sink = face;                                                                                       \
        (void)handler, (void)sink;                                                                                     \
        static_assert((id) > 0 && (event) > 0, "");                                                                    \
    }
#define END_SINK_MAP() }

namespace ATL
{
template <class T>
struct CAtlDllModuleT
{
    BOOL DllMain(DWORD, LPVOID) { return T::LibId().Data1 != 0 && T::GetAppId() && T::AppIdResource(); }
    HRESULT DllCanUnloadNow() { return S_OK; }
    HRESULT DllGetClassObject(REFCLSID, REFIID, LPVOID*) { return S_OK; }
    HRESULT DllRegisterServer(BOOL = TRUE) { return S_OK; }
    HRESULT DllUnregisterServer(BOOL = TRUE) { return S_OK; }
};

struct CComSingleThreadModel
{
};

template <class T>
struct CComObjectRootEx
{
};

template <class T, const CLSID* id>
struct CComCoClass
{
};

template <class T>
struct CComObject : T
{
};

template <class T, const IID* id, const GUID* library, WORD major = 1, WORD minor = 0>
struct IDispatchImpl : T
{
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return S_OK; }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override
    {
        return S_OK;
    }
};

template <UINT number, class T, const IID* id, const GUID* library, WORD major, WORD minor>
struct IDispEventImpl
{
    HRESULT DispEventAdvise(IUnknown*) { return S_OK; }
    HRESULT DispEventUnadvise(IUnknown*) { return S_OK; }
};
} // namespace ATL
