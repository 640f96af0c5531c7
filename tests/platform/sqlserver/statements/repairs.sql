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
SELECT * FROM CRORepMst WITH (NOLOCK)
 WHERE [CO] = '01'
   AND [Branch] = '100'
AND [CRONo] LIKE '%neil%' OR [Account] LIKE '%neil%' OR [Name] LIKE '%neil%' OR [Cellphone] LIKE '%neil%' OR [Reference] LIKE '%neil%' ORDER BY [CRONo] DESC
--> of CO, CRONo, Name: 02|B2|Neilson;01|A1|O'Neil
SELECT * FROM CRORepMst WITH (NOLOCK)
 WHERE [CO] = '01'
   AND [Branch] = '100'
 ORDER BY [CRONo] DESC
--> of CRONo, ReceiveMthd, DTOMacID: A1|DROPOFF|SEAT1
UPDATE CRORepMst SET [Name] = 'Ann', [ReceiveMthd] = 'POST', [DTOUser] = 'BOB' WHERE [RecID] = '1' ;
--> (1)
SELECT * FROM CRORepMst
 WHERE [RecID] = '1'
--> of Name, Account, ReceiveMthd, DTOUser: Ann|ACC1|POST|BOB
-- Items
SELECT MAX(CAST(ItemNo AS INT)) AS [MaxItemNo]
  FROM CRORepItems WITH (NOLOCK)
 WHERE [CO] = '01'
   AND [Branch] = '100'
   AND [CRONo] = 'A1'
--> NULL
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
SELECT T0.*, T2.Description1
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
   AND T0.CRONo = 'A1'
--> of ItemNo, SerialNo, Description1: 9|S1|Drill
SELECT * FROM CRORepItems
 WHERE [RecID] = '2'
--> of ItemNo, SerialNo, InWarranty: 10|S2|NULL
SELECT T0.*, T1.Description1
  FROM STKSerialMst T0
 INNER JOIN STKMaster T1
    ON T1.CO = T0.CO
   AND T1.Branch = T0.Branch
   AND T1.StockCode = T0.StockCode
   AND T1.LinkCode = T0.LinkCode
 WHERE T0.CO = '01'
   AND T0.Branch = '100'
   AND T0.SerialNo = 's1'
--> of SerialNo, StockCode, LinkCode, Description1: S1|DRILL|D1|Drill
SELECT [RecID] FROM CRORepItems
 WHERE [CO] = '01'
   AND [Branch] = '100'
   AND [CRONo] = 'A1'
   AND [SerialNo] = '0'
--> 
SELECT * FROM CRORepItmIntake WITH (NOLOCK)
 WHERE [CO] = '01'
   AND [Branch] = '100'
   AND [CRONo] = 'A1'
   AND [ItemNo] = '9'
 ORDER BY [IntakeCode]
--> of ItemNo, IntakeCode: 9|BOX
SELECT * FROM CRORepItmFaults WITH (NOLOCK)
 WHERE [CO] = '01'
   AND [Branch] = '100'
   AND [CRONo] = 'A1'
   AND [ItemNo] = '9'
 ORDER BY [FaultCode]
--> of ItemNo, FaultCode: 9|DEAD
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
SELECT CAST(CONCAT([TranDate], ' ', [TranTime]) AS DATETIME) AS [TimeStamp], * 
  FROM CRORepItmProcess WITH (NOLOCK)
 WHERE [CO] = '01'
   AND [Branch] = '100'
   AND [CRONo] = 'A1'
   AND [ItemNo] = '9'
--> of TimeStamp, TechCode, ItemNo: 2026-03-01 10:11:12.000|T1|9
SELECT CAST(CONCAT([TranDate], ' ', [TranTime]) AS DATETIME) AS [TimeStamp], * 
  FROM CRORepItmProcess
 WHERE [RecID] = '1'
--> of TimeStamp, ProcessID, ProcessCode: 2026-03-01 10:11:12.000|0|P1
UPDATE CRORepItmProcess SET        [TechCode] = 'T2',       [ProcessCode] = 'P2',       [Notes] = 'done' WHERE [RecID] = '1' ;
--> (1)
SELECT TechCode, ProcessCode, Notes FROM CRORepItmProcess
--> T2|P2|done
DELETE FROM CRORepItmProcess WHERE [RecID] = '1' ;
--> (1)
SELECT COUNT(*) FROM CRORepItmProcess
--> 0
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
SELECT * FROM CRORepItmImages
 WHERE [CO] = '01'
   AND [Branch] = '100'
   AND [CRONo] = 'A1'
   AND [ItemNo] = '1'
--> of RecID, ImageID: 1|1;3|2
SELECT * FROM CRORepItmImages WITH (NOLOCK)
 WHERE [CO] = '01'
   AND [Branch] = '100'
   AND [CRONo] = 'A1'
   AND [ItemNo] = '1'
   AND [ImageID] = '2'
--> of ProcessID, ImageID, ImageData: 0|2|JPEG
-- Quotations
UPDATE CRORepItmQuoteHdr SET        [TranDate] = '2026/03/02',       [TechCode] = 'T1',       [DepositRequired] = '12.5',       [DepositPaid] = '0',       [OrderNo] = 'Q1',       [Notes] = '' WHERE [RecID] = '1' ;
--> (1)
SELECT * FROM CRORepItmQuoteHdr
 WHERE [CO] = '01'
   AND [Branch] = '100'
   AND [CRONo] = 'A1'
--> of ItemNo, OrderNo, TranDate, DepositRequired: 9|Q1|2026/03/02|12.5
INSERT INTO CRORepItmQuoteDet ( [CO], [Branch], [CRONo], [ItemNo], [StockCode], [LinkCode], [Description1], [Quantity], [PriceExcl], [PriceIncl], [LineVAT], [LineTotalExcl], [LineTotalIncl], [VATCode], [VATRate], [CostExcl], [CostIncl], [TotalCostExcl], [TotalCostIncl], [Profit], [Notes] ) VALUES ( '01','100','','0','DRILL','D1','Drill','2','1.25','1.5','0.5','2.5','3','S','15','1','1.15','2','2.3','0.5','') ;
--> (1)
SELECT T0.*, T1.Description2, T1.QtyDecimal, T1.CostDecimal, T1.SellDecimal
  FROM CRORepItmQuoteDet T0
  LEFT OUTER JOIN STKMaster T1
    ON T1.CO = T0.CO
   AND T1.Branch = 100
   AND T1.StockCode = T0.StockCode
   AND T1.LinkCode = T0.LinkCode
 WHERE T0.RecID = '1'
--> of Quantity, PriceExcl, Description2, QtyDecimal: 2|1.25|red|2
SELECT T0.*, T1.Description2, T1.QtyDecimal, T1.CostDecimal, T1.SellDecimal
  FROM CRORepItmQuoteDet T0
  LEFT OUTER JOIN STKMaster T1
    ON T1.CO = T0.CO
   AND T1.Branch = HQ
   AND T1.StockCode = T0.StockCode
   AND T1.LinkCode = T0.LinkCode
 WHERE T0.RecID = '1'
--> error 207
SELECT * FROM CRORepItmQuoteDet
 WHERE [CO] = '01'
   AND [Branch] = '100'
   AND [CRONo] = ''
--> of ItemNo, StockCode, Profit: 0|DRILL|0.5
SELECT * FROM STKMaster WITH (NOLOCK) 
 WHERE [RecID] = '1'
--> of StockCode, Description1: DRILL|Drill
SELECT * FROM STKMaster WITH (NOLOCK) 
 WHERE [CO] = '01'
   AND [Branch] = '100'
   AND [StockCode] = 'drill'
   AND [LinkCode] = 'd1'
--> of RecID, Description2: 1|red
SELECT [RecID] FROM CRORepItmQuoteDet WITH (NOLOCK) WHERE [CO] = '01'   AND [Branch] = '100'   AND [CRONo] = ''   AND [ItemNo] = '0'   AND [StockCode] = 'DRILL'   AND [LinkCode] = 'D1'
--> 1
UPDATE CRORepItmQuoteDet SET        [Quantity] = '3',       [PriceExcl] = '1.25',       [PriceIncl] = '1.5',       [LineVAT] = '0.75',       [LineTotalExcl] = '3.75',       [LineTotalIncl] = '4.5',       [VATCode] = 'S',       [VATRate] = '15',       [CostExcl] = '1',       [CostIncl] = '1.15',       [TotalCostExcl] = '3',       [TotalCostIncl] = '3.45',       [Profit] = '0.75',       [Notes] = 'n' WHERE [RecID] = '1' ;
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
SELECT * FROM CROCodeMaster WITH (NOLOCK)
 WHERE [CO] = '01'
   AND [CodeType] = 'F'
 ORDER BY [Code]
--> of CodeType, Code, Description: F|DEAD|Dead
SELECT * FROM CROCodeMaster WITH (NOLOCK)
 WHERE [CO] = '01'
 ORDER BY [Code]
--> of Code, Notes: DEAD|n
SELECT * FROM CROCodeMaster
 WHERE [RecID] = '1'
--> of CodeType, Code, Description, Notes: F|DEAD|Dead|n
SELECT * FROM CROTechMst WITH (NOLOCK)
 WHERE [CO] = '01'
 ORDER BY [TechCode]
--> 
INSERT INTO CROTechMst ( [CO], [TechCode], [TechName], [Cellphone] ) VALUES ( '01','T2','Tom','') ;
INSERT INTO CROTechMst ( [CO], [TechCode], [TechName], [Cellphone] ) VALUES ( '01','T1','Will','0821') ;
--> (1) (1)
SELECT [TechCode], [TechName] FROM CROTechMst WITH (NOLOCK) WHERE [CO] = '01' ORDER BY [TechName]
--> T2|Tom;T1|Will
SELECT [RecID] FROM CROTechMst 
 WHERE [CO] = '01'
   AND [TechCode] = 't2'
--> 1
UPDATE CROTechMst SET [TechName] = 'Abe', [Cellphone] = '0822' WHERE [RecID] = '1' ;
--> (1)
SELECT * FROM CROTechMst
 WHERE [RecID] = '1'
--> of TechCode, TechName, Cellphone: T2|Abe|0822
SELECT * FROM CROTechMst WITH (NOLOCK)
 WHERE [CO] = '01'
 ORDER BY [TechCode]
--> of TechCode, TechName: T1|Will;T2|Abe
DELETE FROM CROTechMst WHERE [RecID] = '2' ;
--> (1)
INSERT INTO CROProcessMst ( [CO], [ProcessSeq], [ProcessCode], [Description] ) VALUES ( '01','10','Q','Later') ;
INSERT INTO CROProcessMst ( [CO], [ProcessSeq], [ProcessCode], [Description] ) VALUES ( '01','9','P','Sooner') ;
--> (1) (1)
SELECT [ProcessCode], [Description] FROM CROProcessMst WITH (NOLOCK) WHERE [CO] = '01' ORDER BY [ProcessSeq]
--> P|Sooner;Q|Later
SELECT [RecID] FROM CROProcessMst 
 WHERE [CO] = '01'
   AND [ProcessSeq] = '10'
   AND [ProcessCode] = 'q'
--> 1
UPDATE CROProcessMst SET [Description] = 'D', [ProcessSeq] = '8' WHERE [RecID] = '1' ;
--> (1)
SELECT * FROM CROProcessMst
 WHERE [RecID] = '1'
--> of ProcessSeq, ProcessCode, Description: 8|Q|D
SELECT * FROM CROProcessMst WITH (NOLOCK)
 WHERE [CO] = '01'
 ORDER BY [ProcessSeq]
--> of ProcessSeq, ProcessCode: 8|Q;9|P
DELETE FROM CROProcessMst WHERE [RecID] = '2' ;
--> (1)
SELECT (SELECT COUNT(*) FROM CROTechMst), (SELECT COUNT(*) FROM CROProcessMst)
--> 1|1
DELETE FROM CROCodeMaster WHERE [RecID] = '1' ;
--> (1)
-- A whole order, added, changed and removed
INSERT INTO CRORepMst ( [CO], [Branch], [CRONo], [TranDate], [Account], [Name], [Address1], [Address2], [Address3], [Address4], [PostCode], [Telephone1], [Telephone2], [Cellphone], [Contact], [EMail], [Reference], [ReceiveDate], [ReceiveMthd], [ReceiveItems], [Status], [DTODate], [DTOTime], [DTOUser], [DTOMacID] ) VALUES ( '01','100','A2','2026/03/01','ACC1','Ann','1 Road','','','','7700','021','','082','','a@b.c','REF','2026/03/01','DROPOFF','0','0','2026/03/01','10:00:00','ANN','SEAT1') ;
--> (1)
UPDATE CRORepMst SET [TranDate] = '2026/03/02', [Name] = 'Abe', [Address1] = '2 Road', [Address2] = '', [Address3] = '', [Address4] = '', [PostCode] = '7701', [Telephone1] = '021', [Telephone2] = '', [Cellphone] = '083', [Contact] = 'C', [EMail] = '', [Reference] = 'R2', [ReceiveDate] = '2026/03/02', [ReceiveMthd] = 'POST', [DTODate] = '2026/03/02', [DTOTime] = '11:00:00', [DTOUser] = 'BOB', [DTOMacID] = 'SEAT2' WHERE [RecID] = '3' ;
--> (1)
SELECT * FROM CRORepMst
 WHERE [RecID] = '3'
--> of CRONo, Account, Name, PostCode, ReceiveMthd, ReceiveItems, Status, DTOTime: A2|ACC1|Abe|7701|POST|0|0|11:00:00
INSERT INTO CRORepItems ( [CO], [Branch], [CRONo], [ItemNo], [ModelNo], [SerialNo], [InWarranty], [Notes] ) VALUES ( '01','100','A2','1','M','S1','N','') ;
INSERT INTO CRORepItmIntake ( [CO], [Branch], [CRONo], [ItemNo], [IntakeCode], [Notes] ) VALUES ( '01','100','A2','1','BOX','') ;
INSERT INTO CRORepItmFaults ( [CO], [Branch], [CRONo], [ItemNo], [FaultCode], [Notes] ) VALUES ( '01','100','A2','1','DEAD','') ;
INSERT INTO CRORepItmAudit ( [CO], [Branch], [CRONo], [ItemNo], [TranDate], [TranTime], [ProcessCode], [TechCode], [Notes] ) VALUES ( '01','100','A2','1','2026/03/01','10:00:00','','','Order Item Added') ;
INSERT INTO CRORepItmQuoteHdr ( [CO], [Branch], [CRONo], [ItemNo], [TranDate], [TechCode], [Status], [DepositRequired], [DepositPaid], [OrderNo], [Notes] ) VALUES ( '01','100','A2','1','2026/03/01','','0','0','0','Q2','') ;
INSERT INTO CRORepItmImages (CO, Branch, CRONo, ItemNo, ImageID) VALUES ('01', '100', 'A2', '1', '1') ;
INSERT INTO CRORepItmProcess ( [CO], [Branch], [CRONo], [ItemNo], [TranDate], [TranTime], [TechCode], [ProcessCode], [ProcessID], [Notes] ) VALUES ( '01','100','A2','1','2026/03/01','10:11:12','T1','P1','0','') ;
INSERT INTO CRORepItmQuoteDet ( [CO], [Branch], [CRONo], [ItemNo], [StockCode] ) VALUES ( '01','100','A2','1','DRILL') ;
--> (1) (1) (1) (1) (1) (1) (1) (1)
DELETE FROM CRORepItems WHERE [RecID] = '3' ;
DELETE FROM CRORepItmFaults WHERE [CO] = '01'   AND [Branch] = '100'   AND [CRONo] = 'A2'   AND [ItemNo] = '1' ;
DELETE FROM CRORepItmImages WHERE [CO] = '01'   AND [Branch] = '100'   AND [CRONo] = 'A2'   AND [ItemNo] = '1' ;
DELETE FROM CRORepItmIntake WHERE [CO] = '01'   AND [Branch] = '100'   AND [CRONo] = 'A2'   AND [ItemNo] = '1' ;
DELETE FROM CRORepItmProcess WHERE [CO] = '01'   AND [Branch] = '100'   AND [CRONo] = 'A2'   AND [ItemNo] = '1' ;
DELETE FROM CRORepItmQuoteDet WHERE [CO] = '01'   AND [Branch] = '100'   AND [CRONo] = 'A2'   AND [ItemNo] = '1' ;
DELETE FROM CRORepItmQuoteHdr WHERE [CO] = '01'   AND [Branch] = '100'   AND [CRONo] = 'A2'   AND [ItemNo] = '1' ;
INSERT INTO CRORepItmAudit ( [CO], [Branch], [CRONo], [ItemNo], [TranDate], [TranTime], [ProcessCode], [TechCode], [Notes] ) VALUES ( '01','100','A2','1','2026/03/01','10:00:00','','','Order Item Deleted') ;
--> (1) (1) (1) (1) (1) (1) (1) (1)
SELECT ItemNo, Notes FROM CRORepItmAudit WHERE [CRONo] = 'A2' ORDER BY RecID
--> 1|Order Item Added;1|Order Item Deleted
DELETE FROM CRORepMst WHERE [RecID] = '1' ;
DELETE FROM CRORepItems WHERE [CO] = '01'   AND [Branch] = '100'   AND [CRONo] = 'A1' ;
DELETE FROM CRORepItmFaults WHERE [CO] = '01'   AND [Branch] = '100'   AND [CRONo] = 'A1' ;
DELETE FROM CRORepItmImages WHERE [CO] = '01'   AND [Branch] = '100'   AND [CRONo] = 'A1' ;
DELETE FROM CRORepItmIntake WHERE [CO] = '01'   AND [Branch] = '100'   AND [CRONo] = 'A1' ;
DELETE FROM CRORepItmProcess WHERE [CO] = '01'   AND [Branch] = '100'   AND [CRONo] = 'A1' ;
DELETE FROM CRORepItmQuoteDet WHERE [CO] = '01'   AND [Branch] = '100'   AND [CRONo] = 'A1' ;
DELETE FROM CRORepItmQuoteHdr WHERE [CO] = '01'   AND [Branch] = '100'   AND [CRONo] = 'A1' ;
DELETE FROM CRORepItmAudit WHERE [CO] = '01'   AND [Branch] = '100'   AND [CRONo] = 'A1' ;
--> (1) (2) (0) (2) (0) (0) (0) (1) (1)
SELECT CRONo, (SELECT COUNT(*) FROM CRORepItems), (SELECT COUNT(*) FROM CRORepItmAudit) FROM CRORepMst ORDER BY CRONo
--> A2|0|2;B2|0|2
