#pragma once

#include <wx/wx.h>

#include "automation/Object.h"
#include "workbench/host/CompanySession.h"

namespace tsln::workbench {

/// Lets the user select customers or orders, as the host's lists do, and opens the bulk change of them.
void selectForBulkChange(wxWindow* owner, CompanySession& session, Object& library);

}  // namespace tsln::workbench
