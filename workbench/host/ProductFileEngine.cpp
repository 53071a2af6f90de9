#include "workbench/host/ProductFileEngine.h"

#include <algorithm>
#include <fstream>
#include <iterator>

#include <pugixml.hpp>

#include "automation/FilePath.h"
#include "shared/modSharedStrings.h"
#include "workbench/host/QueryDocument.h"
#include "workbench/host/TextOf.h"

namespace tsln::workbench {
namespace {

std::string contentsOf(const std::string& path) {
    std::ifstream file(pathOf(path), std::ios::binary | std::ios::ate);
    if (!file) return {};
    std::string text(static_cast<std::size_t>(std::max<std::streamoff>(file.tellg(), 0)), '\0');
    file.seekg(0);
    file.read(text.data(), static_cast<std::streamsize>(text.size()));
    text.resize(static_cast<std::size_t>(file.gcount()));
    return text;
}

}  // namespace

bool ProductFileEngine::mayUse(std::string_view organizations) const {
    if (organizations.empty()) return true;
    for (std::size_t begin = 0; begin <= organizations.size();) {
        const std::size_t end = std::min(organizations.find('|', begin), organizations.size());
        const std::string_view listed = organizations.substr(begin, end - begin);
        if (std::ranges::any_of(user_, [&](const std::string& name) {
                return !name.empty() && modSharedStrings::equalNoCase(name, listed);
            })) {
            return true;
        }
        begin = end + 1;
    }
    return false;
}

/// A file that cannot be read names nobody whom it is for, so everybody may use it.
bool ProductFileEngine::useProductFile(const std::string& path) {
    if (user_.empty()) throw HostError(code::fail, "Engine", "The user has not been identified.");
    prepared_ = false;
    text_ = contentsOf(path);
    pugi::xml_document product;
    if (!product.load_buffer(text_.data(), text_.size(), pugi::parse_default, pugi::encoding_utf8)) {
        text_.clear();
        product.reset();  // of what stands before the damage
    }
    const bool allowed = mayUse(product.document_element().attribute("Organizations").value());
    if (!allowed) text_.clear();
    return allowed;
}

void ProductFileEngine::terminated() {
    user_.clear();
    text_.clear();
    prepared_ = false;
}

Variant ProductFileEngine::invokeOwn(std::string_view member, Access access, Arguments arguments) {
    using Self = ProductFileEngine;
    static constexpr Member<Self> members[] = {
        {"IdentifyUser",
         [](Self& self, Arguments a) {
             a.require(3, 3);
             self.sharedCode();  // raises when it is missing
             self.user_ = {textOf(a[1]), textOf(a[2])};
             return Variant();
         }},
        {"UseProductFile",
         [](Self& self, Arguments a) {
             a.require(2, 2);
             return Variant(self.useProductFile(textOf(a[0])));
         }},
        {"InitForAccess",
         [](Self& self, Arguments) {
             self.prepared_ = true;
             return Variant();
         }},
        {"XMLDocument",
         [](Self& self, Arguments) {
             return Variant(self.prepared_ && !self.text_.empty() ? makeQueryDocument(self.text_)
                                                                  : ObjectPtr());
         }},
    };
    return answer(*this, "Engine", members, member, access, arguments);
}

}  // namespace tsln::workbench
