// Export documents: the input's lines become the texts of a row; its export, read by pugixml and imported again, has them.

#include <array>

#include <pugixml.hpp>

#include "tests/fuzz/Fuzz.h"
#include "tests/workbench/host/HostStage.h"
#include "workbench/host/SectionsFile.h"
#include "workbench/sql/SqlText.h"

namespace {

using namespace tsln;
using namespace tsln::workbench;

constexpr std::array columns = {"GroupName", "TemplateName", "Description",
                                "CcAddress", "Subject",      "BodyText"};
const std::string everything =
    "SELECT TemplateType, GroupName, TemplateName, Favorite, Description, CcAddress, Subject, BodyText, UniqueID "
    "FROM EmailTemplates ORDER BY ID";

/// The lines of the input: what follows the last column's line belongs to its text. A null character ends all.
std::vector<std::string> valuesOf(std::string_view text) {
    text = text.substr(0, text.find('\0'));
    std::vector<std::string> values;
    while (values.size() + 1 < columns.size()) {
        const std::size_t end = text.find('\n');
        values.emplace_back(text.substr(0, end));
        text.remove_prefix(std::min(end == text.npos ? end : end + 1, text.size()));
    }
    values.emplace_back(text);
    return values;
}

void checkDocument(const std::string& path, const std::string& rows) {
    pugi::xml_document file, result;
    constexpr unsigned options = pugi::parse_default | pugi::parse_ws_pcdata_single;
    fuzz::require(static_cast<bool>(file.load_file(path.c_str(), options)), "the export is no XML");
    result.load_buffer(rows.data(), rows.size(), options, pugi::encoding_utf8);
    const pugi::xml_node exported = file.child(sectionsRoot).child("EmailTemplates").child("Record");
    for (const pugi::xml_node column : result.child("Records").child("Record").children()) {
        fuzz::same(std::string(exported.child(column.name()).child_value()),
                   std::string(column.child_value()), column.name());
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const HostStage stage;
    Company& company = stage.session->company();
    std::string names, texts;
    const std::vector<std::string> values = valuesOf(fuzz::textOf(data, size));
    for (std::size_t i = 0; i < columns.size(); ++i) {
        names += std::string(", ") + columns[i];
        texts += ", " + literal(values[i]);
    }
    company.execute("DELETE FROM EmailTemplates");
    company.execute("INSERT INTO EmailTemplates (TemplateType" + names + ") VALUES (2" + texts + ")");
    const std::string before = company.read(everything), path = stage.folder.file("export.xml");
    const auto engine = [&] {
        const ObjectPtr made = stage.session->createObject("tslniee5.Engine");
        made->call("Initialize", stage.session->sharedCode());
        return made;
    };
    const ObjectPtr out = engine();
    out->call("AddToExport", "EmailTemplates", "SELECT * FROM vwExporting_EmailTemplates");
    fuzz::require(out->call("DoExport", path).toBoolean(), "not exported: " + stage.lastEvent());
    checkDocument(path, before);
    const auto import = [&](std::string_view what) {
        fuzz::require(engine()->call("ImportFile", path, "").toBoolean(),
                      "not imported: " + stage.lastEvent());
        fuzz::same(company.read(everything), before, what);
    };
    import("imported into the same row");
    company.execute("DELETE FROM EmailTemplates");
    import("imported into the empty list");
    return 0;
}
