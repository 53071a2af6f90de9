#pragma once

#include <string>
#include <string_view>

#include "bridge/Component.h"
#include "migration/MigrateScreen.h"
#include "screens/Job.h"

namespace tsln::migration {

class ExportFile;
class OldCompany;
struct Query;

/// The migration of one company: a job of its screen. What has been written when it fails or is cancelled stays.
class MigrationRun {
  public:
    explicit MigrationRun(MigrateScreen& screen);
    ~MigrationRun();

    /// Returns true when every step succeeded. The user was told of failures, apart from those of the company manager.
    /// Raises HostError where the host has no import engine.
    bool migrate(const std::string& sourceCompany, Kind kind);

  private:
    bool import(const std::string& sourceCompany, const std::string& connectionString, Kind kind);
    bool migrateSet(std::string_view resource, const std::string& connectionString);
    bool exportSet(std::string_view queries, const std::string& connectionString, ExportFile& file);
    bool exportSection(const OldCompany& company, const Query& query, ExportFile& file);
    bool importFile(ExportFile& file);
    bool createTaxGroups();
    bool createTaxGroup(const std::string& code, std::int32_t codeID);
    bool copyReports(const std::string& sourceCompany);

    void requestCancel() noexcept;
    /// Shows a message box with the code of a failure. Returns false.
    bool fail(std::string_view code) const;
    /// Writes to the event log why something failed, which the codes do not tell.
    void record(const std::string& failure) const noexcept;

    MigrateScreen& screen_;
    Job job_;
    Object* engine_ = nullptr;  // the import engine while it exists
};

}  // namespace tsln::migration
