#include "data/SysLoadCommon.h"

#include "data/DataUCMN.h"
#include "data/Session.h"
#include "data/StatementText.h"

bool slc_GetControlSettings(const QString& xCode) {
    sfg_ResetParamFields(QString());
    Statement& wQuery = cData->vcLoadQuery1;
    wQuery.NewRead();
    wQuery.SQL.Add("SELECT * FROM vcControl WITH (NOLOCK) ");
    wQuery.SQL.Add(" WHERE [Suite] = " + QuotedStr(gSuite));
    wQuery.SQL.Add("   AND [Code] = " + QuotedStr(xCode));
    wQuery.Open();
    const bool found = !wQuery.IsEmpty();
    if (found) {
        gSParam[1] = wQuery.FieldByName("Details").AsString();
        gSParam[2] = wQuery.FieldByName("DBConnector").AsString();
        gSParam[3] = wQuery.FieldByName("DBUser").AsString();
        gSParam[4] = wQuery.FieldByName("DBPswd").AsString();
    }
    wQuery.Close();
    return found;
}
