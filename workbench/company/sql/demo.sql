-- The data of a new company file: a fictitious retailer of blinds, shades, shutters and draperies.
-- The measurement lists are empty, so that their screens offer the defaults.

INSERT INTO Company (Name, Email, WebSite, Phone1Label, Phone1, Phone2Label, Phone2, Phone3Label, Phone3, Phone4Label,
    Phone4, BillToAddress1, BillToCity, BillToState, BillToZip, BillToCountry, ShipToAddress1, ShipToCity, ShipToState,
    ShipToZip, ShipToCountry, CompanyType, TagLine1, TagLine2, SyncState)
VALUES ('Lanternlight Window Coverings', 'hello@lanternlight.example', 'www.lanternlight.example', 'Main',
    '(555) 010-0140', 'Other', '', 'Fax', '(555) 010-0141', 'Other', '', '418 Halcyon Row', 'Merriden Falls', 'WI', '53099',
    'USA', '418 Halcyon Row, Rear Dock', 'Merriden Falls', 'WI', '53099', 'USA', 0, 'Blinds, shades, shutters, draperies',
    'Measured twice, hung once', 4);

INSERT INTO SecurityRoles (Name, Description) VALUES
    ('Administrator', 'Every right to every activity'),
    ('Viewer', 'May look at everything and change nothing'),
    ('Sales', 'Customers, quotes, sales and orders');

-- All activities, each with the access that can be granted for it.
CREATE TEMP TABLE Activities (Activity INTEGER, Mask INTEGER);
INSERT INTO Activities VALUES
    (100, 60), (101, 60), (102, 60), (103, 60), (104, 60), (105, 60), (106, 60), (107, 60), (108, 60), (109, 60), (110, 60),
    (111, 60), (112, 60), (200, 4), (201, 20), (202, 60), (203, 60), (303, 62), (300, 60), (301, 60), (302, 60), (525, 60),
    (550, 60), (400, 60), (401, 16), (502, 60), (503, 60), (501, 60), (500, 4), (504, 60), (600, 62), (601, 62), (602, 62),
    (603, 60), (604, 44), (605, 20), (700, 22), (701, 190), (800, 190), (801, 190), (802, 190), (803, 190), (805, 190),
    (806, 190), (807, 190);
-- The administrator's rights exceed the masks: discount groups can be added and deleted.
INSERT INTO SecurityRoleAccess (SecurityRoleID, Activity, Access) SELECT 1, Activity, Mask | 60 FROM Activities;
INSERT INTO SecurityRoleAccess (SecurityRoleID, Activity, Access) SELECT 2, Activity, 4 FROM Activities WHERE Mask & 4;
INSERT INTO SecurityRoleAccess (SecurityRoleID, Activity, Access)
    SELECT 3, Activity, CASE WHEN Activity IN (300, 303, 600, 601, 602, 603, 604) THEN Mask ELSE 4 END
    FROM Activities WHERE Mask & 4;
DROP TABLE Activities;

INSERT INTO Employees (FirstName, MiddleInitial, LastName, Phone1Label, Phone1, Phone2Label, Phone2, Phone3Label, Phone3,
    Email1Label, Email1, Email2Label, Email2, SalesRep, Installer, Designer, Active, CanLogin, Username) VALUES
    ('Dana', '', 'Whitfield', 'Home', '(555) 010-0151', 'Mobile', '', 'Fax', '', 'Work', 'dana@lanternlight.example', 'Home', '', 1, 0, 1, 1, 1, 'admin'),
    ('Sam', '', 'Ortega', 'Home', '(555) 010-0152', 'Mobile', '', 'Fax', '', 'Work', 'sam@lanternlight.example', 'Home', '', 0, 0, 0, 1, 1, 'viewer'),
    ('Priya', 'K', 'Lindqvist', 'Home', '(555) 010-0153', 'Mobile', '', 'Fax', '', 'Work', 'priya@lanternlight.example', 'Home', '', 1, 0, 1, 1, 1, 'priya'),
    ('Owen', 'T', 'Marchbanks', 'Home', '(555) 010-0154', 'Mobile', '', 'Fax', '', 'Work', 'owen@lanternlight.example', 'Home', '', 1, 0, 0, 1, 1, 'owen'),
    ('Rosalind', '', 'Quayle', 'Home', '(555) 010-0155', 'Mobile', '', 'Fax', '', 'Work', 'rosalind@lanternlight.example', 'Home', '', 0, 0, 1, 1, 0, NULL),
    ('Teodor', 'J', 'Vask', 'Home', '(555) 010-0156', 'Mobile', '', 'Fax', '', 'Work', 'teodor@lanternlight.example', 'Home', '', 0, 1, 0, 1, 0, NULL),
    ('Bram', '', 'Okonjo', 'Home', '(555) 010-0157', 'Mobile', '', 'Fax', '', 'Work', 'bram@lanternlight.example', 'Home', '', 0, 1, 0, 1, 0, NULL),
    ('Hester', 'L', 'Pym', 'Home', '(555) 010-0158', 'Mobile', '', 'Fax', '', 'Work', 'hester@lanternlight.example', 'Home', '', 1, 0, 0, 0, 0, NULL);
INSERT INTO EmployeeSecurityRoles (EmployeeID, SecurityRoleID) VALUES (1, 1), (2, 2), (3, 3), (4, 3);

INSERT INTO CompanyOptions (Section, OptionName, OptionValue) VALUES
    ('Customers', 'DefaultPhone1Label', 'Home'), ('Customers', 'DefaultPhone2Label', 'Work'),
    ('Customers', 'DefaultPhone3Label', 'Mobile'), ('Customers', 'DefaultEmail1Label', 'Home'),
    ('Customers', 'DefaultEmail2Label', 'Work');

INSERT INTO Terms (Terms, DueDays, Discount, DiscountDays) VALUES
    ('Due on receipt', 0, 0, 0), ('Net 15', 15, 0, 0), ('Net 30', 30, 0, 0), ('2% 10 Net 30', 30, 0.02, 10),
    ('Half down, balance at installation', 0, 0, 0), ('Net 60', 60, 0, 0);
INSERT INTO PaymentMethods (PaymentMethod, PaymentType) VALUES
    ('Cash', 1), ('Check', 2), ('Credit card', 3), ('Bank transfer', 4), ('Store credit', 0);
INSERT INTO ShippingMethods (ShippingMethod, TaskType) VALUES
    ('Our installers', 1), ('Parcel carrier', 2), ('Freight carrier', 2), ('Customer pickup', 2);
INSERT INTO ReferralMethods (ReferralMethod) VALUES
    ('Friend or neighbor'), ('Home show'), ('Newspaper'), ('Radio'), ('Showroom walk-in'), ('Web site');
INSERT INTO JobTypes (JobType) VALUES ('Commercial'), ('New construction'), ('Residential'), ('Repair');
INSERT INTO OrderTypes (OrderType) VALUES ('Retail'), ('Trade'), ('Warranty'), ('Remake');
INSERT INTO ProductTypes (ProductType, EstDeliveryDays) VALUES
    ('Cellular shades', 14), ('Draperies', 28), ('Faux wood blinds', 10), ('Roller shades', 12), ('Roman shades', 21),
    ('Shutters', 42), ('Vertical blinds', 10), ('Wood blinds', 14), ('Awnings', 35);
INSERT INTO Manufacturers (Manufacturer) VALUES
    ('Aldermoor Blind Works'), ('Brightvane Shades'), ('Copperfold Drapery Mill'), ('Driftmark Shutters'),
    ('Everley & Toft'), ('Fernhollow Textiles'), ('Larkspur Awnings');
INSERT INTO Groups (GroupName, Description) VALUES
    ('Builders', 'Home builders and their site offices'), ('Designers', 'Interior designers with trade terms'),
    ('Newsletter', 'Receives the spring and fall newsletter'), ('Property managers', 'Apartment and office buildings');
INSERT INTO CustomerTypes (Name, RoundUnitPrice, RoundUnitPriceTo, RoundUnitPriceDirection) VALUES
    ('Retail', 1, 1, 1), ('Trade', 0, 0, 0), ('Commercial', 1, 0.5, 0);
INSERT INTO DeliveryRanges (Range) VALUES
    ('Next available'), ('1 to 2 weeks'), ('2 to 4 weeks'), ('4 to 6 weeks'), ('6 to 8 weeks'), ('Customer will call');
INSERT INTO PhoneLabels (Label) VALUES ('Assistant'), ('Fax'), ('Home'), ('Mobile'), ('Site office'), ('Work');
INSERT INTO EmailLabels (Label) VALUES ('Accounts'), ('Home'), ('Work');
INSERT INTO Locations (LocationName, Email, Phone1Label, Phone1, ShipToAddress1, ShipToCity, ShipToState, ShipToZip,
    ShipToCountry, StoreNumber, MarketName, Region) VALUES
    ('Merriden Falls showroom', 'falls@lanternlight.example', 'Main', '(555) 010-0140', '418 Halcyon Row', 'Merriden Falls', 'WI', '53099', 'USA', '01', 'Merriden', 'North'),
    ('Oxbow Landing', 'oxbow@lanternlight.example', 'Main', '(555) 010-0142', '7 Ferry Steps', 'Oxbow Landing', 'WI', '53098', 'USA', '02', 'Oxbow', 'South'),
    ('Tamarack Point', 'tamarack@lanternlight.example', 'Main', '(555) 010-0143', '30 Lakeshore Drive', 'Tamarack Point', 'WI', '53097', 'USA', '03', 'Oxbow', 'South');
INSERT INTO FieldMeasureCriteria (Criteria) VALUES ('Product type is Shutters'), ('Width over 96');
INSERT INTO QuoteApproval (Criteria) VALUES ('Total over 10000'), ('Margin under 0.25');
INSERT INTO RequireDepositCriteria (Criteria, DepositPercent) VALUES ('Total over 500', 25), ('Total over 2500', 50);
INSERT INTO DiscountGroups (DiscountGroup, DiscountGroupType) VALUES
    ('Standard', 0), ('Vendor', 1), ('Customer', 2), ('Designers', 0), ('Volume buyers', 2), ('Early buy', 1);
INSERT INTO SalesTaxCodes (Code, Rate, Vendor) VALUES
    ('WI-STATE', 5, 'State Revenue Office'), ('MERRIDEN-CTY', 0.5, 'Merriden County Treasurer'),
    ('OXBOW-CTY', 0.4, 'Oxbow County Treasurer'), ('LAKES-DIST', 0.1, 'Lakes District Board'), ('EXEMPT', 0, '');
INSERT INTO SalesTaxGroups (SalesTaxGroup, Description) VALUES
    ('Merriden County', 'Deliveries within Merriden County'), ('Oxbow County', 'Deliveries within Oxbow County, lakes included'),
    ('State only', 'Deliveries elsewhere in the state'), ('Exempt', 'Resellers and public bodies with a certificate');
INSERT INTO SalesTaxGroupCodes (SalesTaxGroupID, SalesTaxCodeID) VALUES (1, 1), (1, 2), (2, 1), (2, 3), (2, 4), (3, 1), (4, 5);
INSERT INTO Accounts (Account, AccountType) VALUES
    ('Sales - Blinds and Shades', 1), ('Sales - Draperies', 1), ('Sales - Shutters', 1), ('Installation Income', 1),
    ('Freight Income', 1), ('Discounts Given', 1), ('Purchases - Blinds and Shades', 2), ('Purchases - Draperies', 2),
    ('Purchases - Shutters', 2), ('Contract Installers', 2), ('Freight In', 2), ('Sales - Awnings', 1);
INSERT INTO OrderStatusCodes (State, StatusName, Sequence) VALUES
    (1, 'New quote', 1), (1, 'Sent to customer', 2), (1, 'Declined', 3), (2, 'Sold', 1), (2, 'Field measured', 2),
    (2, 'Invoiced', 3), (3, 'Ordered', 1), (3, 'Received', 2), (3, 'Installed', 3);

INSERT INTO Vendors (VendorName, AccountNumber, Contact, Phone1Label, Phone1, Email1Label, Email1, BillToAddress1,
    BillToCity, BillToState, BillToZip, BillToCountry, OOP_VendorID, Active)
WITH list(n, name, contact, city, active) AS (VALUES
    (1, '(None)', '', '', 1), (2, 'Aldermoor Blind Works', 'Ivo Renfrew', 'Aldermoor', 1),
    (3, 'Brightvane Shades', 'Lucasta Bell', 'Brightvane', 1), (4, 'Copperfold Drapery Mill', 'Anselm Crowe', 'Copperfold', 1),
    (5, 'Driftmark Shutters', 'Petra Nook', 'Driftmark', 1), (6, 'Everley & Toft', 'Gideon Toft', 'Everley', 1),
    (7, 'Fernhollow Textiles', 'Maud Sedge', 'Fernhollow', 1), (8, 'Gallowhill Hardware', 'Cyrus Pell', 'Gallowhill', 1),
    (9, 'Hartsease Motor Lifts', 'Nell Abernathy', 'Hartsease', 1), (10, 'Inglenook Cord & Chain', 'Rufus Dray', 'Inglenook', 1),
    (11, 'Juniper Lane Fabrics', 'Orla Thistle', 'Juniper Lane', 1), (12, 'Kettleby Freight', 'Basil Marl', 'Kettleby', 1),
    (13, 'Larkspur Awnings', 'Edda Voss', 'Larkspur', 0))
SELECT name, CASE WHEN n > 1 THEN printf('LW-%04d', 1200 + n * 7) END, contact, 'Work', CASE WHEN n > 1 THEN printf('(555) 010-02%02d', n) END,
    'Work', CASE WHEN n > 1 THEN 'orders@' || lower(replace(city, ' ', '')) || '.example' END,
    CASE WHEN n > 1 THEN printf('%d Mill Street', n * 11) END, city, CASE WHEN n > 1 THEN 'WI' END,
    CASE WHEN n > 1 THEN printf('53%03d', n * 3) END, CASE WHEN n > 1 THEN 'USA' END,
    CASE WHEN n BETWEEN 2 AND 4 THEN printf('E%03d', n) END, active FROM list ORDER BY n;
UPDATE Vendors SET CostMethod = 1 + ID % 3 WHERE VendorName <> '(None)';

INSERT INTO Products (Product, ProductTypeID, ManufacturerID, ProductFile, Active) VALUES
    ('Aldermoor 2 inch wood blind', 8, 1, 'ALD-WOOD2', 1), ('Aldermoor faux wood blind', 3, 1, 'ALD-FAUX', 1),
    ('Brightvane cellular single', 1, 2, 'BRV-CELL1', 1), ('Brightvane roller classic', 4, 2, 'BRV-ROLL', 1),
    ('Copperfold pinch pleat', 2, 3, 'COP-PINCH', 1), ('Copperfold roman flat', 5, 3, 'COP-ROMAN', 1),
    ('Driftmark basswood shutter', 6, 4, 'DRI-BASS', 1), ('Everley vertical vane', 7, 5, 'EVE-VERT', 1),
    ('Everley sheer shade', 4, 5, 'EVE-SHEER', 1), ('Fernhollow ripplefold', 2, 6, 'FER-RIPPLE', 0);
UPDATE Products SET
    SalesAccountID = CASE WHEN ProductTypeID IN (2, 5) THEN 2 WHEN ProductTypeID = 6 THEN 3 ELSE 1 END,
    PurchaseAccountID = CASE WHEN ProductTypeID IN (2, 5) THEN 8 WHEN ProductTypeID = 6 THEN 9 ELSE 7 END;
INSERT INTO ProductVendors (ProductID, VendorID, IsDefault, DiscountGroupID)
    SELECT ID, ManufacturerID + 1, 1, CASE WHEN ManufacturerID = 2 THEN 6 ELSE 2 END FROM Products;
INSERT INTO ProductRefreshHistory (ProductID, ProductTypeID, ManufacturerID, RefreshedOn)
    SELECT ID, ProductTypeID, ManufacturerID, strftime('%Y-%m-%dT%H:%M:%S', '2024-02-05 07:30:00', printf('+%d days', ID * 11))
    FROM Products WHERE Active;
INSERT INTO ProductTags (ProductID, Tag) VALUES (1, 'Best seller'), (3, 'Best seller'), (3, 'Insulating'), (7, 'Premium');
INSERT INTO Portfolio (FileName, Description) VALUES
    ('bay-window-shutters.jpg', 'Bay window'), ('kitchen-roman.jpg', 'Kitchen'), ('nursery-cellular.jpg', 'Nursery');
INSERT INTO PortfolioTags (PortfolioID, Tag) VALUES (1, 'Shutters'), (1, 'Living room'), (2, 'Kitchen'), (3, 'Cellular');
INSERT INTO Discounts (DiscountGroupID, DiscountLevel, ProductID, Multiplier, Markup) VALUES
    (1, 1, 1, 0.7, 0), (1, 1, 3, 0.65, 0), (4, 1, 1, 0.6, 0), (2, 1, 1, 0.45, 0), (3, 2, 3, 0, 0.2);
INSERT INTO Discounts (DiscountGroupID, DiscountLevel, ProductID, Style, OptionName, Multiplier, TierLevel, Margin) VALUES
    (4, 2, 7, 'Arched', NULL, 0.75, NULL, 0), (4, 3, 7, 'Arched', 'Finish', 0.8, NULL, 0), (5, 1, NULL, NULL, NULL, 0, '10', 0.35);

INSERT INTO AdditionalCharges (ChargeType, ChargeCode, Enabled, GroupName, ChargeName, Description, Cost, ChargeMethod, Value,
    Taxable, AutoAddToQuotes, StartsOn, EndsOn, Criteria, CustomerTypeID, VendorID, SalesAccountID, PurchaseAccountID,
    ExportChargeName, Category, Sequence) VALUES
    (8, '4be1d20c', 1, 'Installation', 'Standard installation', 'Blinds and shades', 9, 11, '18', 0, 1, NULL, NULL, '', NULL, NULL, 4, 10, 'INSTALL', 1, 1),
    (8, '90c7a3f1', 1, 'Installation', 'Shutter installation', 'Per square foot', 2.5, 15, '4.5', 0, 0, NULL, NULL, 'Product type is Shutters', NULL, NULL, 4, 10, 'INSTALL', 1, 2),
    (8, '1d5f88ab', 1, 'Shipping', 'Freight', 'Oversize freight', 45, 1, '65', 1, 0, NULL, NULL, 'Width over 96', NULL, NULL, 5, 11, 'FREIGHT', 2, 1),
    (8, 'c02e6b74', 0, '', 'Trip charge', '', 20, 1, '35', 0, 0, NULL, NULL, '', NULL, NULL, 4, 10, 'TRIP', 3, 1),
    (2, '77aa31e9', 1, 'Season', 'Spring shutter event', 'Ten percent of all shutters', 0, 12, '-10', 1, 1, '2024-03-01T00:00:00', '2024-05-31T00:00:00', 'Product type is Shutters', 1, NULL, 6, NULL, 'PROMO', 3, 1),
    (1, 'e3390d5c', 1, '', 'Brightvane free lift', '', -12, 11, '0', 0, 0, '2024-01-01T00:00:00', '2024-12-31T00:00:00', '', NULL, 3, 6, 7, 'VPROMO', 3, 1),
    (4, '5a71f0d2', 1, '', 'Trade price adjustment', '', 0, 8, '-5', 1, 0, NULL, NULL, '', 3, NULL, 1, NULL, '', 3, 1),
    (256, 'bb04c916', 1, '', 'Copperfold fuel surcharge', '', 0, 5, '2', 0, 0, NULL, NULL, '', NULL, 4, NULL, 8, '', 2, 1),
    (8, '5c9e2f10', 1, 'Price lines', 'Crown valance', 'The valance of the product', 0, 3, 'Crown valance', 1, 0, NULL, NULL, '', NULL, NULL, 1, 7, '', 3, 1),
    (2, 'd2b8a6c3', 1, 'Season', 'Free motor', 'The motor is on the house', 0, 4, 'Motor', 1, 0, '2024-09-01T00:00:00', '2024-09-30T00:00:00', '', NULL, NULL, 6, NULL, '', 3, 2);
INSERT INTO OptionDetailSettings (Location, Sequence, Show, OptionName, Prefix, isBold) VALUES
    (0, 1, 1, 'Room Location', 'Room', 1), (0, 2, 1, 'Pattern', '', 0), (0, 3, 1, 'Finish', 'Finish', 0),
    (0, 9999, 0, 'Hold Downs', '', 0), (1, 1, 1, 'Mount', 'Mount', 0), (1, 2, 1, 'Control Side', 'Control', 0);
INSERT INTO OptionDefaults (ProductID, OptionName, OptionValue) VALUES
    (NULL, 'Mount', 'Inside'), (NULL, 'Control Side', 'Right'), (1, 'Ladder', 'Cloth tape'), (3, 'Lift', 'Cordless'), (7, 'Louver', '3 1/2 inch');
INSERT INTO OptionCallouts (ProductTypeID, ProductID, Style, OptionName, Color, ColorWhen, ColorCriteria, Message) VALUES
    (NULL, NULL, '', 'Room Location', 13434879, 1, '', 'Ask which room this is for.'),
    (6, NULL, '', 'Finish', 255, 2, 'Custom', 'A custom finish needs a sample and two more weeks.'),
    (6, 7, 'Arched', 'Height', 65535, 0, '', 'Arches are measured at the crown.'),
    (1, 3, '', 'Lift', 255, 2, 'Corded', 'Corded lifts need the safety sheet signed.');
INSERT INTO EmailTemplates (GroupName, TemplateType, TemplateName, Favorite, Description, CcAddress, BCcAddress, Subject, BodyText) VALUES
    ('Appointments', 1, 'Measure appointment', 1, 'Confirms a field measure', '', '', 'Your measure appointment', 'Dear <<FirstName>>,' || char(13, 10) || 'we look forward to seeing you.'),
    ('Orders', 4, 'Quote enclosed', 1, 'Goes out with a quote', '', 'sales@lanternlight.example', 'Your quote <<OrderNumber>>', 'Please find your quote enclosed.'),
    ('Orders', 4, 'Ready to install', 0, '', '', '', 'Your order has arrived', 'Call us to set a date for the installation.'),
    ('Vendors', 2, 'Claim', 0, 'Damage in transit', 'warehouse@lanternlight.example', '', 'Claim', 'We received a damaged parcel.');

INSERT INTO Customers (CustomerName, AccountNumber, CompanyName, Contact, FirstName, LastName, Phone1Label, Phone1, Phone2Label,
    Phone3Label, Email1Label, Email1, Email2Label, BillToAddress1, BillToCity, BillToState, BillToZip, BillToCountry,
    DiscountGroupID, CustomerTypeID, SalesRepID, InstallerID, DesignerID, ShippingMethodID, ReferralMethodID, LocationID,
    CreditLimit, CustomerDiscountGroupID, SalesTaxGroupID, Active, Notes)
WITH RECURSIVE
    count(n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM count WHERE n < 60),
    firsts(i, first) AS (VALUES (0, 'Adela'), (1, 'Barnaby'), (2, 'Clementine'), (3, 'Dorian'), (4, 'Effie'), (5, 'Fabian'),
        (6, 'Greta'), (7, 'Hollis'), (8, 'Imogen'), (9, 'Jasper'), (10, 'Keziah'), (11, 'Leopold')),
    lasts(i, last) AS (VALUES (0, 'Ashgrove'), (1, 'Birdwhistle'), (2, 'Cobblepot'), (3, 'Dunmore'), (4, 'Eddington'),
        (5, 'Fernsby'), (6, 'Gravenhurst'), (7, 'Hathersage'), (8, 'Inkpen'), (9, 'Jolliffe'), (10, 'Kestle'),
        (11, 'Lovelock'), (12, 'Muckle'), (13, 'Nettlefold'), (14, 'O''Dell'), (15, 'Pettibone'), (16, 'Quillfeather'),
        (17, 'Rookwood'), (18, 'Sallow'), (19, 'Tiddy'), (20, 'Underhay'), (21, 'Vellacott'), (22, 'Wychwood')),
    firms(n, firm) AS (VALUES (5, 'Applecote Property Care'), (11, 'Bellwether Builders'), (17, 'Cinder & Ash Interiors'),
        (23, 'Dovecote Dental'), (29, 'Elmhurst Inn'), (35, 'Foxglove Montessori'), (41, 'Gatehouse Offices'),
        (47, 'Hawthorn Homes'), (53, 'Ivy Court Apartments'), (59, 'Jackdaw Design Studio')),
    streets(i, street) AS (VALUES (0, 'Candlewick Lane'), (1, 'Drover''s Walk'), (2, 'Elderflower Court'), (3, 'Foundry Road'),
        (4, 'Gable Street'), (5, 'Harvest Way'), (6, 'Ironbridge Avenue')),
    towns(i, town, zip) AS (VALUES (0, 'Merriden Falls', '53099'), (1, 'Oxbow Landing', '53098'), (2, 'Tamarack Point', '53097'),
        (3, 'Willow Ferry', '53096'))
SELECT coalesce(firm, last || ', ' || first), printf('C%04d', 1000 + n), coalesce(firm, ''), first || ' ' || last, first, last,
    'Home', printf('(555) 010-1%03d', n), 'Work', 'Mobile', 'Home',
    lower(first) || '.' || lower(replace(last, '''', '')) || '@mail.example', 'Work',
    printf('%d %s', 100 + n * 13, street), town, 'WI', zip, 'USA',
    CASE WHEN firm IS NULL THEN 1 ELSE 4 END, CASE WHEN firm IS NULL THEN 1 ELSE 3 END,
    CASE n % 3 WHEN 0 THEN 1 WHEN 1 THEN 3 ELSE 4 END, 6 + n % 2, CASE WHEN n % 4 = 0 THEN 5 END,
    CASE WHEN n % 5 = 0 THEN 2 ELSE 1 END, 1 + n * n % 11 % 5, 1 + n % 3 % 2, CASE WHEN firm IS NULL THEN 0 ELSE 5000 END,
    CASE WHEN firm IS NULL THEN 3 ELSE 5 END, CASE WHEN n % 12 = 11 THEN 4 ELSE 1 + n % 3 END, n % 19 <> 0,
    CASE WHEN n % 7 = 0 THEN 'Prefers mornings.' || char(13, 10) || 'Mind the dog.' END
FROM count JOIN firsts ON firsts.i = n % 12 JOIN lasts ON lasts.i = n * 5 % 23 LEFT JOIN firms USING (n)
    JOIN streets ON streets.i = n % 7 JOIN towns ON towns.i = n % 4 ORDER BY n;
INSERT INTO CustomerAddresses (CustomerID, AddressLabel, Address1, City, State, Zip, Country, isDefault)
    SELECT ID, 'Home', BillToAddress1, BillToCity, BillToState, BillToZip, BillToCountry, 1 FROM Customers;
INSERT INTO GroupedCustomers (GroupID, CustomerID)
    SELECT CASE WHEN ID % 12 = 5 THEN 4 ELSE 1 END, ID FROM Customers WHERE CompanyName <> ''
    UNION ALL SELECT 3, ID FROM Customers WHERE ID % 4 = 0;

INSERT INTO CustomerMeasurements (CustomerID, Location, Room, Item, Mount, Width, Length, Remarks)
WITH windows(room, item, mount, width, length, remarks) AS (VALUES
    ('Living room', 'Window 1', 'Inside', '35 1/2', '60', ''), ('Living room', 'Window 1', 'Inside', '35 1/2', '60', ''),
    ('Kitchen', 'Window', 'Outside', '47 3/8', '36', 'Crank handle stands out 2"'),
    ('Master bedroom', 'Sliding door', 'Wall', '72', '80 1/4', ''))
SELECT ID, CASE WHEN CompanyName = '' THEN 'House' ELSE 'Office' END, room, item, mount, width, length, remarks
FROM Customers JOIN windows WHERE Customers.ID % 8 = 3;
INSERT INTO Jobs (JobName, CustomerID, JobTypeID, Created)
    SELECT LastName || CASE WHEN CompanyName = '' THEN ' residence' ELSE ' offices' END, ID,
        CASE WHEN CompanyName <> '' THEN 1 WHEN ID % 12 = 1 THEN 3 ELSE 2 END, '2024-03-01T09:00:00'
    FROM Customers WHERE ID % 6 IN (1, 5);
INSERT INTO Orders (OrderNumber, State, StatusID, CustomerID, OrderTypeID, ShippingMethodID, ReferralMethodID, LocationID,
    DeliveryRangeID, SalesTaxGroupID, JobID, SalesRepID, InstallerID, Sidemark, Total, ShipToAddress1, ShipToCity, ShipToState, ShipToZip, ShipToCountry, Created,
    CreatedBy)
WITH RECURSIVE count(n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM count WHERE n < 40)
SELECT 10000 + n, 1 + n % 3, CASE n % 3 WHEN 0 THEN 1 + n % 2 WHEN 1 THEN 4 + n % 3 ELSE 7 + n % 3 END, c.ID,
    CASE WHEN n % 13 = 0 THEN 3 WHEN c.CompanyName = '' THEN 1 ELSE 2 END,
    c.ShippingMethodID, c.ReferralMethodID, c.LocationID, 1 + n % 5, c.SalesTaxGroupID,
    (SELECT min(Jobs.ID) FROM Jobs WHERE Jobs.CustomerID = c.ID), c.SalesRepID, c.InstallerID, c.LastName || ' ' || n,
    round(180 + n * n * 7.35, 2), c.BillToAddress1, c.BillToCity, c.BillToState, c.BillToZip, c.BillToCountry,
    strftime('%Y-%m-%dT%H:%M:%S', '2024-01-08 09:30:00', printf('+%d days', n * 6)), c.SalesRepID
FROM count JOIN Customers c ON c.ID = 1 + n * 7 % 60 ORDER BY n;
INSERT INTO Payments (OrderID, CustomerID, PaymentMethodID, Amount, PaidOn)
    SELECT ID, CustomerID, 1 + ID % 3, round(Total / 2, 2), Created FROM Orders WHERE State > 1;
INSERT INTO PurchaseOrders (PONumber, VendorID, OrderID, ShippingMethodID, SentOn)
    SELECT 500 + ID, 2 + ID % 6, ID, 2, Created FROM Orders WHERE State = 3;

UPDATE Customers SET TermsID = CASE WHEN CompanyName <> '' THEN 3 ELSE 5 END;
UPDATE Vendors SET TermsID = CASE WHEN ID % 4 = 0 THEN 4 ELSE 3 END WHERE ID > 1;
UPDATE Orders SET TermsID = (SELECT TermsID FROM Customers WHERE Customers.ID = Orders.CustomerID);

-- Spreads the dates of addition, which would all be in one second.
UPDATE Customers SET AddedOn = strftime('%Y-%m-%dT%H:%M:%S', '2022-02-01 15:00:00', printf('+%d days', ID * 9));
UPDATE Vendors SET AddedOn = strftime('%Y-%m-%dT%H:%M:%S', '2021-06-01 15:00:00', printf('+%d days', ID * 20));
UPDATE Employees SET AddedOn = strftime('%Y-%m-%dT%H:%M:%S', '2021-05-01 14:00:00', printf('+%d days', ID * 60));
INSERT INTO EventLog (EventType, EventText, Source) VALUES (2, 'The company was created.', 'Workbench');
