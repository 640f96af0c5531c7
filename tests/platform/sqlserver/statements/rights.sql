-- Rights
INSERT INTO SYSGrpAccess (CO, UserGroup, ModCode, AccessNo, Options) VALUES ('01', 'COUNTER', 'CRO', '1', 'Y')
--> (1)
INSERT INTO SYSUserAccess (CO, Branch, UserCode, ModCode, AccessNo, Options) VALUES ('01', '100', 'ANN', 'CRO', '1', 'N')
--> (1)
SELECT [ModCode], [AccessNo], [Options], 1 AS [Priority] FROM SYSGrpAccess WITH (NOLOCK)  WHERE [CO] = :CO AND [UserGroup] = :UserGroup  UNION ALL SELECT [ModCode], [AccessNo], [Options], 2 AS [Priority] FROM SYSUserAccess WITH (NOLOCK)  WHERE [CO] = :CO AND [Branch] = :Branch AND [UserCode] = :UserCode  ORDER BY [Priority]
--> CRO|1|Y|1;CRO|1|N|2
SELECT [Options] FROM SYSGrpAccess WITH (NOLOCK) WHERE [CO] = '01' AND [UserGroup] = 'COUNTER' AND [ModCode] = 'CRO' AND [AccessNo] = '1'
--> Y
SELECT [Options] FROM SYSUserAccess WITH (NOLOCK) WHERE [CO] = '01' AND [Branch] = '100' AND [UserCode] = 'ANN' AND [ModCode] = 'CRO' AND [AccessNo] = '1'
--> N
SELECT * FROM SYSGrpAccess WITH (NOLOCK) WHERE [CO] = '01' AND [UserGroup] = 'counter' AND [ModCode] = 'CRO' AND [AccessNo] = '1'
--> of UserGroup, Options: COUNTER|Y
SELECT * FROM SYSUserAccess WITH (NOLOCK) WHERE [CO] = '01' AND [Branch] = '100' AND [UserCode] = 'ann' AND [ModCode] = 'CRO' AND [AccessNo] = '1'
--> of UserCode, Options: ANN|N
INSERT INTO vcSysAccess ([Suite], [ModCode], [AccessNo]) VALUES ('VEL', 'CRO', '2'), ('VEL', 'CRO', '1')
--> (2)
SELECT * FROM vcSysAccess WITH (NOLOCK) WHERE [Suite] = :Suite ORDER BY [ModCode], [AccessNo]
--> of ModCode, AccessNo: CRO|1;CRO|2
INSERT INTO SysRepAccessLevel (AccessLevel, Description) VALUES ('3', 'Costs'), ('1', 'Lists')
--> (2)
SELECT * FROM SysRepAccessLevel WITH (NOLOCK) ORDER BY [AccessLevel]
--> of AccessLevel, Description: 1|Lists;3|Costs
INSERT INTO SYSGrpRepAccess (UserGroup, AccessLevel) VALUES ('COUNTER', '1'), ('OFFICE', '3')
--> (2)
SELECT [AccessLevel] FROM SYSGrpRepAccess WITH (NOLOCK) WHERE [UserGroup] = :UserGroup
--> 1
INSERT INTO SYSUserRepAccess (CO, Branch, UserCode, AccessLevel, AllowAccess) VALUES ('01', '100', 'ANN', '3', '1')
--> (1)
SELECT [AccessLevel], [AllowAccess] FROM SYSUserRepAccess WITH (NOLOCK) WHERE [CO] = :CO AND [Branch] = :Branch AND [UserCode] = :UserCode
--> 3|1
-- Parameters
INSERT INTO vcSysParmControl (Suite, ParmType, ModCode, ParmNo, ParmName, DefaultValue) VALUES ('VEL', 'C', '', '40', 'Currency', 'ZAR'), ('VEL', 'B', '', '6', 'Till', ''), ('OTHER', 'C', '', '40', 'x', 'y')
--> (3)
SELECT * FROM vcSysParmControl WITH (NOLOCK) WHERE [Suite] = 'VEL' ORDER BY [ParmType], [ModCode], [ParmNo]
--> of ParmType, ParmNo, DefaultValue: B|6|;C|40|ZAR
INSERT INTO SYSParameter (CO, Branch, ModCode, UserCode, ParamNo, ParamValue) VALUES ('01', '', '', '', '40', 'USD'), ('01', '100', '', '', '6', '2'), ('01', '', 'CRD', '', '1', 'c'), ('01', '100', 'POS', '', '7', 'p'), ('01', '100', 'CRD', '', '8', 'not this'), ('02', '', '', '', '40', 'not this')
--> (6)
INSERT INTO SYSGrpParam (CO, UserGroup, ModCode, ParamNo, ParamValue) VALUES ('01', 'COUNTER', '', '9', 'u'), ('01', 'OFFICE', '', '9', 'not this')
--> (2)
SELECT 'CO' AS [ParamCode], [ParamNo], [ParamValue], 1 AS [Priority] FROM SYSParameter WITH (NOLOCK) WHERE [CO] = :CO AND [Branch] = '' AND [ModCode] = '' AND UserCode = ''
 UNION ALL SELECT 'BRANCH' AS [ParamCode], [ParamNo], [ParamValue], 2 AS [Priority] FROM SYSParameter WITH (NOLOCK) WHERE [CO] = :CO AND [Branch] = :Branch AND [ModCode] = '' AND [UserCode] = ''
 UNION ALL SELECT [ModCode] AS [ParamCode], [ParamNo], [ParamValue], 3 AS [Priority] FROM SYSParameter WITH (NOLOCK) WHERE [CO] = :CO AND [Branch] = '' AND [ModCode] IN ( 'CRD','GSM','GLG') AND [UserCode] = ''
 UNION ALL SELECT [ModCode] AS [ParamCode], [ParamNo], [ParamValue], 4 AS [Priority] FROM SYSParameter WITH (NOLOCK) WHERE [CO] = :CO AND [Branch] = :Branch AND [ModCode] NOT IN ( 'CRD','GSM','GLG') AND [UserCode] = ''
 UNION ALL SELECT 'USER' AS [ParamCode], [ParamNo], [ParamValue], 5 AS [Priority] FROM SYSGrpParam WITH (NOLOCK) WHERE [CO] = :CO AND [UserGroup] = :UserGroup
 ORDER BY [Priority], [ParamCode]
--> CO|40|USD|1;BRANCH|6|2|2;CRD|1|c|3;|6|2|4;POS|7|p|4;USER|9|u|5
INSERT INTO vcHelpHdr (FormCode, Description, Notes) VALUES ('CRO100', 'Orders', 'n')
--> (1)
SELECT * FROM vcHelpHdr WITH (NOLOCK)  WHERE [FormCode] = 'CRO100'
--> of Description, Notes: Orders|n
INSERT INTO vcHelpDetl (FormCode, Type, ParamModCode, Num, Shortcut) VALUES ('CRO100', 'S', '', 0, 'F4'), ('CRO100', 'A', 'CRO', 1, ''), ('CRO100', 'P', 'CO', 40, '')
--> (3)
SELECT * FROM vcHelpDetl WITH (NOLOCK)  WHERE [FormCode] = 'CRO100' ORDER BY [Type], [ParamModCode] 
--> of Type, ParamModCode, Num, Shortcut: A|CRO|1|;P|CO|40|;S||0|F4
-- Fingerprints
INSERT INTO SYSUserBiometrics (UserCode, FPMask, FPData) VALUES ('ANN', '2', 0x4650)
--> (1)
SELECT * FROM SYSUserBiometrics WITH (NOLOCK)
--> of UserCode, FPMask, FPData: ANN|2|FP
INSERT INTO SYSBiometricDetl (BioID, FPMask, FPData) VALUES ('5', '2', 0x4650)
--> (1)
SELECT * FROM SYSBiometricDetl WITH (NOLOCK)
--> of BioID, FPMask, FPData: 5|2|FP
INSERT INTO SYSUser (UserCode, UserName, UserPswd, UserGroup, Supervisor, SuperCardNo, BioID) VALUES ('ANN', 'Ann A', 'P', 'CNT', 'Y', '77', '5')
--> (1)
SELECT * FROM SysUser WITH (NOLOCK) WHERE [UserCode] = 'ANN'
--> of UserCode, Username, UserPswd, Supervisor, SuperCardNo, UserGroup: ANN|Ann A|P|Y|77|CNT
SELECT * FROM SysUser WITH (NOLOCK) WHERE [BioID] = '5'
--> of UserCode, Supervisor: ANN|Y
