-- Parameter values that differ from the defaults, one at least on every level.
INSERT INTO SYSParameter ([CO], [Branch], [ModCode], [UserCode], [ParamNo], [ParamName], [ParamValue], [ParamType]) VALUES
    -- the company
    ('01', '', '', '',  3, 'Cost shown on documents', 'A', 'C'),
    ('01', '', '', '', 29, 'Currency: description', 'Rand', 'C'),
    ('01', '', '', '', 30, 'Currency: foreign currencies in use', 'Y', 'C'),
    ('01', '', '', '', 32, 'Currency: code', 'ZAR', 'C'),
    ('01', '', '', '', 40, 'Decimals of cost prices', '3', 'C'),
    ('01', '', '', '', 69, 'Default bank', 'OT01', 'C'),
    ('01', '', '', '', 80, 'Foreign currency 1', 'BWP', 'C'),
    ('01', '', '', '', 81, 'Foreign currency 2', 'EUR', 'C'),
    ('01', '', '', '', 85, 'Show the branch and its colour on the main form', 'Y', 'C'),
    ('02', '', '', '', 32, 'Currency: code', 'ZAR', 'C'),
    ('02', '', '', '', 33, 'Price code of the product selection', '2', 'C'),
    -- the branch
    ('01', '100', '', '',   2, 'Default warehouse', 'MAIN', 'B'),
    ('01', '100', '', '',  10, 'Tender type 1', '01', 'B'),
    ('01', '100', '', '',  11, 'Tender type 2', '02', 'B'),
    ('01', '100', '', '', 149, 'The branch speaks for the company on documents', 'Y', 'B'),
    ('01', '101', '', '',   6, 'Price code of the counter', '2', 'B'),
    ('01', '102', '', '',   2, 'Default warehouse', 'MAIN', 'B'),
    -- a number without a definition is readable all the same
    ('01', '100', '', '', 301, 'Slip text', 'Thank you', 'B'),
    -- modules that are set per company
    ('01', '', 'GLG', '', 28, 'Sub-accounts in use', 'Y', 'M'),
    ('01', '', 'GLG', '', 29, 'Length of an account number', '6', 'M'),
    ('01', '', 'GLG', '', 30, 'Length of a sub-account number', '2', 'M'),
    -- modules that are set per branch
    ('01', '100', 'STK', '', 12, 'Warn below this quantity', '5', 'M'),
    ('01', '102', 'SYS', '', 161, 'Show the background picture of the main form', 'N', 'M'),
    ('01', '102', 'TIL', '', 62, 'Buttons without keyboard hints (touch only)', 'Y', 'M');
GO
INSERT INTO SYSGrpParam ([CO], [UserGroup], [ModCode], [ParamNo], [ParamValue]) VALUES
    ('01', 'CNTR', '', 2, '100'), ('01', 'MGMT', '', 1, 'Y');
GO
