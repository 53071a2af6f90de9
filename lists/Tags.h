#pragma once

#include <string>

#include "maintenance/ListScreen.h"
#include "maintenance/RecordDialog.h"
#include "screens/CheckList.h"

namespace tsln::lists {

/// The tags of one product. They are added and deleted; there is nothing to edit about them.
class ProductTagsScreen : public ListScreen {
  public:
    ProductTagsScreen(Library& library, const ListDescription& description, std::int32_t productID);

  protected:
    std::string loadStatement() const override;
    void listLoaded() override;
    void cmdNew_Click() override;

  private:
    const std::int32_t productID_;
    bool named_ = false;
};

/// Adds tags to a product, whose key is its `ID`: a typed one, and any that are used elsewhere.
class ProductTagsDialog : public RecordDialog {
  public:
    explicit ProductTagsDialog(Library& library);

    TextBox txtTag{*this, "txtTag"};
    CheckList lstUsed{*this, "lstUsed"};
    ReportControl rptTags{*this, "rptTags"};

  protected:
    Layout content() override;
    void opened() override;
    bool save() override;

  private:
    /// Adds the tag unless the product has it; false when that failed, which has been told.
    bool add(std::string_view insert, std::string_view placeholder, const std::string& tag);
};

/// The tags of all portfolio files. They are renamed and deleted; files get their tags elsewhere.
class PortfolioTagsScreen : public ListScreen {
  public:
    using ListScreen::ListScreen;

  protected:
    std::string loadStatement() const override;
    void cmdEdit_Click() override;
};

/// Renames a portfolio tag everywhere at once.
class PortfolioTagDialog : public RecordDialog {
  public:
    explicit PortfolioTagDialog(Library& library);

    TextBox txtTag{*this, "txtTag"};

    /// Hands it the tag that is to get another name.
    void initialize(std::string tag);

  protected:
    Layout content() override;
    bool save() override;

  private:
    std::string tag_;
};

/// Gives the library both lists and their dialogs.
void plugInTags(Library& library);

}  // namespace tsln::lists
