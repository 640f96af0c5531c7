// Signatures on documents, and the general ledger split of a document in work.
#include "schema/tables/Family.h"

namespace velcro::schema {

namespace {

constexpr TableDefinition tables[] = {
    // Signature image of a document.
    {"DOCSignatures", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        TxTp                   nvarchar(6)
        DocNo                  nvarchar(15)
        Account                nvarchar(10)
        SourceBranch           nvarchar(10)
        DTODate                nvarchar(10)
        DTOTime                nvarchar(8)
        DTOUser                nvarchar(10)
        DTOMacID               nvarchar(20)
        SignImage              image
    )"},
    // Signature image of a document in work; the columns of DOCSignatures.
    {"TempDOCSignatures", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        TxTp                   nvarchar(6)
        DocNo                  nvarchar(15)
        Account                nvarchar(10)
        SourceBranch           nvarchar(10)
        DTODate                nvarchar(10)
        DTOTime                nvarchar(8)
        DTOUser                nvarchar(10)
        DTOMacID               nvarchar(20)
        SignImage              image
    )"},
    // General ledger split of a document in work.
    {"TempGLGSplits", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        GLSplitNo              int DEFAULT 0 NOT NULL
        GLAccNo                int DEFAULT 0 NOT NULL
        GLSubAccNo             int DEFAULT 0 NOT NULL
        GLAccDesc              nvarchar(50)
        VATAmount              float DEFAULT 0 NOT NULL
        Amount                 float DEFAULT 0 NOT NULL
        SourceBranch           nvarchar(10)
        Details                nvarchar(100)
    )"},
};

constexpr UpdateStep updates[] = {
    {"tb_Update_TempGLGSplits", "TempGLGSplits", R"(
        add    CO                     nvarchar(10)
        add    Branch                 nvarchar(10)
        add    SourceBranch           nvarchar(10)
    )"},
};

} // namespace

const Family signatureTables{tables, updates};

} // namespace velcro::schema
