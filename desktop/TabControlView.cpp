#include <wx/notebook.h>

#include "desktop/ControlView.h"
#include "screens/TabControl.h"

namespace tsln::desktop {
namespace {

/// The pages themselves are made by the layout.
class TabControlView : public ControlView {
  public:
    TabControlView(ScreenDialog& dialog, wxWindow* parent, TabControl& tabs)
        : ControlView(dialog, tabs), tabs_(tabs), book_(new wxNotebook(parent, wxID_ANY)) {
        setWindow(book_);
        book_->Bind(wxEVT_NOTEBOOK_PAGE_CHANGED, [this](wxBookCtrlEvent& event) {
            event.Skip();
            if (event.GetEventObject() == book_) act([] {});
        });
    }

    void settle() override {
        if (const int page = book_->GetSelection(); page >= 0 && page != tabs_.selected())
            tabs_.userSelect(page);
    }
    bool takesFocus() const override { return false; }  // but what stands on its pages does
    bool growsWide() const override { return true; }
    bool growsHigh() const override { return true; }

  private:
    void updateContent() override {
        const auto page = static_cast<std::size_t>(tabs_.selected());
        if (page < book_->GetPageCount() && book_->GetSelection() != tabs_.selected())
            book_->ChangeSelection(page);
    }

    TabControl& tabs_;
    wxNotebook* book_;
};

}  // namespace

ControlViewPtr makeView(ScreenDialog& dialog, wxWindow* parent, TabControl& tabs) {
    return std::make_unique<TabControlView>(dialog, parent, tabs);
}

}  // namespace tsln::desktop
