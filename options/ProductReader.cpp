#include "options/ProductReader.h"

#include <unordered_set>

#include "shared/modSharedXML.h"

namespace tsln::options {
namespace {

/// The reader shows no messages of its own: this module tells the user.
constexpr bool readerTells = false;

}  // namespace

ProductReader::ProductReader(const HostScreen& screen)
    : host_(screen.host()), engine_(screen.desktop().createObject("catalog5engine.Engine"), host_) {
    const Security security = host_.security();
    engine_->call("IdentifyUser", security.SID(), security.OID(), security.OrganizationName());
}

ProductReader::Opening ProductReader::open(std::int32_t productID) {
    product_.reset();
    text_.clear();
    const std::string file = host_.common().GetProductFileFromID2(productID);
    if (file.empty()) return Opening::NoFile;
    try {
        if (!engine_->call("UseProductFile", file, readerTells).toBoolean()) return Opening::NotPermitted;
        engine_->call("InitForAccess");
        return take(engine_->get("XMLDocument")) ? Opening::Opened : Opening::Unreadable;
    } catch (const HostError&) {
        return Opening::Unreadable;  // whatever the component raises, this product gives nothing
    }
}

bool ProductReader::take(const Variant& document) {
    if (!document.isObject() || !document.toObject()) return false;
    text_ = modSharedXML::readDocument(document);
    if (!product_.load_buffer_inplace(text_.data(), text_.size(), pugi::parse_default, pugi::encoding_utf8)) {
        product_.reset();
        return false;
    }
    return true;
}

std::vector<ProductReader::Option> ProductReader::options() const {
    std::vector<Option> found;
    for (const pugi::xpath_node& hit : product_.select_nodes("//Product/Styles/Style/Options/Option"))
        found.emplace_back(hit.node());
    return found;
}

std::vector<std::string> ProductReader::styles() const {
    std::vector<std::string> names;
    std::unordered_set<std::string> known;
    for (const pugi::xpath_node& hit : product_.select_nodes("//Product/Styles/Style")) {
        const std::string name = hit.node().attribute("Name").value();
        if (!name.empty() && known.insert(name).second) names.push_back(name);
    }
    return names;
}

bool openOrTell(ProductReader& reader, std::int32_t productID, const Host& host,
                std::string_view unreadable) {
    switch (reader.open(productID)) {
        case ProductReader::Opening::Opened:
            return true;
        case ProductReader::Opening::NotPermitted:
            host.ShowMessageStyle2(
                "You don't have permission to use this product.",
                "If you have not logged in with your Kestrane ID you should do so now and try again. If you still cannot access the product you should check with the products author.");
            return false;
        case ProductReader::Opening::NoFile:
        case ProductReader::Opening::Unreadable:
            break;
    }
    host.ShowAndLogErrorMessage(unreadable, "", "");
    return false;
}

}  // namespace tsln::options
