#include "com/edge/ComObject.h"

namespace tsln::com {

std::atomic<long>& moduleReferences() noexcept {
    static std::atomic<long> count{0};
    return count;
}

}  // namespace tsln::com
