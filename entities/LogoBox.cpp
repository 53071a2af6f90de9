#include "entities/LogoBox.h"

#include "entities/LogoFiles.h"
#include "shared/modSharedSQL.h"

namespace tsln::entities {
namespace {

const FileFilter filters[] = {{"Picture Files", "*.jpg;*.png;*.gif"}, {"All Files (*.*)", "*.*"}};

}  // namespace

LogoBox::LogoBox(HostScreen& screen, ComboBox& box, const std::string& name, std::string caption)
    : cmdBrowse(screen, "cmd" + name, "Browse..."),
      imgLogo(screen, "img" + name, Picture::Kind::File),
      screen_(screen),
      box_(box),
      caption_(std::move(caption)) {
    cmdBrowse.accessibleName = caption_ + " Browse...";
    imgLogo.accessibleName = "Picture of the " + box_.accessibleName;
    cmdBrowse.onClick = [this] { browse(); };
    box_.onClick = [this] { showPicture(); };
    box_.onLeave = [this] { showPicture(); };
}

Layout LogoBox::layout() {
    return layout::row({layout::field(caption_, box_), layout::item(cmdBrowse), layout::item(imgLogo)});
}

void LogoBox::refresh(const std::string& folder) {
    folder_ = folder;
    const std::string shown = box_.text();
    box_.clear();
    for (std::string& name : logoFiles::list(folder))
        box_.addItem(std::move(name));
    box_.setText(shown);
    showPicture();
}

void LogoBox::showPicture() {
    imgLogo.setFile(box_.text().empty() ? std::string() : logoFiles::within(folder_, box_.text()));
}

void LogoBox::browse() {
    const auto path = screen_.desktop().openFile(screen_, "Select Image", filters);
    if (!path || path->empty()) return;
    const std::string name = logoFiles::nameOf(*path);
    const std::string target = logoFiles::within(folder_, name);
    if (logoFiles::exists(target) &&
        !screen_.ask("A file with the name '" + name +
                     "' already exists in the Reports folder. Are you sure you want to replace it?")) {
        return;
    }
    if (folder_.empty() || !logoFiles::copy(*path, target)) {
        screen_.host().ShowAndLogErrorMessage(
            "The file '" + name + "' could not be copied to the Reports folder.",
            "Make sure the file is not open by another program and try again.", "");
        return;
    }
    box_.setText(name);
    if (onCopied) onCopied();
}

}  // namespace tsln::entities
