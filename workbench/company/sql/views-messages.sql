-- The merge fields of e-mail templates, a row per record; "Email" is the address that the message goes to.

CREATE VIEW vwDocumentProcessing_Customers AS
    SELECT c.ID, c.CustomerName, c.AccountNumber, c.CompanyName, c.Contact, c.FirstName, c.LastName, c.Email1 AS Email,
        c.Phone1, c.Phone2, c.Phone3, c.BillToAddress1, c.BillToAddress2, c.BillToCity, c.BillToState, c.BillToZip,
        c.BillToCountry, t.Terms, o.Name AS OurName, o.Phone1 AS OurPhone, o.WebSite AS OurWebSite
    FROM Customers c LEFT JOIN Terms t ON t.ID = c.TermsID
        LEFT JOIN (SELECT Name, Phone1, WebSite FROM Company LIMIT 1) o;
CREATE VIEW vwDocumentProcessing_Vendors AS
    SELECT v.ID, v.VendorName, v.AccountNumber, v.Contact, v.Email1 AS Email, v.Phone1, v.Phone2, v.Phone3, v.WebSite,
        v.BillToAddress1, v.BillToAddress2, v.BillToCity, v.BillToState, v.BillToZip, v.BillToCountry, t.Terms,
        o.Name AS OurName, o.Phone1 AS OurPhone, o.WebSite AS OurWebSite
    FROM Vendors v LEFT JOIN Terms t ON t.ID = v.TermsID
        LEFT JOIN (SELECT Name, Phone1, WebSite FROM Company LIMIT 1) o;
CREATE VIEW vwDocumentProcessing_Employees AS
    SELECT e.ID, e.FirstName, e.MiddleInitial, e.LastName, e.Username, e.Email1 AS Email, e.Phone1, e.Phone2, e.Phone3,
        o.Name AS OurName, o.Phone1 AS OurPhone, o.WebSite AS OurWebSite
    FROM Employees e LEFT JOIN (SELECT Name, Phone1, WebSite FROM Company LIMIT 1) o;
CREATE VIEW vwDocumentProcessing_Orders AS
    SELECT r.ID, r.OrderNumber, CASE r.State WHEN 1 THEN 'Quote' WHEN 2 THEN 'Sale' ELSE 'Order' END AS DocumentKind,
        s.StatusName AS Status, r.Sidemark, printf('%.2f', r.Total) AS Total, substr(r.Created, 1, 10) AS Created,
        r.ShipToAddress1, r.ShipToAddress2, r.ShipToCity, r.ShipToState, r.ShipToZip, r.ShipToCountry, c.CustomerName,
        c.FirstName, c.LastName, c.Email1 AS Email, o.Name AS OurName, o.Phone1 AS OurPhone, o.WebSite AS OurWebSite
    FROM Orders r LEFT JOIN Customers c ON c.ID = r.CustomerID LEFT JOIN OrderStatusCodes s ON s.ID = r.StatusID
        LEFT JOIN (SELECT Name, Phone1, WebSite FROM Company LIMIT 1) o;

-- Templates are tested with vendors from a table of this name, spelled so.
CREATE VIEW Vendodrs AS SELECT * FROM Vendors;
