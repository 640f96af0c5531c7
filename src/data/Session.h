// The session: what the program knows about itself, the seat, the signed-in user, the company and
// the branch. Plain named values, read and written by every unit; empty until start-up and log-in
// fill them.
#pragma once

#include "data/TextLines.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <array>

// ---- the program ----
inline QString gSuite;   // key of the suite in the common database
inline QString gModCode; // module code of this program
inline QString gEXEName; // file name of the running program, with its extension
inline QString gEXEPath; // folder of the working folders, with a trailing separator
inline QString gEXETitle;
inline QString gVersion = QStringLiteral("0.0.0");
inline QString gSystemVersion; // version that vcVersions holds for this program
inline bool gShowHints = false;
inline bool gMainRefresh = false;
inline bool gMainClose = false;
inline bool gAutomatedProcess = false;
inline bool gFreeTextInstalled = false;
inline int gTSSessionID = 0;
inline QString gRegFmt = QStringLiteral("0");
inline QString gSessionKEY = QStringLiteral("Default"); // company-branch[-user]
inline QString gDBMessage;                              // shown once the menu is live
inline QString gSvrName, gSyncBATFile, gLogFile, gMACSessionID, gVelUserCode, gMinDBVersion;

// ---- the seat ----
inline QString gMACAddress;
inline QString gPCName; // what stands in DTOMacID of every stamp
inline QString gWindowsUser;
inline QString gIPAddress;

// ---- working folders, each with a trailing separator ----
inline QString gTempPath, gSQLPath, gLogPath, gPDFPath;
inline QString gReportPath, gImagePath, gSYNCPath;

// ---- connection settings, from the machine configuration file ----
inline QString gCmnConnector, gCmnHost, gCmnUser, gCmnPswd, gCmnDBName, gCmnAzure;
inline QString gLocConnector, gLocHost, gLocUser, gLocPswd, gLocDBName, gLocStandAlone, gLocAzure;
inline QString gVELConnector, gTillHost, gTillUser, gTillPswd, gTillDBName, gTillAllowDBConnect,
    gTillAzure;
inline QString gFixIP, gHawkEye;
inline QString gScaleAttached, gScalePort, gScaleBaudRate, gScaleDataBits, gScaleStopBits,
    gScaleParity, gScaleMachine;
inline QString gSignPad, gTillLoginWH, gTillCardDeviceType, gTillCardDeviceID;
inline QString gTillAltPrinter1, gTillAltPrinter2, gTillAltPrinter3;
inline QString gCGActive, gCGInitSettings, gCGUseComm, gCGComPort, gCGUseIP, gCGIPAddress,
    gCGIPPort;
inline QString gRevmaxActive, gRevmaxURL;
inline QString gBDActive, gBDDeviceCode, gBDDeviceName; // fingerprint reader

// ---- the suite database, chosen at log-in from vcSettings ----
inline QString gDBConnector, gDBHost, gDBDBase, gDBUser, gDBPswd, gDBDisplayName, gDBOnAzure;
inline QString gDBaseRecID, gDBSPID, gDBDefCO, gDBDefBranch, gDBDefHQBranch;
inline QString gSvrCatCode, gSvrCatString;
inline std::array<QString, 51> gSvrCatArray; // 1 to 50; index 0 is not used

// ---- the schema of the till database ----
inline QString gTillDBVersion, gLocalDBVersion, gMinVelDBVersion, gDBVersion;

// ---- the user ----
inline QString gUserCode, gUserPswd, gUserName;
inline int gUserID = 0;
inline QString gUserGroup, gUserLogInCode, gUserEMail, gUserCellNo, gDefaultPrinter, gSupervisor,
    gSuperCardNo;
inline QString gPswdDate, gAllowPswdExp;
inline int gPswdExpDays = 0;
inline QString gAllowViewCost, gAllowViewProfit, gProfitCalcCost, gUseSession;
inline int gAllowedAccessKey = 1;
inline QString gLoginResult; // "0" running, "1" and "2" how it was refused
inline QString gAllowCash, gAllowCheques, gAllowCreditCards, gAllowVouchers, gAllowTransfers;
inline QString gAllowTenderTypes1, gAllowTenderTypes2, gAllowTenderTypes3, gAllowTenderTypes4;
inline QString gTenderType1, gTenderType2, gTenderType3, gTenderType4;
inline QString gTenderForm1, gTenderForm2, gTenderForm3, gTenderForm4;
inline double gLimitCash = 0, gLimitCreditCards = 0, gLimitVouchers = 0, gLimitTransfers = 0;
inline double gLimitTenderType1 = 0, gLimitTenderType2 = 0, gLimitTenderType3 = 0,
              gLimitTenderType4 = 0;
inline QString gDefSalesRep, gDefAccount, gDefTillNo, gDefWH, gDefCashierID, gCOFTillNo, gCOFName;

// ---- the company ----
inline QString gCO, gCOName;
inline QString gCOBusAdd1, gCOBusAdd2, gCOBusAdd3, gCOBusAdd4;
inline QString gCOPostAdd1, gCOPostAdd2, gCOPostAdd3, gCOPostAdd4;
inline QString gCOPhone, gCOFax, gCOEMail, gCORegNo, gCOVatNo, gCOWebSite;
inline QString gCOBankName, gCOBranchName, gCOBranchCode, gCOAccNo, gCOAccName;
inline QString gCCYActive, gCCY, gCCYDesc, gCCYSymbol;
inline QString gCCYCode1, gCCYCOde2, gCCYCode3, gCCYCode4, gCCYCode5;
inline int gCCYNumCode = 0;
inline int gCostDecimal = 2; // decimals of a cost
inline QString gGLSubAcc;    // whether ledger accounts have sub-accounts
inline int gGLAccLen = 4, gGLSubAccLen = 0;

// ---- the branch ----
inline QString gBranch, gBRName, gBRShortName;
inline QString gBRBusAdd1, gBRBusAdd2, gBRBusAdd3, gBRBusAdd4;
inline QString gBRPostAdd1, gBRPostAdd2, gBRPostAdd3, gBRPostAdd4;
inline QString gBRPhone, gBRFax, gBREMail, gBRWebSite, gBRRegNo, gBRVATNo;
inline QString gBROnline, gBRType, gBRTrading, gBRCategory;
inline QString gBRStatusBarColor; // name or number of the branch band's colour
inline QString gBRBankName, gBRBranchName, gBRBranchCode, gBRAccNo, gBRAccName;

// ---- where each ledger keeps its masters; need not be the signed-in company and branch ----
inline QString gStkCO, gStkBranch;
inline QString gDebCO, gDebBranch;
inline QString gCrdCO, gCrdBranch;
inline QString gGlgCO, gGlgBranch;
inline QString gPurCO, gPurBranch;
inline QString gVIPCO, gVIPBranch;
inline QString gCmbCO, gCmbBranch; // of the reference loaders; blank means the session's

// ---- the accounting period ----
inline int gAP = 0;
inline QString gAPFrom, gAPTo;

// ---- idle lock and day end ----
inline int gEXELockTime = 0; // minutes, 0 is no lock
inline QString gEODInitiated;

// ---- scratch text and lists ----
inline TextLines gMemo, gNotes, gEODLogs, gARPLogs;
inline QStringList gWinProcs, gVisProgs, gOnlineLog;

// ---- return slots: a routine with several results leaves them here ----
// gSParam1 is gSParam[1]; index 0 is not used.
inline std::array<QString, 16> gSParam;
inline std::array<int, 13> gIParam;
inline std::array<double, 13> gDParam;
inline std::array<bool, 7> gBParam;

// ---- the error channel ----
inline QString gErrorMsg, gErrorComment, gErrorLogMsg;
inline int gErrorCode = 0;

// ---- printer escapes (ESC/POS) ----
inline const QByteArray psDark = QByteArrayLiteral("\x1D\x42\x01\x1B\x45\x01");
inline const QByteArray psBold = QByteArrayLiteral("\x1B\x45\x01");
inline const QByteArray psReset = QByteArray("\x1D\x42\x00\x1B\x45\x00", 6);

/// Clears the return slots: blank clears all four families, "S", "I", "D" or "B" one of them.
void sfg_ResetParamFields(const QString& xType);
