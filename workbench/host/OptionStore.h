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

    /// Whose options: the company's own, or those of the employee.
    struct Owner {
        std::int32_t employee = 0;  ///< 0: the company
    };
    struct Key {
        std::string_view name, section;
    };

    /// Callers name option and section in either order, so the pair is what tells options apart. Without a
    /// section the first option of that name is meant. Throws SqlError.
    std::optional<std::string> get(Owner owner, Key key);
    /// Throws SqlError.
    void set(Owner owner, Key key, std::string_view value);

  private:
    Company& company_;
};

}  // namespace tsln::workbench
