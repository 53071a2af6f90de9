#include "desktop/Accessibility.h"

#include <string>

#include <wx/window.h>
#if wxUSE_ACCESSIBILITY
#include <wx/access.h>
#endif

#ifdef __WXGTK__
#include <dlfcn.h>
#endif

#include "desktop/Text.h"

namespace tsln::desktop {
namespace {

#if wxUSE_ACCESSIBILITY
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
#endif

#ifdef __WXGTK__
/// The toolkit below is loaded anyway but its headers are no part of the build, so the two functions are
/// looked up by name; where they are missing the window goes without.
void setAtkName(void* widget, const char* name) {
    using GetAccessible = void* (*)(void*);
    using SetName = void (*)(void*, const char*);
    static const auto getAccessible =
        reinterpret_cast<GetAccessible>(dlsym(RTLD_DEFAULT, "gtk_widget_get_accessible"));
    static const auto setName = reinterpret_cast<SetName>(dlsym(RTLD_DEFAULT, "atk_object_set_name"));
    if (!widget || !getAccessible || !setName) return;
    if (void* accessible = getAccessible(widget)) setName(accessible, name);
}
#endif

}  // namespace

void setAccessibleName(wxWindow& window, const wxString& name) {
#if wxUSE_ACCESSIBILITY
    window.SetAccessible(new NamedAccessible(&window, name));
#elif defined(__WXGTK__)
    setAtkName(window.GetHandle(), fromWx(name).c_str());
#endif
    window.SetName(name);
}

}  // namespace tsln::desktop
