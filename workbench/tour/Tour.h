#pragma once

#include <functional>
#include <string>

#include "workbench/tour/Script.h"
#include "workbench/company/Company.h"

namespace tsln::workbench {

/// A tour of the terms list as a user at the keyboard goes through it, from the workbench's own window: the
/// offer of the defaults, the package processor, New, Edit, a duplicate, Delete of several rows, Export,
/// Import, print preview, help. Each step is a picture in `folder`, and the company database must hold after
/// each step what the step was for; the first that does not ends the tour with ScriptFailure.
///
/// The company loses its terms: an empty list is where the tour begins. The terms list must not be open.
Script termsTour(Company& company, std::string folder);

}  // namespace tsln::workbench
