#ifndef _WIN32
#include <cerrno>
#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include "desktop/Process.h"

namespace tsln::desktop {
namespace {

/// The argument array for exec and spawn. It points into `words`, which must outlive it.
std::vector<char*> pointersTo(std::vector<std::string>& words) {
    std::vector<char*> pointers;
    pointers.reserve(words.size() + 1);
    for (std::string& word : words)
        pointers.push_back(word.data());
    pointers.push_back(nullptr);
    return pointers;
}

ProcessEnd endOf(int status) {
    ProcessEnd end{.started = true};
    if (WIFEXITED(status)) end.exitCode = WEXITSTATUS(status);
    if (WIFSIGNALED(status)) end.exitCode = -WTERMSIG(status);
    return end;
}

}  // namespace

ProcessEnd runProcess(std::string_view commandLine, const std::function<void()>& idle) {
    std::vector<std::string> words = splitCommandLine(commandLine);
    if (words.empty()) return {};
    std::vector<char*> arguments = pointersTo(words);
    pid_t process = 0;
    if (posix_spawnp(&process, arguments[0], nullptr, nullptr, arguments.data(), environ) != 0) return {};

    int status = 0;
    for (;;) {
        const pid_t ended = waitpid(process, &status, WNOHANG);
        if (ended == process) return endOf(status);
        if (ended < 0 && errno != EINTR) return {.started = true};  // other code collected the status
        idle();
    }
}

bool openDetached(std::string_view file, std::string_view arguments) {
    std::vector<std::string> words = splitCommandLine(arguments);
    const std::string program(file);
    // A file that exists but is not executable is a document. Any other name is a program on the path.
    const bool isDocument = access(program.c_str(), F_OK) == 0 && access(program.c_str(), X_OK) != 0;
    words.insert(words.begin(), program);
    if (isDocument || program.find("://") != std::string::npos) words.insert(words.begin(), "xdg-open");
    std::vector<char*> pointers = pointersTo(words);

    // A started program closes the pipe without a word; a failure to start writes to it.
    int report[2];
    if (pipe2(report, O_CLOEXEC) != 0) return false;
    const auto failed = [&report] {
        while (write(report[1], "!", 1) < 0 && errno == EINTR) {
        }
        _exit(1);
    };
    // The program runs as a grandchild: it may outlive this process and leaves no zombie.
    const pid_t child = fork();
    if (child == 0) {
        setsid();
        const pid_t grandchild = fork();
        if (grandchild == 0) execvp(pointers[0], pointers.data());
        if (grandchild <= 0) failed();
        _exit(0);
    }
    close(report[1]);
    bool started = child > 0;
    if (started) {
        while (waitpid(child, nullptr, 0) < 0 && errno == EINTR) {
        }
        char word = 0;
        ssize_t length = 0;
        while ((length = read(report[0], &word, 1)) < 0 && errno == EINTR) {
        }
        started = length == 0;
    }
    close(report[0]);
    return started;
}

}  // namespace tsln::desktop
#endif
