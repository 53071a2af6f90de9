#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "shared/modSharedXML.h"

namespace tsln::modSharedXML {

/// Goes through the rows of a result once and gives the fields asked for, by the rules of the field readers.
///
/// For lists of many rows: what hosts commonly write is read in one pass over the text, without making nodes
/// of it. A document with anything out of the ordinary (attributes, comments, nested elements, damage) is
/// read by its nodes instead, from the row where that was noticed; what the caller gets is the same.
class RowReader {
  public:
    enum class Way { OnePass, Nodes };

    /// Takes the text over. `fields` are the names of the columns asked for, which are known by their place
    /// in this list from here on.
    RowReader(std::string text, std::span<const std::string_view> fields, Way way = Way::OnePass);

    /// Goes to the next row, at first to the first one; false when there is none. Text that is no XML raises
    /// HostError(code::fail), which may come after rows were given: keep them apart until the end.
    bool next();

    /// The current row's fields as modSharedXML::readText reads them. Good until the next row.
    std::span<const std::string_view> texts() const noexcept { return texts_; }
    std::int32_t readLong(std::size_t field, std::int32_t otherwise = 0) const {
        return toLong(texts_[field], otherwise);
    }
    bool readBoolean(std::size_t field, bool otherwise = false) const {
        return toBoolean(texts_[field], otherwise);
    }

    /// How many rows there are in all, about, going by those read so far; 0 before the first.
    std::size_t expectedRows() const;

  private:
    enum class Found { Row, End, Unusual };
    /// An element of a row as it was met before: rows mostly have the same ones in the same order.
    struct Element {
        std::string open;   // "<Name"
        std::string close;  // "</Name>"
        std::size_t field;  // which of those asked for, or none of them
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
    std::vector<std::string> scratch_;     // by field: what had to be decoded
    /// Fields that are asked for again, each with the first of the same name.
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
