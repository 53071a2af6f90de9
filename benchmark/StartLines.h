#pragma once

namespace tsln::bench {

/// Starts the module in this new process, opens a list, and prints the seconds of each part.
void startOnce(int argc, char** argv);

}  // namespace tsln::bench
