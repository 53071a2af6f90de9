#include "shared/RowReader.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cstring>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

#include "automation/UnicodeText.h"

namespace tsln::modSharedXML {
namespace {

constexpr std::size_t noField = SIZE_MAX;
constexpr std::size_t mostElements = 1024;  // of different names; no table has as many columns

bool isBlank(char c) {
    return c == ' ' || c == '\n' || c == '\r' || c == '\t';
}

const char* skipBlanks(const char* at) {
    while (isBlank(*at))
        ++at;
    return at;
}

template <class T>
T load(const char* at) {
    T value;
    std::memcpy(&value, at, sizeof value);
    return value;
}

/// True when the bytes are equal. Faster than a call of memcmp for texts as short as names.
inline bool same(const char* a, const char* b, std::size_t size) {
    if (size >= 8) {
        const std::size_t last = size - 8;
        for (std::size_t i = 0; i < last; i += 8) {
            if (load<std::uint64_t>(a + i) != load<std::uint64_t>(b + i)) return false;
        }
        return load<std::uint64_t>(a + last) == load<std::uint64_t>(b + last);
    }
    if (size >= 4) {
        const std::size_t last = size - 4;
        return load<std::uint32_t>(a) == load<std::uint32_t>(b) &&
               load<std::uint32_t>(a + last) == load<std::uint32_t>(b + last);
    }
    return std::equal(a, a + size, b);
}

/// True when the text from `at` to `end` begins with `what`.
inline bool startsWith(const char* at, const char* end, std::string_view what) {
    return static_cast<std::size_t>(end - at) >= what.size() && same(at, what.data(), what.size());
}

/// The end of the value that begins at `at`: the next "<", or the zero behind the text. Sets `encoded` if the
/// value holds a reference or a carriage return.
inline const char* skipValue(const char* at, [[maybe_unused]] const char* end, bool& encoded) {
#ifdef __SSE2__
    const auto all = [](char c) { return _mm_set1_epi8(c); };
    for (; end - at >= 16; at += 16) {
        const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(at));
        const auto found = [&](char c) { return _mm_cmpeq_epi8(bytes, all(c)); };
        const auto stops = static_cast<unsigned>(_mm_movemask_epi8(_mm_or_si128(found('<'), found('\0'))));
        const auto codes = static_cast<unsigned>(_mm_movemask_epi8(_mm_or_si128(found('&'), found('\r'))));
        if (stops == 0) {
            encoded |= codes != 0;
            continue;
        }
        encoded |= (codes & (stops - 1) & ~stops) != 0;  // those before the first stop
        return at + std::countr_zero(stops);
    }
#endif
    for (; *at != '<' && *at != '\0'; ++at)
        encoded |= *at == '&' || *at == '\r';
    return at;
}

constexpr std::pair<std::string_view, char> entities[] = {
    {"&amp;", '&'}, {"&lt;", '<'}, {"&gt;", '>'}, {"&quot;", '"'}, {"&apos;", '\''}};

/// Decodes the numeric reference at the beginning of `text` and returns its length; 0 for a form that only
/// the parser decodes.
std::size_t decodeNumeric(std::string_view text, std::string& out) {
    const bool hexadecimal = text.size() > 2 && text[2] == 'x';
    const char* const digits = text.data() + (hexadecimal ? 3 : 2);
    const char* const end = text.data() + std::min<std::size_t>(text.size(), 12);
    std::uint32_t c = 0;
    if (digits >= end) return 0;
    const auto [stop, error] = std::from_chars(digits, end, c, hexadecimal ? 16 : 10);
    if (error != std::errc() || stop == end || *stop != ';' || c == 0 || c > 0x10FFFF) return 0;
    appendUtf8(out, c);
    return static_cast<std::size_t>(stop - text.data()) + 1;
}

/// Lets pugixml decode the value.
std::string parseValue(std::string_view value) {
    pugi::xml_document document;
    std::string text = "<v>";
    text.append(value).append("</v>");
    document.load_buffer(text.data(), text.size(), parseOptions, pugi::encoding_utf8);
    return document.first_child().text().get();
}

/// Decodes an element's text: its references, and its line ends, each of which becomes one line feed as in
/// XML.
void decodeXml(std::string_view value, std::string& out) {
    out.clear();
    std::size_t copied = 0;
    for (std::size_t i = 0; i < value.size();) {
        if (value[i] != '&' && value[i] != '\r') {
            ++i;
            continue;
        }
        out.append(value, copied, i - copied);
        const std::string_view rest = value.substr(i);
        std::size_t length = 1;
        if (rest[0] == '\r') {
            out += '\n';
            length = rest.starts_with("\r\n") ? 2 : 1;
        } else if (rest.starts_with("&#")) {
            length = decodeNumeric(rest, out);
            if (length == 0) {
                out = parseValue(value);
                return;
            }
        } else {
            const auto* const known = std::ranges::find_if(
                entities, [&](const auto& entity) { return rest.starts_with(entity.first); });
            const bool found = known != std::end(entities);
            out += found ? known->second : '&';
            length = found ? known->first.size() : 1;
        }
        i += length;
        copied = i;
    }
    out.append(value, copied);
}

}  // namespace

RowReader::RowReader(std::string text, std::span<const std::string_view> fields, Way way)
    : text_(std::move(text)),
      names_(fields.begin(), fields.end()),
      texts_(fields.size()),
      scratch_(fields.size()) {
    for (std::size_t i = 0; i < names_.size(); ++i) {
        const auto first = static_cast<std::size_t>(std::ranges::find(names_, names_[i]) - names_.begin());
        if (first != i) repeated_.emplace_back(i, first);
    }
    at_ = text_.data();
    end_ = at_ + text_.size();
    if (way == Way::Nodes) goOnByNodes();
}

bool RowReader::next() {
    if (ended_) return false;
    std::ranges::fill(texts_, std::string_view());
    if (byNodes_ && rows_ > 0) ++record_;
    if (!byNodes_) {
        Found found = started_ ? Found::Row : scanStart();
        if (found == Found::Row) found = scanRow();
        ended_ = found == Found::End;
        if (found == Found::Unusual) goOnByNodes();
    }
    if (byNodes_) readNodes();
    for (const auto& [field, first] : repeated_)
        texts_[field] = texts_[first];
    return !ended_;
}

void RowReader::goOnByNodes() {
    byNodes_ = true;
    records_ = Records::parse(std::move(text_));
    record_ = records_.begin();
    for (std::size_t i = 0; i < rows_ && record_ != records_.end(); ++i)
        ++record_;
}

void RowReader::readNodes() {
    ended_ = record_ == records_.end();
    if (ended_) return;
    ++rows_;
    for (std::size_t i = 0; i < names_.size(); ++i)
        texts_[i] = viewText(names_[i], *record_, scratch_[i]);
}

// One pass --------------------------------------------------------------------------------------------

RowReader::Found RowReader::scanStart() {
    started_ = true;
    at_ = skipBlanks(at_);
    if (at_ == end_) return Found::End;
    if (startsWith(at_, end_, "<?xml ")) {
        const char* const end = std::strstr(at_, "?>");
        if (!end) return Found::Unusual;
        at_ = skipBlanks(end + 2);
    }
    constexpr std::string_view open = "<Records>";
    constexpr std::string_view none = "<Records/>";
    if (startsWith(at_, end_, none) && skipBlanks(at_ + none.size()) == end_) return Found::End;
    if (!startsWith(at_, end_, open)) return Found::Unusual;
    at_ += open.size();
    return Found::Row;
}

RowReader::Found RowReader::scanRow() {
    constexpr std::string_view open = "<Record>";
    constexpr std::string_view none = "<Record/>";
    constexpr std::string_view close = "</Records>";
    at_ = skipBlanks(at_);
    if (startsWith(at_, end_, open)) {
        at_ += open.size();
        return scanFields();
    }
    if (startsWith(at_, end_, none)) {
        at_ += none.size();
        ++rows_;
        return Found::Row;
    }
    if (startsWith(at_, end_, close) && skipBlanks(at_ + close.size()) == end_) return Found::End;
    return Found::Unusual;
}

RowReader::Found RowReader::scanFields() {
    constexpr std::string_view close = "</Record>";
    const char* const end = end_;
    const char* at = at_;
    std::size_t expected = 0;
    for (;;) {
        at = skipBlanks(at);
        if (at[0] != '<') return Found::Unusual;
        if (at[1] == '/') break;
        const Element* element = matchElement(at, expected);
        if (!element) element = learnElement(at, expected);
        if (!element) return Found::Unusual;
        const char* value = at + element->open.size();
        const char* stop = value;
        bool encoded = false;
        if (*value == '/') {  // "<Name/>"
            at = value + 2;
        } else {
            stop = skipValue(++value, end, encoded);
            if (!startsWith(stop, end, element->close)) return Found::Unusual;
            at = stop + element->close.size();
        }
        // Of columns with the same name the first one counts, even if it is empty.
        if (element->field == noField || texts_[element->field].data()) continue;
        const std::string_view text(value, static_cast<std::size_t>(stop - value));
        texts_[element->field] = encoded ? decode(element->field, text) : text;
    }
    if (!startsWith(at, end, close)) return Found::Unusual;
    at_ = at + close.size();
    ++rows_;
    return Found::Row;
}

/// The known element that begins at `at`, or null. Sets `expected` to the place of the element after it.
inline const RowReader::Element* RowReader::matchElement(const char* at, std::size_t& expected) const {
    const std::size_t count = elements_.size();
    for (std::size_t tried = 0, i = expected; tried < count; ++tried, ++i) {
        if (i >= count) i = 0;
        const Element& element = elements_[i];
        if (!startsWith(at, end_, element.open)) continue;
        const char* const behind = at + element.open.size();
        if (*behind == '>' || (*behind == '/' && behind[1] == '>')) {
            expected = i + 1;
            return &element;
        }
    }
    return nullptr;
}

/// Adds the element that begins at `at` to the known ones; null if its tag holds more than a plain name.
const RowReader::Element* RowReader::learnElement(const char* at, std::size_t& expected) {
    const char* end = at + 1;
    const auto isName = [](char c) {
        return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '_' ||
               c == '-' || c == '.';
    };
    while (isName(*end))
        ++end;
    const std::string name(at + 1, end);
    const bool whole = *end == '>' || (*end == '/' && end[1] == '>');
    const bool started = !name.empty() && name[0] > '9';  // no digit, point or hyphen
    if (!whole || !started || elements_.size() == mostElements) return nullptr;
    const auto asked = std::ranges::find(names_, name);
    const std::size_t field =
        asked == names_.end() ? noField : static_cast<std::size_t>(asked - names_.begin());
    elements_.push_back({"<" + name, "</" + name + ">", field});
    expected = elements_.size();
    return &elements_.back();
}

std::size_t RowReader::expectedRows() const {
    if (byNodes_) return records_.count();
    if (rows_ == 0) return 0;
    const auto read = static_cast<std::size_t>(at_ - text_.data());
    return text_.size() / std::max<std::size_t>(read / rows_, 1) + 1;
}

/// Decodes the value as modSharedXML::readText does.
std::string_view RowReader::decode(std::size_t field, std::string_view value) {
    std::string& scratch = scratch_[field];
    decodeXml(value, decoded_);
    const std::string_view text = decodeFieldText(decoded_, scratch);
    if (text.data() != decoded_.data()) return text;
    std::swap(scratch, decoded_);
    return scratch;
}

}  // namespace tsln::modSharedXML
