#pragma once

namespace tsln::bench {

/// Starts the module in this process, which has done nothing yet, opens a list, and prints the seconds each
/// part took.
void startOnce(int argc, char** argv);

}  // namespace tsln::bench
