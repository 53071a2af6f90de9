#pragma once

#include <string_view>
#include <vector>

namespace tsln::migration {

/// What is to be exported: a section, which is the table to be filled, and the SELECT that the old company answers with
/// its rows. Both are views of the resource's text.
struct Query {
    std::string_view section, statement;
    bool operator==(const Query&) const = default;
};

/// Reads a query set: a line for each query, "Section|SELECT ...". Empty lines and lines without a bar are left out.
std::vector<Query> readQuerySet(std::string_view text);

}  // namespace tsln::migration
