#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "shared/modSharedXML.h"

namespace tsln::modSharedXML {

/// Reads the rows of a query result in order, and of each row the fields that were asked for, by the rules of
/// the field readers (modSharedXML::readText).
///
/// A document of the form that hosts commonly write is read in one pass over its text, without an XML tree.
/// From the first row with anything else (attributes, comments, nested elements, damage) on, the document is
/// parsed by pugixml and read from its tree. The results of both ways are equal.
class RowReader {
  public:
    enum class Way { OnePass, Nodes };

    /// Takes the text over. `fields` are the names of the columns to read; the other members number the
    /// columns by their places in this list.
    RowReader(std::string text, std::span<const std::string_view> fields, Way way = Way::OnePass);

    /// Goes to the next row, and at the first call to the first row; false when there is none. Text that is
    /// no XML raises HostError(code::fail), possibly after some rows were read: they are to be discarded
    /// then.
    bool next();

    /// The current row's fields as modSharedXML::readText reads them. Valid until next() is called.
    std::span<const std::string_view> texts() const noexcept { return texts_; }
    std::int32_t readLong(std::size_t field, std::int32_t otherwise = 0) const {
        return toLong(texts_[field], otherwise);
    }
    bool readBoolean(std::size_t field, bool otherwise = false) const {
        return toBoolean(texts_[field], otherwise);
    }

    /// An estimate of the number of all rows, made from the rows read so far; 0 before the first one.
    std::size_t expectedRows() const;

  private:
    enum class Found { Row, End, Unusual };
    /// An element that an earlier row had. Most rows have the same elements in the same order.
    struct Element {
        std::string open;   // "<Name"
        std::string close;  // "</Name>"
        std::size_t field;  // its place in names_, or noField
    };
    Found scanStart();
    Found scanRow();
    Found scanFields();
    const Element* matchElement(const char* at, std::size_t& expected) const;
    const Element* learnElement(const char* at, std::size_t& expected);
    std::string_view decode(std::size_t field, std::string_view value);
    void goOnByNodes();
    void readNodes();

    std::string text_;
    std::vector<std::string> names_;
    std::vector<std::string_view> texts_;  // by field
    std::vector<std::string> scratch_;     // by field: decoded texts
    /// Fields that were asked for more than once: each repetition with the first field of that name.
    std::vector<std::pair<std::size_t, std::size_t>> repeated_;
    std::string decoded_;
    std::vector<Element> elements_;
    const char* at_ = nullptr;   // in the text
    const char* end_ = nullptr;  // of the text
    std::size_t rows_ = 0;       // read so far
    bool started_ = false;
    bool ended_ = false;

    bool byNodes_ = false;
    Records records_;
    Records::Iterator record_;
};

}  // namespace tsln::modSharedXML
