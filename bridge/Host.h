#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "bridge/Activity.h"
#include "bridge/Common.h"
#include "bridge/Connection.h"
#include "bridge/Database.h"
#include "bridge/Messages.h"
#include "bridge/Options.h"
#include "bridge/Profiles.h"
#include "bridge/Security.h"

namespace tsln {

/// A placeholder that the host replaces with its standard explanation of a database failure.
inline constexpr std::string_view standardExplanation = "{standard explanation}";
/// The standard explanation in full, for the screens that pass it so.
inline constexpr std::string_view saveAgainExplanation =
    "This typically happens if the database is in use by another user or program. Try saving again. If the problem persists, close the program, restart and try again.";

/// A postal address: two lines, city, state, zip and country, in the order of its columns.
using Address = std::array<std::string, 6>;

/// The host as the screens use it: its services by name. Nothing is kept between calls. Every call may raise
/// HostError: the host's own error, code::objectNotSet where the host lacks the sub-object or the library is not
/// initialized, code::typeMismatch for a result of the wrong type.
class Host {
  public:
    explicit Host(Library& library) : library_(library) {}

    Database database() const { return Database(library_); }
    Common common() const { return Common(library_); }
    Security security() const { return Security(library_); }
    Options options() const { return Options(library_); }
    Activity activity() const { return Activity(library_); }
    Messages messages() const { return Messages(library_); }
    Profiles profiles() const { return Profiles(library_); }
    /// Returns the company's open connection, or nothing when there is none.
    std::optional<Connection> currentCompanyConnection() const;
    /// Returns the company's open connection. Raises HostError(code::objectNotSet) when there is none.
    Connection companyConnection() const;

    ObjectPtr sharedCode() const;
    /// The path of the package definition file for the package processor.
    std::string PSDFile() const;
    std::int32_t OperatingMode() const;
    /// Shows and logs a failure. `explanation` is standardExplanation, or another text where the failure needs one.
    void ShowAndLogErrorMessage(std::string_view message, std::string_view explanation,
                                std::string_view detail) const;
    /// Shows a failure without logging it.
    void ShowErrorMessage(std::string_view message, std::string_view explanation,
                          std::string_view detail) const;
    /// The members that show a failure with its detail.
    using ShowFailure = void (Host::*)(std::string_view message, std::string_view explanation,
                                       std::string_view detail) const;
    /// Shows a failure of a statement that ran on the company's connection, with the connection's errors.
    void ShowADOErrorMessage(std::string_view message, std::string_view explanation) const;
    /// Shows the host's standard message box. `message` may hold "<Bold>" markup.
    void ShowMessageStyle1(std::string_view message, std::string_view advice) const;
    /// Asks with Yes and No in the host's standard message box; true for Yes.
    bool AskMessageStyle1(std::string_view question, std::string_view advice) const;
    /// Shows the standard message box with OK and Cancel; true for OK.
    bool ConfirmMessageStyle1(std::string_view message, std::string_view advice) const;
    /// Shows the host's standard message box, which the user can choose not to see again.
    void ShowMessageStyle1WithMemory(std::string_view message, std::string_view advice) const;
    /// Shows a message in the host's second message style, with advice below it.
    void ShowMessageStyle2(std::string_view message, std::string_view advice) const;
    /// Asks a question in the host's second message style, with a note below it. Returns true for Yes.
    bool AskMessageStyle2(std::string_view question, std::string_view note) const;
    /// Lets the user send an e-mail in the host's window, which fills the merge fields of subject and body from the
    /// record. `templateType` tells what kind of record it is: 1 customer, 2 vendor, 3 employee, 4 quote, sale or order.
    void SendEmailMessageWithTemplateAndUI(std::int32_t templateType, std::int32_t recordID,
                                           std::string_view subject, std::string_view body) const;
    /// Writes an entry to the host's event log.
    void RecordEvent(std::string_view text) const;
    /// Writes an entry of this type to the host's event log.
    void RecordEvent(std::int32_t type, std::string_view text) const;
    /// Returns the text made safe for use between single quotes in a statement.
    std::string FixForSQLInsert(std::string_view text) const;
    /// Returns the date in the form that the host's database takes. The quotes are part of the statement.
    std::string FixDateForSQLInsert(std::string_view date) const;

    /// Returns a SHA-2 digest of the text, in hexadecimal digits.
    std::string GetSHA2(std::string_view text) const;
    /// Lets the user search a table of the company ("Vendors") and select a record. Returns its `ID`, or nothing when the
    /// user selects none. `title` is the window's title.
    std::optional<std::int32_t> ShowSelectBySearch(std::string_view table, std::string_view title) const;

    // An address that is not empty and becomes empty by the host's answer raises HostError(code::fail).

    /// Joins the address to one text of several lines.
    std::string CombineAddress(const Address& address) const;
    /// Splits such a text into the parts of an address. The host may correct the text, and `validate`, the user's
    /// choice to have addresses validated.
    Address ParseAddress(std::string& text, bool& validate) const;

  private:
    Library& library_;
};

}  // namespace tsln
