-- DEBMaster
CREATE TABLE [dbo].[DEBMaster] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [Account] nvarchar(10), [DebtorType] nvarchar(1), [Name] nvarchar(50),
    [TradeName] nvarchar(50), [LegalName] nvarchar(50), [BusAddress1] nvarchar(40),
    [BusAddress2] nvarchar(40), [BusAddress3] nvarchar(40), [BusAddress4] nvarchar(40),
    [BusPostCode] nvarchar(6), [PostAddress1] nvarchar(40), [PostAddress2] nvarchar(40),
    [PostAddress3] nvarchar(40), [PostAddress4] nvarchar(40), [PostCode] nvarchar(6),
    [Telephone] nvarchar(40), [Telephone2] nvarchar(40), [CellPhone] nvarchar(20),
    [Email] nvarchar(70), [Fax] nvarchar(20), [IDNo] nvarchar(20), [Contact] nvarchar(30),
    [AccountType] nvarchar(2), [SaleType] nvarchar(1), [VATIndicator] nvarchar(1),
    [Interest] nvarchar(1), [Status] nvarchar(1), [ReasonCode] nvarchar(20), [Reason] nvarchar(250),
    [MainAccount] nvarchar(10), [CreditLimit] float DEFAULT 0 NOT NULL, [LimitChk] nvarchar(1),
    [TempCRLimit] float DEFAULT 0 NOT NULL, [TempCRLimitDate] nvarchar(10), [TermCode] nvarchar(1),
    [Area] nvarchar(50), [Region] nvarchar(50), [Route] nvarchar(50), [CityCode] nvarchar(50),
    [TravelDistance] float DEFAULT 0 NOT NULL, [Salesrep] nvarchar(10), [Category2] nvarchar(10),
    [Balance] float DEFAULT 0 NOT NULL, [PriceCat] nvarchar(5), [CostPlus] float DEFAULT 0 NOT NULL,
    [CostPlusF] float DEFAULT 0 NOT NULL, [CostPlusCode] nvarchar(1), [AllowPromo] nvarchar(1),
    [SellPlus] float DEFAULT 0 NOT NULL, [SellPlusPromo] nvarchar(1),
    [SellMinus] float DEFAULT 0 NOT NULL, [SellMinusPromo] nvarchar(1), [DeptPrice] nvarchar(1),
    [LastPrice] nvarchar(1), [AltCode] nvarchar(1), [CgsLimit] float DEFAULT 0 NOT NULL,
    [CgsExpDT] nvarchar(10), [CGSFile] nvarchar(20), [CreateDate] nvarchar(10),
    [CreateTime] nvarchar(8), [CreateUser] nvarchar(10), [CreateMacID] nvarchar(20),
    [DTODate] nvarchar(10), [DTOTime] nvarchar(8), [DTOUser] nvarchar(10), [DTOMacID] nvarchar(20),
    [Notepad] ntext, [VATNumber] nvarchar(20), [BPNumber] nvarchar(20), [GroupType] nvarchar(1),
    [PayMthd] nvarchar(20), [Currency] nvarchar(3), [Category] nvarchar(10),
    [GroupCode] nvarchar(10), [PartialOrders] nvarchar(1), [BankName] nvarchar(50),
    [BankBranchName] nvarchar(50), [BankBranchCode] nvarchar(20), [BankAccNo] nvarchar(50),
    [BankAccName] nvarchar(50), [CommsMthd] nvarchar(1), [BankCheqLimit] float DEFAULT 0 NOT NULL,
    [Inhouse] nvarchar(1), [VIP] nvarchar(1), [TermFromValue] int DEFAULT 0 NOT NULL,
    [TermFromType] nvarchar(1), [TermFrom] nvarchar(1), [TermDiscount] float DEFAULT 0 NOT NULL,
    [MonthEnd] int DEFAULT 0 NOT NULL, [StmtFreq] nvarchar(1), [StmtFreqDOW] int DEFAULT 0 NOT NULL,
    [DefBranch] nvarchar(5), [PDCs] float DEFAULT 0 NOT NULL, [RentalIncl] float DEFAULT 0 NOT NULL,
    [Website] nvarchar(1024), [DestCO] nvarchar(5), [DestBranch] nvarchar(5),
    [CRDAccount] nvarchar(20), [InterComp] nvarchar(1), [Version] nvarchar(20),
    [Consolidate] varchar(1), [ItemPrice] nvarchar(1), [CRMCode] nvarchar(10),
    [CRMAccNo] nvarchar(20), [MailInd] nvarchar(1), [SMSInd] nvarchar(1), [Longitude] nvarchar(20),
    [Latitude] nvarchar(20), [Distribution] nvarchar(1), [StokvelInd] nvarchar(1),
    [StokvelPswd] int DEFAULT 0 NOT NULL, [ECommInd] nvarchar(1), [ECommPswd] nvarchar(10),
    [VendorNo] nvarchar(30), [CGSLimGranted] nvarchar(10), [CORegNo] nvarchar(20),
    [LicenseNo] nvarchar(20), [LicenseExpDate] nvarchar(10), [LicenseExpAction] nvarchar(1),
    [LicenseType] nvarchar(10), [LicenseDescription] nvarchar(255), [PreAuthInd] nvarchar(1),
    [Grading] nvarchar(1), [InterCompany] nvarchar(1), [ICCompanyCode] nvarchar(10),
    [ICBranchCode] nvarchar(10), [ICCrdAccount] nvarchar(10), [BlockReturns] nvarchar(1),
    [CustOrderNo] nvarchar(1), [DebDeal] nvarchar(1), [HasEmptiesLoan] nvarchar(1),
    [PickupAllowed] nvarchar(1), [BEESInd] nvarchar(1), [BEESAccountId] nvarchar(50),
    [Channel] nvarchar(50), [DeliveryScheduleId] nvarchar(20), [Velmara_API_Client] nvarchar(30),
    [Velmara_API_ShopCode] nvarchar(10), [Velmara_API_CO] nvarchar(10),
    [Velmara_API_Branch] nvarchar(10) )
ALTER TABLE [dbo].[DEBMaster] ADD [CostPlusCode] nvarchar(1) NOT NULL DEFAULT ('A')
ALTER TABLE [dbo].[DEBMaster] ADD [LicenseExpAction] nvarchar(1) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[DEBMaster] ADD [CityCode] nvarchar(50) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[DEBMaster]  ALTER COLUMN [Contact] nvarchar(30)
ALTER TABLE [dbo].[DEBMaster] ADD [BPNumber] nvarchar(20) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[DEBMaster]  ALTER COLUMN [Reason] nvarchar(250)
ALTER TABLE [dbo].[DEBMaster] ADD [ReasonCode] nvarchar(20) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[DEBMaster] ADD [LegalName] nvarchar(50) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[DEBMaster]  DROP COLUMN [ContraDEBAccount]
ALTER TABLE [dbo].[DEBMaster] ADD [InterComp] nvarchar(1) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[DEBMaster] ADD [InterCO] nvarchar(1) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[DEBMaster] ADD [InterCompany] nvarchar(1) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[DEBMaster] ADD [ICCompanyCode] nvarchar(10) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[DEBMaster] ADD [ICBranchCode] nvarchar(10) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[DEBMaster] ADD [ICCrdAccount] nvarchar(10) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[DEBMaster] ADD [ContraCRDAccount] nvarchar(10) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[DEBMaster] ADD [TradeName] nvarchar(50) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[DEBMaster] ADD [PickupAllowed] nvarchar(1) NOT NULL DEFAULT ('N')
ALTER TABLE [dbo].[DEBMaster] ADD [BEESInd] nvarchar(1) NOT NULL DEFAULT ('N')
ALTER TABLE [dbo].[DEBMaster] ADD [BEESAccountId] nvarchar(50) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[DEBMaster] ADD [Channel] nvarchar(50) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[DEBMaster] ADD [HasEmptiesLoan] nvarchar(1) NOT NULL DEFAULT ('N')
ALTER TABLE [dbo].[DEBMaster] ADD [DeliveryScheduleId] nvarchar(20) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[DEBMaster] ADD [CustOrderNo] nvarchar(1) NOT NULL DEFAULT ('N')
ALTER TABLE [dbo].[DEBMaster] ADD [LicenseType] nvarchar(10) NOT NULL DEFAULT ('N')
ALTER TABLE [dbo].[DEBMaster] ADD [LicenseDescription] nvarchar(255) NOT NULL DEFAULT ('N')
ALTER TABLE [dbo].[DEBMaster]  ALTER COLUMN [PriceCat] nvarchar(5)
ALTER TABLE [dbo].[DEBMaster]  ALTER COLUMN [BeesAccountID] nvarchar(50)
ALTER TABLE [dbo].[DEBMaster]  ALTER COLUMN [Area] nvarchar(50)
ALTER TABLE [dbo].[DEBMaster]  ALTER COLUMN [Region] nvarchar(50)
ALTER TABLE [dbo].[DEBMaster]  ALTER COLUMN [Route] nvarchar(50)
ALTER TABLE [dbo].[DEBMaster] ADD [Velmara_API_Client] nvarchar(30) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[DEBMaster] ADD [Velmara_API_ShopCode] nvarchar(10) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[DEBMaster] ADD [Velmara_API_CO] nvarchar(10) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[DEBMaster] ADD [Velmara_API_Branch] nvarchar(10) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[DEBMaster]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[DEBMaster]  ALTER COLUMN [Branch] nvarchar(10)
CREATE NONCLUSTERED INDEX [DEBMaster_idx01] ON [dbo].[DEBMaster]  ([CO], [Branch], [Account]) <options>
CREATE NONCLUSTERED INDEX [DEBMaster_idx02] ON [dbo].[DEBMaster]  ([CO], [Branch], [Name]) <options>
CREATE NONCLUSTERED INDEX [DEBMaster_idx03] ON [dbo].[DEBMaster]  ([CO], [Branch], [Cellphone]) <options>

-- DEBBalance
CREATE TABLE [dbo].[DEBBalance] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [DebtorType] nvarchar(1), [Account] nvarchar(10),
    [AP] int DEFAULT 0 NOT NULL, [DCurr] float DEFAULT 0 NOT NULL, [D030] float DEFAULT 0 NOT NULL,
    [D060] float DEFAULT 0 NOT NULL, [D090] float DEFAULT 0 NOT NULL,
    [D120] float DEFAULT 0 NOT NULL, [D150] float DEFAULT 0 NOT NULL,
    [D180] float DEFAULT 0 NOT NULL, [Dover] float DEFAULT 0 NOT NULL,
    [PDC] float DEFAULT 0 NOT NULL, [DTODate] nvarchar(10), [DTOTime] nvarchar(8),
    [DTOUser] nvarchar(10), [DTOMacID] nvarchar(20) )
ALTER TABLE [dbo].[DEBBalance]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[DEBBalance]  ALTER COLUMN [Branch] nvarchar(10)
CREATE NONCLUSTERED INDEX [DEBBalance_idx01] ON [dbo].[DEBBalance]  ([CO], [Branch], [Account], [AP]) <options>

-- DEBContacts
CREATE TABLE [dbo].[DEBContacts] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [DebtorType] nvarchar(1), [Account] nvarchar(10), [Title] nvarchar(10),
    [Name] nvarchar(50), [Surname] nvarchar(50), [Birthday] nvarchar(10),
    [Designation] nvarchar(20), [ResTelCode1] nvarchar(5), [ResTelPhone1] nvarchar(20),
    [ResTelCode2] nvarchar(5), [ResTelPhone2] nvarchar(20), [BizTelCode1] nvarchar(5),
    [BizTelPhone1] nvarchar(20), [CellPhone] nvarchar(20), [BizFaxCode1] nvarchar(5),
    [BizFax] nvarchar(20), [Department] nvarchar(20), [EMail] nvarchar(70),
    [Website] nvarchar(1024), [DTODate] nvarchar(10), [DTOTime] nvarchar(8), [DTOUser] nvarchar(10),
    [DTOMacID] nvarchar(20), [TelPhone] nvarchar(20), [Fax] nvarchar(20), [MailStmt] nvarchar(1),
    [MailInv] nvarchar(1), [MailOTP] nvarchar(1), [SMSOTP] nvarchar(1), [Status] nvarchar(1),
    [PrtySeq] int DEFAULT 0 NOT NULL, [SMSTxans] nvarchar(1), [SMSMarketing] nvarchar(1) )
ALTER TABLE [dbo].[DEBContacts]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[DEBContacts]  ALTER COLUMN [Branch] nvarchar(10)
CREATE NONCLUSTERED INDEX [DEBContacts_idx01] ON [dbo].[DEBContacts]  ([CO], [Branch], [Account], [PrtySeq]) <options>

-- DEBDeals
CREATE TABLE [dbo].[DEBDeals] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [DealNo] int DEFAULT 0 NOT NULL, [DebtorType] nvarchar(1),
    [Account] nvarchar(10), [Name] nvarchar(50), [StockCode] nvarchar(25), [LinkCode] nvarchar(25),
    [Description1] nvarchar(150), [PriceExcl] float DEFAULT 0 NOT NULL,
    [PriceIncl] float DEFAULT 0 NOT NULL, [FromDate] nvarchar(10), [ToDate] nvarchar(10),
    [MinimumBuy] float DEFAULT 0 NOT NULL, [LastCostExcl] float DEFAULT 0 NOT NULL,
    [LastCostIncl] float DEFAULT 0 NOT NULL, [AvgCostExcl] float DEFAULT 0 NOT NULL,
    [AvgCostIncl] float DEFAULT 0 NOT NULL, [CreatedDate] nvarchar(10), [CreatedTime] nvarchar(8),
    [CreatedUser] nvarchar(10), [CreatedMacID] nvarchar(20), [DTODate] nvarchar(10),
    [DTOTime] nvarchar(8), [DTOUser] nvarchar(10), [DTOMacID] nvarchar(20),
    [RebAmnt] float DEFAULT 0 NOT NULL, [RebAvgAmnt] float DEFAULT 0 NOT NULL,
    [ReasonCode] nvarchar(10), [ProductionDate] nvarchar(10),
    [DealRangeDays] int DEFAULT 0 NOT NULL )
ALTER TABLE [dbo].[DEBDeals]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[DEBDeals]  ALTER COLUMN [Branch] nvarchar(10)
ALTER TABLE [dbo].[DEBDeals]  ALTER COLUMN [Description1] nvarchar(150)
CREATE NONCLUSTERED INDEX [DEBDeals_idx01] ON [dbo].[DEBDeals]  ([CO], [Branch], [Account], [StockCode], [LinkCode], [FromDate]) <options>

-- DEBDeptPrice
CREATE TABLE [dbo].[DEBDeptPrice] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [Account] nvarchar(20), [DeptCode] nvarchar(10), [Supplier] nvarchar(20),
    [PriceCode] nvarchar(5), [CostPlus] float DEFAULT 0 NOT NULL,
    [CostPlusF] float DEFAULT 0 NOT NULL, [SellPlus] float DEFAULT 0 NOT NULL,
    [SellMinus] float DEFAULT 0 NOT NULL, [AllowPromo] nvarchar(1), [ExcludeAcc] nvarchar(1),
    [ExcludeTender] nvarchar(2), [SellMinusPromo] nvarchar(1), [SellPlusPromo] nvarchar(1),
    [Discount] float DEFAULT 0 NOT NULL, [DTODate] nvarchar(10), [DTOTime] nvarchar(8),
    [DTOUser] nvarchar(10), [DTOMacID] nvarchar(20) )
ALTER TABLE [dbo].[DEBDeptPrice]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[DEBDeptPrice]  ALTER COLUMN [Branch] nvarchar(10)
CREATE NONCLUSTERED INDEX [DEBDeptPrice_idx01] ON [dbo].[DEBDeptPrice]  ([CO], [Branch], [Account], [DeptCode]) <options>

-- DEBStockPrice
CREATE TABLE [dbo].[DEBStockPrice] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [Account] nvarchar(20), [StockCode] nvarchar(25),
    [PriceCode] nvarchar(5), [CostPlus] float DEFAULT 0 NOT NULL,
    [SellPlus] float DEFAULT 0 NOT NULL, [SellMinus] float DEFAULT 0 NOT NULL,
    [Discount] float DEFAULT 0 NOT NULL, [AllowPromo] nvarchar(1), [ExcludeAcc] nvarchar(1),
    [ExcludeTender] nvarchar(2), [SellMinusPromo] nvarchar(1), [SellPlusPromo] nvarchar(1),
    [DTODate] nvarchar(10), [DTOTime] nvarchar(8), [DTOUser] nvarchar(10), [DTOMacID] nvarchar(20),
    [LinkCode] nvarchar(25) )
ALTER TABLE [dbo].[DEBStockPrice]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[DEBStockPrice]  ALTER COLUMN [Branch] nvarchar(10)
CREATE NONCLUSTERED INDEX [DEBStockPrice_idx01] ON [dbo].[DEBStockPrice]  ([CO], [Branch], [Account], [StockCode]) <options>

-- STKMaster
CREATE TABLE [dbo].[STKMaster] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [StockType] nvarchar(1), [StockCode] nvarchar(25),
    [LinkCode] nvarchar(25), [Description1] nvarchar(150), [Description2] nvarchar(150),
    [VATCode] nvarchar(2), [DeptCode] nvarchar(10), [SubDept] nvarchar(10),
    [Category1] nvarchar(10), [Category2] nvarchar(10), [Category3] nvarchar(10),
    [Category4] nvarchar(10), [Supplier] nvarchar(10), [SuppCode] nvarchar(50),
    [BarCode] nvarchar(25), [Variant] nvarchar(10), [Units] int DEFAULT 0 NOT NULL,
    [Singles] int DEFAULT 0 NOT NULL, [PackCase] int DEFAULT 0 NOT NULL,
    [CasePall] int DEFAULT 0 NOT NULL, [Weight] float DEFAULT 0 NOT NULL,
    [Binlocation] nvarchar(20), [ItemLength] float DEFAULT 0 NOT NULL,
    [ItemBreadth] float DEFAULT 0 NOT NULL, [ItemHeight] float DEFAULT 0 NOT NULL,
    [SerialTrack] nvarchar(1), [LinkedSerial] nvarchar(1), [KitFunction] nvarchar(1),
    [NegativeQty] nvarchar(1), [PurchaseItem] nvarchar(1), [SaleItem] nvarchar(1),
    [InventoryItem] nvarchar(1), [PrintLabel] nvarchar(1), [MiscGP] float DEFAULT 0 NOT NULL,
    [QtyDecimal] int DEFAULT 0 NOT NULL, [CostDecimal] int DEFAULT 0 NOT NULL,
    [SellDecimal] int DEFAULT 0 NOT NULL, [SqmBox] float DEFAULT 0 NOT NULL, [TileItem] nvarchar(1),
    [TileSize] nvarchar(20), [TileGrade] nvarchar(20), [TileBatchTrack] nvarchar(1),
    [TilePieces] int DEFAULT 0 NOT NULL, [AutoPurOrder] nvarchar(1), [SCTemplate] nvarchar(10),
    [LengthColor] int DEFAULT 0 NOT NULL, [LengthSize] int DEFAULT 0 NOT NULL,
    [Descriptions] nvarchar(max), [Food] nvarchar(10), [KVI] nvarchar(1), [DivertCode] nvarchar(25),
    [ScaleItem] nvarchar(1), [ScalePrice] nvarchar(1), [ScaleType] nvarchar(1),
    [ScaleVerify] nvarchar(1), [ScaleTolerance] float DEFAULT 0 NOT NULL, [Status] nvarchar(1),
    [WTCaseStart] int DEFAULT 0 NOT NULL, [WTCaseLength] int DEFAULT 0 NOT NULL,
    [WTCaseFactor] int DEFAULT 0 NOT NULL, [LastCostExcl] float DEFAULT 0 NOT NULL,
    [LastCostIncl] float DEFAULT 0 NOT NULL, [AvgCostExcl] float DEFAULT 0 NOT NULL,
    [AvgCostIncl] float DEFAULT 0 NOT NULL, [BuyCostExcl] float DEFAULT 0 NOT NULL,
    [BuyCostIncl] float DEFAULT 0 NOT NULL, [RebateAvgExcl] float DEFAULT 0 NOT NULL,
    [RebateLastExcl] float DEFAULT 0 NOT NULL, [CostCode] nvarchar(25), [Property01] nvarchar(10),
    [Property02] nvarchar(10), [Property03] nvarchar(10), [Property04] nvarchar(10),
    [Property05] nvarchar(10), [Property06] nvarchar(10), [Property07] nvarchar(10),
    [Property08] nvarchar(10), [Property09] nvarchar(10), [Property10] nvarchar(10),
    [PromFDate] nvarchar(10), [PromTDate] nvarchar(10), [PromFTime] nvarchar(8),
    [PromTTime] nvarchar(8), [PromMaxQty] float DEFAULT 0 NOT NULL,
    [PromQtySold] float DEFAULT 0 NOT NULL, [PromMCust] float DEFAULT 0 NOT NULL,
    [PromPerm] nvarchar(1), [SugSell] float DEFAULT 0 NOT NULL, [MinQty] float DEFAULT 0 NOT NULL,
    [MaxQty] float DEFAULT 0 NOT NULL, [ReOrderType] nvarchar(1), [CustomsGroup] nvarchar(10),
    [CustomsRate] float DEFAULT 0 NOT NULL, [DefaultWH] nvarchar(10), [DeliveryItem] nvarchar(1),
    [ForeignBuyCost] float DEFAULT 0 NOT NULL, [ForeignCCY] nvarchar(3),
    [Manufacturer] nvarchar(50), [LastCountedDate] nvarchar(10), [LastSaleDate] nvarchar(10),
    [LeadTimeDays] int DEFAULT 0 NOT NULL, [GLSalesAcc] nvarchar(10), [GLExpenseAcc] nvarchar(10),
    [PackSize] nvarchar(10), [PurCardPrty] int DEFAULT 0 NOT NULL,
    [AverageSTK] int DEFAULT 0 NOT NULL, [CostPlusExcl] float DEFAULT 0 NOT NULL,
    [CostPlusIncl] float DEFAULT 0 NOT NULL, [DCItem] nvarchar(1), [TDSS] nvarchar(1),
    [SeasonCode] nvarchar(10), [ChangeSelling] nvarchar(1), [PurCardRule] nvarchar(3),
    [KitPrint] nvarchar(1), [KitBuildPer] int DEFAULT 0 NOT NULL, [ItemID] int DEFAULT 0 NOT NULL,
    [Frequency] nvarchar(1), [StockTakeDate] nvarchar(10), [OrdCase] char(1), [Express] nvarchar(1),
    [IgnorePallet] nvarchar(1), [Template] nvarchar(20), [SellBelowCost] nvarchar(1),
    [ExclGRVDisc] nvarchar(1), [ExpressItem] nvarchar(1), [BCAdjFactor] float DEFAULT 0 NOT NULL,
    [BCAdjFrom] nvarchar(10), [BCAdjTo] nvarchar(10), [BCPriceIncr] nvarchar(1),
    [BaseCostExcl] float DEFAULT 0 NOT NULL, [BaseCostIncl] float DEFAULT 0 NOT NULL,
    [BCAdjFactorPerc] float DEFAULT 0 NOT NULL, [BCAdjFactorVal] float DEFAULT 0 NOT NULL,
    [Description3] nvarchar(150), [OutSesnOrd] nvarchar(1), [DefaultGP] float DEFAULT 0 NOT NULL,
    [AllowReturns] nvarchar(1), [VirtualCard] nvarchar(1), [KitCostDesc1] nvarchar(50),
    [KitCostDesc2] nvarchar(50), [KitCostDesc3] nvarchar(50), [KitCost1] float DEFAULT 0 NOT NULL,
    [KitCost2] float DEFAULT 0 NOT NULL, [KitCost3] float DEFAULT 0 NOT NULL,
    [KitWastePerc] float DEFAULT 0 NOT NULL, [BinlocMin] float DEFAULT 0 NOT NULL,
    [BinlocMax] float DEFAULT 0 NOT NULL, [BinlocRate] float DEFAULT 0 NOT NULL,
    [ReportingItem] nvarchar(1), [SaleGroup] nvarchar(1), [LastRecvSupp] nvarchar(10),
    [AvgSalesQty] float DEFAULT 0 NOT NULL, [KitWeightTol] float DEFAULT 0 NOT NULL,
    [GLPostGroup] nvarchar(10), [OnlineRange] nvarchar(1), [WeightedItem] nvarchar(1),
    [BestBeforeCode] nvarchar(10), [PalletItem] nvarchar(1), [SplitCodeItem] nvarchar(1),
    [TareWeight] float DEFAULT 0 NOT NULL, [LoyaltyPnts] int DEFAULT 0 NOT NULL,
    [KitCostFactor] float DEFAULT 0 NOT NULL, [SellByDays] int DEFAULT 0 NOT NULL,
    [UNIPin] nvarchar(1), [DispatchItem] nvarchar(1), [DispatchWH] nvarchar(10),
    [ShelfLifeDays] int DEFAULT 0 NOT NULL, [CustomVATRate] float DEFAULT 0 NOT NULL,
    [Notes] nvarchar(max), [BOMItem] nvarchar(1), [OEMNumber] nvarchar(25),
    [WooID] int DEFAULT 0 NOT NULL, [OnlineURL] nvarchar(max), [IntegrationFlags] nvarchar(15),
    [BeverageItem] nvarchar(1), [AlcoholVolume] float DEFAULT 0 NOT NULL, [BrandID] nvarchar(20),
    [CasingTemplate] nvarchar(50), [ContainerID] nvarchar(50), [CountryOfOrigin] nvarchar(50),
    [DefaultLanguage] nvarchar(10), [BriefDescription] nvarchar(255), [IsEnabled] nvarchar(1),
    [IsHidden] nvarchar(1), [IsAlcoholic] nvarchar(1), [IsNarcotic] nvarchar(1),
    [FriendlyName] nvarchar(100), [PackageID] nvarchar(50), [PalletQuantity] int DEFAULT 0 NOT NULL,
    [SubBrandID] nvarchar(50), [VariableWeight] nvarchar(1), [IsVariant] nvarchar(1),
    [MiscCostInput] nvarchar(1), [MiscReserved] nvarchar(1), [SizeItem] nvarchar(1),
    [SizeCode] nvarchar(20), [ColorCode] nvarchar(20), [SizeColorGrp] nvarchar(25),
    [FabricItem] nvarchar(1), [FabricGramsSQM] float DEFAULT 0 NOT NULL,
    [FabricWidth] float DEFAULT 0 NOT NULL, [FabricGramsMeter] float DEFAULT 0 NOT NULL,
    [FabricCoreWeight] float DEFAULT 0 NOT NULL, [FabricRolls] nvarchar(1),
    [GRVBinLocation] nvarchar(20), [MiscBuyoutItem] nvarchar(1), [BalerItem] nvarchar(1),
    [PackBale] int DEFAULT 0 NOT NULL, [CreateDate] nvarchar(10), [CreateTime] nvarchar(8),
    [CreateUser] nvarchar(10), [CreateMacID] nvarchar(20), [DTODate] nvarchar(10),
    [DTOTime] nvarchar(8), [DTOUser] nvarchar(10), [DTOMacID] nvarchar(20), [Version] nvarchar(20) )
ALTER TABLE [dbo].[STKMaster]  ALTER COLUMN [OnlineURL] nvarchar(max)
ALTER TABLE [dbo].[STKMaster] ADD [AutoPurOrder] nvarchar(1) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[STKMaster] ADD [BeverageItem] nvarchar(1) NOT NULL DEFAULT ('N')
ALTER TABLE [dbo].[STKMaster] ADD [AlcoholVolume] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[STKMaster] ADD [BrandID] nvarchar(20) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[STKMaster] ADD [CasingTemplate] nvarchar(50) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[STKMaster] ADD [ContainerID] nvarchar(50) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[STKMaster] ADD [CountryOfOrigin] nvarchar(50) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[STKMaster] ADD [DefaultLanguage] nvarchar(50) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[STKMaster] ADD [BriefDescription] nvarchar(255) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[STKMaster] ADD [IsEnabled] nvarchar(1) NOT NULL DEFAULT ('N')
ALTER TABLE [dbo].[STKMaster] ADD [IsHidden] nvarchar(1) NOT NULL DEFAULT ('N')
ALTER TABLE [dbo].[STKMaster] ADD [IsAlcoholic] nvarchar(1) NOT NULL DEFAULT ('N')
ALTER TABLE [dbo].[STKMaster] ADD [IsNarcotic] nvarchar(1) NOT NULL DEFAULT ('N')
ALTER TABLE [dbo].[STKMaster] ADD [FriendlyName] nvarchar(100) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[STKMaster] ADD [PackageID] nvarchar(50) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[STKMaster] ADD [PalletQuantity] int NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[STKMaster] ADD [SubBrandID] nvarchar(20) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[STKMaster] ADD [VariableWeight] nvarchar(1) NOT NULL DEFAULT ('N')
ALTER TABLE [dbo].[STKMaster] ADD [IsVariant] nvarchar(1) NOT NULL DEFAULT ('N')
ALTER TABLE [dbo].[STKMaster] ADD [IntegrationFlags] nvarchar(15) NOT NULL DEFAULT ('NNNNNNNNNNNNNNN')
ALTER TABLE [dbo].[STKMaster] ADD [BinlocMin] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[STKMaster] ADD [BinlocMax] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[STKMaster] ADD [BinlocRate] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[STKMaster] ADD [MiscCostInput] nvarchar(1) NOT NULL DEFAULT ('N')
ALTER TABLE [dbo].[STKMaster] ADD [MiscReserved] nvarchar(1) NOT NULL DEFAULT ('N')
ALTER TABLE [dbo].[STKMaster] ADD [FabricGramsSQM] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[STKMaster] ADD [FabricWidth] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[STKMaster] ADD [FabricGramsMeter] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[STKMaster] ADD [FabricCoreWeight] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[STKMaster] ADD [GRVBinLocation] nvarchar(20) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[STKMaster] ADD [MiscBuyoutItem] nvarchar(1) NOT NULL DEFAULT ('N')
ALTER TABLE [dbo].[STKMaster] ADD [DeliveryItem] nvarchar(1) NOT NULL DEFAULT ('N')
ALTER TABLE [dbo].[STKMaster] ADD [TilePieces] int NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[STKMaster] ADD [ScaleVerify] nvarchar(1) NOT NULL DEFAULT ('N')
ALTER TABLE [dbo].[STKMaster] ADD [ScaleTolerance] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[STKMaster] ADD [BalerItem] nvarchar(1) NOT NULL DEFAULT ('N')
ALTER TABLE [dbo].[STKMaster] ADD [PackBale] int NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[STKMaster] ADD [FabricRolls] nvarchar(1) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[STKMaster] ADD [SizeCode] nvarchar(20) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[STKMaster] ADD [ColorCode] nvarchar(20) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[STKMaster] ADD [SizeColorGrp] nvarchar(25) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[STKMaster]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[STKMaster]  ALTER COLUMN [Branch] nvarchar(10)
ALTER TABLE [dbo].[STKMaster]  ALTER COLUMN [Description1] nvarchar(150)
ALTER TABLE [dbo].[STKMaster]  ALTER COLUMN [Description2] nvarchar(150)
ALTER TABLE [dbo].[STKMaster]  ALTER COLUMN [Description3] nvarchar(150)
CREATE NONCLUSTERED INDEX [STKMaster_idx01] ON [dbo].[STKMaster]  ([CO], [Branch], [StockCode], [LinkCode]) <options>
CREATE NONCLUSTERED INDEX [STKMaster_idx02] ON [dbo].[STKMaster]  ([CO], [Branch], [Barcode], [StockCode], [LinkCode]) <options>
CREATE NONCLUSTERED INDEX [STKMaster_idx03] ON [dbo].[STKMaster]  ([CO], [Branch], [SuppCode], [StockCode], [LinkCode]) <options>
CREATE NONCLUSTERED INDEX [STKMaster_idx04] ON [dbo].[STKMaster]  ([CO], [Branch], [Supplier], [StockCode], [LinkCode]) <options>
CREATE NONCLUSTERED INDEX [STKMaster_idx05] ON [dbo].[STKMaster]  ([CO], [Branch], [Variant], [StockCode], [LinkCode]) <options>
CREATE NONCLUSTERED INDEX [STKMaster_idx06] ON [dbo].[STKMaster]  ([CO], [Branch], [Description1], [StockCode], [LinkCode], [StockType], [BarCode], [PackSize], [LastCostExcl], [LastCostIncl], [AvgCostExcl], [AvgCostIncl], [Property10]) <options>

-- STKTempBal
CREATE TABLE [dbo].[STKTempBal] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [StockCode] nvarchar(25), [WH] nvarchar(10),
    [Onhand] float DEFAULT 0 NOT NULL, [DTODate] nvarchar(10), [DTOTime] nvarchar(8),
    [DTOUser] nvarchar(10), [DTOMacID] nvarchar(20) )
CREATE NONCLUSTERED INDEX [STKTempBal_idx01] ON [dbo].[STKTempBal]  ([CO], [Branch], [StockCode], [WH]) <options>

-- STKMstSplitCodes
CREATE TABLE [dbo].[STKMstSplitCodes] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [StockCode] nvarchar(25), [LinkCode] nvarchar(25),
    [SplitCode] int DEFAULT 0 NOT NULL, [Description1] nvarchar(150),
    [Units] int DEFAULT 0 NOT NULL, [PriceExcl] float DEFAULT 0 NOT NULL,
    [PriceIncl] float DEFAULT 0 NOT NULL, [PromFDate] nvarchar(10), [PromTDate] nvarchar(10),
    [PromFTime] nvarchar(8), [PromTTime] nvarchar(8), [PromMaxQty] float DEFAULT 0 NOT NULL,
    [PromQtySold] float DEFAULT 0 NOT NULL, [PromMCust] float DEFAULT 0 NOT NULL,
    [DTODate] nvarchar(10), [DTOTime] nvarchar(8), [DTOUser] nvarchar(10), [DTOMacID] nvarchar(20) )
ALTER TABLE [dbo].[STKMstSplitCodes]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[STKMstSplitCodes]  ALTER COLUMN [Branch] nvarchar(10)
ALTER TABLE [dbo].[STKMstSplitCodes]  ALTER COLUMN [Description1] nvarchar(150)
CREATE NONCLUSTERED INDEX [STKMstSplitCodes_idx01] ON [dbo].[STKMstSplitCodes]  ([CO], [Branch], [SplitCode], [StockCode], [LinkCode]) <options>
CREATE NONCLUSTERED INDEX [STKMstSplitCodes_idx02] ON [dbo].[STKMstSplitCodes]  ([CO], [Branch], [StockCode], [LinkCode], [SplitCode]) <options>

-- STKMstSizes
CREATE TABLE [dbo].[STKMstSizes] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [StockCode] nvarchar(25), [LinkCode] nvarchar(25),
    [Seq] int DEFAULT 0 NOT NULL, [SizeCode] nvarchar(20), [Quantity] float DEFAULT 0 NOT NULL,
    [CostExcl] float DEFAULT 0 NOT NULL, [CostIncl] float DEFAULT 0 NOT NULL,
    [SellExcl] float DEFAULT 0 NOT NULL, [SellIncl] float DEFAULT 0 NOT NULL )

-- STKMstAssItems
CREATE TABLE [dbo].[STKMstAssItems] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [StockCode] nvarchar(25), [LinkCode] nvarchar(25),
    [AssStockCode] nvarchar(25), [AssLinkCode] nvarchar(25), [AssDescription1] nvarchar(150),
    [AssQty] float DEFAULT 0 NOT NULL, [OEMNumber] nvarchar(25), [OEMBrand] nvarchar(100),
    [EANNumber] nvarchar(25) )

-- STKPrice
CREATE TABLE [dbo].[STKPrice] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [StockCode] nvarchar(25), [LinkCode] nvarchar(25),
    [PriceCode] nvarchar(5), [Description] nvarchar(50), [FromDate] nvarchar(10),
    [ToDate] nvarchar(10), [Excl] float DEFAULT 0 NOT NULL, [Incl] float DEFAULT 0 NOT NULL,
    [MUP] float DEFAULT 0 NOT NULL, [GP] float DEFAULT 0 NOT NULL, [DiscP] float DEFAULT 0 NOT NULL,
    [DiscV] float DEFAULT 0 NOT NULL, [MaxDiscP] float DEFAULT 0 NOT NULL,
    [MaxDiscV] float DEFAULT 0 NOT NULL, [MinGP] float DEFAULT 0 NOT NULL, [PriceRule] nvarchar(1),
    [Rounding] nvarchar(1), [DefaultMUP] float DEFAULT 0 NOT NULL,
    [DefaultGP] float DEFAULT 0 NOT NULL, [DTODate] nvarchar(10), [DTOTime] nvarchar(8),
    [DTOUser] nvarchar(10), [DTOMacID] nvarchar(20), [Version] nvarchar(20) )
ALTER TABLE [dbo].[STKPrice]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[STKPrice]  ALTER COLUMN [Branch] nvarchar(10)
CREATE NONCLUSTERED INDEX [STKPrice_idx01] ON [dbo].[STKPrice]  ([CO], [Branch], [StockCode], [LinkCode], [PriceCode], [FromDate]) <options>
CREATE NONCLUSTERED INDEX [STKPrice_idx02] ON [dbo].[STKPrice]  ([CO], [Branch], [StockCode], [LinkCode], [PriceCode], [Excl], [Incl]) <options>

-- STKAltBarcodes
CREATE TABLE [dbo].[STKAltBarcodes] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [StockCode] nvarchar(25), [LinkCode] nvarchar(25),
    [Barcode] nvarchar(25), [Description1] nvarchar(150), [DTODate] nvarchar(10),
    [DTOTime] nvarchar(8), [DTOUser] nvarchar(10), [DTOMacID] nvarchar(20) )
ALTER TABLE [dbo].[STKAltBarcodes]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[STKAltBarcodes]  ALTER COLUMN [Branch] nvarchar(10)
ALTER TABLE [dbo].[STKAltBarcodes]  ALTER COLUMN [Description1] nvarchar(150)
CREATE NONCLUSTERED INDEX [STKAltBarcodes_idx01] ON [dbo].[STKAltBarcodes]  ([CO], [Branch], [StockCode], [LinkCode], [BarCode]) <options>
CREATE NONCLUSTERED INDEX [STKAltBarcodes_idx02] ON [dbo].[STKAltBarcodes]  ([CO], [Branch], [BarCode], [StockCode], [LinkCode]) <options>

-- STKAltStockCodes
CREATE TABLE [dbo].[STKAltStockCodes] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [StockCode] nvarchar(25), [LinkCode] nvarchar(25),
    [AltStockCode] nvarchar(25), [AltLinkCode] nvarchar(25), [Description1] nvarchar(150),
    [DTODate] nvarchar(10), [DTOTime] nvarchar(8), [DTOUser] nvarchar(10), [DTOMacID] nvarchar(20) )
ALTER TABLE [dbo].[STKAltStockCodes]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[STKAltStockCodes]  ALTER COLUMN [Branch] nvarchar(10)
ALTER TABLE [dbo].[STKAltStockCodes]  ALTER COLUMN [Description1] nvarchar(150)

-- STKAltSuppliers
CREATE TABLE [dbo].[STKAltSuppliers] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [StockCode] nvarchar(25), [LinkCode] nvarchar(25),
    [Account] nvarchar(10), [Name] nvarchar(50), [SuppCode] nvarchar(50),
    [Units] float DEFAULT 0 NOT NULL, [PackSize] nvarchar(10), [PackCase] float DEFAULT 0 NOT NULL,
    [CasePall] float DEFAULT 0 NOT NULL, [ReOrderType] nvarchar(1), [PinRuleCode] nvarchar(5),
    [DTODate] nvarchar(10), [DTOTime] nvarchar(8), [DTOUser] nvarchar(10), [DTOMacID] nvarchar(20) )
ALTER TABLE [dbo].[STKAltSuppliers]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[STKAltSuppliers]  ALTER COLUMN [Branch] nvarchar(10)

-- STKComboHdr
CREATE TABLE [dbo].[STKComboHdr] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [ComboNo] int DEFAULT 0 NOT NULL, [Description] nvarchar(50),
    [FromDate] nvarchar(10), [ToDate] nvarchar(10), [SellExcl] float DEFAULT 0 NOT NULL,
    [SellIncl] float DEFAULT 0 NOT NULL, [CostExcl] float DEFAULT 0 NOT NULL,
    [CostIncl] float DEFAULT 0 NOT NULL, [DefSellExcl] float DEFAULT 0 NOT NULL,
    [DefSellIncl] float DEFAULT 0 NOT NULL, [MaxCust] int DEFAULT 0 NOT NULL, [Status] nvarchar(1),
    [CostOverride] nvarchar(1), [DTODate] nvarchar(10), [DTOTime] nvarchar(8),
    [DTOUser] nvarchar(10), [DTOMacID] nvarchar(20) )
ALTER TABLE [dbo].[STKComboHdr] ADD [Status] nvarchar(1) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[STKComboHdr] ADD [CostOverride] nvarchar(1) NOT NULL DEFAULT ('N')
ALTER TABLE [dbo].[STKComboHdr]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[STKComboHdr]  ALTER COLUMN [Branch] nvarchar(10)
CREATE NONCLUSTERED INDEX [STKComboHdr_idx01] ON [dbo].[STKComboHdr]  ([CO], [Branch], [ComboNo]) <options>
CREATE NONCLUSTERED INDEX [STKComboHdr_idx02] ON [dbo].[STKComboHdr]  ([CO], [Branch], [FromDate], [ComboNo]) <options>

-- STKComboDet
CREATE TABLE [dbo].[STKComboDet] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [ComboNo] int DEFAULT 0 NOT NULL, [StockCode] nvarchar(25),
    [LinkCode] nvarchar(25), [VariantCode] nvarchar(10), [Description] nvarchar(50),
    [Quantity] float DEFAULT 0 NOT NULL, [CostExcl] float DEFAULT 0 NOT NULL,
    [CostIncl] float DEFAULT 0 NOT NULL, [TotCostExcl] float DEFAULT 0 NOT NULL,
    [TotCostIncl] float DEFAULT 0 NOT NULL, [PercOfTotal] float DEFAULT 0 NOT NULL,
    [SellExcl] float DEFAULT 0 NOT NULL, [SellIncl] float DEFAULT 0 NOT NULL,
    [TotalExcl] float DEFAULT 0 NOT NULL, [TotalIncl] float DEFAULT 0 NOT NULL,
    [DefSellExcl] float DEFAULT 0 NOT NULL, [DefSellIncl] float DEFAULT 0 NOT NULL,
    [CostOverride] nvarchar(1), [OverCostExcl] float DEFAULT 0 NOT NULL,
    [OverCostIncl] float DEFAULT 0 NOT NULL, [DTODate] nvarchar(10), [DTOTime] nvarchar(8),
    [DTOUser] nvarchar(10), [DTOMacID] nvarchar(20) )
ALTER TABLE [dbo].[STKComboDet] ADD [CostOverride] nvarchar(1) NOT NULL DEFAULT ('N')
ALTER TABLE [dbo].[STKComboDet] ADD [OverCostExcl] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[STKComboDet] ADD [OverCostIncl] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[STKComboDet]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[STKComboDet]  ALTER COLUMN [Branch] nvarchar(10)
CREATE NONCLUSTERED INDEX [STKComboDet_idx01] ON [dbo].[STKComboDet]  ([CO], [Branch], [ComboNo], [StockCode], [LinkCode]) <options>
CREATE NONCLUSTERED INDEX [STKComboDet_idx02] ON [dbo].[STKComboDet]  ([CO], [Branch], [ComboNo], [VariantCode]) <options>

-- STKCPRHdr
CREATE TABLE [dbo].[STKCPRHdr] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [CPRNo] nvarchar(10), [CPRType] nvarchar(1), [Description] nvarchar(50),
    [FromDate] nvarchar(10), [ToDate] nvarchar(10), [PriceRule] nvarchar(1), [Scale] nvarchar(1),
    [Source] nvarchar(1), [VIPProgressLevel] nvarchar(10), [OnlineRange] nvarchar(1),
    [Status] nvarchar(1), [BeesStatus] nvarchar(1), [DTODate] nvarchar(10), [DTOTime] nvarchar(8),
    [DTOUser] nvarchar(10), [DTOMacID] nvarchar(20), [PromoImage] image,
    [PromoColour] nvarchar(50) )
ALTER TABLE [dbo].[STKCPRHdr] ADD [PriceRule] nvarchar(1) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[STKCPRHdr] ADD [Status] nvarchar(1) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[STKCPRHdr] ADD [Source] nvarchar(1) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[STKCPRHdr] ADD [VIPProgressLevel] nvarchar(10) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[STKCPRHdr] ADD [OnlineRange] nvarchar(1) NOT NULL DEFAULT ('N')
ALTER TABLE [dbo].[STKCPRHdr] ADD [BeesStatus] nvarchar(1) NOT NULL DEFAULT ('N')
ALTER TABLE [dbo].[STKCPRHdr] ADD [PromoImage] image NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[STKCPRHdr] ADD [PromoColour] nvarchar(50) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[STKCPRHdr]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[STKCPRHdr]  ALTER COLUMN [Branch] nvarchar(10)
CREATE NONCLUSTERED INDEX [STKCprHdr_idx01] ON [dbo].[STKCprHdr]  ([CO], [Branch], [CprNo], [FromDate]) <options>
CREATE NONCLUSTERED INDEX [STKCprHdr_idx02] ON [dbo].[STKCprHdr]  ([CO], [Branch], [FromDate], [CprNo]) <options>

-- STKCPRDet
CREATE TABLE [dbo].[STKCPRDet] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [CPRNo] nvarchar(10), [StockCode] nvarchar(25), [LinkCode] nvarchar(25),
    [Description1] nvarchar(150), [FromQty] float DEFAULT 0 NOT NULL,
    [ToQty] float DEFAULT 0 NOT NULL, [PRCode] nvarchar(2), [DiscountPerc] float DEFAULT 0 NOT NULL,
    [PriceExcl] float DEFAULT 0 NOT NULL, [PriceIncl] float DEFAULT 0 NOT NULL,
    [MaxQty] float DEFAULT 0 NOT NULL, [FreeStockCode] nvarchar(25), [FreeLinkCode] nvarchar(25),
    [FreeDescription1] nvarchar(150), [FreeQty] float DEFAULT 0 NOT NULL,
    [FreePer] float DEFAULT 0 NOT NULL, [LastCostExcl] float DEFAULT 0 NOT NULL,
    [LastCostIncl] float DEFAULT 0 NOT NULL, [AvgCostExcl] float DEFAULT 0 NOT NULL,
    [AvgCostIncl] float DEFAULT 0 NOT NULL, [BuyCostExcl] float DEFAULT 0 NOT NULL,
    [BuyCostIncl] float DEFAULT 0 NOT NULL, [RebAmnt] float DEFAULT 0 NOT NULL,
    [SalesQty] float DEFAULT 0 NOT NULL, [SalesExcl] float DEFAULT 0 NOT NULL,
    [PageNo] int DEFAULT 0 NOT NULL, [ScaleRange] nvarchar(1), [LoyaltyPnts] int DEFAULT 0 NOT NULL,
    [MinBuy] float DEFAULT 0 NOT NULL, [SpotNo] nvarchar(10), [Units] int DEFAULT 0 NOT NULL,
    [VATCode] nvarchar(2), [SalesCostExcl] float DEFAULT 0 NOT NULL,
    [SalesVAT] float DEFAULT 0 NOT NULL, [SalesIncl] float DEFAULT 0 NOT NULL,
    [SalesProfit] float DEFAULT 0 NOT NULL, [SalesRebate] float DEFAULT 0 NOT NULL,
    [PriceDiscount] float DEFAULT 0 NOT NULL, [VoucherDiscount] float DEFAULT 0 NOT NULL,
    [ProductionDate] nvarchar(10), [SellBelowCost] nvarchar(1),
    [DealRangeDays] int DEFAULT 0 NOT NULL, [OverCostExcl] float DEFAULT 0 NOT NULL,
    [OverCostIncl] float DEFAULT 0 NOT NULL, [DTODate] nvarchar(10), [DTOTime] nvarchar(8),
    [DTOUser] nvarchar(10), [DTOMacID] nvarchar(20), [OnlineRange] nvarchar(1),
    [SpifPromo] nvarchar(1), [SpifAmount] float DEFAULT 0 NOT NULL )
ALTER TABLE [dbo].[STKCPRDet] ADD [OverCostExcl] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[STKCPRDet] ADD [OnlineRange] nvarchar(1) NOT NULL DEFAULT ('N')
ALTER TABLE [dbo].[STKCPRDet] ADD [SpifPromo] nvarchar(1) NOT NULL DEFAULT ('N')
ALTER TABLE [dbo].[STKCPRDet] ADD [SpifAmount] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[STKCPRDet]  ALTER COLUMN [Description1] nvarchar(150)
ALTER TABLE [dbo].[STKCPRDet]  ALTER COLUMN [FreeDescription1] nvarchar(150)
ALTER TABLE [dbo].[STKCPRDet]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[STKCPRDet]  ALTER COLUMN [Branch] nvarchar(10)
CREATE NONCLUSTERED INDEX [STKCprDet_idx01] ON [dbo].[STKCprDet]  ([CO], [Branch], [CprNo], [StockCode], [LinkCode]) <options>

-- STKCPRDeb
CREATE TABLE [dbo].[STKCPRDeb] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [CprNo] nvarchar(10), [Account] nvarchar(20), [Name] nvarchar(50),
    [DTODate] nvarchar(10), [DTOTime] nvarchar(8), [DTOUser] nvarchar(10), [DTOMacID] nvarchar(20) )
ALTER TABLE [dbo].[STKCPRDeb]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[STKCPRDeb]  ALTER COLUMN [Branch] nvarchar(10)
CREATE NONCLUSTERED INDEX [STKCprDeb_idx01] ON [dbo].[STKCprDeb]  ([CO], [Branch], [CprNo], [Account]) <options>

-- STKCPRGroup
CREATE TABLE [dbo].[STKCPRGroup] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [CPRNo] nvarchar(10), [UserGroup] nvarchar(20), [GroupDesc] nvarchar(50),
    [DTODate] nvarchar(10), [DTOTime] nvarchar(8), [DTOUser] nvarchar(10), [DTOMacID] nvarchar(20) )
ALTER TABLE [dbo].[STKCPRGroup]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[STKCPRGroup]  ALTER COLUMN [Branch] nvarchar(10)
CREATE NONCLUSTERED INDEX [STKCprGroup_idx01] ON [dbo].[STKCprGroup]  ([CO], [Branch], [CprNo], [UserGroup]) <options>

-- STKCPRSupplier
CREATE TABLE [dbo].[STKCPRSupplier] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [CPRNo] nvarchar(10), [Account] nvarchar(20), [PriceCode] nvarchar(5),
    [CostPlus] float DEFAULT 0 NOT NULL, [CostPlusF] float DEFAULT 0 NOT NULL,
    [SellPlus] float DEFAULT 0 NOT NULL, [SellMinus] float DEFAULT 0 NOT NULL,
    [AllowPromo] nvarchar(1), [ExcludeAcc] nvarchar(1), [ExcludeTender] nvarchar(2),
    [SellMinusPromo] nvarchar(1), [SellPlusPromo] nvarchar(1), [Discount] float DEFAULT 0 NOT NULL,
    [ForcePrice] nvarchar(1), [DTODate] nvarchar(10), [DTOTime] nvarchar(8), [DTOUser] nvarchar(10),
    [DTOMacID] nvarchar(20) )
ALTER TABLE [dbo].[STKCPRSupplier]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[STKCPRSupplier]  ALTER COLUMN [Branch] nvarchar(10)
CREATE NONCLUSTERED INDEX [STKCprSupplier_idx01] ON [dbo].[STKCprSupplier]  ([CO], [Branch], [CprNo], [Account]) <options>

-- STKCPRVIPCats
CREATE TABLE [dbo].[STKCPRVIPCats] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [CPRNo] nvarchar(10), [VIPCatCode] nvarchar(10),
    [Description] nvarchar(50), [DTODate] nvarchar(10), [DTOTime] nvarchar(8),
    [DTOUser] nvarchar(10), [DTOMacID] nvarchar(20) )
ALTER TABLE [dbo].[STKCPRVIPCats]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[STKCPRVIPCats]  ALTER COLUMN [Branch] nvarchar(10)
CREATE NONCLUSTERED INDEX [STKCprVIPCats_idx01] ON [dbo].[STKCprVIPCats]  ([CO], [Branch], [CprNo], [VIPCatCode]) <options>

-- STKKitMaster
CREATE TABLE [dbo].[STKKitMaster] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [StockCode] nvarchar(25), [KitStockCode] nvarchar(25),
    [KitLinkCode] nvarchar(25), [KitQty] float DEFAULT 0 NOT NULL,
    [KitLinkQty] float DEFAULT 0 NOT NULL, [KitUnits] int DEFAULT 0 NOT NULL,
    [DTODate] nvarchar(10), [DTOTime] nvarchar(8), [DTOUser] nvarchar(10), [DTOMacID] nvarchar(20),
    [KitFixedCost] nvarchar(1), [KitWaste] nvarchar(1), [KitProdItem] nvarchar(1) )
ALTER TABLE [dbo].[STKKitMaster]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[STKKitMaster]  ALTER COLUMN [Branch] nvarchar(10)
CREATE NONCLUSTERED INDEX [STKKitMaster_idx01] ON [dbo].[STKKitMaster]  ([CO], [Branch], [StockCode], [KitStockCode], [KitLinkCode]) <options>
CREATE NONCLUSTERED INDEX [STKKitMaster_idx02] ON [dbo].[STKKitMaster]  ([CO], [Branch], [KitStockCode], [KitLinkCode], [StockCode]) <options>

-- STKSerialMst
CREATE TABLE [dbo].[STKSerialMst] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [StockCode] nvarchar(25), [LinkCode] nvarchar(25),
    [SerialNo] nvarchar(50), [Status] nvarchar(1), [GRVTxTp] nvarchar(6), [GRVAccount] nvarchar(10),
    [GRVDate] nvarchar(10), [GRVTime] nvarchar(8), [GRVSuppDocNo] nvarchar(20),
    [GRVNo] int DEFAULT 0, [GRVLineNo] int DEFAULT 0, [GRVWarrantyDays] int DEFAULT 0,
    [GRVWarrantyExpDate] nvarchar(20), [DEBTxTp] nvarchar(6), [DEBAccount] nvarchar(10),
    [DEBName] nvarchar(50), [DEBPhone] nvarchar(20), [DEBDocNo] nvarchar(15),
    [DEBDocDate] nvarchar(10), [DEBDocLineNo] int DEFAULT 0, [DEBWarrantyDays] int DEFAULT 0,
    [DEBWarrantyExpDate] nvarchar(20), [ProdOrdNo] int DEFAULT 0, [OrderNo] nvarchar(15),
    [OrderDate] nvarchar(10), [PickDate] nvarchar(10), [PickTime] nvarchar(8),
    [PickUser] nvarchar(10), [PickMacID] nvarchar(20), [PickSlipNo] nvarchar(15),
    [PickSlipDate] nvarchar(10), [PackLocation] nvarchar(10), [LinkedSerialNo] nvarchar(50),
    [SwopSerialNo] nvarchar(50), [SwopDate] nvarchar(10), [SwopTime] nvarchar(8),
    [RetnDate] nvarchar(10), [RetnTime] nvarchar(8), [RetnTxTp] nvarchar(6),
    [RetnDocNo] nvarchar(25), [RetnAccount] nvarchar(10), [Mass] float DEFAULT 0,
    [Tare] float DEFAULT 0, [Pieces] int DEFAULT 0, [Fridge] nvarchar(1), [PalletNo] int DEFAULT 0,
    [DTODate] nvarchar(10), [DTOTime] nvarchar(8), [DTOUser] nvarchar(10), [DTOMacID] nvarchar(20) )

-- STKVarPromHdr
CREATE TABLE [dbo].[STKVarPromHdr] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [VarPromNo] int DEFAULT 0 NOT NULL, [Description] nvarchar(50),
    [FromDate] nvarchar(10), [ToDate] nvarchar(10), [VarPromType] nvarchar(1),
    [OnlineRange] nvarchar(1), [DTODate] nvarchar(10), [DTOTime] nvarchar(8),
    [DTOUser] nvarchar(10), [DTOMacID] nvarchar(20) )
ALTER TABLE [dbo].[STKVarPromHdr]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[STKVarPromHdr]  ALTER COLUMN [Branch] nvarchar(10)
CREATE NONCLUSTERED INDEX [STKVarPromHdr_idx01] ON [dbo].[STKVarPromHdr]  ([CO], [Branch], [VarPromNo], [FromDate]) <options>

-- STKVarPromDet
CREATE TABLE [dbo].[STKVarPromDet] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [VarPromNo] int DEFAULT 0 NOT NULL, [VariantCode] nvarchar(10),
    [FromQty] float DEFAULT 0 NOT NULL, [ToQty] float DEFAULT 0 NOT NULL, [PriceCode] nvarchar(5),
    [Excl] float DEFAULT 0 NOT NULL, [Incl] float DEFAULT 0 NOT NULL, [VATCode] nvarchar(2) )
ALTER TABLE [dbo].[STKVarPromDet]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[STKVarPromDet]  ALTER COLUMN [Branch] nvarchar(10)
CREATE NONCLUSTERED INDEX [STKVarPromDet_idx01] ON [dbo].[STKVarPromDet]  ([CO], [Branch], [VarPromNo], [VariantCode]) <options>

-- STKVarPromDeb
CREATE TABLE [dbo].[STKVarPromDeb] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [VarPromNo] int DEFAULT 0 NOT NULL, [Account] nvarchar(10),
    [Name] nvarchar(50), [DTODate] nvarchar(10), [DTOTime] nvarchar(8), [DTOUser] nvarchar(10),
    [DTOMacID] nvarchar(20) )
ALTER TABLE [dbo].[STKVarPromDeb]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[STKVarPromDeb]  ALTER COLUMN [Branch] nvarchar(10)
CREATE NONCLUSTERED INDEX [STKVarPromDeb_idx01] ON [dbo].[STKVarPromDeb]  ([CO], [Branch], [VarPromNo], [Account]) <options>

-- STKQuickScan
CREATE TABLE [dbo].[STKQuickScan] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [ButtonSeq] int DEFAULT 0 NOT NULL, [ItemType] nvarchar(1),
    [MenuCode] nvarchar(10), [StockCode] nvarchar(25), [LinkCode] nvarchar(25),
    [Description1] nvarchar(150), [ShortName] nvarchar(20), [ImageIndex] int DEFAULT 0 NOT NULL,
    [Quantity] float DEFAULT 0 NOT NULL, [SplitCode] int DEFAULT 0 NOT NULL )
ALTER TABLE [dbo].[STKQuickScan] ADD [SplitCode] int NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[STKQuickScan] ADD [ItemType] nvarchar(1) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[STKQuickScan] ADD [MenuCode] nvarchar(10) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[STKQuickScan]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[STKQuickScan]  ALTER COLUMN [Branch] nvarchar(10)
ALTER TABLE [dbo].[STKQuickScan]  ALTER COLUMN [Description1] nvarchar(150)

-- STKQuickScanSubMenu
CREATE TABLE [dbo].[STKQuickScanSubMenu] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [MenuCode] nvarchar(10), [ButtonSeq] int DEFAULT 0 NOT NULL,
    [ItemType] nvarchar(1), [StockCode] nvarchar(25), [LinkCode] nvarchar(25),
    [Description1] nvarchar(150), [ShortName] nvarchar(20), [ImageIndex] int DEFAULT 0 NOT NULL,
    [Quantity] float DEFAULT 0 NOT NULL, [SplitCode] int DEFAULT 0 NOT NULL )
ALTER TABLE [dbo].[STKQuickScanSubMenu]  ALTER COLUMN [Description1] nvarchar(150)

-- STKProperty
CREATE TABLE [dbo].[STKProperty] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [PropNo] int DEFAULT 0 NOT NULL, [PropCode] nvarchar(10), [PropDescription] nvarchar(50) )
ALTER TABLE [dbo].[STKProperty]  ALTER COLUMN [CO] nvarchar(10)
CREATE NONCLUSTERED INDEX [STKProperty_idx01] ON [dbo].[STKProperty]  ([CO], [PropNo], [PropCode]) <options>

-- STKPromoImages
CREATE TABLE [dbo].[STKPromoImages] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [DispSeq] int DEFAULT 0 NOT NULL, [ImageName] nvarchar(100),
    [ImageDesc] nvarchar(100), [ImageData] image )
ALTER TABLE [dbo].[STKPromoImages] ADD [ImageDesc] nvarchar(100) NOT NULL DEFAULT ('')

-- STKBluProducts
CREATE TABLE [dbo].[STKBluProducts] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [ProviderID] int DEFAULT 0 NOT NULL, [ProviderName] nvarchar(100),
    [ProductID] int DEFAULT 0 NOT NULL, [ProductName] nvarchar(100), [Category] nvarchar(50),
    [Region] nvarchar(50) )

-- STKBinLoc
CREATE TABLE [dbo].[STKBinLoc] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [WH] nvarchar(5), [BinLoc] nvarchar(20), [BinSize] float DEFAULT 0,
    [Picker] nvarchar(10), [DTODate] nvarchar(10), [DTOTime] nvarchar(8), [DTOUser] nvarchar(10),
    [DTOMacID] nvarchar(20) )
