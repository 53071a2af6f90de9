#pragma once

namespace tsln::workbench {

/// Lets the program load libraries from its own folder and from the system's alone, not from the current folder or the
/// search path. Called first in main(). Only Windows looks in the current folder; elsewhere it does nothing.
void restrictLoadPath();

}  // namespace tsln::workbench
