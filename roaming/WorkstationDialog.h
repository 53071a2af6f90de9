#pragma once

#include "maintenance/RecordDialog.h"

namespace tsln::roaming {

/// Adds or changes a roaming workstation. While the workstation is not set up, every save gives the user its identity
/// code, which is to be entered there.
class WorkstationDialog : public RecordDialog {
  public:
    WorkstationDialog(Library& library, const ListDescription& list);

  protected:
    void rowShown(const Row& row) override;
    bool validate() override;
    void saved() override;

  private:
    void handOutIdentity();
};

}  // namespace tsln::roaming
