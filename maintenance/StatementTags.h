#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "bridge/Host.h"
#include "shared/modSharedSQL.h"

namespace tsln {

/// Who makes a text safe inside a statement's quotes.
enum class SafeText {
    Doubled,  ///< this module, by doubling single quotes
    ByHost,   ///< the host, by "FixForSQLInsert"
};

/// The values that replace a statement's tags, in the order of replacement.
class StatementTags {
  public:
    StatementTags(Host host, SafeText safeText) : host_(host), safeText_(safeText) {}

    /// A text, made safe. The quotes are part of the template. May raise HostError.
    void text(std::string_view tag, std::string_view value) {
        tags_.emplace_back(tag, safeText_ == SafeText::ByHost ? host_.FixForSQLInsert(value)
                                                              : modSharedSQL::doubleQuotes(value));
    }
    /// A text for a tag without quotes in the template: made safe, and in quotes. May raise HostError.
    void quoted(std::string_view tag, std::string_view value) {
        text(tag, value);
        tags_.back().value = "'" + tags_.back().value + "'";
    }
    /// A number, a Boolean, or SQL text that is inserted unchanged.
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
