#pragma once

#include <string>

#include "workbench/host/EngineObject.h"

namespace tsln::workbench {

/// The component "tslnfm5.Library": the folders of the company's files.
///
/// "Initialize" takes the shared-code object, "PreTerminate" releases it. "ShowFileManager" shows the folder of every kind
/// of files. "ShowMoveFileLocations" lets the user choose a folder and moves the files of every kind into it, except the
/// company file itself, which is open. What could not be moved stays where it is, and the user is told.
class FileManager : public EngineObject {
  public:
    using EngineObject::EngineObject;

  private:
    Variant invokeOwn(std::string_view member, Access access, Arguments arguments) override;
    std::string folderOf(std::string_view location) const;
    void show();
    void move();
};

}  // namespace tsln::workbench
