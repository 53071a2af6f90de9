#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "workbench/sql/SqlTokens.h"

namespace tsln::workbench {

/// Goes through the tokens of a statement from left to right and writes its translation on the way. What all
/// translators of the dialect share: reading what must or may come next, writing names, and the refusals, all
/// of them SqlError.
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

    /// The token at hand or one after it; behind the last stands an End.
    const SqlToken& peek(std::size_t ahead = 0) const;
    const SqlToken& take();
    /// Passes tokens that were peeked at.
    void skip(std::size_t count = 1) { at_ += count; }
    bool accept(std::string_view word);
    bool acceptSign(std::string_view sign);
    void expect(std::string_view word);
    void expectSign(std::string_view sign);
    /// Another part of a list follows.
    bool comma();
    std::string takeName();
    /// "dbo." before a name; it is not written.
    bool acceptSchema();

    std::size_t position() const { return at_; }
    std::span<const SqlToken> tokensSince(std::size_t position) const;
    /// What the last token taken says, for messages.
    std::string lastTaken() const;

    // ---- Writing

    void writeName(std::string_view name);
    void writeText(const SqlToken& token);
    /// A closing bracket, here as there.
    void closeBracket();

    std::string out_;

    // ---- Refusals

    [[noreturn]] static void fail(const std::string& text);
    /// The construct exists there, but not in this database.
    [[noreturn]] static void unknown(const std::string& construct);
    /// The token at hand is not what can stand here.
    [[noreturn]] void unexpected() const;

    /// Counts how deep the statement is nested, for as long as it lives; refuses what is too deep.
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

/// The number that the text is, when it is digits only and fits.
std::optional<int> wholeNumber(std::string_view text);

/// Behind a text that is compared, ordered or grouped: how the server does it.
inline constexpr std::string_view asTextsCompare = " COLLATE NOCASE";

}  // namespace tsln::workbench
