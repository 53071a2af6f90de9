#include "tests/soak/Soak.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <sstream>

#include "module/Module.h"
#include "tests/soak/Diary.h"
#include "workbench/company/CompanyFile.h"

namespace tsln::soak {
namespace {

constexpr int operationsOfSession = 20;
constexpr std::size_t actsBetweenReports = 5'000;
constexpr int deepestCall = 3;  // operations called while another one shows a screen

/// Operations that begin or end the host's use of the library.
bool isLifeOfLibrary(Operation operation) {
    return operation == Operation::Initialize || operation == Operation::PreTerminate ||
           operation == Operation::SharedCodeLibrary;
}

}  // namespace

/// An opened company, and the library that works on it.
struct Soak::Session {
    Session(RandomUser& user, const std::string& folder, const std::string& file,
            const MakeDesktop& makeDesktop)
        : ui(user, folder),
          company(file, user.random.of(logins), ui,
                  user.random.chance(5) ? workbench::OpenMode::ReadOnly : workbench::OpenMode::ReadWrite),
          desktop(makeDesktop([this](std::string_view programId) {
              return host.before(company.createObject(programId), std::string(programId));
          })),
          library(std::make_shared<Library>(*desktop)) {
        plugInModule(*library);
        library->Initialize(host.before(company.sharedCode(), ""));
    }

    static constexpr const char* logins[] = {"admin", "admin", "admin", "viewer", "priya", "owen"};

    workbench::FaultyHost host;  // fails no call: it counts references
    RandomUi ui;
    workbench::CompanySession company;
    std::unique_ptr<Desktop> desktop;
    std::shared_ptr<Library> library;
    bool roomEdited = false;  ///< the dialog of rooms leaves that of manufacturers in its slot, deliberately
};

Soak::Soak(RandomUser& user, const std::string& folder, MakeDesktop makeDesktop)
    : user_(user),
      makeDesktop_(std::move(makeDesktop)),
      folder_(folder),
      file_(folder + "/soak.company"),
      oldFile_(folder + "/old.company") {
    workbench::makeCompany42(oldFile_, 3);
    oldCompany_ = workbench::contentOf(oldFile_);
}

void Soak::run(std::size_t acts, std::size_t bytesOfAct, const std::function<void()>& dropCaches) {
    const auto mostGrowth = static_cast<long>(1024 * 1024 + bytesOfAct * acts);
    const std::size_t actsToWarmUp = std::min<std::size_t>(1000, acts / 2);
    using Clock = std::chrono::steady_clock;
    const auto begin = Clock::now();
    std::size_t atFirst = 0, toReport = actsBetweenReports;
    long growth = 0;
    const auto report = [&] {
        const auto seconds = std::chrono::duration<double>(Clock::now() - begin).count();
        std::printf("%zu acts, %zu operations in %zu sessions, growth %ld KB, %.0f s\n", user_.acts,
                    operations_, sessions_, growth / 1024, seconds);
        std::fflush(stdout);
    };
    while (user_.acts < acts || atFirst == 0) {
        workSession();
        if (user_.acts < actsToWarmUp) continue;
        dropCaches();
        const std::size_t now = memoryInUse();
        if (atFirst == 0) atFirst = now;
        growth = static_cast<long>(now) - static_cast<long>(atFirst);
        if (user_.acts < toReport) continue;
        toReport += actsBetweenReports;
        report();
    }
    report();
    if (growth >= mostGrowth) diary::fail("the memory in use grows");
}

void Soak::workSession() {
    ++sessions_;
    workbench::write(file_, workbench::demonstrationFile());
    workbench::write(folder_ + "/a.xml", user_.random.text());
    {
        Session session(user_, folder_, file_, makeDesktop_);
        session_ = &session;
        user_.note("--- " + session.company.user().login);
        for (int i = 0; i < operationsOfSession; ++i) {
            callOperation();
            if (!session.library->screens().empty() && !session.roomEdited)
                diary::fail("a screen was left in its slot");
            session.host.calls.clear();
            session.host.statements.clear();
            session.host.writings.clear();
        }
        session_ = nullptr;
        session.library->PreTerminate();
        if (session.host.references != 0)
            diary::fail("the module still references " + std::to_string(session.host.references) +
                        " objects of the host");
    }
    if (const std::string faults = workbench::faultsOf(file_); !faults.empty())
        diary::fail("the company file: " + faults);
}

void Soak::callOperation() {
    if (!session_ || depth_ >= deepestCall) return;
    if (user_.random.chance(90)) return perform(user_.random.of(stops_));
    const OperationInfo& any = user_.random.of(operations);
    if (any.visibility != Visibility::Public || isLifeOfLibrary(any.operation)) return;
    perform({.name = std::string(any.name), .operation = any.operation, .arguments = {}});
}

void Soak::perform(const workbench::GalleryStop& stop) {
    std::istringstream statements{std::string(user_.random.chance(30) ? stop.prepare : "")};
    for (std::string statement; std::getline(statements, statement, ';');) {
        try {
            session_->company.company().execute(statement);
        } catch (const workbench::
                     SqlError&) {  // what the user did meanwhile does not allow it, nor does a read-only file
        }
    }
    std::vector<Argument> arguments;
    std::string call = std::string(info(stop.operation).name) + "(";
    for (const std::string& text : argumentsOf(stop)) {
        call += (arguments.empty() ? "" : ", ") + text;
        arguments.emplace_back(text);
    }
    user_.note(call + ")");
    ++operations_;
    ++depth_;
    try {
        session_->library->invoke(info(stop.operation).name, Access::Call, Arguments(arguments));
    } catch (const HostError&) {  // wrong arguments, no rights, shown already
    } catch (const std::exception& error) {
        diary::fail("the operation ends with another error than the host's: " + std::string(error.what()));
    }
    --depth_;
    if (stop.operation == Operation::ShowMeasurementRooms ||
        stop.operation == Operation::ShowEditMeasurementRoom)
        session_->roomEdited = true;
}

std::vector<std::string> Soak::argumentsOf(const workbench::GalleryStop& stop) {
    const OperationInfo& row = info(stop.operation);
    std::vector<std::string> arguments = stop.arguments;
    if (arguments.size() != row.argumentCount || user_.random.chance(20)) {
        arguments.clear();
        for (std::size_t i = 0; i < row.argumentCount; ++i)
            arguments.push_back(user_.random.chance(80) ? std::to_string(user_.random.number())
                                                        : user_.random.text());
    }
    if (const auto old = std::ranges::find(arguments, workbench::oldCompanyArgument);
        old != arguments.end()) {
        workbench::write(oldFile_, oldCompany_);
        *old = oldFile_;
    }
    return arguments;
}

}  // namespace tsln::soak
