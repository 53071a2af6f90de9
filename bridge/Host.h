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
#include "bridge/Security.h"

namespace tsln {

/// The text that the host replaces by its standard explanation of a database failure.
inline constexpr std::string_view standardExplanation = "{standard explanation}";
/// The same in words, for the screens that give it so.
inline constexpr std::string_view saveAgainExplanation =
    "This typically happens if the database is in use by another user or program. Try saving again. If the problem persists, close the program, restart and try again.";

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
    /// The date made ready for a statement, in the form that the host's database takes; the quotes stand in the
    /// statement.
    std::string FixDateForSQLInsert(std::string_view date) const;

    /// The address as one text of several lines.
    std::string CombineAddress(const Address& address) const;
    /// The parts of such a text. The host may put the text and the user's wish to have addresses validated
    /// right on the way.
    Address ParseAddress(std::string& text, bool& validate) const;

  private:
    Library& library_;
};

}  // namespace tsln
