#include "workbench/host/MessageMembers.h"

#include "bridge/Host.h"
#include "shared/Markup.h"
#include "shared/modSharedStrings.h"
#include "workbench/host/Sha2.h"
#include "workbench/host/TextOf.h"

namespace tsln::workbench {
namespace {

constexpr std::string_view memorySection = "Messages not shown again";

std::string explained(const Variant& text) {
    return modSharedStrings::replaceAll(textOf(text), standardExplanation, usualExplanation);
}

/// The platform's codes of message box buttons and answers.
MessageButtons buttonsOf(std::int32_t code) {
    constexpr std::int32_t buttons = 0xF;  // the rest are icons and defaults
    switch (code & buttons) {
        case 0:
            return MessageButtons::Ok;
        case 1:
            return MessageButtons::OkCancel;
        case 4:
            return MessageButtons::YesNo;
        default:
            throw HostError(code::badIndex, "SharedCode",
                            "No message has the buttons " + std::to_string(code) + ".");
    }
}

std::int32_t numberOf(MessageAnswer answer) {
    switch (answer) {
        case MessageAnswer::Ok:
            return 1;
        case MessageAnswer::Cancel:
            return 2;
        case MessageAnswer::Yes:
            return 6;
        case MessageAnswer::No:
            return 7;
    }
    return 2;
}

/// Returns the errors that a connection last reported, one per line.
std::string errorsOf(Object& connection) {
    std::string text;
    const Variant errors = connection.get("Errors");
    const std::int32_t count = errors.object().get("Count").toLong();
    for (std::int32_t i = 0; i < count; ++i) {
        if (i > 0) text += "\n";
        text += textOf(errors.object().get("Item", i).object().get("Description"));
    }
    return text;
}

std::string detailOf(const Variant& value) {
    if (!value.isObject()) return textOf(value);
    return value.toObject() ? errorsOf(value.object()) : std::string();
}

}  // namespace

Variant showMessage(HostContext& context, MessageStyle style, Arguments a) {
    Message message{.style = style, .text = explained(a[0]), .advice = explained(a[1])};
    bool question = false;
    for (std::size_t i = 2; i < a.count(); ++i) {
        if (!a.has(i) || a[i].isEmpty()) continue;
        if (a[i].isText() && !a[i].isNumeric()) {
            message.title = a[i].toText();
        } else if (!question) {
            message.buttons = buttonsOf(a[i].toLong());
            question = message.buttons != MessageButtons::Ok;
        }
    }
    const MessageAnswer answer = context.ui.showMessage(message).answer;
    return question ? Variant(numberOf(answer)) : Variant();
}

Variant showMessageWithMemory(HostContext& context, Arguments a) {
    const Message message{
        .style = MessageStyle::Style1WithMemory, .text = explained(a[0]), .advice = explained(a[1])};
    const OptionStore::Owner user{context.user.ID};
    const std::string key = sha2(message.text + "\n" + message.advice, 256);
    if (context.options.get(user, {key, memorySection})) return numberOf(MessageAnswer::Ok);
    const Reply reply = context.ui.showMessage(message);
    if (reply.doNotShowAgain) {
        try {
            context.options.set(user, {key, memorySection}, plainText(message.text));
        } catch (const SqlError&) {
            // The message is shown again next time; an error message now would not help the user.
        }
    }
    return numberOf(reply.answer);
}

Variant showError(HostContext& context, MessageStyle style, Arguments a) {
    Message message{.style = style, .text = explained(a[0]), .explanation = explained(a[1])};
    for (std::size_t i = 2; i < a.count(); ++i) {
        const std::string detail = detailOf(a[i]);
        if (detail.empty()) continue;
        if (!message.detail.empty()) message.detail += "\n";
        message.detail += detail;
    }
    if (style == MessageStyle::LoggedError) {
        std::string entry = plainText(message.text);
        if (!message.detail.empty()) entry += "\n" + message.detail;
        context.eventLog.record(EventLog::Error, entry);
    }
    context.ui.showMessage(message);
    return {};
}

}  // namespace tsln::workbench
