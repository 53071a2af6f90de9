#pragma once

#include <map>
#include <string>

#include "doubles/Stage.h"

namespace tsln::test {

/// Products that the host of a stage offers through its reader of product files.
class Products {
  public:
    /// `stage` must outlive the products.
    explicit Products(Stage& stage) {
        RecordingHost& host = *stage.host;
        host.on("Security.SID", Variant("sid"));
        host.on("Security.OID", Variant("oid"));
        host.on("Security.OrganizationName", Variant("Lantern"));
        host.on("Common.GetProductFileFromID2", [this](Arguments a) -> Variant {
            return documents.contains(a[0].toLong()) ? "/products/" + std::to_string(a[0].toLong()) : "";
        });
        host.on("catalog5engine.Engine.UseProductFile", [this](Arguments a) -> Variant {
            inUse_ = std::stoi(a[0].toText().substr(std::string("/products/").size()));
            return documents[inUse_] != refused;
        });
        host.on("catalog5engine.Engine.XMLDocument", [this](Arguments) -> Variant {
            const std::string& text = documents[inUse_];
            return text == nothing ? ObjectPtr() : makeDocument(text);
        });
    }

    static constexpr auto refused = "refused";  ///< a product that the user may not use
    static constexpr auto nothing = "nothing";  ///< a product of which the reader gives no document
    std::map<int, std::string> documents;       ///< by the product's key

    /// A product with one style that has these options: "Name='Pattern' Sequence='2'".
    static std::string withOptions(std::initializer_list<const char*> options) {
        std::string text = "<Product><Styles><Style Name='Standard'><Options>";
        for (const char* option : options)
            text += "<Option " + std::string(option) + "/>";
        return text + "</Options></Style></Styles></Product>";
    }

    static constexpr auto whoReads = "sid, oid, Lantern";

  private:
    int inUse_ = 0;
};

}  // namespace tsln::test
