// Heads and lines of documents, one table for each stage that a document goes through: finished
// (DOC), parked at a till (POSPark), in work (Temp), read in from outside (Import).
#include "schema/tables/Family.h"

namespace velcro::schema {

namespace {

// Document head: parties, dates, totals, tenders, cash-up link, delivery and status. TxTp and
// DocNo identify the document.
constexpr const char* documentHead = R"(
    RecID                  int IDENTITY(1, 1) NOT NULL
    CO                     nvarchar(10)
    Branch                 nvarchar(10)
    TxTp                   nvarchar(6)
    TillNo                 nvarchar(5)
    CashierID              nvarchar(20)
    DocNo                  nvarchar(15)
    Account                nvarchar(20)
    TranDate               nvarchar(10)
    TranTime               nvarchar(8)
    Name                   nvarchar(50)
    Address1               nvarchar(40)
    Address2               nvarchar(40)
    Address3               nvarchar(40)
    Address4               nvarchar(40)
    Contact                nvarchar(20)
    Telephone              nvarchar(40)
    Fax                    nvarchar(20)
    EMail                  nvarchar(100)
    VATNumber              nvarchar(20)
    SalesRep               nvarchar(10)
    Reference              nvarchar(20)
    BaseType               nvarchar(6)
    BaseRef                nvarchar(20)
    VATIndicator           nvarchar(1)
    ExportDoc              nvarchar(1)
    DocDiscount            float DEFAULT 0 NOT NULL
    TotalVAT               float DEFAULT 0 NOT NULL
    TotalExcl              float DEFAULT 0 NOT NULL
    TotalIncl              float DEFAULT 0 NOT NULL
    TotalTaxable           float DEFAULT 0 NOT NULL
    TotalExempt            float DEFAULT 0 NOT NULL
    TotalCostExcl          float DEFAULT 0 NOT NULL
    TotalCostIncl          float DEFAULT 0 NOT NULL
    Transport              float DEFAULT 0 NOT NULL
    Profit                 float DEFAULT 0 NOT NULL
    AP                     int DEFAULT 0 NOT NULL
    WH                     nvarchar(5)
    PaymentDate            nvarchar(10)
    Details                nvarchar(250)
    Notes                  nvarchar(250)
    DeliveryMethod         nvarchar(10)
    DeliveryDate           nvarchar(10)
    Dispatch               nvarchar(1)
    Cash                   float DEFAULT 0 NOT NULL
    Cheques                float DEFAULT 0 NOT NULL
    CreditCards            float DEFAULT 0 NOT NULL
    Vouchers               float DEFAULT 0 NOT NULL
    Transfers              float DEFAULT 0 NOT NULL
    TenderAmount1          float DEFAULT 0 NOT NULL
    TenderAmount2          float DEFAULT 0 NOT NULL
    TenderAmount3          float DEFAULT 0 NOT NULL
    TenderAmount4          float DEFAULT 0 NOT NULL
    Tendered               float DEFAULT 0 NOT NULL
    TenderChange           float DEFAULT 0 NOT NULL
    RoundingDown           float DEFAULT 0 NOT NULL
    RoundingUp             float DEFAULT 0 NOT NULL
    DTODate                nvarchar(10)
    DTOTime                nvarchar(8)
    DTOUser                nvarchar(10)
    DTOMacID               nvarchar(20)
    CashUpnumber           int DEFAULT 0 NOT NULL
    CashUpdate             nvarchar(10)
    CashUptime             nvarchar(8)
    UField1                nvarchar(250)
    UField2                nvarchar(250)
    UField3                nvarchar(250)
    UField4                nvarchar(250)
    UnAllocated            nvarchar(1)
    ReturnInvoice          nvarchar(15)
    Deposit                float DEFAULT 0 NOT NULL
    Paid                   float DEFAULT 0 NOT NULL
    Balance                float DEFAULT 0 NOT NULL
    RefInv                 nvarchar(15)
    OrderBy                nvarchar(20)
    PurchaseOrder          nvarchar(15)
    TermDays               int DEFAULT 0 NOT NULL
    Status                 nvarchar(1)
    PrintCount             int DEFAULT 0 NOT NULL
    SBO_TimeStamp          nvarchar(30)
    DeliveryAddress1       nvarchar(40)
    DeliveryAddress2       nvarchar(40)
    DeliveryAddress3       nvarchar(40)
    DeliveryAddress4       nvarchar(40)
    EODDate                nvarchar(10)
    Supervisor             nvarchar(10)
    SAPDocNo               nvarchar(20)
    ServerStatus           nvarchar(1)
    ServerDate             nvarchar(10)
    ServerTime             nvarchar(8)
    DCurr                  float DEFAULT 0 NOT NULL
    D030                   float DEFAULT 0 NOT NULL
    D060                   float DEFAULT 0 NOT NULL
    D090                   float DEFAULT 0 NOT NULL
    D120                   float DEFAULT 0 NOT NULL
    D150                   float DEFAULT 0 NOT NULL
    D180                   float DEFAULT 0 NOT NULL
    DOver                  float DEFAULT 0 NOT NULL
    TotalLineDisc          float DEFAULT 0 NOT NULL
    TotalRebAmnt           float DEFAULT 0 NOT NULL
    Weight                 float DEFAULT 0 NOT NULL
    Cases                  float DEFAULT 0 NOT NULL
    Pallets                float DEFAULT 0 NOT NULL
    Dimensions             float DEFAULT 0 NOT NULL
    DrCr                   nvarchar(1)
    DetailLines            int DEFAULT 0 NOT NULL
    TotalDiscount          float DEFAULT 0 NOT NULL
    FinalTotal             float DEFAULT 0 NOT NULL
    ManProfit              float DEFAULT 0 NOT NULL
    ManDiscount            float DEFAULT 0 NOT NULL
    ManVAT                 float DEFAULT 0 NOT NULL
    ManTotal               float DEFAULT 0 NOT NULL
    Version                varchar(20)
    ScanUser               nvarchar(20)
    ScanDate               nvarchar(10)
    ScanTime               nvarchar(8)
    SourceBranch           nvarchar(10)
    InUse                  nvarchar(30)
    CellPhone              nvarchar(40)
    DocDiscVAT             float DEFAULT 0 NOT NULL
    DropSafe               float DEFAULT 0 NOT NULL
    DispatchBranch         nvarchar(10)
    OnlineAccount          nvarchar(50)
    LicenseNo              nvarchar(20)
    LicenseExpDate         nvarchar(20)
    Wallets                float DEFAULT 0 NOT NULL
    CCYSale                nvarchar(1)
    LoyaltyPnts            int DEFAULT 0 NOT NULL
    RegNo                  nvarchar(20)
    SallyDiscExcl          float DEFAULT 0 NOT NULL
    SallyDiscIncl          float DEFAULT 0 NOT NULL
    SallyDiscVAT           float DEFAULT 0 NOT NULL
    InUsePick              nvarchar(255)
    DocOrigin              nvarchar(10)
    DocOriginRef           nvarchar(255)
)";

// Document lines.
constexpr const char* documentLine = R"(
    RecID                  int IDENTITY(1, 1) NOT NULL
    CO                     nvarchar(10)
    Branch                 nvarchar(10)
    TxTp                   nvarchar(6)
    TillNo                 nvarchar(5)
    DocNo                  nvarchar(15)
    Account                nvarchar(20)
    TranDate               nvarchar(10)
    LineNo                 int DEFAULT 0 NOT NULL
    StockCode              nvarchar(25)
    LinkCode               nvarchar(25)
    Description1           nvarchar(150)
    Description2           nvarchar(150)
    Quantity               float DEFAULT 0 NOT NULL
    Price                  float DEFAULT 0 NOT NULL
    PriceExcl              float DEFAULT 0 NOT NULL
    PriceIncl              float DEFAULT 0 NOT NULL
    DiscountType           nvarchar(1)
    DiscountValue          float DEFAULT 0 NOT NULL
    LineDiscount           float DEFAULT 0 NOT NULL
    LineVAT                float DEFAULT 0 NOT NULL
    LineTotal              float DEFAULT 0 NOT NULL
    LineTotalExcl          float DEFAULT 0 NOT NULL
    LineTotalIncl          float DEFAULT 0 NOT NULL
    LinkQty                float DEFAULT 0 NOT NULL
    VATCode                nvarchar(2)
    VATRate                float DEFAULT 0 NOT NULL
    VATIndicator           nvarchar(1)
    CostExcl               float DEFAULT 0 NOT NULL
    CostIncl               float DEFAULT 0 NOT NULL
    TotalCostExcl          float DEFAULT 0 NOT NULL
    TotalCostIncl          float DEFAULT 0 NOT NULL
    Profit                 float DEFAULT 0 NOT NULL
    Wh                     nvarchar(5)
    SalesRep               nvarchar(10)
    Dept                   nvarchar(10)
    SubDept                nvarchar(10)
    Units                  int DEFAULT 0 NOT NULL
    Weight                 float DEFAULT 0 NOT NULL
    StockType              nvarchar(1)
    AP                     int DEFAULT 0 NOT NULL
    Text1                  nvarchar(40)
    Text2                  nvarchar(40)
    Text3                  nvarchar(100)
    Text4                  nvarchar(100)
    PriceCode              nvarchar(5)
    Promotion              nvarchar(1)
    PromotionType          nvarchar(1)
    PromotionCode          nvarchar(5)
    AuthoriseCode          nvarchar(10)
    PackSize               nvarchar(10)
    SerialTrack            nvarchar(1)
    SerialCount            int DEFAULT 0 NOT NULL
    OldPrice               float DEFAULT 0 NOT NULL
    SqmBox                 float DEFAULT 0 NOT NULL
    TileSize               nvarchar(20)
    TileGrade              nvarchar(20)
    NoOfBox                int DEFAULT 0 NOT NULL
    Cases                  float DEFAULT 0 NOT NULL
    Palettes               float DEFAULT 0 NOT NULL
    DispatchItem           nvarchar(1)
    DispatchID             int DEFAULT 0 NOT NULL
    DispatchBranch         nvarchar(10)
    DispatchBox            int DEFAULT 0 NOT NULL
    DispatchQty            float DEFAULT 0 NOT NULL
    DispatchReturns        float DEFAULT 0 NOT NULL
    DispatchBalance        float DEFAULT 0 NOT NULL
    Status                 nvarchar(1)
    BaseType               nvarchar(6)
    BaseRef                nvarchar(20)
    BaseLine               int DEFAULT 0 NOT NULL
    RebAmnt                float DEFAULT 0 NOT NULL
    FreeLineInd            nvarchar(1)
    CreditNoteReason       nvarchar(50)
    BarCode                nvarchar(25)
    EODDate                nvarchar(10)
    Supervisor             nvarchar(10)
    SapDocNo               nvarchar(20)
    QtyInvoice             float DEFAULT 0 NOT NULL
    QtyReturned            float DEFAULT 0 NOT NULL
    QtyBalance             float DEFAULT 0 NOT NULL
    BaseDocAmnt            float DEFAULT 0 NOT NULL
    BaseDocBal             float DEFAULT 0 NOT NULL
    BasePayamnt            float DEFAULT 0 NOT NULL
    BasePayDisc            float DEFAULT 0 NOT NULL
    Dimensions             float DEFAULT 0 NOT NULL
    DrCr                   nvarchar(1)
    TotalDiscount          float DEFAULT 0 NOT NULL
    FinalTotal             float DEFAULT 0 NOT NULL
    ManProfit              float DEFAULT 0 NOT NULL
    ManDiscount            float DEFAULT 0 NOT NULL
    ManVAT                 float DEFAULT 0 NOT NULL
    ManTotal               float DEFAULT 0 NOT NULL
    Onhand                 float DEFAULT 0 NOT NULL
    AvgWeekSale            float DEFAULT 0 NOT NULL
    AvgCostExcl            float DEFAULT 0 NOT NULL
    AvgCostIncl            float DEFAULT 0 NOT NULL
    Supervisor2            nvarchar(10)
    RebAvgAmnt             float DEFAULT 0 NOT NULL
    Variant                nvarchar(10)
    SourceBranch           nvarchar(10)
    BasePrice              float DEFAULT 0 NOT NULL
    BasePriceCode          nvarchar(5)
    PriceChange            nvarchar(1)
    SaleGroup              nvarchar(1)
    ManQty                 float DEFAULT 0 NOT NULL
    ManPrice               float DEFAULT 0 NOT NULL
    SplitCode              int DEFAULT 0 NOT NULL
    SplitQty               int DEFAULT 0 NOT NULL
    SplitUnits             int DEFAULT 0 NOT NULL
    SplitPriceExcl         float DEFAULT 0 NOT NULL
    SplitPriceIncl         float DEFAULT 0 NOT NULL
    LoyaltyPnts            int DEFAULT 0 NOT NULL
    PickQty                float DEFAULT 0 NOT NULL
    PickBox                int DEFAULT 0 NOT NULL
    FabricItem             nvarchar(1)
    SizeItem               nvarchar(1)
    SizeCode               nvarchar(20)
    DelMthd                nvarchar(10)
    ImportTxTp             nvarchar(6)
    ImportDocNo            nvarchar(20)
    ImportRecID            int DEFAULT 0 NOT NULL
    PORequest              nvarchar(1)
    POReqNo                int DEFAULT 0 NOT NULL
    POReqQty               float DEFAULT 0 NOT NULL
    CCYCode                nvarchar(5)
    CCYRateDate            nvarchar(10)
    CCYRate                float DEFAULT 0 NOT NULL
    CCYPriceExcl           float DEFAULT 0 NOT NULL
    CCYPriceIncl           float DEFAULT 0 NOT NULL
    CCYTotalExcl           float DEFAULT 0 NOT NULL
    CCYTotalIncl           float DEFAULT 0 NOT NULL
    CCYTax                 float DEFAULT 0 NOT NULL
    LineNotes              nvarchar(max)
    SallyDiscExcl          float DEFAULT 0 NOT NULL
    SallyDiscIncl          float DEFAULT 0 NOT NULL
)";

constexpr TableDefinition tables[] = {
    {"DOCHeader", documentHead},        {"POSParkHeader", documentHead},
    {"TempHeader", documentHead},       {"ImportHeader", documentHead},
    {"DOCDetails", documentLine},       {"POSParkDetails", documentLine},
    {"TempDetails", documentLine},      {"TempDetailsParked", documentLine},
    {"TempComboDetails", documentLine}, {"ImportDetails", documentLine},
};

constexpr UpdateStep updates[] = {
    {"tb_Update_HeaderTables", "DOCHeader POSParkHeader TempHeader ImportHeader", R"(
        add    LicenseNo              nvarchar(20)
        add    LicenseExpDate         nvarchar(20)
        add    CashierID              nvarchar(20)
        add    ExportDoc              nvarchar(1)
        add    Transport              float
        add    CCYSale                nvarchar(1)
        add    RegNo                  nvarchar(20)
        add    SallyDiscExcl          float
        add    SallyDiscIncl          float
        add    SallyDiscVAT           float
        alter  UField1                nvarchar(250)
        alter  UField2                nvarchar(250)
        alter  UField3                nvarchar(250)
        alter  UField4                nvarchar(250)
        alter  OnlineAccount          nvarchar(50)
        add    InUsePick              nvarchar(255)
        add    DocOrigin              nvarchar(10)
        add    DocOriginRef           nvarchar(255)
        add    EMail                  nvarchar(100)
    )"},
    // The five columns dropped belong to the head; an early version put them into the lines.
    {"tb_Update_DetailTables",
     "DOCDetails POSParkDetails TempDetails TempDetailsParked TempComboDetails ImportDetails", R"(
        drop   LicenseNo
        drop   LicenseExpDate
        drop   CashierID
        drop   ExportDoc
        drop   Transport
        add    LoyaltyPnts            int
        add    FabricItem             nvarchar(1)
        add    SizeItem               nvarchar(1)
        add    SizeCode               nvarchar(20)
        add    DelMthd                nvarchar(10)
        add    CCYCode                nvarchar(5)
        add    CCYRateDate            nvarchar(10)
        add    CCYRate                float
        add    CCYPriceExcl           float
        add    CCYPriceIncl           float
        add    CCYTotalExcl           float
        add    CCYTotalIncl           float
        add    CCYTax                 float
        add    Text3                  nvarchar(100)
        add    Text4                  nvarchar(100)
        add    ImportTxTp             nvarchar(6)
        add    ImportDocNo            nvarchar(20)
        add    ImportRecID            int
        add    DispatchID             int
        add    SallyDiscExcl          float
        add    SallyDiscIncl          float
        add    LineNotes              nvarchar(max)
        add    DispatchItem           nvarchar(1)
        add    PORequest              nvarchar(1)
        add    POReqNo                int
        add    POReqQty               float
        alter  SizeCode               nvarchar(20)
    )"},
};

// The two tables of imports once more, as they were before they had the columns of all documents.
// They only come to be where the tables above could not be made.
constexpr TableDefinition imports[] = {
    {"ImportHeader", documentHead, R"(
        EMail
        InUsePick
        DocOrigin
        DocOriginRef
        UField1                nvarchar(50)
        UField2                nvarchar(50)
        UField3                nvarchar(50)
        UField4                nvarchar(50)
    )"},
    {"ImportDetails", documentLine, R"(
        Text3
        Text4
        DispatchItem
        DispatchID
        FabricItem
        SizeItem
        SizeCode
        DelMthd
        ImportTxTp
        ImportDocNo
        ImportRecID
        PORequest
        POReqNo
        POReqQty
        CCYCode
        CCYRateDate
        CCYRate
        CCYPriceExcl
        CCYPriceIncl
        CCYTotalExcl
        CCYTotalIncl
        CCYTax
        LineNotes
    )"},
};

constexpr UpdateStep importUpdates[] = {
    {"tb_Update_ImportHeader", "ImportHeader", R"(
        add    CCYSale                nvarchar(1)
        add    RegNo                  nvarchar(20)
        add    SallyDiscExcl          float
        add    SallyDiscIncl          float
        add    SallyDiscVAT           float
    )"},
};

} // namespace

const Family documentTables{tables, updates};
const Family importTables{imports, importUpdates};

} // namespace velcro::schema
