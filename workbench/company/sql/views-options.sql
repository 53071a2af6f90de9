-- What the lists of callouts and defaults show. A callout for any product has the product 0.

CREATE VIEW vwMaintenance_OptionCallouts AS
    SELECT c.ID, c.ProductTypeID, ifnull(c.ProductID, 0) AS ProductID, c.Style, c.OptionName, c.Color, c.ColorWhen,
        c.ColorCriteria, c.Message, t.ProductType, p.Product,
        CASE c.ColorWhen WHEN 0 THEN 'Always' WHEN 1 THEN 'If value is empty' WHEN 2 THEN 'If value contains' ELSE '' END
            AS FriendlyColorWhen
    FROM OptionCallouts c LEFT JOIN ProductTypes t ON t.ID = c.ProductTypeID LEFT JOIN Products p ON p.ID = c.ProductID;
CREATE VIEW vwMaintenance_OptionDefaults AS SELECT * FROM OptionDefaults;
