#include "workbench/host/CompanyManager42.h"

#include <filesystem>
#include <optional>
#include <vector>

#include "automation/FilePath.h"
#include "workbench/host/QueryDocument.h"
#include "workbench/host/TextOf.h"

namespace tsln::workbench {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view login = "sa";
constexpr std::size_t markLength = 4;
/// All of a connection string but the path, which follows to the end.
constexpr std::string_view source = "Provider=TSLN42;Data Source=";

std::string connectionTo(const std::string& path) {
    return std::string(source) + path;
}

/// The path in a connection string; an empty one leads to no company.
std::string pathIn(std::string_view connectionString) {
    return connectionString.starts_with(source) ? std::string(connectionString.substr(source.size())) : "";
}

bool isCompany42(const std::string& path) {
    try {
        const Company company(path, OpenMode::Version42);
        return true;
    } catch (const CompanyFileError&) {
        return false;
    }
}

/// The company in a folder, if there is just one.
std::optional<std::string> companyIn(const fs::path& folder) {
    std::optional<std::string> found;
    std::error_code ignored;
    for (fs::directory_iterator at(folder, ignored), end; at != end; at.increment(ignored)) {
        const std::string path = utf8Of(at->path());
        if (!at->is_regular_file(ignored) || !isCompany42(path)) continue;
        if (found) return std::nullopt;
        found = path;
    }
    return found;
}

class Description : public Object {
  public:
    Variant invoke(std::string_view member, Access access, Arguments arguments) override {
        static constexpr Member<Description> members[] = {
            {"Load",
             [](Description& self, Arguments a) {
                 a.require(3, 3);
                 self.path_ = textOf(a[0]);
                 std::error_code ignored;
                 if (fs::is_directory(pathOf(self.path_), ignored))
                     self.path_ = companyIn(pathOf(self.path_)).value_or(self.path_);
                 return Variant(!self.path_.empty() && textOf(a[1]) == login &&
                                textOf(a[2]).size() == markLength);
             }},
            {"ConnectionString",
             [](Description& self, Arguments) { return Variant(connectionTo(self.path_)); }},
        };
        return invokeMember<Description>(*this, "PSD", members, member, access, arguments);
    }

  private:
    std::string path_;
};

}  // namespace

CompanyManager42::CompanyManager42(std::shared_ptr<HostContext> context)
    : HostObject(std::move(context)), description_(std::make_shared<Description>()) {}

bool CompanyManager42::canOpen(const std::string& connectionString) {
    try {
        const Company company(pathIn(connectionString), OpenMode::Version42);
        return true;
    } catch (const CompanyFileError& error) {
        context().eventLog.record(EventLog::Error, error.what());
        return false;
    }
}

Variant CompanyManager42::invoke(std::string_view member, Access access, Arguments arguments) {
    using Self = CompanyManager42;
    static constexpr Member<Self> members[] = {
        {"PSD", [](Self& self, Arguments) { return Variant(self.description_); }},
        {"CanOpenCompany2",
         [](Self& self, Arguments a) {
             a.require(1, 1);
             return Variant(self.canOpen(textOf(a[0])));
         }},
        {"PreTerminate", [](Self&, Arguments) { return Variant(); }},
    };
    return answer(*this, "Company manager", members, member, access, arguments);
}

bool SqlEngine42::open(const std::string& connectionString) {
    try {
        company_ = std::make_unique<Company>(pathIn(connectionString), OpenMode::Version42);
        return true;
    } catch (const CompanyFileError& error) {
        context().eventLog.record(EventLog::Error, error.what());
        return false;
    }
}

Variant SqlEngine42::invoke(std::string_view member, Access access, Arguments arguments) {
    using Self = SqlEngine42;
    static constexpr Member<Self> members[] = {
        {"Initialize",
         [](Self& self, Arguments a) {
             a.require(1, 1);
             return Variant(self.open(textOf(a[0])));
         }},
        {"ExecuteRead",
         [](Self& self, Arguments a) {
             a.require(1, 1);
             if (!self.company_)
                 throw HostError(code::objectNotSet, "SQL engine",
                                 "The SQL engine has not been initialized.");
             return Variant(makeQueryDocument(self.company_->read(textOf(a[0]))));
         }},
        {"PreTerminate",
         [](Self& self, Arguments) {
             self.company_.reset();
             return Variant();
         }},
    };
    return answer(*this, "SQL engine", members, member, access, arguments);
}

}  // namespace tsln::workbench
