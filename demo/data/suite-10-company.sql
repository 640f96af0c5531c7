-- Companies, branches and their reference lists. Company 01 has three branches: 100 is its head
-- office and speaks for the company, 101 uses the masters of 100, 102 keeps its own. Branch codes
-- are digits: one statement of the program sends the stock branch as a number.
-- Numbers come first: a series begins after what stands here.
INSERT INTO SYSNumbers ([CO], [Branch], [ModCode], [TxTp], [FieldCode], [Number]) VALUES
    ('01', '100', 'CRO', 'CROMST', 'CRONo', 100500), ('01', '100', 'CRO', 'CROQOT', 'OrderNo', 501000), ('01', '100', 'CRO', 'CROPRC', 'ProcessID', 5000),
    ('01', '101', 'CRO', 'CROMST', 'CRONo', 200500), ('01', '101', 'CRO', 'CROQOT', 'OrderNo', 601000), ('01', '101', 'CRO', 'CROPRC', 'ProcessID', 5000),
    ('01', '102', 'CRO', 'CROMST', 'CRONo', 300500), ('01', '102', 'CRO', 'CROQOT', 'OrderNo', 701000), ('01', '102', 'CRO', 'CROPRC', 'ProcessID', 5000),
    ('02', '201', 'CRO', 'CROMST', 'CRONo', 400500), ('02', '201', 'CRO', 'CROQOT', 'OrderNo', 801000), ('02', '201', 'CRO', 'CROPRC', 'ProcessID', 5000);
GO
INSERT INTO SYSDBConfig ([DBVersion], [LastUpgrade]) VALUES ('14.47.41', '$(TODAY)');
GO
INSERT INTO SYSCompany ([CO], [COName], [ShortName], [COBusAddress1], [COBusAddress2], [COBusAddress3], [COBusAddress4],
                        [COPostAddress1], [COPostAddress2], [COPostAddress3], [COPostAddress4], [COPhone], [COFax], [COEmail],
                        [CORegNo], [COVATNo], [COGroup], [COWebSite], [COBankName], [COBranchName], [COBranchCode], [COAccNo], [COAccName]) VALUES
    ('01', 'Brindavel Electronics (Pty) Ltd', 'Brindavel', '14 Quarrel Street', 'Ostermere', 'Velden', '7001', 'PO Box 114', 'Ostermere', 'Velden', '7002',
     '021-555-0110', '021-555-0111', 'office@brindavel.example', '2009/114/07', '4110000014', 'BRV', 'www.brindavel.example', 'Ostermere Trust', 'Ostermere', '770014', '00114001', 'Brindavel Electronics'),
    ('02', 'Kestrovane Tools & Outdoor Equipment CC', 'Kestrovane', '3 Mill Lane', 'Ambercroft', 'Velden', '7115', 'PO Box 9', 'Ambercroft', 'Velden', '7116',
     '023-555-0120', '', 'desk@kestrovane.example', '2014/201/23', '4110000022', 'KST', 'www.kestrovane.example', 'Ambercroft Savings', 'Ambercroft', '770022', '00201002', 'Kestrovane Tools'),
    ('03', 'Talvorne Training Rooms', 'Talvorne', '1 Lantern Close', 'Ostermere', 'Velden', '7003', '', '', '', '',
     '021-555-0130', '', 'rooms@talvorne.example', '', '', 'TLV', '', '', '', '', '', '');
GO
INSERT INTO SYSBranch ([CO], [Branch], [BRName], [ShortName], [BRBusAddress1], [BRBusAddress2], [BRBusAddress3], [BRBusAddress4],
                       [BRPostAddress1], [BRPostAddress2], [BRTel], [BRFax], [BREmail], [TradingBranch], [BranchCategory], [BranchType], [Online],
                       [BRWebSite], [Loyalty], [BRBankName], [BRBranchName], [BRBranchCode], [BRAccNo], [BRAccName], [BRRegNo], [BRVATNo], [BRStatusBarColor], [DisplaySeq]) VALUES
    ('01', '100', 'Brindavel Central Workshop', 'Central', '14 Quarrel Street', 'Ostermere', 'Velden', '7001', 'PO Box 114', 'Ostermere', '021-555-0112', '021-555-0111', 'workshop@brindavel.example',
     'Y', 'H', 'N', 'Y', 'www.brindavel.example', 'Y', 'Ostermere Trust', 'Quarrel Street', '770015', '00114015', 'Brindavel Central Workshop', '2009/114/07', '4110000014', 'Teal', 1),
    ('01', '101', 'Brindavel Harbour Row', 'Harbour', '27 Harbour Row', 'Ostermere', 'Velden', '7004', '', '', '021-555-0113', '', 'harbour@brindavel.example',
     'Y', 'T', 'N', 'Y', 'www.brindavel.example', 'Y', 'Ostermere Trust', 'Harbour', '770016', '00114016', 'Brindavel Harbour Row', '', '', 'Maroon', 2),
    ('01', '102', 'Brindavel Northfold Mall: Sound, Vision & Home', 'Northfold', 'Shop 41, Northfold Mall', 'Northfold', 'Velden', '7210', '', '', '022-555-0114', '', 'northfold@brindavel.example',
     'Y', 'R', 'N', 'N', 'www.brindavel.example', 'N', 'Ostermere Trust', 'Northfold', '770017', '00114017', 'Brindavel Northfold', '', '', 'Navy', 3),
    ('02', '201', 'Kestrovane Mill Lane', 'Mill Lane', '3 Mill Lane', 'Ambercroft', 'Velden', '7115', 'PO Box 9', 'Ambercroft', '023-555-0121', '', 'desk@kestrovane.example',
     'Y', 'R', 'N', 'N', 'www.kestrovane.example', 'N', 'Ambercroft Savings', 'Ambercroft', '770022', '00201002', 'Kestrovane Tools', '', '', 'Green', 1),
    ('03', '300', 'Talvorne Training Rooms', 'Training', '1 Lantern Close', 'Ostermere', 'Velden', '7003', '', '', '021-555-0130', '', 'rooms@talvorne.example',
     'N', 'R', 'N', 'N', '', 'N', '', '', '', '', '', '', '', '', 1);
GO
INSERT INTO SYSBRShare ([CO], [Branch], [SHSTK], [SHCRD], [SHDEB], [SHGLG], [SHPUR], [SHVIP]) VALUES
    ('01', '100', '100', '100', '100', '100', '100', '100'),
    ('01', '101', '100', '100', '100', '100', '100', '100'),
    ('01', '102', '102', '100', '102', '100', '100', '100');
GO
INSERT INTO SYSTax ([SeqNo], [TaxCode], [TaxDesc], [TaxRate], [FromDate], [ToDate], [SysLock], [Usage]) VALUES
    (1, '1', 'Standard rate',         15, '2018/04/01', '',           'Y', 'B'),
    (2, '1', 'Standard rate to 2018', 14, '',           '2018/03/31', 'Y', 'B'),
    (3, '0', 'Zero rate',              0, '',           '',           'Y', 'B'),
    (4, 'X', 'Exempt',                 0, '',           '',           'Y', 'O'),
    (5, 'M', 'Imported services',     15, '2018/04/01', '',           'N', 'I');
GO
INSERT INTO SYSTxTp ([ModCode], [TxTp], [TxTpDesc], [DrCr], [ApplyTax], [AllowDiscount], [AllowGL], [TxTpType], [DefSeqNo]) VALUES
    ('CRO', 'CROMST', 'Repair orders',     '',  'N', 'N', 'N', 'N', 1),
    ('CRO', 'CROPRC', 'Repair processes',  '',  'N', 'N', 'N', 'N', 2),
    ('CRO', 'CROQOT', 'Repair quotations', '',  'Y', 'N', 'N', 'N', 3),
    ('POS', 'POSEMP', 'Employee messages', '',  'N', 'N', 'N', 'S', 1),
    ('POS', 'POSINV', 'Cash sale',         'D', 'Y', 'Y', 'Y', 'N', 2);
GO
INSERT INTO SYSCurrencyMst ([CCYCode], [CCYName], [CCYFactor], [CCYSymbol], [CCYNumCode]) VALUES
    ('ZAR', 'South African Rand', 'M', 'R', 710), ('BWP', 'Botswana Pula', 'M', 'P', 72), ('EUR', 'Euro', 'M', N'€', 978), ('USD', 'US Dollar', 'M', '$', 840);
GO
INSERT INTO SYSPrices ([CO], [PriceCode], [Description], [MUP], [GP], [PriceRule], [Rounding], [DefaultMUP], [DefaultGP], [AutoCreate]) VALUES
    ('01', '1', 'Retail', 45, 31.03, 'M', '0', 45, 31.03, 'Y'), ('01', '2', 'Trade', 30, 23.08, 'M', '0', 30, 23.08, 'Y'), ('01', '3', 'Staff', 12, 10.71, 'M', '0', 12, 10.71, 'N'),
    ('02', '1', 'Retail', 45, 31.03, 'M', '0', 45, 31.03, 'Y'), ('02', '2', 'Trade', 30, 23.08, 'M', '0', 30, 23.08, 'Y');
GO
INSERT INTO SYSTender ([CO], [TenderType], [TenderDesc], [AllowSubTypes], [GLAcNo], [CodeType], [DisplaySeq], [TenderForm]) VALUES
    ('01', '01', 'Gift card', 'N', '1180', 'T', 1, '01'), ('01', '02', 'Staff account', 'N', '1181', 'T', 2, '02'), ('01', '03', 'Wallet', 'N', '1182', 'T', 3, '03'),
    ('02', '01', 'Gift card', 'N', '1180', 'T', 1, '01');
GO
INSERT INTO SYSWH ([CO], [Branch], [WH], [WHName], [WHStatus]) VALUES
    ('01', '100', 'MAIN', 'Main store', 'A'), ('01', '100', 'SPARE', 'Spares cage', 'A'), ('01', '100', 'SCRAP', 'Scrap', 'I'),
    ('01', '102', 'MAIN', 'Shop floor', 'A'), ('02', '201', 'MAIN', 'Yard', 'A');
GO
INSERT INTO SYSSalesReps ([CO], [Branch], [RepCode], [RepName], [EarnComm], [Telephone], [EMail]) VALUES
    ('01', '100', 'R01', 'Counter', 'N', '', ''), ('01', '101', 'R02', 'Harbour counter', 'N', '', ''), ('02', '201', 'R01', 'Counter', 'N', '', '');
GO
INSERT INTO SYSCodeMaster ([CO], [CodeType], [Code], [Description], [UserFld3], [SystemField]) VALUES
    ('01', 'TITLE', 'MR', 'Mr', 'Y', 'N'), ('01', 'TITLE', 'MS', 'Ms', 'Y', 'N'), ('01', 'TITLE', 'DR', 'Dr', 'N', 'N');
GO
INSERT INTO SYSMessage ([CO], [Branch], [ModCode], [MsgCode], [MsgName], [MsgText]) VALUES
    ('01', '100', 'CRO', '00001', 'Booking-in slip', 'Goods not collected within 90 days of notice may be sold to recover the cost of the repair.'),
    ('01', '100', 'CRO', '00002', 'Quotation', 'This estimate is valid for 14 days. Parts are subject to availability.');
GO
INSERT INTO GLGBankMaster ([CO], [BankCode], [BankName], [BranchName], [BranchCode], [BankAccNo], [BankAccName]) VALUES
    ('01', 'OT01', 'Ostermere Trust', 'Ostermere', '770014', '00114001', 'Brindavel Electronics'),
    ('02', 'AS01', 'Ambercroft Savings', 'Ambercroft', '770022', '00201002', 'Kestrovane Tools');
GO
INSERT INTO POSTillMaster ([CO], [Branch], [TillNo], [Name], [Status]) VALUES
    ('01', '100', '01', 'Workshop counter', 'O'), ('01', '101', '01', 'Harbour till 1', 'O'), ('01', '101', '02', 'Harbour till 2', 'C'), ('02', '201', '01', 'Mill Lane till', 'O');
GO
INSERT INTO POSCOFTillMst ([CO], [Branch], [COFTillNo], [Name], [VisUser]) VALUES
    ('01', '100', '90', 'Cash office', 'MANAGER'), ('01', '101', '90', 'Cash office Harbour', 'COUNTER3');
GO
INSERT INTO SYSLockAppTimers ([CO], [Branch], [PgmName], [LockTime]) VALUES
    ('01', '100', 'velCRO', 60), ('01', '101', 'velCRO', 15), ('01', '100', 'velPOS', 5);
GO
INSERT INTO SYSGrpLockAppTimers ([CO], [Branch], [UserGroup], [PgmName], [LockTime]) VALUES
    ('01', '100', 'MGMT', 'velCRO', 999), ('01', '101', 'CNTR', 'velCRO', 30), ('01', '102', 'CNTR', 'velCRO', 5);
GO
-- Messages: users on the list (U), customers (C), one-time pins of both (O, N); those of types that
-- begin with VIP go to members. Where they go is not set, so none leaves a sample seat.
INSERT INTO SysTxanSMS ([CO], [Branch], [TxTp], [MsgType], [TxtHeader], [TxtTrailer]) VALUES
    ('01', '100', 'POSEMP', 'U', 'Birthday today: @AccName#', 'Sent @CurrDate# by @User#'),
    ('01', '100', 'POSINV', 'C', 'Dear customer, invoice @DocNo# of @Amount# was charged to @Account#.', 'Balance @Balance#'),
    ('01', '100', 'POSINV', 'U', 'Invoice @DocNo#, @Amount#', '@CurrDateTime#'),
    ('01', '100', 'POSINV', 'O', 'Pin @OTP# for @DocNo#', 'asked for by @User#'),
    ('01', '100', 'POSINV', 'N', 'Your pin is @OTP#.', ''),
    ('01', '100', 'VIPJOI', 'C', 'Welcome @AccName#, your card is @Account#', 'since @TranDate#'),
    ('01', '100', 'VIPJOI', 'N', 'Your member pin is @OTP#.', '@RefNo# @Details#');
INSERT INTO SYSUserSMS ([CO], [Branch], [UserCode], [TxTp], [MsgType], [SMS], [EMail]) VALUES
    ('01', '100', 'MANAGER',  'POSEMP', 'U', 'Y', 'N'),
    ('01', '100', 'SUPER2',   'POSEMP', 'U', 'Y', 'N'),
    ('01', '100', 'MANAGER',  'POSINV', 'U', 'Y', 'N'),
    ('01', '100', 'SUPER1',   'POSINV', 'O', 'Y', 'N');
INSERT INTO POSVIPMembers ([CO], [VIPNo], [SourceBranch], [VIPCardNo], [Name], [Title], [CellNo], [DateJoined], [Status]) VALUES
    ('01', 1, '100', '600100', 'Mirabel Tansy',      'MS', '0825550161', '$(TODAY-400)', 'A'),
    ('01', 2, '100', '600101', N'Björn Ålesker',     'MR', '083-555-0162', '$(TODAY-60)', 'A'),
    ('01', 3, '101', '600102', 'Nobody by telephone', '',  '',           '$(TODAY)',     'A');
GO
