#include "data/ErrorTexts.h"

#include "data/DataUCMN.h"
#include "data/ReadGuard.h"
#include "data/Session.h"
#include "data/StatementText.h"

bool sfg_GetErrorMessage(const QString& xErrorNo) {
    gErrorMsg.clear();
    gErrorComment.clear();
    return guardedRead("999999", "vcErrorMessages", "SysFuncGlobal", "sfg_GetErrorMessage", [&] {
        Statement wQuery(cData->VelmaraCommon);
        wQuery.NewRead();
        wQuery.SQL.Add("SELECT [ErrorNo], [Message], [Comment] ");
        wQuery.SQL.Add("  FROM vcErrorMessages WITH (NOLOCK) ");
        wQuery.SQL.Add(" WHERE [Suite] = " + QuotedStr(gSuite));
        wQuery.SQL.Add("   AND [ErrorNo] = " + QuotedStr(xErrorNo));
        wQuery.Open();
        if (wQuery.IsEmpty()) {
            return false;
        }
        gErrorMsg = wQuery.FieldByName("Message").AsString();
        gErrorComment = wQuery.FieldByName("Comment").AsString();
        return true;
    });
}
