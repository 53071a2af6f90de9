#pragma once

#include "workbench/host/HostContext.h"

namespace tsln::workbench {

/// "Options": the options of the company and of its user, the company's folders and registered programs.
class OptionsObject : public HostObject {
  public:
    using HostObject::HostObject;
    Variant invoke(std::string_view member, Access access, Arguments arguments) override;

  private:
    Variant get(OptionStore::Owner owner, Arguments a);
    Variant set(OptionStore::Owner owner, Arguments a);
    OptionStore::Owner company() const { return {}; }
    OptionStore::Owner user() const { return {context().user.ID}; }
    Variant UserFileLocation(Arguments a);
};

}  // namespace tsln::workbench
