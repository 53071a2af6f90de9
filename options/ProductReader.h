#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include <pugixml.hpp>

#include "bridge/Component.h"
#include "bridge/HostScreen.h"

namespace tsln::options {

/// Reads the files of products through the host's component, which the destructor terminates.
class ProductReader {
  public:
    /// Creates the component and tells it who the user is. May raise HostError.
    explicit ProductReader(const HostScreen& screen);

    enum class Opening {
        Opened,
        NoFile,        ///< the product has no file
        NotPermitted,  ///< the user may not use the product
        Unreadable,    ///< the file holds no product, or the component failed
    };
    /// Opens a product, in place of the one that was open before. Raises HostError when the host does not tell where the
    /// product's file is. After another result than Opened, no product is open.
    Opening open(std::int32_t productID);

    /// An option of the open product. Its texts are valid until another product is opened.
    class Option {
      public:
        explicit Option(pugi::xml_node node) : node_(node) {}
        std::string_view name() const { return node_.attribute("Name").value(); }
        /// An attribute's text; empty where the option does not have it.
        std::string_view text(const char* attribute) const { return node_.attribute(attribute).value(); }

      private:
        pugi::xml_node node_;
    };
    /// The options of all styles in the order of the file. One that several styles have comes several times.
    std::vector<Option> options() const;
    /// The names of the styles, each once.
    std::vector<std::string> styles() const;

  private:
    bool take(const Variant& document);

    Host host_;
    Component engine_;
    std::string text_;  // of the open product; the nodes point into it
    pugi::xml_document product_;
};

/// Opens a product and tells the user why it cannot be opened. `unreadable` is shown for a product without a readable file
/// and logged. May raise HostError.
bool openOrTell(ProductReader& reader, std::int32_t productID, const Host& host, std::string_view unreadable);

}  // namespace tsln::options
