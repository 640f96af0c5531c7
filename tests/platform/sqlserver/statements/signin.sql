-- Sign-in
INSERT INTO vcSettings ([Suite], [DisplayName], [DisplaySeq], [SvrCatCode]) VALUES ('VEL', 'Two', 2, 'A'), ('VEL', 'One', 1, 'B'), ('OTHER', 'Three', 1, 'A')
--> (3)
SELECT [DisplayName] FROM vcSettings WITH (NOLOCK)  WHERE [Suite] = 'VEL' AND [SvrCatCode] IN ('A','B') ORDER BY [DisplaySeq] 
--> One;Two
SELECT [DisplayName] FROM vcSettings WITH (NOLOCK)  WHERE [RecID] = '2'
--> One
INSERT INTO SYSUser (UserCode, UserPswd, UserGroup, CellNo) VALUES ('ANN', 'old', 'CNT', '0821')
--> (1)
SELECT UserCode, UserPswd, UserGroup  FROM SysUser  WHERE UserCode = 'ann'
--> ANN|old|CNT
UPDATE SYSUSER SET  USERPSWD = 'New ', PSWDDATE = '2026/03/01' WHERE RecID = '1' ;
--> (1)
SELECT UserPswd + '|', PswdDate FROM SysUser
--> New ||2026/03/01
INSERT INTO SYSAP (CO, AP, APActive) VALUES ('01', '7', 'N')
--> (1)
UPDATE SYSAP SET [Apactive] = 'Y',[Apopen] = 'Y' WHERE CO = '01' AND AP = '7' ;
--> (1)
SELECT APActive, APOpen FROM SYSAP
--> Y|Y
INSERT INTO EMPMaster (CO, Branch, EmplNo, EmplName, BirthDate, IDNo) VALUES ('01', '100', 'E1', 'Tom', '1990/03/01', '9'), ('01', '100', 'E2', 'Tim', '1990/04/01', '8')
--> (2)
INSERT INTO EMPTxans ( [CO], [Branch], [EmplNo], [TranDate], [TxTp], [Details], [Reference], [DrCr], [Amount] ) VALUES ( '01','100','E1','2026/03/01','POSEMP','082','9','','0') ;
--> (1)
SELECT T0.[EmplNo], T0.[EmplName], T0.[BirthDate], T0.[IDNo], T0.[Telephone], T0.[CellPhone],  COUNT(T1.EmplNo) AS [SMSSent] FROM EMPMaster T0 WITH (NOLOCK) LEFT OUTER JOIN EMPTxans T1 ON T1.[CO] = T0.[CO] AND T1.[Branch] = T0.[Branch] AND T1.[EmplNo] = T0.[EmplNo] AND T1.[TranDate] = '2026/03/01' AND T1.[TxTp] = 'POSEMP' WHERE T0.[CO] = '01' AND T0.[Branch] = '100' AND SUBSTRING(T0.[BirthDate], 6, 5) = SUBSTRING('2026/03/01', 6, 5) GROUP BY T0.[EmplNo], T0.[EmplName], T0.[BirthDate], T0.[IDNo], T0.[Telephone], T0.[CellPhone] ORDER BY [EmplName]
--> E1|Tom|1990/03/01|9|NULL|NULL|1
-- Rights
INSERT INTO SYSGrpAccess (CO, UserGroup, ModCode, AccessNo, Options) VALUES ('01', 'COUNTER', 'CRO', '1', 'Y')
--> (1)
INSERT INTO SYSUserAccess (CO, Branch, UserCode, ModCode, AccessNo, Options) VALUES ('01', '100', 'ANN', 'CRO', '1', 'N')
--> (1)
SELECT [ModCode], [AccessNo], [Options], 1 AS [Priority] FROM SYSGrpAccess WITH (NOLOCK)  WHERE [CO] = :CO AND [UserGroup] = :UserGroup  UNION ALL SELECT [ModCode], [AccessNo], [Options], 2 AS [Priority] FROM SYSUserAccess WITH (NOLOCK)  WHERE [CO] = :CO AND [Branch] = :Branch AND [UserCode] = :UserCode  ORDER BY [Priority]
--> CRO|1|Y|1;CRO|1|N|2
SELECT [Options] FROM SYSGrpAccess WITH (NOLOCK) WHERE [CO] = '01' AND [UserGroup] = 'COUNTER' AND [ModCode] = 'CRO' AND [AccessNo] = '1'
--> Y
INSERT INTO vcSysAccess ([Suite], [ModCode], [AccessNo]) VALUES ('VEL', 'CRO', '2'), ('VEL', 'CRO', '1')
--> (2)
SELECT [AccessNo] FROM vcSysAccess WITH (NOLOCK) WHERE [Suite] = :Suite ORDER BY [ModCode], [AccessNo]
--> 1;2
INSERT INTO SYSUserRepAccess (CO, Branch, UserCode, AccessLevel, AllowAccess) VALUES ('01', '100', 'ANN', '3', '1')
--> (1)
SELECT [AccessLevel], [AllowAccess] FROM SYSUserRepAccess WITH (NOLOCK) WHERE [CO] = :CO AND [Branch] = :Branch AND [UserCode] = :UserCode
--> 3|1
-- Messages
INSERT INTO SysUserSMS (CO, Branch, UserCode, TxTp, MsgType) VALUES ('01', '100', 'ANN', 'CROMST', 'N')
--> (1)
SELECT M.UserCode, M.CellNo FROM (SELECT T0.*, T1.[CellNo]  FROM SysUserSMS T0 WITH (NOLOCK)  INNER JOIN SysUser T1 WITH (NOLOCK)  ON T0.[UserCode] = T1.[UserCode]  WHERE T0.[CO] = '01' AND T0.[Branch] = '100' AND T0.[TxTp] = 'CROMST' AND T0.[MsgType] = 'N' AND T1.[CellNo] <> '') M
--> ANN|0821
INSERT INTO SysTxanOTP ( [CO], [Branch], [TxTp], [TxTpKey], [Status], [OTP], [CellNo], [ReqDate], [ReqTime],  [ReqUser], [ReqMacID], [UpdDate], [UpdTime], [DocNo], [SMSMessage]    ) VALUES ( '01','100','CROMST','A1','0','1234','0821','2026/03/01','10:00:00','ANN','SEAT1','','','','Your pin') ;
--> (1)
SELECT OTP, SMSMessage FROM SysTxanOTP WHERE Status = '0'
--> 1234|Your pin
INSERT INTO DEBContacts (CO, Branch, Account, Name, CellPhone, SMSTxans, PrtySeq) VALUES ('01', '100', 'A', 'Second', '2', 'Y', 2), ('01', '100', 'A', 'First', '1', 'Y', 1)
--> (2)
SELECT Account, Title, Name, Surname, CellPhone, Status  FROM DEBContacts WITH (NOLOCK)  WHERE CO = '01' AND Branch = '100' AND Account = 'A' AND SMSTxans = 'Y' ORDER BY PrtySeq 
--> A|NULL|First|NULL|1|NULL;A|NULL|Second|NULL|2|NULL
INSERT INTO POSVIPMembers (VIPCardNo, Name, CellNo) VALUES ('C1', 'Vic', '0829')
--> (1)
SELECT [Name], [CellNo]  FROM POSVIPMembers WITH (NOLOCK)  WHERE [VIPCardNo] = '0829' OR [CellNo] = '0829'
--> Vic|0829
-- Report functions
INSERT INTO SYSWH (CO, Branch, WH, WHName) VALUES ('01', '100', 'W', 'Main')
--> (1)
SELECT WHNAME FROM SYSWH WHERE CO = '01' AND BRANCH = '100' AND WH = 'W'
--> Main
INSERT INTO DEBBalance (CO, Branch, Account, AP, DCurr) VALUES ('01', '100', 'A', '7', '12.5')
--> (1)
 SELECT DCURR FROM DEBBALANCE WITH (NOLOCK) WHERE [CO]    = '01' AND [BRANCH]  = '100' AND [ACCOUNT] = 'A' AND [AP]      = '7'
--> 12.5
