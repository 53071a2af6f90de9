#include "workbench/app/Options.h"

#include <charconv>
#include <cstdlib>
#include <filesystem>

#include <CLI/CLI.hpp>

#include "automation/FilePath.h"
#include "bridge/Operations.h"

namespace tsln::workbench {
namespace {

std::filesystem::path dataFolder() {
#ifdef _WIN32
    if (const wchar_t* data = _wgetenv(L"LOCALAPPDATA"); data && *data) return data;
    return std::filesystem::temp_directory_path();
#else
    if (const char* data = std::getenv("XDG_DATA_HOME"); data && *data) return data;
    if (const char* home = std::getenv("HOME"); home && *home)
        return std::filesystem::path(home) / ".local/share";
    return std::filesystem::temp_directory_path();
#endif
}

std::string demonstrationCompany() {
    return utf8Of(dataFolder() / "tessaline" / "Demonstration.company");
}

bool readWholeNumber(const std::string& text, int& number) {
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size();
}

/// Returns why the operation on the command line cannot be called; empty when it can.
std::string problemWith(const std::vector<std::string>& show) {
    const auto operation = findOperation(show.front());
    if (!operation || info(*operation).visibility != Visibility::Public) {
        return "There is no operation " + show.front() + ".";
    }
    const auto wanted = info(*operation).argumentCount;
    if (show.size() - 1 == wanted) return {};
    return show.front() + " takes " + std::to_string(wanted) + " argument(s), not " +
           std::to_string(show.size() - 1) + ".";
}

}  // namespace

std::optional<Options> readCommandLine(int argc, const char* const* argv, int& exitCode) {
    CLI::App line(
        "Tessaline workbench: the maintenance module in a small host with an embedded company database.",
        "tessaline-workbench");
    Options options;
    auto* company =
        line.add_option("--company", options.company,
                        "Company file; made with demonstration data when it does not exist (default: " +
                            demonstrationCompany() + ")")
            ->type_name("FILE");
    line.add_option("--user", options.user,
                    "Login name: \"admin\" may do all, \"viewer\" may only look (default: admin). The password of a user who has one is asked for, or taken from the environment variable TSLN_PASSWORD")
        ->type_name("NAME");
    auto* show = line.add_option("--show", options.show,
                                 "Call an operation with its arguments, print its result and end")
                     ->type_name("OPERATION [ARGUMENT...]")
                     ->expected(1, 4);
    // Both options delete rows, so they do not accept an existing company.
    auto* tour =
        line.add_option(
                "--tour", options.tour,
                "Go through terms, customers, roles and employees, charges, a bulk change, measurements and messages on a fresh company as a user at the keyboard, and save a picture of each step in the folder")
            ->type_name("FOLDER")
            ->excludes(show)
            ->excludes(company);
    auto* gallery =
        line.add_option(
                "--gallery", options.gallery,
                "Open every screen over a fresh company and save a picture of each window in the folder (default: tessaline-gallery among the temporary files)")
            ->type_name("[FOLDER]")
            ->expected(0, 1)
            ->excludes(show)
            ->excludes(tour)
            ->excludes(company);
    auto* migrate =
        line.add_option(
                "--migrate", options.migrate,
                "Bring a company of version 4.2 into the company, without windows, and print what came over")
            ->type_name("FILE")
            ->excludes(show)
            ->excludes(tour)
            ->excludes(gallery);
    std::vector<std::string> make;
    line.add_option(
            "--make-42", make,
            "Make a company of version 4.2 with demonstration data and a number of customers (default: " +
                std::to_string(options.customers42) + ")")
        ->type_name("FILE [CUSTOMERS]")
        ->expected(1, 2)
        ->excludes(show)
        ->excludes(tour)
        ->excludes(gallery)
        ->excludes(migrate);
    line.footer(
        "Exit codes: 1 the operation, the tour, the gallery or the migration failed, 2 wrong command line, 3 the company file cannot be used, 4 no such user or a wrong password, 5 no display.");
    try {
        line.parse(argc, argv);
        if (!options.show.empty()) {
            if (const std::string problem = problemWith(options.show); !problem.empty()) {
                throw CLI::ValidationError("--show", problem);
            }
        }
        if (!make.empty()) options.make42 = make[0];
        if (make.size() > 1 && (!readWholeNumber(make[1], options.customers42) || options.customers42 < 0))
            throw CLI::ValidationError("--make-42", "'" + make[1] + "' is no number of customers.");
    } catch (const CLI::ParseError& error) {
        exitCode = line.exit(error) == 0 ? 0 : exitUsage;
        return std::nullopt;
    }
    std::error_code ignored;  // a missing folder is reported when the company file is opened
    if (gallery->count() > 0 && options.gallery.empty())
        options.gallery = utf8Of(std::filesystem::temp_directory_path() / "tessaline-gallery");
    for (std::string* folder : {&options.tour, &options.gallery}) {
        if (folder->empty()) continue;
        *folder = utf8Of(std::filesystem::absolute(pathOf(*folder)));
        std::filesystem::create_directories(pathOf(*folder), ignored);
        if (!options.company.empty()) continue;
        options.company = *folder + "/fresh.company";
        std::filesystem::remove(pathOf(options.company), ignored);
    }
    if (options.company.empty()) {
        options.company = demonstrationCompany();
        std::filesystem::create_directories(pathOf(options.company).parent_path(), ignored);
    }
    return options;
}

}  // namespace tsln::workbench
