#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "maintenance/ListScreen.h"

namespace tsln::measurements {

extern const ListDescription measurementsList;

/// The columns of a measurement, wherever measurements are listed.
inline constexpr ListColumn sizeColumns[] = {{"Location", 110, "Location"}, {"Room", 120, "Room"},
                                             {"Item", 110, "Item"},         {"Mount", 80, "Mount"},
                                             {"Width", 80, "Width"},        {"Length", 80, "Length"}};

/// The measurements of one customer.
class MeasurementsList : public ListScreen {
  public:
    MeasurementsList(Library& library, const ListDescription& description, std::int32_t customerID);
    ~MeasurementsList() override;

  protected:
    std::string loadStatement() const override;
    void listLoaded() override;
    void cmdNew_Click() override;
    std::vector<Variant> furtherArguments() const override;

  private:
    class Owner;

    const std::int32_t customerID_;
    std::shared_ptr<Owner> owner_;
    bool named_ = false;
};

}  // namespace tsln::measurements
