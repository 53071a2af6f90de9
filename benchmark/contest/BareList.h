#pragma once

#include "maintenance/ListDescription.h"
#include "screens/ReportControl.h"
#include "screens/Screen.h"
#include "doubles/QuietDesktop.h"

namespace tsln::bench {

/// A report control with the columns of a list, on a screen that is never shown.
class BareList {
  public:
    explicit BareList(std::span<const ListColumn> columns) {
        for (const ListColumn& column : columns) {
            report.columns.push_back({.caption = std::string(column.caption),
                                      .numeric = column.show == ListColumn::Show::Number});
        }
    }

  private:
    class OnlyScreen : public Screen {
      public:
        using Screen::Screen;
        Layout layout() override { return {}; }
    };
    test::QuietDesktop desktop_;
    OnlyScreen screen_{desktop_, "frmBareList"};

  public:
    ReportControl report{screen_, "report"};
};

}  // namespace tsln::bench
