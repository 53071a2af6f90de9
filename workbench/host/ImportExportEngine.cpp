#include "workbench/host/ImportExportEngine.h"

#include <algorithm>

#include <pugixml.hpp>

#include "workbench/sql/SqlText.h"
#include "workbench/host/ListImporter.h"
#include "workbench/host/SectionsFile.h"
#include "workbench/host/TextOf.h"

namespace tsln::workbench {
namespace {

/// The key is never exported, even if the query selects it.
constexpr std::string_view keyColumn = "ID";
constexpr std::string_view ownToTheCompany[] = {"UniqueID", "AddedOn", "UpdatedOn", "Exported"};

bool leavesOut(std::string_view column, bool simple) {
    if (sameName(column, keyColumn)) return true;
    return simple &&
           std::ranges::any_of(ownToTheCompany, [&](std::string_view own) { return sameName(own, column); });
}

}  // namespace

void ImportExportEngine::record(std::int32_t type, const std::string& text) {
    sharedCode().call("RecordEvent", type, text);
}

Variant ImportExportEngine::succeeded(std::string_view what, const std::function<void()>& work) {
    sharedCode();  // raises when it is missing
    try {
        work();
        return true;
    } catch (const std::exception& error) {
        record(EventLog::Error, std::string(what) + " " + error.what());
        return false;
    }
}

void ImportExportEngine::addToExport(std::string list, std::string query) {
    if (!isPlainName(list)) throw HostError(code::badIndex, "Engine", "'" + list + "' is no name of a list.");
    exports_.push_back({std::move(list), std::move(query)});
}

void ImportExportEngine::writeFile(const std::string& path) {
    if (exports_.empty()) throw SectionsFileError("No list was added to the export.");
    pugi::xml_document file;
    pugi::xml_node sections = file.append_child(sectionsRoot);
    for (const auto& [list, query] : exports_) {
        pugi::xml_document result;
        const std::string rows = context().company.read(query);
        result.load_buffer(rows.data(), rows.size(), pugi::parse_default | pugi::parse_ws_pcdata_single,
                           pugi::encoding_utf8);
        pugi::xml_node section = sections.append_child(list.c_str());
        for (pugi::xml_node record : result.child("Records").children("Record")) {
            for (pugi::xml_node field = record.first_child(); field;) {
                const pugi::xml_node next = field.next_sibling();
                if (leavesOut(field.name(), simpleExport_)) record.remove_child(field);
                field = next;
            }
            section.append_copy(record);
        }
    }
    writeSectionsFile(path, file);
}

void ImportExportEngine::readFile(const std::string& path, const std::string& list) {
    pugi::xml_document file;
    readSectionsFile(path, file);
    std::size_t records = 0;
    bool found = false;
    context().company.transaction([&] {
        for (const pugi::xml_node section : file.child(sectionsRoot).children()) {
            if (section.type() != pugi::node_element || (!list.empty() && !sameName(section.name(), list)))
                continue;
            found = true;
            records += importSection(context().company, section).count();
        }
        if (!found) {
            throw ImportError("The file '" + path + "' holds no list" +
                              (list.empty() ? "." : " '" + list + "'."));
        }
    });
    if (verbose_)
        record(EventLog::Notice, std::to_string(records) + " records were imported from '" + path + "'.");
}

void ImportExportEngine::upgradeFile(const std::string& path) {
    pugi::xml_document file;
    readSectionsFile(path, file);
    for (const pugi::xml_node section : file.child(sectionsRoot).children()) {
        if (section.type() == pugi::node_element) upgradeSection(section);
    }
}

void ImportExportEngine::upgradeSection(pugi::xml_node section) {
    const auto children = section.children("Record");
    const std::string name = section.name();
    progress_.begin(name, static_cast<std::size_t>(std::distance(children.begin(), children.end())));
    const auto goOn = [&](std::size_t done) {
        progress_.advance(done);
        return !cancelRequested_;
    };
    if (!goOn(0)) throw ImportError("It was cancelled before " + name + ".");

    Company& company = context().company;
    ImportedRecords imported;
    company.begin();
    try {
        imported = importSection(company, section, {.upgrade = &upgraded_, .goOn = goOn});
    } catch (const std::exception& error) {
        if (company.inTransaction()) company.commit();
        throw ImportError(std::string(error.what()) + " What was imported before stays.");
    }
    company.commit();
    const std::string told = name + ": " + std::to_string(imported.count()) + " records were imported, " +
                             std::to_string(imported.added) + " of them are new.";
    if (imported.cancelled) throw ImportError("It was cancelled. " + told);
    if (verbose_) record(EventLog::Notice, told);
}

void ImportExportEngine::terminated() {
    exports_.clear();
    upgraded_ = {};
    progress_ = {};
    cancelRequested_ = false;
}

Variant ImportExportEngine::invokeOwn(std::string_view member, Access access, Arguments arguments) {
    using Self = ImportExportEngine;
    static constexpr Member<Self> members[] = {
        {"SimpleExport", [](Self& self, Arguments) { return Variant(self.simpleExport_); },
         [](Self& self, Arguments a) { self.simpleExport_ = a[0].toBoolean(); }},
        {"Verbose", [](Self& self, Arguments) { return Variant(self.verbose_); },
         [](Self& self, Arguments a) { self.verbose_ = a[0].toBoolean(); }},
        {"Is42Upgrade", [](Self& self, Arguments) { return Variant(self.is42Upgrade_); },
         [](Self& self, Arguments a) { self.is42Upgrade_ = a[0].toBoolean(); }},
        {"AddToExport",
         [](Self& self, Arguments a) {
             a.require(2, 2);
             self.addToExport(a[0].toText(), a[1].toText());
             return Variant();
         }},
        {"DoExport",
         [](Self& self, Arguments a) {
             a.require(1, 1);
             return self.succeeded("The export failed.", [&] { self.writeFile(textOf(a[0])); });
         }},
        {"ImportFile",
         [](Self& self, Arguments a) {
             a.require(1, 2);
             return self.succeeded("The import failed.", [&] {
                 self.is42Upgrade_ ? self.upgradeFile(textOf(a[0]))
                                   : self.readFile(textOf(a[0]), textOf(a.valueOr(1, "")));
             });
         }},
        {"RequestCancel",
         [](Self& self, Arguments) {
             self.cancelRequested_ = true;
             return Variant();
         }},
        {"ProgressLabel", [](Self& self, Arguments) { return Variant(self.progress_.label()); },
         [](Self& self, Arguments a) { self.progress_.setLabel(a[0].toObject()); }},
        {"ProgressBar", [](Self& self, Arguments) { return Variant(self.progress_.bar()); },
         [](Self& self, Arguments a) { self.progress_.setBar(a[0].toObject()); }},
    };
    return answer(*this, "Engine", members, member, access, arguments);
}

}  // namespace tsln::workbench
