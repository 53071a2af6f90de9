#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include <wx/dataview.h>

#include "workbench/host/RecordLists.h"

namespace tsln::workbench {

/// A list of records: their identifiers and some columns, of which those with a text are shown.
class RecordTable : public wxDataViewCtrl {
  public:
    /// `several` lets more than one record be selected; Ctrl+A selects all.
    RecordTable(wxWindow* parent, const wxSize& size, bool several);
    ~RecordTable() override;

    /// Replaces the records and their columns. `caption` names the list to a screen reader.
    void show(const std::string& caption, const std::vector<std::string>& columns,
              std::vector<ListedRecord> records);
    /// Replaces the records.
    void setRecords(std::vector<ListedRecord> records);
    /// Shows the records that have the text in a cell, in any letter case. Selects the one with the identifier, else
    /// the first.
    void find(const wxString& text, std::int32_t ID = 0);

    /// The identifiers of the selected records, in the order of the list.
    std::vector<std::int32_t> chosen() const;

  private:
    class Model;

    std::vector<ListedRecord> records_;
    std::vector<const ListedRecord*> shown_;
    wxObjectDataPtr<Model> model_;
};

}  // namespace tsln::workbench
