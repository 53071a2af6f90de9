#include "desktop/WxDesktop.h"

#include <algorithm>
#include <chrono>
#include <memory>
#include <optional>
#include <utility>

#include <wx/app.h>
#include <wx/clipbrd.h>
#include <wx/dataobj.h>
#include <wx/evtloop.h>
#include <wx/filename.h>
#include <wx/log.h>
#include <wx/scopeguard.h>
#include <wx/stdpaths.h>
#include <wx/timer.h>
#include <wx/utils.h>

#include "desktop/ChoiceDialog.h"
#include "desktop/Dialogs.h"
#include "desktop/ForeignWindows.h"
#include "desktop/HelpWindow.h"
#include "desktop/NativeWindow.h"
#include "desktop/Process.h"
#include "desktop/ReportPrinter.h"
#include "desktop/ScreenDialog.h"
#include "desktop/Text.h"
#include "desktop/TextResource.h"

namespace tsln::desktop {
namespace {

constexpr unsigned long waitSlice = 20;  // milliseconds
// A timer or a window that is painted again and again may fill the event queue faster than it is emptied.
constexpr std::chrono::milliseconds longestYield{200};

/// The active event loop, or a new one when none is active.
class ActiveLoop {
  public:
    ActiveLoop() {
        if (!wxEventLoopBase::GetActive()) {
            own_ = std::make_unique<wxGUIEventLoop>();
            activator_ = std::make_unique<wxEventLoopActivator>(own_.get());
        }
    }
    wxEventLoopBase* operator->() const { return wxEventLoopBase::GetActive(); }

  private:
    std::unique_ptr<wxGUIEventLoop> own_;
    std::unique_ptr<wxEventLoopActivator> activator_;
};

/// Drops keys and clicks that come in the event loop that is active when it is made, while it exists. A dialog that opens
/// meanwhile, by a timer or the host, runs a loop of its own and takes them.
class InputDropper : private wxEventFilter {
  public:
    InputDropper() : loop_(wxEventLoopBase::GetActive()), outer_(std::exchange(innermost_, this)) {
        wxEvtHandler::AddFilter(this);
    }
    ~InputDropper() override {
        wxEvtHandler::RemoveFilter(this);
        innermost_ = outer_;
    }

    static bool active() { return innermost_ && innermost_->loop_ == wxEventLoopBase::GetActive(); }

  private:
    int FilterEvent(wxEvent& event) override {
        if (wxEventLoopBase::GetActive() != loop_) return Event_Skip;
        const bool click = dynamic_cast<wxMouseEvent*>(&event) && event.GetEventType() != wxEVT_MOTION &&
                           event.GetEventType() != wxEVT_ENTER_WINDOW &&
                           event.GetEventType() != wxEVT_LEAVE_WINDOW;
        return click || dynamic_cast<wxKeyEvent*>(&event) ? Event_Processed : Event_Skip;
    }

    static inline InputDropper* innermost_ = nullptr;
    const wxEventLoopBase* const loop_;
    InputDropper* const outer_;
};

class WxTimer : public RunningTimer, private wxTimer {
  public:
    WxTimer(std::function<void()> callback, int milliseconds)
        : callback_(std::make_shared<std::function<void()>>(std::move(callback))) {
        Start(milliseconds);
    }

  private:
    void Notify() override {
        const auto callback = callback_;  // a copy: the callback may destroy this timer
        (*callback)();
    }
    std::shared_ptr<std::function<void()>> callback_;
};

}  // namespace

WxDesktop::WxDesktop(ComponentFactory components, std::string settingsFile)
    : components_(std::move(components)), settings_(std::move(settingsFile)) {}

WxDesktop::~WxDesktop() = default;

// Screens -----------------------------------------------------------------------------------------

void WxDesktop::showModal(Screen& screen) {
    drawChanges();
    ScreenDialog dialog(windowFor(nullptr), screen);
    dialogs_.push_back(&dialog);
    dialog.run();
    std::erase(dialogs_, &dialog);
}

wxWindow* WxDesktop::windowFor(const Screen* owner) const {
    if (ScreenDialog* dialog = dialogOf(owner)) return dialog;
    if (!dialogs_.empty()) return dialogs_.back();
    wxWindow* main = wxTheApp->GetTopWindow();
    return main && main->IsShown() ? main : nullptr;
}

ScreenDialog* WxDesktop::dialogOf(const Screen* screen) const {
    const auto found =
        std::ranges::find_if(dialogs_, [&](ScreenDialog* d) { return &d->screen() == screen; });
    return found == dialogs_.end() ? nullptr : *found;
}

void WxDesktop::drawChanges() {
    for (ScreenDialog* dialog : dialogs_)
        dialog->drawChanges();
}

// Dialogs -----------------------------------------------------------------------------------------

MessageAnswer WxDesktop::messageBox(Screen* owner, std::string_view text, MessageButtons buttons,
                                    MessageIcon icon, std::string_view title) {
    drawChanges();
    return askMessage(windowFor(owner), toWx(title), toWx(text), buttons, icon);
}

std::optional<std::size_t> WxDesktop::choose(Screen* owner, std::string_view title, std::string_view question,
                                             std::span<const std::string> answers) {
    drawChanges();
    return askChoice(windowFor(owner), title.empty() ? wxString(programTitle) : toWx(title), toWx(question),
                     answers);
}

std::optional<std::string> WxDesktop::openFile(Screen& owner, std::string_view title,
                                               std::span<const FileFilter> filters) {
    drawChanges();
    return askFile(windowFor(&owner), FileDialogKind::Open, toWx(title), filters);
}

std::optional<std::string> WxDesktop::saveFile(Screen& owner, std::string_view title,
                                               std::span<const FileFilter> filters,
                                               std::string_view proposal) {
    drawChanges();
    return askFile(windowFor(&owner), FileDialogKind::Save, toWx(title), filters, toWx(proposal));
}

int WxDesktop::choosePopup(Screen& owner, const Command& popup, Control& below) {
    drawChanges();
    ScreenDialog* dialog = dialogOf(&owner);
    if (!dialog) return 0;
    const ControlView* view = dialog->viewOf(below);
    return askPopup(*dialog, popup, view ? view->popupPosition() : wxGetMousePosition());
}

void WxDesktop::printPreview(Screen& owner, const ReportControl& report, std::string_view title) {
    drawChanges();
    previewReport(windowFor(&owner), report, toWx(title));
    restoreFocus();
}

void WxDesktop::showHelp(Screen& owner, std::string_view file, std::int32_t context) {
    drawChanges();
    showHelpWindow(windowFor(&owner), applicationFolder(), std::string(file), context);
}

// Clipboard and timers ----------------------------------------------------------------------------

void WxDesktop::setClipboardText(std::string_view text) {
    const wxClipboardLocker clipboard;
    if (!clipboard) return;
    wxTheClipboard->SetData(new wxTextDataObject(toWx(text)));
}

std::string WxDesktop::clipboardText() {
    const wxClipboardLocker clipboard;
    wxTextDataObject text;
    if (!clipboard || !wxTheClipboard->GetData(text)) return {};
    return fromWx(text.GetText());
}

std::unique_ptr<RunningTimer> WxDesktop::startTimer(std::function<void()> callback, int milliseconds) {
    return std::make_unique<WxTimer>(std::move(callback), milliseconds);
}

// Processes ---------------------------------------------------------------------------------------

void WxDesktop::restoreFocus() {
    for (ScreenDialog* dialog : dialogs_)
        takeAllInput(*dialog);
    if (!dialogs_.empty()) dialogs_.back()->restoreFocus();
}

void WxDesktop::yield() {
    drawChanges();
    const ActiveLoop loop;
    if (yieldingLoop_ == loop.operator->()) return;  // a dialog that opens meanwhile has a loop of its own
    wxEventLoopBase* const outer = std::exchange(yieldingLoop_, loop.operator->());
    wxON_BLOCK_EXIT_SET(yieldingLoop_, outer);
    // Input that comes while a screen is busy is dropped: kept until afterwards, it would meet another state than the
    // one the user saw. A job takes input to be cancelled; its screen has disabled everything else.
    const bool job = !dialogs_.empty() && dialogs_.back()->screen().job();
    std::optional<InputDropper> dropper;
    if (!job) dropper.emplace();
    const auto end = std::chrono::steady_clock::now() + longestYield;
    bool quitting = false;  // the program is told to end
    while (!quitting && loop->Pending() && std::chrono::steady_clock::now() < end)
        quitting = !loop->Dispatch();
    wxTheApp->ProcessPendingEvents();
    loop->ProcessIdle();
    if (quitting) ForeignWindows::passQuitOn();
    for (ScreenDialog* dialog : dialogs_)
        dialog->Update();
}

bool WxDesktop::dropsInput() {
    return InputDropper::active();
}

ProcessEnd WxDesktop::runAndWait(std::string_view commandLine) {
    drawChanges();
    ProcessEnd end;
    {
        const wxWindowDisabler disabler;
        const ActiveLoop loop;
        bool quitting = false;  // the program is told to end, but waits for the process
        end = runProcess(commandLine, [&] {
            if (quitting) {
                wxMilliSleep(waitSlice);
            } else {
                quitting = loop->DispatchTimeout(waitSlice) == 0;
            }
        });
        if (quitting) ForeignWindows::passQuitOn();
    }
    restoreFocus();
    if (onProcessEnd) onProcessEnd(commandLine, end);
    return end;
}

bool WxDesktop::shellOpen(std::string_view file, std::string_view arguments) {
    return openDetached(file, arguments);
}

std::string WxDesktop::applicationFolder() {
    return fromWx(wxFileName(wxStandardPaths::Get().GetExecutablePath()).GetPath());
}

std::string WxDesktop::computerName() {
    return fromWx(wxGetHostName());
}

// Settings, resources and components --------------------------------------------------------------

std::optional<std::string> WxDesktop::readSetting(std::string_view key, std::string_view value) {
    return settings_.read(key, value);
}

void WxDesktop::writeSetting(std::string_view key, std::string_view value, std::string_view text) {
    settings_.write(key, value, text);
}

std::optional<std::string> WxDesktop::textResource(std::string_view name) {
    return findTextResource(name);
}

ObjectPtr WxDesktop::createObject(std::string_view programId) {
    if (ObjectPtr object = components_ ? components_(programId) : nullptr) return object;
    throw HostError(code::classNotRegistered, std::string(programId),
                    "The component '" + std::string(programId) + "' is not installed.");
}

}  // namespace tsln::desktop
