#include <filesystem>
#include <map>

#include <gtest/gtest.h>

#include "bridge/Operations.h"
#include "com/edge/Wide.h"
#include "tests/com/server/Server.h"

namespace tsln::test {
namespace {

constexpr char classId[] = "{7D3C0B51-6F0E-4C1B-9A86-1F2E5B0D9C31}";
constexpr char interfaceId[] = "{7D3C0B52-6F0E-4C1B-9A86-1F2E5B0D9C31}";
constexpr char libraryId[] = "{7D3C0B50-6F0E-4C1B-9A86-1F2E5B0D9C31}";

/// Returns a value of HKEY_CLASSES_ROOT, or "-" when it does not exist.
std::string registered(const std::string& key, const char* value = "") {
    wchar_t text[1024];
    DWORD size = sizeof text;
    const LSTATUS status = RegGetValueW(HKEY_CLASSES_ROOT, com::toWide(key).c_str(),
                                        com::toWide(value).c_str(), RRF_RT_REG_SZ, nullptr, text, &size);
    return status == ERROR_SUCCESS ? com::toUtf8({text, size / sizeof(wchar_t) - 1}) : "-";
}

bool keyExists(const std::string& key) {
    HKEY handle = nullptr;
    if (RegOpenKeyExW(HKEY_CLASSES_ROOT, com::toWide(key).c_str(), 0, KEY_READ, &handle) != ERROR_SUCCESS)
        return false;
    RegCloseKey(handle);
    return true;
}

/// The program's main() registers the module and unregisters it at the end; each test leaves it registered.
class RegistrationTest : public ::testing::Test {
  protected:
    ~RegistrationTest() override { EXPECT_EQ(S_OK, callServer("DllRegisterServer")); }
};

TEST_F(RegistrationTest, WritesAllEntries) {
    const std::string key = std::string("CLSID\\") + classId;
    const std::map<std::string, std::string> expected{
        {"tslnmaint5.Library", "TSLN 5.0 - Maintenance"},
        {"tslnmaint5.Library\\CLSID", classId},
        {key, "TSLN 5.0 - Maintenance"},
        {key + "\\ProgID", "tslnmaint5.Library"},
        {key + "\\TypeLib", libraryId},
        {key + "\\Version", "5.0"},
        {std::string("Interface\\") + interfaceId, "ILibrary"},
        {std::string("Interface\\") + interfaceId + "\\TypeLib", libraryId},
        {std::string("TypeLib\\") + libraryId + "\\5.0", "TSLN 5.0 - Maintenance"},
    };
    for (const auto& [name, value] : expected)
        EXPECT_EQ(value, registered(name)) << name;
    EXPECT_EQ("Apartment", registered(key + "\\InprocServer32", "ThreadingModel"));
    EXPECT_TRUE(std::filesystem::equivalent(com::toWide(registered(key + "\\InprocServer32")), serverFile()));
}

TEST_F(RegistrationTest, UnregisteringRemovesAllEntries) {
    for (int round = 0; round < 2; ++round) {
        ASSERT_EQ(S_OK, callServer("DllUnregisterServer"));
        for (const std::string& key :
             {std::string("tslnmaint5.Library"), std::string("CLSID\\") + classId,
              std::string("Interface\\") + interfaceId, std::string("TypeLib\\") + libraryId + "\\5.0"})
            EXPECT_FALSE(keyExists(key)) << key;
        CLSID ignored;
        EXPECT_TRUE(FAILED(CLSIDFromProgID(L"tslnmaint5.Library", &ignored)));
        EXPECT_EQ(S_OK, callServer("DllUnregisterServer"));  // no entries are no error
        ASSERT_EQ(S_OK, callServer("DllRegisterServer"));
        EXPECT_NE(nullptr, newLibrary());
    }
    ASSERT_EQ(S_OK, callServer("DllRegisterServer"));  // a second registration
    EXPECT_NE(nullptr, newLibrary());
}

// The type library ------------------------------------------------------------------------------------

std::string nameOf(ITypeInfo& info, MEMBERID id) {
    BSTR name = nullptr;
    info.GetDocumentation(id, &name, nullptr, nullptr, nullptr);
    const std::string text = com::fromBstr(name);
    SysFreeString(name);
    return text;
}

VARTYPE typeOf(ValueType type) {
    switch (type) {
        case ValueType::Boolean:
        case ValueType::Flag:
            return VT_BOOL;
        case ValueType::Integer:
            return VT_I2;
        case ValueType::Long:
            return VT_I4;
        case ValueType::String:
            return VT_BSTR;
        case ValueType::Variant:
            return VT_VARIANT;
        case ValueType::Object:
            return VT_DISPATCH;
        case ValueType::None:
            break;
    }
    return VT_VOID;
}

/// Returns the type of a parameter or, for a pointer, the type it points to; the second value is true for a pointer.
std::pair<VARTYPE, bool> typeOf(const ELEMDESC& parameter) {
    const TYPEDESC& type = parameter.tdesc;
    return type.vt == VT_PTR ? std::pair{type.lptdesc->vt, true} : std::pair{type.vt, false};
}

TEST(TypeLibrary, DescribesTheTableOfOperations) {
    ComPtr<ITypeLib> library;
    ASSERT_EQ(S_OK, LoadTypeLibEx(serverFile().c_str(), REGKIND_NONE, &library));
    ComPtr<ITypeInfo> dispatchInfo;
    ASSERT_EQ(S_OK, library->GetTypeInfoOfGuid(__uuidof(ILibrary), &dispatchInfo));
    // A dual interface has two descriptions: for late-bound and for early-bound calls.
    HREFTYPE reference = 0;
    ASSERT_EQ(S_OK, dispatchInfo->GetRefTypeOfImplType(static_cast<UINT>(-1), &reference));
    ComPtr<ITypeInfo> info;
    ASSERT_EQ(S_OK, dispatchInfo->GetRefTypeInfo(reference, &info));
    TYPEATTR* attributes = nullptr;
    ASSERT_EQ(S_OK, info->GetTypeAttr(&attributes));
    EXPECT_TRUE(attributes->wTypeFlags & TYPEFLAG_FDUAL);
    ASSERT_EQ(operations.size(), attributes->cFuncs);
    info->ReleaseTypeAttr(attributes);

    for (std::size_t i = 0; i < operations.size(); ++i) {
        const OperationInfo& row = operations[i];
        FUNCDESC* function = nullptr;
        ASSERT_EQ(S_OK, info->GetFuncDesc(static_cast<UINT>(i), &function));
        EXPECT_EQ(row.name, nameOf(*info.Get(), function->memid));
        EXPECT_EQ((7 + i) * sizeof(void*), static_cast<std::size_t>(function->oVft)) << row.name;
        EXPECT_EQ(row.visibility != Visibility::Public, (function->wFuncFlags & FUNCFLAG_FHIDDEN) != 0)
            << row.name;
        EXPECT_EQ(i == 0 ? INVOKE_PROPERTYGET : INVOKE_FUNC, function->invkind) << row.name;
        const std::size_t parameters = row.argumentCount + (row.result == ValueType::None ? 0 : 1);
        ASSERT_EQ(parameters, static_cast<std::size_t>(function->cParams)) << row.name;
        for (std::size_t a = 0; a < row.argumentCount; ++a) {
            const auto [type, byReference] = typeOf(function->lprgelemdescParam[a]);
            // An object passed by reference is a pointer to a pointer.
            EXPECT_EQ(typeOf(row.argumentRow[a].type), type) << row.name;
            EXPECT_EQ(row.argumentRow[a].passing == Passing::ByReference, byReference) << row.name;
            EXPECT_EQ(byReference ? PARAMFLAG_FIN | PARAMFLAG_FOUT : PARAMFLAG_FIN,
                      function->lprgelemdescParam[a].paramdesc.wParamFlags)
                << row.name;
        }
        info->ReleaseFuncDesc(function);
    }
}

}  // namespace
}  // namespace tsln::test
