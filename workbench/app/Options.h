#pragma once

#include <optional>
#include <string>
#include <vector>

namespace tsln::workbench {

/// The exit codes of the workbench, except 0.
enum ExitCode {
    exitFailed =
        1,          ///< the shown operation raised an error, or the tour, the gallery or the migration failed
    exitUsage = 2,  ///< the command line is invalid
    exitCompany = 3,  ///< the company file cannot be used
    exitUser = 4,     ///< there is no such user, or the password is wrong
    exitDisplay = 5,  ///< there is no display
};

/// The options on the command line.
struct Options {
    std::string company;            ///< path of the company file
    std::string user = "admin";     ///< login name
    std::vector<std::string> show;  ///< an operation and its arguments, called without the workbench window
    std::string tour;               ///< folder for the pictures of the tour
    std::string gallery;            ///< folder for the pictures of all screens
    std::string migrate;            ///< company of version 4.2 to be migrated without windows
    std::string make42;             ///< company of version 4.2 to be made
    int customers42 = 250;          ///< the number of its customers
};

/// Reads the command line. When there is nothing to run, after a request for help or an error, returns nothing,
/// having printed the help or the error and set `exitCode`.
std::optional<Options> readCommandLine(int argc, const char* const* argv, int& exitCode);

}  // namespace tsln::workbench
