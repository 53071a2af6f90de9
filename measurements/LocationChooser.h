#pragma once

#include <cstdint>
#include <string>

#include "maintenance/RecordDialog.h"
#include "screens/ReportControl.h"

namespace tsln::measurements {

/// Lets the user choose one of the locations whose measurements a customer has.
class LocationChooser : public RecordDialog {
  public:
    explicit LocationChooser(Library& library);

    ReportControl rptLocations{*this, "rptLocations"};
    ReportControl rptItems{*this, "rptItems"};

    /// The location of the selected measurement, whose key is `ID`.
    std::string Location;

    /// Reads the customer's measurements. Returns false when there are none or they cannot be read; the user has been
    /// told.
    bool initialize(std::int32_t customerID);

  protected:
    Layout content() override;
    bool save() override;

  private:
    void showLocation();
    void updateButtons();
};

/// Lets the user choose a location of the customer. Returns the key of the measurement that was selected, in whose row
/// the location is, and sets `chosen`; returns 0 and clears `chosen` when nothing was chosen.
std::int32_t chooseLocation(Library& library, std::int32_t customerID, bool& chosen);

}  // namespace tsln::measurements
