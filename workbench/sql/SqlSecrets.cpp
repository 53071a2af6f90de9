#include "workbench/sql/SqlSecrets.h"

#include <algorithm>
#include <set>
#include <vector>

#include "automation/Object.h"
#include "workbench/sql/SqlError.h"
#include "workbench/sql/SqlTokens.h"

namespace tsln::workbench {
namespace {

constexpr std::string_view secretColumns[] = {"PasswordHash", "EmailSMTPPassword"};

bool isSecret(const SqlToken& token) {
    return token.isName() && std::ranges::any_of(secretColumns, [&](std::string_view column) {
               return sameName(token.text, column);
           });
}

/// A text, or what stands in its place by mistake: a number, a quoted name, or digits and letters without quotes.
bool isValue(const SqlToken& token) {
    if (token.kind == SqlToken::Kind::Text || token.kind == SqlToken::Kind::Number) return true;
    const bool hasDigits = token.text.find_first_of("0123456789") != std::string_view::npos;
    return token.isName() && !isSecret(token) && (token.quote != 0 || hasDigits);
}

using Tokens = std::vector<SqlToken>;
using Token = Tokens::const_iterator;

/// Calls `item` for the tokens of each item of a list, with its number from 0. `at` is at the opening parenthesis and
/// ends behind the closing one.
template <class Item>
void eachItem(Token& at, Token end, const Item& item) {
    std::size_t number = 0;
    int depth = 0;
    for (; at != end; ++at) {
        if (at->isSign("(") && ++depth == 1) continue;
        if (at->isSign(")") && --depth == 0) {
            ++at;
            return;
        }
        if (depth == 1 && at->isSign(",")) {
            ++number;
        } else {
            item(number, *at);
        }
    }
}

/// The texts to be hidden. In an INSERT they are at the places of the columns, elsewhere they follow the column.
std::vector<std::string_view> secretTexts(const Tokens& tokens) {
    std::vector<std::string_view> found;
    const auto open = [&](Token from) {
        return std::find_if(from, tokens.end(), [](const SqlToken& token) { return token.isSign("("); });
    };
    if (tokens.front().isWord("INSERT")) {
        std::set<std::size_t> places;
        Token at = open(tokens.begin());
        eachItem(at, tokens.end(), [&](std::size_t number, const SqlToken& token) {
            if (isSecret(token)) places.insert(number);
        });
        for (at = open(at); at != tokens.end(); at = open(at)) {
            eachItem(at, tokens.end(), [&](std::size_t number, const SqlToken& token) {
                if (isValue(token) && places.contains(number)) found.push_back(token.text);
            });
        }
        return found;
    }
    bool follows = false;  // the values of a secret column follow, which stands at `column` brackets deep
    int depth = 0, column = 0;
    for (const SqlToken& token : tokens) {
        depth += token.isSign("(") ? 1 : token.isSign(")") ? -1 : 0;
        const bool ends = token.isSign(",") || token.isWord("AND") || token.isWord("OR") ||
                          token.isWord("WHERE") || token.isWord("FROM");
        if (ends && depth <= column) follows = false;
        if (isSecret(token)) {
            follows = true;
            column = depth;
        }
        if (follows && isValue(token)) found.push_back(token.text);
    }
    return found;
}

}  // namespace

bool namesSecrets(std::string_view statement) {
    return std::ranges::any_of(secretColumns, [&](std::string_view column) {
        const auto same = [](char a, char b) {
            return sameName(std::string_view(&a, 1), std::string_view(&b, 1));
        };
        return std::search(statement.begin(), statement.end(), column.begin(), column.end(), same) !=
               statement.end();
    });
}

std::string withoutSecrets(std::string_view statement) {
    try {
        const Tokens tokens = tokenizeSql(statement);
        std::string shown;
        const char* from = statement.data();
        for (const std::string_view secret : secretTexts(tokens)) {
            shown.append(from, secret.data());
            shown += hiddenText;
            from = secret.data() + secret.size();
        }
        return shown.append(from, statement.data() + statement.size());
    } catch (const SqlError&) {
        return std::string(hiddenText);
    }
}

std::string errorWithoutSecrets(std::string_view statement, std::string_view error) {
    if (!namesSecrets(statement)) return std::string(error);
    // The database quotes the part of a statement at which it stopped, or names it behind a colon.
    const auto quoted = [&](const SqlToken& token) {
        return !token.text.empty() &&
               std::ranges::any_of(std::initializer_list<std::string_view>{"'", "\"", "[", ": "},
                                   [&](std::string_view before) {
                                       return error.find(std::string(before) + std::string(token.text)) !=
                                              error.npos;
                                   });
    };
    try {
        if (std::ranges::none_of(tokenizeSql(statement), quoted)) return std::string(error);
    } catch (const SqlError&) {
        // What cannot be read as a statement may quote anything.
    }
    return "A statement about passwords failed.";
}

}  // namespace tsln::workbench
