#pragma once

#include "maintenance/ListScreen.h"

namespace tsln::lists {

/// The deposit criteria, with the user option that enforces them for orders.
class DepositCriteriaScreen : public ListScreen {
  public:
    DepositCriteriaScreen(Library& library, const ListDescription& description);

    CheckBox chkEnforce{*this, "chkEnforce", "En&force deposit requirements"};

  protected:
    void listLoaded() override;
    void Form_Unload() override;
    std::vector<Layout> belowList() override { return {layout::item(chkEnforce)}; }

  private:
    bool optionRead_ = false;
};

}  // namespace tsln::lists
