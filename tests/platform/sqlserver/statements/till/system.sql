-- SYSAudit
CREATE TABLE [dbo].[SYSAudit] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [ModCode] nvarchar(5), [FormCode] nvarchar(10), [Account] nvarchar(10),
    [StockCode] nvarchar(25), [LinkCode] nvarchar(25), [Description1] nvarchar(150),
    [FieldName] nvarchar(30), [FieldDesc] nvarchar(50), [OldText] nvarchar(50),
    [NewText] nvarchar(50), [OldValue] float DEFAULT 0 NOT NULL,
    [NewValue] float DEFAULT 0 NOT NULL, [DTODate] nvarchar(10), [DTOTime] nvarchar(8),
    [DTOUser] nvarchar(10), [DTOMacID] nvarchar(20) )
ALTER TABLE [dbo].[SYSAudit]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[SYSAudit]  ALTER COLUMN [Branch] nvarchar(10)
ALTER TABLE [dbo].[SYSAudit]  ALTER COLUMN [Description1] nvarchar(150)
CREATE NONCLUSTERED INDEX [SYSAudit_idx01] ON [dbo].[SYSAudit]  ([CO], [Branch], [ModCode], [FormCode]) <options>

-- SYSDebugLogs
CREATE TABLE [dbo].[SYSDebugLogs] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [TillNo] nvarchar(5), [TxTp] nvarchar(6), [DocNo] nvarchar(25),
    [Details] nvarchar(50), [DTODate] nvarchar(10), [DTOTime] nvarchar(8), [DTOUser] nvarchar(10),
    [DTOMacID] nvarchar(20), [LogData] nvarchar(max) )
CREATE NONCLUSTERED INDEX [SYSDebugLogs_idx01] ON [dbo].[SYSDebugLogs]  ([CO], [Branch], [TxTp], [DocNo]) <options>
CREATE NONCLUSTERED INDEX [SYSDebugLogs_idx02] ON [dbo].[SYSDebugLogs]  ([CO], [Branch], [DTODate], [TxTp], [TillNo], [DocNo]) <options>
CREATE NONCLUSTERED INDEX [SYSDebugLogs_idx03] ON [dbo].[SYSDebugLogs]  ([CO], [Branch], [DocNo], [TxTp]) <options>

-- SysControl
CREATE TABLE [dbo].[SysControl] ([RecID] int IDENTITY(1, 1) NOT NULL, [PCName] nvarchar(50),
    [ServerDate] nvarchar(10), [ServerTime] nvarchar(8), [HQTxTp] nvarchar(6),
    [HQDate] nvarchar(10), [HQTime] nvarchar(8), [LocalTxTp] nvarchar(6), [LocalDate] nvarchar(10),
    [LocalTime] nvarchar(8), [PromoUpdate] nvarchar(1), [ParamUpdate] nvarchar(1),
    [PictureUpdate] nvarchar(1), [CurrTxTp] nvarchar(6), [CurrDocNo] nvarchar(15) )
ALTER TABLE [dbo].[SysControl] ADD [PromoUpdate] nvarchar(1) NOT NULL DEFAULT ('N')
ALTER TABLE [dbo].[SysControl] ADD [ParamUpdate] nvarchar(1) NOT NULL DEFAULT ('N')
ALTER TABLE [dbo].[SysControl] ADD [CurrTxTp] nvarchar(6) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[SysControl] ADD [CurrDocNo] nvarchar(15) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[SysControl] ADD [PictureUpdate] nvarchar(1) NOT NULL DEFAULT ('')

-- SYSCompany
CREATE TABLE [dbo].[SYSCompany] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [COName] nvarchar(50), [COBusAddress1] nvarchar(40), [COBusAddress2] nvarchar(40),
    [COBusAddress3] nvarchar(40), [COBusAddress4] nvarchar(40), [COPostAddress1] nvarchar(40),
    [COPostAddress2] nvarchar(40), [COPostAddress3] nvarchar(40), [COPostAddress4] nvarchar(40),
    [COPhone] nvarchar(40), [COFax] nvarchar(40), [COEmail] nvarchar(100), [CORegNo] nvarchar(20),
    [COVATNo] nvarchar(20), [COGroup] nvarchar(10), [COWebSite] nvarchar(100),
    [COBankName] nvarchar(50), [COBranchName] nvarchar(50), [COBranchCode] nvarchar(20),
    [COAccNo] nvarchar(20), [COAccName] nvarchar(50), [ShortName] nvarchar(30) )
ALTER TABLE [dbo].[SYSCompany] ADD [ShortName] nvarchar(30) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[SYSCompany]  ALTER COLUMN [CO] nvarchar(10)
CREATE NONCLUSTERED INDEX [SYSCompany_idx01] ON [dbo].[SYSCompany]  ([CO]) <options>

-- SYSCodeMaster
CREATE TABLE [dbo].[SYSCodeMaster] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [CodeType] nvarchar(6), [Code] nvarchar(10), [Description] nvarchar(150),
    [GLAccNo] int DEFAULT 0 NOT NULL, [UserFld1] nvarchar(50), [UserFld2] nvarchar(50),
    [UserFld3] nvarchar(50), [AllowVAT] nvarchar(1), [TxTp] nvarchar(6), [SystemField] nvarchar(1),
    [GLSubAccNo] int DEFAULT 0 NOT NULL )
ALTER TABLE [dbo].[SYSCodeMaster]  ALTER COLUMN [CO] nvarchar(10)
CREATE NONCLUSTERED INDEX [SYSCodeMaster_idx01] ON [dbo].[SYSCodeMaster]  ([CO], [CodeType], [Code]) <options>

-- SYSCoinMaster
CREATE TABLE [dbo].[SYSCoinMaster] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [CoinCode] nvarchar(10), [Description] nvarchar(20), [CoinType] nvarchar(1),
    [CoinValue] float DEFAULT 0 NOT NULL )
ALTER TABLE [dbo].[SYSCoinMaster]  ALTER COLUMN [CO] nvarchar(10)

-- SYSCurrencyMst
CREATE TABLE [dbo].[SYSCurrencyMst] ([RecID] int IDENTITY(1, 1) NOT NULL, [CCYCode] nvarchar(5),
    [CCYName] nvarchar(50), [CCYFactor] nvarchar(1), [CCYSymbol] nvarchar(5),
    [CCYNumCode] int DEFAULT 0 NOT NULL )
CREATE NONCLUSTERED INDEX [SYSCurrencyMst_idx01] ON [dbo].[SYSCurrencyMst]  ([CCYCode]) <options>

-- SYSCurrencyRates
CREATE TABLE [dbo].[SYSCurrencyRates] ([RecID] int IDENTITY(1, 1) NOT NULL, [CCYCode] nvarchar(5),
    [CCYRateDate] nvarchar(10), [CCYRate] float DEFAULT 0 NOT NULL )
CREATE NONCLUSTERED INDEX [SYSCurrencyRates_idx01] ON [dbo].[SYSCurrencyRates]  ([CCYCode], [CCYRateDate]) <options>

-- SYSCardDevices
CREATE TABLE [dbo].[SYSCardDevices] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [DeviceID] nvarchar(30), [BankName] nvarchar(30),
    [DeviceType] nvarchar(30), [ReferenceID] nvarchar(30), [DefaultMACID] nvarchar(20),
    [DefaultTill] nvarchar(5), [HostAddress] nvarchar(max), [UniqueID] nvarchar(50),
    [SerialNo] nvarchar(50), [Issuer] nvarchar(50), [Status] nvarchar(1),
    [DefaultPrinter] nvarchar(50) )
ALTER TABLE [dbo].[SYSCardDevices] ADD [DefaultPrinter] nvarchar(50) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[SYSCardDevices]  ALTER COLUMN [HostAddress] nvarchar(max)
ALTER TABLE [dbo].[SYSCardDevices]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[SYSCardDevices]  ALTER COLUMN [Branch] nvarchar(10)
CREATE NONCLUSTERED INDEX [SYSCardDevices_idx01] ON [dbo].[SYSCardDevices]  ([CO], [Branch], [DeviceID]) <options>

-- SvrTrig
CREATE TABLE [dbo].[SvrTrig] ([RecID] int IDENTITY(1, 1) NOT NULL, [Status] nvarchar(1),
    [CO] nvarchar(10), [Branch] nvarchar(10), [TxTp] nvarchar(6), [StockCode] nvarchar(50),
    [LinkCode] nvarchar(50), [Description1] nvarchar(150), [PriceCode] nvarchar(5),
    [Account] nvarchar(50), [SubAccount] nvarchar(50), [DocNo] nvarchar(50), [TillNo] nvarchar(5),
    [Text1] nvarchar(250), [Text2] nvarchar(250), [Text3] nvarchar(250), [APIRequest] nvarchar(max),
    [APIResponse] nvarchar(max), [SAPRetnCode] nvarchar(10), [SAPRetnMsg] nvarchar(200),
    [SAPKey] nvarchar(20), [RetryCnt] int DEFAULT 0 NOT NULL, [CreateDate] nvarchar(10),
    [CreateTime] nvarchar(8), [CreateUser] nvarchar(10), [CreateMacID] nvarchar(20),
    [ProcessDate] nvarchar(10), [ProcessTime] nvarchar(8), [ProcessUser] nvarchar(10),
    [ProcessMacID] nvarchar(20), [ReturnMsg] nvarchar(max) )
ALTER TABLE [dbo].[SvrTrig]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[SvrTrig]  ALTER COLUMN [Branch] nvarchar(10)
ALTER TABLE [dbo].[SvrTrig]  ALTER COLUMN [Description1] nvarchar(150)
CREATE NONCLUSTERED INDEX [SvrTrig_idx01] ON [dbo].[SvrTrig]  ([Status], [RecID]) <options>
CREATE NONCLUSTERED INDEX [SvrTrig_idx02] ON [dbo].[SvrTrig]  ([CreateDate], [TxTp], [RecID]) <options>
CREATE NONCLUSTERED INDEX [SvrTrig_idx03] ON [dbo].[SvrTrig]  ([TxTp], [DocNo], [CreateDate]) <options>
CREATE NONCLUSTERED INDEX [SvrTrig_idx04] ON [dbo].[SvrTrig]  ([TxTp], [StockCode], [CreateDate]) <options>

-- SYSBranch
CREATE TABLE [dbo].[SYSBranch] ([RECID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [BRName] nvarchar(50), [ShortName] nvarchar(30),
    [BRBusAddress1] nvarchar(40), [BRBusAddress2] nvarchar(40), [BRBusAddress3] nvarchar(40),
    [BRBusAddress4] nvarchar(40), [BRPostAddress1] nvarchar(40), [BRPostAddress2] nvarchar(40),
    [BRPostAddress3] nvarchar(40), [BRPostAddress4] nvarchar(40), [BRTel] nvarchar(40),
    [BRFax] nvarchar(40), [BREmail] nvarchar(100), [TradingBranch] nvarchar(1),
    [BranchCategory] nvarchar(1), [BranchType] nvarchar(1), [Online] nvarchar(1),
    [BRWebSite] nvarchar(100), [Loyalty] nvarchar(1), [BRBankName] nvarchar(50),
    [BRBranchName] nvarchar(50), [BRBranchCode] nvarchar(20), [BRAccNo] nvarchar(20),
    [BRAccName] nvarchar(50) )
ALTER TABLE [dbo].[SYSBranch]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[SYSBranch]  ALTER COLUMN [Branch] nvarchar(10)
CREATE NONCLUSTERED INDEX [SYSBranch_idx01] ON [dbo].[SYSBranch]  ([CO], [Branch]) <options>

-- SYSBRShare
CREATE TABLE [dbo].[SYSBRShare] ([RECID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [SHSTK] nvarchar(10), [SHCRD] nvarchar(10), [SHDEB] nvarchar(10),
    [SHGLG] nvarchar(10), [SHPUR] nvarchar(10), [SHVIP] nvarchar(10) )
ALTER TABLE [dbo].[SYSBRShare]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[SYSBRShare]  ALTER COLUMN [Branch] nvarchar(10)
ALTER TABLE [dbo].[SYSBRShare]  ALTER COLUMN [SHSTK] nvarchar(10)
ALTER TABLE [dbo].[SYSBRShare]  ALTER COLUMN [SHCRD] nvarchar(10)
ALTER TABLE [dbo].[SYSBRShare]  ALTER COLUMN [SHDEB] nvarchar(10)
ALTER TABLE [dbo].[SYSBRShare]  ALTER COLUMN [SHGLG] nvarchar(10)
ALTER TABLE [dbo].[SYSBRShare]  ALTER COLUMN [SHPUR] nvarchar(10)
ALTER TABLE [dbo].[SYSBRShare]  ALTER COLUMN [SHVIP] nvarchar(10)

-- SYSAP
CREATE TABLE [dbo].[SYSAP] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [AP] int DEFAULT 0 NOT NULL, [FromDate] nvarchar(10), [ToDate] nvarchar(10),
    [YearEnd] nvarchar(1), [YearEndRun] nvarchar(30), [APActive] nvarchar(1), [APOpen] nvarchar(1),
    [GLYear] int DEFAULT 0 NOT NULL )
ALTER TABLE [dbo].[SYSAP]  ALTER COLUMN [CO] nvarchar(10)
CREATE NONCLUSTERED INDEX [SysAP_idx01] ON [dbo].[SysAP]  ([CO], [AP]) <options>
CREATE NONCLUSTERED INDEX [SysAP_idx02] ON [dbo].[SysAP]  ([CO], [FromDate], [AP]) <options>

-- SYSGrpAccess
CREATE TABLE [dbo].[SYSGrpAccess] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [UserGroup] nvarchar(10), [ModCode] nvarchar(3), [AccessNo] int DEFAULT 0 NOT NULL,
    [AccessName] nvarchar(200), [Options] nvarchar(1) )
ALTER TABLE [dbo].[SYSGrpAccess] ADD [AccessName] nvarchar(200) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[SYSGrpAccess]  ALTER COLUMN [CO] nvarchar(10)
CREATE NONCLUSTERED INDEX [SYSGrpAccess_idx01] ON [dbo].[SYSGrpAccess]  ([CO], [UserGroup], [ModCode], [AccessNo]) <options>

-- SYSGrpParam
CREATE TABLE [dbo].[SYSGrpParam] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [UserGroup] nvarchar(10), [ModCode] nvarchar(3), [ParamNo] int DEFAULT 0 NOT NULL,
    [ParamValue] nvarchar(max) )
ALTER TABLE [dbo].[SYSGrpParam] ADD [ParamValue] nvarchar(max) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[SYSGrpParam]  ALTER COLUMN [ParamValue] nvarchar(max)
ALTER TABLE [dbo].[SYSGrpParam]  ALTER COLUMN [CO] nvarchar(10)
CREATE NONCLUSTERED INDEX [SYSGrpParam_idx01] ON [dbo].[SYSGrpParam]  ([CO], [UserGroup], [ModCode], [ParamNo]) <options>

-- SYSParameter
CREATE TABLE [dbo].[SYSParameter] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [ModCode] nvarchar(3), [UserCode] nvarchar(10),
    [ParamNo] int DEFAULT 0 NOT NULL, [ParamName] nvarchar(100), [ParamValue] nvarchar(max),
    [ParamType] nvarchar(1) )
ALTER TABLE [dbo].[SYSParameter] ADD [ParamValue] nvarchar(max) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[SYSParameter]  ALTER COLUMN [ParamValue] nvarchar(max)
ALTER TABLE [dbo].[SYSParameter]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[SYSParameter]  ALTER COLUMN [Branch] nvarchar(10)
CREATE NONCLUSTERED INDEX [SYSParameter_idx01] ON [dbo].[SYSParameter]  ([CO], [Branch], [ModCode], [ParamNo]) <options>
CREATE NONCLUSTERED INDEX [SYSParameter_idx02] ON [dbo].[SYSParameter]  ([CO], [Branch], [UserCode], [ModCode], [ParamNo]) <options>

-- SYSTender
CREATE TABLE [dbo].[SYSTender] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [TenderType] nvarchar(2), [TenderDesc] nvarchar(30), [AllowSubTypes] nvarchar(1),
    [GLAcNo] nvarchar(10), [CodeType] nvarchar(1), [DisplaySeq] int DEFAULT 0 NOT NULL,
    [TenderForm] nvarchar(2) )
ALTER TABLE [dbo].[SYSTender]  ALTER COLUMN [CO] nvarchar(10)

-- SYSSalesReps
CREATE TABLE [dbo].[SYSSalesReps] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [RepCode] nvarchar(10), [RepName] nvarchar(40), [EarnComm] nvarchar(1),
    [SalesCategory] nvarchar(10), [CommissionType] nvarchar(1),
    [CommPerWeight] float DEFAULT 0 NOT NULL, [BaseLimit] float DEFAULT 0 NOT NULL,
    [BaseGP] float DEFAULT 0 NOT NULL, [BelowTargetPerc] float DEFAULT 0 NOT NULL,
    [TargetPerc] float DEFAULT 0 NOT NULL, [ExcludePromo] nvarchar(1), [ExcludeProp10] nvarchar(10),
    [Telephone] nvarchar(20), [EMail] nvarchar(250) )
ALTER TABLE [dbo].[SYSSalesReps]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[SYSSalesReps]  ALTER COLUMN [Branch] nvarchar(10)
CREATE NONCLUSTERED INDEX [SYSSalesReps_idx01] ON [dbo].[SYSSalesReps]  ([CO], [Branch], [RepCode]) <options>

-- SYSTillControl
CREATE TABLE [dbo].[SYSTillControl] ([RecID] int IDENTITY(1, 1) NOT NULL, [PCName] nvarchar(50),
    [MacID] nvarchar(20), [Key] nvarchar(200), [DBVersion] nvarchar(20), [LastMaint] nvarchar(10),
    [LastUpgrade] nvarchar(10) )

-- SYSUser
CREATE TABLE [dbo].[SYSUser] ([RecID] int IDENTITY(1, 1) NOT NULL, [UserCode] nvarchar(10),
    [UserPswd] nvarchar(50), [UserName] nvarchar(50), [Status] nvarchar(1), [DefCO] nvarchar(5),
    [PswdDate] nvarchar(10), [DefBranch] nvarchar(10), [DefSalesrep] nvarchar(10),
    [DefAccount] nvarchar(10), [DefTillNo] nvarchar(5), [InUse] nvarchar(1),
    [UserID] int DEFAULT 0 NOT NULL, [UserSessionID] nvarchar(50), [BioID] int DEFAULT 0 NOT NULL,
    [UserGroup] nvarchar(5), [Supervisor] nvarchar(1), [SuperCardNo] nvarchar(20),
    [AllowViewCost] nvarchar(1), [AllowViewProfit] nvarchar(1), [ProfitCalcCost] nvarchar(1),
    [AllowCash] nvarchar(1), [AllowCheques] nvarchar(1), [AllowCreditCards] nvarchar(1),
    [AllowVouchers] nvarchar(1), [AllowTransfers] nvarchar(1), [AllowWallets] nvarchar(1),
    [AllowTenderType1] nvarchar(1), [AllowTenderType2] nvarchar(1), [AllowTenderType3] nvarchar(1),
    [AllowTenderType4] nvarchar(1), [AllowCCY] nvarchar(1), [CCYCode1] nvarchar(5),
    [CCYCode2] nvarchar(5), [CCYCode3] nvarchar(5), [CCYCode4] nvarchar(5), [CCYCode5] nvarchar(5),
    [TenderType1] nvarchar(2), [TenderType2] nvarchar(2), [TenderType3] nvarchar(2),
    [TenderType4] nvarchar(2), [TenderForm1] nvarchar(2), [TenderForm2] nvarchar(2),
    [TenderForm3] nvarchar(2), [TenderForm4] nvarchar(2), [Tender1CCY] nvarchar(5),
    [Tender2CCY] nvarchar(5), [Tender3CCY] nvarchar(5), [Tender4CCY] nvarchar(5),
    [LimitCash] float DEFAULT 0 NOT NULL, [LimitCheques] float DEFAULT 0 NOT NULL,
    [LimitCreditcards] float DEFAULT 0 NOT NULL, [LimitVouchers] float DEFAULT 0 NOT NULL,
    [LimitTransfers] float DEFAULT 0 NOT NULL, [LimitWallets] float DEFAULT 0 NOT NULL,
    [LimitTenderType1] float DEFAULT 0 NOT NULL, [LimitTenderType2] float DEFAULT 0 NOT NULL,
    [LimitTenderType3] float DEFAULT 0 NOT NULL, [LimitTenderType4] float DEFAULT 0 NOT NULL,
    [DefWH] nvarchar(5), [Yellowfin] nvarchar(1), [DefaultPrinter] nvarchar(50),
    [UseSession] nvarchar(1), [EMail] nvarchar(100), [CellNo] nvarchar(20),
    [LastLogDate] nvarchar(10), [LastLogTime] nvarchar(8), [LastLogMacID] nvarchar(20),
    [LastLogEXE] nvarchar(20) )
ALTER TABLE [dbo].[SYSUser] ADD [UseSession] nvarchar(1) NOT NULL DEFAULT ('N')
ALTER TABLE [dbo].[SYSUser] ADD [EMail] nvarchar(1) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[SYSUser] ADD [CellNo] nvarchar(1) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[SYSUser] ADD [UserID] int NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[SYSUser] ADD [ProfitCalcCost] nvarchar(1) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[SYSUser] ADD [AllowCCY] nvarchar(1) NOT NULL DEFAULT ('N')
ALTER TABLE [dbo].[SYSUser] ADD [CCYCode1] nvarchar(5) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[SYSUser] ADD [CCYCode2] nvarchar(5) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[SYSUser] ADD [CCYCode3] nvarchar(5) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[SYSUser] ADD [CCYCode4] nvarchar(5) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[SYSUser] ADD [CCYCode5] nvarchar(5) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[SYSUser] ADD [Tender1CCY] nvarchar(5) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[SYSUser] ADD [Tender2CCY] nvarchar(5) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[SYSUser] ADD [Tender3CCY] nvarchar(5) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[SYSUser] ADD [Tender4CCY] nvarchar(5) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[SYSUser] ADD [AllowWallets] nvarchar(1) NOT NULL DEFAULT ('N')
ALTER TABLE [dbo].[SYSUser] ADD [LimitWallets] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[SYSUser] ADD [BioID] int NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[SYSUser] ADD [UserSessionID] nvarchar(50) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[SYSUser] ADD [Yellowfin] nvarchar(1) NOT NULL DEFAULT ('N')
ALTER TABLE [dbo].[SYSUser]  ALTER COLUMN [DefBranch] nvarchar(10)
CREATE NONCLUSTERED INDEX [SYSUser_idx01] ON [dbo].[SYSUser]  ([UserCode]) <options>

-- SYSUserAccess
CREATE TABLE [dbo].[SYSUserAccess] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [UserCode] nvarchar(10), [ModCode] nvarchar(3),
    [AccessNo] int DEFAULT 0 NOT NULL, [AccessName] nvarchar(200), [Options] nvarchar(1) )
ALTER TABLE [dbo].[SYSUserAccess] ADD [AccessName] nvarchar(200) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[SYSUserAccess]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[SYSUserAccess]  ALTER COLUMN [Branch] nvarchar(10)
CREATE NONCLUSTERED INDEX [SYSUserAccess_idx01] ON [dbo].[SYSUserAccess]  ([CO], [Branch], [UserCode], [ModCode]) <options>

-- SYSUserBiometrics
CREATE TABLE [dbo].[SYSUserBiometrics] ([RecID] int IDENTITY(1, 1) NOT NULL,
    [UserCode] nvarchar(10), [FPDescription] nvarchar(20), [FPMask] int DEFAULT 0 NOT NULL,
    [FPData] sql_variant )
CREATE NONCLUSTERED INDEX [SYSUserBiometrics_idx01] ON [dbo].[SYSUserBiometrics]  ([UserCode]) <options>

-- SYSBiometricDetl
CREATE TABLE [dbo].[SYSBiometricDetl] ([RecID] int IDENTITY(1, 1) NOT NULL,
    [BioID] int DEFAULT 0 NOT NULL, [FPMask] int DEFAULT 0 NOT NULL, [FPDescription] nvarchar(20),
    [FPData] varbinary(max) )
CREATE NONCLUSTERED INDEX [SYSBiometricDetl_idx01] ON [dbo].[SYSBiometricDetl]  ([BioID], [FPMask]) <options>

-- SYSUserComp
CREATE TABLE [dbo].[SYSUserComp] ([RecID] int IDENTITY(1, 1) NOT NULL, [UserCode] nvarchar(10),
    [CO] nvarchar(10), [Branch] nvarchar(10), [ModCode] nvarchar(3) )
ALTER TABLE [dbo].[SYSUserComp]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[SYSUserComp]  ALTER COLUMN [Branch] nvarchar(10)
CREATE NONCLUSTERED INDEX [SYSUserComp_idx01] ON [dbo].[SYSUserComp]  ([UserCode], [CO], [Branch]) <options>

-- SYSUserForms
CREATE TABLE [dbo].[SYSUserForms] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [UserCode] nvarchar(10), [TxTp] nvarchar(6), [FormCode] nvarchar(10),
    [FormName] nvarchar(50), [PrinterName] nvarchar(200), [PrtCopies] int DEFAULT 0 NOT NULL,
    [PrtMsgModCode] nvarchar(3), [PrtMsgCode] nvarchar(5) )
ALTER TABLE [dbo].[SYSUserForms]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[SYSUserForms]  ALTER COLUMN [Branch] nvarchar(10)
CREATE NONCLUSTERED INDEX [SYSUserForms_idx01] ON [dbo].[SYSUserForms]  ([CO], [Branch], [UserCode], [TxTp]) <options>

-- SYSUserGroup
CREATE TABLE [dbo].[SYSUserGroup] ([RECID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [UserGroup] nvarchar(10), [GroupDesc] nvarchar(50), [GroupType] nvarchar(1),
    [AllowCash] nvarchar(1), [AllowCheques] nvarchar(1), [AllowCreditCards] nvarchar(1),
    [AllowVouchers] nvarchar(1), [AllowTransfers] nvarchar(1), [AllowWallets] nvarchar(1),
    [AllowTenderType1] nvarchar(1), [AllowTenderType2] nvarchar(1), [AllowTenderType3] nvarchar(1),
    [AllowTenderType4] nvarchar(1), [TenderType1] nvarchar(2), [TenderType2] nvarchar(2),
    [TenderType3] nvarchar(2), [TenderType4] nvarchar(2), [TenderForm1] nvarchar(2),
    [TenderForm2] nvarchar(2), [TenderForm3] nvarchar(2), [TenderForm4] nvarchar(2),
    [LimitCash] float DEFAULT 0 NOT NULL, [LimitCheques] float DEFAULT 0 NOT NULL,
    [LimitCreditCards] float DEFAULT 0 NOT NULL, [LimitVouchers] float DEFAULT 0 NOT NULL,
    [LimitTransfers] float DEFAULT 0 NOT NULL, [LimitWallets] float DEFAULT 0 NOT NULL,
    [LimitTenderType1] float DEFAULT 0 NOT NULL, [LimitTenderType2] float DEFAULT 0 NOT NULL,
    [LimitTenderType3] float DEFAULT 0 NOT NULL, [LimitTenderType4] float DEFAULT 0 NOT NULL,
    [AllowSaleGroup] nvarchar(1), [BlockSaleGroup] nvarchar(1), [AllowViewCost] nvarchar(1),
    [AllowViewProfit] nvarchar(1) )
ALTER TABLE [dbo].[SYSUserGroup] ADD [AllowWallets] nvarchar(1) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[SYSUserGroup] ADD [LimitWallets] float NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[SYSUserGroup]  ALTER COLUMN [CO] nvarchar(10)
CREATE NONCLUSTERED INDEX [SYSUserGroup_idx01] ON [dbo].[SYSUserGroup]  ([CO], [UserGroup]) <options>

-- SYSUserParam
CREATE TABLE [dbo].[SYSUserParam] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [UserCode] nvarchar(10), [ModCode] nvarchar(3),
    [ParamNo] int DEFAULT 0 NOT NULL, [ParamValue] nvarchar(max) )
ALTER TABLE [dbo].[SYSUserParam] ADD [ParamValue] nvarchar(max) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[SYSUserParam]  ALTER COLUMN [ParamValue] nvarchar(max)
ALTER TABLE [dbo].[SYSUserParam]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[SYSUserParam]  ALTER COLUMN [Branch] nvarchar(10)
CREATE NONCLUSTERED INDEX [SYSUserParam_idx01] ON [dbo].[SYSUserParam]  ([CO], [Branch], [UserCode], [ModCode]) <options>

-- SYSUserSMS
CREATE TABLE [dbo].[SYSUserSMS] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [UserCode] nvarchar(10), [TxTp] nvarchar(6), [SMS] nvarchar(1),
    [EMail] nvarchar(1), [TxtHeader] nvarchar(1024), [TxtTrailer] nvarchar(1024) )
ALTER TABLE [dbo].[SYSUserSMS] ADD [TxtHeader] nvarchar(1024) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[SYSUserSMS] ADD [TxtTrailer] nvarchar(1024) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[SYSUserSMS]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[SYSUserSMS]  ALTER COLUMN [Branch] nvarchar(10)
CREATE NONCLUSTERED INDEX [SYSUserSMS_idx01] ON [dbo].[SYSUserSMS]  ([CO], [Branch], [UserCode]) <options>

-- SYSTax
CREATE TABLE [dbo].[SYSTax] ([RecID] int IDENTITY(1, 1) NOT NULL, [SeqNo] int DEFAULT 0 NOT NULL,
    [TaxCode] nvarchar(2), [TaxDesc] nvarchar(50), [TaxRate] float DEFAULT 0 NOT NULL,
    [SARSTaxCode] nvarchar(20), [SARSTaxDesc] nvarchar(200), [FromDate] nvarchar(10),
    [ToDate] nvarchar(10), [SysLock] nvarchar(1) )
ALTER TABLE [dbo].[SYSTax] ADD [TaxDesc] nvarchar(50) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[SYSTax] ADD [SARSTaxCode] nvarchar(20) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[SYSTax] ADD [SARSTaxDesc] nvarchar(200) NOT NULL DEFAULT ('')
ALTER TABLE [dbo].[SYSTax] ADD [SysLock] nvarchar(1) NOT NULL DEFAULT ('Y')
ALTER TABLE [dbo].[SYSTax] ADD [SeqNo] int NOT NULL DEFAULT (0)
ALTER TABLE [dbo].[SYSTax]  ALTER COLUMN [TaxDesc] nvarchar(50)

-- SYSTxTp
CREATE TABLE [dbo].[SYSTxTp] ([RecID] int IDENTITY(1, 1) NOT NULL, [ModCode] nvarchar(3),
    [TxTp] nvarchar(6), [TxTpDesc] nvarchar(50), [DrCr] nvarchar(1), [ApplyTax] nvarchar(1),
    [AllowDiscount] nvarchar(1), [AllowGL] nvarchar(1), [TxTpType] nvarchar(1),
    [DefSeqNo] int DEFAULT 0 NOT NULL )
ALTER TABLE [dbo].[SYSTxTp] ADD [DefSeqNo] int NOT NULL DEFAULT (0)
CREATE NONCLUSTERED INDEX [SYSTxTp_idx01] ON [dbo].[SYSTxTp]  ([ModCode], [TxTp]) <options>

-- SYSPrices
CREATE TABLE [dbo].[SYSPrices] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [PriceCode] nvarchar(5), [Description] nvarchar(50), [MUP] float DEFAULT 0 NOT NULL,
    [GP] float DEFAULT 0 NOT NULL, [PriceRule] nvarchar(1), [Rounding] nvarchar(1),
    [DefaultMUP] float DEFAULT 0 NOT NULL, [DefaultGP] float DEFAULT 0 NOT NULL,
    [AutoCreate] nvarchar(1) )
CREATE NONCLUSTERED INDEX [SYSPrices_idx01] ON [dbo].[SYSPrices]  ([CO], [PriceCode]) <options>

-- SYSRepImages
CREATE TABLE [dbo].[SYSRepImages] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [ImageCode] nvarchar(10), [ImageName] nvarchar(100), [ImageData] image )
ALTER TABLE [dbo].[SYSRepImages]  ALTER COLUMN [CO] nvarchar(10)
CREATE NONCLUSTERED INDEX [SYSRepImages_idx01] ON [dbo].[SYSRepImages]  ([CO], [ImageCode]) <options>

-- SysRepTemplates
CREATE TABLE [dbo].[SysRepTemplates] ([RecID] int IDENTITY(1, 1) NOT NULL, [Suite] nvarchar(20),
    [ModCode] nvarchar(6), [RepName] nvarchar(60), [Template] nvarchar(200),
    [Description] nvarchar(100), [SQL01] ntext, [SQL02] ntext, [SQL03] ntext, [SQL04] ntext,
    [SQL05] ntext, [GroupBy01] nvarchar(4000), [GroupBy02] nvarchar(4000),
    [GroupBy03] nvarchar(2048), [GroupBy04] nvarchar(2048), [GroupBy05] nvarchar(2048),
    [OrderBy01] nvarchar(2048), [OrderBy02] nvarchar(2048), [OrderBy03] nvarchar(2048),
    [OrderBy04] nvarchar(2048), [OrderBy05] nvarchar(2048), [DesignSQL01] ntext,
    [DesignSQL02] ntext, [DesignSQL03] ntext, [DesignSQL04] ntext, [DesignSQL05] ntext,
    [DesignGroupBy01] nvarchar(2048), [DesignGroupBy02] nvarchar(2048),
    [DesignGroupBy03] nvarchar(2048), [DesignGroupBy04] nvarchar(2048),
    [DesignGroupBy05] nvarchar(2048), [DesignOrderBy01] nvarchar(2048),
    [DesignOrderBy02] nvarchar(2048), [DesignOrderBy03] nvarchar(2048),
    [DesignOrderBy04] nvarchar(2048), [DesignOrderBy05] nvarchar(2048), [ReportTemplate] image,
    [DTODate] nvarchar(20), [DTOTime] nvarchar(16), [DTOUser] nvarchar(20) )
CREATE NONCLUSTERED INDEX [SysRepTemplates_idx01] ON [dbo].[SysRepTemplates]  ([Suite], [ModCode], [RepName]) <options>

-- SYSDefForms
CREATE TABLE [dbo].[SYSDefForms] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [TxTp] nvarchar(6), [FormCode] nvarchar(50), [FormName] nvarchar(200),
    [PrtCopies] int DEFAULT 0 NOT NULL, [PrtMsgModCode] nvarchar(3), [PrtMsgCode] nvarchar(5),
    [DirectPrint] nvarchar(1) )
CREATE NONCLUSTERED INDEX [SYSDefForms_idx01] ON [dbo].[SYSDefForms]  ([CO], [Branch], [TxTp], [FormCode]) <options>
CREATE NONCLUSTERED INDEX [SYSDefForms_idx02] ON [dbo].[SYSDefForms]  ([CO], [TxTp], [Branch], [FormCode]) <options>

-- SYSDefAltForms
CREATE TABLE [dbo].[SYSDefAltForms] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [TxTp] nvarchar(6), [FormCode] nvarchar(50), [FormName] nvarchar(200),
    [PrtCopies] int DEFAULT 0 NOT NULL, [PrtMsgModCode] nvarchar(3), [PrtMsgCode] nvarchar(5),
    [DirectPrint] nvarchar(1) )

-- SYSForms
CREATE TABLE [dbo].[SYSForms] ([RecID] int IDENTITY(1, 1) NOT NULL, [FormCode] nvarchar(50),
    [FormName] nvarchar(200), [FormType] nvarchar(1), [DefaultPrinter] nvarchar(200),
    [ReportName] nvarchar(50), [MsgModCode] nvarchar(3), [MsgMod] nvarchar(5),
    [DirectPrint] nvarchar(1) )
CREATE NONCLUSTERED INDEX [SYSForms_idx01] ON [dbo].[SYSForms]  ([FormCode]) <options>

-- SYSSettings
CREATE TABLE [dbo].[SYSSettings] ([RecID] int IDENTITY(1, 1) NOT NULL, [Suite] nvarchar(20),
    [DisplaySeq] int DEFAULT 0 NOT NULL, [DisplayName] varchar(50), [DefCO] varchar(10),
    [DefBranch] varchar(10), [DefHQBranch] nvarchar(10), [DBConnector] nvarchar(100),
    [DBHost] varchar(50), [DBDBase] varchar(50), [DBUser] varchar(50), [DBPswd] varchar(50),
    [RunInterval] int DEFAULT 0 NOT NULL, [TillNo] nvarchar(5), [TillMode] nvarchar(1) )
ALTER TABLE [dbo].[SYSSettings]  ALTER COLUMN [DefHQBranch] nvarchar(10)

-- SYSVersions
CREATE TABLE [dbo].[SYSVersions] ([RecID] int IDENTITY(1, 1) NOT NULL, [Suite] nvarchar(20),
    [PgmName] varchar(20), [Description] varchar(50), [Version] varchar(20), [LastUpd] varchar(10) )

-- SYSNumbers
CREATE TABLE [dbo].[SYSNumbers] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [ModCode] nvarchar(6), [TxTp] nvarchar(12), [FieldCode] nvarchar(40),
    [Number] int DEFAULT 0 NOT NULL )
ALTER TABLE [dbo].[SYSNumbers]  ALTER COLUMN [CO] nvarchar(10)
ALTER TABLE [dbo].[SYSNumbers]  ALTER COLUMN [Branch] nvarchar(10)
CREATE NONCLUSTERED INDEX [SYSNumbers_idx01] ON [dbo].[SYSNumbers]  ([CO], [Branch], [ModCode], [TxTp]) <options>

-- SYSMessage
CREATE TABLE [dbo].[SYSMessage] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [ModCode] nvarchar(3), [MsgCode] nvarchar(5), [MsgName] nvarchar(50),
    [MsgText] ntext )
CREATE NONCLUSTERED INDEX [SYSMessage_idx01] ON [dbo].[SYSMessage]  ([CO], [Branch], [ModCode], [MsgCode]) <options>
CREATE NONCLUSTERED INDEX [SYSMessage_idx02] ON [dbo].[SYSMessage]  ([CO], [Branch], [MsgCode], [ModCode]) <options>

-- SYSMonitor2
CREATE TABLE [dbo].[SYSMonitor2] ([RecID] int IDENTITY(1, 1) NOT NULL, [RecKey] nvarchar(20),
    [Process] nvarchar(20), [TxTp] nvarchar(6), [DocNo] nvarchar(25),
    [Tendered] float DEFAULT 0 NOT NULL, [Change] float DEFAULT 0 NOT NULL,
    [CardProcess] nvarchar(1) )

-- SysInfinityLogs
CREATE TABLE [dbo].[SysInfinityLogs] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10),
    [Branch] nvarchar(10), [LogDate] nvarchar(10), [DocNo] nvarchar(20), [TxTp] nvarchar(6),
    [APIRequestBody] nvarchar(max), [APIResponse] nvarchar(max), [APIErrorMsg] nvarchar(max),
    [APIEndpoint] nvarchar(30), [XUsername] nvarchar(50), [XPassword] nvarchar(50),
    [XPlatformType] nvarchar(50), [BaseURL] nvarchar(100), [CardNo] nvarchar(20) )

-- SYSSaveGrids
CREATE TABLE [dbo].[SYSSaveGrids] ([RecID] int IDENTITY(1, 1) NOT NULL, [CO] nvarchar(10) NOT NULL,
    [UserCode] nvarchar(10) NOT NULL, [ScreenID] nvarchar(20) NOT NULL,
    [GridSettings] ntext NOT NULL )
CREATE NONCLUSTERED INDEX [SYSSaveGrids_idx01] ON [dbo].[SYSSaveGrids]  ([CO], [UserCode], [ScreenID]) <options>

-- SysUpgradeCABFiles
CREATE TABLE [dbo].[SysUpgradeCABFiles] ([RecID] int IDENTITY(1, 1) NOT NULL,
    [CABFileName] nvarchar(100), [DownloadDate] nvarchar(10), [DownloadTime] nvarchar(8),
    [FileSize] nvarchar(10) )
CREATE NONCLUSTERED INDEX [SysUpgradeCABFiles_idx01] ON [dbo].[SysUpgradeCABFiles]  ([CABFileName]) <options>
