INSERT INTO RoamingWorkstations (Name, Description, AssignedTo, ReferenceCode, SyncState, LastSentTo, LastReceivedFrom,
    LastKnownAppVersion) VALUES
    ('Dana''s laptop', 'In-home appointments, north side', 1, 10, 4, strftime('%Y-%m-%dT%H:%M:%S', 'now', 'localtime', '-12 minutes'),
        strftime('%Y-%m-%dT%H:%M:%S', 'now', 'localtime', '-11 minutes'), '5.0.118'),
    ('Priya''s laptop', 'In-home appointments, lake shore', 3, 11, 5, '2024-03-01T17:45:10', '2024-03-01T17:46:02', '5.0.112'),
    ('Showroom tablet', 'Quotes beside the sample wall', 4, 20, 1, NULL, NULL, ''),
    ('Installation van', 'Measures and installation notes', 0, 42, 0, NULL, NULL, '');

-- The demonstration company plays both sides: it is the main system, and the copy on the installation van.
UPDATE Company SET UniqueID = (SELECT UniqueID FROM RoamingWorkstations WHERE ReferenceCode = 42);

INSERT INTO CompanyOptions (Section, OptionName, OptionValue) VALUES
    ('Roaming Workstations', 'EnableSync', '1'), ('Roaming Workstations', 'SyncComputerName', 'FRONT-DESK'),
    ('Roaming Workstations', 'SyncFrequency', '15');
