// Tills: cash-ups, pick-ups, pay-outs and their counts.
#include "schema/tables/Family.h"

namespace velcro::schema {

namespace {

constexpr TableDefinition tables[] = {
    // Prepaid airtime products by category and manufacturer.
    {"POSAirtimeMaster", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        Manufacturer           nvarchar(30)
        CatCode                nvarchar(10)
        CatDescription         nvarchar(50)
        VATCode                nvarchar(1)
        DiscType               nvarchar(1)
        DiscValue              float DEFAULT 0 NOT NULL
    )"},
    // Cash office records: one row per till and cash-up, with opening and closing floats, the
    // takings per tender, the pick-ups per tender and the over or under figure. PU in a name
    // means pick-up.
    {"POSCOFMaster", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        TillNo                 nvarchar(5)
        CashUpNo               int DEFAULT 0 NOT NULL
        CashUpDate             nvarchar(10)
        Name                   nvarchar(30)
        OpenFloat              float DEFAULT 0 NOT NULL
        CloseFloat             float DEFAULT 0 NOT NULL
        Cash                   float DEFAULT 0 NOT NULL
        Cheques                float DEFAULT 0 NOT NULL
        CreditCards            float DEFAULT 0 NOT NULL
        Vouchers               float DEFAULT 0 NOT NULL
        Transfers              float DEFAULT 0 NOT NULL
        Wallets                float DEFAULT 0 NOT NULL
        TenderAmount1          float DEFAULT 0 NOT NULL
        TenderAmount2          float DEFAULT 0 NOT NULL
        TenderAmount3          float DEFAULT 0 NOT NULL
        TenderAmount4          float DEFAULT 0 NOT NULL
        PUCash                 float DEFAULT 0 NOT NULL
        PUCheques              float DEFAULT 0 NOT NULL
        PUCreditCards          float DEFAULT 0 NOT NULL
        PUVouchers             float DEFAULT 0 NOT NULL
        PUTransfers            float DEFAULT 0 NOT NULL
        PUWallets              float DEFAULT 0 NOT NULL
        PUTenderAmount1        float DEFAULT 0 NOT NULL
        PUTenderAmount2        float DEFAULT 0 NOT NULL
        PUTenderAmount3        float DEFAULT 0 NOT NULL
        PUTenderAmount4        float DEFAULT 0 NOT NULL
        OverUnder              float DEFAULT 0 NOT NULL
        TenderCode1            nvarchar(20)
        TenderCode2            nvarchar(20)
        TenderCode3            nvarchar(20)
        TenderCode4            nvarchar(20)
        DateOpen               nvarchar(10)
        TimeOpen               nvarchar(8)
        DateClose              nvarchar(10)
        TimeClose              nvarchar(8)
        PickUpDate             nvarchar(10)
        PickUpTime             nvarchar(8)
        Status                 nvarchar(1)
        DTODate                nvarchar(10)
        DTOTime                nvarchar(8)
        DTOUser                nvarchar(10)
        DTOMacID               nvarchar(20)
    )"},
    // The tills of a branch with their current state and settings.
    {"POSTillMaster", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        TillNo                 nvarchar(5)
        CashierID              nvarchar(20)
        CashupNo               int DEFAULT 0 NOT NULL
        Name                   nvarchar(30)
        Status                 nvarchar(1)
        DocPrefix              nvarchar(3)
        OpenFloat              float DEFAULT 0 NOT NULL
        CloseFloat             float DEFAULT 0 NOT NULL
        Cash                   float DEFAULT 0 NOT NULL
        Cheques                float DEFAULT 0 NOT NULL
        CreditCards            float DEFAULT 0 NOT NULL
        Vouchers               float DEFAULT 0 NOT NULL
        Transfers              float DEFAULT 0 NOT NULL
        TenderAmount1          float DEFAULT 0 NOT NULL
        TenderAmount2          float DEFAULT 0 NOT NULL
        TenderAmount3          float DEFAULT 0 NOT NULL
        TenderAmount4          float DEFAULT 0 NOT NULL
        CashCount              float DEFAULT 0 NOT NULL
        ChequesCount           float DEFAULT 0 NOT NULL
        CreditCardsCount       float DEFAULT 0 NOT NULL
        VouchersCount          float DEFAULT 0 NOT NULL
        TransfersCount         float DEFAULT 0 NOT NULL
        Tender1Count           float DEFAULT 0 NOT NULL
        Tender2Count           float DEFAULT 0 NOT NULL
        Tender3Count           float DEFAULT 0 NOT NULL
        Tender4Count           float DEFAULT 0 NOT NULL
        TenderCode1            nvarchar(20)
        TenderCode2            nvarchar(20)
        TenderCode3            nvarchar(20)
        TenderCode4            nvarchar(20)
        Pickups                float DEFAULT 0 NOT NULL
        Payouts                float DEFAULT 0 NOT NULL
        LastCashUpdate         nvarchar(10)
        LastCashUpTime         nvarchar(8)
        LastTxTp               nvarchar(6)
        LastDocNo              nvarchar(15)
        DTODate                nvarchar(10)
        DTOTime                nvarchar(8)
        DTOUser                nvarchar(10)
        DTOMacID               nvarchar(20)
        TillMessage            nvarchar(200)
        SealNo                 nvarchar(20)
        SealSecurity           nvarchar(20)
        DefaultFloat           float DEFAULT 0 NOT NULL
        VoidCount              int DEFAULT 0 NOT NULL
        RoundingUP             float DEFAULT 0 NOT NULL
        RoundingDown           float DEFAULT 0 NOT NULL
        CashCountGross         float DEFAULT 0 NOT NULL
        UnlockKey              nvarchar(20)
        ReliefTill             nvarchar(10)
        TenderForm1            nvarchar(2)
        TenderForm2            nvarchar(2)
        TenderForm3            nvarchar(2)
        TenderForm4            nvarchar(2)
        ManDiscount            float DEFAULT 0 NOT NULL
        ManTotal               float DEFAULT 0 NOT NULL
        ReturnTill             nvarchar(1)
        ReturnVouchers         nvarchar(1)
        AdminTill              nvarchar(1)
        UnderOver              float DEFAULT 0 NOT NULL
        SysLock                nvarchar(1)
        DefaultName            nvarchar(30)
        ParkSalesOnly          nvarchar(1)
        ParkSalesMaxLimit      float DEFAULT 0 NOT NULL
        ExpressTill            nvarchar(1)
        ExpressStatus          nvarchar(1)
        TellerTill             nvarchar(1)
        ExpressCallTime        int DEFAULT 0 NOT NULL
        ExpressCallTill        nvarchar(5)
        Wallets                float DEFAULT 0 NOT NULL
        WalletsCount           float DEFAULT 0 NOT NULL
        WalletKey              nvarchar(20)
        WalletPIN              nvarchar(20)
        COFTillNo              nvarchar(5)
        CashDevice             nvarchar(2)
        DateOpen               nvarchar(10)
        TimeOpen               nvarchar(8)
        DateClose              nvarchar(10)
        TimeClose              nvarchar(8)
        BioID                  int DEFAULT 0 NOT NULL
    )"},
    // Cash-up history of the tills, with most of the columns of POSTillMaster.
    {"POSTillHistory", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        TillNo                 nvarchar(5)
        CashierID              nvarchar(20)
        CashUpDate             nvarchar(10)
        CashUpNo               int DEFAULT 0 NOT NULL
        Name                   nvarchar(30)
        OpenFloat              float DEFAULT 0 NOT NULL
        CloseFloat             float DEFAULT 0 NOT NULL
        Cash                   float DEFAULT 0 NOT NULL
        Cheques                float DEFAULT 0 NOT NULL
        CreditCards            float DEFAULT 0 NOT NULL
        Vouchers               float DEFAULT 0 NOT NULL
        Transfers              float DEFAULT 0 NOT NULL
        TenderAmount1          float DEFAULT 0 NOT NULL
        TenderAmount2          float DEFAULT 0 NOT NULL
        TenderAmount3          float DEFAULT 0 NOT NULL
        TenderAmount4          float DEFAULT 0 NOT NULL
        CashCount              float DEFAULT 0 NOT NULL
        ChequesCount           float DEFAULT 0 NOT NULL
        CreditCardsCount       float DEFAULT 0 NOT NULL
        VouchersCount          float DEFAULT 0 NOT NULL
        TransfersCount         float DEFAULT 0 NOT NULL
        Tender1Count           float DEFAULT 0 NOT NULL
        Tender2Count           float DEFAULT 0 NOT NULL
        Tender3Count           float DEFAULT 0 NOT NULL
        Tender4Count           float DEFAULT 0 NOT NULL
        TenderCode1            nvarchar(20)
        TenderCode2            nvarchar(20)
        TenderCode3            nvarchar(20)
        TenderCode4            nvarchar(20)
        Pickups                float DEFAULT 0 NOT NULL
        Payouts                float DEFAULT 0 NOT NULL
        OverUnder              float DEFAULT 0 NOT NULL
        LastCashUpDate         nvarchar(10)
        LastCashUpTime         nvarchar(8)
        LastTxTp               nvarchar(6)
        LastDocNo              nvarchar(15)
        DTODate                nvarchar(10)
        DTOTime                nvarchar(8)
        DTOUser                nvarchar(10)
        DTOMacID               nvarchar(20)
        TillMessage            nvarchar(200)
        SealNo                 nvarchar(20)
        SealSecurity           nvarchar(20)
        DefaultFloat           float DEFAULT 0 NOT NULL
        VoidCount              int DEFAULT 0 NOT NULL
        RoundingUP             float DEFAULT 0 NOT NULL
        RoundingDown           float DEFAULT 0 NOT NULL
        CashCountGross         float DEFAULT 0 NOT NULL
        TenderForm1            nvarchar(2)
        TenderForm2            nvarchar(2)
        TenderForm3            nvarchar(2)
        TenderForm4            nvarchar(2)
        ManDiscount            float DEFAULT 0 NOT NULL
        ManTotal               float DEFAULT 0 NOT NULL
        ReturnTill             nvarchar(1)
        ReturnVouchers         nvarchar(1)
        DepositSlipNo          nvarchar(20)
        DepositDate            nvarchar(10)
        DepositTime            nvarchar(10)
        ReliefTill             nvarchar(1)
        AdminTill              nvarchar(1)
        SysLock                nvarchar(1)
        DefaultName            nvarchar(30)
        ParkSalesOnly          nvarchar(1)
        ParkSalesMaxLimit      float DEFAULT 0 NOT NULL
        ExpressTill            nvarchar(1)
        ExpressStatus          nvarchar(1)
        TellerTill             nvarchar(1)
        ExpressCallTime        int DEFAULT 0 NOT NULL
        ExpressCallTill        nvarchar(5)
        Wallets                float DEFAULT 0 NOT NULL
        WalletsCount           float DEFAULT 0 NOT NULL
        COFTillNo              nvarchar(5)
        CashDevice             nvarchar(2)
        DateOpen               nvarchar(10)
        TimeOpen               nvarchar(8)
        DateClose              nvarchar(10)
        TimeClose              nvarchar(8)
        BioID                  int DEFAULT 0 NOT NULL
    )"},
    // Cash paid out from a till. The update step spells the table POSPayouts.
    {"POSPayOuts", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        TillNo                 nvarchar(5)
        CashupNo               int DEFAULT 0 NOT NULL
        DocNo                  nvarchar(20)
        TxTp                   nvarchar(6)
        PayoutCode             nvarchar(10)
        PayDate                nvarchar(10)
        Paytime                nvarchar(8)
        Payee                  nvarchar(50)
        Details                nvarchar(50)
        Reference              nvarchar(20)
        Supervisor             nvarchar(10)
        Amount                 float DEFAULT 0 NOT NULL
        VATAmount              float DEFAULT 0 NOT NULL
        GLAcNo                 nvarchar(10)
        SAPGLAcNo              nvarchar(20)
        DTODate                nvarchar(10)
        DTOTime                nvarchar(8)
        DTOUser                nvarchar(10)
        DTOMacID               nvarchar(20)
    )"},
    // Cash taken from a till during the day.
    {"POSTillPickUps", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        TillNo                 nvarchar(5)
        CashupNo               int DEFAULT 0 NOT NULL
        PickUpDate             nvarchar(10)
        PickUpTime             nvarchar(8)
        Cash                   float DEFAULT 0 NOT NULL
        Cheques                float DEFAULT 0 NOT NULL
        CreditCards            float DEFAULT 0 NOT NULL
        Vouchers               float DEFAULT 0 NOT NULL
        Transfers              float DEFAULT 0 NOT NULL
        TenderAmount1          float DEFAULT 0 NOT NULL
        TenderAmount2          float DEFAULT 0 NOT NULL
        TenderAmount3          float DEFAULT 0 NOT NULL
        TenderAmount4          float DEFAULT 0 NOT NULL
        CashOfficeTill         nvarchar(5)
        DTODate                nvarchar(10)
        DTOTime                nvarchar(8)
        DTOUser                nvarchar(10)
        DTOMacID               nvarchar(20)
        COFtillNo              nvarchar(5)
        PickupNotes            float DEFAULT 0 NOT NULL
        PickupCoins            float DEFAULT 0 NOT NULL
        Wallets                float DEFAULT 0 NOT NULL
        CountNo                int DEFAULT 0 NOT NULL
    )"},
    // Denomination count of a pick-up.
    {"POSTillPickUpCount", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        TillNo                 nvarchar(5)
        CashupNo               int DEFAULT 0 NOT NULL
        PickUpDate             nvarchar(10)
        PickUpTime             nvarchar(8)
        CoinCode               nvarchar(5)
        Description            nvarchar(20)
        CoinCount              float DEFAULT 0 NOT NULL
        Amount                 float DEFAULT 0 NOT NULL
        CoinType               nvarchar(1)
        CoinValue              float DEFAULT 0 NOT NULL
    )"},
    // Audit rows of a till.
    {"POSTillAudit", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        TillNo                 nvarchar(5)
        FunctionCode           nvarchar(2)
        Details                nvarchar(50)
        UnlockKey              nvarchar(20)
        DTODate                nvarchar(10)
        DTOTime                nvarchar(8)
        DTOUser                nvarchar(10)
        DTOMacID               nvarchar(20)
    )"},
    // Denomination count of a cash-up.
    {"POSTillCount", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        TillNo                 nvarchar(5)
        CashUpDate             nvarchar(10)
        CashUpNo               int DEFAULT 0 NOT NULL
        CoinCode               nvarchar(5)
        CoinCount              float DEFAULT 0 NOT NULL
        Description            nvarchar(20)
    )"},
};

constexpr UpdateStep updates[] = {
    {"tb_Update_POSCOFMaster", "POSCOFMaster", R"(
        add    Wallets                float
        add    PUWallets              float
    )"},
    {"tb_Update_POSTillMaster", "POSTillMaster", R"(
        add    CashierID              int
        add    CashDevice             nvarchar(2)
        add    ParkSalesMaxLimit      float
        add    BioID                  int
    )"},
    {"tb_Update_POSTillHistory", "POSTillHistory", R"(
        add    CashierID              int
        add    CashDevice             nvarchar(2)
        add    ParkSalesOnly          nvarchar(1)     'N'
        add    ParkSalesMaxLimit      float
        add    BioID                  int
    )"},
    {"tb_Update_POSPayouts", "POSPayouts", R"(
        add    CashupNo               int
    )"},
};

} // namespace

const Family tillTables{tables, updates};

} // namespace velcro::schema
