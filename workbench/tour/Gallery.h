#pragma once

#include <functional>
#include <string>
#include <vector>

#include "automation/Object.h"
#include "workbench/tour/GalleryStops.h"
#include "workbench/tour/Script.h"
#include "workbench/company/Company.h"

class wxTopLevelWindow;

namespace tsln::workbench {

/// Visits all screens in real windows over the company. Saves a picture of the workbench, then of each window that a
/// stop opens, in `folder`, with a page "index.html" that shows all of them. Screens that are not built yet are
/// skipped. After the last stop the script fails with all faults: a call that raised an error, a window that Esc does
/// not close, and the results of drawingFaults().
///
/// `library` is called while the script waits; the workbench's own window is hidden then.
Script galleryRound(ObjectPtr library, Company& company, wxTopLevelWindow& workbench,
                    std::vector<GalleryStop> stops, std::string folder);

}  // namespace tsln::workbench
