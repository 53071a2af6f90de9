#pragma once

#include <cstdint>
#include <fstream>
#include <string>
#include <string_view>

namespace tsln::migration {

/// The export document: a temporary file that is written record by record, and deleted with this object. Its root is
/// "Sections"; it holds an element for each section that has records. Only the user can read it.
class ExportFile {
  public:
    /// Raises std::system_error when no file can be made.
    ExportFile();
    ~ExportFile();
    ExportFile(const ExportFile&) = delete;
    ExportFile& operator=(const ExportFile&) = delete;

    const std::string& path() const noexcept { return path_; }

    /// The records that follow belong to this section.
    void begin(std::string_view section) { next_ = section; }
    /// Adds a record, an element in UTF-8. Raises std::system_error when it cannot be written.
    void add(std::string_view record);
    /// Completes the document and returns the file's length in bytes. A document without records is not longer than
    /// `emptyLength`. Raises std::system_error when it cannot be written.
    std::uintmax_t finish();

    static constexpr std::uintmax_t emptyLength = 32;

  private:
    void write(std::string_view text);
    void check();
    void remove();

    std::string path_;
    std::ofstream file_;
    std::string next_;     // the section of the next record
    std::string section_;  // the open section; empty: none
};

}  // namespace tsln::migration
