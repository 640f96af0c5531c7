-- The suite database: the stock master and what hangs below it.
-- Harmless to run again: what is there stays as it is.

-- The stock master: one row each stock code and link code of a branch.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'STKMaster')
BEGIN
    CREATE TABLE [dbo].[STKMaster] (
        [RecID]            int IDENTITY(1, 1) NOT NULL,
        [CO]               nvarchar(10) NULL,
        [Branch]           nvarchar(10) NULL,
        [StockType]        nvarchar(1) NULL,
        [StockCode]        nvarchar(25) NULL,
        [LinkCode]         nvarchar(25) NULL,
        [Description1]     nvarchar(150) NULL,
        [Description2]     nvarchar(150) NULL,
        [VATCode]          nvarchar(2) NULL,
        [DeptCode]         nvarchar(10) NULL,
        [SubDept]          nvarchar(10) NULL,
        [Category1]        nvarchar(10) NULL,
        [Category2]        nvarchar(10) NULL,
        [Category3]        nvarchar(10) NULL,
        [Category4]        nvarchar(10) NULL,
        [Supplier]         nvarchar(10) NULL,
        [SuppCode]         nvarchar(50) NULL,
        [BarCode]          nvarchar(25) NULL,
        [Variant]          nvarchar(10) NULL,
        [Units]            int NOT NULL DEFAULT 0,
        [Singles]          int NOT NULL DEFAULT 0,
        [PackCase]         int NOT NULL DEFAULT 0,
        [CasePall]         int NOT NULL DEFAULT 0,
        [Weight]           float NOT NULL DEFAULT 0,
        [Binlocation]      nvarchar(20) NULL,
        [ItemLength]       float NOT NULL DEFAULT 0,
        [ItemBreadth]      float NOT NULL DEFAULT 0,
        [ItemHeight]       float NOT NULL DEFAULT 0,
        [SerialTrack]      nvarchar(1) NULL,
        [LinkedSerial]     nvarchar(1) NULL,
        [KitFunction]      nvarchar(1) NULL,
        [NegativeQty]      nvarchar(1) NULL,
        [PurchaseItem]     nvarchar(1) NULL,
        [SaleItem]         nvarchar(1) NULL,
        [InventoryItem]    nvarchar(1) NULL,
        [PrintLabel]       nvarchar(1) NULL,
        [MiscGP]           float NOT NULL DEFAULT 0,
        [QtyDecimal]       int NOT NULL DEFAULT 0,
        [CostDecimal]      int NOT NULL DEFAULT 0,
        [SellDecimal]      int NOT NULL DEFAULT 0,
        [SqmBox]           float NOT NULL DEFAULT 0,
        [TileItem]         nvarchar(1) NULL,
        [TileSize]         nvarchar(20) NULL,
        [TileGrade]        nvarchar(20) NULL,
        [TileBatchTrack]   nvarchar(1) NULL,
        [TilePieces]       int NOT NULL DEFAULT 0,
        [AutoPurOrder]     nvarchar(1) NULL,
        [SCTemplate]       nvarchar(10) NULL,
        [LengthColor]      int NOT NULL DEFAULT 0,
        [LengthSize]       int NOT NULL DEFAULT 0,
        [Descriptions]     nvarchar(max) NULL,
        [Food]             nvarchar(10) NULL,
        [KVI]              nvarchar(1) NULL,
        [DivertCode]       nvarchar(25) NULL,
        [ScaleItem]        nvarchar(1) NULL,
        [ScalePrice]       nvarchar(1) NULL,
        [ScaleType]        nvarchar(1) NULL,
        [ScaleVerify]      nvarchar(1) NULL,
        [ScaleTolerance]   float NOT NULL DEFAULT 0,
        [Status]           nvarchar(1) NULL,
        [WTCaseStart]      int NOT NULL DEFAULT 0,
        [WTCaseLength]     int NOT NULL DEFAULT 0,
        [WTCaseFactor]     int NOT NULL DEFAULT 0,
        [LastCostExcl]     float NOT NULL DEFAULT 0,
        [LastCostIncl]     float NOT NULL DEFAULT 0,
        [AvgCostExcl]      float NOT NULL DEFAULT 0,
        [AvgCostIncl]      float NOT NULL DEFAULT 0,
        [BuyCostExcl]      float NOT NULL DEFAULT 0,
        [BuyCostIncl]      float NOT NULL DEFAULT 0,
        [RebateAvgExcl]    float NOT NULL DEFAULT 0,
        [RebateLastExcl]   float NOT NULL DEFAULT 0,
        [CostCode]         nvarchar(25) NULL,
        [Property01]       nvarchar(10) NULL,
        [Property02]       nvarchar(10) NULL,
        [Property03]       nvarchar(10) NULL,
        [Property04]       nvarchar(10) NULL,
        [Property05]       nvarchar(10) NULL,
        [Property06]       nvarchar(10) NULL,
        [Property07]       nvarchar(10) NULL,
        [Property08]       nvarchar(10) NULL,
        [Property09]       nvarchar(10) NULL,
        [Property10]       nvarchar(10) NULL,
        [PromFDate]        nvarchar(10) NULL,
        [PromTDate]        nvarchar(10) NULL,
        [PromFTime]        nvarchar(8) NULL,
        [PromTTime]        nvarchar(8) NULL,
        [PromMaxQty]       float NOT NULL DEFAULT 0,
        [PromQtySold]      float NOT NULL DEFAULT 0,
        [PromMCust]        float NOT NULL DEFAULT 0,
        [PromPerm]         nvarchar(1) NULL,
        [SugSell]          float NOT NULL DEFAULT 0,
        [MinQty]           float NOT NULL DEFAULT 0,
        [MaxQty]           float NOT NULL DEFAULT 0,
        [ReOrderType]      nvarchar(1) NULL,
        [CustomsGroup]     nvarchar(10) NULL,
        [CustomsRate]      float NOT NULL DEFAULT 0,
        [DefaultWH]        nvarchar(10) NULL,
        [DeliveryItem]     nvarchar(1) NULL,
        [ForeignBuyCost]   float NOT NULL DEFAULT 0,
        [ForeignCCY]       nvarchar(3) NULL,
        [Manufacturer]     nvarchar(50) NULL,
        [LastCountedDate]  nvarchar(10) NULL,
        [LastSaleDate]     nvarchar(10) NULL,
        [LeadTimeDays]     int NOT NULL DEFAULT 0,
        [GLSalesAcc]       nvarchar(10) NULL,
        [GLExpenseAcc]     nvarchar(10) NULL,
        [PackSize]         nvarchar(10) NULL,
        [PurCardPrty]      int NOT NULL DEFAULT 0,
        [AverageSTK]       int NOT NULL DEFAULT 0,
        [CostPlusExcl]     float NOT NULL DEFAULT 0,
        [CostPlusIncl]     float NOT NULL DEFAULT 0,
        [DCItem]           nvarchar(1) NULL,
        [TDSS]             nvarchar(1) NULL,
        [SeasonCode]       nvarchar(10) NULL,
        [ChangeSelling]    nvarchar(1) NULL,
        [PurCardRule]      nvarchar(3) NULL,
        [KitPrint]         nvarchar(1) NULL,
        [KitBuildPer]      int NOT NULL DEFAULT 0,
        [ItemID]           int NOT NULL DEFAULT 0,
        [Frequency]        nvarchar(1) NULL,
        [StockTakeDate]    nvarchar(10) NULL,
        [OrdCase]          char(1) NULL,
        [Express]          nvarchar(1) NULL,
        [IgnorePallet]     nvarchar(1) NULL,
        [Template]         nvarchar(20) NULL,
        [SellBelowCost]    nvarchar(1) NULL,
        [ExclGRVDisc]      nvarchar(1) NULL,
        [ExpressItem]      nvarchar(1) NULL,
        [BCAdjFactor]      float NOT NULL DEFAULT 0,
        [BCAdjFrom]        nvarchar(10) NULL,
        [BCAdjTo]          nvarchar(10) NULL,
        [BCPriceIncr]      nvarchar(1) NULL,
        [BaseCostExcl]     float NOT NULL DEFAULT 0,
        [BaseCostIncl]     float NOT NULL DEFAULT 0,
        [BCAdjFactorPerc]  float NOT NULL DEFAULT 0,
        [BCAdjFactorVal]   float NOT NULL DEFAULT 0,
        [Description3]     nvarchar(150) NULL,
        [OutSesnOrd]       nvarchar(1) NULL,
        [DefaultGP]        float NOT NULL DEFAULT 0,
        [AllowReturns]     nvarchar(1) NULL,
        [VirtualCard]      nvarchar(1) NULL,
        [KitCostDesc1]     nvarchar(50) NULL,
        [KitCostDesc2]     nvarchar(50) NULL,
        [KitCostDesc3]     nvarchar(50) NULL,
        [KitCost1]         float NOT NULL DEFAULT 0,
        [KitCost2]         float NOT NULL DEFAULT 0,
        [KitCost3]         float NOT NULL DEFAULT 0,
        [KitWastePerc]     float NOT NULL DEFAULT 0,
        [BinlocMin]        float NOT NULL DEFAULT 0,
        [BinlocMax]        float NOT NULL DEFAULT 0,
        [BinlocRate]       float NOT NULL DEFAULT 0,
        [ReportingItem]    nvarchar(1) NULL,
        [SaleGroup]        nvarchar(1) NULL,
        [LastRecvSupp]     nvarchar(10) NULL,
        [AvgSalesQty]      float NOT NULL DEFAULT 0,
        [KitWeightTol]     float NOT NULL DEFAULT 0,
        [GLPostGroup]      nvarchar(10) NULL,
        [OnlineRange]      nvarchar(1) NULL,
        [WeightedItem]     nvarchar(1) NULL,
        [BestBeforeCode]   nvarchar(10) NULL,
        [PalletItem]       nvarchar(1) NULL,
        [SplitCodeItem]    nvarchar(1) NULL,
        [TareWeight]       float NOT NULL DEFAULT 0,
        [LoyaltyPnts]      int NOT NULL DEFAULT 0,
        [KitCostFactor]    float NOT NULL DEFAULT 0,
        [SellByDays]       int NOT NULL DEFAULT 0,
        [UNIPin]           nvarchar(1) NULL,
        [DispatchItem]     nvarchar(1) NULL,
        [DispatchWH]       nvarchar(10) NULL,
        [ShelfLifeDays]    int NOT NULL DEFAULT 0,
        [CustomVATRate]    float NOT NULL DEFAULT 0,
        [Notes]            nvarchar(max) NULL,
        [BOMItem]          nvarchar(1) NULL,
        [OEMNumber]        nvarchar(25) NULL,
        [WooID]            int NOT NULL DEFAULT 0,
        [OnlineURL]        nvarchar(max) NULL,
        [IntegrationFlags] nvarchar(15) NULL,
        [BeverageItem]     nvarchar(1) NULL,
        [AlcoholVolume]    float NOT NULL DEFAULT 0,
        [BrandID]          nvarchar(20) NULL,
        [CasingTemplate]   nvarchar(50) NULL,
        [ContainerID]      nvarchar(50) NULL,
        [CountryOfOrigin]  nvarchar(50) NULL,
        [DefaultLanguage]  nvarchar(10) NULL,
        [BriefDescription] nvarchar(255) NULL,
        [IsEnabled]        nvarchar(1) NULL,
        [IsHidden]         nvarchar(1) NULL,
        [IsAlcoholic]      nvarchar(1) NULL,
        [IsNarcotic]       nvarchar(1) NULL,
        [FriendlyName]     nvarchar(100) NULL,
        [PackageID]        nvarchar(50) NULL,
        [PalletQuantity]   int NOT NULL DEFAULT 0,
        [SubBrandID]       nvarchar(50) NULL,
        [VariableWeight]   nvarchar(1) NULL,
        [IsVariant]        nvarchar(1) NULL,
        [MiscCostInput]    nvarchar(1) NULL,
        [MiscReserved]     nvarchar(1) NULL,
        [SizeItem]         nvarchar(1) NULL,
        [SizeCode]         nvarchar(20) NULL,
        [ColorCode]        nvarchar(20) NULL,
        [SizeColorGrp]     nvarchar(25) NULL,
        [FabricItem]       nvarchar(1) NULL,
        [FabricGramsSQM]   float NOT NULL DEFAULT 0,
        [FabricWidth]      float NOT NULL DEFAULT 0,
        [FabricGramsMeter] float NOT NULL DEFAULT 0,
        [FabricCoreWeight] float NOT NULL DEFAULT 0,
        [FabricRolls]      nvarchar(1) NULL,
        [GRVBinLocation]   nvarchar(20) NULL,
        [MiscBuyoutItem]   nvarchar(1) NULL,
        [BalerItem]        nvarchar(1) NULL,
        [PackBale]         int NOT NULL DEFAULT 0,
        [CreateDate]       nvarchar(10) NULL,
        [CreateTime]       nvarchar(8) NULL,
        [CreateUser]       nvarchar(10) NULL,
        [CreateMacID]      nvarchar(20) NULL,
        [DTODate]          nvarchar(10) NULL,
        [DTOTime]          nvarchar(8) NULL,
        [DTOUser]          nvarchar(10) NULL,
        [DTOMacID]         nvarchar(20) NULL,
        [Version]          nvarchar(20) NULL,
        [ListCostExcl]     float NOT NULL DEFAULT 0,
        [ListCostIncl]     float NOT NULL DEFAULT 0
    );
    ALTER TABLE [dbo].[STKMaster] ADD CONSTRAINT [STKMaster_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'STKMaster_idx01')
    CREATE UNIQUE NONCLUSTERED INDEX [STKMaster_idx01] ON [dbo].[STKMaster] ([CO], [Branch], [StockCode], [LinkCode]);
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'STKMaster_idx02')
    CREATE NONCLUSTERED INDEX [STKMaster_idx02] ON [dbo].[STKMaster] ([CO], [Branch], [BarCode], [StockCode], [LinkCode]);
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'STKMaster_idx03')
    CREATE NONCLUSTERED INDEX [STKMaster_idx03] ON [dbo].[STKMaster] ([CO], [Branch], [SuppCode], [StockCode], [LinkCode]);
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'STKMaster_idx04')
    CREATE NONCLUSTERED INDEX [STKMaster_idx04] ON [dbo].[STKMaster] ([CO], [Branch], [LinkCode], [StockCode]);
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'STKMaster_idx05')
    CREATE NONCLUSTERED INDEX [STKMaster_idx05] ON [dbo].[STKMaster] ([CO], [Branch], [Description1]);
GO
-- The screen of a quotation line compares the branch as a number, which no key that begins with it serves.
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'STKMaster_idx06')
    CREATE NONCLUSTERED INDEX [STKMaster_idx06] ON [dbo].[STKMaster] ([CO], [StockCode], [LinkCode], [Branch]);
GO

-- On-hand quantity of a stock code by warehouse.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'STKBalance')
BEGIN
    CREATE TABLE [dbo].[STKBalance] (
        [RecID]     int IDENTITY(1, 1) NOT NULL,
        [CO]        nvarchar(10) NOT NULL,
        [Branch]    nvarchar(10) NOT NULL,
        [StockCode] nvarchar(25) NOT NULL,
        [WH]        nvarchar(10) NOT NULL,
        [Onhand]    float NOT NULL DEFAULT 0,
        [OnOrder]   float NOT NULL DEFAULT 0,
        [Allocated] float NOT NULL DEFAULT 0,
        [DTODate]   nvarchar(10) NULL,
        [DTOTime]   nvarchar(8) NULL,
        [DTOUser]   nvarchar(10) NULL,
        [DTOMacID]  nvarchar(20) NULL
    );
    ALTER TABLE [dbo].[STKBalance] ADD CONSTRAINT [STKBalance_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'STKBalance_idx01')
    CREATE UNIQUE NONCLUSTERED INDEX [STKBalance_idx01] ON [dbo].[STKBalance] ([CO], [Branch], [StockCode], [WH]);
GO

-- Selling prices by price code and dates.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'STKPrice')
BEGIN
    CREATE TABLE [dbo].[STKPrice] (
        [RecID]       int IDENTITY(1, 1) NOT NULL,
        [CO]          nvarchar(10) NULL,
        [Branch]      nvarchar(10) NULL,
        [StockCode]   nvarchar(25) NULL,
        [LinkCode]    nvarchar(25) NULL,
        [PriceCode]   nvarchar(5) NULL,
        [Description] nvarchar(50) NULL,
        [FromDate]    nvarchar(10) NULL,
        [ToDate]      nvarchar(10) NULL,
        [Excl]        float NOT NULL DEFAULT 0,
        [Incl]        float NOT NULL DEFAULT 0,
        [MUP]         float NOT NULL DEFAULT 0,
        [GP]          float NOT NULL DEFAULT 0,
        [DiscP]       float NOT NULL DEFAULT 0,
        [DiscV]       float NOT NULL DEFAULT 0,
        [MaxDiscP]    float NOT NULL DEFAULT 0,
        [MaxDiscV]    float NOT NULL DEFAULT 0,
        [MinGP]       float NOT NULL DEFAULT 0,
        [PriceRule]   nvarchar(1) NULL,
        [Rounding]    nvarchar(1) NULL,
        [DefaultMUP]  float NOT NULL DEFAULT 0,
        [DefaultGP]   float NOT NULL DEFAULT 0,
        [DTODate]     nvarchar(10) NULL,
        [DTOTime]     nvarchar(8) NULL,
        [DTOUser]     nvarchar(10) NULL,
        [DTOMacID]    nvarchar(20) NULL,
        [Version]     nvarchar(20) NULL
    );
    ALTER TABLE [dbo].[STKPrice] ADD CONSTRAINT [STKPrice_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'STKPrice_idx01')
    CREATE NONCLUSTERED INDEX [STKPrice_idx01] ON [dbo].[STKPrice] ([CO], [Branch], [StockCode], [LinkCode], [PriceCode], [FromDate]);
GO

-- Further barcodes of an item.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'STKAltBarcodes')
BEGIN
    CREATE TABLE [dbo].[STKAltBarcodes] (
        [RecID]        int IDENTITY(1, 1) NOT NULL,
        [CO]           nvarchar(10) NULL,
        [Branch]       nvarchar(10) NULL,
        [StockCode]    nvarchar(25) NULL,
        [LinkCode]     nvarchar(25) NULL,
        [Barcode]      nvarchar(25) NULL,
        [Description1] nvarchar(150) NULL,
        [DTODate]      nvarchar(10) NULL,
        [DTOTime]      nvarchar(8) NULL,
        [DTOUser]      nvarchar(10) NULL,
        [DTOMacID]     nvarchar(20) NULL
    );
    ALTER TABLE [dbo].[STKAltBarcodes] ADD CONSTRAINT [STKAltBarcodes_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'STKAltBarcodes_idx01')
    CREATE NONCLUSTERED INDEX [STKAltBarcodes_idx01] ON [dbo].[STKAltBarcodes] ([CO], [Branch], [Barcode], [StockCode], [LinkCode]);
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'STKAltBarcodes_idx02')
    CREATE NONCLUSTERED INDEX [STKAltBarcodes_idx02] ON [dbo].[STKAltBarcodes] ([CO], [Branch], [StockCode], [LinkCode]);
GO

-- Further suppliers of an item.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'STKAltSuppliers')
BEGIN
    CREATE TABLE [dbo].[STKAltSuppliers] (
        [RecID]       int IDENTITY(1, 1) NOT NULL,
        [CO]          nvarchar(10) NULL,
        [Branch]      nvarchar(10) NULL,
        [StockCode]   nvarchar(25) NULL,
        [LinkCode]    nvarchar(25) NULL,
        [Account]     nvarchar(10) NULL,
        [Name]        nvarchar(50) NULL,
        [SuppCode]    nvarchar(50) NULL,
        [Units]       float NOT NULL DEFAULT 0,
        [PackSize]    nvarchar(10) NULL,
        [PackCase]    float NOT NULL DEFAULT 0,
        [CasePall]    float NOT NULL DEFAULT 0,
        [ReOrderType] nvarchar(1) NULL,
        [PinRuleCode] nvarchar(5) NULL,
        [DTODate]     nvarchar(10) NULL,
        [DTOTime]     nvarchar(8) NULL,
        [DTOUser]     nvarchar(10) NULL,
        [DTOMacID]    nvarchar(20) NULL
    );
    ALTER TABLE [dbo].[STKAltSuppliers] ADD CONSTRAINT [STKAltSuppliers_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'STKAltSuppliers_idx01')
    CREATE NONCLUSTERED INDEX [STKAltSuppliers_idx01] ON [dbo].[STKAltSuppliers] ([CO], [Branch], [StockCode], [LinkCode]);
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'STKAltSuppliers_idx02')
    CREATE NONCLUSTERED INDEX [STKAltSuppliers_idx02] ON [dbo].[STKAltSuppliers] ([CO], [Branch], [LinkCode], [StockCode]);
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'STKAltSuppliers_idx03')
    CREATE NONCLUSTERED INDEX [STKAltSuppliers_idx03] ON [dbo].[STKAltSuppliers] ([CO], [Branch], [SuppCode], [Account]);
GO

-- What a kit is made of.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'STKKitMaster')
BEGIN
    CREATE TABLE [dbo].[STKKitMaster] (
        [RecID]        int IDENTITY(1, 1) NOT NULL,
        [CO]           nvarchar(10) NULL,
        [Branch]       nvarchar(10) NULL,
        [StockCode]    nvarchar(25) NULL,
        [KitStockCode] nvarchar(25) NULL,
        [KitLinkCode]  nvarchar(25) NULL,
        [KitQty]       float NOT NULL DEFAULT 0,
        [KitLinkQty]   float NOT NULL DEFAULT 0,
        [KitUnits]     int NOT NULL DEFAULT 0,
        [DTODate]      nvarchar(10) NULL,
        [DTOTime]      nvarchar(8) NULL,
        [DTOUser]      nvarchar(10) NULL,
        [DTOMacID]     nvarchar(20) NULL,
        [KitFixedCost] nvarchar(1) NULL,
        [KitWaste]     nvarchar(1) NULL,
        [KitProdItem]  nvarchar(1) NULL
    );
    ALTER TABLE [dbo].[STKKitMaster] ADD CONSTRAINT [STKKitMaster_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'STKKitMaster_idx01')
    CREATE NONCLUSTERED INDEX [STKKitMaster_idx01] ON [dbo].[STKKitMaster] ([CO], [Branch], [StockCode], [KitStockCode], [KitLinkCode]);
GO

-- Serial numbers with their state. Status: 0 open, 2 marked return, 5 on transfer, 9 invoiced, D deleted.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'STKSerialMst')
BEGIN
    CREATE TABLE [dbo].[STKSerialMst] (
        [RecID]              int IDENTITY(1, 1) NOT NULL,
        [CO]                 nvarchar(10) NULL,
        [Branch]             nvarchar(10) NULL,
        [StockCode]          nvarchar(25) NULL,
        [LinkCode]           nvarchar(25) NULL,
        [SerialNo]           nvarchar(50) NULL,
        [Status]             nvarchar(1) NULL,
        [GRVTxTp]            nvarchar(6) NULL,
        [GRVAccount]         nvarchar(10) NULL,
        [GRVDate]            nvarchar(10) NULL,
        [GRVTime]            nvarchar(8) NULL,
        [GRVSuppDocNo]       nvarchar(20) NULL,
        [GRVNo]              int NULL DEFAULT 0,
        [GRVLineNo]          int NULL DEFAULT 0,
        [GRVWarrantyDays]    int NULL DEFAULT 0,
        [GRVWarrantyExpDate] nvarchar(20) NULL,
        [DEBTxTp]            nvarchar(6) NULL,
        [DEBAccount]         nvarchar(10) NULL,
        [DEBName]            nvarchar(50) NULL,
        [DEBPhone]           nvarchar(20) NULL,
        [DEBDocNo]           nvarchar(15) NULL,
        [DEBDocDate]         nvarchar(10) NULL,
        [DEBDocLineNo]       int NULL DEFAULT 0,
        [DEBWarrantyDays]    int NULL DEFAULT 0,
        [DEBWarrantyExpDate] nvarchar(20) NULL,
        [ProdOrdNo]          int NULL DEFAULT 0,
        [OrderNo]            nvarchar(15) NULL,
        [OrderDate]          nvarchar(10) NULL,
        [PickDate]           nvarchar(10) NULL,
        [PickTime]           nvarchar(8) NULL,
        [PickUser]           nvarchar(10) NULL,
        [PickMacID]          nvarchar(20) NULL,
        [PickSlipNo]         nvarchar(15) NULL,
        [PickSlipDate]       nvarchar(10) NULL,
        [PackLocation]       nvarchar(10) NULL,
        [LinkedSerialNo]     nvarchar(50) NULL,
        [SwopSerialNo]       nvarchar(50) NULL,
        [SwopDate]           nvarchar(10) NULL,
        [SwopTime]           nvarchar(8) NULL,
        [RetnDate]           nvarchar(10) NULL,
        [RetnTime]           nvarchar(8) NULL,
        [RetnTxTp]           nvarchar(6) NULL,
        [RetnDocNo]          nvarchar(25) NULL,
        [RetnAccount]        nvarchar(10) NULL,
        [Mass]               float NULL DEFAULT 0,
        [Tare]               float NULL DEFAULT 0,
        [Pieces]             int NULL DEFAULT 0,
        [Fridge]             nvarchar(1) NULL,
        [PalletNo]           int NULL DEFAULT 0,
        [DTODate]            nvarchar(10) NULL,
        [DTOTime]            nvarchar(8) NULL,
        [DTOUser]            nvarchar(10) NULL,
        [DTOMacID]           nvarchar(20) NULL
    );
    ALTER TABLE [dbo].[STKSerialMst] ADD CONSTRAINT [STKSerialMst_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'STKSerialMst_idx01')
    CREATE NONCLUSTERED INDEX [STKSerialMst_idx01] ON [dbo].[STKSerialMst] ([CO], [Branch], [SerialNo]);
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'STKSerialMst_idx02')
    CREATE NONCLUSTERED INDEX [STKSerialMst_idx02] ON [dbo].[STKSerialMst] ([CO], [Branch], [StockCode], [LinkCode], [SerialNo]);
GO

-- Code lists of the stock properties.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'STKProperty')
BEGIN
    CREATE TABLE [dbo].[STKProperty] (
        [RecID]           int IDENTITY(1, 1) NOT NULL,
        [CO]              nvarchar(10) NULL,
        [PropNo]          int NOT NULL DEFAULT 0,
        [PropCode]        nvarchar(10) NULL,
        [PropDescription] nvarchar(50) NULL
    );
    ALTER TABLE [dbo].[STKProperty] ADD CONSTRAINT [STKProperty_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'STKProperty_idx01')
    CREATE NONCLUSTERED INDEX [STKProperty_idx01] ON [dbo].[STKProperty] ([CO], [PropNo], [PropCode]);
GO

-- Departments of the stock.
IF NOT EXISTS (SELECT TABLE_NAME FROM INFORMATION_SCHEMA.TABLES WHERE TABLE_NAME = 'STKDept')
BEGIN
    CREATE TABLE [dbo].[STKDept] (
        [RecID]    int IDENTITY(1, 1) NOT NULL,
        [CO]       nvarchar(10) NOT NULL,
        [DeptCode] nvarchar(10) NOT NULL,
        [DeptName] nvarchar(50) NULL
    );
    ALTER TABLE [dbo].[STKDept] ADD CONSTRAINT [STKDept_idx00] PRIMARY KEY ([RecID]);
END
GO
IF NOT EXISTS (SELECT [name] FROM sys.indexes WHERE [name] = 'STKDept_idx01')
    CREATE UNIQUE NONCLUSTERED INDEX [STKDept_idx01] ON [dbo].[STKDept] ([CO], [DeptCode]);
GO
