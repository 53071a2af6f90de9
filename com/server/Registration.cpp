#include "com/server/Registration.h"

#include <vector>

#include "com/edge/Failure.h"
#include "com/server/Identity.h"
#include "com/server/TypeLibrary.h"

namespace tsln::com {
namespace {

std::wstring braced(REFGUID id) {
    wchar_t text[40];
    StringFromGUID2(id, text, 40);
    return text;
}

/// A registry value below HKEY_CLASSES_ROOT; an empty name means the key's default value.
struct Entry {
    std::wstring key;
    std::wstring name;
    std::wstring value;
};

std::wstring classKey() {
    return L"CLSID\\" + braced(__uuidof(::Library));
}

std::vector<Entry> entries() {
    const std::wstring key = classKey();
    const std::wstring version = std::to_wstring(majorVersion) + L"." + std::to_wstring(minorVersion);
    return {
        {programId, {}, description},
        {std::wstring(programId) + L"\\CLSID", {}, braced(__uuidof(::Library))},
        {key, {}, description},
        {key + L"\\InprocServer32", {}, modulePath()},
        {key + L"\\InprocServer32", L"ThreadingModel", L"Apartment"},
        {key + L"\\ProgID", {}, programId},
        {key + L"\\Programmable", {}, {}},
        {key + L"\\TypeLib", {}, braced(LIBID_tslnmaint5)},
        {key + L"\\Version", {}, version},
    };
}

LSTATUS write(const Entry& entry) {
    HKEY key = nullptr;
    LSTATUS status = RegCreateKeyExW(HKEY_CLASSES_ROOT, entry.key.c_str(), 0, nullptr, 0, KEY_WRITE, nullptr,
                                     &key, nullptr);
    if (status != ERROR_SUCCESS) return status;
    const auto* bytes = reinterpret_cast<const BYTE*>(entry.value.c_str());
    const auto size = static_cast<DWORD>((entry.value.size() + 1) * sizeof(wchar_t));
    status = RegSetValueExW(key, entry.name.empty() ? nullptr : entry.name.c_str(), 0, REG_SZ, bytes, size);
    RegCloseKey(key);
    return status;
}

}  // namespace

std::wstring modulePath() {
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length = GetModuleFileNameW(thisModule(), path.data(), static_cast<DWORD>(path.size()));
        if (length < path.size()) {
            path.resize(length);
            return path;
        }
        path.resize(path.size() * 2);
    }
}

HRESULT registerServer() noexcept {
    const HRESULT result = guarded(
        []() -> HRESULT {
            for (const Entry& entry : entries()) {
                if (const LSTATUS status = write(entry); status != ERROR_SUCCESS)
                    return HRESULT_FROM_WIN32(static_cast<DWORD>(status));
            }
            return registerTypeLibrary();
        },
        nullptr);
    if (FAILED(result)) unregisterServer();
    return result;
}

HRESULT unregisterServer() noexcept {
    return guarded(
        []() -> HRESULT {
            HRESULT first = unregisterTypeLibrary();
            for (const std::wstring& key : {std::wstring(programId), classKey()}) {
                const LSTATUS status = RegDeleteTreeW(HKEY_CLASSES_ROOT, key.c_str());
                if (status != ERROR_SUCCESS && status != ERROR_FILE_NOT_FOUND && SUCCEEDED(first))
                    first = HRESULT_FROM_WIN32(static_cast<DWORD>(status));
            }
            return first;
        },
        nullptr);
}

}  // namespace tsln::com
