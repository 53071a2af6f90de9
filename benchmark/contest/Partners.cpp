#include "benchmark/contest/Partners.h"

#include <cstring>
#include <map>
#include <vector>

#include <pugixml.hpp>

#include "shared/modSharedXML.h"
#include "workbench/host/QueryDocument.h"

namespace tsln::bench {
std::size_t visitByPugixml(std::string& text) {
    pugi::xml_document document;
    document.load_buffer_inplace(text.data(), text.size(), pugi::parse_default, pugi::encoding_utf8);
    std::size_t bytes = 0;
    for (const pugi::xml_node row : document.child("Records")) {
        for (const pugi::xml_node field : row)
            bytes += std::strlen(field.child_value());
    }
    return bytes;
}

ObjectPtr parsedDocument(const std::string& text) {
    ObjectPtr document = workbench::makeQueryDocument(text);
    document->get("documentElement");
    return document;
}

ReportRecords fillLateBoundByName(Object& document, std::span<const ListColumn> columns) {
    const ObjectPtr rows = document.call("selectNodes", "//Records/Record").toObject();
    const std::int32_t count = rows->get("length").toLong();
    ReportRecords records(columns.size());
    std::vector<std::string> texts(columns.size());
    std::vector<std::string_view> cells(columns.size());
    const auto field = [](Object& row, std::string_view name) {
        const ObjectPtr node = row.call("selectSingleNode", name).toObject();
        return node ? node->get("text").toText() : std::string();
    };
    for (std::int32_t i = 0; i < count; ++i) {
        const ObjectPtr row = rows->get("item", i).toObject();
        for (std::size_t c = 0; c < columns.size(); ++c)
            cells[c] = texts[c] = field(*row, columns[c].field);
        records.add(modSharedXML::toLong(field(*row, "ID")), cells);
    }
    return records;
}

ReportRecords fillLateBoundByChild(Object& document, std::span<const ListColumn> columns) {
    const ObjectPtr rows = document.call("selectNodes", "//Records/Record").toObject();
    const std::int32_t count = rows->get("length").toLong();
    std::map<std::string, std::size_t> places;
    for (std::size_t c = 0; c < columns.size(); ++c)
        places.emplace(columns[c].field, c);
    ReportRecords records(columns.size());
    std::vector<std::string> texts(columns.size());
    std::vector<std::string_view> cells(columns.size());
    for (std::int32_t i = 0; i < count; ++i) {
        const ObjectPtr fields = rows->get("item", i).object().get("childNodes").toObject();
        const std::int32_t fieldCount = fields->get("length").toLong();
        std::int32_t id = 0;
        for (std::string& old : texts)
            old.clear();
        for (std::int32_t f = 0; f < fieldCount; ++f) {
            const ObjectPtr field = fields->get("item", f).toObject();
            const std::string name = field->get("nodeName").toText();
            if (name == "ID") id = modSharedXML::toLong(field->get("text").toText());
            if (const auto place = places.find(name); place != places.end()) {
                texts[place->second] = field->get("text").toText();
            }
        }
        for (std::size_t c = 0; c < columns.size(); ++c)
            cells[c] = texts[c];
        records.add(id, cells);
    }
    return records;
}

}  // namespace tsln::bench
