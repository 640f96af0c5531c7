// Documents of any other kind, while they are being captured.
#include "schema/tables/Family.h"

namespace velcro::schema {

namespace {

constexpr TableDefinition tables[] = {
    // Generic document in work: head.
    {"TempDocHdr", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        TxTp                   nvarchar(6)
        DocNo                  int DEFAULT 0 NOT NULL
        TranDate               nvarchar(10)
        Reference              nvarchar(50)
        Details                nvarchar(50)
        TotalExcl              float DEFAULT 0 NOT NULL
        TotalIncl              float DEFAULT 0 NOT NULL
        DocVAT                 float DEFAULT 0 NOT NULL
        FromBranch             nvarchar(10)
        ToBranch               nvarchar(10)
        FromWH                 nvarchar(10)
        ToWH                   nvarchar(10)
        PrintPrice             nvarchar(1)
        PriceCat               nvarchar(2)
        Status                 nvarchar(1)
        SAPDocNo               nvarchar(20)
        CreateUser             nvarchar(10)
        CreateDate             nvarchar(10)
        CreateTime             nvarchar(8)
        CreateMacID            nvarchar(20)
        AuthUser               nvarchar(10)
        AuthDate               nvarchar(10)
        Authtime               nvarchar(8)
        AuthMacID              nvarchar(20)
        AdjReason              nvarchar(10)
        StockTake              nvarchar(1)
        BaseTxTp               nvarchar(6)
        BaseDoc                nvarchar(20)
        BaseRef                nvarchar(20)
        Notes                  nvarchar(2048)
        AP                     int DEFAULT 0 NOT NULL
        DetailLines            int DEFAULT 0 NOT NULL
        GLTrace                int DEFAULT 0 NOT NULL
        IBRReqNo               int DEFAULT 0 NOT NULL
        IBTType                nvarchar(1)
        IBTRebate              float DEFAULT 0 NOT NULL
        Version                nvarchar(20)
    )"},
    // Generic document in work: lines.
    {"TempDocDet", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        TxTp                   nvarchar(6)
        DocNo                  int DEFAULT 0 NOT NULL
        LineNo                 int DEFAULT 0 NOT NULL
        StockCode              nvarchar(25)
        LinkCode               nvarchar(25)
        StockType              nvarchar(1)
        Description1           nvarchar(150)
        Description2           nvarchar(150)
        Quantity               float DEFAULT 0 NOT NULL
        Price                  float DEFAULT 0 NOT NULL
        TotalExcl              float DEFAULT 0 NOT NULL
        TotalIncl              float DEFAULT 0 NOT NULL
        TotalVAT               float DEFAULT 0 NOT NULL
        VATCode                nvarchar(2)
        VATRate                float DEFAULT 0 NOT NULL
        CaptureQty             float DEFAULT 0 NOT NULL
        CaptureType            nvarchar(1)
        AdjustType             nvarchar(1)
        SuppCode               nvarchar(25)
        BarCode                nvarchar(25)
        SerialTrack            nvarchar(1)
        SizeItem               nvarchar(1)
        TileItem               nvarchar(1)
        TileBatchTrack         nvarchar(1)
        LastCostExcl           float DEFAULT 0 NOT NULL
        LastCostIncl           float DEFAULT 0 NOT NULL
        AvgCostExcl            float DEFAULT 0 NOT NULL
        AvgCostIncl            float DEFAULT 0 NOT NULL
        SellIncl               float DEFAULT 0 NOT NULL
        SellExcl               float DEFAULT 0 NOT NULL
        Onhand                 float DEFAULT 0 NOT NULL
        RebAmnt                float DEFAULT 0 NOT NULL
        SqmBox                 float DEFAULT 0 NOT NULL
        NoOfBox                float DEFAULT 0 NOT NULL
        Cases                  float DEFAULT 0 NOT NULL
        DTODate                nvarchar(10)
        DTOTime                nvarchar(8)
        DTOUser                nvarchar(10)
        DTOMacID               nvarchar(20)
        TranDate               nvarchar(10)
        LinkQty                float DEFAULT 0 NOT NULL
        AP                     int DEFAULT 0 NOT NULL
        LineIBTRebate          float DEFAULT 0 NOT NULL
        RebAvgAmnt             float DEFAULT 0 NOT NULL
        Units                  int DEFAULT 0 NOT NULL
        Onhand2                float DEFAULT 0 NOT NULL
        VirtualCard            nvarchar(1)
        IBTType                nvarchar(1)
        RecvQty                float DEFAULT 0 NOT NULL
        Status                 nvarchar(1)
    )"},
    // Generic document in work: bins.
    {"TempDocBins", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        Account                nvarchar(10)
        TxTp                   nvarchar(6)
        DocNo                  int DEFAULT 0 NOT NULL
        LineNo                 int DEFAULT 0 NOT NULL
        StockCode              nvarchar(25)
        LinkCode               nvarchar(25)
        WH                     nvarchar(10)
        BinLoc                 nvarchar(20)
        Quantity               float DEFAULT 0 NOT NULL
    )"},
    // Generic document in work: serial numbers.
    {"TempDocSerials", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        TxTp                   nvarchar(6)
        DocNo                  int DEFAULT 0 NOT NULL
        LineNo                 int DEFAULT 0 NOT NULL
        StockCode              nvarchar(25)
        LinkCode               nvarchar(25)
        SerialNo               nvarchar(50)
        LinkedSerial           nvarchar(50)
        NoOfBox                int DEFAULT 0 NOT NULL
    )"},
    // Generic document in work: sizes.
    {"TempDocSizes", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        Account                nvarchar(10)
        TxTp                   nvarchar(6)
        DocNo                  int DEFAULT 0 NOT NULL
        LineNo                 int DEFAULT 0 NOT NULL
        StockCode              nvarchar(25)
        LinkCode               nvarchar(25)
        Seq                    int DEFAULT 0 NOT NULL
        SizeCode               nvarchar(20)
        Quantity               float DEFAULT 0 NOT NULL
        OldQty                 float DEFAULT 0 NOT NULL
        CostExcl               float DEFAULT 0 NOT NULL
        CostIncl               float DEFAULT 0 NOT NULL
        SellExcl               float DEFAULT 0 NOT NULL
        SellIncl               float DEFAULT 0 NOT NULL
    )"},
};

constexpr UpdateStep updates[] = {
    {"tb_Update_TempDocDet", "TempDocDet", R"(
        add    IBTType                nvarchar(1)
        add    RecvQty                float
        add    NoOfBox                int
        add    SerialTrack            nvarchar(1)
    )"},
    // Named after the head, it has always worked on the lines.
    {"tb_Update_TempDocHdr", "TempDocDet", R"(
        add    IBTType                nvarchar(1)
        add    IBTReqNo               int
    )"},
    {"tb_Update_TempDocSizes", "TempDocSizes", R"(
        add    Seq                    int
    )"},
    {"tb_Update_TempSerials", "TempSerials", R"(
        add    NoOfBox                int
        add    DispatchNo             int
    )"},
};

} // namespace

const Family workingDocumentTables{tables, updates};

} // namespace velcro::schema
