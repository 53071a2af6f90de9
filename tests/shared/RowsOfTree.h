#pragma once

#include <string>
#include <vector>

#include <pugixml.hpp>

#include "automation/HostError.h"
#include "shared/RowReader.h"

/// The rows of a document, as RowReader gives them and as pugixml's own tree has them.
namespace tsln::modSharedXML {

using Way = RowReader::Way;
using Rows = std::vector<std::vector<std::string>>;
using namespace std::string_literals;

/// The columns to read. Some of these names occur in no document, and one is repeated.
inline const std::vector<std::string> askedNames{"ID",      "Name",  "Active", "Name",          "Due.Days",
                                                 "Nowhere", "n:Odd", "Größe",  "Name_Of-Other", "Record",
                                                 "",        "ID\0x"s};
inline const std::vector<std::string_view> asked(askedNames.begin(), askedNames.end());

inline const Rows refused{{"refused"}};

/// The rows that the reader gives, or `refused`.
inline Rows readRows(const std::string& text, Way way) {
    Rows rows;
    try {
        RowReader reader(text, asked, way);
        while (reader.next())
            rows.emplace_back(reader.texts().begin(), reader.texts().end());
    } catch (const HostError&) {
        return refused;
    }
    return rows;
}

/// All text below the element, in document order.
inline std::string textOf(pugi::xml_node element) {
    struct : pugi::xml_tree_walker {
        bool for_each(pugi::xml_node& node) override {
            text += node.value();
            return true;
        }
        std::string text;
    } below;
    below.text = element.value();
    element.traverse(below);
    return below.text;
}

/// The rows of the tree that pugixml parses, or `refused`.
inline Rows readTree(const std::string& text) {
    if (text.find_first_not_of(" \t\r\n") == text.npos) return {};
    pugi::xml_document document;
    if (!document.load_buffer(text.data(), text.size(), parseOptions, pugi::encoding_utf8)) return refused;
    Rows rows;
    for (const pugi::xml_node record : document.child("Records").children("Record")) {
        auto& row = rows.emplace_back();
        for (const std::string& name : askedNames) {
            const pugi::xml_node field = record.find_child([&](pugi::xml_node child) {
                return child.type() == pugi::node_element && name == child.name();
            });
            row.push_back(field ? decodeFieldText(textOf(field)) : std::string());
        }
    }
    return rows;
}

}  // namespace tsln::modSharedXML
