#pragma once

#include <string>

#include "workbench/company/Company.h"
#include "workbench/tour/Script.h"

namespace tsln::workbench {

/// Tours the customer editor like a user at the keyboard, starting in the workbench's window: a customer is entered,
/// opened again and changed, then the quotes and orders of a customer are updated. Each step saves a picture in `folder`
/// and checks the result in the company database; the first failed check ends the tour with ScriptFailure.
Script customerTour(Company& company, std::string folder);

}  // namespace tsln::workbench
