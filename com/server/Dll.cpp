// The exported functions of the module: class object, unloading and registration.

#include "com/edge/Failure.h"
#include "com/server/ClassFactory.h"
#include "com/server/Identity.h"
#include "com/server/Registration.h"

namespace {

HINSTANCE moduleInstance = nullptr;

}  // namespace

namespace tsln::com {

HINSTANCE thisModule() noexcept {
    return moduleInstance;
}

}  // namespace tsln::com

using namespace tsln::com;

BOOL WINAPI DllMain(HINSTANCE instance, DWORD reason, LPVOID) {
    if (reason == DLL_PROCESS_ATTACH) {
        moduleInstance = instance;
        DisableThreadLibraryCalls(instance);
    }
    return TRUE;
}

STDAPI DllGetClassObject(REFCLSID classId, REFIID iid, LPVOID* out) {
    if (!out) return E_POINTER;
    *out = nullptr;
    if (classId != __uuidof(::Library)) return CLASS_E_CLASSNOTAVAILABLE;
    return guarded(
        [&]() -> HRESULT { return adopt<IClassFactory>(new ClassFactory)->QueryInterface(iid, out); },
        nullptr);
}

STDAPI DllCanUnloadNow() {
    return moduleReferences() == 0 ? S_OK : S_FALSE;
}

STDAPI DllRegisterServer() {
    return registerServer();
}

STDAPI DllUnregisterServer() {
    return unregisterServer();
}
