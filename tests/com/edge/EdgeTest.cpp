#include <gmock/gmock.h>

#include "com/edge/ArrayObject.h"
#include "com/edge/Conversion.h"
#include "com/edge/DispatchObject.h"
#include "com/edge/Failure.h"
#include "com/edge/ObjectDispatch.h"
#include "com/edge/Wide.h"
#include "shared/IdentifierList.h"

namespace tsln::com {
namespace {

/// An object with a member of every kind, called through COM.
class Sample : public Object {
  public:
    Variant invoke(std::string_view member, Access access, Arguments arguments) override {
        static constexpr Member<Sample> members[] = {
            {"Echo", [](Sample&, Arguments a) { return a[0]; }},
            {"Count", [](Sample&, Arguments a) { return Variant(static_cast<std::int32_t>(a.count())); }},
            {"Text", [](Sample& self, Arguments) { return Variant(self.text); },
             [](Sample& self, Arguments a) { self.text = a[0].toText(); }},
            {"Item", [](Sample& self, Arguments a) { return Variant(self.items[a[0].toText()]); },
             [](Sample& self, Arguments a) { self.items[a[0].toText()] = a[1].toText(); }},
            {"Split",
             [](Sample&, Arguments a) {
                 const std::string name = a[0].toText();
                 const std::size_t blank = name.find(' ');
                 a.assign(1, name.substr(0, blank));
                 a.assign(2, name.substr(blank + 1));
                 return Variant(true);
             }},
            {"Fail",
             [](Sample&, Arguments) -> Variant {
                 throw HostError(code::overflow, "The sample", "It said “no”.");
             }},
            {"Break", [](Sample&, Arguments) -> Variant { throw std::runtime_error("broken"); }},
        };
        return invokeMember<Sample>(*this, "Sample", members, member, access, arguments);
    }

    std::string text;
    std::map<std::string, std::string> items;
};

/// Calls the sample as an object of another module. fromDispatch() would return the sample itself.
class EdgeTest : public ::testing::Test {
  protected:
    EdgeTest() {
        ComPtr<IDispatch> out = com::adopt(newDispatch(sample));
        outside = std::make_shared<DispatchObject>(out.Get());
    }

    Variant echo(const VARIANT& value) {
        VARIANT argument = value;
        DISPPARAMS parameters{&argument, nullptr, 1, 0};
        OwnedVariant result;
        EXCEPINFO told{};
        const HRESULT answer = outside->dispatch()->Invoke(idOf(L"Echo"), IID_NULL, 0, DISPATCH_METHOD,
                                                           &parameters, result.get(), &told, nullptr);
        if (FAILED(answer)) throw errorOf(answer, told, "Echo");
        return fromCom(*result);
    }
    DISPID idOf(const wchar_t* name) {
        std::wstring text = name;
        wchar_t* names[] = {text.data()};
        DISPID id = 0;
        EXPECT_EQ(S_OK, outside->dispatch()->GetIDsOfNames(IID_NULL, names, 1, 0, &id));
        return id;
    }

    std::shared_ptr<Sample> sample = std::make_shared<Sample>();
    std::shared_ptr<DispatchObject> outside;
};

std::int32_t codeOf(const std::function<void()>& act) {
    try {
        act();
    } catch (const HostError& error) {
        return error.code();
    }
    return 0;
}

TEST(Wide, KeepsEveryCharacterAndReplacesInvalidOnes) {
    for (const std::string& text : {std::string(), std::string("Größe 4 × 6″ 𝔘"), std::string("a\0b", 3)})
        EXPECT_EQ(text, toUtf8(toWide(text)));
    EXPECT_EQ("a\xEF\xBF\xBD", toUtf8(toWide("a\xFF")));
    EXPECT_EQ("\xEF\xBF\xBDz", toUtf8(std::wstring(L"\xD800z")));
    EXPECT_EQ("", fromBstr(nullptr));
}

TEST_F(EdgeTest, EveryValueIsUnchangedAfterARoundTrip) {
    const Variant values[] = {Variant(),
                              Null(),
                              true,
                              false,
                              std::int16_t(-7),
                              std::int32_t(1 << 20),
                              std::int64_t(1) << 40,
                              1.5F,
                              2.25,
                              Date{45000.75},
                              "text with “signs”",
                              ""};
    for (const Variant& value : values)
        EXPECT_EQ(value, outside->call("Echo", value));
    EXPECT_EQ(Variant(std::int32_t(5)), outside->call("Echo", std::int64_t(5)));  // 32 bits are enough
    EXPECT_EQ(sample, outside->call("Echo", sample).toObject());
    EXPECT_EQ(nullptr, outside->call("Echo", ObjectPtr()).toObject());
    EXPECT_EQ(Variant(std::int32_t(3)), outside->call("Count", 1, Missing(), 2));
}

TEST_F(EdgeTest, ThePlatformsOwnTypesConvert) {
    const auto number = [](VARTYPE type, auto set) {
        VARIANT value;
        VariantInit(&value);
        V_VT(&value) = type;
        set(value);
        return value;
    };
    EXPECT_EQ(Variant(std::int16_t(200)), echo(number(VT_UI1, [](VARIANT& v) { V_UI1(&v) = 200; })));
    EXPECT_EQ(Variant(std::int16_t(-3)), echo(number(VT_I1, [](VARIANT& v) { V_I1(&v) = -3; })));
    EXPECT_EQ(Variant(std::int64_t(4000000000)),
              echo(number(VT_UI4, [](VARIANT& v) { V_UI4(&v) = 4000000000u; })));
    EXPECT_EQ(Variant(12.5), echo(number(VT_CY, [](VARIANT& v) { V_CY(&v).int64 = 125000; })));
    EXPECT_EQ(Variant(std::int32_t(12)), echo(number(VT_CY, [](VARIANT& v) { V_CY(&v).int64 = 120000; })));
    EXPECT_EQ(Variant(0.25), echo(number(VT_DECIMAL, [](VARIANT& v) {
                  VarDecFromR8(0.25, &V_DECIMAL(&v));
                  V_VT(&v) = VT_DECIMAL;
              })));

    LONG variable = 77;
    EXPECT_EQ(Variant(std::int32_t(77)),
              echo(number(VT_I4 | VT_BYREF, [&](VARIANT& v) { V_I4REF(&v) = &variable; })));
    VARIANT inner = number(VT_I2, [](VARIANT& v) { V_I2(&v) = 9; });
    EXPECT_EQ(Variant(std::int16_t(9)),
              echo(number(VT_VARIANT | VT_BYREF, [&](VARIANT& v) { V_VARIANTREF(&v) = &inner; })));

    EXPECT_EQ(code::typeMismatch,
              codeOf([&] { echo(number(VT_ERROR, [](VARIANT& v) { V_ERROR(&v) = E_FAIL; })); }));
    EXPECT_EQ(code::typeMismatch,
              codeOf([&] { echo(number(VT_I4 | VT_BYREF, [](VARIANT& v) { V_I4REF(&v) = nullptr; })); }));
}

TEST_F(EdgeTest, PropertiesAreSetWithAndWithoutIndex) {
    outside->put("Text", "Net 30");
    EXPECT_EQ("Net 30", outside->get("text").toText());
    outside->put("Item", "a", "first");
    EXPECT_EQ("first", outside->get("Item", "a").toText());
    EXPECT_EQ(code::memberNotFound, codeOf([&] { outside->put("Echo", 1); }));
}

TEST_F(EdgeTest, VariablesAreWrittenBack) {
    Variant first;              // passed as a variant
    Variant last("a surname");  // passed as a string
    outside->call("Split", "Ada Lovelace", Argument::byReference(first), Argument::byReference(last));
    EXPECT_EQ(Variant("Ada"), first);
    EXPECT_EQ(Variant("Lovelace"), last);
}

TEST_F(EdgeTest, VariablesOfRareTypesAreWritten) {
    VARIANT reference;
    VariantInit(&reference);
    const auto assign = [&](VARTYPE type, void* variable, const Variant& value) {
        V_VT(&reference) = static_cast<VARTYPE>(type | VT_BYREF);
        V_BYREF(&reference) = variable;
        assignReference(reference, value);
    };
    DECIMAL decimal{};
    assign(VT_DECIMAL, &decimal, 2.25);
    double read = 0;
    VarR8FromDec(&decimal, &read);
    EXPECT_EQ(2.25, read);
    IDispatch* object = newDispatch(std::make_shared<Sample>());
    assign(VT_DISPATCH, &object, sample);
    EXPECT_EQ(sample, fromDispatch(object));
    assign(VT_DISPATCH, &object, ObjectPtr());
    EXPECT_EQ(nullptr, object);

    SAFEARRAY* array = SafeArrayCreateVector(VT_UI1, 0, 1);
    SAFEARRAY* longer = SafeArrayCreateVector(VT_UI1, 0, 5);
    assign(VT_ARRAY | VT_UI1, &array, std::make_shared<ArrayObject>(VT_UI1, longer));
    SafeArrayDestroy(longer);
    LONG last = 0;
    SafeArrayGetUBound(array, 1, &last);
    EXPECT_EQ(4, last);
    EXPECT_EQ(code::typeMismatch, codeOf([&] { assign(VT_ARRAY | VT_UI1, &array, 5); }));
    SafeArrayDestroy(array);
}

/// An array of longs, which the caller owns.
SAFEARRAY* arrayOf(std::vector<LONG> values, LONG lowerBound) {
    SAFEARRAYBOUND bound{static_cast<ULONG>(values.size()), lowerBound};
    SAFEARRAY* array = SafeArrayCreate(VT_I4, 1, &bound);
    for (LONG i = 0; i < static_cast<LONG>(values.size()); ++i) {
        LONG index = lowerBound + i;
        SafeArrayPutElement(array, &index, &values[static_cast<std::size_t>(i)]);
    }
    return array;
}

TEST_F(EdgeTest, ArraysAreCollectionsAndAreReturnedUnchanged) {
    for (const LONG lowerBound : {0L, 1L, -5L}) {
        VARIANT value;
        V_VT(&value) = VT_ARRAY | VT_I4;
        V_ARRAY(&value) = arrayOf({7, 8, 9}, lowerBound);
        const Variant array = echo(value);
        VARIANT reference;
        V_VT(&reference) = VT_ARRAY | VT_I4 | VT_BYREF;
        V_ARRAYREF(&reference) = &V_ARRAY(&value);
        const Variant referred = echo(reference);
        SafeArrayDestroy(V_ARRAY(&value));
        for (const Variant& held : {array, referred}) {
            EXPECT_EQ(Variant(3), held.object().get("Count"));
            EXPECT_EQ(Variant(9), held.object().get("Item", 3));
            EXPECT_EQ(code::badIndex, codeOf([&] { held.object().get("Item", 0); }));
            EXPECT_EQ(code::badIndex, codeOf([&] { held.object().get("Item", 4); }));
            EXPECT_EQ(code::typeMismatch, codeOf([&] { held.toText(); }));
            EXPECT_EQ((std::vector<std::int32_t>{7, 8, 9}), readIdentifiers(held));
        }
        OwnedVariant back;
        toCom(array, *back);
        ASSERT_EQ(VT_ARRAY | VT_I4, V_VT(back.get()));
        LONG first = 99;
        SafeArrayGetLBound(V_ARRAY(back.get()), 1, &first);
        EXPECT_EQ(lowerBound, first);
    }
}

TEST_F(EdgeTest, ArraysOfEveryElementTypeAreRead) {
    // The elements are 40 and 41, converted to each type by the platform.
    for (const VARTYPE type : {VT_I1, VT_UI1, VT_I2, VT_UI2, VT_I4, VT_UI4, VT_INT, VT_UINT, VT_I8, VT_UI8,
                               VT_R4, VT_R8, VT_CY, VT_DECIMAL, VT_BSTR, VT_VARIANT}) {
        VARIANT value;
        V_VT(&value) = static_cast<VARTYPE>(VT_ARRAY | type);
        V_ARRAY(&value) = SafeArrayCreateVector(type, 0, 2);
        for (LONG i = 0; i < 2; ++i) {
            OwnedVariant element;
            V_VT(element.get()) = VT_I4;
            V_I4(element.get()) = 40 + i;
            void* from = element.get();
            if (type != VT_VARIANT) {
                ASSERT_EQ(S_OK, VariantChangeType(element.get(), element.get(), 0, type)) << type;
                from = type == VT_BSTR ? static_cast<void*>(V_BSTR(element.get())) : &V_NONE(element.get());
            }
            if (type == VT_DECIMAL) from = &V_DECIMAL(element.get());
            ASSERT_EQ(S_OK, SafeArrayPutElement(V_ARRAY(&value), &i, from)) << type;
        }
        EXPECT_EQ((std::vector<std::int32_t>{40, 41}), readIdentifiers(echo(value))) << type;
        SafeArrayDestroy(V_ARRAY(&value));
    }

    const auto refused = [&](VARTYPE type, SAFEARRAY* array) {
        VARIANT value;
        V_VT(&value) = static_cast<VARTYPE>(VT_ARRAY | type);
        V_ARRAY(&value) = array;
        EXPECT_EQ(code::typeMismatch, codeOf([&] { fromCom(value); }));
        if (array) SafeArrayDestroy(array);
    };
    SAFEARRAYBOUND bounds[] = {{2, 0}, {2, 0}};
    refused(VT_I4, SafeArrayCreate(VT_I4, 2, bounds));
    refused(VT_VARIANT,
            SafeArrayCreateVector(VT_I4, 0, 2));  // the elements are shorter than the declared type
    refused(VT_RECORD, SafeArrayCreateVector(VT_I4, 0, 2));

    VARIANT none;  // an array variable without a size
    V_VT(&none) = VT_ARRAY | VT_I4;
    V_ARRAY(&none) = nullptr;
    EXPECT_TRUE(readIdentifiers(echo(none)).empty());
}

TEST_F(EdgeTest, ErrorsKeepTheirCodeSourceAndText) {
    try {
        outside->call("Fail");
        FAIL();
    } catch (const HostError& error) {
        EXPECT_EQ(code::overflow, error.code());
        EXPECT_EQ("The sample", error.source());
        EXPECT_EQ("It said “no”.", error.text());
    }
    EXPECT_EQ(code::unknownName, codeOf([&] { outside->call("Nonsense"); }));
    EXPECT_EQ(code::fail, codeOf([&] { outside->call("Break"); }));
    EXPECT_EQ(code::classNotRegistered, codeOf([] { createComponent("tslnnone5.Engine"); }));
}

TEST_F(EdgeTest, AComponentOfThePlatformIsUsedByName) {
    const ObjectPtr document = createComponent("MSXML2.DOMDocument");
    ASSERT_TRUE(document->call("loadXML", "<Records><Record><ID>5</ID></Record></Records>").toBoolean());
    const Variant id = document->call("selectSingleNode", "Records/Record/ID");
    EXPECT_EQ("5", id.object().get("text").toText());
    id.object().put("text", "6");
    EXPECT_THAT(document->get("xml").toText(), ::testing::HasSubstr("<ID>6</ID>"));
    document->put("async", false);
    EXPECT_FALSE(document->get("async").toBoolean());
}

}  // namespace
}  // namespace tsln::com
