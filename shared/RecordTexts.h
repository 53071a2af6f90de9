#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "shared/modSharedXML.h"

namespace tsln::modSharedXML {

/// Goes over the rows of a query result as texts of XML: "<Record>...</Record>".
///
/// Rows of the form that hosts commonly write (columns without attributes, nested elements or comments) are views of the
/// result's own text. From the first row of another form on, the result is parsed and written anew.
class RecordTexts {
  public:
    explicit RecordTexts(std::string text);

    /// Returns the next row, valid until the next call; nothing after the last one. Text that is no XML raises
    /// HostError(code::fail), possibly after some rows were returned: they are to be discarded then.
    std::optional<std::string_view> next();

    /// The number of rows, as far as it can be told before they are read.
    std::size_t expectedRows() const noexcept { return expected_; }

  private:
    enum class Found { Row, End, Unusual };
    bool accept(std::string_view what);
    Found scanStart();
    Found scanRow();
    std::optional<std::string_view> nextNode();

    std::string text_;
    std::size_t at_ = 0;
    std::string_view row_;
    std::size_t rows_ = 0;  // returned so far
    std::size_t expected_ = 0;
    bool started_ = false;

    bool byNodes_ = false;
    Records records_;
    Records::Iterator record_;
    std::string written_;
};

}  // namespace tsln::modSharedXML
