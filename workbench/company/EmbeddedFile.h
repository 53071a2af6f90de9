#pragma once

#include <span>
#include <string_view>

namespace tsln::workbench {

/// A file of the source tree that was made part of the program. Both texts live as long as the program.
struct EmbeddedFile {
    std::string_view name, text;
};

}  // namespace tsln::workbench
