#include "benchmark/contest/BenchCompany.h"

#include <filesystem>

#include "benchmark/contest/SampleRows.h"
#include "shared/modSharedSQL.h"

namespace tsln::bench {
namespace {

constexpr std::size_t rowsPerStatement = 200;

std::filesystem::path fastestFolder() {
    const std::filesystem::path inMemory = "/dev/shm";
    return std::filesystem::is_directory(inMemory) ? inMemory : std::filesystem::temp_directory_path();
}

std::string quoted(const std::string& value) {
    return value.empty() ? "NULL" : "'" + modSharedSQL::doubleQuotes(value) + "'";
}

}  // namespace

void insertRows(workbench::Company& company, const std::string& into, std::size_t rows,
                const std::function<std::string(std::size_t)>& row) {
    company.transaction([&] {
        for (std::size_t done = 0; done < rows;) {
            std::string statement = "INSERT INTO " + into + " VALUES ";
            for (std::size_t i = 0; i < rowsPerStatement && done < rows; ++i, ++done)
                statement += (i == 0 ? "(" : ", (") + row(done) + ")";
            company.execute(statement);
        }
    });
}

BenchCompany::BenchCompany(std::size_t terms, std::size_t customers)
    : folder_("tessaline-bench-", fastestFolder()) {
    workbench::Company& company = session_.company();
    company.execute("DELETE FROM Terms");
    company.execute("DELETE FROM Customers");
    insertRows(company, "Terms (Terms, DueDays, Discount, DiscountDays, Exported)", terms,
               [](std::size_t row) {
                   return quoted(personName(row) + " net " + std::to_string(row)) + ", " +
                          std::to_string(row % 90) + ", 0.02, " + std::to_string(row % 30) + ", 0";
               });
    std::string names;
    for (std::size_t c = 1; c < customersColumns().size(); ++c)
        names += (c == 1 ? "" : ", ") + customersColumns()[c];
    insertRows(company, "Customers (" + names + ")", customers, [](std::size_t row) {
        std::string values;
        for (std::size_t c = 1; c < customersColumns().size(); ++c)
            values += (c == 1 ? "" : ", ") + quoted(customerValue(row, c));
        return values;
    });
}

}  // namespace tsln::bench
