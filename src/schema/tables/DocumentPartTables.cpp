// What hangs on the lines of a document: tenders, serial numbers, vouchers, deliveries.
#include "schema/tables/Family.h"

namespace velcro::schema {

namespace {

// Tenders of a document, with cheque, card and voucher details.
constexpr const char* tender = R"(
    RecID                  int IDENTITY(1, 1) NOT NULL
    CO                     nvarchar(10)
    Branch                 nvarchar(10)
    TxTp                   nvarchar(6)
    TillNo                 nvarchar(5)
    DocNo                  nvarchar(15)
    PayCode                nvarchar(2)
    LineNo                 int DEFAULT 0 NOT NULL
    CheqNo                 nvarchar(20)
    CheqDate               nvarchar(10)
    CheqAccNo              nvarchar(20)
    CheqName               nvarchar(30)
    CheqBank               nvarchar(20)
    CardNo                 nvarchar(50)
    CardType               nvarchar(20)
    CardExpDate            nvarchar(10)
    CardCVC                nvarchar(5)
    CardName               nvarchar(50)
    CardBudget             int DEFAULT 0 NOT NULL
    Phone                  nvarchar(20)
    IDNo                   nvarchar(20)
    Amount                 float DEFAULT 0 NOT NULL
    AuthCode               nvarchar(50)
    BatchNo                nvarchar(10)
    Supervisor             nvarchar(10)
    Status                 nvarchar(1)
    VoucherType            nvarchar(1)
    VoucherNo              nvarchar(20)
    VoucherBranch          nvarchar(10)
    VoucherExpDate         nvarchar(10)
    VouchDate              nvarchar(10)
    VouchName              nvarchar(50)
    VouchAmount            float DEFAULT 0 NOT NULL
    CashUpNumber           nvarchar(20)
    CashUpDate             nvarchar(10)
    CashUpTime             nvarchar(10)
    TranDate               nvarchar(10)
    Account                nvarchar(10)
    SourceBranch           nvarchar(10)
    CCTerminalID           nvarchar(50)
    CCSessionID            nvarchar(50)
    CCAcceptorID           nvarchar(20)
    CCAuthID               nvarchar(50)
    CCRRN                  nvarchar(50)
    CCTxanID               int DEFAULT 0 NOT NULL
    CCMerchantID           nvarchar(50)
    CCMerchantRef          nvarchar(50)
    CCUUID                 nvarchar(50)
    CCPOSEntry             nvarchar(50)
    CCPinStatement         nvarchar(30)
    CCEMVAppLabel          nvarchar(50)
    CCEMVAID               nvarchar(50)
    CCEMVTVR               nvarchar(50)
    CCEMVTSI               nvarchar(50)
    CCEMVTC                nvarchar(50)
    ReconNo                nvarchar(20)
    CCYCode                nvarchar(5)
    CCYRateDate            nvarchar(10)
    CCYRate                float DEFAULT 0 NOT NULL
    CCYAmount              float DEFAULT 0 NOT NULL
    CCYChange              float DEFAULT 0 NOT NULL
    Signature              nvarchar(500)
    Response               ntext
    BPNumber               nvarchar(20)
    NoOfBox                int DEFAULT 0 NOT NULL
)";

// Serial numbers of the lines of a document.
constexpr const char* serialNumber = R"(
    RecID                  int IDENTITY(1, 1) NOT NULL
    CO                     nvarchar(10)
    Branch                 nvarchar(10)
    TxTp                   nvarchar(12)
    TillNo                 nvarchar(10)
    DocNo                  nvarchar(30)
    Account                nvarchar(20)
    TranDate               nvarchar(20)
    LineNo                 int DEFAULT 0 NOT NULL
    StockCode              nvarchar(50)
    LinkCode               nvarchar(50)
    SerialNo               nvarchar(100)
    LinkedSerialNo         nvarchar(100)
    DispatchNo             int DEFAULT 0 NOT NULL
    NoOfBox                int DEFAULT 0 NOT NULL
)";

// Vouchers sold on a document.
constexpr const char* soldVoucher = R"(
    RecID                  int IDENTITY(1, 1) NOT NULL
    CO                     nvarchar(10)
    Branch                 nvarchar(10)
    TxTp                   nvarchar(12)
    TillNo                 nvarchar(10)
    DocNo                  nvarchar(30)
    Account                nvarchar(20)
    TranDate               nvarchar(20)
    LineNo                 int DEFAULT 0 NOT NULL
    Status                 nvarchar(1)
    MessageType            nvarchar(20)
    PrintString            ntext
    Cost                   float DEFAULT 0 NOT NULL
    HasVAT                 nvarchar(10)
    Value                  float DEFAULT 0 NOT NULL
    VariableRate           nvarchar(10)
    VoucherCode            nvarchar(20)
    VoucherName            nvarchar(50)
    Voidable               nvarchar(10)
    SerialNo               nvarchar(20)
)";

// Payments through the Blu prepaid provider, with the provider's answer.
constexpr const char* bluPayment = R"(
    RecID                  int IDENTITY(1, 1) NOT NULL
    CO                     nvarchar(10)
    Branch                 nvarchar(10)
    TxTp                   nvarchar(12)
    TillNo                 nvarchar(10)
    DocNo                  nvarchar(30)
    ProviderID             nvarchar(50)
    ProductID              nvarchar(25)
    AccountNo              nvarchar(25)
    CustomerName           nvarchar(50)
    CustomerSurname        nvarchar(50)
    AmountDue              float DEFAULT 0 NOT NULL
    SessionID              nvarchar(50)
    RefNo                  nvarchar(30)
    Message                nvarchar(1024)
    CallCentre             nvarchar(50)
    LocalAuthority         nvarchar(50)
    NoticeNumber           nvarchar(20)
    OffenceDateTime        nvarchar(20)
    OffenceDesc            nvarchar(50)
    VehicleRegNo           nvarchar(20)
    OwnerIDNo              nvarchar(20)
    OffenceLocation        nvarchar(50)
    EventType              nvarchar(32)
    EventCode              int DEFAULT 0 NOT NULL
    ErrorCode              int DEFAULT 0 NOT NULL
    ErrorText              nvarchar(max)
    AeonErrorCode          int DEFAULT 0 NOT NULL
    AeonErrorText          nvarchar(max)
    Reference              nvarchar(max)
    TrxId                  nvarchar(20)
    BatchNumber            nvarchar(20)
    TerminalId             nvarchar(10)
    MerchantId             nvarchar(max)
    TransNumber            int DEFAULT 0 NOT NULL
    TransReference         int DEFAULT 0 NOT NULL
    SysReference           nvarchar(max)
    TransDateTime          nvarchar(20)
    BusinessDate           nvarchar(10)
    TransType              nvarchar(10)
    AccountNumber          nvarchar(max)
    Amount                 float DEFAULT 0 NOT NULL
    Authoriser             nvarchar(max)
    ProductName            nvarchar(max)
)";

// Delivery split of a document line. NoOfBox and Notes stand with these types deliberately. The
// update step does not reach ORDDetLineDisp.
constexpr const char* lineDelivery = R"(
    RecID                  int IDENTITY(1, 1) NOT NULL
    CO                     nvarchar(10)
    Branch                 nvarchar(10)
    TxTp                   nvarchar(6)
    TillNo                 nvarchar(5)
    DocNo                  nvarchar(15)
    Account                nvarchar(20)
    StockCode              nvarchar(25)
    LinkCode               nvarchar(25)
    DispatchID             int DEFAULT 0 NOT NULL
    DelMthd                nvarchar(5)
    DelMthdDesc            nvarchar(50)
    Quantity               float DEFAULT 0 NOT NULL
    DelAddress1            nvarchar(40)
    DelAddress2            nvarchar(40)
    DelAddress3            nvarchar(40)
    DelAddress4            nvarchar(40)
    WH                     nvarchar(5)
    POReqNo                int DEFAULT 0 NOT NULL
    PaidTaken              nvarchar(1)
    QtyDecimal             int DEFAULT 0 NOT NULL
    TileItem               nvarchar(1)
    SQMBox                 float DEFAULT 0 NOT NULL
    NoOfBox                nvarchar(5)
    Notes                  int DEFAULT 0 NOT NULL
)";

constexpr TableDefinition tables[] = {
    {"DOCPayments", tender},           {"TempPayments", tender},
    {"DOCSerials", serialNumber},      {"TempSerials", serialNumber},
    {"DOCVouchers", soldVoucher},      {"TempVouchers", soldVoucher},
    {"DOCBluPayments", bluPayment},    {"TempBluPayments", bluPayment},
    {"DOCDetLineDisp", lineDelivery},  {"ORDDetLineDisp", lineDelivery},
    {"TempDetLineDisp", lineDelivery}, {"POSParkDetLineDisp", lineDelivery},
};

constexpr UpdateStep updates[] = {
    {"tb_Update_PaymentTables", "DOCPayments TempPayments", R"(
        add    ReconNo                nvarchar(20)
        add    NoOfBox                int
        add    CCYCode                nvarchar(5)
        add    CCYRate                float
        add    CCYRateDate            nvarchar(10)
        add    CCYAmount              float
        add    CCYChange              float
        add    Signature              nvarchar(500)
        add    Response               ntext(1000)
        add    BPNumber               nvarchar(20)
    )"},
    {"tb_Update_SerialTables", "DOCSerials TempSerials TempGRVDSer", R"(
        add    NoOfBox                int
        add    DispatchNo             int
    )"},
    {"tb_Update_BluPaymentTables", "DOCBluPayments TempBluPayments", R"(
        add    EventType              nvarchar(32)
        add    EventCode              int
        add    ErrorCode              int
        add    ErrorText              nvarchar(max)
        add    AeonErrorCode          int
        add    AeonErrorText          nvarchar(max)
        add    Reference              nvarchar(max)
        add    TrxId                  nvarchar(20)
        add    BatchNumber            nvarchar(20)
        add    TerminalId             nvarchar(10)
        add    MerchantId             nvarchar(max)
        add    TransNumber            int
        add    TransReference         int
        add    SysReference           nvarchar(max)
        add    TransDateTime          nvarchar(20)
        add    BusinessDate           nvarchar(10)
        add    TransType              nvarchar(10)
        add    AccountNumber          nvarchar(max)
        add    Amount                 float
        add    Authoriser             nvarchar(max)
        add    ProductName            nvarchar(max)
        add    ProductID              nvarchar(25)
    )"},
    // Orders keep the columns that they were made with.
    {"tb_Update_DetLineDispTables", "TempDetLineDisp DOCDetLineDisp POSParkDetLineDisp", R"(
        add    TileItem               nvarchar(1)
        add    QtyDecimal             int
        add    NoOfBox                int
        add    SQMBox                 float
    )"},
};

} // namespace

const Family documentPartTables{tables, updates};

} // namespace velcro::schema
