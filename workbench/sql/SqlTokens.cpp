#include "workbench/sql/SqlTokens.h"

#include <algorithm>

#include <sqlite3.h>

#include "workbench/sql/SqlError.h"
#include "workbench/sql/SqlVocabulary.h"

namespace tsln::workbench {

namespace {

/// Signs of two characters, matched before signs of one.
constexpr std::string_view longSigns[] = {
    "<>", "!=", "<=", ">=", "!<", "!>", "+=", "-=", "*=", "/=", "%=", "&=", "|=", "^=", "::"};

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}
bool startsWord(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_' || c == '#' || c == '@' ||
           static_cast<unsigned char>(c) >= 0x80;
}
bool continuesWord(char c) {
    return startsWord(c) || isDigit(c) || c == '$';
}

class Tokenizer {
  public:
    explicit Tokenizer(std::string_view statement) : sql_(statement) {}

    std::vector<SqlToken> run() {
        if (sql_.find('\0') != std::string_view::npos) fail("The statement holds a null character.");
        std::vector<SqlToken> tokens;
        while (skipBlanksAndComments())
            tokens.push_back(next());
        tokens.push_back({});
        return tokens;
    }

  private:
    [[noreturn]] static void fail(const std::string& text) { throw SqlError(SQLITE_ERROR, text); }

    bool at(std::string_view sign) const { return sql_.substr(at_, sign.size()) == sign; }

    bool skipBlanksAndComments() {
        while (at_ < sql_.size()) {
            char c = sql_[at_];
            if (c == ' ' || (c >= '\t' && c <= '\r')) {
                ++at_;
            } else if (at("--")) {
                at_ = std::min(sql_.find('\n', at_), sql_.size());
            } else if (at("/*")) {
                skipBlockComment();
            } else {
                return true;
            }
        }
        return false;
    }

    void skipBlockComment() {
        int depth = 0;  // comments nest on the server
        do {
            if (at_ >= sql_.size()) fail("A comment that begins with /* is not closed.");
            if (at("/*")) {
                ++depth;
                at_ += 2;
            } else if (at("*/")) {
                --depth;
                at_ += 2;
            } else {
                ++at_;
            }
        } while (depth > 0);
    }

    SqlToken next() {
        char c = sql_[at_];
        if (c == '\'') return quoted(SqlToken::Kind::Text, '\'');
        if ((c == 'N' || c == 'n') && at_ + 1 < sql_.size() && sql_[at_ + 1] == '\'') {
            ++at_;
            return quoted(SqlToken::Kind::Text, '\'');
        }
        if (c == '[') return quoted(SqlToken::Kind::QuotedName, ']');
        if (c == '"') return quoted(SqlToken::Kind::QuotedName, '"');
        if (isDigit(c) || (c == '.' && at_ + 1 < sql_.size() && isDigit(sql_[at_ + 1]))) return number();
        if (startsWord(c)) return word();
        for (std::string_view sign : longSigns) {
            if (at(sign)) return take(SqlToken::Kind::Sign, sign.size());
        }
        if (std::string_view("()+-*/%,.;=<>&|^~").find(c) == std::string_view::npos) {
            fail(std::string("Incorrect syntax near '") + c + "'.");
        }
        return take(SqlToken::Kind::Sign, 1);
    }

    SqlToken take(SqlToken::Kind kind, std::size_t length) {
        SqlToken token{kind, sql_.substr(at_, length)};
        at_ += length;
        return token;
    }

    SqlToken quoted(SqlToken::Kind kind, char close) {
        std::size_t start = ++at_;
        for (;;) {
            at_ = sql_.find(close, at_);
            if (at_ == std::string_view::npos) {
                std::string_view shown = sql_.substr(start, 40);
                while (!shown.empty() && (shown.back() & 0xC0) == 0x80)
                    shown.remove_suffix(1);
                fail("Unclosed quotation mark before '" + std::string(shown) + "'.");
            }
            if (at_ + 1 >= sql_.size() || sql_[at_ + 1] != close) break;
            at_ += 2;
        }
        SqlToken token{kind, sql_.substr(start, at_ - start)};
        token.quote = close;
        ++at_;
        return token;
    }

    SqlToken number() {
        std::size_t end = at_;
        auto digits = [&] {
            while (end < sql_.size() && isDigit(sql_[end]))
                ++end;
        };
        digits();
        if (end < sql_.size() && sql_[end] == '.') {
            ++end;
            digits();
        }
        if (end < sql_.size() && (sql_[end] == 'e' || sql_[end] == 'E')) {
            ++end;
            if (end < sql_.size() && (sql_[end] == '+' || sql_[end] == '-')) ++end;
            const std::size_t exponent = end;
            digits();
            if (end == exponent)
                fail("Incorrect syntax near '" + std::string(sql_.substr(at_, end - at_)) + "'.");
        }
        if (end < sql_.size() && continuesWord(sql_[end])) {
            while (end < sql_.size() && continuesWord(sql_[end]))
                ++end;
            fail("Incorrect syntax near '" + std::string(sql_.substr(at_, end - at_)) + "'.");
        }
        return take(SqlToken::Kind::Number, end - at_);
    }

    SqlToken word() {
        std::size_t end = at_;
        while (end < sql_.size() && continuesWord(sql_[end]))
            ++end;
        SqlToken token = take(SqlToken::Kind::Word, end - at_);
        token.reserved = isReservedSqlWord(upperAscii(token.text));
        return token;
    }

    std::string_view sql_;
    std::size_t at_ = 0;
};

}  // namespace

bool SqlToken::isWord(std::string_view word) const {
    return kind == Kind::Word && std::ranges::equal(text, word, [](char a, char b) {
               return (a >= 'a' && a <= 'z' ? a - 32 : a) == b;
           });
}

std::string SqlToken::name() const {
    if (kind != Kind::QuotedName) return std::string(text);
    std::string result;
    result.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        result += text[i];
        if (text[i] == quote) ++i;
    }
    return result;
}

std::vector<SqlToken> tokenizeSql(std::string_view statement) {
    return Tokenizer(statement).run();
}

std::string upperAscii(std::string_view text) {
    std::string result(text);
    std::ranges::transform(result, result.begin(),
                           [](char c) { return c >= 'a' && c <= 'z' ? char(c - 32) : c; });
    return result;
}

}  // namespace tsln::workbench
