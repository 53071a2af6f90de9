#include "tests/lists/Acts.h"

#include <numeric>

namespace tsln::test {

void enter(Screen& dialog, std::string_view name, const std::string& text) {
    Control* control = dialog.control(name);
    if (auto* box = dynamic_cast<TextBox*>(control)) return box->userType(text);
    if (auto* check = dynamic_cast<CheckBox*>(control)) return check->userCheck(text == "1");
    auto* combo = dynamic_cast<ComboBox*>(control);
    ASSERT_TRUE(combo) << "there is no control " << name;
    for (std::size_t i = 0; i < combo->entries().size(); ++i) {
        if (combo->entries()[i].text == text) return combo->userChoose(static_cast<int>(i));
    }
    if (combo->editable) return combo->userType(text);
    ADD_FAILURE() << name << " has no entry " << text;
}

std::string entered(Screen& dialog, std::string_view name) {
    if (auto* box = dynamic_cast<TextBox*>(dialog.control(name))) return box->text();
    return dynamic_cast<ComboBox&>(*dialog.control(name)).text();
}

void press(Screen& dialog, std::string_view button) {
    dynamic_cast<Button&>(*dialog.control(button)).userPress();
}

void selectAll(ReportControl& items) {
    std::vector<std::size_t> rows(items.rowCount());
    std::iota(rows.begin(), rows.end(), std::size_t{0});
    selectRows(items, rows);
}

void selectRows(ReportControl& items, std::vector<std::size_t> rows) {
    items.userSelect(rows, rows.empty() ? std::nullopt : std::optional(rows.back()));
}

Variant open(Stage& stage, Operation operation, std::int32_t argument) {
    std::vector<Argument> arguments(info(operation).argumentCount, Argument(Variant(argument)));
    return stage.library->perform(operation, Arguments(arguments));
}

}  // namespace tsln::test
