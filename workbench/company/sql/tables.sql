-- The tables of a company. {id} is replaced by the key, {bookkeeping} by the columns of every record: its identity
-- across companies and the times of its addition and last change, in UTC. {text} is replaced by the type of a text
-- that compares without letter case. Texts have no index: see SqlFunctions.h.

-- The company and its employees ---------------------------------------------------------------------------------

CREATE TABLE Company ({id},
    Name {text}, Email {text}, WebSite {text},
    Phone1Label {text}, Phone1 {text}, Phone2Label {text}, Phone2 {text},
    Phone3Label {text}, Phone3 {text}, Phone4Label {text}, Phone4 {text},
    BillToAddress1 {text}, BillToAddress2 {text}, BillToCity {text}, BillToState {text}, BillToZip {text}, BillToCountry {text},
    ShipToAddress1 {text}, ShipToAddress2 {text}, ShipToCity {text}, ShipToState {text}, ShipToZip {text}, ShipToCountry {text},
    ValidateAddresses INTEGER NOT NULL DEFAULT 0,
    SmallLogoFile {text}, LargeLogoFileProcessReports {text}, LargeLogoFileGeneralReports {text}, WatermarkLogoFile {text},
    CompanyType INTEGER NOT NULL DEFAULT 0, TagLine1 {text}, TagLine2 {text},
    -- 4: the first synchronisation is complete
    SyncState INTEGER NOT NULL DEFAULT 0, NextSequenceToMain INTEGER, NextSequenceFromMain INTEGER,
    LastAuditID INTEGER, MainUniqueID {text}, ResetRequestedOn {text},
    {bookkeeping}) STRICT;

-- Without UpdatedOn: an employee's history lists every changed column, and would list this one.
CREATE TABLE Employees ({id},
    FirstName {text}, LastName {text}, MiddleInitial {text},
    Phone1Label {text}, Phone1 {text}, Phone2Label {text}, Phone2 {text}, Phone3Label {text}, Phone3 {text},
    Email1Label {text}, Email1 {text}, Email2Label {text}, Email2 {text},
    SalesRep INTEGER NOT NULL DEFAULT 0, Installer INTEGER NOT NULL DEFAULT 0, Designer INTEGER NOT NULL DEFAULT 0,
    Active INTEGER NOT NULL DEFAULT 1, CanLogin INTEGER NOT NULL DEFAULT 0, Username {text}, PasswordHash TEXT,
    Notes {text}, ValidateAddresses INTEGER NOT NULL DEFAULT 0,
    EmailMethod INTEGER NOT NULL DEFAULT 0, EmailSMTPServer {text}, EmailSenderAddress {text},
    EmailSMTPAuth INTEGER NOT NULL DEFAULT 0, EmailSMTPUserName {text}, EmailSMTPPassword TEXT, EmailSMTPPort INTEGER,
    EmailSMTPTimeout INTEGER, EmailSMTPAuthMethod {text}, EmailSMTPSSL INTEGER NOT NULL DEFAULT 0,
    EmailSMTPTLS INTEGER NOT NULL DEFAULT 0,
    Exported INTEGER NOT NULL DEFAULT 0, UniqueID {text} NOT NULL DEFAULT {uniqueid},
    AddedOn TEXT NOT NULL DEFAULT {now}) STRICT;

CREATE TABLE SecurityRoles ({id}, Name {text}, Description {text}, {bookkeeping}) STRICT;

-- Access: 2 view one's own records, 4 view, 8 add, 16 edit, 32 delete, 128 perform
CREATE TABLE SecurityRoleAccess ({id},
    SecurityRoleID INTEGER NOT NULL, Activity INTEGER NOT NULL, Access INTEGER NOT NULL DEFAULT 0) STRICT;
CREATE INDEX SecurityRoleAccess_Role ON SecurityRoleAccess (SecurityRoleID, Activity);

CREATE TABLE EmployeeSecurityRoles ({id}, EmployeeID INTEGER NOT NULL, SecurityRoleID INTEGER NOT NULL) STRICT;

CREATE TABLE CompanyOptions ({id}, Section {text}, OptionName {text}, OptionValue {text}, {bookkeeping}) STRICT;
CREATE TABLE UserOptions ({id},
    EmployeeID INTEGER NOT NULL, Section {text}, OptionName {text}, OptionValue {text}, {bookkeeping}) STRICT;

-- Events and activity -------------------------------------------------------------------------------------------

-- EventType: 1 error, 2 notice, 3 warning
CREATE TABLE EventLog ({id},
    EventDate TEXT NOT NULL DEFAULT {now}, EventType INTEGER NOT NULL DEFAULT 2, EventText {text},
    Source {text}, UserName {text}) STRICT;

CREATE TABLE CustomerActivity ({id},
    CustomerID INTEGER NOT NULL, ActivityDate TEXT NOT NULL DEFAULT {now}, Activity {text}, EmployeeID INTEGER) STRICT;
CREATE TABLE VendorActivity ({id},
    VendorID INTEGER NOT NULL, ActivityDate TEXT NOT NULL DEFAULT {now}, Activity {text}, EmployeeID INTEGER) STRICT;
CREATE TABLE EmployeeActivity ({id},
    EmployeeID INTEGER NOT NULL, ActivityDate TEXT NOT NULL DEFAULT {now}, Activity {text}, ByEmployeeID INTEGER) STRICT;

-- Lookup lists --------------------------------------------------------------------------------------------------

CREATE TABLE Terms ({id},
    Terms {text}, DueDays INTEGER NOT NULL DEFAULT 0,
    Discount REAL NOT NULL DEFAULT 0,  -- a fraction: 0.02 is two percent
    DiscountDays INTEGER NOT NULL DEFAULT 0, Exported INTEGER NOT NULL DEFAULT 0, {bookkeeping}) STRICT;
CREATE TABLE PaymentMethods ({id},
    PaymentMethod {text}, PaymentType INTEGER NOT NULL DEFAULT 0, Exported INTEGER NOT NULL DEFAULT 0, {bookkeeping}) STRICT;
CREATE TABLE ShippingMethods ({id}, ShippingMethod {text}, TaskType INTEGER NOT NULL DEFAULT 0, {bookkeeping}) STRICT;
CREATE TABLE ReferralMethods ({id}, ReferralMethod {text}, {bookkeeping}) STRICT;
CREATE TABLE JobTypes ({id}, JobType {text}, {bookkeeping}) STRICT;
CREATE TABLE OrderTypes ({id}, OrderType {text}, {bookkeeping}) STRICT;
CREATE TABLE ProductTypes ({id}, ProductType {text}, EstDeliveryDays INTEGER NOT NULL DEFAULT 0, {bookkeeping}) STRICT;
CREATE TABLE Manufacturers ({id}, Manufacturer {text}, {bookkeeping}) STRICT;
-- GroupType 1: a group of customers
CREATE TABLE Groups ({id},
    GroupName {text}, Description {text}, GroupType INTEGER NOT NULL DEFAULT 1, {bookkeeping}) STRICT;
CREATE TABLE CustomerTypes ({id},
    Name {text}, RoundUnitPrice INTEGER NOT NULL DEFAULT 0, RoundUnitPriceTo REAL NOT NULL DEFAULT 0,
    RoundUnitPriceDirection INTEGER NOT NULL DEFAULT 0, OptionDiscountMethod INTEGER NOT NULL DEFAULT 0,
    DiscountMethod INTEGER NOT NULL DEFAULT 0, {bookkeeping}) STRICT;
CREATE TABLE DeliveryRanges ({id}, Range {text}, {bookkeeping}) STRICT;
CREATE TABLE PhoneLabels ({id}, Label {text}, {bookkeeping}) STRICT;
CREATE TABLE EmailLabels ({id}, Label {text}, {bookkeeping}) STRICT;
CREATE TABLE MeasurementRooms ({id}, Room {text}, {bookkeeping}) STRICT;
CREATE TABLE MeasurementItems ({id}, ItemName {text}, {bookkeeping}) STRICT;
CREATE TABLE MeasurementMounts ({id}, Mount {text}, {bookkeeping}) STRICT;
CREATE TABLE Locations ({id},
    LocationName {text}, Email {text}, WebSite {text},
    Phone1Label {text}, Phone1 {text}, Phone2Label {text}, Phone2 {text},
    Phone3Label {text}, Phone3 {text}, Phone4Label {text}, Phone4 {text},
    ShipToAddress1 {text}, ShipToAddress2 {text}, ShipToCity {text}, ShipToState {text}, ShipToZip {text}, ShipToCountry {text},
    ValidateAddresses INTEGER NOT NULL DEFAULT 0,
    StoreNumber {text}, MarketNumber {text}, MarketName {text}, Region {text}, {bookkeeping}) STRICT;
CREATE TABLE FieldMeasureCriteria ({id}, Criteria {text}, {bookkeeping}) STRICT;
CREATE TABLE QuoteApproval ({id}, Criteria {text}, {bookkeeping}) STRICT;
CREATE TABLE RequireDepositCriteria ({id}, Criteria {text}, DepositPercent REAL NOT NULL DEFAULT 0, {bookkeeping}) STRICT;
-- DiscountGroupType: 0 price, 1 cost, 2 customer
CREATE TABLE DiscountGroups ({id}, DiscountGroup {text}, DiscountGroupType INTEGER NOT NULL DEFAULT 0, {bookkeeping}) STRICT;
-- Rate: percent
CREATE TABLE SalesTaxCodes ({id},
    Code {text}, Rate REAL NOT NULL DEFAULT 0, Vendor {text}, Exported INTEGER NOT NULL DEFAULT 0, {bookkeeping}) STRICT;
CREATE TABLE SalesTaxGroups ({id},
    SalesTaxGroup {text}, Description {text}, Exported INTEGER NOT NULL DEFAULT 0, {bookkeeping}) STRICT;
CREATE TABLE SalesTaxGroupCodes ({id},
    SalesTaxGroupID INTEGER NOT NULL, SalesTaxCodeID INTEGER NOT NULL, {bookkeeping}) STRICT;
-- AccountType: 1 sales, 2 purchase
CREATE TABLE Accounts ({id},
    Account {text}, AccountType INTEGER NOT NULL DEFAULT 1, Exported INTEGER NOT NULL DEFAULT 0, {bookkeeping},
    Description {text}) STRICT;
-- State: 1 quote, 2 sale, 3 order
CREATE TABLE OrderStatusCodes ({id},
    State INTEGER NOT NULL DEFAULT 1, StatusName {text}, Sequence INTEGER NOT NULL DEFAULT 0, {bookkeeping}) STRICT;

-- Vendors and customers -----------------------------------------------------------------------------------------

-- Without UpdatedOn: a vendor's history lists every changed column, and would list this one.
CREATE TABLE Vendors ({id},
    VendorName {text}, WebSite {text},
    Phone1Label {text}, Phone1 {text}, Phone2Label {text}, Phone2 {text}, Phone3Label {text}, Phone3 {text},
    Email1Label {text}, Email1 {text}, Email2Label {text}, Email2 {text},
    BillToAddress1 {text}, BillToAddress2 {text}, BillToCity {text}, BillToState {text}, BillToZip {text}, BillToCountry {text},
    ShipToAddress1 {text}, ShipToAddress2 {text}, ShipToCity {text}, ShipToState {text}, ShipToZip {text}, ShipToCountry {text},
    AccountNumber {text}, Contact {text}, TermsID INTEGER, SplitPOByProduct INTEGER NOT NULL DEFAULT 0,
    OOP_Process INTEGER NOT NULL DEFAULT 0, OOP_VendorID {text}, CostMethod INTEGER NOT NULL DEFAULT 0, Notes {text},
    Active INTEGER NOT NULL DEFAULT 1, ValidateAddresses INTEGER NOT NULL DEFAULT 0,
    Margin REAL NOT NULL DEFAULT 0, MarginAD REAL NOT NULL DEFAULT 0, Exported INTEGER NOT NULL DEFAULT 0,
    Locked INTEGER NOT NULL DEFAULT 0, UniqueID {text} NOT NULL DEFAULT {uniqueid},
    AddedOn TEXT NOT NULL DEFAULT {now}) STRICT;

CREATE TABLE Customers ({id},
    CustomerName {text}, AccountNumber {text}, CompanyName {text}, Contact {text},
    FirstName {text}, LastName {text}, MiddleInitial {text},
    Phone1Label {text}, Phone1 {text}, Phone2Label {text}, Phone2 {text}, Phone3Label {text}, Phone3 {text},
    Email1Label {text}, Email1 {text}, Email2Label {text}, Email2 {text},
    BillToAddress1 {text}, BillToAddress2 {text}, BillToCity {text}, BillToState {text}, BillToZip {text}, BillToCountry {text},
    SalesTaxGroupID INTEGER, ResaleNumber {text}, TaxExNumber {text}, DiscountGroupID INTEGER, CustomerTypeID INTEGER,
    TermsID INTEGER, SalesRepID INTEGER, InstallerID INTEGER, DesignerID INTEGER, ShippingMethodID INTEGER,
    ReferralMethodID INTEGER, SalesAccount {text}, CreditHold INTEGER NOT NULL DEFAULT 0, OrderEntryComment {text},
    CSRMessage {text}, Notes {text}, Active INTEGER NOT NULL DEFAULT 1, ValidateAddresses INTEGER NOT NULL DEFAULT 0,
    LocationID INTEGER, CreditLimit REAL NOT NULL DEFAULT 0, CustomerDiscountGroupID INTEGER,
    Exported INTEGER NOT NULL DEFAULT 0, LastUsed TEXT, AlternateUniqueID {text},
    {bookkeeping}) STRICT;

CREATE TABLE CustomerAddresses ({id},
    CustomerID INTEGER NOT NULL, AddressLabel {text}, Address1 {text}, Address2 {text}, City {text}, State {text},
    Zip {text}, Country {text}, isDefault INTEGER NOT NULL DEFAULT 0, {bookkeeping}) STRICT;
CREATE INDEX CustomerAddresses_Customer ON CustomerAddresses (CustomerID);
-- Width and Length are stored as they were entered.
CREATE TABLE CustomerMeasurements ({id},
    CustomerID INTEGER NOT NULL, Location {text}, Room {text}, Item {text}, Mount {text}, Width {text}, Length {text},
    Remarks {text}, {bookkeeping}) STRICT;
CREATE INDEX CustomerMeasurements_Customer ON CustomerMeasurements (CustomerID);
CREATE TABLE GroupedCustomers ({id}, GroupID INTEGER NOT NULL, CustomerID INTEGER NOT NULL, {bookkeeping}) STRICT;

-- Jobs, orders and payments -------------------------------------------------------------------------------------

CREATE TABLE Jobs ({id},
    JobName {text}, CustomerID INTEGER, JobTypeID INTEGER, Notes {text}, Created TEXT, CreatedBy INTEGER,
    LastModified TEXT, LastModifiedBy INTEGER, LastUsed TEXT, {bookkeeping}) STRICT;
-- State: 1 quote, 2 sale, 3 order
CREATE TABLE Orders ({id},
    OrderNumber INTEGER NOT NULL, State INTEGER NOT NULL DEFAULT 1, StatusID INTEGER, CustomerID INTEGER, JobID INTEGER,
    OrderTypeID INTEGER, TermsID INTEGER, ShippingMethodID INTEGER, ReferralMethodID INTEGER, DeliveryRangeID INTEGER,
    SalesTaxGroupID INTEGER, LocationID INTEGER, SalesRepID INTEGER, InstallerID INTEGER, DesignerID INTEGER,
    Sidemark {text}, Total REAL NOT NULL DEFAULT 0, Active INTEGER NOT NULL DEFAULT 1,
    ShipToAddress1 {text}, ShipToAddress2 {text}, ShipToCity {text}, ShipToState {text}, ShipToZip {text}, ShipToCountry {text},
    Created TEXT, CreatedBy INTEGER, LastModified TEXT, LastModifiedBy INTEGER, Exported INTEGER NOT NULL DEFAULT 0,
    {bookkeeping}) STRICT;
CREATE TABLE Payments ({id},
    OrderID INTEGER, CustomerID INTEGER, PaymentMethodID INTEGER, Amount REAL NOT NULL DEFAULT 0, PaidOn TEXT, Reference {text},
    {bookkeeping}) STRICT;
CREATE TABLE PurchaseOrders ({id},
    PONumber INTEGER, VendorID INTEGER, OrderID INTEGER, ShippingMethodID INTEGER, SentOn TEXT, {bookkeeping}) STRICT;

-- Products ------------------------------------------------------------------------------------------------------

CREATE TABLE Products ({id},
    Product {text}, ProductTypeID INTEGER, ManufacturerID INTEGER, ProductFile {text}, Active INTEGER NOT NULL DEFAULT 1,
    SalesAccountID INTEGER, PurchaseAccountID INTEGER, {bookkeeping}) STRICT;
CREATE TABLE ProductVendors ({id},
    ProductID INTEGER NOT NULL, VendorID INTEGER NOT NULL, IsDefault INTEGER NOT NULL DEFAULT 0, DiscountGroupID INTEGER,
    {bookkeeping}) STRICT;
CREATE TABLE ProductRefreshHistory ({id},
    ProductID INTEGER, ProductTypeID INTEGER, ManufacturerID INTEGER, RefreshedOn TEXT) STRICT;
CREATE TABLE ProductTags ({id}, ProductID INTEGER NOT NULL, Tag {text}, {bookkeeping}) STRICT;
CREATE TABLE Portfolio ({id}, FileName {text}, Description {text}, {bookkeeping}) STRICT;
CREATE TABLE PortfolioTags ({id}, PortfolioID INTEGER NOT NULL, Tag {text}, {bookkeeping}) STRICT;
-- DiscountLevel: 1 product, 2 style, 3 option
CREATE TABLE Discounts ({id},
    DiscountGroupID INTEGER NOT NULL, DiscountLevel INTEGER NOT NULL DEFAULT 1, ProductID INTEGER, Style {text},
    OptionName {text}, Multiplier REAL NOT NULL DEFAULT 0, TierLevel {text}, Markup REAL NOT NULL DEFAULT 0,
    Margin REAL NOT NULL DEFAULT 0, {bookkeeping}) STRICT;

-- Pricing and order entry ---------------------------------------------------------------------------------------

-- ChargeType: 1 vendor promotion, 2 customer promotion, 4 item price adjustment, 8 additional charge, 256 item cost
-- adjustment. Category: 1 installation, 2 shipping, 3 other. Value: an amount, a percentage or a price line's name.
CREATE TABLE AdditionalCharges ({id},
    ChargeType INTEGER NOT NULL DEFAULT 8, ChargeCode {text}, Enabled INTEGER NOT NULL DEFAULT 1, GroupName {text},
    ChargeName {text}, Description {text}, Cost REAL NOT NULL DEFAULT 0, ChargeMethod INTEGER NOT NULL DEFAULT 1,
    Value {text}, Taxable INTEGER NOT NULL DEFAULT 0, AutoAddToQuotes INTEGER NOT NULL DEFAULT 0,
    AutoAddToPOs INTEGER NOT NULL DEFAULT 0, ApplyToPOs INTEGER NOT NULL DEFAULT 0, StartsOn TEXT, EndsOn TEXT,
    Criteria {text}, CustomerTypeID INTEGER, VendorID INTEGER, Notes {text},
    IncludeWithProductItems INTEGER NOT NULL DEFAULT 0, SalesAccountID INTEGER, PurchaseAccountID INTEGER,
    ExportChargeName {text}, Exported INTEGER NOT NULL DEFAULT 0, Category INTEGER NOT NULL DEFAULT 3,
    Sequence INTEGER NOT NULL DEFAULT 0, GroupAction INTEGER NOT NULL DEFAULT 0, {bookkeeping}) STRICT;
-- Location: 0 the line's description, 1 the second description. Sequence 9999: not placed yet
CREATE TABLE OptionDetailSettings ({id},
    Location INTEGER NOT NULL DEFAULT 0, Sequence INTEGER NOT NULL DEFAULT 9999, Show INTEGER NOT NULL DEFAULT 1,
    OptionName {text}, Prefix {text}, isBold INTEGER NOT NULL DEFAULT 0, {bookkeeping}) STRICT;
-- without ProductID: for every product
CREATE TABLE OptionDefaults ({id}, ProductID INTEGER, OptionName {text}, OptionValue {text}, {bookkeeping}) STRICT;
-- ColorWhen: 0 always, 1 when the value is empty, 2 when it contains ColorCriteria
CREATE TABLE OptionCallouts ({id},
    ProductTypeID INTEGER, ProductID INTEGER, Style {text}, OptionName {text}, Color INTEGER NOT NULL DEFAULT 0,
    ColorWhen INTEGER NOT NULL DEFAULT 0, ColorCriteria {text}, Message {text}, {bookkeeping}) STRICT;

-- Messages ------------------------------------------------------------------------------------------------------

-- TemplateType: 1 customer, 2 vendor, 3 employee, 4 quote, sale or order
CREATE TABLE EmailTemplates ({id},
    GroupName {text}, TemplateType INTEGER NOT NULL DEFAULT 1, TemplateName {text}, Favorite INTEGER NOT NULL DEFAULT 0,
    Description {text}, CcAddress {text}, BCcAddress {text}, Subject {text}, BodyText {text}, {bookkeeping}) STRICT;
