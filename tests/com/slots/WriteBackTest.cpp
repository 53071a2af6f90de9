#include <gmock/gmock.h>

#include "com/edge/Conversion.h"
#include "com/edge/Wide.h"
#include "com/server/LibraryClass.h"

namespace tsln::com {
namespace {

struct Nothing : Object {
    Variant invoke(std::string_view member, Access, Arguments) override {
        raiseUnknownMember("Nothing", member);
    }
};

/// A Library whose operations keep their arguments in `given` and assign `assigned` to them.
class WriteBackTest : public ::testing::Test {
  protected:
    WriteBackTest() {
        library = createLibrary([this](tsln::Library& made) {
            for (const Operation operation :
                 {Operation::ShowMoveReferences, Operation::Perform42Migration, Operation::ShowBulkChange,
                  Operation::ShowEditPortfiolioTag, Operation::Initialize,
                  Operation::ShowGetReplacementDiscountGroup}) {
                made.plugIn(operation, [this](tsln::Library&, Arguments a) {
                    given.clear();
                    for (std::size_t i = 0; i < a.count(); ++i)
                        given.push_back(a[i]);
                    for (std::size_t i = 0; i < assigned.size(); ++i)
                        a.assign(i, assigned[i]);
                    if (raises) throw HostError(code::fail, "Host", "no");
                    return Variant(true);
                });
            }
        });
    }

    HRESULT callByName(const wchar_t* member, std::vector<VARIANT> arguments) {
        std::wstring name = member;
        wchar_t* names[] = {name.data()};
        DISPID id = 0;
        EXPECT_EQ(S_OK, library->GetIDsOfNames(IID_NULL, names, 1, 0, &id));
        std::ranges::reverse(arguments);
        DISPPARAMS parameters{arguments.data(), nullptr, static_cast<UINT>(arguments.size()), 0};
        EXCEPINFO told{};
        OwnedVariant result;
        const HRESULT answer =
            library->Invoke(id, IID_NULL, 0, DISPATCH_METHOD, &parameters, result.get(), &told, nullptr);
        EXPECT_EQ(SUCCEEDED(answer), V_VT(result.get()) == VT_BOOL);
        SysFreeString(told.bstrSource);
        SysFreeString(told.bstrDescription);
        lastCode = told.scode;
        return answer;
    }

    std::vector<Variant> assigned;
    std::vector<Variant> given;
    bool raises = false;
    HRESULT lastCode = S_OK;  // of the last call by name that raised an error
    ComPtr<ILibrary> library;
};

VARIANT refer(VARTYPE type, void* variable) {
    VARIANT reference;
    VariantInit(&reference);
    V_VT(&reference) = static_cast<VARTYPE>(type | VT_BYREF);
    V_BYREF(&reference) = variable;
    return reference;
}

VARIANT number(LONG value) {
    VARIANT variant;
    VariantInit(&variant);
    V_VT(&variant) = VT_I4;
    V_I4(&variant) = value;
    return variant;
}

ULONG references(IUnknown* object) {
    object->AddRef();
    return object->Release();
}

TEST_F(WriteBackTest, AnOperationThatNothingIsPluggedInForFailsWithSourceAndText) {
    EXPECT_EQ(E_NOTIMPL, library->ShowDatabaseProperties());
    ComPtr<IErrorInfo> info;
    ASSERT_EQ(S_OK, GetErrorInfo(0, info.GetAddressOf()));
    BSTR source = nullptr;
    BSTR text = nullptr;
    info->GetSource(&source);
    info->GetDescription(&text);
    EXPECT_EQ("Library", fromBstr(source));
    EXPECT_THAT(fromBstr(text), ::testing::HasSubstr("ShowDatabaseProperties"));
    SysFreeString(source);
    SysFreeString(text);
    EXPECT_EQ(DISP_E_EXCEPTION, callByName(L"ShowDatabaseProperties", {}));
    EXPECT_EQ(E_NOTIMPL, lastCode);
}

TEST_F(WriteBackTest, SlotsWriteEveryTypeOfTheTable) {
    VARIANT_BOOL result = VARIANT_FALSE;
    SHORT list = 5;
    LONG id = 6;
    assigned = {"12", 70000};
    ASSERT_EQ(S_OK, library->ShowMoveReferences(&list, &id, &result));
    EXPECT_EQ(given, (std::vector<Variant>{std::int16_t{5}, 6}));
    EXPECT_EQ(12, list);
    EXPECT_EQ(70000, id);
    EXPECT_EQ(VARIANT_TRUE, result);

    BSTR file = SysAllocString(L"old.mdb");
    SHORT kind = 3;
    assigned = {"néw.mdb"};
    ASSERT_EQ(S_OK, library->Perform42Migration(&file, &kind, &result));
    EXPECT_EQ("néw.mdb", fromBstr(file));
    EXPECT_EQ(3, kind);
    SysFreeString(file);
    file = nullptr;
    ASSERT_EQ(S_OK, library->Perform42Migration(&file, &kind, &result));
    EXPECT_EQ("néw.mdb", fromBstr(file));
    SysFreeString(file);

    VARIANT_BOOL orders = VARIANT_TRUE;
    OwnedVariant selection;
    toCom("before", *selection);
    assigned = {false, Variant(std::int16_t{4})};
    ASSERT_EQ(S_OK, library->ShowBulkChange(&orders, selection.get(), &result));
    EXPECT_EQ(VARIANT_FALSE, orders);
    EXPECT_EQ(Variant(std::int16_t{4}), fromCom(*selection));

    // For a variant that refers to a variable, the variable is written.
    double real = 1;
    VARIANT toReal = refer(VT_R8, &real);
    assigned = {"2.5"};
    ASSERT_EQ(S_OK, library->ShowEditPortfiolioTag(&toReal, &result));
    EXPECT_EQ(2.5, real);
}

TEST_F(WriteBackTest, ReplacedObjectsKeepCorrectReferenceCounts) {
    const long objects = moduleReferences();
    {
        ComPtr<IDispatch> first = adopt(newDispatch(std::make_shared<Nothing>()));
        const auto written = std::make_shared<Nothing>();
        IDispatch* variable = first.Get();
        variable->AddRef();
        assigned = {written};
        ASSERT_EQ(S_OK, library->Initialize(&variable));
        EXPECT_EQ(written, fromDispatch(variable));
        EXPECT_EQ(1u, references(variable));
        given.clear();
        EXPECT_EQ(1u, references(first.Get()));
        assigned = {ObjectPtr()};
        ASSERT_EQ(S_OK, library->Initialize(&variable));
        EXPECT_EQ(nullptr, variable);
        given.clear();
        // An object that the operation does not assign is not replaced by another wrapper.
        variable = first.Get();
        assigned.clear();
        ASSERT_EQ(S_OK, library->Initialize(&variable));
        EXPECT_EQ(first.Get(), variable);
        given.clear();
        EXPECT_EQ(1u, references(variable));
    }
    assigned.clear();
    EXPECT_EQ(objects, moduleReferences());
}

TEST_F(WriteBackTest, LateBoundVariablesAreWrittenInTheirOwnTypes) {
    SHORT list = 5;
    VARIANT id = number(6);
    assigned = {12, 70000};
    ASSERT_EQ(S_OK, callByName(L"ShowMoveReferences", {refer(VT_I2, &list), refer(VT_VARIANT, &id)}));
    EXPECT_EQ(12, list);
    EXPECT_EQ(Variant(70000), fromCom(id));

    // Variables of other types than the table's, and chains of references.
    BSTR text = SysAllocString(L"5");
    double real = 6;
    VARIANT toReal = refer(VT_R8, &real);
    VARIANT link = refer(VT_VARIANT, &toReal);
    ASSERT_EQ(S_OK, callByName(L"ShowMoveReferences", {refer(VT_BSTR, &text), refer(VT_VARIANT, &link)}));
    EXPECT_EQ(given, (std::vector<Variant>{std::int16_t{5}, 6})) << "converted to the table's types";
    EXPECT_EQ("12", fromBstr(text));
    EXPECT_EQ(70000, real);
    EXPECT_EQ(VT_R8 | VT_BYREF, V_VT(&toReal)) << "the reference itself is kept";
    SysFreeString(text);

    // A caller that passes values gets no error.
    assigned = {12, 70001};
    id = number(6);
    ASSERT_EQ(S_OK, callByName(L"ShowMoveReferences", {number(5), refer(VT_VARIANT, &id)}));
    EXPECT_EQ(Variant(70001), fromCom(id));
    ASSERT_EQ(S_OK, callByName(L"ShowMoveReferences", {number(5), number(6)}));

    // By the arguments' names, in another order.
    std::wstring words[] = {L"ShowMoveReferences", L"ID", L"listCode"};
    wchar_t* names[] = {words[0].data(), words[1].data(), words[2].data()};
    DISPID ids[3];
    ASSERT_EQ(S_OK, library->GetIDsOfNames(IID_NULL, names, 3, 0, ids));
    LONG whole = 6;
    VARIANT named[] = {refer(VT_I4, &whole), refer(VT_I2, &list)};
    DISPPARAMS parameters{named, &ids[1], 2, 2};
    list = 0;
    ASSERT_EQ(S_OK,
              library->Invoke(ids[0], IID_NULL, 0, DISPATCH_METHOD, &parameters, nullptr, nullptr, nullptr));
    EXPECT_EQ(12, list);
    EXPECT_EQ(70001, whole);
}

TEST_F(WriteBackTest, AFailureWritesNothing) {
    VARIANT_BOOL result = VARIANT_FALSE;
    SHORT list = 5;
    LONG id = 6;
    assigned = {12, 70000};
    raises = true;
    EXPECT_EQ(E_FAIL, library->ShowMoveReferences(&list, &id, &result));
    EXPECT_EQ(DISP_E_EXCEPTION, callByName(L"ShowMoveReferences", {refer(VT_I2, &list), refer(VT_I4, &id)}));
    raises = false;
    assigned = {12, "no number"};
    EXPECT_EQ(DISP_E_TYPEMISMATCH, library->ShowMoveReferences(&list, &id, &result));
    // If one variable cannot hold its result, the other one is not written either.
    assigned = {12, 70000};
    BYTE small = 7;
    EXPECT_EQ(DISP_E_EXCEPTION,
              callByName(L"ShowMoveReferences", {refer(VT_I2, &list), refer(VT_UI1, &small)}));
    EXPECT_EQ(5, list);
    EXPECT_EQ(6, id);
    EXPECT_EQ(7, small);
    // A chain of references that refers to itself is refused before the operation runs.
    VARIANT circle;
    circle = refer(VT_VARIANT, &circle);
    given.clear();
    EXPECT_EQ(DISP_E_TYPEMISMATCH, callByName(L"ShowMoveReferences", {number(1), circle}));
    EXPECT_TRUE(given.empty());
}

}  // namespace
}  // namespace tsln::com
