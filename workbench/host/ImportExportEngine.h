#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "workbench/host/EngineObject.h"

namespace tsln::workbench {

/// The component "tslniee5.Engine": writes lists of the company into a file and reads them back.
///
/// "Initialize" takes the shared-code object, which hears what went wrong by its event log; "PreTerminate"
/// lets go of it. Export: "AddToExport" (list, query) for each list, then "DoExport" (file). Import:
/// "ImportFile" (file, list), or without the list every list of the file. Both answer whether all of it was
/// done; a failed export leaves an existing file as it was, a failed import the company. With "SimpleExport"
/// the file is made for other companies: identity, dates of change and the mark of having been sent to
/// accounting stay out. "Verbose" writes how many records came in to the event log. "Is42Upgrade" is kept for
/// whoever asks; the file of an upgrade is read the same.
class ImportExportEngine : public EngineObject {
  public:
    using EngineObject::EngineObject;

  private:
    Variant invokeOwn(std::string_view member, Access access, Arguments arguments) override;
    void terminated() override { exports_.clear(); }
    struct Export {
        std::string list, query;
    };
    void addToExport(std::string list, std::string query);
    void writeFile(const std::string& path);
    void readFile(const std::string& path, const std::string& list);
    /// Runs the work; what goes wrong becomes an event and the answer false.
    Variant succeeded(std::string_view what, const std::function<void()>& work);
    void record(std::int32_t type, const std::string& text);

    std::vector<Export> exports_;
    bool simpleExport_ = false;
    bool verbose_ = false;
    bool is42Upgrade_ = false;
};

}  // namespace tsln::workbench
