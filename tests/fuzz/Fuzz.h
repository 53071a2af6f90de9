#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest-printers.h>

/// Each file beside this one is a program: it reads any input in two ways, which must agree. The fuzzer makes inputs
/// (./test --fuzz), and the tests run those in corpus/.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace tsln::fuzz {

inline std::string_view textOf(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

/// Ends the program, so that the fuzzer keeps the input.
[[noreturn]] inline void fail(const std::string& text) {
    std::cerr << "FINDING: " << text << std::endl;
    std::abort();
}

inline void require(bool holds, const std::string& text) {
    if (!holds) fail(text);
}

/// `what` says which of the input's readings it is.
template <class Found, class Expected>
void same(const Found& found, const Expected& expected, std::string_view what) {
    if (found == expected) return;
    fail(std::string(what) + ": found " + testing::PrintToString(found) + ", expected " +
         testing::PrintToString(expected));
}

inline std::vector<std::string_view> lines(std::string_view text) {
    std::vector<std::string_view> result;
    for (std::size_t end = 0; end != text.npos; text.remove_prefix(end == text.npos ? 0 : end + 1)) {
        end = text.find('\n');
        result.push_back(text.substr(0, end));
    }
    return result;
}

/// Choices drawn from the input's bytes, all zero behind its end.
class Choices {
  public:
    explicit Choices(std::string_view bytes) : rest_(bytes) {}
    bool ended() const { return rest_.empty(); }
    unsigned below(unsigned limit) {
        if (rest_.empty()) return 0;
        const auto byte = static_cast<unsigned char>(rest_[0]);
        rest_.remove_prefix(1);
        return byte % limit;
    }

  private:
    std::string_view rest_;
};

}  // namespace tsln::fuzz
