#pragma once

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "doubles/Stage.h"
#include "entities/CustomerEditor.h"

namespace tsln::test {

using entities::CustomerEditor;

inline constexpr auto frmEditCustomer = "frmEditCustomer";
inline constexpr auto snapshotOfSeven = "SELECT * FROM [Customers] WHERE ID = 7";

inline std::string customerSeven() {
    return "<Records><Record><ID>7</ID><CustomerName>Dell, Ann</CustomerName><AccountNumber>A7</AccountNumber>"
           "<CompanyName>Dell's</CompanyName><Contact>Ann</Contact><FirstName>Ann</FirstName><LastName>Dell</LastName>"
           "<MiddleInitial>B</MiddleInitial><Phone1Label>Hut</Phone1Label><Phone1>1</Phone1><Phone2Label>Work</Phone2Label>"
           "<Phone2>2</Phone2><Phone3Label>Fax</Phone3Label><Phone3>3</Phone3><Email1Label>Home</Email1Label>"
           "<Email1>a@b</Email1><Email2Label>Work</Email2Label><Email2>c@d</Email2>"
           "<BillToAddress1>1 Mill St</BillToAddress1><BillToCity>Reno</BillToCity><SalesTaxGroupID>11</SalesTaxGroupID>"
           "<ResaleNumber>R</ResaleNumber><TaxExNumber>T</TaxExNumber><DiscountGroupID>12</DiscountGroupID>"
           "<CustomerTypeID>11</CustomerTypeID><TermsID>12</TermsID><SalesRepID>12</SalesRepID><InstallerID>11</InstallerID>"
           "<DesignerID>99</DesignerID><ShippingMethodID>11</ShippingMethodID><SalesAccount>SA</SalesAccount>"
           "<CreditHold>1</CreditHold><OrderEntryComment>oe</OrderEntryComment><CSRMessage>csr</CSRMessage>"
           "<Notes> n&#13;&#10;m </Notes><Active>1</Active><ValidateAddresses>1</ValidateAddresses><LocationID>11</LocationID>"
           "<CreditLimit>2500.5</CreditLimit><CustomerDiscountGroupID>12</CustomerDiscountGroupID><Exported>0</Exported>"
           "</Record></Records>";
}

inline std::string addressRow(int ID, const std::string& label, const std::string& line, bool isDefault) {
    return "<Record><ID>" + std::to_string(ID) + "</ID><AddressLabel>" + label + "</AddressLabel><Address1>" +
           line + "</Address1><City>Reno</City><IsDefault>" + (isDefault ? "1" : "0") +
           "</IsDefault></Record>";
}

/// A host with two entries in every list, three groups, and the customer 7 with two addresses in two groups.
struct CustomerStage : Stage {
    CustomerStage() { furnish(*this); }

    static void furnish(Stage& stage) {
        for (const char* loader :
             {"LoadTaxGroups", "LoadDiscountGroups", "LoadCustomerTypes", "LoadTerms", "LoadSalesReps",
              "LoadInstallers", "LoadDesigners", "LoadShippingMethods", "LoadReferralMethods",
              "LoadLocations", "LoadPhoneLabels", "LoadEmailLabels"}) {
            stage.host->on(std::string("Common.") + loader, fills({{"Entry 11", 11}, {"Entry 12", 12}}));
        }
        stage.host->on("Security.CompanyFeatureEnabled", Variant(true));
        stage.host->on("Security.UserId", Variant(12));
        stage.host->on("OperatingMode", Variant(0));
        stage.host->on("Database.ExecuteNonQueryWithID", Variant(8));
        stage.host->rows("SELECT * FROM Customers WHERE ID = 7", customerSeven());
        stage.host->rows(snapshotOfSeven, customerSeven());
        stage.host->rows("SELECT * FROM CustomerAddresses WHERE CustomerID = 7",
                         "<Records>" + addressRow(70, "Home", "1 Mill St", false) +
                             addressRow(71, "Work", "Dock 2", true) + "</Records>");
        stage.host->rows(
            "SELECT * FROM Groups WHERE GroupType = 1 ORDER BY GroupName",
            "<Records><Record><ID>3</ID><GroupName>Builders</GroupName><Description>b</Description></Record>"
            "<Record><ID>1</ID><GroupName>News</GroupName></Record>"
            "<Record><ID>2</ID><GroupName>Offices</GroupName></Record></Records>");
        stage.host->rows(
            "SELECT * FROM GroupedCustomers WHERE CustomerID = 7",
            "<Records><Record><GroupID>1</GroupID></Record><Record><GroupID>3</GroupID></Record></Records>");
    }

    template <class Act>
    std::int32_t edit(std::int32_t ID, Act act) {
        desktop.user<CustomerEditor>(frmEditCustomer, act);
        return library->ShowEditCustomer(ID);
    }
};

inline std::string labelsOf(const CustomerEditor& editor) {
    std::string labels;
    for (const ComboBox::Entry& entry : editor.addresses.cboAddressLabel.entries())
        labels += entry.text + ";";
    return labels;
}

inline std::string tickedGroups(const CustomerEditor& editor) {
    const ReportControl& groups = editor.groups.rptGroups;
    std::string names;
    for (std::size_t i = 0; i < groups.recordCount(); ++i) {
        if (groups.checked(i, 2)) names += std::string(groups.cell(i, 0)) + ";";
    }
    return names;
}

inline void tickGroup(CustomerEditor& editor, std::string_view name, bool ticked = true) {
    ReportControl& groups = editor.groups.rptGroups;
    for (std::size_t row = 0; row < groups.rowCount(); ++row) {
        if (groups.rowText(row, 0) == name) groups.userCheck(row, 2, ticked);
    }
}

inline ComboBox& labelBox(RecordDialog& dialog) {
    return dynamic_cast<ComboBox&>(*dialog.control("cboLabel"));
}

/// Answers the next label dialog, which proposes `expectedBefore`.
inline void answerLabel(Stage& stage, const std::string& label, const std::string& expectedBefore = "") {
    stage.desktop.user<RecordDialog>("frmAddressLabel", [=](RecordDialog& dialog) {
        EXPECT_EQ(labelBox(dialog).text(), expectedBefore);
        labelBox(dialog).userType(label);
        dialog.cmdOK.userPress();
    });
}

inline void accept(CustomerEditor& editor) {
    editor.cmdOK.userPress();
}

}  // namespace tsln::test
