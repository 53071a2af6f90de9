// Files to import: a file that is refused changes nothing; one that is taken is XML, stands in the tables as pugixml reads
// it, and changes nothing when it is imported again.

#include <set>

#include <SQLiteCpp/SQLiteCpp.h>
#include <sqlite3.h>

#include "shared/modSharedXML.h"
#include "tests/fuzz/Fuzz.h"
#include "tests/workbench/host/HostStage.h"
#include "workbench/host/ImportLists.h"
#include "workbench/host/SectionsFile.h"
#include "workbench/sql/SqlText.h"

namespace {

using namespace tsln;
using namespace tsln::workbench;

/// A company that is put back after each input.
class ImportStage {
  public:
    ImportStage() : file_(host_.session->company().path(), SQLite::OPEN_READWRITE) { copy(file_, pristine_); }

    Company& company() const { return host_.session->company(); }
    void putBack() { copy(pristine_, file_); }
    bool import(const std::string& text) const {
        const ObjectPtr engine = host_.session->createObject("tslniee5.Engine");
        engine->call("Initialize", host_.session->sharedCode());
        const bool taken = engine->call("ImportFile", host_.folder.write("import.xml", text), "").toBoolean();
        fuzz::require(!company().inTransaction(), "a transaction is left open");
        return taken;
    }

  private:
    static void copy(const SQLite::Database& from, const SQLite::Database& to) {
        sqlite3_backup* backup = sqlite3_backup_init(to.getHandle(), "main", from.getHandle(), "main");
        sqlite3_backup_step(backup, -1);
        fuzz::same(sqlite3_backup_finish(backup), SQLITE_OK, "putting the company back");
    }

    HostStage host_;
    SQLite::Database file_;
    SQLite::Database pristine_{":memory:", SQLite::OPEN_READWRITE | SQLite::OPEN_CREATE};
};

/// The tables of the file's sections, without the time of the last change, which an unchanged row may also get.
std::string tables(Company& company, const pugi::xml_document& file) {
    std::string text;
    for (const pugi::xml_node section : file.child(sectionsRoot).children()) {
        const ImportList* list = findImportList(section.name(), false);
        if (!list) continue;
        std::string rows = company.read("SELECT * FROM " + bracketed(list->name) + " ORDER BY ID");
        for (std::size_t at = 0; (at = rows.find("<UpdatedOn>", at)) != rows.npos;)
            rows.erase(at, rows.find("</UpdatedOn>", at) - at);
        text += rows;
    }
    return text;
}

/// The columns of the section's last record are in one row.
void checkLastRecord(Company& company, const pugi::xml_node section) {
    const ImportList* list = findImportList(section.name(), false);
    fuzz::require(list != nullptr, "an unknown list was imported: " + std::string(section.name()));
    pugi::xml_node last;
    for (const pugi::xml_node record : section.children("Record"))
        last = record;
    std::string where;
    for (const pugi::xml_node field : last.children()) {
        if (field.type() != pugi::node_element) continue;
        const std::string_view name = field.name();
        const auto isName = [&](std::string_view other) { return sameName(name, other); };
        if (isName("ID") || isName("UniqueID") || isName("AddedOn") || isName("UpdatedOn")) continue;
        bool refers = false;
        for (const ImportReference& reference : list->references) {
            for (const ImportReference::Name& column : reference.nameColumns())
                refers |= isName(column.column) || isName(std::string(column.column) + "UniqueID");
        }
        if (refers) continue;
        std::string text;
        for (const pugi::xml_node part : field.children())
            text += part.value();
        where += (where.empty() ? "" : " AND ") + bracketed(name) + " = " +
                 literal(modSharedXML::decodeFieldText(text));
    }
    if (where.empty()) return;
    const std::string query = "SELECT COUNT(*) FROM " + bracketed(list->name) + " WHERE " + where;
    fuzz::require(company.scalar(query).toLong() > 0, "no row for the last record: " + query);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static ImportStage stage;
    const std::string text(fuzz::textOf(data, size));
    pugi::xml_document file;
    const bool isXml = static_cast<bool>(
        file.load_buffer(text.data(), text.size(), pugi::parse_default | pugi::parse_ws_pcdata_single));
    const std::string before = tables(stage.company(), file);
    if (!stage.import(text)) {
        fuzz::same(tables(stage.company(), file), before, "the tables after a refused import");
        return 0;
    }
    fuzz::require(isXml, "a file that is no XML was imported");
    const std::string after = tables(stage.company(), file);
    std::set<std::string_view> seen;
    for (const pugi::xml_node section : file.child(sectionsRoot).children()) {
        if (section.type() == pugi::node_element && !seen.insert(section.name()).second) seen.insert("");
    }
    if (!seen.contains("")) {  // a list that comes twice has its last record only in the second
        for (const pugi::xml_node section : file.child(sectionsRoot).children()) {
            if (section.type() == pugi::node_element) checkLastRecord(stage.company(), section);
        }
        fuzz::require(stage.import(text), "the file cannot be imported again");
        fuzz::same(tables(stage.company(), file), after, "the tables after the second import");
    }
    stage.putBack();
    return 0;
}
