#include "security/SupervisorRights.h"

#include "data/DataUVEL.h"
#include "data/StatementText.h"

namespace {

void addRight(Statement& query, const RightOfUser& right) {
    query.SQL.Add("   AND [ModCode] = " + QuotedStr(right.modCode));
    query.SQL.Add("   AND [AccessNo] = " + QuotedStr(right.accessNo));
}

void takeOption(Statement& query, QString& option) {
    query.Open();
    if (!query.IsEmpty()) {
        option = query.FieldByName("Options").AsString();
    }
    query.Close();
}

} // namespace

QString optionOfUser(const RightOfUser& right, const RightReads& reads) {
    QString option = QStringLiteral("N");
    Statement& query = gData->vQuery3;
    const QString select = QStringLiteral("SELECT %1 FROM ").arg(QLatin1String(reads.columns));
    const bool groupRead = shownAsFalse(reads.group, [&] {
        query.NewRead();
        query.SQL.Add(select + "SYSGrpAccess WITH (NOLOCK)");
        query.SQL.Add(" WHERE [CO] = " + QuotedStr(gCO));
        query.SQL.Add("   AND [UserGroup] = " + QuotedStr(right.userGroup));
        addRight(query, right);
        takeOption(query, option);
        return true;
    });
    const bool userRead = groupRead && shownAsFalse(reads.user, [&] {
                              query.NewRead();
                              query.SQL.Add(select + "SYSUserAccess WITH (NOLOCK)");
                              query.SQL.Add(" WHERE [CO] = " + QuotedStr(gCO));
                              query.SQL.Add("   AND [Branch] = " + QuotedStr(gBranch));
                              query.SQL.Add("   AND [UserCode] = " + QuotedStr(right.userCode));
                              addRight(query, right);
                              takeOption(query, option);
                              return true;
                          });
    return userRead ? option : QStringLiteral("N");
}
