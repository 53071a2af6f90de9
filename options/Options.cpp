#include "options/Options.h"

#include "bridge/Library.h"
#include "options/DetailSettings.h"
#include "options/OptionCallouts.h"
#include "options/OptionDefaults.h"
#include "options/ScanProducts.h"

namespace tsln::options {

void plugIn(Library& library) {
    library.plugIn(Operation::ShowOptionCallouts, [](Library& self, Arguments a) {
        showList<OptionCallouts>(self, optionCalloutsList, a[0].toLong());
        return Variant();
    });
    library.plugIn(Operation::ShowEditOptionCallout, [](Library& self, Arguments a) {
        return Variant(runDialog<OptionCalloutDialog>(self, optionCalloutsList, a[0].toLong())->result());
    });
    library.plugIn(Operation::ShowOptionDefaults, [](Library& self, Arguments a) {
        showList<OptionDefaults>(self, optionDefaultsList, a[0].toLong());
        return Variant();
    });
    library.plugIn(Operation::ShowEditOptionDefault, [](Library& self, Arguments a) {
        const auto closed = self.screens().show(
            dialogName(optionDefaultsList),
            [&] { return std::make_shared<OptionDefaultDialog>(self, optionDefaultsList); },
            [&](OptionDefaultDialog& dialog) {
                dialog.productID = a[1].toLong();
                return dialog.open(a[0].toLong());
            });
        return Variant(closed->result());
    });
    library.plugIn(Operation::ShowOptionDetailSettings, [](Library& self, Arguments) {
        editDetailSettings(self);
        return Variant();
    });
    library.plugIn(Operation::ScanForOptionDetailSettings, [](Library& self, Arguments) {
        scanProducts(self);
        return Variant();
    });
}

}  // namespace tsln::options
