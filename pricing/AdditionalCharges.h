#pragma once

#include <optional>

#include "maintenance/ListScreen.h"
#include "pricing/ChargeTypes.h"
#include "screens/Job.h"

namespace tsln::pricing {

/// The list of the charges, promotions or adjustments of one type, in the groups that the users named.
class AdditionalChargesScreen : public ListScreen {
  public:
    AdditionalChargesScreen(Library& library, const ListDescription& description, ChargeType type);

    Label lblSearching{*this, "lblSearching", "Searching for a free name..."};
    /// Ends the search for a free name. Shown while it runs.
    Button cmdCancelSearch{*this, "cmdCancelSearch", "Cancel"};

    /// Stores that the selected charges apply or do not apply.
    void enableSelected(bool enabled);
    /// Copies the focused charge under a new name.
    void duplicateSelected();

  protected:
    std::string loadStatement() const override;
    std::vector<Variant> furtherArguments() const override;
    std::vector<Layout> belowList() override;

  private:
    /// Returns the name of a duplicate, empty when it would be too long; nothing when the user cancels the search.
    std::optional<std::string> findFreeName(const std::string& name);
    void showSearch(bool shown);

    const ChargeType type_;
};

/// The list of a charge type.
const ListDescription& chargesList(ChargeType type);

/// Shows the list of a charge type. `flag` is the type's number; of a plain Boolean, True is the customer promotions and
/// False the additional charges. Another number is refused with a message.
void showAdditionalCharges(Library& library, std::int16_t flag);

}  // namespace tsln::pricing
