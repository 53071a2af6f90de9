#pragma once

#include <cstdint>
#include <functional>
#include <map>
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

/// A user name that may not log in. what() is a sentence for the user.
class SignInError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// The employee who is signed in.
struct User {
    std::int32_t ID = 0;
    std::string login;
    std::string name;
    std::string passwordHash;  ///< the digest of the password; empty without one
};

/// A notice that the module posted: a code, such as 3001 for an added customer, and the record it is about.
struct Notice {
    std::int32_t code = 0;
    std::string about;
};

/// The state shared by the host's objects: the open company, its user and the user interface.
class HostContext {
  public:
    /// Opens the company and signs the user in. `hostUi` must outlive the context.
    /// Throws CompanyFileError, SignInError, SqlError.
    HostContext(const std::string& path, OpenMode mode, std::string_view login, HostUi& hostUi);

    /// Reads name, login name and password of the signed-in user again. A user who was deleted meanwhile stays as read
    /// before. Throws SqlError.
    void readUserAgain();

    Company company;
    HostUi& ui;
    User user;
    EventLog eventLog;
    OptionStore options;
    std::vector<Notice> notices;  ///< the latest thousand, oldest first
    /// The paths of programs that came with the host, by name. The company's option "External Programs" goes first.
    std::map<std::string, std::string, std::less<>> programs;

    struct {
        std::int32_t code = 0;
        std::string text;
    } lastSqlError;
};

/// An object of the host. It keeps the context alive, so the module may hold it beyond the session's end.
class HostObject : public Object {
  public:
    explicit HostObject(std::shared_ptr<HostContext> context) : context_(std::move(context)) {}

  protected:
    HostContext& context() const noexcept { return *context_; }
    const std::shared_ptr<HostContext>& sharedContext() const noexcept { return context_; }

    /// Runs the work. Raises its SqlError as a HostError with the error's text.
    template <class Work>
    static Variant raisingSqlErrors(std::string_view who, const Work& work) {
        try {
            return work();
        } catch (const SqlError& error) {
            throw HostError(code::fail, std::string(who), error.what());
        }
    }

    /// Calls the member in the table. Raises database errors as HostError.
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
