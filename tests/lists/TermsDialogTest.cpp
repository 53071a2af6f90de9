#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "doubles/Stage.h"
#include "maintenance/RecordDialog.h"
#include "shared/modSharedSQL.h"
#include "shared/modSharedStrings.h"

namespace tsln::test {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr auto readSeven = "SELECT * FROM Terms WHERE ID = 7";
constexpr auto rowSeven =
    "<Records><Record><ID>7</ID><Terms>2% 10 Net 30</Terms><DueDays>30</DueDays><Discount>0.025</Discount>"
    "<DiscountDays>10</DiscountDays><Exported>1</Exported></Record></Records>";

TextBox& box(Screen& dialog, std::string_view name) {
    return dynamic_cast<TextBox&>(*dialog.control(name));
}
CheckBox& exported(Screen& dialog) {
    return dynamic_cast<CheckBox&>(*dialog.control("chkExported"));
}

void type(Screen& dialog, const std::string& terms, const std::string& dueIn, const std::string& discount,
          const std::string& discountDays) {
    box(dialog, "txtTerms").userType(terms);
    box(dialog, "txtDueIn").userType(dueIn);
    box(dialog, "txtDiscount").userType(discount);
    box(dialog, "txtDiscountDays").userType(discountDays);
}

TEST(TermsDialog, LoadsTheRowAndSavesIt) {
    Stage stage;
    stage.host->rows(readSeven, rowSeven);
    stage.desktop.user<RecordDialog>("frmTerms_Edit", [](RecordDialog& dialog) {
        EXPECT_EQ(dialog.caption(), "Edit Terms");
        EXPECT_EQ(box(dialog, "txtTerms").text(), "2% 10 Net 30");
        EXPECT_EQ(box(dialog, "txtDueIn").text(), "30");
        EXPECT_EQ(box(dialog, "txtDiscount").text(), "2.5");
        EXPECT_EQ(box(dialog, "txtDiscountDays").text(), "10");
        EXPECT_TRUE(exported(dialog).checked());
        EXPECT_EQ(dialog.focusedControl(), dialog.control("txtTerms"));
        dialog.activate();  // activation after a message box does not load again
        type(dialog, "  O'Brien's 3%  ", "45", "3", "15");
        exported(dialog).userCheck(false);
        dialog.cmdOK.userPress();
    });
    EXPECT_EQ(stage.library->ShowEditTerms(7), 7);
    EXPECT_THAT(stage.host->callsOf("Common.RecordExists"), ElementsAre("Terms, Terms, O'Brien's 3%, 7"));
    EXPECT_THAT(stage.host->callsOf("Database.ExecuteRead"), ElementsAre(readSeven));
    EXPECT_THAT(
        stage.host->callsOf("Database.ExecuteNonQuery"),
        ElementsAre(
            "UPDATE Terms SET Terms = 'O''Brien''s 3%', DueDays = 45, Discount = 0.03, DiscountDays = 15, Exported = 0 WHERE ID = 7"));
}

TEST(TermsDialog, InsertsANewRowAndReturnsItsKey) {
    Stage stage;
    stage.host->on("Database.ExecuteNonQueryWithID", Variant(12));
    stage.desktop.user<RecordDialog>("frmTerms_Edit", [](RecordDialog& dialog) {
        EXPECT_EQ(dialog.caption(), "New Terms");
        EXPECT_EQ(box(dialog, "txtDiscount").text(), "0") << "shown in its normal form from the start";
        type(dialog, "Net <d> {0}", "", "2.5", "");
        exported(dialog).userCheck(true);
        dialog.cmdOK.userPress();
    });
    EXPECT_EQ(stage.library->ShowEditTerms(0), 12);
    EXPECT_THAT(stage.host->callsOf("Database.ExecuteRead"), IsEmpty());
    // The "<d>" in the name is replaced by the value of the later tag (deliberate).
    EXPECT_THAT(
        stage.host->callsOf("Database.ExecuteNonQueryWithID"),
        ElementsAre(
            "INSERT INTO Terms (Terms,DueDays,Discount,DiscountDays,Exported) VALUES('Net 0 {0}', 0, 0.025, 0, 1)"));
}

TEST(TermsDialog, OnlyOkSaves) {
    struct Way {
        const char* name;
        std::function<void(RecordDialog&)> leave;
        std::int32_t opened, result;
    };
    const Way ways[] = {
        {"Cancel", [](RecordDialog& d) { d.cmdCancel.userPress(); }, 7, 0},
        {"Cancel on a new row", [](RecordDialog& d) { d.cmdCancel.userPress(); }, 0, 0},
        {"the close box counts as accepted", [](RecordDialog& d) { d.userClose(); }, 7, 7},
        {"the close box on a new row", [](RecordDialog& d) { d.userClose(); }, 0, 0},
    };
    for (const Way& way : ways) {
        Stage stage;
        stage.host->rows(readSeven, rowSeven);
        stage.desktop.user<RecordDialog>("frmTerms_Edit", [&](RecordDialog& dialog) {
            type(dialog, "changed", "1", "1", "1");
            way.leave(dialog);
            EXPECT_FALSE(dialog.shown());
        });
        EXPECT_EQ(stage.library->ShowEditTerms(way.opened), way.result) << way.name;
        EXPECT_THAT(stage.host->callsOf("Database.ExecuteNonQuery"), IsEmpty()) << way.name;
    }
}

TEST(TermsDialog, RefusesAnEmptyAndADuplicateName) {
    Stage stage;
    stage.host->on("Common.RecordExists", [](Arguments a) { return Variant(a[2].toText() == "Net 30"); });
    stage.desktop.user<RecordDialog>("frmTerms_Edit", [](RecordDialog& dialog) {
        for (const char* name : {"   ", "Net 30"}) {
            type(dialog, name, "9", "1", "2");
            box(dialog, "txtDueIn").setFocus();
            dialog.cmdOK.userPress();
            EXPECT_TRUE(dialog.shown());
            EXPECT_EQ(box(dialog, "txtDueIn").text(), "9");
        }
        EXPECT_EQ(box(dialog, "txtTerms").text(), "Net 30");
        box(dialog, "txtTerms").userType(" ");
        dialog.cmdOK.userPress();
        EXPECT_EQ(box(dialog, "txtTerms").text(), "");
        EXPECT_EQ(dialog.focusedControl(), dialog.control("txtTerms"));
    });
    EXPECT_EQ(stage.library->ShowEditTerms(0), 0);
    using Box = ScriptedDesktop::Box;
    EXPECT_THAT(
        stage.desktop.boxes,
        ElementsAre(Box{"You must enter a valid term.", MessageButtons::Ok, MessageIcon::Exclamation},
                    Box{"This term already exists.", MessageButtons::Ok, MessageIcon::Exclamation},
                    Box{"You must enter a valid term.", MessageButtons::Ok, MessageIcon::Exclamation}));
    EXPECT_THAT(stage.host->callsOf("Database.ExecuteNonQueryWithID"), IsEmpty());
}

TEST(TermsDialog, NumbersAreCorrectedBeforeTheyReachTheDatabase) {
    struct Case {
        const char *dueIn, *discount, *days;
        const char* filled;
        const char* filledByHost;  ///< with a host whose checker changes no number
    };
    const Case cases[] = {
        {"-5", "1000", "1e2", "0, 10, 100", "-5, 10, 100"},
        {"abc", "2,5x", "", "0, 0, 0", "0, 0, 0"},
        {"12.5", "999.999", "1000", "12, 10, 999", "12.5, 10, 1000"},
        {"$7", "(3)", "&HFF", "7, 0, 255", "7, -0.03, 255"},
        {"0); --", "'", "9e99", "0, 0, 999", "0, 0, 9E+99"},
        {"007", "0.123456", "+4", "007, 0.0012, 4", "007, 0.0012, 4"},
    };
    for (const bool withChecker : {true, false}) {
        for (const Case& c : cases) {
            Stage stage;
            std::vector<std::string> seen;
            stage.host->on("tslnnum5.Checker.CheckInteger", [&](Arguments a) {
                seen.push_back(a[0].object().get("Text").toText());
                EXPECT_EQ(a[2].toLong(), 999);
                return Variant();
            });
            stage.host->on("tslnnum5.Checker.CheckDecimal", Variant());
            if (!withChecker) stage.desktop.components = nullptr;
            stage.desktop.user<RecordDialog>("frmTerms_Edit", [&](RecordDialog& dialog) {
                type(dialog, "T", c.dueIn, c.discount, c.days);
                dialog.cmdOK.userPress();
            });
            stage.library->ShowEditTerms(0);
            EXPECT_THAT(
                stage.host->callsOf("Database.ExecuteNonQueryWithID"),
                ElementsAre("INSERT INTO Terms (Terms,DueDays,Discount,DiscountDays,Exported) VALUES('T', " +
                            std::string(withChecker ? c.filledByHost : c.filled) + ", 0)"))
                << c.dueIn;
            if (withChecker) {
                EXPECT_THAT(seen, testing::IsSupersetOf({c.dueIn, c.days}));
            }
        }
    }
}

TEST(TermsDialog, LeavingANumericFieldLetsTheHostCorrectItsTextBox) {
    Stage stage;
    stage.host->on("tslnnum5.Checker.CheckInteger", [](Arguments a) {
        a[0].object().put("Text", "77");
        return Variant();
    });
    stage.desktop.user<RecordDialog>("frmTerms_Edit", [](RecordDialog& dialog) {
        box(dialog, "txtDueIn").userType("x");
        EXPECT_EQ(box(dialog, "txtDueIn").text(), "x");
        box(dialog, "txtDueIn").userLeft();
        EXPECT_EQ(box(dialog, "txtDueIn").text(), "77");
        box(dialog, "txtDiscount").userType("0.5");
        box(dialog, "txtDiscount").userLeft();
        EXPECT_EQ(box(dialog, "txtDiscount").text(), "0.5");
    });
    stage.library->ShowEditTerms(0);
}

TEST(TermsDialog, AFailedSaveKeepsTheInputAndCanBeRepeated) {
    for (const std::int32_t ID : {0, 7}) {
        Stage stage;
        stage.host->rows(readSeven, rowSeven);
        int tries = 0;
        stage.host->on("Database.ExecuteNonQuery", [&](Arguments) { return Variant(++tries > 1); });
        stage.host->on("Database.ExecuteNonQueryWithID",
                       [&](Arguments) { return Variant(++tries > 1 ? 8 : -1); });
        stage.desktop.user<RecordDialog>("frmTerms_Edit", [](RecordDialog& dialog) {
            type(dialog, "Net 5", "5", "1", "2");
            dialog.cmdOK.userPress();
            EXPECT_TRUE(dialog.shown());
            EXPECT_EQ(box(dialog, "txtTerms").text(), "Net 5");
            dialog.cmdOK.userPress();
            EXPECT_FALSE(dialog.shown());
        });
        EXPECT_EQ(stage.library->ShowEditTerms(ID), ID == 0 ? 8 : 7);
        EXPECT_THAT(
            stage.host->callsOf("ShowAndLogErrorMessage"),
            ElementsAre(
                "There was a problem saving this term., {standard explanation}, the database's own words"));
    }
}

TEST(TermsDialog, TheCloseBoxIsRefusedWhileSaving) {
    Stage stage;
    RecordDialog* open = nullptr;
    stage.host->on("Database.ExecuteNonQueryWithID", [&](Arguments) {
        open->userClose();
        EXPECT_TRUE(open->shown());
        return Variant(3);
    });
    stage.desktop.user<RecordDialog>("frmTerms_Edit", [&](RecordDialog& dialog) {
        open = &dialog;
        box(dialog, "txtTerms").userType("Net 1");
        dialog.cmdOK.userPress();
    });
    EXPECT_EQ(stage.library->ShowEditTerms(0), 3);
}

TEST(TermsDialog, ARowThatCouldNotBeReadCannotBeOverwritten) {
    for (const char* answer : {"<Records><Record>", "no xml at all"}) {
        Stage stage;
        stage.host->rows(readSeven, answer);
        stage.desktop.user<RecordDialog>("frmTerms_Edit", [](RecordDialog& dialog) {
            box(dialog, "txtTerms").userType("typed into the void");
            dialog.cmdOK.userPress();
            EXPECT_TRUE(dialog.shown());
        });
        stage.library->ShowEditTerms(7);
        EXPECT_TRUE(stage.told());
        EXPECT_THAT(stage.host->callsOf("Database.ExecuteNonQuery"), IsEmpty());
    }
}

TEST(TermsDialog, PastedLinesBecomeOne) {
    Stage stage;
    stage.desktop.user<RecordDialog>("frmTerms_Edit", [&](RecordDialog& dialog) {
        box(dialog, "txtTerms").userType("Net 30,\r\nor\nnever\r");
        EXPECT_EQ(box(dialog, "txtTerms").text(), "Net 30, or never ");
    });
    stage.library->ShowEditTerms(0);
}

TEST(TermsDialog, NamesWithSpecialCharactersAreStoredUnchanged) {
    std::string longName;
    while (longName.size() < 60'000)
        longName += "Zahlung \xF0\x9F\xAA\x9F \"\\ ";
    const std::string names[] = {"a'b''c", "{0}{16}", "<Bold>x</Bold>",
                                 modSharedStrings::trim(longName)};
    for (const std::string& name : names) {
        Stage stage;
        stage.desktop.user<RecordDialog>("frmTerms_Edit", [&](RecordDialog& dialog) {
            box(dialog, "txtTerms").userType(name);
            dialog.cmdOK.userPress();
        });
        stage.library->ShowEditTerms(0);
        EXPECT_THAT(stage.host->callsOf("Database.ExecuteNonQueryWithID"),
                    ElementsAre("INSERT INTO Terms (Terms,DueDays,Discount,DiscountDays,Exported) VALUES('" +
                                modSharedSQL::doubleQuotes(name) + "', 0, 0, 0, 0)"));
    }
}

TEST(TermsDialog, EveryHostFaultIsReportedAndKeepsTheInput) {
    for (const std::int32_t ID : {0, 7}) {
        sweepFaults(
            [ID](Stage& stage) {
                stage.host->rows(readSeven, rowSeven);
                stage.desktop.user<RecordDialog>("frmTerms_Edit", [&](RecordDialog& dialog) {
                    type(dialog, "Net 5", "5", "1", "2");
                    dialog.cmdOK.userPress();
                    if (dialog.shown()) {
                        EXPECT_EQ(box(dialog, "txtTerms").text(), "Net 5");
                        EXPECT_EQ(box(dialog, "txtDueIn").text(), "5");
                        EXPECT_TRUE(stage.told()) << "the dialog stays open without a message";
                    } else {
                        EXPECT_FALSE(dialog.Cancelled);
                        EXPECT_GE(dialog.ID, 1) << "closed as saved, but has no key";
                    }
                    dialog.cmdCancel.userPress();
                });
                stage.library->ShowEditTerms(ID);
            },
            [](Stage&) {});
    }
}

}  // namespace
}  // namespace tsln::test
