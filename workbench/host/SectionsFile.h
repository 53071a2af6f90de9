#pragma once

#include <stdexcept>
#include <string>

#include <pugixml.hpp>

namespace tsln::workbench {

/// The file of an export: root "Sections", in it one element a list, in that "Record" elements with a child
/// element a column. Carriage returns and line feeds in values stand as the texts "&#13;" and "&#10;", as in
/// query results.
inline constexpr const char* sectionsRoot = "Sections";

/// A file that cannot be written, or cannot be read as an export. what() is a sentence for the event log.
class SectionsFileError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// Reads the file. One of another root is refused by its beginning, however large it is. Throws
/// SectionsFileError; `document` is then of no use.
void readSectionsFile(const std::string& path, pugi::xml_document& document);

/// Writes the file and puts it in the place of an existing one only when it is whole. Throws
/// SectionsFileError.
void writeSectionsFile(const std::string& path, const pugi::xml_document& document);

}  // namespace tsln::workbench
