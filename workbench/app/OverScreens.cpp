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

void OverScreens::own(wxDialog& dialog) {
    screens_.own(dialog, [&dialog] { dialog.CallAfter([&dialog] { dialog.EndModal(wxID_CANCEL); }); });
}

}  // namespace tsln::workbench
