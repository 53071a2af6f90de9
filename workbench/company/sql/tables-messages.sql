-- Sent messages. SentOn is local time.
CREATE TABLE SentMessages ({id},
    SentOn TEXT NOT NULL, SentBy {text}, FromAddress {text}, ToAddress {text}, CcAddress {text}, BCcAddress {text},
    Subject {text}, BodyText {text}) STRICT;
CREATE INDEX SentMessages_SentOn ON SentMessages (SentOn);
