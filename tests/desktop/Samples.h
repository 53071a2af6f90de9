#pragma once

#include <algorithm>
#include <functional>
#include <string>
#include <vector>

#include "screens/CommandBars.h"
#include "screens/Controls.h"
#include "screens/ReportControl.h"
#include "screens/Screen.h"

namespace tsln::desktop::test {

/// A screen that notes its events in order.
class NotingScreen : public Screen {
  public:
    using Screen::Screen;
    std::vector<std::string> notes;
    bool mayClose = true;
    std::function<void()> onActivate;

    void note(std::string what) { notes.push_back(std::move(what)); }
    std::size_t count(std::string_view what) const {
        return static_cast<std::size_t>(std::ranges::count(notes, what));
    }

  protected:
    void Form_Activate() override {
        note("activate");
        if (onActivate) onActivate();
    }
    bool Form_QueryUnload(bool byCloseBox) override {
        note(byCloseBox ? "close box" : "close");
        return mayClose;
    }
    void Form_Unload() override { note("unload"); }
    void Form_Help() override { note("help"); }
    void reportError(const std::exception& error) noexcept override {
        note(std::string("error: ") + error.what());
    }
};

/// A dialog with every kind of field.
class SampleDialog : public NotingScreen {
  public:
    explicit SampleDialog(Desktop& desktop) : NotingScreen(desktop, "frmSample_Edit") {
        setCaption("Edit Terms");
        txtDiscount.rightAligned = true;
        txtDiscount.widthInCharacters = 8;
        txtName.maxLength = 12;
        txtNotes.multiLine = true;
        cboMethod.addItem("Invoice", 10);
        cboMethod.addItem("Cash", 20);
        cboMethod.addItem("Check", 30);
        cboCity.editable = true;
        cboCity.addItem("Bergen", 1);
        cboCity.addItem("Oslo", 2);
        txtName.onChange = [this] { note("name " + txtName.text()); };
        txtName.onLeave = [this] { note("left name"); };
        txtDiscount.onLeave = [this] {
            note("left discount");
            txtDiscount.setText("0");
        };
        cboMethod.onClick = [this] { note("method " + cboMethod.text()); };
        cboCity.onClick = [this] { note("city chosen " + cboCity.text()); };
        cboCity.onChange = [this] { note("city typed " + cboCity.text()); };
        chkExported.onClick = [this] { note("exported " + std::to_string(chkExported.value())); };
        cmdApply.onClick = [this] { note("apply"); };
        cmdOK.onClick = [this] {
            note("ok");
            if (okHides) hide();
        };
        cmdCancel.onClick = [this] {
            note("cancel");
            hide();
        };
    }

    TextBox txtName{*this, "txtName"};
    TextBox txtDiscount{*this, "txtDiscount"};
    ComboBox cboMethod{*this, "cboMethod"};
    ComboBox cboCity{*this, "cboCity"};
    TextBox txtNotes{*this, "txtNotes"};
    CheckBox chkExported{*this, "chkExported", "E&xported to the accounting application"};
    Frame fraMore{*this, "fraMore", "Details"};
    Button cmdApply{*this, "cmdApply", "A&pply"};
    Button cmdOK{*this, "cmdOK", "OK", Button::Role::Default};
    Button cmdCancel{*this, "cmdCancel", "Cancel", Button::Role::Cancel};
    bool okHides = true;

    Layout layout() override {
        using namespace tsln::layout;
        return column(
            {form({field("&Terms:", txtName), field("&Discount %:", txtDiscount)}),
             stretch(framed(fraMore, form({field("&Method:", cboMethod), field("Cit&y:", cboCity),
                                           stretch(field("&Notes:", txtNotes)), item(chkExported)}))),
             row({item(cmdApply), spring(), item(cmdOK), item(cmdCancel)})});
    }
};

/// A list with its buttons.
class SampleList : public NotingScreen {
  public:
    explicit SampleList(Desktop& desktop, int records = 5) : NotingScreen(desktop, "frmSample") {
        setCaption("Terms");
        rptItems.columns = {{"Terms", 200}, {"Due days", 65, true, true}, {"Kind", 100, false, false, false}};
        rptItems.accessibleName = "Terms";
        for (int i = 0; i < records; ++i) {
            const std::string name = "Net " + std::to_string(i);
            const std::string due = std::to_string(i * 7 % 100);
            const std::string_view cells[] = {name, due, i % 2 ? "odd" : "even"};
            rptItems.addRecord(i + 1, cells);
        }
        rptItems.populate();
        rptItems.onSelectionChanged = [this] {
            note("selection " + std::to_string(rptItems.selectedRows().size()));
            cmdEdit.setEnabled(rptItems.selectedRows().size() == 1);
        };
        rptItems.onRowDoubleClick = [this](std::size_t row) { note("open " + std::to_string(row)); };
        rptItems.onInsertKey = [this] { note("insert"); };
        rptItems.onDeleteKey = [this] { note("delete"); };
        rptItems.onContextMenu = [this](std::size_t row) { note("context " + std::to_string(row)); };
        cmdNew.onClick = [this] {
            note("new");
            if (onNew) onNew();
        };
        cmdMore.onClick = [this] { cbContext.showPopup(28200, cmdMore); };
        cmdClose.onClick = [this] { unload(); };
        cbContext.popups = {{.id = 28200,
                             .caption = "More List Commands",
                             .commands = {{28001, "Import..."},
                                          {28003, "Export...", false},
                                          {28201, "Print...", true, true},
                                          {28202, "Save..."}}}};
        cbContext.onExecute = [this](int id) { note("command " + std::to_string(id)); };
    }

    CommandBars cbContext{*this, "cbContext"};
    ReportControl rptItems{*this, "rptItems"};
    Button cmdNew{*this, "cmdNew", "&New..."};
    Button cmdEdit{*this, "cmdEdit", "&Edit..."};
    Button cmdDelete{*this, "cmdDelete", "&Delete"};
    Button cmdMore{*this, "cmdMore", "&More"};
    Frame grpOK{*this, "grpOK"};
    Button cmdHelp{*this, "cmdHelp", "&Help"};
    Button cmdClose{*this, "cmdClose", "Close", Button::Role::Cancel};
    std::function<void()> onNew;

    Layout layout() override {
        using namespace tsln::layout;
        return column({stretch(row({fill(rptItems),
                                    column({item(cmdNew), item(cmdEdit), item(cmdDelete), item(cmdMore)})})),
                       framed(grpOK, row({spring(), item(cmdHelp), item(cmdClose)}))});
    }
};

}  // namespace tsln::desktop::test
