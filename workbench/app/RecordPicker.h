#pragma once

#include <string>
#include <vector>

#include <wx/srchctrl.h>
#include <wx/wx.h>

#include "workbench/app/RecordTable.h"

namespace tsln::workbench {

/// A kind of record to choose from.
struct RecordsToPick {
    std::string caption;  ///< "Customers"
    std::vector<std::string> columns;
    std::vector<ListedRecord> records;
};

/// Lets the user search records and choose one or several. With more than one kind of record, the user chooses the kind,
/// too.
class RecordPicker : public wxDialog {
  public:
    RecordPicker(wxWindow* owner, const std::string& title, std::vector<RecordsToPick> kinds, bool several);

    /// The kind of the chosen records, by its place in `kinds`.
    std::size_t kind() const { return kind_; }
    /// The identifiers of the chosen records, in the order of the list.
    std::vector<std::int32_t> chosen() const { return list_->chosen(); }

  private:
    wxSizer* choices();
    void showKind(std::size_t kind);
    void find();
    void enableOk();
    void accept();
    void leadKey(wxKeyEvent& key);

    std::vector<RecordsToPick> kinds_;
    std::size_t kind_ = 0;
    wxSearchCtrl* search_;
    RecordTable* list_;
    wxButton* ok_ = nullptr;
};

}  // namespace tsln::workbench
