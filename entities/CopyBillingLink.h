#pragma once

#include "screens/MarkupLabel.h"

namespace tsln::entities {

/// The link below a ship-to address that copies the bill-to address into it.
class CopyBillingLink : public MarkupLabel {
  public:
    /// `copy` runs when the user follows the link.
    CopyBillingLink(Screen& screen, std::function<void()> copy)
        : MarkupLabel(
              screen, "lblCopyBilling",
              "<TextBlock><Hyperlink Click='Hyperlink_BillingToShipping'>Copy the bill-to address</Hyperlink></TextBlock>") {
        onLink = [copy = std::move(copy)](const std::string&) { copy(); };
    }
};

}  // namespace tsln::entities
