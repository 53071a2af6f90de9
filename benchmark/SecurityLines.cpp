#include "benchmark/Lines.h"
#include "benchmark/contest/BenchCompany.h"
#include "doubles/QuietDesktop.h"
#include "module/Module.h"
#include "security/Roles.h"

namespace tsln::bench {
namespace {

constexpr std::size_t rounds = 7;
constexpr std::size_t roles = 1'000;
constexpr std::size_t activitiesOfRole = 44;
constexpr double mostSeconds = 0.05;  // of a copy, among them the database's own time

/// Shows the list of roles or their editor, and acts in it as a user.
class ActingDesktop : public test::QuietDesktop {
  public:
    std::function<void(Screen&)> onShown;
    void showModal(Screen& screen) override { onShown(screen); }
};

class List : public security::RolesScreen {
  public:
    using RolesScreen::loadList;
    using RolesScreen::RolesScreen;
};

/// A company with many roles. Counts the statements that the module sends.
class Stage {
  public:
    Stage() {
        workbench::Company& data = company_.session().company();
        data.execute("DELETE FROM SecurityRoles");
        insertRows(data, "SecurityRoles (ID, Name)", roles, [](std::size_t row) {
            return std::to_string(row + 1) + ", 'Role " + std::to_string(row + 1) + "'";
        });
        insertRows(data, "SecurityRoleAccess (SecurityRoleID, Activity, Access)", roles * activitiesOfRole,
                   [](std::size_t row) {
                       const auto& activity = security::activities()[row % activitiesOfRole];
                       return std::to_string(row / activitiesOfRole + 1) + ", " +
                              std::to_string(activity.number) + ", 4";
                   });
        plugInModule(*library_);
        library_->Initialize(company_.session().sharedCode());
        company_.session().tracer()->observe([this](const workbench::TraceEntry& call) {
            if (call.statement.empty()) return;
            ++(call.statement.starts_with("SELECT") ? reads_ : writes_);
        });
    }

    double readsOfOpening() {
        desktop_.onShown = [](Screen& screen) { screen.activate(); };
        reads_ = writes_ = 0;
        library_->ShowEditSecurityRole(500);
        return reads_ + writes_;
    }
    /// Statements that write, after one activity was changed.
    double writesOfSaving() {
        desktop_.onShown = [this](Screen& screen) {
            screen.activate();
            auto& dialog = dynamic_cast<security::RoleDialog&>(screen);
            dialog.rptActivity.selectRow(*dialog.rptActivity.findRow(*dialog.rptActivity.findRecord(106)));
            (full_ = !full_) ? dialog.optFull.userSelect() : dialog.optNone.userSelect();
            reads_ = writes_ = 0;
            dialog.cmdOK.userPress();
        };
        library_->ShowEditSecurityRole(500);
        return writes_;
    }
    /// The seconds of one copy. Its copy is deleted again.
    double copy(double& writes) {
        List list(*library_, security::rolesList);
        list.load();
        list.loadList();
        list.rptItems.selectRow(*list.rptItems.findRow(*list.rptItems.findRecord(500)));
        writes_ = 0;
        const double seconds = secondsOf([&] { list.copySelected(); });
        writes = writes_;
        company_.session().company().execute("DELETE FROM SecurityRoles WHERE ID > " + std::to_string(roles));
        return seconds;
    }

  private:
    BenchCompany company_{0, 0};
    ActingDesktop desktop_;
    std::shared_ptr<Library> library_ = std::make_shared<Library>(desktop_);
    int reads_ = 0, writes_ = 0;
    bool full_ = false;
};

}  // namespace

void measureSecurity(const Settings&, Report& report) {
    Stage stage;
    std::vector<double> opening, saving, copying, writes;
    for (std::size_t i = 0; i < rounds; ++i) {
        opening.push_back(stage.readsOfOpening());
        saving.push_back(stage.writesOfSaving());
        copying.push_back(stage.copy(writes.emplace_back()));
    }
    const auto add = [&](const char* what, std::vector<double> values, double goal, const char* unit) {
        report.add(Line{what, "", spreadOf(std::move(values)), Line::Goal::AtMost, goal, unit});
    };
    add("opening a security role", opening, 2, "statements");
    add("saving a role with one changed activity", saving, 3, "writing statements");
    add("copying one of 1,000 roles with 44,000 access rows", writes, 2, "writing statements");
    add("the same", copying, mostSeconds, "s");
}

}  // namespace tsln::bench
