-- Sign-in
INSERT INTO vcSettings ([Suite], [DisplayName], [DisplaySeq], [SvrCatCode], [DefCO], [DefBranch], [DBHost], [Img01]) VALUES ('VEL', 'Two', 2, 'A', '01', '100', 'H2', 0x4A504547), ('VEL', 'One', 1, 'B', '02', '200', 'H1', NULL), ('OTHER', 'Three', 1, 'A', '', '', '', NULL)
--> (3)
SELECT * FROM vcSettings WITH (NOLOCK) WHERE [Suite] = 'VEL' ORDER BY [DisplaySeq] 
--> of DisplayName: One;Two
SELECT * FROM vcSettings WITH (NOLOCK) WHERE [Suite] = 'VEL' AND [SvrCatCode] = 'A' AND [SvrCatCode] IN ('A','B') ORDER BY [DisplaySeq] 
--> of DisplayName: Two
SELECT * FROM vcSettings WITH (NOLOCK)  WHERE [DisplayName] = 'two'
--> of RecID, DefCO, DefBranch, DBHost: 1|01|100|H2
SELECT * FROM vcSettings WITH (NOLOCK)  WHERE [RecID] = '2'
--> of DisplayName, DBHost, DBOnAzure: One|H1|NULL
SELECT [Img01], [Img02]  FROM VCSettings WITH (NOLOCK)  WHERE [DisplayName] = 'Two'
--> JPEG|NULL
SELECT [DisplayName] FROM vcSettings WITH (NOLOCK)  WHERE [Suite] = 'VEL' ORDER BY [DisplaySeq] 
--> One;Two
SELECT [DisplayName] FROM vcSettings WITH (NOLOCK)  WHERE [Suite] = 'VEL' AND [SvrCatCode] = 'B' ORDER BY [DisplaySeq] 
--> One
INSERT INTO SYSUser (UserCode, UserName, UserPswd, UserGroup, CellNo, Status, DefCO, DefBranch) VALUES ('ANN', 'Ann A', 'old', 'CNT', '0821', 'A', '01', '100')
--> (1)
SELECT * FROM SysUser WITH (NOLOCK)  WHERE [UserCode] = 'ann'
--> of UserCode, UserName, UserPswd, UserGroup, Status, DefCO, DefBranch, DefTillNo: ANN|Ann A|old|CNT|A|01|100|NULL
SELECT * FROM SYSUser WITH (NOLOCK)  WHERE [UserCode] = 'NOBODY'
--> 
SELECT UserCode, UserPswd, UserGroup  FROM SysUser  WHERE UserCode = 'ann'
--> ANN|old|CNT
UPDATE SYSUSER SET  USERPSWD = 'New ', PSWDDATE = '2026/03/01' WHERE RecID = '1' ;
--> (1)
SELECT UserPswd + '|', PswdDate FROM SysUser
--> New ||2026/03/01
INSERT INTO SYSUserGroup (CO, UserGroup, GroupDesc, AllowViewCost, PswdExp, PswdExpDays) VALUES ('01', 'CNT', 'Counter', 'Y', 'Y', '30')
--> (1)
SELECT * FROM SysUserGroup WITH (NOLOCK)  WHERE [CO] = '01' AND [UserGroup] = 'CNT'
--> of GroupDesc, AllowViewCost, PswdExp, PswdExpDays: Counter|Y|Y|30
INSERT INTO POSCOFTillMst (CO, Branch, COFTillNo, Name, VisUser) VALUES ('01', '100', '9', 'Office', 'ANN')
--> (1)
SELECT * FROM POSCOFTillMst WITH (NOLOCK)  WHERE [CO] = '01' AND [Branch] = '100' AND [VisUser] = 'ANN'
--> of COFTillNo, Name: 9|Office
INSERT INTO SYSUserComp (UserCode, CO, Branch) VALUES ('ANN', '01', '100')
--> (1)
SELECT * FROM SysUserComp WITH (NOLOCK)  WHERE [UserCode] = 'ANN' AND [CO] = '01' AND [Branch] = '100'
--> of CO, Branch: 01|100
SELECT * FROM SysUserComp WITH (NOLOCK)  WHERE [UserCode] = 'ANN' AND [CO] = '02' AND [Branch] = '200'
--> 
-- The session's company
INSERT INTO SYSCompany (CO, COName, COVATNo) VALUES ('01', 'First', '4700')
--> (1)
SELECT * FROM SysCompany WITH (NOLOCK)  WHERE [CO] = '01'
--> of COName, COVATNo: First|4700
INSERT INTO SYSBranch (CO, Branch, BRName, ShortName) VALUES ('01', '100', 'Central', 'Head')
--> (1)
SELECT * FROM SysBranch WITH (NOLOCK)  WHERE [CO] = '01' AND [Branch] = '100'
--> of BRName, ShortName, DisplaySeq: Central|Head|0
INSERT INTO SYSBRShare (CO, Branch, SHSTK, SHDEB) VALUES ('01', '100', '100', '102')
--> (1)
SELECT * FROM SysBRShare WITH (NOLOCK)  WHERE [CO] = '01' AND [Branch] = '100'
--> of SHSTK, SHDEB, SHVIP: 100|102|NULL
INSERT INTO SYSCurrencyMst (CCYCode, CCYName, CCYSymbol, CCYNumCode) VALUES ('ZAR', 'Rand', 'R', '710')
--> (1)
SELECT * FROM SysCurrencyMst WITH (NOLOCK)  WHERE [CCYCode] = 'ZAR'
--> of CCYName, CCYSymbol, CCYNumCode: Rand|R|710
INSERT INTO GLGBankMaster (CO, BankCode, BankName, BranchCode, BankAccNo) VALUES ('01', 'B1', 'Bank', '051', '99')
--> (1)
SELECT * FROM GLGBankMaster WITH (NOLOCK)  WHERE [CO] = '01' AND [BankCode] = 'B1'
--> of BankName, BranchCode, BankAccNo: Bank|051|99
INSERT INTO vcMainMenu (Suite, PgmName, DisplayName) VALUES ('VEL', 'velPOS', 'Tills'), ('VEL', 'velCRO', 'Repairs')
--> (2)
SELECT * FROM vcMainMenu WITH (NOLOCK) ORDER BY [PgmName] 
--> of DisplayName: Repairs;Tills
-- Periods
INSERT INTO SYSAP (CO, AP, FromDate, ToDate, APActive, APOpen) VALUES ('01', '7', '2026/03/01', '2026/03/31', 'N', 'N')
--> (1)
UPDATE SYSAP SET [Apactive] = 'Y',[Apopen] = 'Y' WHERE CO = '01' AND AP = '7' ;
--> (1)
SELECT * FROM SYSAP WITH (NOLOCK)  WHERE [CO] = '01' AND [FromDate] <= '2026/03/01' AND [ToDate] >= '2026/03/01'
--> of AP, FromDate, ToDate, APActive, APOpen: 7|2026/03/01|2026/03/31|Y|Y
-- Birthdays
INSERT INTO EMPMaster (CO, Branch, EmplNo, EmplName, BirthDate, IDNo) VALUES ('01', '100', 'E1', 'Tom', '1990/03/01', '9'), ('01', '100', 'E2', 'Tim', '1990/04/01', '8')
--> (2)
INSERT INTO EMPTxans ( [CO], [Branch], [EmplNo], [TranDate], [TxTp], [Details], [Reference], [DrCr], [Amount] ) VALUES ( '01','100','E1','2026/03/01','POSEMP','082','9','','0') ;
--> (1)
SELECT T0.[EmplNo], T0.[EmplName], T0.[BirthDate], T0.[IDNo], T0.[Telephone], T0.[CellPhone],  COUNT(T1.EmplNo) AS [SMSSent] FROM EMPMaster T0 WITH (NOLOCK) LEFT OUTER JOIN EMPTxans T1 ON T1.[CO] = T0.[CO] AND T1.[Branch] = T0.[Branch] AND T1.[EmplNo] = T0.[EmplNo] AND T1.[TranDate] = '2026/03/01' AND T1.[TxTp] = 'POSEMP' WHERE T0.[CO] = '01' AND T0.[Branch] = '100' AND SUBSTRING(T0.[BirthDate], 6, 5) = SUBSTRING('2026/03/01', 6, 5) GROUP BY T0.[EmplNo], T0.[EmplName], T0.[BirthDate], T0.[IDNo], T0.[Telephone], T0.[CellPhone] ORDER BY [EmplName]
--> E1|Tom|1990/03/01|9|NULL|NULL|1
