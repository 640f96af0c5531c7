// Sends one text message over either of the two channels of the site.
#pragma once

#include <QString>

// Filled by the caller after sysc_InitCommsFelds. The sending routines read the number, the text and
// the sender's name.
inline QString sysc_TxTp, sysc_Account, sysc_AccountDB;
inline QString sysc_Name;       // of the sender; blank becomes the parameter "SYS" 99
inline QString sysc_CellNo;     // ten digits
inline QString sysc_BodyHeader; // the text
inline QString sysc_BodyDetails, sysc_BodyTrailer;
inline QString sysc_Email, sysc_Subject, sysc_Attachment, sysc_From;
inline QString sysc_ReturnMsg; // why a message was not sent

void sysc_InitCommsFelds();

/// Ten digits in groups of three, three and four; brackets around the first and one "-", "." or
/// bullet between them may stand. International numbers do not pass.
bool sysc_ValidatePhoneNumber(const QString& xPhoneNumber);

/// Over the gateway whose address is the parameter "SYS" 104 (user 105, password 106). False leaves
/// the reason in sysc_ReturnMsg.
bool sysc_SendSMS();

/// Over the service MyMobileAPI at the address of "SYS" 239 (user 240, password 241). False leaves
/// the reason in sysc_ReturnMsg.
bool sysc_SendMySMS();
