#include "workbench/tour/MessagesTour.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>

#include <wx/defs.h>

#include "automation/FilePath.h"
#include "workbench/tour/TourSteps.h"
#include "workbench/tour/VirtualUser.h"

namespace tsln::workbench {
namespace {

constexpr int measuredCustomer = 11;
constexpr int shotMeasurements = 20;
constexpr std::chrono::seconds timeToMeasure{90};  // two shots each, at two shots a second

std::string textOf(Company& company, const std::string& query) {
    return company.scalar(query).toText();
}

int countOf(Company& company, const std::string& from) {
    return company.scalar("SELECT COUNT(*) FROM " + from).toLong();
}

void expect(bool came, const std::string& what) {
    if (!came) throw ScriptFailure("The tour does not find that " + what + ".");
}

Script measure(ObjectPtr library, Company& company, std::shared_ptr<Album> album) {
    co_await untilActive("Tessaline Workbench");
    const std::string own = "CustomerMeasurements WHERE CustomerID = " + std::to_string(measuredCustomer);
    const int before = countOf(company, own);
    const std::string title =
        "Customer Measurements - " +
        textOf(company, "SELECT CustomerName FROM Customers WHERE ID = " + std::to_string(measuredCustomer));
    open(library, "ShowCustomerMeasurements", measuredCustomer);
    co_await untilActive(title);
    co_await settled();
    press(WXK_INSERT);
    co_await untilActive("New Customer Measurement");
    co_await settled();
    type("Pool house");
    press('r', wxMOD_ALT);
    type("Sun room");
    press('a', wxMOD_ALT);
    co_await settled();
    album->take("measurement", "a measurement; \"again\" is ticked");
    press('t', wxMOD_ALT);
    const auto measured = [&] { return countOf(company, own) >= before + shotMeasurements; };
    co_await until("the meter has typed all measurements", measured, timeToMeasure);
    co_await settled();
    album->take("measured", "the meter has typed widths and heights, row after row");
    const std::string typed = own + " AND Location = 'Pool house' AND Room = 'Sun room'";
    expect(countOf(company, typed) == shotMeasurements, "every measurement is stored once");
    expect(countOf(company, typed + " AND (Width = '' OR Length = '')") == 0, "no shot is lost");
    expect(textOf(company, "SELECT TOP 1 Width + ' x ' + Length FROM " + typed + " ORDER BY ID") == "24 x 60",
           "the first shots are the first row");
    expect(textOf(company, "SELECT TOP 1 Width + ' x ' + Length FROM " + typed + " ORDER BY ID DESC") ==
               "43 3/8 x 79 3/8",
           "the last shots are the last row");
    press(WXK_ESCAPE);
    co_await untilActive(title);
    co_await settled();
    album->take("measurements", "the list has shown each of them at once");
    press(WXK_ESCAPE);
    co_await untilActive("Tessaline Workbench");
}

Script write(ObjectPtr library, Company& company, std::shared_ptr<Album> album) {
    const std::string customer = textOf(
        company, "SELECT TOP 1 CustomerName FROM Customers WHERE CustomerName LIKE 'O''Dell%' ORDER BY ID");
    const int before = countOf(company, "SentMessages");
    open(library, "ShowEditEmailTemplate", 0);
    co_await untilActive("Edit E-mail Template");
    co_await settled();
    type("Care");
    press('t', wxMOD_ALT);
    press(WXK_HOME);
    press('n', wxMOD_ALT);
    type("Care guide");
    press('s', wxMOD_ALT);
    type("Care of your shutters");
    press(WXK_TAB);
    type("Dear ");
    co_await settled();
    album->take("template", "a new template for customers");
    press(WXK_TAB);  // the link that hides the fields
    press(WXK_TAB);
    press(WXK_DOWN);  // a list without a focused row takes the first one
    press(WXK_HOME);
    co_await settled();
    press(WXK_DOWN);
    co_await settled();
    press(WXK_RETURN);
    co_await settled();
    type(", dust them.");
    press('w', wxMOD_ALT);
    type(customer);
    co_await settled();
    album->take("merge-field", "a field, inserted at the caret, and a customer to test with");
    press(WXK_RETURN);
    co_await untilActive("Send E-mail");
    co_await settled();
    album->take("send", "the host's window, its fields filled from the customer");
    press(WXK_RETURN);
    co_await untilActive("Edit E-mail Template");
    expect(countOf(company, "SentMessages") == before + 1, "the test was sent");
    press('n', wxMOD_ALT);
    press(WXK_RETURN);
    co_await untilActive("Tessaline Workbench");
    expect(countOf(company,
                   "EmailTemplates WHERE GroupName = 'Care' AND TemplateName = 'Care guide' AND BodyText = "
                   "'Dear <<CustomerName>>, dust them.'") == 1,
           "the template is stored");
}

Script find(ObjectPtr library, Company& company, std::shared_ptr<Album> album, std::string folder) {
    const std::string saved = "message.txt";  // a relative path: dialogs start in the working folder
    std::filesystem::current_path(pathOf(folder));
    std::filesystem::remove(saved);
    open(library, "ShowSentMessages");
    co_await untilActive("Sent Messages");
    co_await settled();
    press(WXK_DOWN);
    press(WXK_HOME);
    co_await settled();
    album->take("sent-messages", "the message among those that were sent");
    press('m', wxMOD_ALT);
    co_await until("the menu is open", [] { return popupIsOpen(); });
    co_await settled();
    press(WXK_DOWN);
    co_await pause(std::chrono::milliseconds(100));
    press(WXK_DOWN);
    co_await settled();
    album->take("messages-menu", "the message menu");
    press(WXK_RETURN);
    co_await untilActive("Save As");
    co_await settled();
    type("message");  // replaces the proposed name; its extension stays
    co_await settled();
    press(WXK_RETURN);
    co_await untilActive("Sent Messages");
    co_await until("the file is written", [&] { return std::filesystem::exists(saved); });
    std::ifstream file(saved, std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(file), {}};
    const std::string body = textOf(company, "SELECT TOP 1 BodyText FROM SentMessages ORDER BY ID DESC");
    expect(text.find("Subject: Care of your shutters\r\n\r\nDear O'Dell") != text.npos &&
               text.ends_with(body + "\r\n"),
           "the message is saved as text");
    press(WXK_ESCAPE);
    co_await untilActive("Tessaline Workbench");
}

}  // namespace

Script messagesTour(const ObjectPtr& library, Company& company, const std::string& folder) {
    const auto album = std::make_shared<Album>(folder, "messages-");
    return inSequence(measure(library, company, album), write(library, company, album),
                      find(library, company, album, folder));
}

}  // namespace tsln::workbench
