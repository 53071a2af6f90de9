#pragma once

#include <optional>

#include "maintenance/ListScreen.h"

namespace tsln::lists {

/// The sales tax groups and, below them, the codes of the selected group. A first-time user is led through adding
/// codes and then groups.
class SalesTaxGroupsScreen : public ListScreen {
  public:
    SalesTaxGroupsScreen(Library& library, const ListDescription& description);

    Button cmdManageTaxCodes{*this, "cmdManageTaxCodes", "Manage &Tax Codes..."};
    Button cmdAssignTaxCodes{*this, "cmdAssignTaxCodes", "&Assign Tax Codes..."};
    Label lblCodes{*this, "lblCodes", "Sales tax codes for the selected sales tax group: "};
    ReportControl rptCodes{*this, "rptCodes"};
    Label lblCombinedRate{*this, "lblCombinedRate", ""};

  protected:
    void welcome() override;
    void updateButtons() override;
    void added(std::int32_t ID) override;
    void referencesMoved() override { refreshCodes(); }
    std::vector<Layout> furtherButtons() override;
    std::vector<Layout> belowList() override;

  private:
    void cmdManageTaxCodes_Click();
    void assignTaxCodes(std::int32_t groupID);
    bool anyCode() const;
    void showCodes(std::int32_t groupID);
    /// Reads the codes of the selected group again.
    void refreshCodes();

    std::optional<std::int32_t> shownGroup_;
};

}  // namespace tsln::lists
