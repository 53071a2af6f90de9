-- What a company gathers over the years: attached files, events, and records that were added one after the other.

INSERT INTO Attachments (OriginalFileName, StoredFileName, Description, JobID, OrderID, CustomerID, VendorID, EmployeeID, AddedOn)
    SELECT printf('Site plan %s.pdf', JobName), printf('%08X.pdf', ID * 7919), '', ID, NULL, NULL, NULL, NULL,
        strftime('%Y-%m-%dT%H:%M:%S', '2024-03-04 10:15:00', printf('+%d days', ID * 2))
    FROM Jobs WHERE ID % 3 = 0
    UNION ALL
    SELECT printf('Signed quote %d.pdf', OrderNumber), printf('%08X.pdf', ID * 6101), 'Signed by the customer', NULL, ID, NULL,
        NULL, NULL, strftime('%Y-%m-%dT%H:%M:%S', Created, '+3 days')
    FROM Orders WHERE State > 1 AND ID % 2 = 0
    UNION ALL
    SELECT 'Front window.jpg', printf('%08X.jpg', ID * 4703), '', NULL, NULL, ID, NULL, NULL,
        strftime('%Y-%m-%dT%H:%M:%S', AddedOn, '+5 days')
    FROM Customers WHERE ID % 10 = 3
    UNION ALL
    SELECT 'Price list.pdf', printf('%08X.pdf', ID * 3571), '', NULL, NULL, NULL, ID, NULL, '2024-01-05T08:00:00'
    FROM Vendors WHERE ID > 1
    UNION ALL
    SELECT 'Driving license.png', printf('%08X.png', ID * 2903), '', NULL, NULL, NULL, NULL, ID, '2023-11-20T13:30:00'
    FROM Employees WHERE Installer <> 0;

INSERT INTO EventLog (EventDate, EventType, EventText, Source, UserName) VALUES
    ('2024-02-12T14:08:31', 1, 'There was a problem saving this customer. The company is in use by another program.', 'Tessaline', 'priya'),
    ('2024-03-06T08:41:10', 3, 'The product file DRI-PANEL could not be read.', 'Tessaline', 'admin'),
    ('2024-03-28T16:20:02', 3, 'The Roaming Workstation Sync Agent was not started because it could not be found.', 'Tessaline', 'owen'),
    ('2024-04-02T09:00:47', 2, 'Prices were updated.', 'Tessaline', 'admin'),
    ('2024-04-19T11:12:59', 1, 'The report Order.rpt could not be printed.', 'Tessaline', 'viewer');

UPDATE Groups SET AddedOn = strftime('%Y-%m-%dT%H:%M:%S', '2021-05-10 09:00:00', printf('+%d days', ID * 45));
UPDATE DiscountGroups SET AddedOn = strftime('%Y-%m-%dT%H:%M:%S', '2021-05-03 09:30:00', printf('+%d days', ID * 110)),
    UpdatedOn = strftime('%Y-%m-%dT%H:%M:%S', '2023-09-01 10:00:00', printf('+%d days', ID * 37 % 100));
UPDATE AdditionalCharges SET AddedOn = strftime('%Y-%m-%dT%H:%M:%S', '2021-05-20 11:00:00', printf('+%d days', ID * 90));
UPDATE Products SET AddedOn = strftime('%Y-%m-%dT%H:%M:%S', '2021-05-12 15:45:00', printf('+%d days', ID * 70)),
    UpdatedOn = strftime('%Y-%m-%dT%H:%M:%S', '2024-02-05 07:30:00', printf('+%d days', ID * 11));
UPDATE EmailTemplates SET AddedOn = strftime('%Y-%m-%dT%H:%M:%S', '2021-06-14 16:00:00', printf('+%d days', ID * 60)),
    UpdatedOn = strftime('%Y-%m-%dT%H:%M:%S', '2023-05-02 12:00:00', printf('+%d days', ID * 53 % 160));
UPDATE CustomerMeasurements SET AddedOn = strftime('%Y-%m-%dT%H:%M:%S', '2023-02-20 13:00:00', printf('+%d hours', ID * 331));
