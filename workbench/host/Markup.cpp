#include "workbench/host/Markup.h"

namespace tsln::workbench {
namespace {

constexpr std::string_view boldTag = "<Bold>", boldEnd = "</Bold>";
constexpr std::string_view blockStart = "<TextBlock", blockEnd = "</TextBlock>";
constexpr std::string_view lineBreaks[] = {"<LineBreak/>", "<LineBreak />", "\r\n", "\r", "\n"};

/// Collects runs; neighbours of one weight become one.
class Runs {
  public:
    void text(std::string_view text, bool bold) {
        if (text.empty()) return;
        breakBefore();
        if (!runs_.empty() && !runs_.back().lineBreak && runs_.back().bold == bold) {
            runs_.back().text += text;
        } else {
            runs_.push_back({std::string(text), bold, false});
        }
    }
    void lineBreak() {
        breakBefore();
        runs_.push_back({{}, false, true});
    }
    /// What follows begins a line.
    void ownLine() { ownLine_ = true; }
    std::vector<MarkupRun> take() { return std::move(runs_); }

  private:
    void breakBefore() {
        if (ownLine_ && !runs_.empty() && !runs_.back().lineBreak) runs_.push_back({{}, false, true});
        ownLine_ = false;
    }

    std::vector<MarkupRun> runs_;
    bool ownLine_ = false;
};

/// The length of the opening tag of a block, with whatever attributes; 0 when there is none here.
std::size_t blockTag(std::string_view text) {
    if (!text.starts_with(blockStart)) return 0;
    char quote = 0;
    for (std::size_t i = blockStart.size(); i < text.size(); ++i) {
        const char c = text[i];
        if (i == blockStart.size() && c != '>' && c != ' ') return 0;
        if (quote) {
            if (c == quote) quote = 0;
        } else if (c == '\'' || c == '"') {
            quote = c;
        } else if (c == '<') {
            return 0;
        } else if (c == '>') {
            return i + 1;
        }
    }
    return 0;
}

/// Every opening tag asks whether it has an end, so the answer must not search the text.
struct LastEnds {
    std::size_t bold, block;
    explicit LastEnds(std::string_view text) : bold(text.rfind(boldEnd)), block(text.rfind(blockEnd)) {}
    static bool after(std::size_t end, std::size_t at) { return end != std::string_view::npos && end >= at; }
};

}  // namespace

std::vector<MarkupRun> parseMarkup(std::string_view text) {
    const LastEnds ends(text);
    Runs runs;
    bool bold = false;
    int blocks = 0;
    std::size_t plain = 0, at = 0;
    const auto flush = [&](std::size_t skip) {
        runs.text(text.substr(plain, at - plain), bold);
        plain = at += skip;
    };
    while ((at = text.find_first_of("<\r\n", at)) != text.npos) {
        const std::string_view here = text.substr(at);
        bool known = false;
        for (const std::string_view mark : lineBreaks) {
            if (!here.starts_with(mark)) continue;
            flush(mark.size());
            runs.lineBreak();
            known = true;
            break;
        }
        if (known) continue;
        if (!bold && here.starts_with(boldTag) && LastEnds::after(ends.bold, at + boldTag.size())) {
            flush(boldTag.size());
            bold = true;
        } else if (bold && here.starts_with(boldEnd)) {
            flush(boldEnd.size());
            bold = false;
        } else if (const std::size_t tag = blockTag(here); tag > 0 && LastEnds::after(ends.block, at + tag)) {
            flush(tag);
            runs.ownLine();
            ++blocks;
        } else if (blocks > 0 && here.starts_with(blockEnd)) {
            flush(blockEnd.size());
            runs.ownLine();
            --blocks;
        } else {
            ++at;  // text after all
        }
    }
    at = text.size();
    flush(0);
    return runs.take();
}

std::string plainText(std::string_view text) {
    std::string result;
    for (const MarkupRun& run : parseMarkup(text)) {
        if (run.lineBreak) {
            result += '\n';
        } else {
            result += run.text;
        }
    }
    return result;
}

}  // namespace tsln::workbench
