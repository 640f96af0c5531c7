-- Users and their groups. README.md tells what each user is there for.
INSERT INTO SYSUserGroup ([CO], [UserGroup], [GroupDesc], [GroupType], [AllowViewCost], [AllowViewProfit], [ProfitCalcCost], [PswdExp], [PswdExpDays]) VALUES
    ('01', 'CNTR',  'Counter staff',                     'N', 'N', 'N', 'L', 'N', 0),
    ('01', 'TECH',  'Workshop technicians',              'N', 'N', 'N', 'L', 'N', 0),
    ('01', 'MGMT',  'Managers',                          'S', 'Y', 'Y', 'A', 'N', 0),
    ('01', 'EXPIR', 'Counter staff, password expires',   'N', 'N', 'N', 'L', 'Y', 30),
    ('01', 'NONE',  'No right to the repair orders',     'N', 'N', 'N', 'L', 'N', 0),
    ('01', 'ASK1',  'Asks one supervisor at the door',   'N', 'N', 'N', 'L', 'N', 0),
    ('01', 'SUPG',  'Supervisors, single over-ride',     'S', 'N', 'N', 'L', 'N', 0),
    ('01', 'SUPV',  'Supervisors, double over-ride',     'S', 'N', 'N', 'L', 'N', 0),
    ('02', 'CNTR',  'Counter staff',                     'N', 'N', 'N', 'L', 'N', 0),
    ('02', 'MGMT',  'Managers',                          'S', 'Y', 'Y', 'A', 'N', 0),
    ('03', 'MGMT',  'Managers',                          'S', 'Y', 'Y', 'A', 'N', 0);
GO
INSERT INTO SYSUser ([UserCode], [UserPswd], [UserName], [Status], [DefCO], [DefBranch], [PswdDate], [UserID], [BioID], [UserGroup], [Supervisor], [SuperCardNo],
                     [AllowViewCost], [AllowViewProfit], [ProfitCalcCost], [AllowCash], [DefSalesrep], [DefAccount], [DefTillNo], [DefWH], [DefaultPrinter], [UseSession], [EMail], [CellNo]) VALUES
    ('COUNTER1', 'COUNTER',  'Mirela Dostavan',                  'A', '01', '100', '$(TODAY)',       1, 1,  'CNTR',  'N', '',     'N', 'N', 'L', 'Y', 'R01', '', '01', 'MAIN', '',              'N', 'counter1@brindavel.example', '082-555-0101'),
    ('COUNTER2', 'COUNTER2', N'Jörund Ekvåll',                   'A', '01', '101', '$(TODAY)',       2, 0,  'CNTR',  'N', '',     'N', 'N', 'L', 'Y', 'R02', '', '',   'MAIN', '',              'N', 'counter2@brindavel.example', '082-555-0102'),
    ('COUNTER3', 'COUNTER3', 'Tamsin Orrelby-Vandermoor',        'A', '01', '101', '$(TODAY)',       3, 0,  'CNTR',  'N', '',     'N', 'N', 'L', 'Y', 'R02', '', '02', 'MAIN', 'Slip printer',  'Y', 'counter3@brindavel.example', '082-555-0103'),
    ('TECH1',    'TECH1',    'Kasimir Thole',                    'A', '01', '100', '$(TODAY)',       4, 0,  'TECH',  'N', '',     'N', 'N', 'L', 'N', '',    '', '',   'SPARE', '',             'N', '',                           '082-555-0104'),
    ('MANAGER',  'MANAGER',  'Ondine Varrick',                   'A', '01', '100', '$(TODAY)',       5, 7,  'MGMT',  'Y', '900001', 'Y', 'Y', 'A', 'Y', 'R01', '', '01', 'MAIN', 'Office laser',  'N', 'manager@brindavel.example',  '082-555-0105'),
    ('SUPER1',   'SUPER1',   'Bastian Quellmere',                'A', '01', '100', '$(TODAY)',       6, 0,  'SUPG',  'Y', '900002', 'N', 'N', 'L', 'Y', '',    '', '',   'MAIN', '',              'N', '',                           '082-555-0106'),
    ('SUPER2',   'SUPER2',   'Ilse Marrowfen',                   'A', '01', '100', '$(TODAY)',       7, 0,  'SUPV',  'Y', '900003', 'N', 'N', 'L', 'Y', '',    '', '',   'MAIN', '',              'N', '',                           ''),
    ('SUPER3',   'SUPER3',   'Perrin Aldacott',                  'A', '01', '101', '$(TODAY)',       8, 0,  'SUPV',  'N', '',     'N', 'N', 'L', 'Y', '',    '', '',   'MAIN', '',              'N', '',                           ''),
    ('NEWUSER',  'XQZ741',   'Wendel Harkaby',                   'A', '01', '100', '',               9, 0,  'CNTR',  'N', '',     'N', 'N', 'L', 'N', '',    '', '',   'MAIN', '',              'N', '',                           ''),
    ('EXPIRED',  'EXPIRED',  'Lucasta Wynne-Torrel',             'A', '01', '100', '$(TODAY-60)',   10, 0,  'EXPIR', 'N', '',     'N', 'N', 'L', 'N', '',    '', '',   'MAIN', '',              'N', '',                           ''),
    ('NODATE',   'NODATE',   'Oswin Calderby',                   'A', '01', '100', '',              11, 0,  'EXPIR', 'N', '',     'N', 'N', 'L', 'N', '',    '', '',   'MAIN', '',              'N', '',                           ''),
    ('INACTIVE', 'INACTIVE', 'Gwendel Ashgrove-Pell',            'I', '01', '100', '$(TODAY-400)',  12, 0,  'CNTR',  'N', '',     'N', 'N', 'L', 'N', '',    '', '',   'MAIN', '',              'N', '',                           ''),
    ('NORIGHT',  'NORIGHT',  'Corwin Blaydon-Esk',               'A', '01', '100', '$(TODAY)',      13, 0,  'NONE',  'N', '',     'N', 'N', 'L', 'N', '',    '', '',   'MAIN', '',              'N', '',                           ''),
    ('NEEDSUP',  'NEEDSUP',  'Fenella Strand',                   'A', '01', '100', '$(TODAY)',      14, 0,  'ASK1',  'N', '',     'N', 'N', 'L', 'N', '',    '', '',   'MAIN', '',              'N', '',                           ''),
    ('BOTHCO',   'BOTHCO',   'Isolde Marchwater',                'A', '01', '100', '$(TODAY)',      15, 0,  'MGMT',  'Y', '900004', 'Y', 'Y', 'A', 'Y', 'R01', '', '01', 'MAIN', '',              'N', '',                           '082-555-0115'),
    ('OTHERCO',  'OTHERCO',  'Dragan Pellworth',                 'A', '02', '201', '$(TODAY)',      16, 0,  'CNTR',  'N', '',     'N', 'N', 'L', 'Y', 'R01', '', '01', 'MAIN', '',              'N', '',                           ''),
    ('KORVAL',   'KORVAL',   'Reserved for the maker',           'A', '01', '100', '$(TODAY)',      17, 0,  'MGMT',  'Y', '',     'Y', 'Y', 'A', 'Y', '',    '', '',   'MAIN', '',              'N', '',                           '');
GO
INSERT INTO SYSUserComp ([UserCode], [CO], [Branch], [ModCode]) VALUES
    ('COUNTER1', '01', '100', ''), ('COUNTER1', '01', '101', ''),
    ('COUNTER2', '01', '101', ''),
    ('COUNTER3', '01', '101', ''), ('COUNTER3', '01', '102', ''),
    ('TECH1',    '01', '100', ''),
    ('MANAGER',  '01', '100', ''), ('MANAGER',  '01', '101', ''), ('MANAGER', '01', '102', ''),
    ('SUPER1',   '01', '100', ''), ('SUPER1',   '01', '101', ''),
    ('SUPER2',   '01', '100', ''), ('SUPER3',   '01', '100', ''),
    ('NEWUSER',  '01', '100', ''), ('EXPIRED',  '01', '100', ''), ('NODATE',  '01', '100', ''),
    ('INACTIVE', '01', '100', ''), ('NORIGHT',  '01', '100', ''), ('NEEDSUP', '01', '100', ''),
    ('BOTHCO',   '01', '100', ''), ('BOTHCO',   '01', '101', ''), ('BOTHCO',  '01', '102', ''), ('BOTHCO', '02', '201', ''), ('BOTHCO', '03', '300', ''),
    ('OTHERCO',  '02', '201', ''),
    ('KORVAL',   '01', '100', ''), ('KORVAL',   '02', '201', ''), ('KORVAL',  '03', '300', '');
GO
-- Fingers of the simulated reader, for both families of readers.
INSERT INTO SYSUserBiometrics ([UserCode], [FPDescription], [FPMask], [FPData]) VALUES
    ('COUNTER1', 'Right index', 2, 'SIM:COUNTER1RIGHTINDEX'),
    ('COUNTER1', 'Left thumb',  6, 'SIM:COUNTER1LEFTTHUMB'),
    ('MANAGER',  'Right index', 2, 'SIM:MANAGERRIGHTINDEX');
GO
INSERT INTO SYSBiometricDetl ([BioID], [FPMask], [FPDescription], [FPData]) VALUES
    (1, 2, 'Right index', CAST('SIM:COUNTER1RIGHTINDEX' AS varbinary(max))),
    (1, 6, 'Left thumb',  CAST('SIM:COUNTER1LEFTTHUMB'  AS varbinary(max))),
    (7, 2, 'Right index', CAST('SIM:MANAGERRIGHTINDEX'  AS varbinary(max)));
GO
