#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "maintenance/ListScreen.h"
#include "screens/DateBox.h"
#include "screens/MarkupLabel.h"
#include "screens/ReportRecords.h"
#include "screens/Splitter.h"

namespace tsln::messages {

extern const ListDescription sentMessagesList;

/// The commands of the message menu.
enum MessageCommand {
    mnuMessages = 1,
    mnuMessagesSaveAll,
    mnuMessagesSaveCurrent,
    mnuMessagesDelete,
    mnuMessagesPurge,
    mnuMessagesRefresh,
};

/// The messages that were sent in a range of days, with a preview. They can be saved, not changed.
///
/// The range begins with the last 30 days. "None" leaves one of its ends open. The messages are read when the user
/// leaves a date, or by "Refresh".
class SentMessages : public ListScreen {
  public:
    SentMessages(Library& library, const ListDescription& description);

    Frame dtFilter{*this, "dtFilter", "Sent"};
    DateBox dtFilterStart{*this, "dtFilterStart"};
    DateBox dtFilterEnd{*this, "dtFilterEnd"};
    Label lblRange{*this, "lblRange", ""};  ///< what is wrong with the range
    Button cmdMessages{*this, "cmdMessages", "&Messages"};
    Button cmdRefresh{*this, "cmdRefresh", "&Refresh", Button::Role::Default};
    Splitter Splitter1{*this, "Splitter1", Splitter::Panes::OneBelowTheOther};
    MarkupLabel lblPreview{*this, "lblPreview", ""};
    TextBox txtBody{*this, "txtBody"};

    Layout layout() override;

    // For the commands --------------------------------------------------------------------------------
    /// Reads the messages of the range again, or tells what is wrong with it.
    void refresh();
    void saveCurrent();
    void saveAll();

  protected:
    void Form_Load() override;
    std::string loadStatement() const override;
    void rowsRead(ListRows& rows) override { addresses_ = std::move(rows.kept); }
    void listLoaded() override;
    void updateButtons() override;

  private:
    /// Empty when the range can be used.
    std::string_view rangeFault() const;
    std::string rangeText() const { return dtFilterStart.text() + " " + dtFilterEnd.text(); }
    void rangeLeft();
    void showPreview();
    void add(std::string& text, std::size_t record) const;
    /// Asks for a file and writes the messages of these records to it.
    void save(std::span<const std::size_t> records);

    ReportRecords addresses_;  // by record: whom it was sent to
    std::string loadedRange_;
    std::string file_ = "Sent Messages.txt";  // proposed for saving
};

}  // namespace tsln::messages
