
-- The access of a role ends with the role.
CREATE TRIGGER SecurityRoles_Deleted AFTER DELETE ON SecurityRoles BEGIN
    DELETE FROM SecurityRoleAccess WHERE SecurityRoleID = OLD.ID;
END;
