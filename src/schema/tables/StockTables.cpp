// The stock master, its prices and the other codes that lead to it.
#include "schema/tables/Family.h"

namespace velcro::schema {

namespace {

constexpr TableDefinition tables[] = {
    // The stock master: one row per stock item and link code of a branch. Property01 to
    // Property10 are free properties, IntegrationFlags a row of fifteen flags.
    {"STKMaster", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        StockType              nvarchar(1)
        StockCode              nvarchar(25)
        LinkCode               nvarchar(25)
        Description1           nvarchar(150)
        Description2           nvarchar(150)
        VATCode                nvarchar(2)
        DeptCode               nvarchar(10)
        SubDept                nvarchar(10)
        Category1              nvarchar(10)
        Category2              nvarchar(10)
        Category3              nvarchar(10)
        Category4              nvarchar(10)
        Supplier               nvarchar(10)
        SuppCode               nvarchar(50)
        BarCode                nvarchar(25)
        Variant                nvarchar(10)
        Units                  int DEFAULT 0 NOT NULL
        Singles                int DEFAULT 0 NOT NULL
        PackCase               int DEFAULT 0 NOT NULL
        CasePall               int DEFAULT 0 NOT NULL
        Weight                 float DEFAULT 0 NOT NULL
        Binlocation            nvarchar(20)
        ItemLength             float DEFAULT 0 NOT NULL
        ItemBreadth            float DEFAULT 0 NOT NULL
        ItemHeight             float DEFAULT 0 NOT NULL
        SerialTrack            nvarchar(1)
        LinkedSerial           nvarchar(1)
        KitFunction            nvarchar(1)
        NegativeQty            nvarchar(1)
        PurchaseItem           nvarchar(1)
        SaleItem               nvarchar(1)
        InventoryItem          nvarchar(1)
        PrintLabel             nvarchar(1)
        MiscGP                 float DEFAULT 0 NOT NULL
        QtyDecimal             int DEFAULT 0 NOT NULL
        CostDecimal            int DEFAULT 0 NOT NULL
        SellDecimal            int DEFAULT 0 NOT NULL
        SqmBox                 float DEFAULT 0 NOT NULL
        TileItem               nvarchar(1)
        TileSize               nvarchar(20)
        TileGrade              nvarchar(20)
        TileBatchTrack         nvarchar(1)
        TilePieces             int DEFAULT 0 NOT NULL
        AutoPurOrder           nvarchar(1)
        SCTemplate             nvarchar(10)
        LengthColor            int DEFAULT 0 NOT NULL
        LengthSize             int DEFAULT 0 NOT NULL
        Descriptions           nvarchar(max)
        Food                   nvarchar(10)
        KVI                    nvarchar(1)
        DivertCode             nvarchar(25)
        ScaleItem              nvarchar(1)
        ScalePrice             nvarchar(1)
        ScaleType              nvarchar(1)
        ScaleVerify            nvarchar(1)
        ScaleTolerance         float DEFAULT 0 NOT NULL
        Status                 nvarchar(1)
        WTCaseStart            int DEFAULT 0 NOT NULL
        WTCaseLength           int DEFAULT 0 NOT NULL
        WTCaseFactor           int DEFAULT 0 NOT NULL
        LastCostExcl           float DEFAULT 0 NOT NULL
        LastCostIncl           float DEFAULT 0 NOT NULL
        AvgCostExcl            float DEFAULT 0 NOT NULL
        AvgCostIncl            float DEFAULT 0 NOT NULL
        BuyCostExcl            float DEFAULT 0 NOT NULL
        BuyCostIncl            float DEFAULT 0 NOT NULL
        RebateAvgExcl          float DEFAULT 0 NOT NULL
        RebateLastExcl         float DEFAULT 0 NOT NULL
        CostCode               nvarchar(25)
        Property01             nvarchar(10)
        Property02             nvarchar(10)
        Property03             nvarchar(10)
        Property04             nvarchar(10)
        Property05             nvarchar(10)
        Property06             nvarchar(10)
        Property07             nvarchar(10)
        Property08             nvarchar(10)
        Property09             nvarchar(10)
        Property10             nvarchar(10)
        PromFDate              nvarchar(10)
        PromTDate              nvarchar(10)
        PromFTime              nvarchar(8)
        PromTTime              nvarchar(8)
        PromMaxQty             float DEFAULT 0 NOT NULL
        PromQtySold            float DEFAULT 0 NOT NULL
        PromMCust              float DEFAULT 0 NOT NULL
        PromPerm               nvarchar(1)
        SugSell                float DEFAULT 0 NOT NULL
        MinQty                 float DEFAULT 0 NOT NULL
        MaxQty                 float DEFAULT 0 NOT NULL
        ReOrderType            nvarchar(1)
        CustomsGroup           nvarchar(10)
        CustomsRate            float DEFAULT 0 NOT NULL
        DefaultWH              nvarchar(10)
        DeliveryItem           nvarchar(1)
        ForeignBuyCost         float DEFAULT 0 NOT NULL
        ForeignCCY             nvarchar(3)
        Manufacturer           nvarchar(50)
        LastCountedDate        nvarchar(10)
        LastSaleDate           nvarchar(10)
        LeadTimeDays           int DEFAULT 0 NOT NULL
        GLSalesAcc             nvarchar(10)
        GLExpenseAcc           nvarchar(10)
        PackSize               nvarchar(10)
        PurCardPrty            int DEFAULT 0 NOT NULL
        AverageSTK             int DEFAULT 0 NOT NULL
        CostPlusExcl           float DEFAULT 0 NOT NULL
        CostPlusIncl           float DEFAULT 0 NOT NULL
        DCItem                 nvarchar(1)
        TDSS                   nvarchar(1)
        SeasonCode             nvarchar(10)
        ChangeSelling          nvarchar(1)
        PurCardRule            nvarchar(3)
        KitPrint               nvarchar(1)
        KitBuildPer            int DEFAULT 0 NOT NULL
        ItemID                 int DEFAULT 0 NOT NULL
        Frequency              nvarchar(1)
        StockTakeDate          nvarchar(10)
        OrdCase                char(1)
        Express                nvarchar(1)
        IgnorePallet           nvarchar(1)
        Template               nvarchar(20)
        SellBelowCost          nvarchar(1)
        ExclGRVDisc            nvarchar(1)
        ExpressItem            nvarchar(1)
        BCAdjFactor            float DEFAULT 0 NOT NULL
        BCAdjFrom              nvarchar(10)
        BCAdjTo                nvarchar(10)
        BCPriceIncr            nvarchar(1)
        BaseCostExcl           float DEFAULT 0 NOT NULL
        BaseCostIncl           float DEFAULT 0 NOT NULL
        BCAdjFactorPerc        float DEFAULT 0 NOT NULL
        BCAdjFactorVal         float DEFAULT 0 NOT NULL
        Description3           nvarchar(50)
        OutSesnOrd             nvarchar(1)
        DefaultGP              float DEFAULT 0 NOT NULL
        AllowReturns           nvarchar(1)
        VirtualCard            nvarchar(1)
        KitCostDesc1           nvarchar(50)
        KitCostDesc2           nvarchar(50)
        KitCostDesc3           nvarchar(50)
        KitCost1               float DEFAULT 0 NOT NULL
        KitCost2               float DEFAULT 0 NOT NULL
        KitCost3               float DEFAULT 0 NOT NULL
        KitWastePerc           float DEFAULT 0 NOT NULL
        BinlocMin              float DEFAULT 0 NOT NULL
        BinlocMax              float DEFAULT 0 NOT NULL
        BinlocRate             float DEFAULT 0 NOT NULL
        ReportingItem          nvarchar(1)
        SaleGroup              nvarchar(1)
        LastRecvSupp           nvarchar(10)
        AvgSalesQty            float DEFAULT 0 NOT NULL
        KitWeightTol           float DEFAULT 0 NOT NULL
        GLPostGroup            nvarchar(10)
        OnlineRange            nvarchar(1)
        WeightedItem           nvarchar(1)
        BestBeforeCode         nvarchar(10)
        PalletItem             nvarchar(1)
        SplitCodeItem          nvarchar(1)
        TareWeight             float DEFAULT 0 NOT NULL
        LoyaltyPnts            int DEFAULT 0 NOT NULL
        KitCostFactor          float DEFAULT 0 NOT NULL
        SellByDays             int DEFAULT 0 NOT NULL
        UNIPin                 nvarchar(1)
        DispatchItem           nvarchar(1)
        DispatchWH             nvarchar(10)
        ShelfLifeDays          int DEFAULT 0 NOT NULL
        CustomVATRate          float DEFAULT 0 NOT NULL
        Notes                  nvarchar(max)
        BOMItem                nvarchar(1)
        OEMNumber              nvarchar(25)
        WooID                  int DEFAULT 0 NOT NULL
        OnlineURL              nvarchar(max)
        IntegrationFlags       nvarchar(15)
        BeverageItem           nvarchar(1)
        AlcoholVolume          float DEFAULT 0 NOT NULL
        BrandID                nvarchar(20)
        CasingTemplate         nvarchar(50)
        ContainerID            nvarchar(50)
        CountryOfOrigin        nvarchar(50)
        DefaultLanguage        nvarchar(10)
        BriefDescription       nvarchar(255)
        IsEnabled              nvarchar(1)
        IsHidden               nvarchar(1)
        IsAlcoholic            nvarchar(1)
        IsNarcotic             nvarchar(1)
        FriendlyName           nvarchar(100)
        PackageID              nvarchar(50)
        PalletQuantity         int DEFAULT 0 NOT NULL
        SubBrandID             nvarchar(50)
        VariableWeight         nvarchar(1)
        IsVariant              nvarchar(1)
        MiscCostInput          nvarchar(1)
        MiscReserved           nvarchar(1)
        SizeItem               nvarchar(1)
        SizeCode               nvarchar(20)
        ColorCode              nvarchar(20)
        SizeColorGrp           nvarchar(25)
        FabricItem             nvarchar(1)
        FabricGramsSQM         float DEFAULT 0 NOT NULL
        FabricWidth            float DEFAULT 0 NOT NULL
        FabricGramsMeter       float DEFAULT 0 NOT NULL
        FabricCoreWeight       float DEFAULT 0 NOT NULL
        FabricRolls            nvarchar(1)
        GRVBinLocation         nvarchar(20)
        MiscBuyoutItem         nvarchar(1)
        BalerItem              nvarchar(1)
        PackBale               int DEFAULT 0 NOT NULL
        CreateDate             nvarchar(10)
        CreateTime             nvarchar(8)
        CreateUser             nvarchar(10)
        CreateMacID            nvarchar(20)
        DTODate                nvarchar(10)
        DTOTime                nvarchar(8)
        DTOUser                nvarchar(10)
        DTOMacID               nvarchar(20)
        Version                nvarchar(20)
    )"},
    // On-hand quantity per stock code and warehouse.
    {"STKTempBal", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        StockCode              nvarchar(25)
        WH                     nvarchar(10)
        Onhand                 float DEFAULT 0 NOT NULL
        DTODate                nvarchar(10)
        DTOTime                nvarchar(8)
        DTOUser                nvarchar(10)
        DTOMacID               nvarchar(20)
    )"},
    // Split selling units of a stock item, with their own prices and promotion dates.
    {"STKMstSplitCodes", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        StockCode              nvarchar(25)
        LinkCode               nvarchar(25)
        SplitCode              int DEFAULT 0 NOT NULL
        Description1           nvarchar(150)
        Units                  int DEFAULT 0 NOT NULL
        PriceExcl              float DEFAULT 0 NOT NULL
        PriceIncl              float DEFAULT 0 NOT NULL
        PromFDate              nvarchar(10)
        PromTDate              nvarchar(10)
        PromFTime              nvarchar(8)
        PromTTime              nvarchar(8)
        PromMaxQty             float DEFAULT 0 NOT NULL
        PromQtySold            float DEFAULT 0 NOT NULL
        PromMCust              float DEFAULT 0 NOT NULL
        DTODate                nvarchar(10)
        DTOTime                nvarchar(8)
        DTOUser                nvarchar(10)
        DTOMacID               nvarchar(20)
    )"},
    // Size rows of a stock item.
    {"STKMstSizes", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
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
    // Items associated with a stock item, with OEM and EAN numbers.
    {"STKMstAssItems", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        StockCode              nvarchar(25)
        LinkCode               nvarchar(25)
        AssStockCode           nvarchar(25)
        AssLinkCode            nvarchar(25)
        AssDescription1        nvarchar(150)
        AssQty                 float DEFAULT 0 NOT NULL
        OEMNumber              nvarchar(25)
        OEMBrand               nvarchar(100)
        EANNumber              nvarchar(25)
    )"},
    // Selling price of a stock item per price code.
    {"STKPrice", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        StockCode              nvarchar(25)
        LinkCode               nvarchar(25)
        PriceCode              nvarchar(5)
        Description            nvarchar(50)
        FromDate               nvarchar(10)
        ToDate                 nvarchar(10)
        Excl                   float DEFAULT 0 NOT NULL
        Incl                   float DEFAULT 0 NOT NULL
        MUP                    float DEFAULT 0 NOT NULL
        GP                     float DEFAULT 0 NOT NULL
        DiscP                  float DEFAULT 0 NOT NULL
        DiscV                  float DEFAULT 0 NOT NULL
        MaxDiscP               float DEFAULT 0 NOT NULL
        MaxDiscV               float DEFAULT 0 NOT NULL
        MinGP                  float DEFAULT 0 NOT NULL
        PriceRule              nvarchar(1)
        Rounding               nvarchar(1)
        DefaultMUP             float DEFAULT 0 NOT NULL
        DefaultGP              float DEFAULT 0 NOT NULL
        DTODate                nvarchar(10)
        DTOTime                nvarchar(8)
        DTOUser                nvarchar(10)
        DTOMacID               nvarchar(20)
        Version                nvarchar(20)
    )"},
    // Further barcodes of a stock item.
    {"STKAltBarcodes", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        StockCode              nvarchar(25)
        LinkCode               nvarchar(25)
        Barcode                nvarchar(25)
        Description1           nvarchar(150)
        DTODate                nvarchar(10)
        DTOTime                nvarchar(8)
        DTOUser                nvarchar(10)
        DTOMacID               nvarchar(20)
    )"},
    // Further stock codes of a stock item.
    {"STKAltStockCodes", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        StockCode              nvarchar(25)
        LinkCode               nvarchar(25)
        AltStockCode           nvarchar(25)
        AltLinkCode            nvarchar(25)
        Description1           nvarchar(150)
        DTODate                nvarchar(10)
        DTOTime                nvarchar(8)
        DTOUser                nvarchar(10)
        DTOMacID               nvarchar(20)
    )"},
    // Further suppliers of a stock item.
    {"STKAltSuppliers", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        StockCode              nvarchar(25)
        LinkCode               nvarchar(25)
        Account                nvarchar(10)
        Name                   nvarchar(50)
        SuppCode               nvarchar(50)
        Units                  float DEFAULT 0 NOT NULL
        PackSize               nvarchar(10)
        PackCase               float DEFAULT 0 NOT NULL
        CasePall               float DEFAULT 0 NOT NULL
        ReOrderType            nvarchar(1)
        PinRuleCode            nvarchar(5)
        DTODate                nvarchar(10)
        DTOTime                nvarchar(8)
        DTOUser                nvarchar(10)
        DTOMacID               nvarchar(20)
    )"},
};

constexpr UpdateStep updates[] = {
    {"tb_Update_STKMaster", "STKMaster", R"(
        alter  OnlineURL              nvarchar(max)
        add    AutoPurOrder           nvarchar(1)
        add    BeverageItem           nvarchar(1)     'N'
        add    AlcoholVolume          float
        add    BrandID                nvarchar(20)
        add    CasingTemplate         nvarchar(50)
        add    ContainerID            nvarchar(50)
        add    CountryOfOrigin        nvarchar(50)
        add    DefaultLanguage        nvarchar(50)
        add    BriefDescription       nvarchar(255)
        add    IsEnabled              nvarchar(1)     'N'
        add    IsHidden               nvarchar(1)     'N'
        add    IsAlcoholic            nvarchar(1)     'N'
        add    IsNarcotic             nvarchar(1)     'N'
        add    FriendlyName           nvarchar(100)
        add    PackageID              nvarchar(50)
        add    PalletQuantity         int
        add    SubBrandID             nvarchar(20)
        add    VariableWeight         nvarchar(1)     'N'
        add    IsVariant              nvarchar(1)     'N'
        alter  AlcoholVolume          float(0)
        add    IntegrationFlags       nvarchar(15)    'NNNNNNNNNNNNNNN'
        add    BinlocMin              float
        add    BinlocMax              float
        add    BinlocRate             float
        add    MiscCostInput          nvarchar(1)     'N'
        add    MiscReserved           nvarchar(1)     'N'
        add    FabricGramsSQM         float
        add    FabricWidth            float
        add    FabricGramsMeter       float
        add    FabricCoreWeight       float
        add    GRVBinLocation         nvarchar(20)
        add    MiscBuyoutItem         nvarchar(1)     'N'
        add    DeliveryItem           nvarchar(1)     'N'
        add    TilePieces             int
        add    ScaleVerify            nvarchar(1)     'N'
        add    ScaleTolerance         float
        add    BalerItem              nvarchar(1)     'N'
        add    PackBale               int
        add    FabricRolls            nvarchar(1)
        add    SizeCode               nvarchar(20)
        add    ColorCode              nvarchar(20)
        add    SizeColorGrp           nvarchar(25)
    )"},
};

} // namespace

const Family stockTables{tables, updates};

} // namespace velcro::schema
