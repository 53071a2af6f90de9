#include "benchmark/WatchedList.h"

#include <wx/app.h>
#include <wx/toplevel.h>

namespace tsln::bench {
namespace {

desktop::ReportGrid* findList(const wxWindowList& windows) {
    for (wxWindow* window : windows) {
        if (auto* list = dynamic_cast<desktop::ReportGrid*>(window)) return list;
        if (auto* list = findList(window->GetChildren())) return list;
    }
    return nullptr;
}

}  // namespace

WatchedList::Moments WatchedList::open(Library& library, std::optional<std::size_t> mostID,
                                       const std::function<void(desktop::ReportGrid&)>& whileOpen) {
    const Clock::time_point started = Clock::now();
    WatchedList screen(library, mostID);
    screen.moments_.started = started;
    bool drawn = false;
    const auto onIdle = [&](wxIdleEvent& event) {
        event.Skip();
        desktop::ReportGrid* const list = screen.loaded_ ? findList(wxTopLevelWindows) : nullptr;
        if (!list || drawn) return;
        drawn = true;
        list->rowsWindow().Update();
        screen.moments_.drawn = Clock::now();
        if (whileOpen) whileOpen(*list);
        wxTheApp->CallAfter([&screen] { screen.cmdClose.userPress(); });
    };
    wxTheApp->Bind(wxEVT_IDLE, onIdle);
    screen.load();
    screen.showModal();
    screen.unload();
    wxTheApp->Unbind(wxEVT_IDLE, onIdle);
    return screen.moments_;
}

Layout WatchedList::layout() {
    moments_.building = Clock::now();
    // Posted before the window's own events, so it runs as soon as the window is built and shown.
    wxTheApp->CallAfter([this] { moments_.built = Clock::now(); });
    return BenchList::layout();
}

void WatchedList::Form_Activate() {
    moments_.activated = Clock::now();
    BenchList::Form_Activate();
}

std::string WatchedList::loadStatement() const {
    moments_.loading = Clock::now();
    return BenchList::loadStatement();
}

void WatchedList::listLoaded() {
    moments_.loaded = Clock::now();
    loaded_ = true;
}

}  // namespace tsln::bench
