// Workstations and users: rights, parameters, fingerprints, forms.
#include "schema/tables/Family.h"

namespace velcro::schema {

namespace {

constexpr TableDefinition tables[] = {
    // One row per workstation: the schema version reached.
    {"SYSTillControl", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        PCName                 nvarchar(50)
        MacID                  nvarchar(20)
        Key                    nvarchar(200)
        DBVersion              nvarchar(20)
        LastMaint              nvarchar(10)
        LastUpgrade            nvarchar(10)
    )"},
    // The users.
    {"SYSUser", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        UserCode               nvarchar(10)
        UserPswd               nvarchar(50)
        UserName               nvarchar(50)
        Status                 nvarchar(1)
        DefCO                  nvarchar(5)
        PswdDate               nvarchar(10)
        DefBranch              nvarchar(5)
        DefSalesrep            nvarchar(10)
        DefAccount             nvarchar(10)
        DefTillNo              nvarchar(5)
        InUse                  nvarchar(1)
        UserID                 int DEFAULT 0 NOT NULL
        UserSessionID          nvarchar(50)
        BioID                  int DEFAULT 0 NOT NULL
        UserGroup              nvarchar(5)
        Supervisor             nvarchar(1)
        SuperCardNo            nvarchar(20)
        AllowViewCost          nvarchar(1)
        AllowViewProfit        nvarchar(1)
        ProfitCalcCost         nvarchar(1)
        AllowCash              nvarchar(1)
        AllowCheques           nvarchar(1)
        AllowCreditCards       nvarchar(1)
        AllowVouchers          nvarchar(1)
        AllowTransfers         nvarchar(1)
        AllowWallets           nvarchar(1)
        AllowTenderType1       nvarchar(1)
        AllowTenderType2       nvarchar(1)
        AllowTenderType3       nvarchar(1)
        AllowTenderType4       nvarchar(1)
        AllowCCY               nvarchar(1)
        CCYCode1               nvarchar(5)
        CCYCode2               nvarchar(5)
        CCYCode3               nvarchar(5)
        CCYCode4               nvarchar(5)
        CCYCode5               nvarchar(5)
        TenderType1            nvarchar(2)
        TenderType2            nvarchar(2)
        TenderType3            nvarchar(2)
        TenderType4            nvarchar(2)
        TenderForm1            nvarchar(2)
        TenderForm2            nvarchar(2)
        TenderForm3            nvarchar(2)
        TenderForm4            nvarchar(2)
        Tender1CCY             nvarchar(5)
        Tender2CCY             nvarchar(5)
        Tender3CCY             nvarchar(5)
        Tender4CCY             nvarchar(5)
        LimitCash              float DEFAULT 0 NOT NULL
        LimitCheques           float DEFAULT 0 NOT NULL
        LimitCreditcards       float DEFAULT 0 NOT NULL
        LimitVouchers          float DEFAULT 0 NOT NULL
        LimitTransfers         float DEFAULT 0 NOT NULL
        LimitWallets           float DEFAULT 0 NOT NULL
        LimitTenderType1       float DEFAULT 0 NOT NULL
        LimitTenderType2       float DEFAULT 0 NOT NULL
        LimitTenderType3       float DEFAULT 0 NOT NULL
        LimitTenderType4       float DEFAULT 0 NOT NULL
        DefWH                  nvarchar(5)
        Yellowfin              nvarchar(1)
        DefaultPrinter         nvarchar(50)
        UseSession             nvarchar(1)
        EMail                  nvarchar(100)
        CellNo                 nvarchar(20)
        LastLogDate            nvarchar(10)
        LastLogTime            nvarchar(8)
        LastLogMacID           nvarchar(20)
        LastLogEXE             nvarchar(20)
    )"},
    // Access codes of a user.
    {"SYSUserAccess", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        UserCode               nvarchar(10)
        ModCode                nvarchar(3)
        AccessNo               int DEFAULT 0 NOT NULL
        AccessName             nvarchar(200)
        Options                nvarchar(1)
    )"},
    // Fingerprint templates by user code.
    {"SYSUserBiometrics", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        UserCode               nvarchar(10)
        FPDescription          nvarchar(20)
        FPMask                 int DEFAULT 0 NOT NULL
        FPData                 sql_variant
    )"},
    // Fingerprint templates by BioID.
    {"SYSBiometricDetl", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        BioID                  int DEFAULT 0 NOT NULL
        FPMask                 int DEFAULT 0 NOT NULL
        FPDescription          nvarchar(20)
        FPData                 varbinary(max)
    )"},
    // The companies, branches and modules open to a user.
    {"SYSUserComp", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        UserCode               nvarchar(10)
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        ModCode                nvarchar(3)
    )"},
    // A user's printer and form choice per transaction type.
    {"SYSUserForms", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        UserCode               nvarchar(10)
        TxTp                   nvarchar(6)
        FormCode               nvarchar(10)
        FormName               nvarchar(50)
        PrinterName            nvarchar(200)
        PrtCopies              int DEFAULT 0 NOT NULL
        PrtMsgModCode          nvarchar(3)
        PrtMsgCode             nvarchar(5)
    )"},
    // User groups with tender rights and limits. The identity column is spelled RECID here.
    {"SYSUserGroup", R"(
        RECID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        UserGroup              nvarchar(10)
        GroupDesc              nvarchar(50)
        GroupType              nvarchar(1)
        AllowCash              nvarchar(1)
        AllowCheques           nvarchar(1)
        AllowCreditCards       nvarchar(1)
        AllowVouchers          nvarchar(1)
        AllowTransfers         nvarchar(1)
        AllowWallets           nvarchar(1)
        AllowTenderType1       nvarchar(1)
        AllowTenderType2       nvarchar(1)
        AllowTenderType3       nvarchar(1)
        AllowTenderType4       nvarchar(1)
        TenderType1            nvarchar(2)
        TenderType2            nvarchar(2)
        TenderType3            nvarchar(2)
        TenderType4            nvarchar(2)
        TenderForm1            nvarchar(2)
        TenderForm2            nvarchar(2)
        TenderForm3            nvarchar(2)
        TenderForm4            nvarchar(2)
        LimitCash              float DEFAULT 0 NOT NULL
        LimitCheques           float DEFAULT 0 NOT NULL
        LimitCreditCards       float DEFAULT 0 NOT NULL
        LimitVouchers          float DEFAULT 0 NOT NULL
        LimitTransfers         float DEFAULT 0 NOT NULL
        LimitWallets           float DEFAULT 0 NOT NULL
        LimitTenderType1       float DEFAULT 0 NOT NULL
        LimitTenderType2       float DEFAULT 0 NOT NULL
        LimitTenderType3       float DEFAULT 0 NOT NULL
        LimitTenderType4       float DEFAULT 0 NOT NULL
        AllowSaleGroup         nvarchar(1)
        BlockSaleGroup         nvarchar(1)
        AllowViewCost          nvarchar(1)
        AllowViewProfit        nvarchar(1)
    )"},
    // Parameter values of a user.
    {"SYSUserParam", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        UserCode               nvarchar(10)
        ModCode                nvarchar(3)
        ParamNo                int DEFAULT 0 NOT NULL
        ParamValue             nvarchar(max)
    )"},
    // A user's SMS and e-mail flags per transaction type, with header and trailer text.
    {"SYSUserSMS", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        UserCode               nvarchar(10)
        TxTp                   nvarchar(6)
        SMS                    nvarchar(1)
        EMail                  nvarchar(1)
        TxtHeader              nvarchar(1024)
        TxtTrailer             nvarchar(1024)
    )"},
};

constexpr UpdateStep updates[] = {
    {"tb_Update_SysUserSMS", "SYSUserSMS", R"(
        add    TxtHeader              nvarchar(1024)
        add    TxtTrailer             nvarchar(1024)
    )"},
    // A table without EMail or CellNo gets them with one character, and keeps them so.
    {"tb_Update_SYSUser", "SysUser", R"(
        add    UseSession             nvarchar(1)     'N'
        add    EMail                  nvarchar(1)
        add    CellNo                 nvarchar(1)
        add    UserID                 int
        add    ProfitCalcCost         nvarchar(1)
        add    AllowCCY               nvarchar(1)     'N'
        add    CCYCode1               nvarchar(5)
        add    CCYCode2               nvarchar(5)
        add    CCYCode3               nvarchar(5)
        add    CCYCode4               nvarchar(5)
        add    CCYCode5               nvarchar(5)
        add    Tender1CCY             nvarchar(5)
        add    Tender2CCY             nvarchar(5)
        add    Tender3CCY             nvarchar(5)
        add    Tender4CCY             nvarchar(5)
        add    AllowWallets           nvarchar(1)     'N'
        add    LimitWallets           float
        add    BioID                  int
        add    UserSessionID          nvarchar(50)
        add    Yellowfin              nvarchar(1)     'N'
    )"},
    {"tb_Update_SysUserParam", "SYSUserParam", R"(
        add    ParamValue             nvarchar(max)
        alter  ParamValue             nvarchar(max)
    )"},
    {"tb_Update_SYSUserGroup", "SYSUserGroup", R"(
        add    AllowWallets           nvarchar(1)
        add    LimitWallets           float
    )"},
    {"tb_Update_SysUserAccess", "SYSUserAccess", R"(
        add    AccessName             nvarchar(200)
    )"},
};

} // namespace

const Family userTables{tables, updates};

} // namespace velcro::schema
