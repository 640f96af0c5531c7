-- The suite database: users, rights, parameters, saved layouts, idle locks and messages.
-- Harmless to run again: what is there stays as it is.

-- User groups of a company.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'SYSUserGroup')
BEGIN
    CREATE TABLE [dbo].[SYSUserGroup] (
        [RecID]            int IDENTITY(1, 1) NOT NULL,
        [CO]               nvarchar(10) NULL,
        [UserGroup]        nvarchar(10) NULL,
        [GroupDesc]        nvarchar(50) NULL,
        [GroupType]        nvarchar(1) NULL,
        [AllowCash]        nvarchar(1) NULL,
        [AllowCheques]     nvarchar(1) NULL,
        [AllowCreditCards] nvarchar(1) NULL,
        [AllowVouchers]    nvarchar(1) NULL,
        [AllowTransfers]   nvarchar(1) NULL,
        [AllowWallets]     nvarchar(1) NULL,
        [AllowTenderType1] nvarchar(1) NULL,
        [AllowTenderType2] nvarchar(1) NULL,
        [AllowTenderType3] nvarchar(1) NULL,
        [AllowTenderType4] nvarchar(1) NULL,
        [TenderType1]      nvarchar(2) NULL,
        [TenderType2]      nvarchar(2) NULL,
        [TenderType3]      nvarchar(2) NULL,
        [TenderType4]      nvarchar(2) NULL,
        [TenderForm1]      nvarchar(2) NULL,
        [TenderForm2]      nvarchar(2) NULL,
        [TenderForm3]      nvarchar(2) NULL,
        [TenderForm4]      nvarchar(2) NULL,
        [LimitCash]        float NOT NULL DEFAULT 0,
        [LimitCheques]     float NOT NULL DEFAULT 0,
        [LimitCreditCards] float NOT NULL DEFAULT 0,
        [LimitVouchers]    float NOT NULL DEFAULT 0,
        [LimitTransfers]   float NOT NULL DEFAULT 0,
        [LimitWallets]     float NOT NULL DEFAULT 0,
        [LimitTenderType1] float NOT NULL DEFAULT 0,
        [LimitTenderType2] float NOT NULL DEFAULT 0,
        [LimitTenderType3] float NOT NULL DEFAULT 0,
        [LimitTenderType4] float NOT NULL DEFAULT 0,
        [AllowSaleGroup]   nvarchar(1) NULL,
        [BlockSaleGroup]   nvarchar(1) NULL,
        [AllowViewCost]    nvarchar(1) NULL,
        [AllowViewProfit]  nvarchar(1) NULL,
        [ProfitCalcCost]   nvarchar(1) NULL,
        [PswdExp]          nvarchar(1) NULL,
        [PswdExpDays]      int NOT NULL DEFAULT 0
    );
    ALTER TABLE [dbo].[SYSUserGroup] ADD CONSTRAINT [SYSUserGroup_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'SYSUserGroup_idx01')
    CREATE UNIQUE NONCLUSTERED INDEX [SYSUserGroup_idx01] ON [dbo].[SYSUserGroup] ([CO], [UserGroup]);
GO

-- The users. Passwords are plain upper-case text by the contract of the suite.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'SYSUser')
BEGIN
    CREATE TABLE [dbo].[SYSUser] (
        [RecID]            int IDENTITY(1, 1) NOT NULL,
        [UserCode]         nvarchar(10) NULL,
        [UserPswd]         nvarchar(50) NULL,
        [UserName]         nvarchar(50) NULL,
        [Status]           nvarchar(1) NULL,
        [DefCO]            nvarchar(5) NULL,
        [PswdDate]         nvarchar(10) NULL,
        [DefBranch]        nvarchar(10) NULL,
        [DefSalesrep]      nvarchar(10) NULL,
        [DefAccount]       nvarchar(10) NULL,
        [DefTillNo]        nvarchar(5) NULL,
        [InUse]            nvarchar(1) NULL,
        [UserID]           int NOT NULL DEFAULT 0,
        [UserSessionID]    nvarchar(50) NULL,
        [BioID]            int NOT NULL DEFAULT 0,
        [UserGroup]        nvarchar(5) NULL,
        [Supervisor]       nvarchar(1) NULL,
        [SuperCardNo]      nvarchar(20) NULL,
        [AllowViewCost]    nvarchar(1) NULL,
        [AllowViewProfit]  nvarchar(1) NULL,
        [ProfitCalcCost]   nvarchar(1) NULL,
        [AllowCash]        nvarchar(1) NULL,
        [AllowCheques]     nvarchar(1) NULL,
        [AllowCreditCards] nvarchar(1) NULL,
        [AllowVouchers]    nvarchar(1) NULL,
        [AllowTransfers]   nvarchar(1) NULL,
        [AllowWallets]     nvarchar(1) NULL,
        [AllowTenderType1] nvarchar(1) NULL,
        [AllowTenderType2] nvarchar(1) NULL,
        [AllowTenderType3] nvarchar(1) NULL,
        [AllowTenderType4] nvarchar(1) NULL,
        [AllowCCY]         nvarchar(1) NULL,
        [CCYCode1]         nvarchar(5) NULL,
        [CCYCode2]         nvarchar(5) NULL,
        [CCYCode3]         nvarchar(5) NULL,
        [CCYCode4]         nvarchar(5) NULL,
        [CCYCode5]         nvarchar(5) NULL,
        [TenderType1]      nvarchar(2) NULL,
        [TenderType2]      nvarchar(2) NULL,
        [TenderType3]      nvarchar(2) NULL,
        [TenderType4]      nvarchar(2) NULL,
        [TenderForm1]      nvarchar(2) NULL,
        [TenderForm2]      nvarchar(2) NULL,
        [TenderForm3]      nvarchar(2) NULL,
        [TenderForm4]      nvarchar(2) NULL,
        [Tender1CCY]       nvarchar(5) NULL,
        [Tender2CCY]       nvarchar(5) NULL,
        [Tender3CCY]       nvarchar(5) NULL,
        [Tender4CCY]       nvarchar(5) NULL,
        [LimitCash]        float NOT NULL DEFAULT 0,
        [LimitCheques]     float NOT NULL DEFAULT 0,
        [LimitCreditcards] float NOT NULL DEFAULT 0,
        [LimitVouchers]    float NOT NULL DEFAULT 0,
        [LimitTransfers]   float NOT NULL DEFAULT 0,
        [LimitWallets]     float NOT NULL DEFAULT 0,
        [LimitTenderType1] float NOT NULL DEFAULT 0,
        [LimitTenderType2] float NOT NULL DEFAULT 0,
        [LimitTenderType3] float NOT NULL DEFAULT 0,
        [LimitTenderType4] float NOT NULL DEFAULT 0,
        [DefWH]            nvarchar(5) NULL,
        [Yellowfin]        nvarchar(1) NULL,
        [DefaultPrinter]   nvarchar(50) NULL,
        [UseSession]       nvarchar(1) NULL,
        [EMail]            nvarchar(100) NULL,
        [CellNo]           nvarchar(20) NULL,
        [LastLogDate]      nvarchar(10) NULL,
        [LastLogTime]      nvarchar(8) NULL,
        [LastLogMacID]     nvarchar(20) NULL,
        [LastLogEXE]       nvarchar(20) NULL
    );
    ALTER TABLE [dbo].[SYSUser] ADD CONSTRAINT [SYSUser_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'SYSUser_idx01')
    CREATE UNIQUE NONCLUSTERED INDEX [SYSUser_idx01] ON [dbo].[SYSUser] ([UserCode]);
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'SYSUser_idx02')
    CREATE NONCLUSTERED INDEX [SYSUser_idx02] ON [dbo].[SYSUser] ([BioID]);
GO

-- The companies and branches open to a user.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'SYSUserComp')
BEGIN
    CREATE TABLE [dbo].[SYSUserComp] (
        [RecID]    int IDENTITY(1, 1) NOT NULL,
        [UserCode] nvarchar(10) NULL,
        [CO]       nvarchar(10) NULL,
        [Branch]   nvarchar(10) NULL,
        [ModCode]  nvarchar(3) NULL
    );
    ALTER TABLE [dbo].[SYSUserComp] ADD CONSTRAINT [SYSUserComp_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'SYSUserComp_idx01')
    CREATE NONCLUSTERED INDEX [SYSUserComp_idx01] ON [dbo].[SYSUserComp] ([UserCode], [CO], [Branch]);
GO

-- Rights of a user group.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'SYSGrpAccess')
BEGIN
    CREATE TABLE [dbo].[SYSGrpAccess] (
        [RecID]      int IDENTITY(1, 1) NOT NULL,
        [CO]         nvarchar(10) NULL,
        [UserGroup]  nvarchar(10) NULL,
        [ModCode]    nvarchar(3) NULL,
        [AccessNo]   int NOT NULL DEFAULT 0,
        [AccessName] nvarchar(200) NULL,
        [Options]    nvarchar(1) NULL
    );
    ALTER TABLE [dbo].[SYSGrpAccess] ADD CONSTRAINT [SYSGrpAccess_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'SYSGrpAccess_idx01')
    CREATE NONCLUSTERED INDEX [SYSGrpAccess_idx01] ON [dbo].[SYSGrpAccess] ([CO], [UserGroup], [ModCode], [AccessNo]);
GO

-- Rights of a user in a branch; they stand above those of the group.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'SYSUserAccess')
BEGIN
    CREATE TABLE [dbo].[SYSUserAccess] (
        [RecID]      int IDENTITY(1, 1) NOT NULL,
        [CO]         nvarchar(10) NULL,
        [Branch]     nvarchar(10) NULL,
        [UserCode]   nvarchar(10) NULL,
        [ModCode]    nvarchar(3) NULL,
        [AccessNo]   int NOT NULL DEFAULT 0,
        [AccessName] nvarchar(200) NULL,
        [Options]    nvarchar(1) NULL
    );
    ALTER TABLE [dbo].[SYSUserAccess] ADD CONSTRAINT [SYSUserAccess_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'SYSUserAccess_idx01')
    CREATE NONCLUSTERED INDEX [SYSUserAccess_idx01] ON [dbo].[SYSUserAccess] ([CO], [Branch], [UserCode], [ModCode], [AccessNo]);
GO

-- Parameter values that differ from their defaults, by company, branch and module.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'SYSParameter')
BEGIN
    CREATE TABLE [dbo].[SYSParameter] (
        [RecID]      int IDENTITY(1, 1) NOT NULL,
        [CO]         nvarchar(10) NULL,
        [Branch]     nvarchar(10) NULL,
        [ModCode]    nvarchar(3) NULL,
        [UserCode]   nvarchar(10) NULL,
        [ParamNo]    int NOT NULL DEFAULT 0,
        [ParamName]  nvarchar(100) NULL,
        [ParamValue] nvarchar(max) NULL,
        [ParamType]  nvarchar(1) NULL
    );
    ALTER TABLE [dbo].[SYSParameter] ADD CONSTRAINT [SYSParameter_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'SYSParameter_idx01')
    CREATE NONCLUSTERED INDEX [SYSParameter_idx01] ON [dbo].[SYSParameter] ([CO], [Branch], [ModCode], [ParamNo]);
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'SYSParameter_idx02')
    CREATE NONCLUSTERED INDEX [SYSParameter_idx02] ON [dbo].[SYSParameter] ([CO], [Branch], [UserCode], [ModCode], [ParamNo]);
GO

-- User parameters of a user group.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'SYSGrpParam')
BEGIN
    CREATE TABLE [dbo].[SYSGrpParam] (
        [RecID]      int IDENTITY(1, 1) NOT NULL,
        [CO]         nvarchar(10) NULL,
        [UserGroup]  nvarchar(10) NULL,
        [ModCode]    nvarchar(3) NULL,
        [ParamNo]    int NOT NULL DEFAULT 0,
        [ParamValue] nvarchar(max) NULL
    );
    ALTER TABLE [dbo].[SYSGrpParam] ADD CONSTRAINT [SYSGrpParam_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'SYSGrpParam_idx01')
    CREATE NONCLUSTERED INDEX [SYSGrpParam_idx01] ON [dbo].[SYSGrpParam] ([CO], [UserGroup], [ModCode], [ParamNo]);
GO

-- Parameter values of a user; kept for other programs of the suite.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'SYSUserParam')
BEGIN
    CREATE TABLE [dbo].[SYSUserParam] (
        [RecID]      int IDENTITY(1, 1) NOT NULL,
        [CO]         nvarchar(10) NULL,
        [Branch]     nvarchar(10) NULL,
        [UserCode]   nvarchar(10) NULL,
        [ModCode]    nvarchar(3) NULL,
        [ParamNo]    int NOT NULL DEFAULT 0,
        [ParamValue] nvarchar(max) NULL
    );
    ALTER TABLE [dbo].[SYSUserParam] ADD CONSTRAINT [SYSUserParam_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'SYSUserParam_idx01')
    CREATE NONCLUSTERED INDEX [SYSUserParam_idx01] ON [dbo].[SYSUserParam] ([CO], [Branch], [UserCode], [ModCode]);
GO

-- Levels of access to reports.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'SysRepAccessLevel')
BEGIN
    CREATE TABLE [dbo].[SysRepAccessLevel] (
        [RecID]       int IDENTITY(1, 1) NOT NULL,
        [AccessLevel] int NOT NULL DEFAULT 0,
        [Description] nvarchar(100) NULL
    );
    ALTER TABLE [dbo].[SysRepAccessLevel] ADD CONSTRAINT [SysRepAccessLevel_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'SysRepAccessLevel_idx01')
    CREATE UNIQUE NONCLUSTERED INDEX [SysRepAccessLevel_idx01] ON [dbo].[SysRepAccessLevel] ([AccessLevel]);
GO

-- Report levels of a user group.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'SYSGrpRepAccess')
BEGIN
    CREATE TABLE [dbo].[SYSGrpRepAccess] (
        [RecID]       int IDENTITY(1, 1) NOT NULL,
        [UserGroup]   nvarchar(10) NOT NULL,
        [AccessLevel] int NOT NULL DEFAULT 0
    );
    ALTER TABLE [dbo].[SYSGrpRepAccess] ADD CONSTRAINT [SYSGrpRepAccess_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'SYSGrpRepAccess_idx01')
    CREATE NONCLUSTERED INDEX [SYSGrpRepAccess_idx01] ON [dbo].[SYSGrpRepAccess] ([UserGroup], [AccessLevel]);
GO

-- Report levels given to a user (AllowAccess 1) or taken away (0).
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'SYSUserRepAccess')
BEGIN
    CREATE TABLE [dbo].[SYSUserRepAccess] (
        [RecID]       int IDENTITY(1, 1) NOT NULL,
        [CO]          nvarchar(10) NOT NULL,
        [Branch]      nvarchar(10) NOT NULL,
        [UserCode]    nvarchar(10) NOT NULL,
        [AccessLevel] int NOT NULL DEFAULT 0,
        [AllowAccess] int NOT NULL DEFAULT 0
    );
    ALTER TABLE [dbo].[SYSUserRepAccess] ADD CONSTRAINT [SYSUserRepAccess_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'SYSUserRepAccess_idx01')
    CREATE NONCLUSTERED INDEX [SYSUserRepAccess_idx01] ON [dbo].[SYSUserRepAccess] ([CO], [Branch], [UserCode], [AccessLevel]);
GO

-- Fingerprint templates by user code.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'SYSUserBiometrics')
BEGIN
    CREATE TABLE [dbo].[SYSUserBiometrics] (
        [RecID]         int IDENTITY(1, 1) NOT NULL,
        [UserCode]      nvarchar(10) NULL,
        [FPDescription] nvarchar(20) NULL,
        [FPMask]        int NOT NULL DEFAULT 0,
        [FPData]        sql_variant NULL
    );
    ALTER TABLE [dbo].[SYSUserBiometrics] ADD CONSTRAINT [SYSUserBiometrics_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'SYSUserBiometrics_idx01')
    CREATE NONCLUSTERED INDEX [SYSUserBiometrics_idx01] ON [dbo].[SYSUserBiometrics] ([UserCode]);
GO

-- Fingerprint templates by the identity that SYSUser.BioID points to.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'SYSBiometricDetl')
BEGIN
    CREATE TABLE [dbo].[SYSBiometricDetl] (
        [RecID]         int IDENTITY(1, 1) NOT NULL,
        [BioID]         int NOT NULL DEFAULT 0,
        [FPMask]        int NOT NULL DEFAULT 0,
        [FPDescription] nvarchar(20) NULL,
        [FPData]        varbinary(max) NULL
    );
    ALTER TABLE [dbo].[SYSBiometricDetl] ADD CONSTRAINT [SYSBiometricDetl_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'SYSBiometricDetl_idx01')
    CREATE NONCLUSTERED INDEX [SYSBiometricDetl_idx01] ON [dbo].[SYSBiometricDetl] ([BioID], [FPMask]);
GO

-- Saved grid layouts.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'SYSSaveGrids')
BEGIN
    CREATE TABLE [dbo].[SYSSaveGrids] (
        [RecID]        int IDENTITY(1, 1) NOT NULL,
        [CO]           nvarchar(10) NOT NULL,
        [UserCode]     nvarchar(10) NOT NULL,
        [ScreenID]     nvarchar(20) NOT NULL,
        [GridSettings] ntext NOT NULL
    );
    ALTER TABLE [dbo].[SYSSaveGrids] ADD CONSTRAINT [SYSSaveGrids_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'SYSSaveGrids_idx01')
    CREATE UNIQUE NONCLUSTERED INDEX [SYSSaveGrids_idx01] ON [dbo].[SYSSaveGrids] ([CO], [UserCode], [ScreenID]);
GO

-- Minutes without a key until a program closes itself.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'SYSLockAppTimers')
BEGIN
    CREATE TABLE [dbo].[SYSLockAppTimers] (
        [RecID]    int IDENTITY(1, 1) NOT NULL,
        [CO]       nvarchar(10) NOT NULL,
        [Branch]   nvarchar(10) NOT NULL,
        [PgmName]  nvarchar(50) NOT NULL,
        [LockTime] int NOT NULL DEFAULT 0
    );
    ALTER TABLE [dbo].[SYSLockAppTimers] ADD CONSTRAINT [SYSLockAppTimers_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'SYSLockAppTimers_idx01')
    CREATE UNIQUE NONCLUSTERED INDEX [SYSLockAppTimers_idx01] ON [dbo].[SYSLockAppTimers] ([CO], [Branch], [PgmName]);
GO

-- The same for one user group; 999 switches the lock off.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'SYSGrpLockAppTimers')
BEGIN
    CREATE TABLE [dbo].[SYSGrpLockAppTimers] (
        [RecID]     int IDENTITY(1, 1) NOT NULL,
        [CO]        nvarchar(10) NOT NULL,
        [Branch]    nvarchar(10) NOT NULL,
        [UserGroup] nvarchar(10) NOT NULL,
        [PgmName]   nvarchar(50) NOT NULL,
        [LockTime]  int NOT NULL DEFAULT 0
    );
    ALTER TABLE [dbo].[SYSGrpLockAppTimers] ADD CONSTRAINT [SYSGrpLockAppTimers_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'SYSGrpLockAppTimers_idx01')
    CREATE UNIQUE NONCLUSTERED INDEX [SYSGrpLockAppTimers_idx01] ON [dbo].[SYSGrpLockAppTimers] ([CO], [Branch], [UserGroup], [PgmName]);
GO

-- Message templates by transaction type. MsgType: U users, C customer, O and N one-time pins.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'SysTxanSMS')
BEGIN
    CREATE TABLE [dbo].[SysTxanSMS] (
        [RecID]      int IDENTITY(1, 1) NOT NULL,
        [CO]         nvarchar(10) NOT NULL,
        [Branch]     nvarchar(10) NOT NULL,
        [TxTp]       nvarchar(6) NOT NULL,
        [MsgType]    nvarchar(1) NOT NULL,
        [TxtHeader]  nvarchar(1024) NULL,
        [TxtTrailer] nvarchar(1024) NULL
    );
    ALTER TABLE [dbo].[SysTxanSMS] ADD CONSTRAINT [SysTxanSMS_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'SysTxanSMS_idx01')
    CREATE NONCLUSTERED INDEX [SysTxanSMS_idx01] ON [dbo].[SysTxanSMS] ([CO], [Branch], [TxTp], [MsgType]);
GO

-- Who is sent which message.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'SYSUserSMS')
BEGIN
    CREATE TABLE [dbo].[SYSUserSMS] (
        [RecID]      int IDENTITY(1, 1) NOT NULL,
        [CO]         nvarchar(10) NULL,
        [Branch]     nvarchar(10) NULL,
        [UserCode]   nvarchar(10) NULL,
        [TxTp]       nvarchar(6) NULL,
        [SMS]        nvarchar(1) NULL,
        [EMail]      nvarchar(1) NULL,
        [TxtHeader]  nvarchar(1024) NULL,
        [TxtTrailer] nvarchar(1024) NULL,
        [MsgType]    nvarchar(1) NULL
    );
    ALTER TABLE [dbo].[SYSUserSMS] ADD CONSTRAINT [SYSUserSMS_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'SYSUserSMS_idx01')
    CREATE NONCLUSTERED INDEX [SYSUserSMS_idx01] ON [dbo].[SYSUserSMS] ([CO], [Branch], [TxTp], [UserCode]);
GO

-- One-time pins asked for. Status 0 is not yet answered.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'SysTxanOTP')
BEGIN
    CREATE TABLE [dbo].[SysTxanOTP] (
        [RecID]      int IDENTITY(1, 1) NOT NULL,
        [CO]         nvarchar(10) NOT NULL,
        [Branch]     nvarchar(10) NOT NULL,
        [TxTp]       nvarchar(6) NULL,
        [TxTpKey]    nvarchar(50) NULL,
        [Status]     nvarchar(1) NULL,
        [OTP]        int NOT NULL DEFAULT 0,
        [CellNo]     nvarchar(20) NULL,
        [ReqDate]    nvarchar(10) NULL,
        [ReqTime]    nvarchar(8) NULL,
        [ReqUser]    nvarchar(10) NULL,
        [ReqMacID]   nvarchar(20) NULL,
        [UpdDate]    nvarchar(10) NULL,
        [UpdTime]    nvarchar(8) NULL,
        [DocNo]      nvarchar(25) NULL,
        [SMSMessage] nvarchar(max) NULL
    );
    ALTER TABLE [dbo].[SysTxanOTP] ADD CONSTRAINT [SysTxanOTP_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'SysTxanOTP_idx01')
    CREATE NONCLUSTERED INDEX [SysTxanOTP_idx01] ON [dbo].[SysTxanOTP] ([CO], [Branch], [TxTp], [CellNo]);
GO
