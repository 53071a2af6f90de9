#include "com/edge/ObjectDispatch.h"

#include <algorithm>
#include <map>
#include <mutex>

#include "com/edge/Conversion.h"
#include "com/edge/Failure.h"
#include "com/edge/ReceivedArguments.h"
#include "com/edge/Wide.h"

namespace tsln::com {
namespace {

const char moduleTag = 0;  // only its address is used

/// The numbers of member names. All objects of the module share them.
class MemberNames {
  public:
    DISPID idOf(const std::string& name) {
        std::string key = name;
        std::ranges::transform(key, key.begin(),
                               [](char c) { return c >= 'A' && c <= 'Z' ? char(c + ('a' - 'A')) : c; });
        const std::lock_guard lock(mutex_);
        const auto [at, isNew] = ids_.try_emplace(key, static_cast<DISPID>(names_.size() + 1));
        if (isNew) names_.push_back(name);
        return at->second;
    }
    /// The name of the number; empty when there is no such number.
    std::string nameOf(DISPID id) {
        const std::lock_guard lock(mutex_);
        return id >= 1 && static_cast<std::size_t>(id) <= names_.size()
                   ? names_[static_cast<std::size_t>(id) - 1]
                   : std::string();
    }

  private:
    std::mutex mutex_;  // apartments are single-threaded, but there may be several
    std::map<std::string, DISPID> ids_;
    std::vector<std::string> names_;
};

MemberNames& memberNames() {
    static MemberNames names;
    return names;
}

Access accessOf(WORD flags) {
    if (flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) return Access::Put;
    return flags & DISPATCH_METHOD ? Access::Call : Access::Get;
}

}  // namespace

ObjectPtr ObjectDispatch::objectOf(IDispatch* dispatch) {
    ComPtr<IOwnObject> own;
    if (FAILED(dispatch->QueryInterface(IID_PPV_ARGS(&own)))) return nullptr;
    void* object = own->ownObject(&moduleTag);
    return object ? static_cast<ObjectDispatch*>(object)->object_ : nullptr;
}

void* ObjectDispatch::ownObject(const void* tag) noexcept {
    return tag == &moduleTag ? this : nullptr;
}

STDMETHODIMP ObjectDispatch::GetTypeInfoCount(UINT* count) noexcept {
    if (!count) return E_POINTER;
    *count = 0;
    return S_OK;
}

STDMETHODIMP ObjectDispatch::GetTypeInfo(UINT, LCID, ITypeInfo** info) noexcept {
    if (info) *info = nullptr;
    return DISP_E_BADINDEX;
}

STDMETHODIMP ObjectDispatch::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) noexcept {
    if (!names || !ids || count == 0) return E_INVALIDARG;
    return guarded(
        [&]() -> HRESULT {
            ids[0] = memberNames().idOf(toUtf8(names[0]));
            std::fill(ids + 1, ids + count, DISPID_UNKNOWN);  // the arguments have no names
            return count == 1 ? S_OK : DISP_E_UNKNOWNNAME;
        },
        nullptr);
}

STDMETHODIMP ObjectDispatch::Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* parameters,
                                    VARIANT* result, EXCEPINFO* told, UINT*) noexcept {
    if (result) VariantInit(result);
    if (!parameters) return E_INVALIDARG;
    return guarded(
        [&]() -> HRESULT {
            const std::string member = memberNames().nameOf(id);
            if (member.empty()) return DISP_E_MEMBERNOTFOUND;
            const ObjectPtr object = object_;  // the call may release this
            ReceivedArguments received(*parameters);
            OwnedVariant answer;
            toCom(object->invoke(member, accessOf(flags), received.arguments()), *answer);
            received.writeBack();
            if (result) std::swap(*result, *answer);
            return S_OK;
        },
        told);
}

}  // namespace tsln::com
