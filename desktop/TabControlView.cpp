#include <algorithm>

#include <wx/notebook.h>

#include "desktop/ControlView.h"
#include "desktop/NativeWindow.h"
#include "desktop/Text.h"
#include "screens/TabControl.h"

namespace tsln::desktop {
namespace {

/// Shows a tab control. LayoutBuilder makes the pages.
class TabControlView : public ControlView {
  public:
    TabControlView(ScreenDialog& dialog, wxWindow* parent, TabControl& tabs)
        : ControlView(dialog, tabs), tabs_(tabs), book_(new wxNotebook(parent, wxID_ANY)) {
        setWindow(book_);
        setAccessibleName(*book_, "Pages");
        book_->Bind(wxEVT_NOTEBOOK_PAGE_CHANGED, [this](wxBookCtrlEvent& event) {
            event.Skip();
            if (event.GetEventObject() == book_ && !updating_) act([] {});
        });
    }

    void settle() override {
        const auto shown = std::ranges::find(pages_, book_->GetCurrentPage());
        if (shown == pages_.end()) return;
        if (const auto page = static_cast<int>(shown - pages_.begin()); page != tabs_.selected())
            tabs_.userSelect(page);
    }
    void addPart(wxWindow* part) override {
        pages_.push_back(part);
        part->Hide();
        const std::size_t page = pages_.size() - 1;
        if (tabs_.isPageVisible(static_cast<int>(page))) insert(page);
    }
    bool takesFocus() const override { return false; }  // the controls on its pages do
    bool growsWide() const override { return true; }
    bool growsHigh() const override { return true; }

  private:
    bool isInserted(std::size_t page) const { return book_->FindPage(pages_[page]) != wxNOT_FOUND; }

    void insert(std::size_t page) {
        std::size_t place = 0;
        for (std::size_t before = 0; before < page; ++before)
            place += isInserted(before) ? 1 : 0;
        pages_[page]->Show();
        book_->InsertPage(place, pages_[page], toWx(tabs_.captions()[page]));
    }

    void updateContent() override {
        updating_ = true;  // the toolkit selects other pages itself when pages are added or removed
        for (std::size_t page = 0; page < pages_.size(); ++page) {
            const bool visible = tabs_.isPageVisible(static_cast<int>(page));
            if (visible && !isInserted(page)) {
                insert(page);
            } else if (!visible && isInserted(page)) {
                book_->RemovePage(static_cast<std::size_t>(book_->FindPage(pages_[page])));
                pages_[page]->Hide();
            }
        }
        const auto selected = static_cast<std::size_t>(tabs_.selected());
        if (tabs_.selected() >= 0 && selected < pages_.size()) {
            const int place = book_->FindPage(pages_[selected]);
            if (place != book_->GetSelection()) book_->ChangeSelection(static_cast<std::size_t>(place));
        }
        updating_ = false;
    }

    TabControl& tabs_;
    wxNotebook* book_;
    std::vector<wxWindow*> pages_;  // including hidden pages
    bool updating_ = false;
};

}  // namespace

ControlViewPtr makeView(ScreenDialog& dialog, wxWindow* parent, TabControl& tabs) {
    return std::make_unique<TabControlView>(dialog, parent, tabs);
}

}  // namespace tsln::desktop
