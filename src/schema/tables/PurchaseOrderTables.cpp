// Purchase orders, while they are being captured.
#include "schema/tables/Family.h"

namespace velcro::schema {

namespace {

constexpr TableDefinition tables[] = {
    // Purchase order: lines.
    {"TempPurOrdDet", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        Account                nvarchar(10)
        SubAccount             nvarchar(10)
        OrderNo                int DEFAULT 0 NOT NULL
        StockCode              nvarchar(25)
        LinkCode               nvarchar(25)
        Description1           nvarchar(150)
        Description2           nvarchar(150)
        Quantity               float DEFAULT 0 NOT NULL
        FreeQty                float DEFAULT 0 NOT NULL
        RecvQty                float DEFAULT 0 NOT NULL
        BalQty                 float DEFAULT 0 NOT NULL
        Price                  float DEFAULT 0 NOT NULL
        PriceExcl              float DEFAULT 0 NOT NULL
        PriceIncl              float DEFAULT 0 NOT NULL
        Discount               float DEFAULT 0 NOT NULL
        VAT                    float DEFAULT 0 NOT NULL
        TotalExcl              float DEFAULT 0 NOT NULL
        TotalIncl              float DEFAULT 0 NOT NULL
        VATIndicator           nvarchar(1)
        FreeStockInd           nvarchar(1)
        SellExcl               float DEFAULT 0 NOT NULL
        SellIncl               float DEFAULT 0 NOT NULL
        AvgCostExcl            float DEFAULT 0 NOT NULL
        AvgCostIncl            float DEFAULT 0 NOT NULL
        BuyCostExcl            float DEFAULT 0 NOT NULL
        BuyCostIncl            float DEFAULT 0 NOT NULL
        ListCostExcl           float DEFAULT 0 NOT NULL
        ListCostIncl           float DEFAULT 0 NOT NULL
        GRVQuantity            float DEFAULT 0 NOT NULL
        GRVCostExcl            float DEFAULT 0 NOT NULL
        GRVCostIncl            float DEFAULT 0 NOT NULL
        TotalUnits             float DEFAULT 0 NOT NULL
        TotalCases             float DEFAULT 0 NOT NULL
        TotalPalettes          float DEFAULT 0 NOT NULL
        TotalWeight            float DEFAULT 0 NOT NULL
        Dimension              float DEFAULT 0 NOT NULL
        SerialTrack            nvarchar(1)
        SizeItem               nvarchar(1)
        Barcode                nvarchar(25)
        SuppCode               nvarchar(50)
        DTODate                nvarchar(10)
        DTOTime                nvarchar(8)
        DTOUser                nvarchar(10)
        DTOMacID               nvarchar(20)
        LineNo                 int DEFAULT 0 NOT NULL
        VATCode                nvarchar(2)
        VATRate                float DEFAULT 0 NOT NULL
        SuggExcl               float DEFAULT 0 NOT NULL
        SuggIncl               float DEFAULT 0 NOT NULL
        BalanceQty             float DEFAULT 0 NOT NULL
        WH                     nvarchar(5)
        RecFreeQty             float DEFAULT 0 NOT NULL
        BalFreeQty             float DEFAULT 0 NOT NULL
        Units                  int DEFAULT 0 NOT NULL
        LinkQty                float DEFAULT 0 NOT NULL
        LinkFreeQty            float DEFAULT 0 NOT NULL
        LinkRecvQty            float DEFAULT 0 NOT NULL
        LinkBalQty             float DEFAULT 0 NOT NULL
        LinkRecvFreeQty        float DEFAULT 0 NOT NULL
        LinkBalFreeQty         float DEFAULT 0 NOT NULL
        DocClaimExcl           float DEFAULT 0 NOT NULL
        DocClaimIncl           float DEFAULT 0 NOT NULL
        LineClaimExcl          float DEFAULT 0 NOT NULL
        LineClaimIncl          float DEFAULT 0 NOT NULL
        ScanQty                float DEFAULT 0 NOT NULL
        ScanLinkQty            float DEFAULT 0 NOT NULL
        Onhand                 float DEFAULT 0 NOT NULL
        BackOrders             float DEFAULT 0 NOT NULL
        Supplier               nvarchar(10)
        MinQty                 float DEFAULT 0 NOT NULL
        MaxQty                 float DEFAULT 0 NOT NULL
        PurCardRule            nvarchar(1)
        QtyDecimal             int DEFAULT 0 NOT NULL
        CostDecimal            int DEFAULT 0 NOT NULL
        SellDecimal            int DEFAULT 0 NOT NULL
        Periods                int DEFAULT 0 NOT NULL
        PeriodDays             int DEFAULT 0 NOT NULL
        PeriodOrder            int DEFAULT 0 NOT NULL
        PeriodAvgCalcInd       nvarchar(1)
        Period1                float DEFAULT 0 NOT NULL
        Period2                float DEFAULT 0 NOT NULL
        Period3                float DEFAULT 0 NOT NULL
        Period4                float DEFAULT 0 NOT NULL
        Period5                float DEFAULT 0 NOT NULL
        Period6                float DEFAULT 0 NOT NULL
        Period7                float DEFAULT 0 NOT NULL
        Period8                float DEFAULT 0 NOT NULL
        Period9                float DEFAULT 0 NOT NULL
        Period10               float DEFAULT 0 NOT NULL
        Period11               float DEFAULT 0 NOT NULL
        Period12               float DEFAULT 0 NOT NULL
        PeriodDays1            int DEFAULT 0 NOT NULL
        PeriodDays2            int DEFAULT 0 NOT NULL
        PeriodDays3            int DEFAULT 0 NOT NULL
        PeriodDays4            int DEFAULT 0 NOT NULL
        PeriodDays5            int DEFAULT 0 NOT NULL
        TileItem               nvarchar(1)
        SqmBox                 float DEFAULT 0 NOT NULL
        TileSize               nvarchar(20)
        TileGrade              nvarchar(20)
        NoOfBox                int DEFAULT 0 NOT NULL
        CCYCode                nvarchar(5)
        CCYRateDate            nvarchar(10)
        CCYRate                float DEFAULT 0 NOT NULL
        CCYTotalExcl           float DEFAULT 0 NOT NULL
        CCYTotalIncl           float DEFAULT 0 NOT NULL
        CCYTotalVAT            float DEFAULT 0 NOT NULL
    )"},
    // Purchase order, line level: claims.
    {"TempPurOrdDetClaim", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        Account                nvarchar(10)
        OrderNo                int DEFAULT 0 NOT NULL
        LineNo                 int DEFAULT 0 NOT NULL
        StockCode              nvarchar(25)
        LinkCode               nvarchar(25)
        ClaimCode              nvarchar(10)
        ClaimDesc              nvarchar(50)
        ApplyToCost            nvarchar(1)
        AmountExcl             float DEFAULT 0 NOT NULL
        AmountIncl             float DEFAULT 0 NOT NULL
        TotalAmountExcl        float DEFAULT 0 NOT NULL
        TotalAmountIncl        float DEFAULT 0 NOT NULL
        CCYCode                nvarchar(5)
        CCYRateDate            nvarchar(10)
        CCYRate                float DEFAULT 0 NOT NULL
        CCYTotalExcl           float DEFAULT 0 NOT NULL
        CCYTotalIncl           float DEFAULT 0 NOT NULL
        CCYTotalVAT            float DEFAULT 0 NOT NULL
        DealNo                 int DEFAULT 0 NOT NULL
    )"},
    // Purchase order, line level: discounts.
    {"TempPurOrdDetDis", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        Account                nvarchar(10)
        SubAccount             nvarchar(10)
        OrderNo                int DEFAULT 0 NOT NULL
        StockCode              nvarchar(25)
        LinkCode               nvarchar(25)
        LineNo                 int DEFAULT 0 NOT NULL
        SequenceNo             int DEFAULT 0 NOT NULL
        DiscountCode           nvarchar(10)
        Description            nvarchar(50)
        DiscountMethod         nvarchar(1)
        DiscountType           nvarchar(1)
        Costed                 nvarchar(1)
        DiscValue              float DEFAULT 0 NOT NULL
        Discount               float DEFAULT 0 NOT NULL
        DiscountExcl           float DEFAULT 0 NOT NULL
        DiscountIncl           float DEFAULT 0 NOT NULL
        FreeStockCode          nvarchar(25)
        FreeLinkCode           nvarchar(25)
        FreeDescription1       nvarchar(150)
        FreeDescription2       nvarchar(150)
        FreeQuantity           float DEFAULT 0 NOT NULL
        FreePerQty             float DEFAULT 0 NOT NULL
        CCYCode                nvarchar(5)
        CCYRateDate            nvarchar(10)
        CCYRate                float DEFAULT 0 NOT NULL
        CCYDiscExcl            float DEFAULT 0 NOT NULL
        CCYDiscIncl            float DEFAULT 0 NOT NULL
        CCYDiscount            float DEFAULT 0 NOT NULL
        DTODate                nvarchar(10)
        DTOTime                nvarchar(8)
        DTOUser                nvarchar(10)
        DTOMacID               nvarchar(20)
    )"},
    // Purchase order, line level: prices.
    {"TempPurOrdDetPrice", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        Account                nvarchar(10)
        OrderNo                int DEFAULT 0 NOT NULL
        LineNo                 int DEFAULT 0 NOT NULL
        StockCode              nvarchar(25)
        LinkCode               nvarchar(25)
        PriceCode              nvarchar(10)
        Description            nvarchar(50)
        UpdateVariants         nvarchar(1)
        Units                  int DEFAULT 0 NOT NULL
        Excl                   float DEFAULT 0 NOT NULL
        Incl                   float DEFAULT 0 NOT NULL
        MUP                    float DEFAULT 0 NOT NULL
        GP                     float DEFAULT 0 NOT NULL
        OldExcl                float DEFAULT 0 NOT NULL
        OldIncl                float DEFAULT 0 NOT NULL
        OldMUP                 float DEFAULT 0 NOT NULL
        OldGP                  float DEFAULT 0 NOT NULL
    )"},
    // Purchase order, line level: sizes.
    {"TempPurOrdDetSizes", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        Account                nvarchar(10)
        SubAccount             nvarchar(10)
        OrderNo                int DEFAULT 0 NOT NULL
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
    // Purchase order: head.
    {"TempPurOrdHdr", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        Account                nvarchar(10)
        SubAccount             nvarchar(10)
        OrderNo                int DEFAULT 0 NOT NULL
        OrderDate              nvarchar(10)
        DeliveryDate           nvarchar(10)
        DeliveryTime           nvarchar(8)
        Name                   nvarchar(50)
        Address1               nvarchar(40)
        Address2               nvarchar(40)
        Address3               nvarchar(40)
        Address4               nvarchar(40)
        PostalCode             nvarchar(4)
        Telephone              nvarchar(40)
        Fax                    nvarchar(40)
        Email                  nvarchar(60)
        Contact                nvarchar(30)
        Buyer                  nvarchar(20)
        TermCode               nvarchar(1)
        Reference              nvarchar(30)
        OrdCardNo              int DEFAULT 0 NOT NULL
        GRVNo                  int DEFAULT 0 NOT NULL
        Status                 nvarchar(1)
        VATIndicator           nvarchar(1)
        TotalCases             float DEFAULT 0 NOT NULL
        TotalPallettes         float DEFAULT 0 NOT NULL
        TotalWeight            float DEFAULT 0 NOT NULL
        TotalDiscount          float DEFAULT 0 NOT NULL
        TotalDimension         float DEFAULT 0 NOT NULL
        TotalVAT               float DEFAULT 0 NOT NULL
        TotalExcl              float DEFAULT 0 NOT NULL
        TotalIncl              float DEFAULT 0 NOT NULL
        Notes                  ntext
        DTODate                nvarchar(10)
        DTOTime                nvarchar(8)
        DTOUser                nvarchar(10)
        DTOMacID               nvarchar(20)
        SuggOrdExcl            float DEFAULT 0 NOT NULL
        SuggOrdIncl            float DEFAULT 0 NOT NULL
        WH                     nvarchar(5)
        CommMethod             nvarchar(1)
        PurCardRule            nvarchar(1)
        Approved               nvarchar(1)
        ApproveDate            nvarchar(10)
        ApprovedUser           nvarchar(20)
        ApprocedUser           nvarchar(20)
        PaymentDate            nvarchar(10)
        DueOverride            nvarchar(1)
        DetailLines            int DEFAULT 0 NOT NULL
        ExtendedTerms          nvarchar(1)
        ExtendedDays           int DEFAULT 0 NOT NULL
        ExtendedDate           nvarchar(10)
        DestCO                 nvarchar(10)
        DestBranch             nvarchar(10)
        DEBAccount             nvarchar(20)
        Indicators             nvarchar(20)
        BaseType               nvarchar(6)
        BaseRef                nvarchar(20)
        SuppAcc                nvarchar(20)
        Version                nvarchar(20)
        Inuse                  nvarchar(30)
        DoctallyExcl           float DEFAULT 0 NOT NULL
        DoctallyIncl           float DEFAULT 0 NOT NULL
        DEBRefAccount          nvarchar(20)
        CCYCode                nvarchar(5)
        CCYRateDate            nvarchar(10)
        CCYRate                float DEFAULT 0 NOT NULL
        CCYTotalExcl           float DEFAULT 0 NOT NULL
        CCYTotalIncl           float DEFAULT 0 NOT NULL
        CCYTotalVAT            float DEFAULT 0 NOT NULL
    )"},
    // Purchase order, head level: rules.
    {"TempPurOrdHdrRule", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        Account                nvarchar(10)
        OrderNo                int DEFAULT 0 NOT NULL
        Supplier               nvarchar(10)
        PurCardRule            nvarchar(1)
        UseCost                nvarchar(1)
        IgnoreBackOrd          nvarchar(1)
        PurchaseItems          nvarchar(1)
        OrderType              nvarchar(1)
        OrderDays              int DEFAULT 0 NOT NULL
        SalesMonths            int DEFAULT 0 NOT NULL
        IncludeZeroMths        nvarchar(1)
        LeadDays               int DEFAULT 0 NOT NULL
        FromDate               nvarchar(10)
        ToDate                 nvarchar(10)
        Periods                int DEFAULT 0 NOT NULL
        PeriodDays             int DEFAULT 0 NOT NULL
        PeriodOrder            int DEFAULT 0 NOT NULL
        PeriodAvgCalcInd       nvarchar(1)
        CriteriaSelected       nvarchar(1)
        AltSupplierItems       nvarchar(1)
    )"},
    // Purchase order, head level: claims.
    {"TempPurOrdHdrClaim", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        Account                nvarchar(10)
        OrderNo                int DEFAULT 0 NOT NULL
        ClaimCode              nvarchar(10)
        ClaimDesc              nvarchar(50)
        ApplyToCost            nvarchar(1)
        AmountExcl             float DEFAULT 0 NOT NULL
        AmountIncl             float DEFAULT 0 NOT NULL
        CCYCode                nvarchar(5)
        CCYRateDate            nvarchar(10)
        CCYRate                float DEFAULT 0 NOT NULL
        CCYTotalExcl           float DEFAULT 0 NOT NULL
        CCYTotalIncl           float DEFAULT 0 NOT NULL
        DealNo                 int DEFAULT 0 NOT NULL
    )"},
    // Purchase order, head level: discounts.
    {"TempPurOrdHdrDis", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        Account                nvarchar(10)
        SubAccount             nvarchar(10)
        OrderNo                int DEFAULT 0 NOT NULL
        SequenceNo             int DEFAULT 0 NOT NULL
        DiscountCode           nvarchar(10)
        Description            nvarchar(50)
        DiscMethod             nvarchar(1)
        DiscType               nvarchar(1)
        Costed                 nvarchar(1)
        Discount               float DEFAULT 0 NOT NULL
        DiscountExcl           float DEFAULT 0 NOT NULL
        DiscountIncl           float DEFAULT 0 NOT NULL
        CCYCode                nvarchar(5)
        CCYRateDate            nvarchar(10)
        CCYRate                float DEFAULT 0 NOT NULL
        CCYDiscExcl            float DEFAULT 0 NOT NULL
        CCYDiscIncl            float DEFAULT 0 NOT NULL
        DTODate                nvarchar(10)
        DTOTime                nvarchar(8)
        DTOUser                nvarchar(10)
        DTOMacID               nvarchar(20)
    )"},
};

constexpr UpdateStep updates[] = {
    {"tb_Update_TempPurOrdHdr", "TempPurOrdHdr", R"(
        add    DEBRefAccount          nvarchar(20)
        add    PurCardRule            nvarchar(1)
        add    CCYCode                nvarchar(5)
        add    CCYRate                float
        add    CCYRateDate            nvarchar(10)
        add    CCYTotalExcl           float
        add    CCYTotalIncl           float
        add    CCYTotalVAT            float
    )"},
    {"tb_Update_TempPurOrdHdrClaim", "TempPurOrdHdrClaim", R"(
        add    CCYCode                nvarchar(5)
        add    CCYRate                float
        add    CCYRateDate            nvarchar(10)
        add    CCYTotalExcl           float
        add    CCYTotalIncl           float
    )"},
    {"tb_Update_TempPurOrdHdrDis", "TempPurOrdHdrDis", R"(
        add    CCYCode                nvarchar(5)
        add    CCYRate                float
        add    CCYRateDate            nvarchar(10)
        add    CCYDiscExcl            float
        add    CCYDiscIncl            float
    )"},
    {"tb_Update_TempPurOrdHdrRule", "TempPurOrdHdrRule", R"(
        add    AltSupplierItems       nvarchar(1)
        add    SalesOrder             nvarchar(1)
    )"},
    {"tb_Update_TempPurOrdDetClaim", "TempPurOrdDetClaim", R"(
        add    LineNo                 int
        add    CCYCode                nvarchar(5)
        add    CCYRate                float
        add    CCYRateDate            nvarchar(10)
        add    CCYTotalExcl           float
        add    CCYTotalIncl           float
        add    CCYTotalVAT            float
    )"},
    {"tb_Update_TempPurOrdDetDis", "TempPurOrdDetDis", R"(
        add    CCYCode                nvarchar(5)
        add    CCYRate                float
        add    CCYRateDate            nvarchar(10)
        add    CCYDiscExcl            float
        add    CCYDiscIncl            float
        add    CCYDiscount            float
    )"},
    {"tb_Update_TempPurOrdDetPrice", "TempPurOrdDetPrice", R"(
        add    UpdateVariants         nvarchar(1)
    )"},
    {"tb_Update_TempPurOrdDet", "TempPurOrdDet", R"(
        add    Periods                int
        add    PeriodDays             int
        add    PeriodDays1            int
        add    PeriodDays2            int
        add    PeriodDays3            int
        add    PeriodDays4            int
        add    PeriodDays5            int
        add    Period1                float
        add    Period2                float
        add    Period3                float
        add    Period4                float
        add    Period5                float
        add    Period6                float
        add    Period7                float
        add    Period8                float
        add    Period9                float
        add    Period10               float
        add    Period11               float
        add    Period12               float
        add    PeriodOrder            int
        add    PeriodAvgCalcInd       nvarchar(1)     'N'
        add    PurCardRule            nvarchar(1)
        add    SizeItem               nvarchar(1)
        add    QtyDecimal             int             '2'
        add    CostDecimal            int             '5'
        add    SellDecimal            int             '2'
        add    TileItem               nvarchar(1)     'N'
        add    SqmBox                 float
        add    TileSize               nvarchar(20)
        add    TileGrade              nvarchar(20)
        add    NoOfBox                int
        add    CCYCode                nvarchar(5)
        add    CCYRate                float
        add    CCYRateDate            nvarchar(10)
        add    CCYTotalExcl           float
        add    CCYTotalIncl           float
        add    CCYTotalVAT            float
    )"},
};

} // namespace

const Family purchaseOrderTables{tables, updates};

} // namespace velcro::schema
