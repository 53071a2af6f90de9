#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "bridge/Host.h"
#include "shared/modSharedSQL.h"

namespace tsln {

/// Who makes a text safe to stand between a statement's quotes.
enum class SafeText {
    Doubled,  ///< this module: single quotes are doubled
    ByHost,   ///< the host's "FixForSQLInsert"
};

/// What takes the place of a statement's tags, in the order in which they are filled.
class StatementTags {
  public:
    StatementTags(Host host, SafeText safeText) : host_(host), safeText_(safeText) {}

    /// A text, made safe; the quotes stand in the template. May raise HostError.
    void text(std::string_view tag, std::string_view value) {
        tags_.emplace_back(tag, safeText_ == SafeText::ByHost ? host_.FixForSQLInsert(value)
                                                              : modSharedSQL::doubleQuotes(value));
    }
    /// A number, a ticked box, or a word of SQL as it is.
    template <class T>
    void plain(std::string_view tag, const T& value) {
        tags_.emplace_back(tag, value);
    }
    std::string fill(std::string_view statement) const { return modSharedSQL::fillTags(statement, tags_); }

  private:
    Host host_;
    SafeText safeText_;
    std::vector<modSharedSQL::Tag> tags_;
};

}  // namespace tsln
