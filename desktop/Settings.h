#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

class wxConfigBase;

namespace tsln::desktop {

/// The user's settings: text values under keys of the form "Software\\Maker\\Product". They are stored in the
/// user's part of the registry on Windows, in a file elsewhere. Names ignore letter case. Nothing throws: a
/// value that cannot be read counts as missing, a failure to write is ignored.
class Settings {
  public:
    /// `file` is the path of the settings file, unused on Windows. Its folder is made when the first value is
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
