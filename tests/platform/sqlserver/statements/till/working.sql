-- TempDOCSignatures
CREATE TABLE [dbo].[TempDOCSignatures] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [TxTp] nvarchar(6), [DocNo] nvarchar(15), [Account] nvarchar(10),
    [SourceBranch] nvarchar(10), [DTODate] nvarchar(10), [DTOTime] nvarchar(8),
    [DTOUser] nvarchar(10), [DTOMacID] nvarchar(20), [SignImage] image )
CREATE NONCLUSTERED INDEX [TempDOCSignatures_idx01] ON [dbo].[TempDOCSignatures]  ([CO], [Branch], [TxTp], [DocNo], [Account]) <options>

-- TempGLGSplits
CREATE TABLE [dbo].[TempGLGSplits] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [GLSplitNo] int DEFAULT 0 NOT NULL, [GLAccNo] int DEFAULT 0 NOT NULL,
    [GLSubAccNo] int DEFAULT 0 NOT NULL, [GLAccDesc] nvarchar(50),
    [VATAmount] float DEFAULT 0 NOT NULL, [Amount] float DEFAULT 0 NOT NULL,
    [SourceBranch] nvarchar(10), [Details] nvarchar(100) )
ALTER TABLE [dbo].[TempGLGSplits] ADD [CO] nvarchar(10) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[TempGLGSplits] ADD [Branch] nvarchar(10) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[TempGLGSplits] ADD [SourceBranch] nvarchar(10) NOT NULL DEFAULT ('')
CREATE NONCLUSTERED INDEX [TempGLGSplits_idx01] ON [dbo].[TempGLGSplits]  ([GLSplitNo], [CO]) <options>
CREATE NONCLUSTERED INDEX [TempGLGSplits_idx02] ON [dbo].[TempGLGSplits]  ([CO], [GLSplitNo]) <options>
CREATE NONCLUSTERED INDEX [TempGLGSplits_idx03] ON [dbo].[TempGLGSplits]  ([CO], [SourceBranch], [GLSplitNo]) <options>

-- TempGRVDBinBox
CREATE TABLE [dbo].[TempGRVDBinBox] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [Account] nvarchar(10), [TxTp] nvarchar(6),
    [GRVNo] int DEFAULT 0 NOT NULL, [BoxNo] int DEFAULT 0 NOT NULL, [BoxLabel] nvarchar(50),
    [StockCode] nvarchar(25), [LinkCode] nvarchar(25), [WH] nvarchar(5), [BinLoc] nvarchar(20),
    [BinType] nvarchar(1), [BinQty] float DEFAULT 0 NOT NULL, [BinDate] nvarchar(10),
    [BinTime] nvarchar(8), [BinUser] nvarchar(10), [BinMacID] nvarchar(25),
    [BinStatus] nvarchar(1) )
CREATE NONCLUSTERED INDEX [TempGRVDBinBox_idx01] ON [dbo].[TempGRVDBinBox]  ([CO], [Branch], [TxTp], [GRVNo], [BoxNo], [StockCode], [LinkCode]) <options>

-- TempGRVDBoxes
CREATE TABLE [dbo].[TempGRVDBoxes] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [Account] nvarchar(10), [TxTp] nvarchar(6),
    [GRVNo] int DEFAULT 0 NOT NULL, [BoxNo] int DEFAULT 0 NOT NULL, [StockCode] nvarchar(25),
    [LinkCode] nvarchar(25), [Quantity] float DEFAULT 0 NOT NULL, [WH] nvarchar(5),
    [BoxStatus] nvarchar(1), [BinLoc] nvarchar(20), [BinDate] nvarchar(10), [BinTime] nvarchar(8),
    [BinUser] nvarchar(10), [BinMacID] nvarchar(25) )
ALTER TABLE [dbo].[TempGRVDBoxes] ADD [BoxLabel] nvarchar(50) NOT NULL DEFAULT ('')
CREATE NONCLUSTERED INDEX [TempGRVDBoxes_idx01] ON [dbo].[TempGRVDBoxes]  ([CO], [Branch], [TxTp], [GRVNo], [BoxNo], [StockCode], [LinkCode]) <options>

-- TempGRVDClm
CREATE TABLE [dbo].[TempGRVDClm] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [Account] nvarchar(10), [TxTp] nvarchar(6),
    [GRVNo] int DEFAULT 0 NOT NULL, [LineNo] int DEFAULT 0 NOT NULL, [StockCode] nvarchar(25),
    [LinkCode] nvarchar(25), [Description1] nvarchar(150), [Description2] nvarchar(150),
    [SuppCode] nvarchar(25), [BarCode] nvarchar(25), [ClaimCode] nvarchar(10),
    [ClaimDesc] nvarchar(50), [Quantity] float DEFAULT 0 NOT NULL, [Price] float DEFAULT 0 NOT NULL,
    [Price1] float DEFAULT 0 NOT NULL, [Price2] float DEFAULT 0 NOT NULL,
    [NetPrice] float DEFAULT 0 NOT NULL, [Discount] float DEFAULT 0 NOT NULL,
    [Total] float DEFAULT 0 NOT NULL, [TaxAmount] float DEFAULT 0 NOT NULL,
    [TaxRate] float DEFAULT 0 NOT NULL, [GLAccNo] int DEFAULT 0 NOT NULL, [VATCode] nvarchar(2),
    [Units] int DEFAULT 0 NOT NULL, [LinkQty] float DEFAULT 0 NOT NULL, [CCYCode] nvarchar(5),
    [CCYRateDate] nvarchar(10), [CCYRate] float DEFAULT 0 NOT NULL,
    [CCYPrice] float DEFAULT 0 NOT NULL, [CCYPrice1] float DEFAULT 0 NOT NULL,
    [CCYPrice2] float DEFAULT 0 NOT NULL, [CCYTotal] float DEFAULT 0 NOT NULL,
    [CCYTotalExcl] float DEFAULT 0 NOT NULL, [CCYTotalIncl] float DEFAULT 0 NOT NULL,
    [CCYTotalVAT] float DEFAULT 0 NOT NULL, [GLSubAccNo] int DEFAULT 0 NOT NULL )
ALTER TABLE [dbo].[TempGRVDClm] ADD [Units] int NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempGRVDClm] ADD [LinkQty] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempGRVDClm] ADD [GLAccNo] int NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempGRVDClm] ADD [GLSubAccNo] int NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempGRVDClm] ADD [CCYCode] nvarchar(5) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[TempGRVDClm] ADD [CCYRateDate] nvarchar(10) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[TempGRVDClm] ADD [CCYRate] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempGRVDClm] ADD [CCYPrice] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempGRVDClm] ADD [CCYPrice1] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempGRVDClm] ADD [CCYPrice2] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempGRVDClm] ADD [CCYTotal] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempGRVDClm] ADD [CCYTotalExcl] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempGRVDClm] ADD [CCYTotalIncl] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempGRVDClm] ADD [CCYTotalVAT] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempGRVDClm]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[TempGRVDClm]  ALTER COLUMN [Branch] nvarchar(10)
ALTER TABLE [dbo].[TempGRVDClm]  ALTER COLUMN [Description1] nvarchar(150)
ALTER TABLE [dbo].[TempGRVDClm]  ALTER COLUMN [Description2] nvarchar(150)
CREATE NONCLUSTERED INDEX [TempGRVDClm_idx01] ON [dbo].[TempGRVDClm]  ([CO], [Branch], [TxTp], [GRVNo], [LineNo], [StockCode], [LinkCode]) <options>

-- TempGRVDDisc
CREATE TABLE [dbo].[TempGRVDDisc] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [Account] nvarchar(10), [TxTp] nvarchar(6),
    [GRVNo] int DEFAULT 0 NOT NULL, [LineNo] int DEFAULT 0 NOT NULL, [StockCode] nvarchar(25),
    [LinkCode] nvarchar(25), [SeqNo] int DEFAULT 0 NOT NULL, [Code] nvarchar(10),
    [Description] nvarchar(50), [DiscMethod] nvarchar(1), [DiscType] nvarchar(1),
    [Discount] float DEFAULT 0 NOT NULL, [DiscValue] float DEFAULT 0 NOT NULL,
    [RecvPrice] float DEFAULT 0 NOT NULL, [Costed] nvarchar(1), [GLAccNo] int DEFAULT 0 NOT NULL,
    [GLSubAccNo] int DEFAULT 0 NOT NULL, [DiscountExcl] float DEFAULT 0 NOT NULL,
    [DiscountIncl] float DEFAULT 0 NOT NULL, [DiscountVAT] float DEFAULT 0 NOT NULL,
    [CCYCode] nvarchar(5), [CCYRateDate] nvarchar(10), [CCYRate] float DEFAULT 0 NOT NULL,
    [CCYTotal] float DEFAULT 0 NOT NULL )
ALTER TABLE [dbo].[TempGRVDDisc] ADD [Code] nvarchar(10) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[TempGRVDDisc] ADD [DiscountVAT] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempGRVDDisc] ADD [DiscountIncl] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempGRVDDisc] ADD [GLAccNo] int NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempGRVDDisc] ADD [GLSubAccNo] int NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempGRVDDisc] ADD [DiscountExcl] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempGRVDDisc] ADD [CCYCode] nvarchar(5) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[TempGRVDDisc] ADD [CCYRateDate] nvarchar(10) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[TempGRVDDisc] ADD [CCYRate] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempGRVDDisc] ADD [CCYTotal] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempGRVDDisc]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[TempGRVDDisc]  ALTER COLUMN [Branch] nvarchar(10)
CREATE NONCLUSTERED INDEX [TempGRVDDisc_idx01] ON [dbo].[TempGRVDDisc]  ([CO], [Branch], [TxTp], [GRVNo], [LineNo], [StockCode], [LinkCode], [SeqNo]) <options>

-- TempGRVDetl
CREATE TABLE [dbo].[TempGRVDetl] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [Account] nvarchar(10), [SubAccount] nvarchar(10), [TxTp] nvarchar(6),
    [GRVNo] int DEFAULT 0 NOT NULL, [LineNo] int DEFAULT 0 NOT NULL, [StockCode] nvarchar(25),
    [LinkCode] nvarchar(25), [Description1] nvarchar(150), [Description2] nvarchar(150),
    [StockType] nvarchar(1), [Status] nvarchar(1), [ScaleItem] nvarchar(1), [ScaleType] nvarchar(1),
    [WH] nvarchar(5), [RecvQty] float DEFAULT 0 NOT NULL, [RecvFreeQty] float DEFAULT 0 NOT NULL,
    [RecvPrice] float DEFAULT 0 NOT NULL, [RecvDiscount] float DEFAULT 0 NOT NULL,
    [RecvTotal] float DEFAULT 0 NOT NULL, [RecvTax] float DEFAULT 0 NOT NULL,
    [RecvNetUnit] float DEFAULT 0 NOT NULL, [RecvNNet] float DEFAULT 0 NOT NULL,
    [RecvWeight] float DEFAULT 0 NOT NULL, [RecvCases] int DEFAULT 0 NOT NULL,
    [RecvTaxCode] nvarchar(2), [RecvTotalIncl] float DEFAULT 0 NOT NULL,
    [RecvDocCharges] float DEFAULT 0 NOT NULL, [RecvDocDisc] float DEFAULT 0 NOT NULL,
    [RecvCCYPrice] float DEFAULT 0 NOT NULL, [RecvCCYDiscount] float DEFAULT 0 NOT NULL,
    [RecvCCYTotalExcl] float DEFAULT 0 NOT NULL, [RecvCCYTax] float DEFAULT 0 NOT NULL,
    [RecvCCYTotalIncl] float DEFAULT 0 NOT NULL, [TaxRate] float DEFAULT 0 NOT NULL,
    [Units] float DEFAULT 0 NOT NULL, [PackSize] nvarchar(10), [SuppCode] nvarchar(25),
    [BarCode] nvarchar(25), [OrderQty] float DEFAULT 0 NOT NULL,
    [OrderFreeQty] float DEFAULT 0 NOT NULL, [OrderPrice] float DEFAULT 0 NOT NULL,
    [InvQty] float DEFAULT 0 NOT NULL, [InvFreeQty] float DEFAULT 0 NOT NULL,
    [InvPrice] float DEFAULT 0 NOT NULL, [InvTotal] float DEFAULT 0 NOT NULL,
    [InvDiscount] float DEFAULT 0 NOT NULL, [InvTax] float DEFAULT 0 NOT NULL,
    [InvWeight] float DEFAULT 0 NOT NULL, [InvCases] int DEFAULT 0 NOT NULL,
    [InvCCYPrice] float DEFAULT 0 NOT NULL, [InvCCYDiscount] float DEFAULT 0 NOT NULL,
    [InvCCYTotalExcl] float DEFAULT 0 NOT NULL, [InvCCYTax] float DEFAULT 0 NOT NULL,
    [InvCCYTotalIncl] float DEFAULT 0 NOT NULL, [TileItem] nvarchar(1),
    [TileBatchTrack] nvarchar(1), [FabricItem] nvarchar(1), [RollCnt] int DEFAULT 0 NOT NULL,
    [SQMbox] float DEFAULT 0 NOT NULL, [Cases] float DEFAULT 0 NOT NULL, [ForeignCCY] nvarchar(10),
    [Rate] float DEFAULT 0 NOT NULL, [RebateCost] float DEFAULT 0 NOT NULL,
    [RebateNCost] float DEFAULT 0 NOT NULL, [InputRTotal] nvarchar(1), [InputITotal] nvarchar(1),
    [LinkQty] float DEFAULT 0 NOT NULL, [LinkCodeNetCost] float DEFAULT 0 NOT NULL,
    [DTODate] nvarchar(10), [DTOTime] nvarchar(8), [DTOUser] nvarchar(10), [DTOMacID] nvarchar(20),
    [BaseType] nvarchar(10), [BaseRef] nvarchar(20), [BaseLine] int DEFAULT 0 NOT NULL,
    [AP] int DEFAULT 0 NOT NULL, [GRVDate] nvarchar(10), [TaxIndicator] nvarchar(1),
    [ReturnLine] nvarchar(1), [InvLinkQty] float DEFAULT 0 NOT NULL,
    [RecvFreeLinkQty] float DEFAULT 0 NOT NULL, [InvFreeLinkQty] float DEFAULT 0 NOT NULL,
    [DocCharges] float DEFAULT 0 NOT NULL, [DocDiscounts] float DEFAULT 0 NOT NULL,
    [SerialTrack] nvarchar(1), [VirtualCard] nvarchar(1), [DocTallyExcl] float DEFAULT 0 NOT NULL,
    [DocTallyIncl] float DEFAULT 0 NOT NULL, [LineTallyExcl] float DEFAULT 0 NOT NULL,
    [LineTallyIncl] float DEFAULT 0 NOT NULL, [TonnageRebCosted] float DEFAULT 0 NOT NULL,
    [TonnageRebNonCosted] float DEFAULT 0 NOT NULL, [ReturnReason] nvarchar(250),
    [CostDecimal] int DEFAULT 0 NOT NULL, [QtyDecimal] int DEFAULT 0 NOT NULL,
    [OrderNo] int DEFAULT 0 NOT NULL, [OrderLineNo] int DEFAULT 0 NOT NULL,
    [OrderLineRecID] int DEFAULT 0 NOT NULL, [SizeItem] nvarchar(1) )
ALTER TABLE [dbo].[TempGRVDetl] ADD [TileItem] nvarchar(1) NOT NULL DEFAULT ('N')
ALTER TABLE [dbo].[TempGRVDetl] ADD [TileBatchTrack] nvarchar(1) NOT NULL DEFAULT ('N')
ALTER TABLE [dbo].[TempGRVDetl] ADD [SizeItem] nvarchar(1) NOT NULL DEFAULT ('N')
ALTER TABLE [dbo].[TempGRVDetl] ADD [InvCCYPrice] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempGRVDetl] ADD [InvCCYDiscount] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempGRVDetl] ADD [InvCCYTotalExcl] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempGRVDetl] ADD [InvCCYTax] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempGRVDetl] ADD [InvCCYTotalIncl] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempGRVDetl] ADD [RecvCCYPrice] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempGRVDetl] ADD [RecvCCYDiscount] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempGRVDetl] ADD [RecvCCYTotalExcl] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempGRVDetl] ADD [RecvCCYTax] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempGRVDetl] ADD [RecvCCYTotalIncl] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempGRVDetl] ADD [OrderNo] int NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempGRVDetl] ADD [OrderLineNo] int NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempGRVDetl] ADD [OrderLineRecID] int NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempGRVDetl] ADD [FabricItem] nvarchar(1) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[TempGRVDetl] ADD [RolLCnt] int NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempGRVDetl]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[TempGRVDetl]  ALTER COLUMN [Branch] nvarchar(10)
ALTER TABLE [dbo].[TempGRVDetl]  ALTER COLUMN [Description1] nvarchar(150)
ALTER TABLE [dbo].[TempGRVDetl]  ALTER COLUMN [Description2] nvarchar(150)
CREATE NONCLUSTERED INDEX [TempGRVDetl_idx01] ON [dbo].[TempGRVDetl]  ([CO], [Branch], [TxTp], [GRVNo], [LineNo], [StockCode], [LinkCode]) <options>

-- TempGRVDPrice
CREATE TABLE [dbo].[TempGRVDPrice] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [Account] nvarchar(10), [TxTp] nvarchar(6),
    [GRVNo] int DEFAULT 0 NOT NULL, [LineNo] int DEFAULT 0 NOT NULL, [StockCode] nvarchar(25),
    [LinkCode] nvarchar(25), [PriceCode] nvarchar(10), [Description] nvarchar(50),
    [FreeItem] nvarchar(1), [UpdateVariants] nvarchar(1), [Excl] float DEFAULT 0 NOT NULL,
    [Incl] float DEFAULT 0 NOT NULL, [OldExcl] float DEFAULT 0 NOT NULL,
    [OldIncl] float DEFAULT 0 NOT NULL, [MUP] float DEFAULT 0 NOT NULL,
    [GP] float DEFAULT 0 NOT NULL, [OldMUP] float DEFAULT 0 NOT NULL,
    [OldGP] float DEFAULT 0 NOT NULL )
ALTER TABLE [dbo].[TempGRVDPrice] ADD [UpdateVariants] nvarchar(1) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[TempGRVDPrice]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[TempGRVDPrice]  ALTER COLUMN [Branch] nvarchar(10)
CREATE NONCLUSTERED INDEX [TempGRVDPrice_idx01] ON [dbo].[TempGRVDPrice]  ([CO], [Branch], [TxTp], [GRVNo], [LineNo], [StockCode], [LinkCode], [PriceCode]) <options>

-- TempGRVDReb
CREATE TABLE [dbo].[TempGRVDReb] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [Account] nvarchar(10), [SubAccount] nvarchar(10), [TxTp] nvarchar(6),
    [GRVNo] int DEFAULT 0 NOT NULL, [LineNo] int DEFAULT 0 NOT NULL, [StockCode] nvarchar(25),
    [LinkCode] nvarchar(25), [SequenceNo] int DEFAULT 0 NOT NULL, [RebateNo] int DEFAULT 0 NOT NULL,
    [RebateCode] nvarchar(10), [Description] nvarchar(50), [RebatePerc] float DEFAULT 0 NOT NULL,
    [RebateValue] float DEFAULT 0 NOT NULL, [Rebate] float DEFAULT 0 NOT NULL,
    [Quantity] float DEFAULT 0 NOT NULL, [RebateTotal] float DEFAULT 0 NOT NULL,
    [RebateVAT] float DEFAULT 0 NOT NULL, [ClaimMethod] nvarchar(1), [ClaimFreq] nvarchar(1),
    [Costed] nvarchar(1), [Settlement] nvarchar(1), [ProfitCalc] nvarchar(1),
    [DTODate] nvarchar(10), [DTOTime] nvarchar(8), [DTOUser] nvarchar(10), [DTOMacID] nvarchar(25),
    [Units] int DEFAULT 0 NOT NULL, [LinkQty] float DEFAULT 0 NOT NULL,
    [CostedToRebate] nvarchar(1), [BuyGroupAcc] nvarchar(10) )
ALTER TABLE [dbo].[TempGRVDReb]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[TempGRVDReb]  ALTER COLUMN [Branch] nvarchar(10)
CREATE NONCLUSTERED INDEX [TempGRVDReb_idx01] ON [dbo].[TempGRVDReb]  ([CO], [Branch], [TxTp], [GRVNo], [LineNo], [StockCode], [LinkCode], [SequenceNo]) <options>

-- TempGRVDScan
CREATE TABLE [dbo].[TempGRVDScan] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [Account] nvarchar(10), [TxTp] nvarchar(6),
    [GRVNo] int DEFAULT 0 NOT NULL, [LineNo] int DEFAULT 0 NOT NULL, [StockCode] nvarchar(25),
    [LinkCode] nvarchar(25), [Description1] nvarchar(150), [Units] int DEFAULT 0 NOT NULL,
    [PackSize] nvarchar(10), [ScanCode] nvarchar(25), [ScanQty] float DEFAULT 0 NOT NULL,
    [OrdQty] float DEFAULT 0 NOT NULL, [InvQty] float DEFAULT 0 NOT NULL, [Notes] nvarchar(250),
    [DTODate] nvarchar(10), [DTOTime] nvarchar(8), [DTOUser] nvarchar(10), [DTOMacID] nvarchar(20) )
ALTER TABLE [dbo].[TempGRVDScan]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[TempGRVDScan]  ALTER COLUMN [Branch] nvarchar(10)
ALTER TABLE [dbo].[TempGRVDScan]  ALTER COLUMN [Description1] nvarchar(150)

-- TempGRVDSer
CREATE TABLE [dbo].[TempGRVDSer] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [Account] nvarchar(10), [TxTp] nvarchar(6),
    [GRVNo] int DEFAULT 0 NOT NULL, [LineNo] int DEFAULT 0 NOT NULL, [StockCode] nvarchar(25),
    [LinkCode] nvarchar(25), [SerialNo] nvarchar(25), [RecvDate] nvarchar(10),
    [Period] int DEFAULT 0 NOT NULL, [ExpireDate] nvarchar(10), [NoOfBox] int DEFAULT 0 NOT NULL,
    [DispatchNo] int DEFAULT 0 NOT NULL )
ALTER TABLE [dbo].[TempGRVDSer]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[TempGRVDSer]  ALTER COLUMN [Branch] nvarchar(10)
CREATE NONCLUSTERED INDEX [TempGRVDSer_idx01] ON [dbo].[TempGRVDSer]  ([CO], [Branch], [TxTp], [GRVNo], [LineNo], [StockCode], [LinkCode], [SerialNo]) <options>

-- TempGRVDTally
CREATE TABLE [dbo].[TempGRVDTally] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [Account] nvarchar(10), [TxTp] nvarchar(6),
    [GRVNo] int DEFAULT 0 NOT NULL, [LineNo] int DEFAULT 0 NOT NULL, [StockCode] nvarchar(25),
    [LinkCode] nvarchar(25), [ClaimCode] nvarchar(10), [Description] nvarchar(50),
    [ValueType] nvarchar(1), [Value] float DEFAULT 0 NOT NULL,
    [ClaimAmountExcl] float DEFAULT 0 NOT NULL, [ClaimAmountIncl] float DEFAULT 0 NOT NULL,
    [ClaimNo] int DEFAULT 0 NOT NULL )
ALTER TABLE [dbo].[TempGRVDTally]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[TempGRVDTally]  ALTER COLUMN [Branch] nvarchar(10)
CREATE NONCLUSTERED INDEX [TempGRVDTally_idx01] ON [dbo].[TempGRVDTally]  ([CO], [Branch], [TxTp], [GRVNo], [LineNo], [StockCode], [LinkCode], [ClaimCode]) <options>

-- TempGRVDSizes
CREATE TABLE [dbo].[TempGRVDSizes] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [Account] nvarchar(10), [TxTp] nvarchar(6),
    [GRVNo] int DEFAULT 0 NOT NULL, [LineNo] int DEFAULT 0 NOT NULL, [StockCode] nvarchar(25),
    [LinkCode] nvarchar(25), [Seq] int DEFAULT 0 NOT NULL, [SizeCode] nvarchar(20),
    [Quantity] float DEFAULT 0 NOT NULL, [CostExcl] float DEFAULT 0 NOT NULL,
    [CostIncl] float DEFAULT 0 NOT NULL, [SellExcl] float DEFAULT 0 NOT NULL,
    [SellIncl] float DEFAULT 0 NOT NULL )
CREATE NONCLUSTERED INDEX [TempGRVDSizes_idx01] ON [dbo].[TempGRVDSizes]  ([CO], [Branch], [TxTp], [GRVNo], [LineNo], [StockCode], [SizeCode]) <options>

-- TempGRVHChg
CREATE TABLE [dbo].[TempGRVHChg] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [Account] nvarchar(10), [TxTp] nvarchar(6),
    [GRVNo] int DEFAULT 0 NOT NULL, [CHGDesc] nvarchar(50), [CHGType] nvarchar(1),
    [CHGValue] float DEFAULT 0 NOT NULL, [CHGTotal] float DEFAULT 0 NOT NULL,
    [ChgVAT] float DEFAULT 0 NOT NULL, [CHGIncl] float DEFAULT 0 NOT NULL, [Costed] nvarchar(1),
    [GLAccNo] int DEFAULT 0 NOT NULL, [Supplier] nvarchar(20), [SubAccount] nvarchar(20),
    [ChgCode] nvarchar(10), [VATCode] nvarchar(2), [VATRate] float DEFAULT 0 NOT NULL,
    [GLSubAccNo] int DEFAULT 0 NOT NULL, [CCYCode] nvarchar(5), [CCYRateDate] nvarchar(10),
    [CCYRate] float DEFAULT 0 NOT NULL, [CCYTotal] float DEFAULT 0 NOT NULL )
ALTER TABLE [dbo].[TempGRVHChg] ADD [GLAccNo] int NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempGRVHChg] ADD [GLSubAccNo] int NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempGRVHChg] ADD [ChgCode] nvarchar(10) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[TempGRVHChg] ADD [CCYCode] nvarchar(5) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[TempGRVHChg] ADD [CCYRateDate] nvarchar(10) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[TempGRVHChg] ADD [CCYRate] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempGRVHChg] ADD [CCYTotal] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempGRVHChg] ADD [VATCode] nvarchar(2) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[TempGRVHChg] ADD [VATRate] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempGRVHChg]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[TempGRVHChg]  ALTER COLUMN [Branch] nvarchar(10)
CREATE NONCLUSTERED INDEX [TempGRVHChg_idx01] ON [dbo].[TempGRVHChg]  ([CO], [Branch], [TxTp], [GRVNo]) <options>

-- TempGRVHDisc
CREATE TABLE [dbo].[TempGRVHDisc] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [Account] nvarchar(10), [TxTp] nvarchar(6),
    [GRVNo] int DEFAULT 0 NOT NULL, [SeqNo] int DEFAULT 0 NOT NULL, [Code] nvarchar(10),
    [Description] nvarchar(50), [DiscMethod] nvarchar(1), [DiscType] nvarchar(1),
    [DiscValue] float DEFAULT 0 NOT NULL, [Discount] float DEFAULT 0 NOT NULL,
    [DiscountVAT] float DEFAULT 0 NOT NULL, [DiscountIncl] float DEFAULT 0 NOT NULL,
    [GLAccNo] int DEFAULT 0 NOT NULL, [Costed] nvarchar(1), [CCYCode] nvarchar(5),
    [CCYRateDate] nvarchar(10), [CCYRate] float DEFAULT 0 NOT NULL,
    [CCYTotal] float DEFAULT 0 NOT NULL, [GLSubAccNo] int DEFAULT 0 NOT NULL )
ALTER TABLE [dbo].[TempGRVHDisc] ADD [Code] nvarchar(10) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[TempGRVHDisc] ADD [DiscountVAT] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempGRVHDisc] ADD [DiscountIncl] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempGRVHDisc] ADD [GLAccNo] int NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempGRVHDisc] ADD [GLSubAccNo] int NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempGRVHDisc] ADD [CCYCode] nvarchar(5) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[TempGRVHDisc] ADD [CCYRateDate] nvarchar(10) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[TempGRVHDisc] ADD [CCYRate] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempGRVHDisc] ADD [CCYTotal] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempGRVHDisc]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[TempGRVHDisc]  ALTER COLUMN [Branch] nvarchar(10)
CREATE NONCLUSTERED INDEX [TempGRVHDisc_idx01] ON [dbo].[TempGRVHDisc]  ([CO], [Branch], [TxTp], [GRVNo], [SeqNo]) <options>
CREATE NONCLUSTERED INDEX [TempGRVHDisc_idx02] ON [dbo].[TempGRVHDisc]  ([CO], [Branch], [TxTp], [GRVNo], [Code], [SeqNo]) <options>

-- TempGRVHead
CREATE TABLE [dbo].[TempGRVHead] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [Account] nvarchar(10), [SubAccount] nvarchar(10), [TxTp] nvarchar(6),
    [GRVNo] int DEFAULT 0 NOT NULL, [GRVDate] nvarchar(10), [DocNo] nvarchar(20),
    [DocDate] nvarchar(10), [DocType] nvarchar(1), [DocReference] nvarchar(20),
    [DocTotalIncl] float DEFAULT 0 NOT NULL, [DocTotalExcl] float DEFAULT 0 NOT NULL,
    [DocTax] float DEFAULT 0 NOT NULL, [GRVTotalExcl] float DEFAULT 0 NOT NULL,
    [GRVTotalIncl] float DEFAULT 0 NOT NULL, [GRVTax] float DEFAULT 0 NOT NULL,
    [GRVDiscount] float DEFAULT 0 NOT NULL, [GRVTallyExcl] float DEFAULT 0 NOT NULL,
    [GRVTallyIncl] float DEFAULT 0 NOT NULL, [GRVReturnsExcl] float DEFAULT 0 NOT NULL,
    [GRVReturnsVAT] float DEFAULT 0 NOT NULL, [CreditorPost] nvarchar(1),
    [TaxIndicator] nvarchar(1), [Currency] nvarchar(10), [Tonnage] float DEFAULT 0 NOT NULL,
    [TonnageRebExcl] float DEFAULT 0 NOT NULL, [TonnageRebIncl] float DEFAULT 0 NOT NULL,
    [Rate] float DEFAULT 0 NOT NULL, [OrderNo] int DEFAULT 0 NOT NULL, [WH] nvarchar(10),
    [Driver] nvarchar(30), [TruckRegNo] nvarchar(20), [GRVBookNo] int DEFAULT 0 NOT NULL,
    [GRVStatus] nvarchar(1), [CCYCode] nvarchar(5), [CCYRateDate] nvarchar(10),
    [CCYRate] float DEFAULT 0 NOT NULL, [CCYDocTotal] float DEFAULT 0 NOT NULL,
    [CCYDocTax] float DEFAULT 0 NOT NULL, [CreateDate] nvarchar(10), [CreateTime] nvarchar(8),
    [CreateUser] nvarchar(10), [CreateMacID] nvarchar(20), [AuthUser] nvarchar(10),
    [AuthDate] nvarchar(10), [AuthTime] nvarchar(8), [AuthMacID] nvarchar(20),
    [INVTotal] float DEFAULT 0 NOT NULL, [INVTax] float DEFAULT 0 NOT NULL, [SAPDocNo] nvarchar(20),
    [PostDate] nvarchar(10), [DueDate] nvarchar(10), [InvDate] nvarchar(10),
    [AP] int DEFAULT 0 NOT NULL, [DetailLines] int DEFAULT 0 NOT NULL, [Version] nvarchar(20),
    [InUse] nvarchar(30), [FreeStockGRV] nvarchar(1), [InterCO] nvarchar(1) )
ALTER TABLE [dbo].[TempGRVHead] ADD [CCYCode] nvarchar(5) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[TempGRVHead] ADD [CCYRateDate] nvarchar(10) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[TempGRVHead] ADD [CCYRate] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempGRVHead] ADD [CCYDocTotal] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempGRVHead] ADD [CCYDocTax] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempGRVHead] ADD [GRVBookNo] int NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempGRVHead]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[TempGRVHead]  ALTER COLUMN [Branch] nvarchar(10)
CREATE NONCLUSTERED INDEX [TempGRVHead_idx01] ON [dbo].[TempGRVHead]  ([CO], [Branch], [TxTp], [GRVNo]) <options>

-- TempGRVHSupp
CREATE TABLE [dbo].[TempGRVHSupp] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [Account] nvarchar(10), [TxTp] nvarchar(6),
    [GRVNo] int DEFAULT 0 NOT NULL, [Supplier] nvarchar(10), [Name] nvarchar(50),
    [DocNo] nvarchar(20), [DocTotalIncl] float DEFAULT 0 NOT NULL,
    [DocTotalExcl] float DEFAULT 0 NOT NULL, [DocTax] float DEFAULT 0 NOT NULL,
    [ClaimReason] nvarchar(10), [ClaimTotal] float DEFAULT 0 NOT NULL, [Transporter] nvarchar(1),
    [VATCode] nvarchar(2), [VATRate] float DEFAULT 0 NOT NULL, [CCYCode] nvarchar(5),
    [CCYRateDate] nvarchar(10), [CCYRate] float DEFAULT 0 NOT NULL,
    [CCYDocTax] float DEFAULT 0 NOT NULL, [CCYTotal] float DEFAULT 0 NOT NULL )
ALTER TABLE [dbo].[TempGRVHSupp] ADD [Transporter] nvarchar(1) NOT NULL DEFAULT ('N')
ALTER TABLE [dbo].[TempGRVHSupp] ADD [CCYCode] nvarchar(5) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[TempGRVHSupp] ADD [CCYRateDate] nvarchar(10) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[TempGRVHSupp] ADD [CCYRate] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempGRVHSupp] ADD [CCYDocTax] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempGRVHSupp] ADD [CCYTotal] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempGRVHSupp] ADD [VATCode] nvarchar(2) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[TempGRVHSupp] ADD [VATRate] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempGRVHSupp]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[TempGRVHSupp]  ALTER COLUMN [Branch] nvarchar(10)
CREATE NONCLUSTERED INDEX [TempGRVHSupp_idx01] ON [dbo].[TempGRVHSupp]  ([CO], [Branch], [TxTp], [GRVNo], [DocNo]) <options>
CREATE NONCLUSTERED INDEX [TempGRVHSupp_idx02] ON [dbo].[TempGRVHSupp]  ([CO], [Branch], [TxTp], [GRVNo], [Supplier], [DocNo]) <options>

-- TempGRVHTally
CREATE TABLE [dbo].[TempGRVHTally] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [Account] nvarchar(10), [TxTp] nvarchar(6),
    [GRVNo] int DEFAULT 0 NOT NULL, [ClaimCode] nvarchar(10), [Description] nvarchar(50),
    [ValueType] nvarchar(1), [Value] float DEFAULT 0 NOT NULL,
    [ClaimAmountExcl] float DEFAULT 0 NOT NULL, [ClaimAmountIncl] float DEFAULT 0 NOT NULL,
    [ClaimNo] int DEFAULT 0 NOT NULL )
ALTER TABLE [dbo].[TempGRVHTally]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[TempGRVHTally]  ALTER COLUMN [Branch] nvarchar(10)
CREATE NONCLUSTERED INDEX [TempGRVHTally_idx01] ON [dbo].[TempGRVHTally]  ([CO], [Branch], [TxTp], [GRVNo], [ClaimCode]) <options>

-- TempGRVHPOrd
CREATE TABLE [dbo].[TempGRVHPOrd] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [Account] nvarchar(20), [TxTp] nvarchar(6),
    [GRVNo] int DEFAULT 0 NOT NULL, [OrderNo] int DEFAULT 0 NOT NULL, [Imported] nvarchar(1) )
ALTER TABLE [dbo].[TempGRVHPOrd]  ALTER COLUMN [TxTp] nvarchar(6)
CREATE NONCLUSTERED INDEX [TempGRVHPOrd_idx01] ON [dbo].[TempGRVHPOrd]  ([CO], [Branch], [TxTp], [GRVNo], [OrderNo]) <options>

-- TempPurOrdDet
CREATE TABLE [dbo].[TempPurOrdDet] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [Account] nvarchar(10), [SubAccount] nvarchar(10),
    [OrderNo] int DEFAULT 0 NOT NULL, [StockCode] nvarchar(25), [LinkCode] nvarchar(25),
    [Description1] nvarchar(150), [Description2] nvarchar(150), [Quantity] float DEFAULT 0 NOT NULL,
    [FreeQty] float DEFAULT 0 NOT NULL, [RecvQty] float DEFAULT 0 NOT NULL,
    [BalQty] float DEFAULT 0 NOT NULL, [Price] float DEFAULT 0 NOT NULL,
    [PriceExcl] float DEFAULT 0 NOT NULL, [PriceIncl] float DEFAULT 0 NOT NULL,
    [Discount] float DEFAULT 0 NOT NULL, [VAT] float DEFAULT 0 NOT NULL,
    [TotalExcl] float DEFAULT 0 NOT NULL, [TotalIncl] float DEFAULT 0 NOT NULL,
    [VATIndicator] nvarchar(1), [FreeStockInd] nvarchar(1), [SellExcl] float DEFAULT 0 NOT NULL,
    [SellIncl] float DEFAULT 0 NOT NULL, [AvgCostExcl] float DEFAULT 0 NOT NULL,
    [AvgCostIncl] float DEFAULT 0 NOT NULL, [BuyCostExcl] float DEFAULT 0 NOT NULL,
    [BuyCostIncl] float DEFAULT 0 NOT NULL, [ListCostExcl] float DEFAULT 0 NOT NULL,
    [ListCostIncl] float DEFAULT 0 NOT NULL, [GRVQuantity] float DEFAULT 0 NOT NULL,
    [GRVCostExcl] float DEFAULT 0 NOT NULL, [GRVCostIncl] float DEFAULT 0 NOT NULL,
    [TotalUnits] float DEFAULT 0 NOT NULL, [TotalCases] float DEFAULT 0 NOT NULL,
    [TotalPalettes] float DEFAULT 0 NOT NULL, [TotalWeight] float DEFAULT 0 NOT NULL,
    [Dimension] float DEFAULT 0 NOT NULL, [SerialTrack] nvarchar(1), [SizeItem] nvarchar(1),
    [Barcode] nvarchar(25), [SuppCode] nvarchar(50), [DTODate] nvarchar(10), [DTOTime] nvarchar(8),
    [DTOUser] nvarchar(10), [DTOMacID] nvarchar(20), [LineNo] int DEFAULT 0 NOT NULL,
    [VATCode] nvarchar(2), [VATRate] float DEFAULT 0 NOT NULL, [SuggExcl] float DEFAULT 0 NOT NULL,
    [SuggIncl] float DEFAULT 0 NOT NULL, [BalanceQty] float DEFAULT 0 NOT NULL, [WH] nvarchar(5),
    [RecFreeQty] float DEFAULT 0 NOT NULL, [BalFreeQty] float DEFAULT 0 NOT NULL,
    [Units] int DEFAULT 0 NOT NULL, [LinkQty] float DEFAULT 0 NOT NULL,
    [LinkFreeQty] float DEFAULT 0 NOT NULL, [LinkRecvQty] float DEFAULT 0 NOT NULL,
    [LinkBalQty] float DEFAULT 0 NOT NULL, [LinkRecvFreeQty] float DEFAULT 0 NOT NULL,
    [LinkBalFreeQty] float DEFAULT 0 NOT NULL, [DocClaimExcl] float DEFAULT 0 NOT NULL,
    [DocClaimIncl] float DEFAULT 0 NOT NULL, [LineClaimExcl] float DEFAULT 0 NOT NULL,
    [LineClaimIncl] float DEFAULT 0 NOT NULL, [ScanQty] float DEFAULT 0 NOT NULL,
    [ScanLinkQty] float DEFAULT 0 NOT NULL, [Onhand] float DEFAULT 0 NOT NULL,
    [BackOrders] float DEFAULT 0 NOT NULL, [Supplier] nvarchar(10),
    [MinQty] float DEFAULT 0 NOT NULL, [MaxQty] float DEFAULT 0 NOT NULL, [PurCardRule] nvarchar(1),
    [QtyDecimal] int DEFAULT 0 NOT NULL, [CostDecimal] int DEFAULT 0 NOT NULL,
    [SellDecimal] int DEFAULT 0 NOT NULL, [Periods] int DEFAULT 0 NOT NULL,
    [PeriodDays] int DEFAULT 0 NOT NULL, [PeriodOrder] int DEFAULT 0 NOT NULL,
    [PeriodAvgCalcInd] nvarchar(1), [Period1] float DEFAULT 0 NOT NULL,
    [Period2] float DEFAULT 0 NOT NULL, [Period3] float DEFAULT 0 NOT NULL,
    [Period4] float DEFAULT 0 NOT NULL, [Period5] float DEFAULT 0 NOT NULL,
    [Period6] float DEFAULT 0 NOT NULL, [Period7] float DEFAULT 0 NOT NULL,
    [Period8] float DEFAULT 0 NOT NULL, [Period9] float DEFAULT 0 NOT NULL,
    [Period10] float DEFAULT 0 NOT NULL, [Period11] float DEFAULT 0 NOT NULL,
    [Period12] float DEFAULT 0 NOT NULL, [PeriodDays1] int DEFAULT 0 NOT NULL,
    [PeriodDays2] int DEFAULT 0 NOT NULL, [PeriodDays3] int DEFAULT 0 NOT NULL,
    [PeriodDays4] int DEFAULT 0 NOT NULL, [PeriodDays5] int DEFAULT 0 NOT NULL,
    [TileItem] nvarchar(1), [SqmBox] float DEFAULT 0 NOT NULL, [TileSize] nvarchar(20),
    [TileGrade] nvarchar(20), [NoOfBox] int DEFAULT 0 NOT NULL, [CCYCode] nvarchar(5),
    [CCYRateDate] nvarchar(10), [CCYRate] float DEFAULT 0 NOT NULL,
    [CCYTotalExcl] float DEFAULT 0 NOT NULL, [CCYTotalIncl] float DEFAULT 0 NOT NULL,
    [CCYTotalVAT] float DEFAULT 0 NOT NULL )
ALTER TABLE [dbo].[TempPurOrdDet] ADD [Periods] int NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempPurOrdDet] ADD [PeriodDays] int NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempPurOrdDet] ADD [PeriodDays1] int NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempPurOrdDet] ADD [PeriodDays2] int NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempPurOrdDet] ADD [PeriodDays3] int NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempPurOrdDet] ADD [PeriodDays4] int NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempPurOrdDet] ADD [PeriodDays5] int NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempPurOrdDet] ADD [Period1] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempPurOrdDet] ADD [Period2] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempPurOrdDet] ADD [Period3] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempPurOrdDet] ADD [Period4] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempPurOrdDet] ADD [Period5] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempPurOrdDet] ADD [Period6] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempPurOrdDet] ADD [Period7] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempPurOrdDet] ADD [Period8] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempPurOrdDet] ADD [Period9] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempPurOrdDet] ADD [Period10] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempPurOrdDet] ADD [Period11] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempPurOrdDet] ADD [Period12] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempPurOrdDet] ADD [PeriodOrder] int NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempPurOrdDet] ADD [PeriodAvgCalcInd] nvarchar(1) NOT NULL DEFAULT ('N')
ALTER TABLE [dbo].[TempPurOrdDet] ADD [PurCardRule] nvarchar(1) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[TempPurOrdDet] ADD [SizeItem] nvarchar(1) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[TempPurOrdDet] ADD [QtyDecimal] int NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempPurOrdDet] ADD [CostDecimal] int NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempPurOrdDet] ADD [SellDecimal] int NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempPurOrdDet] ADD [TileItem] nvarchar(1) NOT NULL DEFAULT ('N')
ALTER TABLE [dbo].[TempPurOrdDet] ADD [SqmBox] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempPurOrdDet] ADD [TileSize] nvarchar(20) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[TempPurOrdDet] ADD [TileGrade] nvarchar(20) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[TempPurOrdDet] ADD [NoOfBox] int NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempPurOrdDet] ADD [CCYCode] nvarchar(5) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[TempPurOrdDet] ADD [CCYRate] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempPurOrdDet] ADD [CCYRateDate] nvarchar(10) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[TempPurOrdDet] ADD [CCYTotalExcl] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempPurOrdDet] ADD [CCYTotalIncl] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempPurOrdDet] ADD [CCYTotalVAT] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempPurOrdDet]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[TempPurOrdDet]  ALTER COLUMN [Branch] nvarchar(10)
ALTER TABLE [dbo].[TempPurOrdDet]  ALTER COLUMN [Description1] nvarchar(150)
ALTER TABLE [dbo].[TempPurOrdDet]  ALTER COLUMN [Description2] nvarchar(150)
CREATE NONCLUSTERED INDEX [TempPurOrdDet_idx01] ON [dbo].[TempPurOrdDet]  ([CO], [Branch], [Account], [OrderNo], [LineNo], [StockCode], [LinkCode]) <options>

-- TempPurOrdDetClaim
CREATE TABLE [dbo].[TempPurOrdDetClaim] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [Account] nvarchar(10), [OrderNo] int DEFAULT 0 NOT NULL,
    [LineNo] int DEFAULT 0 NOT NULL, [StockCode] nvarchar(25), [LinkCode] nvarchar(25),
    [ClaimCode] nvarchar(10), [ClaimDesc] nvarchar(50), [ApplyToCost] nvarchar(1),
    [AmountExcl] float DEFAULT 0 NOT NULL, [AmountIncl] float DEFAULT 0 NOT NULL,
    [TotalAmountExcl] float DEFAULT 0 NOT NULL, [TotalAmountIncl] float DEFAULT 0 NOT NULL,
    [CCYCode] nvarchar(5), [CCYRateDate] nvarchar(10), [CCYRate] float DEFAULT 0 NOT NULL,
    [CCYTotalExcl] float DEFAULT 0 NOT NULL, [CCYTotalIncl] float DEFAULT 0 NOT NULL,
    [CCYTotalVAT] float DEFAULT 0 NOT NULL, [DealNo] int DEFAULT 0 NOT NULL )
ALTER TABLE [dbo].[TempPurOrdDetClaim] ADD [LineNo] int NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempPurOrdDetClaim] ADD [CCYCode] nvarchar(5) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[TempPurOrdDetClaim] ADD [CCYRate] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempPurOrdDetClaim] ADD [CCYRateDate] nvarchar(10) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[TempPurOrdDetClaim] ADD [CCYTotalExcl] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempPurOrdDetClaim] ADD [CCYTotalIncl] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempPurOrdDetClaim] ADD [CCYTotalVAT] float NOT NULL DEFAULT (0)
CREATE NONCLUSTERED INDEX [TempPurOrdDetClaim_idx01] ON [dbo].[TempPurOrdDetClaim]  ([CO], [Branch], [Account], [OrderNo], [LineNo], [StockCode], [LinkCode], [ClaimCode]) <options>

-- TempPurOrdDetDis
CREATE TABLE [dbo].[TempPurOrdDetDis] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [Account] nvarchar(10), [SubAccount] nvarchar(10),
    [OrderNo] int DEFAULT 0 NOT NULL, [StockCode] nvarchar(25), [LinkCode] nvarchar(25),
    [LineNo] int DEFAULT 0 NOT NULL, [SequenceNo] int DEFAULT 0 NOT NULL,
    [DiscountCode] nvarchar(10), [Description] nvarchar(50), [DiscountMethod] nvarchar(1),
    [DiscountType] nvarchar(1), [Costed] nvarchar(1), [DiscValue] float DEFAULT 0 NOT NULL,
    [Discount] float DEFAULT 0 NOT NULL, [DiscountExcl] float DEFAULT 0 NOT NULL,
    [DiscountIncl] float DEFAULT 0 NOT NULL, [FreeStockCode] nvarchar(25),
    [FreeLinkCode] nvarchar(25), [FreeDescription1] nvarchar(150), [FreeDescription2] nvarchar(150),
    [FreeQuantity] float DEFAULT 0 NOT NULL, [FreePerQty] float DEFAULT 0 NOT NULL,
    [CCYCode] nvarchar(5), [CCYRateDate] nvarchar(10), [CCYRate] float DEFAULT 0 NOT NULL,
    [CCYDiscExcl] float DEFAULT 0 NOT NULL, [CCYDiscIncl] float DEFAULT 0 NOT NULL,
    [CCYDiscount] float DEFAULT 0 NOT NULL, [DTODate] nvarchar(10), [DTOTime] nvarchar(8),
    [DTOUser] nvarchar(10), [DTOMacID] nvarchar(20) )
ALTER TABLE [dbo].[TempPurOrdDetDis] ADD [CCYCode] nvarchar(5) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[TempPurOrdDetDis] ADD [CCYRate] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempPurOrdDetDis] ADD [CCYRateDate] nvarchar(10) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[TempPurOrdDetDis] ADD [CCYDiscExcl] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempPurOrdDetDis] ADD [CCYDiscIncl] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempPurOrdDetDis] ADD [CCYDiscount] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempPurOrdDetDis]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[TempPurOrdDetDis]  ALTER COLUMN [Branch] nvarchar(10)
CREATE NONCLUSTERED INDEX [TempPurOrdDetDis_idx01] ON [dbo].[TempPurOrdDetDis]  ([CO], [Branch], [Account], [OrderNo], [LineNo], [StockCode], [LinkCode], [SequenceNo]) <options>

-- TempPurOrdDetPrice
CREATE TABLE [dbo].[TempPurOrdDetPrice] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [Account] nvarchar(10), [OrderNo] int DEFAULT 0 NOT NULL,
    [LineNo] int DEFAULT 0 NOT NULL, [StockCode] nvarchar(25), [LinkCode] nvarchar(25),
    [PriceCode] nvarchar(10), [Description] nvarchar(50), [UpdateVariants] nvarchar(1),
    [Units] int DEFAULT 0 NOT NULL, [Excl] float DEFAULT 0 NOT NULL,
    [Incl] float DEFAULT 0 NOT NULL, [MUP] float DEFAULT 0 NOT NULL, [GP] float DEFAULT 0 NOT NULL,
    [OldExcl] float DEFAULT 0 NOT NULL, [OldIncl] float DEFAULT 0 NOT NULL,
    [OldMUP] float DEFAULT 0 NOT NULL, [OldGP] float DEFAULT 0 NOT NULL )
ALTER TABLE [dbo].[TempPurOrdDetPrice] ADD [UpdateVariants] nvarchar(1) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[TempPurOrdDetPrice]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[TempPurOrdDetPrice]  ALTER COLUMN [Branch] nvarchar(10)
CREATE NONCLUSTERED INDEX [TempPurOrdDetPrice_idx01] ON [dbo].[TempPurOrdDetPrice]  ([CO], [Branch], [Account], [OrderNo], [LineNo], [StockCode], [LinkCode], [PriceCode]) <options>

-- TempPurOrdDetSizes
CREATE TABLE [dbo].[TempPurOrdDetSizes] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [Account] nvarchar(10), [SubAccount] nvarchar(10),
    [OrderNo] int DEFAULT 0 NOT NULL, [LineNo] int DEFAULT 0 NOT NULL, [StockCode] nvarchar(25),
    [LinkCode] nvarchar(25), [Seq] int DEFAULT 0 NOT NULL, [SizeCode] nvarchar(20),
    [Quantity] float DEFAULT 0 NOT NULL, [CostExcl] float DEFAULT 0 NOT NULL,
    [CostIncl] float DEFAULT 0 NOT NULL, [SellExcl] float DEFAULT 0 NOT NULL,
    [SellIncl] float DEFAULT 0 NOT NULL )
CREATE NONCLUSTERED INDEX [TempPurOrdDetSizes_idx01] ON [dbo].[TempPurOrdDetSizes]  ([CO], [Branch], [Account], [OrderNo], [LineNo], [StockCode], [LinkCode], [SizeCode]) <options>

-- TempPurOrdHdr
CREATE TABLE [dbo].[TempPurOrdHdr] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [Account] nvarchar(10), [SubAccount] nvarchar(10),
    [OrderNo] int DEFAULT 0 NOT NULL, [OrderDate] nvarchar(10), [DeliveryDate] nvarchar(10),
    [DeliveryTime] nvarchar(8), [Name] nvarchar(50), [Address1] nvarchar(40),
    [Address2] nvarchar(40), [Address3] nvarchar(40), [Address4] nvarchar(40),
    [PostalCode] nvarchar(4), [Telephone] nvarchar(40), [Fax] nvarchar(40), [Email] nvarchar(60),
    [Contact] nvarchar(30), [Buyer] nvarchar(20), [TermCode] nvarchar(1), [Reference] nvarchar(30),
    [OrdCardNo] int DEFAULT 0 NOT NULL, [GRVNo] int DEFAULT 0 NOT NULL, [Status] nvarchar(1),
    [VATIndicator] nvarchar(1), [TotalCases] float DEFAULT 0 NOT NULL,
    [TotalPallettes] float DEFAULT 0 NOT NULL, [TotalWeight] float DEFAULT 0 NOT NULL,
    [TotalDiscount] float DEFAULT 0 NOT NULL, [TotalDimension] float DEFAULT 0 NOT NULL,
    [TotalVAT] float DEFAULT 0 NOT NULL, [TotalExcl] float DEFAULT 0 NOT NULL,
    [TotalIncl] float DEFAULT 0 NOT NULL, [Notes] ntext, [DTODate] nvarchar(10),
    [DTOTime] nvarchar(8), [DTOUser] nvarchar(10), [DTOMacID] nvarchar(20),
    [SuggOrdExcl] float DEFAULT 0 NOT NULL, [SuggOrdIncl] float DEFAULT 0 NOT NULL,
    [WH] nvarchar(5), [CommMethod] nvarchar(1), [PurCardRule] nvarchar(1), [Approved] nvarchar(1),
    [ApproveDate] nvarchar(10), [ApprovedUser] nvarchar(20), [ApprocedUser] nvarchar(20),
    [PaymentDate] nvarchar(10), [DueOverride] nvarchar(1), [DetailLines] int DEFAULT 0 NOT NULL,
    [ExtendedTerms] nvarchar(1), [ExtendedDays] int DEFAULT 0 NOT NULL, [ExtendedDate] nvarchar(10),
    [DestCO] nvarchar(10), [DestBranch] nvarchar(10), [DEBAccount] nvarchar(20),
    [Indicators] nvarchar(20), [BaseType] nvarchar(6), [BaseRef] nvarchar(20),
    [SuppAcc] nvarchar(20), [Version] nvarchar(20), [Inuse] nvarchar(30),
    [DoctallyExcl] float DEFAULT 0 NOT NULL, [DoctallyIncl] float DEFAULT 0 NOT NULL,
    [DEBRefAccount] nvarchar(20), [CCYCode] nvarchar(5), [CCYRateDate] nvarchar(10),
    [CCYRate] float DEFAULT 0 NOT NULL, [CCYTotalExcl] float DEFAULT 0 NOT NULL,
    [CCYTotalIncl] float DEFAULT 0 NOT NULL, [CCYTotalVAT] float DEFAULT 0 NOT NULL )
ALTER TABLE [dbo].[TempPurOrdHdr] ADD [DEBRefAccount] nvarchar(20) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[TempPurOrdHdr] ADD [PurCardRule] nvarchar(1) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[TempPurOrdHdr] ADD [CCYCode] nvarchar(5) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[TempPurOrdHdr] ADD [CCYRate] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempPurOrdHdr] ADD [CCYRateDate] nvarchar(10) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[TempPurOrdHdr] ADD [CCYTotalExcl] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempPurOrdHdr] ADD [CCYTotalIncl] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempPurOrdHdr] ADD [CCYTotalVAT] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempPurOrdHdr]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[TempPurOrdHdr]  ALTER COLUMN [Branch] nvarchar(10)
ALTER TABLE [dbo].[TempPurOrdHdr]  ALTER COLUMN [DestCO] nvarchar(10)
ALTER TABLE [dbo].[TempPurOrdHdr]  ALTER COLUMN [DestBranch] nvarchar(10)
CREATE NONCLUSTERED INDEX [TempPurOrdHdr_idx01] ON [dbo].[TempPurOrdHdr]  ([CO], [Branch], [Account], [OrderNo]) <options>

-- TempPurOrdHdrRule
CREATE TABLE [dbo].[TempPurOrdHdrRule] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [Account] nvarchar(10), [OrderNo] int DEFAULT 0 NOT NULL,
    [Supplier] nvarchar(10), [PurCardRule] nvarchar(1), [UseCost] nvarchar(1),
    [IgnoreBackOrd] nvarchar(1), [PurchaseItems] nvarchar(1), [OrderType] nvarchar(1),
    [OrderDays] int DEFAULT 0 NOT NULL, [SalesMonths] int DEFAULT 0 NOT NULL,
    [IncludeZeroMths] nvarchar(1), [LeadDays] int DEFAULT 0 NOT NULL, [FromDate] nvarchar(10),
    [ToDate] nvarchar(10), [Periods] int DEFAULT 0 NOT NULL, [PeriodDays] int DEFAULT 0 NOT NULL,
    [PeriodOrder] int DEFAULT 0 NOT NULL, [PeriodAvgCalcInd] nvarchar(1),
    [CriteriaSelected] nvarchar(1), [AltSupplierItems] nvarchar(1) )
ALTER TABLE [dbo].[TempPurOrdHdrRule] ADD [AltSupplierItems] nvarchar(1) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[TempPurOrdHdrRule] ADD [SalesOrder] nvarchar(1) NOT NULL DEFAULT ('')

-- TempPurOrdHdrClaim
CREATE TABLE [dbo].[TempPurOrdHdrClaim] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [Account] nvarchar(10), [OrderNo] int DEFAULT 0 NOT NULL,
    [ClaimCode] nvarchar(10), [ClaimDesc] nvarchar(50), [ApplyToCost] nvarchar(1),
    [AmountExcl] float DEFAULT 0 NOT NULL, [AmountIncl] float DEFAULT 0 NOT NULL,
    [CCYCode] nvarchar(5), [CCYRateDate] nvarchar(10), [CCYRate] float DEFAULT 0 NOT NULL,
    [CCYTotalExcl] float DEFAULT 0 NOT NULL, [CCYTotalIncl] float DEFAULT 0 NOT NULL,
    [DealNo] int DEFAULT 0 NOT NULL )
ALTER TABLE [dbo].[TempPurOrdHdrClaim] ADD [CCYCode] nvarchar(5) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[TempPurOrdHdrClaim] ADD [CCYRate] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempPurOrdHdrClaim] ADD [CCYRateDate] nvarchar(10) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[TempPurOrdHdrClaim] ADD [CCYTotalExcl] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempPurOrdHdrClaim] ADD [CCYTotalIncl] float NOT NULL DEFAULT (0)
CREATE NONCLUSTERED INDEX [TempPurOrdHdrClaim_idx01] ON [dbo].[TempPurOrdHdrClaim]  ([CO], [Branch], [Account], [OrderNo], [ClaimCode]) <options>

-- TempPurOrdHdrDis
CREATE TABLE [dbo].[TempPurOrdHdrDis] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [Account] nvarchar(10), [SubAccount] nvarchar(10),
    [OrderNo] int DEFAULT 0 NOT NULL, [SequenceNo] int DEFAULT 0 NOT NULL,
    [DiscountCode] nvarchar(10), [Description] nvarchar(50), [DiscMethod] nvarchar(1),
    [DiscType] nvarchar(1), [Costed] nvarchar(1), [Discount] float DEFAULT 0 NOT NULL,
    [DiscountExcl] float DEFAULT 0 NOT NULL, [DiscountIncl] float DEFAULT 0 NOT NULL,
    [CCYCode] nvarchar(5), [CCYRateDate] nvarchar(10), [CCYRate] float DEFAULT 0 NOT NULL,
    [CCYDiscExcl] float DEFAULT 0 NOT NULL, [CCYDiscIncl] float DEFAULT 0 NOT NULL,
    [DTODate] nvarchar(10), [DTOTime] nvarchar(8), [DTOUser] nvarchar(10), [DTOMacID] nvarchar(20) )
ALTER TABLE [dbo].[TempPurOrdHdrDis] ADD [CCYCode] nvarchar(5) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[TempPurOrdHdrDis] ADD [CCYRate] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempPurOrdHdrDis] ADD [CCYRateDate] nvarchar(10) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[TempPurOrdHdrDis] ADD [CCYDiscExcl] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempPurOrdHdrDis] ADD [CCYDiscIncl] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempPurOrdHdrDis]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[TempPurOrdHdrDis]  ALTER COLUMN [Branch] nvarchar(10)
CREATE NONCLUSTERED INDEX [TempPurOrdHdrDis_idx01] ON [dbo].[TempPurOrdHdrDis]  ([CO], [Branch], [Account], [OrderNo], [SequenceNo]) <options>

-- TempUpliftDet
CREATE TABLE [dbo].[TempUpliftDet] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [Account] nvarchar(10), [DocNo] nvarchar(20), [TranDate] nvarchar(10),
    [LineNo] int DEFAULT 0 NOT NULL, [StockCode] nvarchar(25), [LinkCode] nvarchar(25),
    [Description1] nvarchar(150), [Description2] nvarchar(150), [StockType] nvarchar(1),
    [AP] int DEFAULT 0 NOT NULL, [Quantity] float DEFAULT 0 NOT NULL,
    [LinkQty] float DEFAULT 0 NOT NULL, [Price] float DEFAULT 0 NOT NULL,
    [PriceExcl] float DEFAULT 0 NOT NULL, [PriceIncl] float DEFAULT 0 NOT NULL,
    [TotalExcl] float DEFAULT 0 NOT NULL, [TotalIncl] float DEFAULT 0 NOT NULL,
    [TotalVAT] float DEFAULT 0 NOT NULL, [Units] float DEFAULT 0 NOT NULL, [VATCode] nvarchar(2),
    [VATRate] float DEFAULT 0 NOT NULL, [VATIndicator] nvarchar(1), [SuppCode] nvarchar(25),
    [BarCode] nvarchar(25), [Weight] float DEFAULT 0 NOT NULL, [Status] nvarchar(1),
    [Notes] nvarchar(1024) )
ALTER TABLE [dbo].[TempUpliftDet]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[TempUpliftDet]  ALTER COLUMN [Branch] nvarchar(10)
ALTER TABLE [dbo].[TempUpliftDet]  ALTER COLUMN [Description1] nvarchar(150)
ALTER TABLE [dbo].[TempUpliftDet]  ALTER COLUMN [Description2] nvarchar(150)
CREATE NONCLUSTERED INDEX [TempUpliftDet_idx01] ON [dbo].[TempUpliftDet]  ([CO], [Branch], [Account], [DocNo], [StockCode], [LinkCode]) <options>

-- TempUpliftHdr
CREATE TABLE [dbo].[TempUpliftHdr] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [Account] nvarchar(10), [DocNo] nvarchar(20), [TranDate] nvarchar(10),
    [TotalIncl] float DEFAULT 0 NOT NULL, [TotalExcl] float DEFAULT 0 NOT NULL,
    [TotalVAT] float DEFAULT 0 NOT NULL, [AP] int DEFAULT 0 NOT NULL, [Status] nvarchar(1),
    [VATIndicator] nvarchar(1), [RetnNo] int DEFAULT 0 NOT NULL, [RetnDate] nvarchar(10),
    [InterCO] nvarchar(1), [Notes] nvarchar(1024), [CreateDate] nvarchar(10),
    [CreateTime] nvarchar(8), [CreateUser] nvarchar(10), [CreateMacID] nvarchar(20),
    [AuthUser] nvarchar(10), [AuthDate] nvarchar(10), [AuthTime] nvarchar(8),
    [AuthMacID] nvarchar(20) )
ALTER TABLE [dbo].[TempUpliftHdr]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[TempUpliftHdr]  ALTER COLUMN [Branch] nvarchar(10)
CREATE NONCLUSTERED INDEX [TempUpliftHdr_idx01] ON [dbo].[TempUpliftHdr]  ([CO], [Branch], [Account], [DocNo]) <options>

-- TempPURXPODet
CREATE TABLE [dbo].[TempPURXPODet] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [OrderNo] int DEFAULT 0 NOT NULL, [OrderDate] nvarchar(10),
    [LineNo] int DEFAULT 0 NOT NULL, [StockCode] nvarchar(25), [LinkCode] nvarchar(25),
    [Description1] nvarchar(150), [Description2] nvarchar(150), [Barcode] nvarchar(25),
    [SuppCode] nvarchar(50), [NappiCode] nvarchar(10), [VendorCode] nvarchar(30),
    [VendorName] nvarchar(50), [Quantity] float DEFAULT 0 NOT NULL, [WH] nvarchar(5),
    [Price] float DEFAULT 0 NOT NULL, [PriceExcl] float DEFAULT 0 NOT NULL,
    [PriceIncl] float DEFAULT 0 NOT NULL, [Units] int DEFAULT 0 NOT NULL,
    [VAT] float DEFAULT 0 NOT NULL, [TotalExcl] float DEFAULT 0 NOT NULL,
    [TotalIncl] float DEFAULT 0 NOT NULL, [VATIndicator] nvarchar(1),
    [SellExcl] float DEFAULT 0 NOT NULL, [SellIncl] float DEFAULT 0 NOT NULL,
    [AvgCostExcl] float DEFAULT 0 NOT NULL, [AvgCostIncl] float DEFAULT 0 NOT NULL,
    [BuyCostExcl] float DEFAULT 0 NOT NULL, [BuyCostIncl] float DEFAULT 0 NOT NULL,
    [ListCostExcl] float DEFAULT 0 NOT NULL, [ListCostIncl] float DEFAULT 0 NOT NULL,
    [TotalUnits] float DEFAULT 0 NOT NULL, [TotalCases] float DEFAULT 0 NOT NULL,
    [TotalPalettes] float DEFAULT 0 NOT NULL, [TotalWeight] float DEFAULT 0 NOT NULL,
    [Dimension] float DEFAULT 0 NOT NULL, [VATCode] nvarchar(2), [VATRate] float DEFAULT 0 NOT NULL,
    [LinkQty] float DEFAULT 0 NOT NULL, [Onhand] float DEFAULT 0 NOT NULL,
    [MinQty] float DEFAULT 0 NOT NULL, [MaxQty] float DEFAULT 0 NOT NULL, [Supplier] nvarchar(10),
    [Periods] int DEFAULT 0 NOT NULL, [PeriodDays] int DEFAULT 0 NOT NULL,
    [PeriodOrder] int DEFAULT 0 NOT NULL, [PeriodAvgCalcInd] nvarchar(1),
    [PeriodDays1] float DEFAULT 0 NOT NULL, [PeriodDays2] float DEFAULT 0 NOT NULL,
    [PeriodDays3] float DEFAULT 0 NOT NULL, [PeriodDays4] float DEFAULT 0 NOT NULL,
    [PeriodDays5] float DEFAULT 0 NOT NULL, [Period1] float DEFAULT 0 NOT NULL,
    [Period2] float DEFAULT 0 NOT NULL, [Period3] float DEFAULT 0 NOT NULL,
    [Period4] float DEFAULT 0 NOT NULL, [Period5] float DEFAULT 0 NOT NULL,
    [Period6] float DEFAULT 0 NOT NULL, [Period7] float DEFAULT 0 NOT NULL,
    [Period8] float DEFAULT 0 NOT NULL, [Period9] float DEFAULT 0 NOT NULL,
    [Period10] float DEFAULT 0 NOT NULL, [Period11] float DEFAULT 0 NOT NULL,
    [Period12] float DEFAULT 0 NOT NULL, [XPCQuantity] float DEFAULT 0 NOT NULL,
    [XPCPriceExcl] float DEFAULT 0 NOT NULL, [XPCPriceIncl] float DEFAULT 0 NOT NULL,
    [XPCTotalExcl] float DEFAULT 0 NOT NULL, [XPCTotalIncl] float DEFAULT 0 NOT NULL,
    [XPCOrdRef] int DEFAULT 0 NOT NULL, [XPCOrdNo] int DEFAULT 0 NOT NULL )
ALTER TABLE [dbo].[TempPURXPODet]  ALTER COLUMN [Description1] nvarchar(150)
ALTER TABLE [dbo].[TempPURXPODet]  ALTER COLUMN [Description2] nvarchar(150)
CREATE NONCLUSTERED INDEX [TempPURXPODet_idx01] ON [dbo].[TempPURXPODet]  ([CO], [Branch], [OrderNo], [StockCode], [LinkCode]) <options>
CREATE NONCLUSTERED INDEX [TempPURXPODet_idx02] ON [dbo].[TempPURXPODet]  ([CO], [Branch], [OrderNo], [SuppCode], [StockCode], [LinkCode]) <options>
CREATE NONCLUSTERED INDEX [TempPURXPODet_idx03] ON [dbo].[TempPURXPODet]  ([CO], [Branch], [OrderNo], [VendorCode], [SuppCode]) <options>
CREATE NONCLUSTERED INDEX [TempPURXPODet_idx04] ON [dbo].[TempPURXPODet]  ([CO], [Branch], [OrderNo], [XPCOrdRef], [Barcode]) <options>
CREATE NONCLUSTERED INDEX [TempPURXPODet_idx05] ON [dbo].[TempPURXPODet]  ([CO], [Branch], [OrderNo], [XPCOrdNo], [Barcode]) <options>

-- TempPURXPODetPrice
CREATE TABLE [dbo].[TempPURXPODetPrice] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [Account] nvarchar(10), [OrderNo] int DEFAULT 0 NOT NULL,
    [LineNo] int DEFAULT 0 NOT NULL, [StockCode] nvarchar(25), [LinkCode] nvarchar(25),
    [PriceCode] nvarchar(10), [Description] nvarchar(50), [Units] int DEFAULT 0 NOT NULL,
    [Excl] float DEFAULT 0 NOT NULL, [Incl] float DEFAULT 0 NOT NULL,
    [MUP] float DEFAULT 0 NOT NULL, [GP] float DEFAULT 0 NOT NULL,
    [OldExcl] float DEFAULT 0 NOT NULL, [OldIncl] float DEFAULT 0 NOT NULL,
    [OldMUP] float DEFAULT 0 NOT NULL, [OldGP] float DEFAULT 0 NOT NULL )
CREATE NONCLUSTERED INDEX [TempPURXPODetPrice_idx01] ON [dbo].[TempPURXPODetPrice]  ([CO], [Branch], [OrderNo], [StockCode], [LinkCode], [PriceCode]) <options>

-- TempPURXPOHdr
CREATE TABLE [dbo].[TempPURXPOHdr] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [OrderType] nvarchar(1), [OrderNo] int DEFAULT 0 NOT NULL,
    [OrderDate] nvarchar(10), [Status] nvarchar(1), [VATIndicator] nvarchar(1),
    [OrdLineCnt] int DEFAULT 0 NOT NULL, [OrdTotalCases] float DEFAULT 0 NOT NULL,
    [OrdTotalPallettes] float DEFAULT 0 NOT NULL, [OrdTotalWeight] float DEFAULT 0 NOT NULL,
    [OrdTotalDimension] float DEFAULT 0 NOT NULL, [OrdTotalVAT] float DEFAULT 0 NOT NULL,
    [OrdTotalExcl] float DEFAULT 0 NOT NULL, [OrdTotalIncl] float DEFAULT 0 NOT NULL,
    [WH] nvarchar(5), [XPCReplyDate] nvarchar(10), [XPCOrdRef] int DEFAULT 0 NOT NULL,
    [XPCLineCnt] int DEFAULT 0 NOT NULL, [XPCTotalExcl] float DEFAULT 0 NOT NULL,
    [XPCTotalIncl] float DEFAULT 0 NOT NULL, [InUse] nvarchar(30), [CreateDate] nvarchar(10),
    [CreateTime] nvarchar(8), [CreateUser] nvarchar(10), [CreateMacID] nvarchar(20),
    [AuthDate] nvarchar(10), [AuthTime] nvarchar(8), [AuthUser] nvarchar(10),
    [AuthMacID] nvarchar(20) )
CREATE NONCLUSTERED INDEX [TempPURXPOHdr_idx01] ON [dbo].[TempPURXPOHdr]  ([CO], [Branch], [Status], [OrderNo]) <options>
CREATE NONCLUSTERED INDEX [TempPURXPOHdr_idx02] ON [dbo].[TempPURXPOHdr]  ([CO], [Branch], [OrderNo]) <options>
CREATE NONCLUSTERED INDEX [TempPURXPOHdr_idx03] ON [dbo].[TempPURXPOHdr]  ([CO], [Branch], [XPCOrdRef]) <options>
CREATE NONCLUSTERED INDEX [TempPURXPOHdr_idx04] ON [dbo].[TempPURXPOHdr]  ([CO], [Branch], [OrderDate], [OrderNo]) <options>

-- TempPURXPOHdrRule
CREATE TABLE [dbo].[TempPURXPOHdrRule] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(5),
    [Branch] nvarchar(5), [OrderNo] int DEFAULT 0 NOT NULL, [LineNo] int DEFAULT 0 NOT NULL,
    [StockCode] nvarchar(25), [LinkCode] nvarchar(25), [PriceCode] nvarchar(10),
    [Description] nvarchar(50), [Units] int DEFAULT 0 NOT NULL, [Excl] float DEFAULT 0 NOT NULL,
    [Incl] float DEFAULT 0 NOT NULL, [MUP] float DEFAULT 0 NOT NULL, [GP] float DEFAULT 0 NOT NULL,
    [OldExcl] float DEFAULT 0 NOT NULL, [OldIncl] float DEFAULT 0 NOT NULL,
    [OldMUP] float DEFAULT 0 NOT NULL, [OldGP] float DEFAULT 0 NOT NULL )
CREATE NONCLUSTERED INDEX [TempPURXPOHdrRule_idx01] ON [dbo].[TempPURXPOHdrRule]  ([CO], [Branch], [OrderNo]) <options>

-- TempDocHdr
CREATE TABLE [dbo].[TempDocHdr] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [TxTp] nvarchar(6), [DocNo] int DEFAULT 0 NOT NULL,
    [TranDate] nvarchar(10), [Reference] nvarchar(50), [Details] nvarchar(50),
    [TotalExcl] float DEFAULT 0 NOT NULL, [TotalIncl] float DEFAULT 0 NOT NULL,
    [DocVAT] float DEFAULT 0 NOT NULL, [FromBranch] nvarchar(10), [ToBranch] nvarchar(10),
    [FromWH] nvarchar(10), [ToWH] nvarchar(10), [PrintPrice] nvarchar(1), [PriceCat] nvarchar(2),
    [Status] nvarchar(1), [SAPDocNo] nvarchar(20), [CreateUser] nvarchar(10),
    [CreateDate] nvarchar(10), [CreateTime] nvarchar(8), [CreateMacID] nvarchar(20),
    [AuthUser] nvarchar(10), [AuthDate] nvarchar(10), [Authtime] nvarchar(8),
    [AuthMacID] nvarchar(20), [AdjReason] nvarchar(10), [StockTake] nvarchar(1),
    [BaseTxTp] nvarchar(6), [BaseDoc] nvarchar(20), [BaseRef] nvarchar(20), [Notes] nvarchar(2048),
    [AP] int DEFAULT 0 NOT NULL, [DetailLines] int DEFAULT 0 NOT NULL,
    [GLTrace] int DEFAULT 0 NOT NULL, [IBRReqNo] int DEFAULT 0 NOT NULL, [IBTType] nvarchar(1),
    [IBTRebate] float DEFAULT 0 NOT NULL, [Version] nvarchar(20) )

-- TempDocDet
CREATE TABLE [dbo].[TempDocDet] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [TxTp] nvarchar(6), [DocNo] int DEFAULT 0 NOT NULL,
    [LineNo] int DEFAULT 0 NOT NULL, [StockCode] nvarchar(25), [LinkCode] nvarchar(25),
    [StockType] nvarchar(1), [Description1] nvarchar(150), [Description2] nvarchar(150),
    [Quantity] float DEFAULT 0 NOT NULL, [Price] float DEFAULT 0 NOT NULL,
    [TotalExcl] float DEFAULT 0 NOT NULL, [TotalIncl] float DEFAULT 0 NOT NULL,
    [TotalVAT] float DEFAULT 0 NOT NULL, [VATCode] nvarchar(2), [VATRate] float DEFAULT 0 NOT NULL,
    [CaptureQty] float DEFAULT 0 NOT NULL, [CaptureType] nvarchar(1), [AdjustType] nvarchar(1),
    [SuppCode] nvarchar(25), [BarCode] nvarchar(25), [SerialTrack] nvarchar(1),
    [SizeItem] nvarchar(1), [TileItem] nvarchar(1), [TileBatchTrack] nvarchar(1),
    [LastCostExcl] float DEFAULT 0 NOT NULL, [LastCostIncl] float DEFAULT 0 NOT NULL,
    [AvgCostExcl] float DEFAULT 0 NOT NULL, [AvgCostIncl] float DEFAULT 0 NOT NULL,
    [SellIncl] float DEFAULT 0 NOT NULL, [SellExcl] float DEFAULT 0 NOT NULL,
    [Onhand] float DEFAULT 0 NOT NULL, [RebAmnt] float DEFAULT 0 NOT NULL,
    [SqmBox] float DEFAULT 0 NOT NULL, [NoOfBox] float DEFAULT 0 NOT NULL,
    [Cases] float DEFAULT 0 NOT NULL, [DTODate] nvarchar(10), [DTOTime] nvarchar(8),
    [DTOUser] nvarchar(10), [DTOMacID] nvarchar(20), [TranDate] nvarchar(10),
    [LinkQty] float DEFAULT 0 NOT NULL, [AP] int DEFAULT 0 NOT NULL,
    [LineIBTRebate] float DEFAULT 0 NOT NULL, [RebAvgAmnt] float DEFAULT 0 NOT NULL,
    [Units] int DEFAULT 0 NOT NULL, [Onhand2] float DEFAULT 0 NOT NULL, [VirtualCard] nvarchar(1),
    [IBTType] nvarchar(1), [RecvQty] float DEFAULT 0 NOT NULL, [Status] nvarchar(1),
    [IBTReqNo] int DEFAULT 0 NOT NULL )
ALTER TABLE [dbo].[TempDocDet] ADD [IBTType] nvarchar(1) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[TempDocDet] ADD [RecvQty] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempDocDet] ADD [NoOfBox] int NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempDocDet] ADD [SerialTrack] nvarchar(1) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[TempDocDet] ADD [IBTReqNo] int NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[TempDocDet]  ALTER COLUMN [Description1] nvarchar(150)
ALTER TABLE [dbo].[TempDocDet]  ALTER COLUMN [Description2] nvarchar(150)

-- TempDocBins
CREATE TABLE [dbo].[TempDocBins] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [Account] nvarchar(10), [TxTp] nvarchar(6),
    [DocNo] int DEFAULT 0 NOT NULL, [LineNo] int DEFAULT 0 NOT NULL, [StockCode] nvarchar(25),
    [LinkCode] nvarchar(25), [WH] nvarchar(10), [BinLoc] nvarchar(20),
    [Quantity] float DEFAULT 0 NOT NULL )

-- TempDocSerials
CREATE TABLE [dbo].[TempDocSerials] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [TxTp] nvarchar(6), [DocNo] int DEFAULT 0 NOT NULL,
    [LineNo] int DEFAULT 0 NOT NULL, [StockCode] nvarchar(25), [LinkCode] nvarchar(25),
    [SerialNo] nvarchar(50), [LinkedSerial] nvarchar(50), [NoOfBox] int DEFAULT 0 NOT NULL )

-- TempDocSizes
CREATE TABLE [dbo].[TempDocSizes] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [Account] nvarchar(10), [TxTp] nvarchar(6),
    [DocNo] int DEFAULT 0 NOT NULL, [LineNo] int DEFAULT 0 NOT NULL, [StockCode] nvarchar(25),
    [LinkCode] nvarchar(25), [Seq] int DEFAULT 0 NOT NULL, [SizeCode] nvarchar(20),
    [Quantity] float DEFAULT 0 NOT NULL, [OldQty] float DEFAULT 0 NOT NULL,
    [CostExcl] float DEFAULT 0 NOT NULL, [CostIncl] float DEFAULT 0 NOT NULL,
    [SellExcl] float DEFAULT 0 NOT NULL, [SellIncl] float DEFAULT 0 NOT NULL )
ALTER TABLE [dbo].[TempDocSizes] ADD [Seq] int NOT NULL DEFAULT (0)
