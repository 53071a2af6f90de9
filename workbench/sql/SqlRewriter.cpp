#include "workbench/sql/SqlRewriter.h"

#include <algorithm>
#include <charconv>

#include <sqlite3.h>

#include "workbench/sql/SqlError.h"
#include "workbench/sql/SqlVocabulary.h"

namespace tsln::workbench {

namespace {

/// SQLite's parser fails at about a hundred levels.
constexpr int deepestNesting = 50;
/// In bytes, of a token in a message.
constexpr std::size_t longestShown = 60;

}  // namespace

SqlRewriter::SqlRewriter(std::string_view statement) : tokens_(tokenizeSql(statement)) {
    out_.reserve(statement.size() + statement.size() / 2);
}

const SqlToken& SqlRewriter::peek(std::size_t ahead) const {
    return tokens_[std::min(at_ + ahead, tokens_.size() - 1)];
}

const SqlToken& SqlRewriter::take() {
    return tokens_[at_ < tokens_.size() - 1 ? at_++ : at_];
}

bool SqlRewriter::accept(std::string_view word) {
    if (!peek().isWord(word)) return false;
    ++at_;
    return true;
}

bool SqlRewriter::acceptSign(std::string_view sign) {
    if (!peek().isSign(sign)) return false;
    ++at_;
    return true;
}

void SqlRewriter::expect(std::string_view word) {
    if (!accept(word)) unexpected();
}

void SqlRewriter::expectSign(std::string_view sign) {
    if (!acceptSign(sign)) unexpected();
}

bool SqlRewriter::comma() {
    if (!acceptSign(",")) return false;
    out_ += ", ";
    return true;
}

std::string SqlRewriter::takeName() {
    if (!peek().isName()) unexpected();
    if (peek().kind == Kind::Word && (peek().text.front() == '@' || peek().text.front() == '#')) {
        unknown(std::string(peek().text));
    }
    std::string name = take().name();
    if (name.empty()) fail("The statement contains an empty name.");
    return name;
}

bool SqlRewriter::acceptSchema() {
    if (!peek().isName() || !peek(1).isSign(".") || upperAscii(peek().name()) != "DBO") return false;
    at_ += 2;
    return true;
}

std::span<const SqlToken> SqlRewriter::tokensSince(std::size_t position) const {
    return std::span(tokens_).subspan(position, at_ - position);
}

std::string SqlRewriter::lastTaken() const {
    return at_ > 0 ? std::string(tokens_[at_ - 1].text.substr(0, longestShown)) : "";
}

void SqlRewriter::writeName(std::string_view name) {
    out_ += '"';
    for (char c : name) {
        if (c == '"') out_ += '"';
        out_ += c;
    }
    out_ += '"';
}

void SqlRewriter::writeText(const SqlToken& token) {
    // Both dialects double a quote inside a text, so the text is copied unchanged.
    out_.append("'").append(token.text).append("'");
}

void SqlRewriter::closeBracket() {
    expectSign(")");
    out_ += ')';
}

void SqlRewriter::fail(const std::string& text) {
    throw SqlError(SQLITE_ERROR, text);
}

void SqlRewriter::unknown(const std::string& construct) {
    fail("The statement uses " + construct + ", which this database does not know.");
}

void SqlRewriter::unexpected() const {
    const SqlToken& token = peek();
    if (token.kind == Kind::End) fail("The statement ends too early.");
    if (token.kind == Kind::Word) {
        const std::string word = upperAscii(token.text);
        if (isSqlServerWord(word) || word.front() == '@') unknown(word);
    }
    fail("Incorrect syntax near '" + std::string(token.text.substr(0, longestShown)) + "'.");
}

SqlRewriter::Level::Level(SqlRewriter& owner) : depth_(owner.depth_) {
    // The depth is raised after the check: when the constructor throws, no destructor lowers it.
    if (depth_ == deepestNesting) fail("The statement is nested too deeply.");
    ++depth_;
}

std::optional<int> wholeNumber(std::string_view text) {
    int number = 0;
    const char* end = text.data() + text.size();
    auto [stop, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc() || stop != end || number < 0) return std::nullopt;
    return number;
}

}  // namespace tsln::workbench
