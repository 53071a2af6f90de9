#ifdef _WIN32
#include <wx/filename.h>
#include <wx/window.h>
// clang-format off: must follow the wx headers
#include <wx/msw/wrapwin.h>

#include <htmlhelp.h>
// clang-format on

#include "desktop/HtmlHelp.h"

namespace tsln::desktop {
namespace {

/// The help viewer, loaded at its first use: not every system has it.
class Viewer {
  public:
    using Function = HWND(WINAPI*)(HWND, LPCWSTR, UINT, DWORD_PTR);

    Function function() {
        if (!module_) module_ = LoadLibraryExW(L"hhctrl.ocx", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
        if (!module_) return nullptr;
        return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module_, "HtmlHelpW")));
    }
    void close() {
        if (!module_) return;
        if (const Function call = function()) call(nullptr, nullptr, HH_CLOSE_ALL, 0);
        FreeLibrary(module_);
        module_ = nullptr;
    }

  private:
    HMODULE module_ = nullptr;
};

Viewer viewer;

}  // namespace

bool showHtmlHelp(wxWindow* owner, const wxString& file, unsigned context) {
    if (!wxFileExists(file)) return false;
    const Viewer::Function call = viewer.function();
    const HWND window = owner ? static_cast<HWND>(owner->GetHandle()) : nullptr;
    return call && call(window, file.wc_str(), HH_HELP_CONTEXT, context);
}

void closeHtmlHelp() {
    viewer.close();
}

}  // namespace tsln::desktop
#endif
