#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "workbench/sql/SqlTokens.h"

namespace tsln::workbench {

/// Reads the tokens of a statement from left to right and writes its translation. The base of all translators of the
/// dialect: it reads expected and optional tokens, writes names, and raises errors as SqlError.
class SqlRewriter {
  public:
    SqlRewriter(const SqlRewriter&) = delete;
    SqlRewriter& operator=(const SqlRewriter&) = delete;

  protected:
    using Kind = SqlToken::Kind;

    /// The statement's text must outlive the rewriter.
    explicit SqlRewriter(std::string_view statement);
    ~SqlRewriter() = default;

    // ---- Reading

    /// Returns the current token, or a later one. After the last token, returns an End.
    const SqlToken& peek(std::size_t ahead = 0) const;
    const SqlToken& take();
    /// Skips tokens that were examined by peek().
    void skip(std::size_t count = 1) { at_ += count; }
    bool accept(std::string_view word);
    bool acceptSign(std::string_view sign);
    void expect(std::string_view word);
    void expectSign(std::string_view sign);
    /// Skips a comma. Returns false when there is none.
    bool comma();
    std::string takeName();
    /// Skips "dbo." before a name. Returns false when there is none.
    bool acceptSchema();

    std::size_t position() const { return at_; }
    std::span<const SqlToken> tokensSince(std::size_t position) const;
    /// The text of the last token taken, for messages.
    std::string lastTaken() const;

    // ---- Writing

    void writeName(std::string_view name);
    void writeText(const SqlToken& token);
    /// Reads and writes a closing bracket.
    void closeBracket();

    std::string out_;

    // ---- Refusals

    [[noreturn]] static void fail(const std::string& text);
    /// Raises the error of a construct that exists in SQL Server, but not in this database.
    [[noreturn]] static void unknown(const std::string& construct);
    /// Raises the error of a current token that cannot occur here.
    [[noreturn]] void unexpected() const;

    /// Counts the nesting of the statement for its own lifetime, and raises an error at the limit.
    class Level {
      public:
        explicit Level(SqlRewriter& owner);
        ~Level() { --depth_; }
        Level(const Level&) = delete;
        Level& operator=(const Level&) = delete;

      private:
        int& depth_;
    };

  private:
    std::vector<SqlToken> tokens_;
    std::size_t at_ = 0;
    int depth_ = 0;
};

/// Returns the number in a text that has only digits; nothing for another text or a number that is too large.
std::optional<int> wholeNumber(std::string_view text);

/// Written after a text that is compared, sorted or grouped, to get the server's text order.
inline constexpr std::string_view asTextsCompare = " COLLATE NOCASE";

}  // namespace tsln::workbench
