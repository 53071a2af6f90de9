#pragma once

#include <string>
#include <vector>

#include "workbench/host/EngineObject.h"

namespace tsln::workbench {

/// The component "catalog5engine.Engine": reads the files of products.
///
/// "Initialize" takes the shared-code object, "IdentifyUser" (SID, OID, organization's name) tells who reads.
/// "UseProductFile" (path, whether the reader shows messages of its own, which this one never does) returns whether that
/// user may use the product: everybody may, unless the product's attribute "Organizations" lists, separated by "|", only
/// others. "InitForAccess" prepares the file, after which "XMLDocument" is the product, or Nothing when the file is
/// empty, damaged or gone. "PreTerminate" releases everything.
class ProductFileEngine : public EngineObject {
  public:
    using EngineObject::EngineObject;

  private:
    Variant invokeOwn(std::string_view member, Access access, Arguments arguments) override;
    void terminated() override;
    bool useProductFile(const std::string& path);
    bool mayUse(std::string_view organizations) const;

    std::vector<std::string> user_;  // the names by which a product may list the user's organization
    std::string text_;               // of the file in use; empty when it cannot be used
    bool prepared_ = false;
};

}  // namespace tsln::workbench
