// Combinations, promotions, kits, serial numbers and what a till shows of the stock.
#include "schema/tables/Family.h"

namespace velcro::schema {

namespace {

constexpr TableDefinition tables[] = {
    // Combination item: head.
    {"STKComboHdr", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        ComboNo                int DEFAULT 0 NOT NULL
        Description            nvarchar(50)
        FromDate               nvarchar(10)
        ToDate                 nvarchar(10)
        SellExcl               float DEFAULT 0 NOT NULL
        SellIncl               float DEFAULT 0 NOT NULL
        CostExcl               float DEFAULT 0 NOT NULL
        CostIncl               float DEFAULT 0 NOT NULL
        DefSellExcl            float DEFAULT 0 NOT NULL
        DefSellIncl            float DEFAULT 0 NOT NULL
        MaxCust                int DEFAULT 0 NOT NULL
        Status                 nvarchar(1)
        CostOverride           nvarchar(1)
        DTODate                nvarchar(10)
        DTOTime                nvarchar(8)
        DTOUser                nvarchar(10)
        DTOMacID               nvarchar(20)
    )"},
    // Combination item: lines.
    {"STKComboDet", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        ComboNo                int DEFAULT 0 NOT NULL
        StockCode              nvarchar(25)
        LinkCode               nvarchar(25)
        VariantCode            nvarchar(10)
        Description            nvarchar(50)
        Quantity               float DEFAULT 0 NOT NULL
        CostExcl               float DEFAULT 0 NOT NULL
        CostIncl               float DEFAULT 0 NOT NULL
        TotCostExcl            float DEFAULT 0 NOT NULL
        TotCostIncl            float DEFAULT 0 NOT NULL
        PercOfTotal            float DEFAULT 0 NOT NULL
        SellExcl               float DEFAULT 0 NOT NULL
        SellIncl               float DEFAULT 0 NOT NULL
        TotalExcl              float DEFAULT 0 NOT NULL
        TotalIncl              float DEFAULT 0 NOT NULL
        DefSellExcl            float DEFAULT 0 NOT NULL
        DefSellIncl            float DEFAULT 0 NOT NULL
        CostOverride           nvarchar(1)
        OverCostExcl           float DEFAULT 0 NOT NULL
        OverCostIncl           float DEFAULT 0 NOT NULL
        DTODate                nvarchar(10)
        DTOTime                nvarchar(8)
        DTOUser                nvarchar(10)
        DTOMacID               nvarchar(20)
    )"},
    // Price promotion: head. Its number is CPRNo.
    {"STKCPRHdr", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        CPRNo                  nvarchar(10)
        CPRType                nvarchar(1)
        Description            nvarchar(50)
        FromDate               nvarchar(10)
        ToDate                 nvarchar(10)
        PriceRule              nvarchar(1)
        Scale                  nvarchar(1)
        Source                 nvarchar(1)
        VIPProgressLevel       nvarchar(10)
        OnlineRange            nvarchar(1)
        Status                 nvarchar(1)
        BeesStatus             nvarchar(1)
        DTODate                nvarchar(10)
        DTOTime                nvarchar(8)
        DTOUser                nvarchar(10)
        DTOMacID               nvarchar(20)
        PromoImage             image
        PromoColour            nvarchar(50)
    )"},
    // Price promotion: lines.
    {"STKCPRDet", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        CPRNo                  nvarchar(10)
        StockCode              nvarchar(25)
        LinkCode               nvarchar(25)
        Description1           nvarchar(150)
        FromQty                float DEFAULT 0 NOT NULL
        ToQty                  float DEFAULT 0 NOT NULL
        PRCode                 nvarchar(2)
        DiscountPerc           float DEFAULT 0 NOT NULL
        PriceExcl              float DEFAULT 0 NOT NULL
        PriceIncl              float DEFAULT 0 NOT NULL
        MaxQty                 float DEFAULT 0 NOT NULL
        FreeStockCode          nvarchar(25)
        FreeLinkCode           nvarchar(25)
        FreeDescription1       nvarchar(150)
        FreeQty                float DEFAULT 0 NOT NULL
        FreePer                float DEFAULT 0 NOT NULL
        LastCostExcl           float DEFAULT 0 NOT NULL
        LastCostIncl           float DEFAULT 0 NOT NULL
        AvgCostExcl            float DEFAULT 0 NOT NULL
        AvgCostIncl            float DEFAULT 0 NOT NULL
        BuyCostExcl            float DEFAULT 0 NOT NULL
        BuyCostIncl            float DEFAULT 0 NOT NULL
        RebAmnt                float DEFAULT 0 NOT NULL
        SalesQty               float DEFAULT 0 NOT NULL
        SalesExcl              float DEFAULT 0 NOT NULL
        PageNo                 int DEFAULT 0 NOT NULL
        ScaleRange             nvarchar(1)
        LoyaltyPnts            int DEFAULT 0 NOT NULL
        MinBuy                 float DEFAULT 0 NOT NULL
        SpotNo                 nvarchar(10)
        Units                  int DEFAULT 0 NOT NULL
        VATCode                nvarchar(2)
        SalesCostExcl          float DEFAULT 0 NOT NULL
        SalesVAT               float DEFAULT 0 NOT NULL
        SalesIncl              float DEFAULT 0 NOT NULL
        SalesProfit            float DEFAULT 0 NOT NULL
        SalesRebate            float DEFAULT 0 NOT NULL
        PriceDiscount          float DEFAULT 0 NOT NULL
        VoucherDiscount        float DEFAULT 0 NOT NULL
        ProductionDate         nvarchar(10)
        SellBelowCost          nvarchar(1)
        DealRangeDays          int DEFAULT 0 NOT NULL
        OverCostExcl           float DEFAULT 0 NOT NULL
        OverCostIncl           float DEFAULT 0 NOT NULL
        DTODate                nvarchar(10)
        DTOTime                nvarchar(8)
        DTOUser                nvarchar(10)
        DTOMacID               nvarchar(20)
        OnlineRange            nvarchar(1)
        SpifPromo              nvarchar(1)
        SpifAmount             float DEFAULT 0 NOT NULL
    )"},
    // Price promotion: accounts it applies to.
    {"STKCPRDeb", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        CprNo                  nvarchar(10)
        Account                nvarchar(20)
        Name                   nvarchar(50)
        DTODate                nvarchar(10)
        DTOTime                nvarchar(8)
        DTOUser                nvarchar(10)
        DTOMacID               nvarchar(20)
    )"},
    // Price promotion: user groups it applies to.
    {"STKCPRGroup", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        CPRNo                  nvarchar(10)
        UserGroup              nvarchar(20)
        GroupDesc              nvarchar(50)
        DTODate                nvarchar(10)
        DTOTime                nvarchar(8)
        DTOUser                nvarchar(10)
        DTOMacID               nvarchar(20)
    )"},
    // Price promotion: suppliers.
    {"STKCPRSupplier", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        CPRNo                  nvarchar(10)
        Account                nvarchar(20)
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
        ForcePrice             nvarchar(1)
        DTODate                nvarchar(10)
        DTOTime                nvarchar(8)
        DTOUser                nvarchar(10)
        DTOMacID               nvarchar(20)
    )"},
    // Price promotion: loyalty categories.
    {"STKCPRVIPCats", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        CPRNo                  nvarchar(10)
        VIPCatCode             nvarchar(10)
        Description            nvarchar(50)
        DTODate                nvarchar(10)
        DTOTime                nvarchar(8)
        DTOUser                nvarchar(10)
        DTOMacID               nvarchar(20)
    )"},
    // Kit components of a stock item.
    {"STKKitMaster", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        StockCode              nvarchar(25)
        KitStockCode           nvarchar(25)
        KitLinkCode            nvarchar(25)
        KitQty                 float DEFAULT 0 NOT NULL
        KitLinkQty             float DEFAULT 0 NOT NULL
        KitUnits               int DEFAULT 0 NOT NULL
        DTODate                nvarchar(10)
        DTOTime                nvarchar(8)
        DTOUser                nvarchar(10)
        DTOMacID               nvarchar(20)
        KitFixedCost           nvarchar(1)
        KitWaste               nvarchar(1)
        KitProdItem            nvarchar(1)
    )"},
    // Serial numbers of stock items, with their state from receipt to sale.
    {"STKSerialMst", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        StockCode              nvarchar(25)
        LinkCode               nvarchar(25)
        SerialNo               nvarchar(50)
        Status                 nvarchar(1)
        GRVTxTp                nvarchar(6)
        GRVAccount             nvarchar(10)
        GRVDate                nvarchar(10)
        GRVTime                nvarchar(8)
        GRVSuppDocNo           nvarchar(20)
        GRVNo                  int DEFAULT 0
        GRVLineNo              int DEFAULT 0
        GRVWarrantyDays        int DEFAULT 0
        GRVWarrantyExpDate     nvarchar(20)
        DEBTxTp                nvarchar(6)
        DEBAccount             nvarchar(10)
        DEBName                nvarchar(50)
        DEBPhone               nvarchar(20)
        DEBDocNo               nvarchar(15)
        DEBDocDate             nvarchar(10)
        DEBDocLineNo           int DEFAULT 0
        DEBWarrantyDays        int DEFAULT 0
        DEBWarrantyExpDate     nvarchar(20)
        ProdOrdNo              int DEFAULT 0
        OrderNo                nvarchar(15)
        OrderDate              nvarchar(10)
        PickDate               nvarchar(10)
        PickTime               nvarchar(8)
        PickUser               nvarchar(10)
        PickMacID              nvarchar(20)
        PickSlipNo             nvarchar(15)
        PickSlipDate           nvarchar(10)
        PackLocation           nvarchar(10)
        LinkedSerialNo         nvarchar(50)
        SwopSerialNo           nvarchar(50)
        SwopDate               nvarchar(10)
        SwopTime               nvarchar(8)
        RetnDate               nvarchar(10)
        RetnTime               nvarchar(8)
        RetnTxTp               nvarchar(6)
        RetnDocNo              nvarchar(25)
        RetnAccount            nvarchar(10)
        Mass                   float DEFAULT 0
        Tare                   float DEFAULT 0
        Pieces                 int DEFAULT 0
        Fridge                 nvarchar(1)
        PalletNo               int DEFAULT 0
        DTODate                nvarchar(10)
        DTOTime                nvarchar(8)
        DTOUser                nvarchar(10)
        DTOMacID               nvarchar(20)
    )"},
    // Promotion by variant: head.
    {"STKVarPromHdr", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        VarPromNo              int DEFAULT 0 NOT NULL
        Description            nvarchar(50)
        FromDate               nvarchar(10)
        ToDate                 nvarchar(10)
        VarPromType            nvarchar(1)
        OnlineRange            nvarchar(1)
        DTODate                nvarchar(10)
        DTOTime                nvarchar(8)
        DTOUser                nvarchar(10)
        DTOMacID               nvarchar(20)
    )"},
    // Promotion by variant: quantity bands and prices.
    {"STKVarPromDet", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        VarPromNo              int DEFAULT 0 NOT NULL
        VariantCode            nvarchar(10)
        FromQty                float DEFAULT 0 NOT NULL
        ToQty                  float DEFAULT 0 NOT NULL
        PriceCode              nvarchar(5)
        Excl                   float DEFAULT 0 NOT NULL
        Incl                   float DEFAULT 0 NOT NULL
        VATCode                nvarchar(2)
    )"},
    // Promotion by variant: accounts.
    {"STKVarPromDeb", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        VarPromNo              int DEFAULT 0 NOT NULL
        Account                nvarchar(10)
        Name                   nvarchar(50)
        DTODate                nvarchar(10)
        DTOTime                nvarchar(8)
        DTOUser                nvarchar(10)
        DTOMacID               nvarchar(20)
    )"},
    // Quick selection buttons of the till.
    {"STKQuickScan", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        ButtonSeq              int DEFAULT 0 NOT NULL
        ItemType               nvarchar(1)
        MenuCode               nvarchar(10)
        StockCode              nvarchar(25)
        LinkCode               nvarchar(25)
        Description1           nvarchar(150)
        ShortName              nvarchar(20)
        ImageIndex             int DEFAULT 0 NOT NULL
        Quantity               float DEFAULT 0 NOT NULL
        SplitCode              int DEFAULT 0 NOT NULL
    )"},
    // Sub-menus of the quick selection buttons.
    {"STKQuickScanSubMenu", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        MenuCode               nvarchar(10)
        ButtonSeq              int DEFAULT 0 NOT NULL
        ItemType               nvarchar(1)
        StockCode              nvarchar(25)
        LinkCode               nvarchar(25)
        Description1           nvarchar(150)
        ShortName              nvarchar(20)
        ImageIndex             int DEFAULT 0 NOT NULL
        Quantity               float DEFAULT 0 NOT NULL
        SplitCode              int DEFAULT 0 NOT NULL
    )"},
    // Code lists of the stock properties.
    {"STKProperty", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        PropNo                 int DEFAULT 0 NOT NULL
        PropCode               nvarchar(10)
        PropDescription        nvarchar(50)
    )"},
    // Images of promotions.
    {"STKPromoImages", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        DispSeq                int DEFAULT 0 NOT NULL
        ImageName              nvarchar(100)
        ImageDesc              nvarchar(100)
        ImageData              image
    )"},
    // Products of the Blu prepaid provider. The step is named stk_Create_STKBluProducts.
    {"STKBluProducts", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        ProviderID             int DEFAULT 0 NOT NULL
        ProviderName           nvarchar(100)
        ProductID              int DEFAULT 0 NOT NULL
        ProductName            nvarchar(100)
        Category               nvarchar(50)
        Region                 nvarchar(50)
    )"},
    // Bin locations of a warehouse. The step is named stk_Create_STKBinLoc.
    {"STKBinLoc", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        WH                     nvarchar(5)
        BinLoc                 nvarchar(20)
        BinSize                float DEFAULT 0
        Picker                 nvarchar(10)
        DTODate                nvarchar(10)
        DTOTime                nvarchar(8)
        DTOUser                nvarchar(10)
        DTOMacID               nvarchar(20)
    )"},
};

constexpr UpdateStep updates[] = {
    {"tb_Update_STKQuickScan", "STKQuickScan", R"(
        add    SplitCode              int
        add    ItemType               nvarchar(1)
        add    MenuCode               nvarchar(10)
    )"},
    {"tb_Update_STKPromoImages", "STKPromoImages", R"(
        add    ImageDesc              nvarchar(100)
    )"},
    {"tb_Update_STKCPRHdr", "STKCPRHdr", R"(
        add    PriceRule              nvarchar(1)
        add    Status                 nvarchar(1)
        add    Source                 nvarchar(1)
        add    VIPProgressLevel       nvarchar(10)
        add    OnlineRange            nvarchar(1)     'N'
        add    BeesStatus             nvarchar(1)     'N'
        add    PromoImage             image
        add    PromoColour            nvarchar(50)
    )"},
    {"tb_Update_STKCPRDet", "STKCPRDet", R"(
        add    OverCostExcl           float
        add    OnlineRange            nvarchar(1)     'N'
        add    SpifPromo              nvarchar(1)     'N'
        add    SpifAmount             float
        alter  Description1           nvarchar(150)
        alter  FreeDescription1       nvarchar(150)
    )"},
    {"tb_Update_STKComboHdr", "STKComboHdr", R"(
        add    Status                 nvarchar(1)
        add    CostOverride           nvarchar(1)     'N'
    )"},
    {"tb_Update_STKComboDet", "STKComboDet", R"(
        add    CostOverride           nvarchar(1)     'N'
        add    OverCostExcl           float
        add    OverCostIncl           float
    )"},
};

} // namespace

const Family stockOfferTables{tables, updates};

} // namespace velcro::schema
