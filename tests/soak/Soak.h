#pragma once

#include <functional>
#include <memory>
#include <string>

#include "bridge/Library.h"
#include "doubles/TempFolder.h"
#include "tests/soak/RandomUser.h"
#include "tests/sweep/CompanyFiles.h"
#include "tests/sweep/Driver.h"

namespace tsln::soak {

/// Calls operations over the demonstration company, one after the other, while the random user works their screens, and
/// checks after each that nothing is left behind. A fault ends the program.
class Soak {
  public:
    using ComponentFactory = std::function<ObjectPtr(std::string_view programId)>;
    using MakeDesktop = std::function<std::unique_ptr<Desktop>(ComponentFactory)>;

    /// `makeDesktop` makes the desktop of a session, on which the user acts.
    Soak(RandomUser& user, const std::string& folder, MakeDesktop makeDesktop);

    /// Goes on until the user has done so many acts. Prints what it did. After the first thousand, or half of less than
    /// two thousand, the memory in use must grow by less than a megabyte and so many bytes for each act. `dropCaches` is
    /// called before it is measured.
    void run(std::size_t acts, std::size_t bytesOfAct, const std::function<void()>& dropCaches);
    /// Calls some operation, also while a screen is shown.
    void callOperation();

  private:
    struct Session;
    void workSession();
    void perform(const workbench::GalleryStop& stop);
    std::vector<std::string> argumentsOf(const workbench::GalleryStop& stop);

    RandomUser& user_;
    const MakeDesktop makeDesktop_;
    const std::string folder_, file_, oldFile_;
    const std::vector<workbench::GalleryStop> stops_ = workbench::galleryStops();
    std::string oldCompany_;  ///< the content of a company of version 4.2
    Session* session_ = nullptr;
    std::size_t operations_ = 0, sessions_ = 0;
    int depth_ = 0;
};

}  // namespace tsln::soak
