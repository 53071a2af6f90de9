#pragma once

#include <cstdint>

#include "maintenance/ListScreen.h"

namespace tsln::options {

/// The security area of everything that says how the options of products are shown and preselected.
inline constexpr std::int32_t optionsArea = 105;

/// A list of what one product has, or what holds for any product. A line above the list names the product.
class ProductList : public ListScreen {
  public:
    /// A key below 1 stands for any product.
    ProductList(Library& library, const ListDescription& description, std::int32_t productID)
        : ListScreen(library, description), productID_(productID) {}

    Label lblProduct{*this, "lblProduct", "Product: Any"};

    bool isOfOneProduct() const noexcept { return productID_ >= 1; }
    std::int32_t productID() const noexcept { return productID_; }

  protected:
    std::vector<Layout> aboveList() override { return {layout::item(lblProduct)}; }
    void listLoaded() override;

  private:
    const std::int32_t productID_;
    bool named_ = false;
};

}  // namespace tsln::options
