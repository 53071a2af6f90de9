#include "doubles/Stage.h"
#include "pricing/AdditionalCharges.h"

namespace tsln::test {
namespace {

using pricing::AdditionalChargesScreen;

constexpr auto listName = "frmAdditionalCharges";

std::string readAll(int type) {
    return "SELECT * FROM AdditionalCharges WHERE ChargeType = " + std::to_string(type) +
           " ORDER BY GroupName,Sequence,ChargeName";
}
std::string record(int ID, int method, const std::string& value, const std::string& further = "") {
    return "<Record><ID>" + std::to_string(ID) + "</ID><ChargeName>Charge " + std::to_string(ID) +
           "</ChargeName><ChargeMethod>" + std::to_string(method) + "</ChargeMethod><Value>" + value +
           "</Value><Enabled>1</Enabled>" + further + "</Record>";
}

struct ChargesStage : Stage {
    ChargesStage() { furnish(*this); }
    static void furnish(Stage& stage) {
        stage.host->rows(readAll(8), "<Records>" + record(1, 1, "5", "<GroupName>Lifts</GroupName>") +
                                         record(2, 12, " 7 ") + record(3, 3, "Trim ") + "</Records>");
        stage.host->rows("SELECT * FROM AdditionalCharges WHERE ID = 2",
                         "<Records>" + record(2, 12, "9") + "</Records>");
    }
    template <class Act>
    void show(const Variant& flag, Act act) {
        desktop.user<AdditionalChargesScreen>(listName, act);
        library->ShowAdditionalCharges(flag);
    }
};

void select(AdditionalChargesScreen& list, std::int32_t ID) {
    const std::size_t row = *list.rptItems.findRow(*list.rptItems.findRecord(ID));
    list.rptItems.userSelect(std::array{row}, row);
}

TEST(AdditionalCharges, TheFlagCarriesTheChargeType) {
    const struct {
        Variant flag;
        int type;
        const char* caption;
    } cases[] = {{1, 1, "Vendor Promotions"},           {2, 2, "Customer Promotions"},
                 {4, 4, "Item Price Adjustments"},      {8, 8, "Additional Charges"},
                 {"256", 256, "Item Cost Adjustments"}, {true, 2, "Customer Promotions"},
                 {false, 8, "Additional Charges"}};
    for (const auto& c : cases) {
        ChargesStage stage;
        stage.host->on("Security.CanDo", Variant(false));
        stage.desktop.user<AdditionalChargesScreen>(listName, [&](AdditionalChargesScreen& list) {
            EXPECT_EQ(list.caption(), c.caption);
            list.cmdMore.userPress();
            list.cmdClose.userPress();
        });
        stage.desktop.popupChoices = {28003};
        stage.desktop.files = {"/out.xml"};
        stage.library->call("ShowAdditionalCharges", c.flag);
        EXPECT_THAT(stage.host->callsOf("tslniee5.Engine.AddToExport"),
                    ElementsAre(EndsWith("ChargeType = " + std::to_string(c.type))));
        EXPECT_THAT(stage.host->callsOf("CurrentCompanyConn.Execute"), ElementsAre(readAll(c.type)));
    }
    ChargesStage stage;
    stage.library->ShowAdditionalCharges(3);
    EXPECT_THAT(stage.desktop.shown, IsEmpty());
    EXPECT_THAT(stage.desktop.boxes, ElementsAre(exclamation("There is no charge type 3.")));
}

TEST(AdditionalCharges, TheDetailsTellMethodValueAndCriteria) {
    const std::string longest(128, 'x');
    std::string wide;
    for (int i = 0; i < 130; ++i)
        wide += "\xF0\x9F\x98\x80";
    const struct {
        int method;
        std::string value, criteria, details;
    } cases[] = {
        {1, "1234.5", "", "Flat rate of $1,234.50."},
        {1, "-5", " ", "Flat rate of ($5.00)."},
        {1, "1e400", "", "Flat rate of 1e400."},
        {11, "5", "", "Rate of $5.00 per product."},
        {2, " 5 ", "", "5 percent of selected items."},
        {12, "5%%", "", "5%% percent of all product items."},
        {15, "4.5", "", "Rate of $4.50 per total square feet of all product items."},
        {16, "4.5", "", "Rate of $4.50 per total linear feet of all product items."},
        {3, " Trim ", "", "Add the value of the price line 'Trim '"},
        {4, "12", "", "Subtract the value of the price line '12 '"},
        {5, "5", "", "5 percent of before discount cost."},
        {6, "5", "", "5 percent of before discount price."},
        {7, "5", "", "5 percent of after discount cost."},
        {8, "5", "", "5 percent of after discount price."},
        {9, "5", "", "5 percent of before price adjustment cost."},
        {10, "5", "", "5 percent of before price adjustment price."},
        {13, "5", " Width > 9 ", "Unknown charge; Criteria: Width > 9"},
        {1, "1", longest, "Flat rate of $1.00.; Criteria: " + longest},
        {1, "1", longest + "y", "Flat rate of $1.00.; Criteria: " + longest + "..."},
        {1, "1", wide, "Flat rate of $1.00.; Criteria: " + wide.substr(0, 4 * 128) + "..."},
    };
    for (const auto& c : cases)
        EXPECT_EQ(pricing::chargeSummary(c.method, c.value, c.criteria), c.details);
}

TEST(AdditionalCharges, RowsAreGroupedAndShowTheirDatesAsTheyAre) {
    ChargesStage stage;
    stage.host->rows(readAll(8),
                     "<Records>" +
                         record(1, 1, "5",
                                "<GroupName>Lifts</GroupName><StartsOn>2024-05-02T00:00:00</StartsOn>"
                                "<EndsOn>2024-05-01T00:00:00</EndsOn><ChargeCode>abcd0123</ChargeCode>") +
                         record(2, 1, "5", "<Criteria>Width over 96</Criteria><EndsOn>soon</EndsOn>") +
                         "<Record><ID>3</ID><Enabled>0</Enabled></Record></Records>");
    stage.show(8, [](AdditionalChargesScreen& list) {
        const ReportControl& items = list.rptItems;
        std::vector<std::string> captions, first;
        for (std::size_t c = 0; c < items.columns.size(); ++c) {
            captions.push_back(items.columns[c].caption);
            first.emplace_back(items.cell(0, c));
        }
        EXPECT_THAT(captions, ElementsAre("Group", "Name", "Details", "Begins", "Ends", "Code"));
        EXPECT_THAT(first, ElementsAre("Lifts", "Charge 1", "Flat rate of $5.00.", "5/2/2024", "5/1/2024",
                                       "abcd0123"));
        EXPECT_EQ(items.cell(1, 4), "soon") << "a date that cannot be read is shown as it is stored";
        EXPECT_EQ(items.rowText(2, 0), "(No Group)");
        EXPECT_FALSE(items.style(0).color);
        EXPECT_TRUE(items.style(2).color) << "a disabled charge is grey";
        list.txtFilter.userType("over 96");
        EXPECT_EQ(items.rowCount(), 2U);
    });
}

TEST(AdditionalCharges, DefaultsAreOfferedForChargesAndCustomerPromotions) {
    for (const auto& [type, package] : {std::pair{1, ""},
                                        {2, "TSLN50_CustomerPromotions"},
                                        {4, ""},
                                        {8, "TSLN50_AdditionalCharges"},
                                        {256, ""}}) {
        Stage stage;
        std::vector<std::string> installed;
        stage.library->plugIn(Operation::RunPackageProcessor, [&](Library&, Arguments a) {
            installed.push_back(a[0].toText());
            return Variant();
        });
        stage.desktop.answers = {MessageAnswer::Yes};
        stage.library->ShowAdditionalCharges(type);
        if (*package) {
            EXPECT_THAT(installed, ElementsAre(package));
            EXPECT_EQ(stage.desktop.boxes.front().text, "Would you like to install the default items?");
            EXPECT_EQ(stage.host->callsOf("CurrentCompanyConn.Execute").size(), 2U) << "loaded again";
        } else {
            EXPECT_THAT(installed, IsEmpty());
            EXPECT_THAT(stage.desktop.boxes, IsEmpty());
        }
    }
}

TEST(AdditionalCharges, NewAndEditOpenTheDialogWithTheListsType) {
    ChargesStage stage;
    std::vector<std::string> opened;
    stage.library->plugIn(Operation::ShowEditAdditionalCharge, [&](Library&, Arguments a) {
        opened.push_back(a[0].toText() + " " + a[1].toText());
        return a[0];
    });
    stage.show(8, [](AdditionalChargesScreen& list) {
        list.cmdNew.userPress();
        select(list, 2);
        list.cmdEdit.userPress();
        EXPECT_EQ(list.rptItems.cell(1, 2), "9 percent of all product items.");
    });
    EXPECT_THAT(opened, ElementsAre("0 8", "2 8"));
}

TEST(AdditionalCharges, ChargesAreEnabledDisabledAndDeleted) {
    const std::string notUpdated = explainedInFull("The additional charge 'Charge 2' could not be updated.");
    for (const bool works : {true, false}) {
        ChargesStage stage;
        stage.host->on("Database.ExecuteNonQuery", Variant(works));
        stage.desktop.popupChoices = {28310, 28311};
        stage.show(8, [&](AdditionalChargesScreen& list) {
            select(list, 2);
            const std::size_t row = *list.rptItems.focusedRow();
            list.rptItems.userContextMenu(row);
            list.rptItems.userContextMenu(row);
            EXPECT_EQ(list.rptItems.style(1).color.has_value(), works) << "a disabled charge is grey";
            list.cmdDelete.userPress();
        });
        EXPECT_THAT(stage.executed(), ElementsAre("UPDATE AdditionalCharges SET Enabled = 1 WHERE ID = 2",
                                                  "UPDATE AdditionalCharges SET Enabled = 0 WHERE ID = 2",
                                                  "DELETE FROM AdditionalCharges WHERE ID = 2"));
        if (works) {
            EXPECT_FALSE(stage.told());
        } else {
            EXPECT_THAT(stage.failures(),
                        ElementsAre(notUpdated, notUpdated,
                                    explainedInFull("The item 'Charge 2' could not be deleted.")));
        }
    }
}

/// Shows the list of additional charges and duplicates charge 2, which has this name.
void duplicate(ChargesStage& stage, const std::string& name,
               const std::function<void(AdditionalChargesScreen&)>& then = {}) {
    stage.host->rows("SELECT * FROM AdditionalCharges WHERE ID = 2",
                     "<Records><Record><ID>2</ID><ChargeName>" + name + "</ChargeName></Record></Records>");
    stage.show(8, [&](AdditionalChargesScreen& list) {
        select(list, 2);
        dynamic_cast<Button&>(*list.control("cmdDuplicate")).userPress();
        EXPECT_FALSE(list.cmdCancelSearch.visible());
        if (then) then(list);
    });
}

TEST(AdditionalCharges, ADuplicateIsMadeInTheDatabase) {
    ChargesStage stage;
    stage.host->on("Database.ExecuteNonQueryWithID", Variant(3));
    duplicate(stage, "O'Dell", [](AdditionalChargesScreen& list) { EXPECT_EQ(list.selectedID(), 3); });
    EXPECT_THAT(
        stage.host->callsOf("Database.ExecuteScaler"),
        ElementsAre("SELECT COUNT(*) AS theCount FROM AdditionalCharges WHERE ChargeName = 'O''Dell 1'"));
    EXPECT_THAT(stage.host->callsOf("GetSHA2"), ElementsAre(StartsWith("O'Dell 1")));
    EXPECT_THAT(
        stage.inserted(),
        ElementsAre(
            "INSERT INTO AdditionalCharges (ChargeType, ChargeCode,     ApplyToPOs, Enabled, GroupName, ChargeName,     Description, Notes, Criteria, ChargeMethod, Cost, Value, Taxable, StartsOn, EndsOn, AutoAddToQuotes, AutoAddToPOs, IncludeWithProductItems, CustomerTypeID, VendorID, GroupAction) "
            "                      SELECT ChargeType, '01234567', ApplyToPOs, Enabled, GroupName, 'O''Dell 1', Description, Notes, Criteria, ChargeMethod, Cost, Value, Taxable, StartsOn, EndsOn, AutoAddToQuotes, AutoAddToPOs, IncludeWithProductItems, CustomerTypeID, VendorID, GroupAction FROM AdditionalCharges WHERE ID = 2"));
    EXPECT_EQ(stage.host->callsOf("CurrentCompanyConn.Execute").size(), 2U) << "the list is loaded again";
}

TEST(AdditionalCharges, ANameOfMoreThan62CharactersCannotBeDuplicated) {
    std::string faces;
    for (int i = 0; i < 62; ++i)
        faces += "\xF0\x9F\x98\x80";
    for (const auto& [name, fits] : {std::pair{std::string(62, 'n'), true},
                                     {std::string(63, 'n'), false},
                                     {std::string(64, 'n'), false},
                                     {faces, true},
                                     {faces + "n", false}}) {
        ChargesStage stage;
        duplicate(stage, name);
        EXPECT_EQ(stage.inserted().size(), fits ? 1U : 0U) << name;
        const Box tooLong{"A duplicate could not be created because the new name would be too long.",
                          MessageButtons::Ok, MessageIcon::Critical};
        EXPECT_EQ(stage.desktop.boxes, fits ? std::vector<Box>{} : std::vector{tooLong});
    }
    ChargesStage stage;
    stage.host->on("Database.ExecuteNonQueryWithID", Variant(0));
    duplicate(stage, "Lift");
    EXPECT_THAT(stage.failures(), ElementsAre(HasSubstr("A duplicate could not be created., ")));
}

TEST(AdditionalCharges, TheSearchForAFreeNameRepeatsUntilTheUserCancelsOrTheNameIsFree) {
    for (const bool cancels : {true, false}) {
        ChargesStage stage;
        int searches = 0;
        AdditionalChargesScreen* shown = nullptr;
        stage.host->on("Database.ExecuteScaler",
                       [&](Arguments) { return Variant(++searches < 400 || cancels ? 1 : 0); });
        stage.desktop.onYield = [&] {
            if (!shown || !shown->job()) return;
            EXPECT_TRUE(shown->cmdCancelSearch.visible() && shown->cmdCancelSearch.enabled());
            if (cancels && searches > 100) shown->job()->userCancel();
        };
        stage.desktop.user<AdditionalChargesScreen>(listName, [&](AdditionalChargesScreen& list) {
            shown = &list;
            select(list, 2);
            dynamic_cast<Button&>(*list.control("cmdDuplicate")).userPress();
            EXPECT_FALSE(list.job());
            EXPECT_FALSE(list.cmdCancelSearch.visible());
        });
        stage.library->ShowAdditionalCharges(8);
        EXPECT_GT(searches, 100);
        EXPECT_EQ(stage.inserted().size(), cancels ? 0U : 1U);
        EXPECT_FALSE(stage.told());
    }
}

}  // namespace
}  // namespace tsln::test
