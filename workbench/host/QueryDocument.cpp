#include "workbench/host/QueryDocument.h"

#include <sstream>
#include <vector>

#include <pugixml.hpp>

namespace tsln::workbench {
namespace {

/// The document's text and, once needed, its nodes.
class Tree {
  public:
    explicit Tree(std::string text) : text_(std::move(text)) {}
    const std::string& text() const noexcept { return text_; }
    pugi::xml_node root() {
        if (parsed_) return nodes_;
        // Values that consist of blanks are kept.
        constexpr unsigned options = pugi::parse_default | pugi::parse_ws_pcdata_single;
        const auto result = nodes_.load_buffer(text_.data(), text_.size(), options, pugi::encoding_utf8);
        if (!result && result.status != pugi::status_no_document_element) {
            throw HostError(code::fail, "Document",
                            std::string("The document cannot be read: ") + result.description() + ".");
        }
        parsed_ = true;
        return nodes_;
    }

  private:
    std::string text_;
    pugi::xml_document nodes_;
    bool parsed_ = false;
};
using TreePtr = std::shared_ptr<Tree>;

ObjectPtr makeNode(const TreePtr& tree, pugi::xml_node node);
ObjectPtr makeList(const TreePtr& tree, std::vector<pugi::xml_node> nodes);

pugi::xpath_query path(Arguments a) {
    a.require(1, 1);
    return pugi::xpath_query(a[0].toText().c_str());
}

std::string textBelow(pugi::xml_node node) {
    struct Collector : pugi::xml_tree_walker {
        std::string text;
        bool for_each(pugi::xml_node& n) override {
            if (n.type() == pugi::node_pcdata || n.type() == pugi::node_cdata) text += n.value();
            return true;
        }
    } collector;
    if (node.type() == pugi::node_pcdata || node.type() == pugi::node_cdata) return node.value();
    node.traverse(collector);
    return collector.text;
}

std::string outerXml(pugi::xml_node node) {
    std::ostringstream text;
    node.print(text, "", pugi::format_raw | pugi::format_no_declaration);
    return std::move(text).str();
}

std::string nameOf(pugi::xml_node node) {
    switch (node.type()) {
        case pugi::node_document:
            return "#document";
        case pugi::node_pcdata:
            return "#text";
        case pugi::node_cdata:
            return "#cdata-section";
        case pugi::node_comment:
            return "#comment";
        default:
            return node.name();
    }
}

/// The platform's codes of node types.
std::int32_t kindOf(pugi::xml_node node) {
    switch (node.type()) {
        case pugi::node_element:
            return 1;
        case pugi::node_pcdata:
            return 3;
        case pugi::node_cdata:
            return 4;
        case pugi::node_pi:
            return 7;
        case pugi::node_comment:
            return 8;
        default:
            return 9;
    }
}

/// A document or one of its nodes.
class Node : public Object {
  public:
    Node(TreePtr tree, pugi::xml_node node, bool whole)
        : tree_(std::move(tree)), node_(node), whole_(whole) {}

    Variant invoke(std::string_view member, Access access, Arguments arguments) override {
        static constexpr Member<Node> members[] = {
            {"xml",
             [](Node& self, Arguments) {
                 return Variant(self.whole_ ? self.tree_->text() : outerXml(self.node_));
             }},
            {"selectNodes",
             [](Node& self, Arguments a) {
                 std::vector<pugi::xml_node> found;
                 for (const pugi::xpath_node& hit : self.node().select_nodes(path(a))) {
                     if (hit.node()) found.push_back(hit.node());
                 }
                 return Variant(makeList(self.tree_, std::move(found)));
             }},
            {"selectSingleNode",
             [](Node& self, Arguments a) {
                 return Variant(makeNode(self.tree_, self.node().select_node(path(a)).node()));
             }},
            {"documentElement",
             [](Node& self, Arguments) {
                 return Variant(makeNode(self.tree_, self.node().root().first_child()));
             }},
            {"text", [](Node& self, Arguments) { return Variant(textBelow(self.node())); }},
            {"nodeName", [](Node& self, Arguments) { return Variant(nameOf(self.node())); }},
            {"nodeType", [](Node& self, Arguments) { return Variant(kindOf(self.node())); }},
            {"childNodes",
             [](Node& self, Arguments) {
                 const auto children = self.node().children();
                 return Variant(makeList(self.tree_, {children.begin(), children.end()}));
             }},
            {"hasChildNodes",
             [](Node& self, Arguments) { return Variant(!self.node().first_child().empty()); }},
            {"firstChild", [](Node& self, Arguments) { return self.near(self.node().first_child()); }},
            {"lastChild", [](Node& self, Arguments) { return self.near(self.node().last_child()); }},
            {"nextSibling", [](Node& self, Arguments) { return self.near(self.node().next_sibling()); }},
            {"previousSibling",
             [](Node& self, Arguments) { return self.near(self.node().previous_sibling()); }},
            {"parentNode", [](Node& self, Arguments) { return self.near(self.node().parent()); }},
            {"getAttribute",
             [](Node& self, Arguments a) {
                 a.require(1, 1);
                 const auto attribute = self.node().attribute(a[0].toText().c_str());
                 return attribute ? Variant(attribute.value()) : Variant(Null());
             }},
        };
        try {
            return invokeMember<Node>(*this, whole_ ? "Document" : "Node", members, member, access,
                                      arguments);
        } catch (const pugi::xpath_exception& error) {
            throw HostError(code::fail, "Document",
                            "'" + arguments[0].toText() + "' selects no nodes: " + error.what() + ".");
        }
    }

  private:
    pugi::xml_node node() { return whole_ ? tree_->root() : node_; }
    Variant near(pugi::xml_node node) const { return makeNode(tree_, node); }

    TreePtr tree_;
    pugi::xml_node node_;
    bool whole_;
};

class NodeList : public Object {
  public:
    NodeList(TreePtr tree, std::vector<pugi::xml_node> nodes)
        : tree_(std::move(tree)), nodes_(std::move(nodes)) {}

    Variant invoke(std::string_view member, Access access, Arguments arguments) override {
        static constexpr Member<NodeList> members[] = {
            {"length", [](NodeList& self,
                          Arguments) { return Variant(static_cast<std::int32_t>(self.nodes_.size())); }},
            {"item",
             [](NodeList& self, Arguments a) {
                 a.require(1, 1);
                 return self.at(a[0].toLong());
             }},
            {"nextNode", [](NodeList& self, Arguments) { return self.at(self.next_++); }},
            {"reset",
             [](NodeList& self, Arguments) {
                 self.next_ = 0;
                 return Variant();
             }},
        };
        return invokeMember<NodeList>(*this, "NodeList", members, member, access, arguments);
    }

  private:
    Variant at(std::int64_t index) const {
        const bool exists = index >= 0 && index < static_cast<std::int64_t>(nodes_.size());
        return exists ? makeNode(tree_, nodes_[static_cast<std::size_t>(index)]) : ObjectPtr();
    }

    TreePtr tree_;
    std::vector<pugi::xml_node> nodes_;
    std::int64_t next_ = 0;
};

ObjectPtr makeNode(const TreePtr& tree, pugi::xml_node node) {
    if (!node) return nullptr;
    return std::make_shared<Node>(tree, node, node == tree->root());
}

ObjectPtr makeList(const TreePtr& tree, std::vector<pugi::xml_node> nodes) {
    return std::make_shared<NodeList>(tree, std::move(nodes));
}

}  // namespace

ObjectPtr makeQueryDocument(std::string xml) {
    return std::make_shared<Node>(std::make_shared<Tree>(std::move(xml)), pugi::xml_node(), true);
}

}  // namespace tsln::workbench
