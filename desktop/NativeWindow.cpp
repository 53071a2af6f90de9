#include "desktop/NativeWindow.h"

#include <string>

#include <wx/toplevel.h>
#include <wx/window.h>
#if wxUSE_ACCESSIBILITY
#include <wx/access.h>
#endif

#ifdef __WXGTK__
#include <dlfcn.h>
#endif

#include "desktop/Text.h"

namespace tsln::desktop {

#ifdef __WXGTK__

namespace {

/// A function of the toolkit below, which is loaded anyway; its headers are no part of the build. Null when
/// it is not there.
template <class Function>
Function* toolkitFunction(const char* name) {
    return reinterpret_cast<Function*>(dlsym(RTLD_DEFAULT, name));
}

}  // namespace

void setAccessibleName(wxWindow& window, const wxString& name) {
    window.SetName(name);
    static auto* const accessibleOf = toolkitFunction<void*(void*)>("gtk_widget_get_accessible");
    static auto* const setName = toolkitFunction<void(void*, const char*)>("atk_object_set_name");
    if (!accessibleOf || !setName || !window.GetHandle()) return;
    if (void* accessible = accessibleOf(window.GetHandle())) setName(accessible, fromWx(name).c_str());
}

bool hasKeyboard(const wxWindow& window) {
    static auto* const focusOf = toolkitFunction<void*(void*)>("gtk_window_get_focus");
    static auto* const isWithin = toolkitFunction<int(void*, void*)>("gtk_widget_is_ancestor");
    const wxWindow* top = wxGetTopLevelParent(const_cast<wxWindow*>(&window));
    if (!focusOf || !isWithin || !top || !top->GetHandle() || !window.GetHandle()) return window.HasFocus();
    void* focus = focusOf(top->GetHandle());
    return focus && (focus == window.GetHandle() || isWithin(focus, window.GetHandle()));
}

#else

#if wxUSE_ACCESSIBILITY
namespace {

class NamedAccessible : public wxAccessible {
  public:
    NamedAccessible(wxWindow* window, wxString name) : wxAccessible(window), name_(std::move(name)) {}
    wxAccStatus GetName(int child, wxString* name) override {
        if (child != 0) return wxACC_NOT_IMPLEMENTED;
        *name = name_;
        return wxACC_OK;
    }

  private:
    wxString name_;
};

}  // namespace
#endif

void setAccessibleName(wxWindow& window, const wxString& name) {
    window.SetName(name);
#if wxUSE_ACCESSIBILITY
    window.SetAccessible(new NamedAccessible(&window, name));
#endif
}

bool hasKeyboard(const wxWindow& window) {
    for (const wxWindow* at = wxWindow::FindFocus(); at; at = at->GetParent()) {
        if (at == &window) return true;
    }
    return false;
}

#endif

}  // namespace tsln::desktop
