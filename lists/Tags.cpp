#include "lists/Tags.h"

#include "lists/Lists.h"

namespace tsln::lists {

void plugInTags(Library& library) {
    library.plugIn(Operation::ShowProductTags, [](Library& self, Arguments a) {
        showList<ProductTagsScreen>(self, productTagsList, a[0].toLong());
        return Variant();
    });
    library.plugIn(Operation::ShowEditProductTags, [](Library& self, Arguments a) {
        const auto closed = self.screens().show(
            "frmProductTags_Edit", [&] { return std::make_shared<ProductTagsDialog>(self); },
            [&](ProductTagsDialog& dialog) { dialog.open(a[0].toLong()); });
        return Variant(closed->result());
    });
    library.plugIn(Operation::ShowPortfolioTags, [](Library& self, Arguments) {
        showList<PortfolioTagsScreen>(self, portfolioTagsList);
        return Variant();
    });
    library.plugIn(Operation::ShowEditPortfiolioTag, [](Library& self, Arguments a) {
        const auto closed = self.screens().show(
            "frmPortfolioTags_Edit", [&] { return std::make_shared<PortfolioTagDialog>(self); },
            [&](PortfolioTagDialog& dialog) { dialog.initialize(a[0].toText()); });
        return Variant(closed->Cancelled);
    });
}

}  // namespace tsln::lists
