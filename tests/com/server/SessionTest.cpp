// A host uses the module from begin to end: real windows over a real company database, called through COM
// only.

#include <atomic>
#include <fstream>
#include <map>

#include <gmock/gmock.h>

#include "automation/FilePath.h"
#include "com/edge/Conversion.h"
#include "com/edge/DispatchObject.h"
#include "com/edge/Wide.h"
#include "doubles/RecordingHost.h"
#include "doubles/TempFolder.h"
#include "tests/com/server/Server.h"
#include "workbench/host/CompanySession.h"

namespace tsln::test {
namespace {

using ::testing::SizeIs;
using workbench::CompanySession;

/// Records the host's messages instead of showing them.
class SilentUi : public workbench::HostUi {
  public:
    workbench::Reply showMessage(const workbench::Message& message) override {
        told.push_back(message.text);
        return {};
    }
    std::optional<workbench::Email> editEmail(const workbench::Email& email) override { return email; }
    std::vector<std::string> told;
};

class SessionTest : public ::testing::Test {
  protected:
    void SetUp() override {
        session.company().execute("DELETE FROM Terms");
        session.company().execute(
            "INSERT INTO Terms (Terms, DueDays, Discount, DiscountDays, Exported) "
            "VALUES ('Net 30', 30, 0, 0, 0)");
        ComPtr<IDispatch> sharedCode = com::adopt(com::newDispatch(session.sharedCode()));
        ASSERT_EQ(S_OK, library->Initialize(sharedCode.GetAddressOf()));
    }
    void TearDown() override {
        if (library) {
            EXPECT_EQ(S_OK, library->PreTerminate());
        }
    }

    std::string terms() {
        return session.company()
            .scalar("SELECT COUNT(*) FROM Terms WHERE Terms = 'Net 45' AND DueDays = 45")
            .toText();
    }

    TempFolder folder{"Größe "};  // with a blank and a letter beyond ASCII
    SilentUi ui;
    const std::string file = folder.file("Road.company");
    CompanySession session{file, "admin", ui};
    ComPtr<ILibrary> library = newLibrary();
};

TEST_F(SessionTest, TermsAreListedAddedEditedAndDeleted) {
    VARIANT_BOOL closed = VARIANT_FALSE;
    {
        const User user([](WindowDriver& at) {
            at.selectFirstRow("Terms");
            at.press("Terms", "&New...");
            at.fill("New Terms", 0, "  Net 45 “quoted” 'text'  ");
            at.fill("New Terms", 1, "45");
            at.press("New Terms", "OK");
            EXPECT_TRUE(at.gone("New Terms"));
            at.selectFirstRow("Terms");
            at.press("Terms", "&Close");
        });
        ASSERT_EQ(S_OK, library->ShowTerms(&closed));
    }
    EXPECT_EQ(VARIANT_TRUE, closed);
    const std::int32_t id =
        session.company().scalar("SELECT ID FROM Terms WHERE Terms = 'Net 45 “quoted” ''text'''").toLong();
    ASSERT_GT(id, 0) << session.company().scalar("SELECT TOP 1 Terms FROM Terms ORDER BY ID DESC").toText();
    EXPECT_EQ(
        45, session.company().scalar("SELECT DueDays FROM Terms WHERE ID = " + std::to_string(id)).toLong());

    LONG key = id;
    LONG saved = 0;
    {
        const User user([](WindowDriver& at) {
            at.window("Edit Terms");
            while (at.read("Edit Terms", 0).empty())
                Sleep(20);
            EXPECT_EQ("Net 45 “quoted” 'text'", at.read("Edit Terms", 0));
            at.fill("Edit Terms", 0, "");
            at.press("Edit Terms", "OK");
            at.press("Tessaline", "OK");  // "You must enter a valid term."
            at.fill("Edit Terms", 0, "Net 45");
            at.press("Edit Terms", "OK");
        });
        ASSERT_EQ(S_OK, library->ShowEditTerms(&key, &saved));
    }
    EXPECT_EQ(id, saved);
    EXPECT_EQ("1", terms());

    {  // a screen that is closed by its close box returns false
        const User user([](WindowDriver& at) { at.close("Terms"); });
        com::OwnedVariant result;
        ASSERT_EQ(S_OK, callByName(library.Get(), "ShowTerms", {}, result.get()));
        EXPECT_EQ(VARIANT_FALSE, V_BOOL(result.get()));
    }
    EXPECT_TRUE(ui.told.empty());
}

TEST_F(SessionTest, DefaultsComeFromTheProgramBesideTheHost) {
    session.company().execute("DELETE FROM Terms");
    const User user([&](WindowDriver& at) {
        at.press("Tessaline", "&Yes");
        at.window("Terms");  // waits until the other program has ended
        while (session.company().scalar("SELECT COUNT(*) FROM Terms").toLong() < 3)
            Sleep(50);
        at.selectFirstRow("Terms");
        at.press("Terms", "&Close");
    });
    VARIANT_BOOL closed;
    ASSERT_EQ(S_OK, library->ShowTerms(&closed));
    EXPECT_TRUE(ui.told.empty());
}

// The host fills the editor's lists through the controls that are passed to it, and gives the row as a
// recordset.
TEST_F(SessionTest, AVendorIsEditedAndItsHistoryTellsTheChange) {
    const std::string contact = session.company().scalar("SELECT Contact FROM Vendors WHERE ID = 3").toText();
    ASSERT_FALSE(contact.empty());
    session.company().execute("DELETE FROM VendorActivity");
    session.company().execute(
        "UPDATE Vendors SET TermsID = NULL WHERE ID = 3");  // the demonstration data has no such row
    LONG key = 3;
    LONG saved = 0;
    {
        const User user([&](WindowDriver& at) {
            at.window("Edit Vendor");
            while (at.read("Edit Vendor", 1) != contact)
                Sleep(20);
            at.fill("Edit Vendor", 1, "Åse O'Neill");
            at.press("Edit Vendor", "OK");
        });
        ASSERT_EQ(S_OK, library->ShowEditVendor(&key, &saved));
    }
    EXPECT_EQ(3, saved);
    EXPECT_EQ("Åse O'Neill", session.company().scalar("SELECT Contact FROM Vendors WHERE ID = 3").toText());
    EXPECT_EQ("Vendor updated:\r\nContact: " + contact + " to Åse O'Neill",
              session.company().scalar("SELECT Activity FROM VendorActivity WHERE VendorID = 3").toText());
    EXPECT_TRUE(ui.told.empty()) << ui.told.front();
}

TEST_F(SessionTest, AChosenLocationIsReturnedByResultAndArgument) {
    LONG customer = 11, measurement = 0;
    VARIANT_BOOL chosen = VARIANT_FALSE;
    const std::string name =
        session.company().scalar("SELECT CustomerName FROM Customers WHERE ID = 11").toText();
    for (const char* button : {"OK", "Cancel"}) {
        const bool accepted = std::string_view(button) == "OK";
        const User user([&](WindowDriver& at) { at.press("Customer Measurements - " + name, button); });
        ASSERT_EQ(S_OK, library->SelectCustomerMeasurementsLocation(&customer, &chosen, &measurement));
        EXPECT_EQ(accepted ? VARIANT_TRUE : VARIANT_FALSE, chosen);
        EXPECT_EQ(accepted, measurement > 0);
    }
    EXPECT_TRUE(ui.told.empty());
}

TEST_F(SessionTest, ATemplateIsMadeAndTestedAndItsMessageSaved) {
    session.company().execute("DELETE FROM SentMessages");
    const auto value = [&](const char* sql) { return session.company().scalar(sql).toText(); };
    const std::string customer =
        value("SELECT TOP 1 CustomerName FROM Customers WHERE CustomerName LIKE 'O''Dell%' ORDER BY ID");
    LONG ID = 0, saved = 0;
    {
        const User user([&](WindowDriver& at) {
            constexpr std::size_t group = 0, name = 1, subject = 5, body = 6, test = 7;
            at.fill("Edit E-mail Template", group, "Care");
            at.key("Edit E-mail Template", 'T', VK_MENU);
            at.key("Edit E-mail Template", VK_HOME);
            at.fill("Edit E-mail Template", name, "Care guide");
            at.fill("Edit E-mail Template", subject, "For <<CustomerName>>");
            at.fill("Edit E-mail Template", body, "Grüße, <<FirstName>>");
            at.fill("Edit E-mail Template", test, customer);
            at.click("Edit E-mail Template", "Test this template with customer");
            workbench::Company own(file, workbench::OpenMode::ReadOnly);  // of this thread
            for (int i = 0; i < 200 && own.scalar("SELECT COUNT(*) FROM SentMessages").toLong() == 0; ++i)
                Sleep(50);
            at.press("Edit E-mail Template", "OK");
        });
        ASSERT_EQ(S_OK, library->ShowEditEmailTemplate(&ID, &saved));
    }
    EXPECT_EQ("For " + customer, value("SELECT Subject FROM SentMessages"));
    EXPECT_EQ(std::to_string(saved),
              value("SELECT ID FROM EmailTemplates WHERE TemplateName = 'Care guide' AND "
                    "BodyText = 'Grüße, <<FirstName>>'"));
    {
        const User user([&](WindowDriver& at) {
            at.choose("Sent Messages", "&Messages", 1);
            at.fill("Save As", 0, folder.file("messages.txt"));
            at.press("Save As", "Save");
            at.press("Sent Messages", "&Close");
        });
        ASSERT_EQ(S_OK, library->ShowSentMessages());
    }
    std::ifstream stream(pathOf(folder.file("messages.txt")), std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(stream), {}};
    EXPECT_NE(text.find("Subject: For " + customer + "\r\n\r\nGrüße, "), text.npos) << text;
    EXPECT_TRUE(ui.told.empty());
}

// The host returns the parts of a name and of an address by reference.
TEST_F(SessionTest, ACustomerIsAddedAndItsOrdersGetItsSalesRep) {
    const auto value = [this](const std::string& sql) { return session.company().scalar(sql).toText(); };
    LONG key = 0;
    LONG saved = 0;
    {
        const User user([&](WindowDriver& at) {
            at.window("New Customer");
            at.fill("New Customer", 0, "Åse M. O'Neill");
            at.press("New Customer", "OK");
        });
        ASSERT_EQ(S_OK, library->ShowEditCustomer(&key, &saved));
    }
    ASSERT_GT(saved, 60);
    const std::string where = " FROM Customers WHERE ID = " + std::to_string(saved);
    EXPECT_EQ("Åse M. O'Neill", value("SELECT CustomerName" + where));
    EXPECT_EQ("Customer added.",
              value("SELECT Activity FROM CustomerActivity WHERE CustomerID = " + std::to_string(saved)));
    EXPECT_EQ("1",
              value("SELECT COUNT(*) FROM CustomerAddresses WHERE CustomerID = " + std::to_string(saved)));

    key = saved;
    {
        const User user([&](WindowDriver& at) {
            while (at.read("Edit Customer", 0) != "Åse M. O'Neill")
                Sleep(20);
            at.fill("Edit Customer", 1, "Fjord");
            at.press("Edit Customer", "OK");
        });
        ASSERT_EQ(S_OK, library->ShowEditCustomer(&key, &saved));
    }
    EXPECT_EQ("Customer updated:\r\nCompanyName:  to Fjord",
              value("SELECT TOP 1 Activity FROM CustomerActivity WHERE CustomerID = " +
                    std::to_string(saved) + " ORDER BY ID DESC"));

    key = 8;
    {
        const User user([&](WindowDriver& at) {
            at.press("Update Order Information", "OK");
            at.press("Tessaline", "OK");  // nothing was ticked
            at.press("Update Order Information", "Cancel");
        });
        ASSERT_EQ(S_OK, library->ShowUpdateOrderInformation(&key));
    }
    EXPECT_TRUE(ui.told.empty()) << ui.told.front();
}

TEST_F(SessionTest, TheCompanyIsEdited) {
    VARIANT_BOOL cancelled = VARIANT_TRUE;
    {
        const User user([](WindowDriver& at) {
            while (at.read("Edit Company", 0) != "Lanternlight Window Coverings")
                Sleep(20);
            at.fill("Edit Company", 1, "åse@example");
            at.press("Edit Company", "OK");
        });
        ASSERT_EQ(S_OK, library->ShowEditCompany(&cancelled));
    }
    EXPECT_EQ(VARIANT_FALSE, cancelled);
    EXPECT_EQ("åse@example", session.company().scalar("SELECT Email FROM Company").toText());
    EXPECT_TRUE(ui.told.empty()) << ui.told.front();
}

TEST_F(SessionTest, NothingOfTheHostIsHeldAfterAScreen) {
    const auto open = [&] {
        const User user([](WindowDriver& at) { at.press("Terms", "&Close"); });
        VARIANT_BOOL closed;
        EXPECT_EQ(S_OK, library->ShowTerms(&closed));
    };
    open();  // creates the objects that exist once a process
    ComPtr<IDispatch> held;
    library->get_SharedCodeLibrary(&held);
    const ULONG references = (held->AddRef(), held->Release());
    const long objects = com::moduleReferences();
    for (int i = 0; i < 3; ++i)
        open();
    EXPECT_EQ(references, (held->AddRef(), held->Release()));
    EXPECT_EQ(objects, com::moduleReferences());
}

/// Handles messages for that many milliseconds.
void pumpFor(DWORD time) {
    for (const ULONGLONG end = GetTickCount64() + time; GetTickCount64() < end; Sleep(10)) {
        for (MSG message; PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE);)
            DispatchMessageW(&message);
    }
}

TEST_F(SessionTest, TheHostsWindowsAreDisabledWhileAScreenIsOpen) {
    const auto create = [](const wchar_t* caption, int left, DWORD style) {
        return CreateWindowExW(0, L"STATIC", caption, WS_OVERLAPPEDWINDOW | WS_VISIBLE | style, left, 50, 200,
                               200, nullptr, nullptr, nullptr, nullptr);
    };
    const HWND asleep = create(L"Asleep", 50, WS_DISABLED);
    const HWND palette = create(L"A palette", 300, 0);
    const HWND host = create(L"The host", 550, 0);
    pumpFor(1000);  // the window manager may change the foremost window with a delay
    ASSERT_EQ(host, GetActiveWindow());
    {
        const User user([&](WindowDriver& at) {
            const HWND screen = at.window("Terms");
            EXPECT_FALSE(IsWindowEnabled(host));
            EXPECT_FALSE(IsWindowEnabled(palette));
            EXPECT_EQ(host, GetWindow(screen, GW_OWNER));
            at.press("Terms", "&New...");
            at.window("New Terms");
            EXPECT_FALSE(IsWindowEnabled(screen));
            at.press("New Terms", "Cancel");
            at.press("Terms", "&Close");
        });
        VARIANT_BOOL closed;
        EXPECT_EQ(S_OK, library->ShowTerms(&closed));
    }
    EXPECT_TRUE(IsWindowEnabled(host));
    EXPECT_TRUE(IsWindowEnabled(palette));
    EXPECT_FALSE(IsWindowEnabled(asleep));  // it was disabled before
    EXPECT_EQ(host, GetActiveWindow());
    for (const HWND window : {host, palette, asleep})
        DestroyWindow(window);
}

TEST_F(SessionTest, TheHostMayEndWhileAScreenIsOpen) {
    const DWORD thread = GetCurrentThreadId();
    {
        const User user([&](WindowDriver& at) {
            at.selectFirstRow("Terms");
            PostThreadMessageW(thread, WM_QUIT, 0, 0);
            EXPECT_TRUE(at.gone("Terms"));
        });
        VARIANT_BOOL closed = VARIANT_TRUE;
        EXPECT_EQ(S_OK, library->ShowTerms(&closed));
        EXPECT_EQ(VARIANT_FALSE, closed);
    }
    MSG message{};  // the message to quit is left for the host's own loop
    EXPECT_TRUE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
}

TEST_F(SessionTest, TheHostMayDestroyItsWindowWhileAScreenIsOpen) {
    const HWND host = CreateWindowExW(0, L"STATIC", L"The host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 50, 50,
                                      200, 200, nullptr, nullptr, nullptr, nullptr);
    {
        const User user([&](WindowDriver& at) {
            at.selectFirstRow("Terms");
            PostMessageW(host, WM_CLOSE, 0, 0);
            EXPECT_TRUE(at.gone("The host"));
            EXPECT_TRUE(at.gone("Terms"));
        });
        VARIANT_BOOL closed = VARIANT_TRUE;
        EXPECT_EQ(S_OK, library->ShowTerms(&closed));
        EXPECT_EQ(VARIANT_FALSE, closed);
    }
    const User user([](WindowDriver& at) { at.press("Terms", "&Close"); });
    VARIANT_BOOL closed = VARIANT_FALSE;
    EXPECT_EQ(S_OK, library->ShowTerms(&closed));
    EXPECT_EQ(VARIANT_TRUE, closed);
}

TEST_F(SessionTest, WindowPositionsAreKeptInTheRegistry) {
    {
        const User user([](WindowDriver& at) {
            SetWindowPos(at.window("Terms"), nullptr, 120, 80, 640, 420, SWP_NOZORDER | SWP_NOACTIVATE);
            at.press("Terms", "&Close");
        });
        VARIANT_BOOL closed;
        ASSERT_EQ(S_OK, library->ShowTerms(&closed));
    }
    for (const wchar_t* value : {L"Left", L"Width", L"Height"}) {
        DWORD size = 0;
        EXPECT_EQ(
            ERROR_SUCCESS,
            RegGetValueW(HKEY_CURRENT_USER, L"Software\\Kestrane\\Tessaline\\5.0\\Window Positions\\frmTerms",
                         value, RRF_RT_ANY, nullptr, nullptr, &size))
            << com::toUtf8(value);
    }
    {
        const User user([](WindowDriver& at) {
            RECT rect;
            GetWindowRect(at.window("Terms"), &rect);
            EXPECT_EQ(120, rect.left);
            EXPECT_EQ(640, rect.right - rect.left);
            at.press("Terms", "&Close");
        });
        VARIANT_BOOL closed;
        ASSERT_EQ(S_OK, library->ShowTerms(&closed));
    }
}

TEST_F(SessionTest, TheModuleCanBeUnloadedAndLoadedAgain) {
    const auto isLoaded = [] { return GetModuleHandleW(L"tslnmaint5.dll") != nullptr; };
    for (int round = 0; round < 3; ++round) {
        {
            const User user([](WindowDriver& at) { at.press("Terms", "&Close"); });
            VARIANT_BOOL closed;
            ASSERT_EQ(S_OK, library->ShowTerms(&closed)) << round;
        }
        ASSERT_EQ(S_OK, library->PreTerminate());
        library.Reset();
        CoFreeUnusedLibrariesEx(0, 0);
        EXPECT_FALSE(isLoaded()) << round;
        library = newLibrary();
        ComPtr<IDispatch> sharedCode = com::adopt(com::newDispatch(session.sharedCode()));
        ASSERT_EQ(S_OK, library->Initialize(sharedCode.GetAddressOf()));
    }
}

TEST_F(SessionTest, TheHostMayReleaseTheLibraryWhileAScreenIsOpen) {
    ILibrary* last = library.Detach();
    const User user([](WindowDriver& at) { at.press("Terms", "&Close"); });
    const auto host = RecordingHost::make();
    host->on("Security.CanDo", [&](Arguments) {
        if (last) std::exchange(last, nullptr)->Release();
        return Variant(true);
    });
    host->rows("SELECT * FROM Terms ORDER BY Terms",
               "<Records><Record><ID>1</ID><Terms>Net 30</Terms></Record></Records>");
    ComPtr<IDispatch> sharedCode = com::adopt(com::newDispatch(host->sharedCode()));
    ILibrary* called = last;
    ASSERT_EQ(S_OK, called->Initialize(sharedCode.GetAddressOf()));
    VARIANT_BOOL closed;
    EXPECT_EQ(S_OK, called->ShowTerms(&closed));
    EXPECT_EQ(nullptr, last);
}

// Documents of the platform ---------------------------------------------------------------------------

TEST(HostDocuments, TheParserOfThePlatformIsReadInOnePiece) {
    const auto host = RecordingHost::make();
    host->on("Database.ExecuteRead", [](Arguments) {
        const ObjectPtr document = com::createComponent("MSXML2.DOMDocument");
        document->call("loadXML",
                       "<Records><Record><ID>1</ID><Terms>Net 30 &amp;#13;&amp;#10;days</Terms></Record>"
                       "<Record><ID>2</ID><Terms>Größe</Terms><DueDays>7</DueDays></Record></Records>");
        return Variant(document);
    });
    ComPtr<IDispatch> sharedCode = com::adopt(com::newDispatch(host->sharedCode()));
    const ComPtr<ILibrary> library = newLibrary();
    ASSERT_EQ(S_OK, library->Initialize(sharedCode.GetAddressOf()));
    const User user([](WindowDriver& at) {
        at.selectFirstRow("Terms");
        at.press("Terms", "&Close");
    });
    VARIANT_BOOL closed;
    EXPECT_EQ(S_OK, library->ShowTerms(&closed));
}

// A host that fails -----------------------------------------------------------------------------------

/// Operates every window that the module shows until this object is destroyed.
class Stubborn {
  public:
    Stubborn() : thread_([this] { run(); }) {}
    ~Stubborn() {
        done_ = true;
        thread_.join();
    }

  private:
    void act(HWND window) {
        // A screen that is working ignores clicks, and one that cannot save stays open. After some tries it
        // is closed.
        const std::vector<HWND> parts = childrenOf(window);
        const auto field = std::ranges::find_if(parts, [](HWND part) {
            wchar_t name[8] = {};
            GetClassNameW(part, name, 8);
            return std::wstring_view(name) == L"Edit";
        });
        if (field != parts.end() && tries_[window]++ < 10) {
            SendMessageW(*field, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(L"Net 45"));
            PostMessageW(FindWindowExW(window, nullptr, L"Button", L"OK"), BM_CLICK, 0, 0);
            return;
        }
        PostMessageW(window, WM_CLOSE, 0, 0);
        PostMessageW(window, WM_COMMAND, IDNO, 0);  // a question has no close box
    }

    void run() {
        while (!done_) {
            if (const std::vector<HWND> windows = ownInputWindows(); !windows.empty()) act(windows.front());
            Sleep(15);
        }
    }

    std::map<HWND, int> tries_;  // how often saving was tried, by window
    std::atomic<bool> done_ = false;
    std::thread thread_;
};

TEST(FailingHost, EveryCallInTurnMayRaiseAndNothingIsHeld) {
    const auto run = [](int failing, Fault fault) {
        const auto host = RecordingHost::make();
        const long objects = com::moduleReferences();
        {
            ComPtr<IDispatch> sharedCode = com::adopt(com::newDispatch(host->sharedCode()));
            const ComPtr<ILibrary> library = newLibrary();
            EXPECT_EQ(S_OK, library->Initialize(sharedCode.GetAddressOf()));
            host->failCall(failing, fault);
            const Stubborn user;
            VARIANT_BOOL flag;
            LONG none = 0;
            LONG id = 0;
            EXPECT_EQ(S_OK, library->ShowTerms(&flag)) << failing;
            EXPECT_EQ(S_OK, library->ShowEditTerms(&none, &id)) << failing;
            EXPECT_EQ(S_OK, library->PreTerminate());
        }
        EXPECT_EQ(objects, com::moduleReferences()) << failing;
        if (failing < 0) {
            EXPECT_THAT(host->callsOf("Database.ExecuteNonQueryWithID"), SizeIs(1));
        }
        return host->callCount();
    };
    const int calls = run(-1, Fault::Raise);
    for (int failing = 0; failing < calls; ++failing) {
        run(failing, Fault::Raise);
        if (failing % 3 == 0) run(failing, Fault::WrongType);
    }
}

}  // namespace
}  // namespace tsln::test
