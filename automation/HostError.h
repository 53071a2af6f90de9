#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>

namespace tsln {

/// Result codes of the automation platform, as late-bound callers see them (winerror.h, oleauto.h).
namespace code {
inline constexpr std::int32_t unknownName = static_cast<std::int32_t>(0x80020006);
inline constexpr std::int32_t memberNotFound = static_cast<std::int32_t>(0x80020003);
inline constexpr std::int32_t typeMismatch = static_cast<std::int32_t>(0x80020005);
inline constexpr std::int32_t overflow = static_cast<std::int32_t>(0x8002000A);
inline constexpr std::int32_t badIndex = static_cast<std::int32_t>(0x8002000B);
inline constexpr std::int32_t badParamCount = static_cast<std::int32_t>(0x8002000E);
inline constexpr std::int32_t paramNotOptional = static_cast<std::int32_t>(0x8002000F);
inline constexpr std::int32_t notImplemented = static_cast<std::int32_t>(0x80004001);
inline constexpr std::int32_t fail = static_cast<std::int32_t>(0x80004005);
inline constexpr std::int32_t classNotRegistered = static_cast<std::int32_t>(0x80040154);
/// An object reference that holds no object was used (run-time error 91 of the platform's script languages).
inline constexpr std::int32_t objectNotSet = static_cast<std::int32_t>(0x800A005B);
/// A modal screen that is shown already cannot be shown again (run-time error 400).
inline constexpr std::int32_t alreadyShown = static_cast<std::int32_t>(0x800A0190);
}  // namespace code

/// A late-bound call that failed: its result code, the name of the component that raised it, and the error
/// text, which is what(), too.
class HostError : public std::runtime_error {
  public:
    HostError(std::int32_t code, std::string source, const std::string& text)
        : std::runtime_error(text), code_(code), source_(std::move(source)) {}

    std::int32_t code() const noexcept { return code_; }
    const std::string& source() const noexcept { return source_; }
    std::string text() const { return what(); }

  private:
    std::int32_t code_;
    std::string source_;
};

}  // namespace tsln
