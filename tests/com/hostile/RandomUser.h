#pragma once

#include <string>
#include <vector>

#include "com/edge/Platform.h"
#include "doubles/Random.h"

namespace tsln::test {

/// A user who acts at random in the windows of this program, some milliseconds after each other, by messages of the system:
/// presses buttons, types, chooses, presses keys and closes windows. Acts within every message loop of the thread that
/// made it, also that of a menu or a message box. Closes what is open once its acts are used up.
class RandomUser {
  public:
    /// `chance` outlives the user. One user exists at a time.
    explicit RandomUser(Random& chance);
    ~RandomUser();
    RandomUser(const RandomUser&) = delete;
    RandomUser& operator=(const RandomUser&) = delete;

    /// From now on the user acts so many times before only closing windows.
    void allow(int acts) { left_ = acts; }
    int done() const { return done_; }
    const std::string& last() const { return last_; }  ///< the last act, for messages

  private:
    static void CALLBACK onTimer(HWND, UINT, UINT_PTR, DWORD);
    void act();
    void actIn(HWND window);
    void close(HWND window);
    void work(HWND part, const std::wstring& kind);

    static RandomUser* current_;
    Random& chance_;
    UINT_PTR timer_;
    int left_ = 0;
    int done_ = 0;
    int tries_ = 0;   // to close a window
    int waited_ = 0;  // timer events since the acts were used up
    std::string last_;
};

/// The visible, enabled windows of this thread that stand by themselves, the foremost first.
std::vector<HWND> windowsOfThread();

}  // namespace tsln::test
