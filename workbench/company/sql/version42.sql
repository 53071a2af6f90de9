-- A company of version 4.2, with a retailer's data of many years ago. {customers} is replaced by the number of its
-- customers, {dated} by the columns of every row: its time of change, in local time, and its identity across companies.

CREATE TABLE ShippingMethods ({id}, Method {text}, {dated}) STRICT;
CREATE TABLE Terms ({id},
    Terms {text}, DueDays INTEGER NOT NULL DEFAULT 0, DiscountPercent REAL NOT NULL DEFAULT 0,
    DiscountDays INTEGER NOT NULL DEFAULT 0, Exported INTEGER NOT NULL DEFAULT 0, {dated}) STRICT;
CREATE TABLE Accounts ({id},
    Account {text}, Description {text}, AccountType INTEGER NOT NULL DEFAULT 1, Exported INTEGER NOT NULL DEFAULT 0,
    {dated}) STRICT;
CREATE TABLE DiscountGroups ({id}, DiscountGroup {text}, DiscountGroupType INTEGER NOT NULL DEFAULT 0, {dated}) STRICT;
-- Type 0: a group of customers
CREATE TABLE Groups ({id}, Name {text}, Description {text}, Type INTEGER NOT NULL DEFAULT 0, {dated}) STRICT;
CREATE TABLE JobTypes ({id}, Name {text}, {dated}) STRICT;
CREATE TABLE ReferralMethods ({id}, ReferralMethod {text}, {dated}) STRICT;
CREATE TABLE ProductTypes ({id}, ProductType {text}, EstDeliveryDays INTEGER NOT NULL DEFAULT 0, {dated}) STRICT;
CREATE TABLE Manufacturers ({id}, Name {text}, {dated}) STRICT;
CREATE TABLE PaymentMethods ({id},
    Method {text}, Type INTEGER NOT NULL DEFAULT 0, Exported INTEGER NOT NULL DEFAULT 0, {dated}) STRICT;
CREATE TABLE Origins ({id},
    StoreNumber {text}, MarketNumber {text}, MarketName {text}, Region {text}, Email {text}, WebSite {text},
    Phone1 {text}, Phone2 {text}, Fax1 {text}, Fax2 {text}, Address1 {text}, Address2 {text}, City {text}, State {text},
    Zip {text}, Country {text}, {dated}) STRICT;
CREATE TABLE CustomerTypes ({id},
    Name {text}, RoundUnitPrice INTEGER NOT NULL DEFAULT 0, RoundUnitPriceTo REAL NOT NULL DEFAULT 0,
    RoundUnitPriceDirection INTEGER NOT NULL DEFAULT 0, OptionDiscountMethod INTEGER NOT NULL DEFAULT 0,
    DiscountMethod INTEGER NOT NULL DEFAULT 0, {dated}) STRICT;
CREATE TABLE SalesTaxCodes ({id},
    Code {text}, Rate REAL NOT NULL DEFAULT 0, Vendor {text}, Exported INTEGER NOT NULL DEFAULT 0, {dated}) STRICT;
CREATE TABLE Company ({id},
    Name {text}, Email {text}, WebSite {text}, Phone1 {text}, Phone2 {text}, Fax1 {text}, Fax2 {text},
    BillToAddress1 {text}, BillToAddress2 {text}, BillToCity {text}, BillToState {text}, BillToZip {text}, BillToCountry {text},
    ShipToAddress1 {text}, ShipToAddress2 {text}, ShipToCity {text}, ShipToState {text}, ShipToZip {text}, ShipToCountry {text},
    SmallLogoFile {text}, LargeLogoFileGeneralReports {text}, LargeLogoFileProcessReports {text}, WatermarkLogoFile {text},
    TagLine1 {text}, TagLine2 {text}, {dated}) STRICT;
CREATE TABLE Employees ({id},
    Name {text}, FirstName {text}, MiddleInitial {text}, LastName {text}, Phone1 {text}, Phone2 {text}, Fax {text},
    Email {text}, SalesRep INTEGER NOT NULL DEFAULT 0, Installer INTEGER NOT NULL DEFAULT 0,
    Designer INTEGER NOT NULL DEFAULT 0, Active INTEGER NOT NULL DEFAULT 1, Notes {text},
    Exported INTEGER NOT NULL DEFAULT 0, {dated}) STRICT;
CREATE TABLE Customers ({id},
    Name {text}, AccountNumber {text}, CompanyName {text}, Contact {text}, FirstName {text}, LastName {text},
    MiddleInitial {text}, Phone1 {text}, Phone2 {text}, Fax {text}, Email {text},
    BillToAddress1 {text}, BillToAddress2 {text}, BillToCity {text}, BillToState {text}, BillToZip {text}, BillToCountry {text},
    CustomerTypeID INTEGER, TermsID INTEGER, ShippingMethodID INTEGER, DiscountGroupID INTEGER, ReferralMethodID INTEGER,
    SalesTaxCodeID INTEGER, SalesRepID INTEGER, ResaleNumber {text}, TaxExNumber {text}, SalesAccount {text},
    CreditHold INTEGER NOT NULL DEFAULT 0, CreditLimit REAL NOT NULL DEFAULT 0, OrderEntryComment {text},
    CSRMessage {text}, Notes {text}, Active INTEGER NOT NULL DEFAULT 1, Exported INTEGER NOT NULL DEFAULT 0,
    {dated}) STRICT;
CREATE TABLE GroupedCustomers ({id}, GroupID INTEGER NOT NULL, CustomerID INTEGER NOT NULL, {dated}) STRICT;

INSERT INTO ShippingMethods (Method) VALUES ('Our installers'), ('Parcel carrier'), ('Motor freight'), ('Customer pickup');
INSERT INTO Terms (Terms, DueDays, DiscountPercent, DiscountDays, Exported) VALUES
    ('Due on receipt', 0, 0, 0, 1), ('Net 30', 30, 0, 0, 1), ('2% 10 Net 30', 30, 0.02, 10, 1), ('Half down', 0, 0, 0, 0);
INSERT INTO Accounts (Account, Description, AccountType) VALUES
    ('Sales - Blinds and Shades', 'Blinds, shades & verticals', 1), ('Sales - Draperies', 'Everything < "sewn" >', 1),
    ('Purchases - Fabric', printf('%.*c', 300, 'x'), 2);
INSERT INTO DiscountGroups (DiscountGroup, DiscountGroupType) VALUES
    ('Standard', 0), ('Vendor', 1), ('Customer', 2), ('Contractors', 0);
INSERT INTO Groups (Name, Description, Type) VALUES
    ('Builders', 'Home builders', 0), ('Newsletter', 'Two letters a year', 0), ('Fabric books', 'Not of customers', 1);
INSERT INTO JobTypes (Name) VALUES ('Residential'), ('Commercial'), ('Model home');
INSERT INTO ReferralMethods (ReferralMethod) VALUES ('Newspaper'), ('Yellow pages'), ('Friend or neighbor');
INSERT INTO ProductTypes (ProductType, EstDeliveryDays) VALUES
    ('Draperies', 28), ('Wood blinds', 14), ('Mini blinds', 7), ('Woven woods', 35);
INSERT INTO Manufacturers (Name) VALUES ('Aldermoor Blind Works'), ('Copperfold Drapery Mill'), ('Mossbank Minis');
INSERT INTO PaymentMethods (Method, Type) VALUES ('Cash', 1), ('Check', 2), ('Store account', 0);
INSERT INTO Origins (StoreNumber, MarketNumber, MarketName, Region, Email, WebSite, Phone1, Phone2, Fax1, Fax2, Address1,
    City, State, Zip, Country) VALUES
    ('001', '10', 'Merriden', 'North', 'store1@lanternlight.example', 'www.lanternlight.example', '(555) 010-0140', '',
        '(555) 010-0141', '', '418 Halcyon Row', 'Merriden Falls', 'WI', '53099', 'USA'),
    ('002', '20', 'Oxbow', 'South', 'store2@lanternlight.example', NULL, '(555) 010-0142', NULL, NULL, NULL,
        '7 Ferry Steps', 'Oxbow Landing', 'WI', '53098', 'USA');
INSERT INTO CustomerTypes (Name, RoundUnitPrice, RoundUnitPriceTo, RoundUnitPriceDirection) VALUES
    ('Retail', 1, 1, 1), ('Contractor', 0, 0, 0);
INSERT INTO SalesTaxCodes (Code, Rate, Vendor) VALUES
    ('WI-STATE', 5, 'State Revenue Office'), ('MERRIDEN-CTY', 0.5, 'Merriden County Treasurer'),
    ('O''Hare & Sons', 1.25, 'Transit district');
INSERT INTO Company (Name, Email, WebSite, Phone1, Phone2, Fax1, Fax2, BillToAddress1, BillToCity, BillToState, BillToZip,
    BillToCountry, ShipToAddress1, ShipToCity, ShipToState, ShipToZip, ShipToCountry, SmallLogoFile, TagLine1) VALUES
    ('Lanternlight Blinds & Drapery', 'shop@lanternlight.example', 'www.lanternlight.example', '(555) 010-0140',
    '(555) 010-0149', '(555) 010-0141', '(555) 010-0148', '418 Halcyon Row', 'Merriden Falls', 'WI', '53099', 'USA',
    '418 Halcyon Row, Rear Dock', 'Merriden Falls', 'WI', '53099', 'USA', 'Lanternlight 1998.jpg', 'Since 1974');
INSERT INTO Employees (Name, FirstName, MiddleInitial, LastName, Phone1, Phone2, Fax, Email, SalesRep, Installer, Designer,
    Active, Notes) VALUES
    ('(None)', '', '', '', '', '', '', '', 0, 0, 0, 1, ''),
    ('(Administrator)', '', '', '', '', '', '', '', 0, 0, 0, 1, ''),
    ('Augusta Brandt', 'Augusta', 'M', 'Brandt', '(555) 010-0161', '', '', 'augusta@lanternlight.example', 1, 0, 1, 1, ''),
    ('Linus Okafor', 'Linus', '', 'Okafor', '(555) 010-0162', '(555) 010-0163', '', '', 0, 1, 0, 1,
        'Drives the van.' || char(13, 10) || 'Has the ladder.'),
    ('Wilma O''Toole', 'Wilma', 'J', 'O''Toole', '', '', '(555) 010-0164', '', 1, 0, 0, 0, 'Retired');

-- Names repeat, as they do in life, and some hold what is special in statements and documents.
INSERT INTO Customers (Name, AccountNumber, CompanyName, Contact, FirstName, LastName, MiddleInitial, Phone1, Phone2, Fax,
    Email, BillToAddress1, BillToCity, BillToState, BillToZip, BillToCountry, CustomerTypeID, TermsID, ShippingMethodID,
    DiscountGroupID, ReferralMethodID, SalesTaxCodeID, SalesRepID, TaxExNumber, CreditHold, CreditLimit, Notes, Active,
    LastUpdated)
WITH RECURSIVE
    count(n) AS (SELECT 1 WHERE {customers} > 0 UNION ALL SELECT n + 1 FROM count WHERE n < {customers}),
    firsts(i, first) AS (VALUES (0, 'Abel'), (1, 'Beatrix'), (2, 'Cosmo'), (3, 'Delphine'), (4, 'Ezra'), (5, 'Flora'),
        (6, 'Gideon'), (7, 'Honor'), (8, 'Isidor'), (9, 'Juno'), (10, 'Kit')),
    lasts(i, last) AS (VALUES (0, 'Alder'), (1, 'Brock'), (2, 'Crane'), (3, 'D''Arcy'), (4, 'Elm & Ash'), (5, 'Finch'),
        (6, 'Grêlon'), (7, 'Heath'), (8, 'Ives <of> "Oxbow"'), (9, 'Jarvis'), (10, 'Kestrel'), (11, 'Łuczak'), (12, 'Marsh')),
    streets(i, street) AS (VALUES (0, 'Candlewick Lane'), (1, 'Drover''s Walk'), (2, 'Elderflower Court'), (3, 'Gable Street'))
SELECT last || ', ' || first || CASE WHEN n % 50 = 0 THEN '' ELSE ' ' || n END, printf('A%06d', n),
    CASE WHEN n % 9 = 0 THEN last || ' Interiors' END, first || ' ' || last, first, last, CASE WHEN n % 5 = 0 THEN 'Q' END,
    printf('(555) 01%d-%04d', n / 10000 % 10, n % 10000), CASE WHEN n % 3 = 0 THEN printf('(555) 099-%04d', n % 10000) END,
    NULL, printf('customer%d@mail.example', n), printf('%d %s', 100 + n % 900, street), 'Merriden Falls', 'WI', '53099', 'USA',
    CASE WHEN n % 7 > 0 THEN 1 + n % 2 END, 1 + n % 4, 1 + n % 4, CASE WHEN n % 2 = 0 THEN 1 ELSE 4 END, 1 + n % 3, 1 + n % 3,
    CASE n % 4 WHEN 0 THEN 1 WHEN 1 THEN 3 WHEN 2 THEN 5 END, CASE WHEN n % 50 = 0 THEN 'EX-' || n END, n % 97 = 0,
    CASE WHEN n % 9 = 0 THEN 2500.5 ELSE 0 END,
    CASE WHEN n % 11 = 0 THEN 'Prefers mornings.' || char(13, 10) || 'Mind the dog: "Rex" & <Rover>.' END, n % 19 <> 0,
    strftime('%Y-%m-%dT%H:%M:%S', '1998-03-02 08:15:00', printf('+%d minutes', n * 37 % 5000000))
FROM count JOIN firsts ON firsts.i = n % 11 JOIN lasts ON lasts.i = n % 13 JOIN streets ON streets.i = n % 4 ORDER BY n;
INSERT INTO GroupedCustomers (GroupID, CustomerID)
    SELECT 1, ID FROM Customers WHERE CompanyName IS NOT NULL
    UNION ALL SELECT 2, ID FROM Customers WHERE ID % 4 = 0
    UNION ALL SELECT 3, ID FROM Customers WHERE ID % 25 = 0;
