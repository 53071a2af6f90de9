#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tsln::workbench {

/// Returns the SHA-2 digest of the bytes, with 256, 384 or 512 bits, in lower-case hexadecimal digits. Another length
/// raises HostError(code::badIndex).
std::string sha2(std::string_view bytes, std::int32_t bits);

}  // namespace tsln::workbench
