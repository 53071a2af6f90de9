#include "shared/modSharedXML.h"

#include "automation/DateText.h"
#include "automation/NumericText.h"
#include "automation/Object.h"

namespace tsln::modSharedXML {
namespace {

constexpr std::string_view carriageReturn = "&#13;";
constexpr std::string_view lineFeed = "&#10;";

bool isNamed(pugi::xml_node node, std::string_view name) {
    const char* at = node.name();
    for (const char c : name) {
        if (*at == '\0' || *at != c) return false;
        ++at;
    }
    return *at == '\0';
}

pugi::xml_node findField(Record record, std::string_view field) {
    for (pugi::xml_node child = record.node().first_child(); child; child = child.next_sibling()) {
        if (child.type() == pugi::node_element && isNamed(child, field)) return child;
    }
    return {};
}

/// The concatenated text of the element and everything below it.
std::string joinText(pugi::xml_node element) {
    std::string text = element.value();
    for (pugi::xml_node node = element.first_child(); node;) {
        text += node.value();
        if (node.first_child()) {
            node = node.first_child();
            continue;
        }
        while (node != element && !node.next_sibling())
            node = node.parent();
        if (node == element) break;
        node = node.next_sibling();
    }
    return text;
}

template <class T>
T readNumberField(std::string_view field, Record record, T otherwise) {
    std::string scratch;
    T value = otherwise;
    readNumber(viewText(field, record, scratch), value);
    return value;
}

/// Converts "2011-03-04T10:20:30" to "03/04/2011 10:20:30"; returns a text of another form unchanged.
std::string_view rebuildXmlDate(std::string_view text, std::string& scratch) {
    const std::size_t letter = text.find('T');
    if (letter == text.npos) return text;
    const std::string_view date = text.substr(0, letter);
    const std::size_t first = date.find('-');
    const std::size_t second = first == date.npos ? date.npos : date.find('-', first + 1);
    if (second == date.npos) return text;
    scratch.clear();
    scratch.append(date, first + 1, second - first - 1).append("/").append(date, second + 1).append("/");
    scratch.append(date, 0, first).append(" ").append(text, letter + 1);
    return scratch;
}

}  // namespace

Records Records::read(std::string text) {
    Records records;
    if (text.find_first_not_of(" \t\r\n") == text.npos) return records;

    records.document_ = std::make_unique<Document>();
    Document& document = *records.document_;
    document.text = std::move(text);
    // The size includes the zero behind the text. Otherwise the parser accepts some texts with a zero inside
    // as if they ended there.
    const pugi::xml_parse_result result = document.nodes.load_buffer_inplace(
        document.text.data(), document.text.size() + 1, parseOptions, pugi::encoding_utf8);
    if (!result) {
        records.error_ = std::string("The query result is not well-formed XML: ") + result.description() +
                         " (byte " + std::to_string(result.offset) + ").";
        records.document_.reset();
        return records;
    }
    records.root_ = document.nodes.child("Records");
    records.count_ = static_cast<std::size_t>(std::distance(records.begin(), records.end()));
    return records;
}

Records Records::parse(std::string text) {
    Records records = read(std::move(text));
    if (!records.error().empty()) throw HostError(code::fail, "Records", records.error());
    return records;
}

Records readRecords(const Variant& document) {
    return Records::parse(readDocument(document));
}

std::string readDocument(const Variant& document) {
    return document.object().get("xml").toText();
}

std::string_view viewText(std::string_view field, Record record, std::string& scratch) {
    const pugi::xml_node node = findField(record, field);
    if (!node) return {};
    if (!node.first_child()) return decodeFieldText(node.value(), scratch);
    scratch = decodeFieldText(joinText(node));
    return scratch;
}

std::string readText(std::string_view field, Record record, std::string_view otherwise) {
    std::string scratch;
    const std::string_view text = viewText(field, record, scratch);
    return std::string(text.empty() ? otherwise : text);
}

std::int32_t toLong(std::string_view text, std::int32_t otherwise) {
    std::int32_t value = otherwise;
    readNumber(text, value);
    return value;
}

bool toBoolean(std::string_view text, bool otherwise) {
    if (sameName(text, "yes")) return true;
    if (sameName(text, "no")) return false;
    bool value = otherwise;
    tsln::readBoolean(text, value);
    return value;
}

std::optional<Date> toDate(std::string_view text) {
    std::string rebuilt;
    return readDateText(rebuildXmlDate(text, rebuilt));
}

std::int32_t readLong(std::string_view field, Record record, std::int32_t otherwise) {
    std::string scratch;
    return toLong(viewText(field, record, scratch), otherwise);
}

std::int16_t readInteger(std::string_view field, Record record, std::int16_t otherwise) {
    return readNumberField(field, record, otherwise);
}

float readSingle(std::string_view field, Record record, float otherwise) {
    return readNumberField(field, record, otherwise);
}

bool readBoolean(std::string_view field, Record record, bool otherwise) {
    std::string scratch;
    return toBoolean(viewText(field, record, scratch), otherwise);
}

Date readDate(std::string_view field, Record record, Date otherwise) {
    std::string scratch;
    return toDate(viewText(field, record, scratch)).value_or(otherwise);
}

std::string encodeFieldText(std::string_view text) {
    std::string result;
    result.reserve(text.size());
    for (const char c : text) {
        if (c == '\r') {
            result += carriageReturn;
        } else if (c == '\n') {
            result += lineFeed;
        } else {
            result += c;
        }
    }
    return result;
}

std::string_view decodeFieldText(std::string_view text, std::string& scratch) {
    std::size_t hit = text.find("&#1");
    if (hit == text.npos) return text;
    scratch.clear();
    std::size_t at = 0;
    for (; hit != text.npos; hit = text.find("&#1", at)) {
        scratch.append(text, at, hit - at);
        const std::string_view entity = text.substr(hit, carriageReturn.size());
        const bool known = entity == carriageReturn || entity == lineFeed;
        if (known) {
            scratch += entity == lineFeed ? '\n' : '\r';
        } else {
            scratch += text[hit];
        }
        at = hit + (known ? entity.size() : 1);
    }
    scratch.append(text, at);
    return scratch;
}

std::string decodeFieldText(std::string_view text) {
    std::string scratch;
    return std::string(decodeFieldText(text, scratch));
}

}  // namespace tsln::modSharedXML
