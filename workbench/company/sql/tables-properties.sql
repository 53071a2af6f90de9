-- Files that were attached to a record: a job, an order, a customer, a vendor or an employee.
CREATE TABLE Attachments ({id},
    OriginalFileName {text}, StoredFileName {text}, Description {text}, JobID INTEGER, OrderID INTEGER, CustomerID INTEGER,
    VendorID INTEGER, EmployeeID INTEGER, {bookkeeping}) STRICT;
