#include "com/server/LibraryClass.h"

#include "com/edge/Conversion.h"
#include "com/edge/Failure.h"
#include "com/edge/Wide.h"
#include "com/server/FrontEnd.h"
#include "com/server/LateCall.h"
#include "com/server/TypeLibrary.h"

namespace tsln::com {
namespace {

// By slot -----------------------------------------------------------------------------------------

/// The type of an argument of a slot, and its variant type, for a type of the operation table.
template <ValueType>
struct Native;
template <>
struct Native<ValueType::Boolean> {
    using Type = VARIANT_BOOL;
    static constexpr VARTYPE variantType = VT_BOOL;
};
/// Read and written as a number, so that all its bits pass.
template <>
struct Native<ValueType::Flag> {
    using Type = VARIANT_BOOL;
    static constexpr VARTYPE variantType = VT_I2;
};
template <>
struct Native<ValueType::Integer> {
    using Type = SHORT;
    static constexpr VARTYPE variantType = VT_I2;
};
template <>
struct Native<ValueType::Long> {
    using Type = LONG;
    static constexpr VARTYPE variantType = VT_I4;
};
template <>
struct Native<ValueType::String> {
    using Type = BSTR;
    static constexpr VARTYPE variantType = VT_BSTR;
};
template <>
struct Native<ValueType::Variant> {
    using Type = VARIANT;
    static constexpr VARTYPE variantType = VT_VARIANT;
};
template <>
struct Native<ValueType::Object> {
    using Type = IDispatch*;
    static constexpr VARTYPE variantType = VT_DISPATCH;
};
template <ValueType type>
using ByValue = typename Native<type>::Type;
template <ValueType type>
using ByReference = typename Native<type>::Type*;

/// The variant of a slot's argument that is passed by reference. It refers to the caller's variable.
template <ValueType type>
VARIANT passed(ByReference<type> variable) {
    VARIANT argument;
    VariantInit(&argument);
    V_VT(&argument) = static_cast<VARTYPE>(Native<type>::variantType | VT_BYREF);
    V_BYREF(&argument) = variable;
    return argument;
}

/// The variant of a slot's argument that is passed by value.
template <ValueType type>
VARIANT passed(ByValue<type> value) {
    static_assert(type == ValueType::Long, "the table passes numbers by value only");
    VARIANT argument;
    VariantInit(&argument);
    V_VT(&argument) = VT_I4;
    V_I4(&argument) = value;
    return argument;
}

void answer(const Variant& value, VARIANT_BOOL* result) {
    *result = value.toBoolean() ? VARIANT_TRUE : VARIANT_FALSE;
}
void answer(const Variant& value, LONG* result) {
    *result = value.toLong();
}
void answer(const Variant& value, IDispatch** result) {
    *result = newDispatch(value.toObject());
}

// By name -----------------------------------------------------------------------------------------

// A member's number is its row in the operation table, from 1. The number 0 is reserved for the default
// member.
DISPID idOf(Operation operation) {
    return static_cast<DISPID>(operation) + 1;
}

/// The public operation of that number.
std::optional<Operation> operationOf(DISPID id) {
    if (id < 1 || static_cast<std::size_t>(id) > operations.size()) return {};
    const OperationInfo& row = operations[static_cast<std::size_t>(id) - 1];
    if (row.visibility != Visibility::Public) return {};
    return row.operation;
}

std::optional<DISPID> argumentId(const OperationInfo& row, const std::string& name) {
    for (std::size_t i = 0; i < row.argumentCount; ++i) {
        if (sameName(row.argumentRow[i].name, name)) return static_cast<DISPID>(i);
    }
    return {};
}

// The class ---------------------------------------------------------------------------------------

class LibraryClass : public ComObject<ILibrary, ISupportErrorInfo> {
  public:
    explicit LibraryClass(const std::function<void(tsln::Library&)>& plugIn)
        : frontEnd_(FrontEnd::shared()), library_(std::make_shared<tsln::Library>(frontEnd_->desktop())) {
        plugIn(*library_);
    }

// A slot for every row of the table. An argument is a triple that PARAMETER declares and PASSED reads.
#define REF(TYPE, NAME) (ByReference, TYPE, NAME)
#define VAL(TYPE, NAME) (ByValue, TYPE, NAME)
#define PARAMETER(PASSING, TYPE, NAME) PASSING<ValueType::TYPE> NAME
#define PASSED(PASSING, TYPE, NAME) passed<ValueType::TYPE>(NAME)
#define EACH_0(WHAT)
#define EACH_1(WHAT, A) WHAT A
#define EACH_2(WHAT, A, B) WHAT A, WHAT B
#define EACH_3(WHAT, A, B, C) WHAT A, WHAT B, WHAT C
#define PICK(A, B, C, N, ...) EACH_##N
#define EACH(WHAT, ...) PICK(__VA_ARGS__ __VA_OPT__(, ) 3, 2, 1, 0)(WHAT __VA_OPT__(, ) __VA_ARGS__)
#define RESULT_None(...)
#define RESULT_Boolean(...) __VA_OPT__(, ) VARIANT_BOOL* result
#define RESULT_Long(...) __VA_OPT__(, ) LONG* result
#define RESULT_Object(...) __VA_OPT__(, ) IDispatch** result
#define ANSWER_None nullptr
#define ANSWER_Boolean result
#define ANSWER_Long result
#define ANSWER_Object result
#define SLOT(METHOD, NAME, VISIBILITY, RESULT, ...)                                                    \
    STDMETHODIMP METHOD(EACH(PARAMETER, __VA_ARGS__) RESULT_##RESULT(__VA_ARGS__)) noexcept override { \
        return callSlot(Operation::NAME, {EACH(PASSED, __VA_ARGS__)}, ANSWER_##RESULT);                \
    }
#define OPERATION(NAME, ...) SLOT(NAME, NAME, __VA_ARGS__)
#define PROPERTY(NAME, ...) SLOT(get_##NAME, NAME, __VA_ARGS__)
#include "bridge/Operations.def"
#undef PROPERTY
#undef OPERATION
#undef SLOT
#undef ANSWER_Object
#undef ANSWER_Long
#undef ANSWER_Boolean
#undef ANSWER_None
#undef RESULT_Object
#undef RESULT_Long
#undef RESULT_Boolean
#undef RESULT_None
#undef EACH
#undef PICK
#undef EACH_3
#undef EACH_2
#undef EACH_1
#undef EACH_0
#undef PASSED
#undef PARAMETER
#undef VAL
#undef REF

    STDMETHODIMP GetTypeInfoCount(UINT* count) noexcept override {
        if (!count) return E_POINTER;
        *count = 1;
        return S_OK;
    }

    STDMETHODIMP GetTypeInfo(UINT index, LCID, ITypeInfo** info) noexcept override {
        if (!info) return E_POINTER;
        *info = nullptr;
        return index == 0 ? loadInterfaceInfo(info) : DISP_E_BADINDEX;
    }

    STDMETHODIMP GetIDsOfNames(REFIID reserved, LPOLESTR* names, UINT count, LCID,
                               DISPID* ids) noexcept override {
        if (reserved != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
        if (!names || !ids || count == 0) return E_INVALIDARG;
        std::fill(ids, ids + count, DISPID_UNKNOWN);
        return guarded(
            [&]() -> HRESULT {
                const auto operation = findOperation(toUtf8(names[0]));
                if (!operation || info(*operation).visibility != Visibility::Public)
                    return DISP_E_UNKNOWNNAME;
                ids[0] = idOf(*operation);
                HRESULT result = S_OK;
                for (UINT i = 1; i < count; ++i) {
                    if (const auto id = argumentId(info(*operation), toUtf8(names[i]))) {
                        ids[i] = *id;
                    } else {
                        result = DISP_E_UNKNOWNNAME;
                    }
                }
                return result;
            },
            nullptr);
    }

    STDMETHODIMP Invoke(DISPID id, REFIID reserved, LCID, WORD flags, DISPPARAMS* parameters, VARIANT* result,
                        EXCEPINFO* told, UINT* wrongArgument) noexcept override {
        if (result) VariantInit(result);
        if (reserved != IID_NULL) return DISP_E_UNKNOWNINTERFACE;
        if (!parameters) return E_INVALIDARG;
        const auto operation = operationOf(id);
        if (!operation || !(flags & (DISPATCH_METHOD | DISPATCH_PROPERTYGET))) return DISP_E_MEMBERNOTFOUND;
        return guarded(
            [&]() -> HRESULT {
                ReceivedArguments arguments;
                try {
                    arguments = sortArguments(info(*operation), *parameters);
                } catch (const WrongArgument& wrong) {
                    if (wrongArgument) *wrongArgument = wrong.place;
                    return wrong.error;
                }
                OwnedVariant value;
                toCom(perform(*operation, arguments), *value);
                arguments.writeBack();
                if (result) std::swap(*result, *value);
                return S_OK;
            },
            told);
    }

    STDMETHODIMP InterfaceSupportsErrorInfo(REFIID iid) noexcept override {
        return iid == __uuidof(ILibrary) ? S_OK : S_FALSE;
    }

  private:
    ~LibraryClass() override = default;

    template <class Result>
    HRESULT callSlot(Operation operation, std::initializer_list<VARIANT> given, Result result) noexcept {
        constexpr bool hasResult = !std::is_same_v<Result, std::nullptr_t>;
        if constexpr (hasResult) {
            if (!result) return E_POINTER;
            *result = {};
        }
        if (info(operation).visibility != Visibility::Public) return E_NOTIMPL;
        return guarded(
            [&]() -> HRESULT {
                ReceivedArguments arguments;
                for (const VARIANT& argument : given) {
                    if (V_ISBYREF(&argument) && !V_BYREF(&argument))
                        throw HostError(E_POINTER, "Library", "A reference to nothing was passed.");
                    arguments.add(argument, fromCom(argument));
                }
                [[maybe_unused]] const Variant value = perform(operation, arguments);
                arguments.writeBack();
                if constexpr (hasResult) answer(value, result);
                return S_OK;
            },
            nullptr);
    }

    Variant perform(Operation operation, ReceivedArguments& arguments) {
        // The host may release its last reference to this while a screen is open.
        const ComPtr<IUnknown> alive = static_cast<ILibrary*>(this);
        if (operation > Operation::InitialSyncComplete) frontEnd_->start();
        const FrontEnd::Look look(*frontEnd_);
        return library_->perform(operation, arguments.arguments());
    }

    std::shared_ptr<FrontEnd> frontEnd_;
    std::shared_ptr<tsln::Library> library_;  // released before the front end that shows its screens
};

}  // namespace

ComPtr<ILibrary> createLibrary(const std::function<void(tsln::Library&)>& plugIn) {
    return adopt<ILibrary>(new LibraryClass(plugIn));
}

}  // namespace tsln::com
