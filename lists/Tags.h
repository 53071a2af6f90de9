#pragma once

#include <string>

#include "maintenance/ListScreen.h"
#include "maintenance/RecordDialog.h"
#include "screens/CheckList.h"

namespace tsln::lists {

/// The tags of one product. They can be added and deleted, not edited.
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

/// Adds tags to a product, whose key is `ID`: a typed tag, and any tags that other products use.
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
    /// Adds the tag unless the product has it. Returns false when that failed and the failure was reported.
    bool add(std::string_view insert, std::string_view placeholder, const std::string& tag);
};

/// The tags of all portfolio files. They can be renamed and deleted; they are assigned to files elsewhere.
class PortfolioTagsScreen : public ListScreen {
  public:
    using ListScreen::ListScreen;

  protected:
    std::string loadStatement() const override;
    void cmdEdit_Click() override;
};

/// Renames a portfolio tag in all files.
class PortfolioTagDialog : public RecordDialog {
  public:
    explicit PortfolioTagDialog(Library& library);

    TextBox txtTag{*this, "txtTag"};

    /// Sets the tag that is renamed.
    void initialize(std::string tag);

  protected:
    Layout content() override;
    bool save() override;

  private:
    std::string tag_;
};

/// Registers both lists and their dialogs with the library.
void plugInTags(Library& library);

}  // namespace tsln::lists
