#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "automation/Object.h"

namespace tsln::test {

/// A host that writes down what is asked of it and answers as the test says.
///
/// A call is known by its path: "ShowMessageStyle1" on the shared-code object, "Database.ExecuteRead" on a
/// sub-object, "tslniee5.Engine.DoExport" on a component. Without an answer of the test's own a host with
/// every right and an empty database answers. Any one call, the fetching of a sub-object included, can be
/// made to fail. "CurrentCompanyConn" is a sub-object like the others, a connection that runs every statement
/// and has the rows of the SELECTs.
class RecordingHost : public std::enable_shared_from_this<RecordingHost> {
  public:
    static std::shared_ptr<RecordingHost> make();

    ObjectPtr sharedCode();
    /// A component, for a desktop that creates it.
    ObjectPtr component(std::string_view programId);

    using Answer = std::function<Variant(Arguments)>;
    void on(std::string path, Answer answer) { answers_[std::move(path)] = std::move(answer); }
    void on(std::string path, Variant value) {
        on(std::move(path), [value](Arguments) { return value; });
    }
    /// The result text of a SELECT; statements without one have no rows.
    void rows(std::string sql, std::string records) { rows_[std::move(sql)] = std::move(records); }

    /// The statement that fails when it is run on the company's connection.
    std::string failStatement;
    /// The descriptions of the errors that the connection then reports.
    std::vector<std::string> connectionErrors;

    /// Everything asked, in order, as "Path(argument, ...)"; fetched sub-objects are not listed.
    std::vector<std::string> calls;
    /// The calls of one member, as the list of their argument texts.
    std::vector<std::string> callsOf(std::string_view path) const;
    /// Forgets what was asked so far.
    void forget();
    /// True when the host was asked to tell the user something.
    bool told() const;

    // Faults ------------------------------------------------------------------------------------------
    enum class Fault { Raise, False, Nothing, WrongType, Empty };
    /// Makes the call of that number (from 0) fail.
    void failCall(int number, Fault fault) { fault_ = {number, fault}; }
    int callCount() const { return callCount_; }
    /// How many of the objects handed out are still held.
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

/// A query result document of one text.
ObjectPtr makeDocument(std::string xml);

}  // namespace tsln::test
