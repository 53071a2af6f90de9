#include "tests/com/hostile/HostileHost.h"

#include <map>

#include "com/edge/Wide.h"
#include "tests/com/hostile/RandomVariant.h"

namespace tsln::test {
namespace {

constexpr std::size_t longestLog = 60;
constexpr int deepest = 3;      // calls within calls that may still call the module again
constexpr DWORD loopTime = 30;  // milliseconds

HRESULT CALLBACK describeLater(EXCEPINFO* told) {
    told->bstrDescription = SysAllocString(L"An error that is described when it is asked for.");
    told->bstrSource = SysAllocString(L"Host");
    told->scode = E_ACCESSDENIED;
    return S_OK;
}

HRESULT CALLBACK failToDescribe(EXCEPINFO*) {
    return E_FAIL;
}

void runMessageLoop() {
    for (const ULONGLONG end = GetTickCount64() + loopTime; GetTickCount64() < end; Sleep(5)) {
        for (MSG message; PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE);) {
            if (message.message == WM_QUIT) return PostQuitMessage(0);
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }
}

class HostileObject : public com::ComObject<IDispatch> {
  public:
    HostileObject(com::ComPtr<IDispatch> target, Hostility& hostility)
        : target_(std::move(target)), hostility_(hostility) {
        ++hostility_.objects;
    }

    STDMETHODIMP GetTypeInfoCount(UINT*) noexcept override { return E_NOTIMPL; }
    STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) noexcept override { return E_NOTIMPL; }

    STDMETHODIMP GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID locale,
                               DISPID* ids) noexcept override {
        const std::string name = com::toUtf8(names[0]);
        if (hostility_.chance.oneIn(4 * hostility_.oneCallIn)) {
            const HRESULT result = hostility_.chance.of<HRESULT>({DISP_E_UNKNOWNNAME, E_FAIL, S_OK, S_FALSE});
            hostility_.note(name + " is missing");
            ids[0] = hostility_.chance.of<DISPID>({DISPID_UNKNOWN, 99'999, DISPID_VALUE});
            return result;
        }
        const HRESULT result = target_->GetIDsOfNames(iid, names, count, locale, ids);
        if (SUCCEEDED(result)) names_[ids[0]] = name;
        return result;
    }

    STDMETHODIMP Invoke(DISPID id, REFIID iid, LCID locale, WORD flags, DISPPARAMS* parameters,
                        VARIANT* result, EXCEPINFO* told, UINT* wrong) noexcept override {
        const com::ComPtr<IDispatch> alive = this;  // the module may be released within the call
        const auto name = names_.find(id);
        std::string text = name == names_.end() ? "an unknown member" : name->second;
        if (parameters->cArgs > 0 && V_VT(&parameters->rgvarg[parameters->cArgs - 1]) == VT_BSTR) {
            const BSTR first = V_BSTR(&parameters->rgvarg[parameters->cArgs - 1]);
            text += "(" + com::toUtf8(std::wstring(first, SysStringLen(first)).substr(0, 60)) + ")";
        }
        ++hostility_.depth;
        const HRESULT answer = hostility_.chance.oneIn(hostility_.oneCallIn)
                                   ? misbehave(text, id, iid, locale, flags, parameters, result, told, wrong)
                                   : pass(text, id, iid, locale, flags, parameters, result, told, wrong);
        --hostility_.depth;
        return answer;
    }

  private:
    ~HostileObject() override { --hostility_.objects; }

    HRESULT pass(const std::string& text, DISPID id, REFIID iid, LCID locale, WORD flags,
                 DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* told, UINT* wrong) {
        hostility_.note(text);
        const HRESULT answer = target_->Invoke(id, iid, locale, flags, parameters, result, told, wrong);
        if (SUCCEEDED(answer) && result && V_VT(result) == VT_DISPATCH && V_DISPATCH(result))
            V_DISPATCH(result) = makeHostile(com::adopt(V_DISPATCH(result)), hostility_).Detach();
        return answer;
    }

    /// Writes a random value to each variable that the caller passed by reference.
    void overwrite(DISPPARAMS& parameters, RandomVariant& random) {
        for (UINT i = 0; i < parameters.cArgs; ++i) {
            VARIANT& argument = parameters.rgvarg[i];
            switch (V_VT(&argument)) {
                case VT_BYREF | VT_VARIANT:
                    VariantClear(V_VARIANTREF(&argument));
                    random.value(*V_VARIANTREF(&argument));
                    break;
                case VT_BYREF | VT_BSTR:
                    SysFreeString(*V_BSTRREF(&argument));
                    *V_BSTRREF(&argument) = random.text();
                    break;
                case VT_BYREF | VT_I4:
                    *V_I4REF(&argument) = hostility_.chance.of<LONG>({-1, 0, 99'999});
                    break;
                case VT_BYREF | VT_BOOL:
                    *V_BOOLREF(&argument) = 7;
                    break;
                default:
                    break;
            }
        }
    }

    HRESULT misbehave(const std::string& text, DISPID id, REFIID iid, LCID locale, WORD flags,
                      DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* told, UINT* wrong) {
        Random& chance = hostility_.chance;
        RandomVariant random(chance, [this] { return makeHostile(target_, hostility_); });
        const auto goOn = [&](const char* what) {
            hostility_.note(text + ": " + what);
            return pass(text, id, iid, locale, flags, parameters, result, told, wrong);
        };
        switch (chance.below(16)) {
            case 0:
                hostility_.note(text + ": raises");
                if (told) {
                    told->scode =
                        chance.of<SCODE>({E_FAIL, 0, DISP_E_TYPEMISMATCH, RPC_E_DISCONNECTED, S_OK});
                    told->wCode = chance.oneIn(4) ? 1001 : 0;
                    told->bstrSource = random.text();
                    told->bstrDescription = random.text();
                }
                return DISP_E_EXCEPTION;
            case 1:
                hostility_.note(text + ": raises with a description for later");
                if (told) told->pfnDeferredFillIn = chance.oneIn(2) ? describeLater : failToDescribe;
                return DISP_E_EXCEPTION;
            case 2:
                hostility_.note(text + ": fails");
                return chance.of<HRESULT>({E_FAIL, E_OUTOFMEMORY, DISP_E_MEMBERNOTFOUND, DISP_E_BADPARAMCOUNT,
                                           RPC_E_SERVERFAULT, E_NOTIMPL, DISP_E_EXCEPTION});
            case 3:
                hostility_.note(text + ": answers nothing");
                return chance.of<HRESULT>({S_OK, S_FALSE});
            case 4:
            case 5:
            case 6:
            case 7:
                if (result) random.value(*result);
                hostility_.note(text + ": answers type " +
                                (result ? std::to_string(V_VT(result)) : "of none"));
                return S_OK;
            case 8: {
                const HRESULT answer = goOn("overwrites its arguments");
                overwrite(*parameters, random);
                return answer;
            }
            case 9:
                hostility_.note(text + ": shows a window");
                MessageBoxW(nullptr, L"A message of the host", L"Host", MB_YESNOCANCEL | MB_TASKMODAL);
                return goOn("after its window");
            case 10:
            case 11:
                hostility_.note(text + ": runs its message loop");
                runMessageLoop();
                return goOn("after its message loop");
            case 12:
            case 13:
                if (hostility_.depth > deepest) break;
                hostility_.note(text + ": calls the module");
                hostility_.callLibrary();
                return goOn("after a call to the module");
            case 14:
                if (!chance.oneIn(4)) break;
                hostility_.note(text + ": releases the module");
                hostility_.releaseLibrary();
                return goOn("after releasing the module");
            default:
                if (!chance.oneIn(4)) break;
                PostQuitMessage(0);
                return goOn("ends");
        }
        return pass(text, id, iid, locale, flags, parameters, result, told, wrong);
    }

    com::ComPtr<IDispatch> target_;
    Hostility& hostility_;
    std::map<DISPID, std::string> names_;
};

}  // namespace

void Hostility::note(std::string what) {
    log.push_back(std::string(2 * static_cast<std::size_t>(depth), ' ') + std::move(what));
    if (log.size() > longestLog) log.pop_front();
}

com::ComPtr<IDispatch> makeHostile(com::ComPtr<IDispatch> target, Hostility& hostility) {
    return com::adopt<IDispatch>(new HostileObject(std::move(target), hostility));
}

}  // namespace tsln::test
