#include "workbench/host/SharedCode.h"

#include "automation/NumericText.h"
#include "bridge/Host.h"
#include "shared/modSharedSQL.h"
#include "shared/modSharedStrings.h"
#include "workbench/host/ActivityObject.h"
#include "workbench/host/CommonObject.h"
#include "workbench/host/DatabaseObject.h"
#include "workbench/host/HostDate.h"
#include "workbench/host/Markup.h"
#include "workbench/host/MessagesObject.h"
#include "workbench/host/OptionsObject.h"
#include "workbench/host/PackageSourceFile.h"
#include "workbench/host/ProfilesObject.h"
#include "workbench/host/SecurityObject.h"
#include "workbench/host/Sha2.h"
#include "workbench/host/SqlText.h"

namespace tsln::workbench {
namespace {

constexpr std::string_view kMemory = "Messages not shown again";

std::string explained(const Variant& text) {
    return modSharedStrings::replaceAll(textOf(text), standardExplanation, kStandardExplanation);
}

/// The platform's numbers of message box buttons and of the answers.
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

}  // namespace

SharedCode::SharedCode(std::shared_ptr<HostContext> context)
    : HostObject(context),
      database_(std::make_shared<DatabaseObject>(context)),
      common_(std::make_shared<CommonObject>(context)),
      security_(std::make_shared<SecurityObject>(context)),
      options_(std::make_shared<OptionsObject>(context)),
      messages_(std::make_shared<MessagesObject>(context)),
      activity_(std::make_shared<ActivityObject>(context)),
      profiles_(std::make_shared<ProfilesObject>(context)) {}

// Messages ----------------------------------------------------------------------------------------------

MessageAnswer SharedCode::show(const Message& message) {
    return context().ui.showMessage(message).answer;
}

/// Main text and second line. Of what follows, a number says the buttons, which makes the message a question,
/// and a text is the window's title. A question is answered with the platform's number of the button.
Variant SharedCode::showMessage(MessageStyle style, Arguments a) {
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
    const MessageAnswer answer = show(message);
    return question ? Variant(numberOf(answer)) : Variant();
}

/// Messages are known by their texts, for each user by himself.
Variant SharedCode::ShowMessageStyle1WithMemory(Arguments a) {
    a.require(2, 2);
    const Message message{
        .style = MessageStyle::Style1WithMemory, .text = explained(a[0]), .advice = explained(a[1])};
    const OptionStore::Owner user{context().user.ID};
    const std::string key = sha2(message.text + "\n" + message.advice, 256);
    if (context().options.get(user, {key, kMemory})) return numberOf(MessageAnswer::Ok);
    const Reply reply = context().ui.showMessage(message);
    if (reply.doNotShowAgain) {
        try {
            context().options.set(user, {key, kMemory}, plainText(message.text));
        } catch (const SqlError&) {
            // The message comes once more: no reason to trouble the user now.
        }
    }
    return numberOf(reply.answer);
}

/// Message, explanation, the database's words. What some callers add is further detail.
Variant SharedCode::showError(Arguments a, bool log) {
    Message message{.style = log ? MessageStyle::LoggedError : MessageStyle::Error,
                    .text = explained(a[0]),
                    .explanation = explained(a[1])};
    for (std::size_t i = 2; i < a.count(); ++i) {
        // A connection stands for what it last reported.
        const std::string detail = a[i].isObject() ? context().lastSqlError.text : textOf(a[i]);
        if (detail.empty()) continue;
        if (!message.detail.empty()) message.detail += "\n";
        message.detail += detail;
    }
    if (log) {
        std::string entry = plainText(message.text);
        if (!message.detail.empty()) entry += "\n" + message.detail;
        context().eventLog.record(EventLog::Error, entry);
    }
    show(message);
    return {};
}

/// The text alone, or with the kind of event before or behind it; a further text is its source.
Variant SharedCode::RecordEvent(Arguments a) {
    a.require(1, 2);
    const auto isKind = [&](std::size_t i) { return a.has(i) && !a[i].isText() && a[i].isNumeric(); };
    if (isKind(0) && a.has(1)) {
        context().eventLog.record(a[0].toLong(), textOf(a[1]));
    } else if (isKind(1)) {
        context().eventLog.record(a[1].toLong(), textOf(a[0]));
    } else {
        context().eventLog.record(EventLog::Notice, textOf(a[0]), textOf(a[1]));
    }
    return {};
}

// Helpers -----------------------------------------------------------------------------------------------

Variant SharedCode::PSDFile() {
    return writePackageSourceFor(context().company);
}

/// Set by whoever keeps the company; 0 unless it is.
Variant SharedCode::OperatingMode() {
    std::int32_t mode = 0;
    if (const auto stored = context().options.get({}, {"OperatingMode", "Application"}))
        readNumber(*stored, mode);
    return mode;
}

Variant SharedCode::invoke(std::string_view member, Access access, Arguments arguments) {
    using Self = SharedCode;
    static constexpr Member<Self> members[] = {
        {"Database", [](Self& self, Arguments) { return Variant(self.database_); }},
        {"Common", [](Self& self, Arguments) { return Variant(self.common_); }},
        {"Security", [](Self& self, Arguments) { return Variant(self.security_); }},
        {"Options", [](Self& self, Arguments) { return Variant(self.options_); }},
        {"Messages", [](Self& self, Arguments) { return Variant(self.messages_); }},
        {"Activity", [](Self& self, Arguments) { return Variant(self.activity_); }},
        {"Profiles", [](Self& self, Arguments) { return Variant(self.profiles_); }},
        {"ShowMessageStyle1",
         [](Self& self, Arguments a) {
             a.require(1, 4);
             return self.showMessage(MessageStyle::Style1, a);
         }},
        {"ShowMessageStyle1WithMemory",
         [](Self& self, Arguments a) { return self.ShowMessageStyle1WithMemory(a); }},
        {"ShowMessageStyle2",
         [](Self& self, Arguments a) {
             a.require(1, 5);
             return self.showMessage(MessageStyle::Style2, a);
         }},
        {"ShowAndLogErrorMessage",
         [](Self& self, Arguments a) {
             a.require(1, 5);
             return self.showError(a, true);
         }},
        {"ShowErrorMessage",
         [](Self& self, Arguments a) {
             a.require(1, 3);
             return self.showError(a, false);
         }},
        {"ShowADOErrorMessage",
         [](Self& self, Arguments a) {
             a.require(1, 3);
             return self.showError(a, false);
         }},
        {"RecordEvent", [](Self& self, Arguments a) { return self.RecordEvent(a); }},
        {"FixForSQLInsert",
         [](Self&, Arguments a) {
             a.require(1, 1);
             return Variant(modSharedSQL::doubleQuotes(textOf(a[0])));
         }},
        // Without quotes, which stand in the statement.
        {"FixDateForSQLInsert",
         [](Self&, Arguments a) {
             a.require(1, 1);
             return Variant(sqlDateText(a[0].toDate()));
         }},
        {"PSDFile", [](Self& self, Arguments) { return self.PSDFile(); }},
        // The company has no connection object of this kind yet, and the module knows how to go without.
        {"CurrentCompanyConn", [](Self&, Arguments) { return Variant(ObjectPtr()); }},
        {"OperatingMode", [](Self& self, Arguments) { return self.OperatingMode(); }},
        // The second argument is the length in bits.
        {"GetSHA2",
         [](Self&, Arguments a) {
             a.require(1, 2);
             return Variant(sha2(textOf(a[0]), a.valueOr(1, 256).toLong()));
         }},
    };
    return answer(*this, "SharedCode", members, member, access, arguments);
}

}  // namespace tsln::workbench
