#include "workbench/app/HeadlessDesktop.h"

#include <cstdio>

#include "resources/TextResources.h"
#include "screens/Screen.h"

namespace tsln::workbench {

void HeadlessDesktop::showModal(Screen& screen) {
    screen.layout();
    screen.activate();
    if (screen.shown()) screen.userClose();
    if (screen.shown()) screen.hide();  // it refused to close, and nobody can answer it
}

MessageAnswer HeadlessDesktop::messageBox(Screen*, std::string_view text, MessageButtons buttons, MessageIcon,
                                          std::string_view) {
    std::fprintf(stderr, "%.*s\n", static_cast<int>(text.size()), text.data());
    if (buttons == MessageButtons::Ok) return MessageAnswer::Ok;
    return buttons == MessageButtons::YesNo ? MessageAnswer::No : MessageAnswer::Cancel;
}

std::optional<std::string> HeadlessDesktop::textResource(std::string_view name) {
    const auto text = resources::text(name);
    return text ? std::optional<std::string>(*text) : std::nullopt;
}

Reply PrintingUi::showMessage(const Message& message) {
    for (const std::string& line : {message.text, message.advice, message.explanation, message.detail}) {
        if (!line.empty()) std::fprintf(stderr, "%s\n", line.c_str());
    }
    return {.answer = message.buttons == MessageButtons::YesNo ? MessageAnswer::No : MessageAnswer::Ok};
}

}  // namespace tsln::workbench
