-- Companies and branches
INSERT INTO SYSCompany (CO, COName) VALUES ('02', 'Second'), ('01', 'First')
--> (2)
SELECT [CO], [COName] FROM SYSCOMPANY WITH (NOLOCK) ORDER BY [CO]
--> 01|First;02|Second
INSERT INTO SYSBranch (CO, Branch, ShortName, TradingBranch, BranchCategory, DisplaySeq) VALUES ('01', '100', 'Head', 'Y', 'H', 2), ('01', '101', 'East', 'Y', 'S', 1), ('01', '102', 'Shut', 'N', 'S', 3), ('02', '200', 'Other', 'Y', 'S', 1)
--> (4)
SELECT [Branch], [ShortName] FROM SYSBRANCH WITH (NOLOCK) WHERE [TradingBranch] = 'Y' ORDER BY [DisplaySeq], [Branch]
--> 101|East;200|Other;100|Head
SELECT [Branch], [ShortName] FROM SYSBRANCH WITH (NOLOCK) WHERE [CO] = '01' ORDER BY [DisplaySeq], [Branch]
--> 101|East;100|Head;102|Shut
SELECT [Branch], [ShortName] FROM SYSBRANCH WITH (NOLOCK) WHERE [CO] = '01'   AND [TradingBranch] = 'Y' AND [BranchCategory] <> 'H' ORDER BY [DisplaySeq], [Branch]
--> 101|East
SELECT [Branch], [ShortName] FROM SYSBRANCH WITH (NOLOCK) WHERE [CO] = '01'   AND [BranchCategory] = 'H' ORDER BY [DisplaySeq], [Branch]
--> 100|Head
-- Warehouses, types, tax and codes
INSERT INTO SYSWH (CO, Branch, WH, WHName, WHStatus) VALUES ('01', '100', 'SPARE', 'Cage', 'A'), ('01', '100', 'MAIN', 'Store', 'A'), ('01', '100', 'OLD', 'Gone', 'X'), ('01', '101', 'MAIN', 'East', 'A')
--> (4)
SELECT [WH], [WHName] FROM SYSWH WITH (NOLOCK) WHERE [CO] = '01'   AND [Branch] = '100' ORDER BY [WH]
--> MAIN|Store;OLD|Gone;SPARE|Cage
SELECT [WH], [WHName] FROM SYSWH WITH (NOLOCK) WHERE [CO] = '01'   AND [Branch] = '101'   AND [WHStatus] = 'A' ORDER BY [WH]
--> MAIN|East
INSERT INTO SYSTxTp (ModCode, TxTp, TxTpDesc, TxTpType, AllowGL) VALUES ('CRO', 'CROMST', 'Orders', 'N', 'N'), ('CRO', 'CROFIX', 'Fixed', 'S', 'Y'), ('POS', 'POSINV', 'Cash sale', 'N', 'Y'), ('POS', 'POSEXT', 'External', 'X', 'N')
--> (4)
SELECT [TxTp], [TxTpDesc] FROM SYSTXTP WITH (NOLOCK) ORDER BY [TxTp]
--> CROFIX|Fixed;CROMST|Orders;POSEXT|External;POSINV|Cash sale
SELECT [TxTp], [TxTpDesc] FROM SYSTXTP WITH (NOLOCK) WHERE [ModCode] = 'CRO'   AND [TxTpType] = 'N' ORDER BY [TxTp]
--> CROMST|Orders
SELECT [TxTp], [TxTpDesc] FROM SYSTXTP WITH (NOLOCK) WHERE [TxTpType] = 'S' ORDER BY [TxTp]
--> CROFIX|Fixed
SELECT [TxTp], [TxTpDesc] FROM SYSTXTP WITH (NOLOCK) WHERE [TxTpType] = 'X' ORDER BY [TxTp]
--> POSEXT|External
SELECT [TxTp], [TxTpDesc] FROM SYSTXTP WITH (NOLOCK) WHERE [ModCode] = 'pos'   AND [AllowGL] = 'Y' ORDER BY [TxTp]
--> POSINV|Cash sale
INSERT INTO SYSTax (TaxCode, TaxDesc, TaxRate, SeqNo, Usage) VALUES ('S', 'Standard', '15.5', '2', 'B'), ('Z', 'Zero', '0', '1', 'O'), ('P', 'Paid', '1', '3', 'I')
--> (3)
SELECT [TaxCode], [TaxDesc], [TaxRate], [FromDate], [ToDate], [Usage] FROM SYSTAX WITH (NOLOCK) WHERE [Usage] IN ('B','O') ORDER BY [SeqNo]
--> Z|Zero|0|NULL|NULL|O;S|Standard|15.5|NULL|NULL|B
SELECT [TaxCode], [TaxDesc], [TaxRate], [FromDate], [ToDate], [Usage] FROM SYSTAX WITH (NOLOCK) WHERE [Usage] IN ('B','I') ORDER BY [SeqNo]
--> S|Standard|15.5|NULL|NULL|B;P|Paid|1|NULL|NULL|I
SELECT [TaxCode], [TaxDesc], [TaxRate], [FromDate], [ToDate], [Usage] FROM SYSTAX WITH (NOLOCK) WHERE [Usage] = 'B' ORDER BY [SeqNo]
--> S|Standard|15.5|NULL|NULL|B
SELECT * FROM SysTax WITH (NOLOCK) ORDER BY [SeqNo]
--> of TaxCode, TaxRate, FromDate: Z|0|NULL;S|15.5|NULL;P|1|NULL
INSERT INTO SYSCodeMaster (CO, CodeType, Code, Description, UserFld3) VALUES ('01', 'TITLE', 'MS', 'Ms', 'Y'), ('01', 'TITLE', 'MR', 'Mr', ''), ('01', 'TITLE', 'X', 'Not shown', 'N'), ('01', 'TITLE', 'DR', 'Dr', NULL)
--> (4)
SELECT [Code], [Description] FROM SYSCODEMASTER WITH (NOLOCK) WHERE [CO] = '01'   AND [CodeType] = 'TITLE' ORDER BY Code
--> DR|Dr;MR|Mr;MS|Ms;X|Not shown
SELECT [Code], [Description] FROM SYSCODEMASTER WITH (NOLOCK) WHERE [CO] = '01'   AND [CodeType] = 'TITLE'  AND [UserFld3] <> 'N' ORDER BY [Description] DESC
--> MS|Ms;MR|Mr
-- The workshop's codes
INSERT INTO CROCodeMaster (CO, CodeType, Code, Description) VALUES ('01', 'F', 'DEAD', 'Is dead'), ('01', 'I', 'BOX', 'Box'), ('01', 'F', 'HUM', 'Hums'), ('02', 'F', 'ODD', 'Odd')
--> (4)
SELECT [Code], [Description] FROM CROCodeMaster WITH (NOLOCK) WHERE [CO] = '01'   AND [CodeType] = 'F' ORDER BY [Description]
--> HUM|Hums;DEAD|Is dead
SELECT [Code], [Description] FROM CROCodeMaster WITH (NOLOCK) WHERE [CO] = '01' ORDER BY [Description]
--> BOX|Box;HUM|Hums;DEAD|Is dead
-- Keys of other modules
INSERT INTO SYSUser (UserCode, UserName) VALUES ('ANN', 'Ann A'), ('ABE', 'Abe B')
--> (2)
SELECT [UserCode], [UserName] FROM SYSUSER WITH (NOLOCK) ORDER BY [UserCode]
--> ABE|Abe B;ANN|Ann A
INSERT INTO SYSPrices (CO, PriceCode, Description) VALUES ('01', 'P1', 'Retail'), ('02', 'P1', 'Trade')
--> (2)
SELECT [PriceCode], [Description] FROM SYSPRICES WITH (NOLOCK) WHERE [CO] = '01' ORDER BY [PriceCode]
--> P1|Retail
INSERT INTO STKProperty (CO, PropNo, PropCode, PropDescription) VALUES ('01', 2, 'B', 'Blue'), ('01', 1, 'L', 'Large')
--> (2)
SELECT [PropCode], [PropDescription] FROM STKPROPERTY WITH (NOLOCK) WHERE [CO] = '01'   AND [PropNo] = '2' ORDER BY [PropCode]
--> B|Blue
INSERT INTO POSTillMaster (CO, Branch, TillNo, Name) VALUES ('01', '100', '2', 'Back'), ('01', '100', '1', 'Front')
--> (2)
SELECT [TillNo], [Name] FROM POSTILLMASTER WITH (NOLOCK) WHERE [CO] = '01'   AND [Branch] = '100' ORDER BY [TillNo]
--> 1|Front;2|Back
CREATE TABLE GLGCalendar (CO nvarchar(10), GLYear int, Period int) INSERT INTO GLGCalendar VALUES ('01', 2026, 11), ('01', 2026, 2)
--> (-1) (2)
SELECT [GLYear], [Period] FROM GLGCALENDAR WITH (NOLOCK) WHERE [CO] = '01' ORDER BY [GLYear]
--> 2026|11;2026|2
SELECT [BuyerCode], [BuyerName] FROM SYSBUYER WITH (NOLOCK) WHERE [CO] = '01' ORDER BY [BuyerCode]
--> error 208
CREATE TABLE WooCategories (AppID int, CategoryId int, Parent int, Name nvarchar(50)) INSERT INTO WooCategories VALUES (1, 5, 0, 'Tools'), (1, 6, 5, 'Drills'), (1, 7, 6, 'Bits'), (1, 9, 0, 'Art'), (2, 8, 0, 'Other')
--> (-1) (5)
WITH nopC AS ( SELECT [CategoryId], CAST([Name] AS nvarchar(max)) AS [path]   FROM WooCategories WITH (NOLOCK)  WHERE [AppID] = '1'    AND [Parent] = 0 UNION ALL SELECT T1.[CategoryId], CAST(nopC.[path] + ' -> ' + T1.[Name] AS nvarchar(max))   FROM WooCategories T1 WITH (NOLOCK)   JOIN nopC ON T1.[Parent] = nopC.[CategoryId]  WHERE T1.[AppID] = '1' ) SELECT [CategoryId], [path] FROM nopC ORDER BY [path]
--> 9|Art;5|Tools;6|Tools -> Drills;7|Tools -> Drills -> Bits
WITH nopC AS ( SELECT [CategoryId], CAST([Name] AS nvarchar(max)) AS [path]   FROM WooCategories WITH (NOLOCK)  WHERE [AppID] = '1'    AND [Parent] = 0 UNION ALL SELECT T1.[CategoryId], CAST(nopC.[path] + ' -> ' + T1.[Name] AS nvarchar(max))   FROM WooCategories T1 WITH (NOLOCK)   JOIN nopC ON T1.[Parent] = nopC.[CategoryId]  WHERE T1.[AppID] = '1' ) SELECT [CategoryId], [path] FROM nopC WHERE [CategoryId] = '6' ORDER BY [path]
--> 6|Tools -> Drills
UPDATE WooCategories SET Parent = 7 WHERE CategoryId = 5 INSERT INTO WooCategories VALUES (1, 10, 0, 'Root'), (1, 5, 10, 'Tools again')
--> (1) (2)
WITH nopC AS ( SELECT [CategoryId], CAST([Name] AS nvarchar(max)) AS [path]   FROM WooCategories WITH (NOLOCK)  WHERE [AppID] = '1'    AND [Parent] = 0 UNION ALL SELECT T1.[CategoryId], CAST(nopC.[path] + ' -> ' + T1.[Name] AS nvarchar(max))   FROM WooCategories T1 WITH (NOLOCK)   JOIN nopC ON T1.[Parent] = nopC.[CategoryId]  WHERE T1.[AppID] = '1' ) SELECT [CategoryId], [path] FROM nopC ORDER BY [path]
--> error 530
