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
SELECT LEFT([GridSettings], 6) FROM SysSaveGrids WITH (NOLOCK) WHERE [CO] = '01' AND [UserCode] = 'ann' AND [ScreenID] = 'G1'
--> [Grid]
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
SELECT COUNT(*) FROM (SELECT * FROM SYSEODLog WITH (NOLOCK)  WHERE [CO] = '01'   AND [Branch] = '100'   AND [RunDate] = '2026/03/01') T
--> 1
SELECT [RunDate] FROM SysEODLog WITH (NOLOCK)  WHERE [CO] = '01'   AND [Branch] = '100'   AND [Status] < '9'   AND [DTOMacID] = 'seat1'
--> 2026/03/01
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
SELECT Details, DBUser FROM (SELECT * FROM vcControl WITH (NOLOCK)  WHERE [Suite] = 'VEL' AND [Code] = 'A') T
--> text|sa
SELECT CASE WHEN @@SPID > 0 THEN 'yes' END AS SPID
--> yes
SELECT LEN(CONVERT(NVARCHAR(30), current_timestamp, 120)) as SDate
--> 19
-- Loaders and document numbers
INSERT INTO SYSAP ([CO], [AP], [FromDate], [ToDate], [APActive], [APOpen]) VALUES ('01', '1', '2026/01/01', '2026/01/31', 'Y', 'N'), ('01', '2', '2026/02/01', '2026/02/28', 'Y', 'Y'), ('01', '3', '2026/03/01', '2026/03/31', 'N', 'N')
--> (3)
SELECT [AP], [FromDate], [ToDate]  FROM SysAP WITH (NOLOCK) WHERE [CO] = '01'   AND [AP] <= '2' ORDER BY [AP] DESC
--> 2|2026/02/01|2026/02/28;1|2026/01/01|2026/01/31
SELECT AP, APOpen FROM SYSAP WITH (NOLOCK)  WHERE [CO] = '01'   AND [FromDate] <= '2026/02/10'   AND [ToDate] >= '2026/02/10'
--> 2|Y
INSERT INTO SYSRepImages (CO, ImageCode, ImageData) VALUES ('01', 'IMGLOGO', 0x8950)
--> (1)
SELECT DATALENGTH([ImageData]) FROM SysRepImages WITH (NOLOCK) WHERE [CO] = '01' AND [ImageCode] = 'IMGLOGO'
--> 2
EXEC VELMARA_GENERATE_NUMBER :CO, :BRANCH, :MODCODE, :TXTP
--> 1
EXEC VELMARA_GENERATE_NUMBER :CO, :BRANCH, :MODCODE, :TXTP
--> 2
INSERT INTO SYSTax (TaxCode, TaxDesc, TaxRate, SeqNo, Usage) VALUES ('S', 'Standard', '15.5', '2', 'B'), ('Z', 'Zero', '0', '1', 'O'), ('P', 'Paid', '1', '3', 'I')
--> (3)
SELECT TaxCode, TaxDesc, TaxRate, FromDate, ToDate, Usage FROM SysTax WITH (NOLOCK) WHERE Usage IN ('B','O') ORDER BY SeqNo
--> Z|Zero|0|NULL|NULL|O;S|Standard|15.5|NULL|NULL|B
INSERT INTO SYSBranch (CO, Branch, ShortName, TradingBranch, BranchCategory, DisplaySeq) VALUES ('01', '100', 'Head', 'Y', 'H', 2), ('01', '101', 'East', 'Y', 'S', 1)
--> (2)
SELECT [Branch], [ShortName] FROM SysBranch WITH (NOLOCK) WHERE [CO] = '01' AND [TradingBranch] = 'Y' AND [BranchCategory] <> 'H' ORDER BY [DisplaySeq], [Branch]
--> 101|East
CREATE TABLE WooCats (AppID int, CategoryId int, Parent int, Name nvarchar(50)) INSERT INTO WooCats VALUES (1, 5, 0, 'Tools'), (1, 6, 5, 'Drills'), (1, 7, 6, 'Bits'), (2, 8, 0, 'Other')
--> (-1) (4)
WITH nopC AS (SELECT CategoryId, CAST(Name AS NVARCHAR(MAX)) AS [path] FROM WooCats WHERE AppID = '1' AND Parent = 0
 UNION ALL SELECT C.CategoryId, CAST(P.[path] + ' -> ' + C.Name AS NVARCHAR(MAX)) FROM WooCats C INNER JOIN nopC P ON P.CategoryId = C.Parent)
SELECT CategoryId, [path] FROM nopC ORDER BY [path]
--> 5|Tools;6|Tools -> Drills;7|Tools -> Drills -> Bits
