#include "bridge/Host.h"
#include "doubles/Stage.h"
#include "doubles/TempFolder.h"
#include "maintenance/RecordDialog.h"

namespace tsln::test {
namespace {

std::int32_t codeOf(const std::function<void()>& call) {
    try {
        call();
    } catch (const HostError& error) {
        return error.code();
    }
    return 0;
}

TEST(Operations, KeepTheirNumbers) {
    EXPECT_EQ(operations.size(), 95U);
    // Early-bound hosts call the operations by these numbers.
    const std::pair<int, std::string_view> landmarks[] = {
        {0, "SharedCodeLibrary"},
        {3, "InitialSyncComplete"},
        {16, "ShowEditPortfiolioTag"},
        {33, "ShowEditLocation"},
        {65, "ShowChooseAccouningApplication"},
        {68, "ShowTerms"},
        {78, "ShowEditTerms"},
        {93, "ShowEditCustomerMeasurement"},
        {94, "RunPackageProcessor"},
    };
    for (const auto& [number, name] : landmarks)
        EXPECT_EQ(operations[static_cast<std::size_t>(number)].name, name);
    EXPECT_EQ(operations[8].visibility, Visibility::Private);
    EXPECT_EQ(operations[94].visibility, Visibility::Internal);
    EXPECT_EQ(std::ranges::count(operations, Visibility::Public, &OperationInfo::visibility), 93);
}

TEST(Library, AnswersByNameAndRaisesThePlatformsErrors) {
    Stage stage;
    Library& library = *stage.library;
    stage.desktop.user<RecordDialog>("frmTerms_Edit", [](RecordDialog& d) { EXPECT_EQ(d.ID, 7); });
    EXPECT_EQ(library.call("showeditterms", "7"), Variant(7));
    Variant byReference(std::int16_t{9});
    EXPECT_EQ(library.call("ShowEditTerms", Argument::byReference(byReference)), Variant(9));
    EXPECT_EQ(byReference, Variant(std::int16_t{9}));

    EXPECT_EQ(codeOf([&] { library.call("ShowEditTerms"); }), code::paramNotOptional);
    EXPECT_EQ(codeOf([&] { library.call("ShowEditTerms", 1, 2); }), code::badParamCount);
    EXPECT_EQ(codeOf([&] { library.call("ShowEditTerms", "seven"); }), code::typeMismatch);
    EXPECT_EQ(codeOf([&] { library.call("ShowEditTerms", 3e9); }), code::overflow);
    EXPECT_EQ(codeOf([&] { library.call("ShowMoveReferences", 70'000, 1); }), code::overflow);
    EXPECT_EQ(codeOf([&] { library.call("NoSuchOperation"); }), code::unknownName);
    EXPECT_EQ(codeOf([&] { library.call("CanDeleteDiscountGroup", 1); }), code::unknownName) << "private";
    EXPECT_EQ(codeOf([&] { library.call("RunPackageProcessor", "", false); }), code::unknownName)
        << "internal";
    EXPECT_EQ(codeOf([&] { library.put("SharedCodeLibrary", 1); }), code::memberNotFound);
    EXPECT_EQ(codeOf([&] { library.call("Initialize", 5); }), code::typeMismatch);

    EXPECT_THAT(stage.desktop.shown, ElementsAre("frmTerms_Edit", "frmTerms_Edit"));
}

TEST(Library, AnOperationThatNothingIsPluggedInForRaisesAnErrorWithItsName) {
    ScriptedDesktop desktop;
    Library empty(desktop);
    std::size_t missing = 0;
    for (const OperationInfo& row : operations) {
        if (empty.isPluggedIn(row.operation)) continue;
        ++missing;
        std::vector<Argument> arguments(row.argumentCount, Argument(Variant(std::int16_t{1})));
        try {
            empty.perform(row.operation, Arguments(arguments));
            ADD_FAILURE() << row.name;
        } catch (const HostError& error) {
            EXPECT_EQ(error.code(), code::notImplemented);
            EXPECT_THAT(error.text(), HasSubstr(row.name));
        }
    }
    EXPECT_EQ(missing, operations.size() - 5) << "the library's own operations are there";
    EXPECT_THAT(desktop.shown, IsEmpty());
}

TEST(Library, AnAssignmentOfTheHandlerReachesTheCallersVariable) {
    ScriptedDesktop desktop;
    Library library(desktop);
    const ObjectPtr written = RecordingHost::make()->sharedCode();
    std::vector<Variant> results;
    const auto assign = [&](Library&, Arguments a) {
        for (std::size_t i = 0; i < results.size(); ++i)
            a.assign(i, results[i]);
        return Variant(true);
    };
    for (const Operation operation :
         {Operation::ShowMoveReferences, Operation::Perform42Migration, Operation::ShowBulkChange,
          Operation::Initialize, Operation::ShowGetReplacementDiscountGroup})
        library.plugIn(operation, assign);
    Variant first, second;
    const auto call = [&](std::string_view name, Variant before, std::vector<Variant> assigned) {
        first = before;
        second = std::int16_t{1};
        results = std::move(assigned);
        return library.call(name, Argument::byReference(first), Argument::byReference(second));
    };

    // Each value is converted to the declared type, independent of the types of handler and caller.
    call("ShowMoveReferences", "5", {"12", 70'000});
    EXPECT_EQ(first, Variant(std::int16_t{12}));
    EXPECT_EQ(second, Variant(70'000));
    call("Perform42Migration", "old.mdb", {"new.mdb"});
    EXPECT_EQ(first, Variant("new.mdb"));
    EXPECT_EQ(second, Variant(std::int16_t{1})) << "not assigned";
    call("ShowBulkChange", 1, {false, "3,7"});
    EXPECT_EQ(first, Variant(std::int16_t{0}));
    EXPECT_EQ(second, Variant("3,7"));
    results = {written};
    Variant object{ObjectPtr()};
    library.Initialize(Argument::byReference(object));
    EXPECT_EQ(object.toObject(), written);

    // Nothing is written when any part of the call fails.
    EXPECT_EQ(codeOf([&] { call("ShowMoveReferences", 5, {12, "no number"}); }), code::typeMismatch);
    EXPECT_EQ(first, Variant(5));
    library.plugIn(Operation::ShowMoveReferences, [](Library&, Arguments a) -> Variant {
        a.assign(0, 12);
        throw HostError(code::fail, "Host", "no");
    });
    EXPECT_EQ(codeOf([&] { call("ShowMoveReferences", 5, {}); }), code::fail);
    EXPECT_EQ(first, Variant(5));

    // A flag passes its number on.
    const std::pair<Variant, std::int16_t> flags[] = {{true, -1}, {false, 0},   {8, 8},       {256.0, 256},
                                                      {"2", 2},   {"True", -1}, {"false", 0}, {Variant(), 0}};
    for (const auto& [passed, received] : flags) {
        library.plugIn(Operation::ShowBulkChange, [&](Library&, Arguments a) {
            EXPECT_EQ(a[0], Variant(received));
            return Variant(true);
        });
        EXPECT_TRUE(library.ShowBulkChange(passed, 4));
    }
    EXPECT_EQ(codeOf([&] { library.ShowBulkChange("orders", 4); }), code::typeMismatch);
    EXPECT_EQ(codeOf([&] { library.ShowBulkChange(70'000, 4); }), code::overflow);
    library.plugIn(Operation::ShowBulkChange, assign);

    // A caller that passes values gets no error. An argument declared by value is not written.
    results = {false, 3};
    EXPECT_TRUE(library.ShowBulkChange(true, 4));
    results = {"no number"};
    first = 8;
    EXPECT_EQ(codeOf([&] { library.ShowGetReplacementDiscountGroup(Argument::byReference(first)); }), 0);
    EXPECT_EQ(first, Variant(8));
}

TEST(Library, KeepsTheSharedCodeObjectFromInitializeToPreTerminate) {
    ScriptedDesktop desktop;
    Library library(desktop);
    EXPECT_EQ(library.SharedCodeLibrary(), nullptr);
    const auto host = RecordingHost::make();
    const auto other = RecordingHost::make();
    ObjectPtr first = host->sharedCode();
    library.Initialize(first);
    EXPECT_EQ(library.call("SharedCodeLibrary").toObject(), first);
    library.Initialize(other->sharedCode());
    EXPECT_EQ(first.use_count(), 1) << "a second call replaces the first object";
    library.PreTerminate();
    EXPECT_EQ(library.SharedCodeLibrary(), nullptr);
    EXPECT_EQ(other->liveObjects(), 0);
    library.PreTerminate();
    library.Initialize(ObjectPtr());
}

TEST(Library, AScreenOfAnUninitializedLibraryFailsSafely) {
    ScriptedDesktop desktop;
    Library library(desktop);
    lists::plugIn(library);
    library.ShowTerms();
    ASSERT_FALSE(desktop.boxes.empty());
    EXPECT_EQ(desktop.boxes[0].text, "The library has not been initialized.");
    EXPECT_TRUE(library.InitialSyncComplete()) << "a step that raises an error counts as passed";
}

TEST(Library, AScreenHasOneInstanceAtATime) {
    Stage stage;
    stage.desktop.user<Screen>("frmTerms_Edit", [&](Screen&) {
        EXPECT_EQ(codeOf([&] { stage.library->ShowEditTerms(0); }), code::alreadyShown);
    });
    stage.library->ShowEditTerms(0);
    EXPECT_TRUE(stage.library->screens().empty());
    stage.library->ShowEditTerms(0);
    EXPECT_THAT(stage.desktop.shown, ElementsAre("frmTerms_Edit", "frmTerms_Edit"));
}

TEST(Library, SubObjectsAreFetchedForEveryCall) {
    // When the host replaces its shared-code object while a screen is open, the next call uses the new one.
    Stage stage;
    const auto replacement = RecordingHost::make();
    replacement->on("Database.ExecuteNonQueryWithID", Variant(5));
    stage.desktop.user<RecordDialog>("frmTerms_Edit", [&](RecordDialog& dialog) {
        stage.library->Initialize(replacement->sharedCode());
        dynamic_cast<TextBox&>(*dialog.control("txtTerms")).userType("Net 1");
        dialog.cmdOK.userPress();
    });
    EXPECT_EQ(stage.library->ShowEditTerms(0), 5);
}

TEST(Host, AnAddressDoesNotBecomeEmptyByAnAnswer) {
    Stage stage;
    const Host host(*stage.library);
    stage.host->on("CombineAddress", Variant(""));
    stage.host->on("ParseAddress", Variant(true));
    bool validate = true;
    for (const std::string text : {"", " \r\n"}) {
        std::string blank = text;
        EXPECT_EQ(host.ParseAddress(blank, validate), Address{});
    }
    EXPECT_EQ(host.CombineAddress({}), "");
    std::string typed = "1 Mill";
    EXPECT_THROW(host.ParseAddress(typed, validate), HostError);
    EXPECT_EQ(typed, "1 Mill");
    EXPECT_THROW(host.CombineAddress({"", "", "", "", "", "USA"}), HostError);
}

TEST(InitialSyncComplete, EveryConditionMustHold) {
    const std::string company = "SELECT COUNT(*) AS theCount FROM Company";
    const std::string state = "SELECT SyncState FROM Company";
    const std::string employees = "SELECT COUNT(*) AS theCount FROM Employees";
    const std::string roleAccess = "SELECT COUNT(*) AS theCount FROM SecurityRoleAccess";
    struct Case {
        std::string statement;
        RecordingHost::Answer answer;
        bool complete;
    };
    const auto is = [](Variant value) { return [value](Arguments) { return value; }; };
    const Case cases[] = {
        {"", is(1), true},
        {company, is(2), false},
        {company, is(0), false},
        {company, raises(), true},
        {state, is(3), false},
        {state, is("4"), true},
        {state, is("waiting"),
         true},  // the conversion to a number raises an error, so the step counts as passed
        {state, raises(), true},
        {employees, is(0), false},
        {employees, raises(), true},
        {roleAccess, is(0), false},
        {roleAccess, is(Null()), true},
    };
    for (const Case& c : cases) {
        Stage stage;
        stage.host->on("Database.ExecuteScaler", [&](Arguments a) {
            EXPECT_EQ(a.count(), 3U);
            EXPECT_EQ(a[1], Variant(""));
            EXPECT_EQ(a[2], Variant("0"));
            if (a[0].toText() == c.statement) return c.answer(a);
            return a[0].toText() == company ? Variant(1) : Variant(4);
        });
        EXPECT_EQ(stage.library->InitialSyncComplete(), c.complete) << c.statement;
        EXPECT_FALSE(stage.told());
    }
}

TEST(RunPackageProcessor, BuildsTheCommandLine) {
    const TempFolder temp("tessaline-package-");
    const std::string program = temp.write("tsln5pkg.exe", "#");
    Stage stage;
    stage.desktop.folder = temp.path();
    stage.library->RunPackageProcessor("TSLN50_Terms", true);
    stage.library->RunPackageProcessor("", true);
    stage.library->RunPackageProcessor("A;B", false);
    EXPECT_THAT(stage.desktop.commandLines,
                ElementsAre(program + " /Keys:TSLN50_Terms /PSD:\"/psd/company.psd\"",
                            program + " /EnterKeys /PSD:\"/psd/company.psd\""));
    // A quote in a path ends no word.
    stage.host->on("PSDFile", Variant("/a \"b\\"));
    stage.library->RunPackageProcessor("C", false);
    EXPECT_THAT(stage.desktop.opened, ElementsAre(program + "| /Keys:A;B /PSD:\"/psd/company.psd\"",
                                                  program + "| /Keys:C /PSD:\"/a \\\"b\\.\""));
    EXPECT_THAT(stage.desktop.boxes, IsEmpty());
}

}  // namespace
}  // namespace tsln::test
