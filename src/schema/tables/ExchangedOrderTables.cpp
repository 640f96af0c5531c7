// Uplifts, and purchase orders exchanged with another house.
#include "schema/tables/Family.h"

namespace velcro::schema {

namespace {

constexpr TableDefinition tables[] = {
    // Uplift document: lines.
    {"TempUpliftDet", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        Account                nvarchar(10)
        DocNo                  nvarchar(20)
        TranDate               nvarchar(10)
        LineNo                 int DEFAULT 0 NOT NULL
        StockCode              nvarchar(25)
        LinkCode               nvarchar(25)
        Description1           nvarchar(150)
        Description2           nvarchar(150)
        StockType              nvarchar(1)
        AP                     int DEFAULT 0 NOT NULL
        Quantity               float DEFAULT 0 NOT NULL
        LinkQty                float DEFAULT 0 NOT NULL
        Price                  float DEFAULT 0 NOT NULL
        PriceExcl              float DEFAULT 0 NOT NULL
        PriceIncl              float DEFAULT 0 NOT NULL
        TotalExcl              float DEFAULT 0 NOT NULL
        TotalIncl              float DEFAULT 0 NOT NULL
        TotalVAT               float DEFAULT 0 NOT NULL
        Units                  float DEFAULT 0 NOT NULL
        VATCode                nvarchar(2)
        VATRate                float DEFAULT 0 NOT NULL
        VATIndicator           nvarchar(1)
        SuppCode               nvarchar(25)
        BarCode                nvarchar(25)
        Weight                 float DEFAULT 0 NOT NULL
        Status                 nvarchar(1)
        Notes                  nvarchar(1024)
    )"},
    // Uplift document: head.
    {"TempUpliftHdr", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        Account                nvarchar(10)
        DocNo                  nvarchar(20)
        TranDate               nvarchar(10)
        TotalIncl              float DEFAULT 0 NOT NULL
        TotalExcl              float DEFAULT 0 NOT NULL
        TotalVAT               float DEFAULT 0 NOT NULL
        AP                     int DEFAULT 0 NOT NULL
        Status                 nvarchar(1)
        VATIndicator           nvarchar(1)
        RetnNo                 int DEFAULT 0 NOT NULL
        RetnDate               nvarchar(10)
        InterCO                nvarchar(1)
        Notes                  nvarchar(1024)
        CreateDate             nvarchar(10)
        CreateTime             nvarchar(8)
        CreateUser             nvarchar(10)
        CreateMacID            nvarchar(20)
        AuthUser               nvarchar(10)
        AuthDate               nvarchar(10)
        AuthTime               nvarchar(8)
        AuthMacID              nvarchar(20)
    )"},
    // Exchanged purchase order: lines.
    {"TempPURXPODet", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        OrderNo                int DEFAULT 0 NOT NULL
        OrderDate              nvarchar(10)
        LineNo                 int DEFAULT 0 NOT NULL
        StockCode              nvarchar(25)
        LinkCode               nvarchar(25)
        Description1           nvarchar(150)
        Description2           nvarchar(150)
        Barcode                nvarchar(25)
        SuppCode               nvarchar(50)
        NappiCode              nvarchar(10)
        VendorCode             nvarchar(30)
        VendorName             nvarchar(50)
        Quantity               float DEFAULT 0 NOT NULL
        WH                     nvarchar(5)
        Price                  float DEFAULT 0 NOT NULL
        PriceExcl              float DEFAULT 0 NOT NULL
        PriceIncl              float DEFAULT 0 NOT NULL
        Units                  int DEFAULT 0 NOT NULL
        VAT                    float DEFAULT 0 NOT NULL
        TotalExcl              float DEFAULT 0 NOT NULL
        TotalIncl              float DEFAULT 0 NOT NULL
        VATIndicator           nvarchar(1)
        SellExcl               float DEFAULT 0 NOT NULL
        SellIncl               float DEFAULT 0 NOT NULL
        AvgCostExcl            float DEFAULT 0 NOT NULL
        AvgCostIncl            float DEFAULT 0 NOT NULL
        BuyCostExcl            float DEFAULT 0 NOT NULL
        BuyCostIncl            float DEFAULT 0 NOT NULL
        ListCostExcl           float DEFAULT 0 NOT NULL
        ListCostIncl           float DEFAULT 0 NOT NULL
        TotalUnits             float DEFAULT 0 NOT NULL
        TotalCases             float DEFAULT 0 NOT NULL
        TotalPalettes          float DEFAULT 0 NOT NULL
        TotalWeight            float DEFAULT 0 NOT NULL
        Dimension              float DEFAULT 0 NOT NULL
        VATCode                nvarchar(2)
        VATRate                float DEFAULT 0 NOT NULL
        LinkQty                float DEFAULT 0 NOT NULL
        Onhand                 float DEFAULT 0 NOT NULL
        MinQty                 float DEFAULT 0 NOT NULL
        MaxQty                 float DEFAULT 0 NOT NULL
        Supplier               nvarchar(10)
        Periods                int DEFAULT 0 NOT NULL
        PeriodDays             int DEFAULT 0 NOT NULL
        PeriodOrder            int DEFAULT 0 NOT NULL
        PeriodAvgCalcInd       nvarchar(1)
        PeriodDays1            float DEFAULT 0 NOT NULL
        PeriodDays2            float DEFAULT 0 NOT NULL
        PeriodDays3            float DEFAULT 0 NOT NULL
        PeriodDays4            float DEFAULT 0 NOT NULL
        PeriodDays5            float DEFAULT 0 NOT NULL
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
        XPCQuantity            float DEFAULT 0 NOT NULL
        XPCPriceExcl           float DEFAULT 0 NOT NULL
        XPCPriceIncl           float DEFAULT 0 NOT NULL
        XPCTotalExcl           float DEFAULT 0 NOT NULL
        XPCTotalIncl           float DEFAULT 0 NOT NULL
        XPCOrdRef              int DEFAULT 0 NOT NULL
        XPCOrdNo               int DEFAULT 0 NOT NULL
    )"},
    // Exchanged purchase order, line level: prices. This table is dropped at the start of
    // every sweep and made anew, so it never keeps rows over a sweep.
    {"TempPURXPODetPrice", R"(
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
    // Exchanged purchase order: head.
    {"TempPURXPOHdr", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        OrderType              nvarchar(1)
        OrderNo                int DEFAULT 0 NOT NULL
        OrderDate              nvarchar(10)
        Status                 nvarchar(1)
        VATIndicator           nvarchar(1)
        OrdLineCnt             int DEFAULT 0 NOT NULL
        OrdTotalCases          float DEFAULT 0 NOT NULL
        OrdTotalPallettes      float DEFAULT 0 NOT NULL
        OrdTotalWeight         float DEFAULT 0 NOT NULL
        OrdTotalDimension      float DEFAULT 0 NOT NULL
        OrdTotalVAT            float DEFAULT 0 NOT NULL
        OrdTotalExcl           float DEFAULT 0 NOT NULL
        OrdTotalIncl           float DEFAULT 0 NOT NULL
        WH                     nvarchar(5)
        XPCReplyDate           nvarchar(10)
        XPCOrdRef              int DEFAULT 0 NOT NULL
        XPCLineCnt             int DEFAULT 0 NOT NULL
        XPCTotalExcl           float DEFAULT 0 NOT NULL
        XPCTotalIncl           float DEFAULT 0 NOT NULL
        InUse                  nvarchar(30)
        CreateDate             nvarchar(10)
        CreateTime             nvarchar(8)
        CreateUser             nvarchar(10)
        CreateMacID            nvarchar(20)
        AuthDate               nvarchar(10)
        AuthTime               nvarchar(8)
        AuthUser               nvarchar(10)
        AuthMacID              nvarchar(20)
    )"},
    // Exchanged purchase order, head level: rules.
    {"TempPURXPOHdrRule", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(5)
        Branch                 nvarchar(5)
        OrderNo                int DEFAULT 0 NOT NULL
        LineNo                 int DEFAULT 0 NOT NULL
        StockCode              nvarchar(25)
        LinkCode               nvarchar(25)
        PriceCode              nvarchar(10)
        Description            nvarchar(50)
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
};

} // namespace

const Family exchangedOrderTables{tables, {}};

} // namespace velcro::schema
