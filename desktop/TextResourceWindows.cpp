#ifdef _WIN32
#include <windows.h>
#include <wx/string.h>

#include "desktop/Text.h"
#include "desktop/TextResource.h"

namespace tsln::desktop {
namespace {

constexpr wchar_t resourceType[] = L"CUSTOM";
constexpr char ofThisModule = 0;  // an address within the module

}  // namespace

std::optional<std::string> findTextResource(std::string_view name) {
    HMODULE module = nullptr;
    if (!GetModuleHandleExW(
            GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
            reinterpret_cast<LPCWSTR>(&ofThisModule), &module))
        return std::nullopt;
    const HRSRC resource = FindResourceW(module, toWx(name).wc_str(), resourceType);
    const HGLOBAL loaded = resource ? LoadResource(module, resource) : nullptr;
    const void* const bytes = loaded ? LockResource(loaded) : nullptr;
    if (!bytes) return std::nullopt;
    return std::string(static_cast<const char*>(bytes), SizeofResource(module, resource));
}

}  // namespace tsln::desktop
#endif
