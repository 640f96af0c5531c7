#include "messaging/SysSendSMS.h"

#include "data/DataUVEL.h"
#include "data/DateTimeText.h"
#include "data/Reading.h"
#include "data/Session.h"
#include "data/Settings.h"
#include "data/StatementText.h"
#include "messaging/MessageText.h"
#include "messaging/SysComms.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// The unit of the fault's own class stands in these dialogs.
ReadFailure tableFailure(const char* table, const char* routine) {
    return dialogAndFalse("999999", sqlErrorOnTable(QLatin1StringView(table)), "SqlError",
                          QLatin1StringView(routine));
}

bool isPinRequest() {
    return syssms_MsgType == "O"_L1;
}

bool isOfMember() {
    return syssms_TxTp.left(3) == "VIP"_L1;
}

// Whether a provider took it is nobody's business here: a message must never hold up what it tells
// of.
void sendTo(const QString& cellNo) {
    sysc_InitCommsFelds();
    sysc_CellNo = cellNo;
    sysc_BodyHeader = syssms_Message;
    if (sfvel_GetParam("SYS", 238) == "C"_L1) {
        sysc_SendMySMS();
    } else {
        sysc_SendSMS();
    }
}

bool syssms_Create_OTP_Request(const QString& xCellNo) {
    sfg_AddSQL(
        {
            "INSERT INTO SysTxanOTP ( ",
            "[CO], [Branch], [TxTp], [TxTpKey], [Status], [OTP], [CellNo], [ReqDate], [ReqTime],  ",
            "[ReqUser], [ReqMacID], [UpdDate], [UpdTime], [DocNo], [SMSMessage]   ",
            " ) VALUES ( ",
            valueList({gCO,
                       gBranch,
                       syssms_TxTp,
                       syssms_TxTpKey,
                       "0", // not answered yet
                       QString::number(syssms_OTP),
                       xCellNo,
                       sfg_Date(0),
                       sfg_Time(),
                       gUserCode,
                       gPCName,
                       {},
                       {},
                       {},
                       syssms_Message}),
            ")",
        },
        "NEW");
    return gData->vel_ExecSQL(1);
}

bool syssms_GetTxTp() {
    Statement& templates = gData->vQuery10;
    try {
        templates.Open({
            "SELECT * FROM SysTxanSMS WITH (NOLOCK) ",
            " WHERE [CO] = " + QuotedStr(gCO),
            "   AND [Branch] = " + QuotedStr(gBranch),
            "   AND [TxTp] = " + QuotedStr(syssms_TxTp),
            syssms_MsgType.trimmed() == "O"_L1 ? "   AND [MsgType] IN ('O','N')"
                                               : "   AND [MsgType] <> 'O'",
        });
        return !templates.IsEmpty();
    } catch (const std::runtime_error& error) {
        tableFailure("SysTxanSMS", "syssms_GetTxTp").tell(error);
        return false;
    }
}

bool syssms_Process_UserSMS(const QString& xMsgType) {
    return readRows(gData->vQuery11,
                    {
                        "SELECT T0.*, T1.[CellNo] ",
                        " FROM SysUserSMS T0 WITH (NOLOCK) ",
                        " INNER JOIN SysUser T1 WITH (NOLOCK) ",
                        "    ON T0.[UserCode] = T1.[UserCode] ",
                        " WHERE T0.[CO] = " + QuotedStr(gCO),
                        "   AND T0.[Branch] = " + QuotedStr(gBranch),
                        "   AND T0.[TxTp] = " + QuotedStr(syssms_TxTp),
                        "   AND T0.[MsgType] = " + QuotedStr(xMsgType),
                        "   AND T1.[CellNo] <> ''",
                    },
                    tableFailure("SysUserSMS", "syssms_GetUsers"), [](Statement& users) {
                        bool kept = true;
                        for (; !users.Eof(); users.Next()) {
                            const QString cellNo = users.FieldByName("CellNo").AsString();
                            if (cellNo.trimmed().isEmpty()) {
                                continue;
                            }
                            kept = (!isPinRequest() || syssms_Create_OTP_Request(cellNo)) && kept;
                            sendTo(cellNo);
                        }
                        return kept;
                    });
}

bool syssms_Process_CustomerSMS() {
    return readRows(gData->vQuery11,
                    {
                        "SELECT Account, Title, Name, Surname, CellPhone, Status ",
                        " FROM DEBContacts WITH (NOLOCK) ",
                        " WHERE CO = " + QuotedStr(gCO),
                        "   AND Branch = " + QuotedStr(gDebBranch),
                        "   AND Account = " + QuotedStr(syssms_Account),
                        "   AND SMSTxans = 'Y'",
                        " ORDER BY PrtySeq ",
                    },
                    tableFailure("DEBContacts", "sysc_SendSMS_By_TxTp"), [](Statement& contacts) {
                        for (; !contacts.Eof(); contacts.Next()) {
                            const QString cellNo = contacts.FieldByName("CellPhone").AsString();
                            if (!cellNo.trimmed().isEmpty()) {
                                sendTo(cellNo);
                            }
                        }
                        return true;
                    });
}

// A request for a pin reads a column that the statement does not select, and so ends in that fault:
// no program of the suite asks a customer's contacts for one.
bool syssms_Process_Customer_OTP() {
    return readRows(gData->vQuery11,
                    {
                        "SELECT [Account], [Title], [Name], [Surname], [CellPhone], [Status] ",
                        " FROM DEBContacts WITH (NOLOCK) ",
                        " WHERE [CO] = " + QuotedStr(gCO),
                        "   AND [Branch] = " + QuotedStr(gDebBranch),
                        "   AND [Account] = " + QuotedStr(syssms_Account),
                        "   AND [SMSOTP] = 'Y'",
                        " ORDER BY [PrtySeq] ",
                    },
                    tableFailure("DEBContacts", "sysc_SendSMS_By_TxTp"), [](Statement& contacts) {
                        bool kept = true;
                        for (; !contacts.Eof(); contacts.Next()) {
                            if (isPinRequest()) {
                                const QString asked = contacts.FieldByName("CellNo").AsString();
                                kept = syssms_Create_OTP_Request(asked) && kept;
                            }
                            sendTo(contacts.FieldByName("CellPhone").AsString());
                        }
                        return kept;
                    });
}

/// To the first member that the account names, who gets so many rows for the pin.
bool sendToMember(int pinRequests, const char* routine) {
    return readRows(gData->vQuery11,
                    {
                        "SELECT [Name], [CellNo] ",
                        " FROM POSVIPMembers WITH (NOLOCK) ",
                        " WHERE [VIPCardNo] = " + QuotedStr(syssms_Account),
                        "    OR [CellNo] = " + QuotedStr(syssms_Account),
                    },
                    tableFailure("POSVIPMembers", routine), [pinRequests](Statement& members) {
                        bool kept = true;
                        if (!members.IsEmpty()) {
                            const QString cellNo = members.FieldByName("CellNo").AsString();
                            for (int i = 0; i < pinRequests; ++i) {
                                kept = syssms_Create_OTP_Request(cellNo) && kept;
                            }
                            sendTo(cellNo);
                        }
                        return kept;
                    });
}

// A plain message leaves a row for a pin too.
bool syssms_Process_VIPMember_SMS() {
    return sendToMember(1, "syssms_Process_VIPMember_SMS");
}

// Two rows for one pin, which whoever confirms them expects.
bool syssms_Process_VIPMember_OTP() {
    return sendToMember(2, "syssms_Process_VIPMember_OTP");
}

bool process(const QString& msgType) {
    if (msgType == "O"_L1 || msgType == "U"_L1) {
        return syssms_Process_UserSMS(msgType);
    }
    if (msgType == "C"_L1) {
        return isOfMember() ? syssms_Process_VIPMember_SMS() : syssms_Process_CustomerSMS();
    }
    if (msgType == "N"_L1) {
        return isOfMember() ? syssms_Process_VIPMember_OTP() : syssms_Process_Customer_OTP();
    }
    return true;
}

/// A blank trailer leaves the one before in its place.
bool sendTemplate(const Statement& row) {
    syssms_TxtHeader = syssms_Make_Message(row.FieldByName("TxtHeader").AsString());
    const QString trailer = row.FieldByName("TxtTrailer").AsString();
    if (!trailer.trimmed().isEmpty()) {
        syssms_TxtTrailer = syssms_Make_Message(trailer);
    }
    syssms_Message = syssms_TxtHeader.trimmed() + u' ' + syssms_TxtTrailer.trimmed();
    return syssms_Message.trimmed().isEmpty() || process(row.FieldByName("MsgType").AsString());
}

} // namespace

void syssms_Init() {
    syssms_User = gUserCode;
    syssms_Amount = 0;
    syssms_Balance = 0;
    syssms_OTP = 0;
}

bool syssms_SendSMS() {
    if (syssms_TxTp.trimmed().isEmpty()) {
        syssms_ReturnMsg = u"No Transaction Type"_s;
        return false;
    }
    const auto close = qScopeGuard([] {
        gData->vQuery10.Close();
        gData->vQuery11.Close();
    });
    if (!syssms_GetTxTp()) {
        return false;
    }
    for (Statement& row = gData->vQuery10; !row.Eof(); row.Next()) {
        if (!sendTemplate(row)) {
            return false;
        }
    }
    return true;
}
