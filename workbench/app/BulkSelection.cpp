#include "workbench/app/BulkSelection.h"

#include "bridge/Operations.h"
#include "desktop/Text.h"
#include "workbench/app/RecordPicker.h"
#include "workbench/host/SearchLists.h"

namespace tsln::workbench {
namespace {

struct Kind {
    std::string_view table;
    std::int32_t number;  ///< as the operation takes it
};
constexpr Kind kinds[] = {{"Customers", 1}, {"Orders", 4}};

RecordsToPick recordsOf(Company& company, std::string_view table) {
    const SearchList& list = *searchListOf(table);
    RecordsToPick made;
    made.caption = table;
    for (const std::string_view column : list.columns)
        made.columns.emplace_back(column);
    made.records = listRecords(company, list);
    return made;
}

}  // namespace

void selectForBulkChange(wxWindow* owner, CompanySession& session, Object& library) {
    try {
        std::vector<RecordsToPick> all;
        for (const Kind& kind : kinds)
            all.push_back(recordsOf(session.company(), kind.table));
        RecordPicker picker(owner, "Select for Bulk Change", std::move(all), true);
        if (picker.ShowModal() != wxID_OK) return;
        std::string selection;
        for (const std::int32_t ID : picker.chosen()) {
            if (!selection.empty()) selection += ',';
            selection += std::to_string(ID);
        }
        library.call(info(Operation::ShowBulkChange).name, kinds[picker.kind()].number, selection);
    } catch (const std::exception& error) {
        wxMessageBox(desktop::toWx(error.what()), "Bulk Change", wxOK | wxICON_ERROR, owner);
    }
}

}  // namespace tsln::workbench
