// Sends the messages that a business event calls for, made from the event's templates.
#pragma once

#include "data/Session.h"

#include <QString>

// What the caller sets between syssms_Init and syssms_SendSMS; all but four keep what the last use
// left.
inline QString syssms_TxTp;    // transaction type, key to the templates
inline QString syssms_Account; // debtor account, employee number, or loyalty card
inline QString syssms_AccName;
inline QString syssms_TranDate;
inline QString syssms_User;
inline double syssms_Amount = 0, syssms_Balance = 0;
inline int syssms_OTP = 0; // one-time pin

inline void syssms_Init() {
    syssms_User = gUserCode;
    syssms_Amount = 0;
    syssms_Balance = 0;
    syssms_OTP = 0;
}

/// False when nothing could be sent for want of a template or a way to send: the caller then tries
/// again at the next occasion. There is no way to send yet.
inline bool syssms_SendSMS() {
    return false;
}
