// The second half of the log-in: company, branch, period, shared branches, settings and programs.
#include "data/DataUCMN.h"
#include "data/DataUVEL.h"
#include "data/DateTimeText.h"
#include "data/Errors.h"
#include "data/Prompts.h"
#include "data/Settings.h"
#include "data/StatementText.h"
#include "data/SysDataModel.h"
#include "data/SysLoadData.h"
#include "security/LogInRead.h"
#include "security/SysLoadAccess.h"
#include "security/SysLoadParams.h"
#include "security/SysLogIn.h"

namespace {

const TextColumn companyColumns[] = {
    {"CO", &gCO},
    {"COName", &gCOName},
    {"COBusAddress1", &gCOBusAdd1},
    {"COBusAddress2", &gCOBusAdd2},
    {"COBusAddress3", &gCOBusAdd3},
    {"COBusAddress4", &gCOBusAdd4},
    {"COPostAddress1", &gCOPostAdd1},
    {"COPostAddress2", &gCOPostAdd2},
    {"COPostAddress3", &gCOPostAdd3},
    {"COPostAddress4", &gCOPostAdd4},
    {"COPhone", &gCOPhone},
    {"COFax", &gCOFax},
    {"COEMail", &gCOEMail},
    {"CORegNo", &gCORegNo},
    {"COVatNo", &gCOVatNo},
    {"COWebSite", &gCOWebSite},
    {"COBankName", &gCOBankName},
    {"COBranchName", &gCOBranchName},
    {"COBranchCode", &gCOBranchCode},
    {"COAccNo", &gCOAccNo},
    {"COAccName", &gCOAccName},
};

const TextColumn branchColumns[] = {
    {"Branch", &gBranch},
    {"BRName", &gBRName},
    {"BRBusAddress1", &gBRBusAdd1},
    {"BRBusAddress2", &gBRBusAdd2},
    {"BRBusAddress3", &gBRBusAdd3},
    {"BRBusAddress4", &gBRBusAdd4},
    {"BRPostAddress1", &gBRPostAdd1},
    {"BRPostAddress2", &gBRPostAdd2},
    {"BRPostAddress3", &gBRPostAdd3},
    {"BRPostAddress4", &gBRPostAdd4},
    {"BRTel", &gBRPhone},
    {"BREmail", &gBREMail},
    {"BRFax", &gBRFax},
    {"BRWebSite", &gBRWebSite},
    {"BRRegNo", &gBRRegNo},
    {"BRVATNo", &gBRVATNo},
    {"Online", &gBROnline},
    {"BranchType", &gBRType},
    {"TradingBranch", &gBRTrading},
    {"BranchCategory", &gBRCategory},
    {"ShortName", &gBRShortName},
    {"BRBankName", &gBRBankName},
    {"BRBranchName", &gBRBranchName},
    {"BRBranchCode", &gBRBranchCode},
    {"BRAccNo", &gBRAccNo},
    {"BRAccName", &gBRAccName},
    {"BRStatusBarColor", &gBRStatusBarColor},
};

const TextColumn sharedBranchColumns[] = {
    {"SHSTK", &gStkBranch}, {"SHCRD", &gCrdBranch}, {"SHDEB", &gDebBranch},
    {"SHGLG", &gGlgBranch}, {"SHPUR", &gPurBranch}, {"SHVIP", &gVIPBranch},
};

void takePeriod(const Statement& period) {
    gAP = period.FieldByName("AP").AsInteger();
    gAPFrom = period.FieldByName("FromDate").AsString();
    gAPTo = period.FieldByName("ToDate").AsString();
}

// The suite's tools must run before any period is defined: they take the calendar month.
bool takeCalendarMonth(const QString& xToday) {
    const QDate today = StrToDate(xToday);
    gAP = StrToInt(sfg_DTOS(xToday).left(6));
    gAPFrom = dateText(QDate(today.year(), today.month(), 1));
    gAPTo = dateText(QDate(today.year(), today.month(), today.daysInMonth()));
    return true;
}

// A closed period is opened and activated by the first log-in that needs it; one that is open but
// not active refuses.
bool takeOpenPeriod(const Statement& period, const QString& xToday) {
    QString active = period.FieldByName("APActive").AsString();
    if (period.FieldByName("APOpen").AsString() != QLatin1String("Y")) {
        if (!sli_Open_AccountingPeriod(period.FieldByName("AP").AsInteger())) {
            gErrorCode = 1;
            return falseBecause(
                QStringLiteral("Accounting Period for : %1 is NOT OPEN").arg(xToday));
        }
        active = QStringLiteral("Y");
    }
    if (active != QLatin1String("Y")) {
        gErrorCode = 1;
        return falseBecause(QStringLiteral("Accounting Period for : %1 is NOT ACTIVE").arg(xToday));
    }
    takePeriod(period);
    return true;
}

// The suite's tools take any period, whatever its flags.
bool acceptPeriod(const Statement& period, const QString& xToday) {
    const bool tool = moduleIs({"UTL", "MNU"});
    if (period.IsEmpty()) {
        return tool ? takeCalendarMonth(xToday)
                    : falseBecause("Accounting Period NOT Defined for Date : " + xToday);
    }
    if (!tool) {
        return takeOpenPeriod(period, xToday);
    }
    takePeriod(period);
    return true;
}

void loadCurrencyParameters() {
    struct
    {
        int number;
        QString* value;
    } const parameters[] = {
        {32, &gCCY},      {29, &gCCYDesc},  {80, &gCCYCode1}, {81, &gCCYCOde2},
        {82, &gCCYCode3}, {83, &gCCYCode4}, {84, &gCCYCode5},
    };
    gCCYActive = sfvel_GetParam(QStringLiteral("CO"), 30);
    for (const auto& [number, value] : parameters) {
        *value = sfvel_GetParam(QStringLiteral("CO"), number).trimmed();
    }
    const QString decimals = sfvel_GetParam(QStringLiteral("CO"), 40).trimmed();
    if (decimals.size() == 1) {
        gCostDecimal = StrToInt(decimals);
    }
}

void loadLedgerParameters() {
    const QString group = QStringLiteral("GLG");
    gGLSubAcc = QStringLiteral("N");
    gGLAccLen = 4;
    gGLSubAccLen = 0;
    if (const auto value = sfvel_GetParam(group, 28); !value.trimmed().isEmpty()) {
        gGLSubAcc = value;
    }
    if (const auto value = sfvel_GetParam(group, 29).trimmed(); !value.isEmpty()) {
        gGLAccLen = StrToInt(value);
    }
    if (const auto value = sfvel_GetParam(group, 30).trimmed(); !value.isEmpty()) {
        gGLSubAccLen = StrToInt(value);
    }
}

void branchSpeaksForCompany() {
    struct
    {
        QString& company;
        const QString& branch;
    } const pairs[] = {
        {gCOName, gBRName},
        {gCOBusAdd1, gBRBusAdd1},
        {gCOBusAdd2, gBRBusAdd2},
        {gCOBusAdd3, gBRBusAdd3},
        {gCOBusAdd4, gBRBusAdd4},
        {gCOPostAdd1, gBRPostAdd1},
        {gCOPostAdd2, gBRPostAdd2},
        {gCOPostAdd3, gBRPostAdd3},
        {gCOPostAdd4, gBRPostAdd4},
        {gCOPhone, gBRPhone},
        {gCOFax, gBRFax},
        {gCOEMail, gBREMail},
        {gCOWebSite, gBRWebSite},
        {gCORegNo, gBRRegNo},
        {gCOVatNo, gBRVATNo},
        {gCOBankName, gBRBankName},
        {gCOBranchName, gBRBranchName},
        {gCOBranchCode, gBRBranchCode},
        {gCOAccNo, gBRAccNo},
        {gCOAccName, gBRAccName},
    };
    for (const auto& [company, branch] : pairs) {
        company = branch;
    }
}

} // namespace

bool sli_VELMARA_LogIn() {
    if (!sli_LoadCompany() || !sli_LoadBranch() || !sli_GetPeriod() || !sli_SharedBranches()) {
        return false;
    }
    sli_LoadVelmaraSettings();
    sli_Load_Velmara_Progs();
    return true;
}

bool sli_LoadCompany() {
    return readRows(gData->Velmara,
                    {
                        "SELECT * FROM SysCompany WITH (NOLOCK) ",
                        " WHERE [CO] = " + QuotedStr(gCO),
                    },
                    dialogAndRaise("999999", "SQL Error on Table: SysCompany:\r", errorClassUnit,
                                   "sli_LoadCompany"),
                    [](const Statement& company) {
                        if (company.IsEmpty()) {
                            return falseBecause("Company Data NOT FOUND for Company: " + gCO);
                        }
                        copyText(company, companyColumns);
                        return true;
                    });
}

bool sli_LoadBranch() {
    return readRows(gData->Velmara,
                    {
                        "SELECT * FROM SysBranch WITH (NOLOCK) ",
                        " WHERE [CO] = " + QuotedStr(gCO),
                        "   AND [Branch] = " + QuotedStr(gBranch),
                    },
                    dialogAndRaise("999999", "SQL Error on Table: SysBranch:\r", errorClassUnit,
                                   "sli_LoadBranch"),
                    [](const Statement& branch) {
                        if (branch.IsEmpty()) {
                            return falseBecause(
                                QStringLiteral("Branch Data NOT FOUND for Branch : [%1] - %2")
                                    .arg(gCO, gBranch));
                        }
                        copyText(branch, branchColumns);
                        return true;
                    });
}

bool sli_GetPeriod() {
    const QString today = sfg_Date(0);
    try {
        return readRows(
            gData->Velmara, sld_PeriodOf(today),
            dialogAndRaise("500009", sqlErrorOnTable("SYSAP"), "SysLogIn", "sli_GetPeriod"),
            [&today](const Statement& period) { return acceptPeriod(period, today); });
    } catch (const std::runtime_error&) {
        gErrorCode = 1;
        throw;
    }
}

bool sli_Open_AccountingPeriod(int xAP) {
    const int previous = sld_GetPrevAP(xAP, 1);
    if (previous == 0) {
        errorBox(QString(),
                 QStringLiteral("Accounting Periods NOT Defined for : %1 and After").arg(previous));
        return false;
    }
    sfg_AddSQL(
        {
            "UPDATE SYSAP SET ",
            "[Apactive] = " + QuotedStr("Y") + ",",
            "[Apopen] = " + QuotedStr("Y"),
            " WHERE CO = " + QuotedStr(gCO),
            " AND AP = " + QuotedStr(xAP),
        },
        "NEW");
    return gData->vel_ExecSQL(1);
}

bool sli_SharedBranches() {
    for (QString* company : {&gStkCO, &gCrdCO, &gDebCO, &gGlgCO, &gPurCO, &gVIPCO}) {
        *company = gCO;
    }
    for (const auto& [column, branch] : sharedBranchColumns) {
        *branch = gBranch;
    }
    return readRows(gData->Velmara,
                    {
                        "SELECT * FROM SysBRShare WITH (NOLOCK) ",
                        " WHERE [CO] = " + QuotedStr(gCO),
                        "   AND [Branch] = " + QuotedStr(gBranch),
                    },
                    dialogAndRaise("500007", "SQL Error on Table: SysBRShare\r", "SysLogIn",
                                   "sli_SharedBranches"),
                    [](const Statement& shared) {
                        if (!shared.IsEmpty()) {
                            copyText(shared, sharedBranchColumns);
                        }
                    });
}

// What the loaders answer is not looked at: the session runs on what got loaded.
bool sli_LoadVelmaraSettings() {
    gMainRefresh = false;
    par_LoadParameters(gCO, gBranch);
    acc_LoadAccess(gCO, gBranch, gUserCode);
    loadCurrencyParameters();
    sli_LoadCCYDetails();
    loadLedgerParameters();
    if (!sfvel_GetParam(QStringLiteral("CO"), 69).trimmed().isEmpty()) {
        sli_LoadDefaultBank();
    }
    if (!gCCY.trimmed().isEmpty()) {
        sli_LoadCCYDetails();
    }
    if (sfvel_GetParam(QStringLiteral("BRANCH"), 149) == QLatin1String("Y")) {
        branchSpeaksForCompany();
    }
    return true;
}

bool sli_LoadCCYDetails() {
    return readRows(gData->Velmara,
                    {
                        "SELECT * FROM SysCurrencyMst WITH (NOLOCK) ",
                        " WHERE [CCYCode] = " + QuotedStr(gCCY),
                    },
                    dialogAndRaise("999999", sqlErrorOnTable("SysCurrencyMst"), errorClassUnit,
                                   "sli_LoadCCYDetails"),
                    [](const Statement& currency) {
                        if (currency.IsEmpty()) {
                            return false;
                        }
                        gCCYDesc = currency.FieldByName("CCYName").AsString();
                        gCCYSymbol = currency.FieldByName("CCYSymbol").AsString();
                        gCCYNumCode = currency.FieldByName("CCYNumCode").AsInteger();
                        return true;
                    });
}

void sli_LoadDefaultBank() {
    readRows(gData->Velmara,
             {
                 "SELECT * FROM GLGBankMaster WITH (NOLOCK) ",
                 " WHERE [CO] = " + QuotedStr(gCO),
                 "   AND [BankCode] = " + QuotedStr(sfvel_GetParam("CO", 69)),
             },
             dialogAndRaise("999999", sqlErrorOnTable("GLGBankMaster"), errorClassUnit,
                            "sli_LoadDefaultBank"),
             [](const Statement& bank) {
                 if (!bank.IsEmpty()) {
                     gCOBankName = bank.FieldByName("BankName").AsString();
                     gCOBranchCode = bank.FieldByName("BranchCode").AsString();
                     gCOAccNo = bank.FieldByName("BankAccNo").AsString();
                 }
             });
}

void sli_Load_Velmara_Progs() {
    gVisProgs.clear();
    readRows(cData->VelmaraCommon,
             {
                 "SELECT * FROM vcMainMenu WITH (NOLOCK) ",
                 "ORDER BY [PgmName] ",
             },
             dialogAndRaise("500008", "SQL Error on Table: vcMainMenu\r", "SysLogIn",
                            "sli_LoadVisProgs"),
             [](Statement& program) {
                 for (; !program.Eof(); program.Next()) {
                     gVisProgs.append(program.FieldByName("DisplayName").AsString());
                 }
             });
}
