#pragma once

#include <string>

#include "automation/Object.h"
#include "workbench/company/Company.h"
#include "workbench/tour/Script.h"

namespace tsln::workbench {

/// Tours the measurements and messages like a user at the keyboard: twenty measurements that the stand-in of the laser
/// meter types; a template made, tested with a customer whose name holds an apostrophe and saved; its message found
/// among the sent ones and saved as text. Each step saves a picture in `folder`, which must exist, and checks the result
/// in the company database; the first failed check ends the tour with ScriptFailure.
///
/// `library` is called while the script waits.
Script messagesTour(const ObjectPtr& library, Company& company, const std::string& folder);

}  // namespace tsln::workbench
