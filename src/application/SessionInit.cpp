#include "application/SessionInit.h"

#include "data/Session.h"
#include "data/StatementText.h"
#include "data/SysDataModel.h"
#include "data/SysLoadData.h"
#include "platform/seat/Folders.h"
#include "security/SysMachine.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardItemModel>
#include <QWidget>

namespace {

struct HiddenGrid
{
    const char* name;
    std::vector<const char*> columns;
};

const std::vector<HiddenGrid>& hiddenGrids() {
    static const std::vector<HiddenGrid> grids = {
        {"grdHQTriggers",
         {"RecID", "Status", "CO", "Branch", "TxTp", "StockCode", "LinkCode", "Description1",
          "PriceCode", "Account", "SubAccount", "DocNo", "Text1", "Text2", "Text3"}},
        {"grdPostGL",
         {"GL.Acc.No", "Description", "Parm.No", "Group Code", "DrCr", "AmountType", "Debit Amount",
          "Credit Amount"}},
        {"grdCRDAllocs",
         {"Date",    "Doc.No.", "TxTp",        "Details",     "Doc.Amount",  "Debit",
          "Credit",  "Balance", "Alloc.Amnt.", "Alloc.Disc.", "Allocate",    "RecID",
          "DrCr",    "TxNo",    "Reference",   "Payment Due", "Paid Amount", "Period",
          "GRV No.", "Doc.Age", "TickBox"}},
        {"grdCRDBalAging", {"AP", "Age", "Debits", "Credits", "Balance"}},
        {"grdCCYTxans",
         {"TillNo", "TxTp", "TxNo", "DocNo", "TranDate", "TranTime", "CCYCode", "CCYRateDate",
          "CCYRate", "CCYAmount"}},
        {"grdEODDates", {"RunDate", "MonthEnd", "Status"}},
        {"grdOTLStats", {" ", "New", "Failed"}},
    };
    return grids;
}

void initProgram(const QString& programFile) {
    gEXEName = QFileInfo(programFile).fileName();
    gEXEPath = velcro::seat::nativePath(velcro::seat::workingFolder(programFile));
}

void initSeat() {
    gMACAddress = sm_GetMACAddress();
    gPCName = sm_GetPCName();
    gWindowsUser = sm_Get_Login_UserName();
    gIPAddress = sm_GetIP();
}

void initPaths() {
    gTempPath = velcro::seat::nativePath(gEXEPath + "Temp\\");
    gSQLPath = velcro::seat::nativePath(gEXEPath + "SQL\\");
    gLogPath = velcro::seat::nativePath(gEXEPath + "LOGS\\");
    gPDFPath = velcro::seat::nativePath(gEXEPath + "PDF\\");
}

void clearTexts() {
    for (QString* text :
         {&gReportPath, &gImagePath, &gSYNCPath, &gDBMessage, &gSvrName, &gSyncBATFile, &gLogFile,
          &gErrorLogMsg, &gMACSessionID, &gVelUserCode, &gMinDBVersion, &gSvrCatString}) {
        text->clear();
    }
    gSvrCatArray.fill(QString());
    for (TextLines* lines : {&gMemo, &gSQL, &gSQL2, &gNotes, &gEODLogs, &gARPLogs}) {
        lines->Clear();
    }
    for (QStringList* list : {&gWinProcs, &gVisProgs, &gOnlineLog}) {
        list->clear();
    }
    gImageStream.clear();
    freeSharedLists();
}

// "TEMP" is the folder of gTempPath: one folder, also where case counts.
void makeFolders() {
    for (const char* name : {"Temp", "SQL", "LOGS", "PDF", "Upgrades", "Session"}) {
        QDir(gEXEPath).mkdir(QLatin1String(name)); // one that cannot be made is not missed yet
    }
}

} // namespace

void sfg_InitGlobalVars(const QString& programFile) {
    initProgram(programFile);
    initSeat();
    gVersion = sm_Version();
    gDBConnector = gVELConnector = gCmnConnector = gLocConnector = QStringLiteral("SQLOLEDB.1");
    gShowHints = gMainRefresh = gMainClose = gAutomatedProcess = gFreeTextInstalled = false;
    gRegFmt = QStringLiteral("0");
    gSessionKEY = QStringLiteral("Default");
    gTSSessionID = 0;
    gAllowedAccessKey = 1;
    initPaths();
    clearTexts();
    makeFolders();
}

// Nobody ever sees them, so they have rows and columns but no controls, which would hold up the start.
void sfvel_InitSystem(QWidget& mainForm) {
    for (const HiddenGrid& hidden : hiddenGrids()) {
        auto* grid = new QStandardItemModel(2, int(hidden.columns.size()), &mainForm);
        grid->setObjectName(QLatin1String(hidden.name));
        for (std::size_t column = 0; column < hidden.columns.size(); ++column) {
            // The first row is the fixed one and holds the titles.
            grid->setItem(0, int(column), new QStandardItem(QLatin1String(hidden.columns[column])));
        }
    }
}
