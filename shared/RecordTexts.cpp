#include "shared/RecordTexts.h"

#include <algorithm>

namespace tsln::modSharedXML {
namespace {

constexpr std::string_view blanks = " \t\r\n";
constexpr std::string_view rowBegin = "<Record>", rowEnd = "</Record>", emptyRow = "<Record/>";

/// Writes what pugixml prints to a text.
struct TextWriter : pugi::xml_writer {
    explicit TextWriter(std::string& text) : text_(text) {}
    void write(const void* data, std::size_t size) override {
        text_.append(static_cast<const char*>(data), size);
    }

  private:
    std::string& text_;
};

}  // namespace

RecordTexts::RecordTexts(std::string text) : text_(std::move(text)) {
    for (std::size_t at = 0; (at = text_.find(rowEnd, at)) != text_.npos; at += rowEnd.size())
        ++expected_;
}

std::optional<std::string_view> RecordTexts::next() {
    if (!byNodes_) {
        Found found = started_ ? Found::Row : scanStart();
        if (found == Found::Row) found = scanRow();
        if (found == Found::End) return std::nullopt;
        if (found == Found::Row) {
            ++rows_;
            return row_;
        }
        byNodes_ = true;
        records_ = Records::parse(std::move(text_));
        record_ = records_.begin();
        for (std::size_t i = 0; i < rows_ && record_ != records_.end(); ++i)
            ++record_;
    }
    return nextNode();
}

std::optional<std::string_view> RecordTexts::nextNode() {
    if (record_ == records_.end()) return std::nullopt;
    written_.clear();
    TextWriter writer(written_);
    (*record_).node().print(writer, "", pugi::format_raw, pugi::encoding_utf8);
    ++record_;
    return written_;
}

/// Goes past the text if it stands here.
bool RecordTexts::accept(std::string_view what) {
    if (!std::string_view(text_).substr(at_).starts_with(what)) return false;
    at_ += what.size();
    return true;
}

RecordTexts::Found RecordTexts::scanStart() {
    started_ = true;
    if (text_.find('\0') != text_.npos) return Found::Unusual;
    const auto skipBlanks = [&] { at_ = std::min(text_.find_first_not_of(blanks, at_), text_.size()); };
    skipBlanks();
    if (at_ == text_.size()) return Found::End;
    if (accept("<?xml ")) {
        const std::size_t end = text_.find("?>", at_);
        if (end == text_.npos) return Found::Unusual;
        at_ = end + 2;
        skipBlanks();
    }
    return accept("<Records>") ? Found::Row : Found::Unusual;
}

RecordTexts::Found RecordTexts::scanRow() {
    at_ = std::min(text_.find_first_not_of(blanks, at_), text_.size());
    const std::size_t begin = at_;
    if (accept("</Records>"))
        return text_.find_first_not_of(blanks, at_) == text_.npos ? Found::End : Found::Unusual;
    if (accept(emptyRow)) {
        row_ = emptyRow;
        return Found::Row;
    }
    if (!accept(rowBegin)) return Found::Unusual;
    const std::string_view text = text_;
    while (!accept(rowEnd)) {
        // a column: "<Name>value</Name>" or "<Name/>", perhaps with blanks before it
        const std::size_t open = text.find_first_not_of(blanks, at_);
        if (open == text.npos || text[open] != '<') return Found::Unusual;
        at_ = open;
        if (accept(rowEnd)) break;
        const std::size_t close = text.find('>', open);
        if (close == text.npos) return Found::Unusual;
        std::string_view name = text.substr(open + 1, close - open - 1);
        at_ = close + 1;
        const bool empty = name.ends_with('/');
        if (empty) name.remove_suffix(1);
        if (name.empty() || name.find_first_of("!?/=\"'< \t\r\n") != name.npos) return Found::Unusual;
        if (empty) continue;
        const std::size_t end = text.find('<', at_);
        if (end == text.npos) return Found::Unusual;
        at_ = end;
        if (!accept("</") || !accept(name) || !accept(">")) return Found::Unusual;
    }
    row_ = text.substr(begin, at_ - begin);
    return Found::Row;
}

}  // namespace tsln::modSharedXML
