// Goods received, while they are being captured: heads and what hangs on them.
#include "schema/tables/Family.h"

namespace velcro::schema {

namespace {

constexpr TableDefinition tables[] = {
    // Goods received, head level: charges.
    {"TempGRVHChg", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        Account                nvarchar(10)
        TxTp                   nvarchar(6)
        GRVNo                  int DEFAULT 0 NOT NULL
        CHGDesc                nvarchar(50)
        CHGType                nvarchar(1)
        CHGValue               float DEFAULT 0 NOT NULL
        CHGTotal               float DEFAULT 0 NOT NULL
        ChgVAT                 float DEFAULT 0 NOT NULL
        CHGIncl                float DEFAULT 0 NOT NULL
        Costed                 nvarchar(1)
        GLAccNo                int DEFAULT 0 NOT NULL
        Supplier               nvarchar(20)
        SubAccount             nvarchar(20)
        ChgCode                nvarchar(10)
        VATCode                nvarchar(2)
        VATRate                float DEFAULT 0 NOT NULL
        GLSubAccNo             int DEFAULT 0 NOT NULL
        CCYCode                nvarchar(5)
        CCYRateDate            nvarchar(10)
        CCYRate                float DEFAULT 0 NOT NULL
        CCYTotal               float DEFAULT 0 NOT NULL
    )"},
    // Goods received, head level: discounts.
    {"TempGRVHDisc", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        Account                nvarchar(10)
        TxTp                   nvarchar(6)
        GRVNo                  int DEFAULT 0 NOT NULL
        SeqNo                  int DEFAULT 0 NOT NULL
        Code                   nvarchar(10)
        Description            nvarchar(50)
        DiscMethod             nvarchar(1)
        DiscType               nvarchar(1)
        DiscValue              float DEFAULT 0 NOT NULL
        Discount               float DEFAULT 0 NOT NULL
        DiscountVAT            float DEFAULT 0 NOT NULL
        DiscountIncl           float DEFAULT 0 NOT NULL
        GLAccNo                int DEFAULT 0 NOT NULL
        Costed                 nvarchar(1)
        CCYCode                nvarchar(5)
        CCYRateDate            nvarchar(10)
        CCYRate                float DEFAULT 0 NOT NULL
        CCYTotal               float DEFAULT 0 NOT NULL
        GLSubAccNo             int DEFAULT 0 NOT NULL
    )"},
    // Goods received: head.
    {"TempGRVHead", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        Account                nvarchar(10)
        SubAccount             nvarchar(10)
        TxTp                   nvarchar(6)
        GRVNo                  int DEFAULT 0 NOT NULL
        GRVDate                nvarchar(10)
        DocNo                  nvarchar(20)
        DocDate                nvarchar(10)
        DocType                nvarchar(1)
        DocReference           nvarchar(20)
        DocTotalIncl           float DEFAULT 0 NOT NULL
        DocTotalExcl           float DEFAULT 0 NOT NULL
        DocTax                 float DEFAULT 0 NOT NULL
        GRVTotalExcl           float DEFAULT 0 NOT NULL
        GRVTotalIncl           float DEFAULT 0 NOT NULL
        GRVTax                 float DEFAULT 0 NOT NULL
        GRVDiscount            float DEFAULT 0 NOT NULL
        GRVTallyExcl           float DEFAULT 0 NOT NULL
        GRVTallyIncl           float DEFAULT 0 NOT NULL
        GRVReturnsExcl         float DEFAULT 0 NOT NULL
        GRVReturnsVAT          float DEFAULT 0 NOT NULL
        CreditorPost           nvarchar(1)
        TaxIndicator           nvarchar(1)
        Currency               nvarchar(10)
        Tonnage                float DEFAULT 0 NOT NULL
        TonnageRebExcl         float DEFAULT 0 NOT NULL
        TonnageRebIncl         float DEFAULT 0 NOT NULL
        Rate                   float DEFAULT 0 NOT NULL
        OrderNo                int DEFAULT 0 NOT NULL
        WH                     nvarchar(10)
        Driver                 nvarchar(30)
        TruckRegNo             nvarchar(20)
        GRVBookNo              int DEFAULT 0 NOT NULL
        GRVStatus              nvarchar(1)
        CCYCode                nvarchar(5)
        CCYRateDate            nvarchar(10)
        CCYRate                float DEFAULT 0 NOT NULL
        CCYDocTotal            float DEFAULT 0 NOT NULL
        CCYDocTax              float DEFAULT 0 NOT NULL
        CreateDate             nvarchar(10)
        CreateTime             nvarchar(8)
        CreateUser             nvarchar(10)
        CreateMacID            nvarchar(20)
        AuthUser               nvarchar(10)
        AuthDate               nvarchar(10)
        AuthTime               nvarchar(8)
        AuthMacID              nvarchar(20)
        INVTotal               float DEFAULT 0 NOT NULL
        INVTax                 float DEFAULT 0 NOT NULL
        SAPDocNo               nvarchar(20)
        PostDate               nvarchar(10)
        DueDate                nvarchar(10)
        InvDate                nvarchar(10)
        AP                     int DEFAULT 0 NOT NULL
        DetailLines            int DEFAULT 0 NOT NULL
        Version                nvarchar(20)
        InUse                  nvarchar(30)
        FreeStockGRV           nvarchar(1)
        InterCO                nvarchar(1)
    )"},
    // Goods received, head level: supplier invoices.
    {"TempGRVHSupp", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        Account                nvarchar(10)
        TxTp                   nvarchar(6)
        GRVNo                  int DEFAULT 0 NOT NULL
        Supplier               nvarchar(10)
        Name                   nvarchar(50)
        DocNo                  nvarchar(20)
        DocTotalIncl           float DEFAULT 0 NOT NULL
        DocTotalExcl           float DEFAULT 0 NOT NULL
        DocTax                 float DEFAULT 0 NOT NULL
        ClaimReason            nvarchar(10)
        ClaimTotal             float DEFAULT 0 NOT NULL
        Transporter            nvarchar(1)
        VATCode                nvarchar(2)
        VATRate                float DEFAULT 0 NOT NULL
        CCYCode                nvarchar(5)
        CCYRateDate            nvarchar(10)
        CCYRate                float DEFAULT 0 NOT NULL
        CCYDocTax              float DEFAULT 0 NOT NULL
        CCYTotal               float DEFAULT 0 NOT NULL
    )"},
    // Goods received, head level: tally claims.
    {"TempGRVHTally", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        Account                nvarchar(10)
        TxTp                   nvarchar(6)
        GRVNo                  int DEFAULT 0 NOT NULL
        ClaimCode              nvarchar(10)
        Description            nvarchar(50)
        ValueType              nvarchar(1)
        Value                  float DEFAULT 0 NOT NULL
        ClaimAmountExcl        float DEFAULT 0 NOT NULL
        ClaimAmountIncl        float DEFAULT 0 NOT NULL
        ClaimNo                int DEFAULT 0 NOT NULL
    )"},
    // Goods received, head level: linked purchase orders.
    {"TempGRVHPOrd", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        Account                nvarchar(20)
        TxTp                   nvarchar(6)
        GRVNo                  int DEFAULT 0 NOT NULL
        OrderNo                int DEFAULT 0 NOT NULL
        Imported               nvarchar(1)
    )"},
};

constexpr UpdateStep updates[] = {
    {"tb_Update_TempGRVHSupp", "TempGRVHSupp", R"(
        add    Transporter            nvarchar(1)     'N'
        add    CCYCode                nvarchar(5)
        add    CCYRateDate            nvarchar(10)
        add    CCYRate                float
        add    CCYDocTax              float
        add    CCYTotal               float
        add    VATCode                nvarchar(2)
        add    VATRate                float
    )"},
    {"tb_Update_TempGRVHead", "TempGRVHead", R"(
        add    CCYCode                nvarchar(5)
        add    CCYRateDate            nvarchar(10)
        add    CCYRate                float
        add    CCYDocTotal            float
        add    CCYDocTax              float
        add    GRVBookNo              int
    )"},
    {"tb_Update_TempGRVHChg", "TempGRVHChg", R"(
        add    GLAccNo                int
        add    GLSubAccNo             int
        add    ChgCode                nvarchar(10)
        add    CCYCode                nvarchar(5)
        add    CCYRateDate            nvarchar(10)
        add    CCYRate                float
        add    CCYTotal               float
        add    VATCode                nvarchar(2)
        add    VATRate                float
    )"},
    {"tb_Update_TempGRVHDisc", "TempGRVHDisc", R"(
        add    Code                   nvarchar(10)
        add    DiscountVAT            float
        add    DiscountIncl           float
        add    GLAccNo                int
        add    GLSubAccNo             int
        add    CCYCode                nvarchar(5)
        add    CCYRateDate            nvarchar(10)
        add    CCYRate                float
        add    CCYTotal               float
    )"},
    {"tb_Update_TempGRVHPOrd", "TempGRVHPOrd", R"(
        alter  TxTp                   nvarchar(6)
    )"},
};

} // namespace

const Family goodsReceivedHeadTables{tables, updates};

} // namespace velcro::schema
