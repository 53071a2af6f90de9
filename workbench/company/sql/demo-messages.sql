-- Messages of the last months, until the hour in which the company is created.
INSERT INTO SentMessages (SentOn, SentBy, FromAddress, ToAddress, CcAddress, BCcAddress, Subject, BodyText)
WITH RECURSIVE
    count(n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM count WHERE n < 400),
    occasions(i, subject, body) AS (VALUES
        (0, 'Your measure appointment', 'we look forward to seeing you on our measure appointment.'),
        (1, 'Your quote', 'please find your quote enclosed. It is valid for thirty days.'),
        (2, 'Your order has been placed', 'your order is on its way to the workroom. We will write again once it has arrived.'),
        (3, 'Your order has arrived', 'your window coverings are here. Call us to set a date for the installation.'),
        (4, 'How do you like them?', 'if anything about your new window coverings is not as it should be, tell us.'))
SELECT strftime('%Y-%m-%dT%H:%M:%S', 'now', 'localtime', printf('-%d minutes', 400 + (400 - n) * 437)),
    e.FirstName || ' ' || e.LastName, e.Email1, c.Email1, CASE WHEN n % 5 = 1 THEN 'sales@lanternlight.example' ELSE '' END,
    '', occasions.subject,
    'Dear ' || c.FirstName || ' ' || c.LastName || ',' || char(13, 10) || char(13, 10) || occasions.body || char(13, 10) ||
        char(13, 10) || e.FirstName || ' ' || e.LastName
FROM count JOIN Customers c ON c.ID = 1 + n * 11 % 60 JOIN Employees e ON e.ID = 1 + n % 4
    JOIN occasions ON occasions.i = n % 5 ORDER BY n;
