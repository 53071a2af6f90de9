#pragma once

#include "maintenance/RecordDialog.h"
#include "options/ProductList.h"

namespace tsln::options {

extern const ListDescription optionDefaultsList;

/// The defaults that hold for every product, or those of one.
class OptionDefaults : public ProductList {
  public:
    using ProductList::ProductList;

    /// Tells which of the listed options the product does not have.
    void verifyOptions();

  protected:
    std::string loadStatement() const override;
    std::vector<Variant> furtherArguments() const override { return {productID()}; }
};

/// Edits a default. The product of a stored one never changes.
class OptionDefaultDialog : public RecordDialog {
  public:
    using RecordDialog::RecordDialog;

    /// The product of a new default; below 1 for every product.
    std::int32_t productID = 0;

  protected:
    void rowShown(const Row& row) override { productID = row.number("ProductID"); }
    bool validate() override;
    void addTags(StatementTags& tags) override;
};

}  // namespace tsln::options
