// The loyalty programme: members, categories, documents and points.
#include "schema/tables/Family.h"

namespace velcro::schema {

namespace {

constexpr TableDefinition tables[] = {
    // Loyalty categories.
    {"POSVIPCategory", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        VIPCatCode             nvarchar(10)
        Description            nvarchar(50)
        DTODate                nvarchar(10)
        DTOTime                nvarchar(8)
        DTOUser                nvarchar(10)
        DTOMacID               nvarchar(20)
    )"},
    // Loyalty documents.
    {"POSVIPDocs", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        VIPNo                  int DEFAULT 0 NOT NULL
        SourceBranch           nvarchar(10)
        TxTp                   nvarchar(6)
        DocNo                  nvarchar(15)
        TranDate               nvarchar(10)
        TotCostExcl            float DEFAULT 0 NOT NULL
        TotCostIncl            float DEFAULT 0 NOT NULL
        DocTotalExcl           float DEFAULT 0 NOT NULL
        DocTotalIncl           float DEFAULT 0 NOT NULL
        Profit                 float DEFAULT 0 NOT NULL
        GP                     float DEFAULT 0 NOT NULL
        HouseExcl              float DEFAULT 0 NOT NULL
        HouseIncl              float DEFAULT 0 NOT NULL
        HouseCostExcl          float DEFAULT 0 NOT NULL
        HouseCostIncl          float DEFAULT 0 NOT NULL
        HouseProfit            float DEFAULT 0 NOT NULL
        HouseGP                float DEFAULT 0 NOT NULL
        Points                 int DEFAULT 0 NOT NULL
    )"},
    // Loyalty members.
    {"POSVIPMembers", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        VIPNo                  int DEFAULT 0 NOT NULL
        SourceBranch           nvarchar(10)
        VIPCardNo              nvarchar(30)
        Name                   nvarchar(100)
        Title                  nvarchar(10)
        Address1               nvarchar(50)
        Address2               nvarchar(50)
        Address3               nvarchar(50)
        Address4               nvarchar(50)
        PostCode               nvarchar(10)
        CellNo                 nvarchar(20)
        Telephone              nvarchar(20)
        EMail                  nvarchar(100)
        DateJoined             nvarchar(10)
        BirthDate              nvarchar(10)
        IDNo                   nvarchar(30)
        Gender                 nvarchar(1)
        Status                 nvarchar(1)
        VIPCatCode             nvarchar(10)
        VIPPackCode            nvarchar(10)
        VIPGradeCode           nvarchar(10)
        DEBAccount             nvarchar(10)
        VendorCardNo           nvarchar(30)
        Area                   nvarchar(50)
        Suburb                 nvarchar(100)
        MemberPswd             nvarchar(10)
        DTODate                nvarchar(10)
        DTOTime                nvarchar(8)
        DTOUser                nvarchar(10)
        DTOMacID               nvarchar(20)
    )"},
    // Categories of a loyalty member.
    {"POSVIPMemCats", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        VIPNo                  int DEFAULT 0 NOT NULL
        VIPCatCode             nvarchar(10)
        DTODate                nvarchar(10)
        DTOTime                nvarchar(8)
        DTOUser                nvarchar(10)
        DTOMacID               nvarchar(20)
    )"},
    // Loyalty transactions.
    {"POSVIPTxan", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        SourceBranch           nvarchar(10)
        VIPNo                  int DEFAULT 0 NOT NULL
        TranDate               nvarchar(10)
        TxTp                   nvarchar(6)
        Details                nvarchar(100)
        DocNo                  nvarchar(20)
        Reference              nvarchar(50)
        DrCr                   nvarchar(1)
        Points                 int DEFAULT 0 NOT NULL
        DTODate                nvarchar(10)
        DTOTime                nvarchar(8)
        DTOUser                nvarchar(10)
        DTOMacID               nvarchar(20)
    )"},
};

} // namespace

const Family loyaltyTables{tables, {}};

} // namespace velcro::schema
