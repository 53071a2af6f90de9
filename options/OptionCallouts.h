#pragma once

#include <optional>

#include "maintenance/RecordDialog.h"
#include "options/ProductList.h"
#include "options/ProductReader.h"
#include "screens/ColorBox.h"
#include "screens/OptionButton.h"

namespace tsln::options {

extern const ListDescription optionCalloutsList;

/// The callouts of all products, or of one.
class OptionCallouts : public ProductList {
  public:
    using ProductList::ProductList;

  protected:
    std::string loadStatement() const override;
};

/// Edits a callout: the products and the style it applies to, the option it watches, and the colour and message that it
/// shows when the option's value meets a condition. An example shows sample options as order entry would.
class OptionCalloutDialog : public RecordDialog {
  public:
    OptionCalloutDialog(Library& library, const ListDescription& list);

    OptionGroup productTypes, products, stylesOfProduct;
    OptionButton optAllProductTypes{*this, productTypes, "optAllProductTypes", "A&ny product type"};
    OptionButton optSpecificProductType{*this, productTypes, "optSpecificProductType", "Product &type:"};
    ComboBox cboProductType{*this, "cboProductType"};
    OptionButton optAllProducts{*this, products, "optAllProducts", "&Any product"};
    OptionButton optSpecificProduct{*this, products, "optSpecificProduct", "&Product:"};
    ComboBox cboProduct{*this, "cboProduct"};
    OptionButton optAllStyles{*this, stylesOfProduct, "optAllStyles", "An&y style"};
    OptionButton optSpecificStyle{*this, stylesOfProduct, "optSpecificStyle", "&Style:"};
    ComboBox cboStyle{*this, "cboStyle"};
    ColorBox ColorPicker1{*this, "ColorPicker1"};
    Label lblExample{*this, "lblExample", "&Example:"};
    ReportControl rptExample{*this, "rptExample"};

  protected:
    Layout content() override;
    void filling() override;
    void rowShown(const Row& row) override;
    void filled() override;
    bool validate() override;
    void addTags(StatementTags& tags) override;
    void Form_Unload() override;

  private:
    /// The chosen entry where the option beside it is chosen; no value for all of them.
    std::optional<std::int32_t> chosenProduct() const;
    bool limitsStyle() const;
    void productChosen();
    void loadStyles(std::int32_t productID);
    void enableChoices();
    void showExample();

    std::optional<ProductReader> reader_;  // made when first needed
};

}  // namespace tsln::options
