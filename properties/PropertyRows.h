#pragma once

#include <span>
#include <string_view>

namespace tsln::properties {

/// What the value of a row is read from.
enum class Source {
    ConnectionText,    ///< a property of the company's connection
    ConnectionNumber,  ///< a property of the connection that is a whole number
    DatabaseSize,      ///< the connection's database
    LoadingTime,       ///< how long it took to read the rows before this one; needs the connection too
    Folder,            ///< a kind of files, of which the host knows the folder
    Statement,         ///< a query of one value, for the host's SQL engine
};

/// A row of the grid. Its category and sub-category are added when they are not there yet.
struct PropertyRow {
    std::string_view category;
    std::string_view subCategory;  ///< empty: directly in the category
    std::string_view caption;
    Source source;
    std::string_view asked;  ///< the property's name, kind of files or statement
    int number = 0;          ///< takes the place of "{0}" in the statement
};

/// All rows, in the order in which they are read.
std::span<const PropertyRow> propertyRows();

}  // namespace tsln::properties
