// Taxes, transaction types, forms, settings, number series and logs.
#include "schema/tables/Family.h"

namespace velcro::schema {

namespace {

constexpr TableDefinition tables[] = {
    // Tax codes and rates.
    {"SYSTax", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        SeqNo                  int DEFAULT 0 NOT NULL
        TaxCode                nvarchar(2)
        TaxDesc                nvarchar(50)
        TaxRate                float DEFAULT 0 NOT NULL
        SARSTaxCode            nvarchar(20)
        SARSTaxDesc            nvarchar(200)
        FromDate               nvarchar(10)
        ToDate                 nvarchar(10)
        SysLock                nvarchar(1)
    )"},
    // Transaction types by module.
    {"SYSTxTp", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        ModCode                nvarchar(3)
        TxTp                   nvarchar(6)
        TxTpDesc               nvarchar(50)
        DrCr                   nvarchar(1)
        ApplyTax               nvarchar(1)
        AllowDiscount          nvarchar(1)
        AllowGL                nvarchar(1)
        TxTpType               nvarchar(1)
        DefSeqNo               int DEFAULT 0 NOT NULL
    )"},
    // Price codes of a company.
    {"SYSPrices", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        PriceCode              nvarchar(5)
        Description            nvarchar(50)
        MUP                    float DEFAULT 0 NOT NULL
        GP                     float DEFAULT 0 NOT NULL
        PriceRule              nvarchar(1)
        Rounding               nvarchar(1)
        DefaultMUP             float DEFAULT 0 NOT NULL
        DefaultGP              float DEFAULT 0 NOT NULL
        AutoCreate             nvarchar(1)
    )"},
    // Images for reports.
    {"SYSRepImages", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        ImageCode              nvarchar(10)
        ImageName              nvarchar(100)
        ImageData              image
    )"},
    // Report templates with their statements.
    {"SysRepTemplates", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        Suite                  nvarchar(20)
        ModCode                nvarchar(6)
        RepName                nvarchar(60)
        Template               nvarchar(200)
        Description            nvarchar(100)
        SQL01                  ntext
        SQL02                  ntext
        SQL03                  ntext
        SQL04                  ntext
        SQL05                  ntext
        GroupBy01              nvarchar(4000)
        GroupBy02              nvarchar(4000)
        GroupBy03              nvarchar(2048)
        GroupBy04              nvarchar(2048)
        GroupBy05              nvarchar(2048)
        OrderBy01              nvarchar(2048)
        OrderBy02              nvarchar(2048)
        OrderBy03              nvarchar(2048)
        OrderBy04              nvarchar(2048)
        OrderBy05              nvarchar(2048)
        DesignSQL01            ntext
        DesignSQL02            ntext
        DesignSQL03            ntext
        DesignSQL04            ntext
        DesignSQL05            ntext
        DesignGroupBy01        nvarchar(2048)
        DesignGroupBy02        nvarchar(2048)
        DesignGroupBy03        nvarchar(2048)
        DesignGroupBy04        nvarchar(2048)
        DesignGroupBy05        nvarchar(2048)
        DesignOrderBy01        nvarchar(2048)
        DesignOrderBy02        nvarchar(2048)
        DesignOrderBy03        nvarchar(2048)
        DesignOrderBy04        nvarchar(2048)
        DesignOrderBy05        nvarchar(2048)
        ReportTemplate         image
        DTODate                nvarchar(20)
        DTOTime                nvarchar(16)
        DTOUser                nvarchar(20)
    )"},
    // Default printed forms per transaction type.
    {"SYSDefForms", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        TxTp                   nvarchar(6)
        FormCode               nvarchar(50)
        FormName               nvarchar(200)
        PrtCopies              int DEFAULT 0 NOT NULL
        PrtMsgModCode          nvarchar(3)
        PrtMsgCode             nvarchar(5)
        DirectPrint            nvarchar(1)
    )"},
    // Alternative printed forms per transaction type.
    {"SYSDefAltForms", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        TxTp                   nvarchar(6)
        FormCode               nvarchar(50)
        FormName               nvarchar(200)
        PrtCopies              int DEFAULT 0 NOT NULL
        PrtMsgModCode          nvarchar(3)
        PrtMsgCode             nvarchar(5)
        DirectPrint            nvarchar(1)
    )"},
    // The printed forms.
    {"SYSForms", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        FormCode               nvarchar(50)
        FormName               nvarchar(200)
        FormType               nvarchar(1)
        DefaultPrinter         nvarchar(200)
        ReportName             nvarchar(50)
        MsgModCode             nvarchar(3)
        MsgMod                 nvarchar(5)
        DirectPrint            nvarchar(1)
    )"},
    // Connection settings per suite program.
    {"SYSSettings", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        Suite                  nvarchar(20)
        DisplaySeq             int DEFAULT 0 NOT NULL
        DisplayName            varchar(50)
        DefCO                  varchar(10)
        DefBranch              varchar(10)
        DefHQBranch            nvarchar(10)
        DBConnector            nvarchar(100)
        DBHost                 varchar(50)
        DBDBase                varchar(50)
        DBUser                 varchar(50)
        DBPswd                 varchar(50)
        RunInterval            int DEFAULT 0 NOT NULL
        TillNo                 nvarchar(5)
        TillMode               nvarchar(1)
    )"},
    // Versions of the suite's programs.
    {"SYSVersions", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        Suite                  nvarchar(20)
        PgmName                varchar(20)
        Description            varchar(50)
        Version                varchar(20)
        LastUpd                varchar(10)
    )"},
    // Document number counters.
    {"SYSNumbers", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        ModCode                nvarchar(6)
        TxTp                   nvarchar(12)
        FieldCode              nvarchar(40)
        Number                 int DEFAULT 0 NOT NULL
    )"},
    // Message texts by module and code.
    {"SYSMessage", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        ModCode                nvarchar(3)
        MsgCode                nvarchar(5)
        MsgName                nvarchar(50)
        MsgText                ntext
    )"},
    // State of the payment in progress on a till.
    {"SYSMonitor2", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        RecKey                 nvarchar(20)
        Process                nvarchar(20)
        TxTp                   nvarchar(6)
        DocNo                  nvarchar(25)
        Tendered               float DEFAULT 0 NOT NULL
        Change                 float DEFAULT 0 NOT NULL
        CardProcess            nvarchar(1)
    )"},
    // Log of the calls to the Infinity card web service: request, response, error, endpoint
    // and the credentials and address that were used.
    {"SysInfinityLogs", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10)
        Branch                 nvarchar(10)
        LogDate                nvarchar(10)
        DocNo                  nvarchar(20)
        TxTp                   nvarchar(6)
        APIRequestBody         nvarchar(max)
        APIResponse            nvarchar(max)
        APIErrorMsg            nvarchar(max)
        APIEndpoint            nvarchar(30)
        XUsername              nvarchar(50)
        XPassword              nvarchar(50)
        XPlatformType          nvarchar(50)
        BaseURL                nvarchar(100)
        CardNo                 nvarchar(20)
    )"},
    // Saved grid layouts per company, user and screen. The step is named
    // tb_Create_SysSaveGrids; it is the one definition with NOT NULL character columns.
    {"SYSSaveGrids", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CO                     nvarchar(10) NOT NULL
        UserCode               nvarchar(10) NOT NULL
        ScreenID               nvarchar(20) NOT NULL
        GridSettings           ntext NOT NULL
    )"},
    // Upgrade packages downloaded to this workstation.
    {"SysUpgradeCABFiles", R"(
        RecID                  int IDENTITY(1, 1) NOT NULL
        CABFileName            nvarchar(100)
        DownloadDate           nvarchar(10)
        DownloadTime           nvarchar(8)
        FileSize               nvarchar(10)
    )"},
};

constexpr UpdateStep updates[] = {
    {"tb_Update_SYSTxTp", "SYSTxTp", R"(
        add    DefSeqNo               int
    )"},
    {"tb_Update_SYSTax", "SYSTax", R"(
        add    TaxDesc                nvarchar(50)
        add    SARSTaxCode            nvarchar(20)
        add    SARSTaxDesc            nvarchar(200)
        add    SysLock                nvarchar(1)     'Y'
        add    SeqNo                  int
        alter  TaxDesc                nvarchar(50)
    )"},
};

} // namespace

const Family referenceTables{tables, updates};

} // namespace velcro::schema
