#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tsln::workbench {

/// A word, value or sign of a SQL Server statement. The view points into the statement.
struct SqlToken {
    enum class Kind { Word, QuotedName, Text, Number, Sign, End };
    Kind kind = Kind::End;
    /// The token as written. For a Text, the part between the quotes, with inner quotes still doubled. For a
    /// QuotedName, the part between the brackets or double quotes.
    std::string_view text;
    /// True for a keyword, which is a name only in brackets.
    bool reserved = false;
    /// The character that closes a QuotedName.
    char quote = 0;

    bool isName() const { return kind == Kind::QuotedName || (kind == Kind::Word && !reserved); }
    bool isSign(std::string_view sign) const { return kind == Kind::Sign && text == sign; }
    /// Compares a word without letter case. `word` must be in capitals.
    bool isWord(std::string_view word) const;
    /// The name in a Word or QuotedName.
    std::string name() const;
};

/// Splits a statement into tokens, without comments, followed by an End token. The time is linear. Throws SqlError
/// for an unclosed quote or comment, and for characters that no statement contains.
std::vector<SqlToken> tokenizeSql(std::string_view statement);

/// Returns the text with the letters a to z in capitals.
std::string upperAscii(std::string_view text);

}  // namespace tsln::workbench
