#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "automation/Object.h"

namespace tsln::test {

/// The ways in which a call to the host fails: it raises an error, or returns something else than the caller expects.
enum class Fault { Raise, False, Nothing, WrongType, Empty };
inline constexpr Fault allFaults[] = {Fault::Raise, Fault::False, Fault::Nothing, Fault::WrongType, Fault::Empty};

/// Returns what a call that fails in this way returns, or raises its error.
Variant wrongAnswer(Fault fault);

/// A host that records all calls and answers as the test says.
///
/// A call is identified by its path: "ShowMessageStyle1" on the shared-code object, "Database.ExecuteRead" on a
/// sub-object, "tslniee5.Engine.DoExport" on a component. Without an answer from the test, it answers like a host
/// with all rights and an empty database. Any one call, including the fetching of a sub-object, can be made to fail.
/// "CurrentCompanyConn" is a sub-object too: a connection that runs every statement and returns the rows of the
/// SELECTs.
class RecordingHost : public std::enable_shared_from_this<RecordingHost> {
  public:
    static std::shared_ptr<RecordingHost> make();

    ObjectPtr sharedCode();
    /// Creates a component, for a desktop's createObject().
    ObjectPtr component(std::string_view programId);

    using Answer = std::function<Variant(Arguments)>;
    void on(std::string path, Answer answer) { answers_[std::move(path)] = std::move(answer); }
    void on(std::string path, Variant value) {
        on(std::move(path), [value](Arguments) { return value; });
    }
    /// Sets the result of a SELECT. Other SELECTs have no rows.
    void rows(std::string sql, std::string records) { rows_[std::move(sql)] = std::move(records); }

    /// The statement that fails on the company's connection.
    std::string failStatement;
    /// The error descriptions that the connection reports after the failure.
    std::vector<std::string> connectionErrors;

    /// All calls in order, as "Path(argument, ...)". Fetched sub-objects are not listed.
    std::vector<std::string> calls;
    /// The calls of one member, each as its argument texts.
    std::vector<std::string> callsOf(std::string_view path) const;
    /// Clears the recorded calls.
    void forget();
    /// True when the module asked the host to show the user a message.
    bool told() const;

    // Faults ------------------------------------------------------------------------------------------
    /// Makes the call with this number (from 0) fail.
    void failCall(int number, Fault fault) { fault_ = {number, fault}; }
    int callCount() const { return callCount_; }
    /// The number of handed-out objects that are still referenced.
    int liveObjects() const;

  private:
    class Part;
    Variant answer(const std::string& path, Access access, Arguments arguments);
    ObjectPtr part(std::string prefix);
    Variant usualAnswer(const std::string& path, Arguments arguments);

    struct PlannedFault {
        int number;
        Fault fault;
    };
    std::map<std::string, Answer> answers_;
    std::map<std::string, std::string> rows_;
    std::optional<PlannedFault> fault_;
    int callCount_ = 0;
    std::vector<std::weak_ptr<Object>> parts_;
};

/// Creates a query result document from its text.
ObjectPtr makeDocument(std::string xml);

}  // namespace tsln::test
