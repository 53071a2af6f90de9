#include <gmock/gmock.h>

#include "com/edge/Conversion.h"
#include "com/edge/Wide.h"
#include "doubles/RecordingHost.h"
#include "tests/com/server/Server.h"

namespace tsln::test {
namespace {

using ::testing::HasSubstr;

/// A Library of the DLL, and a recording host that it calls through COM.
class LibraryTest : public ::testing::Test {
  protected:
    LibraryTest() { dispatch = com::adopt(com::newDispatch(host->sharedCode())); }

    void initialize() { ASSERT_EQ(S_OK, library->Initialize(dispatch.GetAddressOf())); }

    std::shared_ptr<RecordingHost> host = RecordingHost::make();
    ComPtr<IDispatch> dispatch;
    ComPtr<ILibrary> library = newLibrary();
};

TEST_F(LibraryTest, HoldsTheHostBetweenInitializeAndPreTerminate) {
    ComPtr<IDispatch> held;
    EXPECT_EQ(S_OK, library->get_SharedCodeLibrary(&held));
    EXPECT_EQ(nullptr, held.Get());
    initialize();
    EXPECT_EQ(S_OK, library->get_SharedCodeLibrary(&held));
    EXPECT_EQ(dispatch.Get(), held.Get());  // the original pointer, not a wrapper
    held.Reset();
    ComPtr<IDispatch> other = com::adopt(com::newDispatch(RecordingHost::make()->sharedCode()));
    EXPECT_EQ(S_OK, library->Initialize(other.GetAddressOf()));  // the second replaces the first
    EXPECT_EQ(1u, (dispatch->AddRef(), dispatch->Release()));
    EXPECT_EQ(S_OK, library->PreTerminate());
    EXPECT_EQ(1u, (other->AddRef(), other->Release()));
    EXPECT_EQ(S_OK, library->get_SharedCodeLibrary(&held));
    EXPECT_EQ(nullptr, held.Get());
}

TEST_F(LibraryTest, RefusesWrongArgumentsWithTheProperCodes) {
    initialize();
    const auto call = [&](const char* member, std::vector<VARIANT> arguments) {
        EXCEPINFO told{};
        UINT wrong = 99;
        const HRESULT result = callByName(library.Get(), member, arguments, nullptr, &told, &wrong);
        for (VARIANT& argument : arguments)
            if (V_VT(&argument) == VT_BSTR) VariantClear(&argument);
        SysFreeString(told.bstrSource);
        SysFreeString(told.bstrDescription);
        return result;
    };
    EXPECT_EQ(DISP_E_PARAMNOTOPTIONAL, call("ShowEditTerms", {}));
    EXPECT_EQ(DISP_E_PARAMNOTOPTIONAL, call("ShowEditTerms", {missing()}));
    EXPECT_EQ(DISP_E_BADPARAMCOUNT, call("ShowEditTerms", {variantOf(1), variantOf(2)}));
    EXPECT_EQ(DISP_E_BADPARAMCOUNT, call("ShowTerms", {variantOf(1)}));
    EXPECT_EQ(DISP_E_TYPEMISMATCH, call("ShowEditTerms", {variantOf(L"no number")}));
    EXPECT_EQ(DISP_E_OVERFLOW, call("ShowEditTerms", {variantOf(L"99999999999")}));
    EXPECT_EQ(DISP_E_OVERFLOW, call("ShowMoveReferences", {variantOf(70000), variantOf(1)}));
    EXPECT_EQ(DISP_E_TYPEMISMATCH, call("Initialize", {variantOf(5)}));
    EXPECT_EQ(DISP_E_UNKNOWNNAME, call("ShowNothing", {}));
    // Operations that are not public cannot be called.
    EXPECT_EQ(DISP_E_UNKNOWNNAME, call("CanDeleteDiscountGroup", {variantOf(1)}));
    EXPECT_EQ(DISP_E_UNKNOWNNAME, call("RunPackageProcessor", {variantOf(L"x"), variantOf(1)}));
    VARIANT_BOOL result = VARIANT_TRUE;
    EXPECT_EQ(E_NOTIMPL, library->CanDeleteDiscountGroup(1, &result));
    EXPECT_EQ(E_NOTIMPL, library->RunPackageProcessor(nullptr, nullptr));

    EXPECT_EQ(E_POINTER, library->ShowTerms(nullptr));
    LONG id = 0;
    EXPECT_EQ(E_POINTER, library->ShowEditTerms(nullptr, &id));
    EXPECT_THAT(errorObject(), HasSubstr("Library: A reference to nothing"));
    EXPECT_EQ(E_POINTER, library->Initialize(nullptr));
    DISPPARAMS none{};
    EXPECT_EQ(DISP_E_MEMBERNOTFOUND,
              library->Invoke(4711, IID_NULL, 0, DISPATCH_METHOD, &none, nullptr, nullptr, nullptr));
    EXPECT_EQ(DISP_E_MEMBERNOTFOUND,  // read-only
              library->Invoke(1, IID_NULL, 0, DISPATCH_PROPERTYPUT, &none, nullptr, nullptr, nullptr));
    EXPECT_TRUE(host->calls.empty());
}

TEST_F(LibraryTest, DllCanUnloadNowCountsObjectsAndLocks) {
    const HMODULE module = GetModuleHandleW(L"tslnmaint5.dll");
    ASSERT_NE(nullptr, module);
    const auto canUnload = reinterpret_cast<HRESULT(STDAPICALLTYPE*)()>(
        reinterpret_cast<void*>(GetProcAddress(module, "DllCanUnloadNow")));
    EXPECT_EQ(S_FALSE, canUnload());
    ComPtr<IClassFactory> factory;
    ASSERT_EQ(S_OK,
              CoGetClassObject(__uuidof(::Library), CLSCTX_INPROC_SERVER, nullptr, IID_PPV_ARGS(&factory)));
    ComPtr<IUnknown> part;
    EXPECT_EQ(CLASS_E_NOAGGREGATION, factory->CreateInstance(library.Get(), IID_PPV_ARGS(&part)));
    library.Reset();
    EXPECT_EQ(S_OK, factory->LockServer(TRUE));
    factory.Reset();
    EXPECT_EQ(S_FALSE, canUnload());
    ASSERT_EQ(S_OK,
              CoGetClassObject(__uuidof(::Library), CLSCTX_INPROC_SERVER, nullptr, IID_PPV_ARGS(&factory)));
    EXPECT_EQ(S_OK, factory->LockServer(FALSE));
    factory.Reset();
    EXPECT_EQ(S_OK, canUnload());
}

}  // namespace
}  // namespace tsln::test
