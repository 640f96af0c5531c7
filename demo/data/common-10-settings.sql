-- What the installation runs, and the companies and branches that a user can sign in to.
-- $(SERVER) is where the databases lie; velcro-demo puts it in.
INSERT INTO vcVersions ([Suite], [PgmName], [Description], [Version], [LastUpd], [LastPCName]) VALUES
    ('VELMARA', 'velCRO', 'Velmara Retail Software: Customer Repair Orders', '14.47.41', '$(TODAY)', 'SERVER'),
    ('VELMARA', 'velPOS', 'Velmara Retail Software: Point of Sale', '14.47.41', '$(TODAY)', 'SERVER'),
    ('VELMARA', 'velSTK', 'Velmara Retail Software: Stock Control', '14.47.39', '$(TODAY)', 'SERVER'),
    ('VELMARA', 'velEOD', 'Velmara Retail Software: Day End', '14.47.40', '$(TODAY)', 'SERVER');
GO
INSERT INTO vcSettings ([Suite], [SvrCatCode], [DisplaySeq], [DisplayName], [DefCO], [DefBranch], [DefHQBranch],
                        [DBConnector], [DBHost], [DBDBase], [DBUser], [DBPswd], [DBOnAzure], [VReportPath]) VALUES
    ('VELMARA', 'SHOPS', 1, 'Brindavel Central Workshop',  '01', '100', '100', '', '$(SERVER)', 'VELSUITE', '$(USER)', '$(PASSWORD)', 'N', ''),
    ('VELMARA', 'SHOPS', 2, 'Brindavel Harbour Row',       '01', '101', '100', '', '$(SERVER)', 'VELSUITE', '$(USER)', '$(PASSWORD)', 'N', ''),
    ('VELMARA', 'SHOPS', 3, 'Brindavel Northfold Mall',    '01', '102', '100', '', '$(SERVER)', 'VELSUITE', '$(USER)', '$(PASSWORD)', 'N', ''),
    ('VELMARA', 'TOOLS', 4, 'Kestrovane Mill Lane',        '02', '201', '201', '', '$(SERVER)', 'VELSUITE', '$(USER)', '$(PASSWORD)', 'N', ''),
    ('VELMARA', 'TRAIN', 5, 'Talvorne Training Rooms',     '03', '300', '300', '', '$(SERVER)', 'VELSUITE', '$(USER)', '$(PASSWORD)', 'N', '');
GO
INSERT INTO vcControl ([Suite], [Code], [Details], [DBConnector], [DBUser], [DBPswd]) VALUES
    ('VELMARA', 'HELPDESK', 'Telephone 021-555-0100, weekdays 07:30 to 18:00', '', '', ''),
    ('VELMARA', 'BACKUP',   'Every night at 23:30', '', '', '');
GO
INSERT INTO vcMainMenu ([Suite], [PgmName], [DisplayName], [DisplaySeq]) VALUES
    ('VELMARA', 'velCRO', 'Customer Repair Orders', 1),
    ('VELMARA', 'velDEB', 'Debtors',                2),
    ('VELMARA', 'velGLG', 'General Ledger',         3),
    ('VELMARA', 'velPOS', 'Point of Sale',          4),
    ('VELMARA', 'velSTK', 'Stock Control',          5);
GO
