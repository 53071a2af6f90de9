#include "doubles/Stage.h"
#include "maintenance/RecordDialog.h"

namespace tsln::test {
namespace {

constexpr auto readSeven = "SELECT * FROM Terms WHERE ID = 7";
constexpr auto rowSeven =
    "<Records><Record><ID>7</ID><Terms>2% 10 Net 30</Terms><DueDays>30</DueDays><Discount>0.025</Discount>"
    "<DiscountDays>10</DiscountDays><Exported>1</Exported></Record></Records>";

TextBox& box(Screen& dialog, std::string_view name) {
    return dynamic_cast<TextBox&>(*dialog.control(name));
}

void type(Screen& dialog, const std::string& terms, const std::string& dueIn, const std::string& discount,
          const std::string& discountDays) {
    box(dialog, "txtTerms").userType(terms);
    box(dialog, "txtDueIn").userType(dueIn);
    box(dialog, "txtDiscount").userType(discount);
    box(dialog, "txtDiscountDays").userType(discountDays);
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
        EXPECT_THAT(stage.executed(), IsEmpty()) << way.name;
    }
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
                stage.inserted(),
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
        EXPECT_EQ(box(dialog, "txtDiscount").text(), "0") << "shown in its normal form from the start";
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
        EXPECT_THAT(stage.executed(), IsEmpty());
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

}  // namespace
}  // namespace tsln::test
