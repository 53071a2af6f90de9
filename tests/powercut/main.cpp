// Kills a program at random moments while it writes a company, as a power cut would, and checks what the file holds then.
//
//   test_power_cut [TIMES] [SEED]
//
// The program is started again on the same file after each cut. Some times it begins without a file or with one of the
// version before, so that the cut comes while a company is made or brought up to date. At the end two programs write one
// company at the same time, and one waits for another that holds it.

#include <algorithm>
#include <csignal>
#include <cstdlib>
#include <iostream>
#include <map>
#include <random>
#include <set>
#include <sstream>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

#include <SQLiteCpp/SQLiteCpp.h>

#include "doubles/TempFolder.h"
#include "tests/powercut/Writer.h"
#include "workbench/company/Company.h"
#include "workbench/company/Schema.h"

namespace {

using namespace tsln::workbench;
using std::chrono::milliseconds;

int faults = 0;

void expect(bool holds, const std::string& what) {
    if (holds) return;
    std::cout << "FAULT: " << what << std::endl;
    ++faults;
}

/// This program, started again as a writer. Its output is read to the end after it was killed.
class Child {
  public:
    explicit Child(const std::vector<std::string>& arguments) {
        int ends[2];
        if (pipe(ends) != 0) throw std::runtime_error("no pipe");
        process_ = fork();
        if (process_ == 0) {
            dup2(ends[1], STDOUT_FILENO);
            close(ends[0]);
            close(ends[1]);
            std::vector<char*> words;
            for (const std::string& word : arguments)
                words.push_back(const_cast<char*>(word.c_str()));
            words.push_back(nullptr);
            execv("/proc/self/exe", words.data());
            _exit(127);
        }
        close(ends[1]);
        output_ = fdopen(ends[0], "r");
    }
    ~Child() {
        kill();
        fclose(output_);
    }
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;

    pid_t process() const { return process_; }
    /// The next line of its output; empty at the end.
    std::string line() const {
        char* text = nullptr;
        std::size_t room = 0;
        const auto length = getline(&text, &room, output_);
        std::string result =
            length > 0 ? std::string(text, static_cast<std::size_t>(length) - 1) : std::string();
        free(text);
        return result;
    }
    void kill() {
        if (process_ == 0) return;
        ::kill(process_, SIGKILL);
        int status = 0;
        waitpid(process_, &status, 0);
        expect(WIFSIGNALED(status) && WTERMSIG(status) == SIGKILL, "the writer ended by itself");
        process_ = 0;
    }
    void wait() {
        waitpid(process_, nullptr, 0);
        process_ = 0;
    }

  private:
    pid_t process_ = 0;
    FILE* output_ = nullptr;
};

/// What writers said about their acts.
struct Acts {
    std::set<int> begun, done[5];
    std::vector<std::string> reasons;  ///< of the acts that were refused
    bool doneSinceRefusal = true;
    int lastBulk = 0;  ///< the last one that was begun
    int cutWithin = 0;
    enum Kind { Vendor, Change, Import, Bulk, Migrate };

    void read(const Child& child) {
        int open = 0;
        for (std::string line = child.line(); !line.empty(); line = child.line()) {
            std::istringstream words(line);
            std::string what, kind;
            int number = 0;
            if (!(words >> what >> kind >> number)) continue;
            begun.insert(number);
            if (kind == "bulk") lastBulk = number;
            open = what == "begin" ? number : 0;
            if (what == "refused") {
                std::cout << line << std::endl;
                reasons.push_back(line);
                doneSinceRefusal = false;
            }
            if (what != "done") continue;
            doneSinceRefusal = true;
            constexpr std::string_view kinds[] = {"vendor", "change", "import", "bulk", "migrate"};
            done[std::ranges::find(kinds, kind) - std::begin(kinds)].insert(number);
        }
        cutWithin += open != 0;
    }
    int next() const { return begun.empty() ? 1 : *begun.rbegin() + 1; }
};

class PowerCut {
  public:
    explicit PowerCut(unsigned seed) : random_(seed) {}

    void cut(int round) {
        if (round % 8 == 5) {
            std::filesystem::remove(path_);
            acts_ = Acts{.reasons = acts_.reasons, .cutWithin = acts_.cutWithin};
        } else if (round % 8 == 2 && std::filesystem::exists(path_)) {
            SQLite::Database(path_, SQLite::OPEN_READWRITE)
                .exec("PRAGMA user_version = " + std::to_string(schema::version - 1));
        }
        std::string kinds = "vibm";
        std::ranges::rotate(kinds, kinds.begin() + static_cast<std::ptrdiff_t>(random_() % kinds.size()));
        Child child({"writer", "--write", path_, std::to_string(acts_.next()), kinds});
        const bool fromStart = round % 8 == 5 || round % 8 == 2;
        if (!fromStart) expect(child.line() == "open", "the company cannot be opened again");
        std::this_thread::sleep_for(milliseconds(random_() % 400));
        child.kill();
        acts_.read(child);
        if (std::filesystem::exists(path_)) check();
    }

    void two() {
        Child one({"writer", "--write", path_, std::to_string(acts_.next() + 1'000'000), "vib"}),
            other({"writer", "--write", path_, std::to_string(acts_.next() + 2'000'000), "vi"});
        std::this_thread::sleep_for(std::chrono::seconds(3));
        one.kill();
        other.kill();
        const std::size_t before = acts_.begun.size();
        acts_.read(one);
        acts_.read(other);
        std::cout << "two programs at once: " << acts_.begun.size() - before << " acts" << std::endl;
        check();
    }

    /// A user who saves while another program holds the company is told which one. Later saves succeed.
    void held() {
        Child writer({"writer", "--write", path_, std::to_string(acts_.next()), "v"});
        expect(writer.line() == "open", "the company cannot be opened beside another program");
        Child holder({"writer", "--hold", path_, "4"});
        expect(holder.line() == "holding", "the company cannot be held");
        std::this_thread::sleep_for(std::chrono::seconds(7));
        writer.kill();
        acts_.read(writer);
        const std::string name = "process " + std::to_string(holder.process()) + ")";
        holder.wait();
        const bool told = std::ranges::any_of(
            acts_.reasons, [&](const std::string& reason) { return reason.find(name) != reason.npos; });
        expect(told, "the user is not told who holds the company");
        expect(acts_.doneSinceRefusal, "no act succeeds when the company is free again");
        expect(Company(path_).scalar("SELECT COUNT(*) FROM Terms WHERE Terms = 'Held'").toLong() == 1,
               "the row of the other program is lost");
        check();
    }

    const Acts& acts() const { return acts_; }

  private:
    std::map<int, int> counts(Company& company, const std::string& sql) const {
        std::map<int, int> result;
        for (const auto& row : company.run(sql).rows)
            result[row[0].toLong()] = row[1].toLong();
        return result;
    }

    void check() {
        {
            const SQLite::Database file(path_, SQLite::OPEN_READWRITE);
            SQLite::Statement integrity(file, "PRAGMA integrity_check");
            integrity.executeStep();
            expect(integrity.getColumn(0).getString() == "ok", integrity.getColumn(0).getString());
            SQLite::Statement views(file, "SELECT COUNT(*) FROM sqlite_schema WHERE type = 'view'");
            views.executeStep();
            views_ = std::max(views_, views.getColumn(0).getInt());
            expect(views.getColumn(0).getInt() == views_, "views are missing");
        }
        Company company(path_);
        checkVendors(company);
        checkImports(company);
        checkBulkChange(company);
        checkMigrations(company);
        for (const auto& row :
             company.run("SELECT Terms, COUNT(*) FROM Terms GROUP BY Terms HAVING COUNT(*) > 1").rows)
            expect(false, "a row is there twice: " + row[0].toText());
    }

    void checkVendors(Company& company) {
        const std::string mine = " FROM Vendors WHERE VendorName LIKE 'Vendor %'";
        expect(
            company.scalar("SELECT COUNT(*)" + mine + " AND BillToAddress1 <> Notes + '" + acts::street + "'")
                    .toLong() == 0,
            "a vendor was written in part");
        const auto changed =
            counts(company, "SELECT CAST(Notes AS INT), COUNT(*)" + mine + " GROUP BY Notes");
        const auto added = counts(company, "SELECT CAST(SUBSTRING(VendorName, 8, 20) AS INT), COUNT(*)" +
                                               mine + " GROUP BY VendorName");
        for (const int number : acts_.done[Acts::Vendor])
            expect(added.contains(number), "vendor " + std::to_string(number) + " is lost");
        for (const int number : acts_.done[Acts::Change])
            expect(changed.contains(number), "change " + std::to_string(number) + " is lost");
        for (const auto& [number, count] : added)
            expect(count == 1 && acts_.begun.contains(number), "a vendor came from nowhere");
        const auto withHistory = counts(
            company,
            "SELECT CAST(SUBSTRING(VendorName, 8, 20) AS INT), COUNT(*) FROM Vendors v WHERE EXISTS (SELECT 1 FROM "
            "CustomerActivity a WHERE a.CustomerID = v.ID AND a.Activity = 'Vendor added.') AND VendorName LIKE "
            "'Vendor %' GROUP BY VendorName");
        for (const int number : acts_.done[Acts::Vendor])
            expect(withHistory.contains(number),
                   "the history of vendor " + std::to_string(number) + " is lost");
    }

    void checkImports(Company& company) {
        const auto imported = counts(
            company, "SELECT DueDays, COUNT(*) FROM Terms WHERE Terms LIKE 'Import %' GROUP BY DueDays");
        for (const auto& [number, count] : imported)
            expect(count == acts::termsPerImport, "import " + std::to_string(number) + " is there in part");
        for (const int number : acts_.done[Acts::Import])
            expect(imported.contains(number), "import " + std::to_string(number) + " is lost");
    }

    void checkBulkChange(Company& company) {
        const auto& done = acts_.done[Acts::Bulk];
        if (done.empty()) return;
        if (acts_.lastBulk != *done.rbegin()) return;  // a later one was cut: there are customers of both
        const auto groups = counts(company, "SELECT SalesTaxGroupID, COUNT(*) FROM Customers WHERE ID >= " +
                                                std::to_string(acts::firstCustomer) + " AND ID < " +
                                                std::to_string(acts::firstCustomer + acts::customers) +
                                                " GROUP BY SalesTaxGroupID");
        expect(groups.size() == 1, "a bulk change is there in part");
    }

    /// The customers of the old company have account numbers, the others have none. Those that are there already are
    /// not migrated again.
    void checkMigrations(Company& company) {
        const int customers =
            company.scalar("SELECT COUNT(*) FROM Customers WHERE AccountNumber LIKE 'A%'").toLong();
        expect(customers == 0 || customers == acts::oldCustomers, "a migration is there in part");
        expect(customers > 0 || acts_.done[Acts::Migrate].empty(), "a migration is lost");
    }

    std::mt19937 random_;
    tsln::test::TempFolder folder_;
    std::string path_ = folder_.file("cut.company");
    Acts acts_;
    int views_ = 0;
};

}  // namespace

int main(int count, char** arguments) {
    const std::vector<std::string> words(arguments, arguments + count);
    if (count > 4 && words[1] == "--write") {
        writeWithoutEnd(words[2], std::stoi(words[3]), words[4]);
        return 0;
    }
    if (count > 3 && words[1] == "--hold") {
        holdCompany(words[2], std::stoi(words[3]));
        return 0;
    }
    const int times = count > 1 ? std::stoi(words[1]) : 200;
    const unsigned seed =
        count > 2 ? static_cast<unsigned>(std::stoul(words[2])) : std::random_device()() % 1'000'000;
    std::cout << times << " cuts, seed " << seed << std::endl;
    PowerCut test(seed);
    for (int round = 0; round < times; ++round)
        test.cut(round);
    for (std::size_t kind = 0; kind < std::size(test.acts().done); ++kind)
        std::cout << test.acts().done[kind].size()
                  << (kind == Acts::Migrate ? " acts of each kind done\n" : ", ");
    std::cout << "cut within an act: " << test.acts().cutWithin << " times" << std::endl;
    test.two();
    test.held();
    std::cout << test.acts().reasons.size() << " acts refused, " << faults << " faults" << std::endl;
    return faults == 0 ? 0 : 1;
}
