-- The suite database: companies, branches, periods, tax, code lists and day end.
-- Harmless to run again: what is there stays as it is.

-- The companies.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'SYSCompany')
BEGIN
    CREATE TABLE [dbo].[SYSCompany] (
        [RecID]          int IDENTITY(1, 1) NOT NULL,
        [CO]             nvarchar(10) NULL,
        [COName]         nvarchar(50) NULL,
        [COBusAddress1]  nvarchar(40) NULL,
        [COBusAddress2]  nvarchar(40) NULL,
        [COBusAddress3]  nvarchar(40) NULL,
        [COBusAddress4]  nvarchar(40) NULL,
        [COPostAddress1] nvarchar(40) NULL,
        [COPostAddress2] nvarchar(40) NULL,
        [COPostAddress3] nvarchar(40) NULL,
        [COPostAddress4] nvarchar(40) NULL,
        [COPhone]        nvarchar(40) NULL,
        [COFax]          nvarchar(40) NULL,
        [COEmail]        nvarchar(100) NULL,
        [CORegNo]        nvarchar(20) NULL,
        [COVATNo]        nvarchar(20) NULL,
        [COGroup]        nvarchar(10) NULL,
        [COWebSite]      nvarchar(100) NULL,
        [COBankName]     nvarchar(50) NULL,
        [COBranchName]   nvarchar(50) NULL,
        [COBranchCode]   nvarchar(20) NULL,
        [COAccNo]        nvarchar(20) NULL,
        [COAccName]      nvarchar(50) NULL,
        [ShortName]      nvarchar(30) NULL
    );
    ALTER TABLE [dbo].[SYSCompany] ADD CONSTRAINT [SYSCompany_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'SYSCompany_idx01')
    CREATE UNIQUE NONCLUSTERED INDEX [SYSCompany_idx01] ON [dbo].[SYSCompany] ([CO]);
GO

-- The branches of a company. BRStatusBarColor is a colour name or number.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'SYSBranch')
BEGIN
    CREATE TABLE [dbo].[SYSBranch] (
        [RecID]            int IDENTITY(1, 1) NOT NULL,
        [CO]               nvarchar(10) NULL,
        [Branch]           nvarchar(10) NULL,
        [BRName]           nvarchar(50) NULL,
        [ShortName]        nvarchar(30) NULL,
        [BRBusAddress1]    nvarchar(40) NULL,
        [BRBusAddress2]    nvarchar(40) NULL,
        [BRBusAddress3]    nvarchar(40) NULL,
        [BRBusAddress4]    nvarchar(40) NULL,
        [BRPostAddress1]   nvarchar(40) NULL,
        [BRPostAddress2]   nvarchar(40) NULL,
        [BRPostAddress3]   nvarchar(40) NULL,
        [BRPostAddress4]   nvarchar(40) NULL,
        [BRTel]            nvarchar(40) NULL,
        [BRFax]            nvarchar(40) NULL,
        [BREmail]          nvarchar(100) NULL,
        [TradingBranch]    nvarchar(1) NULL,
        [BranchCategory]   nvarchar(1) NULL,
        [BranchType]       nvarchar(1) NULL,
        [Online]           nvarchar(1) NULL,
        [BRWebSite]        nvarchar(100) NULL,
        [Loyalty]          nvarchar(1) NULL,
        [BRBankName]       nvarchar(50) NULL,
        [BRBranchName]     nvarchar(50) NULL,
        [BRBranchCode]     nvarchar(20) NULL,
        [BRAccNo]          nvarchar(20) NULL,
        [BRAccName]        nvarchar(50) NULL,
        [BRRegNo]          nvarchar(20) NULL,
        [BRVATNo]          nvarchar(20) NULL,
        [BRStatusBarColor] nvarchar(30) NULL,
        [DisplaySeq]       int NOT NULL DEFAULT 0
    );
    ALTER TABLE [dbo].[SYSBranch] ADD CONSTRAINT [SYSBranch_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'SYSBranch_idx01')
    CREATE UNIQUE NONCLUSTERED INDEX [SYSBranch_idx01] ON [dbo].[SYSBranch] ([CO], [Branch]);
GO

-- Which branch keeps the shared masters of a branch, a column each ledger.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'SYSBRShare')
BEGIN
    CREATE TABLE [dbo].[SYSBRShare] (
        [RecID]  int IDENTITY(1, 1) NOT NULL,
        [CO]     nvarchar(10) NULL,
        [Branch] nvarchar(10) NULL,
        [SHSTK]  nvarchar(10) NULL,
        [SHCRD]  nvarchar(10) NULL,
        [SHDEB]  nvarchar(10) NULL,
        [SHGLG]  nvarchar(10) NULL,
        [SHPUR]  nvarchar(10) NULL,
        [SHVIP]  nvarchar(10) NULL
    );
    ALTER TABLE [dbo].[SYSBRShare] ADD CONSTRAINT [SYSBRShare_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'SYSBRShare_idx01')
    CREATE UNIQUE NONCLUSTERED INDEX [SYSBRShare_idx01] ON [dbo].[SYSBRShare] ([CO], [Branch]);
GO

-- Accounting periods of a company.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'SYSAP')
BEGIN
    CREATE TABLE [dbo].[SYSAP] (
        [RecID]      int IDENTITY(1, 1) NOT NULL,
        [CO]         nvarchar(10) NULL,
        [AP]         int NOT NULL DEFAULT 0,
        [FromDate]   nvarchar(10) NULL,
        [ToDate]     nvarchar(10) NULL,
        [YearEnd]    nvarchar(1) NULL,
        [YearEndRun] nvarchar(30) NULL,
        [APActive]   nvarchar(1) NULL,
        [APOpen]     nvarchar(1) NULL,
        [GLYear]     int NOT NULL DEFAULT 0
    );
    ALTER TABLE [dbo].[SYSAP] ADD CONSTRAINT [SYSAP_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'SYSAP_idx01')
    CREATE UNIQUE NONCLUSTERED INDEX [SYSAP_idx01] ON [dbo].[SYSAP] ([CO], [AP]);
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'SYSAP_idx02')
    CREATE NONCLUSTERED INDEX [SYSAP_idx02] ON [dbo].[SYSAP] ([CO], [FromDate], [AP]);
GO

-- Tax codes and rates by date. Usage: B both ways, I input, O output.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'SYSTax')
BEGIN
    CREATE TABLE [dbo].[SYSTax] (
        [RecID]       int IDENTITY(1, 1) NOT NULL,
        [SeqNo]       int NOT NULL DEFAULT 0,
        [TaxCode]     nvarchar(2) NULL,
        [TaxDesc]     nvarchar(50) NULL,
        [TaxRate]     float NOT NULL DEFAULT 0,
        [SARSTaxCode] nvarchar(20) NULL,
        [SARSTaxDesc] nvarchar(200) NULL,
        [FromDate]    nvarchar(10) NULL,
        [ToDate]      nvarchar(10) NULL,
        [SysLock]     nvarchar(1) NULL,
        [Usage]       nvarchar(1) NULL
    );
    ALTER TABLE [dbo].[SYSTax] ADD CONSTRAINT [SYSTax_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'SYSTax_idx01')
    CREATE NONCLUSTERED INDEX [SYSTax_idx01] ON [dbo].[SYSTax] ([SeqNo]);
GO

-- Transaction types by module.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'SYSTxTp')
BEGIN
    CREATE TABLE [dbo].[SYSTxTp] (
        [RecID]         int IDENTITY(1, 1) NOT NULL,
        [ModCode]       nvarchar(3) NULL,
        [TxTp]          nvarchar(6) NULL,
        [TxTpDesc]      nvarchar(50) NULL,
        [DrCr]          nvarchar(1) NULL,
        [ApplyTax]      nvarchar(1) NULL,
        [AllowDiscount] nvarchar(1) NULL,
        [AllowGL]       nvarchar(1) NULL,
        [TxTpType]      nvarchar(1) NULL,
        [DefSeqNo]      int NOT NULL DEFAULT 0
    );
    ALTER TABLE [dbo].[SYSTxTp] ADD CONSTRAINT [SYSTxTp_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'SYSTxTp_idx01')
    CREATE NONCLUSTERED INDEX [SYSTxTp_idx01] ON [dbo].[SYSTxTp] ([ModCode], [TxTp]);
GO

-- General code lists of a company.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'SYSCodeMaster')
BEGIN
    CREATE TABLE [dbo].[SYSCodeMaster] (
        [RecID]       int IDENTITY(1, 1) NOT NULL,
        [CO]          nvarchar(10) NULL,
        [CodeType]    nvarchar(6) NULL,
        [Code]        nvarchar(10) NULL,
        [Description] nvarchar(150) NULL,
        [GLAccNo]     int NOT NULL DEFAULT 0,
        [UserFld1]    nvarchar(50) NULL,
        [UserFld2]    nvarchar(50) NULL,
        [UserFld3]    nvarchar(50) NULL,
        [AllowVAT]    nvarchar(1) NULL,
        [TxTp]        nvarchar(6) NULL,
        [SystemField] nvarchar(1) NULL,
        [GLSubAccNo]  int NOT NULL DEFAULT 0
    );
    ALTER TABLE [dbo].[SYSCodeMaster] ADD CONSTRAINT [SYSCodeMaster_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'SYSCodeMaster_idx01')
    CREATE NONCLUSTERED INDEX [SYSCodeMaster_idx01] ON [dbo].[SYSCodeMaster] ([CO], [CodeType], [Code]);
GO

-- Currencies.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'SYSCurrencyMst')
BEGIN
    CREATE TABLE [dbo].[SYSCurrencyMst] (
        [RecID]      int IDENTITY(1, 1) NOT NULL,
        [CCYCode]    nvarchar(5) NULL,
        [CCYName]    nvarchar(50) NULL,
        [CCYFactor]  nvarchar(1) NULL,
        [CCYSymbol]  nvarchar(5) NULL,
        [CCYNumCode] int NOT NULL DEFAULT 0
    );
    ALTER TABLE [dbo].[SYSCurrencyMst] ADD CONSTRAINT [SYSCurrencyMst_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'SYSCurrencyMst_idx01')
    CREATE UNIQUE NONCLUSTERED INDEX [SYSCurrencyMst_idx01] ON [dbo].[SYSCurrencyMst] ([CCYCode]);
GO

-- Price codes of a company.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'SYSPrices')
BEGIN
    CREATE TABLE [dbo].[SYSPrices] (
        [RecID]       int IDENTITY(1, 1) NOT NULL,
        [CO]          nvarchar(10) NULL,
        [PriceCode]   nvarchar(5) NULL,
        [Description] nvarchar(50) NULL,
        [MUP]         float NOT NULL DEFAULT 0,
        [GP]          float NOT NULL DEFAULT 0,
        [PriceRule]   nvarchar(1) NULL,
        [Rounding]    nvarchar(1) NULL,
        [DefaultMUP]  float NOT NULL DEFAULT 0,
        [DefaultGP]   float NOT NULL DEFAULT 0,
        [AutoCreate]  nvarchar(1) NULL
    );
    ALTER TABLE [dbo].[SYSPrices] ADD CONSTRAINT [SYSPrices_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'SYSPrices_idx01')
    CREATE NONCLUSTERED INDEX [SYSPrices_idx01] ON [dbo].[SYSPrices] ([CO], [PriceCode]);
GO

-- Tender types of a company.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'SYSTender')
BEGIN
    CREATE TABLE [dbo].[SYSTender] (
        [RecID]         int IDENTITY(1, 1) NOT NULL,
        [CO]            nvarchar(10) NULL,
        [TenderType]    nvarchar(2) NULL,
        [TenderDesc]    nvarchar(30) NULL,
        [AllowSubTypes] nvarchar(1) NULL,
        [GLAcNo]        nvarchar(10) NULL,
        [CodeType]      nvarchar(1) NULL,
        [DisplaySeq]    int NOT NULL DEFAULT 0,
        [TenderForm]    nvarchar(2) NULL
    );
    ALTER TABLE [dbo].[SYSTender] ADD CONSTRAINT [SYSTender_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'SYSTender_idx01')
    CREATE NONCLUSTERED INDEX [SYSTender_idx01] ON [dbo].[SYSTender] ([CO], [TenderType]);
GO

-- Sales representatives.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'SYSSalesReps')
BEGIN
    CREATE TABLE [dbo].[SYSSalesReps] (
        [RecID]           int IDENTITY(1, 1) NOT NULL,
        [CO]              nvarchar(10) NULL,
        [Branch]          nvarchar(10) NULL,
        [RepCode]         nvarchar(10) NULL,
        [RepName]         nvarchar(40) NULL,
        [EarnComm]        nvarchar(1) NULL,
        [SalesCategory]   nvarchar(10) NULL,
        [CommissionType]  nvarchar(1) NULL,
        [CommPerWeight]   float NOT NULL DEFAULT 0,
        [BaseLimit]       float NOT NULL DEFAULT 0,
        [BaseGP]          float NOT NULL DEFAULT 0,
        [BelowTargetPerc] float NOT NULL DEFAULT 0,
        [TargetPerc]      float NOT NULL DEFAULT 0,
        [ExcludePromo]    nvarchar(1) NULL,
        [ExcludeProp10]   nvarchar(10) NULL,
        [Telephone]       nvarchar(20) NULL,
        [EMail]           nvarchar(250) NULL
    );
    ALTER TABLE [dbo].[SYSSalesReps] ADD CONSTRAINT [SYSSalesReps_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'SYSSalesReps_idx01')
    CREATE NONCLUSTERED INDEX [SYSSalesReps_idx01] ON [dbo].[SYSSalesReps] ([CO], [Branch], [RepCode]);
GO

-- Pictures of a company; IMGLOGO is the logo of the main form.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'SYSRepImages')
BEGIN
    CREATE TABLE [dbo].[SYSRepImages] (
        [RecID]     int IDENTITY(1, 1) NOT NULL,
        [CO]        nvarchar(10) NULL,
        [ImageCode] nvarchar(10) NULL,
        [ImageName] nvarchar(100) NULL,
        [ImageData] image NULL
    );
    ALTER TABLE [dbo].[SYSRepImages] ADD CONSTRAINT [SYSRepImages_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'SYSRepImages_idx01')
    CREATE UNIQUE NONCLUSTERED INDEX [SYSRepImages_idx01] ON [dbo].[SYSRepImages] ([CO], [ImageCode]);
GO

-- Texts that documents print, by module and code.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'SYSMessage')
BEGIN
    CREATE TABLE [dbo].[SYSMessage] (
        [RecID]   int IDENTITY(1, 1) NOT NULL,
        [CO]      nvarchar(10) NULL,
        [Branch]  nvarchar(10) NULL,
        [ModCode] nvarchar(3) NULL,
        [MsgCode] nvarchar(5) NULL,
        [MsgName] nvarchar(50) NULL,
        [MsgText] ntext NULL
    );
    ALTER TABLE [dbo].[SYSMessage] ADD CONSTRAINT [SYSMessage_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'SYSMessage_idx01')
    CREATE NONCLUSTERED INDEX [SYSMessage_idx01] ON [dbo].[SYSMessage] ([CO], [Branch], [ModCode], [MsgCode]);
GO

-- The number a series of documents has reached when VELMARA_GENERATE_NUMBER first meets it.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'SYSNumbers')
BEGIN
    CREATE TABLE [dbo].[SYSNumbers] (
        [RecID]     int IDENTITY(1, 1) NOT NULL,
        [CO]        nvarchar(10) NULL,
        [Branch]    nvarchar(10) NULL,
        [ModCode]   nvarchar(6) NULL,
        [TxTp]      nvarchar(12) NULL,
        [FieldCode] nvarchar(40) NULL,
        [Number]    int NOT NULL DEFAULT 0
    );
    ALTER TABLE [dbo].[SYSNumbers] ADD CONSTRAINT [SYSNumbers_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'SYSNumbers_idx01')
    CREATE NONCLUSTERED INDEX [SYSNumbers_idx01] ON [dbo].[SYSNumbers] ([CO], [Branch], [ModCode], [TxTp]);
GO

-- Warehouses of a branch.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'SYSWH')
BEGIN
    CREATE TABLE [dbo].[SYSWH] (
        [RecID]    int IDENTITY(1, 1) NOT NULL,
        [CO]       nvarchar(10) NOT NULL,
        [Branch]   nvarchar(10) NOT NULL,
        [WH]       nvarchar(10) NOT NULL,
        [WHName]   nvarchar(50) NULL,
        [WHStatus] nvarchar(1) NULL
    );
    ALTER TABLE [dbo].[SYSWH] ADD CONSTRAINT [SYSWH_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'SYSWH_idx01')
    CREATE UNIQUE NONCLUSTERED INDEX [SYSWH_idx01] ON [dbo].[SYSWH] ([CO], [Branch], [WH]);
GO

-- One row: the version of this database.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'SYSDBConfig')
BEGIN
    CREATE TABLE [dbo].[SYSDBConfig] (
        [RecID]       int IDENTITY(1, 1) NOT NULL,
        [DBVersion]   nvarchar(20) NULL,
        [LastUpgrade] nvarchar(10) NULL
    );
    ALTER TABLE [dbo].[SYSDBConfig] ADD CONSTRAINT [SYSDBConfig_idx00] PRIMARY KEY ([RecID]);
END
GO

-- End-of-day runs. The unique key lets the first workstation of a day start the run alone.
-- Status X is a request, 9 a finished run.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'SYSEODLog')
BEGIN
    CREATE TABLE [dbo].[SYSEODLog] (
        [RecID]     int IDENTITY(1, 1) NOT NULL,
        [CO]        nvarchar(10) NOT NULL,
        [Branch]    nvarchar(10) NOT NULL,
        [RunDate]   nvarchar(10) NOT NULL,
        [MonthEnd]  nvarchar(1) NULL,
        [StartDate] nvarchar(10) NULL,
        [StartTime] nvarchar(8) NULL,
        [EndDate]   nvarchar(10) NULL,
        [EndTime]   nvarchar(8) NULL,
        [DTODate]   nvarchar(10) NULL,
        [DTOTime]   nvarchar(8) NULL,
        [DTOUser]   nvarchar(10) NULL,
        [DTOMacID]  nvarchar(20) NULL,
        [Status]    nvarchar(1) NULL,
        [LogData]   nvarchar(max) NULL
    );
    ALTER TABLE [dbo].[SYSEODLog] ADD CONSTRAINT [SYSEODLog_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'SYSEODLog_idx01')
    CREATE UNIQUE NONCLUSTERED INDEX [SYSEODLog_idx01] ON [dbo].[SYSEODLog] ([CO], [Branch], [RunDate]);
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'SYSEODLog_idx02')
    CREATE NONCLUSTERED INDEX [SYSEODLog_idx02] ON [dbo].[SYSEODLog] ([CO], [Branch], [DTOMacID], [Status]);
GO
