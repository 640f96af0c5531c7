// Voided sales, vouchers, cashiers and the cash device of a till.
#include "schema/tables/Family.h"

namespace velcro::schema {

namespace {

constexpr TableDefinition tables[] = {
    // Voided sale: head.
    {"POSVoidsHdr", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        TxTp                   nvarchar(6)
        TillNo                 nvarchar(5)
        DocNo                  nvarchar(15)
        Account                nvarchar(10)
        TranDate               nvarchar(10)
        TranTime               nvarchar(8)
        TotalVAT               float DEFAULT 0 NOT NULL
        TotalExcl              float DEFAULT 0 NOT NULL
        TotalIncl              float DEFAULT 0 NOT NULL
        VoidType               nvarchar(1)
        DTODate                nvarchar(10)
        DTOTime                nvarchar(8)
        DTOUser                nvarchar(10)
        DTOMacID               nvarchar(20)
    )"},
    // Voided sale: lines.
    {"POSVoidsDet", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        TxTp                   nvarchar(6)
        TillNo                 nvarchar(5)
        DocNo                  nvarchar(15)
        StockCode              nvarchar(25)
        LinkCode               nvarchar(25)
        Description1           nvarchar(150)
        Quantity               float DEFAULT 0 NOT NULL
        PriceExcl              float DEFAULT 0 NOT NULL
        PriceIncl              float DEFAULT 0 NOT NULL
        LineVAT                float DEFAULT 0 NOT NULL
        LineTotalExcl          float DEFAULT 0 NOT NULL
        LineTotalIncl          float DEFAULT 0 NOT NULL
        VoidType               nvarchar(1)
    )"},
    // Vouchers issued, with their value, redemption and expiry.
    {"POSVouchers", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        VoucherBranch          nvarchar(10)
        VoucherNo              nvarchar(20)
        VoucherType            nvarchar(1)
        DateCreated            nvarchar(10)
        VoucherExpDate         nvarchar(10)
        Amount                 float DEFAULT 0 NOT NULL
        VAT                    float DEFAULT 0 NOT NULL
        VoucherTxTp            nvarchar(6)
        Status                 nvarchar(1)
        DocTxTp                nvarchar(6)
        DocNo                  nvarchar(15)
        TillNo                 nvarchar(5)
        Account                nvarchar(10)
        Name                   nvarchar(50)
        Address1               nvarchar(40)
        Address2               nvarchar(40)
        Address3               nvarchar(40)
        Address4               nvarchar(40)
        Phone                  nvarchar(20)
        IDNo                   nvarchar(20)
        Description            nvarchar(50)
        PaidDate               nvarchar(10)
        PaidTillNo             nvarchar(5)
        PaidTxTp               nvarchar(6)
        PaidDocNo              nvarchar(15)
        Cashed                 nvarchar(1)
        BaseBranch             nvarchar(10)
        BaseVoucherNo          nvarchar(20)
        BaseVoucherAmnt        float DEFAULT 0 NOT NULL
        TargetBranch           nvarchar(10)
        TargetVoucherNo        nvarchar(20)
        TargetVoucherAmnt      float DEFAULT 0 NOT NULL
        DTODate                nvarchar(10)
        DTOTime                nvarchar(8)
        DTOUser                nvarchar(10)
        DTOMacID               nvarchar(20)
        VoucherKey             nvarchar(20)
        PensionNo              nvarchar(1)
        ExternalNo             nvarchar(1)
        HandlingFee            float DEFAULT 0 NOT NULL
        RetnCounterNo          nvarchar(25)
        OrigInvoiceNo          nvarchar(25)
        PickUpDate             nvarchar(10)
        PickUpTime             nvarchar(8)
        CashupNo               int DEFAULT 0 NOT NULL
        PickupTill             nvarchar(10)
        EmptiesVerified        nvarchar(30)
        ReferenceNo            nvarchar(30)
        EMail                  nvarchar(100)
        OrderNo                int DEFAULT 0 NOT NULL
        BufferPeriod           int DEFAULT 0 NOT NULL
        CCYCode                nvarchar(5)
        CCYRateDate            nvarchar(10)
        CCYRate                float DEFAULT 0 NOT NULL
        CCYAmount              float DEFAULT 0 NOT NULL
    )"},
    // The cashiers of a branch.
    {"POSCashiers", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        EmplNo                 nvarchar(20)
        Name                   nvarchar(50)
        Status                 nvarchar(1)
        DefUserGroup           nvarchar(10)
        IDNumber               nvarchar(20)
    )"},
    // Log of the CashGuard cash handling device.
    {"POSCashGuardLog", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        DeviceID               nvarchar(10)
        TranDate               nvarchar(10)
        TranTime               nvarchar(8)
        TranType               nvarchar(1)
        TxTp                   nvarchar(6)
        DocNo                  nvarchar(25)
        Amount                 float DEFAULT 0 NOT NULL
    )"},
};

constexpr UpdateStep updates[] = {
    {"tb_Update_POSCashiers", "POSCashiers", R"(
        add    IDNumber               nvarchar(20)
    )"},
    {"tb_Update_POSVoidsHdr", "POSVoidsHdr", R"(
        add    VoidType               nvarchar(1)
    )"},
    {"tb_Update_POSVoidsDet", "POSVoidsDet", R"(
        add    VoidType               nvarchar(1)
    )"},
    {"tb_Update_POSVouchers", "POSVouchers", R"(
        add    EMail                  nvarchar(100)
        add    OrderNo                int
        add    BufferPeriod           int
        add    CCYCode                nvarchar(5)
        add    CCYRateDate            nvarchar(10)
        add    CCYRate                float
        add    CCYAmount              float
    )"},
};

} // namespace

const Family tillSaleTables{tables, updates};

} // namespace velcro::schema
