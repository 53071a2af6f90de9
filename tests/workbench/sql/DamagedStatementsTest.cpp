#include <algorithm>
#include <random>
#include <vector>

#include "tests/workbench/company/CompanyFixture.h"
#include "workbench/sql/SqlTokens.h"

namespace tsln::workbench {

namespace {

/// Damaged statements, made by deleting, replacing and inserting words of valid ones. Each must run or be refused.
class DamagedStatements : public CompanyTest {};

TEST_F(DamagedStatements, EachRunsOrIsRefused) {
    const std::string statements[] = {
        "SELECT TOP 1 VendorName + ' (' + CONVERT(varchar(10), CAST(AddedOn AS DATE), 101) + ')' AS Result FROM Vendors "
        "ORDER BY AddedOn DESC",
        "SELECT DISTINCT t.[Terms], CASE WHEN LEN(x.Name) > 3 THEN LEFT(x.Name, 2) ELSE NULL END FROM Terms t "
        "LEFT JOIN (SELECT TOP 3 * FROM CustomerTypes) AS x ON x.ID = t.ID "
        "WHERE t.ID IN (1, 2) AND NOT t.Terms LIKE 'a%' ESCAPE '!'",
        "INSERT INTO Terms (Terms,DueDays) SELECT GroupName, COUNT(DISTINCT ID) FROM Groups GROUP BY GroupName HAVING 1 < 2",
        "UPDATE Terms SET Terms = 'it''s', DueDays = -DueDays * (2 - 1) / 3 WHERE ID BETWEEN 1 AND 5 OR EXISTS (SELECT 1)",
        "DELETE FROM Terms WHERE DATEADD(hh, 1, AddedOn) >= GETDATE() AND ID IS NOT NULL"};
    std::vector<std::string> words;
    std::vector<std::size_t> ends;  // of the statements
    for (const std::string& statement : statements) {
        ASSERT_NO_THROW(company_.execute(statement)) << statement;
        for (const SqlToken& token : tokenizeSql(statement)) {
            const bool isText = token.kind == SqlToken::Kind::Text;
            const bool isQuoted = token.kind == SqlToken::Kind::QuotedName;
            words.push_back((isText     ? "'"
                             : isQuoted ? "["
                                        : "") +
                            std::string(token.text) +
                            (isText     ? "'"
                             : isQuoted ? "]"
                                        : ""));
        }
        ends.push_back(words.size());
    }
    std::mt19937 random(20240229);
    auto below = [&](std::size_t n) { return random() % n; };
    int ran = 0, refused = 0;
    for (int round = 0; round < 4000; ++round) {
        // a complete statement or an arbitrary part
        const std::size_t which = below(ends.size());
        std::size_t first = which > 0 ? ends[which - 1] : 0, last = ends[which];
        if (round % 2 == 1) {
            first = below(words.size());
            last = std::min(words.size(), first + 1 + below(40));
        }
        std::vector<std::string> damaged(words.begin() + long(first), words.begin() + long(last));
        for (std::size_t change = 1 + below(3); change > 0 && !damaged.empty(); --change) {
            const auto at = damaged.begin() + long(below(damaged.size()));
            const std::size_t kind = below(3);
            if (kind == 0) damaged.erase(at);
            if (kind == 1) *at = words[below(words.size())];
            if (kind == 2) damaged.insert(at, words[below(words.size())]);
        }
        std::string sql;
        for (const std::string& word : damaged)
            sql += word + " ";
        try {
            company_.execute(sql);
            ++ran;
        } catch (const SqlError& error) {
            EXPECT_STRNE(error.what(), "") << sql;
            ++refused;
        }
    }
    EXPECT_GT(ran, 50);
    EXPECT_GT(refused, 1000);
    EXPECT_EQ(rows("SELECT COUNT(*) FROM Customers"), "60");  // no statement changed another table
}

}  // namespace

}  // namespace tsln::workbench
