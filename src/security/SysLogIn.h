// Turns a user code, a password and a chosen database into a filled session.
#pragma once

#include <QString>

/// Connects the suite database of the vcSettings row xDBaseRecID, verifies the user and his right
/// to the company and branch, and loads the session. xCO and xBranch replace those of the row when
/// both are given. False: gLoginResult is "1" and gErrorMsg tells why.
bool sli_LogIn(const QString& xUserCode, const QString& xUserPswd, int xDBaseRecID,
               const QString& xCO, const QString& xBranch);

/// Takes the vcSettings row of that display name into gDBaseRecID and its companions; false when
/// there is none.
bool sli_VerifyDatabase(const QString& xDBDisplayName);

/// RecID of the vcSettings row that sli_DBConnect connects.
inline int sli_DBaseRecID = 0;

// The steps of sli_LogIn, in its order. Each that returns false leaves its reason in gErrorMsg.
bool sli_DBConnect();
bool sli_VerifyUser();
bool sli_VerifyUserCompany();
bool sli_VELMARA_LogIn();
bool sli_LoadCompany();
bool sli_LoadBranch();
bool sli_GetPeriod();
bool sli_Open_AccountingPeriod(int xAP);
bool sli_SharedBranches();
bool sli_LoadVelmaraSettings();
bool sli_LoadCCYDetails();
void sli_LoadDefaultBank();
void sli_Load_Velmara_Progs();
/// Sends each employee whose birthday it is one message a day; false when there is none.
bool sli_Process_Employee_Birthday_SMS();
