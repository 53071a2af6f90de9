#pragma once

#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "automation/Object.h"
#include "workbench/company/Company.h"
#include "workbench/host/EventLog.h"
#include "workbench/host/HostUi.h"
#include "workbench/host/OptionStore.h"

namespace tsln::workbench {

/// Nobody of that name may log in. what() is a sentence for the user.
class SignInError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// The employee who works with the company.
struct User {
    std::int32_t ID = 0;
    std::string login;
    std::string name;
};

/// A notice that the module posted: a code such as 3001 for a customer added, and what it is about.
struct Notice {
    std::int32_t code = 0;
    std::string about;
};

/// What the host's objects share: the open company, its user and whoever shows messages.
class HostContext {
  public:
    /// Opens the company and signs the user in. `hostUi` must outlive the context.
    /// Throws CompanyFileError, SignInError, SqlError.
    HostContext(const std::string& path, OpenMode mode, std::string_view login, HostUi& hostUi);

    Company company;
    HostUi& ui;
    User user;
    EventLog eventLog;
    OptionStore options;
    std::vector<Notice> notices;  ///< the latest thousand, oldest first

    struct {
        std::int32_t code = 0;
        std::string text;
    } lastSqlError;
};

/// One of the host's objects. It keeps the context alive, so the module may hold it past the session's end.
class HostObject : public Object {
  public:
    explicit HostObject(std::shared_ptr<HostContext> context) : context_(std::move(context)) {}

  protected:
    HostContext& context() const noexcept { return *context_; }

    /// What the database refuses during the work is raised with its words.
    template <class Work>
    static Variant raisingSqlErrors(std::string_view who, const Work& work) {
        try {
            return work();
        } catch (const SqlError& error) {
            throw HostError(code::fail, std::string(who), error.what());
        }
    }

    /// Answers from a member table, raising what the database refuses.
    template <class Self, std::size_t N>
    static Variant answer(Self& self, std::string_view who, const Member<Self> (&members)[N],
                          std::string_view member, Access access, Arguments arguments) {
        return raisingSqlErrors(
            who, [&] { return invokeMember<Self>(self, who, members, member, access, arguments); });
    }

  private:
    std::shared_ptr<HostContext> context_;
};

}  // namespace tsln::workbench
