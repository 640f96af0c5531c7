-- The suite database: debtors, loyalty members, employees, banks and tills.
-- Harmless to run again: what is there stays as it is.

-- Debtor (customer) accounts.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'DEBMaster')
BEGIN
    CREATE TABLE [dbo].[DEBMaster] (
        [RecID]                int IDENTITY(1, 1) NOT NULL,
        [CO]                   nvarchar(10) NULL,
        [Branch]               nvarchar(10) NULL,
        [Account]              nvarchar(10) NULL,
        [DebtorType]           nvarchar(1) NULL,
        [Name]                 nvarchar(50) NULL,
        [TradeName]            nvarchar(50) NULL,
        [LegalName]            nvarchar(50) NULL,
        [BusAddress1]          nvarchar(40) NULL,
        [BusAddress2]          nvarchar(40) NULL,
        [BusAddress3]          nvarchar(40) NULL,
        [BusAddress4]          nvarchar(40) NULL,
        [BusPostCode]          nvarchar(6) NULL,
        [PostAddress1]         nvarchar(40) NULL,
        [PostAddress2]         nvarchar(40) NULL,
        [PostAddress3]         nvarchar(40) NULL,
        [PostAddress4]         nvarchar(40) NULL,
        [PostCode]             nvarchar(6) NULL,
        [Telephone]            nvarchar(40) NULL,
        [Telephone2]           nvarchar(40) NULL,
        [CellPhone]            nvarchar(20) NULL,
        [Email]                nvarchar(70) NULL,
        [Fax]                  nvarchar(20) NULL,
        [IDNo]                 nvarchar(20) NULL,
        [Contact]              nvarchar(30) NULL,
        [AccountType]          nvarchar(2) NULL,
        [SaleType]             nvarchar(1) NULL,
        [VATIndicator]         nvarchar(1) NULL,
        [Interest]             nvarchar(1) NULL,
        [Status]               nvarchar(1) NULL,
        [ReasonCode]           nvarchar(20) NULL,
        [Reason]               nvarchar(250) NULL,
        [MainAccount]          nvarchar(10) NULL,
        [CreditLimit]          float NOT NULL DEFAULT 0,
        [LimitChk]             nvarchar(1) NULL,
        [TempCRLimit]          float NOT NULL DEFAULT 0,
        [TempCRLimitDate]      nvarchar(10) NULL,
        [TermCode]             nvarchar(1) NULL,
        [Area]                 nvarchar(50) NULL,
        [Region]               nvarchar(50) NULL,
        [Route]                nvarchar(50) NULL,
        [CityCode]             nvarchar(50) NULL,
        [TravelDistance]       float NOT NULL DEFAULT 0,
        [Salesrep]             nvarchar(10) NULL,
        [Category2]            nvarchar(10) NULL,
        [Balance]              float NOT NULL DEFAULT 0,
        [PriceCat]             nvarchar(5) NULL,
        [CostPlus]             float NOT NULL DEFAULT 0,
        [CostPlusF]            float NOT NULL DEFAULT 0,
        [CostPlusCode]         nvarchar(1) NULL,
        [AllowPromo]           nvarchar(1) NULL,
        [SellPlus]             float NOT NULL DEFAULT 0,
        [SellPlusPromo]        nvarchar(1) NULL,
        [SellMinus]            float NOT NULL DEFAULT 0,
        [SellMinusPromo]       nvarchar(1) NULL,
        [DeptPrice]            nvarchar(1) NULL,
        [LastPrice]            nvarchar(1) NULL,
        [AltCode]              nvarchar(1) NULL,
        [CgsLimit]             float NOT NULL DEFAULT 0,
        [CgsExpDT]             nvarchar(10) NULL,
        [CGSFile]              nvarchar(20) NULL,
        [CreateDate]           nvarchar(10) NULL,
        [CreateTime]           nvarchar(8) NULL,
        [CreateUser]           nvarchar(10) NULL,
        [CreateMacID]          nvarchar(20) NULL,
        [DTODate]              nvarchar(10) NULL,
        [DTOTime]              nvarchar(8) NULL,
        [DTOUser]              nvarchar(10) NULL,
        [DTOMacID]             nvarchar(20) NULL,
        [Notepad]              ntext NULL,
        [VATNumber]            nvarchar(20) NULL,
        [BPNumber]             nvarchar(20) NULL,
        [GroupType]            nvarchar(1) NULL,
        [PayMthd]              nvarchar(20) NULL,
        [Currency]             nvarchar(3) NULL,
        [Category]             nvarchar(10) NULL,
        [GroupCode]            nvarchar(10) NULL,
        [PartialOrders]        nvarchar(1) NULL,
        [BankName]             nvarchar(50) NULL,
        [BankBranchName]       nvarchar(50) NULL,
        [BankBranchCode]       nvarchar(20) NULL,
        [BankAccNo]            nvarchar(50) NULL,
        [BankAccName]          nvarchar(50) NULL,
        [CommsMthd]            nvarchar(1) NULL,
        [BankCheqLimit]        float NOT NULL DEFAULT 0,
        [Inhouse]              nvarchar(1) NULL,
        [VIP]                  nvarchar(1) NULL,
        [TermFromValue]        int NOT NULL DEFAULT 0,
        [TermFromType]         nvarchar(1) NULL,
        [TermFrom]             nvarchar(1) NULL,
        [TermDiscount]         float NOT NULL DEFAULT 0,
        [MonthEnd]             int NOT NULL DEFAULT 0,
        [StmtFreq]             nvarchar(1) NULL,
        [StmtFreqDOW]          int NOT NULL DEFAULT 0,
        [DefBranch]            nvarchar(5) NULL,
        [PDCs]                 float NOT NULL DEFAULT 0,
        [RentalIncl]           float NOT NULL DEFAULT 0,
        [Website]              nvarchar(1024) NULL,
        [DestCO]               nvarchar(5) NULL,
        [DestBranch]           nvarchar(5) NULL,
        [CRDAccount]           nvarchar(20) NULL,
        [InterComp]            nvarchar(1) NULL,
        [Version]              nvarchar(20) NULL,
        [Consolidate]          varchar(1) NULL,
        [ItemPrice]            nvarchar(1) NULL,
        [CRMCode]              nvarchar(10) NULL,
        [CRMAccNo]             nvarchar(20) NULL,
        [MailInd]              nvarchar(1) NULL,
        [SMSInd]               nvarchar(1) NULL,
        [Longitude]            nvarchar(20) NULL,
        [Latitude]             nvarchar(20) NULL,
        [Distribution]         nvarchar(1) NULL,
        [StokvelInd]           nvarchar(1) NULL,
        [StokvelPswd]          int NOT NULL DEFAULT 0,
        [ECommInd]             nvarchar(1) NULL,
        [ECommPswd]            nvarchar(10) NULL,
        [VendorNo]             nvarchar(30) NULL,
        [CGSLimGranted]        nvarchar(10) NULL,
        [CORegNo]              nvarchar(20) NULL,
        [LicenseNo]            nvarchar(20) NULL,
        [LicenseExpDate]       nvarchar(10) NULL,
        [LicenseExpAction]     nvarchar(1) NULL,
        [LicenseType]          nvarchar(10) NULL,
        [LicenseDescription]   nvarchar(255) NULL,
        [PreAuthInd]           nvarchar(1) NULL,
        [Grading]              nvarchar(1) NULL,
        [InterCompany]         nvarchar(1) NULL,
        [ICCompanyCode]        nvarchar(10) NULL,
        [ICBranchCode]         nvarchar(10) NULL,
        [ICCrdAccount]         nvarchar(10) NULL,
        [BlockReturns]         nvarchar(1) NULL,
        [CustOrderNo]          nvarchar(1) NULL,
        [DebDeal]              nvarchar(1) NULL,
        [HasEmptiesLoan]       nvarchar(1) NULL,
        [PickupAllowed]        nvarchar(1) NULL,
        [BEESInd]              nvarchar(1) NULL,
        [BEESAccountId]        nvarchar(50) NULL,
        [Channel]              nvarchar(50) NULL,
        [DeliveryScheduleId]   nvarchar(20) NULL,
        [Velmara_API_Client]   nvarchar(30) NULL,
        [Velmara_API_ShopCode] nvarchar(10) NULL,
        [Velmara_API_CO]       nvarchar(10) NULL,
        [Velmara_API_Branch]   nvarchar(10) NULL,
        [InterCO]              nvarchar(1) NOT NULL DEFAULT '',
        [ContraCRDAccount]     nvarchar(10) NOT NULL DEFAULT ''
    );
    ALTER TABLE [dbo].[DEBMaster] ADD CONSTRAINT [DEBMaster_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'DEBMaster_idx01')
    CREATE UNIQUE NONCLUSTERED INDEX [DEBMaster_idx01] ON [dbo].[DEBMaster] ([CO], [Branch], [Account]);
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'DEBMaster_idx02')
    CREATE NONCLUSTERED INDEX [DEBMaster_idx02] ON [dbo].[DEBMaster] ([CO], [Branch], [Name]);
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'DEBMaster_idx03')
    CREATE NONCLUSTERED INDEX [DEBMaster_idx03] ON [dbo].[DEBMaster] ([CO], [Branch], [CellPhone]);
GO

-- Aged balances of an account by accounting period.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'DEBBalance')
BEGIN
    CREATE TABLE [dbo].[DEBBalance] (
        [RecID]      int IDENTITY(1, 1) NOT NULL,
        [CO]         nvarchar(10) NULL,
        [Branch]     nvarchar(10) NULL,
        [DebtorType] nvarchar(1) NULL,
        [Account]    nvarchar(10) NULL,
        [AP]         int NOT NULL DEFAULT 0,
        [DCurr]      float NOT NULL DEFAULT 0,
        [D030]       float NOT NULL DEFAULT 0,
        [D060]       float NOT NULL DEFAULT 0,
        [D090]       float NOT NULL DEFAULT 0,
        [D120]       float NOT NULL DEFAULT 0,
        [D150]       float NOT NULL DEFAULT 0,
        [D180]       float NOT NULL DEFAULT 0,
        [Dover]      float NOT NULL DEFAULT 0,
        [PDC]        float NOT NULL DEFAULT 0,
        [DTODate]    nvarchar(10) NULL,
        [DTOTime]    nvarchar(8) NULL,
        [DTOUser]    nvarchar(10) NULL,
        [DTOMacID]   nvarchar(20) NULL
    );
    ALTER TABLE [dbo].[DEBBalance] ADD CONSTRAINT [DEBBalance_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'DEBBalance_idx01')
    CREATE NONCLUSTERED INDEX [DEBBalance_idx01] ON [dbo].[DEBBalance] ([CO], [Branch], [Account], [AP]);
GO

-- Contact persons of an account.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'DEBContacts')
BEGIN
    CREATE TABLE [dbo].[DEBContacts] (
        [RecID]        int IDENTITY(1, 1) NOT NULL,
        [CO]           nvarchar(10) NULL,
        [Branch]       nvarchar(10) NULL,
        [DebtorType]   nvarchar(1) NULL,
        [Account]      nvarchar(10) NULL,
        [Title]        nvarchar(10) NULL,
        [Name]         nvarchar(50) NULL,
        [Surname]      nvarchar(50) NULL,
        [Birthday]     nvarchar(10) NULL,
        [Designation]  nvarchar(20) NULL,
        [ResTelCode1]  nvarchar(5) NULL,
        [ResTelPhone1] nvarchar(20) NULL,
        [ResTelCode2]  nvarchar(5) NULL,
        [ResTelPhone2] nvarchar(20) NULL,
        [BizTelCode1]  nvarchar(5) NULL,
        [BizTelPhone1] nvarchar(20) NULL,
        [CellPhone]    nvarchar(20) NULL,
        [BizFaxCode1]  nvarchar(5) NULL,
        [BizFax]       nvarchar(20) NULL,
        [Department]   nvarchar(20) NULL,
        [EMail]        nvarchar(70) NULL,
        [Website]      nvarchar(1024) NULL,
        [DTODate]      nvarchar(10) NULL,
        [DTOTime]      nvarchar(8) NULL,
        [DTOUser]      nvarchar(10) NULL,
        [DTOMacID]     nvarchar(20) NULL,
        [TelPhone]     nvarchar(20) NULL,
        [Fax]          nvarchar(20) NULL,
        [MailStmt]     nvarchar(1) NULL,
        [MailInv]      nvarchar(1) NULL,
        [MailOTP]      nvarchar(1) NULL,
        [SMSOTP]       nvarchar(1) NULL,
        [Status]       nvarchar(1) NULL,
        [PrtySeq]      int NOT NULL DEFAULT 0,
        [SMSTxans]     nvarchar(1) NULL,
        [SMSMarketing] nvarchar(1) NULL
    );
    ALTER TABLE [dbo].[DEBContacts] ADD CONSTRAINT [DEBContacts_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'DEBContacts_idx01')
    CREATE NONCLUSTERED INDEX [DEBContacts_idx01] ON [dbo].[DEBContacts] ([CO], [Branch], [Account], [PrtySeq]);
GO

-- Loyalty members.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'POSVIPMembers')
BEGIN
    CREATE TABLE [dbo].[POSVIPMembers] (
        [RecID]        int IDENTITY(1, 1) NOT NULL,
        [CO]           nvarchar(10) NULL,
        [VIPNo]        int NOT NULL DEFAULT 0,
        [SourceBranch] nvarchar(10) NULL,
        [VIPCardNo]    nvarchar(30) NULL,
        [Name]         nvarchar(100) NULL,
        [Title]        nvarchar(10) NULL,
        [Address1]     nvarchar(50) NULL,
        [Address2]     nvarchar(50) NULL,
        [Address3]     nvarchar(50) NULL,
        [Address4]     nvarchar(50) NULL,
        [PostCode]     nvarchar(10) NULL,
        [CellNo]       nvarchar(20) NULL,
        [Telephone]    nvarchar(20) NULL,
        [EMail]        nvarchar(100) NULL,
        [DateJoined]   nvarchar(10) NULL,
        [BirthDate]    nvarchar(10) NULL,
        [IDNo]         nvarchar(30) NULL,
        [Gender]       nvarchar(1) NULL,
        [Status]       nvarchar(1) NULL,
        [VIPCatCode]   nvarchar(10) NULL,
        [VIPPackCode]  nvarchar(10) NULL,
        [VIPGradeCode] nvarchar(10) NULL,
        [DEBAccount]   nvarchar(10) NULL,
        [VendorCardNo] nvarchar(30) NULL,
        [Area]         nvarchar(50) NULL,
        [Suburb]       nvarchar(100) NULL,
        [MemberPswd]   nvarchar(10) NULL,
        [DTODate]      nvarchar(10) NULL,
        [DTOTime]      nvarchar(8) NULL,
        [DTOUser]      nvarchar(10) NULL,
        [DTOMacID]     nvarchar(20) NULL
    );
    ALTER TABLE [dbo].[POSVIPMembers] ADD CONSTRAINT [POSVIPMembers_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'POSVIPMembers_idx01')
    CREATE NONCLUSTERED INDEX [POSVIPMembers_idx01] ON [dbo].[POSVIPMembers] ([VIPNo], [CO], [SourceBranch]);
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'POSVIPMembers_idx02')
    CREATE NONCLUSTERED INDEX [POSVIPMembers_idx02] ON [dbo].[POSVIPMembers] ([VIPCardNo], [VIPNo], [CO]);
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'POSVIPMembers_idx03')
    CREATE NONCLUSTERED INDEX [POSVIPMembers_idx03] ON [dbo].[POSVIPMembers] ([CellNo], [VIPNo]);
GO

-- The tills of a branch.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'POSTillMaster')
BEGIN
    CREATE TABLE [dbo].[POSTillMaster] (
        [RecID]             int IDENTITY(1, 1) NOT NULL,
        [CO]                nvarchar(10) NULL,
        [Branch]            nvarchar(10) NULL,
        [TillNo]            nvarchar(5) NULL,
        [CashierID]         nvarchar(20) NULL,
        [CashupNo]          int NOT NULL DEFAULT 0,
        [Name]              nvarchar(30) NULL,
        [Status]            nvarchar(1) NULL,
        [DocPrefix]         nvarchar(3) NULL,
        [OpenFloat]         float NOT NULL DEFAULT 0,
        [CloseFloat]        float NOT NULL DEFAULT 0,
        [Cash]              float NOT NULL DEFAULT 0,
        [Cheques]           float NOT NULL DEFAULT 0,
        [CreditCards]       float NOT NULL DEFAULT 0,
        [Vouchers]          float NOT NULL DEFAULT 0,
        [Transfers]         float NOT NULL DEFAULT 0,
        [TenderAmount1]     float NOT NULL DEFAULT 0,
        [TenderAmount2]     float NOT NULL DEFAULT 0,
        [TenderAmount3]     float NOT NULL DEFAULT 0,
        [TenderAmount4]     float NOT NULL DEFAULT 0,
        [CashCount]         float NOT NULL DEFAULT 0,
        [ChequesCount]      float NOT NULL DEFAULT 0,
        [CreditCardsCount]  float NOT NULL DEFAULT 0,
        [VouchersCount]     float NOT NULL DEFAULT 0,
        [TransfersCount]    float NOT NULL DEFAULT 0,
        [Tender1Count]      float NOT NULL DEFAULT 0,
        [Tender2Count]      float NOT NULL DEFAULT 0,
        [Tender3Count]      float NOT NULL DEFAULT 0,
        [Tender4Count]      float NOT NULL DEFAULT 0,
        [TenderCode1]       nvarchar(20) NULL,
        [TenderCode2]       nvarchar(20) NULL,
        [TenderCode3]       nvarchar(20) NULL,
        [TenderCode4]       nvarchar(20) NULL,
        [Pickups]           float NOT NULL DEFAULT 0,
        [Payouts]           float NOT NULL DEFAULT 0,
        [LastCashUpdate]    nvarchar(10) NULL,
        [LastCashUpTime]    nvarchar(8) NULL,
        [LastTxTp]          nvarchar(6) NULL,
        [LastDocNo]         nvarchar(15) NULL,
        [DTODate]           nvarchar(10) NULL,
        [DTOTime]           nvarchar(8) NULL,
        [DTOUser]           nvarchar(10) NULL,
        [DTOMacID]          nvarchar(20) NULL,
        [TillMessage]       nvarchar(200) NULL,
        [SealNo]            nvarchar(20) NULL,
        [SealSecurity]      nvarchar(20) NULL,
        [DefaultFloat]      float NOT NULL DEFAULT 0,
        [VoidCount]         int NOT NULL DEFAULT 0,
        [RoundingUP]        float NOT NULL DEFAULT 0,
        [RoundingDown]      float NOT NULL DEFAULT 0,
        [CashCountGross]    float NOT NULL DEFAULT 0,
        [UnlockKey]         nvarchar(20) NULL,
        [ReliefTill]        nvarchar(10) NULL,
        [TenderForm1]       nvarchar(2) NULL,
        [TenderForm2]       nvarchar(2) NULL,
        [TenderForm3]       nvarchar(2) NULL,
        [TenderForm4]       nvarchar(2) NULL,
        [ManDiscount]       float NOT NULL DEFAULT 0,
        [ManTotal]          float NOT NULL DEFAULT 0,
        [ReturnTill]        nvarchar(1) NULL,
        [ReturnVouchers]    nvarchar(1) NULL,
        [AdminTill]         nvarchar(1) NULL,
        [UnderOver]         float NOT NULL DEFAULT 0,
        [SysLock]           nvarchar(1) NULL,
        [DefaultName]       nvarchar(30) NULL,
        [ParkSalesOnly]     nvarchar(1) NULL,
        [ParkSalesMaxLimit] float NOT NULL DEFAULT 0,
        [ExpressTill]       nvarchar(1) NULL,
        [ExpressStatus]     nvarchar(1) NULL,
        [TellerTill]        nvarchar(1) NULL,
        [ExpressCallTime]   int NOT NULL DEFAULT 0,
        [ExpressCallTill]   nvarchar(5) NULL,
        [Wallets]           float NOT NULL DEFAULT 0,
        [WalletsCount]      float NOT NULL DEFAULT 0,
        [WalletKey]         nvarchar(20) NULL,
        [WalletPIN]         nvarchar(20) NULL,
        [COFTillNo]         nvarchar(5) NULL,
        [CashDevice]        nvarchar(2) NULL,
        [DateOpen]          nvarchar(10) NULL,
        [TimeOpen]          nvarchar(8) NULL,
        [DateClose]         nvarchar(10) NULL,
        [TimeClose]         nvarchar(8) NULL,
        [BioID]             int NOT NULL DEFAULT 0
    );
    ALTER TABLE [dbo].[POSTillMaster] ADD CONSTRAINT [POSTillMaster_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'POSTillMaster_idx01')
    CREATE NONCLUSTERED INDEX [POSTillMaster_idx01] ON [dbo].[POSTillMaster] ([CO], [Branch], [TillNo]);
GO

-- The cashiers of a branch.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'POSCashiers')
BEGIN
    CREATE TABLE [dbo].[POSCashiers] (
        [RecID]        int IDENTITY(1, 1) NOT NULL,
        [CO]           nvarchar(10) NULL,
        [Branch]       nvarchar(10) NULL,
        [EmplNo]       nvarchar(20) NULL,
        [Name]         nvarchar(50) NULL,
        [Status]       nvarchar(1) NULL,
        [DefUserGroup] nvarchar(10) NULL,
        [IDNumber]     nvarchar(20) NULL
    );
    ALTER TABLE [dbo].[POSCashiers] ADD CONSTRAINT [POSCashiers_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'POSCashiers_idx01')
    CREATE NONCLUSTERED INDEX [POSCashiers_idx01] ON [dbo].[POSCashiers] ([CO], [Branch], [Name]);
GO

-- Cash-office tills and the user each belongs to.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'POSCOFTillMst')
BEGIN
    CREATE TABLE [dbo].[POSCOFTillMst] (
        [RecID]     int IDENTITY(1, 1) NOT NULL,
        [CO]        nvarchar(10) NOT NULL,
        [Branch]    nvarchar(10) NOT NULL,
        [COFTillNo] nvarchar(5) NOT NULL,
        [Name]      nvarchar(30) NULL,
        [VisUser]   nvarchar(10) NULL
    );
    ALTER TABLE [dbo].[POSCOFTillMst] ADD CONSTRAINT [POSCOFTillMst_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'POSCOFTillMst_idx01')
    CREATE NONCLUSTERED INDEX [POSCOFTillMst_idx01] ON [dbo].[POSCOFTillMst] ([CO], [Branch], [VisUser]);
GO

-- Bank accounts of a company.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'GLGBankMaster')
BEGIN
    CREATE TABLE [dbo].[GLGBankMaster] (
        [RecID]       int IDENTITY(1, 1) NOT NULL,
        [CO]          nvarchar(10) NOT NULL,
        [BankCode]    nvarchar(10) NOT NULL,
        [BankName]    nvarchar(50) NULL,
        [BranchName]  nvarchar(50) NULL,
        [BranchCode]  nvarchar(20) NULL,
        [BankAccNo]   nvarchar(20) NULL,
        [BankAccName] nvarchar(50) NULL
    );
    ALTER TABLE [dbo].[GLGBankMaster] ADD CONSTRAINT [GLGBankMaster_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'GLGBankMaster_idx01')
    CREATE UNIQUE NONCLUSTERED INDEX [GLGBankMaster_idx01] ON [dbo].[GLGBankMaster] ([CO], [BankCode]);
GO

-- Employees of a branch. BirthDate is yyyy/mm/dd.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'EMPMaster')
BEGIN
    CREATE TABLE [dbo].[EMPMaster] (
        [RecID]     int IDENTITY(1, 1) NOT NULL,
        [CO]        nvarchar(10) NOT NULL,
        [Branch]    nvarchar(10) NOT NULL,
        [EmplNo]    nvarchar(10) NOT NULL,
        [EmplName]  nvarchar(50) NULL,
        [BirthDate] nvarchar(10) NULL,
        [IDNo]      nvarchar(20) NULL,
        [Telephone] nvarchar(20) NULL,
        [CellPhone] nvarchar(20) NULL,
        [Status]    nvarchar(1) NULL,
        [DTODate]   nvarchar(10) NULL,
        [DTOTime]   nvarchar(8) NULL,
        [DTOUser]   nvarchar(10) NULL,
        [DTOMacID]  nvarchar(20) NULL
    );
    ALTER TABLE [dbo].[EMPMaster] ADD CONSTRAINT [EMPMaster_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'EMPMaster_idx01')
    CREATE UNIQUE NONCLUSTERED INDEX [EMPMaster_idx01] ON [dbo].[EMPMaster] ([CO], [Branch], [EmplNo]);
GO

-- What was booked for an employee; a row of type POSEMP marks the birthday message of a day.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'EMPTxans')
BEGIN
    CREATE TABLE [dbo].[EMPTxans] (
        [RecID]     int IDENTITY(1, 1) NOT NULL,
        [CO]        nvarchar(10) NOT NULL,
        [Branch]    nvarchar(10) NOT NULL,
        [EmplNo]    nvarchar(10) NOT NULL,
        [TranDate]  nvarchar(10) NULL,
        [TxTp]      nvarchar(6) NULL,
        [Details]   nvarchar(50) NULL,
        [Reference] nvarchar(50) NULL,
        [DrCr]      nvarchar(1) NULL,
        [Amount]    float NOT NULL DEFAULT 0
    );
    ALTER TABLE [dbo].[EMPTxans] ADD CONSTRAINT [EMPTxans_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'EMPTxans_idx01')
    CREATE NONCLUSTERED INDEX [EMPTxans_idx01] ON [dbo].[EMPTxans] ([CO], [Branch], [EmplNo], [TranDate], [TxTp]);
GO
