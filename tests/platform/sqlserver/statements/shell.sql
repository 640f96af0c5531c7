-- Saved grids
MERGE INTO SYSSaveGrids AS [Target]
  USING (VALUES (:CO, :UserCode, :ScreenID))
     AS [Source] ([CO], [UserCode], [ScreenID])
     ON Target.CO = Source.CO
    AND Target.UserCode = Source.UserCode
    AND Target.ScreenID = Source.ScreenID
   WHEN MATCHED THEN
 UPDATE SET [GridSettings] = :GridSettings
   WHEN NOT MATCHED THEN
 INSERT ([CO], [UserCode], [ScreenID], [GridSettings])
 VALUES (:CO, :UserCode, :ScreenID, :GridSettings);
--> (1)
UPDATE SYSSaveGrids SET [GridSettings] = 'old'
--> (1)
MERGE INTO SYSSaveGrids AS [Target]
  USING (VALUES (:CO, :UserCode, :ScreenID))
     AS [Source] ([CO], [UserCode], [ScreenID])
     ON Target.CO = Source.CO
    AND Target.UserCode = Source.UserCode
    AND Target.ScreenID = Source.ScreenID
   WHEN MATCHED THEN
 UPDATE SET [GridSettings] = :GridSettings
   WHEN NOT MATCHED THEN
 INSERT ([CO], [UserCode], [ScreenID], [GridSettings])
 VALUES (:CO, :UserCode, :ScreenID, :GridSettings);
--> (1)
SELECT COUNT(*) FROM SYSSaveGrids WHERE [GridSettings] LIKE '%w=1'
--> 1
SELECT [GridSettings] FROM SysSaveGrids WITH (NOLOCK) WHERE [CO] = '01' AND [UserCode] = 'ann' AND [ScreenID] = 'G1'
--> [Grid] w=1
DELETE FROM SysSaveGrids  WHERE CO = '01' AND UserCode = 'ANN' AND ScreenID = 'G1' ;
--> (1)
-- Idle lock and end of day
INSERT INTO SYSLockAppTimers ([CO], [Branch], [PgmName], [LockTime]) VALUES ('01', '100', 'velCRO', '15')
--> (1)
SELECT [LockTime] FROM SYSLockAppTimers WITH (NOLOCK)  WHERE [CO] = '01' AND [Branch] = '100' AND [PgmName] = 'VELCRO'
--> 15
INSERT INTO SYSGrpLockAppTimers ([CO], [Branch], [UserGroup], [PgmName], [LockTime]) VALUES ('01', '100', 'COUNTER', 'velCRO', '999')
--> (1)
SELECT [LockTime] FROM SYSGrpLockAppTimers WITH (NOLOCK)  WHERE [CO] = '01' AND [Branch] = '100' AND [UserGroup] = 'COUNTER' AND [PgmName] = 'velCRO'
--> 999
INSERT INTO SYSEODLog ([CO], [Branch], [RunDate], [Status], [DTOMacID]) VALUES ('01', '100', '2026/03/01', '1', 'SEAT1')
--> (1)
SELECT * FROM SYSEODLog WITH (NOLOCK)  WHERE [CO] = '01'   AND [Branch] = '100'   AND [RunDate] = '2026/03/01'
--> of Status, DTOMacID: 1|SEAT1
SELECT * FROM SYSEODLog WITH (NOLOCK)  WHERE [CO] = '01'   AND [Branch] = '100'   AND [RunDate] = '2026/02/28'
--> 
SELECT * FROM SysEODLog WITH (NOLOCK)  WHERE [CO] = '01'   AND [Branch] = '100'   AND [Status] < '9'   AND [DTOMacID] = 'seat1'
--> of RunDate: 2026/03/01
-- Versions, error texts and settings
INSERT INTO vcVersions ( [Suite], [PgmName], [Description], [Version], [LastUpd], [LastPCName]    ) VALUES ( 'VEL','velCRO','Repairs','1.0.0','2026/03/01','10:00:00') ;
--> (1)
UPDATE vcVersions SET [Version] = '1.0.1',[LastPCName] = 'SEAT1',[Lastupd] = '2026/03/02' WHERE [Suite] = 'VEL' AND [PgmName] = 'VELCRO' ;
--> (1)
SELECT [Version], [Description]  FROM vcVersions WITH (NOLOCK) WHERE [Suite] = 'VEL' AND [PgmName] = 'velCRO'
--> 1.0.1|Repairs
INSERT INTO vcErrorMessages ([Suite], [ErrorNo], [Message], [Comment]) VALUES ('VEL', '1001', 'No printer', '')
--> (1)
SELECT [ErrorNo], [Message], [Comment]  FROM vcErrorMessages WITH (NOLOCK)  WHERE [Suite] = 'VEL' AND [ErrorNo] = '1001'
--> 1001|No printer|
INSERT INTO vcControl ([Suite], [Code], [Details], [DBUser]) VALUES ('VEL', 'A', 'text', 'sa')
--> (1)
SELECT * FROM vcControl WITH (NOLOCK)  WHERE [Suite] = 'VEL' AND [Code] = 'A'
--> of Details, DBConnector, DBUser, DBPswd: text|NULL|sa|NULL
SELECT CASE WHEN T.SPID BETWEEN 1 AND 32767 THEN 'yes' END FROM (SELECT @@SPID AS SPID) T
--> yes
SELECT DATEDIFF(minute, T.SDate, GETDATE()) FROM (SELECT current_timestamp as SDate) T
--> 0
-- Periods, pictures and document numbers
INSERT INTO SYSAP ([CO], [AP], [FromDate], [ToDate], [APActive], [APOpen]) VALUES ('01', '1', '2026/01/01', '2026/01/31', 'Y', 'N'), ('01', '2', '2026/02/01', '2026/02/28', 'Y', 'Y'), ('01', '3', '2026/03/01', '2026/03/31', 'N', 'N')
--> (3)
SELECT [AP], [FromDate], [ToDate]  FROM SysAP WITH (NOLOCK) WHERE [CO] = '01'   AND [AP] <= '2' ORDER BY [AP] DESC
--> 2|2026/02/01|2026/02/28;1|2026/01/01|2026/01/31
SELECT * FROM SYSAP WITH (NOLOCK)  WHERE [CO] = '01'   AND [FromDate] <= '2026/02/10'   AND [ToDate] >= '2026/02/10'
--> of AP, FromDate, ToDate, APActive, APOpen: 2|2026/02/01|2026/02/28|Y|Y
INSERT INTO SYSRepImages (CO, ImageCode, ImageData) VALUES ('01', 'IMGLOGO', 0x38393530)
--> (1)
SELECT [ImageData] FROM SysRepImages WITH (NOLOCK) WHERE [CO] = '01' AND [ImageCode] = 'IMGLOGO'
--> 8950
EXEC VELMARA_GENERATE_NUMBER :CO, :BRANCH, :MODCODE, :TXTP
--> 1
EXEC VELMARA_GENERATE_NUMBER :CO, :BRANCH, :MODCODE, :TXTP
--> 2
