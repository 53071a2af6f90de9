#include "bridge/Host.h"

#include <algorithm>

namespace tsln {
namespace {

bool isBlank(const Address& address) {
    return std::ranges::all_of(address, &std::string::empty);
}

}  // namespace

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

std::int32_t Host::OperatingMode() const {
    return sharedCode()->get("OperatingMode").toLong();
}

void Host::ShowAndLogErrorMessage(std::string_view message, std::string_view explanation,
                                  std::string_view detail) const {
    sharedCode()->call("ShowAndLogErrorMessage", message, explanation, detail);
}

void Host::ShowErrorMessage(std::string_view message, std::string_view explanation,
                            std::string_view detail) const {
    sharedCode()->call("ShowErrorMessage", message, explanation, detail);
}

void Host::ShowADOErrorMessage(std::string_view message, std::string_view explanation) const {
    const ObjectPtr host = sharedCode();
    host->call("ShowADOErrorMessage", message, explanation, host->get("CurrentCompanyConn"));
}

void Host::ShowMessageStyle1(std::string_view message, std::string_view advice) const {
    sharedCode()->call("ShowMessageStyle1", message, advice);
}

bool Host::AskMessageStyle1(std::string_view question, std::string_view advice) const {
    // The platform's codes of message boxes.
    constexpr std::int32_t yesAndNo = 4;
    constexpr std::int32_t yes = 6;
    return sharedCode()->call("ShowMessageStyle1", question, advice, yesAndNo).toLong() == yes;
}

bool Host::ConfirmMessageStyle1(std::string_view message, std::string_view advice) const {
    // The platform's codes of message boxes.
    constexpr std::int32_t okAndCancel = 1;
    constexpr std::int32_t ok = 1;
    return sharedCode()->call("ShowMessageStyle1", message, advice, okAndCancel).toLong() == ok;
}

void Host::ShowMessageStyle1WithMemory(std::string_view message, std::string_view advice) const {
    sharedCode()->call("ShowMessageStyle1WithMemory", message, advice);
}

void Host::ShowMessageStyle2(std::string_view message, std::string_view advice) const {
    sharedCode()->call("ShowMessageStyle2", message, advice);
}

bool Host::AskMessageStyle2(std::string_view question, std::string_view note) const {
    // The platform's codes: Yes and No with the icon of a question, and the answer Yes.
    constexpr std::int32_t yesNoQuestion = 4 + 32;
    constexpr std::int32_t yes = 6;
    return sharedCode()->call("ShowMessageStyle2", question, note, yesNoQuestion, "", "").toLong() == yes;
}

void Host::SendEmailMessageWithTemplateAndUI(std::int32_t templateType, std::int32_t recordID,
                                             std::string_view subject, std::string_view body) const {
    sharedCode()->call("SendEmailMessageWithTemplateAndUI", templateType, recordID, subject, body);
}

void Host::RecordEvent(std::string_view text) const {
    sharedCode()->call("RecordEvent", text);
}

void Host::RecordEvent(std::int32_t type, std::string_view text) const {
    sharedCode()->call("RecordEvent", type, text);
}

std::string Host::FixForSQLInsert(std::string_view text) const {
    std::string safe = textOf(sharedCode()->call("FixForSQLInsert", text), "FixForSQLInsert");
    // An empty answer must not erase the user's text.
    if (safe.empty() && !text.empty())
        throw HostError(code::fail, "FixForSQLInsert", "The text cannot be made safe.");
    return safe;
}

std::string Host::FixDateForSQLInsert(std::string_view date) const {
    std::string safe = textOf(sharedCode()->call("FixDateForSQLInsert", date), "FixDateForSQLInsert");
    // The database would read an empty text as a date.
    if (safe.empty()) throw HostError(code::fail, "FixDateForSQLInsert", "The date cannot be made ready.");
    return safe;
}

std::string Host::GetSHA2(std::string_view text) const {
    return textOf(sharedCode()->call("GetSHA2", text), "GetSHA2");
}

std::optional<std::int32_t> Host::ShowSelectBySearch(std::string_view table, std::string_view title) const {
    const std::int32_t selected = sharedCode()->call("ShowSelectBySearch", table, title).toLong();
    return selected > 0 ? std::optional(selected) : std::nullopt;
}

std::string Host::CombineAddress(const Address& a) const {
    std::string text =
        textOf(sharedCode()->call("CombineAddress", a[0], a[1], a[2], a[3], a[4], a[5]), "CombineAddress");
    // An empty answer would be saved as the user's empty address.
    if (text.empty() && !isBlank(a)) throw HostError(code::fail, "CombineAddress", "The address cannot be shown.");
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
    // Without an answer, the address would be saved without its text.
    if (isBlank(address) && text.find_first_not_of(" \t\r\n") != text.npos)
        throw HostError(code::fail, "ParseAddress", "The address cannot be read.");
    text = whole.toText();
    validate = flag.toBoolean();
    return address;
}

}  // namespace tsln
