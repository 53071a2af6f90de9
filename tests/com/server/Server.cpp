#include "tests/com/server/Server.h"

#include <filesystem>

#include <gtest/gtest.h>

#include "com/edge/Wide.h"

namespace tsln::test {
namespace {

/// Closes this program's windows, one modal window after the other. An open modal window would block the test
/// forever.
void closeEverything() {
    for (int i = 0; i < 100; ++i) {
        for (const HWND window : ownInputWindows()) {
            PostMessageW(window, WM_CLOSE, 0, 0);
            PostMessageW(window, WM_COMMAND, IDNO, 0);  // a question has no close box
        }
        Sleep(50);
    }
}

}  // namespace

std::wstring serverFile() {
    wchar_t path[MAX_PATH];
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    return std::filesystem::path(path).parent_path() / L"tslnmaint5.dll";
}

HRESULT callServer(const char* function) {
    const HMODULE module = LoadLibraryW(serverFile().c_str());
    if (!module) return HRESULT_FROM_WIN32(GetLastError());
    const auto call = reinterpret_cast<HRESULT(STDAPICALLTYPE*)()>(
        reinterpret_cast<void*>(GetProcAddress(module, function)));
    const HRESULT result = call ? call() : HRESULT_FROM_WIN32(GetLastError());
    FreeLibrary(module);
    return result;
}

ComPtr<ILibrary> newLibrary() {
    CLSID classId;
    ComPtr<ILibrary> library;
    HRESULT result = CLSIDFromProgID(L"tslnmaint5.Library", &classId);
    if (SUCCEEDED(result))
        result = CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER, IID_PPV_ARGS(&library));
    EXPECT_EQ(S_OK, result);
    return library;
}

HRESULT callByName(IDispatch* object, const std::string& member, std::vector<VARIANT> arguments,
                   VARIANT* result, EXCEPINFO* told, UINT* wrong) {
    std::wstring name = com::toWide(member);
    wchar_t* names[] = {name.data()};
    DISPID id = 0;
    const HRESULT found = object->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id);
    if (FAILED(found)) return found;
    std::reverse(arguments.begin(), arguments.end());
    DISPPARAMS parameters{arguments.data(), nullptr, static_cast<UINT>(arguments.size()), 0};
    return object->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD | DISPATCH_PROPERTYGET,
                          &parameters, result, told, wrong);
}

VARIANT variantOf(LONG value) {
    VARIANT variant;
    VariantInit(&variant);
    V_VT(&variant) = VT_I4;
    V_I4(&variant) = value;
    return variant;
}

VARIANT variantOf(const wchar_t* text) {
    VARIANT variant;
    VariantInit(&variant);
    V_VT(&variant) = VT_BSTR;
    V_BSTR(&variant) = SysAllocString(text);
    return variant;
}

VARIANT missing() {
    VARIANT variant;
    VariantInit(&variant);
    V_VT(&variant) = VT_ERROR;
    V_ERROR(&variant) = DISP_E_PARAMNOTFOUND;
    return variant;
}

std::string errorObject() {
    ComPtr<IErrorInfo> info;
    if (GetErrorInfo(0, &info) != S_OK) return {};
    BSTR source = nullptr;
    BSTR text = nullptr;
    info->GetSource(&source);
    info->GetDescription(&text);
    std::string told = com::fromBstr(source) + ": " + com::fromBstr(text);
    SysFreeString(source);
    SysFreeString(text);
    return told;
}

User::User(std::function<void(WindowDriver&)> acts)
    : thread_([acts = std::move(acts)] {
          WindowDriver driver;
          try {
              acts(driver);
          } catch (const std::exception& error) {
              ADD_FAILURE() << error.what();
              closeEverything();
          }
      }) {}

User::~User() {
    thread_.join();
}

}  // namespace tsln::test
