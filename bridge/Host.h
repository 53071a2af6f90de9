#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "automation/Object.h"
#include "shared/Connection.h"
#include "shared/modSharedXML.h"

namespace tsln {

class ComboBox;
class Library;
using modSharedXML::Record;
using modSharedXML::Records;

/// The text that the host replaces by its standard explanation of a database failure.
inline constexpr std::string_view standardExplanation = "{standard explanation}";
/// The same in words, for the screens that give it so.
inline constexpr std::string_view saveAgainExplanation =
    "This typically happens if the database is in use by another user or program. Try saving again. If the "
    "problem persists, close the program, restart and try again.";

/// A sub-object of the host's shared-code object. It holds no reference: every call fetches the shared-code
/// object from the library and the sub-object from that, so a host may replace either between two calls.
class HostPart {
  public:
    HostPart(Library& library, std::string_view name) : library_(library), name_(name) {}

  protected:
    template <class... A>
    Variant call(std::string_view member, A&&... arguments) const {
        return fetch()->call(member, std::forward<A>(arguments)...);
    }

  private:
    ObjectPtr fetch() const;

    Library& library_;
    std::string_view name_;
};

/// The host's database service. Statements are complete SQL text with values made safe.
class Database : HostPart {
  public:
    explicit Database(Library& library) : HostPart(library, "Database") {}
    /// The rows of a SELECT.
    Records ExecuteRead(std::string_view sql) const;
    /// The same, as the text of the result's document.
    std::string ExecuteReadText(std::string_view sql) const;
    /// The first column of the first row. The member's name is spelled so. Which further arguments a caller
    /// passes is part of the call.
    Variant ExecuteScaler(std::string_view sql, std::string_view field, std::string_view otherwise) const;
    Variant ExecuteScaler(std::string_view sql) const;
    /// True when the statement ran.
    bool ExecuteNonQuery(std::string_view sql) const;
    /// The `ID` of the row that the INSERT made, less than 1 when it failed.
    std::int32_t ExecuteNonQueryWithID(std::string_view sql) const;
    std::string LastSQLErrorDescription() const;
};

class Common : HostPart {
  public:
    explicit Common(Library& library) : HostPart(library, "Common") {}
    /// True when a row other than `ID` has this value in the column.
    bool RecordExists(std::string_view table, std::string_view column, std::string_view value,
                      std::int32_t ID) const;
    std::string GetDiscountGroupName(std::int32_t ID) const;
    std::string GetProductNameFromID(std::int32_t ID) const;
    /// Fills the combo box with the company's phone labels.
    void LoadPhoneLabels(ComboBox& combo) const;
    void LoadEmailLabels(ComboBox& combo) const;
    /// The same with the payment terms; an entry's stored number is the terms' `ID`.
    void LoadTerms(ComboBox& combo) const;
    std::string CreateGUID() const;
    /// The GUID in braces.
    std::string FormatAsGUID(std::string_view guid) const;
    /// Fills the combo box with a query's rows: their `shown` column and, as the stored number, their
    /// `stored` column; a blank entry before them if wanted.
    void LoadComboFromQuery(ComboBox& combo, std::string_view sql, std::string_view shown,
                            std::string_view stored, bool blankEntry) const;
};

/// Rights to the data of a list, as CanDo() takes them.
enum class Right : std::int32_t { Add = 8, Edit = 16, Delete = 32 };

class Security : HostPart {
  public:
    explicit Security(Library& library) : HostPart(library, "Security") {}
    /// True when the user holds the right in the security area.
    bool CanDo(std::int32_t area, Right right) const;
};

/// The settings of the company and of the user. `section` may be empty.
class Options : HostPart {
  public:
    explicit Options(Library& library) : HostPart(library, "Options") {}
    Variant GetCompanyOption(std::string_view name, std::string_view section, const Variant& otherwise) const;
    void SetCompanyOption(std::string_view name, std::string_view section, const Variant& value) const;
    Variant GetUserOption(std::string_view name, std::string_view section, const Variant& otherwise) const;
    void SetUserOption(std::string_view name, std::string_view section, const Variant& value) const;
};

/// The activity histories of single records.
class Activity : HostPart {
  public:
    explicit Activity(Library& library) : HostPart(library, "Activity") {}
    void RecordCustomerActivity(std::int32_t ID, std::string_view text) const;
    void RecordVendorActivity(std::int32_t ID, std::string_view text) const;
    void RecordEmployeeActivity(std::int32_t ID, std::string_view text) const;
};

/// Notices to the rest of the host.
class Messages : HostPart {
  public:
    explicit Messages(Library& library) : HostPart(library, "Messages") {}
    /// `code` says what happened, `about` to which record.
    void PostMessage(std::int32_t code, std::int32_t about) const;
};

/// A postal address: two lines, city, state, zip and country, in the order of its columns.
using Address = std::array<std::string, 6>;

/// The host as the screens see it: its services by name, nothing kept between calls.
/// Every call may raise HostError: what the host raised, code::objectNotSet where the host has no such
/// sub-object or the library is not initialised, code::typeMismatch for a result of the wrong type.
class Host {
  public:
    explicit Host(Library& library) : library_(library) {}

    Database database() const { return Database(library_); }
    Common common() const { return Common(library_); }
    Security security() const { return Security(library_); }
    Options options() const { return Options(library_); }
    Activity activity() const { return Activity(library_); }
    Messages messages() const { return Messages(library_); }
    /// The company's open connection; nothing when there is none.
    std::optional<Connection> currentCompanyConnection() const;
    /// The same; raises HostError(code::objectNotSet) when there is none.
    Connection companyConnection() const;

    ObjectPtr sharedCode() const;
    /// Path of the package definition file that the package processor is given.
    std::string PSDFile() const;
    /// Reports and logs a failure. `explanation` is standardExplanation wherever there is one.
    void ShowAndLogErrorMessage(std::string_view message, std::string_view explanation,
                                std::string_view detail) const;
    /// The host's standard message box; `message` may hold "<Bold>" markup.
    void ShowMessageStyle1(std::string_view message, std::string_view advice) const;
    /// The same, which the user can choose not to see again.
    void ShowMessageStyle1WithMemory(std::string_view message, std::string_view advice) const;
    /// Writes an entry to the host's event log.
    void RecordEvent(std::string_view text) const;
    /// The same for an event of this type.
    void RecordEvent(std::int32_t type, std::string_view text) const;
    /// The text made safe to stand between a statement's single quotes.
    std::string FixForSQLInsert(std::string_view text) const;

    /// The address as one text of several lines.
    std::string CombineAddress(const Address& address) const;
    /// The parts of such a text. The host may put the text and the user's wish to have addresses validated
    /// right on the way.
    Address ParseAddress(std::string& text, bool& validate) const;

  private:
    Library& library_;
};

}  // namespace tsln
