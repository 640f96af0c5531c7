// Goods received, while they are being captured: lines and what hangs on them.
#include "schema/tables/Family.h"

namespace velcro::schema {

namespace {

constexpr TableDefinition tables[] = {
    // Goods received, line level: bin and box split.
    {"TempGRVDBinBox", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        Account                nvarchar(10)
        TxTp                   nvarchar(6)
        GRVNo                  int DEFAULT 0 NOT NULL
        BoxNo                  int DEFAULT 0 NOT NULL
        BoxLabel               nvarchar(50)
        StockCode              nvarchar(25)
        LinkCode               nvarchar(25)
        WH                     nvarchar(5)
        BinLoc                 nvarchar(20)
        BinType                nvarchar(1)
        BinQty                 float DEFAULT 0 NOT NULL
        BinDate                nvarchar(10)
        BinTime                nvarchar(8)
        BinUser                nvarchar(10)
        BinMacID               nvarchar(25)
        BinStatus              nvarchar(1)
    )"},
    // Goods received, line level: boxes.
    {"TempGRVDBoxes", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        Account                nvarchar(10)
        TxTp                   nvarchar(6)
        GRVNo                  int DEFAULT 0 NOT NULL
        BoxNo                  int DEFAULT 0 NOT NULL
        StockCode              nvarchar(25)
        LinkCode               nvarchar(25)
        Quantity               float DEFAULT 0 NOT NULL
        WH                     nvarchar(5)
        BoxStatus              nvarchar(1)
        BinLoc                 nvarchar(20)
        BinDate                nvarchar(10)
        BinTime                nvarchar(8)
        BinUser                nvarchar(10)
        BinMacID               nvarchar(25)
    )"},
    // Goods received, line level: claims.
    {"TempGRVDClm", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        Account                nvarchar(10)
        TxTp                   nvarchar(6)
        GRVNo                  int DEFAULT 0 NOT NULL
        LineNo                 int DEFAULT 0 NOT NULL
        StockCode              nvarchar(25)
        LinkCode               nvarchar(25)
        Description1           nvarchar(150)
        Description2           nvarchar(150)
        SuppCode               nvarchar(25)
        BarCode                nvarchar(25)
        ClaimCode              nvarchar(10)
        ClaimDesc              nvarchar(50)
        Quantity               float DEFAULT 0 NOT NULL
        Price                  float DEFAULT 0 NOT NULL
        Price1                 float DEFAULT 0 NOT NULL
        Price2                 float DEFAULT 0 NOT NULL
        NetPrice               float DEFAULT 0 NOT NULL
        Discount               float DEFAULT 0 NOT NULL
        Total                  float DEFAULT 0 NOT NULL
        TaxAmount              float DEFAULT 0 NOT NULL
        TaxRate                float DEFAULT 0 NOT NULL
        GLAccNo                int DEFAULT 0 NOT NULL
        VATCode                nvarchar(2)
        Units                  int DEFAULT 0 NOT NULL
        LinkQty                float DEFAULT 0 NOT NULL
        CCYCode                nvarchar(5)
        CCYRateDate            nvarchar(10)
        CCYRate                float DEFAULT 0 NOT NULL
        CCYPrice               float DEFAULT 0 NOT NULL
        CCYPrice1              float DEFAULT 0 NOT NULL
        CCYPrice2              float DEFAULT 0 NOT NULL
        CCYTotal               float DEFAULT 0 NOT NULL
        CCYTotalExcl           float DEFAULT 0 NOT NULL
        CCYTotalIncl           float DEFAULT 0 NOT NULL
        CCYTotalVAT            float DEFAULT 0 NOT NULL
        GLSubAccNo             int DEFAULT 0 NOT NULL
    )"},
    // Goods received, line level: discounts.
    {"TempGRVDDisc", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        Account                nvarchar(10)
        TxTp                   nvarchar(6)
        GRVNo                  int DEFAULT 0 NOT NULL
        LineNo                 int DEFAULT 0 NOT NULL
        StockCode              nvarchar(25)
        LinkCode               nvarchar(25)
        SeqNo                  int DEFAULT 0 NOT NULL
        Code                   nvarchar(10)
        Description            nvarchar(50)
        DiscMethod             nvarchar(1)
        DiscType               nvarchar(1)
        Discount               float DEFAULT 0 NOT NULL
        DiscValue              float DEFAULT 0 NOT NULL
        RecvPrice              float DEFAULT 0 NOT NULL
        Costed                 nvarchar(1)
        GLAccNo                int DEFAULT 0 NOT NULL
        GLSubAccNo             int DEFAULT 0 NOT NULL
        DiscountExcl           float DEFAULT 0 NOT NULL
        DiscountIncl           float DEFAULT 0 NOT NULL
        DiscountVAT            float DEFAULT 0 NOT NULL
        CCYCode                nvarchar(5)
        CCYRateDate            nvarchar(10)
        CCYRate                float DEFAULT 0 NOT NULL
        CCYTotal               float DEFAULT 0 NOT NULL
    )"},
    // Goods received: lines.
    {"TempGRVDetl", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        Account                nvarchar(10)
        SubAccount             nvarchar(10)
        TxTp                   nvarchar(6)
        GRVNo                  int DEFAULT 0 NOT NULL
        LineNo                 int DEFAULT 0 NOT NULL
        StockCode              nvarchar(25)
        LinkCode               nvarchar(25)
        Description1           nvarchar(150)
        Description2           nvarchar(150)
        StockType              nvarchar(1)
        Status                 nvarchar(1)
        ScaleItem              nvarchar(1)
        ScaleType              nvarchar(1)
        WH                     nvarchar(5)
        RecvQty                float DEFAULT 0 NOT NULL
        RecvFreeQty            float DEFAULT 0 NOT NULL
        RecvPrice              float DEFAULT 0 NOT NULL
        RecvDiscount           float DEFAULT 0 NOT NULL
        RecvTotal              float DEFAULT 0 NOT NULL
        RecvTax                float DEFAULT 0 NOT NULL
        RecvNetUnit            float DEFAULT 0 NOT NULL
        RecvNNet               float DEFAULT 0 NOT NULL
        RecvWeight             float DEFAULT 0 NOT NULL
        RecvCases              int DEFAULT 0 NOT NULL
        RecvTaxCode            nvarchar(2)
        RecvTotalIncl          float DEFAULT 0 NOT NULL
        RecvDocCharges         float DEFAULT 0 NOT NULL
        RecvDocDisc            float DEFAULT 0 NOT NULL
        RecvCCYPrice           float DEFAULT 0 NOT NULL
        RecvCCYDiscount        float DEFAULT 0 NOT NULL
        RecvCCYTotalExcl       float DEFAULT 0 NOT NULL
        RecvCCYTax             float DEFAULT 0 NOT NULL
        RecvCCYTotalIncl       float DEFAULT 0 NOT NULL
        TaxRate                float DEFAULT 0 NOT NULL
        Units                  float DEFAULT 0 NOT NULL
        PackSize               nvarchar(10)
        SuppCode               nvarchar(25)
        BarCode                nvarchar(25)
        OrderQty               float DEFAULT 0 NOT NULL
        OrderFreeQty           float DEFAULT 0 NOT NULL
        OrderPrice             float DEFAULT 0 NOT NULL
        InvQty                 float DEFAULT 0 NOT NULL
        InvFreeQty             float DEFAULT 0 NOT NULL
        InvPrice               float DEFAULT 0 NOT NULL
        InvTotal               float DEFAULT 0 NOT NULL
        InvDiscount            float DEFAULT 0 NOT NULL
        InvTax                 float DEFAULT 0 NOT NULL
        InvWeight              float DEFAULT 0 NOT NULL
        InvCases               int DEFAULT 0 NOT NULL
        InvCCYPrice            float DEFAULT 0 NOT NULL
        InvCCYDiscount         float DEFAULT 0 NOT NULL
        InvCCYTotalExcl        float DEFAULT 0 NOT NULL
        InvCCYTax              float DEFAULT 0 NOT NULL
        InvCCYTotalIncl        float DEFAULT 0 NOT NULL
        TileItem               nvarchar(1)
        TileBatchTrack         nvarchar(1)
        FabricItem             nvarchar(1)
        RollCnt                int DEFAULT 0 NOT NULL
        SQMbox                 float DEFAULT 0 NOT NULL
        Cases                  float DEFAULT 0 NOT NULL
        ForeignCCY             nvarchar(10)
        Rate                   float DEFAULT 0 NOT NULL
        RebateCost             float DEFAULT 0 NOT NULL
        RebateNCost            float DEFAULT 0 NOT NULL
        InputRTotal            nvarchar(1)
        InputITotal            nvarchar(1)
        LinkQty                float DEFAULT 0 NOT NULL
        LinkCodeNetCost        float DEFAULT 0 NOT NULL
        DTODate                nvarchar(10)
        DTOTime                nvarchar(8)
        DTOUser                nvarchar(10)
        DTOMacID               nvarchar(20)
        BaseType               nvarchar(10)
        BaseRef                nvarchar(20)
        BaseLine               int DEFAULT 0 NOT NULL
        AP                     int DEFAULT 0 NOT NULL
        GRVDate                nvarchar(10)
        TaxIndicator           nvarchar(1)
        ReturnLine             nvarchar(1)
        InvLinkQty             float DEFAULT 0 NOT NULL
        RecvFreeLinkQty        float DEFAULT 0 NOT NULL
        InvFreeLinkQty         float DEFAULT 0 NOT NULL
        DocCharges             float DEFAULT 0 NOT NULL
        DocDiscounts           float DEFAULT 0 NOT NULL
        SerialTrack            nvarchar(1)
        VirtualCard            nvarchar(1)
        DocTallyExcl           float DEFAULT 0 NOT NULL
        DocTallyIncl           float DEFAULT 0 NOT NULL
        LineTallyExcl          float DEFAULT 0 NOT NULL
        LineTallyIncl          float DEFAULT 0 NOT NULL
        TonnageRebCosted       float DEFAULT 0 NOT NULL
        TonnageRebNonCosted    float DEFAULT 0 NOT NULL
        ReturnReason           nvarchar(250)
        CostDecimal            int DEFAULT 0 NOT NULL
        QtyDecimal             int DEFAULT 0 NOT NULL
        OrderNo                int DEFAULT 0 NOT NULL
        OrderLineNo            int DEFAULT 0 NOT NULL
        OrderLineRecID         int DEFAULT 0 NOT NULL
        SizeItem               nvarchar(1)
    )"},
    // Goods received, line level: prices.
    {"TempGRVDPrice", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        Account                nvarchar(10)
        TxTp                   nvarchar(6)
        GRVNo                  int DEFAULT 0 NOT NULL
        LineNo                 int DEFAULT 0 NOT NULL
        StockCode              nvarchar(25)
        LinkCode               nvarchar(25)
        PriceCode              nvarchar(10)
        Description            nvarchar(50)
        FreeItem               nvarchar(1)
        UpdateVariants         nvarchar(1)
        Excl                   float DEFAULT 0 NOT NULL
        Incl                   float DEFAULT 0 NOT NULL
        OldExcl                float DEFAULT 0 NOT NULL
        OldIncl                float DEFAULT 0 NOT NULL
        MUP                    float DEFAULT 0 NOT NULL
        GP                     float DEFAULT 0 NOT NULL
        OldMUP                 float DEFAULT 0 NOT NULL
        OldGP                  float DEFAULT 0 NOT NULL
    )"},
    // Goods received, line level: rebates.
    {"TempGRVDReb", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        Account                nvarchar(10)
        SubAccount             nvarchar(10)
        TxTp                   nvarchar(6)
        GRVNo                  int DEFAULT 0 NOT NULL
        LineNo                 int DEFAULT 0 NOT NULL
        StockCode              nvarchar(25)
        LinkCode               nvarchar(25)
        SequenceNo             int DEFAULT 0 NOT NULL
        RebateNo               int DEFAULT 0 NOT NULL
        RebateCode             nvarchar(10)
        Description            nvarchar(50)
        RebatePerc             float DEFAULT 0 NOT NULL
        RebateValue            float DEFAULT 0 NOT NULL
        Rebate                 float DEFAULT 0 NOT NULL
        Quantity               float DEFAULT 0 NOT NULL
        RebateTotal            float DEFAULT 0 NOT NULL
        RebateVAT              float DEFAULT 0 NOT NULL
        ClaimMethod            nvarchar(1)
        ClaimFreq              nvarchar(1)
        Costed                 nvarchar(1)
        Settlement             nvarchar(1)
        ProfitCalc             nvarchar(1)
        DTODate                nvarchar(10)
        DTOTime                nvarchar(8)
        DTOUser                nvarchar(10)
        DTOMacID               nvarchar(25)
        Units                  int DEFAULT 0 NOT NULL
        LinkQty                float DEFAULT 0 NOT NULL
        CostedToRebate         nvarchar(1)
        BuyGroupAcc            nvarchar(10)
    )"},
    // Goods received, line level: scans.
    {"TempGRVDScan", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        Account                nvarchar(10)
        TxTp                   nvarchar(6)
        GRVNo                  int DEFAULT 0 NOT NULL
        LineNo                 int DEFAULT 0 NOT NULL
        StockCode              nvarchar(25)
        LinkCode               nvarchar(25)
        Description1           nvarchar(150)
        Units                  int DEFAULT 0 NOT NULL
        PackSize               nvarchar(10)
        ScanCode               nvarchar(25)
        ScanQty                float DEFAULT 0 NOT NULL
        OrdQty                 float DEFAULT 0 NOT NULL
        InvQty                 float DEFAULT 0 NOT NULL
        Notes                  nvarchar(250)
        DTODate                nvarchar(10)
        DTOTime                nvarchar(8)
        DTOUser                nvarchar(10)
        DTOMacID               nvarchar(20)
    )"},
    // Goods received, line level: serial numbers. Also reached by tb_Update_Serial_SQL of Part
    // 9.6.
    {"TempGRVDSer", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        Account                nvarchar(10)
        TxTp                   nvarchar(6)
        GRVNo                  int DEFAULT 0 NOT NULL
        LineNo                 int DEFAULT 0 NOT NULL
        StockCode              nvarchar(25)
        LinkCode               nvarchar(25)
        SerialNo               nvarchar(25)
        RecvDate               nvarchar(10)
        Period                 int DEFAULT 0 NOT NULL
        ExpireDate             nvarchar(10)
        NoOfBox                int DEFAULT 0 NOT NULL
        DispatchNo             int DEFAULT 0 NOT NULL
    )"},
    // Goods received, line level: tally.
    {"TempGRVDTally", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        Account                nvarchar(10)
        TxTp                   nvarchar(6)
        GRVNo                  int DEFAULT 0 NOT NULL
        LineNo                 int DEFAULT 0 NOT NULL
        StockCode              nvarchar(25)
        LinkCode               nvarchar(25)
        ClaimCode              nvarchar(10)
        Description            nvarchar(50)
        ValueType              nvarchar(1)
        Value                  float DEFAULT 0 NOT NULL
        ClaimAmountExcl        float DEFAULT 0 NOT NULL
        ClaimAmountIncl        float DEFAULT 0 NOT NULL
        ClaimNo                int DEFAULT 0 NOT NULL
    )"},
    // Goods received, line level: sizes.
    {"TempGRVDSizes", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        Account                nvarchar(10)
        TxTp                   nvarchar(6)
        GRVNo                  int DEFAULT 0 NOT NULL
        LineNo                 int DEFAULT 0 NOT NULL
        StockCode              nvarchar(25)
        LinkCode               nvarchar(25)
        Seq                    int DEFAULT 0 NOT NULL
        SizeCode               nvarchar(20)
        Quantity               float DEFAULT 0 NOT NULL
        CostExcl               float DEFAULT 0 NOT NULL
        CostIncl               float DEFAULT 0 NOT NULL
        SellExcl               float DEFAULT 0 NOT NULL
        SellIncl               float DEFAULT 0 NOT NULL
    )"},
};

constexpr UpdateStep updates[] = {
    {"tb_Update_TempGRVDetl", "TempGRVDetl", R"(
        add    TileItem               nvarchar(1)     'N'
        add    TileBatchTrack         nvarchar(1)     'N'
        add    SizeItem               nvarchar(1)     'N'
        add    InvCCYPrice            float
        add    InvCCYDiscount         float
        add    InvCCYTotalExcl        float
        add    InvCCYTax              float
        add    InvCCYTotalIncl        float
        add    RecvCCYPrice           float
        add    RecvCCYDiscount        float
        add    RecvCCYTotalExcl       float
        add    RecvCCYTax             float
        add    RecvCCYTotalIncl       float
        add    OrderNo                int
        add    OrderLineNo            int
        add    OrderLineRecID         int
        add    FabricItem             nvarchar(1)
        add    RolLCnt                int
    )"},
    {"tb_Update_TempGRVDClm", "TempGRVDClm", R"(
        add    Units                  int
        add    LinkQty                float
        add    GLAccNo                int
        add    GLSubAccNo             int
        add    CCYCode                nvarchar(5)
        add    CCYRateDate            nvarchar(10)
        add    CCYRate                float
        add    CCYPrice               float
        add    CCYPrice1              float
        add    CCYPrice2              float
        add    CCYTotal               float
        add    CCYTotalExcl           float
        add    CCYTotalIncl           float
        add    CCYTotalVAT            float
    )"},
    {"tb_Update_TempGRVDDisc", "TempGRVDDisc", R"(
        add    Code                   nvarchar(10)
        add    DiscountVAT            float
        add    DiscountIncl           float
        add    GLAccNo                int
        add    GLSubAccNo             int
        add    DiscountExcl           float
        add    CCYCode                nvarchar(5)
        add    CCYRateDate            nvarchar(10)
        add    CCYRate                float(5)
        add    CCYTotal               float
    )"},
    {"tb_Update_TempGRVDPrice", "TempGRVDPrice", R"(
        add    UpdateVariants         nvarchar(1)
    )"},
    {"tb_Update_TempGRVDBoxes", "TempGRVDBoxes", R"(
        add    BoxLabel               nvarchar(50)
    )"},
};

} // namespace

const Family goodsReceivedLineTables{tables, updates};

} // namespace velcro::schema
