-- Laptops with a copy of the company. UniqueID is the identity code that is entered there. LastSentTo and
-- LastReceivedFrom are local times. SyncState is as in Company.
CREATE TABLE RoamingWorkstations ({id},
    Name {text}, Description {text}, AssignedTo INTEGER NOT NULL DEFAULT 0, ReferenceCode INTEGER NOT NULL DEFAULT 0,
    SyncState INTEGER NOT NULL DEFAULT 0, LastSentTo TEXT, LastReceivedFrom TEXT, LastKnownAppVersion {text},
    {bookkeeping}) STRICT;
