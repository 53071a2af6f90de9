#pragma once

#include <span>
#include <string_view>

namespace tsln {

/// A file of the source tree that is built into the program. Both texts have static lifetime.
struct EmbeddedFile {
    std::string_view name, text;
};

}  // namespace tsln
