#include "repairs/ItemKey.h"

#include "data/Session.h"
#include "data/StatementText.h"

QStringList ItemKey::where() const {
    return {
        " WHERE [CO] = " + QuotedStr(gCO),
        "   AND [Branch] = " + QuotedStr(gBranch),
        "   AND [CRONo] = " + QuotedStr(xCRONo),
        "   AND [ItemNo] = " + QuotedStr(xItemNo),
    };
}

QStringList ItemKey::deletion(const char* table) const {
    return QStringList{"DELETE FROM " + QLatin1String(table)} + where();
}

QStringList ItemKey::insertion(const char* table, const char* columns,
                               const QStringList& values) const {
    return {
        "INSERT INTO " + QLatin1String(table) + " ( ",
        "[CO], [Branch], [CRONo], [ItemNo], " + QLatin1String(columns),
        " ) VALUES ( ",
        valueList(QStringList{gCO, gBranch, xCRONo, xItemNo} + values) + ")",
    };
}
