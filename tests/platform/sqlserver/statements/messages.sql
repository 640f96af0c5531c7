-- Messages
INSERT INTO SYSUser (UserCode, CellNo) VALUES ('ANN', '0821'), ('BOB', '')
--> (2)
INSERT INTO SysTxanSMS (CO, Branch, TxTp, MsgType, TxtHeader) VALUES ('01', '100', 'CROMST', 'O', 'pin'), ('01', '100', 'CROMST', 'U', 'users'), ('01', '100', 'CROMST', 'N', 'both'), ('01', '100', 'POSEMP', 'C', 'x')
--> (4)
SELECT * FROM SysTxanSMS WITH (NOLOCK)  WHERE [CO] = '01' AND [Branch] = '100' AND [TxTp] = 'CROMST' AND [MsgType] IN ('O','N')
--> of MsgType, TxtHeader: N|both;O|pin
SELECT * FROM SysTxanSMS WITH (NOLOCK)  WHERE [CO] = '01' AND [Branch] = '100' AND [TxTp] = 'CROMST' AND [MsgType] <> 'O'
--> of MsgType, TxtHeader: N|both;U|users
INSERT INTO SysUserSMS (CO, Branch, UserCode, TxTp, MsgType) VALUES ('01', '100', 'ANN', 'CROMST', 'N'), ('01', '100', 'BOB', 'CROMST', 'N')
--> (2)
SELECT T0.*, T1.[CellNo]  FROM SysUserSMS T0 WITH (NOLOCK)  INNER JOIN SysUser T1 WITH (NOLOCK)  ON T0.[UserCode] = T1.[UserCode]  WHERE T0.[CO] = '01' AND T0.[Branch] = '100' AND T0.[TxTp] = 'CROMST' AND T0.[MsgType] = 'N' AND T1.[CellNo] <> ''
--> of UserCode, MsgType, CellNo: ANN|N|0821
INSERT INTO SysTxanOTP ( [CO], [Branch], [TxTp], [TxTpKey], [Status], [OTP], [CellNo], [ReqDate], [ReqTime],  [ReqUser], [ReqMacID], [UpdDate], [UpdTime], [DocNo], [SMSMessage]    ) VALUES ( '01','100','CROMST','A1','0','1234','0821','2026/03/01','10:00:00','ANN','SEAT1','','','','Your pin') ;
--> (1)
SELECT OTP, SMSMessage FROM SysTxanOTP WHERE Status = '0'
--> 1234|Your pin
INSERT INTO DEBContacts (CO, Branch, Account, Name, CellPhone, SMSTxans, PrtySeq) VALUES ('01', '100', 'A', 'Second', '2', 'Y', 2), ('01', '100', 'A', 'First', '1', 'Y', 1)
--> (2)
SELECT Account, Title, Name, Surname, CellPhone, Status  FROM DEBContacts WITH (NOLOCK)  WHERE CO = '01' AND Branch = '100' AND Account = 'A' AND SMSTxans = 'Y' ORDER BY PrtySeq 
--> A|NULL|First|NULL|1|NULL;A|NULL|Second|NULL|2|NULL
UPDATE DEBContacts SET SMSOTP = 'Y' WHERE Name = 'Second'
--> (1)
SELECT [Account], [Title], [Name], [Surname], [CellPhone], [Status]  FROM DEBContacts WITH (NOLOCK)  WHERE [CO] = '01' AND [Branch] = '100' AND [Account] = 'A' AND [SMSOTP] = 'Y' ORDER BY [PrtySeq] 
--> A|NULL|Second|NULL|2|NULL
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
 SELECT * FROM DEBBALANCE WITH (NOLOCK) WHERE [CO]    = '01' AND [BRANCH]  = '100' AND [ACCOUNT] = 'A' AND [AP]      = '7'
--> of DCurr, D030, DOver: 12.5|0|0
INSERT INTO SYSMessage (CO, Branch, ModCode, MsgCode, MsgText) VALUES ('01', '100', 'CRO', 'M1', 'Thank you')
--> (1)
SELECT MSGTEXT FROM SYSMESSAGE WHERE CO = '01' AND BRANCH = '100' AND MODCODE = 'CRO' AND MSGCODE = 'M1'
--> Thank you
INSERT INTO SYSBranch (CO, Branch, BRName) VALUES ('01', '100', 'Central')
--> (1)
SELECT BRName FROM SYSBranch WHERE CO = '01' AND Branch = '100'
--> Central
INSERT INTO SYSTender (CO, TenderType, TenderDesc) VALUES ('01', 'V', 'Voucher')
--> (1)
SELECT * FROM SYSTender WITH (NOLOCK) WHERE [CO] = '01' AND [TenderType] = 'V'
--> of TenderDesc: Voucher
