#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
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

    // The current row's fields, as modSharedXML's readers of these names read them. Views are good until the
    // field is asked for again or the next row.
    std::string_view text(std::size_t field) {
        if (byNodes_) return decodedText(field);
        const Value& value = values_[places_[field]];
        if (value.row != rows_) return {};
        return value.encoded ? decodedText(field) : value.text;
    }
    std::int32_t readLong(std::size_t field, std::int32_t otherwise = 0);
    bool readBoolean(std::size_t field, bool otherwise = false);

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
    struct Value {
        std::size_t row = 0;  // of which it is
        std::string_view text;
        bool encoded = false;
    };

    Found scanStart();
    Found scanRow();
    Found scanFields();
    const Element* matchElement(const char* at, std::size_t& expected) const;
    const Element* learnElement(const char* at, std::size_t& expected);
    std::string_view decodedText(std::size_t field);
    void goOnByNodes();

    std::string text_;
    std::vector<std::string> names_;
    std::vector<std::size_t> places_;   // by field: the first one of the same name, which has its value
    std::vector<Value> values_;         // by field
    std::vector<std::string> scratch_;  // by field
    std::vector<Element> elements_;
    const char* at_ = nullptr;   // in the text
    const char* end_ = nullptr;  // of the text
    std::size_t rows_ = 0;  // read so far
    bool started_ = false;
    bool ended_ = false;

    bool byNodes_ = false;
    Records records_;
    Records::Iterator record_;
};

}  // namespace tsln::modSharedXML
