#include "security/SysLogIn.h"

#include "data/DataUCMN.h"
#include "data/DataUVEL.h"
#include "data/DateTimeText.h"
#include "data/Errors.h"
#include "data/Prompts.h"
#include "data/Session.h"
#include "data/SessionFile.h"
#include "data/StatementText.h"
#include "data/SysDataModel.h"
#include "data/SysLoadData.h"
#include "messaging/SysSendSMS.h"
#include "schema/SysTillDBMods.h"
#include "security/AccessCheck.h"
#include "security/LogInRead.h"
#include "security/SysLoadAccess.h"
#include "security/SysLoadParams.h"

#include <initializer_list>

namespace {

// What the caller asked for, and what the database row and the user's row say of company and
// branch.
QString sli_UserCode, sli_UserPswd;
QString sli_UDefCO, sli_UDefBranch;
QString sli_DBDefCO, sli_DBDefBranch, sli_DBDefHQBranch, sli_DBDisplayName;

// The right to use a module at all.
constexpr int moduleRight = 0;

struct FloatColumn
{
    const char* column;
    double* value;
};

const TextColumn databaseColumns[] = {
    {"RecID", &gDBaseRecID},
    {"DisplayName", &gDBDisplayName},
    {"DisplayName", &sli_DBDisplayName},
    {"DBConnector", &gDBConnector},
    {"DBDBase", &gDBDBase},
    {"DBHost", &gDBHost},
    {"DBUser", &gDBUser},
    {"DBPswd", &gDBPswd},
    {"DBOnAzure", &gDBOnAzure},
    {"DefCO", &gDBDefCO},
    {"DefCO", &sli_DBDefCO},
    {"DefBranch", &gDBDefBranch},
    {"DefBranch", &sli_DBDefBranch},
    {"DefHQBranch", &gDBDefHQBranch},
    {"DefHQBranch", &sli_DBDefHQBranch},
};

const TextColumn groupColumns[] = {
    {"AllowViewCost", &gAllowViewCost},
    {"AllowViewProfit", &gAllowViewProfit},
    {"ProfitCalcCost", &gProfitCalcCost},
    {"PswdExp", &gAllowPswdExp},
};

// The user's own AllowViewCost, AllowViewProfit and ProfitCalcCost win over the group's.
const TextColumn userColumns[] = {
    {"UserCode", &gUserCode},
    {"UserCode", &gUserLogInCode},
    {"UserName", &gUserName},
    {"DefCO", &sli_UDefCO},
    {"DefBranch", &sli_UDefBranch},
    {"DefWH", &gDefWH},
    {"DefSalesRep", &gDefSalesRep},
    {"DefAccount", &gDefAccount},
    {"DefTillNo", &gDefTillNo},
    {"EMail", &gUserEMail},
    {"CellNo", &gUserCellNo},
    {"Supervisor", &gSupervisor},
    {"SuperCardNo", &gSuperCardNo},
    {"AllowCash", &gAllowCash},
    {"AllowCheques", &gAllowCheques},
    {"AllowCreditCards", &gAllowCreditCards},
    {"AllowVouchers", &gAllowVouchers},
    {"AllowTransfers", &gAllowTransfers},
    {"AllowTenderType1", &gAllowTenderTypes1},
    {"AllowTenderType2", &gAllowTenderTypes2},
    {"AllowTenderType3", &gAllowTenderTypes3},
    {"AllowTenderType4", &gAllowTenderTypes4},
    {"TenderType1", &gTenderType1},
    {"TenderType2", &gTenderType2},
    {"TenderType3", &gTenderType3},
    {"TenderType4", &gTenderType4},
    {"TenderForm1", &gTenderForm1},
    {"TenderForm2", &gTenderForm2},
    {"TenderForm3", &gTenderForm3},
    {"TenderForm4", &gTenderForm4},
    {"AllowViewCost", &gAllowViewCost},
    {"AllowViewProfit", &gAllowViewProfit},
    {"ProfitCalcCost", &gProfitCalcCost},
    {"PswdDate", &gPswdDate},
    {"UseSession", &gUseSession},
    {"DefaultPrinter", &gDefaultPrinter},
};

const FloatColumn userLimits[] = {
    {"LimitCash", &gLimitCash},
    {"LimitCreditCards", &gLimitCreditCards},
    {"LimitVouchers", &gLimitVouchers},
    {"LimitTransfers", &gLimitTransfers},
    {"LimitTenderType1", &gLimitTenderType1},
    {"LimitTenderType2", &gLimitTenderType2},
    {"LimitTenderType3", &gLimitTenderType3},
    {"LimitTenderType4", &gLimitTenderType4},
};

bool loadUserGroup() {
    return readRows(gData->Velmara,
                    {
                        "SELECT * FROM SysUserGroup WITH (NOLOCK) ",
                        " WHERE [CO] = " + QuotedStr(sli_DBDefCO),
                        "   AND [UserGroup] = " + QuotedStr(gUserGroup),
                    },
                    dialogAndFalse("999999", "SQL Error reading Table: SysUserGroup\r",
                                   errorClassUnit, "sli_VerifyUser"),
                    [](const Statement& group) {
                        if (group.IsEmpty()) {
                            return falseBecause(
                                QStringLiteral("User Group : [%1] %2 for User : %3 WAS NOT FOUND")
                                    .arg(sli_DBDefCO, gUserGroup, sli_UserCode));
                        }
                        copyText(group, groupColumns);
                        gPswdExpDays = group.FieldByName("PswdExpDays").AsInteger();
                        return true;
                    });
}

// The password comes first, so that an account's status is not told to whoever does not know it.
bool passwordAndStatusPass(const Statement& user) {
    if (user.FieldByName("UserPswd").AsString() != sli_UserPswd.trimmed()) {
        errorBox(QStringLiteral("Log-in Process"), QStringLiteral("Password is INVALID"));
        return falseBecause(QStringLiteral("Password INVALID"));
    }
    if (user.FieldByName("Status").AsString() != QLatin1String("A")) {
        errorBox(QStringLiteral("Log-in Process"),
                 QStringLiteral("The User as marked as INACTIVE"));
        return false;
    }
    return true;
}

void loadUser(const Statement& user) {
    copyText(user, userColumns);
    for (const auto& [column, value] : userLimits) {
        *value = user.FieldByName(QLatin1String(column)).AsFloat();
    }
    gUserID = user.FieldByName("UserID").AsInteger();
    gUserPswd = sli_UserPswd;
    if (gDefaultPrinter.isEmpty()) {
        gDefaultPrinter = QStringLiteral("Generic / Text Only");
    }
    if (gDefTillNo.trimmed().isEmpty()) {
        gDefTillNo = QStringLiteral("999");
    }
}

// By the user's own company and branch, not by those of the log-in.
bool loadCashOfficeTill() {
    return readRows(gData->Velmara,
                    {
                        "SELECT * FROM POSCOFTillMst WITH (NOLOCK) ",
                        " WHERE [CO] = " + QuotedStr(sli_UDefCO),
                        "   AND [Branch] = " + QuotedStr(sli_UDefBranch),
                        "   AND [VisUser] = " + QuotedStr(gUserCode),
                    },
                    dialogAndFalse("999999", sqlErrorOnTable("POSCOFTillMst"), "MAIN000",
                                   "Get_CashOffice_Data"),
                    [](const Statement& till) {
                        if (!till.IsEmpty()) {
                            gCOFTillNo = till.FieldByName("COFTillNo").AsString();
                            gCOFName = till.FieldByName("Name").AsString();
                        }
                        return true;
                    });
}

bool acceptUser(const Statement& user) {
    if (user.IsEmpty()) {
        return falseBecause(QStringLiteral("The User Code is INVALID"));
    }
    gUserGroup = user.FieldByName("UserGroup").AsString();
    if (!loadUserGroup() || !passwordAndStatusPass(user)) {
        return false;
    }
    loadUser(user);
    return loadCashOfficeTill();
}

bool runSteps(const QString& xCO, const QString& xBranch) {
    if (!sli_DBConnect()) {
        return false;
    }
    tb_CheckDBVersions();
    gDBSPID = gData->VEL_GetSPID();
    if (!sli_VerifyUser()) {
        return false;
    }
    // After sli_VerifyUser: the user's group is always that of the database row's company.
    if (!xCO.trimmed().isEmpty() && !xBranch.trimmed().isEmpty()) {
        sli_DBDefCO = xCO;
        sli_DBDefBranch = xBranch;
    }
    if (!sli_VerifyUserCompany() || !sli_VELMARA_LogIn()) {
        return false;
    }
    if (!moduleIs({"MNU", "SYS", "TSH"}) &&
        !sfvel_CheckUserAccess(gModCode, moduleRight, QStringLiteral("N"))) {
        return falseBecause(QStringLiteral("Access DENIED to this Module"));
    }
    return true;
}

} // namespace

bool sli_LogIn(const QString& xUserCode, const QString& xUserPswd, int xDBaseRecID,
               const QString& xCO, const QString& xBranch) {
    gErrorMsg.clear();
    gUserCode.clear(); // a user who cannot be read must not be the one before
    gLoginResult = QStringLiteral("0");
    gMinVelDBVersion = QStringLiteral("14.47.41");
    sli_UserCode = xUserCode;
    sli_UserPswd = xUserPswd;
    sli_DBaseRecID = xDBaseRecID;
    for (QString* value :
         {&sli_UDefCO, &sli_UDefBranch, &sli_DBDefCO, &sli_DBDefBranch, &sli_DBDefHQBranch}) {
        value->clear();
    }
    if (!runSteps(xCO, xBranch)) {
        gLoginResult = QStringLiteral("1");
        return false;
    }
    sfg_WriteSession_INIFile(QStringLiteral("DBDisplayName"), gDBDisplayName);
    gSessionKEY =
        gCO.trimmed() + QLatin1Char('-') + gBranch.trimmed() + QLatin1Char('-') + gUserCode;
    sli_Process_Employee_Birthday_SMS();
    return true;
}

bool sli_VerifyDatabase(const QString& xDBDisplayName) {
    static const TextColumn columns[] = {
        {"RecID", &gDBaseRecID}, {"DisplayName", &gDBDisplayName}, {"DBConnector", &gDBConnector},
        {"DBDBase", &gDBDBase},  {"VReportPath", &gReportPath},    {"SvrCatCode", &gSvrCatCode},
    };
    return readRows(
        cData->VelmaraCommon,
        {
            "SELECT * FROM vcSettings WITH (NOLOCK) ",
            " WHERE [DisplayName] = " + QuotedStr(xDBDisplayName),
        },
        dialogAndRaise("900002", "SQL Error on Table: vcSettings\r", "CMN999", "VerifyDatabase"),
        [](const Statement& database) {
            if (database.IsEmpty()) {
                return false;
            }
            copyText(database, columns);
            return true;
        });
}

bool sli_DBConnect() {
    const auto failure = dialogAndRaise("500004", "SQL Error on Table: vcSettings\r", "SysLogIn",
                                        "sli_GetCompanySettings");
    try {
        const bool found = readRows(cData->vcLoadQuery1,
                                    {
                                        "SELECT * FROM vcSettings WITH (NOLOCK) ",
                                        " WHERE [RecID] = " + QuotedStr(sli_DBaseRecID),
                                    },
                                    failure, [](const Statement& database) {
                                        if (database.IsEmpty()) {
                                            return false;
                                        }
                                        copyText(database, databaseColumns);
                                        return true;
                                    });
        if (!found) {
            return falseBecause(QStringLiteral("Database Settings NOT FOUND for : ") + gDBDBase);
        }
    } catch (const std::runtime_error& error) {
        gErrorMsg = "SQL Error read table : vcSettings\r" + errorText(error);
        throw;
    }
    return gData->ConnectDB_VEL(gDBConnector, gDBHost, gDBDBase, gDBUser, gDBPswd, gDBOnAzure);
}

// A failed read of the user is shown, and the log-in goes on with the user not loaded; the right
// to the company then turns it down.
bool sli_VerifyUser() {
    bool accepted = true;
    readRows(gData->Velmara,
             {
                 "SELECT * FROM SysUser WITH (NOLOCK) ",
                 " WHERE [UserCode] = " + QuotedStr(sli_UserCode),
             },
             dialogAndFalse("999999", "SQL Error reading Table: SysUser\r", errorClassUnit,
                            "sli_VerifyUser"),
             [&accepted](const Statement& user) { accepted = acceptUser(user); });
    return accepted;
}

bool sli_VerifyUserCompany() {
    if (moduleIs({"UTL"})) {
        gCO = sli_DBDefCO;
        gBranch = sli_DBDefBranch;
        return true;
    }
    return readRows(
        gData->Velmara,
        {
            "SELECT * FROM SysUserComp WITH (NOLOCK) ",
            " WHERE [UserCode] = " + QuotedStr(gUserCode),
            "   AND [CO] = " + QuotedStr(sli_DBDefCO),
            "   AND [Branch] = " + QuotedStr(sli_DBDefBranch),
        },
        dialogAndRaise("999999", "SQL Error reading Table: SysUserComp\r", errorClassUnit,
                       "sli_VerifyUserCompany"),
        [](const Statement& right) {
            if (right.IsEmpty()) {
                return falseBecause(
                    QStringLiteral(
                        "This User is NOT Allowed Access to :-\rCompany : %1 - Branch : %2")
                        .arg(sli_DBDefCO, sli_DBDefBranch));
            }
            gCO = right.FieldByName("CO").AsString();
            gBranch = right.FieldByName("Branch").AsString();
            gCmbCO = gCO;
            gCmbBranch = gBranch;
            return true;
        });
}
