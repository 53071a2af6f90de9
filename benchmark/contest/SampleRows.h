#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "maintenance/ListDescription.h"

namespace tsln::bench {

/// Realistic invented rows: with typical lengths, some empty fields, and characters that a document must encode. They
/// are equal in every run.

/// Query results of `SELECT * FROM Terms` (6 columns) and of the customers (45 columns).
std::string termsResult(std::size_t rows);
std::string customersResult(std::size_t rows);
/// The names of their columns in order, beginning with `ID`.
const std::vector<std::string>& termsColumns();
const std::vector<std::string>& customersColumns();

/// A list of the customers that shows every column.
const ListDescription& customersList();

/// Names of people, many of them with common prefixes, and the towns they live in.
std::string personName(std::size_t row);
std::string townName(std::size_t row);
/// The value of a customer's column, counted from 0.
std::string customerValue(std::size_t row, std::size_t column);

}  // namespace tsln::bench
