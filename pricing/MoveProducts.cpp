#include "pricing/MoveProducts.h"

#include "bridge/SqlEngine.h"
#include "shared/Markup.h"
#include "shared/modSharedSQL.h"

namespace tsln::pricing {
namespace {

using modSharedSQL::format;

constexpr std::string_view screenName = "frmMoveProductsToVendor";
constexpr std::string_view progressName = "frmMoveProductsToVendor_Progress";

}  // namespace

MoveProductsToVendor::MoveProductsToVendor(Library& library)
    : RecordDialog(library, std::string(screenName)) {
    setCaption("Move Products to Vendor");
    cmdOK.setEnabled(false);  // until a vendor is selected
    cmdSelect.onClick = [this] { selectVendor(); };
}

Layout MoveProductsToVendor::content() {
    using namespace tsln::layout;
    return column({item(lblFrom), item(lblFromCount), row({item(cmdSelect), spring()}), item(lblTo),
                   item(lblToCount), item(lblAfter), spring()});
}

MoveProductsToVendor::Vendor MoveProductsToVendor::readVendor(std::int32_t vendorID) const {
    const SqlEngine engine(host());
    return {
        .ID = vendorID,
        .name =
            engine.ExecuteScaler(format("SELECT VendorName FROM Vendors WHERE ID = {0}", vendorID)).toText(),
        .products =
            engine
                .ExecuteScaler(format(
                    "SELECT COUNT(*) AS theCount FROM ProductVendors WHERE VendorID = {0} AND IsDefault <> 0",
                    vendorID))
                .toLong()};
}

bool MoveProductsToVendor::initialize(std::int32_t vendorID) {
    if (!handle([&] { from_ = readVendor(vendorID); })) return false;
    if (from_.name.empty()) {
        tell("This vendor does not exist any more.", MessageIcon::Exclamation);
        return false;
    }
    lblFrom.setCaption(format(
        "<TextBlock TextWrapping='Wrap'>Move products with a default vendor of: <Bold>{0}</Bold></TextBlock>",
        asMarkupText(from_.name)));
    lblFromCount.setCaption(format(
        "<TextBlock TextWrapping='Wrap'>Current vendor has <Bold>{0}</Bold> default products</TextBlock>",
        from_.products));
    setFocus(cmdSelect);
    return true;
}

void MoveProductsToVendor::selectVendor() {
    const auto selected = host().ShowSelectBySearch("Vendors", "Select Vendor");
    if (!selected) return;
    if (*selected == from_.ID) {
        tell("Select another vendor than the current one.", MessageIcon::Exclamation);
        return;
    }
    to_ = readVendor(*selected);
    lblTo.setCaption(format("<TextBlock TextWrapping='Wrap'>To the vendor: <Bold>{0}</Bold></TextBlock>",
                            asMarkupText(to_->name)));
    lblToCount.setCaption(format(
        "<TextBlock TextWrapping='Wrap'>The new vendor currently has <Bold>{0}</Bold> default products</TextBlock>",
        to_->products));
    lblAfter.setCaption(format(
        "<TextBlock TextWrapping='Wrap'>After the move the new vendor will have <Bold>{0}</Bold> default products</TextBlock>",
        static_cast<std::int64_t>(from_.products) + to_->products));
    cmdOK.setEnabled(true);
    cmdOK.setFocus();
}

bool MoveProductsToVendor::save() {
    return !library().MoveProductsToVendor(from_.ID, to_->ID);
}

// The move --------------------------------------------------------------------------------------------

MoveProductsProgress::MoveProductsProgress(Library& library)
    : RecordDialog(library, std::string(progressName)) {
    setCaption("Moving Products");
    resizable = false;
}

Layout MoveProductsProgress::layout() {
    using namespace tsln::layout;
    return column({item(lblMoving)});
}

void MoveProductsProgress::opened() {
    bool moved = false;
    handle([&] { moved = move(); });
    if (moved) {
        accept();
    } else {
        cancel();
    }
}

bool MoveProductsProgress::move() {
    if (newVendor < 1) {
        tell("There is no vendor to move the products to.", MessageIcon::Exclamation);
        return false;
    }
    const bool moved = host().database().ExecuteNonQuery(
        format("UPDATE ProductVendors SET VendorID = {0} WHERE VendorID = {1} AND IsDefault <> 0", newVendor,
               oldVendor));
    if (!moved) reportDatabaseFailure("The products could not be moved.");
    if (moved) tell("The products have been moved.", MessageIcon::Information);
    return moved;
}

bool chooseVendorForProducts(Library& library, std::int32_t vendorID) {
    const auto closed = library.screens().show(
        screenName, [&] { return std::make_shared<MoveProductsToVendor>(library); },
        [&](MoveProductsToVendor& screen) { return screen.initialize(vendorID); });
    return closed->Cancelled;
}

bool moveProducts(Library& library, std::int32_t vendorID, std::int32_t newVendorID) {
    const auto closed = library.screens().show(
        progressName, [&] { return std::make_shared<MoveProductsProgress>(library); },
        [&](MoveProductsProgress& screen) {
            screen.oldVendor = vendorID;
            screen.newVendor = newVendorID;
        });
    return closed->Cancelled;
}

}  // namespace tsln::pricing
