#pragma once

#include <optional>
#include <string>
#include <vector>

namespace tsln::workbench {

/// How the workbench ends, besides 0.
enum ExitCode {
    exitFailed = 1,   ///< the shown operation raised an error, the tour or the gallery did not come out
    exitUsage = 2,    ///< the command line cannot be understood
    exitCompany = 3,  ///< the company file cannot be used
    exitUser = 4,     ///< there is no such user
    exitDisplay = 5,  ///< there is no display
};

/// What the command line asks for.
struct Options {
    std::string company;         ///< path of the company file
    std::string user = "admin";  ///< login name
    std::vector<std::string>
        show;             ///< an operation and its arguments, to be called without the workbench window
    std::string tour;     ///< folder for the pictures of the tour
    std::string gallery;  ///< folder for the pictures of every screen
};

/// Reads the command line. When there is nothing to run (help was asked for, or the line is in error), what
/// there is to say has been printed and `exitCode` set.
std::optional<Options> readCommandLine(int argc, const char* const* argv, int& exitCode);

}  // namespace tsln::workbench
