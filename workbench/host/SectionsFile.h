#pragma once

#include <stdexcept>
#include <string>

#include <pugixml.hpp>

namespace tsln::workbench {

/// The root element of an export file. It contains one element per list, with "Record" elements, with one child
/// element per column. Carriage returns and line feeds in values are the texts "&#13;" and "&#10;", as in query
/// results.
inline constexpr const char* sectionsRoot = "Sections";

/// A file that cannot be written, or cannot be read as an export. what() is a sentence for the event log.
class SectionsFileError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// Reads the file. A file with another root is rejected after its beginning, so its size does not matter. Throws
/// SectionsFileError; `document` is undefined then.
void readSectionsFile(const std::string& path, pugi::xml_document& document);

/// Writes the file. An existing one is replaced only after the new one is complete. Throws SectionsFileError.
void writeSectionsFile(const std::string& path, const pugi::xml_document& document);

}  // namespace tsln::workbench
