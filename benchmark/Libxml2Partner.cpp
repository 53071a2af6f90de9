#include "benchmark/Libxml2Partner.h"

#include <libxml/parser.h>
#include <libxml/xpath.h>
#include <memory>
#include <stdexcept>
#include <vector>

#include "shared/modSharedXML.h"

namespace tsln::bench {
namespace {

template <class T, void (*release)(T*)>
struct Release {
    void operator()(T* what) const { release(what); }
};
using Document = std::unique_ptr<xmlDoc, Release<xmlDoc, xmlFreeDoc>>;
using Context = std::unique_ptr<xmlXPathContext, Release<xmlXPathContext, xmlXPathFreeContext>>;
using Path = std::unique_ptr<xmlXPathCompExpr, Release<xmlXPathCompExpr, xmlXPathFreeCompExpr>>;
using Result = std::unique_ptr<xmlXPathObject, Release<xmlXPathObject, xmlXPathFreeObject>>;

Path compile(const std::string& path) {
    return Path(xmlXPathCompile(reinterpret_cast<const xmlChar*>(path.c_str())));
}

std::string textOf(xmlXPathContext* context, xmlNode* row, xmlXPathCompExpr* path) {
    context->node = row;
    const Result found(xmlXPathCompiledEval(path, context));
    if (!found || !found->nodesetval || found->nodesetval->nodeNr == 0) return {};
    xmlChar* const content = xmlNodeGetContent(found->nodesetval->nodeTab[0]);
    std::string text(reinterpret_cast<const char*>(content));
    xmlFree(content);
    return text;
}

}  // namespace

ReportRecords fillByLibxml2(const std::string& text, std::span<const ListColumn> columns) {
    const Document document(xmlReadMemory(text.data(), static_cast<int>(text.size()), nullptr, "UTF-8",
                                          XML_PARSE_HUGE | XML_PARSE_NONET));
    if (!document) throw std::runtime_error("libxml2 does not read the sample.");
    const Context context(xmlXPathNewContext(document.get()));
    std::vector<Path> paths;
    for (const ListColumn& column : columns)
        paths.push_back(compile(std::string(column.field)));
    const Path idPath = compile("ID");
    const Path rowPath = compile("/Records/Record");

    ReportRecords records(columns.size());
    std::vector<std::string> texts(columns.size());
    std::vector<std::string_view> cells(columns.size());
    const Result rows(xmlXPathCompiledEval(rowPath.get(), context.get()));
    for (int i = 0; i < rows->nodesetval->nodeNr; ++i) {
        xmlNode* const row = rows->nodesetval->nodeTab[i];
        for (std::size_t c = 0; c < columns.size(); ++c)
            cells[c] = texts[c] = textOf(context.get(), row, paths[c].get());
        records.add(modSharedXML::toLong(textOf(context.get(), row, idPath.get())), cells);
    }
    return records;
}

}  // namespace tsln::bench
