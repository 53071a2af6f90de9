#pragma once

#include <functional>
#include <string>

#include "workbench/tour/Script.h"
#include "workbench/company/Company.h"

namespace tsln::workbench {

/// Tours the terms list like a user at the keyboard, starting in the workbench's window: the offer of default terms,
/// the package processor, New, Edit, a duplicate, Delete of several rows, Export, Import, print preview, help. Each
/// step saves a picture in `folder` and checks the result in the company database; the first failed check ends the
/// tour with ScriptFailure.
///
/// The tour deletes the company's terms at its start, because it begins with an empty list. The terms list must not
/// be open.
Script termsTour(Company& company, std::string folder);

/// Tours the charges and the bulk change in the same way: a new charge, a duplicate, the search for a free name, which is
/// cancelled, and 200 customers that are selected in the workbench and changed, three of which are gone. Adds customers to
/// the company. No screen must be open.
Script pricingTour(Company& company, std::string folder);

}  // namespace tsln::workbench
