#include "desktop/ScreenDialog.h"

#include <algorithm>
#include <utility>

#include <wx/bookctrl.h>
#include <wx/display.h>
#include <wx/settings.h>
#include <wx/sizer.h>
#include <wx/utils.h>

#include "desktop/LayoutBuilder.h"
#include "desktop/NativeWindow.h"
#include "desktop/Placement.h"
#include "desktop/Text.h"
#include "screens/Controls.h"
#include "screens/Job.h"

namespace tsln::desktop {
namespace {

long styleOf(const Screen& screen) {
    return wxDEFAULT_DIALOG_STYLE | (screen.resizable ? wxRESIZE_BORDER | wxMAXIMIZE_BOX : 0);
}

bool isButton(const Control& control, Button::Role role) {
    const auto* button = dynamic_cast<const Button*>(&control);
    return button && button->role() == role;
}

bool isUsable(const Control& control) {
    return control.enabled() && control.visible();
}

/// Whether the window is on no tab page or on the selected one.
bool isOnShownPage(const wxWindow& window) {
    for (const wxWindow* at = &window; at->GetParent(); at = at->GetParent()) {
        const auto* book = dynamic_cast<const wxBookCtrlBase*>(at->GetParent());
        if (book && book->GetCurrentPage() != at) return false;
    }
    return true;
}

bool isWithin(const wxWindow& window, const wxWindow& outer) {
    for (const wxWindow* at = &window; at; at = at->GetParent()) {
        if (at == &outer) return true;
    }
    return false;
}

void setPointer(wxWindow& window, const wxCursor& cursor) {
    window.SetCursor(cursor);
    for (wxWindow* child : window.GetChildren())
        setPointer(*child, cursor);
}

}  // namespace

ScreenDialog::ScreenDialog(wxWindow* owner, Screen& screen)
    : wxDialog(owner, wxID_ANY, toWx(screen.caption()), wxDefaultPosition, wxDefaultSize, styleOf(screen)),
      screen_(screen) {
    SetEscapeId(wxID_NONE);  // onKey() handles Esc by the screen's cancel button
    const LayoutBuilder::Built built = LayoutBuilder(*this).build(screen.layout());
    content_ = built.content;
    SetSizer(built.sizer);
    for (const ControlViewPtr& view : views_)
        view->update();
    place();
    screen_.setView(this);
    showPointer();

    Bind(wxEVT_CHAR_HOOK, &ScreenDialog::onKey, this);
    // Not every control reports that it got the focus, so idle events check it, too.
    Bind(wxEVT_CHILD_FOCUS, [this](wxChildFocusEvent& event) {
        event.Skip();
        noticeFocus();
    });
    Bind(wxEVT_IDLE, [this](wxIdleEvent& event) {
        event.Skip();
        noticeFocus();
    });
    Bind(wxEVT_ACTIVATE, &ScreenDialog::onActivate, this);
    Bind(wxEVT_CLOSE_WINDOW, [this](wxCloseEvent& event) {
        event.Veto();  // the screen decides whether it closes
        requestClose();
    });
    Bind(wxEVT_MOVE, [this](wxMoveEvent& event) {
        rememberPlacement();
        event.Skip();
    });
    Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
        rememberPlacement();
        event.Skip();
    });
}

ScreenDialog::~ScreenDialog() {
    screen_.setView(nullptr);
    acting_ = true;  // drops events that windows send while they are destroyed
    DestroyChildren();
}

void ScreenDialog::run() {
    if (!screen_.shown()) return;
    setInitialFocus();
    // The window system may not report the first activation (no window manager, another program in front).
    CallAfter([this] { activateFirst(); });
    ForeignWindows foreign;
    foreign.own(*this, [this] { CallAfter([this] { abandon(); }); });
    foreign_ = &foreign;
    Raise();
    ShowModal();
    foreign_ = nullptr;
    if (!screen_.shown()) return;
    abandon();  // the event loop was told to end; the outer loops must be told, too
    ForeignWindows::passQuitOn();
}

void ScreenDialog::EndModal(int result) {
    if (foreign_) foreign_->enable();
    wxDialog::EndModal(result);
}

// Actions -----------------------------------------------------------------------------------------

void ScreenDialog::act(const std::function<void()>& what) {
    if (acting_ || !screen_.shown()) return;
    acting_ = true;
    screen_.handle([&] {
        for (const ControlViewPtr& view : views_)
            view->settle();
        what();
    });
    screen_.handle([this] { drawChanges(); });
    acting_ = false;
    if (!screen_.shown()) {
        if (IsModal()) EndModal(wxID_OK);
    } else if (std::exchange(closePending_, false)) {
        CallAfter([this] { requestClose(); });
    }
}

void ScreenDialog::drawChanges() {
    if (foreign_) foreign_->disable();
    while (!changed_.empty()) {
        for (ControlView* view : std::exchange(changed_, {}))
            view->update();
    }
    if (!std::exchange(layoutDirty_, false)) return;
    const wxSize least = updateLeastSize();
    wxSize size = screen_.resizable ? GetSize() : least;
    size.IncTo(least);
    if (size != GetSize()) SetSize(size);
    Layout();
    content_->FitInside();
    // A page, a pane or a frame that keeps its size does not arrange its controls anew by itself.
    std::vector<wxWindow*> arranged;
    for (const ControlViewPtr& view : views_) {
        for (wxWindow* at = view->window().GetParent(); at && at != this; at = at->GetParent()) {
            if (!at->GetSizer() || std::ranges::find(arranged, at) != arranged.end()) continue;
            arranged.push_back(at);
            at->Layout();
        }
    }
}

void ScreenDialog::activateFirst() {
    // A control with inner windows cannot take the focus before it is shown.
    if (focused_ && !hasKeyboard(focused_->window())) moveFocus(*focused_);
    activated_ = true;
    act([this] { screen_.activate(); });
}

void ScreenDialog::requestClose() {
    if (Job* job = screen_.job()) {
        job->userCancel();
        if (!abandoned_) return;
    }
    if (acting_) {
        closePending_ = true;
        return;
    }
    act([this] {
        if (abandoned_) {
            screen_.unload();
            screen_.hide();
        } else {
            screen_.userClose();
        }
    });
}

void ScreenDialog::abandon() {
    abandoned_ = true;
    requestClose();
}

// Changes of the screen ---------------------------------------------------------------------------

void ScreenDialog::controlChanged(Control& control) {
    ControlView* view = viewOf(control);
    if (!view) return;
    changed_.insert(view);
    if (!acting_) drawChanges();
}

void ScreenDialog::screenChanged() {
    if (const wxString caption = toWx(screen_.caption()); caption != GetTitle()) SetTitle(caption);
    showPointer();
    if (!screen_.shown() && !acting_ && IsModal()) EndModal(wxID_OK);
}

void ScreenDialog::focusChanged(Control& control) {
    if (ControlView* view = viewOf(control)) {
        drawChanges();  // the control may have been enabled since the last redraw
        moveFocus(*view);
    }
}

// Jobs --------------------------------------------------------------------------------------------

bool ScreenDialog::takesInput(const Control& control) const {
    const Job* job = screen_.job();
    return !job || job->cancelButton() == &control;
}

bool ScreenDialog::cancelsJob(const Control& control) {
    Job* job = screen_.job();
    if (!job || job->cancelButton() != &control) return false;
    job->userCancel();
    return true;
}

/// Disables the windows and moves the focus to the cancel button when a job begins; restores both at its end.
void ScreenDialog::jobChanged() {
    const Job* job = screen_.job();
    if (job) focusedBeforeJob_ = focused_;
    for (const ControlViewPtr& view : views_)
        view->update();
    ControlView* next = job ? (job->cancelButton() ? viewOf(*job->cancelButton()) : nullptr)
                            : std::exchange(focusedBeforeJob_, nullptr);
    if (next && isUsable(next->control())) moveFocus(*next);
}

void ScreenDialog::showPointer() {
    if (pointerBusy_ == screen_.pointerBusy()) return;
    pointerBusy_ = screen_.pointerBusy();
    setPointer(*this, pointerBusy_ ? *wxHOURGLASS_CURSOR : wxNullCursor);
}

// Placement ---------------------------------------------------------------------------------------

/// The client size at which every control has its preferred size.
wxSize ScreenDialog::naturalSize() {
    std::vector<wxSize> least;
    for (const ControlViewPtr& view : views_) {
        least.push_back(view->window().GetMinSize());
        wxSize preferred = view->preferredSize();
        preferred.IncTo(least.back());
        view->window().SetMinSize(preferred);
        view->window().InvalidateBestSize();  // also that of the parent windows
    }
    const wxSize client = leastClientSize();
    for (std::size_t i = 0; i < views_.size(); ++i) {
        views_[i]->window().SetMinSize(least[i]);
        views_[i]->window().InvalidateBestSize();
    }
    return client;
}

/// The size below which a control would be cut off. What is larger than the display scrolls, except the last row.
wxSize ScreenDialog::leastClientSize() {
    const wxSize content = content_->GetSizer()->CalcMin();
    content_->SetMinSize(content);
    const wxSize whole = GetSizer()->CalcMin();
    const int titleBar =
        2 * GetCharHeight() + FromDIP(12);  // at most; it is known only once the window is shown
    const wxSize room = displayArea().GetSize() - wxSize(FromDIP(4), titleBar);
    wxSize least = content;
    if (whole.y > room.y) {
        least.y -= whole.y - room.y;
        least.x += wxSystemSettings::GetMetric(wxSYS_VSCROLL_X, this);
    }
    if (whole.x - content.x + least.x > room.x) least.x = room.x - (whole.x - content.x);
    content_->SetMinSize(least);
    return GetSizer()->CalcMin();
}

wxSize ScreenDialog::updateLeastSize() {
    const wxSize least = ClientToWindowSize(leastClientSize());
    SetMinSize(least);
    return least;
}

/// The part of the display that windows may take: of the owner's display, or that of the host's window in front.
wxRect ScreenDialog::displayArea() const {
    const wxWindow* const owner = GetParent();
    int display = owner ? wxDisplay::GetFromWindow(owner) : wxNOT_FOUND;
    if (screen_.placement.left) {
        const wxPoint middle(FromDIP(*screen_.placement.left) + GetSize().x / 2,
                             owner ? owner->GetScreenRect().y : 0);
        if (const int there = wxDisplay::GetFromPoint(middle); there != wxNOT_FOUND) display = there;
    }
    const wxRect guestOf = owner ? wxRect() : ForeignWindows::foremostRect();
    if (display == wxNOT_FOUND && !guestOf.IsEmpty())
        display = wxDisplay::GetFromPoint(guestOf.GetPosition() + guestOf.GetSize() / 2);
    return wxDisplay(display == wxNOT_FOUND ? 0u : static_cast<unsigned>(display)).GetClientArea();
}

/// Makes boxes narrower until the screen fits into the display's width: scrolling sideways would hide their labels.
void ScreenDialog::narrowToDisplay() {
    const int least = FromDIP(80);
    const auto width = [this] { return GetSizer()->CalcMin().x; };
    content_->SetMinSize(content_->GetSizer()->CalcMin());
    for (int round = 0; round < 4 && width() > displayArea().width; ++round) {
        for (const ControlViewPtr& view : views_) {
            const wxSize now = view->window().GetMinSize();
            const bool isBox = dynamic_cast<const TextBox*>(&view->control()) ||
                               dynamic_cast<const ComboBox*>(&view->control());
            if (!isBox || !view->growsWide() || now.x <= least) continue;
            view->window().SetMinSize({std::max(least, now.x * 2 / 3), now.y});
            view->window().InvalidateBestSize();
        }
        content_->SetMinSize(content_->GetSizer()->CalcMin());
    }
}

void ScreenDialog::place() {
    narrowToDisplay();
    const wxSize natural = naturalSize();
    updateLeastSize();
    const Screen::Placement& stored = screen_.placement;
    const wxWindow* owner = GetParent();
    const wxRect guestOf = owner ? wxRect() : ForeignWindows::foremostRect();
    const wxRect area = displayArea();

    // In the unit of the stored values, so that one rule serves displays of any density.
    const auto toDip = [this](const wxRect& rect) {
        return wxRect(ToDIP(rect.GetPosition()), ToDIP(rect.GetSize()));
    };
    const Surroundings around{
        .display = toDip(area),
        .owner = toDip(owner && owner->IsShown() ? owner->GetScreenRect()
                       : guestOf.IsEmpty()       ? area
                                                 : guestOf),
        .least = ToDIP(leastClientSize()),
        .natural = ToDIP(natural),
    };
    const wxRect rect = placeWindow(stored, screen_.resizable, around);
    // Sizes exclude the frame: its width is unknown until the window is shown.
    SetClientSize(FromDIP(rect.GetSize()));
    Move(FromDIP(rect.GetPosition()));
    if (stored.maximized && screen_.resizable) Maximize();
}

void ScreenDialog::rememberPlacement() {
    if (!IsShown() || IsIconized()) return;
    Screen::Placement& placement = screen_.placement;
    placement.maximized = IsMaximized();
    if (placement.maximized) return;  // keeps the size to restore
    const wxSize size = ToDIP(GetClientSize());
    placement.left = ToDIP(GetPosition().x);
    placement.width = size.x;
    placement.height = size.y;
}

// Focus -------------------------------------------------------------------------------------------

/// The view that has the keyboard focus, or null. Frames are skipped: only the controls in them have the
/// focus. The search runs backwards, so that controls on the pages of a tab control come before the tab
/// control.
ControlView* ScreenDialog::viewWithKeyboard() const {
    const auto found = std::find_if(views_.rbegin(), views_.rend(), [](const ControlViewPtr& view) {
        return !view->holdsOthers() && hasKeyboard(view->window());
    });
    return found == views_.rend() ? nullptr : found->get();
}

void ScreenDialog::setInitialFocus() {
    ControlView* first = screen_.focusedControl() ? viewOf(*screen_.focusedControl()) : nullptr;
    if (!first) {
        const auto found = std::ranges::find_if(
            views_, [](const auto& view) { return view->isTabStop() && isUsable(view->control()); });
        if (found != views_.end()) first = found->get();
    }
    if (first) moveFocus(*first);
}

void ScreenDialog::restoreFocus() {
    if (focused_) focused_->takeFocus();
}

void ScreenDialog::moveFocus(ControlView& view) {
    focused_ = &view;
    view.takeFocus();
}

/// Reports to the screen that the user has moved the focus.
void ScreenDialog::noticeFocus() {
    ControlView* now = viewWithKeyboard();
    if (acting_ || !activated_ || !now || now == focused_ || !IsActive()) return;
    ControlView* before = std::exchange(focused_, now);
    act([this, before, now] {
        screen_.userFocused(now->control());
        if (before) before->control().userLeft();
        now->control().userEntered();
    });
}

void ScreenDialog::onActivate(wxActivateEvent& event) {
    event.Skip();
    if (!event.GetActive()) {
        leftFront_ = activated_;
        return;
    }
    // run() reports the first activation. An activation during an action is caused by that action.
    if (!std::exchange(leftFront_, false) || acting_) return;
    CallAfter([this] { act([this] { screen_.activate(); }); });
}

// Keys --------------------------------------------------------------------------------------------

void ScreenDialog::onKey(wxKeyEvent& event) {
    if (!pressKey(event)) event.Skip();
}

bool ScreenDialog::pressKey(const wxKeyEvent& key) {
    if (Job* job = screen_.job(); job && key.GetKeyCode() == WXK_ESCAPE) {
        job->userCancel();
        return true;
    }
    noticeFocus();
    ControlView* focus = viewWithKeyboard();
    if (focus && focus->takesKey(key)) return true;
    if (key.GetModifiers() == wxMOD_CONTROL && turnPage(key.GetKeyCode())) return true;
    if (key.GetKeyCode() == WXK_F6 && (key.GetModifiers() & ~wxMOD_SHIFT) == 0)
        return turnPane(key.GetModifiers() == wxMOD_SHIFT);
    if (key.GetModifiers() == wxMOD_ALT) return pressMnemonic(key);
    if (key.HasAnyModifiers()) return false;
    const int code = key.GetKeyCode();
    if (code != WXK_F1 && focus && focus->wantsKey(code)) return false;
    switch (code) {
        case WXK_F1:
            act([this] { screen_.userHelp(); });
            return true;
        case WXK_ESCAPE:
            if (!press([](const Control& c) { return isButton(c, Button::Role::Cancel); })) requestClose();
            return true;
        case WXK_RETURN:
        case WXK_NUMPAD_ENTER:
            return press([](const Control& c) { return isButton(c, Button::Role::Default); });
        default:
            return false;
    }
}

/// Ctrl+Page Down and Ctrl+Page Up turn the pages, even in a text box that would scroll.
bool ScreenDialog::turnPage(int keyCode) {
    if (keyCode != WXK_PAGEDOWN && keyCode != WXK_PAGEUP) return false;
    for (const ControlViewPtr& view : views_) {
        auto* book = dynamic_cast<wxBookCtrlBase*>(&view->window());
        if (!book || !view->control().enabled() || !view->control().visible()) continue;
        book->AdvanceSelection(keyCode == WXK_PAGEDOWN);
        return true;
    }
    return false;
}

/// The panes of all splitters, in the layout's order. A pane that contains a splitter is replaced by its
/// panes.
std::vector<wxWindow*> ScreenDialog::panes() const {
    std::vector<wxWindow*> all;
    for (const ControlViewPtr& view : views_) {
        const auto outer = std::ranges::find_if(all, [&](const wxWindow* pane) {
            return !view->panes().empty() && isWithin(view->window(), *pane);
        });
        const auto place = outer == all.end() ? outer : all.erase(outer);
        all.insert(place, view->panes().begin(), view->panes().end());
    }
    return all;
}

/// Moves the focus to the first tab stop of the next pane that has one. Returns false when there is none.
bool ScreenDialog::turnPane(bool back) {
    const std::vector<wxWindow*> all = panes();
    const auto here = std::ranges::find_if(all, [](const wxWindow* pane) { return hasKeyboard(*pane); });
    const std::size_t at = here != all.end() ? static_cast<std::size_t>(here - all.begin())
                           : back            ? 0
                                             : all.size() - 1;
    for (std::size_t i = 1; i <= all.size(); ++i) {
        const wxWindow& pane = *all[(at + (back ? all.size() - i : i)) % all.size()];
        for (const ControlViewPtr& view : views_) {
            if (!view->isTabStop() || !isUsable(view->control()) || !isWithin(view->window(), pane) ||
                !isOnShownPage(view->window()))
                continue;
            view->takeFocus();
            return true;
        }
    }
    return false;
}

/// Presses the first button for which `isMeant` is true. Returns false when there is none.
bool ScreenDialog::press(bool (*isMeant)(const Control& control)) {
    for (const ControlViewPtr& view : views_) {
        if (!isMeant(view->control())) continue;
        act([&] { static_cast<Button&>(view->control()).userPress(); });
        return true;
    }
    return false;
}

bool ScreenDialog::pressMnemonic(const wxKeyEvent& key) {
    const auto found = viewsByMnemonic_.find(key.GetKeyCode());
    if (found == viewsByMnemonic_.end()) return false;
    for (ControlView* view : found->second) {
        if (!view->takesFocus() || !isUsable(view->control()) || !isOnShownPage(view->window())) continue;
        view->mnemonic();
        return true;
    }
    return false;
}

void ScreenDialog::addMnemonic(const wxString& label, ControlView& view) {
    for (std::size_t i = 0; i + 1 < label.size(); ++i) {
        if (label[i] != '&') continue;
        const wxUniChar letter = label[++i];
        if (letter == '&') continue;
        viewsByMnemonic_[wxToupper(letter)].push_back(&view);
        return;
    }
}

// Views -------------------------------------------------------------------------------------------

ControlView* ScreenDialog::addView(ControlViewPtr view) {
    if (!view) return nullptr;
    viewByControl_[&view->control()] = view.get();
    views_.push_back(std::move(view));
    return views_.back().get();
}

ControlView* ScreenDialog::viewOf(const Control& control) const {
    const auto found = viewByControl_.find(&control);
    return found == viewByControl_.end() ? nullptr : found->second;
}

}  // namespace tsln::desktop
