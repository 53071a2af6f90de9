#include "bridge/Messages.h"

namespace tsln {

void Messages::PostMessage(std::int32_t code, std::int32_t about) const {
    call("PostMessage", code, about);
}

}  // namespace tsln
