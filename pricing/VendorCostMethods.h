#pragma once

#include <string>
#include <vector>

#include "maintenance/RecordDialog.h"
#include "screens/ReportControl.h"

namespace tsln::pricing {

/// Sets the cost method of every vendor in one grid. Only changed rows are written.
class VendorCostMethods : public RecordDialog {
  public:
    explicit VendorCostMethods(Library& library);

    ReportControl rptItems{*this, "rptItems"};

  protected:
    Layout content() override;
    void opened() override;
    bool save() override;

  private:
    std::vector<std::string> stored_;  ///< by record, the name of the method that the database has
};

/// Shows the grid. Returns true when it was cancelled.
bool editVendorCostMethods(Library& library);

}  // namespace tsln::pricing
