#include "tests/soak/Diary.h"

#include <array>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <malloc.h>
#include <unistd.h>

#ifdef __SANITIZE_ADDRESS__
// The sanitizer's functions; its headers are in a package of another compiler.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
extern "C" void __sanitizer_set_death_callback(void (*callback)());
#endif

namespace tsln::soak {
namespace {

constexpr std::size_t latest = 150;
constexpr std::size_t longest = 160;
constexpr unsigned patience = 60;  // seconds for an act

std::string title;
std::array<std::string, latest> acts;
std::size_t count = 0;

void print(const char* text) {
    std::fputs(text, stderr);
    std::fputc('\n', stderr);
}

void tell() {
    print("The latest acts:");
    for (std::size_t i = count > latest ? count - latest : 0; i < count; ++i)
        print(acts[i % latest].c_str());
    print(title.c_str());
}

void onSignal(int signal) {
    print(signal == SIGALRM ? "FAULT: an act does not end" : "FAULT: the program crashes");
    tell();
    std::signal(SIGABRT, SIG_DFL);
    std::abort();
}

}  // namespace

void diary::begin(const std::string& howToRepeat) {
    title = howToRepeat;
    count = 0;
#ifdef __SANITIZE_ADDRESS__
    __sanitizer_set_death_callback(tell);
    std::signal(SIGALRM, onSignal);
#else
    for (const int signal : {SIGSEGV, SIGABRT, SIGFPE, SIGBUS, SIGILL, SIGALRM})
        std::signal(signal, onSignal);
#endif
}

void diary::add(std::string act) {
    alarm(patience);
    if (act.size() > longest) act = act.substr(0, longest) + " ...";
    if (std::getenv("TSLN_DIARY")) print(act.c_str());
    acts[count++ % latest] = std::move(act);
}

void diary::fail(const std::string& fault) {
    print(("FAULT: " + fault).c_str());
    tell();
    std::fflush(stdout);
    std::_Exit(1);
}

std::size_t memoryInUse() {
#ifdef __SANITIZE_ADDRESS__
    return __sanitizer_get_current_allocated_bytes();
#else
    const struct mallinfo2 heap = mallinfo2();
    return heap.uordblks + heap.hblkhd;
#endif
}

}  // namespace tsln::soak
