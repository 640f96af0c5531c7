// Who and what this seat is, in the forms that stamps and rows keep.
#pragma once

#include <QString>

/// Address of the first network adapter as "00-11-22-33-44-55", or "MACAddress Not Found".
QString sm_GetMACAddress();
/// Address of one adapter, counted from 0, or "Mac NOT Found".
QString sm_GetAdapterInfo(int Lana);
/// Serial of the system volume, eight hexadecimal digits; blank when it cannot be told.
QString sm_GetSerialID();
/// At most 20 characters, as the audit columns hold.
QString sm_GetPCName();
/// The same of any name of a computer.
QString pcNameText(const QString& computer);
QString sm_Get_Login_UserName();
/// The last of the addresses of the computer's name; blank without any.
QString sm_GetIP();
/// The same of any addresses.
QString addressThatCounts(const QStringList& addresses);
/// Version of this program as major.minor.release, the last two with at least two digits.
QString sm_Version();
/// The same of any dotted version; "0.0.0" for what is none.
QString versionText(const QString& dotted);
