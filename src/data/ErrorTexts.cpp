#include "data/ErrorTexts.h"

#include "data/DataUCMN.h"
#include "data/Reading.h"
#include "data/Session.h"
#include "data/StatementText.h"

bool sfg_GetErrorMessage(const QString& xErrorNo) {
    gErrorMsg.clear();
    gErrorComment.clear();
    return readRows(cData->VelmaraCommon,
                    {
                        "SELECT [ErrorNo], [Message], [Comment] ",
                        "  FROM vcErrorMessages WITH (NOLOCK) ",
                        " WHERE [Suite] = " + QuotedStr(gSuite),
                        "   AND [ErrorNo] = " + QuotedStr(xErrorNo),
                    },
                    dialogAndRaise("999999", sqlErrorOnTable("vcErrorMessages"), "SysFuncGlobal",
                                   "sfg_GetErrorMessage"),
                    [](const Statement& rows) {
                        if (rows.IsEmpty()) {
                            return false;
                        }
                        gErrorMsg = rows.FieldByName("Message").AsString();
                        gErrorComment = rows.FieldByName("Comment").AsString();
                        return true;
                    });
}
