-- For a real server only, in the suite database: document numbers. The embedded end brings the same
-- procedure along and does not need this script.
--
-- A number once given must never be given again, also when the transaction that asked for it is
-- rolled back: the number may stand on a slip already. A row in a table is rolled back with the
-- transaction, a SEQUENCE is not. So each series (company, branch, module, transaction type) is a
-- sequence of its own. It begins after SYSNumbers.Number of its key, at 1 without such a row, and is
-- not cached: no number is skipped when the server stops.
--
-- What would be rolled back is the making of a sequence. The series of the repair orders are
-- therefore made before anybody can ask for them: with the branch, by a trigger, and at the end of
-- this script for the branches that are there. Any other series is made when it is first asked for,
-- and that first call is refused inside a transaction.
-- Harmless to run again: sequences go on from where they are.
CREATE OR ALTER FUNCTION dbo.VELMARA_NUMBER_SEQUENCE (
    @CO NVARCHAR(10), @BRANCH NVARCHAR(10), @MODCODE NVARCHAR(3), @TXTP NVARCHAR(6))
RETURNS NVARCHAR(128)
AS
BEGIN
    -- A doubled bar inside a part keeps two different keys from making one name.
    RETURN CONCAT(N'VELMARA_NUMBER|', REPLACE(RTRIM(@CO), N'|', N'||'), N'|',
                  REPLACE(RTRIM(@BRANCH), N'|', N'||'), N'|',
                  REPLACE(RTRIM(@MODCODE), N'|', N'||'), N'|',
                  REPLACE(RTRIM(@TXTP), N'|', N'||'));
END
GO
CREATE OR ALTER PROCEDURE dbo.VELMARA_ADD_NUMBER_SERIES
    @CO NVARCHAR(10), @BRANCH NVARCHAR(10), @MODCODE NVARCHAR(3), @TXTP NVARCHAR(6)
WITH EXECUTE AS OWNER
AS
BEGIN
    SET NOCOUNT ON;
    DECLARE @Name NVARCHAR(128) = dbo.VELMARA_NUMBER_SEQUENCE(@CO, @BRANCH, @MODCODE, @TXTP);
    IF EXISTS (SELECT 1 FROM sys.sequences WHERE [name] = @Name) RETURN;

    DECLARE @First INT = 1 + COALESCE((SELECT MAX([Number]) FROM dbo.SYSNumbers
                                        WHERE [CO] = @CO AND [Branch] = @BRANCH
                                          AND [ModCode] = @MODCODE AND [TxTp] = @TXTP), 0);
    DECLARE @SQL NVARCHAR(MAX) = CONCAT(N'CREATE SEQUENCE dbo.', QUOTENAME(@Name), N' AS INT',
        N' START WITH ', @First, N' INCREMENT BY 1 MINVALUE 1 NO CYCLE NO CACHE;');
    BEGIN TRY
        EXEC sys.sp_executesql @SQL;
    END TRY
    BEGIN CATCH
        -- 2714: another seat made it between the look and the creation.
        IF ERROR_NUMBER() <> 2714 THROW;
    END CATCH
END
GO
CREATE OR ALTER PROCEDURE dbo.VELMARA_GENERATE_NUMBER
    @CO NVARCHAR(10), @BRANCH NVARCHAR(10), @MODCODE NVARCHAR(3), @TXTP NVARCHAR(6)
WITH EXECUTE AS OWNER
AS
BEGIN
    SET NOCOUNT ON;
    DECLARE @Name NVARCHAR(128) = dbo.VELMARA_NUMBER_SEQUENCE(@CO, @BRANCH, @MODCODE, @TXTP);
    IF NOT EXISTS (SELECT 1 FROM sys.sequences WHERE [name] = @Name)
    BEGIN
        IF @@TRANCOUNT > 0
        BEGIN
            DECLARE @Message NVARCHAR(2048) = CONCAT(
                N'The first number of a series cannot be taken inside a transaction. Make the series',
                N' first: EXEC VELMARA_ADD_NUMBER_SERIES ''', @CO, N''', ''', @BRANCH, N''', ''',
                @MODCODE, N''', ''', @TXTP, N'''.');
            THROW 50001, @Message, 1;
        END
        EXEC dbo.VELMARA_ADD_NUMBER_SERIES @CO, @BRANCH, @MODCODE, @TXTP;
    END
    DECLARE @SQL NVARCHAR(MAX) = CONCAT(N'SELECT @Number = NEXT VALUE FOR dbo.', QUOTENAME(@Name));
    DECLARE @Number INT;
    EXEC sys.sp_executesql @SQL, N'@Number INT OUTPUT', @Number = @Number OUTPUT;
    SELECT @Number AS [NUMBER];
END
GO
-- The series of the repair orders, for every branch that lacks them.
CREATE OR ALTER PROCEDURE dbo.VELMARA_ADD_REPAIR_SERIES
AS
BEGIN
    SET NOCOUNT ON;
    DECLARE @CO NVARCHAR(10), @Branch NVARCHAR(10);
    DECLARE Branches CURSOR LOCAL FAST_FORWARD FOR SELECT [CO], [Branch] FROM dbo.SYSBranch;
    OPEN Branches;
    FETCH NEXT FROM Branches INTO @CO, @Branch;
    WHILE @@FETCH_STATUS = 0
    BEGIN
        EXEC dbo.VELMARA_ADD_NUMBER_SERIES @CO, @Branch, N'CRO', N'CROMST';
        EXEC dbo.VELMARA_ADD_NUMBER_SERIES @CO, @Branch, N'CRO', N'CROPRC';
        EXEC dbo.VELMARA_ADD_NUMBER_SERIES @CO, @Branch, N'CRO', N'CROQOT';
        FETCH NEXT FROM Branches INTO @CO, @Branch;
    END
    CLOSE Branches;
    DEALLOCATE Branches;
END
GO
CREATE OR ALTER TRIGGER dbo.SYSBranch_NumberSeries ON dbo.SYSBranch AFTER INSERT
AS
    EXEC dbo.VELMARA_ADD_REPAIR_SERIES;
GO
EXEC dbo.VELMARA_ADD_REPAIR_SERIES;
GO
