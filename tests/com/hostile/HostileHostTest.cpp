// Hosts that break every rule, and users who press everything, over real companies and through COM.
//
// TSLN_ROUNDS sets the number of calls, TSLN_SEED their seed, TSLN_ACTS the acts of the user over a host that works.

#include <atomic>
#include <cstdio>
#include <cstdlib>
#include <optional>
#include <thread>

#include <SQLiteCpp/SQLiteCpp.h>
#include <gmock/gmock.h>

#include "bridge/Operations.h"
#include "com/edge/DispatchObject.h"
#include "com/edge/Wide.h"
#include "doubles/RecordingHost.h"
#include "doubles/TempFolder.h"
#include "tests/com/hostile/HostileHost.h"
#include "tests/com/hostile/RandomUser.h"
#include "tests/com/hostile/RandomVariant.h"
#include "tests/com/server/AgreeingUi.h"
#include "tests/com/server/OfferedComponent.h"
#include "tests/com/server/Server.h"

namespace tsln::test {
namespace {

constexpr int roundsPerCompany = 100;
constexpr ULONGLONG longestRound = 60'000;  // milliseconds

std::uint64_t setting(const char* name, std::uint64_t otherwise) {
    const char* text = std::getenv(name);
    return text && *text ? std::strtoull(text, nullptr, 10) : otherwise;
}

/// What is told when the program crashes or a call does not return.
struct Report {
    std::uint64_t round = 0, seed = 0;
    std::string call;
    const Hostility* hostility = nullptr;
    const RandomUser* user = nullptr;

    void print(const char* what) const {
        std::fprintf(stderr, "%s in round %llu, seed %llu: %s\n", what,
                     static_cast<unsigned long long>(round), static_cast<unsigned long long>(seed),
                     call.c_str());
        if (user) std::fprintf(stderr, "  The user's last act: %s\n", user->last().c_str());
        for (const std::string& caption : WindowDriver::captions())
            std::fprintf(stderr, "  Window '%s'\n", caption.c_str());
        for (const HWND window : ownInputWindows()) {
            for (const HWND part : childrenOf(window)) {
                wchar_t kind[64], text[64] = L"";
                GetClassNameW(part, kind, 64);
                InternalGetWindowText(part, text, 64);
                std::fprintf(stderr, "    %s '%s'\n", com::toUtf8(kind).c_str(), com::toUtf8(text).c_str());
            }
        }
        if (!hostility) return;
        for (const std::string& line : hostility->log)
            std::fprintf(stderr, "    %s\n", line.c_str());
        std::fflush(stderr);
    }
};
Report report;

LONG CALLBACK onCrash(EXCEPTION_POINTERS* about) {
    const DWORD code = about->ExceptionRecord->ExceptionCode;
    if (code >> 28 != 0xc) return EXCEPTION_CONTINUE_SEARCH;  // no fault: a C++ exception, for example
    char what[64];
    std::snprintf(what, sizeof what, "Exception %08lx", code);
    report.print(what);
    return EXCEPTION_CONTINUE_SEARCH;
}

/// Ends the program when a call takes too long.
class Watchdog {
  public:
    Watchdog() : thread_([this] { watch(); }) {}
    ~Watchdog() {
        done_ = true;
        thread_.join();
    }
    void feed() { fed_ = GetTickCount64(); }

  private:
    void watch() {
        for (; !done_; Sleep(100)) {
            if (GetTickCount64() - fed_ < longestRound) continue;
            report.print("No end");
            TerminateProcess(GetCurrentProcess(), 3);
        }
    }
    std::atomic<ULONGLONG> fed_ = GetTickCount64();
    std::atomic<bool> done_ = false;
    std::thread thread_;
};

/// A module over a company, whose host and components are hostile.
class Stage {
  public:
    Stage(Hostility& hostility, const std::string& companyFile)
        : hostility_(hostility), session_(companyFile, "admin", ui_) {
        hostility_.callLibrary = [this] {
            if (library_ && calls_ < 2) call(false);
        };
        hostility_.releaseLibrary = [this] {
            if (library_) library_->PreTerminate();
            library_.Reset();
        };
        for (const char* programId :
             {"tslnfm5.Library", "catalog5engine.Engine", "tslnsql5.Engine", "tslncmgr5.Library",
              "tslniee5.Engine", "tslnnum5.Checker", "tslnfe5.Engine"})
            components_.emplace_back(programId, [this, programId] {
                return makeHostile(com::adopt(com::newDispatch(session_.createObject(programId))),
                                   hostility_);
            });
    }
    ~Stage() { end(); }

    /// Makes the library and hands it the host, unless that has been done.
    void begin() {
        if (library_) return;
        library_ = newLibrary();
        ComPtr<IDispatch> host = com::adopt(com::newDispatch(session_.sharedCode()));
        host = makeHostile(host, hostility_);
        library_->Initialize(host.GetAddressOf());
    }

    /// Calls an operation. A fitting call has arguments of the declared types and of rows that may exist.
    void call(bool fitting) {
        Random& chance = hostility_.chance;
        const OperationInfo& row = operations[1 + chance.below(operations.size() - 1)];
        if (row.operation == Operation::Initialize || row.operation == Operation::PreTerminate) return;
        const ComPtr<ILibrary> called = library_;
        RandomVariant random(chance, [this] {
            return makeHostile(com::adopt(com::newDispatch(session_.sharedCode())), hostility_);
        });
        std::vector<VARIANT> arguments(row.argumentCount);
        if (!fitting && chance.oneIn(3)) arguments.resize(chance.below(6));
        std::vector<DISPID> names;
        for (std::size_t i = 0; i < arguments.size(); ++i) {
            arguments[i] = !fitting && chance.oneIn(2) ? random.argument() : fittingArgument();
            if (!fitting && chance.oneIn(6) && names.size() == i)
                names.push_back(chance.of<DISPID>({0, 1, 2, 3, -1, DISPID_PROPERTYPUT, 1 << 30}));
        }
        DISPPARAMS parameters{arguments.data(), names.data(), static_cast<UINT>(arguments.size()),
                              static_cast<UINT>(names.size())};
        DISPID id = static_cast<DISPID>(row.operation) + 1;
        if (!fitting && chance.oneIn(20)) id = chance.of<DISPID>({0, -1, -4, 96, 30'000, INT32_MIN});
        const WORD flags = fitting ? DISPATCH_METHOD : chance.of<WORD>({1, 2, 3, 4, 8, 15, 0, 0xffff});
        com::OwnedVariant result;
        EXCEPINFO told{};
        UINT wrong = 0;
        const bool wantsText = chance.oneIn(2);
        report.call = row.name;
        ++calls_;
        const HRESULT answer =
            called->Invoke(id, !fitting && chance.oneIn(30) ? __uuidof(IUnknown) : IID_NULL,
                           chance.of<LCID>({0, 1031, 0xffffffff}), flags, &parameters,
                           chance.oneIn(2) ? result.get() : nullptr, wantsText ? &told : nullptr,
                           chance.oneIn(2) ? &wrong : nullptr);
        --calls_;
        ++(SUCCEEDED(answer) ? succeeded : refused);
        const bool explained =
            answer != DISP_E_EXCEPTION || !wantsText || SysStringLen(told.bstrDescription) > 0;
        EXPECT_TRUE(explained) << "round " << report.round << ": " << row.name;
        SysFreeString(told.bstrDescription);
        SysFreeString(told.bstrSource);
        SysFreeString(told.bstrHelpFile);
    }

    /// Gives the library up. Nothing of the host is held by the module then.
    void end() {
        if (library_) library_->PreTerminate();
        library_.Reset();
        components_.clear();
    }

    int succeeded = 0, refused = 0;

  private:
    VARIANT fittingArgument() {
        const auto number = static_cast<LONG>(hostility_.chance.below(7));
        if (hostility_.chance.oneIn(2)) return variantOf(number);
        numbers_.push_back(number);
        VARIANT reference;
        VariantInit(&reference);
        V_VT(&reference) = VT_BYREF | VT_I4;
        V_I4REF(&reference) = &numbers_.back();
        return reference;
    }

    Hostility& hostility_;
    AgreeingUi ui_;
    workbench::CompanySession session_;
    std::deque<OfferedComponent> components_;
    ComPtr<ILibrary> library_;
    std::deque<LONG> numbers_;
    int calls_ = 0;  // that are not over
};

/// Takes a message to quit off the thread's queue, as a host that ends does.
void takeQuit() {
    for (MSG message; PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE);) {
    }
}

class HostileHost : public ::testing::Test {
  protected:
    HostileHost() : handler_(AddVectoredExceptionHandler(0, onCrash)) { report.seed = seed; }
    ~HostileHost() override {
        RemoveVectoredExceptionHandler(handler_);
        report.user = nullptr;
        report.hostility = nullptr;
    }

    const std::uint64_t seed = setting("TSLN_SEED", 20);
    Watchdog watchdog;

  private:
    void* handler_;
};

TEST_F(HostileHost, NothingThatAHostDoesCrashesTheModuleOrLeavesAWindow) {
    const std::uint64_t rounds = setting("TSLN_ROUNDS", 200);
    int succeeded = 0, refused = 0, acts = 0;
    for (std::uint64_t company = 0; company * roundsPerCompany < rounds; ++company) {
        Hostility hostility{.chance = Random(static_cast<unsigned>(seed + company))};
        Random userRandom(static_cast<unsigned>(seed + company));
        RandomUser user(userRandom);
        report.hostility = &hostility;
        report.user = &user;
        const TempFolder folder;
        const std::string file = folder.file("Test.company");
        {
            Stage stage(hostility, file);
            for (int i = 0; i < roundsPerCompany; ++i) {
                report.round = company * roundsPerCompany + static_cast<std::uint64_t>(i);
                watchdog.feed();
                hostility.oneCallIn = hostility.chance.of<std::size_t>({0, 5, 20, 60});
                user.allow(static_cast<int>(userRandom.below(8)));
                stage.begin();
                stage.call(hostility.chance.oneIn(2));
                takeQuit();
                ASSERT_TRUE(windowsOfThread().empty()) << "round " << report.round;
                ASSERT_EQ(0, hostility.depth) << "round " << report.round;
            }
            hostility.oneCallIn = 0;
            stage.end();
            EXPECT_EQ(0, hostility.objects)
                << "the module holds objects of the host after round " << report.round;
            succeeded += stage.succeeded;
            refused += stage.refused;
            acts += user.done();
        }
        for (const char* check : {"PRAGMA integrity_check", "PRAGMA foreign_key_check"}) {
            SQLite::Database database(file);
            SQLite::Statement problem(database, check);
            while (problem.executeStep())
                EXPECT_EQ("ok", problem.getColumn(0).getString()) << check << " after round " << report.round;
        }
        if (company % 10 == 9)
            std::printf("%llu rounds\n", static_cast<unsigned long long>(report.round + 1));
        std::fflush(stdout);
    }
    std::printf("Seed %llu: %d calls succeeded, %d were refused or failed, %d acts of the user.\n",
                static_cast<unsigned long long>(seed), succeeded, refused, acts);
}

/// Bytes in use on all heaps of the process.
std::size_t heapInUse() {
    HANDLE heaps[64];
    const DWORD count = std::min<DWORD>(GetProcessHeaps(64, heaps), 64);
    std::size_t bytes = 0;
    for (DWORD i = 0; i < count; ++i) {
        HeapLock(heaps[i]);
        PROCESS_HEAP_ENTRY entry{};
        while (HeapWalk(heaps[i], &entry)) {
            if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) bytes += entry.cbData;
        }
        HeapUnlock(heaps[i]);
    }
    return bytes;
}

TEST_F(HostileHost, AHostThatWorksAndARandomUserLeaveTheMemoryAsItWas) {
    const int acts = static_cast<int>(setting("TSLN_ACTS", 300));
    Hostility hostility{.chance = Random(static_cast<unsigned>(seed))};
    Random userRandom(static_cast<unsigned>(seed));
    RandomUser user(userRandom);
    report.hostility = &hostility;
    report.user = &user;
    const TempFolder folder;
    Stage stage(hostility, folder.file("Test.company"));
    std::size_t before = 0;
    while (user.done() < acts) {
        watchdog.feed();
        user.allow(20);
        stage.begin();
        stage.call(true);
        ASSERT_TRUE(windowsOfThread().empty());
        if (before == 0 && user.done() >= acts / 2) before = heapInUse();
    }
    const std::size_t after = heapInUse();
    std::printf("Seed %llu: %d acts; the heap grew by %lld KB in the second half.\n",
                static_cast<unsigned long long>(seed), user.done(),
                (static_cast<long long>(after) - static_cast<long long>(before)) / 1024);
    EXPECT_LT(after, before + (1 << 20));
}

/// A program of its own runs this, because the thread takes the front end with it.
TEST(EndedThread, LeavesAProgramThatIsToldAndEnds) {
    const auto host = RecordingHost::make();
    host->on("Database.ExecuteRead", [&](Arguments) -> Variant { ExitThread(7); });
    ComPtr<IDispatch> sharedCode = com::adopt(com::newDispatch(host->sharedCode()));
    const auto openTerms = [](void* given) -> DWORD {
        OleInitialize(nullptr);
        ILibrary* const library = newLibrary().Detach();  // lost with the thread
        library->Initialize(static_cast<IDispatch**>(given));
        VARIANT_BOOL closed;
        library->ShowTerms(&closed);
        return 0;
    };
    const HANDLE thread = CreateThread(nullptr, 0, openTerms, sharedCode.GetAddressOf(), 0, nullptr);
    ASSERT_EQ(WAIT_OBJECT_0, WaitForSingleObject(thread, 30'000));
    DWORD code = 0;
    GetExitCodeThread(thread, &code);
    EXPECT_EQ(7u, code);
    CloseHandle(thread);

    const ComPtr<ILibrary> next = newLibrary();
    ComPtr<IDispatch> other = com::adopt(com::newDispatch(RecordingHost::make()->sharedCode()));
    EXPECT_EQ(S_OK, next->Initialize(other.GetAddressOf()));
    VARIANT_BOOL closed;
    EXPECT_EQ(RPC_E_WRONG_THREAD, next->ShowTerms(&closed));
    EXPECT_EQ(S_OK, next->PreTerminate());
}

}  // namespace
}  // namespace tsln::test
