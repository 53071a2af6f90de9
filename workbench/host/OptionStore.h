#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "workbench/company/Company.h"

namespace tsln::workbench {

/// The options of the company and of its users. Names compare without letter case.
class OptionStore {
  public:
    /// `company` must outlive the store.
    explicit OptionStore(Company& company) : company_(company) {}

    /// The owner of options: the company or an employee.
    struct Owner {
        std::int32_t employee = 0;  ///< 0: the company
    };
    struct Key {
        std::string_view name, section;
    };

    /// Returns an option. Name and section identify it in either order, because callers differ in the order. Without
    /// a section, returns the first option with this name. Throws SqlError.
    std::optional<std::string> get(Owner owner, Key key);
    /// Throws SqlError.
    void set(Owner owner, Key key, std::string_view value);

  private:
    Company& company_;
};

}  // namespace tsln::workbench
