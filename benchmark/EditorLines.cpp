#include "benchmark/Lines.h"
#include "benchmark/TimedHost.h"
#include "benchmark/contest/BenchCompany.h"
#include "doubles/QuietDesktop.h"
#include "maintenance/RecordDialog.h"
#include "module/Module.h"

namespace tsln::bench {
namespace {

constexpr double mostToHost = 0.25;
constexpr std::size_t rounds = 7;
constexpr std::int32_t employees = 10'000;
constexpr std::int32_t groups = 1'000;

/// Shows an editor as a user does who looks at it, or who presses OK at once.
class EditingDesktop : public test::QuietDesktop {
  public:
    std::function<void(RecordDialog&)> onShown;
    void showModal(Screen& screen) override { onShown(dynamic_cast<RecordDialog&>(screen)); }
};

/// The customer editor over a large company.
class Stage {
  public:
    explicit Stage(std::size_t customers) : company_(1, customers) {
        workbench::Company& data = company_.session().company();
        data.transaction([&] {
            data.execute("DELETE FROM Groups");
            data.execute("DELETE FROM GroupedCustomers");
            for (std::int32_t i = 1; i <= employees; ++i) {
                data.execute(
                    "INSERT INTO Employees (FirstName, LastName, SalesRep, Installer, Designer) VALUES('Kim', 'Lee " +
                    std::to_string(i) + "', " +
                    (i % 3 == 0   ? "1, 0, 0"
                     : i % 3 == 1 ? "0, 1, 0"
                                  : "0, 0, 1") +
                    ")");
            }
            for (std::int32_t i = 1; i <= groups; ++i)
                data.execute("INSERT INTO Groups (GroupName, Description) VALUES('Group " +
                             std::to_string(i) + "', '')");
        });
        customer_ = data.scalar("SELECT MAX(ID) FROM Customers").toLong();
        data.execute(
            "UPDATE Customers SET CustomerName = 'The only one', AccountNumber = NULL, DiscountGroupID = 1, CustomerDiscountGroupID = 3, CustomerTypeID = 1, SalesRepID = 1 WHERE ID = " +
            std::to_string(customer_));
        data.execute("INSERT INTO GroupedCustomers (GroupID, CustomerID) SELECT MIN(ID), " +
                     std::to_string(customer_) + " FROM Groups");
        plugInModule(*library_);
        library_->Initialize(timedHost(company_.session().sharedCode(), time_));
    }

    /// The module's part of opening the editor, as a share of the host's.
    double open() {
        double all = 0;
        desktop_.onShown = [](RecordDialog&) {};
        time_.reset();
        all = secondsOf([&] { library_->ShowEditCustomer(customer_); });
        return all / time_.seconds() - 1;
    }
    /// The module's part of saving.
    double save() {
        double share = 0;
        desktop_.onShown = [&](RecordDialog& editor) {
            editor.textBox("txtContact").userType("Contact " + std::to_string(++saves_));
            time_.reset();
            const double all = secondsOf([&] { editor.cmdOK.userPress(); });
            share = all / time_.seconds() - 1;
        };
        if (library_->ShowEditCustomer(customer_) != customer_)
            throw std::runtime_error("The customer was not saved.");
        return share;
    }

  private:
    BenchCompany company_;
    EditingDesktop desktop_;
    HostTime time_;
    std::shared_ptr<Library> library_ = std::make_shared<Library>(desktop_);
    std::int32_t customer_ = 0;
    int saves_ = 0;
};

}  // namespace

void measureEditors(const Settings& settings, Report& report) {
    Stage stage(settings.rows);
    std::vector<double> opening, saving;
    for (std::size_t i = 0; i < rounds; ++i) {
        opening.push_back(stage.open());
        saving.push_back(stage.save());
    }
    const std::string company = "the host with its database";
    report.add(Line{"opening the customer editor, the module's share", company, spreadOf(opening),
                    Line::Goal::AtMost, mostToHost});
    report.add(Line{"saving a customer, the module's share", company, spreadOf(saving), Line::Goal::AtMost,
                    mostToHost});
}

}  // namespace tsln::bench
