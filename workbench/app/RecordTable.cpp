#include "workbench/app/RecordTable.h"

#include <algorithm>

#include "desktop/NativeWindow.h"
#include "desktop/Text.h"

namespace tsln::workbench {
namespace {

using desktop::toWx;

bool matches(const ListedRecord& record, const wxString& wanted) {
    return wanted.empty() || std::ranges::any_of(record.cells, [&](const std::string& cell) {
               return toWx(cell).Lower().Contains(wanted);
           });
}

}  // namespace

/// Hands the records to the toolkit's list, which asks only for the visible rows.
class RecordTable::Model : public wxDataViewVirtualListModel {
  public:
    explicit Model(const RecordTable& table) : table_(&table) {}
    /// The table is being destroyed.
    void detach() { table_ = nullptr; }

  private:
    void GetValueByRow(wxVariant& value, unsigned row, unsigned column) const override {
        value = wxString();
        if (!table_ || row >= table_->shown_.size()) return;
        const ListedRecord& record = *table_->shown_[row];
        value = column == 0 ? wxString::Format("%d", record.ID) : toWx(record.cells.at(column - 1));
    }
    bool SetValueByRow(const wxVariant&, unsigned, unsigned) override { return false; }

    const RecordTable* table_;
};

RecordTable::RecordTable(wxWindow* parent, const wxSize& size, bool several)
    : wxDataViewCtrl(parent, wxID_ANY, wxDefaultPosition, size, several ? wxDV_MULTIPLE : wxDV_SINGLE),
      model_(new Model(*this)) {
    AssociateModel(model_.get());
}

RecordTable::~RecordTable() {
    model_->detach();
}

void RecordTable::show(const std::string& caption, const std::vector<std::string>& columns,
                       std::vector<ListedRecord> records) {
    setRecords(std::move(records));
    ClearColumns();
    desktop::setAccessibleName(*this, toWx(caption));
    const auto append = [this](const wxString& heading, int width, wxAlignment align) {
        AppendTextColumn(heading, GetColumnCount(), wxDATAVIEW_CELL_INERT, FromDIP(width), align,
                         wxDATAVIEW_COL_RESIZABLE);
    };
    append("ID", 60, wxALIGN_RIGHT);
    for (const std::string& column : columns)
        append(toWx(column), 180, wxALIGN_LEFT);
}

void RecordTable::setRecords(std::vector<ListedRecord> records) {
    shown_.clear();
    model_->Reset(0);
    records_ = std::move(records);
}

void RecordTable::find(const wxString& text, std::int32_t ID) {
    const wxString wanted = text.Lower();
    shown_.clear();
    for (const ListedRecord& record : records_) {
        if (matches(record, wanted)) shown_.push_back(&record);
    }
    UnselectAll();
    model_->Reset(static_cast<unsigned>(shown_.size()));
    if (shown_.empty()) return;
    const auto meant = std::ranges::find(shown_, ID, &ListedRecord::ID);
    const wxDataViewItem item =
        model_->GetItem(meant == shown_.end() ? 0 : static_cast<unsigned>(meant - shown_.begin()));
    SetCurrentItem(item);
    Select(item);
    EnsureVisible(item);
}

std::vector<std::int32_t> RecordTable::chosen() const {
    wxDataViewItemArray items;
    GetSelections(items);
    std::vector<unsigned> rows;
    rows.reserve(items.size());
    for (const wxDataViewItem& item : items)
        rows.push_back(model_->GetRow(item));
    std::ranges::sort(rows);
    std::vector<std::int32_t> identifiers;
    for (const unsigned row : rows)
        identifiers.push_back(shown_.at(row)->ID);
    return identifiers;
}

}  // namespace tsln::workbench
