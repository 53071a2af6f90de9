#pragma once

#include <deque>
#include <functional>
#include <set>
#include <string>

#include "com/edge/ComObject.h"
#include "doubles/Random.h"

namespace tsln::test {

/// How the host of one round behaves, and what its objects have in common.
struct Hostility {
    Random chance{0};
    std::size_t oneCallIn = 0;             ///< one call in so many goes wrong; 0: none
    int objects = 0;                       ///< objects of the host that exist
    int depth = 0;                         ///< calls of the host that are not over yet
    std::function<void()> callLibrary;     ///< calls the module again
    std::function<void()> releaseLibrary;  ///< gives up the module, though a call to it is not over yet
    std::deque<std::string> log;           ///< the last calls and what went wrong with them

    void note(std::string what);
};

/// Stands before an object of a host that works, and lets some of the calls to it go wrong: members are missing, values
/// have another type or none, errors are raised with and without texts, variables are overwritten, and before a call the
/// host shows a window, runs its message loop, calls the module again, releases it, or ends. Objects that calls return are
/// hostile, too. `hostility` outlives the object.
com::ComPtr<IDispatch> makeHostile(com::ComPtr<IDispatch> target, Hostility& hostility);

}  // namespace tsln::test
