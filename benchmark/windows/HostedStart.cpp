#include "benchmark/windows/HostedStart.h"

#include <cstdio>
#include <filesystem>
#include <memory>
#include <stdexcept>

#include "benchmark/contest/BenchCompany.h"
#include "benchmark/contest/StartParts.h"
#include "com/edge/ComObject.h"
#include "com/edge/Conversion.h"
#include "tslnmaint5.h"  // generated from the interface description, all that a client knows of the module
// clang-format off: needs the headers above
#include <commctrl.h>
// clang-format on

namespace tsln::bench {
namespace {

using com::ComPtr;
using Clock = StartParts::Clock;

constexpr int rows = 100;
constexpr UINT glance = 1;  // milliseconds between two checks of the list

/// Records when the module reaches the steps of opening its first list. One at a time.
class Onlooker {
  public:
    Onlooker() {
        current = this;
        hook_ = SetWindowsHookExW(WH_CALLWNDPROC, onMessage, nullptr, GetCurrentThreadId());
        // Timer messages have the lowest priority, so everything is drawn when one arrives.
        timer_ = SetTimer(nullptr, 0, glance, onGlance);
    }
    ~Onlooker() {
        KillTimer(nullptr, timer_);
        UnhookWindowsHookEx(hook_);
        current = nullptr;
    }
    Clock::time_point shown, drawn;

  private:
    static LRESULT CALLBACK onMessage(int code, WPARAM sender, LPARAM message) {
        const auto& sent = *reinterpret_cast<const CWPSTRUCT*>(message);
        if (code == HC_ACTION && sent.message == WM_SHOWWINDOW && sent.wParam && isScreen(sent.hwnd) &&
            !current->screen_) {
            current->screen_ = sent.hwnd;
            current->shown = Clock::now();
        }
        return CallNextHookEx(nullptr, code, sender, message);
    }
    static void CALLBACK onGlance(HWND, UINT, UINT_PTR, DWORD) {
        if (!current->screen_ || current->drawn != Clock::time_point()) return;
        bool filled = false;
        EnumChildWindows(current->screen_, lookForRows, reinterpret_cast<LPARAM>(&filled));
        if (!filled) return;
        current->drawn = Clock::now();
        PostMessageW(current->screen_, WM_CLOSE, 0, 0);
    }
    static BOOL CALLBACK lookForRows(HWND window, LPARAM filled) {
        wchar_t name[64];
        GetClassNameW(window, name, 64);
        if (lstrcmpiW(name, WC_LISTVIEWW) != 0 || SendMessageW(window, LVM_GETITEMCOUNT, 0, 0) != rows)
            return TRUE;
        *reinterpret_cast<bool*>(filled) = true;
        return FALSE;
    }
    static bool isScreen(HWND window) {
        wchar_t caption[64];
        GetWindowTextW(window, caption, 64);
        return GetAncestor(window, GA_ROOT) == window && lstrcmpW(caption, L"Terms") == 0;
    }

    static inline Onlooker* current = nullptr;
    HHOOK hook_ = nullptr;
    UINT_PTR timer_ = 0;
    HWND screen_ = nullptr;
};

std::wstring fileBeside(const wchar_t* name) {
    wchar_t path[MAX_PATH];
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    return std::filesystem::path(path).parent_path() / name;
}

void check(HRESULT result, const char* what) {
    if (FAILED(result)) throw std::runtime_error(std::string(what) + " failed");
}

ComPtr<ILibrary> newLibrary(HMODULE module) {
    const auto getClass = reinterpret_cast<decltype(&DllGetClassObject)>(
        reinterpret_cast<void*>(GetProcAddress(module, "DllGetClassObject")));
    ComPtr<IClassFactory> factory;
    ComPtr<ILibrary> library;
    if (!getClass) throw std::runtime_error("tslnmaint5.dll has no classes");
    check(getClass(__uuidof(Library), IID_PPV_ARGS(&factory)), "The class");
    check(factory->CreateInstance(nullptr, IID_PPV_ARGS(&library)), "Library");
    return library;
}

}  // namespace

void startOnce() {
    BenchCompany company(rows, 0);
    Clock::time_point asked, answered;
    company.session().tracer()->observe([&](const workbench::TraceEntry& call) {
        if (call.statement.find("FROM Terms") == call.statement.npos) return;
        answered = Clock::now();
        asked = answered - call.duration;
    });
    const Onlooker onlooker;
    ComPtr<IDispatch> sharedCode = com::adopt(com::newDispatch(company.session().sharedCode()));

    const auto begin = Clock::now();
    const HMODULE module = LoadLibraryW(fileBeside(L"tslnmaint5.dll").c_str());
    if (!module) throw std::runtime_error("tslnmaint5.dll does not load");
    const auto loaded = Clock::now();
    const ComPtr<ILibrary> library = newLibrary(module);
    const auto created = Clock::now();
    check(library->Initialize(sharedCode.GetAddressOf()), "Initialize");
    const auto initialized = Clock::now();
    VARIANT_BOOL closed = VARIANT_FALSE;
    check(library->ShowTerms(&closed), "ShowTerms");
    check(library->PreTerminate(), "PreTerminate");

    const auto part = StartParts::print;
    part("module loaded", begin, loaded);
    part("Library created", loaded, created);
    part("initialized with the host", created, initialized);
    part("toolkit started, screen made, its window shown", initialized, onlooker.shown);
    part("window drawn, waiting messages dealt with", onlooker.shown, asked);
    part("100 rows got from the host", asked, answered);
    part("rows read into the list and drawn", answered, onlooker.drawn);
    part("Library created to first screen shown", loaded, onlooker.drawn);
}

void measureHostedStart(Report& report) {
    wchar_t self[MAX_PATH];
    GetModuleFileNameW(nullptr, self, MAX_PATH);
    const std::wstring command = L"\"" + std::wstring(self) + L"\" --start-once";
    StartParts parts;
    for (int i = 0; i < StartParts::starts; ++i) {
        const std::unique_ptr<std::FILE, int (*)(std::FILE*)> output(_wpopen(command.c_str(), L"r"), _pclose);
        parts.read(output.get());
    }
    parts.addTo(report, "start as DLL: ");
}

}  // namespace tsln::bench
