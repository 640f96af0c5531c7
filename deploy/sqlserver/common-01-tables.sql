-- The common database of an installation: what all programs and all suite databases share.
-- Harmless to run again: what is there stays as it is.

-- The version of each program that the installation runs.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'vcVersions')
BEGIN
    CREATE TABLE [dbo].[vcVersions] (
        [RecID]       int IDENTITY(1, 1) NOT NULL,
        [Suite]       nvarchar(20) NOT NULL,
        [PgmName]     nvarchar(50) NOT NULL,
        [Description] nvarchar(100) NULL,
        [Version]     nvarchar(20) NULL,
        [LastUpd]     nvarchar(10) NULL,
        [LastPCName]  nvarchar(50) NULL
    );
    ALTER TABLE [dbo].[vcVersions] ADD CONSTRAINT [vcVersions_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'vcVersions_idx01')
    CREATE UNIQUE NONCLUSTERED INDEX [vcVersions_idx01] ON [dbo].[vcVersions] ([Suite], [PgmName]);
GO

-- Texts of numbered errors, with what a user can do about them.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'vcErrorMessages')
BEGIN
    CREATE TABLE [dbo].[vcErrorMessages] (
        [RecID]   int IDENTITY(1, 1) NOT NULL,
        [Suite]   nvarchar(20) NOT NULL,
        [ErrorNo] int NOT NULL DEFAULT 0,
        [Message] nvarchar(max) NULL,
        [Comment] nvarchar(max) NULL
    );
    ALTER TABLE [dbo].[vcErrorMessages] ADD CONSTRAINT [vcErrorMessages_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'vcErrorMessages_idx01')
    CREATE UNIQUE NONCLUSTERED INDEX [vcErrorMessages_idx01] ON [dbo].[vcErrorMessages] ([Suite], [ErrorNo]);
GO

-- The suite databases that can be chosen at log-in, one row each company and branch to sign in to.
-- Img01 and Img02 replace the background of the log-in screen.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'vcSettings')
BEGIN
    CREATE TABLE [dbo].[vcSettings] (
        [RecID]       int IDENTITY(1, 1) NOT NULL,
        [Suite]       nvarchar(20) NOT NULL,
        [SvrCatCode]  nvarchar(10) NULL,
        [DisplaySeq]  int NOT NULL DEFAULT 0,
        [DisplayName] nvarchar(50) NOT NULL,
        [DefCO]       nvarchar(10) NULL,
        [DefBranch]   nvarchar(10) NULL,
        [DefHQBranch] nvarchar(10) NULL,
        [DBConnector] nvarchar(100) NULL,
        [DBHost]      nvarchar(250) NULL,
        [DBDBase]     nvarchar(128) NULL,
        [DBUser]      nvarchar(128) NULL,
        [DBPswd]      nvarchar(128) NULL,
        [DBOnAzure]   nvarchar(1) NULL,
        [VReportPath] nvarchar(250) NULL,
        [Img01]       varbinary(max) NULL,
        [Img02]       varbinary(max) NULL
    );
    ALTER TABLE [dbo].[vcSettings] ADD CONSTRAINT [vcSettings_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'vcSettings_idx01')
    CREATE NONCLUSTERED INDEX [vcSettings_idx01] ON [dbo].[vcSettings] ([Suite], [SvrCatCode], [DisplaySeq]);
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'vcSettings_idx02')
    CREATE NONCLUSTERED INDEX [vcSettings_idx02] ON [dbo].[vcSettings] ([DisplayName]);
GO

-- Control settings of the installation by code.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'vcControl')
BEGIN
    CREATE TABLE [dbo].[vcControl] (
        [RecID]       int IDENTITY(1, 1) NOT NULL,
        [Suite]       nvarchar(20) NOT NULL,
        [Code]        nvarchar(20) NOT NULL,
        [Details]     nvarchar(max) NULL,
        [DBConnector] nvarchar(100) NULL,
        [DBUser]      nvarchar(128) NULL,
        [DBPswd]      nvarchar(128) NULL
    );
    ALTER TABLE [dbo].[vcControl] ADD CONSTRAINT [vcControl_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'vcControl_idx01')
    CREATE UNIQUE NONCLUSTERED INDEX [vcControl_idx01] ON [dbo].[vcControl] ([Suite], [Code]);
GO

-- The programs of the suite as the menus name them.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'vcMainMenu')
BEGIN
    CREATE TABLE [dbo].[vcMainMenu] (
        [RecID]       int IDENTITY(1, 1) NOT NULL,
        [Suite]       nvarchar(20) NOT NULL,
        [PgmName]     nvarchar(50) NOT NULL,
        [DisplayName] nvarchar(100) NULL,
        [DisplaySeq]  int NOT NULL DEFAULT 0
    );
    ALTER TABLE [dbo].[vcMainMenu] ADD CONSTRAINT [vcMainMenu_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'vcMainMenu_idx01')
    CREATE NONCLUSTERED INDEX [vcMainMenu_idx01] ON [dbo].[vcMainMenu] ([PgmName]);
GO

-- The parameters of the suite with their defaults. ParmType: B branch, C company, U user, M module.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'vcSysParmControl')
BEGIN
    CREATE TABLE [dbo].[vcSysParmControl] (
        [RecID]        int IDENTITY(1, 1) NOT NULL,
        [Suite]        nvarchar(20) NOT NULL,
        [ParmType]     nvarchar(1) NOT NULL,
        [ModCode]      nvarchar(3) NULL,
        [ParmNo]       int NOT NULL DEFAULT 0,
        [ParmName]     nvarchar(200) NULL,
        [DefaultValue] nvarchar(max) NULL
    );
    ALTER TABLE [dbo].[vcSysParmControl] ADD CONSTRAINT [vcSysParmControl_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'vcSysParmControl_idx01')
    CREATE NONCLUSTERED INDEX [vcSysParmControl_idx01] ON [dbo].[vcSysParmControl] ([Suite], [ParmType], [ModCode], [ParmNo]);
GO

-- The rights of the suite, by module and number.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'vcSysAccess')
BEGIN
    CREATE TABLE [dbo].[vcSysAccess] (
        [RecID]      int IDENTITY(1, 1) NOT NULL,
        [Suite]      nvarchar(20) NOT NULL,
        [ModCode]    nvarchar(3) NOT NULL,
        [AccessNo]   int NOT NULL DEFAULT 0,
        [AccessName] nvarchar(200) NULL
    );
    ALTER TABLE [dbo].[vcSysAccess] ADD CONSTRAINT [vcSysAccess_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'vcSysAccess_idx01')
    CREATE NONCLUSTERED INDEX [vcSysAccess_idx01] ON [dbo].[vcSysAccess] ([Suite], [ModCode], [AccessNo]);
GO

-- Technical reference: one row each screen.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'vcHelpHdr')
BEGIN
    CREATE TABLE [dbo].[vcHelpHdr] (
        [RecID]       int IDENTITY(1, 1) NOT NULL,
        [FormCode]    nvarchar(20) NOT NULL,
        [Description] nvarchar(200) NULL,
        [Notes]       nvarchar(max) NULL
    );
    ALTER TABLE [dbo].[vcHelpHdr] ADD CONSTRAINT [vcHelpHdr_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'vcHelpHdr_idx01')
    CREATE UNIQUE NONCLUSTERED INDEX [vcHelpHdr_idx01] ON [dbo].[vcHelpHdr] ([FormCode]);
GO

-- Technical reference: what governs a screen. Type: A access code, P parameter, S shortcut.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'vcHelpDetl')
BEGIN
    CREATE TABLE [dbo].[vcHelpDetl] (
        [RecID]        int IDENTITY(1, 1) NOT NULL,
        [FormCode]     nvarchar(20) NOT NULL,
        [Type]         nvarchar(1) NOT NULL,
        [ParamModCode] nvarchar(6) NULL,
        [Num]          int NOT NULL DEFAULT 0,
        [Shortcut]     nvarchar(30) NULL,
        [Notes]        nvarchar(250) NULL
    );
    ALTER TABLE [dbo].[vcHelpDetl] ADD CONSTRAINT [vcHelpDetl_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'vcHelpDetl_idx01')
    CREATE NONCLUSTERED INDEX [vcHelpDetl_idx01] ON [dbo].[vcHelpDetl] ([FormCode], [Type], [ParamModCode]);
GO
