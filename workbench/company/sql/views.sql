-- What the export of each list writes: the record without its key, which means nothing in another company.

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
-- the one name without an underscore; it is asked for so
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
    SELECT g.DiscountGroup, g.DiscountGroupType, p.Product, d.DiscountLevel, d.Style, d.OptionName, d.Multiplier,
        d.TierLevel, d.Markup, d.Margin, d.UniqueID, d.AddedOn, d.UpdatedOn
    FROM Discounts d JOIN DiscountGroups g ON g.ID = d.DiscountGroupID LEFT JOIN Products p ON p.ID = d.ProductID;

-- Procedures. A call is an insert into a view of the procedure's name; the trigger does the work.

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
