// Product files, through the reader of the module and the component of the host, against a walk over pugixml's own tree.

#include <functional>

#include "options/ProductReader.h"
#include "shared/modSharedStrings.h"
#include "tests/fuzz/Fuzz.h"
#include "tests/workbench/host/HostStage.h"
#include "workbench/sql/SqlText.h"

namespace {

using namespace tsln;
using namespace tsln::workbench;
using options::ProductReader;

/// Some screen, for the host that it has.
struct AnyScreen : HostScreen {
    explicit AnyScreen(Library& owner) : HostScreen(owner, "frmAny") {}
    Layout layout() override { return {}; }
};

using Names = std::vector<std::string>;

/// The elements at the end of the path, in the order of the file. The path's beginning may be anywhere.
std::vector<pugi::xml_node> elementsAt(pugi::xml_node top, const std::vector<std::string_view>& path) {
    std::vector<pugi::xml_node> found;
    const std::function<void(pugi::xml_node)> walk = [&](pugi::xml_node node) {
        std::size_t matched = 0;
        for (pugi::xml_node up = node; matched < path.size() && path[path.size() - 1 - matched] == up.name();
             up = up.parent())
            ++matched;
        if (matched == path.size()) found.push_back(node);
        for (const pugi::xml_node child : node.children())
            walk(child);
    };
    walk(top);
    return found;
}

Names namesAt(pugi::xml_node top, const std::vector<std::string_view>& path) {
    Names names;
    for (const pugi::xml_node element : elementsAt(top, path))
        names.emplace_back(element.attribute("Name").value());
    return names;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static ModuleStage stage;
    static AnyScreen screen(*stage.library);
    static const bool named = [] {
        stage.run("UPDATE Products SET ProductFile = " + literal(stage.folder.file("product.xml")) +
                  " WHERE ID = 1");
        return true;
    }();
    (void)named;
    const std::string text(fuzz::textOf(data, size));
    stage.folder.write("product.xml", text);

    pugi::xml_document product;
    const bool readable = static_cast<bool>(product.load_buffer(text.data(), text.size()));
    const std::string organizations = product.document_element().attribute("Organizations").value();
    const std::string listed = "|" + modSharedStrings::foldCase(organizations) + "|";
    bool mine = false;
    for (const Variant& value :
         {screen.host().security().OID(), screen.host().security().OrganizationName()}) {
        const std::string name = value.toText();
        mine |= !name.empty() && listed.find("|" + modSharedStrings::foldCase(name) + "|") != listed.npos;
    }
    ProductReader reader(screen);
    const ProductReader::Opening opening = reader.open(1);
    if (!readable) {
        fuzz::require(opening == ProductReader::Opening::Unreadable, "a damaged product is not told as one");
        fuzz::require(reader.options().empty() && reader.styles().empty(), "a damaged product has options");
        return 0;
    }
    if (!organizations.empty() && !mine) {
        fuzz::require(opening == ProductReader::Opening::NotPermitted,
                      "another organization's product was opened");
        return 0;
    }
    fuzz::require(opening == ProductReader::Opening::Opened, "a product could not be opened");
    Names found, styles;
    for (const ProductReader::Option& option : reader.options())
        found.emplace_back(option.name());
    fuzz::same(found, namesAt(product, {"Product", "Styles", "Style", "Options", "Option"}), "the options");
    for (const std::string& style : namesAt(product, {"Product", "Styles", "Style"})) {
        if (!style.empty() && std::ranges::find(styles, style) == styles.end()) styles.push_back(style);
    }
    fuzz::same(reader.styles(), styles, "the styles");
    return 0;
}
