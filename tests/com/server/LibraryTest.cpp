#include <gmock/gmock.h>

#include "com/edge/Conversion.h"
#include "com/edge/Wide.h"
#include "doubles/RecordingHost.h"
#include "tests/com/server/Server.h"

namespace tsln::test {
namespace {

using ::testing::ElementsAre;
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

TEST_F(LibraryTest, InitialSyncCompleteChecksEveryCondition) {
    std::map<std::string, Variant> scalars;
    host->on("Database.ExecuteScaler", [&](Arguments a) {
        const Variant& value = scalars.at(a[0].toText());
        if (value == Variant("raise")) throw HostError(code::fail, "Host", "No.");
        return value;
    });
    initialize();
    const std::string company = "SELECT COUNT(*) AS theCount FROM Company";
    const std::string state = "SELECT SyncState FROM Company";
    const std::string tables[] = {"Employees", "DiscountGroups", "OrderStatusCodes", "SecurityRoleAccess"};
    const auto complete = [&](const std::string& changed, const Variant& value) {
        scalars = {{company, 1}, {state, std::int16_t(4)}};
        for (const std::string& table : tables)
            scalars["SELECT COUNT(*) AS theCount FROM " + table] = 3;
        if (!changed.empty()) scalars[changed] = value;
        VARIANT_BOOL early = 7;
        EXPECT_EQ(S_OK, library->InitialSyncComplete(&early));
        com::OwnedVariant late;
        EXPECT_EQ(S_OK, callByName(library.Get(), "initialsynccomplete", {}, late.get()));
        EXPECT_EQ(VT_BOOL, V_VT(late.get()));
        EXPECT_EQ(early, V_BOOL(late.get()));
        return early == VARIANT_TRUE;
    };
    EXPECT_TRUE(complete("", 0));
    EXPECT_FALSE(complete(company, 2));
    EXPECT_FALSE(complete(company, 0));
    EXPECT_FALSE(complete(state, 3));
    EXPECT_TRUE(complete(state, "4"));
    EXPECT_TRUE(complete(company, "raise"));
    EXPECT_TRUE(complete(state, "raise"));
    EXPECT_TRUE(complete(state, "no number"));  // the conversion to a number raises an error
    for (const std::string& table : tables) {
        EXPECT_FALSE(complete("SELECT COUNT(*) AS theCount FROM " + table, 0)) << table;
        EXPECT_TRUE(complete("SELECT COUNT(*) AS theCount FROM " + table, "raise")) << table;
    }
    host->forget();
    complete("", 0);
    EXPECT_THAT(host->calls[1], HasSubstr("SyncState FROM Company, , 0)"));
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

/// Opens the terms dialog and checks which ID the call passed.
class ArgumentTest : public LibraryTest {
  protected:
    /// Returns the statement by which the dialog reads its row.
    std::string rowAskedFor(const std::function<HRESULT()>& open) {
        initialize();
        host->forget();
        {
            const User user([](WindowDriver& at) { at.press("Edit Terms", "Cancel"); });
            EXPECT_EQ(S_OK, open());
        }
        const auto reads = host->callsOf("Database.ExecuteRead");
        return reads.empty() ? std::string() : reads[0];
    }
};

TEST_F(ArgumentTest, ValuesReferencesAndReferencesToVariantsAreAccepted) {
    LONG byReference = 41;
    VARIANT inVariant = variantOf(42);
    VARIANT small;
    VariantInit(&small);
    V_VT(&small) = VT_I2 | VT_BYREF;
    SHORT shortValue = 43;
    V_I2REF(&small) = &shortValue;
    VARIANT reference = variantOf(0L);
    V_VT(&reference) = VT_VARIANT | VT_BYREF;
    V_VARIANTREF(&reference) = &inVariant;
    VARIANT text = variantOf(L"44");
    VARIANT real;
    VariantInit(&real);
    V_VT(&real) = VT_R8;
    V_R8(&real) = 44.6;

    LONG result = -1;
    EXPECT_THAT(rowAskedFor([&] { return library->ShowEditTerms(&byReference, &result); }),
                HasSubstr("ID = 41"));
    EXPECT_EQ(0, result);
    const auto byName = [&](VARIANT argument) {
        return rowAskedFor([&] { return callByName(library.Get(), "ShowEditTerms", {argument}); });
    };
    EXPECT_THAT(byName(variantOf(40)), HasSubstr("ID = 40"));
    EXPECT_THAT(byName(reference), HasSubstr("ID = 42"));
    EXPECT_THAT(byName(small), HasSubstr("ID = 43"));
    EXPECT_THAT(byName(text), HasSubstr("ID = 44"));
    EXPECT_THAT(byName(real), HasSubstr("ID = 45"));
    VariantClear(&text);

    // The argument is passed by its name.
    std::wstring names[] = {L"ShowEditTerms", L"ID"};
    wchar_t* pointers[] = {names[0].data(), names[1].data()};
    DISPID ids[2];
    ASSERT_EQ(S_OK, library->GetIDsOfNames(IID_NULL, pointers, 2, 0, ids));
    VARIANT named = variantOf(46);
    DISPPARAMS parameters{&named, &ids[1], 1, 1};
    EXPECT_THAT(rowAskedFor([&] {
                    return library->Invoke(ids[0], IID_NULL, 0, DISPATCH_METHOD, &parameters, nullptr,
                                           nullptr, nullptr);
                }),
                HasSubstr("ID = 46"));
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
