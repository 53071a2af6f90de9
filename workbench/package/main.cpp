// The package processor: installs sets of default records into a company. It is a separate program, started by the
// host:
//
//   tsln5pkg.exe /Keys:TSLN50_Terms;TSLN50_JobTypes /PSD:"/path/host.psd"
//   tsln5pkg.exe /EnterKeys /PSD:"/path/host.psd"      asks for the keys on standard input
//
// Keys are separated by ";" or ",". The PSD file names the company (see PackageSource.h). /Delay:MILLISECONDS waits
// after each record, to show and to test that the host waits. Results are written to standard output and to the
// company's event log, errors to standard error. All keys are checked before the first set is installed. Each set is
// installed completely or not at all.
//
// Exit codes: see Exit.

#include <chrono>
#include <iostream>
#include <string>
#include <thread>
#include <vector>

#include "workbench/company/CommandLine.h"
#include "workbench/company/LoadPath.h"
#include "workbench/company/PackageSource.h"
#include "workbench/sql/TextOrder.h"
#include "workbench/package/Packages.h"

namespace {

using namespace tsln::workbench;

enum Exit {
    Done = 0,
    BadCommandLine = 1,  ///< an option is unknown, missing or malformed
    NoKeys = 2,          ///< no keys were entered
    UnknownKey = 3,      ///< nothing was installed
    NoSource = 4,        ///< the PSD file cannot be read
    NoCompany = 5,       ///< the company cannot be opened
    InstallFailed = 6,   ///< a set could not be installed; earlier sets are installed
    InternalError = 7,
};

struct Failure {
    Exit code;
    std::string text;
};

struct Options {
    std::string keys, psd;
    bool enterKeys = false;
    std::chrono::milliseconds delay{0};
};

std::chrono::milliseconds readDelay(const std::string& text) {
    if (text.empty() || text.size() > 6 || text.find_first_not_of("0123456789") != std::string::npos) {
        throw Failure{BadCommandLine, "/Delay: needs a number of milliseconds."};
    }
    return std::chrono::milliseconds(std::stoi(text));
}

Options readOptions(const std::vector<std::string>& words) {
    Options options;
    for (std::size_t i = 1; i < words.size(); ++i) {
        const std::string& argument = words[i];
        if (auto keys = optionValue(argument, "/Keys:")) {
            options.keys = *keys;
        } else if (auto psd = optionValue(argument, "/PSD:")) {
            options.psd = *psd;
        } else if (auto delay = optionValue(argument, "/Delay:")) {
            options.delay = readDelay(*delay);
        } else if (compareText(argument, "/EnterKeys") == 0) {
            options.enterKeys = true;
        } else {
            throw Failure{BadCommandLine, "The option '" + argument + "' is not known."};
        }
    }
    if (options.psd.empty()) throw Failure{BadCommandLine, "The option /PSD: is missing."};
    if (options.keys.empty() && !options.enterKeys) {
        throw Failure{BadCommandLine, "One of the options /Keys: and /EnterKeys is needed."};
    }
    return options;
}

std::string askForKeys() {
    std::cout << "Package keys, separated by \";\": " << std::flush;
    std::string line;
    std::getline(std::cin, line);
    return line;
}

std::vector<std::string> splitKeys(const std::string& keys) {
    std::vector<std::string> result;
    std::size_t at = 0;
    while (at < keys.size()) {
        std::size_t start = keys.find_first_not_of(";, \t\r", at);
        if (start == std::string::npos) break;
        std::size_t end = std::min(keys.find_first_of(";, \t\r", start), keys.size());
        result.push_back(keys.substr(start, end - start));
        at = end;
    }
    return result;
}

Company openCompany(const std::string& path) try {
    return Company(path, OpenMode::ReadWrite);
} catch (const CompanyFileError& error) {
    throw Failure{NoCompany, error.what()};
}

void run(const std::vector<std::string>& words) {
    Options options = readOptions(words);
    std::vector<std::string> keys = splitKeys(options.enterKeys ? askForKeys() : options.keys);
    if (keys.empty()) throw Failure{NoKeys, "There are no package keys to install."};

    std::vector<Package> packages = loadPackages();
    std::vector<const Package*> wanted;
    for (const std::string& key : keys) {
        const Package* package = findPackage(packages, key);
        if (!package) throw Failure{UnknownKey, "The package key '" + key + "' is not known."};
        wanted.push_back(package);
    }

    Company company = openCompany(readPackageSource(options.psd).company);
    if (company.readOnly())
        throw Failure{NoCompany, "The company file '" + company.path() + "' can only be read."};
    for (const Package* package : wanted) {
        std::cout << "Installing the default " << package->title << "..." << std::endl;
        try {
            InstallResult result = installPackage(company, *package, [&](int done) {
                std::cout << "  " << done << " of " << package->records.size() << std::endl;
                std::this_thread::sleep_for(options.delay);
            });
            std::cout << result.added << " added, " << result.skipped << " already there." << std::endl;
        } catch (const SqlError& error) {
            throw Failure{InstallFailed,
                          "The default " + package->title + " could not be installed. " + error.what()};
        }
    }
}

}  // namespace

int main(int count, char** arguments) {
    restrictLoadPath();
    try {
        run(commandLineWords(count, arguments));
        return Done;
    } catch (const Failure& failure) {
        std::cerr << failure.text << std::endl;
        return failure.code;
    } catch (const PackageSourceError& error) {
        std::cerr << error.what() << std::endl;
        return NoSource;
    } catch (const std::exception& error) {
        std::cerr << "The package processor failed: " << error.what() << std::endl;
        return InternalError;
    }
}
