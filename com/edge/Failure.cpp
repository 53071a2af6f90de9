#include "com/edge/Failure.h"

#include <cstdio>
#include <new>

#include "com/edge/ComObject.h"
#include "com/edge/Wide.h"

namespace tsln::com {
namespace {

constexpr char moduleName[] = "tslnmaint5";

std::string takeText(BSTR& text) {
    std::string taken = fromBstr(text);
    SysFreeString(text);
    text = nullptr;
    return taken;
}

/// Sets the thread's error object, which callers of methods other than IDispatch::Invoke read.
void setErrorObject(const std::string& source, const std::string& text) {
    ComPtr<ICreateErrorInfo> error;
    if (FAILED(CreateErrorInfo(&error))) return;
    error->SetSource(toWide(source).data());
    error->SetDescription(toWide(text).data());
    ComPtr<IErrorInfo> info;
    if (SUCCEEDED(error.As(&info))) SetErrorInfo(0, info.Get());
}

HRESULT tell(const HostError& error, EXCEPINFO* told) {
    // A code of zero or above would mean success to the caller.
    const HRESULT code = error.code() < 0 ? error.code() : E_FAIL;
    const std::string source = error.source().empty() ? moduleName : error.source();
    if (!told) {
        setErrorObject(source, error.text());
        return code;
    }
    *told = {};
    told->scode = code;
    told->bstrSource = newBstr(source);
    told->bstrDescription = newBstr(error.text());
    return DISP_E_EXCEPTION;
}

}  // namespace

std::string textOf(HRESULT result) {
    wchar_t* words = nullptr;
    const DWORD length = FormatMessageW(
        FORMAT_MESSAGE_ALLOCATE_BUFFER | FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
        static_cast<DWORD>(result), 0, reinterpret_cast<wchar_t*>(&words), 0, nullptr);
    std::string text = length ? toUtf8({words, length}) : std::string();
    LocalFree(words);
    while (!text.empty() && (text.back() == '\n' || text.back() == '\r' || text.back() == ' '))
        text.pop_back();
    if (!text.empty()) return text;
    char number[40];
    std::snprintf(number, sizeof number, "Automation error %08lX", static_cast<unsigned long>(result));
    return number;
}

HostError errorOf(HRESULT result, EXCEPINFO& told, const std::string& member) {
    if (result != DISP_E_EXCEPTION) return {result, member, textOf(result)};
    if (told.pfnDeferredFillIn) told.pfnDeferredFillIn(&told);
    std::string source = takeText(told.bstrSource);
    std::string text = takeText(told.bstrDescription);
    takeText(told.bstrHelpFile);
    HRESULT code = told.scode;
    // Some languages of the platform set a 16-bit number instead of a result code.
    if (code == S_OK && told.wCode) code = static_cast<HRESULT>(0x800A0000u | told.wCode);
    if (code >= 0) code = E_FAIL;
    if (source.empty()) source = member;
    if (text.empty()) text = textOf(code);
    return {code, source, text};
}

HRESULT tellException(EXCEPINFO* told) noexcept {
    try {
        try {
            throw;
        } catch (const HostError& error) {
            return tell(error, told);
        } catch (const std::bad_alloc&) {
            return E_OUTOFMEMORY;
        } catch (const std::exception& error) {
            return tell({code::fail, moduleName, error.what()}, told);
        } catch (...) {
            return tell({code::fail, moduleName, "Unknown error."}, told);
        }
    } catch (...) {
        return E_OUTOFMEMORY;  // making the error's texts failed
    }
}

}  // namespace tsln::com
