
CREATE TABLE EmployeeAddresses ({id},
    EmployeeID INTEGER NOT NULL, AddressLabel {text}, Address1 {text}, Address2 {text}, City {text}, State {text},
    Zip {text}, Country {text}, {bookkeeping}) STRICT;
CREATE INDEX EmployeeAddresses_Employee ON EmployeeAddresses (EmployeeID);
