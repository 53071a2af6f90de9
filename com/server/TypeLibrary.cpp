#include "com/server/TypeLibrary.h"

#include "com/edge/ComObject.h"
#include "com/edge/Failure.h"
#include "com/server/Identity.h"
#include "com/server/Registration.h"

namespace tsln::com {
namespace {

#ifdef _WIN64
constexpr SYSKIND thisSystem = SYS_WIN64;
#else
constexpr SYSKIND thisSystem = SYS_WIN32;
#endif

HRESULT loadFromModule(ITypeLib** library) {
    return LoadTypeLibEx(modulePath().c_str(), REGKIND_NONE, library);
}

}  // namespace

HRESULT loadInterfaceInfo(ITypeInfo** info) noexcept {
    return guarded(
        [&]() -> HRESULT {
            ComPtr<ITypeLib> library;
            const HRESULT result = loadFromModule(&library);
            return FAILED(result) ? result : library->GetTypeInfoOfGuid(__uuidof(ILibrary), info);
        },
        nullptr);
}

HRESULT registerTypeLibrary() noexcept {
    return guarded(
        []() -> HRESULT {
            ComPtr<ITypeLib> library;
            const HRESULT result = loadFromModule(&library);
            if (FAILED(result)) return result;
            std::wstring path = modulePath();
            return RegisterTypeLib(library.Get(), path.data(), nullptr);
        },
        nullptr);
}

HRESULT unregisterTypeLibrary() noexcept {
    // UnRegisterTypeLib answers differently on different systems for a library that is not registered.
    BSTR path = nullptr;
    if (FAILED(QueryPathOfRegTypeLib(LIBID_tslnmaint5, majorVersion, minorVersion, 0, &path))) return S_OK;
    SysFreeString(path);
    return UnRegisterTypeLib(LIBID_tslnmaint5, majorVersion, minorVersion, 0, thisSystem);
}

}  // namespace tsln::com
