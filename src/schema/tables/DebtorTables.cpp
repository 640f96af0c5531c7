// Customer accounts, their balances, contacts and special prices.
#include "schema/tables/Family.h"

namespace velcro::schema {

namespace {

constexpr TableDefinition tables[] = {
    // Debtor (customer) accounts: names, addresses, credit terms, pricing rules, banking
    // details and flags.
    {"DEBMaster", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        Account                nvarchar(10)
        DebtorType             nvarchar(1)
        Name                   nvarchar(50)
        TradeName              nvarchar(50)
        LegalName              nvarchar(50)
        BusAddress1            nvarchar(40)
        BusAddress2            nvarchar(40)
        BusAddress3            nvarchar(40)
        BusAddress4            nvarchar(40)
        BusPostCode            nvarchar(6)
        PostAddress1           nvarchar(40)
        PostAddress2           nvarchar(40)
        PostAddress3           nvarchar(40)
        PostAddress4           nvarchar(40)
        PostCode               nvarchar(6)
        Telephone              nvarchar(40)
        Telephone2             nvarchar(40)
        CellPhone              nvarchar(20)
        Email                  nvarchar(70)
        Fax                    nvarchar(20)
        IDNo                   nvarchar(20)
        Contact                nvarchar(30)
        AccountType            nvarchar(2)
        SaleType               nvarchar(1)
        VATIndicator           nvarchar(1)
        Interest               nvarchar(1)
        Status                 nvarchar(1)
        ReasonCode             nvarchar(20)
        Reason                 nvarchar(250)
        MainAccount            nvarchar(10)
        CreditLimit            float DEFAULT 0 NOT NULL
        LimitChk               nvarchar(1)
        TempCRLimit            float DEFAULT 0 NOT NULL
        TempCRLimitDate        nvarchar(10)
        TermCode               nvarchar(1)
        Area                   nvarchar(50)
        Region                 nvarchar(50)
        Route                  nvarchar(50)
        CityCode               nvarchar(50)
        TravelDistance         float DEFAULT 0 NOT NULL
        Salesrep               nvarchar(10)
        Category2              nvarchar(10)
        Balance                float DEFAULT 0 NOT NULL
        PriceCat               nvarchar(5)
        CostPlus               float DEFAULT 0 NOT NULL
        CostPlusF              float DEFAULT 0 NOT NULL
        CostPlusCode           nvarchar(1)
        AllowPromo             nvarchar(1)
        SellPlus               float DEFAULT 0 NOT NULL
        SellPlusPromo          nvarchar(1)
        SellMinus              float DEFAULT 0 NOT NULL
        SellMinusPromo         nvarchar(1)
        DeptPrice              nvarchar(1)
        LastPrice              nvarchar(1)
        AltCode                nvarchar(1)
        CgsLimit               float DEFAULT 0 NOT NULL
        CgsExpDT               nvarchar(10)
        CGSFile                nvarchar(20)
        CreateDate             nvarchar(10)
        CreateTime             nvarchar(8)
        CreateUser             nvarchar(10)
        CreateMacID            nvarchar(20)
        DTODate                nvarchar(10)
        DTOTime                nvarchar(8)
        DTOUser                nvarchar(10)
        DTOMacID               nvarchar(20)
        Notepad                ntext
        VATNumber              nvarchar(20)
        BPNumber               nvarchar(20)
        GroupType              nvarchar(1)
        PayMthd                nvarchar(20)
        Currency               nvarchar(3)
        Category               nvarchar(10)
        GroupCode              nvarchar(10)
        PartialOrders          nvarchar(1)
        BankName               nvarchar(50)
        BankBranchName         nvarchar(50)
        BankBranchCode         nvarchar(20)
        BankAccNo              nvarchar(50)
        BankAccName            nvarchar(50)
        CommsMthd              nvarchar(1)
        BankCheqLimit          float DEFAULT 0 NOT NULL
        Inhouse                nvarchar(1)
        VIP                    nvarchar(1)
        TermFromValue          int DEFAULT 0 NOT NULL
        TermFromType           nvarchar(1)
        TermFrom               nvarchar(1)
        TermDiscount           float DEFAULT 0 NOT NULL
        MonthEnd               int DEFAULT 0 NOT NULL
        StmtFreq               nvarchar(1)
        StmtFreqDOW            int DEFAULT 0 NOT NULL
        DefBranch              nvarchar(5)
        PDCs                   float DEFAULT 0 NOT NULL
        RentalIncl             float DEFAULT 0 NOT NULL
        Website                nvarchar(1024)
        DestCO                 nvarchar(5)
        DestBranch             nvarchar(5)
        CRDAccount             nvarchar(20)
        ContraDEBAccount       nvarchar(10)
        InterComp              nvarchar(1)
        Version                nvarchar(20)
        Consolidate            varchar(1)
        ItemPrice              nvarchar(1)
        CRMCode                nvarchar(10)
        CRMAccNo               nvarchar(20)
        MailInd                nvarchar(1)
        SMSInd                 nvarchar(1)
        Longitude              nvarchar(20)
        Latitude               nvarchar(20)
        Distribution           nvarchar(1)
        StokvelInd             nvarchar(1)
        StokvelPswd            int DEFAULT 0 NOT NULL
        ECommInd               nvarchar(1)
        ECommPswd              nvarchar(10)
        VendorNo               nvarchar(30)
        CGSLimGranted          nvarchar(10)
        CORegNo                nvarchar(20)
        LicenseNo              nvarchar(20)
        LicenseExpDate         nvarchar(10)
        LicenseExpAction       nvarchar(1)
        LicenseType            nvarchar(10)
        LicenseDescription     nvarchar(255)
        PreAuthInd             nvarchar(1)
        Grading                nvarchar(1)
        InterCompany           nvarchar(1)
        ICCompanyCode          nvarchar(10)
        ICBranchCode           nvarchar(10)
        ICCrdAccount           nvarchar(10)
        BlockReturns           nvarchar(1)
        CustOrderNo            nvarchar(1)
        DebDeal                nvarchar(1)
        HasEmptiesLoan         nvarchar(1)
        PickupAllowed          nvarchar(1)
        BEESInd                nvarchar(1)
        BEESAccountId          nvarchar(50)
        Channel                nvarchar(50)
        DeliveryScheduleId     nvarchar(20)
        Velmara_API_Client     nvarchar(30)
        Velmara_API_ShopCode   nvarchar(10)
        Velmara_API_CO         nvarchar(10)
        Velmara_API_Branch     nvarchar(10)
    )"},
    // Aged balances of an account per accounting period: current, 30 to 180 days, over, and
    // post-dated amounts.
    {"DEBBalance", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        DebtorType             nvarchar(1)
        Account                nvarchar(10)
        AP                     int DEFAULT 0 NOT NULL
        DCurr                  float DEFAULT 0 NOT NULL
        D030                   float DEFAULT 0 NOT NULL
        D060                   float DEFAULT 0 NOT NULL
        D090                   float DEFAULT 0 NOT NULL
        D120                   float DEFAULT 0 NOT NULL
        D150                   float DEFAULT 0 NOT NULL
        D180                   float DEFAULT 0 NOT NULL
        Dover                  float DEFAULT 0 NOT NULL
        PDC                    float DEFAULT 0 NOT NULL
        DTODate                nvarchar(10)
        DTOTime                nvarchar(8)
        DTOUser                nvarchar(10)
        DTOMacID               nvarchar(20)
    )"},
    // Contact persons of an account, with their mail and SMS choices, ordered by PrtySeq.
    {"DEBContacts", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        DebtorType             nvarchar(1)
        Account                nvarchar(10)
        Title                  nvarchar(10)
        Name                   nvarchar(50)
        Surname                nvarchar(50)
        Birthday               nvarchar(10)
        Designation            nvarchar(20)
        ResTelCode1            nvarchar(5)
        ResTelPhone1           nvarchar(20)
        ResTelCode2            nvarchar(5)
        ResTelPhone2           nvarchar(20)
        BizTelCode1            nvarchar(5)
        BizTelPhone1           nvarchar(20)
        CellPhone              nvarchar(20)
        BizFaxCode1            nvarchar(5)
        BizFax                 nvarchar(20)
        Department             nvarchar(20)
        EMail                  nvarchar(70)
        Website                nvarchar(1024)
        DTODate                nvarchar(10)
        DTOTime                nvarchar(8)
        DTOUser                nvarchar(10)
        DTOMacID               nvarchar(20)
        TelPhone               nvarchar(20)
        Fax                    nvarchar(20)
        MailStmt               nvarchar(1)
        MailInv                nvarchar(1)
        MailOTP                nvarchar(1)
        SMSOTP                 nvarchar(1)
        Status                 nvarchar(1)
        PrtySeq                int DEFAULT 0 NOT NULL
        SMSTxans               nvarchar(1)
        SMSMarketing           nvarchar(1)
    )"},
    // Deals: a special price of a stock item for an account over a date range.
    {"DEBDeals", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        DealNo                 int DEFAULT 0 NOT NULL
        DebtorType             nvarchar(1)
        Account                nvarchar(10)
        Name                   nvarchar(50)
        StockCode              nvarchar(25)
        LinkCode               nvarchar(25)
        Description1           nvarchar(150)
        PriceExcl              float DEFAULT 0 NOT NULL
        PriceIncl              float DEFAULT 0 NOT NULL
        FromDate               nvarchar(10)
        ToDate                 nvarchar(10)
        MinimumBuy             float DEFAULT 0 NOT NULL
        LastCostExcl           float DEFAULT 0 NOT NULL
        LastCostIncl           float DEFAULT 0 NOT NULL
        AvgCostExcl            float DEFAULT 0 NOT NULL
        AvgCostIncl            float DEFAULT 0 NOT NULL
        CreatedDate            nvarchar(10)
        CreatedTime            nvarchar(8)
        CreatedUser            nvarchar(10)
        CreatedMacID           nvarchar(20)
        DTODate                nvarchar(10)
        DTOTime                nvarchar(8)
        DTOUser                nvarchar(10)
        DTOMacID               nvarchar(20)
        RebAmnt                float DEFAULT 0 NOT NULL
        RebAvgAmnt             float DEFAULT 0 NOT NULL
        ReasonCode             nvarchar(10)
        ProductionDate         nvarchar(10)
        DealRangeDays          int DEFAULT 0 NOT NULL
    )"},
    // Account pricing rule per stock department.
    {"DEBDeptPrice", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        Account                nvarchar(20)
        DeptCode               nvarchar(10)
        Supplier               nvarchar(20)
        PriceCode              nvarchar(5)
        CostPlus               float DEFAULT 0 NOT NULL
        CostPlusF              float DEFAULT 0 NOT NULL
        SellPlus               float DEFAULT 0 NOT NULL
        SellMinus              float DEFAULT 0 NOT NULL
        AllowPromo             nvarchar(1)
        ExcludeAcc             nvarchar(1)
        ExcludeTender          nvarchar(2)
        SellMinusPromo         nvarchar(1)
        SellPlusPromo          nvarchar(1)
        Discount               float DEFAULT 0 NOT NULL
        DTODate                nvarchar(10)
        DTOTime                nvarchar(8)
        DTOUser                nvarchar(10)
        DTOMacID               nvarchar(20)
    )"},
    // Account pricing rule per stock item.
    {"DEBStockPrice", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        Account                nvarchar(20)
        StockCode              nvarchar(25)
        PriceCode              nvarchar(5)
        CostPlus               float DEFAULT 0 NOT NULL
        SellPlus               float DEFAULT 0 NOT NULL
        SellMinus              float DEFAULT 0 NOT NULL
        Discount               float DEFAULT 0 NOT NULL
        AllowPromo             nvarchar(1)
        ExcludeAcc             nvarchar(1)
        ExcludeTender          nvarchar(2)
        SellMinusPromo         nvarchar(1)
        SellPlusPromo          nvarchar(1)
        DTODate                nvarchar(10)
        DTOTime                nvarchar(8)
        DTOUser                nvarchar(10)
        DTOMacID               nvarchar(20)
        LinkCode               nvarchar(25)
    )"},
};

constexpr UpdateStep updates[] = {
    {"tb_Update_DEBMaster", "DebMaster", R"(
        add    CostPlusCode           nvarchar(1)     'A'
        add    LicenseExpAction       nvarchar(1)
        add    CityCode               nvarchar(50)
        alter  Contact                nvarchar(30)
        add    BPNumber               nvarchar(20)
        alter  Reason                 nvarchar(250)
        add    ReasonCode             nvarchar(20)
        add    LegalName              nvarchar(50)
        drop   ContraDEBAccount
        add    InterComp              nvarchar(1)
        add    InterCO                nvarchar(1)
        add    InterCompany           nvarchar(1)
        add    ICCompanyCode          nvarchar(10)
        add    ICBranchCode           nvarchar(10)
        add    ICCrdAccount           nvarchar(10)
        add    ContraCRDAccount       nvarchar(10)
        add    TradeName              nvarchar(50)
        add    PickupAllowed          nvarchar(1)     'N'
        add    BEESInd                nvarchar(1)     'N'
        add    BEESAccountId          nvarchar(50)
        add    Channel                nvarchar(50)
        add    HasEmptiesLoan         nvarchar(1)     'N'
        add    DeliveryScheduleId     nvarchar(20)
        add    CustOrderNo            nvarchar(1)     'N'
        add    LicenseType            nvarchar(10)    'N'
        add    LicenseDescription     nvarchar(255)   'N'
        alter  PriceCat               nvarchar(5)
        alter  Reason                 nvarchar(250)
        alter  BeesAccountID          nvarchar(50)
        alter  Area                   nvarchar(50)
        alter  Region                 nvarchar(50)
        alter  Route                  nvarchar(50)
        add    DEBMaster.Velmara_API_Client nvarchar(30)
        add    DEBMaster.Velmara_API_ShopCode nvarchar(10)
        add    DEBMaster.Velmara_API_CO nvarchar(10)
        add    DEBMaster.Velmara_API_Branch nvarchar(10)
    )"},
};

} // namespace

const Family debtorTables{tables, updates};

} // namespace velcro::schema
