#include "tests/soak/WindowUser.h"
namespace tsln::soak {
void runWindows(RandomUser&, const std::string&, std::size_t) {}
}  // namespace tsln::soak
