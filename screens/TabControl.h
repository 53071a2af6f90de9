#pragma once

#include <functional>
#include <string>
#include <vector>

#include "screens/Control.h"

namespace tsln {

/// Pages of controls, one of which is shown. The layout gives the content of each page.
class TabControl : public Control {
  public:
    TabControl(Screen& screen, std::string name, std::vector<std::string> captions)
        : Control(screen, std::move(name)), captions_(std::move(captions)), hidden_(captions_.size()) {}
    void accept(ControlVisitor& visitor) override { visitor.visit(*this); }

    const std::vector<std::string>& captions() const noexcept { return captions_; }
    /// The index of the page that is shown, from 0; -1 when all are hidden.
    int selected() const noexcept { return selected_; }
    /// A page that does not exist or is hidden is ignored.
    void select(int page);

    bool isPageVisible(int page) const;
    /// A hidden page has no tab. When the page shown is hidden, the next visible page is shown, or else the
    /// nearest before it.
    void setPageVisible(int page, bool visible);

    std::function<void()> onSelect;  ///< the user selected another page
    void userSelect(int page);
    /// Adds `Item`, the index of the page that is shown.
    Variant invoke(std::string_view member, Access access, Arguments arguments) override;

  private:
    bool exists(int page) const { return page >= 0 && page < static_cast<int>(captions_.size()); }
    bool show(int page);
    int nearestVisible(int page) const;

    std::vector<std::string> captions_;
    std::vector<bool> hidden_;
    int selected_ = 0;
};

}  // namespace tsln
