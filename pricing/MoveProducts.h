#pragma once

#include <optional>

#include "maintenance/RecordDialog.h"
#include "screens/MarkupLabel.h"

namespace tsln::pricing {

/// Lets the user choose the vendor that takes over the products of another one, and shows what will move: the products
/// whose default vendor is the other one.
class MoveProductsToVendor : public RecordDialog {
  public:
    explicit MoveProductsToVendor(Library& library);

    MarkupLabel lblFrom{*this, "lblFrom", ""};
    MarkupLabel lblTo{*this, "lblTo", ""};
    MarkupLabel lblFromCount{*this, "lblFromCount", ""};
    MarkupLabel lblToCount{*this, "lblToCount", ""};
    MarkupLabel lblAfter{*this, "lblAfter", ""};
    Button cmdSelect{*this, "cmdSelect", "&Select the vendor..."};

    /// Sets the vendor whose products move. Returns false when the vendor cannot be read; the user has been told why.
    bool initialize(std::int32_t vendorID);

  protected:
    Layout content() override;
    bool save() override;

  private:
    struct Vendor {
        std::int32_t ID = 0;
        std::string name;
        std::int32_t products = 0;  ///< whose default vendor it is
    };
    Vendor readVendor(std::int32_t vendorID) const;
    void selectVendor();

    Vendor from_;
    std::optional<Vendor> to_;
};

/// Moves the products when it appears, and closes. It is cancelled unless they were moved.
class MoveProductsProgress : public RecordDialog {
  public:
    explicit MoveProductsProgress(Library& library);

    Label lblMoving{*this, "lblMoving", "The products are being moved to the new vendor."};

    std::int32_t oldVendor = 0;
    std::int32_t newVendor = 0;

    Layout layout() override;

  protected:
    void opened() override;

  private:
    bool move();
};

/// Lets the user choose who takes over the vendor's products. Returns true when it was cancelled.
bool chooseVendorForProducts(Library& library, std::int32_t vendorID);
/// Moves the products with this default vendor to the new vendor. Returns false only when they were moved.
bool moveProducts(Library& library, std::int32_t vendorID, std::int32_t newVendorID);

}  // namespace tsln::pricing
