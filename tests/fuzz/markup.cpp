// Markup of messages: a plain reading, character by character and without regard to time, against the parser's runs.

#include "shared/Markup.h"

#include <algorithm>
#include <optional>
#include <regex>

#include "tests/fuzz/Fuzz.h"

namespace {

using namespace tsln;

/// A character as it is drawn. The end of a line is "\n" in its block, without style.
struct Cell {
    char c = 0;
    bool bold = false;
    std::string operation;
    MarkupBlock block;
    friend bool operator==(const Cell&, const Cell&) = default;
};

std::vector<Cell> cellsOf(const std::vector<MarkupRun>& runs) {
    std::vector<Cell> cells;
    for (const MarkupRun& run : runs) {
        fuzz::require(run.lineBreak == run.text.empty(), "a run is either text or the end of a line");
        if (run.lineBreak) cells.push_back({'\n', false, {}, run.block});
        for (const char c : run.text)
            cells.push_back({c, run.bold, run.operation, run.block});
    }
    return cells;
}

/// A tag, a literal or the end of a line at one place of the text.
struct Piece {
    enum Kind { Break, Literal, Open, Close } kind = Break;
    std::size_t length = 0;
    std::string name;
};

/// The attributes of a tag: a blank, a name, "=", a quoted text. The first that has a value between equal quotes counts.
std::string attribute(const std::string& tag, const std::string& name) {
    for (std::size_t at = 1; at < tag.size(); ++at) {
        const std::string begin = " " + name + "=";
        if (tag.compare(at - 1, begin.size(), begin) != 0) continue;
        const std::size_t quote = at - 1 + begin.size();
        if (quote + 1 >= tag.size() || (tag[quote] != '\'' && tag[quote] != '"')) continue;
        const std::size_t end = tag.find(tag[quote], quote + 1);
        if (end != tag.npos) return tag.substr(quote + 1, end - quote - 1);
    }
    return {};
}

std::optional<Piece> pieceAt(const std::string& text, std::size_t at) {
    const auto is = [&](std::string_view what) { return text.compare(at, what.size(), what) == 0; };
    for (const std::string_view mark : {"\r\n", "\r", "\n", "<LineBreak/>", "<LineBreak />"}) {
        if (is(mark)) return Piece{Piece::Break, mark.size(), {}};
    }
    if (is("<![CDATA[")) {
        const std::size_t end = text.find("]]>", at);
        if (end == text.npos) return {};
        return Piece{Piece::Literal, end + 3 - at, {}};
    }
    for (const std::string name : {"Bold", "Hyperlink", "TextBlock"}) {
        if (is("</" + name + ">")) return Piece{Piece::Close, name.size() + 3, name};
        if (is("<" + name + ">") && name != "Hyperlink") return Piece{Piece::Open, name.size() + 2, name};
        if (!is("<" + name + " ") || name == "Bold") continue;
        char quote = 0;
        std::size_t end = at + 1;
        for (; end < text.size() && (quote != 0 || text[end] != '>') && text[end] != '<'; ++end) {
            if (quote == 0 && (text[end] == '\'' || text[end] == '"')) {
                quote = text[end];
            } else if (text[end] == quote) {
                quote = 0;
            }
        }
        if (end == text.size() || text[end] != '>' || text[end - 1] == '/') return {};
        const std::string tag = text.substr(at, end + 1 - at);
        if (name == "Hyperlink" && attribute(tag.substr(name.size() + 1), "Click").empty()) return {};
        return Piece{Piece::Open, tag.size(), name};
    }
    return {};
}

class Reader {
  public:
    explicit Reader(std::string text) : text_(std::move(text)) {}

    std::vector<Cell> read() {
        for (std::size_t at = 0; at < text_.size();) {
            const auto piece = pieceAt(text_, at);
            if (!piece) {
                put(text_[at++]);
                continue;
            }
            const std::string source = text_.substr(at, piece->length);
            at += piece->length;
            if (piece->kind == Piece::Break) {
                put('\n');
            } else if (piece->kind == Piece::Literal) {
                literal(source.substr(9, source.size() - 12));
            } else if (!(piece->kind == Piece::Open ? open(*piece, source, at) : close(*piece))) {
                for (const char c : source)
                    put(c);
            }
        }
        return std::move(cells_);
    }

  private:
    void put(char c) {
        if (edge_ && !cells_.empty() && cells_.back().c != '\n')
            cells_.push_back({'\n', false, {}, style_.block});
        edge_ = false;
        Cell cell = style_;
        if (c == '\n') cell = {c, false, {}, style_.block};
        cell.c = c;
        cells_.push_back(cell);
    }
    void literal(const std::string& text) {
        for (std::size_t i = 0; i < text.size(); ++i) {
            if (text[i] == '\r' && text.substr(i + 1, 1) == "\n") continue;
            put(text[i] == '\r' ? '\n' : text[i]);
        }
    }
    bool closedLater(const std::string& name, std::size_t at) const {
        while (at < text_.size()) {
            const auto piece = pieceAt(text_, at);
            if (piece && piece->kind == Piece::Close && piece->name == name) return true;
            at += piece ? piece->length : 1;
        }
        return false;
    }
    bool open(const Piece& piece, const std::string& tag, std::size_t behind) {
        if (!closedLater(piece.name, behind)) return false;
        if (piece.name == "Bold") return !std::exchange(style_.bold, true);
        const std::string attributes = tag.substr(piece.name.size() + 1);
        if (piece.name == "Hyperlink") {
            if (!style_.operation.empty()) return false;
            style_.operation = attribute(attributes, "Click");
            return true;
        }
        outer_.push_back(style_.block);
        edge_ = true;
        if (const auto wrapping = attribute(attributes, "TextWrapping"); !wrapping.empty())
            style_.block.wraps = wrapping != "NoWrap";
        using enum MarkupBlock::Alignment;
        if (const auto side = attribute(attributes, "TextAlignment"); !side.empty())
            style_.block.alignment = side == "Right" ? Right : side == "Center" ? Center : Left;
        std::smatch size;
        const std::string sizeText = attribute(attributes, "FontSize");
        if (std::regex_search(sizeText, size, std::regex("^-?(\\d+\\.?\\d*|\\.\\d+)([eE][+-]?\\d+)?"))) {
            const double points = std::strtod(size.str().c_str(), nullptr);
            if (points > 0 && points <= 1000) style_.block.fontSize = points;
        }
        return true;
    }
    bool close(const Piece& piece) {
        if (piece.name == "Bold") return std::exchange(style_.bold, false);
        if (piece.name == "Hyperlink") return !std::exchange(style_.operation, {}).empty();
        if (outer_.empty()) return false;
        style_.block = outer_.back();
        outer_.pop_back();
        edge_ = true;
        return true;
    }

    std::string text_;
    std::vector<Cell> cells_;
    Cell style_;
    std::vector<MarkupBlock> outer_;
    bool edge_ = false;  // what follows begins a line
};

std::string textOf(const std::vector<Cell>& cells) {
    std::string text;
    for (const Cell& cell : cells)
        text += cell.c;
    return text;
}

/// A user's text, made safe and put between tags, comes out as it was, in the style of the tags.
void checkSafe(const std::string& text) {
    std::string lines;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '\r') {
            lines += text[i];
        } else if (text.substr(i + 1, 1) != "\n") {
            lines += '\n';
        }
    }
    fuzz::same(plainText(asMarkupText(text)), lines, "the text made safe");
    const auto cells = cellsOf(parseMarkup("<Bold>" + asMarkupText(text) + "</Bold>"));
    fuzz::same(textOf(cells), lines, "the text made safe, in bold");
    for (const Cell& cell : cells)
        fuzz::require((cell.bold || cell.c == '\n') && cell.operation.empty(),
                      "a text made safe became markup");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::size_t longest = 1000;
    const std::string text(fuzz::textOf(data, std::min(size, longest)));
    const auto found = cellsOf(parseMarkup(text)), expected = Reader(text).read();
    fuzz::same(textOf(found), textOf(expected), "the plain text");
    fuzz::require(found == expected, "a character's style or block differs");
    checkSafe(text);
    return 0;
}
