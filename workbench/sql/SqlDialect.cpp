#include "workbench/sql/SqlDialect.h"

#include <set>

#include "workbench/sql/SqlSelect.h"

namespace tsln::workbench {

namespace {

class StatementTranslator : public SqlSelect {
  public:
    explicit StatementTranslator(std::string_view statement) : SqlSelect(statement) {}

    SqlTranslation run() {
        SqlTranslation result;
        result.kind = statement();
        while (acceptSign(";")) {
        }
        if (peek().kind != Kind::End) refuseSecondStatement();
        result.sql = std::move(out_);
        return result;
    }

  private:
    SqlTranslation::Kind statement() {
        using enum SqlTranslation::Kind;
        if (peek().kind == Kind::End) fail("The statement is empty.");
        if (peek().isWord("SELECT")) {
            select();
            return Query;
        }
        if (accept("INSERT")) {
            insert();
            return Insert;
        }
        if (accept("UPDATE")) {
            update();
            return Change;
        }
        if (accept("DELETE")) {
            erase();
            return Change;
        }
        if (accept("EXEC") || accept("EXECUTE")) return execute() ? Change : Query;
        unexpected();
    }

    [[noreturn]] void refuseSecondStatement() const {
        if (peek().kind == Kind::Word) {
            const std::string word = upperAscii(peek().text);
            if (beginsStatement(word)) {
                fail("The text holds more than one statement: " + word +
                     " begins a second one, and this database runs one at a time.");
            }
        }
        unexpected();
    }

    void insert() {
        accept("INTO");
        out_ += "INSERT INTO ";
        table();
        if (acceptSign("(")) {
            out_ += " (";
            std::set<std::string> written;
            do {
                writtenColumn(written);
            } while (comma());
            closeBracket();
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
            closeBracket();
        } while (comma());
    }

    void update() {
        out_ += "UPDATE ";
        table();
        expect("SET");
        out_ += " SET ";
        std::set<std::string> written;
        do {
            writtenColumn(written);
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

    /// Translates a column that the statement writes. SQLite accepts a column twice and silently ignores one of the
    /// values.
    void writtenColumn(std::set<std::string>& before) {
        std::string name = takeName();
        if (!before.insert(upperAscii(name)).second) {
            fail(
                "The column name '" + name +
                "' is specified more than once in the SET clause or column list of an INSERT. A column cannot be assigned more than one value in the same clause.");
        }
        writeName(name);
    }

    /// Translates EXEC. Returns true when the procedure changes rows.
    bool execute() {
        acceptSchema();
        std::string name = takeName();
        const SqlProcedure* procedure = findSqlProcedure(upperAscii(name));
        if (!procedure) unknown("the procedure " + name);
        out_ += procedure->begin;
        for (std::size_t i = 0; i < procedure->arguments; ++i) {
            if (i > 0) {
                expectSign(",");
                out_ += ", ";
            }
            literal();
        }
        out_ += procedure->end;
        return procedure->changesRows;
    }

    void literal() {
        if (acceptSign("-")) {
            if (peek().kind != Kind::Number) unexpected();
            out_ += '-';
        }
        if (peek().kind == Kind::Number) {
            out_ += take().text;
        } else if (peek().kind == Kind::Text) {
            writeText(take());
        } else {
            expect("NULL");
            out_ += "NULL";
        }
    }
};

}  // namespace

SqlTranslation translateSql(std::string_view statement) {
    return StatementTranslator(statement).run();
}

}  // namespace tsln::workbench
