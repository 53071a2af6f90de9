#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "bridge/Component.h"
#include "screens/Desktop.h"

namespace tsln::migration {

/// Opens a company of version 4.2 by the company manager. The manager is terminated with this object.
class CompanyManager {
  public:
    /// Raises HostError where there is no company manager.
    explicit CompanyManager(Desktop& desktop) : manager_(desktop.createObject("tslncmgr5.Library")) {}

    /// Tells the manager which company is meant. False when it refuses. May raise HostError.
    bool load(const std::string& path) const;
    /// How the loaded company is reached; nothing when it cannot be opened.
    std::optional<std::string> connectionString() const;

  private:
    Terminated manager_;
};

/// Runs statements against the old company. The engine is terminated with this object.
class OldCompany {
  public:
    /// Raises HostError where there is no SQL engine.
    explicit OldCompany(Desktop& desktop) : engine_(desktop.createObject("tslnsql5.Engine")) {}

    /// False when the engine does not open the company.
    bool connect(std::string_view connectionString) const noexcept;
    /// The rows of a SELECT as the text of the result's document. May raise HostError.
    std::string read(std::string_view statement) const {
        return modSharedXML::readDocument(engine_->call("ExecuteRead", statement));
    }

  private:
    Terminated engine_;
};

}  // namespace tsln::migration
