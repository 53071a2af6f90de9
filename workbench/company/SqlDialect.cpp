#include "workbench/company/SqlDialect.h"

#include <algorithm>
#include <array>
#include <optional>
#include <set>
#include <unordered_map>
#include <vector>

#include <sqlite3.h>

#include "workbench/company/Company.h"
#include "workbench/company/SqlTokens.h"

namespace tsln::workbench {

namespace {

using Kind = SqlToken::Kind;

constexpr std::string_view kCollate = " COLLATE NOCASE";
/// SQLite's parser gives up at about a hundred levels.
constexpr int kDeepestNesting = 50;
/// SQLite takes at most 127 arguments.
constexpr std::size_t kMostArguments = 100;

/// A function of the server and what stands for it.
struct Function {
    std::string_view target;
    std::size_t fewest, most;
    bool aggregate = false;
    /// The result depends on how texts compare, which goes by the first argument.
    bool collates = false;
};

const std::unordered_map<std::string_view, Function> kFunctions = {
    {"ABS", {"abs", 1, 1}},
    {"AVG", {"tsql_avg", 1, 1, true}},
    {"CEILING", {"tsql_ceiling", 1, 1}},
    {"CHARINDEX", {"tsql_charindex", 2, 3}},
    {"COALESCE", {"coalesce", 2, kMostArguments}},
    {"CONCAT", {"tsql_concat", 2, kMostArguments}},
    {"COUNT", {"count", 1, 1, true, true}},
    {"FLOOR", {"tsql_floor", 1, 1}},
    {"ISNULL", {"ifnull", 2, 2}},
    {"LEFT", {"tsql_left", 2, 2}},
    {"LEN", {"tsql_len", 1, 1}},
    {"LOWER", {"lower", 1, 1}},
    {"LTRIM", {"ltrim", 1, 1}},
    {"MAX", {"max", 1, 1, true, true}},
    {"MIN", {"min", 1, 1, true, true}},
    {"NEWID", {"tsql_newid", 0, 0}},
    {"NULLIF", {"nullif", 2, 2, false, true}},
    {"REPLACE", {"tsql_replace", 3, 3}},
    {"RIGHT", {"tsql_right", 2, 2}},
    {"ROUND", {"tsql_round", 2, 2}},
    {"RTRIM", {"rtrim", 1, 1}},
    {"SUBSTRING", {"tsql_substring", 3, 3}},
    {"SUM", {"sum", 1, 1, true}},
    {"TRIM", {"trim", 1, 1}},
    {"UPPER", {"upper", 1, 1}},
};

/// Functions of the company database itself.
const std::unordered_map<std::string_view, Function> kDatabaseFunctions = {
    {"BUILDEMPLOYEENAME", {"dbo_buildemployeename", 3, 3}},
};

/// Procedures: one that changes rows is a view whose insert trigger does the work.
struct Procedure {
    std::string_view begin, end;
    std::size_t arguments;
    SqlTranslation::Kind kind;
};
const std::unordered_map<std::string_view, Procedure> kProcedures = {
    {"ENSURECUSTOMERDEFAULTADDRESS",
     {"INSERT INTO \"EnsureCustomerDefaultAddress\" VALUES (", ")", 1, SqlTranslation::Kind::Change}},
    {"SP_SPACEUSED", {"SELECT * FROM \"sp_spaceused\"", "", 0, SqlTranslation::Kind::Query}},
};

enum class TypeKind { Text, PaddedText, Integer, Bit, Decimal, Real, Date, DateTime };
struct Type {
    TypeKind kind;
    std::string name;  ///< as the statement writes it, for messages
    int length = -1;   ///< of a text; -1 for any
    int scale = 0;     ///< of a decimal
};
const std::unordered_map<std::string_view, Type> kTypes = {
    {"VARCHAR", {TypeKind::Text, {}, 30}},
    {"NVARCHAR", {TypeKind::Text, {}, 30}},
    {"CHAR", {TypeKind::PaddedText, {}, 30}},
    {"NCHAR", {TypeKind::PaddedText, {}, 30}},
    {"TEXT", {TypeKind::Text, {}}},
    {"NTEXT", {TypeKind::Text, {}}},
    {"TINYINT", {TypeKind::Integer, {}}},
    {"SMALLINT", {TypeKind::Integer, {}}},
    {"INT", {TypeKind::Integer, {}}},
    {"BIGINT", {TypeKind::Integer, {}}},
    {"BIT", {TypeKind::Bit, {}}},
    {"DECIMAL", {TypeKind::Decimal, {}}},
    {"NUMERIC", {TypeKind::Decimal, {}}},
    {"MONEY", {TypeKind::Decimal, {}, -1, 4}},
    {"SMALLMONEY", {TypeKind::Decimal, {}, -1, 4}},
    {"FLOAT", {TypeKind::Real, {}}},
    {"REAL", {TypeKind::Real, {}}},
    {"DATE", {TypeKind::Date, {}}},
    {"DATETIME", {TypeKind::DateTime, {}}},
    {"DATETIME2", {TypeKind::DateTime, {}}},
    {"SMALLDATETIME", {TypeKind::DateTime, {}}},
};

const std::unordered_map<std::string_view, std::string_view> kDateParts = {
    {"YEAR", "year"},     {"YYYY", "year"},   {"YY", "year"},       {"QUARTER", "quarter"}, {"QQ", "quarter"},
    {"Q", "quarter"},     {"MONTH", "month"}, {"MM", "month"},      {"M", "month"},         {"WEEK", "week"},
    {"WK", "week"},       {"WW", "week"},     {"DAY", "day"},       {"DD", "day"},          {"D", "day"},
    {"HOUR", "hour"},     {"HH", "hour"},     {"MINUTE", "minute"}, {"MI", "minute"},       {"N", "minute"},
    {"SECOND", "second"}, {"SS", "second"},   {"S", "second"}};

/// The styles that CONVERT to text writes dates in; SqlFunctions.cpp carries them out.
const std::set<int> kStyles = {0, 1, 3, 20, 23, 100, 101, 103, 104, 105, 108, 110, 111, 112, 120, 126};

constexpr std::array kStatementWords = {
    "SELECT", "INSERT",   "UPDATE", "DELETE", "EXEC",   "EXECUTE",  "DECLARE", "SET",   "DROP", "CREATE",
    "ALTER",  "TRUNCATE", "MERGE",  "BEGIN",  "COMMIT", "ROLLBACK", "IF",      "PRINT", "USE"};

/// Whether an expression gives a value or a condition; the server never takes one for the other.
enum class Gives { Value, Condition };

/// Reads the statement from left to right and writes the translation as it goes.
class Translator {
  public:
    explicit Translator(std::string_view statement) : tokens_(tokenizeSql(statement)) {
        out_.reserve(statement.size() + statement.size() / 2);
    }

    SqlTranslation run() {
        SqlTranslation result;
        if (peek().kind == Kind::End) fail("The statement is empty.");
        if (peek().isWord("SELECT")) {
            select();
        } else if (accept("INSERT")) {
            insert();
            result.kind = SqlTranslation::Kind::Insert;
        } else if (accept("UPDATE")) {
            update();
            result.kind = SqlTranslation::Kind::Change;
        } else if (accept("DELETE")) {
            erase();
            result.kind = SqlTranslation::Kind::Change;
        } else if (accept("EXEC") || accept("EXECUTE")) {
            result.kind = execute();
        } else {
            unexpected();
        }
        while (acceptSign(";")) {
        }
        if (peek().kind != Kind::End) {
            for (const char* word : kStatementWords) {
                if (peek().isWord(word)) {
                    fail(std::string("The text holds more than one statement: ") + word +
                         " begins a second one, and this database runs one at a time.");
                }
            }
            unexpected();
        }
        result.sql = std::move(out_);
        return result;
    }

  private:
    // ---- Tokens and errors

    const SqlToken& peek(std::size_t ahead = 0) const {
        return tokens_[std::min(at_ + ahead, tokens_.size() - 1)];
    }
    const SqlToken& take() { return tokens_[at_ < tokens_.size() - 1 ? at_++ : at_]; }
    bool accept(std::string_view word) {
        if (!peek().isWord(word)) return false;
        ++at_;
        return true;
    }
    bool acceptSign(std::string_view sign) {
        if (!peek().isSign(sign)) return false;
        ++at_;
        return true;
    }
    void expect(std::string_view word) {
        if (!accept(word)) unexpected();
    }
    void expectSign(std::string_view sign) {
        if (!acceptSign(sign)) unexpected();
    }

    [[noreturn]] static void fail(const std::string& text) { throw SqlError(SQLITE_ERROR, text); }
    [[noreturn]] static void unknown(const std::string& construct) {
        fail("The statement uses " + construct + ", which this database does not know.");
    }
    /// The token at hand is not what can stand here.
    [[noreturn]] void unexpected() const {
        const SqlToken& token = peek();
        if (token.kind == Kind::End) fail("The statement ends too early.");
        if (token.kind == Kind::Word && (isSqlServerWord(token.text) || token.text.front() == '@')) {
            unknown(upperAscii(token.text));
        }
        fail("Incorrect syntax near '" + std::string(token.text.substr(0, 60)) + "'.");
    }
    void needs(Gives wanted, Gives given) const {
        if (wanted == given) return;
        std::string near = at_ > 0 ? std::string(tokens_[at_ - 1].text.substr(0, 60)) : "";
        fail(wanted == Gives::Condition
                 ? "The statement has a value near '" + near + "' where a condition is expected."
                 : "The statement has a condition near '" + near + "' where a value is expected.");
    }

    /// Counts how deep the statement is nested, for as long as it lives.
    class Level {
      public:
        explicit Level(Translator& owner) : depth_(owner.depth_) {
            if (++depth_ > kDeepestNesting) fail("The statement is nested too deeply.");
        }
        ~Level() { --depth_; }
        Level(const Level&) = delete;

      private:
        int& depth_;
    };

    // ---- Names

    void writeName(std::string_view name) {
        out_ += '"';
        for (char c : name) {
            if (c == '"') out_ += '"';
            out_ += c;
        }
        out_ += '"';
    }
    std::string takeName() {
        if (!peek().isName()) unexpected();
        if (peek().kind == Kind::Word && (peek().text.front() == '@' || peek().text.front() == '#')) {
            unknown(std::string(peek().text));
        }
        std::string name = take().name();
        if (name.empty()) fail("The statement has a name without letters.");
        return name;
    }
    bool acceptSchema() {
        if (!peek().isName() || !peek(1).isSign(".") || upperAscii(peek().name()) != "DBO") return false;
        at_ += 2;
        return true;
    }
    /// A table or view, with or without "dbo.". Its translation is written.
    void table() {
        acceptSchema();
        std::string name = takeName();
        if (peek().isSign(".")) unknown("the database or schema " + name);
        if (upperAscii(name).starts_with("SQLITE_") || upperAscii(name).starts_with("PRAGMA_")) {
            fail("Invalid object name '" + name + "'.");
        }
        writeName(name);
    }
    /// column, table.column or dbo.table.column.
    void column() {
        acceptSchema();
        writeName(takeName());
        if (acceptSign(".")) {
            out_ += '.';
            writeName(takeName());
        }
        if (peek().isSign(".")) unknown("a name of more than two parts");
    }
    /// [AS] alias. True when there was one.
    bool alias() {
        bool said = accept("AS");
        if (peek().kind == Kind::Text) {
            out_ += " AS ";
            writeText(take());
            return true;
        }
        if (!said && !peek().isName()) return false;
        // OUTER APPLY and its like: a bare word that has a meaning here is no alias.
        if (!said && peek().kind == Kind::Word && isSqlServerWord(peek().text)) return false;
        out_ += " AS ";
        writeName(takeName());
        return true;
    }

    // ---- Statements

    void select() {
        Level level(*this);
        std::size_t start = out_.size();
        std::optional<std::string> top = selectCore();
        if (peek().isWord("UNION")) {
            closeBranch(start, top);
            while (accept("UNION")) {
                out_ += accept("ALL") ? " UNION ALL " : " UNION ";
                std::size_t branch = out_.size();
                top = selectCore();
                closeBranch(branch, top);
            }
            top.reset();
        }
        if (accept("ORDER")) {
            expect("BY");
            out_ += " ORDER BY ";
            do {
                value();
                out_ += kCollate;
                if (accept("DESC")) {
                    out_ += " DESC";
                } else {
                    accept("ASC");
                }
            } while (comma());
        }
        if (top) out_ += " LIMIT " + *top;
    }

    /// A branch of a UNION cannot carry its own LIMIT in SQLite, but a subquery in its place can.
    void closeBranch(std::size_t start, const std::optional<std::string>& top) {
        if (!top) return;
        out_.insert(start, "SELECT * FROM (");
        out_ += " LIMIT " + *top + ")";
    }

    /// SELECT to HAVING. Returns the number of TOP.
    std::optional<std::string> selectCore() {
        expect("SELECT");
        out_ += "SELECT ";
        if (accept("DISTINCT")) {
            out_ += "DISTINCT ";
        } else {
            accept("ALL");
        }
        std::optional<std::string> top;
        if (accept("TOP")) {
            bool bracket = acceptSign("(");
            if (peek().kind != Kind::Number) unexpected();
            top = std::string(take().text);
            if (top->find_first_not_of("0123456789") != std::string::npos)
                fail("Incorrect syntax near '" + *top + "'.");
            if (bracket) expectSign(")");
            if (peek().isWord("PERCENT")) unknown("TOP ... PERCENT");
            if (peek().isWord("WITH")) unknown("TOP ... WITH TIES");
        }
        do {
            selectItem();
        } while (comma());
        if (accept("FROM")) {
            out_ += " FROM ";
            do {
                joinedTables();
            } while (comma());
        }
        where();
        if (accept("GROUP")) {
            expect("BY");
            out_ += " GROUP BY ";
            do {
                value();
                out_ += kCollate;
            } while (comma());
        }
        if (accept("HAVING")) {
            out_ += " HAVING ";
            condition();
        }
        return top;
    }

    void selectItem() {
        if (acceptSign("*")) {
            out_ += '*';
            return;
        }
        if (peek().isName() && peek(1).isSign(".") && peek(2).isSign("*")) {
            writeName(takeName());
            at_ += 2;
            out_ += ".*";
            return;
        }
        // The server's other way to name a column: SELECT Total = COUNT(*)
        std::optional<std::string> named;
        if (peek().isName() && peek(1).isSign("=")) {
            named = takeName();
            ++at_;
        }
        std::size_t first = at_;
        value();
        std::size_t end = at_;
        // A column brings its collation along; DISTINCT and UNION go by it.
        if (!isColumn(first, end)) out_ += kCollate;
        if (named) {
            out_ += " AS ";
            writeName(*named);
        } else if (!alias() && !isColumn(first, end)) {
            // Left alone, SQLite would name it after the translation.
            out_ += " AS ";
            writeName(source(first, end));
        }
    }
    bool isColumn(std::size_t first, std::size_t end) const {
        for (std::size_t i = first; i < end; ++i) {
            if ((i - first) % 2 == 0 ? !tokens_[i].isName() : !tokens_[i].isSign(".")) return false;
        }
        return true;
    }
    /// The statement's own text for these tokens, as long as a name may be.
    std::string source(std::size_t first, std::size_t end) const {
        auto quotes = [](const SqlToken& token) { return token.quote != 0 ? 1 : 0; };
        const char* from = tokens_[first].text.data() - quotes(tokens_[first]);
        const SqlToken& last = tokens_[end - 1];
        std::string_view text(from, std::size_t(last.text.data() + last.text.size() + quotes(last) - from));
        std::size_t length = std::min<std::size_t>(text.size(), 128);
        while (length < text.size() && (text[length] & 0xC0) == 0x80)
            --length;
        text = text.substr(0, length);
        return std::string(text);
    }

    void joinedTables() {
        tableSource();
        for (;;) {
            if (accept("CROSS")) {
                if (!peek().isWord("JOIN")) unexpected();
                ++at_;
                out_ += " CROSS JOIN ";
                tableSource();
                continue;
            }
            if (peek().isWord("OUTER") && peek(1).isWord("APPLY")) unknown("APPLY");
            if (accept("INNER")) {
                out_ += " INNER";
            } else if (accept("LEFT")) {
                accept("OUTER");
                out_ += " LEFT";
            } else if (accept("RIGHT")) {
                accept("OUTER");
                out_ += " RIGHT";
            } else if (accept("FULL")) {
                accept("OUTER");
                out_ += " FULL";
            } else if (!peek().isWord("JOIN")) {
                return;
            }
            expect("JOIN");
            out_ += " JOIN ";
            tableSource();
            expect("ON");
            out_ += " ON ";
            condition();
        }
    }

    void tableSource() {
        if (acceptSign("(")) {
            Level level(*this);
            out_ += '(';
            if (peek().isWord("SELECT")) {
                select();
                expectSign(")");
                out_ += ')';
                if (!alias()) fail("A SELECT in the FROM part needs a name.");
                return;
            }
            joinedTables();
            expectSign(")");
            out_ += ')';
            return;
        }
        std::size_t name = at_;
        table();
        if (peek().isSign("(")) unknown("the table function " + tokens_[name].name() + "()");
        alias();
    }

    void where() {
        if (!accept("WHERE")) return;
        out_ += " WHERE ";
        condition();
    }

    void insert() {
        accept("INTO");
        out_ += "INSERT INTO ";
        table();
        if (acceptSign("(")) {
            out_ += " (";
            std::set<std::string> seen;
            do {
                writeColumnOnce(seen);
            } while (comma());
            expectSign(")");
            out_ += ')';
        }
        if (peek().isWord("SELECT")) {
            out_ += ' ';
            select();
            return;
        }
        expect("VALUES");
        out_ += " VALUES ";
        do {
            expectSign("(");
            out_ += '(';
            do {
                value();
            } while (comma());
            expectSign(")");
            out_ += ')';
        } while (comma());
    }

    void update() {
        out_ += "UPDATE ";
        table();
        expect("SET");
        out_ += " SET ";
        std::set<std::string> seen;
        do {
            writeColumnOnce(seen);
            expectSign("=");
            out_ += " = ";
            value();
        } while (comma());
        if (peek().isWord("FROM")) unknown("UPDATE ... FROM");
        where();
    }

    void erase() {
        accept("FROM");
        out_ += "DELETE FROM ";
        table();
        if (peek().isWord("FROM")) unknown("DELETE ... FROM");
        where();
    }

    /// A column to be written. SQLite would take the same one twice and drop one of the two values in
    /// silence.
    void writeColumnOnce(std::set<std::string>& seen) {
        std::string name = takeName();
        if (!seen.insert(upperAscii(name)).second) {
            fail("The column name '" + name +
                 "' is specified more than once in the SET clause or column list of an INSERT. A column "
                 "cannot be "
                 "assigned more than one value in the same clause.");
        }
        writeName(name);
    }

    SqlTranslation::Kind execute() {
        acceptSchema();
        std::string name = takeName();
        auto found = kProcedures.find(upperAscii(name));
        if (found == kProcedures.end()) unknown("the procedure " + name);
        const Procedure& procedure = found->second;
        out_ += procedure.begin;
        for (std::size_t i = 0; i < procedure.arguments; ++i) {
            if (i > 0) {
                expectSign(",");
                out_ += ", ";
            }
            bool negative = acceptSign("-");
            if (peek().kind != Kind::Number &&
                (negative || (peek().kind != Kind::Text && !peek().isWord("NULL")))) {
                unexpected();
            }
            if (negative) out_ += '-';
            primary();
        }
        out_ += procedure.end;
        return procedure.kind;
    }

    // ---- Expressions, from the loosest binding to the tightest

    void condition() { needs(Gives::Condition, either()); }
    void value() { needs(Gives::Value, sum()); }

    bool comma() {
        if (!acceptSign(",")) return false;
        out_ += ", ";
        return true;
    }

    /// A condition or a value: what stands in brackets may be either.
    Gives either() {
        Gives gives = conjunction();
        while (accept("OR")) {
            needs(Gives::Condition, gives);
            out_ += " OR ";
            needs(Gives::Condition, conjunction());
        }
        return gives;
    }

    Gives conjunction() {
        Gives gives = negation();
        while (accept("AND")) {
            needs(Gives::Condition, gives);
            out_ += " AND ";
            needs(Gives::Condition, negation());
        }
        return gives;
    }

    Gives negation() {
        bool negated = false;
        while (accept("NOT")) {
            out_ += "NOT ";
            negated = true;
        }
        Gives gives = predicate();
        if (negated) needs(Gives::Condition, gives);
        return gives;
    }

    Gives predicate() {
        if (accept("EXISTS")) {
            expectSign("(");
            out_ += "EXISTS (";
            select();
            expectSign(")");
            out_ += ')';
            return Gives::Condition;
        }
        std::size_t start = out_.size();
        Gives gives = sum();

        static constexpr std::pair<std::string_view, std::string_view> kComparisons[] = {
            {"=", " = "},   {"<>", " <> "}, {"!=", " <> "}, {"<", " < "},  {">", " > "},
            {"<=", " <= "}, {">=", " >= "}, {"!<", " >= "}, {"!>", " <= "}};
        for (auto [sign, translation] : kComparisons) {
            if (!acceptSign(sign)) continue;
            needs(Gives::Value, gives);
            if (peek().isWord("ALL") || peek().isWord("ANY") || peek().isWord("SOME")) unexpected();
            out_ += kCollate;
            out_ += translation;
            value();
            return Gives::Condition;
        }
        if (accept("IS")) {
            needs(Gives::Value, gives);
            out_ += accept("NOT") ? " IS NOT NULL" : " IS NULL";
            expect("NULL");
            return Gives::Condition;
        }
        bool negated = peek().isWord("NOT") &&
                       (peek(1).isWord("IN") || peek(1).isWord("LIKE") || peek(1).isWord("BETWEEN"));
        if (negated) ++at_;
        std::string_view no = negated ? " NOT" : "";
        if (accept("IN")) {
            needs(Gives::Value, gives);
            out_.append(kCollate).append(no).append(" IN (");
            expectSign("(");
            if (peek().isWord("SELECT")) {
                select();
            } else {
                do {
                    value();
                } while (comma());
            }
            expectSign(")");
            out_ += ')';
            return Gives::Condition;
        }
        if (accept("BETWEEN")) {
            needs(Gives::Value, gives);
            out_.append(kCollate).append(no).append(" BETWEEN ");
            value();
            expect("AND");
            out_ += " AND ";
            value();
            return Gives::Condition;
        }
        if (accept("LIKE")) {
            needs(Gives::Value, gives);
            out_.insert(start, negated ? "(NOT tsql_like(" : "(tsql_like(");
            out_ += ", ";
            value();
            if (accept("ESCAPE")) {
                out_ += ", ";
                value();
            }
            out_ += "))";
            return Gives::Condition;
        }
        return gives;
    }

    /// + - & |. Text is joined by the same sign that adds, so "+" is left to a function that sees the values.
    Gives sum() {
        std::size_t start = out_.size();
        std::vector<std::string_view> before;  // what opens at `start`, the innermost first
        Gives gives = product();
        std::size_t arguments = 0;  // of the tsql_add( that is still open
        auto close = [&] {
            if (arguments > 0) out_ += ')';
            arguments = 0;
        };
        for (;;) {
            bool bits = peek().isSign("&") || peek().isSign("|");
            if (acceptSign("+")) {
                if (arguments == kMostArguments) close();
                if (arguments == 0) {
                    before.push_back("tsql_add(");
                    arguments = 1;
                }
                ++arguments;
                out_ += ", ";
            } else if (bits || peek().isSign("-")) {
                close();
                if (bits) before.push_back("(");
                out_.append(" ").append(take().text).append(" ");
            } else {
                break;
            }
            needs(Gives::Value, gives);
            needs(Gives::Value, product());
            if (bits) out_ += ')';  // they bind looser than - in SQLite
        }
        close();
        open(start, before);
        return gives;
    }

    /// Puts opening brackets before what was written since `start`: in one piece, so that long chains stay
    /// linear.
    void open(std::size_t start, const std::vector<std::string_view>& before) {
        std::string prefix;
        for (auto i = before.rbegin(); i != before.rend(); ++i)
            prefix += *i;
        out_.insert(start, prefix);
    }

    /// * / %. The server refuses to divide by zero where SQLite gives NULL.
    Gives product() {
        std::size_t start = out_.size();
        std::vector<std::string_view> before;
        Gives gives = sign();
        for (;;) {
            bool divide = peek().isSign("/");
            if (acceptSign("*")) {
                needs(Gives::Value, gives);
                out_ += " * ";
                needs(Gives::Value, sign());
            } else if (divide || peek().isSign("%")) {
                needs(Gives::Value, gives);
                ++at_;
                before.push_back(divide ? "tsql_divide(" : "tsql_modulo(");
                out_ += ", ";
                needs(Gives::Value, sign());
                out_ += ')';
            } else {
                break;
            }
        }
        open(start, before);
        return gives;
    }

    Gives sign() {
        bool signs = false;
        while (peek().isSign("-") || peek().isSign("+") || peek().isSign("~")) {
            if (!peek().isSign("+"))
                out_.append(take().text).append(" ");
            else
                ++at_;
            signs = true;
        }
        Gives gives = primary();
        if (signs) needs(Gives::Value, gives);
        return gives;
    }

    Gives primary() {
        const SqlToken& token = peek();
        if (token.kind == Kind::Text) {
            writeText(take());
            return Gives::Value;
        }
        if (token.kind == Kind::Number) {
            out_ += take().text;
            return Gives::Value;
        }
        if (acceptSign("(")) {
            Level level(*this);
            out_ += '(';
            Gives gives = Gives::Value;
            if (peek().isWord("SELECT")) {
                select();
            } else {
                gives = either();
            }
            expectSign(")");
            out_ += ')';
            return gives;
        }
        if (accept("NULL")) {
            out_ += "NULL";
            return Gives::Value;
        }
        if (accept("CASE")) {
            caseOf();
            return Gives::Value;
        }
        if (token.kind == Kind::Word && peek(1).isSign("(")) {
            call();
            return Gives::Value;
        }
        if (token.isName() && peek(1).isSign(".") && peek(2).kind == Kind::Word && peek(3).isSign("(")) {
            databaseCall();
            return Gives::Value;
        }
        column();
        return Gives::Value;
    }

    /// The quote inside the text stands twice in both dialects.
    void writeText(const SqlToken& token) {
        out_ += '\'';
        out_ += token.text;
        out_ += '\'';
    }

    void caseOf() {
        Level level(*this);
        out_ += "CASE";
        bool simple = !peek().isWord("WHEN");
        if (simple) {
            out_ += ' ';
            value();
            out_ += kCollate;
        }
        if (!peek().isWord("WHEN")) unexpected();
        while (accept("WHEN")) {
            out_ += " WHEN ";
            simple ? value() : condition();
            expect("THEN");
            out_ += " THEN ";
            value();
        }
        if (accept("ELSE")) {
            out_ += " ELSE ";
            value();
        }
        expect("END");
        out_ += " END";
    }

    // ---- Functions

    void call() {
        Level level(*this);
        const SqlToken& word = take();
        std::string name = upperAscii(word.text);
        ++at_;  // the bracket
        if (name == "CAST") return cast();
        if (name == "CONVERT") return convert();
        if (name == "GETDATE" || name == "GETUTCDATE") {
            expectSign(")");
            out_ += name == "GETDATE" ? "strftime('%Y-%m-%dT%H:%M:%S', 'now', 'localtime')"
                                      : "strftime('%Y-%m-%dT%H:%M:%S', 'now')";
            return;
        }
        if (name == "DATEADD") return dateFunction("tsql_dateadd", 2);
        if (name == "DATEDIFF") return dateFunction("tsql_datediff", 2);
        if (name == "DATEPART") return dateFunction("tsql_datepart", 1);
        if (name == "YEAR" || name == "MONTH" || name == "DAY") {
            out_.append("tsql_datepart('").append(kDateParts.at(name)).append("', ");
            value();
            return closeCall();
        }
        if (name == "IIF") {
            out_ += "iif(";
            condition();
            for (int i = 0; i < 2; ++i) {
                expectSign(",");
                out_ += ", ";
                value();
            }
            return closeCall();
        }
        if (name == "COUNT" && acceptSign("*")) {
            out_ += "count(*";
            return closeCall();
        }
        auto found = kFunctions.find(name);
        if (found == kFunctions.end()) unknown(name + "()");
        arguments(found->second, name);
    }

    /// dbo.NAME(...)
    void databaseCall() {
        std::string schema = peek().name(), name = peek(2).name();
        auto found = kDatabaseFunctions.find(upperAscii(name));
        if (upperAscii(schema) != "DBO" || found == kDatabaseFunctions.end())
            unknown(schema + "." + name + "()");
        Level level(*this);
        at_ += 4;
        arguments(found->second, name);
    }

    /// From behind the opening bracket to the closing one.
    void arguments(const Function& function, const std::string& name) {
        out_.append(function.target).append("(");
        if (peek().isWord("DISTINCT")) {
            if (!function.aggregate) unexpected();
            ++at_;
            out_ += "DISTINCT ";
        }
        std::size_t count = 0;
        if (!peek().isSign(")")) {
            do {
                value();
                if (count++ == 0 && function.collates) out_ += kCollate;
            } while (comma());
        }
        if (count < function.fewest || count > function.most) {
            fail("The function " + name + "() does not take " + std::to_string(count) +
                 (count == 1 ? " argument." : " arguments."));
        }
        closeCall();
    }
    void closeCall() {
        expectSign(")");
        out_ += ')';
    }

    void dateFunction(std::string_view target, int values) {
        const SqlToken& part = peek();
        if (part.kind != Kind::Word) unexpected();
        auto found = kDateParts.find(upperAscii(part.text));
        if (found == kDateParts.end()) unknown("the date part " + std::string(part.text));
        ++at_;
        out_.append(target).append("('").append(found->second).append("'");
        for (int i = 0; i < values; ++i) {
            expectSign(",");
            out_ += ", ";
            value();
        }
        closeCall();
    }

    void cast() {
        std::size_t start = out_.size();
        value();
        expect("AS");
        Type wanted = type();
        out_.insert(start, conversionName(wanted));
        conversionEnd(wanted, {});
        closeCall();
    }

    void convert() {
        Type wanted = type();
        out_ += conversionName(wanted);
        expectSign(",");
        value();
        std::optional<int> style;
        if (acceptSign(",")) {
            if (peek().kind != Kind::Number || peek().text.size() > 4) unexpected();
            std::string number(take().text);
            style = std::atoi(number.c_str());
            bool text = wanted.kind == TypeKind::Text || wanted.kind == TypeKind::PaddedText;
            if (!text || !kStyles.contains(*style) || number.find('.') != std::string::npos) {
                unknown("CONVERT to " + wanted.name + " in style " + number);
            }
        }
        conversionEnd(wanted, style);
        closeCall();
    }

    static std::string conversionName(const Type& type) {
        switch (type.kind) {
            case TypeKind::Text:
            case TypeKind::PaddedText:
                return "tsql_text(";
            case TypeKind::Integer:
                return "tsql_int(";
            case TypeKind::Bit:
                return "tsql_bit(";
            case TypeKind::Decimal:
                return "tsql_decimal(";
            case TypeKind::Real:
                return "tsql_real(";
            case TypeKind::Date:
                return "tsql_date(";
            case TypeKind::DateTime:
                return "tsql_datetime(";
        }
        return {};
    }
    /// The arguments behind the value.
    void conversionEnd(const Type& type, std::optional<int> style) {
        if (type.kind == TypeKind::Text || type.kind == TypeKind::PaddedText) {
            out_ += ", " + std::to_string(type.length) + ", " + (style ? std::to_string(*style) : "NULL") +
                    ", " + (type.kind == TypeKind::PaddedText ? "1" : "0");
        } else if (type.kind == TypeKind::Decimal) {
            out_ += ", " + std::to_string(type.scale);
        } else if (type.kind == TypeKind::Integer) {
            out_ += ", '" + type.name + "'";
        }
    }

    Type type() {
        const SqlToken& word = peek();
        if (!word.isName()) unexpected();
        std::string name = upperAscii(word.name());
        auto found = kTypes.find(name);
        if (found == kTypes.end()) unknown("the type " + word.name());
        ++at_;
        Type result = found->second;
        result.name = name;
        if (!acceptSign("(")) return result;
        if (accept("MAX")) {
            result.length = -1;
        } else {
            result.length = typeNumber();
        }
        if (acceptSign(",")) result.scale = typeNumber();
        expectSign(")");
        return result;
    }
    int typeNumber() {
        const SqlToken& token = peek();
        if (token.kind != Kind::Number || token.text.size() > 5 ||
            token.text.find_first_not_of("0123456789") != std::string_view::npos) {
            unexpected();
        }
        return std::atoi(std::string(take().text).c_str());
    }

    std::vector<SqlToken> tokens_;
    std::size_t at_ = 0;
    int depth_ = 0;
    std::string out_;
};

}  // namespace

SqlTranslation translateSql(std::string_view statement) {
    return Translator(statement).run();
}

}  // namespace tsln::workbench
