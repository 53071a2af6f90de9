#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

class wxConfigBase;

namespace tsln::desktop {

/// The user's settings: text values under keys of the form "Software\\Maker\\Product". On Windows they lie in
/// the user's part of the registry, elsewhere in a file. Names compare without letter case. Nothing here
/// throws; what cannot be read is not there, what cannot be written is lost without a word.
class Settings {
  public:
    /// `file`: where they lie, where there is no registry; its folder is made when the first value is
    /// written.
    explicit Settings(std::string file);
    ~Settings();

    std::optional<std::string> read(std::string_view key, std::string_view value);
    void write(std::string_view key, std::string_view value, std::string_view text);

  private:
    std::string file_;
    std::unique_ptr<wxConfigBase> store_;
};

}  // namespace tsln::desktop
