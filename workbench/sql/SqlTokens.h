#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tsln::workbench {

/// One word, value or sign of a SQL Server statement. The views point into the statement.
struct SqlToken {
    enum class Kind { Word, QuotedName, Text, Number, Sign, End };
    Kind kind = Kind::End;
    /// As it is written; of a Text the part between the quotes, where a quote still stands twice; of a
    /// QuotedName the part between the brackets or double quotes.
    std::string_view text;
    /// A word that names nothing unless it stands in brackets.
    bool reserved = false;
    /// The character that closes the quoted name.
    char quote = 0;

    bool isName() const { return kind == Kind::QuotedName || (kind == Kind::Word && !reserved); }
    bool isSign(std::string_view sign) const { return kind == Kind::Sign && text == sign; }
    /// Compares a word without letter case; `word` in capitals.
    bool isWord(std::string_view word) const;
    /// The name that a Word or QuotedName stands for.
    std::string name() const;
};

/// Cuts a statement into tokens, without comments, an End token last. Linear in its length.
/// Throws SqlError for a quote or comment that is not closed and for characters that no statement has.
std::vector<SqlToken> tokenizeSql(std::string_view statement);

/// The text in capitals, letters A to Z only.
std::string upperAscii(std::string_view text);

}  // namespace tsln::workbench
