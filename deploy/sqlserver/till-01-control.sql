-- The till database of a workstation: the one table that has to stand before the program can bring
-- the rest of the till to its own version at log-in.
-- Harmless to run again: what is there stays as it is.

-- One row each workstation: the version its till has reached.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'SYSTillControl')
BEGIN
    CREATE TABLE [dbo].[SYSTillControl] (
        [RecID]       int IDENTITY(1, 1) NOT NULL,
        [PCName]      nvarchar(50) NULL,
        [MacID]       nvarchar(20) NULL,
        [Key]         nvarchar(200) NULL,
        [DBVersion]   nvarchar(20) NULL,
        [LastMaint]   nvarchar(10) NULL,
        [LastUpgrade] nvarchar(10) NULL
    );
    ALTER TABLE [dbo].[SYSTillControl] ADD CONSTRAINT [SYSTillControl_idx00] PRIMARY KEY ([RecID]);
END
GO
