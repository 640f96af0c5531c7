-- Orders
INSERT INTO CRORepMst ( [CO], [Branch], [CRONo], [TranDate], [Account], [Name], [Cellphone], [ReceiveDate], [ReceiveMthd], [ReceiveItems], [Status], [DTODate], [DTOTime], [DTOUser], [DTOMacID] ) VALUES ( '01','100','A1','2026/03/01','ACC1','O''Neil','082','2026/03/01','DROPOFF','0','0','2026/03/01','10:00:00','ANN','SEAT1') ;
--> (1)
INSERT INTO CRORepMst ( [CO], [Branch], [CRONo], [Name], [ReceiveItems] ) VALUES ( '02','200','B2','Neilson','0') ;
--> (1)
SELECT [RecID] FROM CRORepMst
 WHERE [CO] = '01'
   AND [Branch] = '100'
   AND [CRONo] = 'a1'
--> 1
SELECT COUNT(*) FROM (SELECT * FROM CRORepMst WITH (NOLOCK)
 WHERE [CO] = '01'
   AND [Branch] = '100'
AND [CRONo] LIKE '%neil%' OR [Account] LIKE '%neil%' OR [Name] LIKE '%neil%' OR [Cellphone] LIKE '%neil%' OR [Reference] LIKE '%neil%') T
--> 2
SELECT [CRONo] FROM CRORepMst WITH (NOLOCK)
 WHERE [CO] = '01'
   AND [Branch] = '100'
 ORDER BY [CRONo] DESC
--> A1
UPDATE CRORepMst SET [Name] = 'Ann', [ReceiveMthd] = 'POST', [DTOUser] = 'BOB' WHERE [RecID] = '1' ;
--> (1)
SELECT Name, Account, DTOUser FROM CRORepMst WHERE [RecID] = '1'
--> Ann|ACC1|BOB
-- Items
SELECT ISNULL(CAST(M.MaxItemNo AS NVARCHAR(5)), 'none') FROM (SELECT MAX(CAST(ItemNo AS INT)) AS [MaxItemNo]
  FROM CRORepItems WITH (NOLOCK)
 WHERE [CO] = '01'
   AND [Branch] = '100'
   AND [CRONo] = 'A1') M
--> none
INSERT INTO CRORepItems ( [CO], [Branch], [CRONo], [ItemNo], [ModelNo], [SerialNo], [InWarranty], [Notes] ) VALUES ( '01','100','A1','9','M','S1','Y','n') ;
INSERT INTO CRORepItmIntake ( [CO], [Branch], [CRONo], [ItemNo], [IntakeCode], [Notes] ) VALUES ( '01','100','A1','9','BOX','') ;
INSERT INTO CRORepItmFaults ( [CO], [Branch], [CRONo], [ItemNo], [FaultCode], [Notes] ) VALUES ( '01','100','A1','9','DEAD','') ;
INSERT INTO CRORepItmAudit ( [CO], [Branch], [CRONo], [ItemNo], [TranDate], [TranTime], [ProcessCode], [TechCode], [Notes] ) VALUES ( '01','100','A1','9','2026/03/01','10:00:00','','','Order Item Added') ;
INSERT INTO CRORepItmQuoteHdr ( [CO], [Branch], [CRONo], [ItemNo], [TranDate], [TechCode], [Status], [DepositRequired], [DepositPaid], [OrderNo], [Notes] ) VALUES ( '01','100','A1','9','2026/03/01','','0','0','0','Q1','n') ;
--> (1) (1) (1) (1) (1)
INSERT INTO CRORepItems ( [CO], [Branch], [CRONo], [ItemNo], [SerialNo] ) VALUES ( '01','100','A1','10','S2') ;
--> (1)
SELECT MAX(CAST(ItemNo AS INT)) AS [MaxItemNo]
  FROM CRORepItems WITH (NOLOCK)
 WHERE [CO] = '01'
   AND [Branch] = '100'
   AND [CRONo] = 'A1'
--> 10
SELECT COUNT(RecID) AS [ReceivedItems]
  FROM CRORepItems WITH (NOLOCK)
 WHERE [CO] = '01'
   AND [Branch] = '100'
   AND [CRONo] = 'A1'
--> 2
UPDATE CRORepMst SET
 [ReceiveItems] = '2'
 WHERE [CO] = '01'
   AND [Branch] = '100'
   AND [CRONo] = 'A1' ;
--> (1)
SELECT ReceiveItems FROM CRORepMst WHERE CRONo = 'A1'
--> 2
INSERT INTO STKMaster (CO, Branch, StockCode, LinkCode, Description1, Description2, QtyDecimal) VALUES ('01', '100', 'DRILL', 'D1', 'Drill', 'red', 2)
--> (1)
INSERT INTO STKSerialMst (CO, Branch, SerialNo, StockCode, LinkCode) VALUES ('01', '100', 'S1', 'DRILL', 'D1')
--> (1)
SELECT I.SerialNo, I.Description1 FROM (SELECT T0.*, T2.Description1
  FROM CRORepItems T0
  LEFT OUTER JOIN STKSerialMst T1
    ON T1.CO = T0.CO
   AND T1.Branch = '100'
   AND T1.SerialNo = T0.SerialNo
  INNER JOIN STKMaster T2
    ON T2.CO = T1.CO
   AND T2.Branch = T1.Branch
   AND T2.StockCode = T1.StockCode
   AND T2.LinkCode = T1.LinkCode
 WHERE T0.CO = '01'
   AND T0.Branch = '100'
   AND T0.CRONo = 'A1') I
--> S1|Drill
SELECT SerialNo FROM CRORepItems
 WHERE [RecID] = '2'
--> S2
SELECT [IntakeCode] FROM CRORepItmIntake WITH (NOLOCK) WHERE [CO] = '01' AND [Branch] = '100' AND [CRONo] = 'A1' AND [ItemNo] = '9' ORDER BY [IntakeCode]
--> BOX
DELETE FROM CRORepItmFaults WHERE [CO] = '01'   AND [Branch] = '100'   AND [CRONo] = 'A1'   AND [ItemNo] = '9' ;
DELETE FROM CRORepItmIntake WHERE [CO] = '01'   AND [Branch] = '100'   AND [CRONo] = 'A1'   AND [ItemNo] = '9' ;
--> (1) (1)
UPDATE CRORepItems SET [ModelNo] = 'M2', [SerialNo] = 'S1', [InWarranty] = 'N', [Notes] = 'x' WHERE [RecID] = '1' ;
--> (1)
SELECT ModelNo, InWarranty FROM CRORepItems WHERE RecID = 1
--> M2|N
-- Processes
INSERT INTO CRORepItmProcess ( [CO], [Branch], [CRONo], [ItemNo], [TranDate], [TranTime], [TechCode], [ProcessCode], [ProcessID], [Notes] ) VALUES ( '01','100','A1','9','2026/03/01','10:11:12','T1','P1','0','') ;
--> (1)
SELECT P.[TimeStamp], P.TechCode FROM (SELECT CAST(CONCAT([TranDate], ' ', [TranTime]) AS DATETIME) AS [TimeStamp], * 
  FROM CRORepItmProcess WITH (NOLOCK)
 WHERE [CO] = '01'
   AND [Branch] = '100'
   AND [CRONo] = 'A1'
   AND [ItemNo] = '9') P
--> 2026-03-01 10:11:12.000|T1
UPDATE CRORepItmProcess SET        [TechCode] = 'T2',       [ProcessCode] = 'P2',       [Notes] = 'done' WHERE [RecID] = '1' ;
--> (1)
SELECT TechCode, ProcessCode, Notes FROM CRORepItmProcess
--> T2|P2|done
DELETE FROM CRORepItmProcess WHERE [RecID] = '1' ;
--> (1)
-- Pictures
INSERT INTO CRORepItmImages (CO, Branch, CRONo, ItemNo, ImageID) VALUES ('01', '100', 'A1', '1', '1'), ('01', '100', 'A1', '1', '2')
--> (2)
INSERT INTO CRORepItmImages (CO, Branch, CRONo, ItemNo, ProcessID, ImageID, ImageData) VALUES (:CO, :Branch, :CRONo, :ItemNo, :ProcessID, :ImageID, :ImageData)
--> (1)
SELECT MAX(CAST(ImageID AS INT)) AS [MaxImageID]
  FROM CRORepItmImages WITH (NOLOCK)
 WHERE [CO] = '01'
   AND [Branch] = '100'
   AND [CRONo] = 'A1'
   AND [ItemNo] = '1'
--> 3
DELETE FROM CRORepItmImages 
 WHERE [CO] = '01'
   AND [Branch] = '100'
   AND [CRONo] = 'A1'
   AND [ItemNo] = '1'
   AND [ImageID] = '2' ;
WITH CTE AS (
SELECT [RecID], ROW_NUMBER() OVER (ORDER BY CAST(ImageID AS INT)) AS [NewImageID]
  FROM CRORepItmImages
 WHERE [CO] = '01'
   AND [Branch] = '100'
   AND [CRONo] = 'A1'
   AND [ItemNo] = '1'
)
 UPDATE CRORepItmImages
    SET [ImageID] = CTE.NewImageID
   FROM CRORepItmImages
  INNER JOIN CTE ON CRORepItmImages.RecID = CTE.RecID ;
--> (1) (2)
SELECT ImageID, ISNULL(DATALENGTH(ImageData), 0) FROM CRORepItmImages WITH (NOLOCK)
 ORDER BY ImageID
--> 1|0;2|4
-- Quotations
UPDATE CRORepItmQuoteHdr SET        [TranDate] = '2026/03/02',       [TechCode] = 'T1',       [DepositRequired] = '12.5',       [DepositPaid] = '0',       [OrderNo] = 'Q1',       [Notes] = '' WHERE [RecID] = '1' ;
--> (1)
SELECT TranDate, DepositRequired FROM CRORepItmQuoteHdr
 WHERE [CO] = '01'
   AND [Branch] = '100'
   AND [CRONo] = 'A1'
--> 2026/03/02|12.5
INSERT INTO CRORepItmQuoteDet ( [CO], [Branch], [CRONo], [ItemNo], [StockCode], [LinkCode], [Description1], [Quantity], [PriceExcl], [PriceIncl], [LineVAT], [LineTotalExcl], [LineTotalIncl], [VATCode], [VATRate], [CostExcl], [CostIncl], [TotalCostExcl], [TotalCostIncl], [Profit], [Notes] ) VALUES ( '01','100','','0','DRILL','D1','Drill','2','1.25','1.5','0.5','2.5','3','S','15','1','1.15','2','2.3','0.5','') ;
--> (1)
SELECT Q.Quantity, Q.Description2, Q.QtyDecimal FROM (SELECT T0.*, T1.Description2, T1.QtyDecimal, T1.CostDecimal, T1.SellDecimal
  FROM CRORepItmQuoteDet T0
  LEFT OUTER JOIN STKMaster T1
    ON T1.CO = T0.CO
   AND T1.Branch = 100
   AND T1.StockCode = T0.StockCode
   AND T1.LinkCode = T0.LinkCode
 WHERE T0.RecID = '1') Q
--> 2|red|2
SELECT [RecID] FROM CRORepItmQuoteDet WITH (NOLOCK) WHERE [CO] = '01'   AND [Branch] = '100'   AND [CRONo] = ''   AND [ItemNo] = '0'   AND [StockCode] = 'DRILL'   AND [LinkCode] = 'D1'
--> 1
UPDATE CRORepItmQuoteDet SET        [Quantity] = '3',       [LineTotalExcl] = '3.75',       [Profit] = '0.75' WHERE [RecID] = '1' ;
--> (1)
SELECT Quantity, LineTotalExcl, Profit FROM CRORepItmQuoteDet
--> 3|3.75|0.75
DELETE FROM CRORepItmQuoteDet WHERE [RecID] = '1' ;
--> (1)
-- Workshop codes
INSERT INTO CROCodeMaster ( [CO], [CodeType], [Code], [Description], [Notes] ) VALUES ( '01','F','DEAD','Is dead','') ;
--> (1)
SELECT [RecID] FROM CROCodeMaster  WHERE [CO] = '01'   AND [CodeType] = 'f'   AND [Code] = 'dead'
--> 1
UPDATE CROCodeMaster SET [Description] = 'Dead', [Notes] = 'n' WHERE [RecID] = '1' ;
--> (1)
SELECT CodeType, Code, Description FROM CROCodeMaster WITH (NOLOCK)
 WHERE [CO] = '01'
   AND [CodeType] = 'F'
 ORDER BY [Code]
--> F|DEAD|Dead
INSERT INTO CROTechMst ( [CO], [TechCode], [TechName], [Cellphone] ) VALUES ( '01','T1','Tom','') ;
--> (1)
SELECT [TechCode], [TechName] FROM CROTechMst WITH (NOLOCK) WHERE [CO] = '01' ORDER BY [TechName]
--> T1|Tom
INSERT INTO CROProcessMst ( [CO], [ProcessSeq], [ProcessCode], [Description] ) VALUES ( '01','10','Q','Later'), ('01','9','P','Sooner') ;
--> (2)
SELECT [ProcessCode], [Description] FROM CROProcessMst WITH (NOLOCK) WHERE [CO] = '01' ORDER BY [ProcessSeq]
--> P|Sooner;Q|Later
UPDATE CROProcessMst SET [Description] = 'D', [ProcessSeq] = '8' WHERE [RecID] = '1' ;
--> (1)
SELECT ProcessSeq FROM CROProcessMst WHERE RecID = 1
--> 8
DELETE FROM CROCodeMaster WHERE [RecID] = '1' ;
--> (1)
-- An order is removed
DELETE FROM CRORepMst WHERE [RecID] = '1' ;
DELETE FROM CRORepItems WHERE [CO] = '01'   AND [Branch] = '100'   AND [CRONo] = 'A1' ;
DELETE FROM CRORepItmImages WHERE [CO] = '01'   AND [Branch] = '100'   AND [CRONo] = 'A1' ;
DELETE FROM CRORepItmQuoteHdr WHERE [CO] = '01'   AND [Branch] = '100'   AND [CRONo] = 'A1' ;
DELETE FROM CRORepItmAudit WHERE [CO] = '01'   AND [Branch] = '100'   AND [CRONo] = 'A1' ;
--> (1) (2) (2) (1) (1)
