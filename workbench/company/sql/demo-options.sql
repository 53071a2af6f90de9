-- Products whose files cannot be scanned: the first is another organization's, the second damaged, the third missing.
INSERT INTO Products (Product, ProductTypeID, ManufacturerID, ProductFile, Active) VALUES
    ('Gloamridge drapery hardware', 2, 3, 'GLO-HARDWARE', 1), ('Driftmark louver panel', 6, 4, 'DRI-PANEL', 1),
    ('Brightvane pleated shade', 4, 2, 'BRV-PLEAT', 1);
