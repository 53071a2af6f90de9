#include "properties/DatabaseProperties.h"

#include <algorithm>
#include <memory>

#include "bridge/SqlEngine.h"
#include "properties/PropertyRows.h"
#include "screens/Job.h"
#include "shared/modSharedSQL.h"

namespace tsln::properties {
namespace {

using Clock = std::chrono::steady_clock;

constexpr std::string_view screenName = "frmDatabaseProperties";
constexpr int width = 720, height = 560;  // pixels at 96 per inch

/// Runs a step. Returns nothing when it fails: filling goes on with the next step.
template <class Step>
auto attempt(const Step& step) -> std::optional<decltype(step())> {
    try {
        return step();
    } catch (const std::exception&) {
        return std::nullopt;
    }
}

/// A value as text. The result of a query without rows is empty.
std::string textOf(const Variant& value) {
    return value.isNull() ? std::string() : value.toText();
}

/// What the rows are read from, as far as the host has it.
class Sources {
  public:
    explicit Sources(Host host) : host_(host) {
        if (auto found = attempt([&] { return host_.currentCompanyConnection(); })) connection_ = *found;
    }

    /// The SQL engine is first asked for at the first row that needs it.
    bool has(Source source) {
        if (source == Source::Folder) return true;
        if (source != Source::Statement) return connection_.has_value();
        if (!askedForEngine_)
            engine_ = attempt([&] { return std::make_unique<SqlEngine>(host_); }).value_or(nullptr);
        askedForEngine_ = true;
        return engine_ != nullptr;
    }

    /// Reads the value of a row whose source there is. May raise HostError.
    std::string read(const PropertyRow& row) const {
        switch (row.source) {
            case Source::ConnectionText:
                return textOf(connection_->property(row.asked));
            case Source::ConnectionNumber:
                return std::to_string(connection_->property(row.asked).toLong());
            case Source::DatabaseSize:
                return databaseSize(row.asked);
            case Source::LoadingTime:
                return durationText(std::chrono::round<std::chrono::seconds>(Clock::now() - begun_));
            case Source::Folder:
                return host_.options().UserFileLocation(row.asked);
            case Source::Statement:
                return textOf(engine_->ExecuteScaler(modSharedSQL::format(row.asked, row.number)));
        }
        return {};
    }

  private:
    std::string databaseSize(std::string_view procedure) const {
        const Recordset result = connection_->read(procedure);
        if (!result.isOpen() || result.atEnd())
            throw HostError(code::fail, "Library", "The connection returned no size.");
        return result.text("database_size");
    }

    Host host_;
    std::optional<Connection> connection_;
    std::unique_ptr<SqlEngine> engine_;
    bool askedForEngine_ = false;
    const Clock::time_point begun_ = Clock::now();
};

/// Returns the category of that caption within `parent`. Adds it when it is not there.
std::size_t categoryIn(PropertyGrid& grid, std::optional<std::size_t> parent, std::string_view caption) {
    const auto found = std::ranges::find_if(grid.items(), [&](const PropertyGrid::Item& item) {
        return item.isCategory && item.parent == parent && item.caption == caption;
    });
    if (found != grid.items().end()) return static_cast<std::size_t>(found - grid.items().begin());
    return grid.addCategory(std::string(caption), parent);
}

std::size_t categoryOf(PropertyGrid& grid, const PropertyRow& row) {
    const std::size_t category = categoryIn(grid, std::nullopt, row.category);
    return row.subCategory.empty() ? category : categoryIn(grid, category, row.subCategory);
}

}  // namespace

std::string durationText(std::chrono::seconds duration) {
    const std::chrono::hh_mm_ss parts(duration);
    std::string text = std::to_string(parts.seconds().count()) + " sec";
    if (duration >= std::chrono::minutes(1)) text = std::to_string(parts.minutes().count()) + " min " + text;
    if (duration >= std::chrono::hours(1)) text = std::to_string(parts.hours().count()) + " hr " + text;
    return text;
}

DatabaseProperties::DatabaseProperties(Library& library) : HostScreen(library, std::string(screenName)) {
    setCaption("Database Properties");
    placement.width = width;
    placement.height = height;
    grdProperties.accessibleName = "Database properties";
    ProgressBar1.accessibleName = "Progress";
    cmdClose.onClick = [this] { unload(); };
}

Layout DatabaseProperties::layout() {
    using namespace tsln::layout;
    return column({fill(grdProperties), item(ProgressBar1), row({spring(), item(cmdClose)})});
}

void DatabaseProperties::Form_Load() {
    restoreWindowPosition(*this);
    setFocus(grdProperties);
}

void DatabaseProperties::Form_Unload() {
    saveWindowPosition(*this);
}

void DatabaseProperties::Form_Activate() {
    if (filled_) return;
    filled_ = true;
    if (!readRows()) return unload();
    ProgressBar1.setVisible(false);
}

bool DatabaseProperties::readRows() {
    Sources sources(host());
    const auto rows = propertyRows();
    Job job(*this, rows.size(), &ProgressBar1, &cmdClose);
    for (const PropertyRow& row : rows) {
        // Without the SQL engine its categories are left out. The connection's category is shown in any case.
        const bool there = sources.has(row.source);
        if (!there && row.source == Source::Statement) continue;
        const std::size_t category = categoryOf(grdProperties, row);
        const auto value = there ? attempt([&] { return sources.read(row); }) : std::nullopt;
        // A row that cannot be read is left out: with an empty value it would look as if there was nothing.
        if (value) grdProperties.addRow(category, std::string(row.caption), *value);
        if (!(value ? job.step() : job.goOn())) return false;
    }
    return true;
}

void showDatabaseProperties(Library& library) {
    library.screens().show(
        screenName, [&] { return std::make_shared<DatabaseProperties>(library); },
        [](DatabaseProperties&) {});
}

}  // namespace tsln::properties
