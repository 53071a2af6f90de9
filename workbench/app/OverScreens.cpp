#include "workbench/app/OverScreens.h"

#include <wx/wx.h>

namespace tsln::workbench {
namespace {

wxWindow* findOwner() {
    if (wxWindow* active = wxGetActiveWindow()) return wxGetTopLevelParent(active);
    return desktop::ForeignWindows::foremostRect().IsEmpty() ? wxTheApp->GetTopWindow() : nullptr;
}

}  // namespace

OverScreens::OverScreens() : owner_(findOwner()) {}

}  // namespace tsln::workbench
