#include "bridge/Host.h"

#include <algorithm>

#include "bridge/Library.h"
#include "screens/Controls.h"

namespace tsln {
namespace {

ObjectPtr sharedCodeOf(Library& library) {
    if (ObjectPtr sharedCode = library.SharedCodeLibrary()) return sharedCode;
    throw HostError(code::objectNotSet, "Library", "The library has not been initialized.");
}

/// A text that goes on into the company: whatever else the host answers must not be taken for one.
std::string textOf(const Variant& result, std::string_view member) {
    if (result.isText()) return result.toText();
    if (result.isEmpty() || result.isNull()) return {};
    throw HostError(code::typeMismatch, std::string(member), std::string(member) + " answered with no text.");
}

}  // namespace

ObjectPtr HostPart::fetch() const {
    if (ObjectPtr part = sharedCodeOf(library_)->get(name_).toObject()) return part;
    throw HostError(code::objectNotSet, "Library", "The host offers no " + std::string(name_) + " object.");
}

Records Database::ExecuteRead(std::string_view sql) const {
    return modSharedXML::readRecords(call("ExecuteRead", sql));
}

std::string Database::ExecuteReadText(std::string_view sql) const {
    return modSharedXML::readDocument(call("ExecuteRead", sql));
}

Variant Database::ExecuteScaler(std::string_view sql, std::string_view field,
                                std::string_view otherwise) const {
    return call("ExecuteScaler", sql, field, otherwise);
}

Variant Database::ExecuteScaler(std::string_view sql) const {
    return call("ExecuteScaler", sql);
}

bool Database::ExecuteNonQuery(std::string_view sql) const {
    return call("ExecuteNonQuery", sql).toBoolean();
}

std::int32_t Database::ExecuteNonQueryWithID(std::string_view sql) const {
    return call("ExecuteNonQueryWithID", sql).toLong();
}

std::string Database::LastSQLErrorDescription() const {
    return call("LastSQLErrorDescription").toText();
}

bool Common::RecordExists(std::string_view table, std::string_view column, std::string_view value,
                          std::int32_t ID) const {
    return call("RecordExists", table, column, value, ID).toBoolean();
}

std::string Common::GetDiscountGroupName(std::int32_t ID) const {
    return call("GetDiscountGroupName", ID).toText();
}

std::string Common::GetProductNameFromID(std::int32_t ID) const {
    return call("GetProductNameFromID", ID).toText();
}

void Common::LoadPhoneLabels(ComboBox& combo) const {
    call("LoadPhoneLabels", combo.automation());
}

void Common::LoadEmailLabels(ComboBox& combo) const {
    call("LoadEmailLabels", combo.automation());
}

void Common::LoadTerms(ComboBox& combo) const {
    call("LoadTerms", combo.automation());
}

std::string Common::CreateGUID() const {
    return textOf(call("CreateGUID"), "CreateGUID");
}

std::string Common::FormatAsGUID(std::string_view guid) const {
    return textOf(call("FormatAsGUID", guid), "FormatAsGUID");
}

void Common::LoadComboFromQuery(ComboBox& combo, std::string_view sql, std::string_view shown,
                                std::string_view stored, bool blankEntry) const {
    call("LoadComboFromQuery", combo.automation(), sql, shown, stored, blankEntry);
}

Variant Options::GetCompanyOption(std::string_view name, std::string_view section,
                                  const Variant& otherwise) const {
    return call("GetCompanyOption", name, section, otherwise);
}

void Options::SetCompanyOption(std::string_view name, std::string_view section, const Variant& value) const {
    call("SetCompanyOption", name, section, value);
}

Variant Options::GetUserOption(std::string_view name, std::string_view section,
                               const Variant& otherwise) const {
    return call("GetUserOption", name, section, otherwise);
}

void Options::SetUserOption(std::string_view name, std::string_view section, const Variant& value) const {
    call("SetUserOption", name, section, value);
}

bool Security::CanDo(std::int32_t area, Right right) const {
    return call("CanDo", area, static_cast<std::int32_t>(right)).toBoolean();
}

void Activity::RecordCustomerActivity(std::int32_t ID, std::string_view text) const {
    call("RecordCustomerActivity", ID, text);
}

void Activity::RecordVendorActivity(std::int32_t ID, std::string_view text) const {
    call("RecordVendorActivity", ID, text);
}

void Activity::RecordEmployeeActivity(std::int32_t ID, std::string_view text) const {
    call("RecordEmployeeActivity", ID, text);
}

void Messages::PostMessage(std::int32_t code, std::int32_t about) const {
    call("PostMessage", code, about);
}

ObjectPtr Host::sharedCode() const {
    return sharedCodeOf(library_);
}

std::optional<Connection> Host::currentCompanyConnection() const {
    ObjectPtr connection = sharedCode()->get("CurrentCompanyConn").toObject();
    if (!connection) return std::nullopt;
    return Connection(std::move(connection));
}

Connection Host::companyConnection() const {
    if (auto connection = currentCompanyConnection()) return *connection;
    throw HostError(code::objectNotSet, "Library", "The host has no open connection to the company.");
}

std::string Host::PSDFile() const {
    return sharedCode()->get("PSDFile").toText();
}

void Host::ShowAndLogErrorMessage(std::string_view message, std::string_view explanation,
                                  std::string_view detail) const {
    sharedCode()->call("ShowAndLogErrorMessage", message, explanation, detail);
}

void Host::ShowMessageStyle1(std::string_view message, std::string_view advice) const {
    sharedCode()->call("ShowMessageStyle1", message, advice);
}

void Host::ShowMessageStyle1WithMemory(std::string_view message, std::string_view advice) const {
    sharedCode()->call("ShowMessageStyle1WithMemory", message, advice);
}

void Host::RecordEvent(std::string_view text) const {
    sharedCode()->call("RecordEvent", text);
}

void Host::RecordEvent(std::int32_t type, std::string_view text) const {
    sharedCode()->call("RecordEvent", type, text);
}

std::string Host::FixForSQLInsert(std::string_view text) const {
    std::string safe = textOf(sharedCode()->call("FixForSQLInsert", text), "FixForSQLInsert");
    // A host that makes nothing of a text must not make it vanish.
    if (safe.empty() && !text.empty())
        throw HostError(code::fail, "FixForSQLInsert", "The text cannot be made safe.");
    return safe;
}

std::string Host::CombineAddress(const Address& a) const {
    std::string text =
        textOf(sharedCode()->call("CombineAddress", a[0], a[1], a[2], a[3], a[4], a[5]), "CombineAddress");
    if (text.empty() && a != Address())
        throw HostError(code::fail, "CombineAddress", "The address cannot be shown.");
    return text;
}

Address Host::ParseAddress(std::string& text, bool& validate) const {
    Variant whole(text), flag(validate);
    std::array<Variant, 6> parts;
    std::vector<Argument> arguments{Argument::byReference(whole)};
    for (Variant& part : parts) {
        part = "";
        arguments.push_back(Argument::byReference(part));
    }
    arguments.push_back(Argument::byReference(flag));
    sharedCode()->invoke("ParseAddress", Access::Call, Arguments(arguments));

    Address address;
    for (std::size_t i = 0; i < parts.size(); ++i)
        address[i] = parts[i].toText();
    text = whole.toText();
    validate = flag.toBoolean();
    const auto empty = [](const std::string& part) { return part.empty(); };
    if (!std::ranges::all_of(text, [](char c) { return c == ' ' || c == '\r' || c == '\n'; }) &&
        std::ranges::all_of(address, empty)) {
        // A host that makes nothing of an address must not make it vanish.
        throw HostError(code::fail, "ParseAddress", "The address cannot be read.");
    }
    return address;
}

}  // namespace tsln
