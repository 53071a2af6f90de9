#pragma once

#include "maintenance/RecordDialog.h"
#include "screens/CheckList.h"

namespace tsln::lists {

/// Assigns sales tax codes to a sales tax group. The close box does not count as Cancel.
class SalesTaxGroupCodes : public RecordDialog {
  public:
    explicit SalesTaxGroupCodes(Library& library);

    Label lblCodes{*this, "lblCodes", "&Tick the sales tax codes that make up this group:"};
    CheckList lstCodes{*this, "lstCodes"};

    std::int32_t groupID = 0;

  protected:
    Layout content() override;
    void opened() override;
    bool save() override;
};

/// Shows the screen for a group. Returns true when the user pressed Cancel.
bool assignSalesTaxCodes(Library& library, std::int32_t groupID);

}  // namespace tsln::lists
