CREATE VIEW vwScreen_RoamingWorkstations AS
    SELECT w.ID, w.Name, w.Description, w.ReferenceCode, w.UniqueID, w.SyncState, w.LastSentTo, w.LastReceivedFrom,
        w.LastKnownAppVersion, dbo_buildemployeename(e.FirstName, e.MiddleInitial, e.LastName) AS EmployeeName
    FROM RoamingWorkstations w LEFT JOIN Employees e ON e.ID = w.AssignedTo;
