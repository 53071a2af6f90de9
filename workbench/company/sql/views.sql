-- The exported columns of each list: the record without its key, which has no meaning in another company. A
-- reference is exported as the name of the referenced record, an empty text when there is none.

CREATE VIEW vwExporting_Terms AS
    SELECT Terms, DueDays, Discount, DiscountDays, Exported, UniqueID, AddedOn, UpdatedOn FROM Terms;
CREATE VIEW vwExporting_PaymentMethods AS
    SELECT PaymentMethod, PaymentType, Exported, UniqueID, AddedOn, UpdatedOn FROM PaymentMethods;
CREATE VIEW vwExporting_ShippingMethods AS
    SELECT ShippingMethod, TaskType, UniqueID, AddedOn, UpdatedOn FROM ShippingMethods;
CREATE VIEW vwExporting_ReferralMethods AS
    SELECT ReferralMethod, UniqueID, AddedOn, UpdatedOn FROM ReferralMethods;
CREATE VIEW vwExporting_JobTypes AS
    SELECT JobType, UniqueID, AddedOn, UpdatedOn FROM JobTypes;
CREATE VIEW vwExporting_OrderTypes AS
    SELECT OrderType, UniqueID, AddedOn, UpdatedOn FROM OrderTypes;
CREATE VIEW vwExporting_ProductTypes AS
    SELECT ProductType, EstDeliveryDays, UniqueID, AddedOn, UpdatedOn FROM ProductTypes;
-- The exporting screen uses this name, without an underscore.
CREATE VIEW vwExportingManufacturers AS
    SELECT Manufacturer, UniqueID, AddedOn, UpdatedOn FROM Manufacturers;
CREATE VIEW vwExporting_Groups AS
    SELECT GroupName, Description, GroupType, UniqueID, AddedOn, UpdatedOn FROM Groups;
CREATE VIEW vwExporting_CustomerTypes AS
    SELECT Name, RoundUnitPrice, RoundUnitPriceTo, RoundUnitPriceDirection, OptionDiscountMethod,
        DiscountMethod, UniqueID, AddedOn, UpdatedOn FROM CustomerTypes;
CREATE VIEW vwExporting_DeliveryRanges AS
    SELECT Range, UniqueID, AddedOn, UpdatedOn FROM DeliveryRanges;
CREATE VIEW vwExporting_PhoneLabels AS
    SELECT Label, UniqueID, AddedOn, UpdatedOn FROM PhoneLabels;
CREATE VIEW vwExporting_EmailLabels AS
    SELECT Label, UniqueID, AddedOn, UpdatedOn FROM EmailLabels;
CREATE VIEW vwExporting_MeasurementRooms AS
    SELECT Room, UniqueID, AddedOn, UpdatedOn FROM MeasurementRooms;
CREATE VIEW vwExporting_MeasurementItems AS
    SELECT ItemName, UniqueID, AddedOn, UpdatedOn FROM MeasurementItems;
CREATE VIEW vwExporting_MeasurementMounts AS
    SELECT Mount, UniqueID, AddedOn, UpdatedOn FROM MeasurementMounts;
CREATE VIEW vwExporting_FieldMeasureCriteria AS
    SELECT Criteria, UniqueID, AddedOn, UpdatedOn FROM FieldMeasureCriteria;
CREATE VIEW vwExporting_RequireDepositCriteria AS
    SELECT Criteria, DepositPercent, UniqueID, AddedOn, UpdatedOn FROM RequireDepositCriteria;
CREATE VIEW vwExporting_DiscountGroups AS
    SELECT DiscountGroup, DiscountGroupType, UniqueID, AddedOn, UpdatedOn FROM DiscountGroups;
CREATE VIEW vwExporting_SecurityRoles AS
    SELECT Name, Description, UniqueID, AddedOn, UpdatedOn FROM SecurityRoles;
CREATE VIEW vwExporting_SecurityRoleAccess AS
    SELECT r.UniqueID AS SecurityRoleUniqueID, r.Name AS SecurityRole, a.Activity, a.Access
    FROM SecurityRoleAccess a JOIN SecurityRoles r ON r.ID = a.SecurityRoleID;
CREATE VIEW vwExporting_Discounts AS
    SELECT g.DiscountGroup, g.DiscountGroupType, ifnull(p.Product, '') AS Product, d.DiscountLevel, d.Style, d.OptionName,
        d.Multiplier, d.TierLevel, d.Markup, d.Margin, d.UniqueID, d.AddedOn, d.UpdatedOn
    FROM Discounts d JOIN DiscountGroups g ON g.ID = d.DiscountGroupID LEFT JOIN Products p ON p.ID = d.ProductID;
CREATE VIEW vwExporting_SalesTaxCodes AS
    SELECT Code, Rate, Vendor, Exported, UniqueID, AddedOn, UpdatedOn FROM SalesTaxCodes;
CREATE VIEW vwExporting_SalesTaxGroups AS
    SELECT SalesTaxGroup, Description, Exported, UniqueID, AddedOn, UpdatedOn FROM SalesTaxGroups;
CREATE VIEW vwExporting_Accounts AS
    SELECT Account, AccountType, Description, Exported, UniqueID, AddedOn, UpdatedOn FROM Accounts;
CREATE VIEW vwExporting_AdditionalCharges AS
    SELECT c.ChargeType, c.ChargeCode, c.Enabled, c.GroupName, c.ChargeName, c.Description, c.Cost, c.ChargeMethod,
        c.Value, c.Taxable, c.AutoAddToQuotes, c.AutoAddToPOs, c.ApplyToPOs, c.StartsOn, c.EndsOn, c.Criteria,
        ifnull(t.Name, '') AS CustomerType, ifnull(v.VendorName, '') AS Vendor, c.Notes, c.IncludeWithProductItems,
        ifnull(s.Account, '') AS SalesAccount, ifnull(p.Account, '') AS PurchaseAccount, c.ExportChargeName, c.Exported,
        c.Category, c.Sequence, c.GroupAction, c.UniqueID, c.AddedOn, c.UpdatedOn
    FROM AdditionalCharges c LEFT JOIN CustomerTypes t ON t.ID = c.CustomerTypeID LEFT JOIN Vendors v ON v.ID = c.VendorID
        LEFT JOIN Accounts s ON s.ID = c.SalesAccountID LEFT JOIN Accounts p ON p.ID = c.PurchaseAccountID;
CREATE VIEW vwExporting_OptionDetailSettings AS
    SELECT Location, Sequence, Show, OptionName, Prefix, isBold, UniqueID, AddedOn, UpdatedOn FROM OptionDetailSettings;
CREATE VIEW vwExporting_OptionDefaults AS
    SELECT ifnull(p.Product, '') AS Product, d.OptionName, d.OptionValue, d.UniqueID, d.AddedOn, d.UpdatedOn
    FROM OptionDefaults d LEFT JOIN Products p ON p.ID = d.ProductID;
CREATE VIEW vwExporting_OptionCallouts AS
    SELECT ifnull(t.ProductType, '') AS ProductType, ifnull(p.Product, '') AS Product, c.Style, c.OptionName, c.Color,
        c.ColorWhen, c.ColorCriteria, c.Message, c.UniqueID, c.AddedOn, c.UpdatedOn
    FROM OptionCallouts c LEFT JOIN ProductTypes t ON t.ID = c.ProductTypeID LEFT JOIN Products p ON p.ID = c.ProductID;
CREATE VIEW vwExporting_EmailTemplates AS
    SELECT GroupName, TemplateType, TemplateName, Favorite, Description, CcAddress, BCcAddress, Subject, BodyText, UniqueID,
        AddedOn, UpdatedOn FROM EmailTemplates;
CREATE VIEW vwExporting_CustomerMeasurements AS
    SELECT c.CustomerName, ifnull(c.AccountNumber, '') AS AccountNumber, m.Location, m.Room, m.Item, m.Mount, m.Width,
        m.Length, m.Remarks, m.UniqueID, m.AddedOn, m.UpdatedOn
    FROM CustomerMeasurements m JOIN Customers c ON c.ID = m.CustomerID;

-- Computed columns that screens show in addition to a table's columns.

CREATE VIEW vwScreen_Accounts AS
    SELECT *, CASE AccountType WHEN 1 THEN 'Sales' WHEN 2 THEN 'Purchase' ELSE '' END AS FriendlyAccountType FROM Accounts;

-- Procedures. A call is translated to an INSERT into a view with the procedure's name, and the trigger does the work.

CREATE VIEW EnsureCustomerDefaultAddress AS SELECT 0 AS CustomerID WHERE 0;
CREATE TRIGGER EnsureCustomerDefaultAddress_Run INSTEAD OF INSERT ON EnsureCustomerDefaultAddress BEGIN
    -- a customer without any address is reached at the billing address
    INSERT INTO CustomerAddresses (CustomerID, AddressLabel, Address1, Address2, City, State, Zip, Country, isDefault)
        SELECT ID, 'Billing Address', BillToAddress1, BillToAddress2, BillToCity, BillToState, BillToZip, BillToCountry, 1
        FROM Customers
        WHERE ID = NEW.CustomerID AND NOT EXISTS (SELECT 1 FROM CustomerAddresses WHERE CustomerID = NEW.CustomerID);
    UPDATE CustomerAddresses SET isDefault = 1
        WHERE ID = (SELECT min(ID) FROM CustomerAddresses WHERE CustomerID = NEW.CustomerID)
        AND NOT EXISTS (SELECT 1 FROM CustomerAddresses WHERE CustomerID = NEW.CustomerID AND isDefault <> 0);
END;

CREATE VIEW sp_spaceused AS
    SELECT (SELECT Name FROM Company LIMIT 1) AS database_name,
        printf('%.2f MB', page_count * page_size / 1048576.0) AS database_size,
        printf('%.2f MB', freelist_count * page_size / 1048576.0) AS "unallocated space"
    FROM pragma_page_count, pragma_page_size, pragma_freelist_count;
