#include "messages/Preview.h"

#include "automation/DateText.h"
#include "shared/Markup.h"
#include "shared/ValueText.h"

namespace tsln::messages {
namespace {

constexpr std::string_view headingMarkup =
    "<TextBlock TextWrapping='Wrap'><Bold>[[subject]]</Bold><LineBreak/>From: [[from]]<LineBreak/>To: [[to]]</TextBlock>";
constexpr std::string_view nothingMarkup = "<TextBlock TextWrapping='Wrap'>No message selected</TextBlock>";
constexpr std::string_view lineBreak = "<LineBreak/>";

std::string asMarkupLines(std::string_view text) {
    std::string markup;
    for (std::size_t end = 0; (end = text.find_first_of("\r\n")) != text.npos;) {
        markup += asMarkupText(text.substr(0, end));
        markup += lineBreak;
        text.remove_prefix(end + (text.substr(end).starts_with("\r\n") ? 2 : 1));
    }
    return markup + asMarkupText(text);
}

std::string shortDate(std::string_view sent) {
    const auto date = readDateText(sent);
    return date ? shortDateText(*date) : std::string(sent);
}

}  // namespace

std::string fillMarkup(std::string_view markup, const MessageHeading& message) {
    std::string filled;
    while (!markup.empty()) {
        const std::size_t at = markup.find("[[");
        const std::size_t end = at == markup.npos ? at : markup.find("]]", at);
        if (end == markup.npos) break;
        const std::string_view name = markup.substr(at + 2, end - at - 2);
        filled += markup.substr(0, at);
        filled += name == "subject" ? asMarkupLines(message.subject)
                  : name == "from"  ? asMarkupLines(message.from)
                  : name == "to"    ? asMarkupLines(message.to)
                  : name == "date"  ? shortDate(message.sent)
                                    : std::string(markup.substr(at, end + 2 - at));
        markup.remove_prefix(end + 2);
    }
    return filled + std::string(markup);
}

std::string previewMarkup(const MessageHeading& message) {
    return fillMarkup(headingMarkup, message);
}

std::string_view noPreviewMarkup() {
    return nothingMarkup;
}

}  // namespace tsln::messages
