-- What the office of the demonstration company knows of its customers: the defaults of new ones, further addresses,
-- and the past of some; and the logos of its reports.

INSERT INTO CompanyOptions (Section, OptionName, OptionValue) VALUES
    ('Customers', 'AddressLabel', 'Home'), ('Customers', 'DefaultTaxGroup', '1'),
    ('Customers', 'DefaultPriceDiscountGroup', '1'), ('Customers', 'DefaultCustomerDiscountGroup', '3'),
    ('Customers', 'DefaultCustomerType', '1'), ('Customers', 'DefaultTerms', '5'),
    ('Customers', 'DefaultShippingMethod', '1'), ('Customers', 'DefaultGroups', '3'),
    ('Customers', 'ResetCustomerExported', '1');

-- Every fifth customer has a second house; a firm has a warehouse, and its first address is the office.
INSERT INTO CustomerAddresses (CustomerID, AddressLabel, Address1, Address2, City, State, Zip, Country)
    SELECT ID, 'Lake house', printf('%d Lakeshore Drive', 10 + ID), '', 'Tamarack Point', 'WI', '53097', 'USA'
    FROM Customers WHERE CompanyName = '' AND ID % 5 = 0
    UNION ALL
    SELECT ID, 'Warehouse', printf('%d Foundry Road', 200 + ID), 'Gate 2', 'Oxbow Landing', 'WI', '53098', 'USA'
    FROM Customers WHERE CompanyName <> '';
UPDATE CustomerAddresses SET AddressLabel = 'Office'
    WHERE AddressLabel = 'Home' AND CustomerID IN (SELECT ID FROM Customers WHERE CompanyName <> '');

UPDATE Customers SET OrderEntryComment = 'Bill only after the installation.' WHERE CompanyName <> '' AND ID % 2 = 1;
UPDATE Customers SET CSRMessage = 'Ask for the extension of the site office.' WHERE CompanyName <> '' AND ID % 3 = 2;
UPDATE Customers SET Exported = 1 WHERE ID % 6 = 0;

INSERT INTO CustomerActivity (CustomerID, ActivityDate, Activity, EmployeeID)
    SELECT ID, AddedOn, 'Customer added.', coalesce(SalesRepID, 1) FROM Customers WHERE ID % 4 = 1
    UNION ALL
    SELECT ID, strftime('%Y-%m-%dT%H:%M:%S', AddedOn, '+40 days'),
        'Customer updated:' || char(13, 10) || 'Phone1: (555) 010-1999 to ' || Phone1, 1
    FROM Customers WHERE ID % 8 = 5;

UPDATE Company SET SmallLogoFile = 'Lanternlight small.png', LargeLogoFileProcessReports = 'Lanternlight large.png',
    LargeLogoFileGeneralReports = 'Lanternlight large.png', WatermarkLogoFile = 'Lanternlight watermark.png';
