-- The suite database: the twelve tables of the customer repair orders.
-- The program scopes every statement by company and branch and checks its logical keys itself; two
-- workstations may meet on one item number, so no index but the primary key is unique.
-- Harmless to run again: what is there stays as it is.

-- Repair order header. The order number is text and sorts as text.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'CRORepMst')
BEGIN
    CREATE TABLE [dbo].[CRORepMst] (
        [RecID]        int IDENTITY(1, 1) NOT NULL,
        [CO]           nvarchar(10) NOT NULL,
        [Branch]       nvarchar(10) NOT NULL,
        [CRONo]        nvarchar(100) NOT NULL,
        [TranDate]     nvarchar(20) NULL,
        [Account]      nvarchar(100) NULL,
        [Name]         nvarchar(100) NULL,
        [Address1]     nvarchar(100) NULL,
        [Address2]     nvarchar(100) NULL,
        [Address3]     nvarchar(100) NULL,
        [Address4]     nvarchar(100) NULL,
        [PostCode]     nvarchar(100) NULL,
        [Telephone1]   nvarchar(100) NULL,
        [Telephone2]   nvarchar(100) NULL,
        [Cellphone]    nvarchar(100) NULL,
        [Contact]      nvarchar(100) NULL,
        [EMail]        nvarchar(100) NULL,
        [Reference]    nvarchar(100) NULL,
        [ReceiveDate]  nvarchar(20) NULL,
        [ReceiveMthd]  nvarchar(20) NULL,
        [ReceiveItems] int NOT NULL DEFAULT 0,
        [Status]       nvarchar(10) NULL,
        [DTODate]      nvarchar(10) NULL,
        [DTOTime]      nvarchar(8) NULL,
        [DTOUser]      nvarchar(10) NULL,
        [DTOMacID]     nvarchar(20) NULL
    );
    ALTER TABLE [dbo].[CRORepMst] ADD CONSTRAINT [CRORepMst_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'CRORepMst_idx01')
    CREATE NONCLUSTERED INDEX [CRORepMst_idx01] ON [dbo].[CRORepMst] ([CO], [Branch], [CRONo]);
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'CRORepMst_idx02')
    CREATE NONCLUSTERED INDEX [CRORepMst_idx02] ON [dbo].[CRORepMst] ([CO], [Branch], [Account]);
GO

-- Order item. ItemNo counts from 1 within the order.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'CRORepItems')
BEGIN
    CREATE TABLE [dbo].[CRORepItems] (
        [RecID]      int IDENTITY(1, 1) NOT NULL,
        [CO]         nvarchar(10) NOT NULL,
        [Branch]     nvarchar(10) NOT NULL,
        [CRONo]      nvarchar(100) NOT NULL,
        [ItemNo]     nvarchar(10) NOT NULL,
        [ModelNo]    nvarchar(100) NULL,
        [SerialNo]   nvarchar(100) NULL,
        [InWarranty] nvarchar(1) NULL,
        [Notes]      nvarchar(100) NULL
    );
    ALTER TABLE [dbo].[CRORepItems] ADD CONSTRAINT [CRORepItems_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'CRORepItems_idx01')
    CREATE NONCLUSTERED INDEX [CRORepItems_idx01] ON [dbo].[CRORepItems] ([CO], [Branch], [CRONo], [ItemNo]);
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'CRORepItems_idx02')
    CREATE NONCLUSTERED INDEX [CRORepItems_idx02] ON [dbo].[CRORepItems] ([CO], [Branch], [SerialNo]);
GO

-- Intake checklist of an item: one row each ticked code.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'CRORepItmIntake')
BEGIN
    CREATE TABLE [dbo].[CRORepItmIntake] (
        [RecID]      int IDENTITY(1, 1) NOT NULL,
        [CO]         nvarchar(10) NOT NULL,
        [Branch]     nvarchar(10) NOT NULL,
        [CRONo]      nvarchar(100) NOT NULL,
        [ItemNo]     nvarchar(10) NOT NULL,
        [IntakeCode] nvarchar(10) NOT NULL,
        [Notes]      nvarchar(100) NULL
    );
    ALTER TABLE [dbo].[CRORepItmIntake] ADD CONSTRAINT [CRORepItmIntake_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'CRORepItmIntake_idx01')
    CREATE NONCLUSTERED INDEX [CRORepItmIntake_idx01] ON [dbo].[CRORepItmIntake] ([CO], [Branch], [CRONo], [ItemNo], [IntakeCode]);
GO

-- Faults of an item: one row each ticked code.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'CRORepItmFaults')
BEGIN
    CREATE TABLE [dbo].[CRORepItmFaults] (
        [RecID]     int IDENTITY(1, 1) NOT NULL,
        [CO]        nvarchar(10) NOT NULL,
        [Branch]    nvarchar(10) NOT NULL,
        [CRONo]     nvarchar(100) NOT NULL,
        [ItemNo]    nvarchar(10) NOT NULL,
        [FaultCode] nvarchar(10) NOT NULL,
        [Notes]     nvarchar(100) NULL
    );
    ALTER TABLE [dbo].[CRORepItmFaults] ADD CONSTRAINT [CRORepItmFaults_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'CRORepItmFaults_idx01')
    CREATE NONCLUSTERED INDEX [CRORepItmFaults_idx01] ON [dbo].[CRORepItmFaults] ([CO], [Branch], [CRONo], [ItemNo], [FaultCode]);
GO

-- Work steps on an item. TranDate, a blank and TranTime joined must cast to a datetime.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'CRORepItmProcess')
BEGIN
    CREATE TABLE [dbo].[CRORepItmProcess] (
        [RecID]       int IDENTITY(1, 1) NOT NULL,
        [CO]          nvarchar(10) NOT NULL,
        [Branch]      nvarchar(10) NOT NULL,
        [CRONo]       nvarchar(100) NOT NULL,
        [ItemNo]      nvarchar(10) NOT NULL,
        [TranDate]    nvarchar(10) NULL,
        [TranTime]    nvarchar(8) NULL,
        [TechCode]    nvarchar(10) NULL,
        [ProcessCode] nvarchar(10) NULL,
        [ProcessID]   int NOT NULL DEFAULT 0,
        [Notes]       nvarchar(100) NULL
    );
    ALTER TABLE [dbo].[CRORepItmProcess] ADD CONSTRAINT [CRORepItmProcess_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'CRORepItmProcess_idx01')
    CREATE NONCLUSTERED INDEX [CRORepItmProcess_idx01] ON [dbo].[CRORepItmProcess] ([CO], [Branch], [CRONo], [ItemNo]);
GO

-- Camera pictures of an item; ImageID counts from 1 without a gap.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'CRORepItmImages')
BEGIN
    CREATE TABLE [dbo].[CRORepItmImages] (
        [RecID]     int IDENTITY(1, 1) NOT NULL,
        [CO]        nvarchar(10) NOT NULL,
        [Branch]    nvarchar(10) NOT NULL,
        [CRONo]     nvarchar(100) NOT NULL,
        [ItemNo]    int NOT NULL DEFAULT 0,
        [ProcessID] int NOT NULL DEFAULT 0,
        [ImageID]   int NOT NULL DEFAULT 0,
        [ImageData] varbinary(max) NULL
    );
    ALTER TABLE [dbo].[CRORepItmImages] ADD CONSTRAINT [CRORepItmImages_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'CRORepItmImages_idx01')
    CREATE NONCLUSTERED INDEX [CRORepItmImages_idx01] ON [dbo].[CRORepItmImages] ([CO], [Branch], [CRONo], [ItemNo], [ImageID]);
GO

-- Quotation header of an item, inserted with it.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'CRORepItmQuoteHdr')
BEGIN
    CREATE TABLE [dbo].[CRORepItmQuoteHdr] (
        [RecID]           int IDENTITY(1, 1) NOT NULL,
        [CO]              nvarchar(10) NOT NULL,
        [Branch]          nvarchar(10) NOT NULL,
        [CRONo]           nvarchar(100) NOT NULL,
        [ItemNo]          nvarchar(10) NOT NULL,
        [TranDate]        nvarchar(20) NULL,
        [TechCode]        nvarchar(10) NULL,
        [Status]          nvarchar(10) NULL,
        [DepositRequired] float NOT NULL DEFAULT 0,
        [DepositPaid]     float NOT NULL DEFAULT 0,
        [OrderNo]         nvarchar(100) NULL,
        [Notes]           nvarchar(100) NULL
    );
    ALTER TABLE [dbo].[CRORepItmQuoteHdr] ADD CONSTRAINT [CRORepItmQuoteHdr_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'CRORepItmQuoteHdr_idx01')
    CREATE NONCLUSTERED INDEX [CRORepItmQuoteHdr_idx01] ON [dbo].[CRORepItmQuoteHdr] ([CO], [Branch], [CRONo], [ItemNo]);
GO

-- Quotation lines of an item.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'CRORepItmQuoteDet')
BEGIN
    CREATE TABLE [dbo].[CRORepItmQuoteDet] (
        [RecID]         int IDENTITY(1, 1) NOT NULL,
        [CO]            nvarchar(10) NOT NULL,
        [Branch]        nvarchar(10) NOT NULL,
        [CRONo]         nvarchar(100) NOT NULL,
        [ItemNo]        nvarchar(10) NOT NULL,
        [StockCode]     nvarchar(25) NULL,
        [LinkCode]      nvarchar(25) NULL,
        [Description1]  nvarchar(150) NULL,
        [Quantity]      float NOT NULL DEFAULT 0,
        [PriceExcl]     float NOT NULL DEFAULT 0,
        [PriceIncl]     float NOT NULL DEFAULT 0,
        [LineVAT]       float NOT NULL DEFAULT 0,
        [LineTotalExcl] float NOT NULL DEFAULT 0,
        [LineTotalIncl] float NOT NULL DEFAULT 0,
        [VATCode]       nvarchar(2) NULL,
        [VATRate]       float NOT NULL DEFAULT 0,
        [CostExcl]      float NOT NULL DEFAULT 0,
        [CostIncl]      float NOT NULL DEFAULT 0,
        [TotalCostExcl] float NOT NULL DEFAULT 0,
        [TotalCostIncl] float NOT NULL DEFAULT 0,
        [Profit]        float NOT NULL DEFAULT 0,
        [Notes]         nvarchar(100) NULL,
        [ItemCode]      nvarchar(60) NULL
    );
    ALTER TABLE [dbo].[CRORepItmQuoteDet] ADD CONSTRAINT [CRORepItmQuoteDet_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'CRORepItmQuoteDet_idx01')
    CREATE NONCLUSTERED INDEX [CRORepItmQuoteDet_idx01] ON [dbo].[CRORepItmQuoteDet] ([CO], [Branch], [CRONo], [ItemNo], [StockCode], [LinkCode]);
GO

-- What was done to an item, insert only.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'CRORepItmAudit')
BEGIN
    CREATE TABLE [dbo].[CRORepItmAudit] (
        [RecID]       int IDENTITY(1, 1) NOT NULL,
        [CO]          nvarchar(10) NOT NULL,
        [Branch]      nvarchar(10) NOT NULL,
        [CRONo]       nvarchar(100) NOT NULL,
        [ItemNo]      nvarchar(10) NOT NULL,
        [TranDate]    nvarchar(10) NULL,
        [TranTime]    nvarchar(8) NULL,
        [ProcessCode] nvarchar(10) NULL,
        [TechCode]    nvarchar(10) NULL,
        [Notes]       nvarchar(250) NULL
    );
    ALTER TABLE [dbo].[CRORepItmAudit] ADD CONSTRAINT [CRORepItmAudit_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'CRORepItmAudit_idx01')
    CREATE NONCLUSTERED INDEX [CRORepItmAudit_idx01] ON [dbo].[CRORepItmAudit] ([CO], [Branch], [CRONo], [ItemNo]);
GO

-- Workshop codes of a company. CodeType: F fault, I intake, S status.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'CROCodeMaster')
BEGIN
    CREATE TABLE [dbo].[CROCodeMaster] (
        [RecID]       int IDENTITY(1, 1) NOT NULL,
        [CO]          nvarchar(10) NOT NULL,
        [CodeType]    nvarchar(1) NOT NULL,
        [Code]        nvarchar(10) NOT NULL,
        [Description] nvarchar(100) NULL,
        [Notes]       nvarchar(100) NULL
    );
    ALTER TABLE [dbo].[CROCodeMaster] ADD CONSTRAINT [CROCodeMaster_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'CROCodeMaster_idx01')
    CREATE NONCLUSTERED INDEX [CROCodeMaster_idx01] ON [dbo].[CROCodeMaster] ([CO], [CodeType], [Code]);
GO

-- Technicians of a company.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'CROTechMst')
BEGIN
    CREATE TABLE [dbo].[CROTechMst] (
        [RecID]     int IDENTITY(1, 1) NOT NULL,
        [CO]        nvarchar(10) NOT NULL,
        [TechCode]  nvarchar(10) NOT NULL,
        [TechName]  nvarchar(100) NULL,
        [Cellphone] nvarchar(20) NULL
    );
    ALTER TABLE [dbo].[CROTechMst] ADD CONSTRAINT [CROTechMst_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'CROTechMst_idx01')
    CREATE NONCLUSTERED INDEX [CROTechMst_idx01] ON [dbo].[CROTechMst] ([CO], [TechCode]);
GO

-- Work steps of a company in their order.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'CROProcessMst')
BEGIN
    CREATE TABLE [dbo].[CROProcessMst] (
        [RecID]       int IDENTITY(1, 1) NOT NULL,
        [CO]          nvarchar(10) NOT NULL,
        [ProcessSeq]  int NOT NULL DEFAULT 0,
        [ProcessCode] nvarchar(10) NOT NULL,
        [Description] nvarchar(100) NULL
    );
    ALTER TABLE [dbo].[CROProcessMst] ADD CONSTRAINT [CROProcessMst_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'CROProcessMst_idx01')
    CREATE NONCLUSTERED INDEX [CROProcessMst_idx01] ON [dbo].[CROProcessMst] ([CO], [ProcessSeq], [ProcessCode]);
GO
