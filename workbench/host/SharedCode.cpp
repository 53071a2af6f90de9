#include "workbench/host/SharedCode.h"

#include "automation/NumericText.h"
#include "shared/modSharedSQL.h"
#include "workbench/host/ActivityObject.h"
#include "workbench/host/AddressText.h"
#include "workbench/host/CommonObject.h"
#include "workbench/host/ConnectionObject.h"
#include "workbench/host/DatabaseObject.h"
#include "workbench/host/Email.h"
#include "workbench/host/HostDate.h"
#include "workbench/host/MessageMembers.h"
#include "workbench/host/MessagesObject.h"
#include "workbench/host/OptionsObject.h"
#include "workbench/host/PackageSourceFile.h"
#include "workbench/host/ProfilesObject.h"
#include "workbench/host/SearchLists.h"
#include "workbench/host/SecurityObject.h"
#include "workbench/host/Sha2.h"
#include "workbench/host/SqlEngineObject.h"
#include "workbench/host/TextOf.h"

namespace tsln::workbench {

SharedCode::SharedCode(const std::shared_ptr<HostContext>& context)
    : HostObject(context),
      database_(std::make_shared<DatabaseObject>(context)),
      common_(std::make_shared<CommonObject>(context)),
      security_(std::make_shared<SecurityObject>(context)),
      options_(std::make_shared<OptionsObject>(context)),
      messages_(std::make_shared<MessagesObject>(context)),
      activity_(std::make_shared<ActivityObject>(context)),
      profiles_(std::make_shared<ProfilesObject>(context)),
      connection_(std::make_shared<ConnectionObject>(context)) {}

/// Arguments: the text, or the text and the kind of event in either order, or the text and its source.
Variant SharedCode::RecordEvent(Arguments a) {
    a.require(1, 2);
    const auto isKind = [&](std::size_t i) { return a.has(i) && !a[i].isText() && a[i].isNumeric(); };
    if (isKind(0) && a.has(1)) {
        context().eventLog.record(a[0].toLong(), textOf(a[1]));
    } else if (isKind(1)) {
        context().eventLog.record(a[1].toLong(), textOf(a[0]));
    } else {
        context().eventLog.record(EventLog::Notice, textOf(a[0]), textOf(a[1]));
    }
    return {};
}

Variant SharedCode::PSDFile() {
    return writePackageSourceFor(context().company);
}

/// The company option "OperatingMode", 0 by default.
Variant SharedCode::OperatingMode() {
    std::int32_t mode = 0;
    if (const auto stored = context().options.get({}, {"OperatingMode", "Application"}))
        readNumber(*stored, mode);
    return mode;
}

/// Arguments: the text, which is returned in its normal form; by reference the six fields of CombineAddress; and
/// whether addresses are validated, which is left unchanged. Returns whether the address is complete.
Variant SharedCode::ParseAddress(Arguments a) {
    a.require(1, 8);
    const Address address = parseAddress(textOf(a[0]));
    a.assign(0, combineAddress(address));
    const std::string* fields[] = {&address.line1, &address.line2, &address.city,
                                   &address.state, &address.zip,   &address.country};
    for (std::size_t i = 0; i < std::size(fields); ++i)
        a.assign(i + 1, *fields[i]);
    return address.isComplete();
}

/// Arguments: two lines, city, state, zip, country.
Variant SharedCode::CombineAddress(Arguments a) {
    a.require(1, 6);
    return combineAddress(
        {textOf(a[0]), textOf(a[1]), textOf(a[2]), textOf(a[3]), textOf(a[4]), textOf(a[5])});
}

/// Arguments: the table whose records are searched, and the window's title. Returns the identifier of the record that the
/// user chose, 0 when cancelled.
Variant SharedCode::ShowSelectBySearch(Arguments a) {
    a.require(2, 2);
    const std::string table = textOf(a[0]);
    const SearchList* list = searchListOf(table);
    if (!list)
        throw HostError(code::badIndex, "SharedCode", "The records of '" + table + "' cannot be searched.");
    return context()
        .ui
        .searchRecord({textOf(a[1]),
                       std::string(list->table),
                       {list->columns.begin(), list->columns.end()},
                       listRecords(context().company, *list)})
        .value_or(0);
}

Variant SharedCode::invoke(std::string_view member, Access access, Arguments arguments) {
    using Self = SharedCode;
    static constexpr Member<Self> members[] = {
        {"Database", [](Self& self, Arguments) { return Variant(self.database_); }},
        {"Common", [](Self& self, Arguments) { return Variant(self.common_); }},
        {"Security", [](Self& self, Arguments) { return Variant(self.security_); }},
        {"Options", [](Self& self, Arguments) { return Variant(self.options_); }},
        {"Messages", [](Self& self, Arguments) { return Variant(self.messages_); }},
        {"Activity", [](Self& self, Arguments) { return Variant(self.activity_); }},
        {"Profiles", [](Self& self, Arguments) { return Variant(self.profiles_); }},
        {"ShowMessageStyle1",
         [](Self& self, Arguments a) {
             a.require(1, 4);
             return showMessage(self.context(), MessageStyle::Style1, a);
         }},
        {"ShowMessageStyle1WithMemory",
         [](Self& self, Arguments a) {
             a.require(2, 2);
             return showMessageWithMemory(self.context(), a);
         }},
        {"ShowMessageStyle2",
         [](Self& self, Arguments a) {
             a.require(1, 5);
             return showMessage(self.context(), MessageStyle::Style2, a);
         }},
        {"ShowAndLogErrorMessage",
         [](Self& self, Arguments a) {
             a.require(1, 5);
             return showError(self.context(), MessageStyle::LoggedError, a);
         }},
        {"ShowErrorMessage",
         [](Self& self, Arguments a) {
             a.require(1, 3);
             return showError(self.context(), MessageStyle::Error, a);
         }},
        {"ShowADOErrorMessage",
         [](Self& self, Arguments a) {
             a.require(1, 3);
             return showError(self.context(), MessageStyle::Error, a);
         }},
        {"RecordEvent", [](Self& self, Arguments a) { return self.RecordEvent(a); }},
        {"FixForSQLInsert",
         [](Self&, Arguments a) {
             a.require(1, 1);
             return Variant(modSharedSQL::doubleQuotes(textOf(a[0])));
         }},
        // Without quotes, which are part of the statement.
        {"FixDateForSQLInsert",
         [](Self&, Arguments a) {
             a.require(1, 1);
             return Variant(sqlDateText(a[0].toDate()));
         }},
        {"PSDFile", [](Self& self, Arguments) { return self.PSDFile(); }},
        {"CurrentCompanyConn", [](Self& self, Arguments) { return Variant(self.connection_); }},
        {"ParseAddress", [](Self& self, Arguments a) { return self.ParseAddress(a); }},
        {"CombineAddress", [](Self& self, Arguments a) { return self.CombineAddress(a); }},
        {"SendEmailMessageWithTemplateAndUI",
         [](Self& self, Arguments a) { return sendEmailWithTemplate(self.context(), a); }},
        {"OperatingMode", [](Self& self, Arguments) { return self.OperatingMode(); }},
        {"ShowSelectBySearch", [](Self& self, Arguments a) { return self.ShowSelectBySearch(a); }},
        {"TSLNSQL",
         [](Self& self, Arguments) {
             return Variant(std::make_shared<SqlEngineObject>(self.sharedContext()));
         }},
        // The second argument is the length in bits.
        {"GetSHA2",
         [](Self&, Arguments a) {
             a.require(1, 2);
             return Variant(sha2(textOf(a[0]), a.valueOr(1, 256).toLong()));
         }},
    };
    return answer(*this, "SharedCode", members, member, access, arguments);
}

}  // namespace tsln::workbench
