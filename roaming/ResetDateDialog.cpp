#include "roaming/ResetDateDialog.h"

#include <cmath>

#include "automation/DateText.h"
#include "shared/modSharedSQL.h"

namespace tsln::roaming {
namespace {

constexpr std::string_view screenName = "frmRoamingWorkstations_ResetDate";

}  // namespace

ResetDateDialog::ResetDateDialog(Library& library) : RecordDialog(library, std::string(screenName)) {
    setCaption("Reset Date");
    dtResetDate.setDate(Date{std::floor(now().days)});
}

Layout ResetDateDialog::content() {
    return layout::form({layout::field("&Send all changes again since:", dtResetDate)});
}

bool ResetDateDialog::validate() {
    const auto date = dtResetDate.date();
    if (date && date->days <= now().days) return true;
    refuse("You must enter a date that has passed.", &dtResetDate);
    return false;
}

bool ResetDateDialog::save() {
    const bool saved = host().database().ExecuteNonQuery(
        modSharedSQL::format("UPDATE RoamingWorkstations SET LastSentTo = '{0}' WHERE ID = {1}",
                             host().FixDateForSQLInsert(dtResetDate.text()), ID));
    if (!saved) reportDatabaseFailure("There was a problem saving this roaming workstation.");
    return saved;
}

bool resetSendDate(Library& library, std::int32_t ID) {
    const auto make = [&] { return std::make_shared<ResetDateDialog>(library); };
    return !openRecord(library, screenName, make, ID)->Cancelled;
}

}  // namespace tsln::roaming
