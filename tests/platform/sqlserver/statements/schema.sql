-- Till control
SELECT * FROM SYSTillControl WITH (NOLOCK)  WHERE [PCName] = 'SEAT2'
--> 
INSERT INTO SYSTillControl ( [PCName], [MacID], [Key], [DBVersion], [LastMaint], [LastUpgrade]    ) VALUES ( 'SEAT2','','','','2026/03/01','2026/03/01') ;
--> (1)
SELECT * FROM SYSTillControl WITH (NOLOCK)  WHERE [PCName] = 'seat2'
--> of PCName, Key, DBVersion, LastMaint: SEAT2|||2026/03/01
SELECT * FROM SYSDBConfig WITH (NOLOCK) 
--> 
INSERT INTO SYSDBConfig (DBVersion) VALUES ('14.2.0')
--> (1)
SELECT * FROM SYSDBConfig WITH (NOLOCK) 
--> of DBVersion: 14.2.0
IF EXISTS ( SELECT [RECID] FROM SYSTillControl WHERE [PCName] = 'SEAT1' ) UPDATE SYSTillControl SET [DBVersion] = '14.47.41',[LastUpgrade] = '2026/03/01' WHERE [PCName] = 'SEAT1' ELSE INSERT INTO SYSTillControl ( [PCName], [MacID], [Key], [DBVersion], [LastMaint], [LastUpgrade]    ) VALUES ( 'SEAT1','','','1.0.0','','2026/03/01') ;
--> (1)
IF EXISTS ( SELECT [RECID] FROM SYSTillControl WHERE [PCName] = 'SEAT1' ) UPDATE SYSTillControl SET [DBVersion] = '14.47.41',[LastUpgrade] = '2026/03/02' WHERE [PCName] = 'SEAT1' ELSE INSERT INTO SYSTillControl ( [PCName], [MacID], [Key], [DBVersion], [LastMaint], [LastUpgrade]    ) VALUES ( 'SEAT1','','','1.0.0','','2026/03/01') ;
--> (1)
SELECT * FROM SYSTillControl WITH (NOLOCK)  WHERE [PCName] = 'SEAT1'
--> of DBVersion, LastUpgrade: 14.47.41|2026/03/02
-- Tables
CREATE TABLE [dbo].[SYSAudit] ([RecID]      int IDENTITY(1, 1) NOT NULL, [CO]         nvarchar(10), [OldValue]   float DEFAULT 0 NOT NULL, [NewValue]   float DEFAULT 0, [GLAccNo]    int DEFAULT 0, [Notes]      ntext, [Picture]    image, [LogData]    nvarchar(max), [FPData]     varbinary(max), [Value]      sql_variant, [RetryCnt]   int DEFAULT 0 NOT NULL, [Description1] nvarchar(50), [LineNo] int DEFAULT 0 NOT NULL ) ;
--> (-1)
ALTER TABLE [dbo].[SYSAudit]  ADD CONSTRAINT [SYSAudit_idx00] PRIMARY KEY ([RecID]) ;
--> (-1)
SELECT * FROM INFORMATION_SCHEMA.[TABLES]  WHERE TABLE_NAME = 'sysaudit'
--> of TABLE_SCHEMA, TABLE_NAME, TABLE_TYPE: dbo|SYSAudit|BASE TABLE
SELECT * FROM INFORMATION_SCHEMA.[TABLES]  WHERE TABLE_NAME = 'Nowhere'
--> 
SELECT COLUMN_NAME, DATA_TYPE, CHARACTER_MAXIMUM_LENGTH FROM INFORMATION_SCHEMA.[COLUMNS]  WHERE TABLE_NAME = 'SYSAudit' AND DATA_TYPE <> 'sql_variant' ORDER BY ORDINAL_POSITION
--> RecID|int|NULL;CO|nvarchar|10;OldValue|float|NULL;NewValue|float|NULL;GLAccNo|int|NULL;Notes|ntext|1073741823;Picture|image|2147483647;LogData|nvarchar|-1;FPData|varbinary|-1;RetryCnt|int|NULL;Description1|nvarchar|50;LineNo|int|NULL
INSERT INTO SYSAudit (CO, Description1) VALUES ('01', 'Drill')
--> (1)
SELECT RecID, OldValue, NewValue, RetryCnt, LogData FROM SYSAudit
--> 1|0|0|0|NULL
-- Columns
ALTER TABLE [dbo].[SYSAudit] ADD [UserFld] nvarchar(5) NOT NULL DEFAULT ('N')  ;
--> (-1)
ALTER TABLE [dbo].[SYSAudit] ADD [Memo] ntext NOT NULL DEFAULT ('')  ;
--> (-1)
ALTER TABLE [dbo].[SYSAudit] ADD [Rate] decimal NOT NULL DEFAULT (0) ;
--> (-1)
ALTER TABLE [dbo].[SYSAudit] ADD [Stamp] datetime ;
--> (-1)
SELECT UserFld, Memo, Rate, Stamp FROM SYSAudit
--> N||0|NULL
ALTER TABLE [dbo].[SYSAudit]  ALTER COLUMN [Description1] nvarchar(150) ;
--> (-1)
SELECT TABLE_NAME, COLUMN_NAME, CHARACTER_MAXIMUM_LENGTH
  FROM INFORMATION_SCHEMA.[Columns]
 WHERE COLUMN_NAME IN ('DESCRIPTION1', 'DESCRIPTION2', 'DESCRIPTION3')
   AND TABLE_NAME = 'SYSAudit'
 ORDER BY TABLE_NAME, COLUMN_NAME
--> SYSAudit|Description1|150
ALTER TABLE [dbo].[SYSAudit]  ALTER COLUMN [Description1] nvarchar(3) ;
--> error 2628
SELECT Description1 FROM SYSAudit
--> Drill
ALTER TABLE [dbo].[SYSAudit]  DROP COLUMN [UserFld]  ;
--> error 5074
ALTER TABLE [dbo].[SYSAudit]  DROP COLUMN [Stamp]  ;
--> (-1)
SELECT * FROM INFORMATION_SCHEMA.[COLUMNS]  WHERE TABLE_NAME = 'SYSAudit'   AND COLUMN_NAME = 'Stamp'
--> 
SELECT * FROM INFORMATION_SCHEMA.[COLUMNS]  WHERE TABLE_NAME = 'sysaudit'   AND COLUMN_NAME = 'userfld'
--> of COLUMN_NAME, DATA_TYPE, CHARACTER_MAXIMUM_LENGTH, IS_NULLABLE, COLUMN_DEFAULT: UserFld|nvarchar|5|NO|('N')
SELECT * FROM INFORMATION_SCHEMA.[COLUMNS]  WHERE TABLE_NAME = 'SYSAudit'   AND COLUMN_NAME = 'LogData'
--> of DATA_TYPE, CHARACTER_MAXIMUM_LENGTH, IS_NULLABLE, COLUMN_DEFAULT: nvarchar|-1|YES|NULL
SELECT * FROM INFORMATION_SCHEMA.[COLUMNS]  WHERE TABLE_NAME = 'SYSAudit'   AND COLUMN_NAME = 'RetryCnt'
--> of DATA_TYPE, CHARACTER_MAXIMUM_LENGTH, IS_NULLABLE, COLUMN_DEFAULT: int|NULL|NO|((0))
SELECT T1.Name AS [TableName], T2.name AS [ColumnName], object_name(T0.constid) AS [Constraint]
  FROM sysconstraints T0
  JOIN sysobjects T1
    ON T1.id = T0.id
  JOIN syscolumns T2
    ON T2.id = T0.id
   AND T2.colid = T0.colid
  JOIN syscomments T3
    ON T3.id = T0.constid
  WHERE T0.status & 5 = 5
    AND T1.name = 'SYSAudit'
    AND	T1.xtype = 'U'
    AND T2.name = 'UserFld'
--> of TableName, ColumnName: SYSAudit|UserFld
-- Indexes
CREATE NONCLUSTERED INDEX [SYSAudit_idx01] ON [dbo].[SYSAudit]  ([CO], [LineNo]) INCLUDE ([Description1])  WITH (  PAD_INDEX = OFF,  DROP_EXISTING = OFF,  STATISTICS_NORECOMPUTE = OFF,  SORT_IN_TEMPDB = OFF,  ONLINE = OFF,  ALLOW_ROW_LOCKS = ON,  ALLOW_PAGE_LOCKS = ON)  ON [PRIMARY]  ;
--> (-1)
SELECT * FROM SysIndexes  WHERE LTRIM(NAME) = 'sysaudit_idx01'
--> of name: SYSAudit_idx01
SELECT * FROM SysIndexes  WHERE LTRIM(NAME) = 'Nowhere_idx01'
--> 
SELECT ix.name as [IndexName], COL_NAME(ix.object_id, ixc.column_id) as [Column Name]
  FROM sys.indexes ix
 INNER JOIN sys.index_columns ixc
    ON  ix.object_id = ixc.object_id
   AND ix.index_id = ixc.index_id
 INNER JOIN sys.tables tab
    ON ix.object_id = tab.object_id
 WHERE ix.is_primary_key = 0
   AND ix.is_unique = 0
   AND ix.is_unique_constraint = 0
   AND tab.is_ms_shipped = 0
   AND tab.name = 'SYSAudit'
   AND COL_NAME(ix.object_id, ixc.column_id) = 'Description1'
 ORDER BY ix.name, tab.name
--> SYSAudit_idx01|Description1
DROP INDEX [ SYSAudit_idx01] ON [dbo].[SYSAudit]  ;
--> error 3701
DROP INDEX [SYSAudit_idx01] ON [dbo].[SYSAudit]  ;
--> (-1)
-- The stock procedure
IF  EXISTS ( SELECT * FROM sys.objects   WHERE object_id = OBJECT_ID(N'[dbo].[stkproc_STK_GetStockData]')    AND type in (N'P', N'PC')) DROP PROCEDURE [dbo].[stkproc_STK_GetStockData] ;
--> 
 CREATE PROCEDURE dbo.stkproc_STK_GetStockData
     @CO NVARCHAR(10),
     @Branch NVARCHAR(10),
     @PriceCode NVARCHAR(10),
     @CostMethod NVARCHAR(1),
     @Start NVARCHAR(100) = NULL,
     @StockCode NVARCHAR(50) = NULL,
     @PropCode NVARCHAR(50) = NULL,
     @EmptiesTill BIT = 0,
     @ReturnsVoucher BIT = 0,
     @RetnRows INT = 1000,
     @SearchField NVARCHAR(50) = NULL,
     @SearchText NVARCHAR(100) = NULL
 AS
 BEGIN
        SET NOCOUNT ON;

    DECLARE @PageSize INT = CASE
       WHEN @SearchField IS NULL AND @SearchText IS NULL AND @Start IS NULL
       THEN @RetnRows
       ELSE 2147483647
        END;

     SELECT T0.RecID, T0.StockCode, T0.LinkCode, T0.StockType, T0.Description1, T0.Barcode, T0.PackSize,
            T0.CostDecimal, T0.SellDecimal,
            CASE WHEN @CostMethod = 'L' THEN T0.LastCostExcl ELSE T0.AvgCostExcl END AS [CostExcl],
            CASE WHEN @CostMethod = 'L' THEN T0.LastCostIncl ELSE T0.AvgCostIncl END AS [CostIncl],
            T1.Excl, T1.Incl
       FROM STKMaster T0 WITH (NOLOCK)
      INNER JOIN STKPrice T1 WITH (NOLOCK)
         ON T1.CO = T0.CO
        AND T1.Branch = T0.Branch
        AND T1.StockCode = T0.StockCode
        AND T1.LinkCode = T0.LinkCode
        AND T1.PriceCode = @PriceCode
      WHERE T0.CO = @CO
        AND T0.Branch = @Branch
        AND T0.StockType <> 'P'
        AND T0.Status <> 'X'
        AND T1.PriceCode = @PriceCode
        AND (@Start IS NULL OR T0.Description1 LIKE '%' + @Start + '%')
        AND (@SearchField IS NULL OR @SearchText IS NULL OR
            (@SearchField = 'StockCode' AND T0.StockCode LIKE '%' + @SearchText + '%') OR
            (@SearchField = 'Description1' AND T0.Description1 LIKE '%' + @SearchText + '%') OR
            (@SearchField = 'Barcode' AND T0.Barcode LIKE '%' + @SearchText + '%') OR
            (@SearchField = 'SuppCode' AND T0.SuppCode LIKE '%' + @SearchText + '%'))
        AND (@StockCode IS NULL OR (T0.StockCode LIKE '%' + @StockCode + '%' OR T0.Description1 LIKE '%' + @StockCode + '%'))
        AND (@EmptiesTill = 0 OR T0.StockType IN ('E', 'K'))
        AND (@ReturnsVoucher = 0 OR @PropCode IS NULL OR T0.Property10 = @PropCode)
      ORDER BY T0.Description1
     OFFSET 0 ROWS
      FETCH NEXT @PageSize ROWS ONLY
     OPTION (OPTIMIZE FOR UNKNOWN, RECOMPILE);
 END ;
--> (-1)
INSERT INTO STKMaster (CO, Branch, StockCode, LinkCode, Description1, StockType, Status, Barcode, SuppCode, LastCostExcl, AvgCostExcl) VALUES ('01', '100', 'DRILL', 'D1', 'Drill', 'S', '', '600', 'SU', '7', '6'), ('01', '100', 'CRATE', '', 'Crate', 'E', '', '601', '', '2', '1'), ('01', '100', 'OLD', '', 'Old', 'S', 'X', '', '', '0', '0')
--> (3)
INSERT INTO STKPrice (CO, Branch, StockCode, LinkCode, PriceCode, Excl, Incl) VALUES ('01', '100', 'DRILL', 'D1', 'P1', '10', '11.5'), ('01', '100', 'CRATE', '', 'P1', '3', '3.5'), ('01', '100', 'OLD', '', 'P1', '1', '1')
--> (3)
CREATE TABLE Found (RecID int, StockCode nvarchar(25), LinkCode nvarchar(25), StockType nvarchar(5), Description1 nvarchar(150), Barcode nvarchar(50), PackSize nvarchar(50), CostDecimal int, SellDecimal int, CostExcl float, CostIncl float, Excl float, Incl float)
--> (-1)
INSERT INTO Found EXEC stkproc_STK_GetStockData '01', '100', 'P1', 'L'
--> (2)
SELECT StockCode, CostExcl, Incl FROM Found ORDER BY StockCode DELETE FROM Found
--> CRATE|2|3.5;DRILL|7|11.5 (2)
INSERT INTO Found EXEC stkproc_STK_GetStockData '01', '100', 'P1', 'A', @EmptiesTill = 1
--> (1)
SELECT StockCode, CostExcl FROM Found DELETE FROM Found
--> CRATE|1 (1)
INSERT INTO Found EXEC stkproc_STK_GetStockData @CO = '01', @Branch = '100', @PriceCode = 'P1', @CostMethod = 'L', @RetnRows = 1
--> (1)
SELECT StockCode FROM Found DELETE FROM Found
--> CRATE (1)
INSERT INTO Found EXEC stkproc_STK_GetStockData '01', '100', 'P1', 'L', @RetnRows = 0, @SearchField = 'Barcode', @SearchText = '60'
--> (2)
IF  EXISTS ( SELECT * FROM sys.objects   WHERE object_id = OBJECT_ID(N'[dbo].[stkproc_STK_GetStockData]')    AND type in (N'P', N'PC')) DROP PROCEDURE [dbo].[stkproc_STK_GetStockData] ;
--> (-1)
EXEC stkproc_STK_GetStockData '01', '100', 'P1', 'L'
--> error 2812
DROP TABLE [SYSAudit] ;
--> (-1)
SELECT * FROM SYSAudit
--> error 208
-- Refusals
CREATE TABLE Twice (a int, b nvarchar(5), d datetime) INSERT INTO Twice (a) VALUES (1), (1)
--> (-1) (2)
CREATE UNIQUE INDEX Twice_u ON Twice (a)
--> error 1505
ALTER TABLE Twice ADD b int
--> error 2705
ALTER TABLE Nowhere ADD b int
--> error 4902
ALTER TABLE Twice DROP COLUMN nope
--> error 4924
SELECT a FROM Twice WHERE
--> error 102
SELECT COUNT(*) FROM Twice
--> 2
-- One NULL in a unique index
CREATE TABLE Once (a nvarchar(5), b int) CREATE UNIQUE INDEX Once_u ON Once (a, b) INSERT INTO Once VALUES (NULL, 1), (NULL, 2), ('x', NULL)
--> (-1) (-1) (3)
INSERT INTO Once VALUES ('X', NULL)
--> error 2601
UPDATE Once SET b = 1 WHERE b = 2
--> error 2601
INSERT INTO Once VALUES (NULL, NULL), ('y', NULL), ('y', 1)
--> (3)
ALTER TABLE Once ADD CONSTRAINT Once_k UNIQUE (b)
--> error 1505
DROP INDEX [Once_u] ON [dbo].[Once] INSERT INTO Once VALUES ('X', NULL)
--> (-1) (1)
CREATE UNIQUE INDEX Once_u ON Once (a, b)
--> error 1505
SELECT COUNT(*) FROM Once WHERE b IS NULL
--> 4
-- Names with their database
SELECT COUNT(*) FROM Shop.dbo.Once WHERE b IS NULL
--> 4
SELECT COUNT(*) FROM [Other].dbo.Once
--> error 208
-- A column and the default that holds it
CREATE TABLE Held (a int, b int CONSTRAINT Held_b DEFAULT 7 NOT NULL)
--> (-1)
ALTER TABLE [dbo].[Held]  DROP COLUMN [b]  ;
--> error 5074
ALTER TABLE dbo.Held DROP CONSTRAINT Held_b ;
--> (-1)
ALTER TABLE [dbo].[Held]  DROP COLUMN [b]  ;
--> (-1)
SELECT COLUMN_NAME FROM INFORMATION_SCHEMA.[COLUMNS]  WHERE TABLE_NAME = 'Held'
--> a
