-- DOCHeader, POSParkHeader, TempHeader, ImportHeader
CREATE TABLE [dbo].[<table>] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [TxTp] nvarchar(6), [TillNo] nvarchar(5), [CashierID] nvarchar(20),
    [DocNo] nvarchar(15), [Account] nvarchar(20), [TranDate] nvarchar(10), [TranTime] nvarchar(8),
    [Name] nvarchar(50), [Address1] nvarchar(40), [Address2] nvarchar(40), [Address3] nvarchar(40),
    [Address4] nvarchar(40), [Contact] nvarchar(20), [Telephone] nvarchar(40), [Fax] nvarchar(20),
    [EMail] nvarchar(100), [VATNumber] nvarchar(20), [SalesRep] nvarchar(10),
    [Reference] nvarchar(20), [BaseType] nvarchar(6), [BaseRef] nvarchar(20),
    [VATIndicator] nvarchar(1), [ExportDoc] nvarchar(1), [DocDiscount] float DEFAULT 0 NOT NULL,
    [TotalVAT] float DEFAULT 0 NOT NULL, [TotalExcl] float DEFAULT 0 NOT NULL,
    [TotalIncl] float DEFAULT 0 NOT NULL, [TotalTaxable] float DEFAULT 0 NOT NULL,
    [TotalExempt] float DEFAULT 0 NOT NULL, [TotalCostExcl] float DEFAULT 0 NOT NULL,
    [TotalCostIncl] float DEFAULT 0 NOT NULL, [Transport] float DEFAULT 0 NOT NULL,
    [Profit] float DEFAULT 0 NOT NULL, [AP] int DEFAULT 0 NOT NULL, [WH] nvarchar(5),
    [PaymentDate] nvarchar(10), [Details] nvarchar(250), [Notes] nvarchar(250),
    [DeliveryMethod] nvarchar(10), [DeliveryDate] nvarchar(10), [Dispatch] nvarchar(1),
    [Cash] float DEFAULT 0 NOT NULL, [Cheques] float DEFAULT 0 NOT NULL,
    [CreditCards] float DEFAULT 0 NOT NULL, [Vouchers] float DEFAULT 0 NOT NULL,
    [Transfers] float DEFAULT 0 NOT NULL, [TenderAmount1] float DEFAULT 0 NOT NULL,
    [TenderAmount2] float DEFAULT 0 NOT NULL, [TenderAmount3] float DEFAULT 0 NOT NULL,
    [TenderAmount4] float DEFAULT 0 NOT NULL, [Tendered] float DEFAULT 0 NOT NULL,
    [TenderChange] float DEFAULT 0 NOT NULL, [RoundingDown] float DEFAULT 0 NOT NULL,
    [RoundingUp] float DEFAULT 0 NOT NULL, [DTODate] nvarchar(10), [DTOTime] nvarchar(8),
    [DTOUser] nvarchar(10), [DTOMacID] nvarchar(20), [CashUpnumber] int DEFAULT 0 NOT NULL,
    [CashUpdate] nvarchar(10), [CashUptime] nvarchar(8), [UField1] nvarchar(250),
    [UField2] nvarchar(250), [UField3] nvarchar(250), [UField4] nvarchar(250),
    [UnAllocated] nvarchar(1), [ReturnInvoice] nvarchar(15), [Deposit] float DEFAULT 0 NOT NULL,
    [Paid] float DEFAULT 0 NOT NULL, [Balance] float DEFAULT 0 NOT NULL, [RefInv] nvarchar(15),
    [OrderBy] nvarchar(20), [PurchaseOrder] nvarchar(15), [TermDays] int DEFAULT 0 NOT NULL,
    [Status] nvarchar(1), [PrintCount] int DEFAULT 0 NOT NULL, [SBO_TimeStamp] nvarchar(30),
    [DeliveryAddress1] nvarchar(40), [DeliveryAddress2] nvarchar(40),
    [DeliveryAddress3] nvarchar(40), [DeliveryAddress4] nvarchar(40), [EODDate] nvarchar(10),
    [Supervisor] nvarchar(10), [SAPDocNo] nvarchar(20), [ServerStatus] nvarchar(1),
    [ServerDate] nvarchar(10), [ServerTime] nvarchar(8), [DCurr] float DEFAULT 0 NOT NULL,
    [D030] float DEFAULT 0 NOT NULL, [D060] float DEFAULT 0 NOT NULL,
    [D090] float DEFAULT 0 NOT NULL, [D120] float DEFAULT 0 NOT NULL,
    [D150] float DEFAULT 0 NOT NULL, [D180] float DEFAULT 0 NOT NULL,
    [DOver] float DEFAULT 0 NOT NULL, [TotalLineDisc] float DEFAULT 0 NOT NULL,
    [TotalRebAmnt] float DEFAULT 0 NOT NULL, [Weight] float DEFAULT 0 NOT NULL,
    [Cases] float DEFAULT 0 NOT NULL, [Pallets] float DEFAULT 0 NOT NULL,
    [Dimensions] float DEFAULT 0 NOT NULL, [DrCr] nvarchar(1), [DetailLines] int DEFAULT 0 NOT NULL,
    [TotalDiscount] float DEFAULT 0 NOT NULL, [FinalTotal] float DEFAULT 0 NOT NULL,
    [ManProfit] float DEFAULT 0 NOT NULL, [ManDiscount] float DEFAULT 0 NOT NULL,
    [ManVAT] float DEFAULT 0 NOT NULL, [ManTotal] float DEFAULT 0 NOT NULL, [Version] varchar(20),
    [ScanUser] nvarchar(20), [ScanDate] nvarchar(10), [ScanTime] nvarchar(8),
    [SourceBranch] nvarchar(10), [InUse] nvarchar(30), [CellPhone] nvarchar(40),
    [DocDiscVAT] float DEFAULT 0 NOT NULL, [DropSafe] float DEFAULT 0 NOT NULL,
    [DispatchBranch] nvarchar(10), [OnlineAccount] nvarchar(50), [LicenseNo] nvarchar(20),
    [LicenseExpDate] nvarchar(20), [Wallets] float DEFAULT 0 NOT NULL, [CCYSale] nvarchar(1),
    [LoyaltyPnts] int DEFAULT 0 NOT NULL, [RegNo] nvarchar(20),
    [SallyDiscExcl] float DEFAULT 0 NOT NULL, [SallyDiscIncl] float DEFAULT 0 NOT NULL,
    [SallyDiscVAT] float DEFAULT 0 NOT NULL, [InUsePick] nvarchar(255), [DocOrigin] nvarchar(10),
    [DocOriginRef] nvarchar(255) )
ALTER TABLE [dbo].[<table>] ADD [LicenseNo] nvarchar(20) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[<table>] ADD [LicenseExpDate] nvarchar(20) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[<table>] ADD [CashierID] nvarchar(20) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[<table>] ADD [ExportDoc] nvarchar(1) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[<table>] ADD [Transport] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[<table>] ADD [CCYSale] nvarchar(1) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[<table>] ADD [RegNo] nvarchar(20) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[<table>] ADD [SallyDiscExcl] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[<table>] ADD [SallyDiscIncl] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[<table>] ADD [SallyDiscVAT] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[<table>]  ALTER COLUMN [UField1] nvarchar(250)
ALTER TABLE [dbo].[<table>]  ALTER COLUMN [UField2] nvarchar(250)
ALTER TABLE [dbo].[<table>]  ALTER COLUMN [UField3] nvarchar(250)
ALTER TABLE [dbo].[<table>]  ALTER COLUMN [UField4] nvarchar(250)
ALTER TABLE [dbo].[<table>]  ALTER COLUMN [OnlineAccount] nvarchar(50)
ALTER TABLE [dbo].[<table>] ADD [InUsePick] nvarchar(255) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[<table>] ADD [DocOrigin] nvarchar(10) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[<table>] ADD [DocOriginRef] nvarchar(255) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[<table>] ADD [EMail] nvarchar(100) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[<table>]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[<table>]  ALTER COLUMN [Branch] nvarchar(10)
ALTER TABLE [dbo].[<table>]  ALTER COLUMN [SourceBranch] nvarchar(10)
CREATE NONCLUSTERED INDEX [DOCHeader_idx01] ON [dbo].[DOCHeader]  ([CO], [Branch], [TxTp], [DocNo]) <options>
CREATE NONCLUSTERED INDEX [DOCHeader_idx02] ON [dbo].[DOCHeader]  ([CO], [Branch], [TillNo], [TxTp], [DocNo]) <options>
CREATE NONCLUSTERED INDEX [DOCHeader_idx03] ON [dbo].[DOCHeader]  ([CO], [Branch], [Account], [TxTp], [DocNo]) <options>
CREATE NONCLUSTERED INDEX [DOCHeader_idx04] ON [dbo].[DOCHeader]  ([CO], [Branch], [DocNo], [TxTp]) <options>
CREATE NONCLUSTERED INDEX [DOCHeader_idx05] ON [dbo].[DOCHeader]  ([CO], [Branch], [TillNo], [CashupNumber]) <options>
CREATE NONCLUSTERED INDEX [POSParkHeader_idx01] ON [dbo].[POSParkHeader]  ([CO], [Branch], [Status], [TranDate], [DocNo]) <options>
CREATE NONCLUSTERED INDEX [POSParkHeader_idx02] ON [dbo].[POSParkHeader]  ([CO], [Branch], [Account], [Status], [TranDate], [DocNo]) <options>
CREATE NONCLUSTERED INDEX [POSParkHeader_idx03] ON [dbo].[POSParkHeader]  ([CO], [Branch], [DocNo], [Status]) <options>
CREATE NONCLUSTERED INDEX [TempHeader_idx01] ON [dbo].[TempHeader]  ([CO], [Branch], [TxTp], [DocNo]) <options>
CREATE NONCLUSTERED INDEX [TempHeader_idx02] ON [dbo].[TempHeader]  ([CO], [Branch], [DocNo], [TxTp]) <options>
CREATE NONCLUSTERED INDEX [TempHeader_idx03] ON [dbo].[TempHeader]  ([CO], [Branch], [Account], [DocNo], [TxTp]) <options>
CREATE NONCLUSTERED INDEX [TempHeader_idx04] ON [dbo].[TempHeader]  ([CO], [Branch], [TillNo], [TxTp], [DocNo]) <options>
CREATE NONCLUSTERED INDEX [ImportHeader_idx01] ON [dbo].[ImportHeader]  ([CO], [Branch], [Status], [TxTp], [DocNo]) <options>
CREATE NONCLUSTERED INDEX [ImportHeader_idx02] ON [dbo].[ImportHeader]  ([CO], [Branch], [TxTp], [DocNo], [Status]) <options>

-- DOCDetails, POSParkDetails, TempDetails, TempDetailsParked, TempComboDetails, ImportDetails
CREATE TABLE [dbo].[<table>] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [TxTp] nvarchar(6), [TillNo] nvarchar(5), [DocNo] nvarchar(15),
    [Account] nvarchar(20), [TranDate] nvarchar(10), [LineNo] int DEFAULT 0 NOT NULL,
    [StockCode] nvarchar(25), [LinkCode] nvarchar(25), [Description1] nvarchar(150),
    [Description2] nvarchar(150), [Quantity] float DEFAULT 0 NOT NULL,
    [Price] float DEFAULT 0 NOT NULL, [PriceExcl] float DEFAULT 0 NOT NULL,
    [PriceIncl] float DEFAULT 0 NOT NULL, [DiscountType] nvarchar(1),
    [DiscountValue] float DEFAULT 0 NOT NULL, [LineDiscount] float DEFAULT 0 NOT NULL,
    [LineVAT] float DEFAULT 0 NOT NULL, [LineTotal] float DEFAULT 0 NOT NULL,
    [LineTotalExcl] float DEFAULT 0 NOT NULL, [LineTotalIncl] float DEFAULT 0 NOT NULL,
    [LinkQty] float DEFAULT 0 NOT NULL, [VATCode] nvarchar(2), [VATRate] float DEFAULT 0 NOT NULL,
    [VATIndicator] nvarchar(1), [CostExcl] float DEFAULT 0 NOT NULL,
    [CostIncl] float DEFAULT 0 NOT NULL, [TotalCostExcl] float DEFAULT 0 NOT NULL,
    [TotalCostIncl] float DEFAULT 0 NOT NULL, [Profit] float DEFAULT 0 NOT NULL, [Wh] nvarchar(5),
    [SalesRep] nvarchar(10), [Dept] nvarchar(10), [SubDept] nvarchar(10),
    [Units] int DEFAULT 0 NOT NULL, [Weight] float DEFAULT 0 NOT NULL, [StockType] nvarchar(1),
    [AP] int DEFAULT 0 NOT NULL, [Text1] nvarchar(40), [Text2] nvarchar(40), [Text3] nvarchar(100),
    [Text4] nvarchar(100), [PriceCode] nvarchar(5), [Promotion] nvarchar(1),
    [PromotionType] nvarchar(1), [PromotionCode] nvarchar(5), [AuthoriseCode] nvarchar(10),
    [PackSize] nvarchar(10), [SerialTrack] nvarchar(1), [SerialCount] int DEFAULT 0 NOT NULL,
    [OldPrice] float DEFAULT 0 NOT NULL, [SqmBox] float DEFAULT 0 NOT NULL, [TileSize] nvarchar(20),
    [TileGrade] nvarchar(20), [NoOfBox] int DEFAULT 0 NOT NULL, [Cases] float DEFAULT 0 NOT NULL,
    [Palettes] float DEFAULT 0 NOT NULL, [DispatchItem] nvarchar(1),
    [DispatchID] int DEFAULT 0 NOT NULL, [DispatchBranch] nvarchar(10),
    [DispatchBox] int DEFAULT 0 NOT NULL, [DispatchQty] float DEFAULT 0 NOT NULL,
    [DispatchReturns] float DEFAULT 0 NOT NULL, [DispatchBalance] float DEFAULT 0 NOT NULL,
    [Status] nvarchar(1), [BaseType] nvarchar(6), [BaseRef] nvarchar(20),
    [BaseLine] int DEFAULT 0 NOT NULL, [RebAmnt] float DEFAULT 0 NOT NULL,
    [FreeLineInd] nvarchar(1), [CreditNoteReason] nvarchar(50), [BarCode] nvarchar(25),
    [EODDate] nvarchar(10), [Supervisor] nvarchar(10), [SapDocNo] nvarchar(20),
    [QtyInvoice] float DEFAULT 0 NOT NULL, [QtyReturned] float DEFAULT 0 NOT NULL,
    [QtyBalance] float DEFAULT 0 NOT NULL, [BaseDocAmnt] float DEFAULT 0 NOT NULL,
    [BaseDocBal] float DEFAULT 0 NOT NULL, [BasePayamnt] float DEFAULT 0 NOT NULL,
    [BasePayDisc] float DEFAULT 0 NOT NULL, [Dimensions] float DEFAULT 0 NOT NULL,
    [DrCr] nvarchar(1), [TotalDiscount] float DEFAULT 0 NOT NULL,
    [FinalTotal] float DEFAULT 0 NOT NULL, [ManProfit] float DEFAULT 0 NOT NULL,
    [ManDiscount] float DEFAULT 0 NOT NULL, [ManVAT] float DEFAULT 0 NOT NULL,
    [ManTotal] float DEFAULT 0 NOT NULL, [Onhand] float DEFAULT 0 NOT NULL,
    [AvgWeekSale] float DEFAULT 0 NOT NULL, [AvgCostExcl] float DEFAULT 0 NOT NULL,
    [AvgCostIncl] float DEFAULT 0 NOT NULL, [Supervisor2] nvarchar(10),
    [RebAvgAmnt] float DEFAULT 0 NOT NULL, [Variant] nvarchar(10), [SourceBranch] nvarchar(10),
    [BasePrice] float DEFAULT 0 NOT NULL, [BasePriceCode] nvarchar(5), [PriceChange] nvarchar(1),
    [SaleGroup] nvarchar(1), [ManQty] float DEFAULT 0 NOT NULL, [ManPrice] float DEFAULT 0 NOT NULL,
    [SplitCode] int DEFAULT 0 NOT NULL, [SplitQty] int DEFAULT 0 NOT NULL,
    [SplitUnits] int DEFAULT 0 NOT NULL, [SplitPriceExcl] float DEFAULT 0 NOT NULL,
    [SplitPriceIncl] float DEFAULT 0 NOT NULL, [LoyaltyPnts] int DEFAULT 0 NOT NULL,
    [PickQty] float DEFAULT 0 NOT NULL, [PickBox] int DEFAULT 0 NOT NULL, [FabricItem] nvarchar(1),
    [SizeItem] nvarchar(1), [SizeCode] nvarchar(20), [DelMthd] nvarchar(10),
    [ImportTxTp] nvarchar(6), [ImportDocNo] nvarchar(20), [ImportRecID] int DEFAULT 0 NOT NULL,
    [PORequest] nvarchar(1), [POReqNo] int DEFAULT 0 NOT NULL, [POReqQty] float DEFAULT 0 NOT NULL,
    [CCYCode] nvarchar(5), [CCYRateDate] nvarchar(10), [CCYRate] float DEFAULT 0 NOT NULL,
    [CCYPriceExcl] float DEFAULT 0 NOT NULL, [CCYPriceIncl] float DEFAULT 0 NOT NULL,
    [CCYTotalExcl] float DEFAULT 0 NOT NULL, [CCYTotalIncl] float DEFAULT 0 NOT NULL,
    [CCYTax] float DEFAULT 0 NOT NULL, [LineNotes] nvarchar(max),
    [SallyDiscExcl] float DEFAULT 0 NOT NULL, [SallyDiscIncl] float DEFAULT 0 NOT NULL )
ALTER TABLE [dbo].[<table>]  DROP COLUMN [LicenseNo]
ALTER TABLE [dbo].[<table>]  DROP COLUMN [LicenseExpDate]
ALTER TABLE [dbo].[<table>]  DROP COLUMN [CashierID]
ALTER TABLE [dbo].[<table>]  DROP COLUMN [ExportDoc]
ALTER TABLE [dbo].[<table>]  DROP COLUMN [Transport]
ALTER TABLE [dbo].[<table>] ADD [LoyaltyPnts] int NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[<table>] ADD [FabricItem] nvarchar(1) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[<table>] ADD [SizeItem] nvarchar(1) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[<table>] ADD [SizeCode] nvarchar(20) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[<table>] ADD [DelMthd] nvarchar(10) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[<table>] ADD [CCYCode] nvarchar(5) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[<table>] ADD [CCYRateDate] nvarchar(10) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[<table>] ADD [CCYRate] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[<table>] ADD [CCYPriceExcl] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[<table>] ADD [CCYPriceIncl] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[<table>] ADD [CCYTotalExcl] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[<table>] ADD [CCYTotalIncl] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[<table>] ADD [CCYTax] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[<table>] ADD [Text3] nvarchar(100) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[<table>] ADD [Text4] nvarchar(100) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[<table>] ADD [ImportTxTp] nvarchar(6) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[<table>] ADD [ImportDocNo] nvarchar(20) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[<table>] ADD [ImportRecID] int NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[<table>] ADD [DispatchID] int NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[<table>] ADD [SallyDiscExcl] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[<table>] ADD [SallyDiscIncl] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[<table>] ADD [LineNotes] nvarchar(max) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[<table>] ADD [DispatchItem] nvarchar(1) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[<table>] ADD [PORequest] nvarchar(1) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[<table>] ADD [POReqNo] int NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[<table>] ADD [POReqQty] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[<table>]  ALTER COLUMN [SizeCode] nvarchar(20)
ALTER TABLE [dbo].[<table>]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[<table>]  ALTER COLUMN [Branch] nvarchar(10)
ALTER TABLE [dbo].[<table>]  ALTER COLUMN [SourceBranch] nvarchar(10)
ALTER TABLE [dbo].[<table>]  ALTER COLUMN [Description1] nvarchar(150)
ALTER TABLE [dbo].[<table>]  ALTER COLUMN [Description2] nvarchar(150)
CREATE NONCLUSTERED INDEX [DOCDetails_idx01] ON [dbo].[DOCDetails]  ([CO], [Branch], [TxTp], [DocNo], [StockCode], [LinkCode]) <options>
CREATE NONCLUSTERED INDEX [DOCDetails_idx02] ON [dbo].[DOCDetails]  ([CO], [Branch], [TillNo], [TxTp], [DocNo], [StockCode], [LinkCode]) <options>
CREATE NONCLUSTERED INDEX [POSParkDetails_idx01] ON [dbo].[POSParkDetails]  ([CO], [Branch], [TxTp], [DocNo]) <options>
CREATE NONCLUSTERED INDEX [TempDetails_idx01] ON [dbo].[TempDetails]  ([CO], [Branch], [TxTp], [DocNo], [LineNo], [StockCode], [LinkCode]) <options>
CREATE NONCLUSTERED INDEX [TempDetails_idx02] ON [dbo].[TempDetails]  ([CO], [Branch], [TxTp], [DocNo], [StockCode], [LinkCode], [LineNo]) <options>
CREATE NONCLUSTERED INDEX [TempDetails_idx03] ON [dbo].[TempDetails]  ([CO], [Branch], [TillNo], [TxTp], [DocNo]) <options>
CREATE NONCLUSTERED INDEX [TempComboDetails_idx01] ON [dbo].[TempComboDetails]  ([CO], [Branch], [TxTp], [DocNo], [StockCode], [LinkCode]) <options>
CREATE NONCLUSTERED INDEX [ImportDetails_idx02] ON [dbo].[ImportDetails]  ([CO], [Branch], [TxTp], [DocNo]) <options>

-- DOCPayments, TempPayments
CREATE TABLE [dbo].[<table>] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [TxTp] nvarchar(6), [TillNo] nvarchar(5), [DocNo] nvarchar(15),
    [PayCode] nvarchar(2), [LineNo] int DEFAULT 0 NOT NULL, [CheqNo] nvarchar(20),
    [CheqDate] nvarchar(10), [CheqAccNo] nvarchar(20), [CheqName] nvarchar(30),
    [CheqBank] nvarchar(20), [CardNo] nvarchar(50), [CardType] nvarchar(20),
    [CardExpDate] nvarchar(10), [CardCVC] nvarchar(5), [CardName] nvarchar(50),
    [CardBudget] int DEFAULT 0 NOT NULL, [Phone] nvarchar(20), [IDNo] nvarchar(20),
    [Amount] float DEFAULT 0 NOT NULL, [AuthCode] nvarchar(50), [BatchNo] nvarchar(10),
    [Supervisor] nvarchar(10), [Status] nvarchar(1), [VoucherType] nvarchar(1),
    [VoucherNo] nvarchar(20), [VoucherBranch] nvarchar(10), [VoucherExpDate] nvarchar(10),
    [VouchDate] nvarchar(10), [VouchName] nvarchar(50), [VouchAmount] float DEFAULT 0 NOT NULL,
    [CashUpNumber] nvarchar(20), [CashUpDate] nvarchar(10), [CashUpTime] nvarchar(10),
    [TranDate] nvarchar(10), [Account] nvarchar(10), [SourceBranch] nvarchar(10),
    [CCTerminalID] nvarchar(50), [CCSessionID] nvarchar(50), [CCAcceptorID] nvarchar(20),
    [CCAuthID] nvarchar(50), [CCRRN] nvarchar(50), [CCTxanID] int DEFAULT 0 NOT NULL,
    [CCMerchantID] nvarchar(50), [CCMerchantRef] nvarchar(50), [CCUUID] nvarchar(50),
    [CCPOSEntry] nvarchar(50), [CCPinStatement] nvarchar(30), [CCEMVAppLabel] nvarchar(50),
    [CCEMVAID] nvarchar(50), [CCEMVTVR] nvarchar(50), [CCEMVTSI] nvarchar(50),
    [CCEMVTC] nvarchar(50), [ReconNo] nvarchar(20), [CCYCode] nvarchar(5),
    [CCYRateDate] nvarchar(10), [CCYRate] float DEFAULT 0 NOT NULL,
    [CCYAmount] float DEFAULT 0 NOT NULL, [CCYChange] float DEFAULT 0 NOT NULL,
    [Signature] nvarchar(500), [Response] ntext, [BPNumber] nvarchar(20),
    [NoOfBox] int DEFAULT 0 NOT NULL )
ALTER TABLE [dbo].[<table>] ADD [ReconNo] nvarchar(20) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[<table>] ADD [NoOfBox] int NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[<table>] ADD [CCYCode] nvarchar(5) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[<table>] ADD [CCYRate] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[<table>] ADD [CCYRateDate] nvarchar(10) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[<table>] ADD [CCYAmount] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[<table>] ADD [CCYChange] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[<table>] ADD [Signature] nvarchar(500) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[<table>] ADD [Response] ntext NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[<table>] ADD [BPNumber] nvarchar(20) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[<table>]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[<table>]  ALTER COLUMN [Branch] nvarchar(10)
ALTER TABLE [dbo].[<table>]  ALTER COLUMN [SourceBranch] nvarchar(10)
CREATE NONCLUSTERED INDEX [DOCPayments_idx01] ON [dbo].[DOCPayments]  ([CO], [Branch], [TxTp], [DocNo], [PayCode]) <options>
CREATE NONCLUSTERED INDEX [TempPayments_idx01] ON [dbo].[TempPayments]  ([CO], [Branch], [TillNo], [TxTp], [DocNo]) <options>

-- DOCSerials, TempSerials
CREATE TABLE [dbo].[<table>] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [TxTp] nvarchar(12), [TillNo] nvarchar(10), [DocNo] nvarchar(30),
    [Account] nvarchar(20), [TranDate] nvarchar(20), [LineNo] int DEFAULT 0 NOT NULL,
    [StockCode] nvarchar(50), [LinkCode] nvarchar(50), [SerialNo] nvarchar(100),
    [LinkedSerialNo] nvarchar(100), [DispatchNo] int DEFAULT 0 NOT NULL,
    [NoOfBox] int DEFAULT 0 NOT NULL )
ALTER TABLE [dbo].[<table>] ADD [NoOfBox] int NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[<table>] ADD [DispatchNo] int NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[<table>]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[<table>]  ALTER COLUMN [Branch] nvarchar(10)
CREATE NONCLUSTERED INDEX [DOCSerials_idx01] ON [dbo].[DOCSerials]  ([CO], [Branch], [TxTp], [DocNo], [StockCode], [LinkCode], [SerialNo]) <options>
CREATE NONCLUSTERED INDEX [DOCSerials_idx02] ON [dbo].[DOCSerials]  ([CO], [Branch], [TxTp], [DocNo], [SerialNo], [StockCode], [LinkCode]) <options>
CREATE NONCLUSTERED INDEX [DOCSerials_idx03] ON [dbo].[DOCSerials]  ([CO], [Branch], [TillNo], [TxTp], [DocNo], [StockCode], [LinkCode]) <options>
CREATE NONCLUSTERED INDEX [DOCSerials_idx04] ON [dbo].[DOCSerials]  ([CO], [Branch], [TillNo], [TxTp], [DocNo], [LineNo]) <options>
CREATE NONCLUSTERED INDEX [TempSerials_idx01] ON [dbo].[TempSerials]  ([CO], [Branch], [TillNo], [TxTp], [DocNo]) <options>
CREATE NONCLUSTERED INDEX [TempSerials_idx02] ON [dbo].[TempSerials]  ([CO], [Branch], [TillNo], [TxTp], [DocNo], [SerialNo]) <options>
CREATE NONCLUSTERED INDEX [TempSerials_idx03] ON [dbo].[TempSerials]  ([CO], [Branch], [TillNo], [TxTp], [DocNo], [StockCode], [LinkCode]) <options>
CREATE NONCLUSTERED INDEX [TempSerials_idx04] ON [dbo].[TempSerials]  ([CO], [Branch], [TillNo], [TxTp], [DocNo], [LineNo]) <options>

-- DOCVouchers, TempVouchers
CREATE TABLE [dbo].[<table>] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [TxTp] nvarchar(12), [TillNo] nvarchar(10), [DocNo] nvarchar(30),
    [Account] nvarchar(20), [TranDate] nvarchar(20), [LineNo] int DEFAULT 0 NOT NULL,
    [Status] nvarchar(1), [MessageType] nvarchar(20), [PrintString] ntext,
    [Cost] float DEFAULT 0 NOT NULL, [HasVAT] nvarchar(10), [Value] float DEFAULT 0 NOT NULL,
    [VariableRate] nvarchar(10), [VoucherCode] nvarchar(20), [VoucherName] nvarchar(50),
    [Voidable] nvarchar(10), [SerialNo] nvarchar(20) )
CREATE NONCLUSTERED INDEX [DOCVouchers_idx01] ON [dbo].[DOCVouchers]  ([CO], [Branch], [TillNo], [TxTp], [DocNo], [SerialNo]) <options>
CREATE NONCLUSTERED INDEX [DOCVouchers_idx02] ON [dbo].[DOCVouchers]  ([CO], [Branch], [TxTp], [DocNo], [SerialNo]) <options>
CREATE NONCLUSTERED INDEX [DOCVouchers_idx03] ON [dbo].[DOCVouchers]  ([CO], [Branch], [TxTp], [DocNo], [SerialNo], [VoucherCode]) <options>
CREATE NONCLUSTERED INDEX [TempVouchers_idx01] ON [dbo].[TempVouchers]  ([CO], [Branch], [TillNo], [TxTp], [DocNo], [SerialNo]) <options>
CREATE NONCLUSTERED INDEX [TempVouchers_idx02] ON [dbo].[TempVouchers]  ([CO], [Branch], [TxTp], [DocNo], [SerialNo]) <options>
CREATE NONCLUSTERED INDEX [TempVouchers_idx03] ON [dbo].[TempVouchers]  ([CO], [Branch], [TxTp], [DocNo], [SerialNo], [VoucherCode]) <options>

-- DOCBluPayments, TempBluPayments
CREATE TABLE [dbo].[<table>] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [TxTp] nvarchar(12), [TillNo] nvarchar(10), [DocNo] nvarchar(30),
    [ProviderID] nvarchar(50), [ProductID] nvarchar(25), [AccountNo] nvarchar(25),
    [CustomerName] nvarchar(50), [CustomerSurname] nvarchar(50),
    [AmountDue] float DEFAULT 0 NOT NULL, [SessionID] nvarchar(50), [RefNo] nvarchar(30),
    [Message] nvarchar(1024), [CallCentre] nvarchar(50), [LocalAuthority] nvarchar(50),
    [NoticeNumber] nvarchar(20), [OffenceDateTime] nvarchar(20), [OffenceDesc] nvarchar(50),
    [VehicleRegNo] nvarchar(20), [OwnerIDNo] nvarchar(20), [OffenceLocation] nvarchar(50),
    [EventType] nvarchar(32), [EventCode] int DEFAULT 0 NOT NULL,
    [ErrorCode] int DEFAULT 0 NOT NULL, [ErrorText] nvarchar(max),
    [AeonErrorCode] int DEFAULT 0 NOT NULL, [AeonErrorText] nvarchar(max),
    [Reference] nvarchar(max), [TrxId] nvarchar(20), [BatchNumber] nvarchar(20),
    [TerminalId] nvarchar(10), [MerchantId] nvarchar(max), [TransNumber] int DEFAULT 0 NOT NULL,
    [TransReference] int DEFAULT 0 NOT NULL, [SysReference] nvarchar(max),
    [TransDateTime] nvarchar(20), [BusinessDate] nvarchar(10), [TransType] nvarchar(10),
    [AccountNumber] nvarchar(max), [Amount] float DEFAULT 0 NOT NULL, [Authoriser] nvarchar(max),
    [ProductName] nvarchar(max) )
ALTER TABLE [dbo].[<table>] ADD [EventType] nvarchar(32) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[<table>] ADD [EventCode] int NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[<table>] ADD [ErrorCode] int NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[<table>] ADD [ErrorText] nvarchar(max) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[<table>] ADD [AeonErrorCode] int NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[<table>] ADD [AeonErrorText] nvarchar(max) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[<table>] ADD [Reference] nvarchar(max) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[<table>] ADD [TrxId] nvarchar(20) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[<table>] ADD [BatchNumber] nvarchar(20) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[<table>] ADD [TerminalId] nvarchar(10) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[<table>] ADD [MerchantId] nvarchar(max) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[<table>] ADD [TransNumber] int NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[<table>] ADD [TransReference] int NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[<table>] ADD [SysReference] nvarchar(max) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[<table>] ADD [TransDateTime] nvarchar(20) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[<table>] ADD [BusinessDate] nvarchar(10) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[<table>] ADD [TransType] nvarchar(10) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[<table>] ADD [AccountNumber] nvarchar(max) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[<table>] ADD [Amount] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[<table>] ADD [Authoriser] nvarchar(max) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[<table>] ADD [ProductName] nvarchar(max) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[<table>] ADD [ProductID] nvarchar(25) NOT NULL DEFAULT ('')
CREATE NONCLUSTERED INDEX [DOCBluPayments_idx01] ON [dbo].[DOCBluPayments]  ([CO], [Branch], [TxTp], [DocNo]) <options>
CREATE NONCLUSTERED INDEX [DOCBluPayments_idx02] ON [dbo].[DOCBluPayments]  ([CO], [Branch], [TillNo], [TxTp], [DocNo]) <options>
CREATE NONCLUSTERED INDEX [TempBluPayments_idx01] ON [dbo].[TempBluPayments]  ([CO], [Branch], [TxTp], [DocNo]) <options>
CREATE NONCLUSTERED INDEX [TempBluPayments_idx02] ON [dbo].[TempBluPayments]  ([CO], [Branch], [TillNo], [TxTp], [DocNo]) <options>

-- DOCDetLineDisp, ORDDetLineDisp, TempDetLineDisp, POSParkDetLineDisp
CREATE TABLE [dbo].[<table>] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [TxTp] nvarchar(6), [TillNo] nvarchar(5), [DocNo] nvarchar(15),
    [Account] nvarchar(20), [StockCode] nvarchar(25), [LinkCode] nvarchar(25),
    [DispatchID] int DEFAULT 0 NOT NULL, [DelMthd] nvarchar(5), [DelMthdDesc] nvarchar(50),
    [Quantity] float DEFAULT 0 NOT NULL, [DelAddress1] nvarchar(40), [DelAddress2] nvarchar(40),
    [DelAddress3] nvarchar(40), [DelAddress4] nvarchar(40), [WH] nvarchar(5),
    [POReqNo] int DEFAULT 0 NOT NULL, [PaidTaken] nvarchar(1), [QtyDecimal] int DEFAULT 0 NOT NULL,
    [TileItem] nvarchar(1), [SQMBox] float DEFAULT 0 NOT NULL, [NoOfBox] nvarchar(5),
    [Notes] int DEFAULT 0 NOT NULL )
ALTER TABLE [dbo].[<table>] ADD [TileItem] nvarchar(1) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[<table>] ADD [QtyDecimal] int NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[<table>] ADD [NoOfBox] int NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[<table>] ADD [SQMBox] float NOT NULL DEFAULT (0)

-- DOCSignatures
CREATE TABLE [dbo].[DOCSignatures] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [TxTp] nvarchar(6), [DocNo] nvarchar(15), [Account] nvarchar(10),
    [SourceBranch] nvarchar(10), [DTODate] nvarchar(10), [DTOTime] nvarchar(8),
    [DTOUser] nvarchar(10), [DTOMacID] nvarchar(20), [SignImage] image )
CREATE NONCLUSTERED INDEX [DOCSignatures_idx01] ON [dbo].[DOCSignatures]  ([CO], [Branch], [TxTp], [DocNo], [Account]) <options>
