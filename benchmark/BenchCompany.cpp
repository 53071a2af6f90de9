#include "benchmark/BenchCompany.h"

#include <unistd.h>

#include "benchmark/contest/SampleRows.h"
#include "shared/modSharedSQL.h"

namespace tsln::bench {
namespace {

constexpr std::size_t rowsPerStatement = 200;

std::filesystem::path newFolder() {
    const std::filesystem::path inMemory = "/dev/shm";
    std::string name =
        (std::filesystem::is_directory(inMemory) ? inMemory : std::filesystem::temp_directory_path()) /
        "tessaline-bench-XXXXXX";
    if (!mkdtemp(name.data())) throw std::runtime_error("No folder can be made for the company: " + name);
    return name;
}

template <class Row>
void insertRows(workbench::Company& company, const std::string& into, std::size_t rows, const Row& row) {
    company.transaction([&] {
        for (std::size_t done = 0; done < rows;) {
            std::string statement = "INSERT INTO " + into + " VALUES ";
            for (std::size_t i = 0; i < rowsPerStatement && done < rows; ++i, ++done)
                statement += (i == 0 ? "(" : ", (") + row(done) + ")";
            company.execute(statement);
        }
    });
}

std::string quoted(const std::string& value) {
    return value.empty() ? "NULL" : "'" + modSharedSQL::doubleQuotes(value) + "'";
}

}  // namespace

BenchCompany::BenchCompany(std::size_t terms, std::size_t customers)
    : folder_(newFolder()), file_((folder_ / "bench.company").string()) {
    session_ = std::make_unique<workbench::CompanySession>(file_, "admin", ui_);
    workbench::Company& company = session_->company();
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

BenchCompany::~BenchCompany() {
    session_.reset();
    std::error_code ignored;  // what is left goes with the next start of the machine
    std::filesystem::remove_all(folder_, ignored);
}

}  // namespace tsln::bench
