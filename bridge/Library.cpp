#include "bridge/Library.h"

#include <filesystem>

#include "automation/FilePath.h"
#include "bridge/Host.h"
#include "bridge/SyncState.h"
#include "shared/CommandWord.h"
#include "shared/modSharedStrings.h"

namespace tsln {

Library::Library(Desktop& desktop) : desktop_(desktop) {
    plugInOwnOperations();
}

void Library::plugIn(Operation operation, Handler handler) {
    handlers_[static_cast<std::size_t>(operation)] = std::move(handler);
}

bool Library::isPluggedIn(Operation operation) const {
    return static_cast<bool>(handlers_[static_cast<std::size_t>(operation)]);
}

Variant Library::perform(Operation operation, Arguments arguments) {
    const OperationInfo& row = info(operation);
    arguments.require(row.argumentCount, row.argumentCount);
    // The handler gets variables of the declared types. The caller's variables may have other types.
    std::vector<Variant> variables(row.argumentCount);
    std::vector<Argument> converted;
    converted.reserve(row.argumentCount);
    for (std::size_t i = 0; i < row.argumentCount; ++i) {
        const auto& [passing, type, name] = row.argumentRow[i];
        variables[i] = convert(arguments[i], type);
        converted.push_back(passing == Passing::ByReference ? Argument::byReference(variables[i])
                                                            : Argument(variables[i]));
    }
    const std::vector<Variant> before = variables;
    const Handler& handler = handlers_[static_cast<std::size_t>(operation)];
    if (!handler) {
        throw HostError(code::notImplemented, "Library",
                        std::string(row.name) + ": this screen is not built yet.");
    }
    Variant result = convert(handler(*this, Arguments(converted)), row.result);
    // All conversions come before the first assignment, so that a call that fails changes no variable.
    for (std::size_t i = 0; i < row.argumentCount; ++i) {
        if (variables[i] != before[i]) variables[i] = convert(variables[i], row.argumentRow[i].type);
    }
    for (std::size_t i = 0; i < row.argumentCount; ++i) {
        if (variables[i] != before[i]) arguments.assign(i, std::move(variables[i]));
    }
    return result;
}

Variant Library::invoke(std::string_view member, Access access, Arguments arguments) {
    const auto operation = findOperation(member);
    if (!operation || info(*operation).visibility != Visibility::Public)
        raiseUnknownMember("Library", member);
    if (access == Access::Put) raiseWrongAccess("Library", member);
    return perform(*operation, arguments);
}

void Library::plugInOwnOperations() {
    plugIn(Operation::SharedCodeLibrary, [](Library& self, Arguments) { return Variant(self.sharedCode_); });
    plugIn(Operation::Initialize, [](Library& self, Arguments a) {
        self.sharedCode_ = a[0].toObject();
        return Variant();
    });
    plugIn(Operation::PreTerminate, [](Library& self, Arguments) {
        self.sharedCode_.reset();
        return Variant();
    });
    plugIn(Operation::InitialSyncComplete,
           [](Library& self, Arguments) { return Variant(self.initialSyncComplete()); });
    plugIn(Operation::RunPackageProcessor, [](Library& self, Arguments a) {
        self.runPackageProcessor(a[0].toText(), a[1].toBoolean());
        return Variant();
    });
}

bool Library::initialSyncComplete() {
    // A step that raises an error counts as passed (deliberate).
    const auto holds = [this](std::string_view sql, auto test) {
        try {
            return static_cast<bool>(test(Host(*this).database().ExecuteScaler(sql, "", "0")));
        } catch (const std::exception&) {
            return true;
        }
    };
    const auto positive = [](const Variant& count) { return count.toLong() > 0; };

    if (!holds("SELECT COUNT(*) AS theCount FROM Company",
               [](const Variant& n) { return n.toLong() == 1; })) {
        return false;
    }
    if (!holds("SELECT SyncState FROM Company",
               [](const Variant& state) { return state.toInteger() == InSync; })) {
        return false;
    }
    bool complete = true;
    for (const auto sql :
         {"SELECT COUNT(*) AS theCount FROM Employees", "SELECT COUNT(*) AS theCount FROM DiscountGroups",
          "SELECT COUNT(*) AS theCount FROM OrderStatusCodes",
          "SELECT COUNT(*) AS theCount FROM SecurityRoleAccess"}) {
        complete = holds(sql, positive) && complete;
    }
    return complete;
}

void Library::runPackageProcessor(const std::string& keys, bool wait) {
    const std::string program =
        modSharedStrings::appendPathSeparator(desktop_.applicationFolder()) + "tsln5pkg.exe";
    std::error_code ignored;
    if (!std::filesystem::exists(pathOf(program), ignored)) {
        desktop_.messageBox(nullptr, "The TSLN 5 Package Processor cannot be found.", MessageButtons::Ok,
                            MessageIcon::Exclamation);
        return;
    }
    const std::string arguments =
        (keys.empty() ? " /EnterKeys" : " /Keys:" + keys) + " /PSD:" + commandWord(Host(*this).PSDFile());
    if (wait) {
        // Without quotes, the program's name would end at the first blank of its folder.
        const bool blanks = program.find(' ') != std::string::npos;
        desktop_.runAndWait((blanks ? '"' + program + '"' : program) + arguments);
    } else {
        desktop_.shellOpen(program, arguments);
    }
}

}  // namespace tsln
