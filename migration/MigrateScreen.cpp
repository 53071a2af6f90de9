#include "migration/MigrateScreen.h"

#include "migration/MigrationRun.h"
#include "shared/modSharedStrings.h"

namespace tsln::migration {
namespace {

constexpr std::string_view screenName = "frmMigrate42";
constexpr int width = 460;  // pixels at 96 per inch

}  // namespace

Variant LentProgressBar::invoke(std::string_view member, Access access, Arguments arguments) {
    Variant result = ProgressBar::invoke(member, access, arguments);
    if (access == Access::Put && onAdvanced) onAdvanced();
    return result;
}

MigrateScreen::MigrateScreen(Library& library) : HostScreen(library, std::string(screenName)) {
    setCaption("Migrate From Version 4.2");
    placement.width = width;
    ProgressBar1.accessibleName = "Progress";
}

Layout MigrateScreen::layout() {
    using namespace tsln::layout;
    return column(
        {item(lblSourceCompany), item(lblStatus), item(ProgressBar1), row({spring(), item(cmdCancel)})});
}

void MigrateScreen::initialize(std::string sourceCompany, Kind kind) {
    sourceCompany_ = std::move(sourceCompany);
    kind_ = kind;
}

void MigrateScreen::Form_Load() {
    restoreWindowPosition(*this);
}

void MigrateScreen::Form_Unload() {
    saveWindowPosition(*this);
}

void MigrateScreen::Form_Activate() {
    if (begun_) return;
    begun_ = true;
    lblSourceCompany.setCaption(modSharedStrings::asCaption(sourceCompany_));
    handle([this] { Cancelled = !MigrationRun(*this).migrate(sourceCompany_, kind_); });
    unload();
}

bool migrate(Library& library, const std::string& sourceCompany, Kind kind) {
    return library.screens()
        .show(
            screenName, [&] { return std::make_shared<MigrateScreen>(library); },
            [&](MigrateScreen& screen) { screen.initialize(sourceCompany, kind); })
        ->Cancelled;
}

}  // namespace tsln::migration
