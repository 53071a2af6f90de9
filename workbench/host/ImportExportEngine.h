#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <pugixml.hpp>

#include "workbench/host/EngineObject.h"
#include "workbench/host/ImportProgress.h"
#include "workbench/host/ReferencedRows.h"

namespace tsln::workbench {

/// The component "tslniee5.Engine": exports lists of the company to a file and imports them.
///
/// "Initialize" takes the shared-code object, whose event log receives the errors; "PreTerminate" releases it.
/// Export: "AddToExport" (list, query) for each list, then "DoExport" (file). Import: "ImportFile" (file, list);
/// without a list, every list in the file. Both return whether everything succeeded. A failed export leaves an
/// existing file unchanged, a failed import the company. With "SimpleExport" the file is for other companies:
/// identity, dates of change and the flag "exported to accounting" are left out. "Verbose" writes the number of
/// imported records to the event log.
///
/// With "Is42Upgrade" the file comes from a company of version 4.2. Its identities and dates of change are kept, and
/// references go by identity, across all files that this engine imports. Each section is a transaction of its own, and what
/// was imported before a failure or a cancellation stays. "Verbose" tells the records of each section. "ProgressLabel" and
/// "ProgressBar", if set, show the import. "RequestCancel" ends it after the current record; "ImportFile" returns false
/// then.
class ImportExportEngine : public EngineObject {
  public:
    using EngineObject::EngineObject;

  private:
    Variant invokeOwn(std::string_view member, Access access, Arguments arguments) override;
    void terminated() override;
    struct Export {
        std::string list, query;
    };
    void addToExport(std::string list, std::string query);
    void writeFile(const std::string& path);
    void readFile(const std::string& path, const std::string& list);
    void upgradeFile(const std::string& path);
    void upgradeSection(pugi::xml_node section);
    /// Runs the work. An error is written to the event log and makes the result false.
    Variant succeeded(std::string_view what, const std::function<void()>& work);
    void record(std::int32_t type, const std::string& text);

    std::vector<Export> exports_;
    bool simpleExport_ = false;
    bool verbose_ = false;
    bool is42Upgrade_ = false;
    UpgradedRows upgraded_;
    ImportProgress progress_;
    bool cancelRequested_ = false;
};

}  // namespace tsln::workbench
