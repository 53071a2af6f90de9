#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "screens/Desktop.h"

namespace tsln::desktop {

/// The words of a command line: parted by blanks outside double quotes; the quotes are dropped, and \" stands
/// for a quote. No other character is special.
std::vector<std::string> splitCommandLine(std::string_view commandLine);

/// Starts a process with the caller's environment, working folder and open files and waits for its end,
/// calling `idle` over and over; `idle` should take some 20 milliseconds. Does not throw but what `idle`
/// throws.
ProcessEnd runProcess(std::string_view commandLine, const std::function<void()>& idle);

/// Starts a program, or opens a document with the program it belongs to; does not wait.
void openDetached(std::string_view file, std::string_view arguments);

}  // namespace tsln::desktop
