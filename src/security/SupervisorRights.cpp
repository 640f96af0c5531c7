#include "security/SupervisorRights.h"

#include "data/DataUVEL.h"
#include "data/Session.h"
#include "data/StatementText.h"

namespace {

// Puts the first row's option in place of the one so far; false when the read failed.
bool takeOption(const QStringList& lines, const RightOfUser& right, const ReadFailure& failure,
                QString& option) {
    const QStringList theRight{
        "   AND [ModCode] = " + QuotedStr(right.modCode),
        "   AND [AccessNo] = " + QuotedStr(right.accessNo),
    };
    return readRows(gData->vQuery3, lines + theRight, failure, [&option](const Statement& rows) {
        if (!rows.IsEmpty()) {
            option = rows.FieldByName("Options").AsString();
        }
    });
}

} // namespace

QString optionOfUser(const RightOfUser& right, const RightReads& reads) {
    QString option = QStringLiteral("N");
    const QString select = QStringLiteral("SELECT %1 FROM ").arg(QLatin1String(reads.columns));
    const QStringList ofGroup{
        select + "SYSGrpAccess WITH (NOLOCK)",
        " WHERE [CO] = " + QuotedStr(gCO),
        "   AND [UserGroup] = " + QuotedStr(right.userGroup),
    };
    const QStringList ofUser{
        select + "SYSUserAccess WITH (NOLOCK)",
        " WHERE [CO] = " + QuotedStr(gCO),
        "   AND [Branch] = " + QuotedStr(gBranch),
        "   AND [UserCode] = " + QuotedStr(right.userCode),
    };
    const bool bothRead = takeOption(ofGroup, right, reads.group, option) &&
                          takeOption(ofUser, right, reads.user, option);
    return bothRead ? option : QStringLiteral("N");
}
