#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "bridge/HostScreen.h"
#include "maintenance/ListRows.h"
#include "screens/ReportControl.h"

namespace tsln::options {

/// The settings of one description in a list that is edited in place, and what of them the database does not have yet.
///
/// The `ID` of a record in the list is its number among all settings that were read or added since the screen was opened.
class DetailList {
  public:
    /// `location` is 0 for the line description, 1 for the second one.
    DetailList(HostScreen& screen, std::string controlName, int location);

    enum Column : std::size_t { Show, Name, Prefix, Sequence };
    ReportControl rptItems;

    /// Reads all settings; the user's changes are forgotten. An error leaves everything as it was. May raise HostError.
    void load();
    /// Reads settings that were added to the database meanwhile, and the keys of those that were inserted from here. The
    /// user's changes stay. May raise HostError.
    void loadAdded();

    /// Adds a setting that is shown in the description, and returns its record. The next populate() shows it.
    std::size_t add(std::string_view name, std::int32_t sequence);
    /// Removes the record; the next populate() shows it.
    void remove(std::size_t record);
    /// Whether the database does not have the setting yet.
    bool isNew(std::size_t record) const;
    /// The record with this option name, ignoring letter case, other than `except`.
    std::optional<std::size_t> find(std::string_view name,
                                    std::optional<std::size_t> except = std::nullopt) const;

    std::int32_t sequence(std::size_t record) const;
    void setSequence(std::size_t record, std::int32_t number);

    // What is to be written -----------------------------------------------------------------------------

    struct Change {
        enum class Kind { Insert, Update, Delete };
        Kind kind;
        std::uint32_t setting;  ///< the number of the setting
        std::uint32_t record;   ///< of an Insert or Update
    };
    /// The changes in the order of the list, deletions last.
    std::vector<Change> changes() const;
    /// The option's name, for messages.
    std::string_view nameOf(const Change& change) const;
    /// Writes one change. Returns false when the row no longer exists. Raises HostError when it cannot be written.
    bool write(const Change& change, const Connection& connection);
    /// Settings were inserted whose keys have not been read yet.
    bool keysAreMissing() const noexcept { return keysMissing_; }

  private:
    std::string loadStatement() const;
    ListRows read() const;
    std::vector<std::string_view> cells(std::size_t record) const;
    bool isChanged(std::size_t record) const;
    std::uint32_t settingOf(std::size_t record) const {
        return static_cast<std::uint32_t>(rptItems.id(record));
    }
    void addStored(std::int32_t ID, bool bold);

    HostScreen& screen_;
    const int location_;
    // By the number of the setting:
    ReportRecords stored_;           // the cells as the database has them; `ID` is not used
    std::vector<std::int32_t> ids_;  // the keys; 0 for a setting that the database does not have
    std::vector<bool> bold_;
    std::vector<std::uint32_t> removed_;  // settings that are to be deleted
    bool keysMissing_ = false;
};

}  // namespace tsln::options
