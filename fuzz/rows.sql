-- What every input finds in the tables.
CREATE TABLE FuzzControl (CO nvarchar(10) NOT NULL, Code nvarchar(10) NOT NULL, Amount decimal(12, 2) NULL, Number int NULL, Done bit NULL, At datetime NULL, Picture varbinary(max) NULL, Text ntext NULL)
ALTER TABLE FuzzControl ADD CONSTRAINT FuzzControl_idx00 PRIMARY KEY (CO, Code)
CREATE TABLE FuzzCounted (RecID int IDENTITY(1, 1) NOT NULL, Name nvarchar(20) NOT NULL DEFAULT 'x', Share float NULL)
CREATE TABLE SYSSaveGrids (RecID int IDENTITY(1, 1) NOT NULL PRIMARY KEY, CO nvarchar(10) NULL, UserCode nvarchar(20) NULL, ScreenID nvarchar(50) NULL, GridSettings nvarchar(max) NULL)
CREATE TABLE STKMaster (CO nvarchar(10) NULL, Branch nvarchar(10) NULL, StockCode nvarchar(30) NULL, LinkCode nvarchar(30) NULL, Description1 nvarchar(50) NULL, Description2 nvarchar(50) NULL, QtyDecimal int NULL DEFAULT 0)
INSERT INTO FuzzControl VALUES ('01', 'A', 12.5, 7, 1, '2026/03/01 10:00', 0x8950, 'long'), ('01', 'b', -0.01, NULL, 0, NULL, NULL, NULL), ('02', 'Ç', 0, 2147483647, NULL, '1900/01/01', 0x, '')
INSERT INTO FuzzCounted (Name, Share) VALUES ('one', 0.5), ('two', 1e10), ('', NULL)
INSERT INTO CRORepMst ([CO], [Branch], [CRONo], [TranDate], [Account], [Name], [ReceiveItems], [Status]) VALUES ('01', '100', 'A1', '2026/03/01', 'ACC1', 'O''Neil', '2', '0'), ('01', '100', 'A2', '2026/03/02', 'ACC2', 'Ann', '0', '9')
INSERT INTO CRORepItems ([CO], [Branch], [CRONo], [ItemNo], [SerialNo]) VALUES ('01', '100', 'A1', '1', 'S1'), ('01', '100', 'A1', '9', 'S2')
INSERT INTO SYSSaveGrids ([CO], [UserCode], [ScreenID], [GridSettings]) VALUES ('01', 'ANN', 'G1', 'w=1')
INSERT INTO STKMaster (CO, Branch, StockCode, LinkCode, Description1, QtyDecimal) VALUES ('01', '100', 'DRILL', 'D1', 'Drill', 2)
GO
CREATE PROCEDURE FuzzAdd @CO nvarchar(10), @Code nvarchar(10) = 'new', @Sum int = 3 OUTPUT
AS
BEGIN
    IF EXISTS (SELECT * FROM FuzzControl WHERE CO = @CO AND Code = @Code)
        RAISERROR('%s is there', 16, 1, @Code)
    INSERT INTO FuzzControl (CO, Code, Number) VALUES (@CO, @Code, @Sum)
    SELECT @Sum = SUM(Number) FROM FuzzControl WHERE Number < 1000
    RETURN @Sum
END
GO
CREATE VIEW FuzzView AS SELECT C.CO, C.Code, M.Name FROM FuzzControl C LEFT JOIN CRORepMst M ON M.CO = C.CO
