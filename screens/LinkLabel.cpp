#include "screens/LinkLabel.h"

#include <algorithm>

#include <pugixml.hpp>

namespace tsln {
namespace {

void addParts(pugi::xml_node element, std::vector<LinkLabel::Part>& parts) {
    for (const pugi::xml_node node : element.children()) {
        if (node.type() == pugi::node_pcdata) {
            parts.push_back({node.value(), ""});
        } else if (std::string_view(node.name()) == "Hyperlink") {
            parts.push_back({node.text().get(), node.attribute("Click").value()});
        } else {
            addParts(node, parts);
        }
    }
}

/// A caption that is no markup is text as it stands.
std::vector<LinkLabel::Part> partsOf(const std::string& caption) {
    constexpr unsigned options = pugi::parse_default | pugi::parse_ws_pcdata | pugi::parse_fragment;
    pugi::xml_document document;
    if (!document.load_string(caption.c_str(), options)) return {{caption, ""}};
    std::vector<LinkLabel::Part> parts;
    addParts(document, parts);
    return parts;
}

}  // namespace

LinkLabel::LinkLabel(Screen& screen, std::string name, std::string caption)
    : Control(screen, std::move(name)), caption_(std::move(caption)), parts_(partsOf(caption_)) {}

void LinkLabel::setCaption(std::string caption) {
    if (caption == caption_) return;
    caption_ = std::move(caption);
    parts_ = partsOf(caption_);
    changed();
}

void LinkLabel::userFollow(std::string_view operation) {
    if (!enabled() || !visible() || operation.empty() || !onLink) return;
    const auto part = std::ranges::find(parts_, operation, &Part::operation);
    if (part == parts_.end()) return;
    // A copy: the handler may set another caption.
    fire([this, name = part->operation] { onLink(name); });
}

Variant LinkLabel::invoke(std::string_view member, Access access, Arguments arguments) {
    if (!sameName(member, "Caption")) return Control::invoke(member, access, arguments);
    if (access != Access::Put) return caption_;
    setCaption(arguments[0].toText());
    return {};
}

}  // namespace tsln
