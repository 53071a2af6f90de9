
-- Where the employees live, how they send e-mail, and what the office noted about them.

UPDATE Employees SET EmailMethod = 1, EmailSMTPPort = 587, EmailSMTPTimeout = 30;
UPDATE Employees SET EmailMethod = 2, EmailSMTPServer = 'mail.lanternlight.example', EmailSenderAddress = Email1,
    EmailSMTPAuth = 1, EmailSMTPAuthMethod = 'LOGIN', EmailSMTPUserName = Email1, EmailSMTPTLS = 1
    WHERE Username IN ('admin', 'priya');
INSERT INTO EmployeeAddresses (EmployeeID, AddressLabel, Address1, Address2, City, State, Zip, Country)
    SELECT ID, 'Home', printf('%d Gable Street', 40 + ID * 7), '', 'Merriden Falls', 'WI', '53099', 'USA'
    FROM Employees WHERE Active <> 0
    UNION ALL
    SELECT ID, 'Work', '418 Halcyon Row', 'Workshop', 'Merriden Falls', 'WI', '53099', 'USA'
    FROM Employees WHERE Installer <> 0;
UPDATE Employees SET Notes = 'Installs shutters and draperies; has the large van.' WHERE FirstName = 'Teodor';
UPDATE Employees SET Notes = 'Left in spring. Her customers were handed over to Priya.' WHERE FirstName = 'Hester';
INSERT INTO EmployeeActivity (EmployeeID, ActivityDate, Activity, ByEmployeeID)
    SELECT ID, AddedOn, 'Employee added.', 1 FROM Employees WHERE ID > 1;
