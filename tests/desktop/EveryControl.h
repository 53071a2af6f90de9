#pragma once

#include "screens/CheckList.h"
#include "screens/ColorBox.h"
#include "screens/Controls.h"
#include "screens/DateBox.h"
#include "screens/MarkupLabel.h"
#include "screens/OptionButton.h"
#include "screens/Picture.h"
#include "screens/ProgressBar.h"
#include "screens/PropertyGrid.h"
#include "screens/ReportControl.h"
#include "screens/Splitter.h"
#include "screens/TabControl.h"
#include "screens/Timer.h"
#include "tests/desktop/Samples.h"

namespace tsln::desktop::test {

/// A screen with one control of every kind.
class EveryControl : public NotingScreen {
  public:
    explicit EveryControl(Desktop& desktop) : NotingScreen(desktop, "frmEveryControl") {
        setCaption("Every Control");
        txtName.cueText = "Name of the vendor";
        txtPassword.password = true;
        txtPassword.setText("secret");
        txtNotes.multiLine = true;
        txtNotes.setText("One line\r\nand another");
        cboTerms.addItem("Net 10", 1);
        cboTerms.addItem("Net 30", 2);
        cboTerms.choose(2);
        cboCity.editable = true;
        cboCity.addItem("Bergen", 1);
        cboCity.addItem("Oslo", 2);
        datDue.setText("3/4/2024");
        colFabric.setColor(0x003C78D8);  // a rust: blue 3C, green 78, red D8
        chkActive.setChecked(true);
        optAmount.setSelected(true);
        fillLists();

        txtName.onEnterKey = [this] {
            note("enter in name");
            return !txtName.text().empty();
        };
        datDue.onChange = [this] { note("due " + datDue.text()); };
        colFabric.onChange = [this] { note("color"); };
        for (OptionButton* option : optKind.buttons())
            option->onClick = [this, option] { note(option->name()); };
        lblLinks.onLink = [this](const std::string& operation) { note(operation); };
        spl.onMove = [this] { note("sash"); };
        tim.onTick = [this] { note("tick"); };
        cmdInsert.onClick = [this] {
            txtNotes.insert("[Date]");
            txtNotes.setFocus();
        };
        cmdWork.onClick = [this] { work(); };
        cmdOK.onClick = [this] {
            note("ok");
            hide();
        };
        cmdCancel.onClick = [this] { hide(); };
    }

    TextBox txtName{*this, "txtName"};
    TextBox txtPassword{*this, "txtPassword"};
    TextBox txtNotes{*this, "txtNotes"};
    ComboBox cboTerms{*this, "cboTerms"};
    ComboBox cboCity{*this, "cboCity"};
    DateBox datDue{*this, "datDue"};
    ColorBox colFabric{*this, "colFabric"};
    CheckBox chkActive{*this, "chkActive", "&Active"};
    Frame fraKind{*this, "fraKind", "Discount"};
    OptionGroup optKind;
    OptionButton optPercent{*this, optKind, "optPercent", "in &percent"};
    OptionButton optAmount{*this, optKind, "optAmount", "as an a&mount"};
    OptionButton optNone{*this, optKind, "optNone", "none at all"};
    TabControl tab{*this, "tab", {"Panes", "Hidden", "Ticks"}};
    Splitter spl{*this, "spl", Splitter::Panes::OneBelowTheOther};
    ReportControl rpt{*this, "rpt"};
    PropertyGrid grd{*this, "grd"};
    TextBox txtHidden{*this, "txtHidden"};
    CheckList lst{*this, "lst"};
    MarkupLabel lblLinks{
        *this, "lblLinks",
        "<TextBlock TextWrapping='Wrap'>Prices are <Bold>not yet</Bold> approved. "
        "<Hyperlink Click='Approve'>Approve them</Hyperlink> or "
        "<Hyperlink Click='Discard'>discard them</Hyperlink>. "
        "Until then, quotes are written with the prices of last month, which the suppliers may have changed."
        "</TextBlock>"
        "<TextBlock TextAlignment='Right' FontSize='11'>Seen by " +
            asMarkupText("<Bold>A & B</Bold>") + "</TextBlock>"};
    ProgressBar prg{*this, "prg"};
    Picture pic{*this, "pic", Picture::Kind::Lock};
    Label lblState{*this, "lblState", "Ready"};
    Button cmdInsert{*this, "cmdInsert", "&Insert"};
    Button cmdWork{*this, "cmdWork", "Wor&k"};
    Button cmdOK{*this, "cmdOK", "OK", Button::Role::Default};
    Button cmdCancel{*this, "cmdCancel", "Cancel", Button::Role::Cancel};
    tsln::Timer tim{*this, 20};
    std::function<void()> duringWork;

    Layout layout() override {
        using namespace tsln::layout;
        return column(
            {stretch(row(
                 {column(
                      {form({field("&Name:", txtName), field("Pass&word:", txtPassword),
                             field("N&otes:", txtNotes), field("&Terms:", cboTerms), field("Cit&y:", cboCity),
                             field("&Due:", datDue), field("Colo&r:", colFabric), item(chkActive)}),
                       framed(fraKind, column({item(optPercent), item(optAmount), item(optNone)}))}),
                  stretch(tabs(tab, {split(spl, fill(rpt), fill(grd)), form({field("Hidden:", txtHidden)}),
                                     fill(lst)}))})),
             item(lblLinks), item(prg),
             row({item(pic), item(lblState), spring(), item(cmdInsert), item(cmdWork), item(cmdOK),
                  item(cmdCancel)})});
    }

  private:
    void fillLists() {
        rpt.columns = {{.caption = "Product", .width = 130, .editable = true},
                       {.caption = "Price", .width = 70, .rightAligned = true, .numeric = true},
                       {.caption = "Sold", .width = 45, .kind = ReportColumn::Kind::Check, .editable = true}};
        rpt.onCellEdited = [this](std::size_t record, std::size_t column) {
            note("edited " + std::string(rpt.cell(record, column)));
        };
        for (int i = 1; i <= 5; ++i) {
            const std::string product = "Blind " + std::to_string(i);
            const std::string price = std::to_string(i * 12) + ".50";
            const std::string_view cells[] = {product, price, i % 2 == 0 ? "1" : "0"};
            rpt.addRecord(i, cells);
        }
        rpt.populate();
        rpt.accessibleName = "Products";
        const std::size_t product = grd.addCategory("Product");
        grd.addRow(product, "Name", "Roller blind");
        grd.addRow(product, "Supplier", "Quay");
        const std::size_t size = grd.addCategory("Size", product);
        grd.addRow(size, "Width", "120 cm");
        grd.addRow(size, "Height", "90 cm");
        grd.addRow(grd.addCategory("Price"), "List", "12.50");
        grd.accessibleName = "Properties";
        tab.setPageVisible(1, false);
        lst.columns = {{"Group", 200}};
        lst.addEntry({{"Dealers"}, 1, true});
        lst.addEntry({{"Installers"}, 2});
        lst.accessibleName = "Groups";
        prg.accessibleName = "Progress";
        prg.setRange(0, 4);
        prg.setValue(1);
    }

    void work() {
        prg.setValue(0);
        for (int i = 1; i <= 4; ++i) {
            prg.step();
            lblState.setCaption("Step " + std::to_string(i));
            desktop().yield();
            if (duringWork) duringWork();
        }
    }
};

}  // namespace tsln::desktop::test
