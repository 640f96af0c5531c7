-- POSAirtimeMaster
CREATE TABLE [dbo].[POSAirtimeMaster] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [Manufacturer] nvarchar(30), [CatCode] nvarchar(10),
    [CatDescription] nvarchar(50), [VATCode] nvarchar(1), [DiscType] nvarchar(1),
    [DiscValue] float DEFAULT 0 NOT NULL )
CREATE NONCLUSTERED INDEX [POSAirtimeMaster_idx01] ON [dbo].[POSAirtimeMaster]  ([CO], [Branch], [CatCode], [Manufacturer]) <options>
CREATE NONCLUSTERED INDEX [POSAirtimeMaster_idx02] ON [dbo].[POSAirtimeMaster]  ([CO], [Branch], [Manufacturer], [CatCode]) <options>

-- POSCOFMaster
CREATE TABLE [dbo].[POSCOFMaster] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [TillNo] nvarchar(5), [CashUpNo] int DEFAULT 0 NOT NULL,
    [CashUpDate] nvarchar(10), [Name] nvarchar(30), [OpenFloat] float DEFAULT 0 NOT NULL,
    [CloseFloat] float DEFAULT 0 NOT NULL, [Cash] float DEFAULT 0 NOT NULL,
    [Cheques] float DEFAULT 0 NOT NULL, [CreditCards] float DEFAULT 0 NOT NULL,
    [Vouchers] float DEFAULT 0 NOT NULL, [Transfers] float DEFAULT 0 NOT NULL,
    [Wallets] float DEFAULT 0 NOT NULL, [TenderAmount1] float DEFAULT 0 NOT NULL,
    [TenderAmount2] float DEFAULT 0 NOT NULL, [TenderAmount3] float DEFAULT 0 NOT NULL,
    [TenderAmount4] float DEFAULT 0 NOT NULL, [PUCash] float DEFAULT 0 NOT NULL,
    [PUCheques] float DEFAULT 0 NOT NULL, [PUCreditCards] float DEFAULT 0 NOT NULL,
    [PUVouchers] float DEFAULT 0 NOT NULL, [PUTransfers] float DEFAULT 0 NOT NULL,
    [PUWallets] float DEFAULT 0 NOT NULL, [PUTenderAmount1] float DEFAULT 0 NOT NULL,
    [PUTenderAmount2] float DEFAULT 0 NOT NULL, [PUTenderAmount3] float DEFAULT 0 NOT NULL,
    [PUTenderAmount4] float DEFAULT 0 NOT NULL, [OverUnder] float DEFAULT 0 NOT NULL,
    [TenderCode1] nvarchar(20), [TenderCode2] nvarchar(20), [TenderCode3] nvarchar(20),
    [TenderCode4] nvarchar(20), [DateOpen] nvarchar(10), [TimeOpen] nvarchar(8),
    [DateClose] nvarchar(10), [TimeClose] nvarchar(8), [PickUpDate] nvarchar(10),
    [PickUpTime] nvarchar(8), [Status] nvarchar(1), [DTODate] nvarchar(10), [DTOTime] nvarchar(8),
    [DTOUser] nvarchar(10), [DTOMacID] nvarchar(20) )
ALTER TABLE [dbo].[POSCOFMaster] ADD [Wallets] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[POSCOFMaster] ADD [PUWallets] float NOT NULL DEFAULT (0)
CREATE NONCLUSTERED INDEX [POSCOFMaster_idx01] ON [dbo].[POSCOFMaster]  ([CO], [Branch], [CashupNo], [CashupDate]) <options>
CREATE NONCLUSTERED INDEX [POSCOFMaster_idx02] ON [dbo].[POSCOFMaster]  ([CO], [Branch], [CashupDate], [CashupNo]) <options>

-- POSTillMaster
CREATE TABLE [dbo].[POSTillMaster] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [TillNo] nvarchar(5), [CashierID] nvarchar(20),
    [CashupNo] int DEFAULT 0 NOT NULL, [Name] nvarchar(30), [Status] nvarchar(1),
    [DocPrefix] nvarchar(3), [OpenFloat] float DEFAULT 0 NOT NULL,
    [CloseFloat] float DEFAULT 0 NOT NULL, [Cash] float DEFAULT 0 NOT NULL,
    [Cheques] float DEFAULT 0 NOT NULL, [CreditCards] float DEFAULT 0 NOT NULL,
    [Vouchers] float DEFAULT 0 NOT NULL, [Transfers] float DEFAULT 0 NOT NULL,
    [TenderAmount1] float DEFAULT 0 NOT NULL, [TenderAmount2] float DEFAULT 0 NOT NULL,
    [TenderAmount3] float DEFAULT 0 NOT NULL, [TenderAmount4] float DEFAULT 0 NOT NULL,
    [CashCount] float DEFAULT 0 NOT NULL, [ChequesCount] float DEFAULT 0 NOT NULL,
    [CreditCardsCount] float DEFAULT 0 NOT NULL, [VouchersCount] float DEFAULT 0 NOT NULL,
    [TransfersCount] float DEFAULT 0 NOT NULL, [Tender1Count] float DEFAULT 0 NOT NULL,
    [Tender2Count] float DEFAULT 0 NOT NULL, [Tender3Count] float DEFAULT 0 NOT NULL,
    [Tender4Count] float DEFAULT 0 NOT NULL, [TenderCode1] nvarchar(20), [TenderCode2] nvarchar(20),
    [TenderCode3] nvarchar(20), [TenderCode4] nvarchar(20), [Pickups] float DEFAULT 0 NOT NULL,
    [Payouts] float DEFAULT 0 NOT NULL, [LastCashUpdate] nvarchar(10), [LastCashUpTime] nvarchar(8),
    [LastTxTp] nvarchar(6), [LastDocNo] nvarchar(15), [DTODate] nvarchar(10), [DTOTime] nvarchar(8),
    [DTOUser] nvarchar(10), [DTOMacID] nvarchar(20), [TillMessage] nvarchar(200),
    [SealNo] nvarchar(20), [SealSecurity] nvarchar(20), [DefaultFloat] float DEFAULT 0 NOT NULL,
    [VoidCount] int DEFAULT 0 NOT NULL, [RoundingUP] float DEFAULT 0 NOT NULL,
    [RoundingDown] float DEFAULT 0 NOT NULL, [CashCountGross] float DEFAULT 0 NOT NULL,
    [UnlockKey] nvarchar(20), [ReliefTill] nvarchar(10), [TenderForm1] nvarchar(2),
    [TenderForm2] nvarchar(2), [TenderForm3] nvarchar(2), [TenderForm4] nvarchar(2),
    [ManDiscount] float DEFAULT 0 NOT NULL, [ManTotal] float DEFAULT 0 NOT NULL,
    [ReturnTill] nvarchar(1), [ReturnVouchers] nvarchar(1), [AdminTill] nvarchar(1),
    [UnderOver] float DEFAULT 0 NOT NULL, [SysLock] nvarchar(1), [DefaultName] nvarchar(30),
    [ParkSalesOnly] nvarchar(1), [ParkSalesMaxLimit] float DEFAULT 0 NOT NULL,
    [ExpressTill] nvarchar(1), [ExpressStatus] nvarchar(1), [TellerTill] nvarchar(1),
    [ExpressCallTime] int DEFAULT 0 NOT NULL, [ExpressCallTill] nvarchar(5),
    [Wallets] float DEFAULT 0 NOT NULL, [WalletsCount] float DEFAULT 0 NOT NULL,
    [WalletKey] nvarchar(20), [WalletPIN] nvarchar(20), [COFTillNo] nvarchar(5),
    [CashDevice] nvarchar(2), [DateOpen] nvarchar(10), [TimeOpen] nvarchar(8),
    [DateClose] nvarchar(10), [TimeClose] nvarchar(8), [BioID] int DEFAULT 0 NOT NULL )
ALTER TABLE [dbo].[POSTillMaster] ADD [CashierID] int NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[POSTillMaster] ADD [CashDevice] nvarchar(2) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[POSTillMaster] ADD [ParkSalesMaxLimit] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[POSTillMaster] ADD [BioID] int NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[POSTillMaster]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[POSTillMaster]  ALTER COLUMN [Branch] nvarchar(10)
CREATE NONCLUSTERED INDEX [POSTillMaster_idx01] ON [dbo].[POSTillMaster]  ([CO], [Branch], [TillNo]) <options>

-- POSTillHistory
CREATE TABLE [dbo].[POSTillHistory] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [TillNo] nvarchar(5), [CashierID] nvarchar(20),
    [CashUpDate] nvarchar(10), [CashUpNo] int DEFAULT 0 NOT NULL, [Name] nvarchar(30),
    [OpenFloat] float DEFAULT 0 NOT NULL, [CloseFloat] float DEFAULT 0 NOT NULL,
    [Cash] float DEFAULT 0 NOT NULL, [Cheques] float DEFAULT 0 NOT NULL,
    [CreditCards] float DEFAULT 0 NOT NULL, [Vouchers] float DEFAULT 0 NOT NULL,
    [Transfers] float DEFAULT 0 NOT NULL, [TenderAmount1] float DEFAULT 0 NOT NULL,
    [TenderAmount2] float DEFAULT 0 NOT NULL, [TenderAmount3] float DEFAULT 0 NOT NULL,
    [TenderAmount4] float DEFAULT 0 NOT NULL, [CashCount] float DEFAULT 0 NOT NULL,
    [ChequesCount] float DEFAULT 0 NOT NULL, [CreditCardsCount] float DEFAULT 0 NOT NULL,
    [VouchersCount] float DEFAULT 0 NOT NULL, [TransfersCount] float DEFAULT 0 NOT NULL,
    [Tender1Count] float DEFAULT 0 NOT NULL, [Tender2Count] float DEFAULT 0 NOT NULL,
    [Tender3Count] float DEFAULT 0 NOT NULL, [Tender4Count] float DEFAULT 0 NOT NULL,
    [TenderCode1] nvarchar(20), [TenderCode2] nvarchar(20), [TenderCode3] nvarchar(20),
    [TenderCode4] nvarchar(20), [Pickups] float DEFAULT 0 NOT NULL,
    [Payouts] float DEFAULT 0 NOT NULL, [OverUnder] float DEFAULT 0 NOT NULL,
    [LastCashUpDate] nvarchar(10), [LastCashUpTime] nvarchar(8), [LastTxTp] nvarchar(6),
    [LastDocNo] nvarchar(15), [DTODate] nvarchar(10), [DTOTime] nvarchar(8), [DTOUser] nvarchar(10),
    [DTOMacID] nvarchar(20), [TillMessage] nvarchar(200), [SealNo] nvarchar(20),
    [SealSecurity] nvarchar(20), [DefaultFloat] float DEFAULT 0 NOT NULL,
    [VoidCount] int DEFAULT 0 NOT NULL, [RoundingUP] float DEFAULT 0 NOT NULL,
    [RoundingDown] float DEFAULT 0 NOT NULL, [CashCountGross] float DEFAULT 0 NOT NULL,
    [TenderForm1] nvarchar(2), [TenderForm2] nvarchar(2), [TenderForm3] nvarchar(2),
    [TenderForm4] nvarchar(2), [ManDiscount] float DEFAULT 0 NOT NULL,
    [ManTotal] float DEFAULT 0 NOT NULL, [ReturnTill] nvarchar(1), [ReturnVouchers] nvarchar(1),
    [DepositSlipNo] nvarchar(20), [DepositDate] nvarchar(10), [DepositTime] nvarchar(10),
    [ReliefTill] nvarchar(1), [AdminTill] nvarchar(1), [SysLock] nvarchar(1),
    [DefaultName] nvarchar(30), [ParkSalesOnly] nvarchar(1),
    [ParkSalesMaxLimit] float DEFAULT 0 NOT NULL, [ExpressTill] nvarchar(1),
    [ExpressStatus] nvarchar(1), [TellerTill] nvarchar(1), [ExpressCallTime] int DEFAULT 0 NOT NULL,
    [ExpressCallTill] nvarchar(5), [Wallets] float DEFAULT 0 NOT NULL,
    [WalletsCount] float DEFAULT 0 NOT NULL, [COFTillNo] nvarchar(5), [CashDevice] nvarchar(2),
    [DateOpen] nvarchar(10), [TimeOpen] nvarchar(8), [DateClose] nvarchar(10),
    [TimeClose] nvarchar(8), [BioID] int DEFAULT 0 NOT NULL )
ALTER TABLE [dbo].[POSTillHistory] ADD [CashierID] int NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[POSTillHistory] ADD [CashDevice] nvarchar(2) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[POSTillHistory] ADD [ParkSalesOnly] nvarchar(1) NOT NULL DEFAULT ('N')
ALTER TABLE [dbo].[POSTillHistory] ADD [ParkSalesMaxLimit] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[POSTillHistory] ADD [BioID] int NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[POSTillHistory]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[POSTillHistory]  ALTER COLUMN [Branch] nvarchar(10)
CREATE NONCLUSTERED INDEX [POSTillHistory_idx01] ON [dbo].[POSTillHistory]  ([CO], [Branch], [TillNo], [CashupDate]) <options>
CREATE NONCLUSTERED INDEX [POSTillHistory_idx02] ON [dbo].[POSTillHistory]  ([CO], [Branch], [CashupDate], [TillNo]) <options>
CREATE NONCLUSTERED INDEX [POSTillHistory_idx03] ON [dbo].[POSTillHistory]  ([CO], [Branch], [CashupNo], [CashupDate]) <options>

-- POSPayOuts
CREATE TABLE [dbo].[POSPayOuts] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [TillNo] nvarchar(5), [CashupNo] int DEFAULT 0 NOT NULL,
    [DocNo] nvarchar(20), [TxTp] nvarchar(6), [PayoutCode] nvarchar(10), [PayDate] nvarchar(10),
    [Paytime] nvarchar(8), [Payee] nvarchar(50), [Details] nvarchar(50), [Reference] nvarchar(20),
    [Supervisor] nvarchar(10), [Amount] float DEFAULT 0 NOT NULL,
    [VATAmount] float DEFAULT 0 NOT NULL, [GLAcNo] nvarchar(10), [SAPGLAcNo] nvarchar(20),
    [DTODate] nvarchar(10), [DTOTime] nvarchar(8), [DTOUser] nvarchar(10), [DTOMacID] nvarchar(20) )
ALTER TABLE [dbo].[POSPayOuts] ADD [CashupNo] int NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[POSPayOuts]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[POSPayOuts]  ALTER COLUMN [Branch] nvarchar(10)
CREATE NONCLUSTERED INDEX [POSPayOuts_idx01] ON [dbo].[POSPayOuts]  ([CO], [Branch], [TillNo], [PayDate], [DocNo]) <options>
CREATE NONCLUSTERED INDEX [POSPayOuts_idx02] ON [dbo].[POSPayOuts]  ([CO], [Branch], [TxTp], [PayDate], [DocNo], [TillNo]) <options>
CREATE NONCLUSTERED INDEX [POSPayOuts_idx03] ON [dbo].[POSPayOuts]  ([CO], [Branch], [TillNo], [CashupNo], [DocNo]) <options>
CREATE NONCLUSTERED INDEX [POSPayOuts_idx04] ON [dbo].[POSPayOuts]  ([CO], [Branch], [TillNo], [DocNo], [CashupNo]) <options>

-- POSTillPickUps
CREATE TABLE [dbo].[POSTillPickUps] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [TillNo] nvarchar(5), [CashupNo] int DEFAULT 0 NOT NULL,
    [PickUpDate] nvarchar(10), [PickUpTime] nvarchar(8), [Cash] float DEFAULT 0 NOT NULL,
    [Cheques] float DEFAULT 0 NOT NULL, [CreditCards] float DEFAULT 0 NOT NULL,
    [Vouchers] float DEFAULT 0 NOT NULL, [Transfers] float DEFAULT 0 NOT NULL,
    [TenderAmount1] float DEFAULT 0 NOT NULL, [TenderAmount2] float DEFAULT 0 NOT NULL,
    [TenderAmount3] float DEFAULT 0 NOT NULL, [TenderAmount4] float DEFAULT 0 NOT NULL,
    [CashOfficeTill] nvarchar(5), [DTODate] nvarchar(10), [DTOTime] nvarchar(8),
    [DTOUser] nvarchar(10), [DTOMacID] nvarchar(20), [COFtillNo] nvarchar(5),
    [PickupNotes] float DEFAULT 0 NOT NULL, [PickupCoins] float DEFAULT 0 NOT NULL,
    [Wallets] float DEFAULT 0 NOT NULL, [CountNo] int DEFAULT 0 NOT NULL )
ALTER TABLE [dbo].[POSTillPickUps]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[POSTillPickUps]  ALTER COLUMN [Branch] nvarchar(10)
CREATE NONCLUSTERED INDEX [POSTillPickUps_idx01] ON [dbo].[POSTillPickUps]  ([CO], [Branch], [TillNo], [PickUpDate], [PickUpTime]) <options>
CREATE NONCLUSTERED INDEX [POSTillPickUps_idx02] ON [dbo].[POSTillPickUps]  ([CO], [Branch], [TillNo], [CashupNo], [PickUpDate], [PickUpTime]) <options>

-- POSTillPickUpCount
CREATE TABLE [dbo].[POSTillPickUpCount] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [TillNo] nvarchar(5), [CashupNo] int DEFAULT 0 NOT NULL,
    [PickUpDate] nvarchar(10), [PickUpTime] nvarchar(8), [CoinCode] nvarchar(5),
    [Description] nvarchar(20), [CoinCount] float DEFAULT 0 NOT NULL,
    [Amount] float DEFAULT 0 NOT NULL, [CoinType] nvarchar(1),
    [CoinValue] float DEFAULT 0 NOT NULL )
CREATE NONCLUSTERED INDEX [POSTillPickUpCount_idx01] ON [dbo].[POSTillPickUpCount]  ([CO], [Branch], [TillNo], [CashupNo], [PickUpDate], [PickUpTime]) <options>

-- POSTillAudit
CREATE TABLE [dbo].[POSTillAudit] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [TillNo] nvarchar(5), [FunctionCode] nvarchar(2), [Details] nvarchar(50),
    [UnlockKey] nvarchar(20), [DTODate] nvarchar(10), [DTOTime] nvarchar(8), [DTOUser] nvarchar(10),
    [DTOMacID] nvarchar(20) )
ALTER TABLE [dbo].[POSTillAudit]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[POSTillAudit]  ALTER COLUMN [Branch] nvarchar(10)
CREATE NONCLUSTERED INDEX [POSTillAudit_idx01] ON [dbo].[POSTillAudit]  ([CO], [Branch], [TillNo], [DTODate], [DTOTime]) <options>
CREATE NONCLUSTERED INDEX [POSTillAudit_idx02] ON [dbo].[POSTillAudit]  ([CO], [Branch], [DTODate], [TillNo], [DTOTime]) <options>

-- POSTillCount
CREATE TABLE [dbo].[POSTillCount] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [TillNo] nvarchar(5), [CashUpDate] nvarchar(10),
    [CashUpNo] int DEFAULT 0 NOT NULL, [CoinCode] nvarchar(5), [CoinCount] float DEFAULT 0 NOT NULL,
    [Description] nvarchar(20) )
ALTER TABLE [dbo].[POSTillCount]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[POSTillCount]  ALTER COLUMN [Branch] nvarchar(10)
CREATE NONCLUSTERED INDEX [POSTillCount_idx01] ON [dbo].[POSTillCount]  ([CO], [Branch], [TillNo], [CashupDate]) <options>
CREATE NONCLUSTERED INDEX [POSTillCount_idx02] ON [dbo].[POSTillCount]  ([CO], [Branch], [TillNo], [CashupNo]) <options>

-- POSVoidsHdr
CREATE TABLE [dbo].[POSVoidsHdr] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [TxTp] nvarchar(6), [TillNo] nvarchar(5), [DocNo] nvarchar(15),
    [Account] nvarchar(10), [TranDate] nvarchar(10), [TranTime] nvarchar(8),
    [TotalVAT] float DEFAULT 0 NOT NULL, [TotalExcl] float DEFAULT 0 NOT NULL,
    [TotalIncl] float DEFAULT 0 NOT NULL, [VoidType] nvarchar(1), [DTODate] nvarchar(10),
    [DTOTime] nvarchar(8), [DTOUser] nvarchar(10), [DTOMacID] nvarchar(20) )
ALTER TABLE [dbo].[POSVoidsHdr] ADD [VoidType] nvarchar(1) NOT NULL DEFAULT ('')
CREATE NONCLUSTERED INDEX [POSVoidsHdr_idx01] ON [dbo].[POSVoidsHdr]  ([CO], [Branch], [TillNo], [TranDate], [DocNo]) <options>
CREATE NONCLUSTERED INDEX [POSVoidsHdr_idx02] ON [dbo].[POSVoidsHdr]  ([CO], [Branch], [TxTp], [DocNo]) <options>

-- POSVoidsDet
CREATE TABLE [dbo].[POSVoidsDet] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [TxTp] nvarchar(6), [TillNo] nvarchar(5), [DocNo] nvarchar(15),
    [StockCode] nvarchar(25), [LinkCode] nvarchar(25), [Description1] nvarchar(150),
    [Quantity] float DEFAULT 0 NOT NULL, [PriceExcl] float DEFAULT 0 NOT NULL,
    [PriceIncl] float DEFAULT 0 NOT NULL, [LineVAT] float DEFAULT 0 NOT NULL,
    [LineTotalExcl] float DEFAULT 0 NOT NULL, [LineTotalIncl] float DEFAULT 0 NOT NULL,
    [VoidType] nvarchar(1) )
ALTER TABLE [dbo].[POSVoidsDet] ADD [VoidType] nvarchar(1) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[POSVoidsDet]  ALTER COLUMN [Description1] nvarchar(150)
CREATE NONCLUSTERED INDEX [POSVoidsDet_idx01] ON [dbo].[POSVoidsDet]  ([CO], [Branch], [TillNo], [DocNo]) <options>
CREATE NONCLUSTERED INDEX [POSVoidsDet_idx02] ON [dbo].[POSVoidsDet]  ([CO], [Branch], [TxTp], [DocNo]) <options>

-- POSVouchers
CREATE TABLE [dbo].[POSVouchers] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [VoucherBranch] nvarchar(10), [VoucherNo] nvarchar(20), [VoucherType] nvarchar(1),
    [DateCreated] nvarchar(10), [VoucherExpDate] nvarchar(10), [Amount] float DEFAULT 0 NOT NULL,
    [VAT] float DEFAULT 0 NOT NULL, [VoucherTxTp] nvarchar(6), [Status] nvarchar(1),
    [DocTxTp] nvarchar(6), [DocNo] nvarchar(15), [TillNo] nvarchar(5), [Account] nvarchar(10),
    [Name] nvarchar(50), [Address1] nvarchar(40), [Address2] nvarchar(40), [Address3] nvarchar(40),
    [Address4] nvarchar(40), [Phone] nvarchar(20), [IDNo] nvarchar(20), [Description] nvarchar(50),
    [PaidDate] nvarchar(10), [PaidTillNo] nvarchar(5), [PaidTxTp] nvarchar(6),
    [PaidDocNo] nvarchar(15), [Cashed] nvarchar(1), [BaseBranch] nvarchar(10),
    [BaseVoucherNo] nvarchar(20), [BaseVoucherAmnt] float DEFAULT 0 NOT NULL,
    [TargetBranch] nvarchar(10), [TargetVoucherNo] nvarchar(20),
    [TargetVoucherAmnt] float DEFAULT 0 NOT NULL, [DTODate] nvarchar(10), [DTOTime] nvarchar(8),
    [DTOUser] nvarchar(10), [DTOMacID] nvarchar(20), [VoucherKey] nvarchar(20),
    [PensionNo] nvarchar(1), [ExternalNo] nvarchar(1), [HandlingFee] float DEFAULT 0 NOT NULL,
    [RetnCounterNo] nvarchar(25), [OrigInvoiceNo] nvarchar(25), [PickUpDate] nvarchar(10),
    [PickUpTime] nvarchar(8), [CashupNo] int DEFAULT 0 NOT NULL, [PickupTill] nvarchar(10),
    [EmptiesVerified] nvarchar(30), [ReferenceNo] nvarchar(30), [EMail] nvarchar(100),
    [OrderNo] int DEFAULT 0 NOT NULL, [BufferPeriod] int DEFAULT 0 NOT NULL, [CCYCode] nvarchar(5),
    [CCYRateDate] nvarchar(10), [CCYRate] float DEFAULT 0 NOT NULL,
    [CCYAmount] float DEFAULT 0 NOT NULL )
ALTER TABLE [dbo].[POSVouchers] ADD [EMail] nvarchar(100) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[POSVouchers] ADD [OrderNo] int NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[POSVouchers] ADD [BufferPeriod] int NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[POSVouchers] ADD [CCYCode] nvarchar(5) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[POSVouchers] ADD [CCYRateDate] nvarchar(10) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[POSVouchers] ADD [CCYRate] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[POSVouchers] ADD [CCYAmount] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[POSVouchers]  ALTER COLUMN [CO] nvarchar(10)
CREATE NONCLUSTERED INDEX [POSVouchers_idx01] ON [dbo].[POSVouchers]  ([CO], [VoucherBranch], [VoucherNo]) <options>
CREATE NONCLUSTERED INDEX [POSVouchers_idx02] ON [dbo].[POSVouchers]  ([CO], [Status], [VoucherNo]) <options>
CREATE NONCLUSTERED INDEX [POSVouchers_idx03] ON [dbo].[POSVouchers]  ([CO], [TillNo], [DocTxTp], [DocNo]) <options>

-- POSCashiers
CREATE TABLE [dbo].[POSCashiers] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [EmplNo] nvarchar(20), [Name] nvarchar(50), [Status] nvarchar(1),
    [DefUserGroup] nvarchar(10), [IDNumber] nvarchar(20) )
ALTER TABLE [dbo].[POSCashiers] ADD [IDNumber] nvarchar(20) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[POSCashiers]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[POSCashiers]  ALTER COLUMN [Branch] nvarchar(10)
CREATE NONCLUSTERED INDEX [POSCashiers_idx01] ON [dbo].[POSCashiers]  ([CO], [Branch], [Name]) <options>

-- POSCashGuardLog
CREATE TABLE [dbo].[POSCashGuardLog] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [DeviceID] nvarchar(10), [TranDate] nvarchar(10), [TranTime] nvarchar(8),
    [TranType] nvarchar(1), [TxTp] nvarchar(6), [DocNo] nvarchar(25),
    [Amount] float DEFAULT 0 NOT NULL )
CREATE NONCLUSTERED INDEX [POSCashGuardLog_idx01] ON [dbo].[POSCashGuardLog]  ([CO], [Branch], [DeviceID], [TranDate], [TranType], [TxTp], [DocNo]) <options>
CREATE NONCLUSTERED INDEX [POSCashGuardLog_idx02] ON [dbo].[POSCashGuardLog]  ([CO], [Branch], [TranDate], [TranType], [TxTp], [DocNo], [DeviceID]) <options>

-- POSVIPCategory
CREATE TABLE [dbo].[POSVIPCategory] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [VIPCatCode] nvarchar(10), [Description] nvarchar(50), [DTODate] nvarchar(10),
    [DTOTime] nvarchar(8), [DTOUser] nvarchar(10), [DTOMacID] nvarchar(20) )
CREATE NONCLUSTERED INDEX [POSVIPCategory_idx01] ON [dbo].[POSVIPCategory]  ([CO], [VIPCatCode]) <options>

-- POSVIPDocs
CREATE TABLE [dbo].[POSVIPDocs] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [VIPNo] int DEFAULT 0 NOT NULL, [SourceBranch] nvarchar(10), [TxTp] nvarchar(6),
    [DocNo] nvarchar(15), [TranDate] nvarchar(10), [TotCostExcl] float DEFAULT 0 NOT NULL,
    [TotCostIncl] float DEFAULT 0 NOT NULL, [DocTotalExcl] float DEFAULT 0 NOT NULL,
    [DocTotalIncl] float DEFAULT 0 NOT NULL, [Profit] float DEFAULT 0 NOT NULL,
    [GP] float DEFAULT 0 NOT NULL, [HouseExcl] float DEFAULT 0 NOT NULL,
    [HouseIncl] float DEFAULT 0 NOT NULL, [HouseCostExcl] float DEFAULT 0 NOT NULL,
    [HouseCostIncl] float DEFAULT 0 NOT NULL, [HouseProfit] float DEFAULT 0 NOT NULL,
    [HouseGP] float DEFAULT 0 NOT NULL, [Points] int DEFAULT 0 NOT NULL )
CREATE NONCLUSTERED INDEX [POSVIPDocs_idx01] ON [dbo].[POSVIPDocs]  ([VIPNo], [TxTp], [DocNo], [CO], [SourceBranch]) <options>
CREATE NONCLUSTERED INDEX [POSVIPDocs_idx02] ON [dbo].[POSVIPDocs]  ([VIPNo], [TranDate], [TxTp], [DocNo], [CO], [SourceBranch]) <options>

-- POSVIPMembers
CREATE TABLE [dbo].[POSVIPMembers] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [VIPNo] int DEFAULT 0 NOT NULL, [SourceBranch] nvarchar(10), [VIPCardNo] nvarchar(30),
    [Name] nvarchar(100), [Title] nvarchar(10), [Address1] nvarchar(50), [Address2] nvarchar(50),
    [Address3] nvarchar(50), [Address4] nvarchar(50), [PostCode] nvarchar(10),
    [CellNo] nvarchar(20), [Telephone] nvarchar(20), [EMail] nvarchar(100),
    [DateJoined] nvarchar(10), [BirthDate] nvarchar(10), [IDNo] nvarchar(30), [Gender] nvarchar(1),
    [Status] nvarchar(1), [VIPCatCode] nvarchar(10), [VIPPackCode] nvarchar(10),
    [VIPGradeCode] nvarchar(10), [DEBAccount] nvarchar(10), [VendorCardNo] nvarchar(30),
    [Area] nvarchar(50), [Suburb] nvarchar(100), [MemberPswd] nvarchar(10), [DTODate] nvarchar(10),
    [DTOTime] nvarchar(8), [DTOUser] nvarchar(10), [DTOMacID] nvarchar(20) )
CREATE NONCLUSTERED INDEX [POSVIPMembers_idx01] ON [dbo].[POSVIPMembers]  ([VIPNo], [CO], [SourceBranch]) <options>
CREATE NONCLUSTERED INDEX [POSVIPMembers_idx02] ON [dbo].[POSVIPMembers]  ([VIPCardNo], [VIPNo], [CO]) <options>
CREATE NONCLUSTERED INDEX [POSVIPMembers_idx03] ON [dbo].[POSVIPMembers]  ([CO], [SourceBranch], [VIPNo]) <options>
CREATE NONCLUSTERED INDEX [POSVIPMembers_idx04] ON [dbo].[POSVIPMembers]  ([CellNo], [VIPNo]) <options>
CREATE NONCLUSTERED INDEX [POSVIPMembers_idx05] ON [dbo].[POSVIPMembers]  ([Name], [CO], [SourceBranch]) <options>

-- POSVIPMemCats
CREATE TABLE [dbo].[POSVIPMemCats] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [VIPNo] int DEFAULT 0 NOT NULL, [VIPCatCode] nvarchar(10), [DTODate] nvarchar(10),
    [DTOTime] nvarchar(8), [DTOUser] nvarchar(10), [DTOMacID] nvarchar(20) )
CREATE NONCLUSTERED INDEX [POSVIPMemCats_idx01] ON [dbo].[POSVIPMemCats]  ([VIPNo], [VIPCatCode]) <options>

-- POSVIPTxan
CREATE TABLE [dbo].[POSVIPTxan] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [SourceBranch] nvarchar(10), [VIPNo] int DEFAULT 0 NOT NULL, [TranDate] nvarchar(10),
    [TxTp] nvarchar(6), [Details] nvarchar(100), [DocNo] nvarchar(20), [Reference] nvarchar(50),
    [DrCr] nvarchar(1), [Points] int DEFAULT 0 NOT NULL, [DTODate] nvarchar(10),
    [DTOTime] nvarchar(8), [DTOUser] nvarchar(10), [DTOMacID] nvarchar(20) )
CREATE NONCLUSTERED INDEX [POSVIPTxan_idx01] ON [dbo].[POSVIPTxan]  ([VIPNo], [TxTp], [DocNo], [TranDate]) <options>
CREATE NONCLUSTERED INDEX [POSVIPTxan_idx02] ON [dbo].[POSVIPTxan]  ([VIPNo], [TxTp], [DocNo], [CO], [SourceBranch]) <options>
