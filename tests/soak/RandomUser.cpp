#include "tests/soak/RandomUser.h"

#include <algorithm>

#include "screens/CheckList.h"
#include "screens/ColorBox.h"
#include "screens/CommandBars.h"
#include "screens/DateBox.h"
#include "screens/MarkupLabel.h"
#include "screens/OptionButton.h"
#include "screens/ReportControl.h"
#include "screens/Splitter.h"
#include "screens/TabControl.h"
#include "tests/soak/Diary.h"

namespace tsln::soak {
namespace {

bool usable(const Control& control) {
    return control.enabled() && control.visible();
}

/// Does to a control what its window would report.
class Acting : public ControlVisitor {
  public:
    explicit Acting(test::Random& random) : random_(random) {}

    std::string did;  ///< what is going to be done; empty for nothing
    std::function<void()> act;

    void visit(TextBox& box) override {
        if (box.onContextMenu && random_.chance(10))
            return will("opens the menu", [&box] { box.userContextMenu(); });
        if (random_.chance(10)) return will("presses Enter", [&box] { box.userEnter(); });
        if (box.locked()) return;
        std::string text = random_.text();
        // A window takes no longer text.
        if (box.maxLength > 0 && text.size() > box.maxLength) text = std::string(box.maxLength, 'x');
        type(box, text);
    }
    void visit(ComboBox& box) override {
        if (box.editable && (box.entries().empty() || random_.chance(50))) return type(box, random_.text());
        if (box.entries().empty()) return;
        const int index = static_cast<int>(random_.below(box.entries().size()));
        will("chooses " + std::to_string(index), [&box, index] { box.userChoose(index); });
    }
    void visit(DateBox& box) override {
        if (random_.chance(60)) return type(box, random_.text());
        const std::optional<Date> day =
            random_.chance(20) ? std::nullopt : std::optional<Date>(random_.day());
        will("picks a day", [&box, day] { box.userPick(day); });
    }
    void visit(CheckBox& box) override {
        will("ticks or clears", [&box] { box.userCheck(!box.checked()); });
    }
    void visit(OptionButton& button) override {
        will("is chosen", [&button] { button.userSelect(); });
    }
    void visit(ColorBox& box) override {
        const auto color = static_cast<std::int32_t>(random_.below(0x1000000));
        will("gets a colour", [&box, color] { box.userChoose(color); });
    }
    void visit(CheckList& list) override {
        if (list.entries().empty()) return;
        const std::size_t entry = random_.below(list.entries().size());
        will("ticks " + std::to_string(entry),
             [&list, entry] { list.userTick(entry, !list.entries()[entry].ticked); });
    }
    void visit(TabControl& tabs) override {
        const int page = static_cast<int>(random_.below(tabs.captions().size()));
        if (tabs.isPageVisible(page))
            will("turns to page " + std::to_string(page), [&tabs, page] { tabs.userSelect(page); });
    }
    void visit(Button& button) override {
        will("is pressed", [&button] { button.userPress(); });
    }
    void visit(Splitter& splitter) override {
        const double position = random_.between(-1, 11) / 10.0;
        will("is moved", [&splitter, position] { splitter.userMove(position); });
    }
    void visit(MarkupLabel& label) override {
        std::vector<std::string> links;
        for (const MarkupRun& run : label.runs())
            if (!run.operation.empty()) links.push_back(run.operation);
        if (links.empty()) return;
        const std::string link = random_.of(links);
        will("follows " + link, [&label, link] { label.userFollow(link); });
    }
    void visit(ReportControl& report) override {
        switch (random_.below(12)) {
            case 0:
                return will("selects all", [&report] { report.userSelectAll(); });
            case 1:
                return will("Ins", [&report] { report.userInsertKey(); });
            case 2:
                return will("Del", [&report] { report.userDeleteKey(); });
            case 3:
                return menu(report);
            case 4:
            case 5:
                return arrange(report);
            case 6:
                if (report.rowCount() == 0) return;
                return will("double click", [&report, row = random_.below(report.rowCount())] {
                    report.userDoubleClick(row);
                });
            case 7:
            case 8:
            case 9:
                return edit(report);
            default:
                return select(report);
        }
    }
    void visit(CommandBars&) override {}
    void visit(Frame&) override {}
    void visit(Label&) override {}
    void visit(Picture&) override {}
    void visit(ProgressBar&) override {}
    void visit(PropertyGrid&) override {}

  private:
    void will(std::string what, std::function<void()> how) {
        did = std::move(what);
        act = std::move(how);
    }
    template <class Box>
    void type(Box& box, const std::string& text) {
        will("'" + text + "'", [&box, text] { box.userType(text); });
    }
    void select(ReportControl& report) {
        std::vector<std::size_t> rows;
        for (int i = random_.between(0, 3); i > 0 && report.rowCount() > 0; --i)
            rows.push_back(random_.below(report.rowCount()));
        std::ranges::sort(rows);
        rows.erase(std::ranges::unique(rows).begin(), rows.end());
        const std::optional<std::size_t> focus =
            rows.empty() ? std::nullopt : std::optional<std::size_t>(random_.of(rows));
        will("selects " + std::to_string(rows.size()),
             [&report, rows, focus] { report.userSelect(rows, focus); });
    }
    void menu(ReportControl& report) {
        const std::size_t row = random_.below(report.rowCount() + 1);
        will("opens the menu", [&report, row] { report.userContextMenu(row); });
    }
    void arrange(ReportControl& report) {
        if (report.columns.empty()) return;
        const std::size_t column = random_.below(report.columns.size());
        switch (random_.below(3)) {
            case 0:
                return will("narrows or widens a column", [&report, column, width = random_.between(0, 900)] {
                    report.userColumnWidth(column, width);
                });
            case 1: {
                auto order = report.columnOrder();
                std::swap(order[column], random_.of(order));
                return will("moves a column", [&report, order] { report.userColumnOrder(order); });
            }
            default:
                return will("sorts by " + std::to_string(column),
                            [&report, column] { report.userClickHeader(column); });
        }
    }
    void edit(ReportControl& report) {
        if (report.rowCount() == 0) return;
        const ReportControl::Cell start{random_.below(report.rowCount()), 0};
        const auto cell = report.canEdit(start) ? start : report.nextEditable(start, random_.chance(50));
        if (!cell) return select(report);
        const ReportControl::Column& column = report.columns[cell->column];
        if (column.kind == ReportControl::Column::Kind::Check) {
            const bool ticked = random_.chance(50);
            return will("ticks a cell",
                        [&report, cell, ticked] { report.userCheck(cell->row, cell->column, ticked); });
        }
        const std::string text = column.choices.empty() ? random_.text() : random_.of(column.choices).caption;
        will("edits a cell to '" + text + "'",
             [&report, cell, text] { report.userEdit(cell->row, cell->column, text); });
    }

    test::Random& random_;
};

}  // namespace

void RandomUser::note(const std::string& act) {
    ++acts;
    diary::add(std::to_string(acts) + "  " + act);
}

Control* RandomUser::someControl(const Screen& screen) {
    std::vector<Control*> usables;
    std::ranges::copy_if(screen.controls(), std::back_inserter(usables),
                         [](const Control* control) { return usable(*control); });
    if (usables.empty() || random.chance(4)) return nullptr;
    Control* const control = random.of(usables);
    // Otherwise most screens would be left at once.
    const auto* button = dynamic_cast<Button*>(control);
    return button && button->role() != Button::Role::Plain && random.chance(70) ? random.of(usables)
                                                                                : control;
}

MessageAnswer RandomUser::answer(MessageButtons buttons) {
    switch (buttons) {
        case MessageButtons::Ok:
            return MessageAnswer::Ok;
        case MessageButtons::OkCancel:
            return random.chance(60) ? MessageAnswer::Ok : MessageAnswer::Cancel;
        case MessageButtons::YesNo:
            return random.chance(60) ? MessageAnswer::Yes : MessageAnswer::No;
    }
    return MessageAnswer::Ok;
}

std::string RandomUser::path(const std::string& folder) {
    static const char* const names[] = {
        "/a.xml", "/b.xml", "/c.csv", "/d", "", "/missing", "/no such folder/a.xml"};
    return folder + random.of(names);
}

int RandomUser::command(const Command& popup) {
    std::vector<int> enabled;
    for (const Command& command : popup.commands)
        if (command.enabled) enabled.push_back(command.id);
    const int chosen = enabled.empty() || random.chance(15) ? 0 : random.of(enabled);
    note("chooses the command " + std::to_string(chosen));
    return chosen;
}

void RandomUser::act(Screen& screen) {
    Control* control = someControl(screen);
    if (!control) {
        switch (random.below(5)) {
            case 0:
                note(screen.name() + ": F1");
                return screen.userHelp();
            case 1:
                note(screen.name() + ": is activated");
                return screen.activate();
            case 2:
                note(screen.name() + ": close box");
                return screen.userClose();
            case 3:
                return press(screen, Button::Role::Cancel);
            default:
                return press(screen, Button::Role::Default);
        }
    }
    Acting acting(random);
    control->accept(acting);
    if (!acting.act) return;
    note(screen.name() + "." + control->name() + ": " + acting.did);
    Control* const before = screen.focusedControl();
    if (before != control) {
        screen.userFocused(*control);
        if (before) before->userLeft();
        control->userEntered();
    }
    if (screen.shown() && usable(*control)) acting.act();
}

void RandomUser::leave(Screen& screen) {
    if (random.chance(70)) return press(screen, Button::Role::Cancel);
    note(screen.name() + ": close box");
    screen.userClose();
}

void RandomUser::press(Screen& screen, Button::Role role) {
    for (Control* control : screen.controls()) {
        auto* button = dynamic_cast<Button*>(control);
        if (!button || button->role() != role) continue;
        note(screen.name() + "." + button->name() + ": is pressed");
        return button->userPress();
    }
    note(screen.name() + ": close box");
    screen.userClose();
}

// The host's windows -------------------------------------------------------------------------------------

workbench::Reply RandomUi::showMessage(const workbench::Message& message) {
    const MessageAnswer answer = user_.answer(message.buttons);
    user_.note("the host tells '" + message.text + "': " + std::to_string(static_cast<int>(answer)));
    return {.answer = answer, .doNotShowAgain = user_.random.chance(5)};
}

std::optional<std::string> RandomUi::editExpression(const workbench::ExpressionEdit& edit) {
    user_.note("edits an expression");
    if (user_.random.chance(30)) return std::nullopt;
    return user_.random.chance(50) ? edit.expression + user_.random.text() : user_.random.text();
}

std::optional<std::int32_t> RandomUi::searchRecord(const workbench::RecordSearch& search) {
    user_.note("searches " + search.table);
    if (search.records.empty() || user_.random.chance(20)) return std::nullopt;
    return user_.random.of(search.records).ID;
}

std::optional<workbench::Email> RandomUi::editEmail(const workbench::Email& email) {
    user_.note("edits a message");
    if (user_.random.chance(30)) return std::nullopt;
    workbench::Email sent = email;
    sent.to = user_.random.text();
    sent.subject = user_.random.text();
    return sent;
}

std::optional<std::string> RandomUi::chooseFolder(const std::string&) {
    user_.note("chooses a folder");
    if (user_.random.chance(30)) return std::nullopt;
    return user_.path(folder_);
}

}  // namespace tsln::soak
