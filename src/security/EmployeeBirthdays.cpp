// The day's birthday messages to employees, sent at the first log-in of the day in a branch.
#include "data/DataUVEL.h"
#include "data/DateTimeText.h"
#include "data/Session.h"
#include "data/StatementText.h"
#include "messaging/SysSendSMS.h"
#include "security/LogInRead.h"
#include "security/SysLogIn.h"

namespace {

// A row of EMPTxans of today marks an employee who had his message.
QStringList birthdaysOf(const QString& xToday) {
    return {
        "SELECT T0.[EmplNo], T0.[EmplName], T0.[BirthDate], T0.[IDNo], T0.[Telephone], "
        "T0.[CellPhone], ",
        " COUNT(T1.EmplNo) AS [SMSSent]",
        " FROM EMPMaster T0 WITH (NOLOCK)",
        " LEFT OUTER JOIN EMPTxans T1",
        "   ON T1.[CO] = T0.[CO]",
        "  AND T1.[Branch] = T0.[Branch]",
        "  AND T1.[EmplNo] = T0.[EmplNo]",
        "  AND T1.[TranDate] = " + QuotedStr(xToday),
        "  AND T1.[TxTp] = " + QuotedStr("POSEMP"),
        " WHERE T0.[CO] = " + QuotedStr(gCO),
        "   AND T0.[Branch] = " + QuotedStr(gBranch),
        "   AND SUBSTRING(T0.[BirthDate], 6, 5) = SUBSTRING(" + QuotedStr(xToday) + ", 6, 5)",
        " GROUP BY T0.[EmplNo], T0.[EmplName], T0.[BirthDate], T0.[IDNo], T0.[Telephone], "
        "T0.[CellPhone]",
        " ORDER BY [EmplName]",
    };
}

bool sendMessage(const Statement& employee) {
    syssms_Init();
    syssms_TxTp = QStringLiteral("POSEMP");
    syssms_Account = employee.FieldByName("EmplNo").AsString();
    syssms_AccName = employee.FieldByName("EmplName").AsString();
    syssms_TranDate = employee.FieldByName("BirthDate").AsString();
    return syssms_SendSMS();
}

bool markSent(const Statement& employee, const QString& xToday) {
    sfg_AddSQL(
        {
            "INSERT INTO EMPTxans ( ",
            "[CO], [Branch], [EmplNo], [TranDate], [TxTp], [Details], [Reference], [DrCr], ",
            "[Amount]",
            " ) VALUES ( ",
            valueList({gCO,
                       gBranch,
                       syssms_Account,
                       xToday,
                       syssms_TxTp,
                       employee.FieldByName("Cellphone").AsString(),
                       employee.FieldByName("IDNo").AsString(),
                       {},
                       "0"}),
            ")",
        },
        "NEW");
    return gData->vel_ExecSQL(1);
}

bool congratulate(Statement& employee, const QString& xToday) {
    if (employee.IsEmpty()) {
        return false;
    }
    for (; !employee.Eof(); employee.Next()) {
        const bool due = employee.FieldByName("SMSSent").AsInteger() == 0;
        // Without a marker the next log-in of the day tries again.
        if (due && sendMessage(employee) && !markSent(employee, xToday)) {
            return false;
        }
    }
    return true;
}

} // namespace

bool sli_Process_Employee_Birthday_SMS() {
    const QString today = sfg_Date(0);
    return readRows(gData->Velmara, birthdaysOf(today),
                    dialogAndRaise("999999", sqlErrorOnTable("[EMPMaster]"), errorClassUnit,
                                   "sli_Process_Birthday_SMSs"),
                    [&today](Statement& employees) { return congratulate(employees, today); });
}
