#include "shared/Markup.h"

#include <array>
#include <charconv>
#include <utility>

#include "shared/modSharedStrings.h"

namespace tsln {
namespace {

constexpr std::string_view literalStart = "<![CDATA[", literalEnd = "]]>";
constexpr std::string_view lineBreakTags[] = {"<LineBreak/>", "<LineBreak />"};
constexpr std::string_view lineEnds[] = {"\r\n", "\r", "\n"};

enum Element : std::size_t { Bold, Hyperlink, TextBlock, elementCount };
constexpr std::array<std::string_view, elementCount> elementNames = {"Bold", "Hyperlink", "TextBlock"};

/// What the markup is made of, before it is known which tags have their counterpart.
struct Token {
    enum class Kind { Text, LineBreak, Open, Close };
    Kind kind = Kind::Text;
    std::string_view source;  // with the brackets of a tag, without those of a literal
    Element element = Bold;
};

/// The value of an attribute of a tag; empty when there is none.
std::string_view attribute(std::string_view tag, std::string_view name) {
    for (std::size_t at = tag.find(name); at != tag.npos; at = tag.find(name, at + 1)) {
        const std::size_t value = at + name.size() + 2;  // behind the equals sign and the quote
        if (tag[at - 1] != ' ' || value >= tag.size() || tag[value - 2] != '=') continue;
        const char quote = tag[value - 1];
        const std::size_t end = tag.find(quote, value);
        if ((quote == '\'' || quote == '"') && end != tag.npos) return tag.substr(value, end - value);
    }
    return {};
}

class Tokenizer {
  public:
    explicit Tokenizer(std::string_view markup) : rest_(markup) {}

    std::vector<Token> take() {
        std::size_t at = 0;
        while ((at = rest_.find_first_of("<\r\n", at)) != rest_.npos) {
            const Token token = special(rest_.substr(at));
            if (taken_ == 0) {
                ++at;  // text after all
                continue;
            }
            addText(rest_.substr(0, at));
            if (token.kind == Token::Kind::Text) {
                addLines(token.source);
            } else {
                tokens_.push_back(token);
            }
            rest_.remove_prefix(at + taken_);
            at = 0;
        }
        addText(rest_);
        return std::move(tokens_);
    }

  private:
    /// The token that is no plain text at the beginning of `text`, and in taken_ its length with all its
    /// brackets; 0 when there is none.
    Token special(std::string_view text) {
        taken_ = 0;
        for (const std::string_view mark : lineEnds) {
            if (text.starts_with(mark)) return found(Token::Kind::LineBreak, mark);
        }
        for (const std::string_view mark : lineBreakTags) {
            if (text.starts_with(mark)) return found(Token::Kind::LineBreak, mark);
        }
        if (text.starts_with(literalStart)) return literal(text);
        for (std::size_t element = 0; element < elementCount; ++element) {
            const std::string_view name = elementNames[element];
            const bool closes = text.substr(1).starts_with('/');
            if (!text.substr(closes ? 2 : 1).starts_with(name)) continue;
            const std::size_t length = tagLength(text);
            if (length == 0) break;
            const std::string_view behindName = text.substr(0, length).substr((closes ? 2 : 1) + name.size());
            if (behindName != ">" && (closes || behindName[0] != ' ')) break;
            if (behindName.ends_with("/>")) break;
            if (element == Bold && behindName != ">") break;
            if (element == Hyperlink && !closes && attribute(behindName, "Click").empty()) break;
            Token token = found(closes ? Token::Kind::Close : Token::Kind::Open, text.substr(0, length));
            token.element = static_cast<Element>(element);
            return token;
        }
        return {};
    }

    Token found(Token::Kind kind, std::string_view source) {
        taken_ = source.size();
        return {kind, source};
    }

    Token literal(std::string_view text) {
        const std::size_t end = literalsEnded_ ? text.npos : text.find(literalEnd);
        if (end == text.npos) {
            literalsEnded_ = true;  // so that many beginnings without an end are not searched for it again
            return {};
        }
        taken_ = end + literalEnd.size();
        return {Token::Kind::Text, text.substr(literalStart.size(), end - literalStart.size())};
    }

    /// The length of a tag, up to its ">" outside of quotes; 0 when it has none before the next "<".
    static std::size_t tagLength(std::string_view text) {
        char quote = 0;
        for (std::size_t i = 1; i < text.size(); ++i) {
            const char c = text[i];
            if (c == '<') return 0;
            if (quote) {
                if (c == quote) quote = 0;
            } else if (c == '\'' || c == '"') {
                quote = c;
            } else if (c == '>') {
                return i + 1;
            }
        }
        return 0;
    }

    void addText(std::string_view text) {
        if (!text.empty()) tokens_.push_back({Token::Kind::Text, text});
    }

    void addLines(std::string_view text) {
        for (std::size_t at = 0; (at = text.find_first_of("\r\n")) != text.npos;) {
            addText(text.substr(0, at));
            const std::size_t length = text.substr(at).starts_with("\r\n") ? 2 : 1;
            tokens_.push_back({Token::Kind::LineBreak, text.substr(at, length)});
            text.remove_prefix(at + length);
        }
        addText(text);
    }

    std::string_view rest_;
    std::vector<Token> tokens_;
    std::size_t taken_ = 0;
    bool literalsEnded_ = false;
};

MarkupBlock blockWithin(MarkupBlock outer, std::string_view tag) {
    if (const auto wrapping = attribute(tag, "TextWrapping"); !wrapping.empty())
        outer.wraps = wrapping != "NoWrap";
    if (const auto alignment = attribute(tag, "TextAlignment"); !alignment.empty()) {
        outer.alignment = alignment == "Right"    ? MarkupBlock::Alignment::Right
                          : alignment == "Center" ? MarkupBlock::Alignment::Center
                                                  : MarkupBlock::Alignment::Left;
    }
    constexpr double largest = 1000;
    const std::string_view sizeText = attribute(tag, "FontSize");
    double size = 0;
    std::from_chars(sizeText.data(), sizeText.data() + sizeText.size(), size);
    if (size > 0 && size <= largest) outer.fontSize = size;
    return outer;
}

/// Turns tokens into runs; neighbours that are drawn alike become one.
class Runs {
  public:
    std::vector<MarkupRun> take(const std::vector<Token>& tokens) {
        std::array<std::size_t, elementCount> lastClose{};  // one behind it
        for (std::size_t i = 0; i < tokens.size(); ++i) {
            if (tokens[i].kind == Token::Kind::Close) lastClose[tokens[i].element] = i + 1;
        }
        for (std::size_t i = 0; i < tokens.size(); ++i) {
            const Token& token = tokens[i];
            switch (token.kind) {
                case Token::Kind::Text:
                    text(token.source);
                    break;
                case Token::Kind::LineBreak:
                    lineBreak();
                    break;
                case Token::Kind::Open:
                    if (lastClose[token.element] <= i || !open(token)) text(token.source);
                    break;
                case Token::Kind::Close:
                    if (!close(token.element)) text(token.source);
                    break;
            }
        }
        return std::move(runs_);
    }

  private:
    bool open(const Token& tag) {
        switch (tag.element) {
            case Bold:
                return !std::exchange(style_.bold, true);
            case Hyperlink:
                if (!style_.operation.empty()) return false;
                style_.operation = attribute(tag.source, "Click");
                return true;
            default:
                blocks_.push_back(style_.block);
                style_.block = blockWithin(style_.block, tag.source);
                ownLine_ = true;
                return true;
        }
    }

    bool close(Element element) {
        switch (element) {
            case Bold:
                return std::exchange(style_.bold, false);
            case Hyperlink:
                return !std::exchange(style_.operation, {}).empty();
            default:
                if (blocks_.empty()) return false;
                style_.block = blocks_.back();
                blocks_.pop_back();
                ownLine_ = true;
                return true;
        }
    }

    void text(std::string_view text) {
        breakBefore();
        if (!runs_.empty()) {
            MarkupRun& last = runs_.back();
            if (!last.lineBreak && last.bold == style_.bold && last.operation == style_.operation &&
                last.block == style_.block) {
                last.text += text;
                return;
            }
        }
        runs_.push_back(style_);
        runs_.back().text = text;
    }

    void lineBreak() {
        breakBefore();
        endLine();
    }
    void endLine() { runs_.push_back({.lineBreak = true, .block = style_.block}); }
    /// What follows the edge of a block begins a line.
    void breakBefore() {
        if (std::exchange(ownLine_, false) && !runs_.empty() && !runs_.back().lineBreak) endLine();
    }

    std::vector<MarkupRun> runs_;
    MarkupRun style_;  // of the text to come
    std::vector<MarkupBlock> blocks_;
    bool ownLine_ = false;
};

}  // namespace

std::vector<MarkupRun> parseMarkup(std::string_view markup) {
    return Runs().take(Tokenizer(markup).take());
}

std::string plainText(std::string_view markup) {
    std::string result;
    for (const MarkupRun& run : parseMarkup(markup)) {
        if (run.lineBreak) {
            result += '\n';
        } else {
            result += run.text;
        }
    }
    return result;
}

std::string asMarkupText(std::string_view text) {
    if (text.find('<') == text.npos) return std::string(text);
    // The text's own end mark is divided between two literals.
    return std::string(literalStart) + modSharedStrings::replaceAll(text, literalEnd, "]]]]><![CDATA[>") +
           std::string(literalEnd);
}

}  // namespace tsln
