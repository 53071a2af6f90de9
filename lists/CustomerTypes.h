#pragma once

#include "maintenance/ListScreen.h"

namespace tsln::lists {

/// The customer types. The last one cannot be deleted.
class CustomerTypesScreen : public ListScreen {
  public:
    using ListScreen::ListScreen;

  protected:
    bool mayDelete(std::size_t record) override;
};

}  // namespace tsln::lists
