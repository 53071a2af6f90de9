// A host uses the module from begin to end: real windows over a real company database, called through COM
// only.

#include <gmock/gmock.h>

#include "com/edge/Wide.h"
#include "doubles/RecordingHost.h"
#include "tests/com/server/OverCompany.h"

namespace tsln::test {
namespace {

using ::testing::IsEmpty;

class SessionTest : public OverCompany {
  protected:
    SessionTest() {
        session.company().execute("DELETE FROM Terms");
        session.company().execute(
            "INSERT INTO Terms (Terms, DueDays, Discount, DiscountDays, Exported) "
            "VALUES ('Net 30', 30, 0, 0, 0)");
    }

    /// Shows the list of terms to a user. Returns whether it was closed by its button.
    bool showTerms(std::function<void(WindowDriver&)> acts = [](WindowDriver& at) {
        at.press("Terms", "&Close");
    }) {
        const User user(std::move(acts));
        VARIANT_BOOL closed = 7;
        EXPECT_EQ(S_OK, library->ShowTerms(&closed));
        EXPECT_TRUE(closed == VARIANT_TRUE || closed == VARIANT_FALSE);
        return closed == VARIANT_TRUE;
    }
};

TEST_F(SessionTest, TermsAreListedAddedEditedAndDeleted) {
    EXPECT_TRUE(showTerms([](WindowDriver& at) {
        at.selectFirstRow("Terms");
        at.press("Terms", "&New...");
        at.fill("New Terms", 0, "  Net 45 “quoted” 'text'  ");
        at.fill("New Terms", 1, "45");
        at.press("New Terms", "OK");
        EXPECT_TRUE(at.gone("New Terms"));
        at.selectFirstRow("Terms");
        at.press("Terms", "&Close");
    }));
    LONG key = session.company()
                   .scalar("SELECT ID FROM Terms WHERE Terms = 'Net 45 “quoted” ''text''' AND DueDays = 45")
                   .toLong();
    ASSERT_GT(key, 0) << value("SELECT TOP 1 Terms FROM Terms ORDER BY ID DESC");

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
    EXPECT_EQ(key, saved);
    EXPECT_EQ("1", value("SELECT COUNT(*) FROM Terms WHERE Terms = 'Net 45' AND DueDays = 45"));

    {  // a screen that is closed by its close box returns false
        const User user([](WindowDriver& at) { at.close("Terms"); });
        com::OwnedVariant result;
        ASSERT_EQ(S_OK, callByName(library.Get(), "ShowTerms", {}, result.get()));
        EXPECT_EQ(VARIANT_FALSE, V_BOOL(result.get()));
    }
    EXPECT_THAT(ui.told, IsEmpty());
}

TEST_F(SessionTest, DefaultsComeFromTheProgramBesideTheHost) {
    session.company().execute("DELETE FROM Terms");
    showTerms([&](WindowDriver& at) {
        at.press("Tessaline", "&Yes");
        at.window("Terms");  // waits until the other program has ended
        while (session.company().scalar("SELECT COUNT(*) FROM Terms").toLong() < 3)
            Sleep(50);
        at.selectFirstRow("Terms");
        at.press("Terms", "&Close");
    });
    EXPECT_THAT(ui.told, IsEmpty());
}

// The host fills the editor's lists through the controls that are passed to it, and gives the row as a
// recordset.
TEST_F(SessionTest, AVendorIsEditedAndItsHistoryTellsTheChange) {
    const std::string contact = value("SELECT Contact FROM Vendors WHERE ID = 3");
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
    EXPECT_EQ("Åse O'Neill", value("SELECT Contact FROM Vendors WHERE ID = 3"));
    EXPECT_EQ("Vendor updated:\r\nContact: " + contact + " to Åse O'Neill",
              value("SELECT Activity FROM VendorActivity WHERE VendorID = 3"));
    EXPECT_THAT(ui.told, IsEmpty());
}

TEST_F(SessionTest, AChosenLocationIsReturnedByResultAndArgument) {
    LONG customer = 11, measurement = 0;
    VARIANT_BOOL chosen = VARIANT_FALSE;
    const std::string name = value("SELECT CustomerName FROM Customers WHERE ID = 11");
    for (const char* button : {"OK", "Cancel"}) {
        const bool accepted = std::string_view(button) == "OK";
        const User user([&](WindowDriver& at) { at.press("Customer Measurements - " + name, button); });
        ASSERT_EQ(S_OK, library->SelectCustomerMeasurementsLocation(&customer, &chosen, &measurement));
        EXPECT_EQ(accepted ? VARIANT_TRUE : VARIANT_FALSE, chosen);
        EXPECT_EQ(accepted, measurement > 0);
    }
    EXPECT_THAT(ui.told, IsEmpty());
}

// The host returns the parts of a name and of an address by reference.
TEST_F(SessionTest, ACustomerIsAdded) {
    LONG none = 0, saved = 0;
    {
        const User user([](WindowDriver& at) {
            at.fill("New Customer", 0, "Åse M. O'Neill");
            at.press("New Customer", "OK");
        });
        ASSERT_EQ(S_OK, library->ShowEditCustomer(&none, &saved));
    }
    const std::string number = std::to_string(saved);
    EXPECT_EQ("Åse M. O'Neill", value("SELECT CustomerName FROM Customers WHERE ID = " + number));
    EXPECT_EQ("Customer added.", value("SELECT Activity FROM CustomerActivity WHERE CustomerID = " + number));
    EXPECT_EQ("1", value("SELECT COUNT(*) FROM CustomerAddresses WHERE CustomerID = " + number));
    EXPECT_THAT(ui.told, IsEmpty());
}

TEST_F(SessionTest, NothingOfTheHostIsHeldAfterAScreen) {
    showTerms();  // creates the objects that exist once a process
    ComPtr<IDispatch> held;
    library->get_SharedCodeLibrary(&held);
    const ULONG references = (held->AddRef(), held->Release());
    const long objects = com::moduleReferences();
    for (int i = 0; i < 3; ++i)
        showTerms();
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
    showTerms([&](WindowDriver& at) {
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
    EXPECT_TRUE(IsWindowEnabled(host));
    EXPECT_TRUE(IsWindowEnabled(palette));
    EXPECT_FALSE(IsWindowEnabled(asleep));  // it was disabled before
    EXPECT_EQ(host, GetActiveWindow());
    for (const HWND window : {host, palette, asleep})
        DestroyWindow(window);
}

TEST_F(SessionTest, TheHostMayEndWhileAScreenIsOpen) {
    const DWORD thread = GetCurrentThreadId();
    EXPECT_FALSE(showTerms([&](WindowDriver& at) {
        at.selectFirstRow("Terms");
        PostThreadMessageW(thread, WM_QUIT, 0, 0);
        EXPECT_TRUE(at.gone("Terms"));
    }));
    MSG message{};  // the message to quit is left for the host's own loop
    EXPECT_TRUE(PeekMessageW(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
}

TEST_F(SessionTest, TheHostMayDestroyItsWindowWhileAScreenIsOpen) {
    const HWND host = CreateWindowExW(0, L"STATIC", L"The host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 50, 50,
                                      200, 200, nullptr, nullptr, nullptr, nullptr);
    EXPECT_FALSE(showTerms([&](WindowDriver& at) {
        at.selectFirstRow("Terms");
        PostMessageW(host, WM_CLOSE, 0, 0);
        EXPECT_TRUE(at.gone("The host"));
        EXPECT_TRUE(at.gone("Terms"));
    }));
    EXPECT_TRUE(showTerms());
}

TEST_F(SessionTest, WindowPositionsAreKeptInTheRegistry) {
    showTerms([](WindowDriver& at) {
        SetWindowPos(at.window("Terms"), nullptr, 120, 80, 640, 420, SWP_NOZORDER | SWP_NOACTIVATE);
        at.press("Terms", "&Close");
    });
    for (const wchar_t* value : {L"Left", L"Width", L"Height"}) {
        DWORD size = 0;
        EXPECT_EQ(
            ERROR_SUCCESS,
            RegGetValueW(HKEY_CURRENT_USER, L"Software\\Kestrane\\Tessaline\\5.0\\Window Positions\\frmTerms",
                         value, RRF_RT_ANY, nullptr, nullptr, &size))
            << com::toUtf8(value);
    }
    showTerms([](WindowDriver& at) {
        RECT rect;
        GetWindowRect(at.window("Terms"), &rect);
        EXPECT_EQ(120, rect.left);
        EXPECT_EQ(640, rect.right - rect.left);
        at.press("Terms", "&Close");
    });
}

TEST_F(SessionTest, TheModuleCanBeUnloadedAndLoadedAgain) {
    const auto isLoaded = [] { return GetModuleHandleW(L"tslnmaint5.dll") != nullptr; };
    for (int round = 0; round < 3; ++round) {
        EXPECT_TRUE(showTerms()) << round;
        ASSERT_EQ(S_OK, library->PreTerminate());
        library.Reset();
        CoFreeUnusedLibrariesEx(0, 0);
        EXPECT_FALSE(isLoaded()) << round;
        library = newLibrary();
        initialize();
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

}  // namespace
}  // namespace tsln::test
