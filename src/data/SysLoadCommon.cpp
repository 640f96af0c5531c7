#include "data/SysLoadCommon.h"

#include "data/DataUCMN.h"
#include "data/Reading.h"
#include "data/Session.h"
#include "data/StatementText.h"

bool slc_GetControlSettings(const QString& xCode) {
    sfg_ResetParamFields(QString());
    return readRows(cData->vcLoadQuery1,
                    {
                        "SELECT * FROM vcControl WITH (NOLOCK) ",
                        " WHERE [Suite] = " + QuotedStr(gSuite),
                        "   AND [Code] = " + QuotedStr(xCode),
                    },
                    raised(), [](const Statement& rows) {
                        if (rows.IsEmpty()) {
                            return false;
                        }
                        gSParam[1] = rows.FieldByName("Details").AsString();
                        gSParam[2] = rows.FieldByName("DBConnector").AsString();
                        gSParam[3] = rows.FieldByName("DBUser").AsString();
                        gSParam[4] = rows.FieldByName("DBPswd").AsString();
                        return true;
                    });
}
