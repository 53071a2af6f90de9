#pragma once

#include <iterator>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include <pugixml.hpp>

#include "automation/Variant.h"

/// Rows of query results: the elements at "Records/Record". Their child elements are the columns.
namespace tsln::modSharedXML {

/// The options for pugixml. Values are stored in their elements, which halves the memory, and a value that
/// consists of blanks is kept.
inline constexpr unsigned parseOptions =
    pugi::parse_default | pugi::parse_ws_pcdata_single | pugi::parse_embed_pcdata;

/// A handle to one row, or to none. Cheap to copy; valid as long as its Records exist.
class Record {
  public:
    Record() = default;
    explicit Record(pugi::xml_node node) : node_(node) {}

    explicit operator bool() const noexcept { return !node_.empty(); }
    pugi::xml_node node() const noexcept { return node_; }

  private:
    pugi::xml_node node_;
};

/// The rows of one result, parsed once.
class Records {
  public:
    /// No rows.
    Records() = default;

    /// Parses the text of a result. An empty text and a document of another form have no rows. Text that is
    /// no XML raises HostError(code::fail), whose text tells the place of the fault.
    static Records parse(std::string text);
    /// Parses like parse(), but instead of raising an error gives no rows and keeps its text in error().
    static Records read(std::string text);

    /// The text of the error that read() kept; empty when there was none.
    const std::string& error() const noexcept { return error_; }

    std::size_t count() const noexcept { return count_; }
    bool empty() const noexcept { return count_ == 0; }
    /// The first row, or no row.
    Record first() const { return Record(root_.child("Record")); }

    class Iterator {
      public:
        using iterator_category = std::forward_iterator_tag;
        using value_type = Record;
        using difference_type = std::ptrdiff_t;
        using pointer = const Record*;
        using reference = Record;

        Iterator() = default;
        explicit Iterator(pugi::xml_node node) : node_(node) {}
        Record operator*() const { return Record(node_); }
        Iterator& operator++() {
            node_ = node_.next_sibling("Record");
            return *this;
        }
        Iterator operator++(int) {
            const Iterator before = *this;
            ++*this;
            return before;
        }
        friend bool operator==(const Iterator& a, const Iterator& b) { return a.node_ == b.node_; }

      private:
        pugi::xml_node node_;
    };

    Iterator begin() const { return Iterator(root_.child("Record")); }
    Iterator end() const { return Iterator(); }

  private:
    /// The nodes point into the text, so both are kept at one place when the Records move.
    struct Document {
        std::string text;
        pugi::xml_document nodes;
    };

    std::unique_ptr<Document> document_;
    pugi::xml_node root_;
    std::size_t count_ = 0;
    std::string error_;
};

/// The rows of a document that the host's "ExecuteRead" returned. A null object raises
/// HostError(code::objectNotSet), a value that is no object code::typeMismatch, text that is no XML
/// code::fail.
Records readRecords(const Variant& document);

/// The text of a document that the host's "ExecuteRead" returned. Raises errors like readRecords(), but
/// accepts any text.
std::string readDocument(const Variant& document);

/// The field readers never fail: a missing row, a missing column (a NULL), an empty value and a value that
/// cannot be converted or does not fit give the default. Field names are compared with letter case. Of
/// columns with the same name the first one counts.
std::string readText(std::string_view field, Record record, std::string_view otherwise = {});
std::int32_t readLong(std::string_view field, Record record, std::int32_t otherwise = 0);
std::int16_t readInteger(std::string_view field, Record record, std::int16_t otherwise = 0);
float readSingle(std::string_view field, Record record, float otherwise = 0);
/// Reads "true", "1", "-1", "yes" and "false", "0", "no" in any letter case, and other text like
/// Variant::toBoolean.
bool readBoolean(std::string_view field, Record record, bool otherwise = false);
/// Reads all forms of readDateText, and the XML form 2011-03-04T10:20:30.
Date readDate(std::string_view field, Record record, Date otherwise = {});

/// The field's text, or an empty one, without a copy where possible: the view points into the document, or
/// into `scratch` if the text had to be decoded.
std::string_view viewText(std::string_view field, Record record, std::string& scratch);

/// Convert the text of a field as readLong and readBoolean do.
std::int32_t toLong(std::string_view text, std::int32_t otherwise = 0);
bool toBoolean(std::string_view text, bool otherwise = false);
/// Nothing for a text that is no date.
std::optional<Date> toDate(std::string_view text);

/// Encodes a text as documents store it: carriage returns as "&#13;", line feeds as "&#10;".
std::string encodeFieldText(std::string_view text);
/// The reverse of encodeFieldText. The second form returns `text` itself if nothing is encoded in it, else a
/// view of `scratch`, which `text` must not point into.
std::string decodeFieldText(std::string_view text);
std::string_view decodeFieldText(std::string_view text, std::string& scratch);

}  // namespace tsln::modSharedXML
