#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <random>

#include <gmock/gmock.h>

#include "doubles/TempFolder.h"
#include "tests/sweep/CompanyFiles.h"
#include "tests/sweep/Driver.h"
#include "workbench/company/CompanyFile.h"

namespace tsln::workbench {
namespace {

constexpr int sameCalls = 2;  ///< of calls with the same text, the first so many fail

/// TSLN_SWEEP: "all" for every call in each way, or the seed by which a way is chosen for each call.
struct Choice {
    bool all = false;
    unsigned seed = 20;

    Choice() {
        const char* text = std::getenv("TSLN_SWEEP");
        all = text && std::string(text) == "all";
        if (text && !all) seed = static_cast<unsigned>(std::strtoul(text, nullptr, 10));
        if (!all) std::printf("TSLN_SWEEP=%u makes the same runs again.\n", seed);
    }
};

const Choice& choice() {
    static const Choice made;
    return made;
}

/// The stops of the gallery that need no keys: every operation that opens a screen.
std::vector<GalleryStop> sweptStops() {
    std::vector<GalleryStop> stops = galleryStops();
    std::erase_if(stops, [](const GalleryStop& stop) { return !stop.keys.empty(); });
    return stops;
}

/// Input that changes for a reason: the user was asked and wants the flag cleared, or the host changed the text.
bool isExpected(const std::string& lost) {
    return lost == "frmEditCustomer.chkExported: 'ticked' became 'clear'" ||
           lost.ends_with("became '" + test::wrongAnswer(test::Fault::WrongType).toText() + "'");
}

/// Statements that the database refuses, whether or not another call failed: their screens send them so on purpose.
bool isRefusedAlways(const std::string& told) {
    return told.find("'MarketName' is specified more than once") != told.npos ||
           told.starts_with("The quotes/orders could not be updated.");
}

class OperationSweep : public testing::TestWithParam<GalleryStop> {
  protected:
    OperationSweep() : stop_(GetParam()) {
        write(file_, demonstrationFile());
        prepare(file_, stop_.prepare);
        const auto old = std::ranges::find(stop_.arguments, oldCompanyArgument);
        if (old != stop_.arguments.end()) {
            *old = folder_.file("old.company");
            makeCompany42(*old, 3);
        }
        prepared_ = contentOf(file_);
    }

    std::unique_ptr<Outcome> run(const std::string& button, std::optional<FaultyHost::Plan> plan = {}) {
        write(file_, prepared_);
        auto outcome = perform(stop_, file_, folder_.path(), button, plan);
        const bool changed = contentOf(file_) != prepared_;
        EXPECT_EQ(changed ? faultsOf(file_) : "", "");
        EXPECT_EQ(outcome->raised, "");
        // The dialog of rooms leaves that of manufacturers in its slot, deliberately.
        const bool roomEdited = std::ranges::count(outcome->shown, "frmMeasurementRooms_Edit") > 0;
        EXPECT_FALSE(outcome->screensLeft && !roomEdited) << "a screen was left in its slot";
        EXPECT_EQ(outcome->host.references, 0) << "the module still references an object of the host";
        return outcome;
    }

    static void compare(const Outcome& outcome, const Outcome& clean, const FaultyHost::Plan& plan,
                        const std::string& call) {
        for (const std::string& lost : outcome.lostInput)
            EXPECT_TRUE(isExpected(lost) || std::ranges::count(clean.lostInput, lost) > 0) << lost;
        // Where other screens open, the user does other things. An empty text is a result without rows.
        const bool emptyResult = call.ends_with(".xml(") && plan.fault == test::Fault::Empty;
        for (const std::string& writing : outcome.host.writings) {
            EXPECT_TRUE(clean.host.writings.contains(writing) || emptyResult || outcome.shown != clean.shown)
                << "the clean run does not send " << writing;
        }
        // A question without its answer counts as No.
        const bool saving = plan.call >= clean.pressing.first && plan.call < clean.pressing.second &&
                            !call.starts_with("ShowMessage");
        const bool missing = !std::ranges::includes(outcome.host.writings, clean.host.writings);
        const bool told = std::ranges::any_of(outcome.told, [&](const std::string& text) {
            return std::ranges::find(clean.told, text) == clean.told.end();
        });
        EXPECT_FALSE(saving && missing && !told && !(emptyResult && outcome.refused && !clean.refused))
            << "something was not saved, silently";
        // The faults of a second screen change what it shows and thus saves, as does another answer for an option. A new
        // charge has a random code.
        for (const std::string& statement : outcome.host.statements) {
            EXPECT_TRUE(!saving || plan.fault == test::Fault::WrongType || outcome.shown.size() > 1 ||
                        call.starts_with("Options") ||
                        statement.starts_with("INSERT INTO AdditionalCharges") ||
                        clean.host.statements.contains(statement))
                << "other values were saved: " << statement;
        }
    }

    /// The faults to be tried: of each call with another text the first ones, in one way or all.
    static std::vector<FaultyHost::Plan> plans(const Outcome& clean, bool defaultButton) {
        std::vector<FaultyHost::Plan> plans;
        std::map<std::string, int> times;
        std::mt19937 random(choice().seed);
        // What happens before another button is pressed was tried with the default one.
        for (std::size_t call = defaultButton ? 0 : clean.pressing.first; call < clean.host.calls.size();
             ++call) {
            if (++times[clean.host.calls[call]] > sameCalls) continue;
            const std::size_t chosen = random() % std::size(test::allFaults);
            for (std::size_t fault = 0; fault < std::size(test::allFaults); ++fault)
                if (choice().all || fault == chosen) plans.push_back({call, test::allFaults[fault]});
        }
        return plans;
    }

    GalleryStop stop_;
    test::TempFolder folder_{"tessaline sweep ", fastFolder()};
    const std::string file_ = folder_.file("test.company");
    std::string prepared_;
};

TEST_P(OperationSweep, LosesNothingWhicheverCallFails) {
    std::vector<std::string> buttons{""};
    std::size_t calls = 0, runs = 0;
    for (std::size_t i = 0; i < buttons.size(); ++i) {
        const std::string button = buttons[i];
        const auto clean = run(button);
        EXPECT_THAT(clean->withoutPosition, testing::IsEmpty());
        for (const std::string& told : clean->told)
            EXPECT_TRUE(told.find('|') == told.npos || told.ends_with('|') || isRefusedAlways(told)) << told;
        if (i == 0) {
            EXPECT_FALSE(clean->shown.empty() && clean->told.empty()) << "neither a screen nor a message";
            buttons.insert(buttons.end(), clean->buttons.begin(), clean->buttons.end());
        }
        const auto some = plans(*clean, i == 0);
        for (const FaultyHost::Plan& plan : some) {
            const std::string& call = clean->host.calls[plan.call];
            SCOPED_TRACE(button + " fault " + std::to_string(static_cast<int>(plan.fault)) + " at call " +
                         std::to_string(plan.call) + ", " + call);
            compare(*run(button, plan), *clean, plan, call);
        }
        calls += clean->host.calls.size();
        runs += some.size();
    }
    std::printf("%s: %zu buttons, %zu calls, %zu runs\n", stop_.name.c_str(), buttons.size(), calls, runs);
}

INSTANTIATE_TEST_SUITE_P(Each, OperationSweep, testing::ValuesIn(sweptStops()), [](const auto& stop) {
    std::string name = stop.param.name;
    std::ranges::replace(name, '-', '_');
    return name;
});

}  // namespace
}  // namespace tsln::workbench
