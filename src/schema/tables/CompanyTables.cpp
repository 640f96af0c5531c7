// Companies and branches, with what is set up for each: periods, devices, rights, tenders.
#include "schema/tables/Family.h"

namespace velcro::schema {

namespace {

constexpr TableDefinition tables[] = {
    // Server trigger rows: a request that a server-side process outside this program picks up
    // and carries out for a till. A new row has Status "0" and all process and return columns
    // empty.
    {"SvrTrig", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        Status                 nvarchar(1)
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        TxTp                   nvarchar(6)
        StockCode              nvarchar(50)
        LinkCode               nvarchar(50)
        Description1           nvarchar(150)
        PriceCode              nvarchar(5)
        Account                nvarchar(50)
        SubAccount             nvarchar(50)
        DocNo                  nvarchar(50)
        TillNo                 nvarchar(5)
        Text1                  nvarchar(250)
        Text2                  nvarchar(250)
        Text3                  nvarchar(250)
        APIRequest             nvarchar(max)
        APIResponse            nvarchar(max)
        SAPRetnCode            nvarchar(10)
        SAPRetnMsg             nvarchar(200)
        SAPKey                 nvarchar(20)
        RetryCnt               int DEFAULT 0 NOT NULL
        CreateDate             nvarchar(10)
        CreateTime             nvarchar(8)
        CreateUser             nvarchar(10)
        CreateMacID            nvarchar(20)
        ProcessDate            nvarchar(10)
        ProcessTime            nvarchar(8)
        ProcessUser            nvarchar(10)
        ProcessMacID           nvarchar(20)
        ReturnMsg              nvarchar(max)
    )"},
    // Field-level change log: old and new text and value of one field of a stock item or an
    // account.
    {"SYSAudit", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        ModCode                nvarchar(5)
        FormCode               nvarchar(10)
        Account                nvarchar(10)
        StockCode              nvarchar(25)
        LinkCode               nvarchar(25)
        Description1           nvarchar(150)
        FieldName              nvarchar(30)
        FieldDesc              nvarchar(50)
        OldText                nvarchar(50)
        NewText                nvarchar(50)
        OldValue               float DEFAULT 0 NOT NULL
        NewValue               float DEFAULT 0 NOT NULL
        DTODate                nvarchar(10)
        DTOTime                nvarchar(8)
        DTOUser                nvarchar(10)
        DTOMacID               nvarchar(20)
    )"},
    // Free-form diagnostic rows tied to a document.
    {"SYSDebugLogs", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        TillNo                 nvarchar(5)
        TxTp                   nvarchar(6)
        DocNo                  nvarchar(25)
        Details                nvarchar(50)
        DTODate                nvarchar(10)
        DTOTime                nvarchar(8)
        DTOUser                nvarchar(10)
        DTOMacID               nvarchar(20)
        LogData                nvarchar(max)
    )"},
    // One row per machine with the dates and times of the last server, head office and local
    // exchange. The definition step spells the table SysControl, the update step SYSControl.
    {"SysControl", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        PCName                 nvarchar(50)
        ServerDate             nvarchar(10)
        ServerTime             nvarchar(8)
        HQTxTp                 nvarchar(6)
        HQDate                 nvarchar(10)
        HQTime                 nvarchar(8)
        LocalTxTp              nvarchar(6)
        LocalDate              nvarchar(10)
        LocalTime              nvarchar(8)
        PromoUpdate            nvarchar(1)
        ParamUpdate            nvarchar(1)
        PictureUpdate          nvarchar(1)
        CurrTxTp               nvarchar(6)
        CurrDocNo              nvarchar(15)
    )"},
    // The companies.
    {"SYSCompany", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        COName                 nvarchar(50)
        COBusAddress1          nvarchar(40)
        COBusAddress2          nvarchar(40)
        COBusAddress3          nvarchar(40)
        COBusAddress4          nvarchar(40)
        COPostAddress1         nvarchar(40)
        COPostAddress2         nvarchar(40)
        COPostAddress3         nvarchar(40)
        COPostAddress4         nvarchar(40)
        COPhone                nvarchar(40)
        COFax                  nvarchar(40)
        COEmail                nvarchar(100)
        CORegNo                nvarchar(20)
        COVATNo                nvarchar(20)
        COGroup                nvarchar(10)
        COWebSite              nvarchar(100)
        COBankName             nvarchar(50)
        COBranchName           nvarchar(50)
        COBranchCode           nvarchar(20)
        COAccNo                nvarchar(20)
        COAccName              nvarchar(50)
        ShortName              nvarchar(30)
    )"},
    // General code lists of a company, by CodeType.
    {"SYSCodeMaster", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        CodeType               nvarchar(6)
        Code                   nvarchar(10)
        Description            nvarchar(150)
        GLAccNo                int DEFAULT 0 NOT NULL
        UserFld1               nvarchar(50)
        UserFld2               nvarchar(50)
        UserFld3               nvarchar(50)
        AllowVAT               nvarchar(1)
        TxTp                   nvarchar(6)
        SystemField            nvarchar(1)
        GLSubAccNo             int DEFAULT 0 NOT NULL
    )"},
    // Coin and note denominations of a company.
    {"SYSCoinMaster", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        CoinCode               nvarchar(10)
        Description            nvarchar(20)
        CoinType               nvarchar(1)
        CoinValue              float DEFAULT 0 NOT NULL
    )"},
    // Currencies.
    {"SYSCurrencyMst", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CCYCode                nvarchar(5)
        CCYName                nvarchar(50)
        CCYFactor              nvarchar(1)
        CCYSymbol              nvarchar(5)
        CCYNumCode             int DEFAULT 0 NOT NULL
    )"},
    // Rate of a currency by date.
    {"SYSCurrencyRates", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CCYCode                nvarchar(5)
        CCYRateDate            nvarchar(10)
        CCYRate                float DEFAULT 0 NOT NULL
    )"},
    // Card payment devices of a branch.
    {"SYSCardDevices", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        DeviceID               nvarchar(30)
        BankName               nvarchar(30)
        DeviceType             nvarchar(30)
        ReferenceID            nvarchar(30)
        DefaultMACID           nvarchar(20)
        DefaultTill            nvarchar(5)
        HostAddress            nvarchar(max)
        UniqueID               nvarchar(50)
        SerialNo               nvarchar(50)
        Issuer                 nvarchar(50)
        Status                 nvarchar(1)
        DefaultPrinter         nvarchar(50)
    )"},
    // The branches of a company. The identity column is spelled RECID here.
    {"SYSBranch", R"(
        RECID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        BRName                 nvarchar(50)
        ShortName              nvarchar(30)
        BRBusAddress1          nvarchar(40)
        BRBusAddress2          nvarchar(40)
        BRBusAddress3          nvarchar(40)
        BRBusAddress4          nvarchar(40)
        BRPostAddress1         nvarchar(40)
        BRPostAddress2         nvarchar(40)
        BRPostAddress3         nvarchar(40)
        BRPostAddress4         nvarchar(40)
        BRTel                  nvarchar(40)
        BRFax                  nvarchar(40)
        BREmail                nvarchar(100)
        TradingBranch          nvarchar(1)
        BranchCategory         nvarchar(1)
        BranchType             nvarchar(1)
        Online                 nvarchar(1)
        BRWebSite              nvarchar(100)
        Loyalty                nvarchar(1)
        BRBankName             nvarchar(50)
        BRBranchName           nvarchar(50)
        BRBranchCode           nvarchar(20)
        BRAccNo                nvarchar(20)
        BRAccName              nvarchar(50)
    )"},
    // Which branch holds the shared data of a branch, one column per application area. The
    // identity column is spelled RECID here.
    {"SYSBRShare", R"(
        RECID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        SHSTK                  nvarchar(10)
        SHCRD                  nvarchar(10)
        SHDEB                  nvarchar(10)
        SHGLG                  nvarchar(10)
        SHPUR                  nvarchar(10)
        SHVIP                  nvarchar(10)
    )"},
    // Accounting periods of a company.
    {"SYSAP", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        AP                     int DEFAULT 0 NOT NULL
        FromDate               nvarchar(10)
        ToDate                 nvarchar(10)
        YearEnd                nvarchar(1)
        YearEndRun             nvarchar(30)
        APActive               nvarchar(1)
        APOpen                 nvarchar(1)
        GLYear                 int DEFAULT 0 NOT NULL
    )"},
    // Access codes of a user group.
    {"SYSGrpAccess", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        UserGroup              nvarchar(10)
        ModCode                nvarchar(3)
        AccessNo               int DEFAULT 0 NOT NULL
        AccessName             nvarchar(200)
        Options                nvarchar(1)
    )"},
    // Parameter values of a user group.
    {"SYSGrpParam", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        UserGroup              nvarchar(10)
        ModCode                nvarchar(3)
        ParamNo                int DEFAULT 0 NOT NULL
        ParamValue             nvarchar(max)
    )"},
    // Parameter values by company, branch, module and user.
    {"SYSParameter", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        ModCode                nvarchar(3)
        UserCode               nvarchar(10)
        ParamNo                int DEFAULT 0 NOT NULL
        ParamName              nvarchar(100)
        ParamValue             nvarchar(max)
        ParamType              nvarchar(1)
    )"},
    // Tender types of a company.
    {"SYSTender", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        TenderType             nvarchar(2)
        TenderDesc             nvarchar(30)
        AllowSubTypes          nvarchar(1)
        GLAcNo                 nvarchar(10)
        CodeType               nvarchar(1)
        DisplaySeq             int DEFAULT 0 NOT NULL
        TenderForm             nvarchar(2)
    )"},
    // Sales representatives with their commission figures.
    {"SYSSalesReps", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        RepCode                nvarchar(10)
        RepName                nvarchar(40)
        EarnComm               nvarchar(1)
        SalesCategory          nvarchar(10)
        CommissionType         nvarchar(1)
        CommPerWeight          float DEFAULT 0 NOT NULL
        BaseLimit              float DEFAULT 0 NOT NULL
        BaseGP                 float DEFAULT 0 NOT NULL
        BelowTargetPerc        float DEFAULT 0 NOT NULL
        TargetPerc             float DEFAULT 0 NOT NULL
        ExcludePromo           nvarchar(1)
        ExcludeProp10          nvarchar(10)
        Telephone              nvarchar(20)
        EMail                  nvarchar(250)
    )"},
};

constexpr UpdateStep updates[] = {
    {"tb_Update_SYSControl", "SYSControl", R"(
        add    PromoUpdate            nvarchar(1)     'N'
        add    ParamUpdate            nvarchar(1)     'N'
        add    CurrTxTp               nvarchar(6)
        add    CurrDocNo              nvarchar(15)
        add    PictureUpdate          nvarchar(1)
    )"},
    {"tb_Update_SysCardDevices", "SYSCardDevices", R"(
        add    DefaultPrinter         nvarchar(50)
        alter  HostAddress            nvarchar(max)
    )"},
    // Every description column of the database is brought to 150 later in the same sweep.
    {"tb_Update_SvrTrig", "SvrTrig", R"(
        alter  Description1           nvarchar(200)
    )"},
    {"tb_Update_SysCompany", "SYSCompany", R"(
        add    ShortName              nvarchar(30)
    )"},
    {"tb_Update_SysParameter", "SYSParameter", R"(
        add    ParamValue             nvarchar(max)
        alter  ParamValue             nvarchar(max)
    )"},
    {"tb_Update_SysGrpParam", "SYSGrpParam", R"(
        add    ParamValue             nvarchar(max)
        alter  ParamValue             nvarchar(max)
    )"},
    {"tb_Update_SysGrpAccess", "SYSGrpAccess", R"(
        add    AccessName             nvarchar(200)
    )"},
};

} // namespace

const Family companyTables{tables, updates};

} // namespace velcro::schema
