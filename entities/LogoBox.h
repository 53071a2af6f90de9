#pragma once

#include <string>

#include "bridge/HostScreen.h"
#include "screens/Controls.h"
#include "screens/Layout.h"
#include "screens/Picture.h"

namespace tsln::entities {

/// Lets the user choose a picture of the reports folder: a box with the file's name, which lists the folder's pictures,
/// a button that copies another file into the folder, and the picture.
class LogoBox {
  public:
    /// `name` is the part that the names of the controls share, "LabelLogoFile"; the box, named "cbo" and `name`, belongs
    /// to the screen. All must outlive this object.
    LogoBox(HostScreen& screen, ComboBox& box, const std::string& name, std::string caption);

    Button cmdBrowse;
    Picture imgLogo;

    /// The box, its label, the button and the picture.
    Layout layout();
    /// Lists the folder's pictures and shows the chosen one. What the box shows stays.
    void refresh(const std::string& folder);
    /// Called with the folder's path when a file was copied into it.
    std::function<void()> onCopied;

  private:
    void browse();
    void showPicture();

    HostScreen& screen_;
    ComboBox& box_;
    std::string caption_;
    std::string folder_;
};

}  // namespace tsln::entities
