#include "lookups/CRO910.h"

#include "data/Session.h"
#include "data/StatementText.h"

namespace {

QString statusText(const QString& stored) {
    static const QMap<QString, QString> texts = {
        {QStringLiteral("0"), QStringLiteral("Open")},
        {QStringLiteral("2"), QStringLiteral("Marked Return")},
        {QStringLiteral("5"), QStringLiteral("Captured on IBT")},
        {QStringLiteral("9"), QStringLiteral("Invoiced")},
        {QStringLiteral("D"), QStringLiteral("Deleted")},
    };
    return texts.value(stored, stored);
}

ListFacts serialFacts() {
    return {
        .unit = QStringLiteral("CRO910"),
        .caption = QStringLiteral("Serial Tracking: Serial Number Selection"),
        // The number is a sibling screen's and stays so.
        .errorNo = QStringLiteral("920-001"),
        .errorText = QStringLiteral("SQL Error on Table: STKSerialMst :-"),
        .columns =
            {
                {"Status", {}, true, statusText},
                {"SerialNo", "Serial No."},
                {"StockCode", "Stock Code"},
                {"Description1", "Description #1"},
                {"RecID", {}, false},
            },
        .searchFragments =
            {
                QStringLiteral("AND T0.[StockCode] LIKE '%"),
                QStringLiteral(" OR T0.[LinkCode] LIKE '%"),
                QStringLiteral(" OR T0.[SerialNo] LIKE '%"),
                QStringLiteral(" OR T1.[Description1] LIKE '%"),
            },
        .searchEnd = QStringLiteral(" ORDER BY T0.[SerialNo] DESC"),
    };
}

// A search is capped as well.
SelectionRead serialRead() {
    const QStringList lines = {
        "SELECT TOP(1000) T0.RecID, T0.Status, T0.SerialNo, T0.StockCode, T0.LinkCode, "
        "T1.Description1",
        "  FROM STKSerialMst T0",
        " INNER JOIN STKMaster T1",
        "    ON T1.CO = T0.CO",
        "   AND T1.Branch = T0.Branch",
        "   AND T1.StockCode = T0.StockCode",
        "   AND T1.LinkCode = T0.LinkCode",
    };
    return {
        .whole = lines,
        .search = lines,
        .scope = {" WHERE T0.CO = " + QuotedStr(gCO), "   AND T0.Branch = " + QuotedStr(gBranch)},
        .order = " ORDER BY T0.SerialNo DESC",
    };
}

} // namespace

TfrmCRO910::TfrmCRO910(QWidget* parent)
    : SelectionScreen(serialFacts(), serialRead(),
                      {{"Status", &xStatus},
                       {"SerialNo", &xSerialNo},
                       {"StockCode", &xStockCode},
                       {"LinkCode", &xLinkCode},
                       {"Description1", &xDescription1}},
                      parent) {
    hideKeyCaps();
}

void TfrmCRO910::takeRecord() {
    xRecID = query().FieldByName(QStringLiteral("RecID")).AsInteger();
}

void TfrmCRO910::nothingToTake() {
    reject();
}

void TfrmCRO910::searchEntered() {
    if (!query().Eof()) {
        btnSearch->click();
    }
}
