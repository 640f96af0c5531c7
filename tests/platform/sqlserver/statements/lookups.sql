-- Customers and serials
INSERT INTO DEBMaster (CO, Branch, Account, Name, Cellphone, IDNo) VALUES ('01', '100', 'ACC1', 'Ann', '0821', '77'), ('01', '100', 'ACC2', 'Abe', '0822', '78'), ('02', '200', 'ACC3', 'Annie', '', '')
--> (3)
SELECT TOP(2000) [Account], [Name], [Cellphone], [Telephone], [Telephone2], [Contact], [IDNo], [DefBranch]
 FROM DEBMaster WITH (NOLOCK)
 WHERE [CO] = '01'
   AND [Branch] = '100'
 ORDER BY [Name]
--> ACC2|Abe|0822|NULL|NULL|NULL|78|NULL;ACC1|Ann|0821|NULL|NULL|NULL|77|NULL
SELECT [Account], [Name], [Cellphone], [Telephone],  [Telephone2], [Contact], [IDNo], [DefBranch]
  FROM DEBMaster WITH (NOLOCK)
 WHERE [CO] = '01'
   AND [Branch] = '100'
AND [Account] LIKE '%ann%' OR [Name] LIKE '%ann%' OR [IDNo] LIKE '%ann%' OR [Cellphone] LIKE '%ann%' ORDER BY [Name]
--> ACC1|Ann|0821|NULL|NULL|NULL|77|NULL;ACC3|Annie||NULL|NULL|NULL||NULL
SELECT [Account], [Name] FROM DEBMaster
 WHERE [CO] = '01'
   AND [Branch] = '100'
   AND [Account] = 'acc1'
--> ACC1|Ann
INSERT INTO STKMaster (CO, Branch, StockCode, LinkCode, Description1, StockType, Status, KitFunction, Barcode, SuppCode, Supplier, Units, LastCostExcl, AvgCostExcl) VALUES ('01', '100', 'DRILL', 'D1', 'Drill', 'S', '', '', '600', 'SU', 'V1', '1', '7', '6.5'), ('01', '100', 'DRILL', 'D6', 'Drill six', 'S', '', '', '606', 'SU', 'V1', '6', '40', '39'), ('01', '100', 'KIT', '', 'Kit', 'K', '', '3', '', '', '', '1', '0', '0'), ('01', '100', 'OLD', '', 'Old', 'S', 'X', '', '600', '', '', '1', '0', '0')
--> (4)
INSERT INTO STKSerialMst (CO, Branch, SerialNo, StockCode, LinkCode, Status) VALUES ('01', '100', 'S1', 'DRILL', 'D1', '0'), ('01', '100', 'S2', 'DRILL', 'D6', '0')
--> (2)
SELECT TOP(1000) T0.RecID, T0.Status, T0.SerialNo, T0.StockCode, T0.LinkCode, T1.Description1
  FROM STKSerialMst T0
 INNER JOIN STKMaster T1
    ON T1.CO = T0.CO
   AND T1.Branch = T0.Branch
   AND T1.StockCode = T0.StockCode
   AND T1.LinkCode = T0.LinkCode
 WHERE T0.CO = '01'
   AND T0.Branch = '100'
 ORDER BY T0.SerialNo DESC
--> 2|0|S2|DRILL|D6|Drill six;1|0|S1|DRILL|D1|Drill
SELECT TOP(1000) T0.RecID, T0.Status, T0.SerialNo, T0.StockCode, T0.LinkCode, T1.Description1
  FROM STKSerialMst T0
 INNER JOIN STKMaster T1
    ON T1.CO = T0.CO
   AND T1.Branch = T0.Branch
   AND T1.StockCode = T0.StockCode
   AND T1.LinkCode = T0.LinkCode
 WHERE T0.CO = '01'
   AND T0.Branch = '100'
AND T0.[StockCode] LIKE '%six%' OR T0.[LinkCode] LIKE '%six%' OR T0.[SerialNo] LIKE '%six%' OR T1.[Description1] LIKE '%six%' ORDER BY T0.[SerialNo] DESC
--> 2|0|S2|DRILL|D6|Drill six
-- Products
INSERT INTO STKPrice (CO, Branch, StockCode, LinkCode, PriceCode, Excl, Incl) VALUES ('01', '100', 'DRILL', 'D1', 'P1', '10', '11.5')
--> (1)
INSERT INTO STKBalance (CO, Branch, StockCode, WH, Onhand) VALUES ('01', '100', 'DRILL', '', '4')
--> (1)
SELECT TOP(1000) T0.*,
 COALESCE(T1.Excl,0.00) AS Excl, 
 COALESCE(T1.Incl,0.00) AS Incl, 
 (SELECT SUM(Onhand) FROM STKBalance WITH (NOLOCK)
 WHERE CO = T0.CO
   AND Branch = T0.Branch
   AND StockCode = T0.StockCode) AS [Onhand]
 FROM STKMaster T0 WITH (NOLOCK)
 LEFT OUTER JOIN STKPrice T1 WITH (NOLOCK) 
   ON T1.CO = T0.CO 
  AND T1.Branch = T0.Branch 
  AND T1.StockCode = T0.StockCode
  AND T1.LinkCode = T0.LinkCode
  AND T1.PriceCode = 'P1'
 LEFT OUTER JOIN STKBalance T2 WITH (NOLOCK)
   ON T2.CO = T0.CO
  AND T2.Branch = T0.Branch
  AND T2.StockCode = T0.StockCode 
 WHERE T0.CO = '01'
   AND T0.Branch = '100'
 AND T0.StockType <> 'P'
 AND ( T0.StockCode LIKE '%ri%'
  OR T0.Description1 LIKE '%ri%'
  OR T0.Suppcode LIKE '%ri%'
  OR T0.Barcode LIKE '%ri%'
 ) 
 AND T0.Status <> 'X'
 ORDER BY T0.Description1
--> of StockCode, LinkCode, Excl, Incl, Onhand: DRILL|D1|10|11.5|4;DRILL|D6|0|0|4
SELECT TOP(1000) T0.*,
 COALESCE(T1.Excl,0.00) AS Excl, 
 COALESCE(T1.Incl,0.00) AS Incl, 
 (SELECT SUM(Onhand) FROM STKBalance WITH (NOLOCK)
 WHERE CO = T0.CO
   AND Branch = T0.Branch
   AND StockCode = T0.StockCode) AS [Onhand]
 FROM STKMaster T0 WITH (NOLOCK)
 LEFT OUTER JOIN STKPrice T1 WITH (NOLOCK) 
   ON T1.CO = T0.CO 
  AND T1.Branch = T0.Branch 
  AND T1.StockCode = T0.StockCode
  AND T1.LinkCode = T0.LinkCode
  AND T1.PriceCode = 'P1'
 LEFT OUTER JOIN STKBalance T2 WITH (NOLOCK)
   ON T2.CO = T0.CO
  AND T2.Branch = T0.Branch
  AND T2.StockCode = T0.StockCode 
 WHERE T0.CO = '01'
   AND T0.Branch = '100'
 AND T0.StockType = 'S'
 AND T0.Supplier = 'V1'
 AND T0.Status <> 'X'
 AND T0.[StockCode] LIKE '%old%' OR T0.[LinkCode] LIKE '%old%' OR T0.[Description1] LIKE '%old%' OR T0.[Description2] LIKE '%old%' OR T0.[Barcode] LIKE '%old%' OR T0.[SuppCode] LIKE '%old%'
--> of StockCode, Status, Onhand: OLD|X|NULL
SELECT T0.*,
       COALESCE(T1.Excl,0.00) AS Excl,
       COALESCE(T1.Incl,0.00) AS Incl
  FROM STKMaster T0
  LEFT OUTER JOIN STKPrice T1
    ON T1.CO = T0.CO
   AND T1.Branch = T0.Branch
   AND T1.StockCode = T0.StockCode
   AND T1.LinkCode = T0.LinkCode
   AND T1.PriceCode = 'P1'
 WHERE T0.RecID = '1'
--> of StockCode, LinkCode, Excl, Incl: DRILL|D1|10|11.5
SELECT [RecID], [StockCode], [LinkCode], [Description1], [Units], [Barcode], [SuppCode], [Variant], [Singles]
  FROM STKMaster
 WHERE [CO] = '01'
   AND [Branch] = '100'
   AND [StockCode] = 'DRILL'
   AND [StockType] <> 'P'
   AND [Status] <> 'X'
 ORDER BY [Units] DESC
--> 2|DRILL|D6|Drill six|6|606|SU|NULL|0;1|DRILL|D1|Drill|1|600|SU|NULL|0
SELECT RecID, StockCode, LinkCode, Description1, Units, Barcode, 
 SuppCode, Variant, Singles 
 FROM STKMaster WITH (NOLOCK)  
 WHERE CO = '01'
 AND Branch = '100'
 AND StockCode = 'DRILL'
 AND StockType <> 'P'
 AND Status <> 'X'
 ORDER BY Units DESC 
--> 2|DRILL|D6|Drill six|6|606|SU|NULL|0;1|DRILL|D1|Drill|1|600|SU|NULL|0
-- The stock search
SELECT RecID, StockType, StockCode, LinkCode, Description1
 FROM STKMaster WITH (NOLOCK)
 WHERE CO = '01'
 AND Branch = '100'
 AND Barcode = '600' AND (StockType <> 'K' AND KitFunction <> '3' AND KitFunction <> '4' ) AND Status <> 'X'ORDER BY StockCode, LinkCode 
--> 1|S|DRILL|D1|Drill
SELECT RecID, StockType, StockCode, LinkCode, Description1
 FROM STKMaster WITH (NOLOCK)
 WHERE CO = '01'
 AND Branch = '100'
 AND StockCode = 'drill'ORDER BY StockCode, LinkCode 
--> 1|S|DRILL|D1|Drill;2|S|DRILL|D6|Drill six
SELECT RecID, StockType, StockCode, LinkCode, Description1
 FROM STKMaster WITH (NOLOCK)
 WHERE CO = '01'
 AND Branch = '100'
 AND LinkCode = 'D6' AND Status <> 'X'ORDER BY StockCode, LinkCode 
--> 2|S|DRILL|D6|Drill six
SELECT RecID, StockType, StockCode, LinkCode, Description1
 FROM STKMaster WITH (NOLOCK)
 WHERE CO = '01'
 AND Branch = '100'
 AND Barcode = '600'ORDER BY StockCode, LinkCode 
--> 1|S|DRILL|D1|Drill;4|S|OLD||Old
SELECT RecID, StockType, StockCode, LinkCode, Description1
 FROM STKMaster WITH (NOLOCK)
 WHERE CO = '01'
 AND Branch = '100'
 AND StockCode = 'KIT' AND (StockType <> 'K' AND KitFunction <> '3' AND KitFunction <> '4' )ORDER BY StockCode, LinkCode 
--> 
SELECT RecID, StockType, StockCode, LinkCode, Description1
 FROM STKMaster WITH (NOLOCK)
 WHERE CO = '01'
 AND Branch = '100'
 AND SuppCode = 'su' AND Status <> 'X'ORDER BY StockCode, LinkCode 
--> 1|S|DRILL|D1|Drill;2|S|DRILL|D6|Drill six
SELECT RecID, StockType, StockCode, LinkCode, Description1
 FROM STKMaster WITH (NOLOCK)
 WHERE CO = '01'
 AND Branch = '100'
 AND SuppCode = 'SU' AND Supplier = 'V2' AND Status <> 'X'ORDER BY StockCode, LinkCode 
--> 
SELECT RecID, StockType, StockCode, LinkCode, Description1
 FROM STKMaster WITH (NOLOCK)
 WHERE CO = '01'
 AND Branch = '100'
 AND SuppCode = 'SU' AND Supplier = 'V1' AND (StockType <> 'K' AND KitFunction <> '3' AND KitFunction <> '4' ) AND Status <> 'X'ORDER BY StockCode, LinkCode 
--> 1|S|DRILL|D1|Drill;2|S|DRILL|D6|Drill six
INSERT INTO STKAltBarcodes (CO, Branch, Barcode, StockCode, LinkCode) VALUES ('01', '100', '999', 'DRILL', 'D6')
--> (1)
SELECT StockCode, LinkCode 
 FROM STKAltBarCodes 
WHERE CO = '01'
 AND Branch = '100'
 AND Barcode = '999'
--> DRILL|D6
INSERT INTO STKAltSuppliers (CO, Branch, StockCode, LinkCode, SuppCode, Account) VALUES ('01', '100', 'DRILL', 'D1', 'ALT', 'V9')
--> (1)
 SELECT [StockCode], [LinkCode] 
 FROM STKAltSuppliers WITH (NOLOCK) 
 WHERE [CO] = '01'
   AND [Branch] = '100'
   AND [SuppCode] = 'alt' AND [Account] = 'V9'
--> DRILL|D1
 SELECT [StockCode], [LinkCode] 
 FROM STKAltSuppliers WITH (NOLOCK) 
 WHERE [CO] = '01'
   AND [Branch] = '100'
   AND [StockCode] = 'drill'
--> DRILL|D1
 SELECT [StockCode], [LinkCode] 
 FROM STKAltSuppliers WITH (NOLOCK) 
 WHERE [CO] = '01'
   AND [Branch] = '100'
   AND [LinkCode] = 'd1'
--> DRILL|D1
 SELECT [StockCode], [LinkCode] 
 FROM STKAltSuppliers WITH (NOLOCK) 
 WHERE [CO] = '01'
   AND [Branch] = '100'
   AND [SuppCode] = 'ALT'
--> DRILL|D1
 SELECT [StockCode], [LinkCode] 
 FROM STKAltSuppliers WITH (NOLOCK) 
 WHERE [CO] = '01'
   AND [Branch] = '100'
   AND [SuppCode] = 'ALT' AND [Account] = 'V8'
--> 
SELECT * FROM STKPrice WITH (NOLOCK) 
 WHERE CO = '01'
 AND Branch = '100'
 AND StockCode = 'DRILL'
 AND LinkCode = 'D1'
 AND PriceCode = 'P1'
--> of Excl, Incl, FromDate: 10|11.5|NULL
