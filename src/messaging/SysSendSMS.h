// Sends the messages that a business event calls for, made from the event's templates, to the users
// on its list, a customer's contacts or a loyalty member.
#pragma once

#include <QString>

// What the caller sets between syssms_Init and syssms_SendSMS. All but four keep what the last use
// left.
inline QString syssms_TxTp;    // transaction type, key to the templates; "VIP..." goes to members
inline QString syssms_TxTpKey; // of the business object, kept with a one-time pin
inline QString syssms_MsgType; // "O" sends a one-time pin
inline QString syssms_Account; // debtor account, employee number, loyalty card or cell number
inline QString syssms_AccName;
inline QString syssms_TranDate;
inline QString syssms_User;
inline QString syssms_RefNo, syssms_DocNo, syssms_Details;
inline double syssms_Amount = 0, syssms_Balance = 0;
inline int syssms_OTP = 0; // the pin, drawn by the caller

// The template that is sent at the moment, filled in, and the text it makes.
inline QString syssms_TxtHeader, syssms_TxtTrailer, syssms_Message;
inline QString syssms_ReturnMsg; // reason for a false result, where there is one

/// The signed-in user, and no amount, balance and pin.
void syssms_Init();

/// Sends every template of the type in SysTxanSMS. True says that the database did its part, not that
/// anything was accepted; false when there is no template or a read failed, which is shown.
bool syssms_SendSMS();
