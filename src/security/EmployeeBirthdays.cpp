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
void readBirthdays(Statement& query, const QString& xToday) {
    query.NewRead();
    query.SQL.Add("SELECT T0.[EmplNo], T0.[EmplName], T0.[BirthDate], T0.[IDNo], T0.[Telephone], "
                  "T0.[CellPhone], ");
    query.SQL.Add(" COUNT(T1.EmplNo) AS [SMSSent]");
    query.SQL.Add(" FROM EMPMaster T0 WITH (NOLOCK)");
    query.SQL.Add(" LEFT OUTER JOIN EMPTxans T1");
    query.SQL.Add("   ON T1.[CO] = T0.[CO]");
    query.SQL.Add("  AND T1.[Branch] = T0.[Branch]");
    query.SQL.Add("  AND T1.[EmplNo] = T0.[EmplNo]");
    query.SQL.Add("  AND T1.[TranDate] = " + QuotedStr(xToday));
    query.SQL.Add("  AND T1.[TxTp] = " + QuotedStr(QStringLiteral("POSEMP")));
    query.SQL.Add(" WHERE T0.[CO] = " + QuotedStr(gCO));
    query.SQL.Add("   AND T0.[Branch] = " + QuotedStr(gBranch));
    query.SQL.Add("   AND SUBSTRING(T0.[BirthDate], 6, 5) = SUBSTRING(" + QuotedStr(xToday) +
                  ", 6, 5)");
    query.SQL.Add(" GROUP BY T0.[EmplNo], T0.[EmplName], T0.[BirthDate], T0.[IDNo], "
                  "T0.[Telephone], T0.[CellPhone]");
    query.SQL.Add(" ORDER BY [EmplName]");
    query.Open();
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
    sfg_AddSQL("INSERT INTO EMPTxans ( "
               "[CO], [Branch], [EmplNo], [TranDate], [TxTp], [Details], [Reference], [DrCr], "
               "[Amount]"
               " ) VALUES ( " +
                   QuotedStr(gCO) + "," + QuotedStr(gBranch) + "," + QuotedStr(syssms_Account) +
                   "," + QuotedStr(xToday) + "," + QuotedStr(syssms_TxTp) + "," +
                   QuotedStr(employee.FieldByName("Cellphone").AsString()) + "," +
                   QuotedStr(employee.FieldByName("IDNo").AsString()) + "," + QuotedStr(QString()) +
                   "," + QuotedStr(0) + ")",
               "NEW");
    return gData->vel_ExecSQL(1);
}

} // namespace

bool sli_Process_Employee_Birthday_SMS() {
    const Fault fault{"999999", "SQL Error on Table: [EMPMaster] :-\r", faultUnit,
                      "sli_Process_Birthday_SMSs"};
    return shownAndThrownOn(fault, [] {
        const QString today = sfg_Date(0);
        Statement query(gData->Velmara);
        readBirthdays(query, today);
        if (query.IsEmpty()) {
            return false;
        }
        for (; !query.Eof(); query.Next()) {
            const bool due = query.FieldByName("SMSSent").AsInteger() == 0;
            // Without a marker the next log-in of the day tries again.
            if (due && sendMessage(query) && !markSent(query, today)) {
                return false;
            }
        }
        return true;
    });
}
