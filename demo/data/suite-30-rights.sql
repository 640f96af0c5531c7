-- Rights. Counter staff hold every option letter on one code or another, so that each road of a
-- guarded action can be walked: Y allowed, S F G one supervisor, D W V two, all else denied.
INSERT INTO SYSGrpAccess ([CO], [UserGroup], [ModCode], [AccessNo], [AccessName], [Options]) VALUES
    ('01', 'CNTR', 'CRO',  0, 'Use the customer repair orders',              'Y'),
    ('01', 'CNTR', 'CRO',  1, 'Use the customer repair orders: workstation', 'Y'),
    ('01', 'CNTR', 'CRO',  2, 'Delete repair orders',                        'S'),
    ('01', 'CNTR', 'CRO',  3, 'Delete items of repair orders',               'F'),
    ('01', 'CNTR', 'CRO',  4, 'Change prices of quotations',                 'G'),
    ('01', 'CNTR', 'CRO',  5, 'Give a discount on quotations',               'D'),
    ('01', 'CNTR', 'CRO',  6, 'Release goods without payment',               'W'),
    ('01', 'CNTR', 'CRO',  7, 'Scrap goods of a customer',                   'V'),
    ('01', 'CNTR', 'CRO',  8, 'Maintain technicians',                        'N'),
    ('01', 'CNTR', 'CRO',  9, 'Maintain workshop codes',                     ''),
    ('01', 'CNTR', 'CRO', 10, 'Export lists',                                'Y'),
    ('01', 'CNTR', 'CRO', 11, 'Reopen closed repair orders',                 'X');
INSERT INTO SYSGrpAccess ([CO], [UserGroup], [ModCode], [AccessNo], [AccessName], [Options]) VALUES
    ('01', 'TECH',  'CRO', 0, 'Use the customer repair orders', 'Y'), ('01', 'TECH',  'CRO', 1, 'Use the customer repair orders: workstation', 'Y'),
    ('01', 'EXPIR', 'CRO', 0, 'Use the customer repair orders', 'Y'), ('01', 'EXPIR', 'CRO', 1, 'Use the customer repair orders: workstation', 'Y'),
    ('01', 'NONE',  'CRO', 0, 'Use the customer repair orders', 'N'), ('01', 'NONE',  'CRO', 1, 'Use the customer repair orders: workstation', 'N'),
    ('01', 'ASK1',  'CRO', 0, 'Use the customer repair orders', 'S'), ('01', 'ASK1',  'CRO', 1, 'Use the customer repair orders: workstation', 'S'),
    ('02', 'CNTR',  'CRO', 0, 'Use the customer repair orders', 'Y'), ('02', 'CNTR',  'CRO', 1, 'Use the customer repair orders: workstation', 'Y'),
    ('02', 'MGMT',  'CRO', 0, 'Use the customer repair orders', 'Y'), ('02', 'MGMT',  'CRO', 1, 'Use the customer repair orders: workstation', 'Y'),
    ('03', 'MGMT',  'CRO', 0, 'Use the customer repair orders', 'Y'), ('03', 'MGMT',  'CRO', 1, 'Use the customer repair orders: workstation', 'Y');
-- Managers may do everything; the two kinds of supervisors may grant one kind of over-ride each.
INSERT INTO SYSGrpAccess ([CO], [UserGroup], [ModCode], [AccessNo], [AccessName], [Options]) VALUES
    ('01', 'MGMT', 'CRO', 0, '', 'Y'), ('01', 'MGMT', 'CRO', 1, '', 'Y'), ('01', 'MGMT', 'CRO', 2, '', 'Y'), ('01', 'MGMT', 'CRO', 3, '', 'Y'),
    ('01', 'MGMT', 'CRO', 4, '', 'Y'), ('01', 'MGMT', 'CRO', 5, '', 'Y'), ('01', 'MGMT', 'CRO', 6, '', 'Y'), ('01', 'MGMT', 'CRO', 7, '', 'Y'),
    ('01', 'MGMT', 'CRO', 8, '', 'Y'), ('01', 'MGMT', 'CRO', 9, '', 'Y'), ('01', 'MGMT', 'CRO', 10, '', 'Y'), ('01', 'MGMT', 'CRO', 11, '', 'Y'),
    ('01', 'SUPG', 'CRO', 0, '', 'Y'), ('01', 'SUPG', 'CRO', 1, '', 'Y'), ('01', 'SUPG', 'CRO', 2, '', 'G'), ('01', 'SUPG', 'CRO', 3, '', 'G'), ('01', 'SUPG', 'CRO', 4, '', 'G'),
    ('01', 'SUPV', 'CRO', 0, '', 'Y'), ('01', 'SUPV', 'CRO', 1, '', 'Y'), ('01', 'SUPV', 'CRO', 5, '', 'V'), ('01', 'SUPV', 'CRO', 6, '', 'V'), ('01', 'SUPV', 'CRO', 7, '', 'V'),
    ('01', 'MGMT', 'DEB', 1, '', 'Y'), ('01', 'MGMT', 'STK', 1, '', 'Y');
GO
-- A user's own right stands above the group's, downward and upward, in one branch.
INSERT INTO SYSUserAccess ([CO], [Branch], [UserCode], [ModCode], [AccessNo], [AccessName], [Options]) VALUES
    ('01', '100', 'COUNTER1', 'CRO', 10, 'Export lists',            'N'),
    ('01', '100', 'COUNTER1', 'CRO',  9, 'Maintain workshop codes', 'Y'),
    ('01', '101', 'COUNTER2', 'CRO',  2, 'Delete repair orders',    'Y'),
    ('01', '101', 'SUPER1',   'CRO',  2, 'Delete repair orders',    'N'),
    ('01', '100', 'SUPER3',   'CRO',  7, 'Scrap goods of a customer', 'N');
GO
INSERT INTO SysRepAccessLevel ([AccessLevel], [Description]) VALUES
    (1, 'Everybody'), (2, 'Branch figures'), (3, 'Company figures'), (9, 'Directors');
INSERT INTO SYSGrpRepAccess ([UserGroup], [AccessLevel]) VALUES
    ('CNTR', 1), ('TECH', 1), ('MGMT', 1), ('MGMT', 2), ('MGMT', 3);
INSERT INTO SYSUserRepAccess ([CO], [Branch], [UserCode], [AccessLevel], [AllowAccess]) VALUES
    ('01', '100', 'COUNTER1', 2, 1), ('01', '100', 'MANAGER', 3, 0);
GO
