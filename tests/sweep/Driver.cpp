#include "tests/sweep/Driver.h"

#include <algorithm>
#include <regex>

#include "bridge/HostScreen.h"
#include "doubles/Stage.h"
#include "module/Module.h"
#include "screens/CheckList.h"
#include "screens/ColorBox.h"
#include "screens/DateBox.h"
#include "screens/OptionButton.h"
#include "screens/ReportControl.h"
#include "screens/TabControl.h"

namespace tsln::workbench {
namespace {

constexpr int deepest = 4;  ///< screens above each other; further ones are closed at once
constexpr std::size_t longestCall = 200;

/// Gives each field something that it accepts.
class Filling : public ControlVisitor {
  public:
    void visit(TextBox& box) override {
        if (box.locked() || box.name() == "txtFilter") return;  // it would hide the rows
        std::string text = box.multiLine ? "12\r\n34" : "12";   // a name, a number, a code
        if (box.password) text = "1234";
        if (box.name() == "txtUniqueID") text = "01234567-89AB-CDEF-0123-456789ABCDEF";
        if (box.maxLength > 0) text.resize(std::min(text.size(), box.maxLength));
        box.userType(std::move(text));
    }
    void visit(ComboBox& box) override {
        if (box.entries().empty()) {
            box.userType("12");
        } else {
            box.userChoose(std::min<int>(1, static_cast<int>(box.entries().size()) - 1));
        }
    }
    void visit(CheckBox& box) override { box.userCheck(!box.checked()); }
    void visit(OptionButton& button) override { button.userSelect(); }
    void visit(DateBox& box) override { box.userType("3/4/2026"); }
    void visit(ColorBox& box) override { box.userChoose(0x123456); }
    void visit(CheckList& list) override {
        if (!list.entries().empty()) list.userTick(0, !list.entries().front().ticked);
    }
    void visit(ReportControl& report) override {
        if (report.rowCount() == 0) return;
        const std::size_t rows[] = {report.rowCount() > 1 && report.row(0).isGroup() ? 1U : 0U};
        report.userSelect(rows, rows[0]);
        for (std::size_t column = 0; column < report.columns.size() && rows[0] < report.rowCount();
             ++column) {
            if (report.canEdit({rows[0], column})) report.userEdit(rows[0], column, "12");
        }
    }
    void visit(TabControl& tabs) override {
        for (int page = static_cast<int>(tabs.captions().size()); page-- > 0;)
            if (tabs.isPageVisible(page)) tabs.userSelect(page);
    }
    void visit(Button& button) override {
        if (button.role() == Button::Role::Default) defaultButton = &button;
        if (button.role() == Button::Role::Cancel) cancelButton = &button;
        if (button.role() == Button::Role::Plain) plainButtons.push_back(button.name());
    }
    void visit(CommandBars&) override {}
    void visit(Frame&) override {}
    void visit(Label&) override {}
    void visit(MarkupLabel&) override {}
    void visit(Picture&) override {}
    void visit(ProgressBar&) override {}
    void visit(PropertyGrid&) override {}
    void visit(Splitter&) override {}

    Button* defaultButton = nullptr;
    Button* cancelButton = nullptr;
    std::vector<std::string> plainButtons;
};

/// Adds the controls on pages of tab controls that have no tab.
void collectHidden(const Layout& layout, bool hidden, std::set<const Control*>& controls) {
    if (hidden && layout.control) controls.insert(layout.control);
    const auto* tabs =
        layout.kind == Layout::Kind::Tabs ? dynamic_cast<TabControl*>(layout.control) : nullptr;
    for (std::size_t i = 0; i < layout.children.size(); ++i) {
        const bool hidesPage = tabs && !tabs->isPageVisible(static_cast<int>(i));
        collectHidden(layout.children[i], hidden || hidesPage, controls);
    }
}

/// The texts of the fields that the user can reach, by their names.
std::map<std::string, std::string> inputOf(const Screen& screen) {
    std::map<std::string, std::string> input;
    for (Control* control : screen.controls()) {
        if (!control->enabled() || !control->visible()) continue;
        if (const auto* text = dynamic_cast<TextBox*>(control)) input[control->name()] = text->text();
        if (const auto* combo = dynamic_cast<ComboBox*>(control)) input[control->name()] = combo->text();
        if (const auto* check = dynamic_cast<CheckBox*>(control))
            input[control->name()] = check->checked() ? "ticked" : "clear";
        if (const auto* date = dynamic_cast<DateBox*>(control)) input[control->name()] = date->text();
    }
    return input;
}

}  // namespace

// The host -----------------------------------------------------------------------------------------------

class FaultyHost::Proxy : public Object {
  public:
    Proxy(FaultyHost& host, ObjectPtr target, std::string name)
        : host_(host), target_(std::move(target)), name_(std::move(name)) {
        ++host_.references;
    }
    ~Proxy() override { --host_.references; }

    Variant invoke(std::string_view member, Access access, Arguments arguments) override {
        const std::string name = name_.empty() ? std::string(member) : name_ + "." + std::string(member);
        std::string call = name + "(";
        for (std::size_t i = 0; i < arguments.count() && call.size() < longestCall; ++i)
            call += (i > 0 ? ", " : "") + (arguments[i].isObject() ? "object" : arguments[i].toText());
        host_.note(member, arguments);
        if (const auto wrong = host_.failing(call.substr(0, longestCall))) return *wrong;
        Variant result = target_->invoke(member, access, arguments);
        if (!result.isObject() || !result.toObject()) return result;
        return host_.before(result.toObject(), name);
    }

  private:
    FaultyHost& host_;
    ObjectPtr target_;
    std::string name_;
};

ObjectPtr FaultyHost::before(ObjectPtr target, std::string name) {
    return std::make_shared<Proxy>(*this, std::move(target), std::move(name));
}

std::optional<Variant> FaultyHost::failing(const std::string& call) {
    calls.push_back(call);
    if (!plan || plan->call + 1 != calls.size()) return std::nullopt;
    return test::wrongAnswer(plan->fault);
}

void FaultyHost::note(std::string_view member, Arguments arguments) {
    if (!member.starts_with("Execute") || arguments.count() == 0 || !arguments[0].isText()) return;
    const std::string statement = arguments[0].toText();
    if (statement.starts_with("SELECT")) return;
    writings.insert(test::shapeOf(statement));
    // The clean run took place in another second.
    static const std::regex time(R"(\d{4}-\d\d-\d\dT\d\d:\d\d:\d\d)");
    statements.insert(std::regex_replace(statement, time, "(time)"));
}

// The user -----------------------------------------------------------------------------------------------

FillingDesktop::FillingDesktop(const std::string& inFolder, FaultyHost& host, const CompanySession& session,
                               std::string button)
    : host_(host), button_(std::move(button)) {
    folder = inFolder;
    files.assign(8, inFolder + "/swept.xml");
    choices.assign(8, 0);
    components = [&host, &session](std::string_view programId) {
        const std::string name(programId);
        if (host.failing("create " + name)) throw HostError(code::classNotRegistered, "Host", "No " + name);
        return host.before(session.createObject(programId), name);
    };
}

void FillingDesktop::showModal(Screen& screen) {
    shown.push_back(screen.name());
    struct Depth {
        int& depth;
        explicit Depth(int& value) : depth(value) { ++depth; }
        ~Depth() { --depth; }
    } const depth(depth_);
    const Layout layout = screen.layout();
    screen.placement.left = screen.placement.left.value_or(1);  // as a front end notes it
    positions.insert(windowPositionKey(screen));
    screen.activate();
    Filling filling;
    std::set<const Control*> hidden;
    collectHidden(layout, false, hidden);
    const auto onScreen = [&screen, this] { return screen.shown() && depth_ <= deepest; };
    for (Control* control : screen.controls()) {
        if (!onScreen()) break;
        if (!control->enabled() || !control->visible() || hidden.contains(control)) continue;
        screen.userFocused(*control);
        control->userEntered();
        control->accept(filling);
        if (onScreen()) control->userLeft();
    }
    tick();
    Button* toPress = filling.defaultButton;
    if (depth_ == 1) {
        furtherButtons = filling.plainButtons;
        if (!button_.empty()) toPress = dynamic_cast<Button*>(screen.control(button_));
    }
    if (onScreen()) refused = refused || !toPress || !toPress->enabled();
    if (onScreen() && toPress) press(screen, *toPress);
    if (const auto* missing = dynamic_cast<Label*>(screen.control("lblMissing"));
        missing && missing->visible())
        boxes.push_back({.text = missing->caption()});
    if (screen.shown() && filling.cancelButton) filling.cancelButton->userPress();
    if (screen.shown()) screen.userClose();
    if (screen.shown()) screen.hide();  // it refused to close
}

void FillingDesktop::press(Screen& screen, Button& button) {
    const auto before = inputOf(screen);
    const std::size_t begin = host_.calls.size();
    button.userPress();
    if (depth_ == 1) pressing = {begin, host_.calls.size()};
    if (!screen.shown()) return;
    const auto after = inputOf(screen);
    for (const auto& [name, text] : before) {
        const auto kept = after.find(name);
        if (kept != after.end() && kept->second != text)
            lostInput.push_back(screen.name() + "." + name + ": '" + text + "' became '" + kept->second +
                                "'");
    }
}

MessageAnswer FillingDesktop::messageBox(Screen* owner, std::string_view text, MessageButtons buttons,
                                         MessageIcon icon, std::string_view title) {
    ScriptedDesktop::messageBox(owner, text, buttons, icon, title);
    return buttons == MessageButtons::YesNo ? MessageAnswer::Yes : MessageAnswer::Ok;
}

Reply AgreeingUi::showMessage(const Message& message) {
    shown.push_back(message.text + "|" + message.advice + "|" + message.detail);
    return {.answer = message.buttons == MessageButtons::YesNo ? MessageAnswer::Yes : MessageAnswer::Ok};
}

std::optional<std::int32_t> AgreeingUi::searchRecord(const RecordSearch& search) {
    if (search.records.empty()) return std::nullopt;
    return search.records.front().ID;
}

// The operation ------------------------------------------------------------------------------------------

std::unique_ptr<Outcome> perform(const GalleryStop& stop, const std::string& file, const std::string& folder,
                                 const std::string& button, std::optional<FaultyHost::Plan> plan) {
    auto outcome = std::make_unique<Outcome>();
    outcome->host.plan = plan;
    AgreeingUi ui(folder);
    CompanySession session(file, "admin", ui, OpenMode::ReadWrite);
    FillingDesktop desktop(folder, outcome->host, session, button);
    const auto library = std::make_shared<Library>(desktop);
    plugInModule(*library);
    library->Initialize(outcome->host.before(session.sharedCode(), ""));
    std::vector<Argument> arguments(stop.arguments.begin(), stop.arguments.end());
    try {
        library->invoke(info(stop.operation).name, Access::Call, Arguments(arguments));
    } catch (const std::exception& error) {
        outcome->raised = error.what();
    }
    outcome->screensLeft = !library->screens().empty();
    library->PreTerminate();
    outcome->lostInput = std::move(desktop.lostInput);
    outcome->pressing = desktop.pressing;
    outcome->refused = desktop.refused;
    outcome->buttons = std::move(desktop.furtherButtons);
    outcome->shown = std::move(desktop.shown);
    for (const std::string& key : desktop.positions) {
        if (!desktop.readSetting(key, "Left")) outcome->withoutPosition.push_back(key);
    }
    outcome->told = std::move(ui.shown);
    for (const auto& box : desktop.boxes)
        outcome->told.push_back(box.text);
    return outcome;
}

}  // namespace tsln::workbench
