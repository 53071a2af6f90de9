#pragma once

#include <cstdint>
#include <memory>

#include "maintenance/RecordDialog.h"
#include "screens/ProgressBar.h"

namespace tsln::options {

/// Looks through the files of all active products and adds a setting for each option that has none yet. Existing settings
/// are never changed. The user can end it between two products; what was added stays.
class ScanProducts : public RecordDialog {
  public:
    explicit ScanProducts(Library& library);
    ~ScanProducts() override;

    Label lblProduct{*this, "lblProduct", ""};
    ProgressBar ProgressBar1{*this, "ProgressBar1"};

    Layout layout() override;
    /// Obtains what the scan needs. Returns false when there is nothing to scan, or the user was told why it cannot begin.
    bool prepare();

  protected:
    void opened() override;

  private:
    struct Means;

    void scan();
    void scanProduct(std::int32_t productID, const std::string& name);
    void addOptions();
    void log(std::string_view text) const;

    std::unique_ptr<Means> means_;  // released when the scan ends
    std::size_t products_ = 0;
};

/// Scans the products, with a window that shows the progress.
void scanProducts(Library& library);

}  // namespace tsln::options
