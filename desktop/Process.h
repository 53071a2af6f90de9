#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "screens/Desktop.h"

namespace tsln::desktop {

/// Splits a command line into words at blanks outside double quotes. The quotes are dropped. Before a quote, two
/// backslashes stand for one, and a single one makes the quote a part of the word, as in the C runtime of Windows. No other
/// character is special.
std::vector<std::string> splitCommandLine(std::string_view commandLine);

/// Starts a process with the caller's environment, working folder and open files and waits for its end. Calls
/// `idle` repeatedly meanwhile; `idle` should take about 20 milliseconds. Throws only exceptions of `idle`.
ProcessEnd runProcess(std::string_view commandLine, const std::function<void()>& idle);

/// Starts a program, or opens a document with its associated program. Does not wait for its end. Returns false when no
/// program could be started.
bool openDetached(std::string_view file, std::string_view arguments);

}  // namespace tsln::desktop
