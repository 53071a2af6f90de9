#include "messages/SentMessages.h"

#include <algorithm>
#include <cmath>
#include <ostream>
#include <vector>

#include "automation/DateText.h"
#include "maintenance/TextFile.h"
#include "maintenance/modSharedReportControl.h"
#include "messages/Preview.h"
#include "shared/ValueText.h"
#include "shared/modSharedSQL.h"

namespace tsln::messages {
namespace {

using modSharedReportControl::focusedRecord;

constexpr int daysAtFirst = 30;
constexpr int firstWidth = 940,
              firstHeight = 660;  // pixels at 96 per inch, until the user chooses another size
/// The ends of a range that is open. The database takes no earlier dates.
constexpr std::string_view firstDay = "1/1/1753";
constexpr std::string_view lastDay = "12/31/9999";
constexpr std::string_view endOfDay = " 11:59:59 PM";

enum Column : std::size_t { SentDate, SentBy, Subject, From, Body };
enum Address : std::size_t { To, Cc, Bcc };

SentMessages& messagesOf(ListScreen& list) {
    return dynamic_cast<SentMessages&>(list);
}

/// Messages are never removed: the commands that say so load the list again, and nothing else (deliberate).
void removeNothing(ListScreen& list) {
    messagesOf(list).refresh();
}

constexpr std::size_t chunk = 65'536;  // bytes that are written to a file at once; more would leave the cache

void addLine(std::string& text, std::string_view caption, std::string_view value) {
    text += caption;
    const std::size_t begin = text.size();
    text += value;
    std::ranges::replace_if(
        text.begin() + static_cast<std::ptrdiff_t>(begin), text.end(),
        [](char c) { return c == '\r' || c == '\n'; }, ' ');
    text += "\r\n";
}

const ListDescription plainList{
    .open = Operation::ShowSentMessages,
    .edit = Operation::ShowSentMessages,  // never called: the rows cannot be edited
    .screenName = "frmSentMessages",
    .caption = "Sent Messages",
    .table = "SentMessages",
    .orderBy = "SentOn DESC",
    .columns = {{"Sent Date", 175, "SentOn", ListColumn::Show::DateTime},
                {"Sent by", 110, "SentBy"},
                {"Subject", 200, "Subject"},
                {"From", 190, "FromAddress"},
                {"Body", 220, "BodyText"}},
    .busyState = true,
    .addsRows = false,
    .editsRows = false,
    .deletesRows = false,
    .filter = true,
    .countLine = "{0} messages",
};

/// Further vectors in the initializer above make GCC 12 warn of members that it wrongly takes for uninitialized.
ListDescription describeList() {
    ListDescription list = plainList;
    list.keptFields = {"ToAddress", "CcAddress", "BCcAddress"};
    list.commands = {{.id = mnuMessagesSaveAll,
                      .caption = "Save All Messages...",
                      .run = [](ListScreen& screen) { messagesOf(screen).saveAll(); }},
                     {.id = mnuMessagesSaveCurrent,
                      .caption = "Save Current Message...",
                      .needs = Needs::FocusedRow,
                      .run = [](ListScreen& screen) { messagesOf(screen).saveCurrent(); }},
                     {.id = mnuMessagesDelete,
                      .caption = "Delete",
                      .needs = Needs::SelectedRows,
                      .run = removeNothing,
                      .beginsGroup = true},
                     {.id = mnuMessagesPurge, .caption = "Purge", .run = removeNothing},
                     {.id = mnuMessagesRefresh,
                      .caption = "Refresh",
                      .run = [](ListScreen& screen) { messagesOf(screen).refresh(); },
                      .beginsGroup = true}};
    return list;
}

}  // namespace

const ListDescription sentMessagesList = describeList();

SentMessages::SentMessages(Library& library, const ListDescription& description)
    : ListScreen(library, description) {
    const Date today{std::floor(now().days)};
    dtFilterStart.setDate(Date{today.days - daysAtFirst});
    dtFilterEnd.setDate(today);
    for (DateBox* day : {&dtFilterStart, &dtFilterEnd})
        day->onLeave = [this] { rangeLeft(); };
    cmdRefresh.onClick = [this] { refresh(); };
    cmdMessages.onClick = [this] { cbContext.showPopup(mnuMessages, cmdMessages); };
    rptItems.onContextMenu = [this](std::size_t) { cbContext.showPopup(mnuMessages, rptItems); };
    lblRange.setVisible(false);
    txtBody.multiLine = true;
    txtBody.setLocked(true);
    txtBody.accessibleName = "Body";
    Splitter1.setPosition(0.6);
    placement.width = firstWidth;
    placement.height = firstHeight;
}

Layout SentMessages::layout() {
    using namespace tsln::layout;
    return column(
        {row({framed(dtFilter,
                     row({field("Fr&om:", dtFilterStart), field("&To:", dtFilterEnd), item(cmdRefresh)})),
              item(lblRange), spring(), item(txtFilter)}),
         stretch(split(Splitter1, column({fill(rptItems)}), column({item(lblPreview), fill(txtBody)}))),
         framed(grpOK, row({item(cmdMessages), item(lblRecords), spring(), item(cmdHelp), item(cmdClose)}))});
}

void SentMessages::Form_Load() {
    ListScreen::Form_Load();
    Command menu{.id = mnuMessages, .caption = "Messages"};
    for (const ListCommand& command : description().commands) {
        menu.commands.push_back(
            {.id = command.id, .caption = std::string(command.caption), .beginsGroup = command.beginsGroup});
    }
    cbContext.popups.push_back(std::move(menu));
    showPreview();
}

// The range -------------------------------------------------------------------------------------------

std::string_view SentMessages::rangeFault() const {
    if (!dtFilterStart.isValid() || !dtFilterEnd.isValid())
        return "Enter two dates, or \"None\" for no limit.";
    const auto start = dtFilterStart.date(), end = dtFilterEnd.date();
    if (start && end && start->days > end->days) return "The first day is after the last one.";
    return {};
}

std::string SentMessages::loadStatement() const {
    const auto day = [](const DateBox& box, std::string_view open) {
        const auto date = box.date();
        return date ? shortDateText(*date) : std::string(open);
    };
    return modSharedSQL::format(
        "SELECT * FROM SentMessages WHERE SentOn >= '{0}' AND SentOn <= '{1}' ORDER BY SentOn DESC",
        host().FixDateForSQLInsert(day(dtFilterStart, firstDay)),
        host().FixDateForSQLInsert(day(dtFilterEnd, lastDay) + std::string(endOfDay)));
}

void SentMessages::refresh() {
    if (const std::string_view fault = rangeFault(); !fault.empty()) {
        tell(fault, MessageIcon::Exclamation);
        dtFilterStart.setFocus();
        return;
    }
    lblRange.setVisible(false);
    loadList();
}

void SentMessages::listLoaded() {
    loadedRange_ = rangeText();
}

/// A range that cannot be used yet is only noted: the user may be about to change its other end.
void SentMessages::rangeLeft() {
    const std::string_view fault = rangeFault();
    lblRange.setCaption(std::string(fault));
    lblRange.setVisible(!fault.empty());
    if (fault.empty() && rangeText() != loadedRange_) loadList();
}

// The preview -----------------------------------------------------------------------------------------

void SentMessages::updateButtons() {
    ListScreen::updateButtons();
    showPreview();
}

void SentMessages::showPreview() {
    const auto record = focusedRecord(rptItems);
    if (!record) {
        lblPreview.setCaption(std::string(noPreviewMarkup()));
        txtBody.setText("");
        return;
    }
    lblPreview.setCaption(previewMarkup({.subject = rptItems.cell(*record, Subject),
                                         .from = rptItems.cell(*record, From),
                                         .to = addresses_.cell(*record, To),
                                         .sent = rptItems.cell(*record, SentDate)}));
    txtBody.setText(std::string(rptItems.cell(*record, Body)));
}

// Saving ----------------------------------------------------------------------------------------------

void SentMessages::add(std::string& text, std::size_t record) const {
    addLine(text, "Sent: ", rptItems.cell(record, SentDate));
    addLine(text, "Sent by: ", rptItems.cell(record, SentBy));
    addLine(text, "From: ", rptItems.cell(record, From));
    addLine(text, "To: ", addresses_.cell(record, To));
    if (const auto cc = addresses_.cell(record, Cc); !cc.empty()) addLine(text, "Cc: ", cc);
    if (const auto bcc = addresses_.cell(record, Bcc); !bcc.empty()) addLine(text, "Bcc: ", bcc);
    addLine(text, "Subject: ", rptItems.cell(record, Subject));
    text += "\r\n";
    text += rptItems.cell(record, Body);
    text += "\r\n";
}

void SentMessages::save(std::span<const std::size_t> records) {
    const std::string between = "\r\n" + std::string(72, '-') + "\r\n\r\n";
    saveTextFile(*this, file_, [&](std::ostream& file) {
        std::string text;
        const auto write = [&] {
            file.write(text.data(), static_cast<std::streamsize>(text.size()));
            text.clear();
        };
        for (std::size_t i = 0; i < records.size() && file; ++i) {
            if (i > 0) text += between;
            add(text, records[i]);
            if (text.size() >= chunk) write();
        }
        write();
    });
}

void SentMessages::saveCurrent() {
    if (const auto record = focusedRecord(rptItems)) save({&*record, 1});
}

void SentMessages::saveAll() {
    std::vector<std::size_t> records;
    for (std::size_t row = 0; row < rptItems.rowCount(); ++row)
        records.push_back(rptItems.row(row).record);
    save(records);
}

}  // namespace tsln::messages
