#pragma once

#include <string_view>
#include <vector>

#include "bridge/Host.h"
#include "shared/modSharedSQL.h"

namespace tsln::entities {

/// What takes the place of a statement's tags, in the order in which they are filled.
class StatementTags {
  public:
    explicit StatementTags(Host host) : host_(host) {}

    /// A text, which the host makes safe; the quotes stand in the template.
    void text(std::string_view tag, std::string_view value) {
        tags_.emplace_back(tag, host_.FixForSQLInsert(value));
    }
    /// A number, a ticked box, or a word of SQL as it is.
    template <class T>
    void plain(std::string_view tag, const T& value) {
        tags_.emplace_back(tag, value);
    }
    std::string fill(std::string_view statement) const { return modSharedSQL::fillTags(statement, tags_); }

  private:
    Host host_;
    std::vector<modSharedSQL::Tag> tags_;
};

}  // namespace tsln::entities
