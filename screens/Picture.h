#pragma once

#include <string>

#include "screens/Control.h"

namespace tsln {

/// A small picture beside a text or a box.
class Picture : public Control {
  public:
    enum class Kind {
        Lock,  ///< a padlock
        File,  ///< a picture file (jpg, png, gif), made smaller where it does not fit
    };
    Picture(Screen& screen, std::string name, Kind kind) : Control(screen, std::move(name)), kind_(kind) {}
    void accept(ControlVisitor& visitor) override { visitor.visit(*this); }

    Kind kind() const noexcept { return kind_; }
    /// The path of the file; empty: no picture. A file that cannot be shown is said to be one.
    const std::string& file() const noexcept { return file_; }
    /// Reads the file again, also when its path is the same.
    void setFile(std::string path) {
        file_ = std::move(path);
        ++version_;
        changed();
    }
    /// Changes whenever the file is to be read again.
    int version() const noexcept { return version_; }

  private:
    Kind kind_;
    std::string file_;
    int version_ = 0;
};

}  // namespace tsln
