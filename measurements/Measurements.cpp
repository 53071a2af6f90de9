#include "measurements/Measurements.h"

#include "measurements/LocationChooser.h"
#include "measurements/MeasurementDialog.h"
#include "measurements/MeasurementsList.h"

namespace tsln::measurements {

void plugIn(Library& library) {
    library.plugIn(Operation::ShowCustomerMeasurements, [](Library& self, Arguments a) {
        return Variant(showList<MeasurementsList>(self, measurementsList, a[0].toLong()));
    });
    library.plugIn(Operation::ShowEditCustomerMeasurement, [](Library& self, Arguments a) {
        return Variant(editMeasurement(self, a[0].toLong(), a[1].toLong(), a[2]));
    });
    library.plugIn(Operation::SelectCustomerMeasurementsLocation, [](Library& self, Arguments a) {
        bool chosen = false;
        const std::int32_t ID = chooseLocation(self, a[0].toLong(), chosen);
        a.assign(1, chosen);
        return Variant(ID);
    });
}

}  // namespace tsln::measurements
